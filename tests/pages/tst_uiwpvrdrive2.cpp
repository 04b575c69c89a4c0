// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/pageshoot.h"
#include "ui/xui.h"

#include <QtTest>

#include <algorithm>
#include <limits>

namespace
{

using Shoot = PageShoot<UIWPVRDrive2>;

/** \p count photos, the first with the first exposure and so on. */
QStringList bracketedPhotos(const Shoot &shoot, const QVector<float> &exposures)
{
    QStringList photos;
    for (int i = 0; i < exposures.size(); ++i) {
        FakePhoto photo;
        photo.exposure = exposures.at(i);
        photos.append(shoot.folder.addPhoto(QString(QChar('a' + i)), photo));
    }
    return photos;
}

/** The photos of every stack, as one word each. */
QStringList stacksOf(const StructuredPanoramaProperties &description)
{
    QStringList stacks;
    for (const QStringList &group : description.imageGroups) {
        stacks.append(namesOf(group).join(QString()));
    }
    return stacks;
}

} // namespace

/** What only the page for VR Drive 2 records does. */
class TestUIWPVRDrive2 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void referenceComesFirstInEveryStack_data();
    void referenceComesFirstInEveryStack();
    void referenceFollowsTheOrderOfReading();
    void secondNextReordersItsOwnStacksOnly();
    void nextWithUnreadPhotosReordersNothing();

    void photosAloneKeepTheRecord();
    void cancelledRecordDialogKeepsTheRolls();
    void samePhotosFromTheRecordDialogAreNotReadAgain();
    void samePhotosFromThePhotoDialogAreReadAgain();
};

void TestUIWPVRDrive2::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPVRDrive2::referenceComesFirstInEveryStack_data()
{
    QTest::addColumn<QString>("nbPicts");
    QTest::addColumn<QVector<float>>("exposures");
    QTest::addColumn<QStringList>("stacks");
    const auto row = [](const char *name, const char *nbPicts, const QVector<float> &exposures,
                        const char *stacks) {
        QTest::newRow(name) << QString::fromLatin1(nbPicts) << exposures
                            << QString::fromLatin1(stacks).split(QLatin1Char(' '));
    };
    row("not said", nullptr, { 1, -1 }, "a b");
    row("pairs", "2", { 1, -1, 1, -1 }, "ba dc");
    row("threes, the first is the reference", "3", { 0, -2, 2, 0, -2, 2 }, "abc def");
    row("fives", "5", { -2, -1, 0, 1, 2, -2, -1, 0, 1, 2 }, "cbade hgfij");
    row("fours: the lower of the two in the middle", "4", { 3, 1, 4, 2, 3, 1, 4, 2 }, "dbca hfge");
    row("sixes: the third lowest", "6", { 6, 5, 4, 3, 2, 1 }, "dbcaef");
    row("repeated median: the later one", "3", { 0, -1, 0, 0, -1, 0 }, "cba fed");
    row("repeated median at both ends", "4", { 7, 1, 9, 7 }, "dbca");
    row("all equal: the last one", "3", { 2, 2, 2 }, "cba");
    row("ones", "1", { 3, 1, 2 }, "a b c");
    row("the first bracket decides for all: wanted", "3", { -2, 0, 2, 0, -2, 2 }, "bac edf");
    row("not a number", "2",
        { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::quiet_NaN() }, "ab");
}

void TestUIWPVRDrive2::referenceComesFirstInEveryStack()
{
    QFETCH(QString, nbPicts);
    QFETCH(QVector<float>, exposures);
    QFETCH(QStringList, stacks);
    Shoot shoot;
    shoot.loadRecord(bracketedRow(exposures.size(), nbPicts));
    shoot.driver.load(kSelectPhotos, bracketedPhotos(shoot, exposures));
    QVERIFY(shoot.page.isComplete());

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(stacksOf(fakeHost().descriptions.first()), stacks);
    QCOMPARE(fakeHost().descriptions.first().yaw.size(), exposures.size());
}

