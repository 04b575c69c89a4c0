// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/shotmatch.h"
#include "tests/host/brokenshoots.h"
#include "tests/support/longruns.h"
#include "tests/support/sanitized.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace PanoHost;

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Times)
Q_DECLARE_METATYPE(OddClock)
Q_DECLARE_METATYPE(ShootRecipe)

/** Made-up shoots know what is true; nothing else decides here. */
class TestShotMatch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyFaultIsNamed_data();
    void everyFaultIsNamed();
    void pairsOfFaultsAreNeverMisread_data();
    void pairsOfFaultsAreNeverMisread();
    void soundShootsRaiseNoAlarm_data();
    void soundShootsRaiseNoAlarm();
    void oddClocksDoNotUndoNames_data();
    void oddClocksDoNotUndoNames();
    void oddClocksHideNoFault_data();
    void oddClocksHideNoFault();
    void whatWasMisreadOnceIsNot_data();
    void whatWasMisreadOnceIsNot();
    void driftIsMeasuredOverALongShoot();
    void whatCannotBeToldIsNotGuessed_data();
    void whatCannotBeToldIsNotGuessed();
    void twoShootsOfOnePlanAreNotGuessed();
    void picturesDecideWithoutTimes_data();
    void picturesDecideWithoutTimes();
    void nothingBelongsToNothing();
    void badInputIsBorne_data();
    void badInputIsBorne();
};

namespace
{

ShotMatch matchOf(const MadeShoot &shoot, const MeasureRotation &pictures)
{
    return matchShots(shoot.shots, shoot.bracketCount, shoot.photos, pictures);
}

/** Where \p match is sure and yet not true, in words; empty: nowhere. */
QString misreadIn(const ShotMatch &match, const MadeShoot &shoot)
{
    QStringList wrong;
    QVector<QVector<int>> photosOf(shoot.shots.size());
    for (int i = 0; i < shoot.photos.size(); ++i) {
        const PhotoPlace &place = match.places.at(i);
        if (place.shot != shoot.truth.at(i)) {
            wrong += QStringLiteral("%1: shot %2 instead of %3")
                         .arg(shoot.photos.at(i).path)
                         .arg(place.shot)
                         .arg(shoot.truth.at(i));
        }
        if (place.shot >= 0) {
            photosOf[place.shot] += i;
        }
    }
    int doubled = 0;
    for (int shot = 0; shot < photosOf.size(); ++shot) {
        const QVector<int> &photos = photosOf.at(shot);
        const int photo = match.photoOfShot.at(shot);
        if (photos.isEmpty() ? photo != -1 : !photos.contains(photo)) {
            wrong += QStringLiteral("shot %1 has photo %2").arg(shot).arg(photo);
        }
        for (int each : photos) {
            const bool isDoubled = match.places.at(each).kind == PhotoPlace::Kind::Doubled;
            if (isDoubled != (photos.size() > 1)) {
                wrong += QStringLiteral("%1 is named wrongly").arg(shoot.photos.at(each).path);
            }
        }
        doubled += photos.size() > 1 ? 1 : 0;
    }
    if (doubled != match.doubled.size()) {
        wrong += QStringLiteral("%1 groups of doubled photos").arg(match.doubled.size());
    }
    return wrong.join(QStringLiteral("; "));
}

int countOf(const ShotMatch &match, PhotoPlace::Kind kind)
{
    int count = 0;
    for (const PhotoPlace &place : match.places) {
        count += place.kind == kind ? 1 : 0;
    }
    return count;
}

/** Whether \p match tells \p fault, beyond which photo belongs to which shot. */
bool names(const ShotMatch &match, Fault fault, const MadeShoot &shoot)
{
    const auto strangers = static_cast<int>(shoot.truth.count(-1));
    // In the middle of the photos, which is a minute or less after the start.
    double middle = 0.0;
    int taken = 0;
    for (int shot = 0; shot < shoot.shots.size(); ++shot) {
        if (match.photoOfShot.at(shot) >= 0) {
            middle += static_cast<double>(shoot.shots.at(0).time.secsTo(shoot.shots.at(shot).time));
            ++taken;
        }
    }
    middle /= taken;
    const double off = match.clock->seconds - shoot.offsetSeconds
        + middle / 60.0 * (match.clock->secondsPerMinute - shoot.secondsPerMinute);
    if (std::abs(off) > 1.6) {
        return false;
    }
    if (match.isBurst != (fault == Fault::Burst)) {
        return false;
    }
    switch (fault) {
    case Fault::Aborted:
    case Fault::MissingOne:
    case Fault::MissingSeveral:
    case Fault::BracketMissing:
    case Fault::BracketInterrupted:
        return match.photoOfShot.contains(-1) && match.doubled.isEmpty();
    case Fault::Doubled:
    case Fault::BracketDoubled:
        return match.doubled.size() == 1 && !match.photoOfShot.contains(-1);
    case Fault::MissingAndDoubled:
        return match.places.size() == match.photoOfShot.size() && match.doubled.size() == 1
            && match.photoOfShot.count(-1) == 1;
    case Fault::Rollover:
        return match.isComplete() && match.namesAndTimes == NamesAndTimes::Rollover;
    case Fault::TwoCards:
        return match.isComplete() && match.namesAndTimes == NamesAndTimes::Restart;
    case Fault::HourOff:
        return match.isComplete() && std::abs(match.clock->hours) == 1.0;
    case Fault::MinutesOff:
    case Fault::Drifting:
        return match.isComplete() && match.clock->hours == 0.0;
    case Fault::TestShot:
        return countOf(match, PhotoPlace::Kind::InFront) == 1;
    case Fault::OtherShoot:
        return countOf(match, PhotoPlace::Kind::OtherShoot) == strangers;
    case Fault::OtherCamera:
        return countOf(match, PhotoPlace::Kind::OtherCamera) == strangers;
    case Fault::Burst:
        return match.doubled.size() == match.photoOfShot.size();
    }
    return false;
}

Times timesOf(int seed)
{
    return seed % 2 == 0 ? Times::SubSeconds : Times::WholeSeconds;
}

} // namespace

