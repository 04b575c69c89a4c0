// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

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

#include <limits>
#include <memory>

namespace
{

using Shoot = PageShoot<UIWPMerlin>;

} // namespace

class TestUIWPMerlin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void recordIsShownInTheLabels_data();
    void recordIsShownInTheLabels();
    void unreadableRecordShowsTheScanStart_data();
    void unreadableRecordShowsTheScanStart();
    void headerTextsGoToTheirFields();
    void resetForgetsPathPhotosAndShots();
    void photosAreListedByNameAndCounted();

    void lastFailingTestGivesTheWarning_data();
    void lastFailingTestGivesTheWarning();
    void warningTestsHaveTheirLimits_data();
    void warningTestsHaveTheirLimits();
    void warningAboutTheCountEndsWhereWanted();
    void warningNeedsRecordAndPhotos();

    void photosPresetTheLensBeforeTheRecord_data();
    void photosPresetTheLensBeforeTheRecord();
    void focalLengthOfThePhotosIsTheirMean();
    void useButtonsTakeTheirSource();
    void invertingNegatesPitchesAndExtents();
    void invertingTwiceRestoresEverything();
    void rotatingAddsQuarterTurnsWithoutWrapping();

    void twelvePhotosInThreesGiveFourStacks();
    void bracketCountBelowTwoBecomesOne_data();
    void bracketCountBelowTwoBecomesOne();
    void photosThatDoNotFillTheBracketsAreRefused();
    void focalLengthAndLensComeFromTheControls();

    void wizardHearsOfCompleteness();

    void lastRecordOfASelectionWins_data();
    void lastRecordOfASelectionWins();
    void photosAloneMakeTheStartLocationThePath();
    void cancelledRecordDialogReadsTheFileAgain();
    void cancelledRecordDialogOnAnEmptyPageChangesNothing();
    void newPhotosReplaceThoseBeingRead();
    void pathIsTyped();
    void typingInTheMiddleKeepsTheCursor();

    void controlKeyOpensTheFolder_data();
    void controlKeyOpensTheFolder();

    void toolTipKeepsTheRecordsText();
    void toolTipIsShownAsPlainText_data();
    void toolTipIsShownAsPlainText();
    void trapPipeNoticesAReader();

    void pageMayGoWhileTheBoxIsOpen();
};

void TestUIWPMerlin::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPMerlin::recordIsShownInTheLabels_data()
{
    QTest::addColumn<RecordXml>("record");
    QTest::addColumn<QStringList>("shown"); // count, yaw, pitch, bracketing, focal length
    const QString none = QStringLiteral("N/A");
    const auto row = [](const char *name, const RecordXml &record, const QStringList &shown) {
        QTest::newRow(name) << record << shown;
    };
    RecordXml record = RecordXml::row(3);
    row("three shots and nothing else", record,
        { QStringLiteral("3"), QStringLiteral("0,60"), QStringLiteral("0,0"), none, none });

    record.shots = { { QStringLiteral("123.4567"), QStringLiteral("-0.1234567") },
                     { QStringLiteral("-1234567.0"), QStringLiteral("12.3456789") } };
    row("six significant digits", record,
        { QStringLiteral("2"), QStringLiteral("-1.23457e+06,123.457"),
          QStringLiteral("-0.123457,12.3457"), none, none });

    record = RecordXml::row(1);
    record.shots[0] = { QStringLiteral("-7.5"), QStringLiteral("33.3") };
    row("one shot is both ends", record,
        { QStringLiteral("1"), QStringLiteral("-7.5,-7.5"), QStringLiteral("33.3,33.3"), none,
          none });

    record = RecordXml::row(0);
    row("no shots: the scan's start as numbers", record,
        { none, QStringLiteral("3.40282e+38,-3.40282e+38"),
          QStringLiteral("3.40282e+38,-3.40282e+38"), none, none });

    const auto bracketRow = [&](const char *name, const char *nbPicts, const char *shown) {
        RecordXml bracketed = RecordXml::row(1);
        bracketed.nbPicts = QLatin1String(nbPicts);
        row(name, bracketed,
            { QStringLiteral("1"), QStringLiteral("0,0"), QStringLiteral("0,0"),
              QLatin1String(shown), none });
    };
    bracketRow("bracketing 3", "3", "3");
    bracketRow("bracketing 1", "1", "1");
    bracketRow("bracketing 0", "0", "0");
    bracketRow("bracketing -3", "-3", "-3");
    bracketRow("bracketing is no number", "abc", "0");

    const auto focalRow
        = [&](const char *name, const char *coef, const char *focal, const char *shown) {
              RecordXml withLens = rowWithLens(1, QLatin1String(focal));
              withLens.coef = coef ? QString::fromLatin1(coef) : QString();
              row(name, withLens,
                  { QStringLiteral("1"), QStringLiteral("0,0"), QStringLiteral("0,0"), none,
                    QLatin1String(shown) });
          };
    focalRow("focal length without sensor", nullptr, "10.0", "10.00mm");
    focalRow("focal length times coefficient", "1.6", "10.0", "16.00mm");
    focalRow("two decimals, rounded", nullptr, "27.126", "27.13mm");
    focalRow("focal length is no number", nullptr, "wide", "0.00mm");
    focalRow("focal length is not finite", nullptr, "nan", "0.00mm");
}

