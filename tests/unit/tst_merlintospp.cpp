// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"

#include "shoot/linksearch.h"
#include "tests/support/testprogram.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

static_assert(std::is_base_of_v<StructuredPanoramaProperties, MerlinToSPP>);
static_assert(!std::is_polymorphic_v<MerlinToSPP>);

namespace
{

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

struct Link {
    int type;
    int from;
    int to;

    friend bool operator==(const Link &a, const Link &b)
    {
        return a.type == b.type && a.from == b.from && a.to == b.to;
    }
};

using Links = QVector<Link>;

ShootData shotAt(float yaw, float pitch, float roll = 0.0F)
{
    ShootData shot;
    shot.yaw = yaw;
    shot.pitch = pitch;
    shot.roll = roll;
    return shot;
}

/** "/0.jpg", "/1.jpg"... */
QStringList photos(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("/%1.jpg").arg(i));
    }
    return names;
}

Links linksOf(const MerlinToSPP &generator)
{
    Links links;
    for (const AuthorizedLink &link : generator.authorizedLinks) {
        if (link.indices.size() != 2) {
            return { { -1, -1, -1 } };
        }
        links.append({ link.linkType, link.indices.at(0), link.indices.at(1) });
    }
    return links;
}

/** The links between single photos at \p shots, on a standard lens. */
Links generatedLinks(const QVector<ShootData> &shots, double focal)
{
    MerlinToSPP generator;
    generator.shots = shots;
    generator.nbPicts = 1;
    generator.generateSPP(photos(shots.size()), focal, LensModel::Standard);
    return linksOf(generator);
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

/** The rule for links, word by word: every pair from both sides. */
Links literalLinks(const QVector<ShootData> &shots, int positions, int nbPicts, double focal)
{
    Links links;
    for (int i = 0; i < positions; ++i) {
        for (int j = 0; j < positions; ++j) {
            if (j == i) {
                continue;
            }
            const float f = static_cast<float>(focal);
            const float sum = f + f;
            const float h
                = static_cast<float>(std::atan(43.266615305567875 / static_cast<double>(sum)));
            const ShootData &a = shots.at(i * nbPicts);
            const ShootData &b = shots.at(j * nbPicts);
            const double d = std::acos(cosineBetween(a, b));
            if (!(static_cast<double>(h) > d * 0.6499999761581421)) {
                continue;
            }
            float dy = radians(b.yaw) - radians(a.yaw);
            if (static_cast<double>(dy) > 3.141592653589793) {
                dy -= 6.2831854820251465F;
            }
            if (static_cast<double>(dy) < -3.141592653589793) {
                dy += 6.2831854820251465F;
            }
            const float dp = radians(b.pitch) - radians(a.pitch);
            const double theta = std::atan2(static_cast<double>(dp), static_cast<double>(dy));
            if (theta > -0.7853981633974483 && theta <= 0.7853981633974483) {
                links.append({ 2, i, j });
            } else if (theta > -2.356194490192345 && theta <= -0.7853981633974483) {
                links.append({ 1, i, j });
            }
        }
    }
    return links;
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

} // namespace

Q_DECLARE_METATYPE(Link)
Q_DECLARE_METATYPE(ShootData)

class TestMerlinToSPP : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshGeneratorHasPapywizardsDefaults();
    void photosAreCutIntoStacks_data();
    void photosAreCutIntoStacks();
    void everyShotGetsItsAnglesInRadians();
    void anglesDoNotDependOnThePhotos();
    void focalLengthComesFromThePageOrTheRecord_data();
    void focalLengthComesFromThePageOrTheRecord();
    void lensComesFromThePageOrTheRecord_data();
    void lensComesFromThePageOrTheRecord();
    void fisheyeLensesKeepTheLinksThatWereThere();
    void linksOfHandWorkedPositions_data();
    void linksOfHandWorkedPositions();
    void twinsWithACosineAboveOneGetNoLink();
    void positionsPointWhereTheirFirstExposurePoints();
    void linksEqualTheLiteralLoop_data();
    void linksEqualTheLiteralLoop();
    void linksOfBracketsEqualTheLiteralLoop();
    void halfFieldOfViewIsHalfTheDiagonal_data();
    void halfFieldOfViewIsHalfTheDiagonal();
    void otherFieldsStayAsThePageSetThem();
    void aSecondCallAppendsEverythingAgain();
    void aNewRecordLeavesTheDescription();
    void callersErrorsDoNoHarm_data();
    void callersErrorsDoNoHarm();
    void aCopyIsIndependent();
};

