// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/pages/schemashoot.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"
#include "tests/support/heldphotos.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

const QString kBracketWarning = red("Bracketing used in XML, should be multiple of that number");
const QString kCountWarning = red("Not the same as in XML fil"); // as translations know it
const QString kLensWarning = red("Lens type difference between EXIF and XML");

} // namespace

/** Warnings, lens and brackets on the pages for records in the Papywizard schema. */
class TestSchemaPagesLens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

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
};

void TestSchemaPagesLens::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

// The four tests in their order; each is made to fail by itself, and every combination of them.
void TestSchemaPagesLens::lastFailingTestGivesTheWarning_data()
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

void TestSchemaPagesLens::lastFailingTestGivesTheWarning()
{
    QFETCH(const Head *, head);
    QFETCH(bool, bracketing);
    QFETCH(bool, count);
    QFETCH(bool, focal);
    QFETCH(bool, lens);
    const SchemaShoot shoot(*head);
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

void TestSchemaPagesLens::warningTestsHaveTheirLimits_data()
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

void TestSchemaPagesLens::warningTestsHaveTheirLimits()
{
    QFETCH(const Head *, head);
    QFETCH(QString, nbPicts);
    QFETCH(QString, xmlFocal);
    QFETCH(float, photoFocal);
    QFETCH(bool, warned);
    const SchemaShoot shoot(*head);
    RecordXml record = rowWithLens(4, xmlFocal);
    record.nbPicts = nbPicts;

    shoot.load(record);
    shoot.loadPhotos(4, photoWith(photoFocal));

    QCOMPARE(shoot.warning() != head->schema->noWarning, warned);
}

void TestSchemaPagesLens::warningAboutTheCountEndsWhereWanted()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);

    shoot.load(rowWithLens(5, QStringLiteral("24")));
    shoot.loadPhotos(4);

    QCOMPARE(shoot.warning(),
             QStringLiteral("<p style='color:red'>Not the same as in XML fil</p>"));
}

void TestSchemaPagesLens::warningGoesWhenTheRecordFits()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    shoot.loadPhotos(4);
    shoot.load(RecordXml::row(5));
    QCOMPARE(shoot.warning(), kCountWarning);

    shoot.load(RecordXml::row(4));

    QCOMPARE(shoot.warning(), head->schema->noWarning);
}

void TestSchemaPagesLens::warningGoesWithTheReset()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    shoot.loadEverything();
    QCOMPARE(shoot.warning(), head->schema->focalWarning);

    shoot.driver.click("m_pbReset");

    QCOMPARE(shoot.warning(), head->schema->noWarning);
}

void TestSchemaPagesLens::warningNeedsRecordAndPhotos()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    shoot.loadPhotos(4);
    QCOMPARE(shoot.warning(), head->schema->noWarning);
    shoot.load(RecordXml::row(0));
    QCOMPARE(shoot.warning(), head->schema->noWarning);

    const SchemaShoot without(*head);
    without.load(rowWithLens(5, QStringLiteral("24"), QStringLiteral("fisheye")));
    QCOMPARE(without.warning(), head->schema->noWarning);
}

void TestSchemaPagesLens::photosTellTheirFocalLength()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);

    shoot.loadPhotos(3, photoWith(24.0F));

    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("24.00mm"));
    QVERIFY(shoot.isEnabled("m_pbFLUseImage"));
}

void TestSchemaPagesLens::photosPresetTheLensBeforeTheRecord_data()
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

void TestSchemaPagesLens::photosPresetTheLensBeforeTheRecord()
{
    QFETCH(const Head *, head);
    QFETCH(float, photoFocal);
    QFETCH(int, photoLens);
    QFETCH(QString, xmlFocal);
    QFETCH(QString, xmlLens);
    QFETCH(double, focal);
    QFETCH(int, lens);
    const SchemaShoot shoot(*head);
    shoot.setLens(77.0, 1);
    shoot.load(rowWithLens(2, xmlFocal, xmlLens));
    QCOMPARE(shoot.focal(), 77.0); // a record alone presets nothing

    shoot.loadPhotos(2, photoWith(photoFocal, photoLens));

    QCOMPARE(shoot.focal(), focal);
    QCOMPARE(shoot.lens(), lens);
}

