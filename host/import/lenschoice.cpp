// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/lenschoice.h"

#include "host/model/commanderror.h"
#include "host/model/panorama.h"
#include "host/model/said.h"

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** A larger part than this is more than rounding and crop factors explain. */
constexpr double kNotableDifference = 0.1;

/** 0: the wanted source does not know it. */
double knownFocal(const ImportRequest &request, const KnownLens &photos, const KnownLens &record)
{
    switch (request.focalSource) {
    case ValueSource::Given:
        return request.focal35mm;
    case ValueSource::Photos:
        return photos.focal35mm;
    case ValueSource::Record:
        return record.focal35mm;
    case ValueSource::Default:
        break;
    }
    return photos.focal35mm > 0.0 ? photos.focal35mm : record.focal35mm;
}

/** Where a focal length was looked for in vain. */
QString searchedPlaces(const ImportRequest &request)
{
    const bool photosAlone = request.head != nullptr && !request.head->hasLens;
    if (request.focalSource == ValueSource::Record) {
        return Said::tr("the record");
    }
    return request.focalSource == ValueSource::Photos || photosAlone
        ? Said::tr("the photos' EXIF data")
        : Said::tr("the photos' EXIF data or the record");
}

LensModel chooseLensModel(const ImportRequest &request, const KnownLens &photos,
                          const KnownLens &record)
{
    if (request.lensSource == ValueSource::Given) {
        return request.lens;
    }
    const bool askPhotos
        = request.lensSource == ValueSource::Default && photos.lens != LensModel::NotChosen;
    const LensModel lens = askPhotos ? photos.lens : record.lens;
    return lens == LensModel::NotChosen ? LensModel::Standard : lens;
}

} // namespace

KnownLens lensInUse(const ImportRequest &request, const KnownLens &photos, const KnownLens &record)
{
    return { knownFocal(request, photos, record), chooseLensModel(request, photos, record) };
}

LensChoice chooseLens(const ImportRequest &request, const KnownLens &photos,
                      const KnownLens &record)
{
    const KnownLens used = lensInUse(request, photos, record);
    const bool isGiven = request.focalSource == ValueSource::Given;
    if (!isGiven && !(used.focal35mm > 0.0)) {
        throw inputRefused(Said::tr("focal length"),
                           Said::tr("not known from %1").arg(searchedPlaces(request)),
                           Said::tr("give it with --focal MM (35 mm equivalent)"));
    }
    LensChoice choice{ used.focal35mm, used.lens, {} };
    if (request.focalSource != ValueSource::Default) {
        return choice;
    }
    const bool both = photos.focal35mm > 0.0 && record.focal35mm > 0.0;
    if (both
        && std::abs(photos.focal35mm - record.focal35mm) > kNotableDifference * photos.focal35mm) {
        choice.warnings
            += Said::tr("focal length %1 (EXIF) against %2 (record); using EXIF; choose "
                        "with --focal")
                   .arg(millimetres(photos.focal35mm), millimetres(record.focal35mm));
    }
    if (photos.focal35mm > 0.0 && photos.withoutFocal > 0) {
        choice.warnings += Said::tr("%1 of the photos name no focal length; using that "
                                    "of the others; choose with --focal")
                               .arg(photos.withoutFocal);
    }
    if (request.lensSource == ValueSource::Default && photos.lens != LensModel::NotChosen
        && record.lens != LensModel::NotChosen && photos.lens != record.lens) {
        choice.warnings += Said::tr("%1 lens (EXIF) against %2 (record); using EXIF; choose "
                                    "with --lens")
                               .arg(lensText(photos.lens), lensText(record.lens));
    }
    return choice;
}

QStringList focalSpreadWarnings(const ImportRequest &request, const QVector<PhotoInfo> &photos)
{
    double shortest = 0.0;
    double longest = 0.0;
    for (const PhotoInfo &photo : photos) {
        if (photo.focal35mm > 0.0) {
            shortest = shortest > 0.0 ? std::min(shortest, photo.focal35mm) : photo.focal35mm;
            longest = std::max(longest, photo.focal35mm);
        }
    }
    if (request.focalSource == ValueSource::Given
        || longest - shortest <= kNotableDifference * shortest) {
        return {};
    }
    return { Said::tr("the photos name focal lengths from %1 to %2; using their median; "
                      "choose with --focal")
                 .arg(millimetres(shortest), millimetres(longest)) };
}

} // namespace PanoHost
