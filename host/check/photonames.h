// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

#include <vector>

namespace PanoHost
{

/** What the names of photos say about the order in which they were taken. */
struct NameOrder {
    std::vector<int> sorted; ///< indices, numbers in names by their value: "P9" before "P10"
    /** The same, but where a camera's counter ran over, 9999 comes before 0000. */
    std::vector<int> counted;
    /** Counters started again, so that names do not tell which of two photos came first: another
     * order that they allow, card by card. Otherwise empty. */
    std::vector<int> other;
};
[[nodiscard]] NameOrder nameOrderOf(const QStringList &paths);

/** Of files that have a name in common but for the ending, as RAW and JPEG of one photo, the ones
 * to use: JPEGs, else those that need no RAW converter. In the order of \p paths. */
[[nodiscard]] QStringList withoutCompanions(const QStringList &paths);

/** The counter in the photo name \p path, "DSC_0042-2.jpg": 42; -1: it has none. */
[[nodiscard]] int counterOf(const QString &path);

/** Whether a camera names \p next, at most \p most photos later, after \p path. */
[[nodiscard]] bool isCountedNext(const QString &path, const QString &next, int most);

} // namespace PanoHost
