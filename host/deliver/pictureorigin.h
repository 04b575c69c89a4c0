// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

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
    QDateTime taken; ///< of the first photo; not valid: not known
    std::optional<Place> place;
    QString author;
    QString copyright;
    QString camera; ///< "Canon EOS 5D", empty: not known
    QString lens;
    /** The compass direction of the panorama's middle; nothing where no photo knows. */
    std::optional<double> headingDegrees;
};

} // namespace PanoHost
