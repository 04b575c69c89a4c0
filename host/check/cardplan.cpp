// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/cardplan.h"

#include "host/check/shotpath.h"
#include "host/model/pathparts.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

namespace PanoHost
{

namespace
{

constexpr double kSameClockSeconds = 90.0; ///< a card's clocks drift apart no more
constexpr double kAboutSeconds = 60.0; ///< clocks that were set by hand differ by no more

/** 1 for no difference, half of that for \p half. */
double closeness(double difference, double half)
{
    return 1.0 / (1.0 + difference * difference / (half * half));
}

/** Photos that may be those of a record. */
struct Candidate {
    int record = -1;
    int stream = -1;
    PhotoRun photos;
    double fit = 0.0; ///< 0 to 1: how well shots and photos agree
    double score = 0.0; ///< that, and what speaks for it besides
    bool byTimes = false;
    double clockSeconds = 0.0;
    int missingShots = 0;
    int doubledShots = 0;
};

/** A record's clock, and one way to lay it over the photos of a stream. */
struct Overlay {
    int stream = -1;
    double offset = 0.0; ///< camera minus head at the first shot
    double fit = 0.0;
    qint64 begin = 0; ///< of the stream's timed photos
    qint64 end = 0;
};

/** A difference between the clocks of head and camera. */
struct UsualClock {
    double offset = 0.0; ///< camera minus head, seconds
    double share = 0.0; ///< how many records may have it, 1: the most
};

/** The runs of all streams, to be found by what they are like. */
class RunIndex
{
public:
    struct Place {
        int stream = -1;
        int run = -1;
    };

    RunIndex(const std::vector<PhotoStream> &streams, const QVector<CardPhoto> &photos)
        : m_streams(streams)
    {
        for (int stream = 0; stream < static_cast<int>(streams.size()); ++stream) {
            for (int run = 0; run < static_cast<int>(streams[stream].runs.size()); ++run) {
                const PhotoRun &members = streams[stream].runs[run];
                const PhotoInfo &first = photos[members.front()].info;
                const Place place{ stream, run };
                const int count = static_cast<int>(members.size());
                m_byCount[count].push_back(place);
                m_byFolder[folderOf(first.path)].push_back(place);
                if (first.timeMs != 0) {
                    m_byTime.emplace(static_cast<double>(first.timeMs) / 1000.0, place);
                }
            }
        }
    }

    [[nodiscard]] const PhotoRun &run(const Place &place) const
    {
        return m_streams[place.stream].runs[place.run];
    }
    [[nodiscard]] std::vector<Place> ofCount(int count) const
    {
        const auto found = m_byCount.find(count);
        return found == m_byCount.end() ? std::vector<Place>() : few(found->second);
    }
    /** Those that a record in \p folder lies beside or above. */
    [[nodiscard]] std::vector<Place> below(const QString &folder) const
    {
        std::vector<Place> places;
        const QString start = folder + QLatin1Char('/');
        const auto own = m_byFolder.find(folder);
        if (own != m_byFolder.end()) {
            places = few(own->second);
        }
        for (auto i = m_byFolder.lower_bound(start);
             i != m_byFolder.end() && i->first.startsWith(start) && places.size() < kFew; ++i) {
            const std::vector<Place> more = few(i->second);
            places.insert(places.end(), more.begin(), more.end());
        }
        return places;
    }
    /** Those that begin around \p seconds. */
    [[nodiscard]] std::vector<Place> around(double seconds) const
    {
        constexpr int kEachWay = 4;
        std::vector<Place> places;
        auto later = m_byTime.lower_bound(seconds);
        auto earlier = later;
        for (int i = 0; i < kEachWay && later != m_byTime.end(); ++i, ++later) {
            places.push_back(later->second);
        }
        for (int i = 0; i < kEachWay && earlier != m_byTime.begin(); ++i) {
            places.push_back((--earlier)->second);
        }
        return places;
    }

    static constexpr std::size_t kFew = 40; ///< places that are looked at for a record, about

private:
    static std::vector<Place> few(const std::vector<Place> &places)
    {
        return { places.begin(),
                 places.begin() + static_cast<qint64>(std::min(places.size(), kFew)) };
    }

