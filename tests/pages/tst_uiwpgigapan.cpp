// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/heldphotos.h"
#include "tests/support/literalgrid.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"
#include "ui/xui.h"

#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QWizard>
#include <QtTest>

#include <random>

namespace
{

constexpr char kRows[] = "m_sbRow";
constexpr char kIgnored[] = "m_sbIgnore";
constexpr char kBracket[] = "m_sbBracket";

/** One page with the files of one shoot. */
struct Shoot {
    ShootFolder folder;
    UIWPGigapan page{ nullptr };
    PageDriver driver{ &page };

    void loadPhotos(int count) const { driver.load(kSelectPhotos, folder.addPhotos(count)); }
    /** Replaces the number in the spin box \p name, key by key. */
    void enter(const char *name, int value) const
    {
        auto *box = driver.find<QSpinBox>(name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::number(value));
    }
    /** The grid that the page shows, as "rows x columns". */
    [[nodiscard]] QString grid() const
    {
        return QStringLiteral("%1 x %2").arg(page.m_sbRow->value()).arg(page.m_sbColumn->value());
    }
    /** The modes whose buttons are checked. */
    [[nodiscard]] QVector<int> checkedModes() const
    {
        QVector<int> modes;
        for (int mode = 0; mode < 4; ++mode) {
            if (driver.find<QRadioButton>(modeButton(mode).constData())->isChecked()) {
                modes.append(mode);
            }
        }
        return modes;
    }
    void choose(int mode)
    {
        if (mode == 4) { // has no button
            page.OnMode4Toggled(true);
        } else {
            driver.click(modeButton(mode).constData());
        }
    }
    static QByteArray modeButton(int mode) { return "m_rbMode" + QByteArray::number(mode); }
};

/** Something that a user does on a page. */
using Act = void (*)(Shoot &);

struct Entry {
    const char *box;
    int value;
};

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(FakePhoto::Reading)
Q_DECLARE_METATYPE(QVector<Entry>)

/** What only the page for Gigapan photos does. */
class TestUIWPGigapan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void newPageShowsTheFreshGrid();

    void choosingPhotosGuessesTheGrid_data();
    void choosingPhotosGuessesTheGrid();
    void gridIsGuessedBeforeThePhotosAreRead();
    void newPhotosWhileOthersAreReadGiveANewGrid();
    void choosingPhotosForgetsBracketsAndIgnoredOnes();
    void columnsFollowTheNumbers_data();
    void columnsFollowTheNumbers();
    void numbersGoToTheGenerator();
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

    void nextHandsOverTheGrid();
    void fullTurnLinksTheEnds();
    void randomGridsAreHandedOverAsTheHeadSweepsThem();
    void moreCellsThanPhotosKeepTheirLinks();
    void pairWithoutACheckedButtonKeepsItsField();
    void gridThatDoesNotFitGivesWhatItCan_data();
    void gridThatDoesNotFitGivesWhatItCan();
    void secondNextAppends();

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

void TestUIWPGigapan::newPageShowsTheFreshGrid()
{
    const Shoot shoot;

    QCOMPARE(shoot.grid(), QStringLiteral("4 x 5"));
    QCOMPARE(shoot.page.rows, 4);
    QCOMPARE(shoot.page.columns, 5);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.page.mode, 0);
}

void TestUIWPGigapan::choosingPhotosGuessesTheGrid_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<QString>("grid");
    QTest::newRow("12: 4, 3") << 12 << QStringLiteral("3 x 4");
    QTest::newRow("7: 3, 2, 1, a prime") << 7 << QStringLiteral("1 x 7");
    QTest::newRow("16: 5, 4, a square") << 16 << QStringLiteral("4 x 4");
    QTest::newRow("1") << 1 << QStringLiteral("1 x 1");
    QTest::newRow("2") << 2 << QStringLiteral("1 x 2");
    QTest::newRow("15: 4, 3") << 15 << QStringLiteral("3 x 5");
    QTest::newRow("22: 5, 4, 3, 2") << 22 << QStringLiteral("2 x 11");
    QTest::newRow("2000: 45, 44, 43, 42, 41, 40") << 2000 << QStringLiteral("40 x 50");
}