void TestUIWPMerlin::recordIsShownInTheLabels()
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
    QCOMPARE(shoot.page.m_pbFLUseXML->isEnabled(), shown[4] != QStringLiteral("N/A"));
}

void TestUIWPMerlin::unreadableRecordShowsTheScanStart_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("not XML") << QByteArray("These are my photos");
    QTest::newRow("cut off") << RecordXml::row(3).bytes().chopped(20);
    QTest::newRow("empty") << QByteArray();
}

void TestUIWPMerlin::unreadableRecordShowsTheScanStart()
{
    QFETCH(QByteArray, content);
    const Shoot shoot;
    shoot.loadRecord(rowWithLens(3, QStringLiteral("24")));

    shoot.driver.load(kSelectRecord, { shoot.folder.write(QStringLiteral("bad.xml"), content) });

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(QStringLiteral("bad.xml")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbWarning"), red(""));
    QVERIFY(shoot.page.shots.isEmpty());
    QVERIFY(!shoot.page.isComplete());
}

void TestUIWPMerlin::headerTextsGoToTheirFields()
{
    const Shoot shoot;
    for (const char *name : { "m_leHeaderTitle", "m_leHeaderGps", "m_leHeaderComment" }) {
        QCOMPARE(shoot.driver.text(name), QString());
    }
    RecordXml record = RecordXml::row(2);
    record.title = QStringLiteral("Mont <b>Blanc</b> & more");
    record.gps = QStringLiteral("45.83,6.86");
    record.comment = QStringLiteral("first\nsecond");

    shoot.loadRecord(record);

    QCOMPARE(shoot.driver.text("m_leHeaderTitle"), record.title);
    QCOMPARE(shoot.driver.text("m_leHeaderGps"), record.gps);
    QCOMPARE(shoot.page.m_leHeaderComment->displayText().size(), record.comment.size());
    QCOMPARE(shoot.page.comment, record.comment);
}

void TestUIWPMerlin::resetForgetsPathPhotosAndShots()
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
    // What was handed over before stays in the page's own description.
    QCOMPARE(shoot.page.imageGroups.size(), 3);
    // Neither dialog knows a file of its own any more.
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).directory, fakeHost().lastPath);
    QCOMPARE(shoot.driver.cancelFiles(kSelectPhotos).directory, fakeHost().lastPath);
}

void TestUIWPMerlin::photosAreListedByNameAndCounted()
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
}

