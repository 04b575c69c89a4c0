// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photoexif.h"
#include "model/structuredpanoramaproperties.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace PanoHost
{

/** A shot of a record and its photo. */
struct FittedShot {
    QString photo; ///< absolute path; empty: there is none, and another one stands in for it
    /** When the stand-in was taken, as `PhotoInfo::timeMs`; 0: between its neighbours. */
    qint64 timeMs = 0;
    /** Of the stand-in; nothing: that of the nearest photo of its level. */
    std::optional<double> exposureValue;
};

/** All shots of a record or a grid, in its order. */
using ShotFit = QVector<FittedShot>;

/** "shot 3", "shots 5, 9 to 12": \p shots, rising, counted from 1. */
[[nodiscard]] QString shotsText(const QVector<int> &shots);

/** The photos that there are, in the order of the shots. */
[[nodiscard]] QStringList photosOf(const ShotFit &fit);

/**
 * What is known of each shot's photo, where \p photos says it of those that there are, one at
 * least. A stand-in, without a path, is like the nearest photo of its level (the nearest of all
 * when its level has none), but for its time and exposure.
 * \param levels photos per position
 */
[[nodiscard]] QVector<PhotoInfo> withStandIns(const ShotFit &fit, const QVector<PhotoInfo> &photos,
                                              int levels);

/** The positions of \p description whose photos are all among \p standIns. */
[[nodiscard]] QVector<qint32> emptyPositions(const StructuredPanoramaProperties &description,
                                             const QSet<QString> &standIns);

/**
 * \p description without the photos named in \p standIns. Positions that have no other photo go,
 * with their links and angles, and those behind them move up. Of a stack that keeps some of its
 * photos the next one is the reference level where that one was a stand-in; it has as many angles
 * as photos, and the position's own first, which is that of its first shot. Links to positions that
 * there were not go too, and lists of angles too short for all shots become empty.
 */
[[nodiscard]] StructuredPanoramaProperties withoutStandIns(StructuredPanoramaProperties description,
                                                           const QSet<QString> &standIns);

/**
 * One line for each of the first shots of \p fit without a photo, and one that names all others.
 * \param description as delivered, with its stand-ins: where the shots were directed
 * \param levels photos per position
 */
[[nodiscard]] QStringList missingShotWarnings(const ShotFit &fit,
                                              const StructuredPanoramaProperties &description,
                                              int levels);

} // namespace PanoHost
