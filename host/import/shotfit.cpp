// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/shotfit.h"

#include "host/model/displayname.h"
#include "host/model/said.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** Shots without a photo that are named one by one. */
constexpr int kMostWarnings = 5;
/** From shot to shot where only one end is known. */
constexpr qint64 kStepMs = 1000;

/** For each shot the nearest one that has a photo, in steps of \p stride: the earlier one of two;
 * -1: there is none. */
QVector<int> nearestPhotos(const ShotFit &fit, int stride)
{
    QVector<int> nearest(fit.size(), -1);
    for (int i = 0; i < fit.size(); ++i) {
        nearest[i] = fit.at(i).photo.isEmpty() ? nearest.value(i - stride, -1) : i;
    }
    for (int i = fit.size() - 1 - stride; i >= 0; --i) {
        const int later = nearest.at(i + stride);
        if (later > i && (nearest.at(i) < 0 || later - i < i - nearest.at(i))) {
            nearest[i] = later;
        }
    }
    return nearest;
}

/** A time for shot \p i; \p before and \p after are the nearest ones with a time, or outside. */
qint64 timeBetween(const QVector<PhotoInfo> &photos, int before, int i, int after)
{
    if (before < 0 && after >= photos.size()) {
        return 0;
    }
    if (before < 0) {
        return photos.at(after).timeMs - (after - i) * kStepMs;
    }
    const qint64 begin = photos.at(before).timeMs;
    if (after >= photos.size()) {
        return begin + (i - before) * kStepMs;
    }
    const auto wait = static_cast<double>(photos.at(after).timeMs - begin);
    return begin + static_cast<qint64>(wait * (i - before) / (after - before));
}

void fillTimes(const ShotFit &fit, QVector<PhotoInfo> &photos)
{
    int before = -1;
    for (int after = 0; after <= photos.size(); ++after) {
        if (after < photos.size() && photos.at(after).timeMs == 0) {
            continue;
        }
        for (int i = before + 1; i < after; ++i) {
            if (fit.at(i).photo.isEmpty()) {
                photos[i].timeMs = timeBetween(photos, before, i, after);
            }
        }
        before = after;
    }
}

/** Whether \p description has one direction for each of its positions instead of its shots. */
bool isPerPosition(const StructuredPanoramaProperties &description)
{
    return std::min(description.yaw.size(), description.pitch.size())
        == description.imageGroups.size();
}

/** Empty where \p angles do not reach to the last of \p entries. */
QVector<float> picked(const QVector<float> &angles, const QVector<int> &entries)
{
    if (entries.isEmpty() || entries.last() >= angles.size()) {
        return {};
    }
    QVector<float> kept;
    kept.reserve(entries.size());
    for (const int entry : entries) {
        kept.append(angles.at(entry));
    }
    return kept;
}

QString degreesText(float radians)
{
    const double hundredths = std::round(100.0 * qRadiansToDegrees(double(radians)));
    return QString::number((hundredths + 0.0) / 100.0, 'g', 8); // no "-0"
}

} // namespace

QString shotsText(const QVector<int> &shots)
{
    QStringList parts;
    for (int i = 0; i < shots.size();) {
        int last = i;
        while (last + 1 < shots.size() && shots[last + 1] == shots[last] + 1) {
            ++last;
        }
        const QString from = QString::number(shots[i] + 1);
        parts += last > i ? Said::tr("%1 to %2").arg(from).arg(shots[last] + 1) : from;
        i = last + 1;
    }
    return (shots.size() == 1 ? Said::tr("shot %1") : Said::tr("shots %1"))
        .arg(parts.join(QStringLiteral(", ")));
}

QStringList photosOf(const ShotFit &fit)
{
    QStringList photos;
    for (const FittedShot &shot : fit) {
        if (!shot.photo.isEmpty()) {
            photos += shot.photo;
        }
    }
    return photos;
}

