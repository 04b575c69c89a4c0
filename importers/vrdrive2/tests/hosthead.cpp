// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hosthead.h"

#include "importers/papywizard/tests/hostilerecords.h"
#include "importers/papywizard/tests/lensrecord.h"

namespace
{

/** The page shares reader and generator with the Papywizard's; every tenth file is enough. */
QVector<HostileFile> everyTenthRecord()
{
    const QVector<HostileFile> all = hostileRecords();
    QVector<HostileFile> files;
    for (int i = 0; i < all.size(); i += 10) {
        files.append(all.at(i));
    }
    return files;
}

HostHead newHead()
{
    HostHead head;
    head.title = "VR Drive 2";
    head.plugin = "XVRDrive2Import";
    head.name = "VRDrive2";
    head.comment = "VRDrive2 XML import plugin";
    head.uid = "7A21C94E-5B20-2020-2020-B662C695C918";
    head.icon = "VRDrive2.png";
    head.page = "UIWPVRDrive2";
    head.recordName = "shoot.xml";
    head.record = &lensRecord;
    head.hostileFiles = &everyTenthRecord;
    head.hasLens = true;
    head.turnsCamera = true;
    const QString asks = QStringLiteral("LastPath");
    const QString folder = QStringLiteral("open FOLDER");
    const QString shows = QStringLiteral("show");
    const QString tells = QStringLiteral("completeChanged");
    // On this page everything but the choice itself follows in any case.
    head.buttonSteps = {
        { "m_pbSelectConfigFile", true, { asks, folder, shows, tells } },
        { "m_pbSelectConfigFile", false, { asks, shows, tells } },
        { "m_pbSelectImages", true, { asks, folder, shows, tells } },
        { "m_pbSelectImages", false, { asks, shows, tells } },
    };
    return head;
}

} // namespace

const HostHead &vrdrive2HostHead()
{
    static const HostHead head = newHead();
    return head;
}
