// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>
#include <QString>

namespace PanoHost
{

/** What was said and started in a work folder, run after run, with the time. By it a work folder is
 * known. A full disk stops no work: then lines are missing. */
class WorkLog
{
public:
    [[nodiscard]] static QString fileName() { return QStringLiteral("log.txt"); }
    /** Adds to the file \p path. */
    explicit WorkLog(const QString &path);
    void add(const QString &text);

private:
    QFile m_file;
};

} // namespace PanoHost
