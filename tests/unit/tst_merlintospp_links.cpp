// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"

#include "shoot/linksearch.h"
#include "tests/support/plainlinks.h"
#include "tests/support/testprogram.h"
#include "tests/unit/photonames.h"
#include "tests/unit/shots.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

namespace
{

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

/** The links between single photos at \p shots, on a standard lens. */
QVector<AuthorizedLink> generatedLinks(const QVector<ShootData> &shots, double focal)
{
    MerlinToSPP generator;
    generator.shots = shots;
    generator.nbPicts = 1;
    generator.generateSPP(photoNames(shots.size()), focal, LensModel::Standard);
    return generator.authorizedLinks;
}

float radians(float degrees)
{
    return static_cast<float>(static_cast<double>(degrees) * 3.141592653589793 / 180.0);
}

/** Cosine of the angle between two shots, in the order of operations that decides near-twins. */
double cosineBetween(const ShootData &a, const ShootData &b)
{
    const double yA = static_cast<double>(radians(a.yaw));
    const double pA = static_cast<double>(radians(a.pitch));
    const double yB = static_cast<double>(radians(b.yaw));
    const double pB = static_cast<double>(radians(b.pitch));
    using std::cos;
    using std::sin;
    return cos(pB) * (cos(yA) * cos(pA) * cos(yB) + sin(yB) * sin(yA) * cos(pA))
        + sin(pB) * sin(pA);
}

/** The links by the rule, between positions of \p nbPicts shots each. */
QVector<AuthorizedLink> plainLinks(const QVector<ShootData> &shots, int nbPicts, double focal)
{
    QVector<PanoHead::Direction> positions;
    for (int i = 0; i < shots.size(); i += nbPicts) {
        positions.append({ radians(shots.at(i).yaw), radians(shots.at(i).pitch) });
    }
    return PlainLinks::neighbours(positions, PlainLinks::halfField(static_cast<float>(focal)));
}

/** Ways to scatter positions; each shows another trap. */
enum class Scatter { Anywhere, WholeDegrees, Twins, Poles, ManyTurns, Cluster, NotFinite };

ShootData scattered(Scatter scatter, const QVector<ShootData> &before, QRandomGenerator &random)
{
    const auto between = [&random](double low, double high) {
        return static_cast<float>(low + (high - low) * random.generateDouble());
    };
    const auto whole = [&random](int low, int high) {
        return static_cast<float>(random.bounded(low, high + 1));
    };
    switch (scatter) {
    case Scatter::Anywhere:
        return shotAt(between(-180, 180), between(-90, 90));
    case Scatter::WholeDegrees:
        return shotAt(whole(0, 72) * 5.0F, whole(-18, 18) * 5.0F);
    case Scatter::Twins:
        if (!before.isEmpty() && random.bounded(2) == 0) {
            ShootData twin = before.at(static_cast<int>(random.bounded(before.size())));
            twin.yaw += random.bounded(3) == 0 ? between(-2e-5, 2e-5) : 0.0F;
            return twin;
        }
        return shotAt(whole(0, 360), whole(-90, 90));
    case Scatter::Poles:
        return shotAt(whole(0, 36) * 10.0F,
                      (random.bounded(2) == 0 ? -1.0F : 1.0F) * whole(80, 90));
    case Scatter::ManyTurns:
        return shotAt(whole(0, 36) * 10.0F + 360.0F * whole(-5, 5), whole(-9, 9) * 10.0F);
    case Scatter::Cluster:
        return shotAt(between(10, 40), between(-15, 15));
    case Scatter::NotFinite:
        switch (random.bounded(8)) {
        case 0:
            return shotAt(kNaN, between(-90, 90));
        case 1:
            return shotAt(between(0, 360), kInfinity);
        case 2:
            return shotAt(-kInfinity, kNaN);
        case 3:
            return shotAt(3e38F, -3e38F);
        default:
            return shotAt(between(0, 360), between(-90, 90));
        }
    }
    return {};
}

constexpr char kNone[] = "";
constexpr char kRight[] = "2:0-1";
constexpr char kLeft[] = "2:1-0";
constexpr char kBelow[] = "1:0-1";
constexpr char kAbove[] = "1:1-0";
constexpr char kBoth[] = "2:0-1 2:1-0";

void row(const char *name, const QVector<ShootData> &shots, double focal, const char *links)
{
    QTest::newRow(name) << shots << focal << QString::fromLatin1(links);
}

void addDirections()
{
    // h(24 mm) = atan(43.2666 / 48) = 0.7336; 0.65 x 30 deg = 0.65 x 0.5236 = 0.3403
    row("30 degrees beside", { shotAt(0, 0), shotAt(30, 0) }, 24.0, kRight);
    row("the same from the other side", { shotAt(30, 0), shotAt(0, 0) }, 24.0, kLeft);
    // 0.65 as 32-bit number is 0.64999998: the limit h / 0.65 lies 4e-8 rad further out. 64.75 deg
    // = 1.13010073 rad; less 0.0867506 deg = 0.00151408 rad that is 1.12858664, between 0.73358130
    // / 0.65 = 1.12858662 and 0.73358130 / 0.64999998 = 1.12858666
    row("reach factor of 32 bits", { shotAt(0.0867506F, 0), shotAt(64.75F, 0) }, 24.0, kRight);
    row("just beyond it", { shotAt(0.0867472F, 0), shotAt(64.75F, 0) }, 24.0, kNone);
    row("one position", { shotAt(0, 0) }, 24.0, kNone);
    // 0.65 x 64 deg = 0.65 x 1.1170 = 0.7261 < 0.7336 < 0.65 x 65 deg = 0.65 x 1.1345 = 0.7374
    row("64 degrees are near enough", { shotAt(0, 0), shotAt(64, 0) }, 24.0, kRight);
    row("65 degrees are not", { shotAt(0, 0), shotAt(65, 0) }, 24.0, kNone);
    row("64 degrees below", { shotAt(0, 32), shotAt(0, -32) }, 24.0, kBelow);
    row("65 degrees below are too far", { shotAt(0, 32), shotAt(0, -33) }, 24.0, kNone);
    // 350 to 10: the step of -340 degrees wraps to +20
    row("over the seam", { shotAt(350, 0), shotAt(10, 0) }, 24.0, kRight);
    row("over the seam, backwards", { shotAt(10, 0), shotAt(350, 0) }, 24.0, kLeft);
    row("straight below", { shotAt(40, 0), shotAt(40, -30) }, 24.0, kBelow);
    row("straight above", { shotAt(40, 0), shotAt(40, 30) }, 24.0, kAbove);
    // Steps (20, -20): atan2 gives exactly -pi/4, from the other side 3 pi/4
    row("exactly -pi/4 is below", { shotAt(0, 0), shotAt(20, -20) }, 24.0, kBelow);
    // Steps (20, 20): exactly pi/4; from the other side exactly -3 pi/4, which is nothing
    row("exactly pi/4 is beside, exactly -3 pi/4 nothing", { shotAt(0, 0), shotAt(20, 20) }, 24.0,
        kRight);
    row("exactly pi/4, the other way round", { shotAt(20, 20), shotAt(0, 0) }, 24.0, kLeft);
    row("a little steeper than pi/4", { shotAt(0, 0), shotAt(20, 21) }, 24.0, kAbove);
    row("a little steeper than -pi/4", { shotAt(0, 0), shotAt(20, -21) }, 24.0, kBelow);
    row("a little flatter than -pi/4", { shotAt(0, 0), shotAt(21, -20) }, 24.0, kRight);

    // Ascending first index, then ascending second one
    row("a row of three", { shotAt(0, 0), shotAt(30, 0), shotAt(60, 0) }, 24.0,
        "2:0-1 2:0-2 2:1-2");
    // 0..30 beside, -30 below; the diagonals of 30 and -30 are exactly -pi/4 and -3 pi/4
    row("two by two", { shotAt(0, 0), shotAt(30, 0), shotAt(0, -30), shotAt(30, -30) }, 24.0,
        "2:0-1 1:0-2 1:0-3 1:1-3 2:2-1 2:2-3");
}

void addTurnsAndPoles()
{
    // Cosine exactly 1, distance 0, no step: beside, seen from both
    row("the same direction", { shotAt(0, 0), shotAt(0, 0) }, 24.0, kBoth);
    // 0 - -0 is 0, but -0 - 0 is -0, and the direction of a step (-0, 0) is pi
    row("yaw 0 and yaw -0", { shotAt(0, 0), shotAt(-0.0F, 0) }, 24.0, kLeft);
    // The wrapped step is +-360 degrees - 2 pi, which is exactly 0 in 32 bits
    row("a full turn apart", { shotAt(0, 0), shotAt(360, 0) }, 24.0, kBoth);
    // 20 degrees apart over the zenith. The step is pi as 32-bit number, which exceeds pi: minus
    // 2 pi it falls below -pi and is taken back, so that both see the other to the right.
    row("half a turn apart, over the pole", { shotAt(0, 80), shotAt(180, 80) }, 24.0, kBoth);
    // One wrap only: +740 becomes +380, still to the right; -700 becomes -340, to the left
    row("two turns and 20 degrees", { shotAt(0, 0), shotAt(740, 0) }, 24.0, kRight);
    row("two turns less 20 degrees", { shotAt(0, 0), shotAt(-700, 0) }, 24.0, kLeft);
    row("both many turns away", { shotAt(3600, 0), shotAt(3630, 0) }, 24.0, kRight);
    // At the pole every yaw is the same direction, but the steps of the yaw decide
    row("at the zenith", { shotAt(0, 90), shotAt(90, 90) }, 24.0, kRight);
}

void addFocalLengths()
{
    // 1 / 0: h = pi/2 = 1.5708; 0.65 x 138 deg = 1.5656, 0.65 x 139 deg = 1.5769
    row("focal 0, 138 degrees", { shotAt(0, 0), shotAt(138, 0) }, 0.0, kRight);
    row("focal 0, 139 degrees", { shotAt(0, 0), shotAt(139, 0) }, 0.0, kNone);
    row("focal minus 0", { shotAt(0, 0), shotAt(30, 0) }, -0.0, kNone);
    row("no focal in the record", { shotAt(0, 0), shotAt(30, 0) }, -1.0, kNone);
    row("focal not a number", { shotAt(0, 0), shotAt(30, 0) },
        std::numeric_limits<double>::quiet_NaN(), kNone);
    row("focal infinite", { shotAt(0, 0), shotAt(30, 0) }, std::numeric_limits<double>::infinity(),
        kNone);
    row("twins on an infinite focal length", { shotAt(0, 0), shotAt(0, 0) },
        std::numeric_limits<double>::infinity(), kNone);
    // h(1 mm) = atan(43.2666 / 2) = 1.5246; 0.65 x 134 deg = 1.5202, 0.65 x 135 deg = 1.5315
    row("1 mm, 134 degrees", { shotAt(0, 0), shotAt(134, 0) }, 1.0, kRight);
    row("1 mm, 135 degrees", { shotAt(0, 0), shotAt(135, 0) }, 1.0, kNone);

    row("yaw not a number", { shotAt(0, 0), shotAt(kNaN, 0) }, 24.0, kNone);
    row("pitch infinite", { shotAt(0, 0), shotAt(0, kInfinity) }, 24.0, kNone);
    row("both infinite", { shotAt(kInfinity, 0), shotAt(kInfinity, 0) }, 24.0, kNone);
}

} // namespace

