// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/solver.h"
#include "tests/host/align/trueshoot.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>

using namespace PanoHost;

namespace
{

using Change = std::function<void(TrueShoot &shoot)>;

/** \p degrees without their fraction, as whoever writes whole numbers may leave them. */
double cutOff(double degrees)
{
    return std::trunc(degrees);
}

double focalError(const HeadModel &model, const TrueShoot &shoot, size_t lens = 0)
{
    return std::abs(model.lenses[lens].focalPixels / shoot.lenses[lens].focalPixels - 1.0);
}

void verifyAtMost(double value, double most)
{
    QVERIFY2(value <= most, qPrintable(QStringLiteral("%1, not %2").arg(value).arg(most)));
}

} // namespace
Q_DECLARE_METATYPE(Change)

class TestSolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosAreFoundWithinTheHeadsPlay();
    void lensAndCameraAreFound_data();
    void lensAndCameraAreFound();
    void wrongFocalLengthsAreFound_data();
    void wrongFocalLengthsAreFound();
    void distortionIsFound();
    void eachLensHasItsOwnFocalLength();
    void whatIsNotFreeStays();
    void aSecondSolveKeepsTheFirstOnesRecord();
    void crookedCamerasCarryRowsWithoutPoints();
    void gridsOfUnknownStepsAndTiltAreFound_data();
    void gridsOfUnknownStepsAndTiltAreFound();
    void anglesThatWereCutOffAreFound();
    void photosWithoutPointsStandInTheMiddleOfWhatWasCutOff();
    void slipsAndBumpsAreFound_data();
    void slipsAndBumpsAreFound();
    void levelsStayWithTheirStacks();
    void wrongPointsDoLittleHarm_data();
    void wrongPointsDoLittleHarm();
    void islandsStandAsTheHeadHasPutThem_data();
    void islandsStandAsTheHeadHasPutThem();
    void photosWithoutPointsStayWhereTheHeadHasPutThem();
    void pointsThatNoLensSeesDoNoHarm();
    void pointsOfNoPhotoAreLeftOut();
    void nothingToSolveIsSolved();
    void theSameInputGivesTheSameAnswer();
    void progressOnlyGrows();
    void theUserCanStop();
};

void TestSolver::photosAreFoundWithinTheHeadsPlay()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    HeadModel model = shoot.recorded();
    const auto points = shoot.points(0.2);
    QVERIFY(shoot.error(model) > 0.2);
    const SolveResult result = solve(model, points, {});
    verifyAtMost(shoot.error(model), 0.005);
    // Evenly up to 0.3 degrees is 0.3 / sqrt(3) on an axis.
    QVERIFY(result.playKnown);
    for (const double degrees : { result.play.yaw, result.play.pitch, result.play.roll }) {
        QVERIFY(std::abs(degrees - 0.173) < 0.03);
    }
    // 0.2 pixels on each axis, widened as for a median of one axis.
    QVERIFY(std::abs(result.sigmaPixels - 0.2 * 1.4826) < 0.03);
    QCOMPARE(result.residuals.size(), points.size());
}

void TestSolver::lensAndCameraAreFound_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("fisheye") << Change([](TrueShoot &shoot) {
        shoot.lenses[0].model = LensModel::Fisheye;
        shoot.lenses[0].focalPixels = 400.0;
    });
    QTest::newRow("portrait") << Change([](TrueShoot &shoot) {
        for (TrueShoot::Photo &photo : shoot.photos) {
            photo.view.turnDegrees = 90.0;
        }
    });
    QTest::newRow("crooked camera") << Change([](TrueShoot &shoot) {
        shoot.mountPitch = 0.8;
        shoot.mountRoll = 0.5;
    });
}

void TestSolver::lensAndCameraAreFound()
{
    QFETCH(Change, change);
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    change(shoot);
    HeadModel model = shoot.recorded();
    (void)solve(model, shoot.points(0.2), {});
    verifyAtMost(shoot.error(model), 0.006);
    QVERIFY(focalError(model, shoot) <= 0.0005);
}

