// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pageshoot.h"
#include "ui/xui.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWizard>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>

namespace
{

using Shoot = PageShoot<UIWPVRDrive2>;

constexpr char kScanStart[] = "3.40282e+38,-3.40282e+38";

QString notAvailable()
{
    return QStringLiteral("N/A");
}

/** The warning that the page shows; null while it is hidden. */
QString shownWarning(const Shoot &shoot)
{
    return shoot.page.m_lbWarning->isVisible() ? shoot.driver.text("m_lbWarning") : QString();
}

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

RecordXml bracketedRow(int count, const QString &nbPicts)
{
    RecordXml record = RecordXml::row(count);
    record.nbPicts = nbPicts;
    return record;
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

class TestUIWPVRDrive2 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void recordIsShownInTheLabels_data();
    void recordIsShownInTheLabels();
    void failedParseKeepsRangesAndToolTip_data();
    void failedParseKeepsRangesAndToolTip();
    void failedParseOnAFreshPageShowsNotAvailable();
    void resetShowsNotAvailableAgain();
    void resetForgetsPathPhotosAndShots();
    void photosAreListedByNameAndCounted();

    void lastFailingTestGivesTheWarning_data();
    void lastFailingTestGivesTheWarning();
    void warningTestsHaveTheirLimits_data();
    void warningTestsHaveTheirLimits();
    void warningIsHiddenAgain();
    void warningNeedsRecordAndPhotos();

    void photosPresetTheLensBeforeTheRecord_data();
    void photosPresetTheLensBeforeTheRecord();
    void focalLengthOfThePhotosIsTheirMean();
    void useButtonsTakeTheirSource();
    void invertingTwiceRestoresEverything();
    void rotatingFourTimesAddsAFullTurn();

    void referenceComesFirstInEveryStack_data();
    void referenceComesFirstInEveryStack();
    void referenceFollowsTheOrderOfReading();
    void secondNextReordersItsOwnStacksOnly();
    void bracketCountBelowTwoBecomesOne_data();
    void bracketCountBelowTwoBecomesOne();
    void twelvePhotosInThreesAreAccepted();
    void tenPhotosInThreesAreCompleteButRefused();
    void bracketBeyondThePhotosIsRefused_data();
    void bracketBeyondThePhotosIsRefused();
    void nextWithoutShotsAndPhotosIsHarmless_data();
    void nextWithoutShotsAndPhotosIsHarmless();
    void nextWithUnreadPhotosReordersNothing();
    void focalLengthAndLensComeFromTheControls();

    void wizardHearsOfCompleteness();

    void lastRecordOfASelectionWins();
    void photosAloneKeepTheRecord();
    void cancelledRecordDialogKeepsTheRolls();
    void samePhotosFromTheRecordDialogAreNotReadAgain();
    void samePhotosFromThePhotoDialogAreReadAgain();
    void newPhotosReplaceThoseBeingRead();
    void pathIsTyped();

    void controlKeyOpensTheFolder_data();
    void controlKeyOpensTheFolder();
    void toolTipKeepsTheRecordsText();
    void toolTipHasALineForWhatTheRecordLeavesOut();
    void toolTipIsShownAsPlainText();

    void pageMayGoWhileTheBoxIsOpen();
};

void TestUIWPVRDrive2::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPVRDrive2::recordIsShownInTheLabels_data()
{
    QTest::addColumn<RecordXml>("record");
    QTest::addColumn<QStringList>("shown"); // count, yaw, pitch, bracketing, focal length
    const QString none = notAvailable();
    const QString zero = QStringLiteral("0,0");
    const auto row = [](const char *name, const RecordXml &record, const QStringList &shown) {
        QTest::newRow(name) << record << shown;
    };
    row("three shots and nothing else", RecordXml::row(3),
        { QStringLiteral("3"), QStringLiteral("0,60"), zero, none, none });
    RecordXml record = RecordXml::row(2);
    record.shots = { { QStringLiteral("123.4567"), QStringLiteral("-0.1234567") },
                     { QStringLiteral("-1234567.0"), QStringLiteral("12.3456789") } };
    row("six significant digits", record,
        { QStringLiteral("2"), QStringLiteral("-1.23457e+06,123.457"),
          QStringLiteral("-0.123457,12.3457"), none, none });
    record.shots = { { QStringLiteral("0.0"), QStringLiteral("5.0") },
                     { QStringLiteral("0.0"), QStringLiteral("5.0") } };
    row("one column", record, { QStringLiteral("2"), zero, QStringLiteral("5,5"), none, none });
    for (const char *number : { "nan", "inf", "-inf", "1e39", "1e999", "north" }) {
        record.shots = { { QString::fromLatin1(number), QStringLiteral("20.0") },
                         { QStringLiteral("10.0"), QString::fromLatin1(number) } };
        row(QByteArray("no angle, so 0: ") + number, record,
            { QStringLiteral("2"), QStringLiteral("0,10"), QStringLiteral("0,20"), none, none });
    }
    row("no shots: the scan's start as numbers", RecordXml::row(0),
        { none, QLatin1String(kScanStart), QLatin1String(kScanStart), none, none });
    for (const char *nbPicts : { "3", "1", "0", "-3" }) {
        row(QByteArray("bracketing ") + nbPicts, bracketedRow(1, QLatin1String(nbPicts)),
            { QStringLiteral("1"), zero, zero, QLatin1String(nbPicts), none });
    }
    row("bracketing is no number", bracketedRow(1, QStringLiteral("abc")),
        { QStringLiteral("1"), zero, zero, QStringLiteral("0"), none });
    RecordXml lens = rowWithLens(1, QStringLiteral("10.0"));
    row("focal length", lens, { QStringLiteral("1"), zero, zero, none, QStringLiteral("10.00mm") });
    lens.coef = QStringLiteral("1.6126");
    row("focal length times coefficient, two decimals", lens,
        { QStringLiteral("1"), zero, zero, none, QStringLiteral("16.13mm") });
    for (const char *coef : { "nan", "inf", "1e39", "wide" }) {
        lens.coef = QString::fromLatin1(coef);
        row(QByteArray("no coefficient, so 1: ") + coef, lens,
            { QStringLiteral("1"), zero, zero, none, QStringLiteral("10.00mm") });
    }
    for (const char *focal : { "nan", "inf", "1e999" }) {
        row(QByteArray("no focal length, so 0: ") + focal, rowWithLens(1, QLatin1String(focal)),
            { QStringLiteral("1"), zero, zero, none, QStringLiteral("0.00mm") });
    }
    row("focal length is no number", rowWithLens(1, QStringLiteral("wide")),
        { QStringLiteral("1"), zero, zero, none, QStringLiteral("0.00mm") });
}

void TestUIWPVRDrive2::recordIsShownInTheLabels()
{
    QFETCH(RecordXml, record);
    QFETCH(QStringList, shown);
    const Shoot shoot;

    shoot.loadRecord(record);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(QStringLiteral("shoot.xml")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), shown[0]);
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), shown[1]);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), shown[2]);
    QCOMPARE(shoot.driver.text("m_lbBracket"), shown[3]);
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), shown[4]);
    QCOMPARE(shoot.page.m_pbFLUseXML->isEnabled(), shown[4] != notAvailable());
}

