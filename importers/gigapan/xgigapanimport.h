// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/gigapan/uiwpgigapan.h"
#include "importers/importplugin.h"

namespace PanoHead
{

inline constexpr About kGigapanAbout{
    "Gigapan",
    "Gigapan import plugin",
    ":/%1/Resources/XGigapan.png",
    "7A21C94E-5B20-2020-2020-6028D47773DF",
};

} // namespace PanoHead

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
