// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/previewlayout.h"
#include "tests/support/testprogram.h"

#include <QTest>

#include <cmath>

using namespace PanoHead;

/** Layout pictures of shoots that no head makes. */
class TestPreviewLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShootGivesAPictureWithinTheLimits_data();
    void everyShootGivesAPictureWithinTheLimits();
    void aLongPictureFillsTheLongestSide_data();
    void aLongPictureFillsTheLongestSide();
    void nothingIsDrawnOverRangesThatAreNotFinite_data();
    void nothingIsDrawnOverRangesThatAreNotFinite();
};

namespace
{

using Angles = QVector<QPair<float, float>>; // yaw and pitch, degrees

QVector<ShootData> shotsAt(const Angles &angles)
{
    QVector<ShootData> shots;
    for (const auto &angle : angles) {
        ShootData shot;
        shot.yaw = angle.first;
        shot.pitch = angle.second;
        shots.append(shot);
    }
    return shots;
}

constexpr float kMax = std::numeric_limits<float>::max();
constexpr float kLeast = std::numeric_limits<float>::denorm_min();
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

const QVector<LayoutRules> kRules = {
    { 8.0, Span::Absolute, Precision::Double },
    { 8.0, Span::NegatedSumToo, Precision::Double },
    { 0.0, Span::Absolute, Precision::Single },
};

} // namespace

void TestPreviewLimits::everyShootGivesAPictureWithinTheLimits_data()
{
    QTest::addColumn<Angles>("angles");

    QTest::newRow("three positions, one far off") << Angles{ { 0, 0 }, { 8, 0 }, { 5000, 5000 } };
    Angles grid;
    for (int row = 0; row < 180; ++row) {
        for (int column = 0; column < 360; ++column) {
            grid.append({ static_cast<float>(column), static_cast<float>(row - 90) });
        }
    }
    QTest::newRow("360 x 180 at one degree") << grid;
    QTest::newRow("span beyond 32-bit floats") << Angles{ { 0, -3e38F }, { 1, 3e38F } };
    QTest::newRow("both spans beyond 32-bit floats")
        << Angles{ { -kMax + 1e32F, -3e38F }, { 3e38F, 3e38F } };
    QTest::newRow("smallest step of all") << Angles{ { 0, 0 }, { kLeast, 0 }, { 360, 90 } };
    QTest::newRow("scale just within 32-bit floats")
        << Angles{ { 0, 0 }, { 3e-37F, 0 }, { 360, 90 } };
    QTest::newRow("tiny step, span beyond 32-bit floats")
        << Angles{ { 0, 0 }, { 3e-37F, 0 }, { 3e38F, -3e38F }, { -3e38F, 0 } };
    QTest::newRow("thin and long") << Angles{ { 0, 0 }, { 1, 0 }, { 3e38F, 1e-30F } };
    QTest::newRow("a pixel too wide for 32,767") << Angles{ { 0, 0 }, { 1, 0 }, { 340.302F, 0 } };
}

void TestPreviewLimits::everyShootGivesAPictureWithinTheLimits()
{
    QFETCH(const Angles, angles);

    const QVector<ShootData> shots = shotsAt(angles);
    for (const LayoutRules &rules : kRules) {
        const PreviewLayout layout = layOutShots(shots, extentsOf(shots), rules);
        const QSize canvas = layout.canvas;
        QVERIFY(canvas.width() >= 100 && canvas.width() <= 32'767);
        QVERIFY(canvas.height() >= 100 && canvas.height() <= 32'767);
        QVERIFY(qint64{ canvas.width() } * canvas.height() * 4 <= 256LL * 1024 * 1024);
        QCOMPARE(layout.cells.size(), shots.size());
        for (const PreviewCell &cell : layout.cells) {
            // Centres lie within the margins of 50 pixels.
            const QPointF centre = cell.box.center();
            QVERIFY(centre.x() > 49.9 && centre.x() < canvas.width() - 48.9);
            QVERIFY(centre.y() > 49.9 && centre.y() < canvas.height() - 48.9);
        }
    }
}

void TestPreviewLimits::aLongPictureFillsTheLongestSide_data()
{
    QTest::addColumn<float>("height"); // degrees
    // With its margins the picture is at least 100 pixels high, so that its width decides.
    QTest::newRow("no height") << 0.0F;
    QTest::newRow("next to no height") << 1e-30F;
    QTest::newRow("a little height") << 1e-9F;
    QTest::newRow("some height") << 1.0F;
}

void TestPreviewLimits::aLongPictureFillsTheLongestSide()
{
    QFETCH(const float, height);
    const QVector<ShootData> shots = shotsAt({ { 0, 0 }, { 8, height }, { 1e6F, 0 } });
    for (const LayoutRules &rules : kRules) {
        const PreviewLayout layout = layOutShots(shots, extentsOf(shots), rules);
        QVERIFY2(layout.canvas.width() >= 32'766,
                 qPrintable(QString::number(layout.canvas.width())));
        QCOMPARE(layout.canvas.height(), 100);
    }
}

void TestPreviewLimits::nothingIsDrawnOverRangesThatAreNotFinite_data()
{
    QTest::addColumn<Angles>("angles");
    QTest::newRow("no shots") << Angles{};
    QTest::newRow("infinite yaw") << Angles{ { 0, 0 }, { kInf, 0 } };
    QTest::newRow("infinite pitch") << Angles{ { 0, -kInf }, { 8, 0 } };
    QTest::newRow("nothing but NaN") << Angles{ { kNan, kNan } };
}

void TestPreviewLimits::nothingIsDrawnOverRangesThatAreNotFinite()
{
    QFETCH(const Angles, angles);
    const QVector<ShootData> shots = shotsAt(angles);
    for (const LayoutRules &rules : kRules) {
        const PreviewLayout layout = layOutShots(shots, extentsOf(shots), rules);
        QVERIFY(layout.isEmpty());
        QVERIFY(layout.cells.isEmpty());
    }
}

TEST_CLASS(TestPreviewLimits, QCoreApplication)
#include "tst_previewlimits.moc"
