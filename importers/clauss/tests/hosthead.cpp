// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hosthead.h"

#include "importers/clauss/tests/hostilescripts.h"

namespace
{

QByteArray scriptOf(const QVector<ShotAngles> &shots)
{
    QByteArray script;
    for (const ShotAngles &shot : shots) {
        script += "op_h-angle=" + QByteArray::number(static_cast<int>(shot.yawDegrees))
            + "\nop_v-angle=" + QByteArray::number(static_cast<int>(shot.pitchDegrees))
            + "\nop_shoot\n";
    }
    return script;
}

HostHead newHead()
{
    HostHead head;
    head.title = "Clauss";
    head.plugin = "XClaussImport";
    head.name = "Clauss";
    head.comment = "Clauss Rodeon import plugin";
    head.uid = "7A21C94E-5B20-2020-2020-D6D081182F97";
    head.icon = "XClauss.png";
    head.page = "UIWPClauss";
    head.recordName = "script.txt";
    head.record = &scriptOf;
    head.hostileFiles = &hostileScripts;
    head.ordersByTime = true;
    const QString asks = QStringLiteral("LastPath");
    const QString folder = QStringLiteral("open FOLDER");
    const QString photo = QStringLiteral("open FOLDER/a.jpg");
    const QString shows = QStringLiteral("show");
    const QString tells = QStringLiteral("completeChanged");
    head.buttonSteps = {
        { "m_pbSelectConfigFile", true, { asks, folder } },
        { "m_pbSelectConfigFile", false, { asks, shows, tells } },
        { "m_pbSelectImages", true, { asks, photo } },
        { "m_pbSelectImages", false, { asks } },
    };
    return head;
}

} // namespace

const HostHead &claussHostHead()
{
    static const HostHead head = newHead();
    return head;
}
