// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/previewlayout.h"
#include "tests/support/testprogram.h"
#include "tests/unit/shots.h"

#include <QTest>

#include <cmath>
#include <limits>

using PanoHead::AngleExtents;
using PanoHead::AngleRange;
using PanoHead::extentsOf;
using PanoHead::LayoutRules;
using PanoHead::layOutShots;
using PanoHead::Precision;
using PanoHead::PreviewCell;
using PanoHead::PreviewLayout;
using PanoHead::ShotLayout;
using PanoHead::Span;

namespace
{

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

// The rules of the three pages that draw a layout by angles.
constexpr LayoutRules kPapywizard{ 8.0, Span::Absolute, Precision::Double };
constexpr LayoutRules kVRDrive2{ 8.0, Span::NegatedSumToo, Precision::Double };
constexpr LayoutRules kClauss{ 0.0, Span::Absolute, Precision::Single };

using Shots = QVector<ShootData>;

/** Shots side by side at pitch 0. */
Shots row(const QVector<float> &yaws)
{
    Shots shots;
    for (const float yaw : yaws) {
        shots.append(shotAt(yaw, 0.0F));
    }
    return shots;
}

PreviewLayout layOut(const Shots &shots, const LayoutRules &rules)
{
    return layOutShots(shots, extentsOf(shots), rules);
}

QVector<QPointF> cornersOf(const PreviewLayout &layout)
{
    QVector<QPointF> corners;
    for (const PreviewCell &cell : layout.cells) {
        corners.append(cell.box.topLeft());
    }
    return corners;
}

/** No side beyond the painter's reach, no more memory than permitted, nothing outside. */
bool isWithin(const PreviewLayout &layout, const LayoutRules &rules)
{
    for (const PreviewCell &cell : layout.cells) {
        // By numbers: a cell too small to be seen contains nothing and is contained in nothing.
        if (!(cell.box.left() >= 0.0 && cell.box.right() <= layout.canvas.width()
              && cell.box.top() >= 0.0 && cell.box.bottom() <= layout.canvas.height())) {
            return false;
        }
    }
    return layout.canvas.width() <= rules.maxSide && layout.canvas.height() <= rules.maxSide
        && 4LL * layout.canvas.width() * layout.canvas.height() <= rules.maxCanvasBytes;
}

} // namespace

Q_DECLARE_METATYPE(ShootData)
Q_DECLARE_METATYPE(PanoHead::LayoutRules)
Q_DECLARE_METATYPE(PanoHead::AngleExtents)

class TestPreviewLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shotsStandWhereTheirAnglesSay_data();
    void shotsStandWhereTheirAnglesSay();
    void cellsCarryWhatIsDrawnIntoThem();
    void invertedRangesDifferBetweenThePagesWanted_data();
    void invertedRangesDifferBetweenThePagesWanted();
    void canvasWithinTheLimitsIsLeftAlone_data();
    void canvasWithinTheLimitsIsLeftAlone();
    void canvasBeyondTheLimitsIsReducedAsAWhole_data();
    void canvasBeyondTheLimitsIsReducedAsAWhole();
    void limitsAreThoseOfThePainterAndOfMemory();
    void nothingToLayOutGivesAnEmptyLayout_data();
    void nothingToLayOutGivesAnEmptyLayout();
    void shotsThatAreNotFiniteAreLeftOut_data();
    void shotsThatAreNotFiniteAreLeftOut();
    void extremeAnglesStayWithinTheLimits_data();
    void extremeAnglesStayWithinTheLimits();
    void aKeptLayoutFollowsItsShots();
};

