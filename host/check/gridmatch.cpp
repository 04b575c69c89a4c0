// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/gridmatch.h"

#include "host/align/geometry.h"
#include "host/align/median.h"
#include "host/model/assumedgrid.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <vector>

namespace PanoHost
{

namespace
{

/** A place in the grid, from any other: steps along a line (down or to the right), and lines in the
 * order of the sweep. */
struct Step {
    int along = 0;
    int line = 0;

    Step operator+(const Step &other) const { return { along + other.along, line + other.line }; }
    Step operator-(const Step &other) const { return { along - other.along, line - other.line }; }
    bool operator<(const Step &other) const
    {
        return std::make_pair(line, along) < std::make_pair(other.line, other.along);
    }
};

/** Photos whose places are known from each other. */
struct Cluster {
    std::vector<int> photos;
    std::map<int, Step> places;
};

class GridWalk
{
public:
    GridWalk(const SweptGrid &grid, const QVector<PhotoInfo> &photos,
             const MeasureRotation &measure)
        : m_grid(grid)
        , m_photos(photos)
        , m_measure(measure)
        , m_byRows(sweepsRows(grid.mode))
        , m_linePhotos(m_byRows ? (photos.size() + grid.rows - 1) / grid.rows
                                : grid.rows * grid.bracketCount)
    {
    }

    [[nodiscard]] std::optional<GridMatch> walk();

private:
    [[nodiscard]] std::optional<Eigen::Vector2d> turn(int photo, int from) const;
    [[nodiscard]] std::optional<Step> step(int photo, int from) const;
    void learnStep();
    [[nodiscard]] std::vector<Cluster> runs() const;
    [[nodiscard]] std::optional<Step> link(const Cluster &run, const Cluster &others) const;
    [[nodiscard]] Cluster largest() const;
    [[nodiscard]] int shotAt(const Step &place) const;
    [[nodiscard]] std::vector<int> cells(const Cluster &cluster);
    [[nodiscard]] bool fillBetween(std::vector<int> *cells) const;
    [[nodiscard]] std::optional<std::vector<int>> levels(const std::vector<int> &cells) const;
    [[nodiscard]] ShotMatch matchOf(const std::vector<int> &shots, int shotCount) const;