void TestSolver::wrongFocalLengthsAreFound_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("most");
    QTest::newRow("2 % longer") << 1.02 << 0.006;
    QTest::newRow("5 % longer") << 1.05 << 0.01;
    QTest::newRow("5 % shorter") << 0.95 << 0.01;
}

void TestSolver::wrongFocalLengthsAreFound()
{
    QFETCH(double, factor);
    QFETCH(double, most);
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    HeadModel model = shoot.recorded();
    model.lenses[0].focalPixels *= factor;
    (void)solve(model, shoot.points(0.2), {});
    verifyAtMost(shoot.error(model), most);
    QVERIFY(focalError(model, shoot) <= 0.0005);
}

void TestSolver::distortionIsFound()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    shoot.lenses[0].b = -0.02;
    HeadModel model = shoot.recorded();
    SolveOptions options;
    options.freesB = true;
    (void)solve(model, shoot.points(0.2), options);
    verifyAtMost(shoot.error(model), 0.006);
    QVERIFY(std::abs(model.lenses[0].b + 0.02) <= 0.0005);
    QCOMPARE(model.lenses[0].a, 0.0);
    QCOMPARE(model.lenses[0].c, 0.0);

    shoot.lenses[0].a = 0.004;
    shoot.lenses[0].c = -0.006;
    model = shoot.recorded();
    options.freesA = options.freesC = true;
    (void)solve(model, shoot.points(0.2), options);
    // The three and the focal length stand in for each other.
    verifyAtMost(shoot.error(model), 0.01);
}

void TestSolver::eachLensHasItsOwnFocalLength()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    shoot.lenses.push_back(shoot.lenses.front());
    shoot.lenses[1].focalPixels *= 1.2;
    for (size_t i = 0; i < shoot.photos.size(); i += 2) {
        shoot.photos[i].view.lens = 1;
    }
    HeadModel model = shoot.recorded();
    model.lenses[0].focalPixels *= 0.98;
    model.lenses[1].focalPixels *= 1.01;
    (void)solve(model, shoot.points(0.2), {});
    verifyAtMost(shoot.error(model), 0.008);
    QVERIFY(focalError(model, shoot, 0) <= 0.0005);
    QVERIFY(focalError(model, shoot, 1) <= 0.0005);
}

void TestSolver::whatIsNotFreeStays()
{
    TrueShoot shoot;
    shoot.addRow(0.0, 12);
    shoot.play(0.1);
    HeadModel model = shoot.recorded();
    model.lenses[0].focalPixels *= 1.02;
    model.lenses[0].b = 0.001;
    const double focal = model.lenses[0].focalPixels;
    SolveOptions options;
    options.freesFocal = false;
    (void)solve(model, shoot.points(0.2), options);
    QCOMPARE(model.lenses[0].focalPixels, focal);
    QCOMPARE(model.lenses[0].b, 0.001);
    QCOMPARE(model.yawScale, 1.0);
    QCOMPARE(model.pitchScale, 1.0);
}

void TestSolver::aSecondSolveKeepsTheFirstOnesRecord()
{
    TrueShoot shoot;
    shoot.addRow(0.0, 3);
    HeadModel model = shoot.recorded();
    const std::vector<AlignLens> recorded = model.lenses;
    model.lenses[0].focalPixels *= 1.1;
    SolveOptions options;
    options.recordedLenses = recorded;
    // Photos that do not overlap: only the record speaks.
    (void)solve(model, {}, options);
    QVERIFY(focalError(model, shoot) < 1e-6);
}

