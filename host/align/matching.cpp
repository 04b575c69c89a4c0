// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/matching.h"

#include "shoot/directionindex.h"

#include <QtMath>

#include <Eigen/Geometry>
#include <Eigen/SVD>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <random>
#include <set>
#include <tuple>
#include <utility>

namespace PanoHost
{

namespace
{

using Eigen::Matrix3d;
using Eigen::Vector2d;
using Eigen::Vector3d;

constexpr double kLeastSimilarity = 0.75;
/** A partner is this much nearer than its best rival, as distance of their descriptors. */
constexpr double kMostRatio = 0.85;
/** Of a pair: twice as many as would do bring photos a fifth nearer, at the cost of solving. */
constexpr int kMostPoints = 80;
constexpr int kDraws = 200;
constexpr int kLeastInliers = 5;
constexpr int kSpreadCells = 5; ///< on each side of the overlap

/** Of photos in which features are looked for at 1,600 pixels to the width, or at all there are. */
double sameSpotPixels(const AlignLens &lens)
{
    return std::max(3.0, 0.002 * lens.size.width());
}

/** Scalar product of two descriptors of length 1. */
constexpr double kDescriptorUnit = 512.0 * 512.0;

double distanceOf(double similarity)
{
    return std::sqrt(std::max(0.0, 2.0 - 2.0 * similarity));
}

int product(const FeatureSet::Descriptor &a, const FeatureSet::Descriptor &b)
{
    int sum = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        sum += int(a[i]) * int(b[i]);
    }
    return sum;
}

/** A feature that may be in both photos. */
struct Candidate {
    int feature = 0; ///< index into its photo's set
    Vector3d ray; ///< in its own camera
    Vector2d place; ///< in the second photo: where it is, or is predicted
};

/** The features of \p side that \p toOther expects within \p window of the other photo. */
std::vector<Candidate> candidates(const MatchSide &side, const Matrix3d &toOther,
                                  const AlignLens &other, double window)
{
    std::vector<Candidate> found;
    for (int i = 0; i < side.features.count(); ++i) {
        const FeatureSet::Place place = side.features.places[static_cast<size_t>(i)];
        const Vector2d own(place.x, place.y);
        const Vector3d ray = side.lens.rayOf(own);
        const auto there = other.pixelOf(toOther * ray);
        if (there && other.contains(*there, window)) {
            found.push_back({ i, ray, *there });
        }
    }
    return found;
}

/** Places in squares as wide as the window, so that those within it are in nine of them. */
class PlaceGrid
{
public:
    PlaceGrid(const std::vector<Candidate> &candidates, double window)
        : m_candidates(candidates)
        , m_window(window)
    {
        for (size_t i = 0; i < candidates.size(); ++i) {
            const Vector2d &place = candidates[i].place;
            m_entries.push_back({ cellOf(place.y()), place.x(), static_cast<int>(i) });
        }
        std::sort(m_entries.begin(), m_entries.end());
    }

    /** Calls \p visit with the index of every candidate within the window around \p centre, each
     * once. */
    template <typename Visit> void visitNear(const Vector2d &centre, Visit visit) const
    {
        const int row = cellOf(centre.y());
        for (int cell = row - 1; cell <= row + 1; ++cell) {
            for (auto entry = std::lower_bound(m_entries.begin(), m_entries.end(),
                                               Entry{ cell, centre.x() - m_window, -1 });
                 entry != m_entries.end() && entry->row == cell
                 && entry->x <= centre.x() + m_window;
                 ++entry) {
                const Vector2d &place = m_candidates[static_cast<size_t>(entry->candidate)].place;
                if ((place - centre).squaredNorm() <= m_window * m_window) {
                    visit(entry->candidate);
                }
            }
        }
    }

private:
    struct Entry {
        int row;
        double x;
        int candidate;
        bool operator<(const Entry &other) const
        {
            return std::tie(row, x, candidate) < std::tie(other.row, other.x, other.candidate);
        }
    };

    [[nodiscard]] int cellOf(double y) const { return static_cast<int>(std::floor(y / m_window)); }

