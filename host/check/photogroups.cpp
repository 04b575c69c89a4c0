// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/photogroups.h"

#include "host/check/photonames.h"
#include "host/check/shotpath.h"
#include "host/model/pathparts.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>

namespace PanoHost
{

namespace
{

constexpr double kMillisecond = 0.001;

/** A path without folder and ending. */
QString baseName(const QString &path)
{
    const int start = path.lastIndexOf(QLatin1Char('/')) + 1;
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return path.mid(start, dot > start ? dot - start : -1);
}

/** Cameras write the time of a RAW file and of its JPEG with different precision. */
bool isSameMoment(const PhotoInfo &one, const PhotoInfo &other)
{
    constexpr qint64 kMostMs = 1000;
    return std::abs(one.timeMs - other.timeMs) <= kMostMs;
}

bool isCopy(const PhotoOnDisk &one, const PhotoOnDisk &other)
{
    return one.bytes == other.bytes && one.info.timeMs != 0 && one.info.timeMs == other.info.timeMs
        && one.info.camera == other.info.camera && one.info.storedSize == other.info.storedSize
        && nameOf(one.info.path) == nameOf(other.info.path)
        && folderOf(one.info.path) != folderOf(other.info.path);
}

/** How well \p raw and \p picture go together, 0: not at all. */
int pairing(const PhotoInfo &raw, const PhotoInfo &picture)
{
    const bool areTimed = raw.timeMs != 0 && picture.timeMs != 0;
    if ((areTimed && !isSameMoment(raw, picture)) || raw.isRaw == picture.isRaw) {
        return 0;
    }
    const bool isSameName = baseName(raw.path) == baseName(picture.path);
    if (folderOf(raw.path) == folderOf(picture.path)) {
        return isSameName ? 3 : 2; // one of them may have been renamed to capitals
    }
    return areTimed && isSameName && raw.camera == picture.camera ? 1 : 0;
}

/** Puts the files of one photo together. */
class PairFinder
{
public:
    explicit PairFinder(const QVector<PhotoOnDisk> &files)
        : m_files(files)
        , m_photoOf(files.size(), -1)
    {
        for (int file = 0; file < files.size(); ++file) {
            m_beside[keyBeside(file)] += file;
            m_elsewhere[keyElsewhere(file)] += file;
        }
    }

    QVector<CardPhoto> photos()
    {
        for (const bool isRaw : { false, true }) {
            for (int file = 0; file < m_files.size(); ++file) {
                if (m_files[file].info.isRaw == isRaw && !placeAsCopy(file)
                    && !(isRaw && placeAsRaw(file))) {
                    m_photoOf[file] = m_photos.size();
                    m_photos += CardPhoto{ m_files[file].info, {}, {} };
                }
            }
        }
        return m_photos;
    }

private:
    /** By folder and name, in any letters. */
    [[nodiscard]] QString keyBeside(int file) const
    {
        const QString &path = m_files[file].info.path;
        return folderOf(path) + QLatin1Char('/') + baseName(path).toLower();
    }
    /** By name and second. */
    [[nodiscard]] QString keyElsewhere(int file) const
    {
        const PhotoInfo &info = m_files[file].info;
        return info.timeText.left(19) + baseName(info.path);
    }
    /** The files that may belong to \p file. */
    [[nodiscard]] QVector<int> candidates(int file) const
    {
        // Where more than these are alike nobody knows what belongs to what.
        constexpr int kMost = 32;
        return m_beside.value(keyBeside(file)).mid(0, kMost)
            + m_elsewhere.value(keyElsewhere(file)).mid(0, kMost);
    }

    bool placeAsCopy(int file)
    {
        const QVector<int> others = candidates(file);
        const auto *const original = std::find_if(others.begin(), others.end(), [&](int other) {
            return m_photoOf[other] >= 0 && isCopy(m_files[file], m_files[other]);
        });
        if (original == others.end()) {
            return false;
        }
        m_photoOf[file] = m_photoOf[*original];
        m_photos[m_photoOf[file]].copies += m_files[file].info.path;
        return true;
    }

