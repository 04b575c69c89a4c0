// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/messages.h"

namespace PanoHost
{

QString Failure::text() const
{
    QString line = what;
    if (!why.isEmpty()) {
        line += (line.isEmpty() ? QString() : QStringLiteral(": ")) + why;
    }
    if (!tryThis.isEmpty()) {
        line += (line.isEmpty() ? QString() : QStringLiteral("; ")) + tryThis;
    }
    return onOneLine(line);
}

QString errorLine(const Failure &failure)
{
    return QStringLiteral("panohost: error: ") + failure.text();
}

QString warningLine(const QString &text)
{
    return QStringLiteral("panohost: warning: ") + onOneLine(text);
}

QString onOneLine(const QString &text)
{
    QString line = text;
    for (QChar &c : line) {
        const ushort code = c.unicode();
        const bool separator = code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
        const bool turnsWriting
            = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
        if (c.category() == QChar::Other_Control || separator || turnsWriting) {
            c = QLatin1Char(' ');
        }
    }
    return line;
}

} // namespace PanoHost
