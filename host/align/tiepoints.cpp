// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/tiepoints.h"

#include "host/model/parallel.h"

#include <atomic>
#include <utility>

namespace PanoHost
{

namespace
{

/** The same for every pair: what is found does not hang on which others are asked for. */
constexpr std::uint32_t kTieSeed = 1;

/** What is found between two photos. */
struct Found {
    std::vector<TiePoint> points;
    std::vector<TiePoints::Lights> lights;
    Eigen::Matrix3d rotation = Eigen::Matrix3d::Identity();
};

Found tiePoints(const QPair<int, int> &views, const PairMatches &matches, const FeatureSet &first,
                const FeatureSet &second)
{
    Found found;
    found.rotation = matches.rotation;
    for (const auto &pair : matches.pairs) {
        const auto one = static_cast<size_t>(pair.first);
        const auto other = static_cast<size_t>(pair.second);
        found.points.push_back({ views.first,
                                 views.second,
                                 { first.places[one].x, first.places[one].y },
                                 { second.places[other].x, second.places[other].y } });
        found.lights.push_back({ first.lights[one], second.lights[other] });
    }
    return found;
}

/** Tells a watch each number of rows once. */
class Progress
{
public:
    Progress(const JobWatch &watch, int total, const char *text)
        : m_watch(watch)
        , m_total(total)
        , m_text(QString::fromLatin1(text))
    {
    }
    void operator()(int done)
    {
        m_watch.check();
        if (done != m_told) {
            m_told = done;
            m_watch.report(done, m_total, m_text);
        }
    }

private:
    const JobWatch &m_watch;
    int m_total;
    int m_told = -1;
    QString m_text;
};

} // namespace

TiePointFinder::TiePointFinder(std::vector<ViewPhoto> photos, const TiePointOptions &options)
    : m_photos(std::move(photos))
    , m_options(options)
    , m_store(options.mostFeatureBytes)
    , m_leftOut(m_photos.size())
    , m_featureCounts(m_photos.size(), 0)
    , m_whiteShares(m_photos.size(), 0.0)
{
}

void TiePointFinder::readFeatures(const JobWatch &watch)
{
    const int count = static_cast<int>(m_photos.size());
    const auto read = [this](int view) {
        const auto index = static_cast<size_t>(view);
        const ViewPhoto &photo = m_photos[index];
        const auto picture = readGreyPicture(photo.path, photo.storedSize, m_options.widest);
        if (!picture) {
            m_leftOut[index] = picture.error();
            return;
        }
        FeatureSet features = featuresOf(picture.value(), m_options.features);
        m_featureCounts[index] = features.count();
        m_whiteShares[index] = picture.value().whiteShare;
        m_store.put(view, std::move(features));
    };
    forEachRow(count, read, m_options.jobs, Progress(watch, count, "looking for features"));
}

const std::optional<Failure> &TiePointFinder::leftOut(int view) const
{
    return m_leftOut[static_cast<size_t>(view)];
}

int TiePointFinder::featureCount(int view) const
{
    return m_featureCounts[static_cast<size_t>(view)];
}

double TiePointFinder::whiteShare(int view) const
{
    return m_whiteShares[static_cast<size_t>(view)];
}

TiePoints TiePointFinder::match(const std::vector<QPair<int, int>> &pairs, const HeadModel &model,
                                const Rules &rules, const JobWatch &watch, Afterwards afterwards)
{
    std::vector<std::atomic<int>> uses(m_photos.size());
    for (const auto &pair : pairs) {
        ++uses[static_cast<size_t>(pair.first)];
        ++uses[static_cast<size_t>(pair.second)];
    }
    const auto done = [&](int view) {
        if (--uses[static_cast<size_t>(view)] == 0 && afterwards == Afterwards::ReleaseFeatures) {
            m_store.release(view);
        }
    };
    std::vector<Found> found(pairs.size());
    const auto matchOne = [&](int number) {
        const auto index = static_cast<size_t>(number);
        const auto &[first, second] = pairs[index];
        const auto ours = m_store.features(first);
        const auto theirs = m_store.features(second);
        if (ours && theirs) {
            const AlignLens &lens = model.lensOf(second);
            const PairMatches matches = matchPair(
                { *ours, model.lensOf(first) }, { *theirs, lens },
                model.rotation(second).transpose() * model.rotation(first), rules(lens), kTieSeed);
            found[index] = tiePoints(pairs[index], matches, *ours, *theirs);
        }
        done(first);
        done(second);
    };
    const int count = static_cast<int>(pairs.size());
    forEachRow(count, matchOne, m_options.jobs, Progress(watch, count, "matching neighbours"));
    TiePoints all;
    for (const Found &pair : found) {
        all.points.insert(all.points.end(), pair.points.begin(), pair.points.end());
        all.lights.insert(all.lights.end(), pair.lights.begin(), pair.lights.end());
        all.pairs.push_back({ static_cast<int>(pair.points.size()), pair.rotation });
    }
    return all;
}

} // namespace PanoHost
