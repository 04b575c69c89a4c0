// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/gigapan/facts.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/importplugin.h"

/** Gigapan grids. */
class XGigapanImport : public PanoHead::ImportPlugin<UIWPGigapan, PanoHead::kGigapanAbout>
{
    Q_OBJECT
    Q_INTERFACES(XIPluginImport XIAbout)

public:
    explicit XGigapanImport(QObject *parent)
        : ImportPlugin(parent, staticMetaObject.className())
    {
    }
};