void TestUIWPGigapan::choosingPhotosGuessesTheGrid()
{
    QFETCH(int, photos);
    QFETCH(QString, grid);
    const Shoot shoot;

    shoot.loadPhotos(photos);

    QCOMPARE(shoot.grid(), grid);
    QCOMPARE(QStringLiteral("%1 x %2").arg(shoot.page.rows).arg(shoot.page.columns), grid);
}

void TestUIWPGigapan::gridIsGuessedBeforeThePhotosAreRead()
{
    const Shoot shoot;

    const HeldPhotos held(shoot.driver, shoot.folder, 15);

    QCOMPARE(shoot.grid(), QStringLiteral("3 x 5"));
}

void TestUIWPGigapan::newPhotosWhileOthersAreReadGiveANewGrid()
{
    const Shoot shoot;
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("new_1.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("new_2.jpg")) };
    const HeldPhotos held(shoot.driver, shoot.folder);

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.grid(), QStringLiteral("1 x 2"));
}

void TestUIWPGigapan::choosingPhotosForgetsBracketsAndIgnoredOnes()
{
    const Shoot shoot;
    shoot.loadPhotos(13);
    shoot.enter(kIgnored, 1);
    shoot.enter(kBracket, 2);
    shoot.enter(kRows, 2);
    shoot.driver.click("m_rbMode3");

    shoot.loadPhotos(16);

    QCOMPARE(shoot.grid(), QStringLiteral("4 x 4"));
    QCOMPARE(shoot.page.m_sbIgnore->value(), 0);
    QCOMPARE(shoot.page.m_sbBracket->value(), 1);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ 3 });
    QCOMPARE(shoot.page.mode, 3);
}

void TestUIWPGigapan::columnsFollowTheNumbers_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<QVector<Entry>>("entries");
    QTest::addColumn<QString>("grid"); // as shown
    QTest::addColumn<int>("columns"); // as meant; the box shows at least 1
    const auto row = [](const char *name, int photos, const QVector<Entry> &entries,
                        const char *grid, int columns) {
        QTest::newRow(name) << photos << entries << QString::fromLatin1(grid) << columns;
    };
    // (12 - 0) / 3 / 3 = 1 in the three rows guessed, 12 / 3 / 2 = 2
    row("12 photos in threes", 12, { { kBracket, 3 } }, "3 x 1", 1);
    row("12 photos in threes, 2 rows", 12, { { kBracket, 3 }, { kRows, 2 } }, "2 x 2", 2);
    // (13 - 1) / 2 / 2 = 3
    row("13 photos, the first ignored, in pairs, 2 rows", 13,
        { { kIgnored, 1 }, { kBracket, 2 }, { kRows, 2 } }, "2 x 3", 3);
    row("the same, entered in another order", 13,
        { { kRows, 2 }, { kBracket, 2 }, { kIgnored, 1 } }, "2 x 3", 3);
    // 7 / 2 = 3, one photo is left over
    row("rows do not divide the photos", 7, { { kRows, 2 } }, "2 x 3", 3);
    row("more rows than photos", 7, { { kRows, 8 } }, "8 x 1", 0);
    row("as many rows as there can be", 7, { { kRows, 100000 } }, "100000 x 1", 0);
    row("more photos in a bracket than there are", 7, { { kBracket, 8 } }, "1 x 1", 0);
    // 7 - 9 = -2
    row("more photos ignored than there are", 7, { { kIgnored, 9 } }, "1 x 1", -2);
    // (7 - 8) / 1 / 2 = 0, truncated towards zero
    row("one photo more ignored than there are, 2 rows", 7, { { kIgnored, 8 }, { kRows, 2 } },
        "2 x 1", 0);
    row("all photos ignored", 7, { { kIgnored, 7 } }, "1 x 1", 0);
    row("no photos: the fresh columns go with the first entry", 0, { { kRows, 2 } }, "2 x 1", 0);
}