Q_DECLARE_METATYPE(ShootData)

/** Which positions of a record are linked. */
class TestMerlinToSPPLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fisheyeLensesKeepTheLinksThatWereThere();
    void linksOfHandWorkedPositions_data();
    void linksOfHandWorkedPositions();
    void twinsWithACosineAboveOneGetNoLink();
    void positionsPointWhereTheirFirstExposurePoints();
    void linksEqualThePlainLoop_data();
    void linksEqualThePlainLoop();
    void linksOfBracketsEqualThePlainLoop();
    void halfFieldOfViewIsHalfTheDiagonal_data();
    void halfFieldOfViewIsHalfTheDiagonal();
};

void TestMerlinToSPPLinks::fisheyeLensesKeepTheLinksThatWereThere()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.authorizedLinks = { { 2, { 4, 5 } } };
    generator.shots = { shotAt(0.0F, 0.0F), shotAt(30.0F, 0.0F) };
    generator.generateSPP(photoNames(2), 24.0, LensModel::Fisheye);
    QCOMPARE(PlainLinks::text(generator.authorizedLinks), QStringLiteral("2:4-5"));
}

void TestMerlinToSPPLinks::linksOfHandWorkedPositions_data()
{
    QTest::addColumn<QVector<ShootData>>("shots");
    QTest::addColumn<double>("focal");
    QTest::addColumn<QString>("links");

    addDirections();
    addTurnsAndPoles();
    addFocalLengths();
}

