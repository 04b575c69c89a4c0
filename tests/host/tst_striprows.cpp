// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/striprows.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

namespace
{

using State = StripRow::State;

PhotoInfo photo(int number, double focal35mm = 24.0)
{
    PhotoInfo info;
    info.path = QStringLiteral("/p/%1.jpg").arg(number);
    info.focal35mm = focal35mm;
    info.timeMs = 1000LL * number;
    return info;
}

/** A report of a sound shoot of \p count shots. */
ShootReport report(const HeadFacts &head, int count, double focal35mm = 24.0)
{
    ShootReport report;
    report.head = &head;
    report.given = count;
    for (int i = 0; i < count; ++i) {
        report.photos += photo(i + 1, focal35mm);
    }
    report.lens = knownLensOf(report.photos);
    report.findings += photoFindings(report.photos, count);
    if (!head.isGrid()) {
        report.record = QStringLiteral("/p/r.xml");
        report.summary.shotCount = count;
        report.findings += recordFinding(report.record, report.summary);
    }
    return report;
}

PageState stateOf(const ShootReport &report, bool isComplete)
{
    PageState state;
    state.isComplete = isComplete;
    state.given = report.given;
    state.record = report.record;
    state.report = &report;
    return state;
}

StripRow row(const QVector<StripRow> &rows, const char *name)
{
    for (const StripRow &one : rows) {
        if (one.name == QLatin1String(name)) {
            return one;
        }
    }
    return {};
}

} // namespace

/** What the strip under a page says, without any widget. */
class TestStripRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextIsExplained_data();
    void nextIsExplained();
    void nextIsNotExplainedWhenItCanBePressed();
    void recordOfAnotherHeadOffersTheSwitch();
    void matchedPhotosCanBeFixedOnce();
    void doubtIsToldThoughThePageSeesNothing();
    void commandLineOptionsAreNotOffered();
    void focalLength_data();
    void focalLength();
    void shotsToTakeAgainCanBeShown();
    void linksAreCounted();
    void summaryTellsTheMostUrgent();

private:
    const HeadFacts &m_papywizard = *PanoHead::headFactsOf(QStringLiteral("papywizard"));
    const HeadFacts &m_gigapan = *PanoHead::headFactsOf(QStringLiteral("gigapan"));
};

void TestStripRows::nextIsExplained_data()
{
    QTest::addColumn<bool>("hasRecord");
    QTest::addColumn<int>("given");
    QTest::addColumn<bool>("isReading");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("action"); // -1: none
    QTest::newRow("nothing") << false << 0 << false << QStringLiteral("waits for the head's record")
                             << int(StripAction::ChooseRecord);
    QTest::newRow("photos alone") << false << 3 << false
                                  << QStringLiteral("waits for the head's record")
                                  << int(StripAction::ChooseRecord);
    QTest::newRow("record alone") << true << 0 << false << QStringLiteral("waits for the photos")
                                  << int(StripAction::ChoosePhotos);
    QTest::newRow("reading") << true << 3 << true
                             << QStringLiteral("waits until the photos have been read") << -1;
}

void TestStripRows::nextIsExplained()
{
    QFETCH(bool, hasRecord);
    QFETCH(int, given);
    QFETCH(bool, isReading);
    QFETCH(QString, text);
    QFETCH(int, action);
    PageState state;
    state.record = hasRecord ? QStringLiteral("/p/r.xml") : QString();
    state.given = given;
    state.isReading = isReading;
    const StripRow next = row(StripTexts(m_papywizard, state).rows(), "next");
    QCOMPARE(next.text, text);
    QCOMPARE(next.actions.isEmpty() ? -1 : int(next.actions.first()), action);
}

void TestStripRows::nextIsNotExplainedWhenItCanBePressed()
{
    const ShootReport sound = report(m_papywizard, 3);
    PageState state = stateOf(sound, true);
    const QVector<StripRow> rows = StripTexts(m_papywizard, state).rows();
    QCOMPARE(row(rows, "next").text, QString());
    QCOMPARE(row(rows, "record").text,
             QStringLiteral("r.xml: 3 shots, bracket 1, focal not known, lens not known"));
    QCOMPARE(StripTexts::summary(rows), QStringLiteral("Everything agrees"));
}

void TestStripRows::recordOfAnotherHeadOffersTheSwitch()
{
    ShootReport found = report(m_papywizard, 3);
    found.summary = {};
    found.refusal
        = Failure{ ExitCode::InputRefused, QStringLiteral("r.xml"), QStringLiteral("no XML"), {} };
    found.otherHead = PanoHead::headFactsOf(QStringLiteral("clauss"));
    PageState state = stateOf(found, false);
    const StripRow next = row(StripTexts(m_papywizard, state).rows(), "next");
    QVERIFY2(next.text.contains(QString::fromUtf8(found.otherHead->title)), qPrintable(next.text));
    QCOMPARE(next.actions.first(), StripAction::SwitchHead);
}

void TestStripRows::matchedPhotosCanBeFixedOnce()
{
    ShootReport found = report(m_papywizard, 3);
    found.summary.shotCount = 4;
    found.fitted = FittedPhotos{ ShotFit(4), found.photos, 1, false, {} };
    PageState state = stateOf(found, false);
    const StripRow next = row(StripTexts(m_papywizard, state).rows(), "next");
    QCOMPARE(next.text, QStringLiteral("waits: 3 photos for 4 shots"));
    QCOMPARE(next.actions, QVector<StripAction>{ StripAction::FitPhotos });
    state.isComplete = true; // one was doubled, too
    QCOMPARE(row(StripTexts(m_papywizard, state).rows(), "order").actions,
             QVector<StripAction>{ StripAction::FitPhotos });
    state.isFitted = true;
    const StripRow order = row(StripTexts(m_papywizard, state).rows(), "order");
    QCOMPARE(order.text, QStringLiteral("each photo stands at its shot"));
    QCOMPARE(order.actions, QVector<StripAction>());
    QCOMPARE(order.state, State::Good);
}

