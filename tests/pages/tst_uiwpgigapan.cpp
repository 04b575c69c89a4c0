// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/gate.h"
#include "tests/support/literalgrid.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"
#include "ui/xui.h"

#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QWizard>
#include <QtTest>

#include <chrono>
#include <memory>
#include <random>
#include <thread>

namespace
{

constexpr char kSelectPhotos[] = "m_pbSelectImages";
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

/** While it lives, a host that needs 10 ms for each photo that \c slow() describes. */
class SlowHost
{
public:
    SlowHost()
        : m_dripping([this] {
            while (!m_ends.passWithin(std::chrono::milliseconds(10))) {
                m_leave.open();
            }
        })
    {
    }
    ~SlowHost()
    {
        m_ends.open();
        m_dripping.join();
    }
    SlowHost(const SlowHost &) = delete;
    SlowHost &operator=(const SlowHost &) = delete;

    [[nodiscard]] FakePhoto slow()
    {
        FakePhoto photo;
        photo.enter = &m_enter;
        photo.leave = &m_leave;
        return photo;
    }
    /** Waits until such a photo is in the host's hands. */
    void waitForThePhoto() { m_enter.pass(); }

private:
    Gate m_enter;
    Gate m_leave;
    Gate m_ends;
    std::thread m_dripping;
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

class TestUIWPGigapan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void newPageIsEmpty();
    void photosAreListedByNameAndCounted();
    void twoThousandPhotosAreListedWhole();

    void choosingPhotosGuessesTheGrid_data();
    void choosingPhotosGuessesTheGrid();
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

    void allLevelsBringDetectedPoints();
    void hardLinksBringTheReferenceLevel();
    void otherRadioButtonsChangeNothingElse();

    void nextHandsOverACopyWithEveryOption_data();
    void nextHandsOverACopyWithEveryOption();
    void nextHandsOverTheGrid();
    void randomGridsAreHandedOverAsTheHeadSweepsThem();
    void moreCellsThanPhotosKeepTheirLinks();
    void partlyCheckedBoxDoesNotCount();
    void pairWithoutACheckedButtonKeepsItsField();
    void gridThatDoesNotFitGivesWhatItCan_data();
    void gridThatDoesNotFitGivesWhatItCan();
    void secondNextAppends();

    void pageIsCompleteWhenEveryPhotoIsRead_data();
    void pageIsCompleteWhenEveryPhotoIsRead();
    void pageIsIncompleteWhilePhotosAreRead();
    void wizardHearsOfCompleteness();
    void resetShowsAFreshPage();
    void resetLeavesTheUsersChoicesAlone();
    void resetStopsReading();
    void enteringThePageResets();
    void goingBackOnlyStopsReadingWanted();
    void goingForthKeepsTheState();
    void savedStateIsEmpty();

    void dialogAsksAsDescribed();
    void dialogStartsAtTheFirstPhoto();
    void dialogFollowsTheHostsSetting();
    void cancelledDialogChangesNothing();
    void photosAreSortedCaseSensitively();
    void hostLearnsTheFirstPhoto();
    void newPhotosReplaceThoseBeingRead();

    void controlKeyOpensTheFirstPhotoItself_data();
    void controlKeyOpensTheFirstPhotoItself();
    void controlKeyOpensTheLastPathItself();
    void controlKeyOpensNothingWithoutAPlace();
    void browserOpensWhatItIsGiven();

    void pageMayGoWhilePhotosAreRead();
    void pageMayGoWhileTheDialogIsOpen();
};

void TestUIWPGigapan::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPGigapan::newPageIsEmpty()
{
    const Shoot shoot;

    QCOMPARE(shoot.driver.text("m_leImage"), QString());
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("0 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("4 x 5"));
    QCOMPARE(shoot.page.rows, 4);
    QCOMPARE(shoot.page.columns, 5);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.page.mode, 0);
    // Cells of 48 x 48: (5 x 52 + 4) x (4 x 52 + 4) = 264 x 212, at 50 percent.
    QCOMPARE(shoot.driver.picture().size(), QSize(132, 106));
    QVERIFY(!shoot.page.isComplete());
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().descriptions.isEmpty());
}