void TestUIWPGigapan::columnsFollowTheNumbers()
{
    QFETCH(int, photos);
    QFETCH(QVector<Entry>, entries);
    QFETCH(QString, grid);
    QFETCH(int, columns);
    const Shoot shoot;
    if (photos > 0) {
        shoot.loadPhotos(photos);
    }

    for (const Entry &entry : qAsConst(entries)) {
        shoot.enter(entry.box, entry.value);
    }

    QCOMPARE(shoot.grid(), grid);
    QCOMPARE(shoot.page.columns, columns);
}

void TestUIWPGigapan::numbersGoToTheGenerator()
{
    const Shoot shoot;
    shoot.loadPhotos(30);

    shoot.enter(kRows, 2);
    shoot.enter(kIgnored, 3);
    shoot.enter(kBracket, 4);

    QCOMPARE(shoot.page.rows, 2);
    QCOMPARE(shoot.page.ignoredCount, 3);
    QCOMPARE(shoot.page.bracketCount, 4);
    QCOMPARE(shoot.page.columns, 3); // (30 - 3) / 4 = 6, 6 / 2
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
    const Shoot shoot;
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
    const Shoot shoot;
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
    Shoot shoot;
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
    const Shoot shoot;
    shoot.loadPhotos(12);
    shoot.driver.click(Shoot::modeButton(before).constData());
    QCOMPARE(shoot.page.mode, before);

    shoot.driver.click(Shoot::modeButton(mode).constData());

    QCOMPARE(shoot.driver.text(Shoot::modeButton(mode).constData()),
             QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(shoot.page.mode, mode);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ mode });
    QCOMPARE(shoot.grid(), QStringLiteral("3 x 4"));
    shoot.page.m_hSlider->setValue(20);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ mode });
}

void TestUIWPGigapan::uncheckingAModeChangesNothing()
{
    Shoot shoot;
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
    Shoot shoot;
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
    row("rows", 1, [](Shoot &shoot) { shoot.enter(kRows, 2); });
    row("ignored", 1, [](Shoot &shoot) { shoot.enter(kIgnored, 1); });
    row("bracket", 1, [](Shoot &shoot) { shoot.enter(kBracket, 3); });
    row("zoom", 1, [](Shoot &shoot) { shoot.page.m_hSlider->setValue(20); });
    row("mode", 1, [](Shoot &shoot) { shoot.driver.click("m_rbMode2"); });
    row("mode without a button", 1, [](Shoot &shoot) { shoot.page.OnMode4Toggled(true); });
    // The thread tells that it is empty, then the page shows its fresh state.
    row("reset", 2, [](Shoot &shoot) { shoot.driver.click("m_pbReset"); });
    // The names, then the tenth and the last photo.
    row("photos", 3, [](Shoot &shoot) { shoot.loadPhotos(12); });
    row("nothing chosen", 0, [](Shoot &shoot) { shoot.driver.cancelFiles(kSelectPhotos); });
    row("option", 0, [](Shoot &shoot) { shoot.driver.click("m_cbIS360"); });
    row("linking", 0, [](Shoot &shoot) { shoot.driver.click("m_rbLevelLinking1"); });
    row("going back", 0, [](Shoot &shoot) { shoot.page.cleanupPage(); });
}