void TestUIWPVRDrive2::failedParseKeepsRangesAndToolTip_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("not XML") << QByteArray("These are my photos");
    QTest::newRow("cut off") << RecordXml::row(3).bytes().chopped(20);
    QTest::newRow("empty") << QByteArray();
}

void TestUIWPVRDrive2::failedParseKeepsRangesAndToolTip()
{
    QFETCH(QByteArray, content);
    const Shoot shoot;
    shoot.loadRecord(rowWithLens(3, QStringLiteral("24")));
    const QString toolTip = shoot.page.m_leConfigFile->toolTip();
    QVERIFY(!toolTip.isEmpty());

    shoot.driver.load(kSelectRecord, { shoot.folder.write(QStringLiteral("bad.xml"), content) });

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(QStringLiteral("bad.xml")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    // Unlike on the Papywizard page: wanted.
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,60"));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("0,0"));
    QCOMPARE(shoot.page.m_leConfigFile->toolTip(), toolTip);
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), notAvailable());
    QVERIFY(!shoot.page.m_lbWarning->isVisible());
    QVERIFY(shoot.page.shots.isEmpty());
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page.isComplete());
}

void TestUIWPVRDrive2::failedParseOnAFreshPageShowsNotAvailable()
{
    const Shoot shoot;

    shoot.driver.load(kSelectRecord, { shoot.folder.write(QStringLiteral("bad.xml"), "x") });

    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax" }) {
        QCOMPARE(shoot.driver.text(name), notAvailable());
    }
}