void TestSolver::crookedCamerasCarryRowsWithoutPoints()
{
    TrueShoot shoot;
    shoot.addRow(-25.0, 12);
    shoot.addRow(15.0, 12);
    shoot.addRow(55.0, 8);
    for (size_t i = 24; i < shoot.photos.size(); ++i) {
        shoot.photos[i].hasTexture = false;
    }
    shoot.play(0.05);
    shoot.mountPitch = 0.8;
    shoot.mountRoll = 0.5;
    HeadModel model = shoot.recorded();
    const auto isSky = [](int photo) { return photo >= 24; };
    const auto isLand = [](int photo) { return photo < 24; };
    QVERIFY(shoot.error(model, isSky, isLand) > 0.5);
    (void)solve(model, shoot.points(0.2), {});
    QVERIFY(shoot.error(model, isLand, isLand) <= 0.006);
    QVERIFY2(shoot.error(model, isSky, isLand) <= 0.15,
             qPrintable(QString::number(shoot.error(model, isSky, isLand))));
    QVERIFY(std::abs(model.mountPitchDegrees - 0.8) < 0.1);
    QVERIFY(std::abs(model.mountRollDegrees - 0.5) < 0.1);
}

void TestSolver::gridsOfUnknownStepsAndTiltAreFound_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("tilt");
    QTest::newRow("15 % shorter steps") << 0.85 << 0.0;
    QTest::newRow("15 % longer steps, tilted up") << 1.15 << 12.0;
    QTest::newRow("15 % shorter steps, tilted down") << 0.85 << -8.0;
}

void TestSolver::gridsOfUnknownStepsAndTiltAreFound()
{
    QFETCH(double, scale);
    QFETCH(double, tilt);
    TrueShoot shoot;
    shoot.lenses[0].focalPixels = 1500.0; // 33 x 23 degrees
    shoot.addGrid(9, 4, 18.0, 13.0);
    shoot.play(0.1);
    shoot.mountPitch = tilt;
    shoot.yawScale = scale;
    shoot.pitchScale = scale;
    HeadModel model = shoot.recorded();
    SolveOptions options;
    options.freesScales = true;
    options.mountPitchDegrees = 20.0;
    (void)solve(model, shoot.points(0.2), options);
    verifyAtMost(shoot.error(model), 0.012);
    QVERIFY(focalError(model, shoot) <= 0.005);
}

void TestSolver::anglesThatWereCutOffAreFound()
{
    TrueShoot shoot;
    shoot.addRow(-25.0, 13, -173.4);
    shoot.addRow(25.0, 13, -173.4);
    for (TrueShoot::Photo &photo : shoot.photos) {
        Angles &recorded = photo.view.recorded;
        recorded.pitch += recorded.pitch > 0.0 ? 0.6 : -0.2;
        const Angles exact = recorded;
        recorded = { cutOff(exact.yaw), cutOff(exact.pitch), 0.0 };
        photo.extra = { exact.yaw - recorded.yaw, exact.pitch - recorded.pitch, 0.0 };
    }
    shoot.play(0.02);
    const auto points = shoot.points(0.2);
    SolveOptions options;
    options.play.roll = 2.0;
    options.cutOff = true;
    HeadModel model = shoot.recorded();
    const SolveResult result = solve(model, points, options);
    verifyAtMost(shoot.error(model), 0.005);
    // What the head itself does is told apart from what was cut off.
    QVERIFY(result.play.yaw < 0.05);
    QVERIFY(result.play.pitch < 0.05);
}

void TestSolver::photosWithoutPointsStandInTheMiddleOfWhatWasCutOff()
{
    TrueShoot shoot;
    shoot.photos.resize(3);
    shoot.photos[0].view.recorded = { 40.0, -15.0, 0.0 };
    shoot.photos[1].view.recorded = { -100.0, 15.0, 0.0 };
    HeadModel model = shoot.recorded();
    SolveOptions options;
    options.cutOff = true;
    (void)solve(model, {}, options);
    const Angles expected[] = { { 0.5, -0.5, 0.0 }, { -0.5, 0.5, 0.0 }, { 0.0, 0.0, 0.0 } };
    for (size_t i = 0; i < 3; ++i) {
        QVERIFY(std::abs(model.corrections[i].yaw - expected[i].yaw) < 1e-6);
        QVERIFY(std::abs(model.corrections[i].pitch - expected[i].pitch) < 1e-6);
        QVERIFY(std::abs(model.corrections[i].roll - expected[i].roll) < 1e-6);
    }
}

