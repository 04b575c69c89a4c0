// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/panoramatable.h"

#include "host/model/displayname.h"

#include <QDir>

namespace PanoHost
{

namespace
{

QString degrees(double value)
{
    return QStringLiteral("%1").arg(value, 8, 'f', 2);
}

/** For each position the positions that it links to, as text. */
QVector<QStringList> linkTargets(const Panorama &panorama)
{
    QVector<QStringList> targets(panorama.positions.size());
    for (const AuthorizedLink &link : panorama.description.authorizedLinks) {
        const bool usable
            = link.indices.size() == 2 && link.indices[0] >= 0 && link.indices[0] < targets.size();
        if (usable) {
            targets[link.indices[0]] += QString::number(link.indices[1]);
        }
    }
    return targets;
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
    const QVector<QStringList> targets = linkTargets(panorama);
    const QDir base(folder);
    for (int i = 0; i < panorama.positions.size(); ++i) {
        const Position &position = panorama.positions.at(i);
        text += QStringLiteral("%1 %2 %3 %4  %5 %6\n")
                    .arg(QString::number(i).rightJustified(4), degrees(position.yawDegrees),
                         degrees(position.pitchDegrees), degrees(position.rollDegrees),
                         targets.at(i).join(QLatin1Char(',')).leftJustified(12),
                         photoNames(position, base));
    }
    return text;
}

} // namespace PanoHost