void TestUIWPVRDrive2::resetShowsNotAvailableAgain()
{
    const Shoot shoot;
    RecordXml record = rowWithLens(3, QStringLiteral("50"));
    record.nbPicts = QStringLiteral("3");
    shoot.loadRecord(record);
    shoot.loadPhotos(3);
    QVERIFY(shoot.page.m_lbWarning->isVisible());
    QVERIFY(!shoot.driver.picture().isNull());

    shoot.driver.click("m_pbReset");

    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbBracket",
                              "m_lbFocalLength", "m_lbImageLog", "m_lbFocalLengthImage" }) {
        QCOMPARE(shoot.driver.text(name), notAvailable());
    }
    QCOMPARE(shoot.driver.text("m_leConfigFile"), QString());
    QCOMPARE(shoot.driver.text("m_leImage"), QString());
    QVERIFY(!shoot.page.m_lbWarning->isVisible());
    QVERIFY(!shoot.page.m_pbFLUseXML->isEnabled());
    QVERIFY(!shoot.page.m_pbFLUseImage->isEnabled());
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPVRDrive2::resetForgetsPathPhotosAndShots()
{
    Shoot shoot;
    shoot.loadRecord(rowWithLens(3, QStringLiteral("50"), QStringLiteral("fisheye")));
    shoot.loadPhotos(3);
    QVERIFY(shoot.page.validatePage());
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("elsewhere"));
    QDir().mkpath(fakeHost().lastPath);

    shoot.driver.click("m_pbReset");

    QVERIFY(shoot.page.shots.isEmpty());
    QCOMPARE(shoot.page.nbPicts, -1);
    QCOMPARE(shoot.page.xmlFocal, -1.0);
    QCOMPARE(shoot.page.xmlLensType, 0);
    QVERIFY(!shoot.page.isComplete());
    QCOMPARE(shoot.page.imageGroups.size(), 3); // what was handed over stays
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).directory, fakeHost().lastPath);
    QCOMPARE(shoot.driver.cancelFiles(kSelectPhotos).directory, fakeHost().lastPath);
}

void TestUIWPVRDrive2::photosAreListedByNameAndCounted()
{
    const Shoot shoot;
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("b <i>c; d.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("sub/e.tif")) };

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"a.jpg\"; \"b <i>c; d.jpg\"; \"e.tif\"; "));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("3"));
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("24.00mm"));
    QVERIFY(shoot.page.m_pbFLUseImage->isEnabled());
    QVERIFY(shoot.page.m_leImage->maxLength() > 1'000'000); // every photo of the largest shoots
}

// The four tests in their order; each is made to fail by itself, and every combination of them.
void TestUIWPVRDrive2::lastFailingTestGivesTheWarning_data()
{
    QTest::addColumn<int>("failing"); // bit by bit: bracketing, count, focal length, lens
    for (int mask = 0; mask < 16; ++mask) {
        QTest::addRow("failing:%s%s%s%s", (mask & 1) != 0 ? " bracketing" : "",
                      (mask & 2) != 0 ? " count" : "", (mask & 4) != 0 ? " focal" : "",
                      (mask & 8) != 0 ? " lens" : "")
            << mask;
    }
}

