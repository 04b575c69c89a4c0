// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/saidlines.h"

#include "host/model/safefile.h"

namespace PanoHost
{
namespace
{

const QByteArray kWarning = "warning: ";
const QByteArray kInfo = "info: ";

} // namespace

void SaidLines::add(JobWatch::Note note, const QString &text)
{
    if (note != JobWatch::Note::Detail) {
        m_lines += Line(note, onOneLine(text));
    }
}

QByteArray SaidLines::text() const
{
    QByteArray text;
    for (const auto &[note, line] : m_lines) {
        text += (note == JobWatch::Note::Warning ? kWarning : kInfo) + line.toUtf8() + '\n';
    }
    return text;
}

SaidLines SaidLines::read(const QString &path)
{
    constexpr qint64 kMostBytes = 1LL << 28;
    SaidLines said;
    const Result<QByteArray> text = readRegularFile(path, kMostBytes);
    if (!text) {
        return said;
    }
    for (const QByteArray &line : text.value().split('\n')) {
        if (line.startsWith(kWarning)) {
            said.add(JobWatch::Note::Warning, QString::fromUtf8(line.mid(kWarning.size())));
        } else if (line.startsWith(kInfo)) {
            said.add(JobWatch::Note::Info, QString::fromUtf8(line.mid(kInfo.size())));
        }
    }
    return said;
}

} // namespace PanoHost
