// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commandline.h"

#include "host/model/commanderror.h"
#include "host/model/wordsuggestion.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace PanoHost
{

namespace
{

QStringList namesOf(const OptionRow &row)
{
    QStringList names;
    for (QString name : QString::fromLatin1(row.names).split(QLatin1Char('|'))) {
        while (name.startsWith(QLatin1Char('-'))) {
            name.remove(0, 1);
        }
        names += name;
    }
    return names;
}

QStringList choicesOf(const OptionRow &row)
{
    return row.closed ? QString::fromLatin1(row.value).split(QLatin1Char('|')) : QStringList();
}

/** \p text cut at spaces into lines of at most \p width letters. */
QStringList wrapped(const QString &text, int width)
{
    QStringList lines{ QString() };
    for (const QString &word : text.split(QLatin1Char(' '))) {
        if (!lines.last().isEmpty() && lines.last().size() + 1 + word.size() > width) {
            lines += QString();
        }
        if (!lines.last().isEmpty()) {
            lines.last() += QLatin1Char(' ');
        }
        lines.last() += word;
    }
    return lines;
}

/** "  -o, --output NAME.pto   help", the help in a column of its own. */
QString optionText(const OptionRow &row)
{
    constexpr int kColumn = 29;
    constexpr int kWidth = 80;
    QString left = QStringLiteral("  ")
        + QString::fromLatin1(row.names).replace(QLatin1Char('|'), QLatin1String(", "));
    if (row.value != nullptr) {
        left += QLatin1Char(' ') + QString::fromLatin1(row.value);
    }
    const QString lineBreak = QLatin1Char('\n') + QString(kColumn, QLatin1Char(' '));
    left
        += left.size() < kColumn - 1 ? QString(kColumn - left.size(), QLatin1Char(' ')) : lineBreak;
    return left + wrapped(QString::fromUtf8(row.help), kWidth - kColumn).join(lineBreak)
        + QLatin1Char('\n');
}

QString withoutFullStop(QString text)
{
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

QString indented(const QByteArray &text)
{
    QString out;
    for (const QString &line : QString::fromUtf8(text).split(QLatin1Char('\n'))) {
        out += QStringLiteral("  ") + line + QLatin1Char('\n');
    }
    return out;
}

} // namespace

QString longName(const OptionRow &row)
{
    return namesOf(row).last();
}

void printOut(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<size_t>(bytes.size());
    const bool written = std::fwrite(bytes.constData(), 1, size, stdout) == size;
    if (std::fflush(stdout) != 0 || !written) {
        throw CommandError({ ExitCode::ToolFailed, QStringLiteral("standard output"),
                             QString::fromLocal8Bit(std::strerror(errno)),
                             QStringLiteral("is the disk full?") });
    }
}

int numberOf(const CommandLine &line, const QString &option, int usual, int least, int most)
{
    if (!line.isSet(option)) {
        return usual;
    }
    bool isNumber = false;
    const int value = line.value(option).toInt(&isNumber);
    if (!isNumber || value < least || value > most) {
        throw usageError(
            QStringLiteral("--%1 %2: not a number from %3 to %4")
                .arg(option, line.value(option), QString::number(least), QString::number(most)));
    }
    return value;
}

const QVector<OptionRow> &CommandLine::commonOptions()
{
    static const QVector<OptionRow> rows{
        { "--plugin", "FILE|DIR", "the plug-in library, or the folder to look in" },
        { "--settings", "FILE", "keep settings in this file" },
        { "--lang", "CODE", "language of the plug-in's texts, e.g. fr" },
        { "-q|--quiet", nullptr, "errors and warnings only" },
        { "-v|--verbose", nullptr, "say more about each step" },
        { "--progress", "auto|plain|none", "a changing line, a line per step, or nothing", true },
        { "--color", "auto|always|never", "colour in error and warning lines", true },
        { "--version", nullptr, "print the version and stop" },
        { "-h|--help", nullptr, "print this help and stop" },
    };
    return rows;
}

CommandLine::CommandLine(CommandHelp help, QVector<OptionRow> rows)
    : m_help(std::move(help))
    , m_rows(std::move(rows))
{
    for (const QVector<OptionRow> &table : { m_rows, commonOptions() }) {
        for (const OptionRow &row : table) {
            QCommandLineOption option(namesOf(row));
            if (row.value != nullptr) {
                option.setValueName(QString::fromLatin1(row.value));
            }
            m_parser.addOption(option);
        }
    }
}

bool CommandLine::parse(const QStringList &arguments)
{
    const bool understood = m_parser.parse(QStringList(QStringLiteral("panohost")) + arguments);
    if (m_parser.isSet(QStringLiteral("help"))) {
        printOut(helpText());
        return false;
    }
    if (m_parser.isSet(QStringLiteral("version"))) {
        printOut(QStringLiteral("panohost %1\n").arg(QCoreApplication::applicationVersion()));
        return false;
    }
    if (!understood) {
        throw usageError(errorText());
    }
    checkChoices();
    return true;
}

QString CommandLine::helpText() const
{
    QString text = QStringLiteral("Usage:\n") + indented(m_help.usage);
    text += QLatin1Char('\n') + QString::fromUtf8(m_help.about) + QLatin1Char('\n');
    if (!m_rows.isEmpty()) {
        text += QStringLiteral("\nOptions:\n");
        for (const OptionRow &row : m_rows) {
            text += optionText(row);
        }
    }
    text += QStringLiteral("\nCommon options:\n");
    for (const OptionRow &row : commonOptions()) {
        text += optionText(row);
    }
    return text + QStringLiteral("\nExamples:\n") + indented(m_help.examples);
}

QStringList CommandLine::longNames() const
{
    QStringList names;
    for (const QVector<OptionRow> &table : { m_rows, commonOptions() }) {
        for (const OptionRow &row : table) {
            names += longName(row);
        }
    }
    return names;
}

QString CommandLine::errorText() const
{
    const QStringList unknown = m_parser.unknownOptionNames();
    if (unknown.isEmpty()) {
        return withoutFullStop(m_parser.errorText());
    }
    const QString &name = unknown.first();
    const QString closest = closestWord(name, longNames());
    return QStringLiteral("unknown option '%1%2'; %3")
        .arg(QLatin1String(name.size() == 1 ? "-" : "--"), name,
             closest.isEmpty() ? QStringLiteral("see --help")
                               : QStringLiteral("did you mean '--%1'?").arg(closest));
}

void CommandLine::checkChoices() const
{
    for (const QVector<OptionRow> &table : { m_rows, commonOptions() }) {
        for (const OptionRow &row : table) {
            const QStringList choices = choicesOf(row);
            if (choices.isEmpty() || !isSet(longName(row))
                || choices.contains(value(longName(row)))) {
                continue;
            }
            throw usageError(QStringLiteral("--%1 %2: not one of %3%4")
                                 .arg(longName(row), value(longName(row)),
                                      choices.join(QLatin1String(", ")),
                                      suggestion(value(longName(row)), choices)));
        }
    }
}

} // namespace PanoHost
