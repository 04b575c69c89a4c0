// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/brokenshoots.h"

#include "host/align/geometry.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

using namespace PanoHost;

namespace
{

/** The same numbers everywhere, which the library's distributions do not promise. */
class Dice
{
public:
    explicit Dice(int seed)
        : m_engine(static_cast<unsigned>(seed))
    {
    }
    double between(double least, double most)
    {
        return least + (most - least) * static_cast<double>(m_engine()) / 4294967296.0;
    }
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

private:
    std::mt19937 m_engine;
};

/** One photo as it was truly taken. */
struct Taken {
    double seconds = 0.0; ///< of a true clock
    int shot = -1;
    double exposure = 12.0;
    Eigen::Matrix3d rotation = Eigen::Matrix3d::Identity();
    QSize size{ 6000, 4000 };
};

Eigen::Matrix3d somewhere(Dice *dice)
{
    return rotationOf({ dice->between(-180.0, 180.0), dice->between(-60.0, 60.0), 0.0 });
}

/** Two seconds for each position and three more to the next row. */
QVector<PanoHead::NotedShot> headShots(const QVector<RowOfShots> &rows, bool inBrackets, Dice *dice,
                                       QVector<double> *trueSeconds)
{
    QVector<PanoHead::NotedShot> shots;
    double seconds = 0.0;
    const QDateTime start(QDate(2024, 5, 1), QTime(10, 0, 0), Qt::UTC);
    const double part = dice->between(0.0, 1.0);
    for (const RowOfShots &row : rows) {
        for (int i = 0; i < row.count; ++i) {
            for (int level = 0; level < (inBrackets ? 3 : 1); ++level) {
                PanoHead::NotedShot shot;
                shot.yawDegrees = -180.0 + 360.0 * i / row.count;
                shot.pitchDegrees = row.pitchDegrees;
                shot.level = level;
                const double at = part + seconds + 0.3 * level;
                // The head writes whole seconds.
                shot.time = start.addSecs(static_cast<qint64>(std::floor(at)));
                shots += shot;
                trueSeconds->append(at);
            }
            seconds += inBrackets ? 3.0 : 2.0;
        }
        seconds += 3.0;
    }
    return shots;
}

bool has(const QVector<Fault> &faults, Fault fault)
{
    return faults.contains(fault);
}

/** Leaves out \p count photos one by one, none of them at an end. */
void lose(QVector<Taken> *photos, int count, Dice *dice)
{
    for (int i = 0; i < count && photos->size() > 3; ++i) {
        photos->remove(1 + dice->below(photos->size() - 2));
    }
}

void twice(QVector<Taken> *photos, Dice *dice, bool inBrackets, bool isSubtle)
{
    const auto isAmongOthers = [photos](int at) {
        return at > 0 && at + 1 < photos->size()
            && photos->at(at + 1).shot - photos->at(at - 1).shot == 2;
    };
    int i = dice->below(photos->size());
    for (int tries = 0; tries < 100 && !isSubtle && !isAmongOthers(i); ++tries) {
        i = dice->below(photos->size());
    }
    Taken again = photos->at(i);
    again.seconds += inBrackets ? 0.1 : dice->between(0.4, 0.9);
    photos->insert(i + 1, again);
}

void breakBracket(QVector<Taken> *photos, Dice *dice)
{
    const int position = 1 + dice->below(qMin(20, photos->size() / 3 - 2));
    const int kept = 1 + dice->below(2); // of three
    const auto isLost = [position, kept](const Taken &photo) {
        return photo.shot / 3 == position && photo.shot % 3 >= kept;
    };
    photos->erase(std::remove_if(photos->begin(), photos->end(), isLost), photos->end());
}

void addOtherShoot(QVector<Taken> *photos, Dice *dice, QSize size)
{
    const int count = 8 + dice->below(20);
    const double minutes = dice->between(6.0, 40.0) * (dice->below(2) == 0 ? -1.0 : 1.0);
    QVector<Taken> others;
    double seconds = minutes * 60.0;
    for (int i = 0; i < count; ++i) {
        others += { seconds, -1, 12.0, somewhere(dice), size };
        seconds += dice->between(1.5, 6.0);
    }
    *photos = minutes < 0.0 ? others + *photos : *photos + others;
}

void burst(QVector<Taken> *photos)
{
    QVector<Taken> all;
    for (const Taken &photo : qAsConst(*photos)) {
        for (int i = 0; i < 3; ++i) {
            all += photo;
            all.last().seconds += 0.12 * i;
        }
    }
    *photos = all;
}

QString photoName(int index, int count, const ShootRecipe &recipe, int first)
{
    const QString folder = QStringLiteral("/shoot/");
    if (recipe.hasOddNames) {
        static const char *const kWords[] = { "alder", "birch", "cedar", "elm" };
        return folder
            + QStringLiteral("%1 %2x%3.jpeg")
                  .arg(QLatin1String(kWords[index * 4 / count]))
                  .arg(index)
                  .arg(recipe.seed % 2 == 0 ? QStringLiteral(" (pano)") : QString());
    }
    if (has(recipe.faults, Fault::TwoCards)) {
        const int onFirst = count / 2;
        const bool isSecond = index >= onFirst;
        const int number = isSecond ? index - onFirst + 1 : index + 1;
        const QString text = QStringLiteral("%1").arg(number, 4, 10, QLatin1Char('0'));
        // One folder for both, or one each, the second card's first by name.
        return recipe.seed % 2 == 0 ? folder
                + QStringLiteral("DSC_%1%2.JPG")
                      .arg(text, isSecond ? QStringLiteral("-1") : QString())
                                    : folder
                + QStringLiteral("%1/DSC_%2.JPG")
                      .arg(isSecond ? QStringLiteral("a") : QStringLiteral("b"), text);
    }
    const int number = (first + index) % 10000;
    return folder + QStringLiteral("DSC_%1.JPG").arg(number, 4, 10, QLatin1Char('0'));
}

qint64 exifMs(double seconds, Times times)
{
    const qint64 start = QDateTime(QDate(2024, 5, 1), QTime(10, 0, 0), Qt::UTC).toMSecsSinceEpoch();
    const double ms = static_cast<double>(start) + seconds * 1000.0;
    switch (times) {
    case Times::SubSeconds:
        return static_cast<qint64>(std::floor(ms / 10.0)) * 10;
    case Times::WholeSeconds:
        return static_cast<qint64>(std::floor(ms / 1000.0)) * 1000;
    case Times::WholeMinutes:
        return static_cast<qint64>(std::floor(ms / 60000.0)) * 60000;
    case Times::Same:
        return start;
    case Times::None:
        break;
    }
    return 0;
}

} // namespace

