// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/anglerange.h"

#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"
#include "shoot/angles.h"
#include "shoot/shootstate.h"
#include "tests/support/testprogram.h"
#include "tests/unit/shots.h"

#include <QTest>

#include <cmath>
#include <limits>

using PanoHead::AngleExtents;
using PanoHead::AngleRange;
using PanoHead::extentsOf;
using PanoHead::RollAngles;
using PanoHead::ShootState;

namespace
{

constexpr float kLargest = 3.4028234663852886e38F;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

using Shots = QVector<ShootData>;

} // namespace

Q_DECLARE_METATYPE(PanoHead::AngleRange)
Q_DECLARE_METATYPE(PanoHead::AngleExtents)
Q_DECLARE_METATYPE(ShootData)

/** Ranges of recorded angles, and what the pages do to angles. */
class TestAngleRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothSentinelsAreTheLargestNumbers();
    void extentsCoverEveryShot_data();
    void extentsCoverEveryShot();
    void rangesKnowWhatTheyAre_data();
    void rangesKnowWhatTheyAre();
    void negatingTwiceRestoresTheRange_data();
    void negatingTwiceRestoresTheRange();
    void aFreshStateKnowsNothing();
    void aStateKeepsItsExtents();
    void pitchesAreInvertedAndRestored();
    void rollsAddUpWithoutWrapping();
    void anglesAreAppendedInRadians();
    void radiansAreRoundedOnce_data();
    void radiansAreRoundedOnce();
};

void TestAngleRange::bothSentinelsAreTheLargestNumbers()
{
    QVERIFY(AngleRange::kUnbounded == kLargest);
    QVERIFY(AngleRange::unknown().minimum == -kLargest);
    QVERIFY(AngleRange::unknown().maximum == kLargest);
    QVERIFY(AngleRange::scanStart().minimum == kLargest);
    QVERIFY(AngleRange::scanStart().maximum == -kLargest);
    QVERIFY(AngleRange() == AngleRange::unknown());
    QVERIFY(!(AngleRange() == AngleRange::scanStart()));
}

void TestAngleRange::extentsCoverEveryShot_data()
{
    QTest::addColumn<Shots>("shots");
    QTest::addColumn<AngleExtents>("extents");

    const AngleRange none = AngleRange::scanStart();
    QTest::newRow("no shots") << Shots() << AngleExtents{ none, none };
    QTest::newRow("one shot") << Shots{ shotAt(30, -5) } << AngleExtents{ { 30, 30 }, { -5, -5 } };
    QTest::newRow("several") << Shots{ shotAt(30, -5), shotAt(-10, 20), shotAt(0, 0) }
                             << AngleExtents{ { -10, 30 }, { -5, 20 } };
    QTest::newRow("all at 0") << Shots{ shotAt(0, 0), shotAt(0, 0) }
                              << AngleExtents{ { 0, 0 }, { 0, 0 } };
    QTest::newRow("not folded to one turn")
        << Shots{ shotAt(350, 0), shotAt(370, 0) } << AngleExtents{ { 350, 370 }, { 0, 0 } };
    QTest::newRow("numbers that are none are passed over")
        << Shots{ shotAt(kNaN, kNaN), shotAt(1, 2), shotAt(kNaN, kNaN) }
        << AngleExtents{ { 1, 1 }, { 2, 2 } };
    QTest::newRow("nothing but such numbers")
        << Shots{ shotAt(kNaN, kNaN) } << AngleExtents{ none, none };
    QTest::newRow("infinite angles widen") << Shots{ shotAt(kInfinity, 0), shotAt(1, -kInfinity) }
                                           << AngleExtents{ { 1, kInfinity }, { -kInfinity, 0 } };
}

void TestAngleRange::extentsCoverEveryShot()
{
    QFETCH(Shots, shots);
    QFETCH(AngleExtents, extents);
    QVERIFY(extentsOf(shots) == extents);
}

void TestAngleRange::rangesKnowWhatTheyAre_data()
{
    QTest::addColumn<AngleRange>("range");
    QTest::addColumn<bool>("isUnknown");
    QTest::addColumn<bool>("isMeasured");

    QTest::newRow("nothing loaded") << AngleRange::unknown() << true << false;
    // By design: shown as numbers, but nothing is drawn over it.
    QTest::newRow("scan without shots") << AngleRange::scanStart() << false << false;
    QTest::newRow("minimum unknown") << AngleRange{ -kLargest, 0 } << true << false;
    QTest::newRow("maximum unknown") << AngleRange{ 0, kLargest } << true << false;
    QTest::newRow("ordinary") << AngleRange{ -30, 60 } << false << true;
    QTest::newRow("one angle") << AngleRange{ 0, 0 } << false << true;
    QTest::newRow("large") << AngleRange{ -3e38F, 3e38F } << false << true;
    QTest::newRow("inverted") << AngleRange{ 60, -30 } << false << true;
    QTest::newRow("infinite minimum") << AngleRange{ -kInfinity, 0 } << false << false;
    QTest::newRow("infinite maximum") << AngleRange{ 0, kInfinity } << false << false;
    QTest::newRow("not a number") << AngleRange{ kNaN, kNaN } << false << false;
}