void TestUIWPGigapan::photosAreListedByNameAndCounted()
{
    const Shoot shoot;
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("b <i>c; d.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("sub/e.tif")) };

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"a.jpg\"; \"b <i>c; d.jpg\"; \"e.tif\"; "));
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("3 images in "));
}

void TestUIWPGigapan::twoThousandPhotosAreListedWhole()
{
    const Shoot shoot;
    QStringList photos;
    QString expected;
    for (int i = 0; i < 2000; ++i) {
        const QString name
            = QStringLiteral("panorama_photo_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        photos.append(shoot.folder.addPhoto(name));
        expected += QLatin1Char('"') + name + QLatin1String("\"; ");
    }

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("2000 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("40 x 50"));
    QCOMPARE(expected.size(), 2000 * 27);
    QVERIFY(shoot.driver.text("m_leImage") == expected);
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

void TestUIWPGigapan::allLevelsBringDetectedPoints()
{
    const Shoot shoot;

    shoot.driver.click("m_rbLevelLinking1");

    QVERIFY(shoot.page.m_rbLevelLinking1->isChecked());
    QVERIFY(!shoot.page.m_rbLevelLinking0->isChecked());
    QVERIFY(shoot.page.m_rbStackLinking1->isChecked());
    QVERIFY(!shoot.page.m_rbStackLinking0->isChecked());
}

void TestUIWPGigapan::hardLinksBringTheReferenceLevel()
{
    const Shoot shoot;
    shoot.driver.click("m_rbLevelLinking1");

    shoot.driver.click("m_rbStackLinking0");

    QVERIFY(shoot.page.m_rbStackLinking0->isChecked());
    QVERIFY(!shoot.page.m_rbStackLinking1->isChecked());
    QVERIFY(shoot.page.m_rbLevelLinking0->isChecked());
    QVERIFY(!shoot.page.m_rbLevelLinking1->isChecked());
}

void TestUIWPGigapan::otherRadioButtonsChangeNothingElse()
{
    const Shoot shoot;

    shoot.driver.click("m_rbStackLinking1");
    QVERIFY(shoot.page.m_rbLevelLinking0->isChecked());
    shoot.driver.click("m_rbLevelLinking1");
    shoot.driver.click("m_rbLevelLinking0");
    QVERIFY(shoot.page.m_rbLevelLinking0->isChecked());
    QVERIFY(shoot.page.m_rbStackLinking1->isChecked());
    QVERIFY(!shoot.page.m_rbStackLinking0->isChecked());
}

void TestUIWPGigapan::nextHandsOverACopyWithEveryOption_data()
{
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QVector<bool>>("flags"); // auto detection, clean, skip, full turn
    QTest::addColumn<int>("levelLinking");
    QTest::addColumn<int>("stackLinking");
    const auto row = [](const char *clicked, const QVector<bool> &flags, int level, int stack) {
        QTest::newRow(*clicked ? clicked : "defaults")
            << QString::fromLatin1(clicked) << flags << level << stack;
    };
    row("", { true, false, false, false }, 0, 0);
    row("m_autoStart", { false, false, false, false }, 0, 0);
    row("m_cleanLink", { true, true, false, false }, 0, 0);
    row("m_noOptim", { true, false, true, false }, 0, 0);
    row("m_cbIS360", { true, false, false, true }, 0, 0);
    row("m_rbStackLinking1", { true, false, false, false }, 0, 1);
    row("m_rbLevelLinking1", { true, false, false, false }, 1, 1);
}

void TestUIWPGigapan::nextHandsOverACopyWithEveryOption()
{
    QFETCH(QString, clicked);
    QFETCH(QVector<bool>, flags);
    QFETCH(int, levelLinking);
    QFETCH(int, stackLinking);
    Shoot shoot;
    shoot.loadPhotos(4);
    if (!clicked.isEmpty()) {
        shoot.driver.click(clicked.toLatin1().constData());
    }

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 1);
    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE((QVector<bool>{ handed.autoDetection, handed.cleanWrongLinks, handed.skipOptimization,
                             handed.gridWrap360 }),
             flags);
    QCOMPARE(handed.levelLinking, levelLinking);
    QCOMPARE(handed.stackLinking, stackLinking);
    QVERIFY(!handed.positionsKnown);
    QVERIFY(!handed.rollKnown);
    QVERIFY(handed.useRecordedLocation); // there is no box for it
    QCOMPARE(handed.overlap, 40.0);
    // In 2 x 2 cells two links down, two across and two diagonally; a full turn adds one across and
    // one of each diagonal per row or pair of rows: 2 + 2.
    QCOMPARE(handed.authorizedLinks.size(), handed.gridWrap360 ? 10 : 6);
    // A copy: what the page does later does not reach it.
    shoot.page.imageGroups.clear();
    QCOMPARE(handed.imageGroups.size(), 4);
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

void TestUIWPGigapan::partlyCheckedBoxDoesNotCount()
{
    Shoot shoot;
    for (QCheckBox *box : { shoot.page.m_autoStart, shoot.page.m_cleanLink, shoot.page.m_noOptim,
                            shoot.page.m_cbIS360 }) {
        box->setTristate(true);
        box->setCheckState(Qt::PartiallyChecked);
    }

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QVERIFY(!handed.autoDetection);
    QVERIFY(!handed.cleanWrongLinks);
    QVERIFY(!handed.skipOptimization);
    QVERIFY(!handed.gridWrap360);
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

void TestUIWPGigapan::pageIsIncompleteWhilePhotosAreRead()
{
    const Shoot shoot;
    Gate enter;
    Gate leave;
    FakePhoto held;
    held.enter = &enter;
    held.leave = &leave;
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("b.jpg"), held) };

    shoot.driver.chooseFiles(kSelectPhotos, photos);
    enter.pass();
    QVERIFY(!shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("2 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("1 x 2"));
    leave.open();
    shoot.driver.waitUntilRead();

    QVERIFY(shoot.page.isComplete());
}

void TestUIWPGigapan::wizardHearsOfCompleteness()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPGigapan(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const PageDriver driver(page);
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    QVERIFY(!next->isEnabled());

    driver.load(kSelectPhotos, folder.addPhotos(12));
    QVERIFY(next->isEnabled());
    driver.click("m_pbReset");
    QVERIFY(!next->isEnabled());
    Gate leave;
    FakePhoto held;
    held.leave = &leave;
    driver.chooseFiles(kSelectPhotos, { folder.addPhoto(QStringLiteral("held.jpg"), held) });
    QVERIFY(!next->isEnabled());
    leave.open();
    driver.waitUntilRead();
    QVERIFY(next->isEnabled());
    FakePhoto broken;
    broken.reading = FakePhoto::Reading::Fails;
    driver.load(kSelectPhotos, { folder.addPhoto(QStringLiteral("broken.jpg"), broken) });
    QVERIFY(!next->isEnabled());
}

void TestUIWPGigapan::resetShowsAFreshPage()
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
    QCOMPARE(shoot.driver.text("m_leImage"), QString());
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("0 images in "));
    QCOMPARE(shoot.driver.picture(), Shoot().driver.picture());
    QVERIFY(!shoot.page.isComplete());
    // The dialog knows no photo of the page's own any more.
    fakeHost().lastPath = QDir::tempPath();
    QCOMPARE(shoot.driver.cancelFiles(kSelectPhotos).directory, QDir::tempPath());
}

void TestUIWPGigapan::resetLeavesTheUsersChoicesAlone()
{
    const Shoot shoot;
    const UIWPGigapan &page = shoot.page;
    shoot.loadPhotos(4);
    for (const char *box : { "m_autoStart", "m_cleanLink", "m_noOptim", "m_cbIS360" }) {
        shoot.driver.click(box);
    }
    shoot.driver.click("m_rbLevelLinking1");
    page.m_dsbOverlapping->setValue(65.5);
    page.m_hSlider->setValue(33);

    shoot.driver.click("m_pbReset");

    QVERIFY(!page.m_autoStart->isChecked());
    QVERIFY(page.m_cleanLink->isChecked());
    QVERIFY(page.m_noOptim->isChecked());
    QVERIFY(page.m_cbIS360->isChecked());
    QVERIFY(page.m_rbLevelLinking1->isChecked());
    QVERIFY(!page.m_rbLevelLinking0->isChecked());
    QVERIFY(page.m_rbStackLinking1->isChecked());
    QVERIFY(!page.m_rbStackLinking0->isChecked());
    QCOMPARE(page.m_dsbOverlapping->value(), 65.5);
    QCOMPARE(page.m_hSlider->value(), 33);
}

void TestUIWPGigapan::resetStopsReading()
{
    SlowHost host;
    const Shoot shoot;
    shoot.driver.chooseFiles(kSelectPhotos, shoot.folder.addPhotos(200, host.slow()));
    host.waitForThePhoto();

    shoot.driver.click("m_pbReset");

    const int begun = fakeHost().readFiles().size();
    QVERIFY(begun < 200);
    shoot.driver.waitUntilRead();
    QCOMPARE(fakeHost().readFiles().size(), begun);
    QCOMPARE(shoot.grid(), QStringLiteral("4 x 5"));
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("0 images in "));
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
    SlowHost host;
    Shoot shoot;
    shoot.driver.chooseFiles(kSelectPhotos, shoot.folder.addPhotos(200, host.slow()));
    host.waitForThePhoto();

    shoot.page.cleanupPage();

    const int begun = fakeHost().readFiles().size();
    QVERIFY(begun < 200);
    shoot.driver.waitUntilRead();
    QCOMPARE(fakeHost().readFiles().size(), begun);
    QVERIFY(!shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("200 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("10 x 20"));
    // No photo is left: cells of 48 x 48, (20 x 52 + 4) x (10 x 52 + 4) at 50 percent.
    QCOMPARE(shoot.driver.picture().size(), QSize(522, 262));
}

void TestUIWPGigapan::goingForthKeepsTheState()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPGigapan(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const PageDriver driver(page);
    driver.load(kSelectPhotos, folder.addPhotos(12));
    const QImage picture = driver.picture();

    QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
    QVERIFY(wizard.currentPage() != page);
    QCOMPARE(fakeHost().descriptions.size(), 1);
    wizard.back();

    QCOMPARE(wizard.currentPage(), page);
    QVERIFY(page->isComplete());
    QCOMPARE(driver.text("m_lbImage"), QStringLiteral("12 images in "));
    QCOMPARE(driver.picture(), picture);
    // The stacks of the first time are still there.
    QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
    QCOMPARE(fakeHost().descriptions.last().imageGroups.size(), 24);
}

void TestUIWPGigapan::savedStateIsEmpty()
{
    Shoot shoot;
    shoot.loadPhotos(4);
    const QImage picture = shoot.driver.picture();

    QCOMPARE(shoot.page.SaveState(), QByteArray());
    const QSignalSpy spy(&shoot.page, &QWizardPage::completeChanged);
    shoot.page.RestoreState(QByteArray("\0\xff any bytes", 12));

    QCOMPARE(spy.count(), 1); // the preview was updated, and nothing else
    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.grid(), QStringLiteral("2 x 2"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestUIWPGigapan::dialogAsksAsDescribed()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.path();

    const DialogClicker::SeenFileDialog dialog = shoot.driver.cancelFiles(kSelectPhotos);

    QCOMPARE(dialog.caption, QStringLiteral("Select images"));
    QCOMPARE(dialog.nameFilters, QStringList{ QStringLiteral("All Files (*.*)") });
    QCOMPARE(dialog.selectedNameFilter, QStringLiteral("All Files (*.*)"));
    QCOMPARE(dialog.fileMode, QFileDialog::ExistingFiles);
    QCOMPARE(dialog.directory, shoot.folder.path());
    QCOMPARE(dialog.fileName, QString());
}

void TestUIWPGigapan::dialogStartsAtTheFirstPhoto()
{
    const Shoot shoot;
    fakeHost().lastPath = QDir::tempPath();
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("card/b.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("card/a.jpg")) };
    QCOMPARE(shoot.driver.chooseFiles(kSelectPhotos, photos).directory, QDir::tempPath());
    shoot.driver.waitUntilRead();

    const DialogClicker::SeenFileDialog dialog = shoot.driver.cancelFiles(kSelectPhotos);

    QCOMPARE(dialog.directory, shoot.folder.path(QStringLiteral("card")));
    QCOMPARE(dialog.fileName, QStringLiteral("a.jpg")); // the first of the sorted photos
}

void TestUIWPGigapan::dialogFollowsTheHostsSetting()
{
    const Shoot shoot;
    QVERIFY(
        shoot.driver.cancelFiles(kSelectPhotos).options.testFlag(QFileDialog::DontUseNativeDialog));

    // This platform has no dialogs of its own, so Qt's come all the same.
    fakeHost().uiSettings.useSystemFileDialog = true;
    QVERIFY(!shoot.driver.cancelFiles(kSelectPhotos)
                 .options.testFlag(QFileDialog::DontUseNativeDialog));
}

void TestUIWPGigapan::cancelledDialogChangesNothing()
{
    const Shoot shoot;
    shoot.loadPhotos(13);
    shoot.enter(kIgnored, 1);
    shoot.enter(kBracket, 2);
    shoot.enter(kRows, 2);
    const QStringList told = fakeHost().setLastPaths;
    const QStringList read = fakeHost().readFiles();
    const QString names = shoot.driver.text("m_leImage");
    const QImage picture = shoot.driver.picture();

    shoot.driver.cancelFiles(kSelectPhotos);
    shoot.driver.waitUntilRead();

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("13 images in "));
    QCOMPARE(shoot.driver.text("m_leImage"), names);
    QCOMPARE(shoot.grid(), QStringLiteral("2 x 3"));
    QCOMPARE(shoot.page.m_sbIgnore->value(), 1);
    QCOMPARE(shoot.page.m_sbBracket->value(), 2);
    QCOMPARE(shoot.driver.picture(), picture);
    QCOMPARE(fakeHost().setLastPaths, told);
    QCOMPARE(fakeHost().readFiles(), read);
}

void TestUIWPGigapan::photosAreSortedCaseSensitively()
{
    const Shoot shoot;
    QStringList files;
    for (const char *name : { "a.jpg", "IMG_9.jpg", "Z.jpg", "IMG_10.jpg" }) {
        files.append(shoot.folder.addPhoto(QString::fromLatin1(name)));
    }

    shoot.driver.load(kSelectPhotos, files);

    QCOMPARE(namesOf(fakeHost().readFiles()),
             list({ "IMG_10.jpg", "IMG_9.jpg", "Z.jpg", "a.jpg" }));
    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"IMG_10.jpg\"; \"IMG_9.jpg\"; \"Z.jpg\"; \"a.jpg\"; "));
}

void TestUIWPGigapan::hostLearnsTheFirstPhoto()
{
    const Shoot shoot;
    const QStringList files{ shoot.folder.addPhoto(QStringLiteral("b.jpg")),
                             shoot.folder.addPhoto(QStringLiteral("a.jpg")) };

    shoot.driver.load(kSelectPhotos, files);

    QCOMPARE(fakeHost().setLastPaths, QStringList{ shoot.folder.path(QStringLiteral("a.jpg")) });
}

void TestUIWPGigapan::newPhotosReplaceThoseBeingRead()
{
    SlowHost host;
    const Shoot shoot;
    QStringList old;
    for (int i = 0; i < 200; ++i) {
        old.append(shoot.folder.addPhoto(QStringLiteral("old_%1.jpg").arg(i), host.slow()));
    }
    shoot.driver.chooseFiles(kSelectPhotos, old);
    host.waitForThePhoto();

    shoot.loadPhotos(2);

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbImage"), QStringLiteral("2 images in "));
    QCOMPARE(shoot.grid(), QStringLiteral("1 x 2"));
    QVERIFY(fakeHost().readFiles().size() < 202);
}

void TestUIWPGigapan::controlKeyOpensTheFirstPhotoItself_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("shoot/a.jpg");
    QTest::newRow("number sign") << QStringLiteral("shoot #1/a#2.jpg");
    QTest::newRow("question mark") << QStringLiteral("which?/a?.jpg");
    QTest::newRow("percent") << QStringLiteral("50%41/a%20.jpg");
    QTest::newRow("umlauts") << QString::fromUtf8("Höhe über Zürich/ä.jpg");
}

void TestUIWPGigapan::controlKeyOpensTheFirstPhotoItself()
{
    QFETCH(QString, name);
    const Shoot shoot;
    const QString second = shoot.folder.addPhoto(
        QString(name).replace(QLatin1String(".jpg"), QLatin1String("_z.jpg")));
    const QString first = shoot.folder.addPhoto(name);
    shoot.driver.load(kSelectPhotos, { second, first });
    QVERIFY(first < second);
    const QStringList told = fakeHost().setLastPaths;
    const QString before = shoot.driver.text("m_leImage");
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QCOMPARE(desktop.urls(), QVector<QUrl>{ QUrl::fromLocalFile(first) });
    QCOMPARE(desktop.urls().first().toLocalFile(), first);
    QVERIFY(clicker.fileDialogs().isEmpty());
    QCOMPARE(shoot.driver.text("m_leImage"), before);
    QVERIFY(shoot.page.isComplete());
    QCOMPARE(fakeHost().setLastPaths, told);
}

void TestUIWPGigapan::controlKeyOpensTheLastPathItself()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.addPhoto(QStringLiteral("before #1/a.jpg"));
    const DesktopCatcher desktop;

    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QCOMPARE(desktop.urls().size(), 1);
    QCOMPARE(desktop.urls().first().toLocalFile(), fakeHost().lastPath);
    QCOMPARE(shoot.grid(), QStringLiteral("4 x 5"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().readFiles().isEmpty());
}

void TestUIWPGigapan::controlKeyOpensNothingWithoutAPlace()
{
    const Shoot shoot;
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QVERIFY(desktop.urls().isEmpty());
    QVERIFY(clicker.fileDialogs().isEmpty());
}

void TestUIWPGigapan::browserOpensWhatItIsGiven()
{
    Shoot shoot;
    const DesktopCatcher desktop;

    shoot.page.BrowserWeb(QStringLiteral("https://example.org/a?b=c#d"));

    QCOMPARE(desktop.urls(), QVector<QUrl>{ QUrl(QStringLiteral("https://example.org/a?b=c#d")) });
}

void TestUIWPGigapan::pageMayGoWhilePhotosAreRead()
{
    SlowHost host;
    auto shoot = std::make_unique<Shoot>();
    const QStringList photos = shoot->folder.addPhotos(200, host.slow());
    shoot->driver.chooseFiles(kSelectPhotos, photos);
    host.waitForThePhoto();

    shoot.reset();

    const int begun = fakeHost().readFiles().size();
    QVERIFY(begun >= 1);
    QVERIFY(begun < 200);
    QCoreApplication::processEvents();
    QCOMPARE(fakeHost().readFiles().size(), begun);
}

void TestUIWPGigapan::pageMayGoWhileTheDialogIsOpen()
{
    QPointer<UIWPGigapan> page = new UIWPGigapan(nullptr);
    const PageDriver driver(page);
    DialogClicker clicker;
    clicker.beforeNextAnswer([&page] { delete page.data(); });

    driver.click(kSelectPhotos);

    QVERIFY(page.isNull());
    QCOMPARE(clicker.fileDialogs().size(), 1);
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().readFiles().isEmpty());
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPGigapan)
#include "tst_uiwpgigapan.moc"