void TestUIWPVRDrive2::lastFailingTestGivesTheWarning()
{
    QFETCH(int, failing);
    const Shoot shoot;
    RecordXml record = rowWithLens((failing & 2) != 0 ? 5 : 4,
                                   (failing & 4) != 0 ? QStringLiteral("27") : QStringLiteral("24"),
                                   (failing & 8) != 0 ? QStringLiteral("fisheye")
                                                      : QStringLiteral("rectilinear"));
    record.nbPicts = (failing & 1) != 0 ? QStringLiteral("3") : QStringLiteral("2");

    shoot.loadRecord(record);
    shoot.loadPhotos(4, photoWith(24.0F));

    QString expected;
    if ((failing & 1) != 0) {
        expected = red("Bracketing used in XML, should be multiple of that number");
    }
    if ((failing & 2) != 0) {
        expected = red("Not the same as in XML fil"); // cut off like this: wanted
    }
    if ((failing & 4) != 0) {
        expected = red("Focal length difference between EXIF and XML");
    }
    if ((failing & 8) != 0) {
        expected = red("Lens type difference between EXIF and XML");
    }
    QCOMPARE(shownWarning(shoot), expected);
}

void TestUIWPVRDrive2::warningTestsHaveTheirLimits_data()
{
    QTest::addColumn<QString>("nbPicts");
    QTest::addColumn<QString>("xmlFocal");
    QTest::addColumn<float>("photoFocal");
    QTest::addColumn<bool>("warned");
    const auto row = [](const char *name, const char *nbPicts, const char *xmlFocal,
                        float photoFocal, bool warned) {
        QTest::newRow(name) << QString::fromLatin1(nbPicts) << QString::fromLatin1(xmlFocal)
                            << photoFocal << warned;
    };
    // |10 - 11.5| x 10 = 15 > 10, |10 - 10.9| x 10 = 9
    row("10 mm against 11.5 mm", nullptr, "11.5", 10.0F, true);
    row("10 mm against 10.9 mm", nullptr, "10.9", 10.0F, false);
    row("10 mm against 8.5 mm", nullptr, "8.5", 10.0F, true);
    row("a tenth exactly: 20 mm against 22 mm", nullptr, "22", 20.0F, false);
    row("record without focal length", nullptr, nullptr, 24.0F, false);
    row("photos without focal length", nullptr, "27", 0.0F, false);
    row("bracketing 0", "0", "24", 24.0F, false);
    row("bracketing is no number", "abc", "24", 24.0F, false);
    row("bracketing -3", "-3", "24", 24.0F, false);
    row("bracketing 1", "1", "24", 24.0F, false);
    row("bracketing 4, filled", "4", "24", 24.0F, false);
    row("bracketing beyond all photos", "2147483647", "24", 24.0F, true);
}

void TestUIWPVRDrive2::warningTestsHaveTheirLimits()
{
    QFETCH(QString, nbPicts);
    QFETCH(QString, xmlFocal);
    QFETCH(float, photoFocal);
    QFETCH(bool, warned);
    const Shoot shoot;
    RecordXml record = rowWithLens(4, xmlFocal);
    record.nbPicts = nbPicts;

    shoot.loadRecord(record);
    shoot.loadPhotos(4, photoWith(photoFocal));

    QCOMPARE(shoot.page.m_lbWarning->isVisible(), warned);
}

void TestUIWPVRDrive2::warningIsHiddenAgain()
{
    const Shoot shoot;
    shoot.loadPhotos(4);
    shoot.loadRecord(RecordXml::row(5));
    QCOMPARE(shownWarning(shoot), red("Not the same as in XML fil"));

    shoot.loadRecord(RecordXml::row(4));
    QVERIFY(!shoot.page.m_lbWarning->isVisible());
}

void TestUIWPVRDrive2::warningNeedsRecordAndPhotos()
{
    const Shoot shoot;
    shoot.loadPhotos(4);
    QVERIFY(!shoot.page.m_lbWarning->isVisible());
    shoot.loadRecord(RecordXml::row(0));
    QVERIFY(!shoot.page.m_lbWarning->isVisible());

    const Shoot without;
    without.loadRecord(rowWithLens(5, QStringLiteral("24"), QStringLiteral("fisheye")));
    QVERIFY(!without.page.m_lbWarning->isVisible());
}