    const std::vector<PhotoStream> &m_streams;
    std::map<int, std::vector<Place>> m_byCount;
    std::map<QString, std::vector<Place>> m_byFolder;
    std::multimap<double, Place> m_byTime;
};

/** Lays a record's times over those of the photos. */
class Overlayer
{
public:
    Overlayer(const std::vector<PhotoStream> &streams, const ShotClock &clock)
        : m_streams(streams)
        , m_shots(clock.rising)
        , m_slack(clock.slackSeconds)
    {
        std::vector<double> pauses;
        for (std::size_t i = 1; i < m_shots.size(); ++i) {
            pauses.push_back(m_shots[i] - m_shots[i - 1]);
        }
        if (!pauses.empty()) {
            std::sort(pauses.begin(), pauses.end());
            m_usualPause = pauses[pauses.size() / 2];
        }
    }

    [[nodiscard]] double duration() const { return m_shots.back() - m_shots.front(); }
    [[nodiscard]] double first() const { return m_shots.front(); }
    [[nodiscard]] qint64 shotCount() const { return size(m_shots); }
    /** 0 when both clocks tell seconds. */
    [[nodiscard]] double slackIn(int stream) const
    {
        return m_slack + m_streams[stream].slackSeconds;
    }

    /** How well the record fits when its first shot is the photo taken at \p start. */
    [[nodiscard]] Overlay at(int stream, double start) const
    {
        const std::vector<double> &seconds = m_streams[stream].seconds;
        const double tolerance = toleranceIn(stream);
        double offset = start - m_shots.front();
        Overlay overlay{ stream, offset, 0.0, 0, 0 };
        const auto begin = lowerBound(seconds, start - tolerance);
        qint64 photo = begin;
        double hits = 0.0;
        qint64 last = begin;
        for (const double shot : m_shots) {
            const double expected = shot + offset;
            while (photo < size(seconds) && seconds[photo] < expected - tolerance) {
                ++photo;
            }
            if (photo < size(seconds) && seconds[photo] <= expected + tolerance) {
                constexpr double kFollow = 0.3; // clocks drift
                constexpr double kLate = 0.5; // of a hit that is only just one
                const double late = seconds[photo] - expected;
                offset += kFollow * late;
                hits += 1.0 - kLate * std::pow(late / tolerance, 2.0);
                last = ++photo;
            }
        }
        const qint64 inside = std::max<qint64>(last - begin, 1);
        overlay.fit = 2.0 * hits / static_cast<double>(size(m_shots) + inside);
        // No more, or a shoot in a steady rhythm could slip along it.
        overlay.begin = begin;
        overlay.end = std::max(begin, lowerBound(seconds, m_shots.back() + offset + tolerance));
        return overlay;
    }

private:
    static qint64 size(const std::vector<double> &values)
    {
        return static_cast<qint64>(values.size());
    }
    static qint64 lowerBound(const std::vector<double> &seconds, double value)
    {
        return std::lower_bound(seconds.begin(), seconds.end(), value) - seconds.begin();
    }
    [[nodiscard]] double toleranceIn(int stream) const
    {
        constexpr double kLeast = 1.5;
        constexpr double kMost = 4.0;
        constexpr double kShare = 0.2; // of a pause
        return std::clamp(kShare * m_usualPause, kLeast, kMost) + slackIn(stream);
    }

    const std::vector<PhotoStream> &m_streams;
    const std::vector<double> &m_shots;
    double m_slack;
    double m_usualPause = 0.0;
};

/** Places at which one record was laid over photos. */
struct Trial {
    Trial(const std::vector<PhotoStream> &streams, const ShotClock &clock)
        : overlayer(streams, clock)
    {
    }

    void at(int stream, double start) { add(overlayer.at(stream, start)); }
    void add(const Overlay &overlay)
    {
        Overlay &known = best[{ overlay.stream, overlay.begin }];
        if (overlay.fit > known.fit) {
            known = overlay;
        }
    }

    /** The best \p most places; what only slips along another one is none of its own. */
    [[nodiscard]] std::vector<Overlay> distinct(std::size_t most) const
    {
        constexpr double kLeastFit = 0.3;
        std::vector<Overlay> overlays;
        for (const auto &[key, overlay] : best) {
            if (overlay.fit >= kLeastFit) {
                overlays.push_back(overlay);
            }
        }
        std::stable_sort(overlays.begin(), overlays.end(),
                         [](const Overlay &one, const Overlay &two) {
                             return std::make_pair(-one.fit, std::abs(one.offset))
                                 < std::make_pair(-two.fit, std::abs(two.offset));
                         });
        const qint64 apart = std::max<qint64>(4, overlayer.shotCount() / 3);
        std::vector<Overlay> kept;
        for (const Overlay &overlay : overlays) {
            const bool isOwn = std::none_of(kept.begin(), kept.end(), [&](const Overlay &known) {
                return known.stream == overlay.stream
                    && std::abs(known.begin - overlay.begin) < apart;
            });
            if (isOwn && kept.size() < most) {
                kept.push_back(overlay);
            }
        }
        return kept;
    }

