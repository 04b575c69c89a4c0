// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

#include <optional>

namespace PanoHost
{

/** Where on earth photos were taken. */
struct Place {
    double latitudeDegrees = 0.0; ///< north
    double longitudeDegrees = 0.0; ///< east
    std::optional<double> altitudeMetres;
};

/** What a panorama carries on from its photos. */
struct PictureOrigin {
    QByteArray iccProfile; ///< empty: the photos have none, or not the same
    /** Of the first photo; UTC: by the camera's clock, its zone is not known; not valid: not known.
     */
    QDateTime taken;
    std::optional<Place> place;
    QString author;
    QString copyright;
    QString camera; ///< "Canon EOS 5D", empty: not known
    QString lens;
    /** The compass direction of the panorama's middle; nothing where no photo knows. */
    std::optional<double> headingDegrees;
};

/** A photo of a panorama, and where it looks in the head's frame. */
struct PhotoView {
    QString path;
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
};

/**
 * What the panorama of \p photos, in shooting order, carries on from them, \p centreYawDegrees of
 * the head in its middle. Reads the headers of a handful, spread over the shoot: all come from one
 * camera. The time is the first photo's, all else the first's that knows. Thread-safe.
 */
[[nodiscard]] PictureOrigin originOf(const QVector<PhotoView> &photos, double centreYawDegrees);

} // namespace PanoHost
