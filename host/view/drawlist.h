// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/view/shootscene.h"
#include "host/view/viewcamera.h"

#include <QColor>
#include <QImage>

#include <functional>
#include <vector>

namespace PanoHost
{

/** A corner of a triangle: pixels of the picture, and the place in the photo, 0 to 1. */
struct ScreenPoint {
    float x = 0.0F;
    float y = 0.0F;
    float u = 0.0F;
    float v = 0.0F;
};

/** A frame in a picture, or one of the places that it has at both edges of the map. */
struct Patch {
    int frame = 0;
    int first = 0; ///< point of the list
    int count = 0; ///< three points a triangle
    bool isCut = false; ///< beside the photo, u and v are outside 0 to 1: nothing is drawn there
    float side = 0.0F; ///< about as many pixels as the photo's longer side has in the picture
};

/** What there is to draw, the front ones last. */
struct DrawList {
    std::vector<ScreenPoint> points;
    std::vector<Patch> patches;
};

/**
 * The frames that \p camera sees, in a picture with \p scale pixels to one of the camera. Where
 * they would lie more than some 16 deep all over it, evenly chosen ones.
 * \param front this frame comes last; -1: none
 */
[[nodiscard]] DrawList drawListOf(const ShootScene &scene, const ViewCamera &camera, double scale,
                                  int front = -1);

/** The pixels of a picture that belong to the map; all of them for a sphere. */
[[nodiscard]] QRect mapRect(const ViewCamera &camera, double scale);

/** What a frame is filled with. */
struct FrameFill {
    QImage texture; ///< the stored photo, small, 32 bits without alpha; null: there is none yet
    QRgb plain = 0; ///< in its place
    QRgb tint = 0; ///< laid over it, as strong as its alpha
};

/** Draws lists, one way or another: all make the same picture. */
class PictureDrawer
{
public:
    PictureDrawer() = default;
    virtual ~PictureDrawer() = default;
    PictureDrawer(const PictureDrawer &) = delete;
    PictureDrawer &operator=(const PictureDrawer &) = delete;

    using FillOf = std::function<FrameFill(const Patch &)>;
    /** A picture of \p size pixels, 32 bits, transparent black where there is no photo. Nothing is
     * drawn outside of \p clip. Null when it cannot be made. */
    [[nodiscard]] virtual QImage draw(const DrawList &list, const QSize &size, const QRect &clip,
                                      const FillOf &fillOf)
        = 0;
};

/** With the processor alone, on all its cores. */
class SoftDrawer : public PictureDrawer
{
public:
    [[nodiscard]] QImage draw(const DrawList &list, const QSize &size, const QRect &clip,
                              const FillOf &fillOf) override;
};

} // namespace PanoHost