void TestUIWPVRDrive2::photosPresetTheLensBeforeTheRecord_data()
{
    QTest::addColumn<float>("photoFocal");
    QTest::addColumn<int>("photoLens");
    QTest::addColumn<QString>("xmlFocal");
    QTest::addColumn<QString>("xmlLens");
    QTest::addColumn<double>("focal"); // in the controls; before they hold 77 mm, fisheye
    QTest::addColumn<int>("lens");
    const auto row = [](const char *name, float photoFocal, int photoLens, const char *xmlFocal,
                        const char *xmlLens, double focal, int lens) {
        QTest::newRow(name) << photoFocal << photoLens << QString::fromLatin1(xmlFocal)
                            << QString::fromLatin1(xmlLens) << focal << lens;
    };
    row("photos know both", 24.0F, 0, "50", "fisheye", 24.0, 0);
    row("photos are fisheye", 8.5F, 1, "50", "rectilinear", 8.5, 1);
    row("photos without focal length", 0.0F, 0, "50", "fisheye", 50.0, 1);
    row("nobody knows", 0.0F, 0, nullptr, "rectilinear", 77.0, 1);
    row("record says 0 mm", 0.0F, 0, "0", "rectilinear", 77.0, 1);
    row("not a number", std::numeric_limits<float>::quiet_NaN(), 0, "50", "rectilinear", 50.0, 0);
    row("unknown lens type", 24.0F, 7, "50", "fisheye", 24.0, 0);
}

void TestUIWPVRDrive2::photosPresetTheLensBeforeTheRecord()
{
    QFETCH(float, photoFocal);
    QFETCH(int, photoLens);
    QFETCH(QString, xmlFocal);
    QFETCH(QString, xmlLens);
    QFETCH(double, focal);
    QFETCH(int, lens);
    const Shoot shoot;
    shoot.page.m_spFocal->setValue(77.0);
    shoot.page.m_cbLensType->setCurrentIndex(1);
    shoot.loadRecord(rowWithLens(2, xmlFocal, xmlLens));
    QCOMPARE(shoot.page.m_spFocal->value(), 77.0); // a record alone presets nothing

    shoot.loadPhotos(2, photoWith(photoFocal, photoLens));

    QCOMPARE(shoot.page.m_spFocal->value(), focal);
    QCOMPARE(shoot.page.m_cbLensType->currentIndex(), lens);
}

void TestUIWPVRDrive2::focalLengthOfThePhotosIsTheirMean()
{
    const Shoot shoot;

    shoot.driver.load(kSelectPhotos,
                      { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photoWith(24.0F, 1)),
                        shoot.folder.addPhoto(QStringLiteral("b.jpg"), photoWith(35.0F, 0)),
                        shoot.folder.addPhoto(QStringLiteral("c.jpg"), photoWith(0.0F, 1)) });

    // (24 + 35 + 0) / 3 = 19.6667; the lens of the last photo
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("19.67mm"));
    QCOMPARE(shoot.page.m_spFocal->value(), 19.667); // three decimals
    QCOMPARE(shoot.page.m_cbLensType->currentIndex(), 1);
}

void TestUIWPVRDrive2::useButtonsTakeTheirSource()
{
    const Shoot shoot;
    shoot.loadRecord(rowWithLens(2, QStringLiteral("50"), QStringLiteral("fisheye")));
    shoot.loadPhotos(2, photoWith(24.0F, 0));
    QCOMPARE(shoot.page.m_spFocal->value(), 24.0);

    shoot.driver.click("m_pbFLUseXML");
    QCOMPARE(shoot.page.m_spFocal->value(), 50.0);
    QCOMPARE(shoot.page.m_cbLensType->currentIndex(), 1);

    shoot.driver.click("m_pbFLUseImage");
    QCOMPARE(shoot.page.m_spFocal->value(), 24.0);
    QCOMPARE(shoot.page.m_cbLensType->currentIndex(), 0);
}