void TestMerlinToSPPLinks::linksOfHandWorkedPositions()
{
    QFETCH(QVector<ShootData>, shots);
    QFETCH(double, focal);
    QTEST(PlainLinks::text(generatedLinks(shots, focal)), "links");
}

void TestMerlinToSPPLinks::twinsWithACosineAboveOneGetNoLink()
{
    int above = 0;
    int notAbove = 0;
    for (int pitch = -90; pitch <= 90; pitch += 3) {
        for (int yaw = 0; yaw < 360; yaw += 7) {
            const ShootData shot = shotAt(static_cast<float>(yaw), static_cast<float>(pitch));
            const bool isAbove = cosineBetween(shot, shot) > 1.0;
            ++(isAbove ? above : notAbove);
            QCOMPARE(PlainLinks::text(generatedLinks({ shot, shot }, 24.0)),
                     isAbove ? QString() : QStringLiteral("2:0-1 2:1-0"));
        }
    }
    // About a tenth of all directions: the test has seen both kinds.
    QVERIFY(above > 50);
    QVERIFY(notAbove > 50);
}

void TestMerlinToSPPLinks::positionsPointWhereTheirFirstExposurePoints()
{
    MerlinToSPP generator;
    generator.nbPicts = 3;
    generator.shots = { shotAt(0, 0),  shotAt(170, 80), shotAt(90, -80),
                        shotAt(30, 0), shotAt(100, 40), shotAt(0, 0) };
    generator.generateSPP(photoNames(6), 24.0, LensModel::Standard);
    QCOMPARE(PlainLinks::text(generator.authorizedLinks), QStringLiteral("2:0-1"));
    QCOMPARE(generator.imageGroups.size(), 2);
    QCOMPARE(generator.yaw.size(), 6);
}

