// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/importplugin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"

namespace PanoHead
{

inline constexpr About kVRDrive2About{
    "VRDrive2",
    "VRDrive2 XML import plugin",
    ":/%1/Resources/VRDrive2.png",
    "7A21C94E-5B20-2020-2020-B662C695C918",
};

} // namespace PanoHead

/** VR Drive 2 records, which follow the Papywizard schema. */
class XVRDrive2Import : public PanoHead::ImportPlugin<UIWPVRDrive2, PanoHead::kVRDrive2About>
{
    Q_OBJECT
    Q_INTERFACES(XIPluginImport XIAbout)

public:
    explicit XVRDrive2Import(QObject *parent)
        : ImportPlugin(parent, staticMetaObject.className())
    {
    }
};
