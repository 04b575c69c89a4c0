// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/knownlens.h"

#include "host/model/said.h"

namespace PanoHost
{

KnownLens knownLensOf(const QVector<PhotoInfo> &photos)
{
    KnownLens facts;
    double sum = 0.0;
    int count = 0;
    for (const PhotoInfo &photo : photos) {
        if (photo.focal35mm > 0.0) {
            sum += photo.focal35mm;
            ++count;
        }
        if (photo.lens != LensModel::NotChosen) {
            facts.lens = photo.lens;
        }
    }
    facts.focal35mm = count > 0 ? sum / count : 0.0;
    facts.withoutFocal = photos.size() - count;
    return facts;
}

QString lensText(LensModel lens)
{
    return lens == LensModel::Standard ? Said::tr("standard")
        : lens == LensModel::Fisheye   ? Said::tr("fisheye")
                                       : Said::tr("not known");
}

QString millimetres(double focal35mm)
{
    return Said::tr("%1 mm").arg(QString::number(focal35mm, 'g', 4));
}

} // namespace PanoHost
