// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/cardplan.h"
#include "tests/host/brokenshoots.h"
#include "tests/host/cardshoots.h"
#include "tests/support/longruns.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <random>

using namespace PanoHost;
using CardShoots::record;
using CardShoots::take;

namespace
{

constexpr double kHour = 3600.0;

/** A camera's clock, and what else is odd about a card. */
struct Odds {
    double clock = 0.0; ///< camera minus head, seconds
    int stepMs = 1000; ///< of the camera's
    bool hasFaults = false;
};

/** What lies on a card. */
struct Given {
    QVector<CardPhoto> photos;
    QVector<CardRecord> records;

    [[nodiscard]] CardPlan plan() const { return planCard(photos, records); }
};

/** The two shoots of most tests: 20 and 12 shots, half an hour apart, with test shots before. */
Given twoShoots(double clock)
{
    Given given;
    given.records += record(QStringLiteral("/head/a.xml"), 20, 0.0);
    given.records += record(QStringLiteral("/head/b.xml"), 12, 1800.0);
    take(given.photos, 1, 20, clock);
    take(given.photos, 21, 12, 1800.0 + clock);
    return given;
}

/** A card of \p shoots shoots, most of the same program, and of which each photo is. */
Given madeCard(unsigned seed, int shoots, const Odds &odds, QVector<int> *truth)
{
    static const QVector<Fault> kFaults{ Fault::Aborted,           Fault::MissingOne,
                                         Fault::MissingSeveral,    Fault::Doubled,
                                         Fault::MissingAndDoubled, Fault::TestShot,
                                         Fault::Rollover,          Fault::Drifting,
                                         Fault::OtherCamera };
    std::mt19937 dice(seed);
    const auto below = [&dice](int count) { return static_cast<int>(dice() % unsigned(count)); };
    Given given;
    double start = 0.0;
    for (int shoot = 0; shoot < shoots; ++shoot) {
        ShootRecipe recipe;
        recipe.seed = static_cast<int>(seed) * 100 + shoot;
        recipe.inBrackets = below(4) == 0;
        recipe.offsetSeconds = odds.clock;
        recipe.times = Times::SubSeconds;
        if (odds.hasFaults && below(2) == 0) {
            recipe.faults += kFaults[below(kFaults.size())];
        }
        const MadeShoot made = madeShoot(recipe);
        CardRecord record;
        record.path = QStringLiteral("/head/%1.xml").arg(shoot);
        record.bracketCount = made.bracketCount;
        record.shots = made.shots;
        for (PanoHead::NotedShot &shot : record.shots) {
            shot.time = shot.time.addMSecs(qRound64(1000.0 * start));
        }
        given.records += record;
        for (int i = 0; i < made.photos.size(); ++i) {
            CardPhoto photo{ made.photos[i], {}, {} };
            const int last = photo.info.path.lastIndexOf(QLatin1Char('/')) + 1;
            photo.info.path = QStringLiteral("/card/%1%2")
                                  .arg(QChar('A' + shoot))
                                  .arg(photo.info.path.mid(last));
            if (photo.info.timeMs != 0) {
                photo.info.timeMs += qRound64(1000.0 * start);
            }
            photo.info.timeMs -= photo.info.timeMs % odds.stepMs;
            given.photos += photo;
            *truth += made.truth[i] < 0 ? -1 : shoot;
        }
        // From carrying the head over to the next spot to the next day.
        static const int kPauses[]{ 150, 300, 900, 3600, 80000 };
        start += std::floor(420.0 + below(kPauses[below(5)]));
    }
    return given;
}

/** "a.xml IMG_0001 20 sure": each shoot's record, first photo, count of photos and sureness. */
QStringList told(const Given &given, const CardPlan &plan)
{
    QStringList lines;
    for (const PlannedShoot &shoot : plan.shoots) {
        const QString path = given.photos[shoot.photos.front()].info.path;
        const char *const words[]{ "sure", "likely", "unsure" };
        lines += QStringLiteral("%1 %2 %3 %4")
                     .arg(shoot.record < 0
                              ? QStringLiteral("none")
                              : given.records[shoot.record].path.section(QLatin1Char('/'), -1),
                          path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0))
                     .arg(shoot.photos.size())
                     .arg(QLatin1String(words[static_cast<int>(shoot.sureness)]));
    }
    return lines;
}

