// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

class QIODevice;
class QImageReader;

namespace PanoHost
{

/** Whether the decoder of \p format is made for photos (and reads nothing but the file). */
[[nodiscard]] bool isPhotoFormat(const QByteArray &format);

/**
 * Whether decoding the picture of \p reader, scaled down as it is told or else to a thumbnail,
 * takes a bounded amount of memory. Keeps the position of the reader's device.
 */
[[nodiscard]] bool decodable(const QImageReader &reader);

/**
 * While one lives, its thread may decode the decodable picture of \p reader. Others wait as long as
 * all together would take more than one alone may.
 */
class DecodingTurn
{
public:
    explicit DecodingTurn(const QImageReader &reader);
    ~DecodingTurn();
    DecodingTurn(const DecodingTurn &) = delete;
    DecodingTurn &operator=(const DecodingTurn &) = delete;

private:
    int m_megabytes;
};

/**
 * False when the file in \p device, of \p format, ends before its picture begins. Keeps the
 * device's position.
 */
[[nodiscard]] bool hasPictureData(QIODevice &device, const QByteArray &format);

/**
 * Whether the picture in \p device, of \p format, is there to its end, as far as a look at both
 * ends of the file tells. Keeps the device's position.
 */
[[nodiscard]] bool looksComplete(QIODevice &device, const QByteArray &format);

} // namespace PanoHost