    const std::vector<Candidate> &m_candidates;
    double m_window;
    std::vector<Entry> m_entries; // by row, then by x
};

/** Two candidates that each other's descriptors like best. */
struct Match {
    int first = 0;
    int second = 0;
    Vector3d firstRay;
    Vector3d secondRay;
    double distance = 0.0; ///< of the descriptors
};

/** How a feature compares with another one; larger products first, then smaller indices. */
struct Likeness {
    int product = -1;
    int other = -1;
    void offer(int candidateProduct, int candidate)
    {
        if (candidateProduct > product || (candidateProduct == product && candidate < other)) {
            product = candidateProduct;
            other = candidate;
        }
    }
};

std::vector<Match> mutualMatches(const MatchSide &first, const MatchSide &second,
                                 const Matrix3d &predicted, const MatchRules &rules)
{
    const double window = rules.windowPixels;
    const double sameSpot = rules.sameSpotPixels * rules.sameSpotPixels;
    const std::vector<Candidate> ours = candidates(first, predicted, second.lens, window);
    // Of the second photo only what the first one may show.
    std::vector<Candidate> theirs;
    for (const Candidate &candidate :
         candidates(second, predicted.transpose(), first.lens, window)) {
        const FeatureSet::Place place
            = second.features.places[static_cast<size_t>(candidate.feature)];
        theirs.push_back({ candidate.feature, candidate.ray, Vector2d(place.x, place.y) });
    }
    const PlaceGrid grid(theirs, window);
    std::vector<Likeness> best(ours.size());
    std::vector<int> rivals(ours.size(), 0);
    std::vector<Likeness> bestOfTheirs(theirs.size());
    std::vector<Likeness> row;
    for (size_t i = 0; i < ours.size(); ++i) {
        const auto &descriptor = first.features.descriptors[static_cast<size_t>(ours[i].feature)];
        row.clear();
        grid.visitNear(ours[i].place, [&](int j) {
            const auto feature = static_cast<size_t>(theirs[static_cast<size_t>(j)].feature);
            row.push_back({ product(descriptor, second.features.descriptors[feature]), j });
            best[i].offer(row.back().product, j);
            bestOfTheirs[static_cast<size_t>(j)].offer(row.back().product, static_cast<int>(i));
        });
        for (const Likeness &rival : row) {
            const Vector2d &place = theirs[static_cast<size_t>(rival.other)].place;
            const Vector2d &chosen = theirs[static_cast<size_t>(best[i].other)].place;
            if ((place - chosen).squaredNorm() >= sameSpot) {
                rivals[i] = std::max(rivals[i], rival.product);
            }
        }
    }
    std::vector<Match> matches;
    for (size_t i = 0; i < ours.size(); ++i) {
        if (best[i].other < 0) {
            continue;
        }
        const auto j = static_cast<size_t>(best[i].other);
        const double similarity = best[i].product / kDescriptorUnit;
        // Rivals that are nothing like it say nothing about how sure the match is.
        const double rival = std::max(0.5, rivals[i] / kDescriptorUnit);
        if (bestOfTheirs[j].other == static_cast<int>(i) && similarity > kLeastSimilarity
            && distanceOf(similarity) < kMostRatio * distanceOf(rival)) {
            matches.push_back({ ours[i].feature, theirs[j].feature, ours[i].ray, theirs[j].ray,
                                distanceOf(similarity) });
        }
    }
    return matches;
}

/** An orthogonal frame from two rays. */
Matrix3d frameOf(const Vector3d &one, const Vector3d &other)
{
    const Vector3d across = one.cross(other).normalized();
    Matrix3d frame;
    frame << one, across, one.cross(across);
    return frame;
}

/** The rotation that best turns the first rays of \p matches into the second ones. */
Matrix3d fittedRotation(const std::vector<Match> &matches)
{
    Matrix3d sum = Matrix3d::Zero();
    for (const Match &match : matches) {
        sum += match.secondRay * match.firstRay.transpose();
    }
    const Eigen::JacobiSVD<Matrix3d> svd(sum, Eigen::ComputeFullU | Eigen::ComputeFullV);
    Matrix3d rotation = svd.matrixU() * svd.matrixV().transpose();
    if (rotation.determinant() < 0.0) {
        Matrix3d mirror = Matrix3d::Identity();
        mirror(2, 2) = -1.0;
        rotation = svd.matrixU() * mirror * svd.matrixV().transpose();
    }
    return rotation;
}

/** What matches have to agree on. */
class Consensus
{
public:
    Consensus(Matrix3d predicted, const MatchRules &rules, const AlignLens &lens)
        : m_predicted(std::move(predicted))
        , m_gateDegrees(rules.gateDegrees)
        , m_tolerance(rules.consensusPixels / lens.focalPixels)
        // Two rays nearer to each other than this say little about a turn around them.
        , m_leastApart(0.005 * lens.size.width() / lens.focalPixels)
    {
    }

