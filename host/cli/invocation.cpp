// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/invocation.h"

#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{

namespace
{

/** Whether \p word is a common option whose value is the next word. */
bool takesNextWord(const QString &word)
{
    const QVector<OptionRow> &rows = CommandLine::commonOptions();
    return std::any_of(rows.begin(), rows.end(), [&word](const OptionRow &row) {
        return row.value != nullptr && word == QStringLiteral("--") + longName(row);
    });
}

/** The place of the first word that is no option and no option's value; the size when none is. */
int firstPlainWord(const QStringList &words)
{
    int i = 0;
    while (i < words.size() && words.at(i).startsWith(QLatin1Char('-'))) {
        i += takesNextWord(words.at(i)) ? 2 : 1;
    }
    return std::min(i, words.size());
}

bool asksForHelp(const QStringList &words)
{
    return std::any_of(words.begin(), words.end(), [](const QString &word) {
        return word == QLatin1String("--help") || word == QLatin1String("-h")
            || word == QLatin1String("--version");
    });
}

} // namespace

Invocation Invocation::of(const QStringList &words)
{
    Invocation invocation;
    invocation.arguments = words;
    const int place = firstPlainWord(words);
    if (place == words.size()) {
        invocation.kind = asksForHelp(words) ? Kind::General : Kind::Window;
        return invocation;
    }
    invocation.word = words.at(place);
    if (invocation.word == QLatin1String("help")) {
        invocation.arguments[place] = QStringLiteral("--help");
        return Invocation::of(invocation.arguments);
    }
    invocation.command = commandNamed(invocation.word);
    if (invocation.command != nullptr) {
        invocation.kind = Kind::Command;
        invocation.arguments.removeAt(place);
    } else {
        invocation.kind = QFileInfo::exists(invocation.word) ? Kind::Window : Kind::Unknown;
    }
    return invocation;
}

} // namespace PanoHost
