// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/tieresidual.h"
#include "tests/host/align/trueshoot.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <array>
#include <cmath>

using namespace PanoHost;

namespace
{

/** The middle of a photo too, where directions have no angle. */
const Eigen::Vector2d kPixels[] = { { 449.5, 299.5 }, { 700.0, 130.0 }, { 333.0, 590.0 } };

/** Two photos, all that is solved for, and a point's residual. */
struct Tie {
    /** Two corrections, the head, two lenses. */
    using Unknowns = std::array<double, 18>;
    using Slopes = Eigen::Matrix<double, 2, 18>;

    Tie(LensModel first, LensModel second)
        : views{ { { 30.0, 12.0, 3.0 }, 90.0, 0, -1 }, { { 55.0, -8.0, -2.0 }, 0.0, 1, -1 } }
        , lenses(2, TrueShoot().lenses.front())
    {
        lenses[0].model = first;
        lenses[1].model = second;
        lenses[1].b = 0.001;
    }

    static Eigen::Vector2d match() { return { 411.0, 222.0 }; }

    [[nodiscard]] Eigen::Vector2d residual(const Eigen::Vector2d &pixel, const Unknowns &values,
                                           Slopes *slopes = nullptr) const
    {
        Attitudes attitudes(views, values.data(), values.data() + 6);
        attitudes.PrepareForEvaluation(slopes != nullptr, true);
        const TiePoint point{ 0, 1, pixel, match() };
        const TieResidual tie(point, attitudes, lenses[0], lenses[isOneLens ? 0 : 1]);
        const double *const blocks[] = { values.data(), values.data() + 3, values.data() + 6,
                                         values.data() + 10, values.data() + 14 };
        Eigen::Vector2d residual;
        double rows[5][2 * 4];
        double *jacobians[] = { rows[0], rows[1], rows[2], rows[3], rows[4] };
        tie.Evaluate(blocks, residual.data(), slopes != nullptr ? jacobians : nullptr);
        if (slopes != nullptr) {
            int column = 0;
            for (size_t block = 0; block < tie.parameter_block_sizes().size(); ++block) {
                const int size = tie.parameter_block_sizes()[block];
                for (int i = 0; i < size; ++i, ++column) {
                    slopes->col(column) << rows[block][i], rows[block][size + i];
                }
            }
        }
        return residual;
    }

    std::vector<AlignView> views;
    std::vector<AlignLens> lenses;
    bool isOneLens = false;
    Unknowns unknowns{ 0.3,  -0.2, 0.1,   -0.1,  0.25,  0.4,   0.8,    -0.5, 0.05,
                       -0.1, 0.02, 0.003, -0.02, 0.005, -0.01, -0.002, 0.01, 0.0 };
};

} // namespace

class TestTieResidual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void residualsAreThoseOfTheModel_data();
    void residualsAreThoseOfTheModel();
    void derivativesAreThoseOfTheResiduals_data();
    void derivativesAreThoseOfTheResiduals();
};

void TestTieResidual::residualsAreThoseOfTheModel_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    const int standard = static_cast<int>(LensModel::Standard);
    const int fisheye = static_cast<int>(LensModel::Fisheye);
    QTest::newRow("rectilinear") << standard << standard;
    QTest::newRow("fisheye") << fisheye << fisheye;
    QTest::newRow("mixed") << standard << fisheye;
}

void TestTieResidual::residualsAreThoseOfTheModel()
{
    QFETCH(int, first);
    QFETCH(int, second);
    const Tie tie(static_cast<LensModel>(first), static_cast<LensModel>(second));
    HeadModel model;
    model.views = tie.views;
    model.corrections = { { 0.3, -0.2, 0.1 }, { -0.1, 0.25, 0.4 } };
    model.mountPitchDegrees = 0.8;
    model.mountRollDegrees = -0.5;
    model.yawScale = std::exp(0.05);
    model.pitchScale = std::exp(-0.1);
    model.lenses = tie.lenses;
    for (size_t i = 0; i < 2; ++i) {
        const double *change = tie.unknowns.data() + (i == 0 ? 10 : 14);
        model.lenses[i].focalPixels *= std::exp(change[LogFocal]);
        model.lenses[i].a += change[DistortionA];
        model.lenses[i].b += change[DistortionB];
        model.lenses[i].c += change[DistortionC];
    }
    for (const Eigen::Vector2d &pixel : kPixels) {
        const auto expected = model.lensOf(1).pixelOf(
            model.rotation(1).transpose() * (model.rotation(0) * model.lensOf(0).rayOf(pixel)));
        QVERIFY(expected.has_value());
        const Eigen::Vector2d residual = tie.residual(pixel, tie.unknowns);
        QVERIFY((residual - (*expected - Tie::match())).norm() < 1e-8);
    }
}

void TestTieResidual::derivativesAreThoseOfTheResiduals_data()
{
    residualsAreThoseOfTheModel_data();
}

void TestTieResidual::derivativesAreThoseOfTheResiduals()
{
    QFETCH(int, first);
    QFETCH(int, second);
    for (const bool isOneLens : { true, false }) {
        Tie tie(static_cast<LensModel>(first), static_cast<LensModel>(second));
        tie.isOneLens = isOneLens;
        for (const Eigen::Vector2d &pixel : kPixels) {
            Tie::Slopes slopes = Tie::Slopes::Zero();
            (void)tie.residual(pixel, tie.unknowns, &slopes);
            for (size_t i = 0; i < (isOneLens ? 14 : 18); ++i) {
                constexpr double kStep = 1e-5;
                Tie::Unknowns more = tie.unknowns;
                Tie::Unknowns less = tie.unknowns;
                more[i] += kStep;
                less[i] -= kStep;
                const Eigen::Vector2d expected
                    = (tie.residual(pixel, more) - tie.residual(pixel, less)) / (2.0 * kStep);
                const Eigen::Vector2d slope = slopes.col(static_cast<Eigen::Index>(i));
                QVERIFY((slope - expected).norm() < 1e-5 * (1.0 + expected.norm()));
            }
        }
    }
}

TEST_CLASS(TestTieResidual, TestProgram::NoApplication)
#include "tst_tieresidual.moc"
