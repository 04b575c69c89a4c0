// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/invocation.h"

#include <QFileInfo>
#include <QSet>

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

/**
 * Takes Qt's options for a window out of \p words, "-style fusion", "--style=fusion". Not all of
 * them: Qt's "-plugin" is something else than ours.
 */
QStringList takeQtOptions(QStringList &words)
{
    static const QSet<QString> withValue{
        QStringLiteral("display"),       QStringLiteral("geometry"),
        QStringLiteral("name"),          QStringLiteral("platform"),
        QStringLiteral("platformtheme"), QStringLiteral("qwindowgeometry"),
        QStringLiteral("session"),       QStringLiteral("style"),
        QStringLiteral("stylesheet"),
    };
    QStringList taken;
    for (int i = 0; i < words.size();) {
        const QString word = words.at(i);
        const int dashes = word.startsWith(QLatin1String("--")) ? 2 : 1;
        const QString name = word.mid(dashes).section(QLatin1Char('='), 0, 0);
        if (!word.startsWith(QLatin1Char('-'))
            || (!withValue.contains(name) && name != QLatin1String("reverse"))) {
            i += takesNextWord(word) ? 2 : 1;
            continue;
        }
        taken += word.mid(dashes - 1); // some parts of Qt know one dash only
        words.removeAt(i);
        if (withValue.contains(name) && !word.contains(QLatin1Char('=')) && i < words.size()) {
            taken += words.takeAt(i);
        }
    }
    return taken;
}

Invocation plainInvocation(const QStringList &words)
{
    Invocation invocation;
    invocation.arguments = words;
    const int place = firstPlainWord(words);
    if (place == words.size()) {
        invocation.kind = asksForHelp(words) ? Invocation::Kind::General : Invocation::Kind::Window;
        return invocation;
    }
    invocation.word = words.at(place);
    if (invocation.word == QLatin1String("help")) {
        invocation.arguments[place] = QStringLiteral("--help");
        return plainInvocation(invocation.arguments);
    }
    invocation.command = commandNamed(invocation.word);
    if (invocation.command != nullptr) {
        invocation.kind = Invocation::Kind::Command;
        invocation.arguments.removeAt(place);
    } else {
        invocation.kind = QFileInfo::exists(invocation.word) ? Invocation::Kind::Window
                                                             : Invocation::Kind::Unknown;
    }
    return invocation;
}

} // namespace

Invocation Invocation::of(const QStringList &words)
{
    QStringList others = words;
    const QStringList qtOptions = takeQtOptions(others);
    Invocation invocation = plainInvocation(others);
    if (invocation.kind != Kind::Window) {
        return plainInvocation(words); // commands show no window
    }
    invocation.qtOptions = qtOptions;
    return invocation;
}

} // namespace PanoHost