void TestAngleRange::rangesKnowWhatTheyAre()
{
    QFETCH(AngleRange, range);
    QTEST(range.isUnknown(), "isUnknown");
    QTEST(range.isMeasured(), "isMeasured");
}

void TestAngleRange::negatingTwiceRestoresTheRange_data()
{
    QTest::addColumn<AngleRange>("range");
    QTest::addColumn<AngleRange>("negated");

    QTest::newRow("-30 to 60") << AngleRange{ -30, 60 } << AngleRange{ -60, 30 };
    QTest::newRow("one angle") << AngleRange{ 5, 5 } << AngleRange{ -5, -5 };
    QTest::newRow("unknown") << AngleRange::unknown() << AngleRange::unknown();
    QTest::newRow("scan without shots") << AngleRange::scanStart() << AngleRange::scanStart();
}

void TestAngleRange::negatingTwiceRestoresTheRange()
{
    QFETCH(AngleRange, range);
    QFETCH(AngleRange, negated);
    QVERIFY(range.negated() == negated);
    QVERIFY(range.negated().negated() == range);
}

void TestAngleRange::aFreshStateKnowsNothing()
{
    const ShootState state;
    QVERIFY(state.configPath.isEmpty());
    QVERIFY(state.images.isEmpty());
    QCOMPARE(state.shotCount, -1);
    QCOMPARE(state.imageFocal, 0.0);
    QCOMPARE(state.imageLensType, 0);
    QVERIFY((state.extents() == AngleExtents{ AngleRange::unknown(), AngleRange::unknown() }));
}

void TestAngleRange::aStateKeepsItsExtents()
{
    ShootState state;
    const AngleExtents extents{ { -10, 20 }, { -30, 60 } };
    state.setExtents(extents);
    QVERIFY(state.yawMin == -10.0F && state.yawMax == 20.0F);
    QVERIFY(state.pitchMin == -30.0F && state.pitchMax == 60.0F);
    QVERIFY(state.extents() == extents);
    state.invertPitchRange();
    QVERIFY((state.extents() == AngleExtents{ { -10, 20 }, { -60, 30 } }));
    state.invertPitchRange();
    QVERIFY(state.extents() == extents);
}

void TestAngleRange::pitchesAreInvertedAndRestored()
{
    Shots shots{ shotAt(10, -30, 90), shotAt(-20, 60), shotAt(0, 0) };
    PanoHead::invertPitch(shots);
    QVERIFY(shots[0].pitch == 30.0F && shots[1].pitch == -60.0F && shots[2].pitch == 0.0F);
    QVERIFY(shots[0].yaw == 10.0F && shots[0].roll == 90.0F && shots[1].yaw == -20.0F);
    // The range of the inverted shots is the inverted range.
    QVERIFY((extentsOf(shots).pitch == AngleRange{ -60, 30 }));
    PanoHead::invertPitch(shots);
    QVERIFY(shots[0].pitch == -30.0F && shots[1].pitch == 60.0F);
}

void TestAngleRange::rollsAddUpWithoutWrapping()
{
    Shots shots{ shotAt(1, 2), shotAt(3, 4, -90) };
    for (int i = 0; i < 5; ++i) {
        PanoHead::rotate(shots, 90.0F);
    }
    QVERIFY(shots[0].roll == 450.0F && shots[1].roll == 360.0F);
    for (int i = 0; i < 10; ++i) {
        PanoHead::rotate(shots, -90.0F);
    }
    QVERIFY(shots[0].roll == -450.0F && shots[1].roll == -540.0F);
    QVERIFY(shots[0].yaw == 1.0F && shots[0].pitch == 2.0F);
}

void TestAngleRange::anglesAreAppendedInRadians()
{
    StructuredPanoramaProperties description;
    PanoHead::appendAngles(description, { shotAt(180, -90, 90) }, RollAngles::LeaveEmpty);
    QVERIFY(description.roll.isEmpty());
    PanoHead::appendAngles(description, { shotAt(0, 0, 90) }, RollAngles::Write);
    QCOMPARE(description.yaw, QVector<float>({ 3.14159265358979F, 0.0F }));
    QCOMPARE(description.pitch, QVector<float>({ -1.57079632679490F, 0.0F }));
    QCOMPARE(description.roll, QVector<float>({ 1.57079632679490F }));
}

void TestAngleRange::radiansAreRoundedOnce_data()
{
    QTest::addColumn<float>("degrees");
    QTest::addColumn<float>("radians");

    QTest::newRow("0") << 0.0F << 0.0F;
    QTest::newRow("180, above pi in 32 bits") << 180.0F << 3.14159274101257324F;
    QTest::newRow("-180") << -180.0F << -3.14159274101257324F;
    QTest::newRow("360") << 360.0F << 6.28318548202514648F;
    QTest::newRow("turns are kept") << 3600.0F << 62.8318530717959F;
    QTest::newRow("one degree") << 1.0F << 0.0174532925199433F;
    QTest::newRow("infinite") << kInfinity << kInfinity;
}

void TestAngleRange::radiansAreRoundedOnce()
{
    QFETCH(float, degrees);
    QFETCH(float, radians);
    QVERIFY(PanoHead::toRadians(degrees) == radians);
    QVERIFY(std::isnan(PanoHead::toRadians(kNaN)));
}

TEST_CLASS(TestAngleRange, QCoreApplication)
#include "tst_anglerange.moc"
