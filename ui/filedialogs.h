// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/photoselection.h"

#include <QString>
#include <QStringList>

#include <optional>

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

/** What a button that asks for photos shows instead while Control is held. */
enum class ControlShows {
    Location, ///< the start location itself: the first photo, or the host's last path
    Folder, ///< the folder that holds it
};

/**
 * Lets the user pick photos, starting at the first of \p current, and tells the host. Sorted
 * case-sensitively: IMG_10 before IMG_9, Z before a. Empty, and nothing to be done, when the dialog
 * was cancelled, Control showed the place, or the host deleted \p page meanwhile.
 */
[[nodiscard]] QStringList selectPhotos(QWidget *page, const FileQuestion &question,
                                       const QStringList &current, ControlShows controlShows);

/** What the user picked in a dialog that takes the head's record together with the photos. */
struct RecordChoice {
    RecordSelection selection;
    QString location; ///< the record, or the start location when only photos were picked
};

/**
 * Lets the user pick the head's record, known by its \p ending, and photos, starting at
 * \p current, and tells the host. Everything is empty when the dialog was cancelled. Nothing, and
 * nothing to be done, when Control showed the folder or the host deleted \p page meanwhile.
 */
[[nodiscard]] std::optional<RecordChoice> selectRecord(QWidget *page, const FileQuestion &question,
                                                       const QString &current,
                                                       const QString &ending);

/** Sorted case-sensitively. */
[[nodiscard]] QStringList sortedPhotos(QStringList files);

/** Reads \p files from a clean start; not at all without a host. */
void readPhotos(ReadingThread &thread, const QStringList &files);

/** Ends the reading for good, without a further signal to \p page, and deletes \p thread. */
void endReading(QWidget *page, ReadingThread *thread);

/** Stops a run and forgets its images; leaves an idle thread as it is. */
void clearIfRunning(ReadingThread &thread);

} // namespace PanoHead