// The four tests in their order; each is made to fail by itself, and every combination of them.
void TestUIWPMerlin::lastFailingTestGivesTheWarning_data()
{
    QTest::addColumn<bool>("bracketing");
    QTest::addColumn<bool>("count");
    QTest::addColumn<bool>("focal");
    QTest::addColumn<bool>("lens");
    for (int mask = 0; mask < 16; ++mask) {
        const bool bracketing = (mask & 1) != 0;
        const bool count = (mask & 2) != 0;
        const bool focal = (mask & 4) != 0;
        const bool lens = (mask & 8) != 0;
        QTest::addRow("failing:%s%s%s%s", bracketing ? " bracketing" : "", count ? " count" : "",
                      focal ? " focal" : "", lens ? " lens" : "")
            << bracketing << count << focal << lens;
    }
}

void TestUIWPMerlin::lastFailingTestGivesTheWarning()
{
    QFETCH(bool, bracketing);
    QFETCH(bool, count);
    QFETCH(bool, focal);
    QFETCH(bool, lens);
    const Shoot shoot;
    RecordXml record
        = rowWithLens(count ? 5 : 4, focal ? QStringLiteral("27") : QStringLiteral("24"),
                      lens ? QStringLiteral("fisheye") : QStringLiteral("rectilinear"));
    record.nbPicts = bracketing ? QStringLiteral("3") : QStringLiteral("2");

    shoot.loadRecord(record);
    shoot.loadPhotos(4, photoWith(24.0F));

    QString expected = red("");
    if (bracketing) {
        expected = red("Bracketing used in XML, should be multiple of that number");
    }
    if (count) {
        expected = red("Not the same as in XML fil");
    }
    if (focal) {
        expected = red("Focal Length difference between EXIF and XML");
    }
    if (lens) {
        expected = red("Lens type difference between EXIF and XML");
    }
    QCOMPARE(shoot.driver.text("m_lbWarning"), expected);
}

void TestUIWPMerlin::warningTestsHaveTheirLimits_data()
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
    // 10 x |24 - 27| = 30 > 24, 10 x |24 - 26| = 20 <= 24
    row("24 mm against 27 mm", nullptr, "27", 24.0F, true);
    row("24 mm against 26 mm", nullptr, "26", 24.0F, false);
    row("24 mm against 21 mm", nullptr, "21", 24.0F, true);
    row("a tenth exactly: 20 mm against 22 mm", nullptr, "22", 20.0F, false);
    row("record without focal length", nullptr, nullptr, 24.0F, false);
    row("photos without focal length", nullptr, "27", 0.0F, false);
    row("record says 0 mm", nullptr, "0", 24.0F, true);
    row("bracketing not said", nullptr, "24", 24.0F, false);
    row("bracketing 0", "0", "24", 24.0F, false);
    row("bracketing is no number", "abc", "24", 24.0F, false);
    row("bracketing -3", "-3", "24", 24.0F, false);
    row("bracketing 1", "1", "24", 24.0F, false);
    row("bracketing 4, filled", "4", "24", 24.0F, false);
    row("bracketing 8, half filled", "8", "24", 24.0F, true);
    row("bracketing beyond all photos", "2147483647", "24", 24.0F, true);
}

void TestUIWPMerlin::warningTestsHaveTheirLimits()
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

    QCOMPARE(shoot.driver.text("m_lbWarning") != red(""), warned);
}

void TestUIWPMerlin::warningAboutTheCountEndsWhereWanted()
{
    const Shoot shoot;

    shoot.loadRecord(rowWithLens(5, QStringLiteral("24")));
    shoot.loadPhotos(4);

    QCOMPARE(shoot.driver.text("m_lbWarning"),
             QStringLiteral("<p style='color:red'>Not the same as in XML fil</p>"));
}

