// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class ReadingThread;
class QWidget;

namespace PanoHead
{

/** Texts of an open dialog, translated by the page. */
struct FileQuestion {
    QString caption;
    QString filters;
    QString selectedFilter;
};

/** The files that the user picks, in the dialog's order; empty when it was cancelled. */
[[nodiscard]] QStringList askForFiles(QWidget *parent, const FileQuestion &question,
                                      const QString &start);

/** Whether Control is held: the button then shows the place instead of asking for files. */
[[nodiscard]] bool controlHeld();

/** Lets the desktop open a file or folder, whatever characters its name has; nothing if empty. */
void openInDesktop(const QString &path);

/** The folder that holds \p path; empty for an empty path. */
[[nodiscard]] QString folderOf(const QString &path);

/** \p chosen, or where it is empty the place that the host remembers. */
[[nodiscard]] QString startLocation(const QString &chosen);

/** Tells the host what the user has chosen. */
void rememberLocation(const QString &path);

/** Sorted case-sensitively: IMG_10 before IMG_9, Z before a. */
[[nodiscard]] QStringList sortedPhotos(QStringList files);

/** Reads \p files from a clean start; not at all without a host. */
void readPhotos(ReadingThread &thread, const QStringList &files);

} // namespace PanoHead
