// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"

#include "tests/support/plainlinks.h"
#include "tests/support/testprogram.h"
#include "tests/unit/photonames.h"
#include "tests/unit/shots.h"

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

} // namespace

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
    const QStringList names = photoNames(photoCount);
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
    generator.generateSPP(photoNames(4), 24.0, LensModel::Standard);

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
    QVERIFY(generator.pitch.at(3) == 0.0017453292780015F);
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
    generator.generateSPP(photoNames(2), focal, LensModel::Standard);
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
    generator.generateSPP(photoNames(2), 24.0, static_cast<LensModel>(lens));
    QTEST(static_cast<int>(generator.lensModel), "lensModel");
    QTEST(generator.authorizedLinks.size(), "linkCount");
    QCOMPARE(generator.imageGroups.size(), 2);
    QCOMPARE(generator.yaw.size(), 2);
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
    generator.generateSPP(photoNames(1), 24.0, LensModel::Standard);

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
    generator.generateSPP(photoNames(4), 24.0, LensModel::Standard);
    generator.generateSPP(photoNames(4), 35.0, LensModel::Standard);

    const QVector<QStringList> once{ photoNames(4).mid(0, 2), photoNames(4).mid(2, 2) };
    QCOMPARE(generator.imageGroups, once + once);
    QCOMPARE(generator.yaw.size(), 8);
    QCOMPARE(generator.yaw.mid(0, 4), generator.yaw.mid(4, 4));
    QCOMPARE(generator.pitch.size(), 8);
    QCOMPARE(generator.roll.size(), 8);
    // Indices count the positions of the call, not of the list.
    QCOMPARE(PlainLinks::text(generator.authorizedLinks), QStringLiteral("2:0-1 2:0-1"));
    QCOMPARE(generator.focalLength, 35.0F);

    generator.generateSPP(photoNames(4), 35.0, LensModel::Fisheye);
    QCOMPARE(generator.imageGroups.size(), 6);
    QCOMPARE(generator.yaw.size(), 12);
    QCOMPARE(generator.authorizedLinks.size(), 2);
}

void TestMerlinToSPP::aNewRecordLeavesTheDescription()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.shots = { shotAt(0, 0), shotAt(30, 0) };
    generator.generateSPP(photoNames(2), 24.0, LensModel::Standard);
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
    generator.generateSPP(photoNames(photoCount), 24.0, LensModel::Standard);
    QTEST(generator.imageGroups.size(), "groupCount");
    QCOMPARE(generator.yaw.size(), shotCount);
    QCOMPARE(generator.nbPicts, nbPicts);
    int last = -1;
    for (const AuthorizedLink &link : qAsConst(generator.authorizedLinks)) {
        last = std::max({ last, link.indices.at(0), link.indices.at(1) });
    }
    QCOMPARE(last, lastLinked);
}

void TestMerlinToSPP::aCopyIsIndependent()
{
    MerlinToSPP generator;
    generator.nbPicts = 1;
    generator.shots = { shotAt(0, 0), shotAt(30, 0) };
    generator.generateSPP(photoNames(2), 24.0, LensModel::Standard);
    StructuredPanoramaProperties copy = generator;
    copy.imageGroups[0][0] = QStringLiteral("/other.jpg");
    copy.authorizedLinks[0].indices[0] = 7;
    copy.yaw[0] = 1.0F;
    QCOMPARE(generator.imageGroups.at(0).at(0), QStringLiteral("/0.jpg"));
    QCOMPARE(PlainLinks::text(generator.authorizedLinks), QStringLiteral("2:0-1"));
    QCOMPARE(generator.yaw.at(0), 0.0F);
}

TEST_CLASS(TestMerlinToSPP, QCoreApplication)
#include "tst_merlintospp.moc"
