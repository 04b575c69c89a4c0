// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photoexif.h"

#include <QStringList>
#include <QVector>

#include <vector>

/* What photos say together of how they were taken, without any record. */
namespace PanoHost
{

/** A file that holds a photo. */
struct PhotoOnDisk {
    PhotoInfo info;
    qint64 bytes = 0;
};

/** A photo, in however many files it lies. */
struct CardPhoto {
    PhotoInfo info;
    QStringList raws; ///< of the same picture, beside the file that `info` is about
    QStringList copies; ///< files that are the same, elsewhere
};

/**
 * \p files, the best known first, as photos: a RAW file and the JPEG (or another format) that the
 * camera wrote with it are one, and so are copies of a file. They are known by name, size and time.
 */
[[nodiscard]] QVector<CardPhoto> photosIn(const QVector<PhotoOnDisk> &files);

/** Indices of photos, in the order in which they were taken. */
using PhotoRun = std::vector<int>;

/** The photos of one camera with one lens and one size of picture. */
struct PhotoStream {
    /** In the order of time; those without a time are of none. */
    PhotoRun timed;
    std::vector<double> seconds; ///< of these, as `ShotClock`
    double slackSeconds = 0.0; ///< as `ShotClock`
    /** Without a long pause: `timed`, cut, then those without times, by name and folder. */
    std::vector<PhotoRun> runs;
};

/** All \p photos, each in one run of one stream. */
[[nodiscard]] std::vector<PhotoStream> photoStreams(const QVector<CardPhoto> &photos);

/**
 * How many photos were taken at each position, as the exposures of \p run tell, which repeat
 * themselves: 1 when they are all the same; 0: cannot be told.
 */
[[nodiscard]] int bracketOf(const QVector<CardPhoto> &photos, const PhotoRun &run);

/** Whether \p run was taken in a rhythm, with one exposure or one bracket, and may fill the rows
 * and columns of a grid. */
[[nodiscard]] bool looksLikeGrid(const QVector<CardPhoto> &photos, const PhotoRun &run);

} // namespace PanoHost
