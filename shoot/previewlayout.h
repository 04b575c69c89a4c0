// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "shoot/anglerange.h"

#include <QRectF>
#include <QSize>
#include <QVector>

namespace PanoHead
{

/** One photo's place in a layout picture. */
struct PreviewCell {
    QRectF box; ///< pixels on the unscaled canvas
    int image = -1; ///< index of the photo drawn here, in preview order
    float roll = 0.0F; ///< degrees by which the photo is turned
    float yaw = 0.0F; ///< degrees, for the caption
    float pitch = 0.0F; ///< degrees, for the caption

    friend bool operator==(const PreviewCell &a, const PreviewCell &b)
    {
        return a.box == b.box && a.image == b.image && a.roll == b.roll && a.yaw == b.yaw
            && a.pitch == b.pitch;
    }
};

/** Canvas and cells of a layout picture; empty when there is nothing to draw. */
struct PreviewLayout {
    QSize canvas;
    QVector<PreviewCell> cells; ///< in drawing order: later cells cover earlier ones

    [[nodiscard]] bool isEmpty() const { return canvas.isEmpty(); }
    /** Quick for layouts that share their cells. */
    friend bool operator==(const PreviewLayout &a, const PreviewLayout &b)
    {
        return a.canvas == b.canvas && a.cells == b.cells;
    }
};

/** How the span of an angle range is taken. They differ only for ranges without shots. */
enum class Span {
    Absolute, ///< |maximum - minimum|
    NegatedSumToo, ///< maximum - minimum, or -(maximum + minimum) where that is negative
};

/** Precision of canvas and places, where it decides a pixel. */
enum class Precision { Double, Single };

/** What differs between the heads' layout pictures. */
struct LayoutRules {
    double smallestStepDegrees = 0.0; ///< smaller steps count as this one; 0: as they are
    Span span = Span::Absolute;
    Precision precision = Precision::Double;
    int maxSide = 32'767; ///< the raster painter draws nothing beyond this pixel
    qint64 maxCanvasBytes = 256LL * 1024 * 1024;
};

/** Side of a cell before any reduction, pixels. */
constexpr int kCellSide = 96;

/**
 * Places every shot by its angles: one cell per shot, higher pitch drawn higher. The scale makes
 * the smallest step between consecutive shots one cell wide. A canvas beyond the limits is reduced
 * as a whole, cells included. Cells whose place is not finite are left out; the layout is empty
 * without shots or with ranges that are unknown or not finite.
 */
[[nodiscard]] PreviewLayout layOutShots(const QVector<ShootData> &shots,
                                        const AngleExtents &extents, const LayoutRules &rules);

/** The layout of a shoot, worked out again only when something about it has changed. */
class ShotLayout
{
public:
    explicit ShotLayout(const LayoutRules &rules)
        : m_rules(rules)
    {
    }

    /** As `layOutShots`. Costs nothing while \p shots is the same, unchanged list. */
    const PreviewLayout &of(const QVector<ShootData> &shots, const AngleExtents &extents);

private:
    LayoutRules m_rules;
    // A shared copy: a change to the page's list detaches it and so shows in the address.
    QVector<ShootData> m_shots;
    AngleExtents m_extents;
    PreviewLayout m_layout;
};

} // namespace PanoHead