void TestPreviewLayout::shotsStandWhereTheirAnglesSay_data()
{
    QTest::addColumn<Shots>("shots");
    QTest::addColumn<LayoutRules>("rules");
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QVector<QPointF>>("corners");

    using Corners = QVector<QPointF>;

    // Step 30, 96 / 30 = 3.2 px per degree: 3.2 x 60 + 100 = 292. Centres at 50 + 3.2 x angle; the
    // corner of a 96 px cell is 48 less.
    const Corners three{ { 2, 2 }, { 98, 2 }, { 194, 2 } };
    QTest::newRow("three beside each other")
        << row({ 0, 30, 60 }) << kClauss << QSize(292, 100) << three;
    QTest::newRow("the same in double precision")
        << row({ 0, 30, 60 }) << kPapywizard << QSize(292, 100) << three;
    QTest::newRow("somewhere else on the circle")
        << row({ 330, 360, 390 }) << kPapywizard << QSize(292, 100) << three;
    QTest::newRow("from right to left") << row({ 60, 30, 0 }) << kPapywizard << QSize(292, 100)
                                        << Corners{ { 194, 2 }, { 98, 2 }, { 2, 2 } };

    // 96 / max(4, 8) = 12: 12 x 8 + 100 = 196
    QTest::newRow("steps below 8 degrees count as 8")
        << row({ 0, 4, 8 }) << kPapywizard << QSize(196, 100)
        << Corners{ { 2, 2 }, { 50, 2 }, { 98, 2 } };
    // 96 / 4 = 24: 24 x 8 + 100 = 292
    QTest::newRow("or as they are, where no smallest step is given")
        << row({ 0, 4, 8 }) << kClauss << QSize(292, 100) << three;
    QTest::newRow("a step of exactly 8 degrees")
        << row({ 0, 8, 16 }) << kPapywizard << QSize(292, 100) << three;

    // Steps 30 and 40; 3.2 x 30 + 100 = 196, 3.2 x 40 + 100 = 228. Pitch -40 is drawn at
    // 50 + 3.2 x (40 + 40 - 40) = 178, pitch 0 at 50.
    QTest::newRow("higher pitch is drawn higher")
        << Shots{ shotAt(0, 0), shotAt(30, 0), shotAt(30, -40), shotAt(0, -40) } << kPapywizard
        << QSize(196, 228) << Corners{ { 2, 2 }, { 98, 2 }, { 98, 130 }, { 2, 130 } };
    // Pitch step 20: 4.8 x 60 + 100 = 388, 4.8 x 20 + 100 = 196
    QTest::newRow("the smaller of both steps counts")
        << Shots{ shotAt(0, 0), shotAt(60, 20) } << kPapywizard << QSize(388, 196)
        << Corners{ { 2, 98 }, { 290, 2 } };
    QTest::newRow("steps of 0 are none")
        << row({ 0, 0, 0, 30, 30, 60 }) << kPapywizard << QSize(292, 100)
        << Corners{ { 2, 2 }, { 2, 2 }, { 2, 2 }, { 98, 2 }, { 98, 2 }, { 194, 2 } };
    // Steps 50 and 40, although 0 and 10 are nearer: 2.4 x 50 + 100 = 220
    QTest::newRow("only steps between consecutive shots count")
        << row({ 0, 50, 10 }) << kPapywizard << QSize(220, 100)
        << Corners{ { 2, 2 }, { 122, 2 }, { 26, 2 } };

    QTest::newRow("one shot") << row({ 123 }) << kPapywizard << QSize(100, 100)
                              << Corners{ { 2, 2 } };
    QTest::newRow("one position of several shots")
        << row({ 123, 123 }) << kClauss << QSize(100, 100) << Corners{ { 2, 2 }, { 2, 2 } };
    // 96 / 360 x 720 + 100 = 292
    QTest::newRow("no step counts for more than 360 degrees")
        << row({ 0, 720 }) << kPapywizard << QSize(292, 100) << Corners{ { 2, 2 }, { 194, 2 } };
    // 96 / 8 = 12: 12 x 360 + 100 = 4420, 12 x 180 + 100 = 2260
    QTest::newRow("a full sphere at the smallest step")
        << Shots{ shotAt(-180, -90), shotAt(-172, -90), shotAt(180, 90) } << kPapywizard
        << QSize(4420, 2260) << Corners{ { 2, 2162 }, { 98, 2162 }, { 4322, 2 } };

    // Step 10: 9.6 x 25.0625 = 240.6, the canvas is cut to 340 pixels, the cell is not
    QTest::newRow("canvas is truncated")
        << row({ 0, 10, 25.0625F }) << kPapywizard << QSize(340, 100)
        << Corners{ { 2, 2 }, { 98, 2 }, { 9.6 * 25.0625 + 2, 2 } };
}