void TestSolver::slipsAndBumpsAreFound_data()
{
    QTest::addColumn<bool>("isRow");
    QTest::addColumn<double>("play");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<double>("degrees");
    QTest::newRow("slipped from photo 14 on") << false << 0.3 << 14 << 26 << 6.0;
    QTest::newRow("slipped from photo 7 on") << false << 0.3 << 7 << 26 << 6.0;
    QTest::newRow("slipped near the end, an exact head") << false << 0.0 << 22 << 26 << 6.0;
    QTest::newRow("slipped halfway along a row, an exact head") << true << 0.0 << 6 << 12 << 6.0;
    QTest::newRow("slipped late in a row, an exact head") << true << 0.0 << 9 << 12 << 6.0;
    QTest::newRow("one bumped photo") << false << 0.3 << 5 << 6 << 3.0;
    QTest::newRow("one bumped photo on an exact head") << false << 0.0 << 5 << 6 << 3.0;
}

void TestSolver::slipsAndBumpsAreFound()
{
    QFETCH(bool, isRow);
    QFETCH(double, play);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(double, degrees);
    TrueShoot shoot;
    if (isRow) {
        shoot.lenses[0].focalPixels = 1200.0; // 41 degrees: only neighbours overlap
        shoot.addRow(0.0, 12);
    } else {
        shoot.addSphere();
    }
    shoot.play(play);
    for (int photo = from; photo < to; ++photo) {
        shoot.photos[static_cast<size_t>(photo)].extra.yaw += degrees;
    }
    HeadModel model = shoot.recorded();
    const SolveResult result = solve(model, shoot.points(isRow ? 0.1 : 0.2, isRow ? 20 : 40), {});
    verifyAtMost(shoot.error(model), 0.01);
    const auto isMoved = [from, to](int photo) { return photo >= from && photo < to; };
    const auto isNot = [&isMoved](int photo) { return !isMoved(photo); };
    verifyAtMost(shoot.error(model, isMoved, isNot), 0.02);
    // One photo does not spoil the head's name.
    if (to - from == 1) {
        verifyAtMost(result.play.yaw, 0.7 * play + 0.05);
    }
}

void TestSolver::levelsStayWithTheirStacks()
{
    TrueShoot shoot;
    shoot.addRow(0.0, 12);
    shoot.play(0.3);
    // Two more levels each; those of the first row of four find nothing in the dark.
    const int positions = static_cast<int>(shoot.photos.size());
    for (int level = 1; level < 3; ++level) {
        for (int i = 0; i < positions; ++i) {
            TrueShoot::Photo photo = shoot.photos[static_cast<size_t>(i)];
            photo.view.stack = i;
            photo.extra.yaw += level == 1 ? 0.01 : -0.01;
            photo.hasTexture = level == 1 || i >= 4;
            shoot.photos.push_back(photo);
        }
    }
    HeadModel model = shoot.recorded();
    const SolveResult result = solve(model, shoot.points(0.2), {});
    verifyAtMost(shoot.error(model), 0.006);
    const auto isDark
        = [&shoot](int photo) { return !shoot.photos[static_cast<size_t>(photo)].hasTexture; };
    // A hundredth of a degree apart and nothing to find it by.
    QVERIFY(shoot.error(model, isDark) <= 0.015);
    // Levels say nothing about the head.
    QVERIFY(result.play.yaw > 0.1);
}

void TestSolver::wrongPointsDoLittleHarm_data()
{
    QTest::addColumn<double>("share");
    QTest::newRow("5 %") << 0.05;
    QTest::newRow("20 %") << 0.2;
}