void TestShotMatch::everyFaultIsNamed_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<bool>("hasPictures");
    for (Fault fault : allFaults()) {
        QTest::addRow("%s, with pictures", nameOf(fault)) << fault << true;
        QTest::addRow("%s, times only", nameOf(fault)) << fault << false;
    }
}

void TestShotMatch::everyFaultIsNamed()
{
    QFETCH(Fault, fault);
    QFETCH(bool, hasPictures);
    const int seeds = rounds(kIsSanitized ? 2 : hasPictures ? 10 : 4, 200);
    int unsure = 0;
    for (int seed = 1; seed <= seeds; ++seed) {
        ShootRecipe recipe;
        recipe.seed = seed;
        recipe.faults = { fault };
        recipe.times = timesOf(seed);
        recipe.isSubtle = hasPictures;
        const MadeShoot shoot = madeShoot(recipe);
        const ShotMatch match = matchOf(shoot, hasPictures ? shoot.pictures() : MeasureRotation());
        if (!match.isSure()) {
            ++unsure;
            QVERIFY2(!match.secondReading.isEmpty(), qPrintable(QString::number(seed)));
            continue;
        }
        const QByteArray where = QByteArray::number(seed) + ": " + misreadIn(match, shoot).toUtf8();
        QVERIFY2(misreadIn(match, shoot).isEmpty(), where);
        QVERIFY2(names(match, fault, shoot), where);
    }
    qInfo("%d of %d unsure", unsure, seeds);
    // Of a photo taken a second later a clock of whole seconds does not tell which shot it is of.
    QVERIFY2(100 * unsure <= (hasPictures ? 5 : 75) * seeds, qPrintable(QString::number(unsure)));
}

void TestShotMatch::pairsOfFaultsAreNeverMisread_data()
{
    QTest::addColumn<bool>("hasPictures");
    QTest::newRow("with pictures") << true;
    QTest::newRow("times only") << false;
}