void TestPreviewLayout::shotsStandWhereTheirAnglesSay()
{
    QFETCH(Shots, shots);
    QFETCH(LayoutRules, rules);

    const PreviewLayout layout = layOut(shots, rules);
    QTEST(layout.canvas, "canvas");
    QTEST(cornersOf(layout), "corners");
    for (const PreviewCell &cell : layout.cells) {
        QCOMPARE(cell.box.size(), QSizeF(96, 96));
    }

    // On ordinary shoots both ways to take the span are one, and precision only matters below.
    LayoutRules otherSpan = rules;
    otherSpan.span = Span::NegatedSumToo;
    QVERIFY(layOut(shots, otherSpan) == layout);
}

void TestPreviewLayout::cellsCarryWhatIsDrawnIntoThem()
{
    const Shots shots{ shotAt(0, -10, 90), shotAt(30, 20, -180), shotAt(0, -10) };
    const PreviewLayout layout = layOut(shots, kPapywizard);
    QCOMPARE(layout.cells.size(), shots.size());
    for (int i = 0; i < shots.size(); ++i) {
        const PreviewCell &cell = layout.cells.at(i);
        QCOMPARE(cell.image, i);
        QCOMPARE(cell.yaw, shots.at(i).yaw);
        QCOMPARE(cell.pitch, shots.at(i).pitch);
        QCOMPARE(cell.roll, shots.at(i).roll);
    }
}

/** Only a range that nothing has been put into is inverted; the pages differ there by design. */
void TestPreviewLayout::invertedRangesDifferBetweenThePagesWanted_data()
{
    QTest::addColumn<LayoutRules>("rules");
    QTest::addColumn<int>("width");

    // 3.2 px per degree; |-30 - 10| = 40; -(-30 + 10) = 20
    QTest::newRow("absolute span") << kPapywizard << 228;
    QTest::newRow("negated sum") << kVRDrive2 << 164;
}

void TestPreviewLayout::invertedRangesDifferBetweenThePagesWanted()
{
    QFETCH(LayoutRules, rules);
    const AngleExtents inverted{ { 10, -30 }, { 0, 0 } };
    QTEST(layOutShots(row({ 0, 30 }), inverted, rules).canvas.width(), "width");
}

void TestPreviewLayout::canvasWithinTheLimitsIsLeftAlone_data()
{
    QTest::addColumn<Shots>("shots");
    QTest::addColumn<LayoutRules>("rules");
    QTest::addColumn<QSize>("canvas");

    LayoutRules exact{ 0.0, Span::Absolute, Precision::Double };
    const auto limited = [](int maxSide, qint64 maxCanvasBytes) {
        LayoutRules rules{ 0.0, Span::Absolute, Precision::Double };
        rules.maxSide = maxSide;
        rules.maxCanvasBytes = maxCanvasBytes;
        return rules;
    };
    // 96 px per degree: 96 x 340.28125 + 100 = 32,767
    QTest::newRow("32,767 pixels wide") << row({ 0, 1, 340.28125F }) << exact << QSize(32767, 100);
    // 96 x 340.2890625 + 100 = 32,767.75
    QTest::newRow("32,767 pixels and a part wide")
        << row({ 0, 1, 340.2890625F }) << exact << QSize(32767, 100);
    QTest::newRow("32,767 pixels high")
        << Shots{ shotAt(0, 0), shotAt(0, 1), shotAt(0, 340.28125F) } << exact << QSize(100, 32767);
    // 96 x 1 + 100 = 196 a side
    const Shots diagonal{ shotAt(0, 0), shotAt(1, 1) };
    QTest::newRow("side as permitted") << diagonal << limited(196, 1LL << 40) << QSize(196, 196);
    QTest::newRow("memory as permitted")
        << diagonal << limited(32767, 4 * 196 * 196) << QSize(196, 196);
    QTest::newRow("smallest canvas in the smallest memory")
        << row({ 5 }) << limited(100, 4 * 100 * 100) << QSize(100, 100);

    // The page's own precision decides the pixel. In double 96.0 / 11 x 99 + 100 is a little below
    // 964 and 96.0 / 19 x 171 + 100 is 964; in single it is the other way round.
    QTest::newRow("11 degrees, double") << row({ 0, 11, 99 }) << exact << QSize(963, 100);
    QTest::newRow("11 degrees, single") << row({ 0, 11, 99 }) << kClauss << QSize(964, 100);
    QTest::newRow("19 degrees, double") << row({ 0, 19, 171 }) << exact << QSize(964, 100);
    QTest::newRow("19 degrees, single") << row({ 0, 19, 171 }) << kClauss << QSize(963, 100);
}