void TestUIWPVRDrive2::invertingTwiceRestoresEverything()
{
    const Shoot shoot;
    RecordXml record;
    record.shots = { { QStringLiteral("0.0"), QStringLiteral("-30.0") },
                     { QStringLiteral("40.0"), QStringLiteral("60.5") } };
    shoot.loadRecord(record);
    const QImage picture = shoot.driver.picture();

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ 30.0F, -60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-60.5,30"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,40"));
    QVERIFY(shoot.driver.picture() != picture);

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ -30.0F, 60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60.5"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestUIWPVRDrive2::rotatingFourTimesAddsAFullTurn()
{
    Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    shoot.loadPhotos(2);

    shoot.driver.click("m_pbRot270");
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ -90.0F, -90.0F }));
    shoot.driver.click("m_pbRot90");
    for (int i = 0; i < 4; ++i) {
        shoot.driver.click("m_pbRot90");
    }
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ 360.0F, 360.0F }));

    QVERIFY(shoot.page.validatePage());
    const float radians = 6.283185307F;
    QCOMPARE(fakeHost().descriptions.last().roll, (QVector<float>{ radians, radians }));
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

void TestUIWPVRDrive2::bracketCountBelowTwoBecomesOne_data()
{
    QTest::addColumn<QString>("nbPicts");
    QTest::newRow("not said") << QString();
    for (const char *nbPicts : { "1", "0", "-3", "abc" }) {
        QTest::newRow(nbPicts) << QString::fromLatin1(nbPicts);
    }
}

void TestUIWPVRDrive2::bracketCountBelowTwoBecomesOne()
{
    QFETCH(QString, nbPicts);
    Shoot shoot;
    shoot.loadRecord(bracketedRow(2, nbPicts));
    shoot.loadPhotos(2);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(shoot.page.nbPicts, 1);
    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), 2);
}

void TestUIWPVRDrive2::twelvePhotosInThreesAreAccepted()
{
    Shoot shoot;
    shoot.loadRecord(bracketedRow(12, QStringLiteral("3")));
    shoot.loadPhotos(12);
    QVERIFY(shoot.page.isComplete());
    QVERIFY(!shoot.page.m_lbWarning->isVisible());
    const DialogClicker clicker;

    QVERIFY(shoot.page.validatePage());

    QVERIFY(clicker.messageBoxes().isEmpty());
    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), 4);
    QCOMPARE(fakeHost().descriptions.first().imageGroups.last().size(), 3);
}

void TestUIWPVRDrive2::tenPhotosInThreesAreCompleteButRefused()
{
    Shoot shoot;
    shoot.loadRecord(bracketedRow(10, QStringLiteral("3")));
    shoot.loadPhotos(10);
    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shownWarning(shoot), red("Bracketing used in XML, should be multiple of that number"));
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    QVERIFY(!shoot.page.validatePage());

    QVERIFY(clicker.isSettled());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    const DialogClicker::SeenMessageBox &box = clicker.messageBoxes().first();
    QCOMPARE(box.title, QStringLiteral("Warning"));
    QCOMPARE(box.text,
             QStringLiteral("Papywizard XML has bracketing and the number of images isn't a "
                            "multiple of this number of brackets."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.textFormat, Qt::PlainText);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(fakeHost().descriptions.isEmpty());
    QVERIFY(shoot.page.imageGroups.isEmpty());
    QCOMPARE(shoot.page.nbPicts, 3);
}

void TestUIWPVRDrive2::bracketBeyondThePhotosIsRefused_data()
{
    QTest::addColumn<QString>("nbPicts");
    QTest::newRow("one more") << QStringLiteral("5");
    QTest::newRow("many more") << QStringLiteral("400");
    QTest::newRow("as many as can be") << QStringLiteral("2147483647");
}

void TestUIWPVRDrive2::bracketBeyondThePhotosIsRefused()
{
    QFETCH(QString, nbPicts);
    Shoot shoot;
    shoot.loadRecord(bracketedRow(4, nbPicts));
    shoot.loadPhotos(4);
    QVERIFY(shoot.page.isComplete());
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    QVERIFY(!shoot.page.validatePage());

    QVERIFY(clicker.isSettled());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QVERIFY(fakeHost().descriptions.isEmpty());
    QVERIFY(shoot.page.imageGroups.isEmpty());
}

