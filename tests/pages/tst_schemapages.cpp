// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"
#include "tests/support/heldphotos.h"
#include "tests/support/pageshoot.h"
#include "ui/xui.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QToolTip>
#include <QWizard>
#include <QtTest>

#include <limits>

namespace
{

/** The heads with records in the Papywizard schema. */
Heads schemaHeads()
{
    return headsThat([](const Head &head) { return head.schema != nullptr; });
}

/** One page with the files of one shoot. */
struct Shoot : HeadShoot {
    explicit Shoot(const Head &shotWith)
        : HeadShoot(shotWith)
    {
    }

    [[nodiscard]] MerlinToSPP &generator() const
    {
        return static_cast<MerlinToSPP &>(*made.description);
    }
    [[nodiscard]] QString write(const RecordXml &record,
                                const QString &name = QStringLiteral("shoot.xml")) const
    {
        return folder.write(name, record.bytes());
    }
    void load(const RecordXml &record) const { driver.load(kSelectRecord, { write(record) }); }

    [[nodiscard]] double focal() const { return driver.find<QDoubleSpinBox>("m_spFocal")->value(); }
    [[nodiscard]] int lens() const
    {
        return driver.find<QComboBox>("m_cbLensType")->currentIndex();
    }
    void setLens(double focalMm, int lensType) const
    {
        driver.find<QDoubleSpinBox>("m_spFocal")->setValue(focalMm);
        driver.find<QComboBox>("m_cbLensType")->setCurrentIndex(lensType);
    }
    [[nodiscard]] bool isEnabled(const char *button) const
    {
        return driver.find<QPushButton>(button)->isEnabled();
    }
    /** The warning that the page shows; null while it is hidden. */
    [[nodiscard]] QString warning() const
    {
        return driver.find<QLabel>("m_lbWarning")->isVisible() ? driver.text("m_lbWarning")
                                                               : QString();
    }
};

/** A data row of both heads, to which the caller adds what is the same for both. */
template <typename... Values> void addToBoth(const QByteArray &name, const Values &...values)
{
    for (const Head *head : schemaHeads()) {
        QTestData &row = QTest::addRow("%s: %s", head->name, name.constData()) << head;
        (row << ... << values);
    }
}

const QString kBracketWarning = red("Bracketing used in XML, should be multiple of that number");
const QString kCountWarning = red("Not the same as in XML fil"); // as translations know it
const QString kLensWarning = red("Lens type difference between EXIF and XML");

} // namespace

/** What the pages for records in the Papywizard schema do alike. */
class TestSchemaPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void recordIsShownInTheLabels_data();
    void recordIsShownInTheLabels();
    void failedParseShowsNoShots_data();
    void failedParseShowsNoShots();
    void failedParseOnAFreshPageShowsNoRange_data() { addHeads(schemaHeads()); }
    void failedParseOnAFreshPageShowsNoRange();
    void pathIsTyped_data() { addHeads(schemaHeads()); }
    void pathIsTyped();
    void typingInTheMiddleKeepsTheCursor_data() { addHeads(schemaHeads()); }
    void typingInTheMiddleKeepsTheCursor();
    void wizardHearsOfATypedPath_data() { addHeads(schemaHeads()); }
    void wizardHearsOfATypedPath();
    void lastRecordOfASelectionWins_data();
    void lastRecordOfASelectionWins();
    void resetForgetsTheRecordsLens_data() { addHeads(schemaHeads()); }
    void resetForgetsTheRecordsLens();

    void lastFailingTestGivesTheWarning_data();
    void lastFailingTestGivesTheWarning();
    void warningTestsHaveTheirLimits_data();
    void warningTestsHaveTheirLimits();
    void warningAboutTheCountEndsWhereWanted_data() { addHeads(schemaHeads()); }
    void warningAboutTheCountEndsWhereWanted();
    void warningGoesWhenTheRecordFits_data() { addHeads(schemaHeads()); }
    void warningGoesWhenTheRecordFits();
    void warningGoesWithTheReset_data() { addHeads(schemaHeads()); }
    void warningGoesWithTheReset();
    void warningNeedsRecordAndPhotos_data() { addHeads(schemaHeads()); }
    void warningNeedsRecordAndPhotos();

    void photosTellTheirFocalLength_data() { addHeads(schemaHeads()); }
    void photosTellTheirFocalLength();
    void photosPresetTheLensBeforeTheRecord_data();
    void photosPresetTheLensBeforeTheRecord();
    void focalLengthOfThePhotosIsTheirMean_data() { addHeads(schemaHeads()); }
    void focalLengthOfThePhotosIsTheirMean();
    void newPhotosReplaceTheLensOfThoseBefore_data() { addHeads(schemaHeads()); }
    void newPhotosReplaceTheLensOfThoseBefore();
    void newPhotosReplaceTheLensOfThoseBeingRead_data();
    void newPhotosReplaceTheLensOfThoseBeingRead();
    void useButtonsTakeTheirSource_data() { addHeads(schemaHeads()); }
    void useButtonsTakeTheirSource();
    void focalLengthAndLensComeFromTheControls_data() { addHeads(schemaHeads()); }
    void focalLengthAndLensComeFromTheControls();

    void invertingTwiceRestoresEverything_data();
    void invertingTwiceRestoresEverything();
    void rotatingAddsQuarterTurnsWithoutWrapping_data();
    void rotatingAddsQuarterTurnsWithoutWrapping();

    void bracketCountBelowTwoBecomesOne_data();
    void bracketCountBelowTwoBecomesOne();
    void twelvePhotosInThreesGiveFourStacks_data();
    void twelvePhotosInThreesGiveFourStacks();
    void photosThatDoNotFillTheBracketsAreRefused_data();
    void photosThatDoNotFillTheBracketsAreRefused();
    void nextWithoutShotsAndPhotosIsHarmless_data();
    void nextWithoutShotsAndPhotosIsHarmless();
    void pageMayGoWhileTheBoxIsOpen_data() { addHeads(schemaHeads()); }
    void pageMayGoWhileTheBoxIsOpen();

    void controlKeyOpensTheFolder_data();
    void controlKeyOpensTheFolder();
    void toolTipKeepsTheRecordsText_data() { addHeads(schemaHeads()); }
    void toolTipKeepsTheRecordsText();
    void toolTipHasALineForWhatTheRecordLeavesOut_data() { addHeads(schemaHeads()); }
    void toolTipHasALineForWhatTheRecordLeavesOut();
    void toolTipIsShownAsPlainText_data();
    void toolTipIsShownAsPlainText();
    void trapPipeNoticesAReader();
};

