// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/photofit.h"

#include "host/check/shotmatch.h"
#include "host/model/displayname.h"

#include <QFileInfo>

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
    return QStringLiteral("%1 and %2 more")
        .arg(QStringList(words.mid(0, kMostNamed)).join(QStringLiteral(", ")))
        .arg(words.size() - kMostNamed);
}

/** "5, 9 to 12": \p shots, rising, counted from 1. */
QString shotNumbers(const QVector<int> &shots)
{
    QStringList parts;
    for (int i = 0; i < shots.size();) {
        int last = i;
        while (last + 1 < shots.size() && shots[last + 1] == shots[last] + 1) {
            ++last;
        }
        const QString from = QString::number(shots[i] + 1);
        parts += last > i ? QStringLiteral("%1 to %2").arg(from).arg(shots[last] + 1) : from;
        i = last + 1;
    }
    return listed(parts);
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
    [[nodiscard]] PhotoFit fit();

private:
    void chooseOfDoubled();
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
        return shot < 0 ? QStringLiteral("of no shot") : QStringLiteral("shot %1").arg(shot + 1);
    };
    for (int photo = 0; photo < m_match.secondReading.size() && readings.isEmpty(); ++photo) {
        const int one = m_match.places[photo].shot;
        const int other = m_match.secondReading[photo];
        if (one != other) {
            readings = QStringLiteral(": %1 may be %2 (%3 %) or %4")
                           .arg(nameOf(photo), inWords(one))
                           .arg(std::floor(100.0 * m_match.sureness))
                           .arg(inWords(other));
        }
    }
    return Failure{ ExitCode::InputRefused, record.name,
                    QStringLiteral("records %1, %2 given")
                        .arg(counted(record.shots.size(), "shot"),
                             counted(m_photos.size(), "photo")),
                    QStringLiteral("which photo belongs to which shot cannot be told surely%1; "
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
        told += QStringLiteral("%1 for shot %2").arg(nameOf(best)).arg(shot + 1);
    }
    if (told.isEmpty()) {
        return;
    }
    const QString text = m_match.isBurst
        ? QStringLiteral("the camera took several photos for each shot: the last one of each is "
                         "used")
        : QStringLiteral("taken more than once; used: %1").arg(listed(told));
    tell("shots", text, files).shots = shots;
}

void Fitter::tellOrder()
{
    switch (m_match.namesAndTimes) {
    case NamesAndTimes::Agree:
        return;
    case NamesAndTimes::Rollover:
        tell("shots",
             QStringLiteral("the camera's counter began again among these photos: they are ordered "
                            "by time"));
        return;
    case NamesAndTimes::Restart:
        tell("shots",
             QStringLiteral("photo numbers begin again (another card?): they are ordered by time"));
        return;
    case NamesAndTimes::Differ:
        tell("shots", QStringLiteral("names and times disagree: photos are ordered by time"));
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
    Finding &finding
        = tell("missing",
               QStringLiteral("no photo for %1 %2%3")
                   .arg(missing.size() == 1 ? QStringLiteral("shot") : QStringLiteral("shots"),
                        shotNumbers(missing),
                        isEnd ? QStringLiteral(" (was the shoot stopped?)") : QString()));
    finding.shots = missing;
    finding.cure = QStringLiteral("take them again if you can");
    finding.action = Finding::Action::Reshoot;
}

void Fitter::tellClock()
{
    if (m_match.clock && m_match.clock->hours != 0.0) {
        const double hours = std::abs(m_match.clock->hours);
        tell("clock",
             QStringLiteral("the camera's clock is %1 %2 %3 the head's")
                 .arg(hours)
                 .arg(hours == 1.0 ? QStringLiteral("hour") : QStringLiteral("hours"),
                      m_match.clock->hours > 0.0 ? QStringLiteral("ahead of")
                                                 : QStringLiteral("behind")),
             {}, Finding::Kind::Fact);
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
    chooseOfDoubled();
    tellOrder();
    tellLeftOut(Kind::InFront, QStringLiteral("before the first shot (a test?): left out"));
    tellLeftOut(Kind::OtherCamera, QStringLiteral("of another size: left out"));
    tellLeftOut(Kind::OtherShoot, QStringLiteral("not of this shoot: left out"));
    tellMissing();
    tellClock();
    return PhotoFit{ shotFit(), m_findings };
}

} // namespace

Result<PhotoFit> fitPhotos(const RecordedShots &record, const QVector<PhotoInfo> &photos,
                           const KnownLens &lens)
{
    SeenTurns turns(photos, lens.focal35mm, lens.lens);
    const auto fitter = [&](const MeasureRotation &measure) {
        return Fitter(photos, turns,
                      matchShots(record.shots, record.bracketCount, photos, measure));
    };
    Fitter quick = fitter({});
    if (quick.isAsNamed() && !quick.usesTimes()) {
        return PhotoFit{};
    }
    Fitter asking = fitter([&](int one, int other) { return turns.between(one, other); });
    if (asking.isAsNamed()) {
        return PhotoFit{};
    }
    if (const auto failure = asking.doubt(record)) {
        // Where only names tell anything, they have always told the order.
        const bool isByName = !asking.usesTimes() && photos.size() == record.shots.size();
        return isByName ? Result<PhotoFit>(PhotoFit{}) : *failure;
    }
    return asking.fit();
}

PhotoFit fitOf(const ShotMatch &match, const QVector<PhotoInfo> &photos, SeenTurns &turns)
{
    return Fitter(photos, turns, match).fit();
}

} // namespace PanoHost