int leftCount(const CardPlan &plan)
{
    std::size_t count = 0;
    for (const PhotoRun &run : plan.leftOver) {
        count += run.size();
    }
    return static_cast<int>(count);
}

/** Whether each photo and each record is in one place. */
bool isWhole(const Given &given, const CardPlan &plan)
{
    QVector<int> photos(given.photos.size(), 0);
    QVector<int> records(given.records.size(), 0);
    for (const PlannedShoot &shoot : plan.shoots) {
        for (const int photo : shoot.photos) {
            ++photos[photo];
        }
        if (shoot.photos.empty()) {
            return false;
        }
        if (shoot.record >= 0) {
            ++records[shoot.record];
        }
    }
    for (const PhotoRun &run : plan.leftOver) {
        for (const int photo : run) {
            ++photos[photo];
        }
    }
    for (const int idle : plan.idleRecords) {
        ++records[idle];
    }
    return photos.count(1) == photos.size() && records.count(1) == records.size();
}

} // namespace

Q_DECLARE_METATYPE(Odds)

/** Which photos of a card belong to which record. */
class TestCardPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clocksMayDiffer_data();
    void clocksMayDiffer();
    void nothingIsNothing();
    void faultsOfAShootAreCounted();
    void shootsWithoutAPauseAreToldApart();
    void aShootMayPause();
    void otherPhotosAreLeftOver();
    void twinsAreToldByTheirTimes();
    void anOddClockIsFoundOnALongCard();
    void twinsWithoutTimesAreNotSure();
    void aRecordThatFitsTwoGroupsIsNotSure();
    void foldersTellTwins();
    void bracketsTellTwins();
    void timesOfNoUseLeaveTheNumbers_data();
    void timesOfNoUseLeaveTheNumbers();
    void otherTimesSpeakAgainstTheSameNumber();
    void gridsNeedNoRecord();
    void manyShootsOfOneProgramAreToldApart_data();
    void manyShootsOfOneProgramAreToldApart();
    void anythingHasItsPlace();
    void stopsWhenTold();
};

void TestCardPlan::clocksMayDiffer_data()
{
    QTest::addColumn<double>("clock");
    QTest::newRow("agree") << 0.0;
    QTest::newRow("a few seconds") << 4.0;
    QTest::newRow("17 minutes") << 1020.0;
    QTest::newRow("summer time") << kHour;
    QTest::newRow("another continent") << 11 * kHour;
    QTest::newRow("a year") << 365 * 24 * kHour;
}

void TestCardPlan::clocksMayDiffer()
{
    QFETCH(double, clock);
    const Given given = twoShoots(clock);
    const CardPlan plan = given.plan();
    QCOMPARE(told(given, plan),
             (QStringList{ QStringLiteral("a.xml IMG_0001 20 sure"),
                           QStringLiteral("b.xml IMG_0021 12 sure") }));
    QVERIFY(plan.shoots[0].byTimes);
    QVERIFY(std::abs(plan.shoots[0].clockSeconds - clock) < 1.0);
    QVERIFY(plan.leftOver.empty() && plan.idleRecords.isEmpty());
}

void TestCardPlan::nothingIsNothing()
{
    Given given;
    QVERIFY(given.plan().shoots.isEmpty());
    take(given.photos, 1, 5, 0.0);
    QCOMPARE(leftCount(given.plan()), 5);
    given.photos.clear();
    given.records += record(QStringLiteral("/a.xml"), 7, 0.0);
    given.records += record(QStringLiteral("/b.xml"), 0, 0.0);
    QCOMPARE(given.plan().idleRecords, (QVector<int>{ 0, 1 }));
}

