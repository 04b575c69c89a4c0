// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/photofit.h"

#include "host/check/photonames.h"
#include "host/check/shotmatch.h"
#include "host/model/displayname.h"
#include "host/model/said.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMap>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

using Kind = PhotoPlace::Kind;

constexpr int kMostNamed = 5;

/** "a.jpg, b.jpg and 7 more". */
QString listed(const QStringList &words)
{
    if (words.size() <= kMostNamed + 1) {
        return words.join(QStringLiteral(", "));
    }
    return Said::tr("%1 and %2 more")
        .arg(QStringList(words.mid(0, kMostNamed)).join(QStringLiteral(", ")))
        .arg(words.size() - kMostNamed);
}

/** One match of one shoot, put into words and into a fit. */
class Fitter
{
public:
    Fitter(const QVector<PhotoInfo> &photos, SeenTurns &turns, ShotMatch match)
        : m_photos(photos)
        , m_turns(turns)
        , m_match(std::move(match))
    {
    }

    /** Whether each photo belongs to the next shot, as it has always been. */
    [[nodiscard]] bool isAsNamed() const;
    /** Why there is no saying which photo belongs to which shot of \p record. */
    [[nodiscard]] std::optional<Failure> doubt(const RecordedShots &record) const;
    [[nodiscard]] bool usesTimes() const { return m_match.usesTimes; }
    [[nodiscard]] bool refutesNames() const { return m_match.refutesNames; }
    [[nodiscard]] PhotoFit fit();
    /** Each photo belongs to the next shot; says so where that is not known. */
    [[nodiscard]] PhotoFit asNamed(const QString &whyUnchecked = {});

private:
    void chooseOfDoubled();
    void tellSamePictures();
    void tellOrder();
    void tellLeftOut(Kind kind, const QString &why);
    void tellMissing();
    void tellClock();
    [[nodiscard]] ShotFit shotFit() const;
    [[nodiscard]] QString nameOf(int photo) const
    {
        return QFileInfo(m_photos.at(photo).path).fileName();
    }
    Finding &tell(const char *topic, const QString &text, const QStringList &files = {},
                  Finding::Kind kind = Finding::Kind::Trouble)
    {
        Finding finding{ QString::fromLatin1(topic), text, kind, files };
        finding.sureness = m_match.sureness;
        m_findings += finding;
        return m_findings.last();
    }

    const QVector<PhotoInfo> &m_photos;
    SeenTurns &m_turns;
    ShotMatch m_match;
    QVector<Finding> m_findings;
};

bool Fitter::isAsNamed() const
{
    if (m_photos.size() != m_match.photoOfShot.size()) {
        return false;
    }
    for (int shot = 0; shot < m_match.photoOfShot.size(); ++shot) {
        if (m_match.photoOfShot[shot] != shot) {
            return false;
        }
    }
    return true;
}

std::optional<Failure> Fitter::doubt(const RecordedShots &record) const
{
    // Of the photos of another shoot some happen to fit.
    constexpr double kLeastShare = 0.25;
    const auto taken = std::count_if(m_match.photoOfShot.cbegin(), m_match.photoOfShot.cend(),
                                     [](int photo) { return photo >= 0; });
    const bool isThisShoot = taken >= 2
        && static_cast<double>(taken) >= kLeastShare * m_match.photoOfShot.size()
        && static_cast<double>(taken) >= kLeastShare * m_photos.size();
    if (m_match.isSure() && isThisShoot) {
        return {};
    }
    QString readings;
    const auto inWords = [](int shot) {
        return shot < 0 ? Said::tr("of no shot") : Said::tr("shot %1").arg(shot + 1);
    };
    for (int photo = 0; photo < m_match.secondReading.size() && readings.isEmpty(); ++photo) {
        const int one = m_match.places[photo].shot;
        const int other = m_match.secondReading[photo];
        if (one != other) {
            readings = Said::tr(": %1 may be %2 (%3 %) or %4")
                           .arg(nameOf(photo), inWords(one))
                           .arg(std::floor(100.0 * m_match.sureness))
                           .arg(inWords(other));
        }
    }
    return Failure{ ExitCode::InputRefused, record.name,
                    Said::tr("records %1, %2 given")
                        .arg(counted(record.shots.size(), "shot"),
                             counted(m_photos.size(), "photo")),
                    Said::tr("which photo belongs to which shot cannot be told surely%1; "
                             "take photos of other shoots away, or say the order with "
                             "--order name, time or given")
                        .arg(readings) };
}

