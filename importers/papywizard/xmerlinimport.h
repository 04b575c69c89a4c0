// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/importplugin.h"
#include "importers/papywizard/uiwpmerlin.h"

namespace PanoHead
{

inline constexpr About kPapywizardAbout{
    "Papywizard",
    "Papywizard XML import plugin",
    ":/%1/Resources/Papywizard.png",
    "7A21C94E-5B20-2020-2020-483181480AB7",
};

} // namespace PanoHead

/** Papywizard XML records of Merlin/Orion and many other heads. */
class XMerlinImport : public PanoHead::ImportPlugin<UIWPMerlin, PanoHead::kPapywizardAbout>
{
    Q_OBJECT
    Q_INTERFACES(XIPluginImport XIAbout)

public:
    explicit XMerlinImport(QObject *parent)
        : ImportPlugin(parent, staticMetaObject.className())
    {
    }
};