void TestMerlinToSPP::aFreshGeneratorHasPapywizardsDefaults()
{
    const MerlinToSPP generator;
    QVERIFY(generator.imageGroups.isEmpty());
    QVERIFY(generator.authorizedLinks.isEmpty());
    QVERIFY(generator.yaw.isEmpty() && generator.pitch.isEmpty() && generator.roll.isEmpty());
    QVERIFY(generator.positionsKnown);
    QCOMPARE(generator.focalLength, 0.0F);
    QVERIFY(generator.rollKnown);
    QCOMPARE(generator.lensModel, LensModel::NotChosen);
    QVERIFY(!generator.autoDetection);
    QCOMPARE(generator.stackLinking, 0);
    QCOMPARE(generator.levelLinking, 0);
    QVERIFY(generator.useRecordedLocation);
    QVERIFY(!generator.skipOptimization);
    QVERIFY(!generator.cleanWrongLinks);
    QCOMPARE(generator.gridMode, 0);
    QCOMPARE(generator.gridRows, 0);
    QCOMPARE(generator.gridBracketCount, 1);
    QVERIFY(!generator.gridWrap360);
    QCOMPARE(generator.overlap, 80.0);
    QCOMPARE(generator.renderMode, -1);

    QVERIFY(generator.shots.isEmpty());
    QVERIFY(generator.title.isEmpty() && generator.gps.isEmpty() && generator.comment.isEmpty());
    QCOMPARE(generator.xmlFocal, -1.0);
    QCOMPARE(generator.sensorCoef, 1.0);
    QCOMPARE(generator.nbPicts, -1);
    QCOMPARE(generator.xmlLensType, 0);
    QVERIFY(!generator.portrait);
}

void TestMerlinToSPP::photosAreCutIntoStacks_data()
{
    QTest::addColumn<int>("photoCount");
    QTest::addColumn<int>("nbPicts");
    QTest::addColumn<QVector<int>>("stackSizes");

    QTest::newRow("no photos") << 0 << 1 << QVector<int>();
    QTest::newRow("one each") << 3 << 1 << QVector<int>{ 1, 1, 1 };
    QTest::newRow("nine in threes") << 9 << 3 << QVector<int>{ 3, 3, 3 };
    QTest::newRow("ten in threes, the tenth is left over") << 10 << 3 << QVector<int>{ 3, 3, 3 };
    QTest::newRow("twelve in threes") << 12 << 3 << QVector<int>{ 3, 3, 3, 3 };
    QTest::newRow("fewer than one bracket") << 2 << 3 << QVector<int>();
    QTest::newRow("exactly one bracket") << 5 << 5 << QVector<int>{ 5 };
}

void TestMerlinToSPP::photosAreCutIntoStacks()
{
    QFETCH(int, photoCount);
    QFETCH(int, nbPicts);
    QFETCH(QVector<int>, stackSizes);

    MerlinToSPP generator;
    generator.nbPicts = nbPicts;
    generator.shots.resize(photoCount);
    const QStringList names = photos(photoCount);
    generator.generateSPP(names, 24.0, LensModel::Fisheye);

    QVector<int> sizes;
    QStringList inOrder;
    for (const QStringList &stack : qAsConst(generator.imageGroups)) {
        sizes.append(stack.size());
        inOrder += stack;
    }
    QCOMPARE(sizes, stackSizes);
    QCOMPARE(inOrder, QStringList(names.mid(0, stackSizes.size() * nbPicts)));
}