/** The clearly sharper one stays, else the later one. */
void Fitter::chooseOfDoubled()
{
    constexpr double kClearly = 1.3;
    QStringList told;
    QStringList files;
    QVector<int> shots;
    for (const QVector<int> &group : qAsConst(m_match.doubled)) {
        int best = group.last();
        for (const int photo : group) {
            files += m_photos.at(photo).path;
            if (!m_match.isBurst
                && m_turns.sharpness(photo) > kClearly * std::max(0.0, m_turns.sharpness(best))) {
                best = photo;
            }
        }
        const int shot = m_match.places[best].shot;
        m_match.photoOfShot[shot] = best;
        shots += shot;
        told += Said::tr("%1 for shot %2").arg(nameOf(best)).arg(shot + 1);
    }
    if (told.isEmpty()) {
        return;
    }
    const QString text = m_match.isBurst
        ? Said::tr("the camera took several photos for each shot: the last one of each is "
                   "used")
        : Said::tr("taken more than once; used: %1").arg(listed(told));
    tell("shots", text, files).shots = shots;
}

void Fitter::tellOrder()
{
    switch (m_match.namesAndTimes) {
    case NamesAndTimes::Agree:
        return;
    case NamesAndTimes::Rollover:
        tell("shots",
             Said::tr("the camera's counter began again among these photos: they are ordered "
                      "by time"));
        return;
    case NamesAndTimes::Restart:
        tell("shots",
             Said::tr("photo numbers begin again (another card?): they are ordered by time"));
        return;
    case NamesAndTimes::Differ:
        tell("shots", Said::tr("names and times disagree: photos are ordered by time"));
        return;
    }
}

void Fitter::tellLeftOut(Kind kind, const QString &why)
{
    QStringList names;
    QStringList files;
    for (int photo = 0; photo < m_photos.size(); ++photo) {
        if (m_match.places[photo].kind == kind && m_match.places[photo].shot < 0) {
            names += nameOf(photo);
            files += m_photos.at(photo).path;
        }
    }
    if (!names.isEmpty()) {
        tell("left", QStringLiteral("%1: %2").arg(listed(names), why), files);
    }
}

void Fitter::tellMissing()
{
    QVector<int> missing;
    for (int shot = 0; shot < m_match.photoOfShot.size(); ++shot) {
        if (m_match.photoOfShot[shot] < 0) {
            missing += shot;
        }
    }
    if (missing.isEmpty()) {
        return;
    }
    const bool isEnd = missing.last() - missing.first() + 1 == missing.size()
        && missing.last() + 1 == m_match.photoOfShot.size();
    Finding &finding = tell(
        "missing",
        Said::tr("no photo for %1%2")
            .arg(shotsText(missing), isEnd ? Said::tr(" (was the shoot stopped?)") : QString()));
    finding.shots = missing;
    finding.cure = Said::tr("take them again if you can");
    finding.action = Finding::Action::Reshoot;
}

void Fitter::tellClock()
{
    constexpr double kNoteworthySeconds = 30.0;
    constexpr double kNoteworthyGain = 0.5; // both in a minute and in all
    if (!m_match.clock) {
        return;
    }
    const double off = std::round(std::abs(m_match.clock->seconds));
    const double hours = std::abs(m_match.clock->hours);
    if (off >= kNoteworthySeconds) {
        const QString time = hours == 0.0 ? Said::tr("%1 min %2 s")
                                                .arg(std::floor(off / 60.0), 0, 'f', 0)
                                                .arg(std::floor(std::fmod(off, 60.0)))
            : hours == 1.0 ? Said::tr("1 hour")
                           : Said::tr("%1 hours").arg(hours);
        tell("clock",
             (m_match.clock->seconds > 0.0
                  ? Said::tr("the camera's clock is %1 ahead of the head's")
                  : Said::tr("the camera's clock is %1 behind the head's"))
                 .arg(time),
             {}, Finding::Kind::Fact);
    }
    const double gain = m_match.clock->secondsPerMinute;
    if (std::abs(gain) * std::min(1.0, m_match.clock->minutes) >= kNoteworthyGain) {
        tell("clock",
             (gain > 0.0 ? Said::tr("the camera's clock gains %1 s in a minute")
                         : Said::tr("the camera's clock loses %1 s in a minute"))
                 .arg(std::abs(gain), 0, 'f', 1),
             {}, Finding::Kind::Fact);
    }
}

/** Copies of one file are no two shots. RAW files are often of the same size, so only their
 * beginnings are compared, which name the time and hold the preview. */
