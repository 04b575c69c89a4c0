// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/importplugin.h"
#include "importers/papywizard/facts.h"
#include "importers/papywizard/uiwpmerlin.h"

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