    [[nodiscard]] bool allows(const Matrix3d &rotation) const
    {
        return m_gateDegrees <= 0.0 || degreesBetween(rotation, m_predicted) <= m_gateDegrees;
    }

    [[nodiscard]] bool fits(const Match &match, const Matrix3d &rotation) const
    {
        return (rotation * match.firstRay - match.secondRay).squaredNorm()
            < m_tolerance * m_tolerance;
    }

    [[nodiscard]] std::vector<Match> fitting(const std::vector<Match> &matches,
                                             const Matrix3d &rotation) const
    {
        std::vector<Match> kept;
        std::copy_if(matches.begin(), matches.end(), std::back_inserter(kept),
                     [&](const Match &match) { return fits(match, rotation); });
        return kept;
    }

    /** Those that agree with the rotation between two of them that most agree with. */
    [[nodiscard]] std::vector<Match> drawn(const std::vector<Match> &matches,
                                           std::uint32_t seed) const
    {
        std::mt19937 generator(seed);
        const auto count = static_cast<std::uint32_t>(matches.size());
        std::ptrdiff_t most = 0;
        Matrix3d best = Matrix3d::Identity();
        for (int draw = 0; draw < kDraws; ++draw) {
            const Match &one = matches[generator() % count];
            const Match &other = matches[generator() % count];
            if ((one.firstRay - other.firstRay).norm() < m_leastApart
                || (one.secondRay - other.secondRay).norm() < m_leastApart) {
                continue;
            }
            const Matrix3d rotation = frameOf(one.secondRay, other.secondRay)
                * frameOf(one.firstRay, other.firstRay).transpose();
            if (!allows(rotation)) {
                continue;
            }
            const auto agreeing
                = std::count_if(matches.begin(), matches.end(),
                                [&](const Match &match) { return fits(match, rotation); });
            if (agreeing > most) {
                most = agreeing;
                best = rotation;
            }
        }
        return most > 0 ? fitting(matches, best) : std::vector<Match>();
    }

private:
    Matrix3d m_predicted;
    double m_gateDegrees;
    double m_tolerance;
    double m_leastApart;
};

/** \p matches, the surest first, without those whose spot in one of the photos has been used. */
std::vector<Match> withoutRepeats(std::vector<Match> matches, const FeatureSet &first,
                                  const FeatureSet &second)
{
    std::sort(matches.begin(), matches.end(), [](const Match &a, const Match &b) {
        return std::tie(a.distance, a.first) < std::tie(b.distance, b.first);
    });
    const auto spotOf = [](const FeatureSet &features, int feature) {
        const FeatureSet::Place place = features.places[static_cast<size_t>(feature)];
        return std::pair(std::lround(place.x), std::lround(place.y));
    };
    std::set<std::pair<long, long>> usedInFirst;
    std::set<std::pair<long, long>> usedInSecond;
    std::vector<Match> kept;
    for (const Match &match : matches) {
        const auto one = spotOf(first, match.first);
        const auto other = spotOf(second, match.second);
        if (usedInFirst.count(one) == 0 && usedInSecond.count(other) == 0) {
            usedInFirst.insert(one);
            usedInSecond.insert(other);
            kept.push_back(match);
        }
    }
    return kept;
}

/** At most \p most of \p matches, in their order, taken in turns from the cells of the overlap. */
std::vector<Match> spread(const std::vector<Match> &matches, const FeatureSet &first, int most)
{
    const auto placeOf = [&first](const Match &match) {
        const FeatureSet::Place place = first.places[static_cast<size_t>(match.first)];
        return Vector2d(place.x, place.y);
    };
    Vector2d least = placeOf(matches.front());
    Vector2d largest = least;
    for (const Match &match : matches) {
        least = least.cwiseMin(placeOf(match));
        largest = largest.cwiseMax(placeOf(match));
    }
    const Vector2d span = (largest - least).cwiseMax(1.0);
    // The rank of each match in its cell, then its own place.
    std::vector<std::pair<int, size_t>> turns;
    std::map<std::pair<int, int>, int> taken;
    for (size_t i = 0; i < matches.size(); ++i) {
        const Vector2d cell = (placeOf(matches[i]) - least).cwiseQuotient(span) * kSpreadCells;
        turns.emplace_back(taken[{ std::min(kSpreadCells - 1, static_cast<int>(cell.x())),
                                   std::min(kSpreadCells - 1, static_cast<int>(cell.y())) }]++,
                           i);
    }
    std::sort(turns.begin(), turns.end());
    std::vector<Match> kept;
    for (const auto &[turn, index] : turns) {
        if (static_cast<int>(kept.size()) < most) {
            kept.push_back(matches[index]);
        }
    }
    return kept;
}

} // namespace

