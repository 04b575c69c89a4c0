// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/overallprogress.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;
using namespace std::chrono_literals;

class TestOverallProgress : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stepsAreCountedInTheText();
    void shareFollowsFromGuessAndMeasurement_data();
    void shareFollowsFromGuessAndMeasurement();
    void finishedStepsCorrectTheGuessOfLaterOnes();
    void keptStepsSayNothingOfTheMachine();
    void betterGuessesReplaceEarlierOnes();
    void partsShareTheTimeOfTheirStep();
    void unknownPartsGetHalfOfWhatIsLeft();
    void neverGoesBackNorEndsByItself();
    void timeLeftIsAboutRightOnASlowMachine();
    void nonsenseOfAStepIsBorne();
};

void TestOverallProgress::stepsAreCountedInTheText()
{
    OverallProgress progress({ { 1.0 }, { 1.0 }, { 1.0 } });
    progress.begin(0, 0ms);
    QCOMPARE(progress.at(0, 5, QStringLiteral("reading"), 0ms).text,
             QStringLiteral("reading (step 1 of 3)"));
    progress.begin(2, 10ms);
    QCOMPARE(progress.at(0, 5, QStringLiteral("warping %1.jpg"), 10ms).text,
             QStringLiteral("warping %1.jpg (step 3 of 3)"));
}

void TestOverallProgress::shareFollowsFromGuessAndMeasurement_data()
{
    QTest::addColumn<int>("doneOfTen");
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<int>("permille");
    // Steps of 10 and 30 seconds; the guess weighs 4.
    QTest::newRow("at the start") << 0 << 0 << 0;
    // left = 5 * 0.5 + 0.25 * 10 * 1 + 30 * 1 = 35; 5 / 40
    QTest::newRow("as guessed") << 5 << 5000 << 125;
    // slowness = 14 / 9; left = 10 * 0.5 + 32.5 * 14 / 9 = 55.556; 10 / 65.556
    QTest::newRow("half as fast") << 5 << 10000 << 152;
    // slowness = 14 / 14; left = 30; 10 / 40
    QTest::newRow("first step done") << 10 << 10000 << 250;
    // slowness = 14 / 4; left = 10 + 40 * 3.5 = 150; 10 / 160
    QTest::newRow("nothing done for long") << 0 << 10000 << 62;
}

void TestOverallProgress::shareFollowsFromGuessAndMeasurement()
{
    QFETCH(int, doneOfTen);
    QFETCH(int, milliseconds);
    OverallProgress progress({ { 10.0, { 1.0 } }, { 30.0, { 1.0 } } });
    progress.begin(0, 0ms);
    QTEST(progress.at(doneOfTen, 10, {}, std::chrono::milliseconds(milliseconds)).done, "permille");
}

void TestOverallProgress::finishedStepsCorrectTheGuessOfLaterOnes()
{
    OverallProgress progress({ { 10.0, { 1.0 } }, { 30.0, { 1.0 } } });
    progress.begin(0, 0ms);
    (void)progress.at(10, 10, {}, 20s);
    progress.begin(1, 20s);
    // slowness = 24 / 14; left = 30 * 24 / 14 = 51.43; 20 / 71.43
    QCOMPARE(progress.at(0, 10, {}, 20s).done, 280);
}

void TestOverallProgress::keptStepsSayNothingOfTheMachine()
{
    OverallProgress progress({ { 10.0, { 1.0 } }, { 30.0, { 1.0 } } });
    progress.begin(0, 0ms);
    progress.begin(1, 0ms);
    // left = 15 * 0.5 + 0.25 * 30 = 15; 15 / 30
    QCOMPARE(progress.at(5, 10, {}, 15s).done, 500);
}

void TestOverallProgress::betterGuessesReplaceEarlierOnes()
{
    OverallProgress progress({ { 10.0, { 1.0 } }, { 30.0, { 1.0 } } });
    progress.begin(0, 0ms);
    progress.expect(1, 90.0);
    // left = 90; 10 / 100
    QCOMPARE(progress.at(10, 10, {}, 10s).done, 100);
}

void TestOverallProgress::partsShareTheTimeOfTheirStep()
{
    OverallProgress progress({ { 100.0, { 0.8, 0.2 } } });
    progress.begin(0, 0ms);
    QCOMPARE(progress.at(4, 4, QStringLiteral("a"), 80s).done, 800);
    // Another total, and one that begins anew with the same total.
    QCOMPARE(progress.at(1, 2, QStringLiteral("b"), 90s).done, 900);

    OverallProgress again({ { 100.0, { 0.8, 0.2 } } });
    again.begin(0, 0ms);
    (void)again.at(4, 4, QStringLiteral("a"), 80s);
    QCOMPARE(again.at(2, 4, QStringLiteral("b"), 90s).done, 900);
}

void TestOverallProgress::unknownPartsGetHalfOfWhatIsLeft()
{
    OverallProgress progress(QVector<OverallProgress::Step>{ { 100.0, { 0.6 } } });
    progress.begin(0, 0ms);
    QCOMPARE(progress.at(1, 1, {}, 60s).done, 600);
    QCOMPARE(progress.at(2, 2, {}, 80s).done, 800);
    QCOMPARE(progress.at(3, 3, {}, 90s).done, 900);
}

void TestOverallProgress::neverGoesBackNorEndsByItself()
{
    OverallProgress progress({ { 1.0, { 1.0 } }, { 500.0, { 1.0 } } });
    int last = 0;
    auto now = 0ms;
    for (int step = 0; step < 2; ++step) {
        progress.begin(step, now);
        progress.expect(1, 1000.0);
        for (int done = 0; done <= 20; ++done) {
            now += done % 3 == 0 ? 10ms : 3000ms;
            const int told = progress.at(done, 20, {}, now).done;
            QVERIFY(told >= last && told < OverallProgress::kTotal);
            last = told;
        }
    }
    QVERIFY(last > 950);
}

/** As the console reckons: what is left goes as fast as what is done. */
void TestOverallProgress::timeLeftIsAboutRightOnASlowMachine()
{
    // Guessed as 10, 20 and 30 seconds; each takes four times as long.
    OverallProgress progress({ { 10.0, { 1.0 } }, { 20.0, { 1.0 } }, { 30.0, { 1.0 } } });
    auto now = 0ms;
    for (int step = 0; step < 3; ++step) {
        progress.begin(step, now);
        for (int done = 0; done < 10 * (step + 1); ++done) {
            const int told = progress.at(done, 10 * (step + 1), {}, now).done;
            if (now >= 20s) {
                const double over = std::chrono::duration<double>(now).count();
                const double left = over * (OverallProgress::kTotal - told) / told;
                QVERIFY2(left > 0.6 * (240.0 - over) - 1.0 && left < 1.3 * (240.0 - over) + 1.0,
                         qPrintable(QStringLiteral("%1 at %2").arg(left).arg(over)));
            }
            now += 4s;
        }
    }
}

void TestOverallProgress::nonsenseOfAStepIsBorne()
{
    OverallProgress progress(QVector<OverallProgress::Step>{ { 1.0 } });
    progress.begin(0, 0ms);
    for (const auto &[done, total] : { std::pair(0, 0), std::pair(5, 2), std::pair(-1, 3),
                                       std::pair(1, -1), std::pair(3, 3) }) {
        const int told = progress.at(done, total, {}, 1s).done;
        QVERIFY(told >= 0 && told < OverallProgress::kTotal);
    }
}

TEST_CLASS(TestOverallProgress, QCoreApplication)
#include "tst_overallprogress.moc"
