// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/heads.h"
#include "host/model/jobwatch.h"
#include "host/plugin/pluginlibrary.h"

#include <QStringList>

class QWizardPage;

namespace PanoHost
{

/** Files dropped onto the wizard or named on the command line. */
struct GivenFiles {
    QString record; ///< the last one that ends like the record of a head; empty: none
    QStringList photos; ///< all others, each once
    QStringList otherRecords; ///< before that one
    QStringList own; ///< projects, descriptions and pictures that this program makes
    const HeadFacts *reader = nullptr; ///< a head that reads the record; null: none does
    int shots = 0; ///< of the record
};

/** Whether \p path ends like the record of a head. */
[[nodiscard]] bool isRecord(const QString &path);
/** Whether \p path ends like a photo, RAW files included. */
[[nodiscard]] bool isPhotoName(const QString &path);
/** Whether \p path is a project or a description, or a picture that was made from one. */
[[nodiscard]] bool isOwnFile(const QString &path);

/** Absolute paths of \p words, which are paths or file URLs; others, "https://...", are left out.
 */
[[nodiscard]] QStringList localPaths(const QStringList &words);
/** The files that \p text names, one a line; nothing unless each line is a file URL or a path of
 * something that exists. */
[[nodiscard]] QStringList pathsInText(const QString &text);

/**
 * \p files, and of the folders among them all records and photos below, in as many of them as can
 * be read. Links to folders are not followed. Throws when \p watch says so. Any thread.
 */
[[nodiscard]] QStringList withoutFolders(const QStringList &files, const JobWatch &watch);

[[nodiscard]] GivenFiles sortFiles(const QStringList &files);

/** The head that reads the record at \p path instead of \p head; null: none, or it does so itself.
 */
[[nodiscard]] const HeadFacts *readerOf(const QString &path, const HeadFacts *head);

/**
 * Finds out what reads the record in \p files. Of several records the last one that some head reads
 * counts: many a text is none.
 */
void preferReadableRecord(GivenFiles &files);

/**
 * The place of the plug-in that \p files are for: \p chosen (-1: none) where it can read them, else
 * the first that reads such records; \p chosen again when no plug-in does.
 */
[[nodiscard]] int headFor(const GivenFiles &files, const QVector<ImportPlugin> &plugins,
                          int chosen);

/** The record that \p page shows; empty when it has none. */
[[nodiscard]] QString recordPath(const QWizardPage *page);

} // namespace PanoHost
