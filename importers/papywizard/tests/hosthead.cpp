// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hosthead.h"

#include "importers/papywizard/tests/hostilerecords.h"
#include "importers/papywizard/tests/lensrecord.h"

namespace
{

HostHead newHead()
{
    HostHead head;
    head.title = "Papywizard";
    head.plugin = "XMerlinImport";
    head.hasEveryKind = true;
    head.name = "Papywizard";
    head.comment = "Papywizard XML import plugin";
    head.uid = "7A21C94E-5B20-2020-2020-483181480AB7";
    head.icon = "Papywizard.png";
    head.page = "UIWPMerlin";
    head.recordName = "shoot.xml";
    head.record = &lensRecord;
    head.hostileFiles = &hostileRecords;
    head.hasLens = true;
    head.turnsCamera = true;
    head.ordersByTime = true;
    const QString asks = QStringLiteral("LastPath");
    const QString folder = QStringLiteral("open FOLDER");
    const QString shows = QStringLiteral("show");
    const QString tells = QStringLiteral("completeChanged");
    head.buttonSteps = {
        { "m_pbSelectConfigFile", true, { asks, folder } },
        { "m_pbSelectConfigFile", false, { asks, shows, tells } }, // it reads its record again
        { "m_pbSelectImages", true, { asks, folder } },
    };
    return head;
}

} // namespace

const HostHead &papywizardHostHead()
{
    static const HostHead head = newHead();
    return head;
}
