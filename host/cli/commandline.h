// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QCommandLineParser>
#include <QStringList>
#include <QVector>

namespace PanoHost
{

/** One option of a command, as data for the parser and for the help text. */
struct OptionRow {
    const char *names; ///< "-o|--output": short and long names, the long one last
    const char *value; ///< what stands for the value in the help; null for a switch
    const char *help; ///< one sentence, no full stop
    bool closed = false; ///< the value is one of the words in `value`, "a|b|c", and nothing else
};

/** What `--help` says besides the options. */
struct CommandHelp {
    QByteArray usage; ///< "panohost import HEAD ...", one line per form
    QByteArray about; ///< a few sentences
    QByteArray examples; ///< one command per line, a comment line in front of each
};

/**
 * The arguments of one command: one QCommandLineParser made from a table, with the options that all
 * commands share, words checked against their choices, and a help text that teaches.
 */
class CommandLine
{
public:
    CommandLine(CommandHelp help, QVector<OptionRow> rows);

    /**
     * Reads \p arguments (without program and command name). Throws the usage error for an unknown
     * option, a missing value or a word that is not among its choices.
     * \return false when `--help` or `--version` was asked for and has been answered on stdout
     */
    [[nodiscard]] bool parse(const QStringList &arguments);

    [[nodiscard]] bool isSet(const QString &longName) const { return m_parser.isSet(longName); }
    /** Empty when the option is not set. */
    [[nodiscard]] QString value(const QString &longName) const { return m_parser.value(longName); }
    [[nodiscard]] QStringList positional() const { return m_parser.positionalArguments(); }
    [[nodiscard]] QString helpText() const;

    /** The options that every command understands. */
    [[nodiscard]] static const QVector<OptionRow> &commonOptions();

private:
    [[nodiscard]] QStringList longNames() const;
    [[nodiscard]] QString errorText() const;
    void checkChoices() const;

    CommandHelp m_help;
    QVector<OptionRow> m_rows;
    QCommandLineParser m_parser;
};

/** The long name of \p row without dashes. */
[[nodiscard]] QString longName(const OptionRow &row);

/** The whole number that \p option of \p line names; \p usual when it is not given. Throws the
 * usage error unless it is one from \p least to \p most. */
[[nodiscard]] int numberOf(const CommandLine &line, const QString &option, int usual, int least,
                           int most);

/** Writes \p text to stdout, as UTF-8; throws when it does not take it (a full disk). */
void printOut(const QString &text);

} // namespace PanoHost