void TestUIWPMerlin::warningNeedsRecordAndPhotos()
{
    const Shoot shoot;
    shoot.loadPhotos(4);
    QCOMPARE(shoot.driver.text("m_lbWarning"), red(""));

    shoot.loadRecord(RecordXml::row(0));
    QCOMPARE(shoot.driver.text("m_lbWarning"), red(""));

    const Shoot without;
    without.loadRecord(rowWithLens(5, QStringLiteral("24"), QStringLiteral("fisheye")));
    QCOMPARE(without.driver.text("m_lbWarning"), red(""));
}

void TestUIWPMerlin::photosPresetTheLensBeforeTheRecord_data()
{
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
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
    row("photos without focal length, their lens is passed over", 0.0F, 1, "50", "rectilinear",
        50.0, 0);
    row("nobody knows", 0.0F, 0, nullptr, "rectilinear", 77.0, 1);
    row("record says 0 mm", 0.0F, 0, "0", "rectilinear", 77.0, 1);
    row("photos' focal length is not a number", kNan, 0, "50", "rectilinear", 50.0, 0);
    row("photos' focal length is negative", -5.0F, 0, "50", "rectilinear", 50.0, 0);
}

void TestUIWPMerlin::photosPresetTheLensBeforeTheRecord()
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

void TestUIWPMerlin::focalLengthOfThePhotosIsTheirMean()
{
    const Shoot shoot;
    const QStringList photos{
        shoot.folder.addPhoto(QStringLiteral("a.jpg"), photoWith(24.0F, 1)),
        shoot.folder.addPhoto(QStringLiteral("b.jpg"), photoWith(35.0F, 0)),
        shoot.folder.addPhoto(QStringLiteral("c.jpg"), photoWith(0.0F, 1)),
    };

    shoot.driver.load(kSelectPhotos, photos);

    // (24 + 35 + 0) / 3 = 19.6667; the lens of the last photo
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("19.67mm"));
    QCOMPARE(shoot.page.m_spFocal->value(), 19.667); // three decimals
    QCOMPARE(shoot.page.m_cbLensType->currentIndex(), 1);
}

void TestUIWPMerlin::useButtonsTakeTheirSource()
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

void TestUIWPMerlin::invertingNegatesPitchesAndExtents()
{
    const Shoot shoot;
    RecordXml record;
    record.shots = { { QStringLiteral("0.0"), QStringLiteral("-30.0") },
                     { QStringLiteral("40.0"), QStringLiteral("0.0") },
                     { QStringLiteral("80.0"), QStringLiteral("60.5") } };
    shoot.loadRecord(record);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60.5"));

    shoot.driver.click("m_pInverseCoordinates");

    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ 30.0F, -0.0F, -60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-60.5,30"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,80"));
}

void TestUIWPMerlin::invertingTwiceRestoresEverything()
{
    const Shoot shoot;
    RecordXml record;
    record.shots = { { QStringLiteral("0.0"), QStringLiteral("-30.0") },
                     { QStringLiteral("40.0"), QStringLiteral("12.3") } };
    shoot.loadRecord(record);
    shoot.loadPhotos(2);
    const QVector<float> pitches = pitchesOf(shoot.page.shots);
    const QImage picture = shoot.driver.picture();

    shoot.driver.click("m_pInverseCoordinates");
    QVERIFY(pitchesOf(shoot.page.shots) != pitches);
    QVERIFY(shoot.driver.picture() != picture);
    shoot.driver.click("m_pInverseCoordinates");

    QCOMPARE(pitchesOf(shoot.page.shots), pitches);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,12.3"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestUIWPMerlin::rotatingAddsQuarterTurnsWithoutWrapping()
{
    Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    shoot.loadPhotos(2);

    shoot.driver.click("m_pbRot270");
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ -90.0F, -90.0F }));
    for (int i = 0; i < 6; ++i) {
        shoot.driver.click("m_pbRot90");
    }
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ 450.0F, 450.0F }));

    QVERIFY(shoot.page.validatePage());
    // 450 degrees = 2.5 pi = 7.853981634
    const float radians = 7.853981634F;
    QCOMPARE(fakeHost().descriptions.last().roll, (QVector<float>{ radians, radians }));
}