void TestUIWPVRDrive2::referenceFollowsTheOrderOfReading()
{
    Shoot shoot;
    // Shot times that run backwards order the preview of other pages, never the stacks.
    QStringList photos;
    for (int i = 0; i < 4; ++i) {
        FakePhoto photo;
        photo.exposure = i % 2 == 0 ? 1.0F : -1.0F;
        photo.shotTime = 100 - i;
        photos.append(shoot.folder.addPhoto(QString(QChar('a' + i)), photo));
    }
    shoot.loadRecord(bracketedRow(4, QStringLiteral("2")));
    shoot.driver.load(kSelectPhotos, photos);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(stacksOf(fakeHost().descriptions.first()),
             (QStringList{ QStringLiteral("ba"), QStringLiteral("dc") }));
}

void TestUIWPVRDrive2::secondNextReordersItsOwnStacksOnly()
{
    Shoot shoot;
    shoot.loadRecord(bracketedRow(4, QStringLiteral("2")));
    shoot.driver.load(kSelectPhotos, bracketedPhotos(shoot, { 1, -1, 1, -1 }));
    QVERIFY(shoot.page.validatePage());

    // Another record over the same photos: the reference is now the fourth of four.
    shoot.loadRecord(bracketedRow(4, QStringLiteral("4")));
    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 2);
    QCOMPARE(stacksOf(fakeHost().descriptions.first()),
             (QStringList{ QStringLiteral("ba"), QStringLiteral("dc") }));
    QCOMPARE(stacksOf(fakeHost().descriptions.last()),
             (QStringList{ QStringLiteral("ba"), QStringLiteral("dc"), QStringLiteral("dbca") }));
    QCOMPARE(fakeHost().descriptions.last().yaw.size(), 8);
}

void TestUIWPVRDrive2::nextWithUnreadPhotosReordersNothing()
{
    Shoot shoot;
    shoot.loadRecord(bracketedRow(4, QStringLiteral("4")));
    const QStringList photos = bracketedPhotos(shoot, { 3, 1, 2, 0 });
    FakePhoto broken;
    broken.reading = FakePhoto::Reading::Fails;
    fakeHost().setPhoto(photos.last(), broken);
    shoot.driver.load(kSelectPhotos, photos);
    QVERIFY(!shoot.page.isComplete());

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(stacksOf(fakeHost().descriptions.first()), QStringList{ QStringLiteral("abcd") });
}

void TestUIWPVRDrive2::photosAloneKeepTheRecord()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("last"));
    QDir().mkpath(fakeHost().lastPath);

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ fakeHost().lastPath }); // the start location
    QCOMPARE(shoot.driver.text("m_leConfigFile"), QString()); // unlike on the Papywizard page

    const QString record = shoot.writeRecord(RecordXml::row(3));
    shoot.driver.load(kSelectRecord, { record });
    shoot.driver.click("m_pbRot90");
    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(3));
    QCOMPARE(fakeHost().setLastPaths.mid(1), (QStringList{ record, record }));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ 90.0F, 90.0F, 90.0F })); // not read again
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPVRDrive2::cancelledRecordDialogKeepsTheRolls()
{
    const Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    shoot.driver.click("m_pbRot90");

    shoot.driver.cancelFiles(kSelectRecord);

    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ 90.0F, 90.0F }));
}

void TestUIWPVRDrive2::samePhotosFromTheRecordDialogAreNotReadAgain()
{
    const Shoot shoot;
    QStringList photos = shoot.folder.addPhotos(3);
    shoot.driver.load(kSelectRecord, photos);
    QCOMPARE(fakeHost().readFiles().size(), 3);

    std::reverse(photos.begin(), photos.end());
    shoot.driver.load(kSelectRecord, photos << shoot.writeRecord(RecordXml::row(3)));
    QCOMPARE(fakeHost().readFiles().size(), 3);
    QVERIFY(shoot.page.isComplete());

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2));
    QCOMPARE(fakeHost().readFiles().size(), 5);
}

void TestUIWPVRDrive2::samePhotosFromThePhotoDialogAreReadAgain()
{
    const Shoot shoot;
    shoot.loadPhotos(3);
    shoot.loadPhotos(3);
    QCOMPARE(fakeHost().readFiles().size(), 6);
    shoot.loadRecord(RecordXml::row(3));
    QVERIFY(shoot.page.isComplete());
}

TEST_CLASS(TestUIWPVRDrive2, FakeApplication)
#include "tst_uiwpvrdrive2.moc"
