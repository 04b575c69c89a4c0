// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/pages/gigapanshoot.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heldphotos.h"
#include "ui/xui.h"

#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QWizard>
#include <QtTest>

namespace
{

/** Something that a user does on a page. */
using Act = void (*)(GigapanShoot &);

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(FakePhoto::Reading)

/** What only the page for Gigapan photos does. */
class TestUIWPGigapan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void arrowsOfTheBoxesCount_data();
    void arrowsOfTheBoxesCount();
    void twoDigitsArriveWhole();
    void zoomingShowsTheStateAnew();

    void modeButtonsSetTheirMode_data();
    void modeButtonsSetTheirMode();
    void uncheckingAModeChangesNothing();
    void modeFourChecksNoButtonWanted();

    void everyActionUpdatesThePageOnce_data();
    void everyActionUpdatesThePageOnce();
    void slotsDoNothingWhileThePageWritesItsWidgets();
    void nestedUpdateKeepsTheSlotsSilent();

    void pageIsCompleteWhenEveryPhotoIsRead_data();
    void pageIsCompleteWhenEveryPhotoIsRead();
    void resetShowsTheFreshGrid();
    void enteringThePageResets();
    void goingBackOnlyStopsReadingWanted();

    void cancelledDialogKeepsTheGrid();
};

void TestUIWPGigapan::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPGigapan::arrowsOfTheBoxesCount_data()
{
    QTest::addColumn<QString>("grid"); // after one step up from 12 photos in 3 x 4
    QTest::newRow(kRows) << QStringLiteral("4 x 3");
    QTest::newRow(kIgnored) << QStringLiteral("3 x 3"); // 11 / 1 / 3
    QTest::newRow(kBracket) << QStringLiteral("3 x 2"); // 12 / 2 / 3
}

void TestUIWPGigapan::arrowsOfTheBoxesCount()
{
    QFETCH(QString, grid);
    const GigapanShoot shoot;
    shoot.loadPhotos(12);
    auto *box = shoot.driver.find<QSpinBox>(QTest::currentDataTag());
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.subControls = QStyle::SC_All;
    const QRect up
        = box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, box);

    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, up.center());

    QCOMPARE(shoot.grid(), grid);
}

void TestUIWPGigapan::twoDigitsArriveWhole()
{
    const GigapanShoot shoot;
    shoot.loadPhotos(30);

    shoot.enter(kRows, 15);
    QCOMPARE(shoot.page.m_sbRow->text(), QStringLiteral("15"));
    QCOMPARE(shoot.grid(), QStringLiteral("15 x 2"));
    shoot.enter(kIgnored, 14);
    QCOMPARE(shoot.page.m_sbIgnore->text(), QStringLiteral("14"));
    QCOMPARE(shoot.grid(), QStringLiteral("15 x 1")); // 16 / 1 / 15
}

void TestUIWPGigapan::zoomingShowsTheStateAnew()
{
    GigapanShoot shoot;
    shoot.loadPhotos(12);
    shoot.page.rows = 2;
    shoot.page.columns = 6;
    shoot.page.mode = 2;

    shoot.page.m_hSlider->setFocus();
    QTest::keyClick(shoot.page.m_hSlider, Qt::Key_End);

    QCOMPARE(shoot.page.m_hSlider->value(), 100);
    QCOMPARE(shoot.grid(), QStringLiteral("2 x 6"));
    QCOMPARE(shoot.checkedModes(), QVector<int>{ 2 });
}

void TestUIWPGigapan::modeButtonsSetTheirMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("before");
    QTest::newRow("Columns (default)") << 0 << 1;
    QTest::newRow("Rows: downward") << 1 << 0;
    QTest::newRow("Rows: upward") << 2 << 0;
    QTest::newRow("Columns: to left") << 3 << 0;
}

void TestUIWPGigapan::modeButtonsSetTheirMode()
{
    QFETCH(int, mode);
    QFETCH(int, before);
    const GigapanShoot shoot;
    shoot.loadPhotos(12);
    shoot.driver.click(GigapanShoot::modeButton(before).constData());
    QCOMPARE(shoot.page.mode, before);

    shoot.driver.click(GigapanShoot::modeButton(mode).constData());

    QCOMPARE(shoot.driver.text(GigapanShoot::modeButton(mode).constData()),
             QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(shoot.page.mode, mode);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ mode });
    QCOMPARE(shoot.grid(), QStringLiteral("3 x 4"));
    shoot.page.m_hSlider->setValue(20);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ mode });
}

void TestUIWPGigapan::uncheckingAModeChangesNothing()
{
    GigapanShoot shoot;
    shoot.driver.click("m_rbMode2");
    const QSignalSpy spy(&shoot.page, &QWizardPage::completeChanged);

    shoot.page.OnMode0Toggled(false);
    shoot.page.OnMode1Toggled(false);
    shoot.page.OnMode3Toggled(false);
    shoot.page.OnMode4Toggled(false);

    QCOMPARE(shoot.page.mode, 2);
    QCOMPARE(spy.count(), 0);
}