    const SweptGrid &m_grid;
    const QVector<PhotoInfo> &m_photos;
    const MeasureRotation &m_measure;
    bool m_byRows;
    int m_linePhotos; ///< photos of a line, if none is missing
    double m_step = 0.0; ///< along a line, degrees
    double m_overlap = 0.0; ///< along a line, of the field
    int m_lineLength = 0; ///< cells
    int m_lines = 0;
};

/** How far \p photo lies from \p from along a line and across, degrees. */
std::optional<Eigen::Vector2d> GridWalk::turn(int photo, int from) const
{
    const auto seen = m_measure(photo, from);
    if (!seen) {
        return {};
    }
    const Angles angles = anglesOf(*seen);
    // A camera that looks up or down rolls as it turns.
    const double across = std::copysign(std::hypot(angles.yaw, angles.roll), angles.yaw);
    const double down = -angles.pitch;
    // Lines follow each other to the left in the order "columns from the right", and upwards in
    // those from the bottom.
    if (!m_byRows) {
        return Eigen::Vector2d(down, m_grid.mode == 3 ? -across : across);
    }
    return Eigen::Vector2d(across, m_grid.mode == 1 ? down : -down);
}

/** The same in whole steps; nothing, too, when it is between two cells. */
std::optional<Step> GridWalk::step(int photo, int from) const
{
    const auto degrees = turn(photo, from);
    if (!degrees) {
        return {};
    }
    const double acrossField = m_byRows ? m_grid.fields.height() : m_grid.fields.width();
    const double along = degrees->x() / m_step;
    // How far lines are apart is not known so well.
    const double line = degrees->y() / ((1.0 - m_overlap) * acrossField);
    constexpr double kOffAlong = 0.3;
    constexpr double kOffAcross = 0.45;
    const Step steps{ int(std::lround(along)), int(std::lround(line)) };
    const bool isCell = std::abs(along - steps.along) < kOffAlong
        && std::abs(line - steps.line) < kOffAcross && std::abs(steps.line) < 2;
    return isCell ? std::make_optional(steps) : std::nullopt;
}

/** From some pairs spread over the grid. */
void GridWalk::learnStep()
{
    constexpr int kPairs = 24;
    constexpr double kLeastShare = 0.02; // of the field; less is the same cell
    const double field = m_byRows ? m_grid.fields.width() : m_grid.fields.height();
    std::vector<double> steps;
    const int count = m_photos.size() - m_grid.bracketCount;
    const int pairs = std::min(kPairs, count);
    for (int pair = 0; pair < pairs; ++pair) {
        const int from = int(qint64(pair) * count / pairs);
        const auto degrees = turn(from + m_grid.bracketCount, from);
        if (degrees && std::abs(degrees->x()) > kLeastShare * field
            && std::abs(degrees->x()) > 2.0 * std::abs(degrees->y())) {
            steps.push_back(std::abs(degrees->x()));
        }
    }
    m_step = median(steps);
    m_overlap = std::clamp(1.0 - m_step / field, 0.0, 0.95);
}

/** Photos one after the other that overlap. */
std::vector<Cluster> GridWalk::runs() const
{
    std::vector<Cluster> runs;
    for (int photo = 0; photo < m_photos.size(); ++photo) {
        std::optional<Step> place;
        for (const int back : { 1, m_grid.bracketCount }) {
            const int from = photo - back;
            if (!place && from >= 0 && runs.back().places.count(from) > 0) {
                if (const auto moved = step(photo, from)) {
                    place = runs.back().places.at(from) + *moved;
                }
            }
        }
        if (!place) {
            runs.emplace_back();
        }
        runs.back().photos.push_back(photo);
        runs.back().places[photo] = place.value_or(Step());
    }
    return runs;
}

/** What, added to the places of \p run, gives those in the frame of \p others: from a photo of
 * each that overlap. Nothing when none do. */
std::optional<Step> GridWalk::link(const Cluster &run, const Cluster &others) const
{
    constexpr std::size_t kTries = 20;
    for (const int photo : { run.photos.front(), run.photos.back() }) {
        // The likeliest neighbour across is a line away.
        std::vector<int> nearest = others.photos;
        const std::size_t tries = std::min(kTries, nearest.size());
        const auto end = nearest.begin() + static_cast<std::ptrdiff_t>(tries);
        std::partial_sort(nearest.begin(), end, nearest.end(), [&](int one, int other) {
            return std::abs(photo - m_linePhotos - one) < std::abs(photo - m_linePhotos - other);
        });
        for (auto candidate = nearest.begin(); candidate != end; ++candidate) {
            if (const auto moved = step(photo, *candidate)) {
                return others.places.at(*candidate) + *moved - run.places.at(photo);
            }
        }
    }
    return {};
}

/** The number of the cell in the order of the sweep. */
int GridWalk::shotAt(const Step &place) const
{
    constexpr int kSerpentine = 4;
    const bool isBack = m_grid.mode == kSerpentine && place.line % 2 != 0;
    return place.line * m_lineLength + (isBack ? m_lineLength - 1 - place.along : place.along);
}

/** For each photo its cell, -1: not known; empty when the places are no such grid. */
std::vector<int> GridWalk::cells(const Cluster &cluster)
{
    Step least = cluster.places.begin()->second;
    Step most = least;
    for (const auto &[photo, place] : cluster.places) {
        least = { std::min(least.along, place.along), std::min(least.line, place.line) };
        most = { std::max(most.along, place.along), std::max(most.line, place.line) };
    }
    m_lineLength = most.along - least.along + 1;
    m_lines = most.line - least.line + 1;
    if ((m_byRows ? m_lines : m_lineLength) != m_grid.rows) {
        return {};
    }
    std::vector<int> found(m_photos.size(), -1);
    for (const auto &[photo, place] : cluster.places) {
        found[photo] = shotAt(place - least);
    }
    return found;
}

/** Whoever shows too little has the cell between its neighbours. Answers whether all have one, in
 * the order of the sweep. */
bool GridWalk::fillBetween(std::vector<int> *cells) const
{
    const int count = static_cast<int>(cells->size());
    const int cellCount = m_lineLength * m_lines;
    int before = -1;
    int beforeCell = -1;
    for (int photo = 0; photo <= count; ++photo) {
        const int cell = photo < count ? (*cells)[photo] : cellCount;
        if (cell < 0) {
            continue;
        }
        const int unknown = photo - before - 1;
        if (cell < beforeCell
            || (unknown > 0 && (m_grid.bracketCount > 1 || cell - beforeCell - 1 != unknown))) {
            return false;
        }
        for (int i = before + 1; i < photo; ++i) {
            (*cells)[i] = beforeCell + i - before;
        }
        before = photo;
        beforeCell = cell;
    }
    return true;
}

/** For each photo its shot: of stacks that are not complete, by their exposures. */
std::optional<std::vector<int>> GridWalk::levels(const std::vector<int> &cells) const
{
    const int bracket = m_grid.bracketCount;
    std::map<int, std::vector<int>> stacks;
    for (int photo = 0; photo < m_photos.size(); ++photo) {
        stacks[cells[photo]].push_back(photo);
    }
    std::vector<std::vector<double>> exposures(bracket);
    for (const auto &[cell, photos] : stacks) {
        for (int level = 0; static_cast<int>(photos.size()) == bracket && level < bracket;
             ++level) {
            if (const auto value = m_photos.at(photos[level]).exposureValue) {
                exposures[level].push_back(*value);
            }
        }
    }
    std::vector<int> shots(m_photos.size(), -1);
    for (const auto &[cell, photos] : stacks) {
        for (std::size_t k = 0; k < photos.size(); ++k) {
            int level = static_cast<int>(k);
            if (bracket == 1) {
                level = 0; // all of them: the cell was taken more than once
            } else if (static_cast<int>(photos.size()) != bracket) {
                const auto value = m_photos.at(photos[k]).exposureValue;
                const auto away = [&](const std::vector<double> &known) {
                    return std::abs(median(known) - *value);
                };
                if (!value || exposures.front().empty()) {
                    return {};
                }
                level = static_cast<int>(std::min_element(exposures.begin(), exposures.end(),
                                                          [&](const auto &one, const auto &other) {
                                                              return away(one) < away(other);
                                                          })
                                         - exposures.begin());
                constexpr double kSameStops = 0.4;
                if (away(exposures[level]) > kSameStops) {
                    return {};
                }
            }
            shots[photos[k]] = cell * bracket + level;
        }
    }
    return shots;
}

ShotMatch GridWalk::matchOf(const std::vector<int> &shots, int shotCount) const
{
    ShotMatch match;
    match.photoOfShot.fill(-1, shotCount);
    match.places.resize(m_photos.size());
    QVector<QVector<int>> photosOf(shotCount);
    for (int photo = 0; photo < m_photos.size(); ++photo) {
        const int shot = shots[photo];
        match.photoOfShot[shot] = photo;
        match.places[photo] = { PhotoPlace::Kind::Alone, shot };
        photosOf[shot] += photo;
    }
    for (const QVector<int> &photos : photosOf) {
        if (photos.size() > 1) {
            match.doubled += photos;
            for (const int photo : photos) {
                match.places[photo].kind = PhotoPlace::Kind::Doubled;
            }
        }
    }
    match.sureness = 1.0;
    match.neededPictures = true;
    return match;
}

/** The most photos whose places are known from each other. */
Cluster GridWalk::largest() const
{
    std::vector<Cluster> found;
    for (const Cluster &run : runs()) {
        Cluster joined = run;
        std::vector<Cluster> apart;
        for (Cluster &other : found) {
            const auto offset = link(run, other);
            if (!offset) {
                apart.push_back(std::move(other));
                continue;
            }
            for (const auto &[photo, place] : other.places) {
                joined.places[photo] = place - *offset;
                joined.photos.push_back(photo);
            }
        }
        apart.push_back(std::move(joined));
        found = std::move(apart);
    }
    return *std::max_element(found.begin(), found.end(), [](const auto &one, const auto &other) {
        return one.photos.size() < other.photos.size();
    });
}

std::optional<GridMatch> GridWalk::walk()
{
    learnStep();
    if (!(m_step > 0.0)) {
        return {};
    }
    std::vector<int> places = cells(largest());
    if (places.empty() || !fillBetween(&places)) {
        return {};
    }
    const auto shots = levels(places);
    if (!shots) {
        return {};
    }
    return GridMatch{ matchOf(*shots, m_lineLength * m_lines * m_grid.bracketCount),
                      m_byRows ? m_lineLength : m_lines };
}

} // namespace

std::optional<GridMatch> matchGrid(const SweptGrid &grid, const QVector<PhotoInfo> &photos,
                                   const MeasureRotation &measure)
{
    if (photos.size() < 2 * grid.bracketCount) {
        return {};
    }
    return GridWalk(grid, photos, measure).walk();
}

} // namespace PanoHost