void TestSchemaPages::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestSchemaPages::recordIsShownInTheLabels_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<RecordXml>("record");
    QTest::addColumn<QStringList>("shown"); // count, yaw, pitch, bracketing, focal length
    const QString none = QStringLiteral("N/A");
    const QString one = QStringLiteral("1");
    const QString two = QStringLiteral("2");
    const QString zero = QStringLiteral("0,0");
    const QString scanStart = QStringLiteral("3.40282e+38,-3.40282e+38");
    const auto row = [](const QByteArray &name, const RecordXml &record, const QStringList &shown) {
        addToBoth(name, record, shown);
    };
    const auto shotsRow = [&](const QByteArray &name, const QVector<RecordXml::Shot> &shots,
                              const char *yaw, const char *pitch) {
        RecordXml record;
        record.shots = shots;
        row(name, record,
            { QString::number(shots.size()), QLatin1String(yaw), QLatin1String(pitch), none,
              none });
    };
    const auto angle = [](const char *degrees) { return QString::fromLatin1(degrees); };
    row("three shots and nothing else", RecordXml::row(3),
        { QStringLiteral("3"), QStringLiteral("0,60"), zero, none, none });
    shotsRow("six significant digits",
             { { angle("123.4567"), angle("-0.1234567") },
               { angle("-1234567.0"), angle("12.3456789") } },
             "-1.23457e+06,123.457", "-0.123457,12.3457");
    shotsRow("one shot is both ends", { { angle("-7.5"), angle("33.3") } }, "-7.5,-7.5",
             "33.3,33.3");
    shotsRow("one column", { { angle("0.0"), angle("5.0") }, { angle("0.0"), angle("5.0") } },
             "0,0", "5,5");
    for (const char *number : { "nan", "inf", "-inf", "1e39", "1e999", "north" }) {
        shotsRow(QByteArray("no angle, so 0: ") + number,
                 { { angle(number), angle("20.0") }, { angle("10.0"), angle(number) } }, "0,10",
                 "0,20");
    }
    row("no shots: the scan's start as numbers", RecordXml::row(0),
        { none, scanStart, scanStart, none, none });

    for (const char *nbPicts : { "3", "1", "0", "-3" }) {
        row(QByteArray("bracketing ") + nbPicts, bracketedRow(1, QLatin1String(nbPicts)),
            { one, zero, zero, QLatin1String(nbPicts), none });
    }
    row("bracketing is no number", bracketedRow(1, QStringLiteral("abc")),
        { one, zero, zero, QStringLiteral("0"), none });

    const auto focalRow
        = [&](const QByteArray &name, const char *coef, const char *focal, const char *shown) {
              RecordXml record = rowWithLens(1, QLatin1String(focal));
              record.coef = QString::fromLatin1(coef); // null stays null
              row(name, record, { one, zero, zero, none, QLatin1String(shown) });
          };
    focalRow("focal length without sensor", nullptr, "10.0", "10.00mm");
    focalRow("focal length times coefficient", "1.6", "10.0", "16.00mm");
    focalRow("focal length times coefficient, two decimals", "1.6126", "10.0", "16.13mm");
    focalRow("two decimals, rounded", nullptr, "27.126", "27.13mm");
    for (const char *coef : { "nan", "inf", "1e39", "wide" }) {
        focalRow(QByteArray("no coefficient, so 1: ") + coef, coef, "10.0", "10.00mm");
    }
    for (const char *focal : { "nan", "inf", "1e999", "wide" }) {
        focalRow(QByteArray("no focal length, so 0: ") + focal, nullptr, focal, "0.00mm");
    }
}

