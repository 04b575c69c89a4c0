// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/host/cli/clibench.h"

#include <QDir>

/** A small file system without room, seen by nobody but the programs that it starts. */
class TinyDisk
{
public:
    explicit TinyDisk(const CliBench *bench, int megabytes = 4)
        : m_bench(bench)
        , m_megabytes(megabytes)
    {
        QDir(bench->path({})).mkpath(QStringLiteral("tiny"));
    }

    /** Why there can be none; empty when there can. */
    [[nodiscard]] QString problem()
    {
        QString answer;
        // Root needs no more; others become root of a name space of their own.
        for (const QString &options : { QStringLiteral("-m"), QStringLiteral("-rm") }) {
            m_unshare = options;
            const CliBench::Run run = shell({}, {});
            if (run.exitCode == 0) {
                return {};
            }
            answer += run.err.simplified() + QLatin1Char(' ');
        }
        return QStringLiteral("No file system can be mounted here: ") + answer;
    }

    /**
     * Runs panohost with an old result in tiny/NAME and \p kilobytes of room in tiny. What there
     * is in tiny afterwards stands in after.txt, the result's copy in after.
     */
    [[nodiscard]] CliBench::Run run(const QString &name, const QStringList &arguments,
                                    int kilobytes = 0) const
    {
        const QString script
            = QStringLiteral("mkdir -p tiny/photos; printf 'the old result' > tiny/%1\n"
                             "%2"
                             "\"$0\" \"$@\"; code=$?\n"
                             "ls -A tiny > after.txt; cp tiny/%1 after; exit $code")
                  .arg(name, fill(kilobytes));
        return shell(script, QStringList(QStringLiteral(PANOHOST_TEST_BINARY)) + arguments);
    }

    /** Shell commands that leave \p kilobytes (whole pages) of room. */
    [[nodiscard]] QString fill(int kilobytes) const
    {
        return QStringLiteral("cat /dev/zero > '%1/filler' 2> /dev/null\n"
                              "truncate -s -%2K '%1/filler'\n")
            .arg(m_bench->path(QStringLiteral("tiny")))
            .arg(kilobytes);
    }

    /** Runs \p script beside the file system, which is in the folder tiny. */
    [[nodiscard]] CliBench::Run shell(const QString &script, const QStringList &arguments) const
    {
        return m_bench->runProgram(QStringLiteral("unshare"),
                                   QStringList{ m_unshare, QStringLiteral("/bin/sh"),
                                                QStringLiteral("-c"), mount() + script }
                                       + arguments);
    }

private:
    [[nodiscard]] QString mount() const
    {
        return QStringLiteral("mount -t tmpfs -o size=%1M none tiny || exit 125\n")
            .arg(m_megabytes);
    }

    const CliBench *m_bench;
    int m_megabytes;
    QString m_unshare;
};
