// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/directionindex.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace PanoHead;

namespace
{

constexpr double kPi = 3.141592653589793;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double radians(double degrees)
{
    return degrees * kPi / 180.0;
}

UnitVector towards(double yawDegrees, double pitchDegrees)
{
    const double yaw = radians(yawDegrees);
    const double pitch = radians(pitchDegrees);
    return { std::cos(pitch) * std::cos(yaw), std::cos(pitch) * std::sin(yaw), std::sin(pitch) };
}

/** Angle between two directions, exact to a rounding for tiny and for straight angles too. */
double angleBetween(const UnitVector &a, const UnitVector &b)
{
    const double x = a.y * b.z - a.z * b.y;
    const double y = a.z * b.x - a.x * b.z;
    const double z = a.x * b.y - a.y * b.x;
    return std::atan2(std::sqrt(x * x + y * y + z * z), a.x * b.x + a.y * b.y + a.z * b.z);
}

/** \p rows x \p columns directions, centred, as a head sweeps them. */
QVector<UnitVector> mosaic(int rows, int columns, double stepDegrees, double yaw, double pitch)
{
    QVector<UnitVector> directions;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            directions.append(towards(yaw + (column - (columns - 1) / 2.0) * stepDegrees,
                                      pitch + (row - (rows - 1) / 2.0) * stepDegrees));
        }
    }
    return directions;
}

QVector<UnitVector> sphere(int count)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> height(-1.0, 1.0);
    std::uniform_real_distribution<double> turn(-180.0, 180.0);
    QVector<UnitVector> directions;
    for (int i = 0; i < count; ++i) {
        directions.append(towards(turn(random), std::asin(height(random)) * 180.0 / kPi));
    }
    return directions;
}

QVector<UnitVector> aroundPole(double pitchDegrees, double spreadDegrees)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> offset(-spreadDegrees, spreadDegrees);
    std::uniform_real_distribution<double> turn(-180.0, 180.0);
    QVector<UnitVector> directions{ towards(0.0, pitchDegrees) };
    for (int i = 0; i < 200; ++i) {
        directions.append(towards(turn(random), pitchDegrees + offset(random)));
    }
    return directions;
}

QVector<UnitVector> repeated(const QVector<UnitVector> &directions, int times)
{
    QVector<UnitVector> all;
    for (const UnitVector &direction : directions) {
        all += QVector<UnitVector>(times, direction);
    }
    return all;
}

QVector<UnitVector> withSpoiled(QVector<UnitVector> directions)
{
    for (const double spoiled : { kNaN, kInfinity, -kInfinity }) {
        directions.insert(directions.size() / 2, { spoiled, 0.0, 0.0 });
        directions.append({ 0.0, spoiled, 0.0 });
        directions.prepend({ 1.0, 0.0, spoiled });
    }
    return directions;
}

bool isFinite(const UnitVector &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

QVector<int> visits(const DirectionIndex &index, int centre, double radius, int count)
{
    QVector<int> times(count, 0);
    index.visitNear(centre, radius, [&times](int found) { ++times[found]; });
    return times;
}

} // namespace

Q_DECLARE_METATYPE(PanoHead::UnitVector)

class TestDirectionIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directionsWithinTheRadiusAreVisitedOnce_data();
    void directionsWithinTheRadiusAreVisitedOnce();
    void directionsThatAreNotFiniteAreNeverVisited();
    void nothingIsVisitedAroundADirectionThatIsNotFinite();
    void fewDirectionsBeyondTheRadiusAreVisited_data();
    void fewDirectionsBeyondTheRadiusAreVisited();
    void emptyIndexCanBeMade();
};

void TestDirectionIndex::directionsWithinTheRadiusAreVisitedOnce_data()
{
    QTest::addColumn<QVector<UnitVector>>("directions");
    QTest::newRow("one direction") << QVector<UnitVector>{ towards(10.0, 20.0) };
    QTest::newRow("two directions") << QVector<UnitVector>{ towards(0.0, 0.0), towards(1.0, 0.0) };
    QTest::newRow("the whole sphere") << sphere(400);
    QTest::newRow("one row of a full turn") << mosaic(1, 72, 5.0, 0.0, 0.0);
    QTest::newRow("one column from pole to pole") << mosaic(37, 1, 5.0, 30.0, 0.0);
    QTest::newRow("a full sphere by rows") << mosaic(19, 36, 10.0, 5.0, 0.0);
    QTest::newRow("a small mosaic") << mosaic(15, 20, 0.5, 33.0, 12.0);
    QTest::newRow("a small mosaic across the seam") << mosaic(15, 20, 0.5, 180.0, -20.0);
    QTest::newRow("a small mosaic at the first meridian") << mosaic(15, 20, 0.5, 0.0, 0.0);
    QTest::newRow("a small mosaic over the upper pole") << mosaic(20, 20, 1.0, 10.0, 90.0);
    QTest::newRow("two mosaics on opposite sides")
        << mosaic(10, 10, 0.5, 60.0, 10.0) + mosaic(10, 10, 0.5, -120.0, 10.0);
    QTest::newRow("a mosaic and one shot straight up")
        << mosaic(10, 10, 0.5, -179.0, 10.0) + QVector<UnitVector>{ towards(0.0, 90.0) };
    QTest::newRow("around the upper pole") << aroundPole(90.0, 3.0);
    QTest::newRow("around the lower pole") << aroundPole(-90.0, 3.0);
    QTest::newRow("exactly at the poles")
        << repeated({ UnitVector{ 0.0, 0.0, 1.0 }, UnitVector{ 0.0, 0.0, -1.0 },
                      UnitVector{ -0.0, -0.0, 1.0 }, UnitVector{ 1e-300, -1e-300, -1.0 } },
                    3);
    QTest::newRow("every direction three times") << repeated(mosaic(6, 12, 30.0, 0.0, 0.0), 3);
    QTest::newRow("one direction many times") << repeated({ towards(-180.0, 1.0) }, 150);
    QTest::newRow("directions that are not finite between others")
        << withSpoiled(mosaic(8, 8, 2.0, 180.0, 80.0));
}