void TestSchemaPages::recordIsShownInTheLabels()
{
    QFETCH(const Head *, head);
    QFETCH(RecordXml, record);
    QFETCH(QStringList, shown);
    const Shoot shoot(*head);

    shoot.load(record);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(QStringLiteral("shoot.xml")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), shown[0]);
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), shown[1]);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), shown[2]);
    QCOMPARE(shoot.driver.text("m_lbBracket"), shown[3]);
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), shown[4]);
    QCOMPARE(shoot.isEnabled("m_pbFLUseXML"), shown[4] != QStringLiteral("N/A"));
}

void TestSchemaPages::failedParseShowsNoShots_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("content");
    addToBoth("not XML", QByteArray("These are my photos"));
    addToBoth("cut off", RecordXml::row(3).bytes().chopped(20));
    addToBoth("empty", QByteArray());
    addToBoth("nested too deep", QByteArray("<a>").repeated(300));
    addToBoth("one picture too many",
              "<p><shoot>" + QByteArray("<pict/>").repeated(130'001) + "</shoot></p>");
}

void TestSchemaPages::failedParseShowsNoShots()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, content);
    const Shoot shoot(*head);
    shoot.load(rowWithLens(3, QStringLiteral("24")));
    const auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");
    const QString toolTip = edit->toolTip();
    QVERIFY(!toolTip.isEmpty());

    const QString path = shoot.folder.write(QStringLiteral("bad.xml"), content);
    shoot.driver.load(kSelectRecord, { path });
    {
        const DialogClicker clicker;
        shoot.driver.type("m_leConfigFile", path);
        QVERIFY(clicker.isSettled()); // no box of the page's own
    }

    QCOMPARE(edit->text(), shoot.folder.path(QStringLiteral("bad.xml")));
    QCOMPARE(edit->toolTip(), toolTip);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), head->schema->yawAfterFailure);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), head->schema->pitchAfterFailure);
    QCOMPARE(shoot.driver.text("m_lbFocalLength"), QStringLiteral("N/A"));
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    QVERIFY(shoot.made.shots->isEmpty());
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page->isComplete());
}

void TestSchemaPages::failedParseOnAFreshPageShowsNoRange()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);

    shoot.driver.load(kSelectRecord, { shoot.folder.write(QStringLiteral("bad.xml"), "x") });

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), head->schema->rangeOfNothing);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), head->schema->rangeOfNothing);
}

void TestSchemaPages::pathIsTyped()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    const QString record = shoot.write(RecordXml::row(5));
    {
        const DialogClicker clicker;
        shoot.driver.type("m_leConfigFile", record.chopped(1));
        QCOMPARE(shoot.driver.text("m_leConfigFile"), record.chopped(1));
        QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("N/A"));
        QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), head->schema->rangeOfNothing);
        QTest::keyClick(shoot.driver.find<QLineEdit>("m_leConfigFile"), Qt::Key_L);
        QVERIFY(clicker.messageBoxes().isEmpty());
    }

    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    // It counts as the current file.
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).fileName, QStringLiteral("shoot.xml"));
}

void TestSchemaPages::typingInTheMiddleKeepsTheCursor()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");
    shoot.driver.type("m_leConfigFile", QStringLiteral("/photos/shoot.xml"));
    edit->setCursorPosition(7);

    QTest::keyClicks(edit, QStringLiteral("/may"));

    QCOMPARE(edit->text(), QStringLiteral("/photos/may/shoot.xml"));
    QCOMPARE(edit->cursorPosition(), 11);
}

void TestSchemaPages::wizardHearsOfATypedPath()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    QWizard wizard;
    wizard.addPage(shoot.page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    const QString fitting = shoot.writeRecord(2);
    shoot.loadPhotos(2);
    shoot.loadRecord(2);
    QVERIFY(next->isEnabled());

    shoot.driver.type("m_leConfigFile", shoot.folder.path(QStringLiteral("missing.xml")));
    QVERIFY(!next->isEnabled());
    shoot.driver.type("m_leConfigFile", fitting);
    QVERIFY(next->isEnabled());
}

