// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/diagnosis.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <numeric>

using namespace PanoHost;

namespace
{

AlignLens lens(double focalPixels = 400.0)
{
    AlignLens made;
    made.size = QSize(600, 400);
    made.focalPixels = focalPixels;
    return made;
}

/** Two rows of \p count views each, corrections of up to 0.3 degrees that repeat every seven views.
 */
HeadModel playingHead(int count)
{
    HeadModel model;
    model.lenses.push_back(lens());
    for (int i = 0; i < 2 * count; ++i) {
        AlignView view;
        view.recorded = { 360.0 * (i % count) / count, i < count ? -20.0 : 20.0, 0.0 };
        model.views.push_back(view);
        model.corrections.push_back({ 0.1 * (i % 7 - 3), 0.1 * ((i * 3) % 7 - 3), 0.0 });
    }
    return model;
}

std::vector<int> all(const HeadModel &model)
{
    std::vector<int> views(model.views.size());
    std::iota(views.begin(), views.end(), 0);
    return views;
}

/** What \p model says of spots in its neighbours, each residual as \p error says. */
template <typename Error> std::vector<TiePoint> pointsOf(const HeadModel &model, const Error &error)
{
    std::vector<TiePoint> points;
    for (int i = 0; i + 1 < int(model.views.size()); ++i) {
        for (int k = 0; k < 40; ++k) {
            // Spread over the second photo; none needs to lie in the first.
            TiePoint point{ i, i + 1, {}, { 15.0 * k, 10.0 * ((k * 7) % 40) } };
            const Eigen::Vector3d ray = model.rotation(i).transpose() * model.rotation(i + 1)
                * lens().rayOf(point.inSecond);
            const auto pixel = lens().pixelOf(ray);
            if (pixel) {
                point.inFirst = *pixel;
                point.inSecond -= error(i, point.inSecond);
                points.push_back(point);
            }
        }
    }
    return points;
}

} // namespace

class TestDiagnosis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void playIsNoSlipAndNoBump();
    void slipsAreFoundWhereTheyBegin_data();
    void slipsAreFoundWhereTheyBegin();
    void undoneSlipsLeaveThePhotosWhereTheyAre();
    void bumpsAreNamedOneByOne();
    void turnsAtTheZenithAreNoBumps();
    void playIsMeasuredOverBothAxes();
    void residualsAreMeasuredInTheSecondPhoto();
    void noiseAndLensErrorsAreNoParallax();
    void neighboursThatErrAlikeSuggestParallax();
    void levellingBringsTheCommonVerticalUpright();
    void aSinglePhotoIsNotLevelled();
};

void TestDiagnosis::playIsNoSlipAndNoBump()
{
    const HeadModel model = playingHead(14);
    QVERIFY(!findSlip(model, all(model)).has_value());
    QVERIFY(findBumps(model, all(model)).empty());
}

void TestDiagnosis::slipsAreFoundWhereTheyBegin_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::newRow("in the middle, to the right") << 14 << 6.0 << 0.0;
    QTest::newRow("early, to the left") << 3 << -6.0 << 0.0;
    QTest::newRow("late, downwards") << 25 << 0.0 << -4.0;
}

void TestDiagnosis::slipsAreFoundWhereTheyBegin()
{
    QFETCH(int, from);
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    HeadModel model = playingHead(14);
    for (size_t i = size_t(from); i < model.views.size(); ++i) {
        model.corrections[i].yaw += yaw;
        model.corrections[i].pitch += pitch;
    }
    const auto slip = findSlip(model, all(model));
    QVERIFY(slip.has_value());
    QCOMPARE(slip->view, from);
    QVERIFY(std::abs(slip->yawDegrees - yaw) <= 0.3);
    QVERIFY(std::abs(slip->pitchDegrees - pitch) <= 0.3);
}

void TestDiagnosis::undoneSlipsLeaveThePhotosWhereTheyAre()
{
    HeadModel model = playingHead(14);
    model.yawScale = 1.1;
    const Eigen::Matrix3d before = model.rotation(20);
    undoSlip(model, { 14, 6.0, 0.0 });
    QVERIFY(degreesBetween(model.rotation(20), before) < 1e-9);
    QVERIFY(std::abs(model.corrections[20].yaw - (0.1 * (20 % 7 - 3) - 6.0)) < 1e-12);
    QCOMPARE(model.corrections[13].yaw, 0.1 * (13 % 7 - 3));
}

