// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/featurestore.h"
#include "host/align/headmodel.h"
#include "host/align/matching.h"
#include "host/model/jobwatch.h"

#include <QPair>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace PanoHost
{

/** The picture of one view of a model. */
struct ViewPhoto {
    QString path;
    QSize storedSize; ///< as it was imported
};

struct TiePointOptions {
    int widest = 1600; ///< pixels of the pictures in which features are looked for
    FeatureOptions features;
    int jobs = 0; ///< threads; 0: one for each processor. Results do not depend on it
    std::int64_t mostFeatureBytes = FeatureStore::kMostBytes; ///< in memory
};

/** What one look at all pairs has found. */
struct TiePoints {
    struct Pair {
        int points = 0; ///< 0: no consensus
        Eigen::Matrix3d rotation
            = Eigen::Matrix3d::Identity(); ///< seen: rays of the first to rays of the second
    };
    struct Lights {
        std::uint16_t first = 0; ///< mean linear light around the spot, 65535: white
        std::uint16_t second = 0;
    };
    std::vector<TiePoint> points; ///< pair by pair
    std::vector<Lights> lights; ///< one for each point
    std::vector<Pair> pairs; ///< one for each pair asked for, in their order
};

/**
 * From photos to tie points: `readFeatures` once, then `match` as often as the model gets better.
 * The same photos, pairs and models give the same points. A watch is called on the calling thread
 * only, a few times a second; `interruption()` is thrown when the user wants to stop.
 */
class TiePointFinder
{
public:
    /** One photo for each view of the models to come. */
    explicit TiePointFinder(std::vector<ViewPhoto> photos, const TiePointOptions &options = {});

    /** Looks for features in all photos; those that cannot be read have none, and a reason why. */
    void readFeatures(const JobWatch &watch = {});
    /** Why photo \p view has been left out; nothing when it has been read. */
    [[nodiscard]] const std::optional<Failure> &leftOut(int view) const;
    /** 0 of photos that have been left out or have no texture. */
    [[nodiscard]] int featureCount(int view) const;
    /** Of the pixels of photo \p view, 0 to 1. */
    [[nodiscard]] double whiteShare(int view) const;

    using Rules = std::function<MatchRules(const AlignLens &)>;
    enum class Afterwards {
        KeepFeatures, ///< for another look
        ReleaseFeatures, ///< as soon as a photo's last pair has been matched: nothing is found
                         ///< again
    };
    /**
     * Matches \p pairs of views where \p model expects them, by \p rules ("firstLook" for instance)
     * for the lens of the second view of each.
     */
    [[nodiscard]] TiePoints match(const std::vector<QPair<int, int>> &pairs, const HeadModel &model,
                                  const Rules &rules, const JobWatch &watch = {},
                                  Afterwards afterwards = Afterwards::KeepFeatures);

private:
    std::vector<ViewPhoto> m_photos;
    TiePointOptions m_options;
    FeatureStore m_store;
    std::vector<std::optional<Failure>> m_leftOut; // by view
    std::vector<int> m_featureCounts; // by view
    std::vector<double> m_whiteShares; // by view
};

} // namespace PanoHost
