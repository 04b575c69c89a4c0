// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hosthead.h"

namespace
{

HostHead newHead()
{
    HostHead head;
    head.title = "Gigapan";
    head.plugin = "XGigapanImport";
    head.hasEveryKind = true;
    head.name = "Gigapan";
    head.comment = "Gigapan import plugin";
    head.uid = "7A21C94E-5B20-2020-2020-6028D47773DF";
    head.icon = "XGigapan.png";
    head.page = "UIWPGigapan";
    head.ordersByTime = true;
    const QString asks = QStringLiteral("LastPath");
    const QString photo = QStringLiteral("open FOLDER/a.jpg");
    head.buttonSteps = {
        { "m_pbSelectImages", true, { asks, photo } },
        { "m_pbSelectImages", false, { asks } },
    };
    return head;
}

} // namespace

const HostHead &gigapanHostHead()
{
    static const HostHead head = newHead();
    return head;
}