void TestMerlinToSPP::everyShotGetsItsAnglesInRadians()
{
    MerlinToSPP generator;
    generator.nbPicts = 2;
    generator.shots = { shotAt(0.0F, 0.0F), shotAt(180.0F, 90.0F, -90.0F),
                        shotAt(-90.0F, -45.0F, 450.0F), shotAt(3600.0F, 0.1F) };
    generator.generateSPP(photos(4), 24.0, LensModel::Standard);

    QCOMPARE(generator.imageGroups.size(), 2);
    // pi = 3.14159265..., and its multiples, to the nearest 32-bit number; turns are kept
    QCOMPARE(generator.yaw.size(), 4);
    QVERIFY(generator.yaw.at(0) == 0.0F);
    QVERIFY(generator.yaw.at(1) == 3.14159265358979F);
    QVERIFY(generator.yaw.at(2) == -1.57079632679490F);
    QVERIFY(generator.yaw.at(3) == 62.8318530717959F);
    QCOMPARE(generator.pitch.size(), 4);
    QVERIFY(generator.pitch.at(1) == 1.57079632679490F);
    QVERIFY(generator.pitch.at(2) == -0.785398163397448F);
    QVERIFY(generator.pitch.at(3) == radians(0.1F));
    QCOMPARE(generator.roll.size(), 4);
    QVERIFY(generator.roll.at(0) == 0.0F);
    QVERIFY(generator.roll.at(1) == -1.57079632679490F);
    QVERIFY(generator.roll.at(2) == 7.85398163397448F);
    QVERIFY(generator.rollKnown && generator.positionsKnown);
}

void TestMerlinToSPP::anglesDoNotDependOnThePhotos()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.shots = { shotAt(1.0F, 2.0F), shotAt(3.0F, 4.0F) };
    generator.generateSPP({}, 24.0, LensModel::Standard);

    QVERIFY(generator.imageGroups.isEmpty());
    QVERIFY(generator.authorizedLinks.isEmpty());
    QCOMPARE(generator.yaw.size(), 2);
    QCOMPARE(generator.pitch.size(), 2);
    QCOMPARE(generator.roll.size(), 2);
    QCOMPARE(generator.focalLength, 24.0F);
    QCOMPARE(generator.lensModel, LensModel::Standard);
}

void TestMerlinToSPP::focalLengthComesFromThePageOrTheRecord_data()
{
    QTest::addColumn<double>("focal");
    QTest::addColumn<double>("xmlFocal");
    QTest::addColumn<float>("focalLength");

    QTest::newRow("page") << 24.1 << 35.0 << 24.1F;
    QTest::newRow("negative: record") << -0.001 << 35.1 << 35.1F;
    QTest::newRow("negative, record without a lens") << -1.0 << -1.0 << -1.0F;
    QTest::newRow("zero is kept") << 0.0 << 35.0 << 0.0F;
    QTest::newRow("minus zero is kept") << -0.0 << 35.0 << -0.0F;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 35.0 << kInfinity;
    QTest::newRow("not a number is kept")
        << std::numeric_limits<double>::quiet_NaN() << 35.0 << kNaN;
}

void TestMerlinToSPP::focalLengthComesFromThePageOrTheRecord()
{
    QFETCH(double, focal);
    QFETCH(double, xmlFocal);
    QFETCH(float, focalLength);

    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.xmlFocal = xmlFocal;
    generator.shots = { shotAt(0.0F, 0.0F), shotAt(30.0F, 0.0F) };
    generator.generateSPP(photos(2), focal, LensModel::Standard);
    QCOMPARE(std::isnan(generator.focalLength), std::isnan(focalLength));
    QVERIFY(std::isnan(focalLength) || generator.focalLength == focalLength);
    QCOMPARE(std::signbit(generator.focalLength), std::signbit(focalLength));
}