void TestUIWPVRDrive2::nextWithoutShotsAndPhotosIsHarmless_data()
{
    QTest::addColumn<QString>("nbPicts");
    QTest::newRow("not said") << QString();
    for (const char *nbPicts : { "0", "1", "3", "2147483647", "-2147483648" }) {
        QTest::newRow(nbPicts) << QString::fromLatin1(nbPicts);
    }
}

void TestUIWPVRDrive2::nextWithoutShotsAndPhotosIsHarmless()
{
    QFETCH(QString, nbPicts);
    Shoot shoot;
    shoot.loadRecord(bracketedRow(0, nbPicts));
    QVERIFY(shoot.page.isComplete());

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 1);
    QVERIFY(fakeHost().descriptions.first().imageGroups.isEmpty());
    QVERIFY(fakeHost().descriptions.first().yaw.isEmpty());
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

void TestUIWPVRDrive2::focalLengthAndLensComeFromTheControls()
{
    Shoot shoot;
    shoot.loadRecord(rowWithLens(2, QStringLiteral("50")));
    shoot.loadPhotos(2, photoWith(24.0F, 0));
    shoot.page.m_spFocal->setValue(31.25);
    shoot.page.m_cbLensType->setCurrentIndex(1);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.first().focalLength, 31.25F);
    QCOMPARE(fakeHost().descriptions.first().lensModel, LensModel::Fisheye);
}

void TestUIWPVRDrive2::wizardHearsOfCompleteness()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPVRDrive2(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const PageDriver driver(page);
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    QVERIFY(!next->isEnabled());

    driver.load(kSelectPhotos, folder.addPhotos(2));
    QVERIFY(!next->isEnabled());
    const QString fitting = folder.write(QStringLiteral("fitting.xml"), RecordXml::row(2).bytes());
    driver.load(kSelectRecord, { fitting });
    QVERIFY(next->isEnabled());
    driver.type("m_leConfigFile", folder.path(QStringLiteral("missing.xml")));
    QVERIFY(!next->isEnabled());
    driver.type("m_leConfigFile", fitting);
    QVERIFY(next->isEnabled());
    driver.click("m_pbReset");
    QVERIFY(!next->isEnabled());
    driver.load(kSelectRecord, { fitting });
    QVERIFY(!next->isEnabled());
    driver.load(kSelectPhotos, folder.addPhotos(2));
    QVERIFY(next->isEnabled()); // heard when the last photo arrived
}

void TestUIWPVRDrive2::lastRecordOfASelectionWins()
{
    const Shoot shoot;

    shoot.driver.load(kSelectRecord,
                      { shoot.writeRecord(RecordXml::row(2), QStringLiteral("one.xml")),
                        shoot.folder.addPhoto(QStringLiteral("b.jpg")),
                        shoot.writeRecord(RecordXml::row(3), QStringLiteral("Two.XML")),
                        shoot.folder.addPhoto(QStringLiteral("a.jpg")) });

    const QString record = shoot.folder.path(QStringLiteral("Two.XML"));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("3"));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; \"b.jpg\"; "));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ record });
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

void TestUIWPVRDrive2::newPhotosReplaceThoseBeingRead()
{
    const Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    Gate enter;
    FakePhoto slow;
    slow.spins = 200;
    slow.enter = &enter;
    QStringList old;
    for (int i = 0; i < 50; ++i) {
        old.append(shoot.folder.addPhoto(QStringLiteral("old_%1.jpg").arg(i), slow));
    }
    shoot.driver.chooseFiles(kSelectPhotos, old);
    enter.pass(); // one is in the host's hands

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2, photoWith(31.0F)));

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("31.00mm"));
}

void TestUIWPVRDrive2::pathIsTyped()
{
    const Shoot shoot;
    const QString record = shoot.writeRecord(RecordXml::row(5));
    auto noBox = std::make_unique<DialogClicker>();

    shoot.driver.type("m_leConfigFile", record.chopped(1));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), notAvailable());
    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_L);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(noBox->messageBoxes().isEmpty());
    noBox.reset();
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).fileName, QStringLiteral("shoot.xml"));
}

void TestUIWPVRDrive2::controlKeyOpensTheFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("shoot");
    QTest::newRow("URL syntax") << QStringLiteral("shoot #1? 50%41");
    QTest::newRow("umlauts") << QString::fromUtf8("Höhe über Zürich");
}