void TestPreviewLayout::canvasWithinTheLimitsIsLeftAlone()
{
    QFETCH(Shots, shots);
    QFETCH(LayoutRules, rules);

    const PreviewLayout layout = layOut(shots, rules);
    QTEST(layout.canvas, "canvas");
    for (const PreviewCell &cell : layout.cells) {
        QCOMPARE(cell.box.size(), QSizeF(96, 96));
    }
}

void TestPreviewLayout::canvasBeyondTheLimitsIsReducedAsAWhole_data()
{
    QTest::addColumn<Shots>("shots");
    QTest::addColumn<LayoutRules>("rules");
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<double>("cellSide");

    const auto limited = [](int maxSide, qint64 maxCanvasBytes) {
        LayoutRules rules{ 0.0, Span::Absolute, Precision::Double };
        rules.maxSide = maxSide;
        rules.maxCanvasBytes = maxCanvasBytes;
        return rules;
    };
    const LayoutRules exact{ 0.0, Span::Absolute, Precision::Double };
    // 96 x 340.296875 = 32,668.5 is to be 32,667: cells of 96 x 32,667 / 32,668.5 = 95.9956
    QTest::newRow("just too wide")
        << row({ 0, 1, 340.296875F }) << exact << QSize(32766, 100) << 95.9956;
    QTest::newRow("just too high") << Shots{ shotAt(0, 0), shotAt(0, 1), shotAt(0, 340.296875F) }
                                   << exact << QSize(100, 32766) << 95.9956;
    // 96 + 100 = 196 is to be 195: 95 px per degree
    const Shots diagonal{ shotAt(0, 0), shotAt(1, 1) };
    QTest::newRow("a pixel too wide")
        << diagonal << limited(195, 1LL << 40) << QSize(194, 194) << 95.0;
    // sqrt(196 x 196 - 1 / 4) = 195.99936
    QTest::newRow("a byte too large")
        << diagonal << limited(32767, 4 * 196 * 196 - 1) << QSize(195, 195) << 95.99936;
    // 12 px per degree: 60,000 + 100 each way is to be 8,192: 96 x 8,092 / 60,000 = 12.9472
    QTest::newRow("one far position beside a small step")
        << Shots{ shotAt(0, 0), shotAt(8, 0), shotAt(5000, 5000) } << kPapywizard
        << QSize(8191, 8191) << 12.9472;
    // 96 px per degree: 34,464 x 17,184 with r (34,464 r + 100) (17,184 r + 100) = 67,108,864:
    // 592,229,376 r^2 + 5,164,800 r = 67,098,864, r = 0.332267
    QTest::newRow("a full sphere of whole degrees")
        << Shots{ shotAt(0, -90), shotAt(1, -90), shotAt(359, 89) } << kClauss << QSize(11551, 5809)
        << 31.8976;
    // 12 x 100,000 + 100 wide is to be 32,767: 96 x 32,667 / 1,200,000 = 2.61336
    QTest::newRow("many turns") << row({ 0, 8, 100'000 }) << kVRDrive2 << QSize(32766, 100)
                                << 2.61336;
}

void TestPreviewLayout::canvasBeyondTheLimitsIsReducedAsAWhole()
{
    QFETCH(Shots, shots);
    QFETCH(LayoutRules, rules);
    QFETCH(QSize, canvas);
    QFETCH(double, cellSide);

    const PreviewLayout layout = layOut(shots, rules);
    // A reduced canvas keeps a millionth of reserve: a side may be the pixel more.
    const QSize more = layout.canvas - canvas;
    QVERIFY2(more.width() >= 0 && more.width() <= 1 && more.height() >= 0 && more.height() <= 1,
             qPrintable(
                 QStringLiteral("%1 x %2").arg(layout.canvas.width()).arg(layout.canvas.height())));
    QVERIFY(isWithin(layout, rules));
    QCOMPARE(layout.cells.size(), shots.size());
    for (const PreviewCell &cell : layout.cells) {
        QVERIFY2(std::abs(cell.box.width() - cellSide) < 1e-3,
                 qPrintable(QString::number(cell.box.width(), 'g', 9)));
        QCOMPARE(cell.box.width(), cell.box.height());
    }
}

void TestPreviewLayout::limitsAreThoseOfThePainterAndOfMemory()
{
    QCOMPARE(LayoutRules().maxSide, 32'767);
    QCOMPARE(LayoutRules().maxCanvasBytes, 268'435'456LL);
    QCOMPARE(PanoHead::kCellSide, 96);
}

void TestPreviewLayout::nothingToLayOutGivesAnEmptyLayout_data()
{
    QTest::addColumn<Shots>("shots");
    QTest::addColumn<AngleExtents>("extents");

    const AngleRange measured{ 0, 30 };
    const Shots shots = row({ 0, 30 });
    QTest::newRow("no shots") << Shots() << AngleExtents{ measured, measured };
    QTest::newRow("no shots, nothing loaded")
        << Shots() << AngleExtents{ AngleRange::unknown(), AngleRange::unknown() };
    QTest::newRow("no shots, scanned")
        << Shots() << AngleExtents{ AngleRange::scanStart(), AngleRange::scanStart() };
    QTest::newRow("unknown yaw") << shots << AngleExtents{ AngleRange::unknown(), measured };
    QTest::newRow("unknown pitch") << shots << AngleExtents{ measured, AngleRange::unknown() };
    QTest::newRow("yaw of a scan without shots")
        << shots << AngleExtents{ AngleRange::scanStart(), measured };
    QTest::newRow("pitch of a scan without shots")
        << shots << AngleExtents{ measured, AngleRange::scanStart() };
    QTest::newRow("infinite yaw") << shots << AngleExtents{ { 0, kInfinity }, measured };
    QTest::newRow("infinite pitch") << shots << AngleExtents{ measured, { -kInfinity, 0 } };
    QTest::newRow("yaw not a number") << shots << AngleExtents{ { kNaN, 30 }, measured };
    QTest::newRow("pitch not a number") << shots << AngleExtents{ measured, { 0, kNaN } };
    QTest::newRow("all shots not a number")
        << row({ kNaN, kNaN }) << extentsOf(row({ kNaN, kNaN }));
    QTest::newRow("an infinite shot") << row({ 0, kInfinity }) << extentsOf(row({ 0, kInfinity }));
}

void TestPreviewLayout::nothingToLayOutGivesAnEmptyLayout()
{
    QFETCH(Shots, shots);
    QFETCH(AngleExtents, extents);
    for (const LayoutRules &rules : { kPapywizard, kVRDrive2, kClauss }) {
        const PreviewLayout layout = layOutShots(shots, extents, rules);
        QVERIFY(layout.isEmpty());
        QVERIFY(layout.cells.isEmpty());
    }
}

void TestPreviewLayout::shotsThatAreNotFiniteAreLeftOut_data()
{
    QTest::addColumn<ShootData>("odd");

    QTest::newRow("yaw not a number") << shotAt(kNaN, 0);
    QTest::newRow("pitch not a number") << shotAt(30, kNaN);
    QTest::newRow("yaw infinite") << shotAt(kInfinity, 0);
    QTest::newRow("pitch infinite") << shotAt(30, -kInfinity);
}

void TestPreviewLayout::shotsThatAreNotFiniteAreLeftOut()
{
    QFETCH(ShootData, odd);

    // Steps 0 to 30 and 30 to 60; those from and to the odd shot are none.
    const Shots shots{ shotAt(0, 0), shotAt(30, 0), odd, shotAt(30, 0), shotAt(60, 0) };
    const AngleExtents extents{ { 0, 60 }, { 0, 0 } };
    for (const LayoutRules &rules : { kPapywizard, kVRDrive2, kClauss }) {
        const PreviewLayout layout = layOutShots(shots, extents, rules);
        QCOMPARE(layout.canvas, QSize(292, 100));
        QCOMPARE(cornersOf(layout),
                 QVector<QPointF>({ { 2, 2 }, { 98, 2 }, { 98, 2 }, { 194, 2 } }));
        QCOMPARE(layout.cells.at(2).image, 3);
    }
}

void TestPreviewLayout::extremeAnglesStayWithinTheLimits_data()
{
    QTest::addColumn<Shots>("shots");

    constexpr float kLargest = std::numeric_limits<float>::max();
    QTest::newRow("steps too small for a scale") << row({ 0, 1e-40F, 30 });
    QTest::newRow("steps just too small for a scale") << row({ 0, 1e-37F, 30 });
    QTest::newRow("tiny steps") << row({ 0, 1e-30F, 30 });
    QTest::newRow("tiny steps on a large range") << row({ 0, 1e-30F, 3e30F });
    QTest::newRow("small steps") << Shots{ shotAt(0, 0), shotAt(1e-5F, 0), shotAt(300, 80) };
    QTest::newRow("a large range") << row({ -1e30F, 1e30F });
    QTest::newRow("a range that 32 bits cannot hold") << row({ -3e38F, 3e38F });
    QTest::newRow("the same for pitch") << Shots{ shotAt(0, -3e38F), shotAt(1, 3e38F) };
    QTest::newRow("both ranges") << Shots{ shotAt(-3e38F, -3e38F), shotAt(0, 8),
                                           shotAt(3e38F, 3e38F) };
    QTest::newRow("largest numbers")
        << Shots{ shotAt(-kLargest, -kLargest), shotAt(kLargest, kLargest) };
    QTest::newRow("one largest number") << Shots{ shotAt(0, 0), shotAt(kLargest, 0) };
    QTest::newRow("smallest numbers") << row({ -1e-45F, 1e-45F });
}

/** Nothing may be drawn of them, but no side is negative and no number leaves its type. */
void TestPreviewLayout::extremeAnglesStayWithinTheLimits()
{
    QFETCH(Shots, shots);
    for (const LayoutRules &rules : { kPapywizard, kVRDrive2, kClauss }) {
        const PreviewLayout layout = layOut(shots, rules);
        QVERIFY(isWithin(layout, rules));
        if (!layout.isEmpty()) {
            QVERIFY(layout.canvas.width() >= 100 && layout.canvas.height() >= 100);
            QCOMPARE(layout.cells.size(), shots.size());
        }
    }
}

void TestPreviewLayout::aKeptLayoutFollowsItsShots()
{
    Shots shots = row({ 0, 30, 60 });
    AngleExtents extents = extentsOf(shots);
    ShotLayout kept(kPapywizard);
    QVERIFY(kept.of({}, { AngleRange::unknown(), AngleRange::unknown() }).isEmpty());
    QVERIFY(kept.of(shots, extents) == layOutShots(shots, extents, kPapywizard));

    // The same list and range: the same cells, not equal ones.
    const auto *const cells = kept.of(shots, extents).cells.constData();
    QCOMPARE(kept.of(shots, extents).cells.constData(), cells);

    shots[0].roll += 90.0F;
    QCOMPARE(kept.of(shots, extents).cells.at(0).roll, 90.0F);
    shots[2].yaw = 90.0F;
    QVERIFY(kept.of(shots, extents) == layOutShots(shots, extents, kPapywizard));
    extents = extentsOf(shots);
    QCOMPARE(kept.of(shots, extents).canvas, QSize(388, 100)); // 3.2 x 90 + 100
    shots.append(shotAt(120, 0));
    QCOMPARE(kept.of(shots, extentsOf(shots)).cells.size(), 4);
    shots.clear();
    QVERIFY(kept.of(shots, extents).isEmpty());
}

TEST_CLASS(TestPreviewLayout, QCoreApplication)
#include "tst_previewlayout.moc"
