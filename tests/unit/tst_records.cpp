// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/xuiinstances.h"
#include "model/authorizedlink.h"
#include "model/lensmodel.h"
#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"
#include "tests/support/testprogram.h"

#include <QTest>

#include <type_traits>

// The records cross the boundary to hosts that were compiled apart: their places are part of the
// contract. Worked out by hand for 64-bit pointers from the widths in the field tables.
static_assert(std::is_same_v<std::underlying_type_t<LensModel>, qint32>);
static_assert(static_cast<int>(LensModel::NotChosen) == -1);
static_assert(static_cast<int>(LensModel::Standard) == 0);
static_assert(static_cast<int>(LensModel::Fisheye) == 1);

static_assert(!std::is_polymorphic_v<AuthorizedLink>);
static_assert(!std::is_polymorphic_v<ShootData>);
static_assert(!std::is_polymorphic_v<StructuredPanoramaProperties>);
static_assert(sizeof(XUIInstances) == sizeof(void *));
static_assert(sizeof(XUISettings) == sizeof(bool));

#if QT_POINTER_SIZE == 8
static_assert(offsetof(AuthorizedLink, linkType) == 0);
static_assert(offsetof(AuthorizedLink, indices) == 8);
static_assert(sizeof(AuthorizedLink) == 16);

static_assert(offsetof(ShootData, reserved) == 0);
static_assert(offsetof(ShootData, yaw) == 8);
static_assert(offsetof(ShootData, pitch) == 12);
static_assert(offsetof(ShootData, roll) == 16);
static_assert(offsetof(ShootData, id) == 20);
static_assert(offsetof(ShootData, bracket) == 24);
static_assert(offsetof(ShootData, time) == 32);
static_assert(sizeof(ShootData) == 40);

using Spp = StructuredPanoramaProperties;
static_assert(offsetof(Spp, imageGroups) == 0);
static_assert(offsetof(Spp, authorizedLinks) == 8);
static_assert(offsetof(Spp, yaw) == 16);
static_assert(offsetof(Spp, pitch) == 24);
static_assert(offsetof(Spp, roll) == 32);
static_assert(offsetof(Spp, positionsKnown) == 40);
static_assert(offsetof(Spp, focalLength) == 44);
static_assert(offsetof(Spp, rollKnown) == 48);
static_assert(offsetof(Spp, lensModel) == 52);
static_assert(offsetof(Spp, reservedValues) == 56);
static_assert(sizeof(Spp::reservedValues) == 12);
static_assert(offsetof(Spp, reservedFlag1) == 68);
static_assert(offsetof(Spp, autoDetection) == 69);
static_assert(offsetof(Spp, stackLinking) == 72);
static_assert(offsetof(Spp, levelLinking) == 76);
static_assert(offsetof(Spp, useRecordedLocation) == 80);
static_assert(offsetof(Spp, skipOptimization) == 81);
static_assert(offsetof(Spp, cleanWrongLinks) == 82);
static_assert(offsetof(Spp, gridMode) == 84);
static_assert(offsetof(Spp, gridRows) == 88);
static_assert(offsetof(Spp, gridBracketCount) == 92);
static_assert(offsetof(Spp, gridWrap360) == 96);
static_assert(offsetof(Spp, overlap) == 104);
static_assert(offsetof(Spp, reservedIndex1) == 112);
static_assert(offsetof(Spp, renderMode) == 116);
static_assert(offsetof(Spp, reservedText1) == 120);
static_assert(offsetof(Spp, reservedText2) == 128);
static_assert(offsetof(Spp, reservedFlag3) == 136);
static_assert(sizeof(Spp) == 144);
#endif

/** The records that go between host and library. */
class TestRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshShotIsAllZero();
    void aFreshLinkIsEmpty();
    void linksAndShotsAreMovedAsMemory();
    void aFreshDescriptionHasTheDefaults();
    void aChangedCopyLeavesItsSourceAlone();
    void onlyTwoNumbersNameALens_data();
    void onlyTwoNumbersNameALens();
    void freshUiSettingsWantTheDesktopsDialogs();
};

void TestRecords::aFreshShotIsAllZero()
{
    const ShootData shot;
    QCOMPARE(shot.reserved, qint64(0));
    QCOMPARE(shot.yaw, 0.0F);
    QCOMPARE(shot.pitch, 0.0F);
    QCOMPARE(shot.roll, 0.0F);
    QCOMPARE(shot.id, 0);
    QCOMPARE(shot.bracket, 0);
    QVERIFY(shot.time.isNull());
}

/** Lists of a million of them grow without a call for each. */
void TestRecords::linksAndShotsAreMovedAsMemory()
{
    QVERIFY(!QTypeInfo<AuthorizedLink>::isStatic);
    QVERIFY(!QTypeInfo<ShootData>::isStatic);
}