void TestCardPlan::faultsOfAShootAreCounted()
{
    // Stopped after 12 of 20 shots; shot 5 of the other has no photo, shot 9 two.
    Given given = twoShoots(1020.0);
    given.photos.erase(given.photos.begin() + 12, given.photos.begin() + 20);
    CardPhoto again = given.photos[12 + 8];
    again.info.path = CardShoots::pathOf(99);
    again.info.timeMs += 1500;
    given.photos += again;
    given.photos.removeAt(12 + 4);
    const CardPlan plan = given.plan();
    QCOMPARE(told(given, plan),
             (QStringList{ QStringLiteral("a.xml IMG_0001 12 sure"),
                           QStringLiteral("b.xml IMG_0021 12 sure") }));
    QCOMPARE(plan.shoots[0].missingShots, 8);
    QCOMPARE(plan.shoots[1].missingShots, 1);
    QCOMPARE(plan.shoots[1].doubledShots, 1);
}

void TestCardPlan::shootsWithoutAPauseAreToldApart()
{
    Given given;
    double start = 0.0;
    for (int shoot = 0; shoot < 3; ++shoot) {
        const int count = 14 + 4 * shoot;
        given.records += record(QStringLiteral("/head/%1.xml").arg(shoot), count, start);
        take(given.photos, 1 + given.photos.size(), count, start + 2.0);
        start += CardShoots::secondsOfShot(count) + 3.0;
    }
    QCOMPARE(told(given, given.plan()),
             (QStringList{ QStringLiteral("0.xml IMG_0001 14 sure"),
                           QStringLiteral("1.xml IMG_0015 18 sure"),
                           QStringLiteral("2.xml IMG_0033 22 sure") }));
}

void TestCardPlan::aShootMayPause()
{
    // The head waits for four minutes after shot 8; the camera's clock is 17 minutes ahead.
    Given given = twoShoots(1020.0);
    for (int shot = 8; shot < 20; ++shot) {
        PanoHead::NotedShot &noted = given.records[0].shots[shot];
        noted.time = noted.time.addSecs(240);
        given.photos[shot].info.timeMs += 240000;
    }
    QCOMPARE(told(given, given.plan()).first(), QStringLiteral("a.xml IMG_0001 20 sure"));

    // The same without a clock in the head.
    for (CardRecord &each : given.records) {
        for (PanoHead::NotedShot &shot : each.shots) {
            shot.time = {};
        }
        each.path.replace(QLatin1String("/head"), QLatin1String("/card"));
    }
    QCOMPARE(told(given, given.plan()).first(), QStringLiteral("a.xml IMG_0001 20 sure"));
}

void TestCardPlan::otherPhotosAreLeftOver()
{
    Given given = twoShoots(0.0);
    // Two tests before the second shoot, another camera during the first, a walk afterwards.
    for (const double seconds : { 1780.0, 1789.0 }) {
        given.photos += CardPhoto{ CardShoots::photo(CardShoots::pathOf(50), seconds), {}, {} };
    }
    for (const double seconds : { 10.0, 21.0, 33.0 }) {
        CardPhoto other{ CardShoots::photo(CardShoots::pathOf(60), seconds), {}, {} };
        other.info.camera = QStringLiteral("Telephone");
        given.photos += other;
    }
    for (const double seconds : { 4000.0, 4100.0, 4130.0, 5000.0 }) {
        given.photos += CardPhoto{ CardShoots::photo(CardShoots::pathOf(70), seconds), {}, {} };
    }
    const CardPlan plan = given.plan();
    QCOMPARE(told(given, plan),
             (QStringList{ QStringLiteral("a.xml IMG_0001 20 sure"),
                           QStringLiteral("b.xml IMG_0021 12 sure") }));
    QCOMPARE(leftCount(plan), 9);
    QVERIFY(isWhole(given, plan));
}