MeasureRotation MadeShoot::pictures(int *asked) const
{
    const QVector<Eigen::Matrix3d> all = rotations;
    return [all, asked](int one, int other) -> std::optional<Eigen::Matrix3d> {
        if (asked != nullptr) {
            ++*asked;
        }
        const Eigen::Matrix3d rotation = all.at(other).transpose() * all.at(one);
        // Where the one looks, as the other sees it.
        if (rotation(2, 2) < std::cos(qDegreesToRadians(46.0))) {
            return std::nullopt;
        }
        Dice dice(one * 100003 + other);
        const auto noise = [&dice] { return dice.between(-0.3, 0.3); };
        const double yaw = noise();
        const double pitch = noise();
        return rotationOf({ yaw, pitch, noise() }) * rotation;
    };
}

MadeShoot madeShoot(const ShootRecipe &recipe)
{
    Dice dice(recipe.seed);
    MadeShoot shoot;
    const QVector<Fault> &faults = recipe.faults;
    const bool inBrackets = recipe.inBrackets || has(faults, Fault::BracketMissing)
        || has(faults, Fault::BracketDoubled) || has(faults, Fault::BracketInterrupted);
    shoot.bracketCount = inBrackets ? 3 : 1;
    QVector<double> seconds;
    QVector<RowOfShots> rows;
    for (int i = 0; i < recipe.spheres; ++i) {
        rows += recipe.rows;
    }
    shoot.shots = headShots(rows, inBrackets, &dice, &seconds);
    QVector<Taken> photos;
    static constexpr double kStops[] = { 0.0, -2.0, 2.0 };
    Dice ownPlay(recipe.playSeed);
    Dice *play = recipe.playSeed == 0 ? &dice : &ownPlay;
    Eigen::Matrix3d rotation;
    for (int i = 0; i < shoot.shots.size(); ++i) {
        const PanoHead::NotedShot &shot = shoot.shots.at(i);
        // How long the camera takes to release, and the head's play.
        const double late = dice.between(0.1, inBrackets ? 0.15 : 0.3);
        if (shot.level == 0) {
            const double yaw = shot.yawDegrees + play->between(-0.2, 0.2);
            rotation = rotationOf({ yaw, shot.pitchDegrees + play->between(-0.2, 0.2), 0.0 });
        }
        photos += { seconds.at(i) + late, i, 12.0 + (inBrackets ? kStops[shot.level] : 0.0),
                    rotation, QSize(6000, 4000) };
    }

    if (has(faults, Fault::Aborted)) {
        photos.resize(photos.size() * (12 + dice.below(12)) / 26);
    }
    if (has(faults, Fault::MissingOne) || has(faults, Fault::BracketMissing)) {
        lose(&photos, 1, &dice);
    }
    if (has(faults, Fault::MissingSeveral)) {
        lose(&photos, 3, &dice);
    }
    if (has(faults, Fault::MissingAndDoubled)) {
        lose(&photos, 1, &dice);
        twice(&photos, &dice, inBrackets, recipe.isSubtle);
    }
    if (has(faults, Fault::Doubled) || has(faults, Fault::BracketDoubled)) {
        twice(&photos, &dice, inBrackets, recipe.isSubtle);
    }
    if (has(faults, Fault::BracketInterrupted)) {
        breakBracket(&photos, &dice);
    }
    if (has(faults, Fault::Burst)) {
        burst(&photos);
    }
    if (has(faults, Fault::TestShot)) {
        photos.prepend(
            { dice.between(-60.0, -5.0), -1, 12.0, somewhere(&dice), QSize(6000, 4000) });
    }
    if (has(faults, Fault::OtherShoot)) {
        addOtherShoot(&photos, &dice, QSize(6000, 4000));
    }
    if (has(faults, Fault::OtherCamera)) {
        addOtherShoot(&photos, &dice, QSize(4032, 3024));
    }

    shoot.offsetSeconds = recipe.offsetSeconds;
    if (has(faults, Fault::HourOff)) {
        shoot.offsetSeconds += dice.below(2) == 0 ? 3600.0 : -3600.0;
    }
    if (has(faults, Fault::MinutesOff)) {
        shoot.offsetSeconds += 17 * 60.0;
    }
    shoot.secondsPerMinute = has(faults, Fault::Drifting) ? 1.0 : 0.0;
    const int count = photos.size();
    const int first
        = has(faults, Fault::Rollover) ? 10000 - 1 - dice.below(count - 1) : 1 + dice.below(5000);
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    for (int i = count - 1; i > 0; --i) {
        std::swap(order[i], order[dice.below(i + 1)]);
    }
    for (int index : order) {
        const Taken &taken = photos.at(index);
        PhotoInfo info;
        info.path = photoName(index, count, recipe, first);
        info.storedSize = taken.size;
        info.exposureValue = taken.exposure + 0.02 * std::sin(index);
        info.timeMs
            = exifMs(taken.seconds * (1.0 + shoot.secondsPerMinute / 60.0) + shoot.offsetSeconds,
                     recipe.times);
        shoot.photos += info;
        shoot.truth += taken.shot;
        shoot.rotations += taken.rotation;
    }
    if (!recipe.hasHeadTimes) {
        for (PanoHead::NotedShot &shot : shoot.shots) {
            shot.time = QDateTime();
        }
    }
    return shoot;
}