QVector<PhotoInfo> withStandIns(const ShotFit &fit, const QVector<PhotoInfo> &photos, int levels)
{
    QVector<PhotoInfo> all(fit.size());
    const auto *next = photos.begin();
    for (int i = 0; i < fit.size(); ++i) {
        if (!fit.at(i).photo.isEmpty()) {
            all[i] = *next++;
        }
    }
    const QVector<int> ofLevel = nearestPhotos(fit, levels);
    const QVector<int> ofAll = nearestPhotos(fit, 1);
    for (int i = 0; i < fit.size(); ++i) {
        const FittedShot &shot = fit.at(i);
        if (!shot.photo.isEmpty()) {
            continue;
        }
        PhotoInfo standIn = all.at(ofLevel.at(i) < 0 ? ofAll.at(i) : ofLevel.at(i));
        standIn.path.clear();
        standIn.timeText.clear();
        standIn.timeMs = shot.timeMs;
        if (shot.exposureValue) {
            standIn.exposureValue = shot.exposureValue;
        }
        all[i] = standIn;
    }
    fillTimes(fit, all);
    return all;
}

QVector<qint32> emptyPositions(const StructuredPanoramaProperties &description,
                               const QSet<QString> &standIns)
{
    QVector<qint32> empty;
    for (int i = 0; i < description.imageGroups.size(); ++i) {
        const QStringList &photos = description.imageGroups.at(i);
        if (std::all_of(photos.begin(), photos.end(),
                        [&](const QString &photo) { return standIns.contains(photo); })) {
            empty += i;
        }
    }
    return empty;
}

StructuredPanoramaProperties withoutStandIns(StructuredPanoramaProperties description,
                                             const QSet<QString> &standIns)
{
    const bool perPosition = isPerPosition(description);
    QVector<QStringList> groups;
    QVector<qint32> places(description.imageGroups.size(), -1); // of the positions from now on
    QVector<int> entries; // of the angles that stay
    int shots = 0;
    for (int i = 0; i < description.imageGroups.size(); ++i) {
        QStringList photos = description.imageGroups.at(i);
        const int first = perPosition ? i : shots;
        shots += photos.size();
        photos.erase(std::remove_if(photos.begin(), photos.end(),
                                    [&](const QString &photo) { return standIns.contains(photo); }),
                     photos.end());
        if (photos.isEmpty()) {
            continue;
        }
        for (int k = 0; k < (perPosition ? 1 : photos.size()); ++k) {
            entries.append(first + k);
        }
        places[i] = groups.size();
        groups.append(photos);
    }
    description.imageGroups = groups;
    for (const auto angles :
         { &StructuredPanoramaProperties::yaw, &StructuredPanoramaProperties::pitch,
           &StructuredPanoramaProperties::roll }) {
        description.*angles = picked(description.*angles, entries);
    }
    QVector<AuthorizedLink> links;
    for (AuthorizedLink link : qAsConst(description.authorizedLinks)) {
        for (qint32 &index : link.indices) {
            index = places.value(index, -1);
        }
        if (!link.indices.contains(-1)) {
            links.append(link);
        }
    }
    description.authorizedLinks = links;
    return description;
}

QStringList missingShotWarnings(const ShotFit &fit, const StructuredPanoramaProperties &description,
                                int levels)
{
    const bool perPosition = isPerPosition(description);
    QStringList warnings;
    QVector<int> others;
    for (int i = 0; i < fit.size(); ++i) {
        if (!fit.at(i).photo.isEmpty()) {
            continue;
        }
        if (warnings.size() == kMostWarnings) {
            others += i;
            continue;
        }
        const int entry = perPosition ? i / levels : i;
        const QString level = levels > 1
            ? Said::tr(", exposure %1 of %2")
                  .arg(QString::number(i % levels + 1), QString::number(levels))
            : QString();
        warnings += Said::tr("no photo for shot %1 (yaw %2, pitch %3%4)")
                        .arg(QString::number(i + 1), degreesText(description.yaw.value(entry)),
                             degreesText(description.pitch.value(entry)), level);
    }
    if (!others.isEmpty()) {
        warnings += Said::tr("no photo for %1").arg(shotsText(others));
    }
    return warnings;
}

} // namespace PanoHost