void Fitter::tellSamePictures()
{
    constexpr qint64 kBeginningBytes = 256 * 1024LL;
    QHash<std::pair<qint64, qint64>, QVector<int>> alike; // by size and time
    for (int photo = 0; photo < m_photos.size(); ++photo) {
        const PhotoInfo &info = m_photos.at(photo);
        alike[{ QFileInfo(info.path).size(), info.timeMs }] += photo;
    }
    QMap<int, QStringList> same; // by the first one
    for (const QVector<int> &photos : qAsConst(alike)) {
        QHash<QByteArray, int> first;
        for (const int photo : photos.size() > 1 ? photos : QVector<int>()) {
            QFile file(m_photos.at(photo).path);
            if (file.open(QIODevice::ReadOnly)) {
                const QByteArray key = QCryptographicHash::hash(file.read(kBeginningBytes),
                                                                QCryptographicHash::Sha1);
                same[first.contains(key) ? first.value(key) : (first[key] = photo)]
                    += file.fileName();
            }
        }
    }
    for (auto group = same.cbegin(); group != same.cend(); ++group) {
        if (group->size() > 1 && m_match.places[group.key()].kind != Kind::Doubled) {
            QStringList names;
            for (const QString &path : *group) {
                names += QFileInfo(path).fileName();
            }
            tell("shots", Said::tr("the same picture: %1").arg(listed(names)), *group);
        }
    }
}

ShotFit Fitter::shotFit() const
{
    ShotFit fit;
    for (const int photo : m_match.photoOfShot) {
        fit += FittedShot{ photo < 0 ? QString() : m_photos.at(photo).path, 0, {} };
    }
    return fit;
}

PhotoFit Fitter::fit()
{
    tellSamePictures();
    chooseOfDoubled();
    tellOrder();
    tellLeftOut(Kind::InFront, Said::tr("before the first shot (a test?): left out"));
    tellLeftOut(Kind::OtherCamera, Said::tr("of another size: left out"));
    tellLeftOut(Kind::OtherShoot, Said::tr("not of this shoot: left out"));
    tellMissing();
    tellClock();
    return PhotoFit{ shotFit(), m_findings, {} };
}

PhotoFit Fitter::asNamed(const QString &whyUnchecked)
{
    // Where all is well, no photo is opened again.
    const bool sameTime = std::all_of(m_photos.cbegin(), m_photos.cend(), [&](const auto &photo) {
        return photo.timeMs == m_photos.first().timeMs;
    });
    if (!whyUnchecked.isEmpty() || (sameTime && m_photos.size() > 1)) {
        tellSamePictures();
    }
    if (whyUnchecked.isEmpty()) {
        tellClock();
    } else {
        tell("shots",
             Said::tr("which photo belongs to which shot could not be checked (%1): they are "
                      "taken in the order of their names")
                 .arg(whyUnchecked));
    }
    const bool isQuick = whyUnchecked.isEmpty() && m_match.measuredPairs == 0;
    return PhotoFit{ {},
                     m_findings,
                     !isQuick                ? QString()
                         : m_match.usesTimes ? Said::tr("names, times and counts")
                                             : Said::tr("names and counts") };
}

/** One file of each of \p photos. */
QVector<PhotoInfo> oneFileEach(const QVector<PhotoInfo> &photos)
{
    QStringList paths;
    for (const PhotoInfo &photo : photos) {
        paths += photo.path;
    }
    const QStringList kept = withoutCompanions(paths);
    QVector<PhotoInfo> alone;
    for (const PhotoInfo &photo : photos) {
        if (alone.size() < kept.size() && photo.path == kept.at(alone.size())) {
            alone += photo;
        }
    }
    return alone;
}

QString whyUnchecked(const RecordedShots &record, const QVector<PhotoInfo> &photos)
{
    const bool hasHeadTimes
        = std::any_of(record.shots.cbegin(), record.shots.cend(),
                      [](const PanoHead::NotedShot &shot) { return shot.time.isValid(); });
    const bool hasTimes = std::any_of(photos.cbegin(), photos.cend(),
                                      [](const PhotoInfo &photo) { return photo.timeMs != 0; });
    return !hasHeadTimes ? Said::tr("the record tells no times")
        : !hasTimes      ? Said::tr("the photos tell no times")
                         : Said::tr("the times of photos and record do not agree");
}

