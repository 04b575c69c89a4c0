// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/pace.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(std::chrono::milliseconds)

class TestPace : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void timeLeftFollowsFromWhatIsDone_data();
    void timeLeftFollowsFromWhatIsDone();
    void timeLeftIsSaidInOneUnit_data();
    void timeLeftIsSaidInOneUnit();
};

void TestPace::timeLeftFollowsFromWhatIsDone_data()
{
    QTest::addColumn<int>("done");
    QTest::addColumn<std::chrono::milliseconds>("taken");
    QTest::addColumn<double>("perSecond");
    QTest::addColumn<int>("left"); // -1: nobody knows
    QTest::newRow("nothing yet") << 0 << std::chrono::milliseconds(0) << 0.0 << -1;
    QTest::newRow("too soon") << 50 << std::chrono::milliseconds(1000) << 50.0 << -1;
    QTest::newRow("a quarter") << 75 << std::chrono::milliseconds(3000) << 25.0 << 9;
    QTest::newRow("rounded up") << 290 << std::chrono::milliseconds(2900) << 100.0 << 1;
    QTest::newRow("stuck at the start") << 0 << std::chrono::milliseconds(60000) << 0.0 << -1;
    QTest::newRow("done") << 300 << std::chrono::milliseconds(3000) << 100.0 << -1;
}

void TestPace::timeLeftFollowsFromWhatIsDone()
{
    QFETCH(int, done);
    QFETCH(std::chrono::milliseconds, taken);
    QFETCH(int, left);
    const Pace pace{ done, 300, taken };
    QTEST(pace.perSecond(), "perSecond");
    QCOMPARE(pace.left() ? static_cast<int>(pace.left()->count()) : -1, left);
}

void TestPace::timeLeftIsSaidInOneUnit_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("seconds") << 8 << QStringLiteral("8 s left");
    QTest::newRow("most seconds") << 99 << QStringLiteral("99 s left");
    QTest::newRow("minutes, rounded up") << 121 << QStringLiteral("3 min left");
    QTest::newRow("most minutes") << 5940 << QStringLiteral("99 min left");
    QTest::newRow("hours") << 7500 << QStringLiteral("2 h 5 min left");
}

void TestPace::timeLeftIsSaidInOneUnit()
{
    QFETCH(int, seconds);
    QTEST(timeLeftText(std::chrono::seconds(seconds)), "text");
}

TEST_CLASS(TestPace, QCoreApplication)
#include "tst_pace.moc"