MatchRules firstLook(const AlignLens &lens)
{
    const double width = lens.size.width();
    return { 0.16 * width, std::max(0.012 * width, 6.0), 15.0, kMostPoints, sameSpotPixels(lens) };
}

MatchRules secondLook(const AlignLens &lens)
{
    const double width = lens.size.width();
    return { std::max(0.012 * width, 8.0), std::max(0.008 * width, 4.0), 1.0, kMostPoints,
             sameSpotPixels(lens) };
}

MatchRules anyLook(const AlignLens &lens)
{
    MatchRules rules = firstLook(lens);
    rules.windowPixels = lens.size.width() + lens.size.height();
    rules.gateDegrees = 0.0;
    return rules;
}

PairMatches matchPair(const MatchSide &first, const MatchSide &second, const Matrix3d &predicted,
                      const MatchRules &rules, std::uint32_t seed)
{
    const std::vector<Match> matches = mutualMatches(first, second, predicted, rules);
    if (static_cast<int>(matches.size()) < kLeastInliers) {
        return {};
    }
    const Consensus consensus(predicted, rules, second.lens);
    std::vector<Match> agreeing = consensus.drawn(matches, seed);
    if (static_cast<double>(agreeing.size())
        < std::max<double>(kLeastInliers, 4.0 + 0.2 * static_cast<double>(matches.size()))) {
        return {};
    }
    const Matrix3d rotation = fittedRotation(agreeing);
    agreeing = consensus.fitting(matches, rotation);
    if (static_cast<int>(agreeing.size()) < kLeastInliers || !consensus.allows(rotation)) {
        return {};
    }
    PairMatches result;
    result.rotation = rotation;
    agreeing = withoutRepeats(std::move(agreeing), first.features, second.features);
    for (const Match &match : spread(agreeing, first.features, rules.mostPoints)) {
        result.pairs.emplace_back(match.first, match.second);
    }
    return result;
}

namespace
{

/** What the search for overlaps knows of a lens. */
struct Sight {
    std::vector<Vector3d> samples; ///< rays through the middles of 12 x 8 fields of the photo
    double reach = 0.0; ///< radians from the axis to the farthest corner
};

Sight sightThrough(const AlignLens &lens)
{
    constexpr int kColumns = 12;
    constexpr int kRows = 8;
    const double width = lens.size.width();
    const double height = lens.size.height();
    Sight sight;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            sight.samples.push_back(lens.rayOf(
                { (column + 0.5) * width / kColumns - 0.5, (row + 0.5) * height / kRows - 0.5 }));
        }
    }
    for (const double x : { -0.5, width - 0.5 }) {
        for (const double y : { -0.5, height - 0.5 }) {
            const Vector3d corner = lens.rayOf({ x, y });
            sight.reach = std::max(sight.reach, std::atan2(corner.head<2>().norm(), corner.z()));
        }
    }
    return sight;
}