void TestUIWPMerlin::twelvePhotosInThreesGiveFourStacks()
{
    Shoot shoot;
    RecordXml record = RecordXml::row(12);
    record.nbPicts = QStringLiteral("3");
    shoot.loadRecord(record);
    shoot.loadPhotos(12);
    QVERIFY(shoot.page.isComplete());

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.imageGroups.size(), 4);
    QCOMPARE(namesOf(handed.imageGroups.last()),
             (QStringList{ QStringLiteral("IMG_0010.jpg"), QStringLiteral("IMG_0011.jpg"),
                           QStringLiteral("IMG_0012.jpg") }));
    QCOMPARE(handed.yaw.size(), 12);
    QCOMPARE(shoot.page.nbPicts, 3);
}

void TestUIWPMerlin::bracketCountBelowTwoBecomesOne_data()
{
    QTest::addColumn<QString>("nbPicts");
    QTest::newRow("not said") << QString();
    QTest::newRow("1") << QStringLiteral("1");
    QTest::newRow("0") << QStringLiteral("0");
    QTest::newRow("-3") << QStringLiteral("-3");
    QTest::newRow("no number") << QStringLiteral("abc");
}

void TestUIWPMerlin::bracketCountBelowTwoBecomesOne()
{
    QFETCH(QString, nbPicts);
    Shoot shoot;
    RecordXml record = RecordXml::row(2);
    record.nbPicts = nbPicts;
    shoot.loadRecord(record);
    shoot.loadPhotos(2);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(shoot.page.nbPicts, 1);
    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), 2);
}

void TestUIWPMerlin::photosThatDoNotFillTheBracketsAreRefused()
{
    Shoot shoot;
    RecordXml record = RecordXml::row(4);
    record.nbPicts = QStringLiteral("3");
    shoot.loadRecord(record);
    shoot.loadPhotos(4);
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

void TestUIWPMerlin::focalLengthAndLensComeFromTheControls()
{
    Shoot shoot;
    shoot.loadRecord(rowWithLens(2, QStringLiteral("50")));
    shoot.loadPhotos(2, photoWith(24.0F, 0));
    shoot.page.m_spFocal->setValue(31.25);
    shoot.page.m_cbLensType->setCurrentIndex(1);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.first().focalLength, 31.25F);
    QCOMPARE(fakeHost().descriptions.first().lensModel, LensModel::Fisheye);
    QVERIFY(fakeHost().descriptions.first().authorizedLinks.isEmpty());
}

void TestUIWPMerlin::wizardHearsOfCompleteness()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPMerlin(nullptr);
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

void TestUIWPMerlin::lastRecordOfASelectionWins_data()
{
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QStringList>("photos"); // sorted
    const QString one = QStringLiteral("one.xml");
    const QString two = QStringLiteral("TWO.XML");
    const QString three = QStringLiteral("Three.Xml");
    const QString jpg = QStringLiteral("a.jpg");
    const QString noEnding = QStringLiteral("fakexml");
    QTest::newRow("upper case") << QStringList{ one, two } << two << QStringList();
    QTest::newRow("lower case") << QStringList{ two, one } << one << QStringList();
    QTest::newRow("mixed case, photos between")
        << QStringList{ one, jpg, three, noEnding } << three << QStringList{ jpg, noEnding };
    QTest::newRow("selection order, not the alphabet")
        << QStringList{ three, two, one } << one << QStringList();
}