// An update that called the slots of the boxes it writes would cause further ones.
void TestUIWPGigapan::everyActionUpdatesThePageOnce()
{
    QFETCH(Act, act);
    QFETCH(int, updates);
    Shoot shoot;
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
    Shoot shoot;
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
    Shoot shoot;
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

void TestUIWPGigapan::nextHandsOverTheGrid()
{
    Shoot shoot;
    shoot.loadPhotos(14);
    shoot.enter(kIgnored, 2);
    shoot.enter(kBracket, 3);
    shoot.enter(kRows, 2);
    shoot.driver.click("m_rbMode2");
    shoot.page.m_dsbOverlapping->stepBy(-3);

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.gridMode, 2);
    QCOMPARE(handed.gridRows, 2);
    QCOMPARE(handed.gridBracketCount, 3);
    QCOMPARE(handed.overlap, 25.0);
    QVERIFY(handed.useRecordedLocation); // there is no box for it
    QCOMPARE(handed.imageGroups.size(), 4);
    QCOMPARE(namesOf(handed.imageGroups[0]),
             list({ "IMG_0003.jpg", "IMG_0004.jpg", "IMG_0005.jpg" }));
    QCOMPARE(namesOf(handed.imageGroups[3]),
             list({ "IMG_0012.jpg", "IMG_0013.jpg", "IMG_0014.jpg" }));
    QCOMPARE(handed.imageGroups[0][0], shoot.folder.path(QStringLiteral("IMG_0003.jpg")));
    // From the bottom upwards, left to right: the upper left cell is the third one.
    QCOMPARE(handed.authorizedLinks.first().linkType, 1);
    QCOMPARE(handed.authorizedLinks.first().indices, (QVector<qint32>{ 2, 0 }));
}

void TestUIWPGigapan::fullTurnLinksTheEnds()
{
    Shoot shoot;
    shoot.loadPhotos(4);
    QVERIFY(shoot.page.validatePage());
    shoot.page.authorizedLinks.clear();

    shoot.driver.click("m_cbIS360");
    QVERIFY(shoot.page.validatePage());

    // In 2 x 2 cells two links down, two across and two diagonally; a full turn adds one across and
    // one of each diagonal per row or pair of rows: 2 + 2.
    QCOMPARE(fakeHost().descriptions.first().authorizedLinks.size(), 6);
    QCOMPARE(fakeHost().descriptions.last().authorizedLinks.size(), 10);
}

void TestUIWPGigapan::randomGridsAreHandedOverAsTheHeadSweepsThem()
{
    std::mt19937 random(42); // seeded: a failure can be repeated
    const auto upTo
        = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int run = 0; run < 60; ++run) {
        const int photoCount = 1 + upTo(60);
        const int rows = 1 + upTo(5);
        const int bracket = 1 + upTo(3);
        const int ignored = upTo(5);
        const int mode = upTo(4);
        const bool is360 = upTo(1) == 1;
        Shoot shoot;
        const QStringList photos = shoot.folder.addPhotos(photoCount);
        shoot.driver.load(kSelectPhotos, photos);
        shoot.page.m_sbRow->setValue(rows);
        shoot.page.m_sbBracket->setValue(bracket);
        shoot.page.m_sbIgnore->setValue(ignored);
        shoot.choose(mode);
        shoot.page.m_cbIS360->setChecked(is360);

        QVERIFY(shoot.page.validatePage());

        const StructuredPanoramaProperties &handed = fakeHost().descriptions.last();
        const int columns = qMax(photoCount - ignored, 0) / bracket / rows;
        QVector<QStringList> stacks;
        for (int cell = 0; cell < rows * columns; ++cell) {
            stacks.append(photos.mid(ignored + cell * bracket, bracket));
        }
        QCOMPARE(handed.imageGroups, stacks);
        QCOMPARE(LiteralGrid::linksOf(handed), LiteralGrid::neighbours(mode, rows, columns, is360));
        QCOMPARE(handed.gridMode, mode);
        QCOMPARE(handed.gridRows, rows);
        QCOMPARE(handed.gridBracketCount, bracket);
        QCOMPARE(handed.gridWrap360, is360);
    }
}

void TestUIWPGigapan::moreCellsThanPhotosKeepTheirLinks()
{
    for (int mode = 0; mode <= 4; ++mode) {
        Shoot shoot;
        shoot.loadPhotos(7);
        shoot.enter(kBracket, 2);
        shoot.enter(kRows, 3);
        shoot.choose(mode);
        shoot.page.columns = 4; // no entry leads to more cells than photos

        QVERIFY(shoot.page.validatePage());

        const StructuredPanoramaProperties &handed = fakeHost().descriptions.last();
        QCOMPARE(handed.imageGroups.size(), 4); // the last one of what is there
        QCOMPARE(namesOf(handed.imageGroups.last()), list({ "IMG_0007.jpg" }));
        QCOMPARE(LiteralGrid::linksOf(handed), LiteralGrid::neighbours(mode, 3, 4, false));
    }
}