void TestSolver::wrongPointsDoLittleHarm()
{
    QFETCH(double, share);
    double clean = 0.0;
    double spoilt = 0.0;
    for (const unsigned seed : { 1U, 2U, 3U }) {
        TrueShoot shoot(seed);
        shoot.addSphere();
        shoot.play(0.3);
        auto points = shoot.points(0.2);
        HeadModel model = shoot.recorded();
        model.lenses[0].focalPixels *= 1.02;
        HeadModel other = model;
        (void)solve(model, points, {});
        clean += shoot.error(model);
        shoot.spoil(points, share);
        const SolveResult result = solve(other, points, {});
        spoilt += shoot.error(other);
        const auto wrong = std::count_if(
            result.residuals.cbegin(), result.residuals.cend(),
            [&result](double residual) { return residual > 4.0 * result.sigmaPixels; });
        QVERIFY(std::abs(static_cast<double>(wrong) / static_cast<double>(points.size()) - share)
                < 0.03);
    }
    QVERIFY2(spoilt <= 1.5 * clean, qPrintable(QStringLiteral("%1 %2").arg(spoilt).arg(clean)));
}

void TestSolver::islandsStandAsTheHeadHasPutThem_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("of the same size") << 12 << 12;
    QTest::newRow("of a few photos and many") << 5 << 19;
}

void TestSolver::islandsStandAsTheHeadHasPutThem()
{
    QFETCH(int, first);
    QFETCH(int, second);
    constexpr int kSeeds = 10;
    constexpr double kPlay = 0.3;
    double squares = 0.0;
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        TrueShoot shoot(seed);
        shoot.addRow(-40.0, first);
        shoot.addRow(40.0, second);
        shoot.play(kPlay);
        std::vector<TiePoint> points;
        for (int i = 0; i < first + second; ++i) {
            for (int j = i + 1; j < first + second; ++j) {
                if ((i < first) == (j < first)) {
                    shoot.appendPoints(points, { i, j }, 0.2, 40);
                }
            }
        }
        HeadModel model = shoot.recorded();
        (void)solve(model, points, {});
        const double between = shoot.error(
            model, [first](int photo) { return photo >= first; },
            [first](int photo) { return photo < first; });
        squares += between * between / kSeeds;
    }
    const double most = 1.3 * kPlay * std::sqrt(1.0 / first + 1.0 / second);
    QVERIFY2(std::sqrt(squares) <= most,
             qPrintable(QStringLiteral("%1 %2").arg(std::sqrt(squares)).arg(most)));
}

void TestSolver::photosWithoutPointsStayWhereTheHeadHasPutThem()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    shoot.photos[24].hasTexture = false;
    HeadModel model = shoot.recorded();
    (void)solve(model, shoot.points(0.2), {});
    QVERIFY(std::abs(model.corrections[24].yaw) < 1e-9);
    QVERIFY(std::abs(model.corrections[24].pitch) < 1e-9);
    QVERIFY(std::abs(model.corrections[24].roll) < 1e-9);
}

void TestSolver::pointsThatNoLensSeesDoNoHarm()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    auto points = shoot.points(0.2);
    const auto right = static_cast<std::ptrdiff_t>(points.size());
    // The first photo's and that of the other side.
    for (int i = 0; i < 40; ++i) {
        points.push_back({ 0, 6, { 20.0 * i, 10.0 * i }, { 800.0 - 20.0 * i, 10.0 * i } });
    }
    HeadModel model = shoot.recorded();
    const SolveResult result = solve(model, points, {});
    verifyAtMost(shoot.error(model), 0.005);
    QVERIFY(std::all_of(result.residuals.cbegin() + right, result.residuals.cend(),
                        [](double residual) { return std::isinf(residual); }));
}

