// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QSize>
#include <QString>
#include <QVector>

/** Photos for tests, with any EXIF data. */
namespace TestPhotos
{

/** EXIF entries: key ("Exif.Photo.FNumber") to value as text ("8/1"). */
using Exif = QMap<QByteArray, QByteArray>;

/** What an ordinary photo says: 24 mm, f/8, 1/100 s, ISO 100, 2024-05-01 10:00:00. */
[[nodiscard]] Exif ordinaryExif();

/** A picture whose quarters are red, green (top), blue and yellow (bottom). */
[[nodiscard]] QImage quarters(const QSize &size);

/** The colours of the quarters as they are seen, R, G, B or Y: both upper ones, both lower ones. */
[[nodiscard]] QString seenQuarters(const QImage &image);

/** Writes \p picture as a JPEG with \p exif to \p path. Answers the path. */
QString writeJpeg(const QString &path, const QImage &picture, const Exif &exif);

/** Gives the photo \p path the entries of \p exif. */
void addExif(const QString &path, const Exif &exif);

/** An ordinary photo of \p size. */
QString writeOrdinary(const QString &path, const QSize &size = QSize(120, 80));

/**
 * Gives the JPEG \p path the EXIF thumbnail \p jpeg, of which the EXIF data claim \p size unless it
 * is empty.
 */
void embedThumbnail(const QString &path, const QByteArray &jpeg, const QSize &size = {});

/** Gives the JPEG \p path an XMP property in a namespace of its own. */
void embedXmp(const QString &path, const QByteArray &space);

/**
 * The bytes of a TIFF-based RAW file: its first picture is a reduced one of 160 x 120 pixels, the
 * photo of \p size is in a sub-directory, \p previews, at most four, are embedded JPEGs.
 */
[[nodiscard]] QByteArray rawFile(const QSize &size, int orientation,
                                 const QVector<QByteArray> &previews);

/** \p picture as JPEG bytes. */
[[nodiscard]] QByteArray jpegBytes(const QImage &picture);
/** \p picture as a file of \p format, "png" for instance. */
[[nodiscard]] QByteArray bytesOf(const QImage &picture, const char *format, int quality = -1);

/** Writes \p content to \p path. Answers the path. */
QString writeFile(const QString &path, const QByteArray &content);

} // namespace TestPhotos