    Overlayer overlayer;
    std::map<std::pair<int, qint64>, Overlay> best; ///< by stream and where its photos begin
};

/** Finds all candidates, then chooses among them. */
class Planner
{
public:
    Planner(const QVector<CardPhoto> &photos, const QVector<CardRecord> &records,
            const JobWatch &watch)
        : m_photos(photos)
        , m_records(records)
        , m_watch(watch)
        , m_streams(photoStreams(photos))
        , m_runs(m_streams, photos)
        , m_takenBy(photos.size(), -1)
    {
    }

    CardPlan plan();

private:
    [[nodiscard]] ShotClock clockOf(int record) const;
    void tryRuns(int record, const std::vector<double> &offsets, Trial &trial) const;
    void tryOffsets(const std::vector<double> &offsets, Trial &trial) const;
    void addBest(int record, const Trial &trial, const std::vector<UsualClock> &usual);
    [[nodiscard]] std::vector<UsualClock> usualClocks() const;
    void findCandidates();
    void addByCount(int record, bool isTimed);
    void addMatch(int record, const Overlay &overlay);
    void weighClocks();
    [[nodiscard]] static double votesFor(const Candidate &candidate,
                                         const std::vector<std::pair<double, int>> &known);
    void weighBesides(Candidate &candidate) const;
    [[nodiscard]] bool isUsable(const PhotoRun &run) const;
    [[nodiscard]] double secondsOf(int photo) const
    {
        return static_cast<double>(m_photos[photo].info.timeMs) / 1000.0;
    }
    void choose();
    void take(const Candidate &candidate);
    [[nodiscard]] bool isFree(const Candidate &candidate) const;
    void nameRivals();
    [[nodiscard]] double bestElsewhere(const std::vector<int> &candidates,
                                       const std::vector<int> &mark, int marked, int one,
                                       int other) const;
    [[nodiscard]] double scoreOf(int shoot) const;
    [[nodiscard]] int shootOfMost(const PhotoRun &photos) const;
    void judge();
    void addTheRest();
    void sortByTime();