void TestSchemaPages::lastRecordOfASelectionWins_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QStringList>("chosen");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QStringList>("photos"); // sorted
    const QString one = QStringLiteral("one.xml");
    const QString two = QStringLiteral("TWO.XML");
    const QString three = QStringLiteral("Three.Xml");
    const QString a = QStringLiteral("a.jpg");
    const QString b = QStringLiteral("b.jpg");
    const QString noEnding = QStringLiteral("fakexml");
    addToBoth("upper case", QStringList{ one, two }, two, QStringList());
    addToBoth("lower case", QStringList{ two, one }, one, QStringList());
    addToBoth("mixed case, photos between", QStringList{ one, a, three, noEnding }, three,
              QStringList{ a, noEnding });
    addToBoth("photos between in another order", QStringList{ one, b, two, a }, two,
              QStringList{ a, b });
    addToBoth("selection order, not the alphabet", QStringList{ three, two, one }, one,
              QStringList());
}

void TestSchemaPages::lastRecordOfASelectionWins()
{
    QFETCH(const Head *, head);
    QFETCH(QStringList, chosen);
    QFETCH(QString, record);
    QFETCH(QStringList, photos);
    const Shoot shoot(*head);
    QStringList files;
    for (int i = 0; i < chosen.size(); ++i) {
        const bool isRecord = chosen[i].endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
        files.append(isRecord ? shoot.write(RecordXml::row(i + 2), chosen[i])
                              : shoot.folder.addPhoto(chosen[i]));
    }

    shoot.driver.load(kSelectRecord, files);

    QCOMPARE(shoot.driver.text("m_leConfigFile"), shoot.folder.path(record));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ shoot.folder.path(record) });
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QString::number(chosen.indexOf(record) + 2));
    QCOMPARE(namesOf(fakeHost().readFiles()), photos);
    QString listed;
    for (const QString &photo : qAsConst(photos)) {
        listed += QLatin1Char('"') + photo + QLatin1String("\"; ");
    }
    QCOMPARE(shoot.driver.text("m_leImage"), listed);
}

void TestSchemaPages::resetForgetsTheRecordsLens()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    RecordXml record = rowWithLens(3, QStringLiteral("50"), QStringLiteral("fisheye"));
    record.nbPicts = QStringLiteral("3");
    shoot.load(record);
    QCOMPARE(shoot.generator().nbPicts, 3);
    QCOMPARE(shoot.generator().xmlFocal, 50.0);
    QCOMPARE(shoot.generator().xmlLensType, 1);

    shoot.driver.click("m_pbReset");

    QCOMPARE(shoot.generator().nbPicts, -1);
    QCOMPARE(shoot.generator().xmlFocal, -1.0);
    QCOMPARE(shoot.generator().xmlLensType, 0);
}

// The four tests in their order; each is made to fail by itself, and every combination of them.
void TestSchemaPages::lastFailingTestGivesTheWarning_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<bool>("bracketing");
    QTest::addColumn<bool>("count");
    QTest::addColumn<bool>("focal");
    QTest::addColumn<bool>("lens");
    for (int mask = 0; mask < 16; ++mask) {
        const bool bracketing = (mask & 1) != 0;
        const bool count = (mask & 2) != 0;
        const bool focal = (mask & 4) != 0;
        const bool lens = (mask & 8) != 0;
        const QByteArray name = QByteArray("failing:") + (bracketing ? " bracketing" : "")
            + (count ? " count" : "") + (focal ? " focal" : "") + (lens ? " lens" : "");
        addToBoth(name, bracketing, count, focal, lens);
    }
}

void TestSchemaPages::lastFailingTestGivesTheWarning()
{
    QFETCH(const Head *, head);
    QFETCH(bool, bracketing);
    QFETCH(bool, count);
    QFETCH(bool, focal);
    QFETCH(bool, lens);
    const Shoot shoot(*head);
    RecordXml record
        = rowWithLens(count ? 5 : 4, focal ? QStringLiteral("27") : QStringLiteral("24"),
                      lens ? QStringLiteral("fisheye") : QStringLiteral("rectilinear"));
    record.nbPicts = bracketing ? QStringLiteral("3") : QStringLiteral("2");

    shoot.load(record);
    shoot.loadPhotos(4, photoWith(24.0F));

    QString expected = head->schema->noWarning;
    if (bracketing) {
        expected = kBracketWarning;
    }
    if (count) {
        expected = kCountWarning;
    }
    if (focal) {
        expected = head->schema->focalWarning;
    }
    if (lens) {
        expected = kLensWarning;
    }
    QCOMPARE(shoot.warning(), expected);
}

