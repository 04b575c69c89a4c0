// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/clauss/facts.h"
#include "importers/clauss/uiwpclauss.h"
#include "importers/importplugin.h"

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