void TestMerlinToSPP::lensComesFromThePageOrTheRecord_data()
{
    QTest::addColumn<int>("lens");
    QTest::addColumn<int>("xmlLensType");
    QTest::addColumn<int>("lensModel");
    QTest::addColumn<int>("linkCount");

    QTest::newRow("standard chosen") << 0 << 0 << 0 << 1;
    QTest::newRow("standard chosen, record says fisheye") << 0 << 1 << 0 << 1;
    QTest::newRow("fisheye chosen") << 1 << 0 << 1 << 0;
    QTest::newRow("not chosen, record says standard") << -1 << 0 << 0 << 1;
    QTest::newRow("not chosen, record says fisheye") << -1 << 1 << 1 << 0;
}

void TestMerlinToSPP::lensComesFromThePageOrTheRecord()
{
    QFETCH(int, lens);
    QFETCH(int, xmlLensType);

    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.xmlLensType = xmlLensType;
    generator.shots = { shotAt(0.0F, 0.0F), shotAt(30.0F, 0.0F) };
    generator.generateSPP(photos(2), 24.0, static_cast<LensModel>(lens));
    QTEST(static_cast<int>(generator.lensModel), "lensModel");
    QTEST(generator.authorizedLinks.size(), "linkCount");
    QCOMPARE(generator.imageGroups.size(), 2);
    QCOMPARE(generator.yaw.size(), 2);
}

void TestMerlinToSPP::fisheyeLensesKeepTheLinksThatWereThere()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.authorizedLinks = { { 2, { 4, 5 } } };
    generator.shots = { shotAt(0.0F, 0.0F), shotAt(30.0F, 0.0F) };
    generator.generateSPP(photos(2), 24.0, LensModel::Fisheye);
    QCOMPARE(linksOf(generator), Links({ { 2, 4, 5 } }));
}