void TestSchemaPages::warningTestsHaveTheirLimits_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("nbPicts");
    QTest::addColumn<QString>("xmlFocal");
    QTest::addColumn<float>("photoFocal");
    QTest::addColumn<bool>("warned");
    const auto row = [](const char *name, const char *nbPicts, const char *xmlFocal,
                        float photoFocal, bool warned) {
        addToBoth(name, QString::fromLatin1(nbPicts), QString::fromLatin1(xmlFocal), photoFocal,
                  warned);
    };
    // 10 x |24 - 27| = 30 > 24, 10 x |24 - 26| = 20 <= 24
    row("24 mm against 27 mm", nullptr, "27", 24.0F, true);
    row("24 mm against 26 mm", nullptr, "26", 24.0F, false);
    row("24 mm against 21 mm", nullptr, "21", 24.0F, true);
    // |10 - 11.5| x 10 = 15 > 10, |10 - 10.9| x 10 = 9
    row("10 mm against 11.5 mm", nullptr, "11.5", 10.0F, true);
    row("10 mm against 10.9 mm", nullptr, "10.9", 10.0F, false);
    row("10 mm against 8.5 mm", nullptr, "8.5", 10.0F, true);
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

void TestSchemaPages::warningTestsHaveTheirLimits()
{
    QFETCH(const Head *, head);
    QFETCH(QString, nbPicts);
    QFETCH(QString, xmlFocal);
    QFETCH(float, photoFocal);
    QFETCH(bool, warned);
    const Shoot shoot(*head);
    RecordXml record = rowWithLens(4, xmlFocal);
    record.nbPicts = nbPicts;

    shoot.load(record);
    shoot.loadPhotos(4, photoWith(photoFocal));

    QCOMPARE(shoot.warning() != head->schema->noWarning, warned);
}

void TestSchemaPages::warningAboutTheCountEndsWhereWanted()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);

    shoot.load(rowWithLens(5, QStringLiteral("24")));
    shoot.loadPhotos(4);

    QCOMPARE(shoot.warning(),
             QStringLiteral("<p style='color:red'>Not the same as in XML fil</p>"));
}

void TestSchemaPages::warningGoesWhenTheRecordFits()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    shoot.loadPhotos(4);
    shoot.load(RecordXml::row(5));
    QCOMPARE(shoot.warning(), kCountWarning);

    shoot.load(RecordXml::row(4));

    QCOMPARE(shoot.warning(), head->schema->noWarning);
}

void TestSchemaPages::warningGoesWithTheReset()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    shoot.loadEverything();
    QCOMPARE(shoot.warning(), head->schema->focalWarning);

    shoot.driver.click("m_pbReset");

    QCOMPARE(shoot.warning(), head->schema->noWarning);
}

void TestSchemaPages::warningNeedsRecordAndPhotos()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    shoot.loadPhotos(4);
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    shoot.load(RecordXml::row(0));
    QCOMPARE(shoot.warning(), head->schema->noWarning);

    const Shoot without(*head);
    without.load(rowWithLens(5, QStringLiteral("24"), QStringLiteral("fisheye")));
    QCOMPARE(without.warning(), head->schema->noWarning);
}

void TestSchemaPages::photosTellTheirFocalLength()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);

    shoot.loadPhotos(3, photoWith(24.0F));

    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("24.00mm"));
    QVERIFY(shoot.isEnabled("m_pbFLUseImage"));
}

void TestSchemaPages::photosPresetTheLensBeforeTheRecord_data()
{
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<float>("photoFocal");
    QTest::addColumn<int>("photoLens");
    QTest::addColumn<QString>("xmlFocal");
    QTest::addColumn<QString>("xmlLens");
    QTest::addColumn<double>("focal"); // in the controls; before they hold 77 mm, fisheye
    QTest::addColumn<int>("lens");
    const auto row = [](const char *name, float photoFocal, int photoLens, const char *xmlFocal,
                        const char *xmlLens, double focal, int lens) {
        addToBoth(name, photoFocal, photoLens, QString::fromLatin1(xmlFocal),
                  QString::fromLatin1(xmlLens), focal, lens);
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
    row("unknown lens type", 24.0F, 7, "50", "fisheye", 24.0, 0);
}

void TestSchemaPages::photosPresetTheLensBeforeTheRecord()
{
    QFETCH(const Head *, head);
    QFETCH(float, photoFocal);
    QFETCH(int, photoLens);
    QFETCH(QString, xmlFocal);
    QFETCH(QString, xmlLens);
    QFETCH(double, focal);
    QFETCH(int, lens);
    const Shoot shoot(*head);
    shoot.setLens(77.0, 1);
    shoot.load(rowWithLens(2, xmlFocal, xmlLens));
    QCOMPARE(shoot.focal(), 77.0); // a record alone presets nothing

    shoot.loadPhotos(2, photoWith(photoFocal, photoLens));

    QCOMPARE(shoot.focal(), focal);
    QCOMPARE(shoot.lens(), lens);
}

void TestSchemaPages::focalLengthOfThePhotosIsTheirMean()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);

    shoot.driver.load(kSelectPhotos,
                      { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photoWith(24.0F, 1)),
                        shoot.folder.addPhoto(QStringLiteral("b.jpg"), photoWith(35.0F, 0)),
                        shoot.folder.addPhoto(QStringLiteral("c.jpg"), photoWith(0.0F, 1)) });

    // (24 + 35 + 0) / 3 = 19.6667; the lens of the last photo
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("19.67mm"));
    QCOMPARE(shoot.focal(), 19.667); // three decimals
    QCOMPARE(shoot.lens(), 1);
}

