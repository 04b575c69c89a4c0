// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QSize>
#include <QString>

/** Photos for tests, with any EXIF data. */
namespace TestPhotos
{

/** EXIF entries: key ("Exif.Photo.FNumber") to value as text ("8/1"). */
using Exif = QMap<QByteArray, QByteArray>;

/** What an ordinary photo says: 24 mm, f/8, 1/100 s, ISO 100, 2024-05-01 10:00:00. */
[[nodiscard]] Exif ordinaryExif();

/** A picture whose quarters are red, green (top), blue and yellow (bottom). */
[[nodiscard]] QImage quarters(const QSize &size);

/** Writes \p picture as a JPEG with \p exif to \p path. Answers the path. */
QString writeJpeg(const QString &path, const QImage &picture, const Exif &exif);

/** An ordinary photo of \p size. */
QString writeOrdinary(const QString &path, const QSize &size = QSize(120, 80));

/**
 * The bytes of a TIFF-based RAW file: its first picture is a reduced one of 160 x 120 pixels, the
 * photo of \p size is in a sub-directory, \p preview is embedded as JPEG.
 */
[[nodiscard]] QByteArray rawFile(const QSize &size, int orientation, const QByteArray &preview);

/** \p picture as JPEG bytes. */
[[nodiscard]] QByteArray jpegBytes(const QImage &picture);

/** Writes \p content to \p path. Answers the path. */
QString writeFile(const QString &path, const QByteArray &content);

} // namespace TestPhotos
