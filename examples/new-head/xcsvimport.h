// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/csv/facts.h"
#include "importers/csv/uiwpcsv.h"
#include "importers/importplugin.h"

/** Lists of shots. */
class XCsvImport : public PanoHead::ImportPlugin<UIWPCsv, PanoHead::kCsvAbout>
{
    Q_OBJECT
    Q_INTERFACES(XIPluginImport XIAbout)

public:
    explicit XCsvImport(QObject *parent)
        : ImportPlugin(parent, staticMetaObject.className())
    {
    }
};
