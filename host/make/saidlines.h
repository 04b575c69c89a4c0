// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

namespace PanoHost
{

/** What a step has told the user, to be told again when its result is kept. Details are not. */
class SaidLines
{
public:
    using Line = QPair<JobWatch::Note, QString>;

    void add(JobWatch::Note note, const QString &text);
    [[nodiscard]] const QVector<Line> &lines() const { return m_lines; }

    /** One line each, "warning: " in front of warnings. */
    [[nodiscard]] QByteArray text() const;
    /** What `text` has made in the file \p path; none where that cannot be read. */
    [[nodiscard]] static SaidLines read(const QString &path);

private:
    QVector<Line> m_lines;
};

} // namespace PanoHost
