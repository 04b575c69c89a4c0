// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/displaytexts.h"

#include "shoot/anglerange.h"

namespace PanoHead
{

QString photoNames(const QStringList &files)
{
    QString names;
    for (const QString &file : files) {
        names += QLatin1Char('"');
        names += file.midRef(file.lastIndexOf(QLatin1Char('/')) + 1);
        names += QLatin1String("\"; ");
    }
    return names;
}

QString countText(int count, const QString &notAvailable)
{
    return count < 1 ? notAvailable : QStringLiteral("%1").arg(count);
}

QString rangeText(const AngleRange &range, const QString &notAvailable)
{
    if (range.isUnknown()) {
        return notAvailable;
    }
    return QStringLiteral("%1,%2").arg(QString::number(range.minimum),
                                       QString::number(range.maximum));
}

QString focalText(double focalMm)
{
    return QStringLiteral("%1mm").arg(QString::number(focalMm, 'f', 2));
}

QString warningText(const QString &warning)
{
    return QStringLiteral("<p style='color:red'>%1</p>").arg(warning);
}

} // namespace PanoHead
