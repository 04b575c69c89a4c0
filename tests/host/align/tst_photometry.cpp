// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/photometry.h"
#include "tests/host/align/trueshoot.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace PanoHost;

namespace
{

/** A shoot through a lens whose corners get 45 % less light, each photo exposed in its own way. */
struct Bright {
    explicit Bright(double share = 0.45)
        : falloff(share)
    {
        shoot.addSphere();
        for (size_t i = 0; i < shoot.photos.size(); ++i) {
            values.push_back(random(-0.4, 0.4));
        }
        for (const TiePoint &point : shoot.points(0.0)) {
            const double scene = std::exp2(random(-3.5, -1.0));
            points.push_back({ point, shown(scene, point.first, point.inFirst),
                               shown(scene, point.second, point.inSecond) });
        }
    }

    double random(double from, double to)
    {
        return std::uniform_real_distribution<double>(from, to)(draws);
    }

    double arrives(const Eigen::Vector2d &pixel) const
    {
        // 900 x 600: half of the diagonal is 540.83 pixels.
        const double r = std::hypot(pixel.x() - 449.5, pixel.y() - 299.5) / 540.83;
        return 1.0 - falloff * (0.7 * r * r + 0.3 * std::pow(r, 4));
    }

    double shown(double scene, int photo, const Eigen::Vector2d &pixel)
    {
        return scene * arrives(pixel) * std::exp2(-values[static_cast<size_t>(photo)])
            * random(0.98, 1.02);
    }

    Photometry solved(const PhotometryOptions &options = {})
    {
        const HeadModel model = shoot.recorded();
        return solvePhotometry(model.views, model.lenses, points, options);
    }

    /** The largest error of an exposure, of which only differences can be known; stops. */
    double worstExposure(const Photometry &found) const
    {
        double mean = 0.0;
        for (size_t i = 0; i < values.size(); ++i) {
            mean += (found.exposureValues[i] - values[i]) / static_cast<double>(values.size());
        }
        double worst = 0.0;
        for (size_t i = 0; i < values.size(); ++i) {
            worst = std::max(worst, std::abs(found.exposureValues[i] - values[i] - mean));
        }
        return worst;
    }

    /** The largest error of the curve anywhere in the photo. */
    double worstCurve(const Vignetting &found) const
    {
        double worst = 0.0;
        for (double r = 0.0; r <= 1.0; r += 0.05) {
            const double curve
                = 1.0 + found.b * r * r + found.c * std::pow(r, 4) + found.d * std::pow(r, 6);
            worst = std::max(worst, std::abs(curve - arrives({ 449.5 + 540.83 * r, 299.5 })));
        }
        return worst;
    }

    double falloff;
    std::mt19937 draws{ 7 };
    TrueShoot shoot;
    std::vector<double> values; ///< exposure values: one more is half as bright
    std::vector<LightPoint> points;
};

} // namespace

class TestPhotometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exposuresAndVignettingAreFound();
    void wrongPointsDoLittleHarm();
    void darkAndBrightPointsSayNothing();
    void withoutPointsTheRecordStands();
    void vignettingMayBeLeftOut();
    void theUserCanStop();
};

void TestPhotometry::exposuresAndVignettingAreFound()
{
    Bright bright;
    const Photometry found = bright.solved();
    QVERIFY(bright.worstExposure(found) < 0.02);
    QVERIFY(bright.worstCurve(found.vignetting.front()) < 0.02);
    QCOMPARE(found.pointsUsed, static_cast<int>(bright.points.size()));
    QVERIFY(found.sigmaStops < 0.05);
}

void TestPhotometry::wrongPointsDoLittleHarm()
{
    Bright bright;
    for (size_t i = 0; i < bright.points.size(); i += 5) {
        bright.points[i].lightInSecond = bright.random(0.03, 0.9);
    }
    const Photometry found = bright.solved();
    QVERIFY(bright.worstExposure(found) < 0.03);
    QVERIFY(bright.worstCurve(found.vignetting.front()) < 0.03);
}

void TestPhotometry::darkAndBrightPointsSayNothing()
{
    Bright bright;
    const auto right = static_cast<int>(bright.points.size());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // Clipped in both photos, whatever their exposures.
    bright.points.insert(bright.points.end(), 2000,
                         { { 0, 1, { 800, 300 }, { 100, 300 } }, 1.0, 1.0 });
    bright.points.insert(bright.points.end(), 2000,
                         { { 0, 1, { 800, 300 }, { 100, 300 } }, 0.0, 0.5 });
    bright.points.push_back({ { 0, 1, { 800, 300 }, { 100, 300 } }, nan, 0.5 });
    bright.points.push_back({ { 0, 26, { 800, 300 }, { 100, 300 } }, 0.5, 0.5 });
    const Photometry found = bright.solved();
    QCOMPARE(found.pointsUsed, right);
    QVERIFY(bright.worstExposure(found) < 0.02);
}

void TestPhotometry::withoutPointsTheRecordStands()
{
    Bright bright;
    bright.points.clear();
    PhotometryOptions options;
    options.recordedValues = bright.values;
    const Photometry found = bright.solved(options);
    for (size_t i = 0; i < bright.values.size(); ++i) {
        QVERIFY(std::abs(found.exposureValues[i] - bright.values[i]) < 1e-9);
    }
    QCOMPARE(found.vignetting.front().b, 0.0);
    QCOMPARE(found.pointsUsed, 0);
    QVERIFY(solvePhotometry({}, {}, {}, {}).exposureValues.empty());
}

void TestPhotometry::vignettingMayBeLeftOut()
{
    Bright bright(0.0);
    PhotometryOptions options;
    options.freesVignetting = false;
    const Photometry found = bright.solved(options);
    QCOMPARE(found.vignetting.front().b, 0.0);
    QVERIFY(bright.worstExposure(found) < 0.02);
}

void TestPhotometry::theUserCanStop()
{
    Bright bright;
    const HeadModel model = bright.shoot.recorded();
    for (const int patience : { 0, 2 }) {
        int asked = 0;
        JobWatch watch;
        watch.interrupted = [&asked, patience] { return ++asked > patience; };
        bool stopped = false;
        try {
            (void)solvePhotometry(model.views, model.lenses, bright.points, {}, watch);
        } catch (const CommandError &error) {
            stopped = error.failure().code == ExitCode::Interrupted;
        }
        QVERIFY(stopped);
    }
}

TEST_CLASS(TestPhotometry, TestProgram::NoApplication)
#include "tst_photometry.moc"