void TestMerlinToSPP::linksOfHandWorkedPositions_data()
{
    QTest::addColumn<QVector<ShootData>>("shots");
    QTest::addColumn<double>("focal");
    QTest::addColumn<Links>("links");

    const auto row = [](const char *name, const QVector<ShootData> &shots, double focal,
                        const Links &links) { QTest::newRow(name) << shots << focal << links; };
    const QVector<ShootData> pair30{ shotAt(0, 0), shotAt(30, 0) };
    const Links none;
    const Links right{ { 2, 0, 1 } };
    const Links left{ { 2, 1, 0 } };
    const Links below{ { 1, 0, 1 } };
    const Links above{ { 1, 1, 0 } };
    const Links both{ { 2, 0, 1 }, { 2, 1, 0 } };

    // h(24 mm) = atan(43.2666 / 48) = 0.7336; 0.65 x 30 deg = 0.65 x 0.5236 = 0.3403
    row("30 degrees beside", pair30, 24.0, right);
    row("the same from the other side", { shotAt(30, 0), shotAt(0, 0) }, 24.0, left);
    // 0.65 as 32-bit number is 0.64999998: the limit h / 0.65 lies 4e-8 rad further out. 64.75 deg
    // = 1.13010073 rad; less 0.0867506 deg = 0.00151408 rad that is 1.12858664, between 0.73358130
    // / 0.65 = 1.12858662 and 0.73358130 / 0.64999998 = 1.12858666
    row("reach factor of 32 bits", { shotAt(0.0867506F, 0), shotAt(64.75F, 0) }, 24.0, right);
    row("just beyond it", { shotAt(0.0867472F, 0), shotAt(64.75F, 0) }, 24.0, none);
    row("one position", { shotAt(0, 0) }, 24.0, none);
    // 0.65 x 64 deg = 0.65 x 1.1170 = 0.7261 < 0.7336 < 0.65 x 65 deg = 0.65 x 1.1345 = 0.7374
    row("64 degrees are near enough", { shotAt(0, 0), shotAt(64, 0) }, 24.0, right);
    row("65 degrees are not", { shotAt(0, 0), shotAt(65, 0) }, 24.0, none);
    row("64 degrees below", { shotAt(0, 32), shotAt(0, -32) }, 24.0, below);
    row("65 degrees below are too far", { shotAt(0, 32), shotAt(0, -33) }, 24.0, none);
    // 350 to 10: the step of -340 degrees wraps to +20
    row("over the seam", { shotAt(350, 0), shotAt(10, 0) }, 24.0, right);
    row("over the seam, backwards", { shotAt(10, 0), shotAt(350, 0) }, 24.0, left);
    row("straight below", { shotAt(40, 0), shotAt(40, -30) }, 24.0, below);
    row("straight above", { shotAt(40, 0), shotAt(40, 30) }, 24.0, above);
    // Steps (20, -20): atan2 gives exactly -pi/4, from the other side 3 pi/4
    row("exactly -pi/4 is below", { shotAt(0, 0), shotAt(20, -20) }, 24.0, below);
    // Steps (20, 20): exactly pi/4; from the other side exactly -3 pi/4, which is nothing
    row("exactly pi/4 is beside, exactly -3 pi/4 nothing", { shotAt(0, 0), shotAt(20, 20) }, 24.0,
        right);
    row("exactly pi/4, the other way round", { shotAt(20, 20), shotAt(0, 0) }, 24.0, left);
    row("a little steeper than pi/4", { shotAt(0, 0), shotAt(20, 21) }, 24.0, above);
    row("a little steeper than -pi/4", { shotAt(0, 0), shotAt(20, -21) }, 24.0, below);
    row("a little flatter than -pi/4", { shotAt(0, 0), shotAt(21, -20) }, 24.0, right);

    // Cosine exactly 1, distance 0, no step: beside, seen from both
    row("the same direction", { shotAt(0, 0), shotAt(0, 0) }, 24.0, both);
    // 0 - -0 is 0, but -0 - 0 is -0, and the direction of a step (-0, 0) is pi
    row("yaw 0 and yaw -0", { shotAt(0, 0), shotAt(-0.0F, 0) }, 24.0, left);
    // The wrapped step is +-360 degrees - 2 pi, which is exactly 0 in 32 bits
    row("a full turn apart", { shotAt(0, 0), shotAt(360, 0) }, 24.0, both);
    // 20 degrees apart over the zenith. The step is pi as 32-bit number, which exceeds pi: minus
    // 2 pi it falls below -pi and is taken back, so that both see the other to the right.
    row("half a turn apart, over the pole", { shotAt(0, 80), shotAt(180, 80) }, 24.0, both);
    // One wrap only: +740 becomes +380, still to the right; -700 becomes -340, to the left
    row("two turns and 20 degrees", { shotAt(0, 0), shotAt(740, 0) }, 24.0, right);
    row("two turns less 20 degrees", { shotAt(0, 0), shotAt(-700, 0) }, 24.0, left);
    row("both many turns away", { shotAt(3600, 0), shotAt(3630, 0) }, 24.0, right);
    // At the pole every yaw is the same direction, but the steps of the yaw decide
    row("at the zenith", { shotAt(0, 90), shotAt(90, 90) }, 24.0, right);

    // Ascending first index, then ascending second one
    row("a row of three", { shotAt(0, 0), shotAt(30, 0), shotAt(60, 0) }, 24.0,
        { { 2, 0, 1 }, { 2, 0, 2 }, { 2, 1, 2 } });
    // 0..30 beside, -30 below; the diagonals of 30 and -30 are exactly -pi/4 and -3 pi/4
    row("two by two", { shotAt(0, 0), shotAt(30, 0), shotAt(0, -30), shotAt(30, -30) }, 24.0,
        { { 2, 0, 1 }, { 1, 0, 2 }, { 1, 0, 3 }, { 1, 1, 3 }, { 2, 2, 1 }, { 2, 2, 3 } });

    // 1 / 0: h = pi/2 = 1.5708; 0.65 x 138 deg = 1.5656, 0.65 x 139 deg = 1.5769
    row("focal 0, 138 degrees", { shotAt(0, 0), shotAt(138, 0) }, 0.0, right);
    row("focal 0, 139 degrees", { shotAt(0, 0), shotAt(139, 0) }, 0.0, none);
    row("focal minus 0", pair30, -0.0, none);
    row("no focal in the record", pair30, -1.0, none);
    row("focal not a number", pair30, std::numeric_limits<double>::quiet_NaN(), none);
    row("focal infinite", pair30, std::numeric_limits<double>::infinity(), none);
    row("twins on an infinite focal length", { shotAt(0, 0), shotAt(0, 0) },
        std::numeric_limits<double>::infinity(), none);
    // h(1 mm) = atan(43.2666 / 2) = 1.5246; 0.65 x 134 deg = 1.5202, 0.65 x 135 deg = 1.5315
    row("1 mm, 134 degrees", { shotAt(0, 0), shotAt(134, 0) }, 1.0, right);
    row("1 mm, 135 degrees", { shotAt(0, 0), shotAt(135, 0) }, 1.0, none);

    row("yaw not a number", { shotAt(0, 0), shotAt(kNaN, 0) }, 24.0, none);
    row("pitch infinite", { shotAt(0, 0), shotAt(0, kInfinity) }, 24.0, none);
    row("both infinite", { shotAt(kInfinity, 0), shotAt(kInfinity, 0) }, 24.0, none);
}