void TestCardPlan::twinsAreToldByTheirTimes()
{
    // Five shoots with the same program, by the same clock, 17 minutes off.
    Given given;
    for (int shoot = 0; shoot < 5; ++shoot) {
        const double start = shoot * 900.0 + 40.0 * shoot * shoot;
        given.records += record(QStringLiteral("/head/%1.xml").arg(shoot), 16, start);
        take(given.photos, 1 + 16 * shoot, 16, start + 1020.0);
    }
    QStringList expected;
    for (int shoot = 0; shoot < 5; ++shoot) {
        expected += QStringLiteral("%1.xml IMG_%2 16 sure")
                        .arg(shoot)
                        .arg(1 + 16 * shoot, 4, 10, QLatin1Char('0'));
    }
    QCOMPARE(told(given, given.plan()), expected);
}

void TestCardPlan::anOddClockIsFoundOnALongCard()
{
    // Many other shoots of the same program lie nearer in time.
    constexpr int kShoots = 20;
    constexpr double kClock = 91234.0;
    Given given;
    for (int shoot = 0; shoot < kShoots; ++shoot) {
        const double start = 600.0 * shoot + (shoot * shoot * 37) % 401;
        given.records += record(QStringLiteral("/head/%1.xml").arg(shoot), 16, start);
        take(given.photos, 1 + 16 * shoot, 16, start + kClock);
    }
    const CardPlan plan = given.plan();
    QCOMPARE(plan.shoots.size(), kShoots);
    for (int shoot = 0; shoot < kShoots; ++shoot) {
        QCOMPARE(plan.shoots[shoot].record, shoot);
        QCOMPARE(plan.shoots[shoot].photos.front(), 16 * shoot);
        QCOMPARE(plan.shoots[shoot].sureness, Sureness::Sure);
    }
}

void TestCardPlan::twinsWithoutTimesAreNotSure()
{
    Given given;
    given.records += record(QStringLiteral("/head/a.txt"), 16, -1.0);
    given.records += record(QStringLiteral("/head/b.txt"), 16, -1.0);
    take(given.photos, 1, 16, 0.0);
    take(given.photos, 17, 16, 900.0);
    const CardPlan plan = given.plan();
    QCOMPARE(plan.shoots.size(), 2);
    for (const PlannedShoot &shoot : plan.shoots) {
        QCOMPARE(shoot.sureness, Sureness::Unsure);
        QCOMPARE(shoot.rivalRecords, (QVector<int>{ 1 - shoot.record }));
    }
}

void TestCardPlan::aRecordThatFitsTwoGroupsIsNotSure()
{
    Given given;
    given.records += record(QStringLiteral("/head/a.xml"), 16, 0.0);
    take(given.photos, 1, 16, 1020.0);
    take(given.photos, 17, 16, 5130.0);
    const CardPlan plan = given.plan();
    QCOMPARE(plan.shoots.size(), 1);
    QCOMPARE(plan.shoots[0].sureness, Sureness::Unsure);
    QCOMPARE(plan.shoots[0].rivalPhotos.size(), std::size_t(1));
    QCOMPARE(leftCount(plan), 16);

    // One of them agrees with the head's clock.
    given.photos.clear();
    take(given.photos, 1, 16, 3.0);
    take(given.photos, 17, 16, 5130.0);
    QCOMPARE(told(given, given.plan()),
             (QStringList{ QStringLiteral("a.xml IMG_0001 16 sure"),
                           QStringLiteral("none IMG_0017 16 unsure") }));
}

void TestCardPlan::foldersTellTwins()
{
    Given given;
    for (int shoot = 0; shoot < 4; ++shoot) {
        const QString folder = QStringLiteral("/month/day%1").arg(shoot);
        given.records += record(folder + QStringLiteral("/record%1.txt").arg(shoot), 16, -1.0);
        take(given.photos, 1, 16, 900.0 * shoot, folder + QStringLiteral("/photos"));
    }
    const CardPlan plan = given.plan();
    QCOMPARE(plan.shoots.size(), 4);
    for (const PlannedShoot &shoot : plan.shoots) {
        QCOMPARE(shoot.sureness, Sureness::Sure);
        QVERIFY(given.photos[shoot.photos.front()].info.path.contains(
            QStringLiteral("day%1").arg(shoot.record)));
    }
}