    bool placeAsRaw(int file)
    {
        int best = 0;
        int photo = -1;
        for (const int other : candidates(file)) {
            const int fits = pairing(m_files[file].info, m_files[other].info);
            if (fits > best) {
                best = fits;
                photo = m_photoOf[other];
            }
        }
        if (photo < 0) {
            return false;
        }
        m_photoOf[file] = photo;
        CardPhoto &whole = m_photos[photo];
        whole.raws += m_files[file].info.path;
        if (whole.info.timeMs == 0) {
            whole.info.timeMs = m_files[file].info.timeMs;
            whole.info.timeText = m_files[file].info.timeText;
        }
        return true;
    }

    const QVector<PhotoOnDisk> &m_files;
    QHash<QString, QVector<int>> m_beside; ///< files
    QHash<QString, QVector<int>> m_elsewhere;
    std::vector<int> m_photoOf; ///< by file
    QVector<CardPhoto> m_photos;
};

double middleOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<qint64>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** The middle of the pauses from \p from to before \p to; nothing when there are too few. */
std::optional<double> usualPause(const std::vector<double> &seconds, qint64 from, qint64 to)
{
    constexpr qint64 kFew = 3;
    std::vector<double> pauses;
    for (qint64 k = std::max<qint64>(from, 1); k < std::min<qint64>(to, seconds.size()); ++k) {
        pauses.push_back(seconds[k] - seconds[k - 1]);
    }
    return static_cast<qint64>(pauses.size()) < kFew ? std::nullopt
                                                     : std::optional(middleOf(std::move(pauses)));
}

/** Whether the pause in front of photo \p k is longer than those around it. */
bool isLongPause(const std::vector<double> &seconds, qint64 k, double slack)
{
    constexpr qint64 kAround = 8;
    constexpr double kLeastSeconds = 30.0; // changing a bracket, a cloud that is waited for
    constexpr double kLonger = 5.0;
    const double pause = seconds[k] - seconds[k - 1];
    if (pause <= kLeastSeconds + slack) {
        return false;
    }
    const auto before = usualPause(seconds, k - kAround, k);
    const auto after = usualPause(seconds, k + 1, k + 1 + kAround);
    if (!before && !after) {
        return true;
    }
    const double usual = std::min(before.value_or(pause), after.value_or(pause));
    return pause > kLonger * usual;
}

/** By folder and camera, name by name; cut where the camera's counter leaps. */
void addUntimedRuns(const QVector<CardPhoto> &photos, const PhotoRun &untimed, PhotoStream &stream)
{
    constexpr int kMostLost = 16; // photos that may be gone in between
    QStringList paths;
    for (const int photo : untimed) {
        paths += photos[photo].info.path;
    }
    const std::vector<int> order = nameOrderOf(paths).counted;
    for (std::size_t k = 0; k < order.size(); ++k) {
        const QString &path = paths.at(order[k]);
        const bool follows = k > 0 && folderOf(paths.at(order[k - 1])) == folderOf(path)
            && (counterOf(path) < 0 || isCountedNext(paths.at(order[k - 1]), path, kMostLost));
        if (!follows) {
            stream.runs.emplace_back();
        }
        stream.runs.back().push_back(untimed[order[k]]);
    }
}

/** Folders whose photos were taken at the same moments: two cameras, alike, or two tellings of one
 * time. */
class FolderConflicts
{
public:
    FolderConflicts(const QVector<CardPhoto> &photos, std::vector<int> members)
    {
        std::stable_sort(members.begin(), members.end(), [&photos](int one, int other) {
            return photos[one].info.timeMs < photos[other].info.timeMs;
        });
        for (const int photo : members) {
            const QString folder = folderOf(photos[photo].info.path);
            if (!m_numbers.contains(folder)) {
                m_numbers.insert(folder, static_cast<int>(m_counts.size()));
                m_counts.push_back(0);
            }
            m_folders.push_back(m_numbers.value(folder));
            ++m_counts[m_folders.back()];
        }
        constexpr qint64 kSameMs = 400;
        constexpr std::size_t kMostAtOnce = 16;
        for (std::size_t k = 0; k < members.size(); ++k) {
            for (std::size_t i = k; i-- > 0 && k - i <= kMostAtOnce;) {
                const qint64 time = photos[members[i]].info.timeMs;
                if (time == 0 || photos[members[k]].info.timeMs - time > kSameMs) {
                    break;
                }
                if (m_folders[i] != m_folders[k]) {
                    ++m_meetings[std::minmax(m_folders[i], m_folders[k])];
                }
            }
        }
    }