MadeShoot withClock(MadeShoot shoot, OddClock clock, int seed)
{
    Dice dice(seed);
    QVector<PanoHead::NotedShot> &shots = shoot.shots;
    QVector<PhotoInfo> &photos = shoot.photos;
    const int one = dice.below(shots.size());
    const int middle = shots.size() / 4 + dice.below(qMax(1, shots.size() / 2));
    const qint64 start = shots.first().time.toMSecsSinceEpoch();
    const QDateTime last = shots.last().time;
    for (int i = 0; i < shots.size(); ++i) {
        QDateTime &time = shots[i].time;
        if (clock == OddClock::HeadNone || (clock == OddClock::HeadSomeNone && i % 5 == seed % 5)) {
            time = QDateTime();
        } else if (clock == OddClock::HeadWildOnce && i == one) {
            time = time.addYears(75);
        } else if (clock == OddClock::HeadSame) {
            time = shots.first().time;
        } else if (clock == OddClock::HeadBackwards) {
            time = last.addMSecs(start - time.toMSecsSinceEpoch());
        } else if (clock == OddClock::HeadOtherZone) {
            time = time.addSecs(seed % 2 == 0 ? 9 * 3600 : -5 * 3600 - 1800);
        } else if (clock == OddClock::HeadWholeMinutes) {
            time = time.addSecs(-time.time().second());
        }
    }
    const qint64 same = photos.first().timeMs;
    for (int i = 0; i < photos.size(); ++i) {
        const int shot = shoot.truth.at(i);
        qint64 &time = photos[i].timeMs;
        const qint64 since = time - start;
        switch (clock) {
        case OddClock::CameraWholeMinutes:
            time -= time % 60000;
            break;
        case OddClock::CameraSame:
            time = same;
            break;
        case OddClock::CameraNone:
            time = 0;
            break;
        case OddClock::CameraSomeNone:
            time = shot % 4 == seed % 4 ? 0 : time;
            break;
        case OddClock::CameraWildOnce:
            time = shot == one ? 315532800000 : time;
            break;
        case OddClock::CameraLateOnce:
            time += shot == one ? 1000 : 0;
            break;
        case OddClock::CameraEarlyOnce:
            time -= shot == one ? 1000 : 0;
            break;
        case OddClock::CameraSetOnTheWay:
            time += shot >= middle ? 3600000 : 0;
            break;
        case OddClock::CameraCorrectedOnTheWay:
            time += shot >= middle ? 1000 * (1 + seed % 7) : 0;
            break;
        case OddClock::CameraDrifts:
            time += since / 60;
            break;
        case OddClock::CameraRaces:
            time += since / 10;
            break;
        case OddClock::CameraRandom:
            time = start + 1000LL * dice.below(100000);
            break;
        default:
            break;
        }
    }
    return shoot;
}