void TestCardPlan::bracketsTellTwins()
{
    Given given;
    given.records += record(QStringLiteral("/head/a.xml"), 24, -1.0);
    given.records += record(QStringLiteral("/head/b.xml"), 24, -1.0);
    given.records[1].bracketCount = 3;
    take(given.photos, 1, 24, 0.0);
    take(given.photos, 25, 24, 900.0);
    for (int photo = 0; photo < 24; ++photo) {
        given.photos[photo].info.exposureValue = 12.0 + 2.0 * (photo % 3);
    }
    QCOMPARE(told(given, given.plan()),
             (QStringList{ QStringLiteral("b.xml IMG_0001 24 likely"),
                           QStringLiteral("a.xml IMG_0025 24 likely") }));
}

void TestCardPlan::timesOfNoUseLeaveTheNumbers_data()
{
    QTest::addColumn<int>("what");
    QTest::newRow("the head has no clock") << 0;
    QTest::newRow("the head's clock stands") << 1;
    QTest::newRow("the head's clock runs backwards") << 2;
    QTest::newRow("photos without times") << 3;
    QTest::newRow("photos with one and the same time") << 4;
}

void TestCardPlan::timesOfNoUseLeaveTheNumbers()
{
    QFETCH(int, what);
    Given given;
    given.records += record(QStringLiteral("/card/head/a.xml"), 20, 0.0);
    given.records += record(QStringLiteral("/card/head/b.xml"), 12, 1800.0);
    // Apart by their folders, which is all that is left when photos have no times.
    take(given.photos, 1, 20, 0.0, QStringLiteral("/card/1"));
    take(given.photos, 21, 12, 1800.0, QStringLiteral("/card/2"));
    for (CardRecord &each : given.records) {
        const QDateTime first = each.shots.first().time;
        for (int shot = 0; shot < each.shots.size() && what <= 2; ++shot) {
            each.shots[shot].time = what == 0 ? QDateTime()
                : what == 1                   ? first
                                              : first.addSecs(-10 * shot);
        }
    }
    for (CardPhoto &photo : given.photos) {
        photo.info.timeMs = what == 3 ? 0 : photo.info.timeMs;
    }
    if (what == 4) {
        for (int photo = 0; photo < 32; ++photo) {
            given.photos[photo].info.timeMs
                = CardShoots::timeAt(photo < 20 ? 7.0 : 1807.0).toMSecsSinceEpoch();
        }
    }
    const CardPlan plan = given.plan();
    QCOMPARE(told(given, plan),
             (QStringList{ QStringLiteral("a.xml IMG_0001 20 likely"),
                           QStringLiteral("b.xml IMG_0021 12 likely") }));
    QVERIFY(!plan.shoots[0].byTimes);
}

void TestCardPlan::otherTimesSpeakAgainstTheSameNumber()
{
    Given given;
    given.records += record(QStringLiteral("/head/a.xml"), 16, 0.0);
    for (int photo = 0; photo < 16; ++photo) {
        // A walk: nothing like the head's rhythm.
        const double seconds = 500.0 + 17.0 * photo + 11.0 * ((photo * photo) % 5);
        given.photos += CardPhoto{ CardShoots::photo(CardShoots::pathOf(photo), seconds), {}, {} };
    }
    const CardPlan plan = given.plan();
    QVERIFY(plan.shoots.isEmpty());
    QCOMPARE(plan.idleRecords, QVector<int>{ 0 });

    // Beside the record it may be, and is to be looked at.
    given.records[0].path = QStringLiteral("/card/a.xml");
    QCOMPARE(told(given, given.plan()), QStringList{ QStringLiteral("a.xml IMG_0000 16 unsure") });
}

void TestCardPlan::gridsNeedNoRecord()
{
    Given given = twoShoots(0.0);
    for (int photo = 0; photo < 24; ++photo) {
        const double seconds = 3600.0 + 4.0 * photo + 6.0 * (photo / 6);
        given.photos
            += CardPhoto{ CardShoots::photo(CardShoots::pathOf(33 + photo), seconds), {}, {} };
    }
    QCOMPARE(told(given, given.plan()),
             (QStringList{ QStringLiteral("a.xml IMG_0001 20 sure"),
                           QStringLiteral("b.xml IMG_0021 12 sure"),
                           QStringLiteral("none IMG_0033 24 unsure") }));
}

