// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/unit/describedrecord.h"

#include <QStringList>

namespace
{

QString number(double value)
{
    return QString::number(value, 'g', 9);
}

} // namespace

QString described(const PanoHead::PapywizardRecord &record)
{
    const auto yesNo
        = [](bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); };
    QStringList lines{
        QStringLiteral("title [%1]").arg(record.title),
        QStringLiteral("gps [%1]").arg(record.gps),
        QStringLiteral("comment [%1]").arg(record.comment),
        QStringLiteral("focal %1").arg(number(record.xmlFocal)),
        QStringLiteral("coef %1").arg(number(record.sensorCoef)),
        QStringLiteral("photos per position %1").arg(record.nbPicts),
        QStringLiteral("lens %1").arg(record.xmlLensType),
        QStringLiteral("portrait %1").arg(yesNo(record.portrait)),
        QStringLiteral("shoot %1").arg(yesNo(record.hasShoot)),
    };
    for (const ShootData &shot : record.shots) {
        // Seven digits show the angle that the file gives, not its rounding to 32 bits.
        lines.append(
            QStringLiteral("shot %1 bracket %2 yaw %3 pitch %4 roll %5 time %6")
                .arg(QString::number(shot.id), QString::number(shot.bracket),
                     QString::number(shot.yaw, 'g', 7), QString::number(shot.pitch, 'g', 7),
                     QString::number(shot.roll, 'g', 7),
                     shot.time.isNull() ? QStringLiteral("-") : shot.time.toString(Qt::ISODate)));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
