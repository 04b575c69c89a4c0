// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/clauss/uiwpclauss.h"
#include "importers/importplugin.h"

namespace PanoHead
{

inline constexpr About kClaussAbout{
    "Clauss",
    "Clauss Rodeon import plugin",
    ":/%1/Resources/XClauss.png",
    "7A21C94E-5B20-2020-2020-D6D081182F97",
};

} // namespace PanoHead

/** Clauss Rodeon scripts. */
class XClaussImport : public PanoHead::ImportPlugin<UIWPClauss, PanoHead::kClaussAbout>
{
    Q_OBJECT
    Q_INTERFACES(XIPluginImport XIAbout)

public:
    explicit XClaussImport(QObject *parent)
        : ImportPlugin(parent, staticMetaObject.className())
    {
    }
};