/** Views that point somewhere through lenses, and which of them overlap. */
class Overlaps
{
public:
    Overlaps(const std::vector<Matrix3d> &rotations, const std::vector<const AlignLens *> &lenses)
        : m_rotations(rotations)
        , m_lenses(lenses)
    {
        for (const AlignLens *lens : lenses) {
            if (m_sights.count(lens) == 0) {
                m_sights.emplace(lens, sightThrough(*lens));
                m_narrowest = std::min(m_narrowest, m_sights.at(lens).reach);
            }
        }
    }

    [[nodiscard]] int count() const { return static_cast<int>(m_rotations.size()); }
    /** The least reach of all views, radians. */
    [[nodiscard]] double narrowest() const { return m_narrowest; }
    [[nodiscard]] double reach(int view) const { return sight(view).reach; }

    /** The share of the narrower view's frame that the other one sees. */
    [[nodiscard]] double share(int one, int other) const
    {
        const double apart = reach(one) + reach(other);
        if (apart < M_PI && axis(one).dot(axis(other)) < std::cos(apart)) {
            return 0.0;
        }
        return reach(one) <= reach(other) ? shareSeen(one, other) : shareSeen(other, one);
    }

    [[nodiscard]] Vector3d axis(int view) const
    {
        return m_rotations[static_cast<size_t>(view)].col(2);
    }

private:
    [[nodiscard]] const Sight &sight(int view) const
    {
        return m_sights.at(m_lenses[static_cast<size_t>(view)]);
    }

    [[nodiscard]] double shareSeen(int view, int by) const
    {
        const Matrix3d turn = m_rotations[static_cast<size_t>(by)].transpose()
            * m_rotations[static_cast<size_t>(view)];
        const AlignLens &lens = *m_lenses[static_cast<size_t>(by)];
        const std::vector<Vector3d> &samples = sight(view).samples;
        const auto seen = std::count_if(samples.begin(), samples.end(), [&](const Vector3d &ray) {
            const auto pixel = lens.pixelOf(turn * ray);
            return pixel && lens.contains(*pixel);
        });
        return static_cast<double>(seen) / static_cast<double>(samples.size());
    }

    const std::vector<Matrix3d> &m_rotations;
    const std::vector<const AlignLens *> &m_lenses;
    std::map<const AlignLens *, Sight> m_sights;
    double m_narrowest = M_PI;
};

} // namespace

std::vector<QPair<int, int>> overlappingPairs(const std::vector<Matrix3d> &rotations,
                                              const std::vector<const AlignLens *> &lenses,
                                              double leastShare)
{
    const Overlaps overlaps(rotations, lenses);
    QVector<PanoHead::UnitVector> axes;
    axes.reserve(overlaps.count());
    for (int i = 0; i < overlaps.count(); ++i) {
        // The index has its poles at z.
        const Vector3d axis = overlaps.axis(i);
        axes.append({ axis.z(), axis.x(), axis.y() });
    }
    const PanoHead::DirectionIndex index(axes, std::min(2.0 * overlaps.narrowest(), M_PI_2));
    std::vector<QPair<int, int>> pairs;
    for (int i = 0; i < overlaps.count(); ++i) {
        // Each pair is found from its wider view, so that a few wide ones among many cost little.
        const auto consider = [&](int j) {
            if (std::pair(overlaps.reach(j), j) < std::pair(overlaps.reach(i), i)
                && overlaps.share(i, j) >= leastShare) {
                pairs.emplace_back(std::min(i, j), std::max(i, j));
            }
        };
        const double radius = 2.0 * overlaps.reach(i);
        if (radius <= M_PI_2) {
            index.visitNear(i, radius, consider);
        } else {
            // Such a lens sees a good part of all there is.
            for (int j = 0; j < overlaps.count(); ++j) {
                consider(j);
            }
        }
    }
    std::sort(pairs.begin(), pairs.end());
    return pairs;
}

} // namespace PanoHost