void TestSchemaPagesLens::focalLengthOfThePhotosIsTheirMean()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);

    shoot.driver.load(kSelectPhotos,
                      { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photoWith(24.0F, 1)),
                        shoot.folder.addPhoto(QStringLiteral("b.jpg"), photoWith(35.0F, 0)),
                        shoot.folder.addPhoto(QStringLiteral("c.jpg"), photoWith(0.0F, 1)) });

    // (24 + 35 + 0) / 3 = 19.6667; the lens of the last photo
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("19.67mm"));
    QCOMPARE(shoot.focal(), 19.667); // three decimals
    QCOMPARE(shoot.lens(), 1);
}

void TestSchemaPagesLens::newPhotosReplaceTheLensOfThoseBefore()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    shoot.loadPhotos(2, photoWith(24.0F, 1));

    shoot.loadPhotos(2, photoWith(31.0F, 0));

    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("31.00mm"));
    QCOMPARE(shoot.lens(), 0);
}

void TestSchemaPagesLens::newPhotosReplaceTheLensOfThoseBeingRead_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("button");
    addToBoth("record", QByteArray(kSelectRecord));
    addToBoth("photos", QByteArray(kSelectPhotos));
}

void TestSchemaPagesLens::newPhotosReplaceTheLensOfThoseBeingRead()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const SchemaShoot shoot(*head);
    shoot.loadRecord(2);
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("new_1.jpg"), photoWith(31.0F)),
                              shoot.folder.addPhoto(QStringLiteral("new_2.jpg"),
                                                    photoWith(31.0F)) };
    const HeldPhotos held(shoot.driver, shoot.folder);

    shoot.driver.load(button.constData(), photos);

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.driver.text("m_lbFocalLengthImage"), QStringLiteral("31.00mm"));
}

void TestSchemaPagesLens::useButtonsTakeTheirSource()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
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

void TestSchemaPagesLens::focalLengthAndLensComeFromTheControls()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
    shoot.load(rowWithLens(2, QStringLiteral("50")));
    shoot.loadPhotos(2, photoWith(24.0F, 0));
    shoot.setLens(31.25, 1);

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.first().focalLength, 31.25F);
    QCOMPARE(fakeHost().descriptions.first().lensModel, LensModel::Fisheye);
    QVERIFY(fakeHost().descriptions.first().authorizedLinks.isEmpty());
}

void TestSchemaPagesLens::bracketCountBelowTwoBecomesOne_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("nbPicts");
    addToBoth("not said", QString());
    for (const char *nbPicts : { "1", "0", "-3", "abc" }) {
        addToBoth(nbPicts, QString::fromLatin1(nbPicts));
    }
}

void TestSchemaPagesLens::bracketCountBelowTwoBecomesOne()
{
    QFETCH(const Head *, head);
    QFETCH(QString, nbPicts);
    const SchemaShoot shoot(*head);
    shoot.load(bracketedRow(2, nbPicts));
    shoot.loadPhotos(2);

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(shoot.generator().nbPicts, 1);
    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), 2);
}

void TestSchemaPagesLens::twelvePhotosInThreesGiveFourStacks_data()
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

void TestSchemaPagesLens::twelvePhotosInThreesGiveFourStacks()
{
    QFETCH(const Head *, head);
    QFETCH(QStringList, lastStack);
    const SchemaShoot shoot(*head);
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

void TestSchemaPagesLens::photosThatDoNotFillTheBracketsAreRefused_data()
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

void TestSchemaPagesLens::photosThatDoNotFillTheBracketsAreRefused()
{
    QFETCH(const Head *, head);
    QFETCH(int, photos);
    QFETCH(int, nbPicts);
    const SchemaShoot shoot(*head);
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

void TestSchemaPagesLens::nextWithoutShotsAndPhotosIsHarmless_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("nbPicts");
    addToBoth("not said", QString());
    for (const char *nbPicts : { "0", "1", "3", "2147483647", "-2147483648" }) {
        addToBoth(nbPicts, QString::fromLatin1(nbPicts));
    }
}

void TestSchemaPagesLens::nextWithoutShotsAndPhotosIsHarmless()
{
    QFETCH(const Head *, head);
    QFETCH(QString, nbPicts);
    const SchemaShoot shoot(*head);
    shoot.load(bracketedRow(0, nbPicts));
    QVERIFY(shoot.page->isComplete());

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 1);
    QVERIFY(fakeHost().descriptions.first().imageGroups.isEmpty());
    QVERIFY(fakeHost().descriptions.first().yaw.isEmpty());
}

void TestSchemaPagesLens::pageMayGoWhileTheBoxIsOpen()
{
    QFETCH(const Head *, head);
    const SchemaShoot shoot(*head);
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

TEST_CLASS(TestSchemaPagesLens, FakeApplication)
#include "tst_schemapages_lens.moc"
