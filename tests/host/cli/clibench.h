// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/** A folder to run the built panohost in, with records and photos of the test's own making. */
class CliBench
{
public:
    struct Run {
        int exitCode = -1; ///< -1: crashed, killed or not started
        QString out;
        QString err;
    };

    struct Shot {
        double yaw;
        double pitch;
    };

    CliBench();

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /** Runs panohost in the folder until it ends, its output kept or sent to \p outputFile. */
    [[nodiscard]] Run run(const QStringList &arguments, const QString &outputFile = {}) const;
    /** The same with another program, a shell for instance that starts panohost. */
    [[nodiscard]] Run runProgram(const QString &program, const QStringList &arguments,
                                 const QString &outputFile = {}) const;
    /** As run(), where no file can grow beyond \p kilobytes: as on a disk that is full. */
    [[nodiscard]] Run runOnFullDisk(const QStringList &arguments, int kilobytes) const;
    /** The environment that `run` uses: nothing of the caller's but what programs need. */
    [[nodiscard]] QProcessEnvironment &environment() { return m_environment; }
    [[nodiscard]] const QProcessEnvironment &environment() const { return m_environment; }

    /** Writes NAME with \p shots in the form of the Papywizard controller; answers the name. */
    QString record(const QString &name, const QVector<Shot> &shots, const QByteArray &camera = {},
                   const QByteArray &lens
                   = R"(<lens type="rectilinear"><focal>24.0</focal></lens>)");
    /** Writes ordinary photos PREFIX01.jpg ...; answers the names. */
    QStringList photos(int count, const QString &prefix = QStringLiteral("IMG_"));
    /** Writes \p content to NAME; answers the name. */
    QString file(const QString &name, const QByteArray &content);
    /** What stands in NAME; empty when there is no such file. */
    [[nodiscard]] QByteArray content(const QString &name) const;
    /** What panohost has left in the folder for temporary files. */
    [[nodiscard]] QStringList leftovers() const;

    /** One row of shots all around: yaw 0, 360 / count, ... */
    [[nodiscard]] static QVector<Shot> row(int count);

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_temporaryFiles;
    QProcessEnvironment m_environment;
};