void TestUIWPMerlin::lastRecordOfASelectionWins()
{
    QFETCH(QStringList, chosen);
    QFETCH(QString, record);
    QFETCH(QStringList, photos);
    const Shoot shoot;
    QStringList files;
    for (const QString &name : qAsConst(chosen)) {
        const bool isRecord = name.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
        files.append(isRecord ? shoot.writeRecord(RecordXml::row(2), name)
                              : shoot.folder.addPhoto(name));
    }

    shoot.driver.load(kSelectRecord, files);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(record));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ shoot.folder.path(record) });
    QCOMPARE(namesOf(fakeHost().readFiles()), photos);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
}

void TestUIWPMerlin::photosAloneMakeTheStartLocationThePath()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("last"));
    QDir().mkpath(fakeHost().lastPath);
    const QStringList photos = shoot.folder.addPhotos(2);

    shoot.driver.load(kSelectRecord, photos);

    QCOMPARE(fakeHost().setLastPaths, QStringList{ fakeHost().lastPath });
    QCOMPARE(shoot.driver.text("m_leConfigFile"), fakeHost().lastPath);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("2"));

    // With a record the start location is the record, which is read again and kept.
    const QString record = shoot.writeRecord(RecordXml::row(2));
    shoot.driver.load(kSelectRecord, { record });
    shoot.driver.load(kSelectRecord, photos);
    QCOMPARE(fakeHost().setLastPaths.mid(1), (QStringList{ record, record }));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPMerlin::cancelledRecordDialogReadsTheFileAgain()
{
    const Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    shoot.loadPhotos(2);
    shoot.driver.click("m_pbRot90");
    const QStringList told = fakeHost().setLastPaths;
    shoot.writeRecord(RecordXml::row(4));

    shoot.driver.cancelFiles(kSelectRecord);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("4"));
    QCOMPARE(rollsOf(shoot.page.shots), (QVector<float>{ 0.0F, 0.0F, 0.0F, 0.0F }));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(QStringLiteral("shoot.xml")));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("2"));
    QCOMPARE(fakeHost().setLastPaths, told);
}

void TestUIWPMerlin::cancelledRecordDialogOnAnEmptyPageChangesNothing()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.writeRecord(RecordXml::row(2));

    shoot.driver.cancelFiles(kSelectRecord);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), QString());
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("N/A"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
}

void TestUIWPMerlin::newPhotosReplaceThoseBeingRead()
{
    const Shoot shoot;
    shoot.loadRecord(RecordXml::row(2));
    FakePhoto slow;
    slow.spins = 200;
    Gate enter;
    slow.enter = &enter;
    QStringList old;
    for (int i = 0; i < 50; ++i) {
        old.append(shoot.folder.addPhoto(QStringLiteral("old_%1.jpg").arg(i), slow));
    }
    shoot.driver.chooseFiles(kSelectPhotos, old);
    enter.pass(); // one is in the host's hands

    shoot.loadPhotos(2, photoWith(31.0F));

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("31.00mm"));
}

void TestUIWPMerlin::pathIsTyped()
{
    const Shoot shoot;
    const QString record = shoot.writeRecord(RecordXml::row(5));

    shoot.driver.type("m_leConfigFile", record.chopped(1));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record.chopped(1));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_L);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    // It counts as the current file.
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).fileName, QStringLiteral("shoot.xml"));
}

void TestUIWPMerlin::typingInTheMiddleKeepsTheCursor()
{
    const Shoot shoot;
    shoot.driver.type("m_leConfigFile", QStringLiteral("/photos/shoot.xml"));
    shoot.page.m_leConfigFile->setCursorPosition(7);

    QTest::keyClicks(shoot.page.m_leConfigFile, QStringLiteral("/may"));

    QCOMPARE(shoot.driver.text("m_leConfigFile"), QStringLiteral("/photos/may/shoot.xml"));
    QCOMPARE(shoot.page.m_leConfigFile->cursorPosition(), 11);
}

void TestUIWPMerlin::controlKeyOpensTheFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("shoot");
    QTest::newRow("number sign") << QStringLiteral("shoot #1");
    QTest::newRow("question mark") << QStringLiteral("which?");
    QTest::newRow("percent") << QStringLiteral("50%41");
    QTest::newRow("umlauts") << QString::fromUtf8("Höhe über Zürich");
}

