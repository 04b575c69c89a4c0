// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

namespace PanoHost
{

/**
 * \p picture as a JPEG file whose colours are as fine as its brightness; Qt's have a quarter of the
 * pixels. Throws a std::runtime_error that says why when the picture is too large, or memory runs
 * out.
 */
[[nodiscard]] QByteArray fineJpeg(const QImage &picture, int quality);

} // namespace PanoHost