void TestRecords::aFreshLinkIsEmpty()
{
    const AuthorizedLink link;
    QCOMPARE(link.linkType, 0);
    QVERIFY(link.indices.isEmpty());
}

void TestRecords::aFreshDescriptionHasTheDefaults()
{
    const StructuredPanoramaProperties spp;
    QVERIFY(spp.imageGroups.isEmpty());
    QVERIFY(spp.authorizedLinks.isEmpty());
    QVERIFY(spp.yaw.isEmpty());
    QVERIFY(spp.pitch.isEmpty());
    QVERIFY(spp.roll.isEmpty());
    QCOMPARE(spp.focalLength, 0.0F);
    QCOMPARE(spp.lensModel, LensModel::NotChosen);
    for (const qint32 value : spp.reservedValues) {
        QCOMPARE(value, 0);
    }
    QVERIFY(!spp.reservedFlag1);
    QVERIFY(!spp.autoDetection);
    QCOMPARE(spp.stackLinking, 0);
    QCOMPARE(spp.levelLinking, 0);
    QVERIFY(spp.useRecordedLocation);
    QVERIFY(!spp.skipOptimization);
    QVERIFY(!spp.cleanWrongLinks);
    QCOMPARE(spp.gridMode, 0);
    QCOMPARE(spp.gridRows, 0);
    QCOMPARE(spp.gridBracketCount, 1);
    QVERIFY(!spp.gridWrap360);
    QCOMPARE(spp.overlap, 80.0);
    QCOMPARE(spp.reservedIndex1, -1);
    QCOMPARE(spp.renderMode, -1);
    QVERIFY(spp.reservedText1.isEmpty());
    QVERIFY(spp.reservedText2.isEmpty());
    QVERIFY(!spp.reservedFlag3);
}

void TestRecords::aChangedCopyLeavesItsSourceAlone()
{
    StructuredPanoramaProperties source;
    source.imageGroups = { { QStringLiteral("/a.jpg"), QStringLiteral("/b.jpg") } };
    source.authorizedLinks = { { 2, { 0, 1 } } };
    source.yaw = { 0.5F };
    source.pitch = { 0.25F };
    source.roll = { 0.125F };
    source.reservedText1 = QStringLiteral("one");
    source.reservedValues = { { 1, 2, 3 } };

    StructuredPanoramaProperties copy = source;
    copy.imageGroups[0][1] = QStringLiteral("/changed.jpg");
    copy.imageGroups.append(QStringList());
    copy.authorizedLinks[0].indices[0] = 7;
    copy.authorizedLinks[0].linkType = 4;
    copy.yaw[0] = 9.0F;
    copy.pitch.clear();
    copy.roll.append(1.0F);
    copy.reservedText1 += QStringLiteral(" more");
    copy.reservedValues[2] = 30;

    QCOMPARE(source.imageGroups.size(), 1);
    QCOMPARE(source.imageGroups.at(0),
             QStringList({ QStringLiteral("/a.jpg"), QStringLiteral("/b.jpg") }));
    QCOMPARE(source.authorizedLinks.size(), 1);
    QCOMPARE(source.authorizedLinks.at(0).linkType, 2);
    QCOMPARE(source.authorizedLinks.at(0).indices, QVector<qint32>({ 0, 1 }));
    QCOMPARE(source.yaw, QVector<float>{ 0.5F });
    QCOMPARE(source.pitch, QVector<float>{ 0.25F });
    QCOMPARE(source.roll, QVector<float>{ 0.125F });
    QCOMPARE(source.reservedText1, QStringLiteral("one"));
    QCOMPARE(source.reservedValues[2], 3);
    QCOMPARE(copy.authorizedLinks.at(0).indices, QVector<qint32>({ 7, 1 }));
}

void TestRecords::onlyTwoNumbersNameALens_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("named");
    QTest::newRow("standard") << 0 << true;
    QTest::newRow("fisheye") << 1 << true;
    QTest::newRow("not chosen is no lens") << -1 << false;
    QTest::newRow("beyond the list") << 2 << false;
    QTest::newRow("a host's own kind") << 1000 << false;
}

void TestRecords::onlyTwoNumbersNameALens()
{
    QFETCH(const int, value);
    QFETCH(const bool, named);
    QCOMPARE(PanoHead::isLensModel(value), named);
}

void TestRecords::freshUiSettingsWantTheDesktopsDialogs()
{
    QVERIFY(XUISettings().useSystemFileDialog);
    QCOMPARE(XUIInstances().settings, nullptr);
}

TEST_CLASS(TestRecords, QCoreApplication)
#include "tst_records.moc"
