// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace PanoHead
{

/** What a user picked in a dialog that takes the head's record together with the photos. */
struct RecordSelection {
    QString record; ///< empty: none was picked
    QStringList photos; ///< in the dialog's order
};

/**
 * Parts a selection: a name with the \p recordEnding (like ".xml", case ignored) is the record,
 * the last one wins; all others are photos.
 */
[[nodiscard]] RecordSelection splitSelection(const QStringList &files, const QString &recordEnding);

} // namespace PanoHead