    /** A part for each folder, by the order in which they begin; no two of a part meet often. */
    [[nodiscard]] QHash<QString, int> parts() const
    {
        constexpr int kSome = 3;
        constexpr int kShare = 4;
        std::vector<std::vector<int>> foes(m_counts.size());
        for (const auto &[pair, count] : m_meetings) {
            const auto [one, other] = pair;
            if (count >= kSome && count * kShare >= std::min(m_counts[one], m_counts[other])) {
                foes[std::max(one, other)].push_back(std::min(one, other));
            }
        }
        std::vector<int> partOf(m_counts.size(), 0);
        for (std::size_t folder = 0; folder < foes.size(); ++folder) {
            std::vector<int> taken;
            for (const int foe : foes[folder]) {
                taken.push_back(partOf[foe]);
            }
            std::sort(taken.begin(), taken.end());
            for (const int part : taken) {
                partOf[folder] += part == partOf[folder] ? 1 : 0;
            }
        }
        QHash<QString, int> parts;
        for (auto i = m_numbers.cbegin(); i != m_numbers.cend(); ++i) {
            parts.insert(i.key(), partOf[i.value()]);
        }
        return parts;
    }

private:
    QHash<QString, int> m_numbers; ///< of folders
    std::vector<int> m_counts; ///< of their photos
    std::vector<int> m_folders; ///< by photo, in the order of time
    std::map<std::pair<int, int>, int> m_meetings;
};

PhotoStream streamOf(const QVector<CardPhoto> &photos, const std::vector<int> &members)
{
    PhotoStream stream;
    PhotoRun untimed;
    QStringList paths;
    for (const int photo : members) {
        (photos[photo].info.timeMs == 0 ? untimed : stream.timed).push_back(photo);
    }
    for (const int photo : stream.timed) {
        paths += photos[photo].info.path;
    }
    PhotoRun byName;
    for (const int place : nameOrderOf(paths).counted) {
        byName.push_back(stream.timed[place]);
    }
    stream.timed = std::move(byName);
    std::stable_sort(stream.timed.begin(), stream.timed.end(), [&photos](int one, int other) {
        return photos[one].info.timeMs < photos[other].info.timeMs;
    });
    for (const int photo : stream.timed) {
        stream.seconds.push_back(static_cast<double>(photos[photo].info.timeMs) * kMillisecond);
    }
    const ShotClock clock = shotClockOf(stream.seconds);
    stream.seconds = clock.seconds;
    stream.slackSeconds = clock.slackSeconds;
    for (std::size_t k = 0; k < stream.timed.size(); ++k) {
        if (k == 0
            || isLongPause(stream.seconds, static_cast<qint64>(k), 2 * stream.slackSeconds)) {
            stream.runs.emplace_back();
        }
        stream.runs.back().push_back(stream.timed[k]);
    }
    addUntimedRuns(photos, untimed, stream);
    return stream;
}

/** The exposures of \p run; empty when one of them is not known. */
std::vector<double> exposuresOf(const QVector<CardPhoto> &photos, const PhotoRun &run)
{
    std::vector<double> exposures;
    for (const int photo : run) {
        const std::optional<double> &value = photos[photo].info.exposureValue;
        if (!value) {
            return {};
        }
        exposures.push_back(*value);
    }
    return exposures;
}

constexpr double kSameStops = 0.2;

bool repeatsAfter(const std::vector<double> &exposures, std::size_t count)
{
    // A photo or two may be missing or doubled.
    constexpr double kMost = 0.9;
    std::size_t same = 0;
    for (std::size_t k = count; k < exposures.size(); ++k) {
        same += std::abs(exposures[k] - exposures[k - count]) <= kSameStops ? 1 : 0;
    }
    return static_cast<double>(same) >= kMost * static_cast<double>(exposures.size() - count);
}

bool hasDivisor(int number)
{
    for (int i = 2; i * i <= number; ++i) {
        if (number % i == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

QVector<CardPhoto> photosIn(const QVector<PhotoOnDisk> &files)
{
    return PairFinder(files).photos();
}

std::vector<PhotoStream> photoStreams(const QVector<CardPhoto> &photos)
{
    std::map<std::tuple<QString, QString, int, int>, std::vector<int>> members;
    for (int photo = 0; photo < photos.size(); ++photo) {
        const PhotoInfo &info = photos[photo].info;
        const QSize size = info.storedSize;
        members[{ info.camera, info.lensName, std::min(size.width(), size.height()),
                  std::max(size.width(), size.height()) }]
            .push_back(photo);
    }
    std::vector<PhotoStream> streams;
    streams.reserve(members.size());
    for (const auto &[camera, indices] : members) {
        const QHash<QString, int> parts = FolderConflicts(photos, indices).parts();
        std::map<int, std::vector<int>> divided;
        for (const int photo : indices) {
            divided[parts.value(folderOf(photos[photo].info.path))].push_back(photo);
        }
        for (const auto &[part, some] : divided) {
            streams.push_back(streamOf(photos, some));
        }
    }
    return streams;
}

int bracketOf(const QVector<CardPhoto> &photos, const PhotoRun &run)
{
    constexpr std::size_t kMostExposures = 9;
    constexpr std::size_t kLeastPositions = 3;
    const std::vector<double> exposures = exposuresOf(photos, run);
    for (std::size_t count = 1; count <= kMostExposures; ++count) {
        if (exposures.size() >= kLeastPositions * count && repeatsAfter(exposures, count)) {
            return static_cast<int>(count);
        }
    }
    return 0;
}

bool looksLikeGrid(const QVector<CardPhoto> &photos, const PhotoRun &run)
{
    constexpr int kLeastPositions = 6;
    constexpr double kMostShare = 2.0; // how much longer than usual a pause may be, the ends of ...
    constexpr double kLeastShare = 0.8; // ... rows apart: so many pauses are like the others
    constexpr double kRounded = 1.0;
    const int bracket = bracketOf(photos, run);
    const int count = static_cast<int>(run.size());
    if (bracket == 0 || count % bracket != 0 || count / bracket < kLeastPositions
        || !hasDivisor(count / bracket)) {
        return false;
    }
    std::vector<double> pauses;
    for (int k = bracket; k < count; k += bracket) {
        const PhotoInfo &before = photos[run[k - bracket]].info;
        const PhotoInfo &photo = photos[run[k]].info;
        if (before.timeMs == 0 || photo.timeMs == 0) {
            return false;
        }
        pauses.push_back(static_cast<double>(photo.timeMs - before.timeMs) * kMillisecond);
    }
    const double usual = middleOf(pauses);
    const auto like = std::count_if(pauses.begin(), pauses.end(), [usual](double pause) {
        return pause <= kMostShare * usual + kRounded && pause >= usual / kMostShare - kRounded;
    });
    return usual > 0.0
        && static_cast<double>(like) >= kLeastShare * static_cast<double>(pauses.size());
}

} // namespace PanoHost