void TestShotMatch::pairsOfFaultsAreNeverMisread()
{
    QFETCH(bool, hasPictures);
    const int seeds = rounds(1, 10);
    const int step = rounds(kIsSanitized ? 8 : hasPictures ? 1 : 6, 1);
    int unsure = 0;
    int all = 0;
    const QVector<Fault> faults = allFaults();
    for (int one = 0; one < faults.size(); ++one) {
        for (int other = one + 1; other < faults.size(); other += step) {
            for (int seed = 1; seed <= seeds; ++seed) {
                ShootRecipe recipe;
                recipe.seed = 100 * one + other + 10000 * seed;
                recipe.faults = { faults.at(one), faults.at(other) };
                recipe.times = timesOf(seed + other);
                recipe.isSubtle = hasPictures;
                const MadeShoot shoot = madeShoot(recipe);
                const ShotMatch match
                    = matchOf(shoot, hasPictures ? shoot.pictures() : MeasureRotation());
                ++all;
                const QString misread = misreadIn(match, shoot);
                if (!match.isSure()) {
                    ++unsure;
                    continue;
                }
                QVERIFY2(misread.isEmpty(),
                         qPrintable(QStringLiteral("%1, %2, seed %3, sure %4: %5")
                                        .arg(QLatin1String(nameOf(faults.at(one))),
                                             QLatin1String(nameOf(faults.at(other))))
                                        .arg(recipe.seed)
                                        .arg(match.sureness)
                                        .arg(misread)));
            }
        }
    }
    qInfo("%d of %d unsure", unsure, all);
    QVERIFY2(100 * unsure <= (hasPictures ? 5 : 30) * all, qPrintable(QString::number(unsure)));
}

void TestShotMatch::soundShootsRaiseNoAlarm_data()
{
    QTest::addColumn<Times>("times");
    QTest::addColumn<bool>("hasHeadTimes");
    QTest::addColumn<bool>("inBrackets");
    const QVector<QPair<const char *, Times>> kinds{ { "sub-seconds", Times::SubSeconds },
                                                     { "seconds", Times::WholeSeconds },
                                                     { "minutes", Times::WholeMinutes },
                                                     { "all the same", Times::Same },
                                                     { "no times", Times::None } };
    for (const auto &[name, times] : kinds) {
        for (bool hasHeadTimes : { true, false }) {
            for (bool inBrackets : { false, true }) {
                QTest::addRow("%s%s%s", name, hasHeadTimes ? "" : ", none of the head",
                              inBrackets ? ", brackets" : "")
                    << times << hasHeadTimes << inBrackets;
            }
        }
    }
}

void TestShotMatch::soundShootsRaiseNoAlarm()
{
    QFETCH(Times, times);
    QFETCH(bool, hasHeadTimes);
    QFETCH(bool, inBrackets);
    const bool hasTimes = hasHeadTimes && times != Times::Same && times != Times::None;
    const int seeds = rounds(kIsSanitized ? 4 : 10, 200);
    int asking = 0;
    for (int seed = 1; seed <= seeds; ++seed) {
        ShootRecipe recipe;
        recipe.seed = seed;
        recipe.times = times;
        recipe.hasHeadTimes = hasHeadTimes;
        recipe.inBrackets = inBrackets;
        recipe.hasOddNames = seed % 3 == 0;
        static constexpr double kOffsets[] = { 0.0, 7200.0, -43217.5, 98.25 };
        recipe.offsetSeconds = kOffsets[seed % 4];
        const MadeShoot shoot = madeShoot(recipe);
        int asked = 0;
        const ShotMatch match
            = matchOf(shoot, seed % 2 == 0 ? shoot.pictures(&asked) : MeasureRotation());
        const QByteArray where = QByteArray::number(seed) + ": "
            + QByteArray::number(match.sureness) + " " + misreadIn(match, shoot).toUtf8();
        QVERIFY2(misreadIn(match, shoot).isEmpty(), where);
        QVERIFY2(match.isSure(), where);
        QVERIFY2(match.isComplete(), where);
        QVERIFY2(match.neededPictures || (hasTimes && asked == 0), where);
        asking += match.neededPictures ? 1 : 0;
        QCOMPARE(match.measuredPairs, asked);
        QCOMPARE(match.usesTimes, hasTimes);
        QCOMPARE(match.usesExposures, inBrackets);
        QCOMPARE(match.namesAndTimes, NamesAndTimes::Agree);
        QVERIFY2(!match.isBurst, where);
    }
    // Whole seconds make some photos look early.
    QVERIFY2(hasTimes ? 100 * asking <= 25 * seeds : asking == seeds,
             qPrintable(QString::number(asking)));
}

void TestShotMatch::oddClocksDoNotUndoNames_data()
{
    QTest::addColumn<OddClock>("clock");
    for (const OddClock clock : allOddClocks()) {
        QTest::newRow(nameOf(clock)) << clock;
    }
}