void TestUIWPGigapan::pairWithoutACheckedButtonKeepsItsField()
{
    Shoot shoot;
    shoot.page.levelLinking = 7;
    shoot.page.stackLinking = 8;
    shoot.page.m_rbLevelLinking0->setAutoExclusive(false);
    shoot.page.m_rbLevelLinking0->setChecked(false);
    shoot.page.buttonGroup->setExclusive(false);
    shoot.page.m_rbStackLinking0->setChecked(false);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.first().levelLinking, 7);
    QCOMPARE(fakeHost().descriptions.first().stackLinking, 8);
}

void TestUIWPGigapan::gridThatDoesNotFitGivesWhatItCan_data()
{
    QTest::addColumn<QVector<Entry>>("entries");
    QTest::addColumn<int>("stacks"); // of 7 photos
    QTest::addColumn<int>("links");
    const auto row = [](const char *name, const QVector<Entry> &entries, int stacks, int links) {
        QTest::newRow(name) << entries << stacks << links;
    };
    // 2 x 3 cells: 3 links down, 4 across, 4 diagonally; the seventh photo is in none of them
    row("rows that do not divide the photos", { { kRows, 2 } }, 6, 11);
    row("more rows than photos", { { kRows, 8 } }, 0, 0);
    row("as many rows as there can be", { { kRows, 100000 } }, 0, 0);
    row("more photos ignored than there are", { { kIgnored, 99 } }, 0, 0);
    row("more photos in a bracket than there are", { { kBracket, 99 } }, 0, 0);
    row("all of it", { { kRows, 100000 }, { kIgnored, 99 }, { kBracket, 99 } }, 0, 0);
    // 7 / 4 = 1 column of one row
    row("last photos do not fill a bracket", { { kBracket, 4 } }, 1, 0);
}

void TestUIWPGigapan::gridThatDoesNotFitGivesWhatItCan()
{
    QFETCH(QVector<Entry>, entries);
    QFETCH(int, stacks);
    QFETCH(int, links);
    Shoot shoot;
    shoot.loadPhotos(7);
    for (const Entry &entry : qAsConst(entries)) {
        shoot.enter(entry.box, entry.value);
    }
    QVERIFY(shoot.page.isComplete()); // only the photos count

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), stacks);
    QCOMPARE(fakeHost().descriptions.first().authorizedLinks.size(), links);
}

void TestUIWPGigapan::secondNextAppends()
{
    Shoot shoot;
    shoot.loadPhotos(4);
    QVERIFY(shoot.page.validatePage());
    shoot.enter(kRows, 1);
    shoot.driver.click("m_rbMode3");
    shoot.driver.click("m_cbIS360");

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 2);
    const StructuredPanoramaProperties &first = fakeHost().descriptions.first();
    const StructuredPanoramaProperties &second = fakeHost().descriptions.last();
    QCOMPARE(first.imageGroups.size(), 4);
    QCOMPARE(first.authorizedLinks.size(), 6);
    QCOMPARE(second.imageGroups, first.imageGroups + first.imageGroups);
    QCOMPARE(second.authorizedLinks.size(), 6 + 4); // a ring of four
    QCOMPARE(second.gridRows, 1);
    QCOMPARE(second.gridMode, 3);
    QVERIFY(second.gridWrap360);
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
    const Shoot shoot;
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
    const Shoot shoot;
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
    QCOMPARE(shoot.driver.picture(), Shoot().driver.picture());
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
    Shoot shoot;
    const HeldPhotos held(shoot.driver, shoot.folder, 200);

    shoot.page.cleanupPage();

    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("200 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("10 x 20"));
    // No photo is left: cells of 48 x 48, (20 x 52 + 4) x (10 x 52 + 4) at 50 percent.
    QCOMPARE(shoot.driver.picture().size(), QSize(522, 262));
}

void TestUIWPGigapan::cancelledDialogKeepsTheGrid()
{
    const Shoot shoot;
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
