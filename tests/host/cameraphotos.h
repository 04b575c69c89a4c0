// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

#include <vector>

/**
 * Photos of 24 megapixels as a camera writes them. A few pictures of little detail are encoded
 * once; each photo is one of them with EXIF data of its own put in front, so that thousands take
 * seconds.
 */
class CameraPhotos
{
public:
    static constexpr QSize kSize{ 6000, 4000 };
    /** Of the EXIF thumbnail, which has black bars above and below the picture. */
    static constexpr QSize kThumbnailSize{ 160, 120 };
    /** Of the preview in a RAW file. */
    static constexpr QSize kPreviewSize{ 1620, 1080 };

    enum class Inside { Nothing, Thumbnail };

    /** Encodes \p pictures different pictures. */
    explicit CameraPhotos(int pictures = 10);

    /** The JPEG file of photo \p number, taken five seconds after the one before; 800 mm. */
    [[nodiscard]] QByteArray jpeg(int number, Inside inside) const;
    /** A TIFF-based RAW file with a preview; says nothing of time and lens. */
    [[nodiscard]] QByteArray raw(int number) const;

private:
    struct Picture {
        QByteArray jpeg;
        QByteArray thumbnail;
        QByteArray preview;
    };
    [[nodiscard]] const Picture &picture(int number) const;

    QByteArray m_xmp;
    std::vector<Picture> m_pictures;
};