void TestShotMatch::oddClocksDoNotUndoNames()
{
    QFETCH(OddClock, clock);
    const int seeds = rounds(kIsSanitized ? 2 : 6, 100);
    int unsure = 0;
    for (int seed = 1; seed <= seeds; ++seed) {
        ShootRecipe recipe;
        recipe.seed = seed;
        recipe.times = timesOf(seed);
        recipe.inBrackets = seed % 3 == 0;
        recipe.spheres = 1 + seed % 4; // up to 312 shots
        const MadeShoot shoot = withClock(madeShoot(recipe), clock, seed);
        const ShotMatch match = matchOf(shoot, shoot.pictures());
        const QByteArray where = QByteArray::number(seed) + ": "
            + QByteArray::number(match.sureness) + " " + misreadIn(match, shoot).toUtf8();
        QVERIFY2(!match.refutesNames, where);
        if (match.isSure()) {
            QVERIFY2(misreadIn(match, shoot).isEmpty(), where);
        } else {
            ++unsure;
        }
    }
    QVERIFY2(5 * unsure <= seeds, qPrintable(QString::number(unsure)));
}

void TestShotMatch::oddClocksHideNoFault_data()
{
    oddClocksDoNotUndoNames_data();
}

void TestShotMatch::oddClocksHideNoFault()
{
    QFETCH(OddClock, clock);
    const int seeds = rounds(1, 40);
    // A clock of minutes agrees with everything, one that is nudged by as much as the head takes
    // for a shot looks like a missing shot, and none races so.
    const bool hidesCounts
        = clock == OddClock::HeadWholeMinutes || clock == OddClock::CameraWholeMinutes;
    if (clock == OddClock::CameraCorrectedOnTheWay || clock == OddClock::CameraRaces) {
        QSKIP("nothing else can be told");
    }
    for (const Fault fault : { Fault::MissingOne, Fault::Doubled, Fault::MissingAndDoubled }) {
        for (int i = 0; i < 2 * seeds && !(hidesCounts && fault == Fault::MissingAndDoubled); ++i) {
            const int seed = 1 + i / 2;
            ShootRecipe recipe;
            recipe.seed = seed;
            recipe.faults = { fault };
            recipe.inBrackets = i % 2 == 1;
            recipe.times = timesOf(seed);
            const MadeShoot shoot = withClock(madeShoot(recipe), clock, seed);
            const ShotMatch match = matchOf(shoot, shoot.pictures());
            const QString misread = misreadIn(match, shoot);
            QVERIFY2(!match.isSure() || misread.isEmpty(),
                     qPrintable(QStringLiteral("%1, seed %2, sure %3: %4")
                                    .arg(QLatin1String(nameOf(fault)))
                                    .arg(seed)
                                    .arg(match.sureness)
                                    .arg(misread)));
        }
    }
}

void TestShotMatch::whatWasMisreadOnceIsNot_data()
{
    QTest::addColumn<QVector<Fault>>("faults");
    QTest::addColumn<OddClock>("clock");
    QTest::addColumn<ShootRecipe>("recipe");
    QTest::addColumn<bool>("hasPictures");
    const auto addRow = [](const char *name, const QVector<Fault> &faults, OddClock clock, int seed,
                           bool inBrackets, int spheres = 1, bool hasPictures = true) {
        ShootRecipe recipe;
        recipe.seed = seed;
        recipe.inBrackets = inBrackets;
        recipe.spheres = spheres;
        recipe.isSubtle = hasPictures;
        QTest::newRow(name) << faults << clock << recipe << hasPictures;
    };
    const QVector<Fault> none;
    const QVector<Fault> missing{ Fault::MissingOne };
    const QVector<Fault> both{ Fault::MissingAndDoubled };
    addRow("test shot that looks like the first", { Fault::BracketDoubled, Fault::TestShot },
           OddClock::Sound, 91113, true);
    addRow("last of 1980", none, OddClock::CameraWildOnce, 22, false, 3);
    addRow("last of 1980, one missing", missing, OddClock::CameraWildOnce, 22, false);
    addRow("doubled of 1980", { Fault::Doubled }, OddClock::CameraWildOnce, 36, false);
    addRow("brackets, clock set", none, OddClock::CameraSetOnTheWay, 36, true);
    addRow("brackets, clock set early", none, OddClock::CameraSetOnTheWay, 54, true, 3);
    addRow("brackets, clock set, one missing", missing, OddClock::CameraSetOnTheWay, 5, true);
    addRow("named as if complete", both, OddClock::CameraRandom, 40, false);
    addRow("fault without times", both, OddClock::CameraSomeNone, 2003, false);
    addRow("fault without times of the head", both, OddClock::HeadSomeNone, 2009, false);
    addRow("two of one second", both, OddClock::Sound, 2027, false, 1, false);
    addRow("brackets, early once", missing, OddClock::CameraEarlyOnce, 2019, true);
}

