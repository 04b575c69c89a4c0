// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QWizardPage;

/**
 * An import plug-in: it owns the page that the host shows in its import wizard.
 *
 * Host interface: found through `qt_metacast("XIPluginImport")`; the order of the operations is
 * fixed.
 */
class XIPluginImport
{
public:
    virtual ~XIPluginImport() = default;
    /** Exactly one entry; null when the host has deleted the page. The plug-in keeps ownership. */
    virtual QList<QWizardPage *> WizardPages() = 0;
};