/** Heads that know of no brackets note each exposure as a shot of the same direction. */
RecordedShots withSeenBrackets(RecordedShots record)
{
    const auto isSame = [](const PanoHead::NotedShot &one, const PanoHead::NotedShot &other) {
        return one.yawDegrees == other.yawDegrees && one.pitchDegrees == other.pitchDegrees;
    };
    QVector<PanoHead::NotedShot> &shots = record.shots;
    int exposures = 1;
    while (exposures < shots.size() && isSame(shots.at(exposures), shots.first())) {
        ++exposures;
    }
    bool isEven = record.bracketCount == 1 && shots.size() % qMax(1, exposures) == 0;
    for (int i = 1; i < shots.size() && isEven; ++i) {
        isEven = isSame(shots.at(i), shots.at(i - 1)) == (i % exposures != 0);
    }
    if (isEven && exposures > 1) {
        record.bracketCount = exposures;
        for (int i = 0; i < shots.size(); ++i) {
            shots[i].level = i % exposures;
        }
    }
    return record;
}

/** Whether a photo of \p photos came much sooner than those of its level do: where the head tells
 * no times, a doubled photo in place of a missing one looks like that. */
bool hasHastyPhoto(const QVector<PhotoInfo> &photos, int levels)
{
    constexpr double kSoon = 0.6;
    for (int level = 0; level < levels; ++level) {
        std::vector<qint64> pauses;
        for (int i = level == 0 ? levels : level; i < photos.size(); i += levels) {
            if (photos.at(i).timeMs != 0 && photos.at(i - 1).timeMs != 0) {
                pauses.push_back(photos.at(i).timeMs - photos.at(i - 1).timeMs);
            }
        }
        std::sort(pauses.begin(), pauses.end());
        constexpr qint64 kLeastMs = 1500;
        const qint64 usual = pauses.empty() ? 0 : pauses[pauses.size() / 2];
        if (usual >= kLeastMs
            && static_cast<double>(pauses.front()) <= kSoon * static_cast<double>(usual)) {
            return true;
        }
    }
    return false;
}

/** \p photos are one file each. */
Result<PhotoFit> fitAlone(const RecordedShots &record, const QVector<PhotoInfo> &photos,
                          const KnownLens &lens, const JobWatch &watch)
{
    constexpr double kQuarter = 90.0;
    SeenTurns turns(photos, lens.focal35mm, lens.lens, watch);
    const Eigen::Matrix3d mount = rotationOf({ 0.0, 0.0, kQuarter * record.clockwiseTurns });
    const MeasureRotation ofHead = [&](int one, int other) {
        const auto seen = turns.between(one, other);
        return seen ? std::optional<Eigen::Matrix3d>(mount * *seen * mount.transpose()) : seen;
    };
    const auto fitter = [&](const MeasureRotation &measure) {
        return Fitter(photos, turns,
                      matchShots(record.shots, record.bracketCount, photos, measure));
    };
    Fitter quick = fitter({});
    if (quick.isAsNamed() && !quick.usesTimes()
        && !hasHastyPhoto(photos, std::max(1, record.bracketCount))) {
        return quick.asNamed();
    }
    Fitter asking = fitter(ofHead);
    if (asking.isAsNamed()) {
        return asking.asNamed();
    }
    if (const auto failure = asking.doubt(record)) {
        // Whoever has as many photos as shots mostly has them all.
        const bool isByName = photos.size() == record.shots.size() && !asking.refutesNames();
        return isByName ? Result<PhotoFit>(asking.asNamed(whyUnchecked(record, photos))) : *failure;
    }
    return asking.fit();
}

} // namespace

Result<PhotoFit> fitPhotos(const RecordedShots &record, const QVector<PhotoInfo> &photos,
                           const KnownLens &lens, const JobWatch &watch)
{
    const RecordedShots shots = withSeenBrackets(record);
    const QVector<PhotoInfo> alone = oneFileEach(photos);
    const int companions = photos.size() - alone.size();
    if (companions == 0 || photos.size() == shots.shots.size()) {
        return fitAlone(shots, photos, lens, watch);
    }
    Result<PhotoFit> fit = fitAlone(shots, alone, lens, watch);
    if (!fit) {
        return fit;
    }
    PhotoFit found = std::move(fit).value();
    if (!found.fit) {
        found.fit.emplace();
        for (const PhotoInfo &photo : alone) {
            *found.fit += FittedShot{ photo.path, 0, {} };
        }
    }
    found.findings.prepend(
        { QStringLiteral("left"),
          Said::tr("%1 left out: other files of the same photos are used, JPEG before RAW")
              .arg(counted(companions, "file")) });
    return found;
}

PhotoFit fitOf(const ShotMatch &match, const QVector<PhotoInfo> &photos, SeenTurns &turns)
{
    return Fitter(photos, turns, match).fit();
}

} // namespace PanoHost
