// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/stitchedpicture.h"

#include <QVector>

#include <array>

namespace PanoHost
{

/** Red, green, blue, alpha in the numbers of the file. */
using Pixel = std::array<double, 4>;

/** Writes the file \p picture.path of \p picture.size and depth; \p pixels row by row. */
bool writeTestPicture(const StitchedPicture &picture, const QVector<Pixel> &pixels);

/** The pixels of a file of 8 bits and four bands, row by row; empty: it is not one. */
QVector<Pixel> readTestPicture(const QString &path);

} // namespace PanoHost