void TestMerlinToSPP::linksOfHandWorkedPositions()
{
    QFETCH(QVector<ShootData>, shots);
    QFETCH(double, focal);
    QTEST(generatedLinks(shots, focal), "links");
}

void TestMerlinToSPP::twinsWithACosineAboveOneGetNoLink()
{
    int above = 0;
    int notAbove = 0;
    for (int pitch = -90; pitch <= 90; pitch += 3) {
        for (int yaw = 0; yaw < 360; yaw += 7) {
            const ShootData shot = shotAt(static_cast<float>(yaw), static_cast<float>(pitch));
            const bool isAbove = cosineBetween(shot, shot) > 1.0;
            ++(isAbove ? above : notAbove);
            const Links expected = isAbove ? Links() : Links({ { 2, 0, 1 }, { 2, 1, 0 } });
            QCOMPARE(generatedLinks({ shot, shot }, 24.0), expected);
        }
    }
    // About a tenth of all directions: the test has seen both kinds.
    QVERIFY(above > 50);
    QVERIFY(notAbove > 50);
}

void TestMerlinToSPP::positionsPointWhereTheirFirstExposurePoints()
{
    MerlinToSPP generator;
    generator.nbPicts = 3;
    generator.shots = { shotAt(0, 0),  shotAt(170, 80), shotAt(90, -80),
                        shotAt(30, 0), shotAt(100, 40), shotAt(0, 0) };
    generator.generateSPP(photos(6), 24.0, LensModel::Standard);
    QCOMPARE(linksOf(generator), Links({ { 2, 0, 1 } }));
    QCOMPARE(generator.imageGroups.size(), 2);
    QCOMPARE(generator.yaw.size(), 6);
}

void TestMerlinToSPP::linksEqualTheLiteralLoop_data()
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

void TestMerlinToSPP::linksEqualTheLiteralLoop()
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
    generator.generateSPP(photos(kPositions), focal, LensModel::Standard);

    const Links expected = literalLinks(shots, kPositions, 1, focal);
    const Links links = linksOf(generator);
    QCOMPARE(links.size(), expected.size());
    for (int i = 0; i < links.size(); ++i) {
        QVERIFY2(links.at(i) == expected.at(i), qPrintable(QStringLiteral("link %1").arg(i)));
    }
    // The test compares something wherever the lens sees anything at all.
    const bool sees = std::isfinite(focal) && !std::signbit(focal);
    QCOMPARE(!expected.isEmpty(), sees);
}