void TestStripRows::doubtIsToldThoughThePageSeesNothing()
{
    ShootReport found = report(m_papywizard, 3);
    found.refusal = Failure{
        ExitCode::InputRefused, QStringLiteral("r.xml"), QStringLiteral("cannot be told"), {}
    };
    PageState state = stateOf(found, true);
    const StripRow order = row(StripTexts(m_papywizard, state).rows(), "order");
    QCOMPARE(order.text, QStringLiteral("r.xml: cannot be told"));
    QCOMPARE(order.state, State::Trouble);
}

void TestStripRows::commandLineOptionsAreNotOffered()
{
    ShootReport found = report(m_papywizard, 3);
    found.refusal = Failure{ ExitCode::InputRefused, QStringLiteral("A"), QStringLiteral("B"),
                             QStringLiteral("one may be two; or say --order time") };
    PageState state = stateOf(found, true);
    QCOMPARE(row(StripTexts(m_papywizard, state).rows(), "order").text,
             QStringLiteral("A: B; one may be two"));
}

void TestStripRows::focalLength_data()
{
    QTest::addColumn<double>("ofPhotos");
    QTest::addColumn<double>("wished");
    QTest::addColumn<bool>("isRemembered");
    QTest::addColumn<QString>("text"); // null: no such row
    QTest::addColumn<bool>("isTrouble");
    QTest::newRow("named") << 24.0 << 0.0 << false << QString() << false;
    QTest::newRow("not named") << 0.0 << 0.0 << false
                               << QStringLiteral("no photo names it: enter it, as for 35 mm film")
                               << true;
    QTest::newRow("entered") << 0.0 << 35.0 << false << QStringLiteral("35 mm, as entered")
                             << false;
    QTest::newRow("remembered") << 0.0 << 35.0 << true
                                << QStringLiteral("35 mm, as the last time with such photos")
                                << false;
}

void TestStripRows::focalLength()
{
    QFETCH(double, ofPhotos);
    QFETCH(double, wished);
    QFETCH(bool, isRemembered);
    QFETCH(QString, text);
    QFETCH(bool, isTrouble);
    const ShootReport found = report(m_gigapan, 4, ofPhotos);
    PageState state;
    state.isComplete = true;
    state.given = 4;
    state.wishedFocal35mm = wished;
    state.isWishRemembered = isRemembered;
    state.report = &found;
    const StripRow focal = row(StripTexts(m_gigapan, state).rows(), "focal");
    QCOMPARE(focal.text, text);
    QCOMPARE(focal.state == State::Trouble, isTrouble);
}

void TestStripRows::shotsToTakeAgainCanBeShown()
{
    ShootReport found = report(m_papywizard, 3);
    Finding missing{ QStringLiteral("missing"), QStringLiteral("no photo for shot 4"),
                     Finding::Kind::Trouble };
    missing.shots = { 3 };
    missing.action = Finding::Action::Reshoot;
    found.findings += missing;
    PageState state = stateOf(found, true);
    const StripRow shown = row(StripTexts(m_papywizard, state).rows(), "missing");
    QCOMPARE(shown.shots, QVector<int>{ 3 });
    QCOMPARE(shown.actions, QVector<StripAction>{ StripAction::ShowShots });
}

void TestStripRows::linksAreCounted()
{
    // In a row, 40 degrees apart, and one far away. Half the diagonal of 24 mm is 42 degrees: pairs
    // up to 64.7 degrees apart are linked.
    QVector<NotedShot> shots(4);
    shots[1].yawDegrees = 40.0;
    shots[2].yawDegrees = 80.0;
    shots[3].yawDegrees = 220.0;
    const KnownLens lens{ 24.0, LensModel::Standard };
    const auto links = linksFinding(m_papywizard, shots, 1, lens);
    QVERIFY(links.has_value());
    QCOMPARE(links->text,
             QStringLiteral("2 links between 4 positions; 1 position without a "
                            "neighbour near enough"));
    QCOMPARE(links->kind, Finding::Kind::Trouble);
    QVERIFY(!linksFinding(m_papywizard, shots, 1, {}).has_value());
    QVERIFY(!linksFinding(m_gigapan, {}, 1, lens).has_value());
}

void TestStripRows::summaryTellsTheMostUrgent()
{
    const StripRow good{ QStringLiteral("a"), QStringLiteral("A"), QStringLiteral("fine") };
    const StripRow bad{ QStringLiteral("b"), QStringLiteral("B"), QStringLiteral("wrong"),
                        State::Trouble };
    const StripRow working{ QStringLiteral("c"), QStringLiteral("C"), QStringLiteral("..."),
                            State::Working };
    QCOMPARE(StripTexts::summary({ good }), QStringLiteral("Everything agrees"));
    QCOMPARE(StripTexts::summary({ good, working }), QStringLiteral("Looking at the photos..."));
    QCOMPARE(StripTexts::summary({ good, bad }), QStringLiteral("1 thing to look at - B: wrong"));
    QCOMPARE(StripTexts::summary({ bad, bad }), QStringLiteral("2 things to look at - B: wrong"));
}

TEST_CLASS(TestStripRows, QCoreApplication)
#include "tst_striprows.moc"
