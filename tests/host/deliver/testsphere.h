// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"

#include <QColor>
#include <QImage>
#include <QTemporaryDir>

namespace PanoHost
{

/** The colours of the drawn sphere at its middle, right, back, left, top and bottom; each reaches
 * 15 degrees around, and the rest is grey. */
namespace Marks
{
constexpr QRgb kFront = 0xffd02020;
constexpr QRgb kRight = 0xff20c020;
constexpr QRgb kBack = 0xff2030d0;
constexpr QRgb kLeft = 0xffd0d020;
constexpr QRgb kZenith = 0xff20c0c0;
constexpr QRgb kNadir = 0xffc020c0;
constexpr QRgb kElsewhere = 0xff808080;
} // namespace Marks

/** A folder with a name that nobody expects, and a job that makes \p kind in it of the part \p part
 * of a drawn sphere of \p sphere pixels; null: of all of it. */
struct TestSphere {
    explicit TestSphere(QSize sphere = { 512, 256 }, QRect part = {},
                        StitchedPicture::Depth depth = StitchedPicture::Depth::Bits8);

    QTemporaryDir folder;
    DeliverJob job;
    bool ok = false;

    [[nodiscard]] QString path(const char *name) const;
};

/** Whether \p seen is \p wanted, but for what JPEG and scaling change. */
[[nodiscard]] bool isAlike(QRgb seen, QRgb wanted);

} // namespace PanoHost
