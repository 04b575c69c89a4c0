// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/features.h"
#include "host/align/geometry.h"
#include "host/model/jobwatch.h"
#include "host/model/photofile.h"

#include <QVector>

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace PanoHost
{

/**
 * How the camera turned between photos, as the pictures show it: nothing else is known of where
 * they point. Each photo is read once, when it is first asked for, reduced; features of the last
 * few are kept, so ask for neighbours. What it has said of a pair it remembers.
 */
class SeenTurns
{
public:
    /** \p photos through a \p lens of \p focal35mm; 0: nothing can be said of any pair. Looking at
     * them throws when \p watch says so. */
    SeenTurns(QVector<PhotoInfo> photos, double focal35mm, LensModel lens, JobWatch watch = {});

    /** The frame of upright photo \p one in that of \p other: what rays of the one are in the
     * other. Nothing when they show too little in common, cannot be read or are of different sizes.
     */
    [[nodiscard]] std::optional<Eigen::Matrix3d> between(int one, int other);

    /** How much detail photo \p number shows, more when it is sharper; for photos of the same view.
     * Negative when it cannot be read. */
    [[nodiscard]] double sharpness(int number);

private:
    struct Seen {
        int number = -1;
        FeatureSet features;
        double sharpness = -1.0;
    };
    [[nodiscard]] std::shared_ptr<const Seen> seen(int number);
    [[nodiscard]] std::optional<Eigen::Matrix3d> look(int one, int other);

    QVector<PhotoInfo> m_photos;
    double m_focal35mm;
    LensModel m_lens;
    JobWatch m_watch;
    std::vector<std::shared_ptr<const Seen>> m_last; ///< the latest first
    std::map<std::pair<int, int>, std::optional<Eigen::Matrix3d>> m_turns; ///< that were asked for
};

} // namespace PanoHost