void TestDirectionIndex::directionsWithinTheRadiusAreVisitedOnce()
{
    QFETCH(const QVector<UnitVector>, directions);
    for (const double typicalRadius : { 0.0, 1e-12, 0.004, 0.04, 0.2, 0.5 }) {
        const DirectionIndex index(directions, typicalRadius);
        for (const double radius : { 1e-12, 0.004, 0.0174532925, 0.087266463, 0.2, 0.5, 1.5 }) {
            for (int centre = 0; centre < directions.size(); ++centre) {
                if (!isFinite(directions[centre])) {
                    continue;
                }
                const QVector<int> times = visits(index, centre, radius, directions.size());
                for (int i = 0; i < directions.size(); ++i) {
                    const bool isNear = isFinite(directions[i])
                        && angleBetween(directions[centre], directions[i]) <= radius;
                    // Those beyond the radius may be visited, but not more than once either.
                    if (times[i] > 1 || (isNear && times[i] != 1)) {
                        QFAIL(qPrintable(
                            QStringLiteral("around %1 within %2 (bands for %3): %4 visited %5 "
                                           "times")
                                .arg(QString::number(centre), QString::number(radius),
                                     QString::number(typicalRadius), QString::number(i),
                                     QString::number(times[i]))));
                    }
                }
            }
        }
    }
}

void TestDirectionIndex::directionsThatAreNotFiniteAreNeverVisited()
{
    const QVector<UnitVector> directions = withSpoiled(sphere(100));
    const DirectionIndex index(directions, 0.1);
    for (int centre = 0; centre < directions.size(); ++centre) {
        const QVector<int> times = visits(index, centre, 1.5, directions.size());
        for (int i = 0; i < directions.size(); ++i) {
            QVERIFY(isFinite(directions[i]) || times[i] == 0);
        }
    }
}

void TestDirectionIndex::nothingIsVisitedAroundADirectionThatIsNotFinite()
{
    const QVector<UnitVector> directions = withSpoiled(sphere(100));
    const DirectionIndex index(directions, 0.1);
    for (int centre = 0; centre < directions.size(); ++centre) {
        if (!isFinite(directions[centre])) {
            QVERIFY(!visits(index, centre, 0.5, directions.size()).contains(1));
        }
    }
}

void TestDirectionIndex::fewDirectionsBeyondTheRadiusAreVisited_data()
{
    QTest::addColumn<QVector<UnitVector>>("directions");
    QTest::addColumn<double>("stepDegrees");
    QTest::newRow("the whole sphere") << sphere(10'000) << 2.0;
    QTest::newRow("a full sphere by rows") << mosaic(90, 180, 2.0, 0.0, 0.0) << 2.0;
    QTest::newRow("a mosaic of half a turn") << mosaic(50, 180, 1.0, 0.0, 0.0) << 1.0;
    QTest::newRow("a mosaic") << mosaic(100, 100, 0.1, 20.0, 10.0) << 0.1;
    QTest::newRow("a mosaic across the seam") << mosaic(100, 100, 0.1, 180.0, 10.0) << 0.1;
    QTest::newRow("a mosaic at a pole") << mosaic(100, 100, 0.1, 0.0, 85.0) << 0.1;
    QTest::newRow("a mosaic and one shot straight up")
        << mosaic(100, 100, 0.1, 20.0, 10.0) + QVector<UnitVector>{ towards(0.0, 90.0) } << 0.1;
}

/** A search that visits whole neighbourhoods of its hits would be right, but not quick. */
void TestDirectionIndex::fewDirectionsBeyondTheRadiusAreVisited()
{
    QFETCH(const QVector<UnitVector>, directions);
    QFETCH(const double, stepDegrees);
    // About four neighbours each.
    const double radius = radians(1.2 * stepDegrees);
    const DirectionIndex index(directions, radius);
    qint64 visited = 0;
    qint64 found = 0;
    for (int centre = 0; centre < directions.size(); centre += 7) {
        index.visitNear(centre, radius, [&](int i) {
            ++visited;
            found += angleBetween(directions[centre], directions[i]) <= radius ? 1 : 0;
        });
    }
    // The cap has the area pi r^2. Bands of r / 2 make a patch of up to 3 r x 2 r around it, 1.9
    // times as large; rows of directions may fall into the bands less evenly.
    QVERIFY2(visited < 4 * found,
             qPrintable(QStringLiteral("%1 visited to find %2")
                            .arg(QString::number(visited), QString::number(found))));
}

void TestDirectionIndex::emptyIndexCanBeMade()
{
    const DirectionIndex none({}, 0.1);
    const DirectionIndex noneFinite({ { kNaN, 0.0, 0.0 } }, 0.1);
    QVERIFY(!visits(noneFinite, 0, 1.0, 1).contains(1));
}

TEST_CLASS(TestDirectionIndex, QCoreApplication)
#include "tst_directionindex.moc"