void TestShotMatch::whatWasMisreadOnceIsNot()
{
    QFETCH(QVector<Fault>, faults);
    QFETCH(OddClock, clock);
    QFETCH(ShootRecipe, recipe);
    QFETCH(bool, hasPictures);
    recipe.faults = faults;
    recipe.times = timesOf(faults.contains(Fault::TestShot) ? 0 : recipe.seed);
    const MadeShoot shoot = withClock(madeShoot(recipe), clock, recipe.seed);
    const ShotMatch match = matchOf(shoot, hasPictures ? shoot.pictures() : MeasureRotation());
    QVERIFY2(!match.isSure() || misreadIn(match, shoot).isEmpty(),
             qPrintable(misreadIn(match, shoot)));
}

void TestShotMatch::driftIsMeasuredOverALongShoot()
{
    ShootRecipe recipe;
    recipe.spheres = 10;
    recipe.faults = { Fault::Drifting, Fault::MissingOne, Fault::HourOff };
    const MadeShoot shoot = madeShoot(recipe);
    const ShotMatch match = matchOf(shoot, {});
    QVERIFY(match.isSure());
    QCOMPARE(misreadIn(match, shoot), QString());
    QVERIFY(std::abs(match.clock->secondsPerMinute - 1.0) < 0.05);
    QVERIFY(std::abs(match.clock->seconds - shoot.offsetSeconds) < 1.0);
    QCOMPARE(std::abs(match.clock->hours), 1.0);
}

void TestShotMatch::whatCannotBeToldIsNotGuessed_data()
{
    QTest::addColumn<Fault>("fault");
    for (Fault fault : { Fault::Aborted, Fault::MissingOne, Fault::MissingSeveral, Fault::Doubled,
                         Fault::TestShot, Fault::TwoCards }) {
        QTest::newRow(nameOf(fault)) << fault;
    }
}

/** Without times and pictures names and counts are all that is left. */
void TestShotMatch::whatCannotBeToldIsNotGuessed()
{
    QFETCH(Fault, fault);
    ShootRecipe recipe;
    recipe.faults = { fault };
    recipe.times = Times::None;
    for (recipe.seed = 1; recipe.seed <= 10; ++recipe.seed) {
        const MadeShoot shoot = madeShoot(recipe);
        const ShotMatch match = matchOf(shoot, {});
        QVERIFY(!match.isSure());
        QVERIFY(match.neededPictures);
        QCOMPARE(match.secondReading.size(), shoot.photos.size());
        QVector<int> first;
        for (const PhotoPlace &place : match.places) {
            first += place.shot;
        }
        QVERIFY(first != match.secondReading);
    }
}

/** The same plan twice in a folder, and a clock that agrees with neither. */
void TestShotMatch::twoShootsOfOnePlanAreNotGuessed()
{
    ShootRecipe recipe;
    recipe.offsetSeconds = 1000.0;
    MadeShoot shoot = madeShoot(recipe);
    recipe.offsetSeconds = 2130.0;
    recipe.hasOddNames = true;
    shoot.photos += madeShoot(recipe).photos;
    const ShotMatch match = matchOf(shoot, {});
    QVERIFY(!match.isSure());
    QCOMPARE(match.secondReading.size(), 52);
    for (int i = 0; i < 52; ++i) {
        QVERIFY((match.places.at(i).shot < 0) != (match.secondReading.at(i) < 0));
    }
}

void TestShotMatch::picturesDecideWithoutTimes_data()
{
    QTest::addColumn<Fault>("fault");
    for (Fault fault : { Fault::Aborted, Fault::MissingOne, Fault::MissingSeveral, Fault::Doubled,
                         Fault::MissingAndDoubled, Fault::Rollover }) {
        QTest::newRow(nameOf(fault)) << fault;
    }
}