void TestSchemaPages::newPhotosReplaceTheLensOfThoseBefore()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    shoot.loadPhotos(2, photoWith(24.0F, 1));

    shoot.loadPhotos(2, photoWith(31.0F, 0));

    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("31.00mm"));
    QCOMPARE(shoot.lens(), 0);
}

void TestSchemaPages::newPhotosReplaceTheLensOfThoseBeingRead_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("button");
    addToBoth("record", QByteArray(kSelectRecord));
    addToBoth("photos", QByteArray(kSelectPhotos));
}

void TestSchemaPages::newPhotosReplaceTheLensOfThoseBeingRead()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const Shoot shoot(*head);
    shoot.loadRecord(2);
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("new_1.jpg"), photoWith(31.0F)),
                              shoot.folder.addPhoto(QStringLiteral("new_2.jpg"),
                                                    photoWith(31.0F)) };
    const HeldPhotos held(shoot.driver, shoot.folder);

    shoot.driver.load(button.constData(), photos);

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("31.00mm"));
}

void TestSchemaPages::useButtonsTakeTheirSource()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    shoot.load(rowWithLens(2, QStringLiteral("50"), QStringLiteral("fisheye")));
    shoot.loadPhotos(2, photoWith(24.0F, 0));
    QCOMPARE(shoot.focal(), 24.0);

    shoot.driver.click("m_pbFLUseXML");
    QCOMPARE(shoot.focal(), 50.0);
    QCOMPARE(shoot.lens(), 1);

    shoot.driver.click("m_pbFLUseImage");
    QCOMPARE(shoot.focal(), 24.0);
    QCOMPARE(shoot.lens(), 0);
}

void TestSchemaPages::focalLengthAndLensComeFromTheControls()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    shoot.load(rowWithLens(2, QStringLiteral("50")));
    shoot.loadPhotos(2, photoWith(24.0F, 0));
    shoot.setLens(31.25, 1);

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.first().focalLength, 31.25F);
    QCOMPARE(fakeHost().descriptions.first().lensModel, LensModel::Fisheye);
    QVERIFY(fakeHost().descriptions.first().authorizedLinks.isEmpty());
}

void TestSchemaPages::invertingTwiceRestoresEverything_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<int>("photos");
    addToBoth("with photos", 4);
    // The Papywizard page takes "no photos" for the picture that it has.
    QTest::newRow("VR Drive 2: without photos") << &vrdrive2() << 0;
}

void TestSchemaPages::invertingTwiceRestoresEverything()
{
    QFETCH(const Head *, head);
    QFETCH(int, photos);
    const Shoot shoot(*head);
    RecordXml record;
    record.shots = { { QStringLiteral("0.0"), QStringLiteral("-30.0") },
                     { QStringLiteral("40.0"), QStringLiteral("0.0") },
                     { QStringLiteral("80.0"), QStringLiteral("12.3") },
                     { QStringLiteral("120.0"), QStringLiteral("60.5") } };
    shoot.load(record);
    if (photos > 0) {
        shoot.loadPhotos(photos);
    }
    const QImage picture = shoot.driver.picture();
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60.5"));

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(*shoot.made.shots), (QVector<float>{ 30.0F, -0.0F, -12.3F, -60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-60.5,30"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,120"));
    QVERIFY(shoot.driver.picture() != picture);

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(*shoot.made.shots), (QVector<float>{ -30.0F, 0.0F, 12.3F, 60.5F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60.5"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,120"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestSchemaPages::rotatingAddsQuarterTurnsWithoutWrapping_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<int>("turns"); // after one to the left
    QTest::addColumn<float>("degrees");
    QTest::addColumn<float>("radians");
    addToBoth("a full turn", 5, 360.0F, 6.283185307F);
    addToBoth("more than a full turn", 6, 450.0F, 7.853981634F); // 2.5 pi
}

void TestSchemaPages::rotatingAddsQuarterTurnsWithoutWrapping()
{
    QFETCH(const Head *, head);
    QFETCH(int, turns);
    QFETCH(float, degrees);
    QFETCH(float, radians);
    const Shoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);

    shoot.driver.click("m_pbRot270");
    QCOMPARE(rollsOf(*shoot.made.shots), (QVector<float>{ -90.0F, -90.0F }));
    for (int i = 0; i < turns; ++i) {
        shoot.driver.click("m_pbRot90");
    }
    QCOMPARE(rollsOf(*shoot.made.shots), (QVector<float>{ degrees, degrees }));

    QVERIFY(shoot.page->validatePage());
    QCOMPARE(fakeHost().descriptions.last().roll, (QVector<float>{ radians, radians }));
}

void TestSchemaPages::bracketCountBelowTwoBecomesOne_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("nbPicts");
    addToBoth("not said", QString());
    for (const char *nbPicts : { "1", "0", "-3", "abc" }) {
        addToBoth(nbPicts, QString::fromLatin1(nbPicts));
    }
}