void TestMerlinToSPP::linksOfBracketsEqualTheLiteralLoop()
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
    generator.generateSPP(photos(shots.size()), 24.0, LensModel::Standard);
    const Links expected = literalLinks(shots, kPositions, kExposures, 24.0);
    QVERIFY(!expected.isEmpty());
    QVERIFY(linksOf(generator) == expected);
}

void TestMerlinToSPP::halfFieldOfViewIsHalfTheDiagonal_data()
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

void TestMerlinToSPP::halfFieldOfViewIsHalfTheDiagonal()
{
    QFETCH(float, focal);
    QFETCH(double, expected);
    const double half = static_cast<double>(PanoHead::halfFieldOfView(focal));
    QVERIFY2(std::abs(half - expected) <= 1e-7 * std::abs(expected),
             qPrintable(QString::number(half, 'g', 9)));
    QVERIFY(std::isnan(PanoHead::halfFieldOfView(kNaN)));
}

void TestMerlinToSPP::otherFieldsStayAsThePageSetThem()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.shots = { shotAt(0, 0) };
    generator.positionsKnown = false;
    generator.rollKnown = false;
    generator.autoDetection = true;
    generator.stackLinking = 1;
    generator.levelLinking = 1;
    generator.useRecordedLocation = false;
    generator.skipOptimization = true;
    generator.cleanWrongLinks = true;
    generator.gridMode = 3;
    generator.overlap = 33.0;
    generator.renderMode = 2;
    generator.reservedValues = { { 1, 2, 3 } };
    generator.generateSPP(photos(1), 24.0, LensModel::Standard);

    QVERIFY(!generator.positionsKnown);
    QVERIFY(!generator.rollKnown);
    QVERIFY(generator.autoDetection);
    QCOMPARE(generator.stackLinking, 1);
    QCOMPARE(generator.levelLinking, 1);
    QVERIFY(!generator.useRecordedLocation);
    QVERIFY(generator.skipOptimization);
    QVERIFY(generator.cleanWrongLinks);
    QCOMPARE(generator.gridMode, 3);
    QCOMPARE(generator.overlap, 33.0);
    QCOMPARE(generator.renderMode, 2);
    QCOMPARE(generator.reservedValues[2], 3);
    QCOMPARE(generator.nbPicts, 1);
    QCOMPARE(generator.shots.size(), 1);
}

void TestMerlinToSPP::aSecondCallAppendsEverythingAgain()
{
    MerlinToSPP generator;
    generator.nbPicts = 2;
    generator.shots = { shotAt(0, 0), shotAt(0, 0), shotAt(30, 0), shotAt(30, 0) };
    generator.generateSPP(photos(4), 24.0, LensModel::Standard);
    generator.generateSPP(photos(4), 35.0, LensModel::Standard);

    const QVector<QStringList> once{ photos(4).mid(0, 2), photos(4).mid(2, 2) };
    QCOMPARE(generator.imageGroups, once + once);
    QCOMPARE(generator.yaw.size(), 8);
    QCOMPARE(generator.yaw.mid(0, 4), generator.yaw.mid(4, 4));
    QCOMPARE(generator.pitch.size(), 8);
    QCOMPARE(generator.roll.size(), 8);
    // Indices count the positions of the call, not of the list.
    QCOMPARE(linksOf(generator), Links({ { 2, 0, 1 }, { 2, 0, 1 } }));
    QCOMPARE(generator.focalLength, 35.0F);

    generator.generateSPP(photos(4), 35.0, LensModel::Fisheye);
    QCOMPARE(generator.imageGroups.size(), 6);
    QCOMPARE(generator.yaw.size(), 12);
    QCOMPARE(generator.authorizedLinks.size(), 2);
}