const char *nameOf(OddClock clock)
{
    static const char *const kNames[] = { "sound",
                                          "head: 2099 once",
                                          "head: no times",
                                          "head: some have none",
                                          "head: all the same",
                                          "head: backwards",
                                          "head: another zone",
                                          "head: no seconds",
                                          "camera: no seconds",
                                          "camera: all the same",
                                          "camera: no times",
                                          "camera: some have none",
                                          "camera: 1980 once",
                                          "camera: late once",
                                          "camera: early once",
                                          "camera: set on the way",
                                          "camera: corrected on the way",
                                          "camera: drifts",
                                          "camera: races",
                                          "camera: random times" };
    return kNames[static_cast<int>(clock)];
}

QVector<OddClock> allOddClocks()
{
    QVector<OddClock> clocks;
    for (int i = 0; i <= static_cast<int>(OddClock::CameraRandom); ++i) {
        clocks += static_cast<OddClock>(i);
    }
    return clocks;
}

const char *nameOf(Fault fault)
{
    static const char *const kNames[] = { "aborted",
                                          "missing one",
                                          "missing several",
                                          "doubled",
                                          "missing, doubled",
                                          "rollover",
                                          "two cards",
                                          "an hour off",
                                          "minutes off",
                                          "drifting",
                                          "bracket missing",
                                          "bracket doubled",
                                          "bracket interrupted",
                                          "test shot",
                                          "other shoot",
                                          "other camera",
                                          "burst" };
    return kNames[static_cast<int>(fault)];
}

QVector<Fault> allFaults()
{
    QVector<Fault> faults;
    for (int i = 0; i <= static_cast<int>(Fault::Burst); ++i) {
        faults += static_cast<Fault>(i);
    }
    return faults;
}
