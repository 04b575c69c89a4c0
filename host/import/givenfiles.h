// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/plugin/pluginlibrary.h"

#include <QStringList>

class QWizardPage;

namespace PanoHost
{

/** Files dropped onto the wizard or named on the command line. */
struct GivenFiles {
    QString record; ///< the last one that ends like the record of a head; empty: none
    QStringList photos; ///< all others
};

/** Whether \p path ends like the record of a head. */
[[nodiscard]] bool isRecord(const QString &path);

[[nodiscard]] GivenFiles sortFiles(const QStringList &files);

/**
 * The place of the plug-in that \p files are for: \p chosen (-1: none) where it can read them, else
 * the first that reads such records; \p chosen again when no plug-in does.
 */
[[nodiscard]] int headFor(const GivenFiles &files, const QVector<ImportPlugin> &plugins,
                          int chosen);

/** The record that \p page shows; empty when it has none. */
[[nodiscard]] QString recordPath(const QWizardPage *page);

} // namespace PanoHost