    const QVector<CardPhoto> &m_photos;
    const QVector<CardRecord> &m_records;
    const JobWatch &m_watch;
    std::vector<PhotoStream> m_streams;
    RunIndex m_runs;
    std::vector<std::vector<Overlay>> m_overlays; ///< by record
    std::vector<Candidate> m_candidates;
    std::vector<int> m_chosen; ///< candidates, one per shoot
    std::vector<int> m_takenBy; ///< by photo: the shoot
    CardPlan m_plan;
};

bool Planner::isUsable(const PhotoRun &run) const
{
    std::vector<double> seconds;
    for (const int photo : run) {
        seconds.push_back(secondsOf(photo));
    }
    return m_photos[run.front()].info.timeMs != 0 && shotClockOf(std::move(seconds)).isUsable;
}

ShotClock Planner::clockOf(int record) const
{
    std::vector<double> seconds;
    for (const PanoHead::NotedShot &shot : m_records[record].shots) {
        seconds.push_back(secondsShown(shot.time));
    }
    ShotClock clock = shotClockOf(std::move(seconds));
    clock.isUsable = clock.isUsable && clock.rising.size() > 1;
    return clock;
}

/** By how much the clocks of most records and their photos differ. */
std::vector<UsualClock> Planner::usualClocks() const
{
    constexpr double kGood = 0.9;
    constexpr double kTogether = 20.0; // seconds
    constexpr std::size_t kMost = 3;
    std::vector<double> offsets;
    for (const std::vector<Overlay> &overlays : m_overlays) {
        for (const Overlay &overlay : overlays) {
            if (overlay.fit >= kGood) {
                offsets.push_back(overlay.offset);
            }
        }
    }
    std::sort(offsets.begin(), offsets.end());
    // For each of them how many are about the same.
    std::vector<std::pair<std::ptrdiff_t, double>> counts;
    for (auto i = offsets.begin(); i != offsets.end(); ++i) {
        const auto end = std::upper_bound(i, offsets.end(), *i + kTogether);
        counts.emplace_back(i - end, *(i + (end - i) / 2));
    }
    std::sort(counts.begin(), counts.end());
    std::vector<UsualClock> usual;
    for (const auto &[count, offset] : counts) {
        const double middle = offset;
        const bool isNew
            = std::none_of(usual.begin(), usual.end(), [middle](const UsualClock &known) {
                  return std::abs(known.offset - middle) < 2 * kTogether;
              });
        if (isNew && usual.size() < kMost) {
            usual.push_back(
                { offset, static_cast<double>(count) / static_cast<double>(counts.front().first) });
        }
    }
    return usual;
}

void Planner::findCandidates()
{
    const QString text = QStringLiteral("comparing records and photos");
    const int records = m_records.size();
    // Clocks agree, or differ by hours.
    constexpr int kMostHours = 14;
    std::vector<double> hours;
    for (int hour = -kMostHours; hour <= kMostHours; ++hour) {
        hours.push_back(4 * kQuarterHourSeconds * hour);
    }
    m_overlays.resize(records);
    for (int record = 0; record < records; ++record) {
        m_watch.check();
        m_watch.report(record, 2 * records, text);
        const ShotClock clock = clockOf(record);
        if (clock.isUsable) {
            Trial trial(m_streams, clock);
            tryRuns(record, hours, trial);
            tryOffsets(hours, trial);
            constexpr std::size_t kMost = 48;
            m_overlays[record] = trial.distinct(kMost);
        }
    }
    // Now that it is known how the clocks differ. A shoot that was stopped early fits its own
    // photos less well than those of another that was not.
    const std::vector<UsualClock> usual = usualClocks();
    std::vector<double> offsets(usual.size());
    std::transform(usual.begin(), usual.end(), offsets.begin(),
                   [](const UsualClock &each) { return each.offset; });
    for (int record = 0; record < records; ++record) {
        m_watch.check();
        m_watch.report(records + record, 2 * records, text);
        const ShotClock clock = clockOf(record);
        if (clock.isUsable) {
            Trial trial(m_streams, clock);
            tryOffsets(offsets, trial);
            for (const Overlay &overlay : m_overlays[record]) {
                trial.add(overlay);
            }
            addBest(record, trial, usual);
        }
        if (!m_records[record].shots.isEmpty()) {
            addByCount(record, clock.isUsable);
        }
    }
    m_watch.report(2 * records, 2 * records, text);
}

/** Tries where runs of photos begin and end. */
void Planner::tryRuns(int record, const std::vector<double> &offsets, Trial &trial) const
{
    const CardRecord &wanted = m_records[record];
    std::vector<RunIndex::Place> places = m_runs.ofCount(wanted.shots.size());
    const auto add = [&places](const std::vector<RunIndex::Place> &more) {
        places.insert(places.end(), more.begin(), more.end());
    };
    add(m_runs.below(folderOf(wanted.path)));
    for (const double offset : offsets) {
        add(m_runs.around(trial.overlayer.first() + offset));
    }
    QSet<QPair<int, int>> seen;
    for (const RunIndex::Place &place : places) {
        const PhotoRun &run = m_runs.run(place);
        if (m_photos[run.front()].info.timeMs == 0 || seen.contains({ place.stream, place.run })) {
            continue;
        }
        seen.insert({ place.stream, place.run });
        constexpr std::size_t kTests = 4; // photos that may come before the first shot
        const double slack = m_streams[place.stream].slackSeconds;
        for (std::size_t k = 0; k < std::min(kTests, run.size()); ++k) {
            trial.at(place.stream, secondsOf(run[k]) + slack);
        }
        trial.at(place.stream, secondsOf(run.back()) + slack - trial.overlayer.duration());
    }
}

/** Tries the photos that were taken when the record begins, \p offsets later. */
void Planner::tryOffsets(const std::vector<double> &offsets, Trial &trial) const
{
    for (const double offset : offsets) {
        const double start = trial.overlayer.first() + offset;
        std::set<int> streams;
        for (const RunIndex::Place &place : m_runs.around(start)) {
            if (!streams.insert(place.stream).second) {
                continue;
            }
            const std::vector<double> &seconds = m_streams[place.stream].seconds;
            const auto middle = std::lower_bound(seconds.begin(), seconds.end(), start);
            constexpr std::ptrdiff_t kEachWay = 8;
            const auto begin = middle - std::min(kEachWay, middle - seconds.begin());
            const auto end = middle + std::min(kEachWay, seconds.end() - middle);
            trial.at(place.stream, start);
            for (auto photo = begin; photo != end; ++photo) {
                if (std::abs(*photo - start) <= kAboutSeconds) {
                    trial.at(place.stream, *photo);
                }
            }
        }
    }
}

/** Looks at the best places shot by shot. */
void Planner::addBest(int record, const Trial &trial, const std::vector<UsualClock> &usual)
{
    constexpr std::size_t kLooked = 48;
    constexpr std::size_t kMost = 6;
    const auto promise = [&usual](const Overlay &overlay) {
        constexpr double kUsual = 0.3;
        constexpr double kAgreeing = 0.1;
        double best = kAgreeing * closeness(overlay.offset, kAboutSeconds);
        for (const UsualClock &each : usual) {
            best = std::max(
                best, kUsual * each.share * closeness(overlay.offset - each.offset, kAboutSeconds));
        }
        return overlay.fit + best;
    };
    std::vector<Overlay> overlays = trial.distinct(kLooked);
    std::stable_sort(overlays.begin(), overlays.end(),
                     [&promise](const Overlay &one, const Overlay &other) {
                         return promise(one) > promise(other);
                     });
    constexpr double kHopeless = 0.25; // so much less than the best
    overlays.resize(std::min(overlays.size(), kMost));
    for (const Overlay &overlay : overlays) {
        // Without seconds nothing is told from a distance.
        if (trial.overlayer.slackIn(overlay.stream) > 0.0
            || promise(overlay) >= promise(overlays.front()) - kHopeless) {
            addMatch(record, overlay);
        }
    }
}

void Planner::addMatch(int record, const Overlay &overlay)
{
    const CardRecord &wanted = m_records[record];
    const PhotoRun &timed = m_streams[overlay.stream].timed;
    const PhotoRun window(timed.begin() + overlay.begin, timed.begin() + overlay.end);
    QVector<PhotoInfo> infos;
    for (const int photo : window) {
        infos += m_photos[photo].info;
    }
    const ShotMatch match = matchShots(wanted.shots, wanted.bracketCount, infos, {});
    const int shots = wanted.shots.size();
    Candidate candidate;
    candidate.record = record;
    candidate.stream = overlay.stream;
    candidate.byTimes = true;
    int inside = static_cast<int>(window.size());
    int taken = std::min(inside, shots);
    if (match.usesTimes && match.clock) {
        candidate.clockSeconds = match.clock->seconds;
        int first = inside;
        int last = -1;
        for (int k = 0; k < inside; ++k) {
            if (match.places[k].shot >= 0) {
                candidate.photos.push_back(window[k]);
                first = std::min(first, k);
                last = k;
            }
        }
        candidate.missingShots = match.photoOfShot.count(-1);
        candidate.doubledShots = match.doubled.size();
        inside = last - first + 1;
        taken = shots - candidate.missingShots;
    } else {
        // All within a minute of a clock without seconds, say.
        candidate.photos = window;
        candidate.clockSeconds = overlay.offset;
    }
    if (candidate.photos.empty()) {
        return;
    }
    constexpr double kDrift = 0.1; // which it has followed better
    candidate.fit
        = std::min(overlay.fit + kDrift, 2.0 * taken / static_cast<double>(shots + inside));
    for (auto known = m_candidates.crbegin();
         known != m_candidates.crend() && known->record == record; ++known) {
        if (known->photos == candidate.photos) {
            return;
        }
    }
    m_candidates.push_back(std::move(candidate));
}

/** Where there are no times to go by. */
void Planner::addByCount(int record, bool isTimed)
{
    constexpr double kSameCount = 0.8;
    constexpr double kOtherCount = 0.6;
    constexpr double kOtherTimes = 0.45;
    const CardRecord &wanted = m_records[record];
    const int shots = wanted.shots.size();
    const auto add = [&](int stream, const PhotoRun &run) {
        const int off = std::abs(static_cast<int>(run.size()) - shots);
        double fit = off == 0 ? kSameCount : kOtherCount - 0.5 * off / static_cast<double>(shots);
        if (isTimed && isUsable(run)) {
            // Times that are there and do not go together speak against it.
            if (off > 0) {
                return;
            }
            fit = kOtherTimes;
        }
        Candidate candidate;
        candidate.record = record;
        candidate.stream = stream;
        candidate.photos = run;
        candidate.fit = fit;
        m_candidates.push_back(std::move(candidate));
    };
    const int most = std::max(3, shots / 10);
    std::size_t looked = 0;
    for (int off = 0; off <= most && looked < RunIndex::kFew; ++off) {
        for (const int count :
             off == 0 ? std::vector{ shots } : std::vector{ shots - off, shots + off }) {
            // Single photos are everywhere.
            if (count > 2 || off == 0) {
                const std::vector<RunIndex::Place> places = m_runs.ofCount(count);
                looked += places.size();
                for (const RunIndex::Place &place : places) {
                    add(place.stream, m_runs.run(place));
                }
            }
        }
    }
    // A shoot with pauses, of as many photos as shots.
    constexpr int kMostParts = 4;
    for (const RunIndex::Place &place : m_runs.below(folderOf(wanted.path))) {
        const std::vector<PhotoRun> &runs = m_streams[place.stream].runs;
        PhotoRun whole;
        for (int part = 0; part < kMostParts && place.run + part < static_cast<int>(runs.size());
             ++part) {
            const PhotoRun &next = runs[place.run + part];
            if (static_cast<int>(whole.size() + next.size()) > shots) {
                break;
            }
            whole.insert(whole.end(), next.begin(), next.end());
            if (part > 0 && static_cast<int>(whole.size()) == shots) {
                add(place.stream, whole);
            }
        }
    }
}

/** The clocks of one head and one camera differ by the same throughout a card. */
void Planner::weighClocks()
{
    constexpr double kStrong = 0.7;
    constexpr double kVotes = 0.25;
    constexpr double kAgreeing = 0.15;
    constexpr double kHours = 0.1;
    constexpr double kHandSeconds = 30.0; // as well as people set a clock
    std::map<int, std::vector<std::pair<double, int>>> clocks; // by stream
    for (const Candidate &candidate : m_candidates) {
        if (candidate.byTimes && candidate.fit >= kStrong) {
            clocks[candidate.stream].emplace_back(candidate.clockSeconds, candidate.record);
        }
    }
    for (auto &[stream, known] : clocks) {
        std::sort(known.begin(), known.end());
    }
    std::vector<double> votes;
    std::vector<double> most(m_records.size(), 0.0);
    for (const Candidate &candidate : m_candidates) {
        votes.push_back(candidate.byTimes ? votesFor(candidate, clocks[candidate.stream]) : 0.0);
        most[candidate.record] = std::max(most[candidate.record], votes.back());
    }
    for (std::size_t i = 0; i < m_candidates.size(); ++i) {
        Candidate &candidate = m_candidates[i];
        candidate.score = candidate.fit;
        weighBesides(candidate);
        if (candidate.byTimes) {
            const double all = most[candidate.record];
            const double off = std::abs(candidate.clockSeconds);
            const double fromQuarter
                = off - kQuarterHourSeconds * std::round(off / kQuarterHourSeconds);
            candidate.score += (all > 0.0 ? kVotes * votes[i] / all : 0.0)
                + std::max(kAgreeing * closeness(off, kHandSeconds),
                           kHours * closeness(fromQuarter, kHandSeconds));
        }
    }
}

/** How many other records have a clock like that of \p candidate among \p known, which are sorted.
 */
double Planner::votesFor(const Candidate &candidate,
                         const std::vector<std::pair<double, int>> &known)
{
    constexpr int kEnough = 64;
    constexpr double kUsualSeconds = 10.0; // that a clock gains or loses between two shoots
    QHash<int, double> records;
    const auto first = std::lower_bound(
        known.begin(), known.end(), std::make_pair(candidate.clockSeconds - kSameClockSeconds, -1));
    for (auto i = first; i != known.end() && i->first <= candidate.clockSeconds + kSameClockSeconds
         && records.size() < kEnough;
         ++i) {
        if (i->second != candidate.record) {
            double &vote = records[i->second];
            vote = std::max(vote, closeness(i->first - candidate.clockSeconds, kUsualSeconds));
        }
    }
    return std::accumulate(records.cbegin(), records.cend(), 0.0);
}

/** Folders and brackets. */
void Planner::weighBesides(Candidate &candidate) const
{
    constexpr double kSameFolder = 0.15;
    constexpr double kFolderAbove = 0.12;
    constexpr double kOtherBracket = 0.2;
    const CardRecord &record = m_records[candidate.record];
    const QString folder = folderOf(record.path);
    const QString photos = folderOf(m_photos[candidate.photos.front()].info.path);
    if (folder == photos) {
        candidate.score += kSameFolder;
    } else if (folder == folderOf(photos) || photos == folderOf(folder)) {
        candidate.score += kFolderAbove;
    }
    const int bracket = bracketOf(m_photos, candidate.photos);
    if (record.bracketCount > 0 && bracket > 0 && bracket != record.bracketCount
        && bracket % record.bracketCount + record.bracketCount % bracket > 0) {
        candidate.score -= kOtherBracket;
    } else if (record.bracketCount > 0 && bracket > 0 && bracket != record.bracketCount) {
        candidate.score -= kOtherBracket / 2;
    }
}

bool Planner::isFree(const Candidate &candidate) const
{
    const auto taken = std::count_if(candidate.photos.begin(), candidate.photos.end(),
                                     [this](int photo) { return m_takenBy[photo] >= 0; });
    constexpr int kShare = 10; // the ends of two shoots may be mixed up
    return taken * kShare <= static_cast<qint64>(candidate.photos.size());
}

void Planner::take(const Candidate &candidate)
{
    PlannedShoot shoot;
    shoot.record = candidate.record;
    shoot.byTimes = candidate.byTimes;
    shoot.shotCount = m_records[candidate.record].shots.size();
    shoot.missingShots = candidate.missingShots;
    shoot.doubledShots = candidate.doubledShots;
    shoot.clockSeconds = candidate.clockSeconds;
    for (const int photo : candidate.photos) {
        if (m_takenBy[photo] < 0) {
            m_takenBy[photo] = m_plan.shoots.size();
            shoot.photos.push_back(photo);
        }
    }
    m_plan.shoots += shoot;
}

void Planner::choose()
{
    constexpr double kLeastScore = 0.5;
    std::vector<int> order(m_candidates.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = static_cast<int>(i);
    }
    std::stable_sort(order.begin(), order.end(), [this](int one, int other) {
        return m_candidates[one].score > m_candidates[other].score;
    });
    std::vector<bool> isUsed(m_records.size(), false);
    for (const int index : order) {
        const Candidate &candidate = m_candidates[index];
        if (candidate.score >= kLeastScore && !isUsed[candidate.record] && isFree(candidate)) {
            isUsed[candidate.record] = true;
            m_chosen.push_back(index);
            take(candidate);
        }
    }
    for (int record = 0; record < m_records.size(); ++record) {
        if (!isUsed[record]) {
            m_plan.idleRecords += record;
        }
    }
}

/** What would be about as good: the same photos for another record, or other photos for the same;
 * whatever has to give way goes to the next best place. */
void Planner::nameRivals()
{
    constexpr double kAbout = 0.1;
    std::vector<std::vector<int>> byRecord(m_records.size()); // candidates
    for (std::size_t i = 0; i < m_candidates.size(); ++i) {
        byRecord[m_candidates[i].record].push_back(static_cast<int>(i));
    }
    std::vector<int> shootOf(m_records.size(), -1);
    for (std::size_t shoot = 0; shoot < m_chosen.size(); ++shoot) {
        shootOf[m_candidates[m_chosen[shoot]].record] = static_cast<int>(shoot);
    }
    std::vector<int> mark(m_photos.size(), -1);
    for (std::size_t i = 0; i < m_candidates.size(); ++i) {
        const Candidate &candidate = m_candidates[i];
        const int own = shootOf[candidate.record];
        const int other = shootOfMost(candidate.photos);
        if (own == other) {
            continue;
        }
        const double present = scoreOf(own) + scoreOf(other);
        const int loser = other < 0 ? -1 : m_plan.shoots[other].record;
        double future = candidate.score;
        if (loser >= 0 && future < present - kAbout) {
            for (const int photo : candidate.photos) {
                mark[photo] = static_cast<int>(i);
            }
            future += bestElsewhere(byRecord[loser], mark, static_cast<int>(i), own, other);
        }
        if (future < present - kAbout) {
            continue;
        }
        if (own >= 0) {
            m_plan.shoots[own].rivalPhotos.push_back(candidate.photos);
        }
        if (other >= 0 && !m_plan.shoots[other].rivalRecords.contains(candidate.record)) {
            m_plan.shoots[other].rivalRecords += candidate.record;
        }
    }
}

/** The best score of \p candidates without photos that bear \p marked, or are of other shoots than
 * these two. */
double Planner::bestElsewhere(const std::vector<int> &candidates, const std::vector<int> &mark,
                              int marked, int one, int other) const
{
    double best = 0.0;
    for (const int index : candidates) {
        const Candidate &candidate = m_candidates[index];
        const int shoot = shootOfMost(candidate.photos);
        const auto isMarked = [&](int photo) { return mark[photo] == marked; };
        if (candidate.score > best && (shoot < 0 || shoot == one || shoot == other)
            && std::none_of(candidate.photos.begin(), candidate.photos.end(), isMarked)) {
            best = candidate.score;
        }
    }
    return best;
}

double Planner::scoreOf(int shoot) const
{
    return shoot < 0 ? 0.0 : m_candidates[m_chosen[shoot]].score;
}

/** The shoot of which most of \p photos are; -1: of none. */
int Planner::shootOfMost(const PhotoRun &photos) const
{
    QHash<int, int> counts;
    for (const int photo : photos) {
        ++counts[m_takenBy[photo]];
    }
    std::pair<int, int> most{ 0, -1 };
    for (auto i = counts.cbegin(); i != counts.cend(); ++i) {
        most = std::max(most, { i.value(), i.key() });
    }
    return most.second;
}

void Planner::judge()
{
    constexpr double kSure = 0.9;
    constexpr double kLikely = 0.7;
    for (int shoot = 0; shoot < m_plan.shoots.size(); ++shoot) {
        PlannedShoot &planned = m_plan.shoots[shoot];
        const double score = m_candidates[m_chosen[shoot]].score;
        const bool isAlone = planned.rivalRecords.isEmpty() && planned.rivalPhotos.empty();
        planned.sureness = !isAlone || score < kLikely ? Sureness::Unsure
            : score < kSure                            ? Sureness::Likely
                                                       : Sureness::Sure;
    }
}

/** Grids without a record, and what is left over. */
void Planner::addTheRest()
{
    std::set<PhotoRun> rivals;
    for (const PlannedShoot &shoot : qAsConst(m_plan.shoots)) {
        rivals.insert(shoot.rivalPhotos.begin(), shoot.rivalPhotos.end());
    }
    for (const PhotoStream &stream : m_streams) {
        for (const PhotoRun &run : stream.runs) {
            PhotoRun rest;
            const auto end = [&] {
                if (rest.empty()) {
                    return;
                }
                if (rest.size() == run.size() && rivals.count(rest) == 0
                    && looksLikeGrid(m_photos, rest)) {
                    PlannedShoot grid;
                    grid.photos = rest;
                    grid.sureness = Sureness::Unsure;
                    m_plan.shoots += grid;
                } else {
                    m_plan.leftOver.push_back(rest);
                }
                rest.clear();
            };
            for (const int photo : run) {
                if (m_takenBy[photo] < 0) {
                    rest.push_back(photo);
                } else {
                    end();
                }
            }
            end();
        }
    }
}

void Planner::sortByTime()
{
    const auto key = [this](const PhotoRun &run) {
        const PhotoInfo &first = m_photos[run.front()].info;
        return std::make_tuple(first.timeMs == 0, first.timeMs, first.path);
    };
    std::stable_sort(
        m_plan.shoots.begin(), m_plan.shoots.end(),
        [&key](const auto &one, const auto &other) { return key(one.photos) < key(other.photos); });
    std::stable_sort(m_plan.leftOver.begin(), m_plan.leftOver.end(),
                     [&key](const auto &one, const auto &other) { return key(one) < key(other); });
}

CardPlan Planner::plan()
{
    findCandidates();
    weighClocks();
    choose();
    nameRivals();
    judge();
    addTheRest();
    sortByTime();
    return m_plan;
}

} // namespace

CardPlan planCard(const QVector<CardPhoto> &photos, const QVector<CardRecord> &records,
                  const JobWatch &watch)
{
    return Planner(photos, records, watch).plan();
}

} // namespace PanoHost