void TestDiagnosis::bumpsAreNamedOneByOne()
{
    HeadModel model = playingHead(14);
    model.corrections[9].pitch += 3.0;
    const auto bumps = findBumps(model, all(model));
    QCOMPARE(bumps.size(), size_t(1));
    QCOMPARE(bumps.front().view, 9);
    QVERIFY(std::abs(bumps.front().degrees - 3.0) < 0.5);
    // One photo is no slip of everything after it.
    QVERIFY(!findSlip(model, all(model)).has_value());
}

void TestDiagnosis::turnsAtTheZenithAreNoBumps()
{
    HeadModel model = playingHead(14);
    model.views[9].recorded.pitch = 90.0;
    model.corrections[9].yaw += 30.0;
    QVERIFY(findBumps(model, all(model)).empty());
}

void TestDiagnosis::playIsMeasuredOverBothAxes()
{
    HeadModel model = playingHead(14);
    // 0, 0.1, 0.1, 0.2, 0.2, 0.3, 0.3 in equal numbers: the median is 0.2.
    const auto play = playOf(model, all(model));
    QVERIFY(play.has_value());
    QVERIFY(std::abs(*play - 1.4826 * 0.2) < 1e-9);
    QVERIFY(!playOf(model, { 0, 1, 2 }).has_value());
}

void TestDiagnosis::residualsAreMeasuredInTheSecondPhoto()
{
    const HeadModel model = playingHead(14);
    for (const TiePoint &point :
         pointsOf(model, [](int, const Eigen::Vector2d &) { return Eigen::Vector2d(0.5, -2.0); })) {
        const auto residual = residualOf(model, point);
        QVERIFY(residual.has_value());
        QVERIFY((*residual - Eigen::Vector2d(0.5, -2.0)).norm() < 1e-8);
    }
}

void TestDiagnosis::noiseAndLensErrorsAreNoParallax()
{
    const HeadModel model = playingHead(14);
    quint32 state = 1;
    const auto random = [&state] {
        state = state * 1664525U + 1013904223U;
        return (state >> 8) / 8388608.0 - 1.0;
    };
    const auto noise = pointsOf(model, [&](int, const Eigen::Vector2d &) {
        return Eigen::Vector2d(2.0 * random(), 2.0 * random());
    });
    QVERIFY(!parallaxPixels(model, noise, 0.5).has_value());
    const auto lensError = pointsOf(model, [](int, const Eigen::Vector2d &place) {
        const Eigen::Vector2d away = place - Eigen::Vector2d(299.5, 199.5);
        return Eigen::Vector2d(away * away.squaredNorm() / 4e7);
    });
    QVERIFY(!parallaxPixels(model, lensError, 0.5).has_value());
}

void TestDiagnosis::neighboursThatErrAlikeSuggestParallax()
{
    const HeadModel model = playingHead(14);
    // Walls at different distances: the left half of an overlap moves, another one in each pair.
    const auto points = pointsOf(model, [](int pair, const Eigen::Vector2d &place) {
        const double nearness = std::sin(pair * 2.0 + place.x() / 150.0);
        return Eigen::Vector2d(1.5 * nearness, 0.0);
    });
    const auto pixels = parallaxPixels(model, points, 0.5);
    QVERIFY(pixels.has_value());
    QVERIFY(*pixels > 0.5 && *pixels < 1.5);
    QVERIFY(!parallaxPixels(model, points, 2.0).has_value());
}

void TestDiagnosis::levellingBringsTheCommonVerticalUpright()
{
    HeadModel model = playingHead(14);
    for (Angles &correction : model.corrections) {
        correction = {};
    }
    QVERIFY(degreesBetween(levelling(model), Eigen::Matrix3d::Identity()) < 1e-6);
    // A head on a slope: pitch and roll rise and fall once a turn.
    HeadModel slope = model;
    const Eigen::Matrix3d tilt = rotationOf({ 0.0, 5.0, 0.0 });
    for (size_t i = 0; i < slope.views.size(); ++i) {
        const Angles tilted = anglesOf(tilt * model.rotation(int(i)));
        slope.views[i].recorded = tilted;
    }
    QVERIFY(degreesBetween(levelling(slope), tilt.transpose()) < 1e-6);
}

void TestDiagnosis::aSinglePhotoIsNotLevelled()
{
    HeadModel model;
    model.lenses.push_back(lens());
    model.views.push_back({ { 10.0, 5.0, 7.0 }, 0.0, 0, -1 });
    model.corrections.resize(1);
    QVERIFY(levelling(model).isIdentity());
}

TEST_CLASS(TestDiagnosis, QCoreApplication)
#include "tst_diagnosis.moc"