void TestSchemaPages::bracketCountBelowTwoBecomesOne()
{
    QFETCH(const Head *, head);
    QFETCH(QString, nbPicts);
    const Shoot shoot(*head);
    shoot.load(bracketedRow(2, nbPicts));
    shoot.loadPhotos(2);

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(shoot.generator().nbPicts, 1);
    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), 2);
}

void TestSchemaPages::twelvePhotosInThreesGiveFourStacks_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QStringList>("lastStack");
    const QString ten = QStringLiteral("IMG_0010.jpg");
    const QString eleven = QStringLiteral("IMG_0011.jpg");
    const QString twelve = QStringLiteral("IMG_0012.jpg");
    QTest::newRow("Papywizard") << &papywizard() << QStringList{ ten, eleven, twelve };
    // The reference of three like exposures is the last one; it comes first.
    QTest::newRow("VR Drive 2") << &vrdrive2() << QStringList{ twelve, eleven, ten };
}

void TestSchemaPages::twelvePhotosInThreesGiveFourStacks()
{
    QFETCH(const Head *, head);
    QFETCH(QStringList, lastStack);
    const Shoot shoot(*head);
    shoot.load(bracketedRow(12, QStringLiteral("3")));
    shoot.loadPhotos(12);
    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    const DialogClicker clicker;

    QVERIFY(shoot.page->validatePage());

    QVERIFY(clicker.messageBoxes().isEmpty());
    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.imageGroups.size(), 4);
    QCOMPARE(namesOf(handed.imageGroups.last()), lastStack);
    QCOMPARE(handed.yaw.size(), 12);
    QCOMPARE(shoot.generator().nbPicts, 3);
}

void TestSchemaPages::photosThatDoNotFillTheBracketsAreRefused_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("nbPicts");
    addToBoth("4 photos in threes", 4, 3);
    addToBoth("10 photos in threes", 10, 3);
    addToBoth("one photo missing", 4, 5);
    addToBoth("many photos missing", 4, 400);
    addToBoth("as many photos missing as can be", 4, std::numeric_limits<int>::max());
}

void TestSchemaPages::photosThatDoNotFillTheBracketsAreRefused()
{
    QFETCH(const Head *, head);
    QFETCH(int, photos);
    QFETCH(int, nbPicts);
    const Shoot shoot(*head);
    shoot.load(bracketedRow(photos, QString::number(nbPicts)));
    shoot.loadPhotos(photos);
    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.warning(), kBracketWarning);
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    QVERIFY(!shoot.page->validatePage());

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
    QVERIFY(shoot.made.description->imageGroups.isEmpty());
    QCOMPARE(shoot.generator().nbPicts, nbPicts);
}

void TestSchemaPages::nextWithoutShotsAndPhotosIsHarmless_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("nbPicts");
    addToBoth("not said", QString());
    for (const char *nbPicts : { "0", "1", "3", "2147483647", "-2147483648" }) {
        addToBoth(nbPicts, QString::fromLatin1(nbPicts));
    }
}

void TestSchemaPages::nextWithoutShotsAndPhotosIsHarmless()
{
    QFETCH(const Head *, head);
    QFETCH(QString, nbPicts);
    const Shoot shoot(*head);
    shoot.load(bracketedRow(0, nbPicts));
    QVERIFY(shoot.page->isComplete());

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 1);
    QVERIFY(fakeHost().descriptions.first().imageGroups.isEmpty());
    QVERIFY(fakeHost().descriptions.first().yaw.isEmpty());
}

