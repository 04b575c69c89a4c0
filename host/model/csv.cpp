// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/csv.h"

#include <algorithm>

namespace PanoHost
{

namespace
{

QString fieldText(const QString &field)
{
    static const QString kSpecial = QStringLiteral(",\"\r\n");
    if (std::none_of(field.cbegin(), field.cend(), [](QChar c) { return kSpecial.contains(c); })) {
        return field;
    }
    QString quoted = field;
    quoted.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

} // namespace

QByteArray csvText(const QVector<QStringList> &lines)
{
    QString text{ QChar(QChar::ByteOrderMark) };
    for (const QStringList &line : lines) {
        for (int i = 0; i < line.size(); ++i) {
            text += (i == 0 ? QString() : QStringLiteral(",")) + fieldText(line.at(i));
        }
        text += QLatin1String("\r\n");
    }
    return text.toUtf8();
}

} // namespace PanoHost