void TestUIWPMerlin::controlKeyOpensTheFolder()
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
    QCOMPARE(desktop.urls().size(), 2);
    QCOMPARE(desktop.urls()[0].toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(desktop.urls()[1].toLocalFile(), shoot.folder.path(folder));

    shoot.driver.load(kSelectRecord, { record, photo });
    fakeHost().lastPath.clear();
    const QString before = shoot.driver.text("m_leImage");
    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);
    QCOMPARE(desktop.urls().size(), 4);
    QCOMPARE(desktop.urls()[2].toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(desktop.urls()[3].toLocalFile(), shoot.folder.path(folder + QLatin1String("-photos")));
    QCOMPARE(shoot.driver.text("m_leImage"), before);
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(fakeHost().setLastPaths, QStringList{ record });
}

void TestUIWPMerlin::toolTipKeepsTheRecordsText()
{
    const Shoot shoot;
    RecordXml record = RecordXml::row(1);
    record.title = QStringLiteral("a %2 %1 %3");
    record.gps = QStringLiteral("%1<b>%3</b>");
    record.comment = QStringLiteral("c");

    shoot.loadRecord(record);

    QCOMPARE(shoot.page.m_leConfigFile->toolTip(), QStringLiteral("a %2 %1 %3\n%1<b>%3</b>\nc"));
}

void TestUIWPMerlin::toolTipIsShownAsPlainText_data()
{
    QTest::addColumn<QString>("title"); // PIPE stands for the path of a named pipe
    QTest::newRow("bold") << QStringLiteral("<b>x</b>");
    QTest::newRow("ampersand") << QStringLiteral("this &lt;that & more");
    QTest::newRow("picture from a pipe") << QStringLiteral("<img src='PIPE'>");
    QTest::newRow("picture from a pipe, as URL") << QStringLiteral("<img src='file://PIPE'>");
    QTest::newRow("20 nested tables") << QStringLiteral("<table><tr><td>").repeated(20);
    QTest::newRow("plain") << QStringLiteral("Mont Blanc");
}

void TestUIWPMerlin::toolTipIsShownAsPlainText()
{
    QFETCH(QString, title);
    const Shoot shoot;
    const TrapPipe pipe(shoot.folder.path(QStringLiteral("pipe")));
    title.replace(QLatin1String("PIPE"), shoot.folder.path(QStringLiteral("pipe")));
    RecordXml record = RecordXml::row(1);
    record.title = title;
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
    QCOMPARE(shown.toPlainText(), title + QLatin1String("\ng\nc"));
    QVERIFY(!pipe.wasOpened());
    QToolTip::hideText();
}

void TestUIWPMerlin::trapPipeNoticesAReader()
{
    const ShootFolder folder;
    const QString path = folder.path(QStringLiteral("pipe"));
    const TrapPipe pipe(path);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));

    QTRY_VERIFY(pipe.wasOpened());
    QCOMPARE(file.readAll(), QByteArray());
}

void TestUIWPMerlin::pageMayGoWhileTheBoxIsOpen()
{
    const ShootFolder folder;
    QPointer<UIWPMerlin> page = new UIWPMerlin(nullptr);
    const PageDriver driver(page);
    RecordXml record = RecordXml::row(4);
    record.nbPicts = QStringLiteral("3");
    driver.load(kSelectRecord,
                folder.addPhotos(4) << folder.write(QStringLiteral("a.xml"), record.bytes()));
    DialogClicker clicker;
    clicker.beforeNextAnswer([&page] { delete page.data(); });

    QVERIFY(!page->validatePage());

    QVERIFY(page.isNull());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QVERIFY(fakeHost().descriptions.isEmpty());
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPMerlin)
#include "tst_uiwpmerlin.moc"