void TestShotMatch::picturesDecideWithoutTimes()
{
    QFETCH(Fault, fault);
    ShootRecipe recipe;
    recipe.faults = { fault };
    recipe.times = Times::None;
    const int seeds = rounds(10, 100);
    for (recipe.seed = 1; recipe.seed <= seeds; ++recipe.seed) {
        const MadeShoot shoot = madeShoot(recipe);
        const ShotMatch match = matchOf(shoot, shoot.pictures());
        const QString misread = misreadIn(match, shoot);
        QVERIFY2(!match.isSure() || misread.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(recipe.seed).arg(misread)));
        // Where rows end no pictures overlap, so that a shot missing there may be another.
        const bool overlaps = fault == Fault::Doubled || fault == Fault::Rollover;
        QVERIFY(match.isSure() || !overlaps);
    }
}

void TestShotMatch::nothingBelongsToNothing()
{
    const MadeShoot shoot = madeShoot({});
    const ShotMatch noPhotos = matchShots(shoot.shots, 1, {}, {});
    QCOMPARE(noPhotos.photoOfShot, QVector<int>(26, -1));
    QVERIFY(!noPhotos.isSure());
    const ShotMatch noShots = matchShots({}, 1, shoot.photos, {});
    QCOMPARE(noShots.places.size(), 26);
    QCOMPARE(noShots.places.at(3).shot, -1);
    QVERIFY(!noShots.isSure());
}

void TestShotMatch::badInputIsBorne_data()
{
    QTest::addColumn<int>("shotCount");
    QTest::addColumn<int>("photoCount");
    QTest::addColumn<QString>("times");
    const int many = rounds(kIsSanitized ? 200 : 500, 70000);
    for (const char *times : { "none", "same", "rising", "falling", "wild", "head none" }) {
        const QString text = QString::fromLatin1(times);
        QTest::addRow("3 for 5000, %s", times) << 5000 << 3 << text;
        QTest::addRow("5000 for 3, %s", times) << 3 << 5000 << text;
        QTest::addRow("many, %s", times) << many << many << text;
        QTest::addRow("many for half, %s", times) << many / 2 << many << text;
        QTest::addRow("1 for 1, %s", times) << 1 << 1 << text;
    }
}

void TestShotMatch::badInputIsBorne()
{
    QFETCH(int, shotCount);
    QFETCH(int, photoCount);
    QFETCH(QString, times);
    const QDateTime start(QDate(2024, 5, 1), QTime(10, 0, 0), Qt::UTC);
    const auto secondsOf = [&times](int index) {
        const int wild = static_cast<int>(index * 2654435761U % 1000003U);
        return times == QLatin1String("same")   ? 0
            : times == QLatin1String("falling") ? -2 * index
            : times == QLatin1String("wild")    ? wild
                                                : 2 * index;
    };
    QVector<PanoHead::NotedShot> shots(shotCount);
    for (int i = 0; i < shotCount; ++i) {
        shots[i].yawDegrees = i % 7 == 0 ? std::numeric_limits<double>::quiet_NaN() : i * 1e300;
        shots[i].level = i % 5 - 2;
        if (times != QLatin1String("none") && times != QLatin1String("head none")) {
            shots[i].time = start.addSecs(secondsOf(i));
        }
    }
    QVector<PhotoInfo> photos(photoCount);
    for (int i = 0; i < photoCount; ++i) {
        photos[i].path = QStringLiteral("/a/same.jpg");
        photos[i].exposureValue = i % 3 == 0 ? std::numeric_limits<double>::infinity() : i % 11;
        if (times != QLatin1String("none")) {
            photos[i].timeMs = start.addSecs(secondsOf(i)).toMSecsSinceEpoch();
        }
    }
    const MeasureRotation nonsense = [](int one, int) -> std::optional<Eigen::Matrix3d> {
        return Eigen::Matrix3d::Constant(one % 2 == 0 ? 1e300 : 0.0);
    };
    const ShotMatch match
        = matchShots(shots, 3, photos, photoCount > 5000 ? MeasureRotation() : nonsense);
    QCOMPARE(match.photoOfShot.size(), shotCount);
    QCOMPARE(match.places.size(), photoCount);
    for (const PhotoPlace &place : match.places) {
        QVERIFY(place.shot >= -1 && place.shot < shotCount);
    }
    QVERIFY(match.sureness >= 0.0 && match.sureness <= 1.0);
}

TEST_CLASS(TestShotMatch, QCoreApplication)
#include "tst_shotmatch.moc"