void TestMerlinToSPPLinks::linksEqualThePlainLoop_data()
{
    QTest::addColumn<int>("scatter");
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<double>("focal");

    const QVector<QPair<const char *, Scatter>> scatters = {
        { "anywhere", Scatter::Anywhere },    { "whole degrees", Scatter::WholeDegrees },
        { "twins", Scatter::Twins },          { "poles", Scatter::Poles },
        { "many turns", Scatter::ManyTurns }, { "cluster", Scatter::Cluster },
        { "not finite", Scatter::NotFinite },
    };
    for (const auto &scatter : scatters) {
        for (const double focal : { 8.0, 24.0, 80.0, 200.0, 0.0 }) {
            for (const quint32 seed : { 1U, 2U }) {
                QTest::addRow("%s, %g mm, seed %u", scatter.first, focal, seed)
                    << static_cast<int>(scatter.second) << seed << focal;
            }
        }
    }
    for (const double focal : { -0.0, -1.0, -35.0, std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity(), 1e30, 1e-30 }) {
        QTest::addRow("twins, %g mm", focal) << static_cast<int>(Scatter::Twins) << 3U << focal;
    }
}

void TestMerlinToSPPLinks::linksEqualThePlainLoop()
{
    QFETCH(int, scatter);
    QFETCH(quint32, seed);
    QFETCH(double, focal);

    constexpr int kPositions = 300;
    QRandomGenerator random(seed);
    QVector<ShootData> shots;
    while (shots.size() < kPositions) {
        shots.append(scattered(static_cast<Scatter>(scatter), shots, random));
    }
    // A negative focal length means the record's, which here is the same one.
    MerlinToSPP generator;
    generator.shots = shots;
    generator.nbPicts = 1;
    generator.xmlFocal = focal;
    generator.generateSPP(photoNames(kPositions), focal, LensModel::Standard);

    const QVector<AuthorizedLink> expected = plainLinks(shots, 1, focal);
    QCOMPARE(PlainLinks::difference(generator.authorizedLinks, expected), QString());
    // The test compares something wherever the lens sees anything at all.
    const bool sees = std::isfinite(focal) && !std::signbit(focal);
    QCOMPARE(!expected.isEmpty(), sees);
}