void TestUIWPGigapan::modeFourChecksNoButtonWanted()
{
    GigapanShoot shoot;
    shoot.loadPhotos(12);
    shoot.driver.click("m_rbMode1");
    const QSignalSpy spies[]{ QSignalSpy(shoot.page.m_rbMode0, &QRadioButton::toggled),
                              QSignalSpy(shoot.page.m_rbMode1, &QRadioButton::toggled),
                              QSignalSpy(shoot.page.m_rbMode2, &QRadioButton::toggled),
                              QSignalSpy(shoot.page.m_rbMode3, &QRadioButton::toggled) };

    shoot.page.OnMode4Toggled(true);
    shoot.page.UpdateUI();

    QCOMPARE(shoot.page.mode, 4);
    for (const QSignalSpy &spy : spies) {
        QCOMPARE(spy.count(), 0);
    }
    QVERIFY(shoot.page.validatePage());
    QCOMPARE(fakeHost().descriptions.first().gridMode, 4);

    shoot.driver.click("m_pbReset");
    QCOMPARE(shoot.page.mode, 0);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ 0 });
}

void TestUIWPGigapan::everyActionUpdatesThePageOnce_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("updates");
    const auto row
        = [](const char *name, int updates, Act act) { QTest::newRow(name) << act << updates; };
    row("rows", 1, [](GigapanShoot &shoot) { shoot.enter(kRows, 2); });
    row("ignored", 1, [](GigapanShoot &shoot) { shoot.enter(kIgnored, 1); });
    row("bracket", 1, [](GigapanShoot &shoot) { shoot.enter(kBracket, 3); });
    row("zoom", 1, [](GigapanShoot &shoot) { shoot.page.m_hSlider->setValue(20); });
    row("mode", 1, [](GigapanShoot &shoot) { shoot.driver.click("m_rbMode2"); });
    row("mode without a button", 1, [](GigapanShoot &shoot) { shoot.page.OnMode4Toggled(true); });
    // The thread tells that it is empty, then the page shows its fresh state.
    row("reset", 2, [](GigapanShoot &shoot) { shoot.driver.click("m_pbReset"); });
    // The names, then the tenth and the last photo.
    row("photos", 3, [](GigapanShoot &shoot) { shoot.loadPhotos(12); });
    row("nothing chosen", 0, [](GigapanShoot &shoot) { shoot.driver.cancelFiles(kSelectPhotos); });
    row("option", 0, [](GigapanShoot &shoot) { shoot.driver.click("m_cbIS360"); });
    row("linking", 0, [](GigapanShoot &shoot) { shoot.driver.click("m_rbLevelLinking1"); });
    row("going back", 0, [](GigapanShoot &shoot) { shoot.page.cleanupPage(); });
}

// An update that called the slots of the boxes it writes would cause further ones.
void TestUIWPGigapan::everyActionUpdatesThePageOnce()
{
    QFETCH(Act, act);
    QFETCH(int, updates);
    GigapanShoot shoot;
    shoot.loadPhotos(13);
    shoot.enter(kIgnored, 2);
    shoot.enter(kBracket, 2);
    shoot.driver.click("m_rbMode1");
    const QSignalSpy spy(&shoot.page, &QWizardPage::completeChanged);

    act(shoot);

    QCOMPARE(spy.count(), updates);
}

void TestUIWPGigapan::slotsDoNothingWhileThePageWritesItsWidgets()
{
    GigapanShoot shoot;
    shoot.loadPhotos(12);
    // The signal comes while the page is still at it.
    const auto connection = connect(&shoot.page, &QWizardPage::completeChanged, [&shoot] {
        shoot.page.SetRow(2);
        shoot.page.IgnoreNImages(3);
        shoot.page.OnChangeBracket(4);
        shoot.page.OnMode0Toggled(true);
        shoot.page.OnMode1Toggled(true);
        shoot.page.OnMode2Toggled(true);
        shoot.page.OnMode3Toggled(true);
        shoot.page.OnMode4Toggled(true);
    });

    shoot.page.UpdateUI();
    QCOMPARE(shoot.page.mode, 0);
    shoot.page.OnMode2Toggled(true);
    shoot.page.UpdatePreview();

    QCOMPARE(shoot.page.rows, 3);
    QCOMPARE(shoot.page.columns, 4);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.page.mode, 2);
    disconnect(connection);
    shoot.page.SetRow(2);
    QCOMPARE(shoot.grid(), QStringLiteral("2 x 6"));
    shoot.page.OnMode3Toggled(true);
    QCOMPARE(shoot.page.mode, 3);
}

void TestUIWPGigapan::nestedUpdateKeepsTheSlotsSilent()
{
    GigapanShoot shoot;
    shoot.loadPhotos(12);
    bool isNested = false;
    connect(&shoot.page, &QWizardPage::completeChanged, &shoot.page, [&shoot, &isNested] {
        if (!isNested) {
            isNested = true;
            shoot.page.UpdateUI();
            // The inner update is over, the outer one is not.
            shoot.page.SetRow(2);
            shoot.page.OnMode1Toggled(true);
        }
    });

    shoot.page.UpdatePreview();

    QVERIFY(isNested);
    QCOMPARE(shoot.page.rows, 3);
    QCOMPARE(shoot.page.mode, 0);
    shoot.page.SetRow(2);
    QCOMPARE(shoot.page.rows, 2);
}