void TestMerlinToSPP::aNewRecordLeavesTheDescription()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.shots = { shotAt(0, 0), shotAt(30, 0) };
    generator.generateSPP(photos(2), 24.0, LensModel::Standard);
    QVERIFY(!generator.parse(QString()));
    QVERIFY(generator.shots.isEmpty());
    QCOMPARE(generator.imageGroups.size(), 2);
    QCOMPARE(generator.yaw.size(), 2);
    QCOMPARE(generator.authorizedLinks.size(), 1);
}

void TestMerlinToSPP::callersErrorsDoNoHarm_data()
{
    QTest::addColumn<int>("nbPicts");
    QTest::addColumn<int>("shotCount");
    QTest::addColumn<int>("photoCount");
    QTest::addColumn<int>("groupCount");
    QTest::addColumn<int>("lastLinked"); // -1: no link

    // Shots stand 10 degrees apart in a row, so that every two neighbours are linked.
    QTest::newRow("no bracketing known") << -1 << 4 << 4 << 4 << 3;
    QTest::newRow("bracketing 0 counts as 1") << 0 << 4 << 4 << 4 << 3;
    QTest::newRow("bracketing -3 counts as 1") << -3 << 4 << 4 << 4 << 3;
    QTest::newRow("smallest number counts as 1")
        << std::numeric_limits<int>::min() << 4 << 4 << 4 << 3;
    QTest::newRow("largest bracketing") << std::numeric_limits<int>::max() << 4 << 4 << 0 << -1;
    QTest::newRow("largest bracketing, nothing else")
        << std::numeric_limits<int>::max() << 0 << 0 << 0 << -1;
    QTest::newRow("fewer photos than shots") << 1 << 6 << 4 << 4 << 3;
    QTest::newRow("fewer shots than photos: groups stay") << 1 << 3 << 6 << 6 << 2;
    QTest::newRow("no shots") << 1 << 0 << 4 << 4 << -1;
    // 7 shots are two whole brackets of 3
    QTest::newRow("broken bracket of shots") << 3 << 7 << 9 << 3 << 1;
    QTest::newRow("one shot per position instead of one per photo") << 3 << 3 << 9 << 3 << -1;
}

void TestMerlinToSPP::callersErrorsDoNoHarm()
{
    QFETCH(int, nbPicts);
    QFETCH(int, shotCount);
    QFETCH(int, photoCount);
    QFETCH(int, lastLinked);

    MerlinToSPP generator;
    generator.nbPicts = nbPicts;
    for (int i = 0; i < shotCount; ++i) {
        generator.shots.append(shotAt(static_cast<float>(10 * i), 0.0F));
    }
    generator.generateSPP(photos(photoCount), 24.0, LensModel::Standard);
    QTEST(generator.imageGroups.size(), "groupCount");
    QCOMPARE(generator.yaw.size(), shotCount);
    QCOMPARE(generator.nbPicts, nbPicts);
    int last = -1;
    for (const Link &link : linksOf(generator)) {
        last = std::max({ last, link.from, link.to });
    }
    QCOMPARE(last, lastLinked);
}

void TestMerlinToSPP::aCopyIsIndependent()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.shots = { shotAt(0, 0), shotAt(30, 0) };
    generator.generateSPP(photos(2), 24.0, LensModel::Standard);
    StructuredPanoramaProperties copy = generator;
    copy.imageGroups[0][0] = QStringLiteral("/other.jpg");
    copy.authorizedLinks[0].indices[0] = 7;
    copy.yaw[0] = 1.0F;
    QCOMPARE(generator.imageGroups.at(0).at(0), QStringLiteral("/0.jpg"));
    QCOMPARE(linksOf(generator), Links({ { 2, 0, 1 } }));
    QCOMPARE(generator.yaw.at(0), 0.0F);
}

TEST_CLASS(TestMerlinToSPP, QCoreApplication)
#include "tst_merlintospp.moc"