void TestMerlinToSPPLinks::linksOfBracketsEqualThePlainLoop()
{
    constexpr int kPositions = 120;
    constexpr int kExposures = 5;
    QRandomGenerator random(5);
    QVector<ShootData> shots;
    while (shots.size() < kPositions * kExposures) {
        // Heads repeat a position's angles for every exposure; here some differ.
        const ShootData first = scattered(Scatter::Twins, shots, random);
        shots += QVector<ShootData>(kExposures - 1, first);
        shots.append(scattered(Scatter::Anywhere, shots, random));
    }
    MerlinToSPP generator;
    generator.shots = shots;
    generator.nbPicts = kExposures;
    generator.generateSPP(photoNames(shots.size()), 24.0, LensModel::Standard);
    const QVector<AuthorizedLink> expected = plainLinks(shots, kExposures, 24.0);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(PlainLinks::difference(generator.authorizedLinks, expected), QString());
}

void TestMerlinToSPPLinks::halfFieldOfViewIsHalfTheDiagonal_data()
{
    QTest::addColumn<float>("focal");
    QTest::addColumn<double>("expected");

    // atan(43.266615 / 2 f)
    QTest::newRow("24 mm") << 24.0F << 0.7335813;
    QTest::newRow("half the diagonal: 45 degrees") << 21.6333077F << 0.7853982;
    QTest::newRow("0") << 0.0F << 1.5707963;
    QTest::newRow("minus 0") << -0.0F << -1.5707963;
    QTest::newRow("negative") << -24.0F << -0.7335813;
    QTest::newRow("infinite") << kInfinity << 0.0;
    QTest::newRow("twice the focal length overflows 32 bits") << 3e38F << 0.0;
}

void TestMerlinToSPPLinks::halfFieldOfViewIsHalfTheDiagonal()
{
    QFETCH(float, focal);
    QFETCH(double, expected);
    const double half = static_cast<double>(PanoHead::halfFieldOfView(focal));
    QVERIFY2(std::abs(half - expected) <= 1e-7 * std::abs(expected),
             qPrintable(QString::number(half, 'g', 9)));
    QVERIFY(std::isnan(PanoHead::halfFieldOfView(kNaN)));
}

TEST_CLASS(TestMerlinToSPPLinks, QCoreApplication)
#include "tst_merlintospp_links.moc"
