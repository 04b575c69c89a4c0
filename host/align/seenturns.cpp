// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/seenturns.h"

#include "host/align/matching.h"
#include "host/model/panorama.h"

#include <algorithm>

namespace PanoHost
{

namespace
{

constexpr int kWidest = 900;
constexpr int kMostFeatures = 960; // ten for each cell
constexpr size_t kKept = 64; // more than most rows of a grid have
constexpr size_t kLeastPoints = 10; // by chance, wrong matches agree less often
constexpr std::uint32_t kTurnSeed = 1;

AlignLens lensOf(const PhotoInfo &photo, double focal35mm, LensModel model)
{
    AlignLens lens;
    lens.size = photo.storedSize;
    lens.model = model == LensModel::Fisheye ? model : LensModel::Standard;
    lens.focalPixels = focalPixels(photo.storedSize, focal35mm);
    return lens;
}

Eigen::Matrix3d turnOf(const PhotoInfo &photo)
{
    return rotationOf({ 0.0, 0.0, double(clockwiseDegrees(photo.orientation)) });
}

} // namespace

SeenTurns::SeenTurns(QVector<PhotoInfo> photos, double focal35mm, LensModel lens, JobWatch watch)
    : m_photos(std::move(photos))
    , m_focal35mm(focal35mm)
    , m_lens(lens)
    , m_watch(std::move(watch))
{
}

std::optional<Eigen::Matrix3d> SeenTurns::between(int one, int other)
{
    const auto known = m_turns.find({ one, other });
    return known != m_turns.end() ? known->second : m_turns[{ one, other }] = look(one, other);
}

std::optional<Eigen::Matrix3d> SeenTurns::look(int one, int other)
{
    const PhotoInfo &first = m_photos.at(one);
    const PhotoInfo &second = m_photos.at(other);
    if (!(m_focal35mm > 0.0) || first.storedSize != second.storedSize) {
        return {};
    }
    const auto ours = seen(one);
    const auto theirs = seen(other);
    const AlignLens lens = lensOf(first, m_focal35mm, m_lens);
    const PairMatches found = matchPair({ ours->features, lens }, { theirs->features, lens },
                                        Eigen::Matrix3d::Identity(), anyLook(lens), kTurnSeed);
    if (found.pairs.size() < kLeastPoints) {
        return {};
    }
    // Features are of photos as they are stored.
    return Eigen::Matrix3d(turnOf(second) * found.rotation * turnOf(first).transpose());
}

double SeenTurns::sharpness(int number)
{
    return seen(number)->sharpness;
}

std::shared_ptr<const SeenTurns::Seen> SeenTurns::seen(int number)
{
    auto known = std::find_if(m_last.begin(), m_last.end(),
                              [number](const auto &photo) { return photo->number == number; });
    if (known != m_last.end()) {
        std::rotate(m_last.begin(), known, known + 1);
        return m_last.front();
    }
    m_watch.check();
    const PhotoInfo &photo = m_photos.at(number);
    auto made = std::make_shared<Seen>();
    made->number = number;
    const auto picture = readGreyPicture(photo.path, photo.storedSize, kWidest);
    if (picture) {
        made->features = featuresOf(picture.value(), { kMostFeatures });
        made->sharpness = sharpnessOf(picture.value());
    }
    m_last.insert(m_last.begin(), std::move(made));
    m_last.resize(std::min(m_last.size(), kKept));
    return m_last.front();
}

} // namespace PanoHost
