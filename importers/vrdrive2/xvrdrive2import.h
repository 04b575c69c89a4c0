// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/importplugin.h"
#include "importers/vrdrive2/facts.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"

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
