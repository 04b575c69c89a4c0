// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/panoramatable.h"

#include "host/model/displayname.h"

#include <QDir>

namespace PanoHost
{

namespace
{

QString degreesText(double value)
{
    return QStringLiteral("%1").arg(value, 8, 'f', 2);
}

QString numbers(const QVector<int> &positions)
{
    QStringList texts;
    for (const int position : positions) {
        texts += QString::number(position);
    }
    return texts.join(QLatin1Char(','));
}

QString photoNames(const Position &position, const QDir &folder)
{
    QStringList names;
    for (const PhotoInfo &photo : position.photos) {
        names += onOneLine(folder.relativeFilePath(photo.path));
    }
    return names.join(QLatin1String(" "));
}

} // namespace

QString panoramaTable(const Panorama &panorama, const QString &folder)
{
    QString text = QStringLiteral("%1, %2, %3, %4 mm, %5 lens\n")
                       .arg(counted(panorama.positions.size(), "position"),
                            counted(photoCount(panorama), "photo"),
                            counted(panorama.description.authorizedLinks.size(), "link"),
                            QString::number(panorama.focal35mm, 'g', 6),
                            panorama.lens == LensModel::Fisheye ? QStringLiteral("fisheye")
                                                                : QStringLiteral("standard"));
    text += QStringLiteral(" pos      yaw    pitch     roll  links to     photos\n");
    const QVector<QVector<int>> targets = linkTargets(panorama);
    const QDir base(folder);
    for (int i = 0; i < panorama.positions.size(); ++i) {
        const Position &position = panorama.positions.at(i);
        text += QStringLiteral("%1 %2 %3 %4  %5 %6\n")
                    .arg(QString::number(i).rightJustified(4), degreesText(position.yawDegrees),
                         degreesText(position.pitchDegrees), degreesText(position.rollDegrees),
                         numbers(targets.at(i)).leftJustified(12), photoNames(position, base));
    }
    return text;
}

} // namespace PanoHost
