// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/features.h"
#include "host/align/geometry.h"

#include <QFloat16>

#include <Eigen/Core>

#include <cstdint>
#include <optional>
#include <vector>

namespace PanoHost
{

/** What each part of a photo shows: how bright it is, and how much fine and coarse detail it has.
 * Less than 3 KB, to be kept of every photo of a shoot. Places are 0 to 1, to the right and down.
 */
class PictureDetail
{
public:
    static constexpr int kColumns = 48; ///< in which the brightness is known
    static constexpr int kRows = 32;

    /** Of a photo that shows nothing. */
    PictureDetail() = default;
    explicit PictureDetail(const GreyPicture &picture);

    [[nodiscard]] bool isEmpty() const { return m_brightness.empty(); }
    /** 0 to 255. */
    [[nodiscard]] double brightness(double x, double y) const;
    /** Mean products of the differences of neighbouring pixels: how much detail there is to the
     * right and down, and which way it runs. */
    [[nodiscard]] Eigen::Matrix2d fine(double x, double y) const { return tensorAt(x, y, 0); }
    /** The same of pixels eight times as large. */
    [[nodiscard]] Eigen::Matrix2d coarse(double x, double y) const { return tensorAt(x, y, 1); }

private:
    void addTensors(const QImage &picture, int size);
    [[nodiscard]] Eigen::Matrix2d tensorAt(double x, double y, int size) const;

    std::vector<std::uint8_t> m_brightness; ///< by rows
    std::vector<qfloat16> m_tensors; ///< of each size those of all cells, three numbers each
};

/** A photo's detail and where its camera points. */
struct DetailView {
    const PictureDetail &detail;
    const AlignLens &lens;
    const Eigen::Matrix3d &rotation; ///< camera to world
};

/** How two photos show what both of them see. */
struct SeenByBoth {
    double likeness = 0.0; ///< correlation of the brightness, at most 1; 0: of even areas
    /** How much of the common area only the one shows as nothing but white or black. */
    double lostInFirst = 0.0;
    double lostInSecond = 0.0;
    /** How much of the other's fine detail each shows, in the direction in which it shows least of
     * it, compared with coarse detail: about 1 when both are equally sharp. */
    double sharpnessOfFirst = 1.0;
    double sharpnessOfSecond = 1.0;
    /** What a quarter of the common area exceeds: mean square of the fine differences, in the photo
     * that has more of them. */
    double detail = 0.0;
};

/**
 * Compares \p first and \p second where they overlap, a few degrees more or less than their
 * rotations say. Nothing when they overlap by too little.
 */
[[nodiscard]] std::optional<SeenByBoth> seenByBoth(const DetailView &first,
                                                   const DetailView &second);

} // namespace PanoHost