void TestCardPlan::manyShootsOfOneProgramAreToldApart_data()
{
    QTest::addColumn<Odds>("odds");
    QTest::newRow("sound, clocks agree") << Odds{ 0.0, 1000, false };
    QTest::newRow("sound, 17 minutes off") << Odds{ 1020.0, 10, false };
    QTest::newRow("sound, a clock without seconds") << Odds{ 7200.0, 60000, false };
    QTest::newRow("faulty, clocks agree") << Odds{ 3.0, 1000, true };
    QTest::newRow("faulty, an odd clock") << Odds{ 91234.0, 1000, true };
}

void TestCardPlan::manyShootsOfOneProgramAreToldApart()
{
    QFETCH(Odds, odds);
    const auto cards = static_cast<unsigned>(rounds(3, 120));
    int all = 0;
    int joined = 0;
    int surely = 0;
    QStringList wrong;
    for (unsigned seed = 1; seed <= cards; ++seed) {
        QVector<int> truth;
        const int shoots = 1 + static_cast<int>(seed % 6);
        const Given given = madeCard(seed, shoots, odds, &truth);
        const CardPlan plan = given.plan();
        QVERIFY(isWhole(given, plan));
        all += shoots;
        for (const PlannedShoot &shoot : plan.shoots) {
            if (shoot.record < 0) {
                continue;
            }
            const auto right
                = std::count_if(shoot.photos.begin(), shoot.photos.end(),
                                [&](int photo) { return truth[photo] == shoot.record; });
            const bool isRight = 10 * right >= 9 * static_cast<int>(shoot.photos.size());
            joined += isRight ? 1 : 0;
            surely += isRight && shoot.sureness == Sureness::Sure ? 1 : 0;
            if (!isRight && shoot.sureness != Sureness::Unsure) {
                wrong += QStringLiteral("card %1: record %2").arg(seed).arg(shoot.record);
            }
        }
    }
    QCOMPARE(wrong, QStringList());
    QVERIFY2(100 * joined >= 99 * all, qPrintable(QString::number(joined)));
    QVERIFY2(20 * surely >= 19 * all, qPrintable(QString::number(surely)));
}

void TestCardPlan::anythingHasItsPlace()
{
    for (unsigned seed = 0; seed < 25; ++seed) {
        std::mt19937 dice(seed);
        const auto below
            = [&dice](int count) { return static_cast<int>(dice() % unsigned(count)); };
        Given given;
        for (int i = below(8); i > 0; --i) {
            given.records += record(QStringLiteral("/%1/%2.xml").arg(below(3)).arg(i), below(30),
                                    below(4) == 0 ? -1.0 : below(9000));
            for (PanoHead::NotedShot &shot : given.records.last().shots) {
                if (below(10) == 0) {
                    shot.time = below(2) == 0 ? QDateTime() : shot.time.addSecs(below(200) - 100);
                }
            }
        }
        for (int i = below(12); i > 0; --i) {
            take(given.photos, below(9000), below(25), below(9000),
                 QStringLiteral("/%1").arg(below(3)));
        }
        for (CardPhoto &photo : given.photos) {
            if (below(20) == 0) {
                photo.info.timeMs = below(2) == 0 ? 0 : photo.info.timeMs - below(100000);
                photo.info.exposureValue.reset();
                photo.info.storedSize = QSize(below(3), below(3));
            }
        }
        const CardPlan plan = given.plan();
        QVERIFY2(isWhole(given, plan), qPrintable(QString::number(seed)));
    }
}

void TestCardPlan::stopsWhenTold()
{
    const Given given = twoShoots(0.0);
    JobWatch watch;
    watch.interrupted = [] { return true; };
    QVERIFY_EXCEPTION_THROWN((void)planCard(given.photos, given.records, watch), CommandError);
}

TEST_CLASS(TestCardPlan, QCoreApplication)
#include "tst_cardplan.moc"
