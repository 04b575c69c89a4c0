// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"
#include "host/model/result.h"
#include "host/stitch/stitchedpicture.h"

#include <QByteArray>
#include <QString>

namespace PanoHost
{

/**
 * \p picture as screens without colour management show it: red, green, blue and alpha of 8 bits
 * each, in sRGB. Radiance as a photo of the reference exposure shows it: 1 is white, and what is
 * brighter too. \p iccProfile says what the colours of 8 and 16 bits mean; empty: they are sRGB
 * already.
 *
 * Answers the path of a file of libvips' own format: in \p folder, or the picture's own when there
 * is nothing to convert.
 */
[[nodiscard]] Result<QString> screenPicture(const StitchedPicture &picture,
                                            const QByteArray &iccProfile, const QString &folder,
                                            const JobWatch &watch);

} // namespace PanoHost