void TestSolver::pointsOfNoPhotoAreLeftOut()
{
    TrueShoot shoot;
    shoot.addRow(0.0, 12);
    shoot.play(0.3);
    auto points = shoot.points(0.2);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<TiePoint> wrong = { { 0, 12, { 1, 1 }, { 2, 2 } },
                                          { -1, 1, { 1, 1 }, { 2, 2 } },
                                          { 3, 3, { 1, 1 }, { 2, 2 } },
                                          { 0, 1, { nan, 1 }, { 2, 2 } },
                                          { 0, 1, { 1, 1 }, { 2, nan } } };
    points.insert(points.begin(), wrong.cbegin(), wrong.cend());
    HeadModel model = shoot.recorded();
    const SolveResult result = solve(model, points, {});
    verifyAtMost(shoot.error(model), 0.01);
    for (size_t i = 0; i < wrong.size(); ++i) {
        QVERIFY(std::isinf(result.residuals[i]));
    }
    QVERIFY(std::isfinite(result.residuals.back()));
}

void TestSolver::nothingToSolveIsSolved()
{
    TrueShoot shoot;
    HeadModel model;
    SolveResult result = solve(model, {}, {});
    QVERIFY(result.residuals.empty());
    for (const int photos : { 1, 2, 12 }) {
        shoot.photos.clear();
        shoot.addRow(10.0, photos);
        model = shoot.recorded();
        model.corrections.clear();
        result = solve(model, {}, {});
        QVERIFY(!result.playKnown);
        QCOMPARE(result.play.yaw, SolveOptions().play.yaw);
        QCOMPARE(result.sigmaPixels, SolveOptions().lossPixels);
        QCOMPARE(static_cast<int>(model.corrections.size()), photos);
        QVERIFY(shoot.error(model) < 1e-9);
        QCOMPARE(model.lenses[0].focalPixels, shoot.lenses[0].focalPixels);
    }
}

void TestSolver::theSameInputGivesTheSameAnswer()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    auto points = shoot.points(0.2);
    shoot.spoil(points, 0.05);
    HeadModel models[] = { shoot.recorded(), shoot.recorded() };
    // Memory lies elsewhere the second time.
    const SolveResult first = solve(models[0], points, {});
    const std::vector<double> between(12345, 1.0);
    const SolveResult second = solve(models[1], points, {});
    QVERIFY(std::memcmp(models[0].corrections.data(), models[1].corrections.data(),
                        models[0].corrections.size() * sizeof(Angles))
            == 0);
    QVERIFY(
        std::memcmp(first.residuals.data(), second.residuals.data(), points.size() * sizeof(double))
        == 0);
    QVERIFY(models[0].lenses[0].focalPixels == models[1].lenses[0].focalPixels);
    QVERIFY(models[0].mountPitchDegrees == models[1].mountPitchDegrees);
}

void TestSolver::progressOnlyGrows()
{
    TrueShoot shoot;
    shoot.addRow(0.0, 12);
    shoot.play(0.3);
    HeadModel model = shoot.recorded();
    int before = 0;
    int last = 0;
    int of = -1;
    JobWatch watch;
    watch.progress = [&](int done, int total, const QString &text) {
        QVERIFY(done >= before);
        QVERIFY(!text.isEmpty());
        before = done;
        last = done;
        of = total;
    };
    (void)solve(model, shoot.points(0.2), {}, watch);
    QCOMPARE(last, of);
}

void TestSolver::theUserCanStop()
{
    TrueShoot shoot;
    shoot.addRow(0.0, 12);
    shoot.play(0.3);
    const auto points = shoot.points(0.2);
    // At once, before the first step, and later.
    for (const int patience : { 0, 1, 5 }) {
        HeadModel model = shoot.recorded();
        int asked = 0;
        JobWatch watch;
        watch.interrupted = [&asked, patience] { return ++asked > patience; };
        bool stopped = false;
        try {
            (void)solve(model, points, {}, watch);
        } catch (const CommandError &error) {
            stopped = error.failure().code == ExitCode::Interrupted;
        }
        QVERIFY(stopped);
        QCOMPARE(asked, patience + 1);
    }
}

TEST_CLASS(TestSolver, TestProgram::NoApplication)
#include "tst_solver.moc"