void TestUIWPGigapan::pageIsCompleteWhenEveryPhotoIsRead_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("broken"); // the first ones
    QTest::addColumn<FakePhoto::Reading>("reading"); // of the broken ones
    QTest::addColumn<bool>("complete");
    QTest::newRow("no photos") << 0 << 0 << FakePhoto::Reading::Succeeds << false;
    QTest::newRow("one photo") << 1 << 0 << FakePhoto::Reading::Succeeds << true;
    QTest::newRow("12 photos") << 12 << 0 << FakePhoto::Reading::Succeeds << true;
    QTest::newRow("one of 12 is unreadable") << 12 << 1 << FakePhoto::Reading::Fails << false;
    QTest::newRow("one of 12 upsets the host") << 12 << 1 << FakePhoto::Reading::Throws << false;
    QTest::newRow("all are unreadable") << 12 << 12 << FakePhoto::Reading::Fails << false;
}

void TestUIWPGigapan::pageIsCompleteWhenEveryPhotoIsRead()
{
    QFETCH(int, photos);
    QFETCH(int, broken);
    QFETCH(FakePhoto::Reading, reading);
    QFETCH(bool, complete);
    const GigapanShoot shoot;
    const QStringList files = shoot.folder.addPhotos(photos);
    FakePhoto photo;
    photo.reading = reading;
    fakeHost().setPhotos(files.mid(0, broken), photo);

    if (photos > 0) {
        shoot.driver.load(kSelectPhotos, files);
    }

    QCOMPARE(shoot.page.isComplete(), complete);
}

void TestUIWPGigapan::resetShowsTheFreshGrid()
{
    const GigapanShoot shoot;
    shoot.loadPhotos(14);
    shoot.enter(kIgnored, 2);
    shoot.enter(kBracket, 3);
    shoot.enter(kRows, 1);
    shoot.driver.click("m_rbMode2");

    shoot.driver.click("m_pbReset");

    QCOMPARE(shoot.grid(), QStringLiteral("4 x 5"));
    QCOMPARE(shoot.page.rows, 4);
    QCOMPARE(shoot.page.columns, 5);
    QCOMPARE(shoot.page.m_sbIgnore->value(), 0);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.m_sbBracket->value(), 1);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ 0 });
    QCOMPARE(shoot.page.mode, 0);
    QCOMPARE(shoot.driver.picture(), GigapanShoot().driver.picture());
}

void TestUIWPGigapan::enteringThePageResets()
{
    const ShootFolder folder;
    QWizard wizard;
    wizard.addPage(new QWizardPage);
    auto *page = new UIWPGigapan(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    wizard.next();
    QCOMPARE(wizard.currentPage(), page);
    const PageDriver driver(page);
    driver.load(kSelectPhotos, folder.addPhotos(12));
    driver.click("m_rbMode3");

    wizard.back();
    // Nothing was being read, so going back has changed nothing.
    QVERIFY(page->isComplete());
    QCOMPARE(driver.text("m_lbImage"), QStringLiteral("12 images in "));
    QCOMPARE(page->mode, 3);
    wizard.next();

    QCOMPARE(wizard.currentPage(), page);
    QVERIFY(!page->isComplete());
    QCOMPARE(driver.text("m_lbImage"), QStringLiteral("0 images in "));
    QCOMPARE(page->m_sbRow->value(), 4);
    QCOMPARE(page->m_sbColumn->value(), 5);
    QCOMPARE(page->mode, 0);
}

void TestUIWPGigapan::goingBackOnlyStopsReadingWanted()
{
    GigapanShoot shoot;
    const HeldPhotos held(shoot.driver, shoot.folder, 200);

    shoot.page.cleanupPage();

    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("200 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("10 x 20"));
    // No photo is left: cells of 48 x 48, (20 x 52 + 4) x (10 x 52 + 4) at 50 percent.
    QCOMPARE(shoot.driver.picture().size(), QSize(522, 262));
}

void TestUIWPGigapan::cancelledDialogKeepsTheGrid()
{
    const GigapanShoot shoot;
    shoot.loadPhotos(13);
    shoot.enter(kIgnored, 1);
    shoot.enter(kBracket, 2);
    shoot.enter(kRows, 2);
    const QImage picture = shoot.driver.picture();

    shoot.driver.cancelFiles(kSelectPhotos);
    shoot.driver.waitUntilRead();

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.grid(), QStringLiteral("2 x 3"));
    QCOMPARE(shoot.page.m_sbIgnore->value(), 1);
    QCOMPARE(shoot.page.m_sbBracket->value(), 2);
    QCOMPARE(shoot.driver.picture(), picture);
}

TEST_CLASS(TestUIWPGigapan, FakeApplication)
#include "tst_uiwpgigapan.moc"
