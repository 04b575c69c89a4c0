// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/plugin/panohostapplication.h"
#include "host/plugin/pluginlibrary.h"

#include <QStringList>

class QWizardPage;

namespace PanoHost
{

/** Files dropped onto the wizard or named on the command line. */
struct FilledFiles {
    QString record; ///< the last one that ends like the record of a head; empty: none
    QStringList photos; ///< all others
};

[[nodiscard]] FilledFiles sortFiles(const QStringList &files);

/**
 * The place of the plug-in that \p files are for: \p chosen (-1: none) where it can read them, else
 * the first that reads such records; \p chosen again when no plug-in does.
 */
[[nodiscard]] int headFor(const FilledFiles &files, const QVector<ImportPlugin> &plugins,
                          int chosen);

/** The record that \p page shows; empty when it has none. */
[[nodiscard]] QString recordPath(const QWizardPage *page);

/**
 * Enters \p files into a plug-in's \p page the way a user would. Answers why it cannot be done, for
 * the user; empty when it was done.
 */
[[nodiscard]] QString fillPage(PanoHostApplication &app, QWizardPage *page,
                               const FilledFiles &files);

} // namespace PanoHost
