// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/wordsuggestion.h"

#include <QVector>

#include <algorithm>

namespace PanoHost
{

namespace
{

/** Letters to change, add, drop or swap with their neighbour to get from \p a to \p b. */
int editDistance(const QString &a, const QString &b)
{
    QVector<int> twoAbove(b.size() + 1);
    QVector<int> above(b.size() + 1);
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j) {
        above[j] = j;
    }
    for (int i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int change = above[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({ change, above[j] + 1, row[j - 1] + 1 });
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = std::min(row[j], twoAbove[j - 2] + 1);
            }
        }
        twoAbove.swap(above);
        above.swap(row);
    }
    return above[b.size()];
}

} // namespace

QString closestWord(const QString &word, const QStringList &known)
{
    constexpr int kLongestWord = 64;
    if (word.size() > kLongestWord) {
        return {};
    }
    QString best;
    int bestDistance = (word.size() + 2) / 3 + 1;
    for (const QString &candidate : known) {
        const bool begins = word.size() >= 2 && candidate.startsWith(word, Qt::CaseInsensitive);
        const int distance = begins ? 1 : editDistance(word.toLower(), candidate.toLower());
        if (distance < bestDistance) {
            bestDistance = distance;
            best = candidate;
        }
    }
    return best;
}

QString suggestion(const QString &word, const QStringList &known)
{
    const QString closest = closestWord(word, known);
    return closest.isEmpty() ? QString() : QStringLiteral("; did you mean '%1'?").arg(closest);
}

} // namespace PanoHost