void TestSchemaPages::pageMayGoWhileTheBoxIsOpen()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    shoot.driver.load(kSelectRecord,
                      shoot.folder.addPhotos(4)
                          << shoot.write(bracketedRow(4, QStringLiteral("3"))));
    QWizardPage *page = shoot.page;
    DialogClicker clicker;
    clicker.beforeNextAnswer([page] { delete page; });

    QVERIFY(!page->validatePage());

    QVERIFY(shoot.page.isNull());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QVERIFY(fakeHost().descriptions.isEmpty());
}

void TestSchemaPages::controlKeyOpensTheFolder_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("folder");
    addToBoth("plain", QStringLiteral("shoot"));
    addToBoth("number sign", QStringLiteral("shoot #1"));
    addToBoth("question mark", QStringLiteral("which?"));
    addToBoth("percent", QStringLiteral("50%41"));
    addToBoth("all URL syntax", QStringLiteral("shoot #1? 50%41"));
    addToBoth("umlauts", QString::fromUtf8("Höhe über Zürich"));
}

void TestSchemaPages::controlKeyOpensTheFolder()
{
    QFETCH(const Head *, head);
    QFETCH(QString, folder);
    const Shoot shoot(*head);
    const QString record = shoot.write(RecordXml::row(1), folder + QLatin1String("/a.xml"));
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
    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);
    QCOMPARE(desktop.urls().size(), 4);
    QCOMPARE(desktop.urls()[2].toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(desktop.urls()[3].toLocalFile(), shoot.folder.path(folder + QLatin1String("-photos")));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; "));
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(fakeHost().setLastPaths, QStringList{ record });
}

void TestSchemaPages::toolTipKeepsTheRecordsText()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    RecordXml record = RecordXml::row(1);
    record.title = QStringLiteral("a %2 %1 %3");
    record.gps = QStringLiteral("%1<b>%3</b>");
    record.comment = QStringLiteral("c");

    shoot.load(record);

    QCOMPARE(shoot.driver.find<QLineEdit>("m_leConfigFile")->toolTip(),
             QStringLiteral("a %2 %1 %3\n%1<b>%3</b>\nc"));
}

void TestSchemaPages::toolTipHasALineForWhatTheRecordLeavesOut()
{
    QFETCH(const Head *, head);
    const Shoot shoot(*head);
    const auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");

    shoot.driver.load(kSelectRecord,
                      { shoot.folder.write(QStringLiteral("bare.xml"),
                                           "<papywizard><header><general><gps> 1,2 </gps></general>"
                                           "</header><shoot/></papywizard>") });
    QCOMPARE(edit->toolTip(), QStringLiteral("\n1,2\n"));

    shoot.driver.load(
        kSelectRecord,
        { shoot.folder.write(QStringLiteral("barer.xml"), "<papywizard><shoot/></papywizard>") });
    QCOMPARE(edit->toolTip(), QStringLiteral("\n\n"));
}

void TestSchemaPages::toolTipIsShownAsPlainText_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("title"); // PIPE stands for the path of a named pipe
    addToBoth("bold", QStringLiteral("<b>x</b>"));
    addToBoth("ampersand", QStringLiteral("this &lt;that & more"));
    addToBoth("picture from a pipe", QStringLiteral("<img src='PIPE'>"));
    addToBoth("bold and a picture from a pipe", QStringLiteral("<b>x</b> <img src='PIPE'>"));
    addToBoth("picture from a pipe, as URL", QStringLiteral("<img src='file://PIPE'>"));
    addToBoth("20 nested tables", QStringLiteral("<table><tr><td>").repeated(20));
    addToBoth("plain", QStringLiteral("Mont Blanc"));
}

void TestSchemaPages::toolTipIsShownAsPlainText()
{
    QFETCH(const Head *, head);
    QFETCH(QString, title);
    const Shoot shoot(*head);
    const TrapPipe pipe(shoot.folder.path(QStringLiteral("pipe")));
    title.replace(QLatin1String("PIPE"), shoot.folder.path(QStringLiteral("pipe")));
    RecordXml record = RecordXml::row(1);
    record.title = title;
    record.gps = QStringLiteral("g");
    record.comment = QStringLiteral("c");
    shoot.load(record);
    auto *edit = shoot.driver.find<QLineEdit>("m_leConfigFile");
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

void TestSchemaPages::trapPipeNoticesAReader()
{
    const ShootFolder folder;
    const QString path = folder.path(QStringLiteral("pipe"));
    const TrapPipe pipe(path);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));

    QTRY_VERIFY(pipe.wasOpened());
    QCOMPARE(file.readAll(), QByteArray());
}

TEST_CLASS(TestSchemaPages, FakeApplication)
#include "tst_schemapages.moc"