void TestUIWPVRDrive2::controlKeyOpensTheFolder()
{
    QFETCH(QString, folder);
    const Shoot shoot;
    const QString record = shoot.writeRecord(RecordXml::row(1), folder + QLatin1String("/a.xml"));
    const QString photo = shoot.folder.addPhoto(folder + QLatin1String("-photos/a.jpg"));
    fakeHost().lastPath = record;
    const DesktopCatcher desktop;

    // Nothing chosen yet: the folder of the host's last path.
    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);
    shoot.driver.load(kSelectRecord, { record, photo });
    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QStringList opened;
    for (const QUrl &url : desktop.urls()) {
        opened.append(url.toLocalFile());
    }
    const QString place = shoot.folder.path(folder);
    QCOMPARE(opened, (QStringList{ place, place, place, place + QLatin1String("-photos") }));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; "));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ record });
}

void TestUIWPVRDrive2::toolTipKeepsTheRecordsText()
{
    const Shoot shoot;
    RecordXml record = RecordXml::row(1);
    record.title = QStringLiteral("a %2 %1 %3");
    record.gps = QStringLiteral("%1<b>%3</b>");
    record.comment = QStringLiteral("c");

    shoot.loadRecord(record);

    QCOMPARE(shoot.page.m_leConfigFile->toolTip(), QStringLiteral("a %2 %1 %3\n%1<b>%3</b>\nc"));
}

void TestUIWPVRDrive2::toolTipHasALineForWhatTheRecordLeavesOut()
{
    const Shoot shoot;

    shoot.driver.load(kSelectRecord,
                      { shoot.folder.write(QStringLiteral("bare.xml"),
                                           "<papywizard><header><general><gps> 1,2 </gps></general>"
                                           "</header><shoot/></papywizard>") });
    QCOMPARE(shoot.page.m_leConfigFile->toolTip(), QStringLiteral("\n1,2\n"));

    shoot.driver.load(
        kSelectRecord,
        { shoot.folder.write(QStringLiteral("barer.xml"), "<papywizard><shoot/></papywizard>") });
    QCOMPARE(shoot.page.m_leConfigFile->toolTip(), QStringLiteral("\n\n"));
}

void TestUIWPVRDrive2::toolTipIsShownAsPlainText()
{
    const Shoot shoot;
    const QString trap = shoot.folder.path(QStringLiteral("pipe"));
    const TrapPipe pipe(trap);
    RecordXml record = RecordXml::row(1);
    record.title = QStringLiteral("<b>x</b> <img src='%1'>").arg(trap);
    record.gps = QStringLiteral("g");
    record.comment = QStringLiteral("c");
    shoot.loadRecord(record);
    QLineEdit *edit = shoot.page.m_leConfigFile;
    QToolTip::hideText();

    QHelpEvent event(QEvent::ToolTip, edit->rect().center(),
                     edit->mapToGlobal(edit->rect().center()));
    QApplication::sendEvent(edit, &event);

    QVERIFY(QToolTip::isVisible());
    QTextDocument shown;
    shown.setHtml(QToolTip::text());
    QCOMPARE(shown.toPlainText(), record.title + QLatin1String("\ng\nc"));
    QVERIFY(!pipe.wasOpened());
    QToolTip::hideText();
}

void TestUIWPVRDrive2::pageMayGoWhileTheBoxIsOpen()
{
    const ShootFolder folder;
    QPointer<UIWPVRDrive2> page = new UIWPVRDrive2(nullptr);
    const PageDriver driver(page);
    driver.load(kSelectRecord,
                folder.addPhotos(4) << folder.write(QStringLiteral("a.xml"),
                                                    bracketedRow(4, QStringLiteral("3")).bytes()));
    DialogClicker clicker;
    clicker.beforeNextAnswer([&page] { delete page.data(); });

    QVERIFY(!page->validatePage());

    QVERIFY(page.isNull());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QVERIFY(fakeHost().descriptions.isEmpty());
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPVRDrive2)
#include "tst_uiwpvrdrive2.moc"
