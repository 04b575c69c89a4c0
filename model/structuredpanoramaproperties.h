// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/authorizedlink.h"
#include "model/lensmodel.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

/**
 * The description of a panorama that an import page hands to the host.
 *
 * A plain value: copies are member by member and independent. The importers append to the
 * vectors and never clear them, so a host that goes through a page twice receives the earlier
 * entries again in front of the new ones.
 *
 * Host interface record: the fields and their order are fixed. Fields named `reserved…` are
 * carried with their defaults and never written.
 */
struct StructuredPanoramaProperties {
    /** One entry per shooting position; each lists the full paths of its photos. */
    QVector<QStringList> imageGroups;
    /** Pairs of positions that may be linked. Indices are not checked against `imageGroups`. */
    QVector<AuthorizedLink> authorizedLinks;
    /** Radians, one entry per recorded shot in record order (one per exposure of a bracket). */
    QVector<float> yaw;
    /** Radians, entries as for `yaw`. */
    QVector<float> pitch;
    /** Radians, entries as for `yaw`, or empty. */
    QVector<float> roll;
    /** True when `yaw` and `pitch` come from recorded angles. */
    bool positionsKnown = false;
    /** Millimetres, 35 mm equivalent; 0 when the importer leaves it to the photos' EXIF. */
    float focalLength = 0.0F;
    /** True when `roll` is filled. */
    bool rollKnown = false;
    LensModel lensModel = LensModel::NotChosen;
    std::array<qint32, 3> reservedValues{ { 0, 0, 0 } };
    bool reservedFlag1 = false;
    /** Start control-point detection by itself. */
    bool autoDetection = false;
    /** Within a bracket: 0 hard links, 1 detected control points. */
    qint32 stackLinking = 0;
    /** Between positions: 0 the reference level only, 1 all stack levels. */
    qint32 levelLinking = 0;
    /** Keep the recorded positions as the start of the optimisation. */
    bool useRecordedLocation = true;
    bool skipOptimization = false;
    bool cleanWrongLinks = false;
    /** Grid shooting order, 0 to 4. The four grid fields are written by the grid importer only. */
    qint32 gridMode = 0;
    qint32 gridRows = 0;
    qint32 gridBracketCount = 1;
    bool gridWrap360 = false;
    /** Expected overlap of neighbouring photos, percent. */
    double overlap = 80.0;
    qint32 reservedIndex1 = -1;
    /** -1 unspecified, 2 tonemapped 8 or 16 bit, 3 HDR radiance. */
    qint32 renderMode = -1;
    QString reservedText1;
    QString reservedText2;
    bool reservedFlag3 = false;
};
