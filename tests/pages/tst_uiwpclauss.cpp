// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/literallinks.h"
#include "tests/support/pageshoot.h"
#include "ui/xui.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QWizard>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>

namespace
{

constexpr char kScript[] = "m_leConfigFile";

/** One page with the files of one shoot. */
struct Shoot : PageShoot<UIWPClauss> {
    QString writeScript(const QByteArray &script,
                        const QString &name = QStringLiteral("script.txt")) const
    {
        return folder.write(name, script);
    }
    void loadScript(const QByteArray &script) const
    {
        driver.load(kSelectRecord, { writeScript(script) });
    }
    /** Types \p path and ends with the Return key. */
    void enter(const QString &path) const
    {
        driver.type(kScript, path);
        QTest::keyClick(page.m_leConfigFile, Qt::Key_Return);
    }
};

QString notAvailable()
{
    return QStringLiteral("N/A");
}

/** Takes the focus away; the proposals, which would keep it, are closed before. */
void leave(QLineEdit *edit, Qt::FocusReason reason = Qt::TabFocusReason)
{
    edit->completer()->popup()->hide();
    QFocusEvent event(QEvent::FocusOut, reason);
    QApplication::sendEvent(edit, &event);
}

/** Leaves a text that is the same again; without an edit the field may tell nobody. */
void editAndLeave(QLineEdit *edit)
{
    QTest::keyClick(edit, Qt::Key_X);
    QTest::keyClick(edit, Qt::Key_Backspace);
    leave(edit);
}

void checkErrorBox(const DialogClicker &clicker, const QString &path)
{
    QCOMPARE(clicker.messageBoxes().size(), 1);
    const DialogClicker::SeenMessageBox &box = clicker.messageBoxes().first();
    QCOMPARE(box.title, QStringLiteral("Error"));
    QCOMPARE(box.text, QLatin1String("Error parse file:") + path);
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.textFormat, Qt::PlainText);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

} // namespace

/** What only the page for Clauss scripts does. */
class TestUIWPClauss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void scriptIsShownInTheLabels_data();
    void scriptIsShownInTheLabels();
    void pathOfBeforeTheResetIsReadAgain();
    void invertingTwiceRestoresEverything();
    void invertingAnEmptyPageIsHarmless();

    void badScriptShowsOneBox_data();
    void badScriptShowsOneBox();
    void unreadableScriptShowsOneBox_data();
    void unreadableScriptShowsOneBox();
    void badScriptKeepsTheRanges();
    void badScriptOnAFreshPageShowsNotAvailable();
    void fileNameInTheBoxIsShownAsItIs();

    void typedPathIsReadWhenFinished();
    void typedPathIsStoredWhateverTheResult();
    void unchangedPathIsNotReadAgain();
    void emptiedPathIsPutBack();
    void leavingTheFieldReadsThePath();
    void badScriptIsReadAgain_data();
    void badScriptIsReadAgain();
    void boxAppearsOnceForEachReading();
    void boxForAChosenScriptReadsNothingElse();

    void nextHandsOverGroupsAnglesAndLinks();
    void linksAreThoseOfThePlainLoop();
    void identicalDirectionsAlwaysLink();
    void linksFollowTheOrderOfReading();

    void wizardHearsOfATypedPath();

    void lastScriptOfASelectionWins();
    void scriptDialogKeepsThePhotosOrderWanted();
    void photosAloneKeepTheScript();
    void samePhotosFromTheScriptDialogAreNotReadAgain();

    void controlKeyOpensTheScriptsFolder_data();
    void controlKeyOpensTheScriptsFolder();

    void pageMayGoWhileTheBoxIsOpen_data();
    void pageMayGoWhileTheBoxIsOpen();
};

void TestUIWPClauss::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPClauss::scriptIsShownInTheLabels_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("shown"); // count, yaw, pitch
    const auto add = [](const char *name, const QByteArray &script, const char *count,
                        const char *yaw, const char *pitch) {
        QTest::newRow(name) << script
                            << QStringList{ QLatin1String(count), QLatin1String(yaw),
                                            QLatin1String(pitch) };
    };
    add("one row", scriptRow(3), "3", "0,60", "0,0");
    add("one shot", "op_h-angle=-7\nop_v-angle=33\nop_shoot\n", "1", "-7,-7", "33,33");
    add("decimals are cut: wanted", "op_h-angle=12.9\nop_shoot\nop_h-angle=-12.9\nop_shoot\n", "2",
        "-12,12", "0,0");
    add("six significant digits",
        "op_h-angle=1234567\nop_v-angle=-100000\nop_shoot\nop_v-angle=1e-7\nop_shoot\n", "2",
        "1.23457e+06,1.23457e+06", "-100000,1e-07");
    add("no shots: the scan's start as numbers", "op_h-angle=30\n", "N/A",
        "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("empty", "", "N/A", "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("byte order mark", "\xEF\xBB\xBF" + scriptRow(2), "2", "0,30", "0,0");
    add("CR LF", scriptRow(2).replace("\n", "\r\n"), "2", "0,30", "0,0");
    add("NUL between the lines", scriptRow(2) + '\0' + scriptRow(5), "2", "0,30", "0,0");
    add("NUL first", '\0' + scriptRow(2), "N/A", "3.40282e+38,-3.40282e+38",
        "3.40282e+38,-3.40282e+38");
    add("bad number behind a NUL", scriptRow(2) + '\0' + "\nop_h-angle=x\n", "2", "0,30", "0,0");
    add("invalid UTF-8", "\xC3(\xFF\n" + scriptRow(2), "2", "0,30", "0,0");
    add("commands of another head", "op_speed=fast\n" + scriptRow(2) + "OP_SHOOT\n op_shoot\n", "2",
        "0,30", "0,0");
}

void TestUIWPClauss::scriptIsShownInTheLabels()
{
    QFETCH(QByteArray, script);
    QFETCH(QStringList, shown);
    const Shoot shoot;

    shoot.loadScript(script);

    QCOMPARE(shoot.driver.text(kScript), shoot.folder.path(QStringLiteral("script.txt")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), shown[0]);
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), shown[1]);
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), shown[2]);
    QCOMPARE(fakeHost().setLastPaths,
             QStringList{ shoot.folder.path(QStringLiteral("script.txt")) });
}

void TestUIWPClauss::pathOfBeforeTheResetIsReadAgain()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(scriptRow(2));
    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2) << script);
    shoot.driver.click("m_pbReset");

    shoot.enter(script);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QVERIFY(!shoot.page.isComplete()); // no old photo counts
}

void TestUIWPClauss::invertingTwiceRestoresEverything()
{
    const Shoot shoot;
    shoot.loadScript("op_v-angle=-30\nop_shoot\nop_h-angle=40\nop_v-angle=60\nop_shoot\n");
    const QImage picture = shoot.driver.picture();
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60"));

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ 30.0F, -60.0F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-60,30"));
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,40"));
    QVERIFY(shoot.driver.picture() != picture);

    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(pitchesOf(shoot.page.shots), (QVector<float>{ -30.0F, 60.0F }));
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("-30,60"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestUIWPClauss::invertingAnEmptyPageIsHarmless()
{
    const Shoot shoot;
    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), notAvailable());

    shoot.loadScript(QByteArray());
    shoot.driver.click("m_pInverseCoordinates");
    QCOMPARE(shoot.driver.text("m_lbPhiMinMax"), QStringLiteral("3.40282e+38,-3.40282e+38"));
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPClauss::badScriptShowsOneBox_data()
{
    QTest::addColumn<QByteArray>("script");
    for (const char *value : { "abc", "", "nan", "inf", "-inf", "1e39", "--5", "+5", "0x10" }) {
        QTest::addRow("angle \"%s\"", value) << QByteArray("op_h-angle=") + value + "\nop_shoot\n";
    }
    QTest::newRow("no equals sign") << QByteArray("op_h-angle 30\nop_shoot\n");
    QTest::newRow("many bad numbers") << QByteArray("op_h-angle=x\nop_v-angle=y\n").repeated(100);
    QTest::newRow("CR only") << scriptRow(2).replace("\n", "\r");
}

void TestUIWPClauss::badScriptShowsOneBox()
{
    QFETCH(QByteArray, script);
    const Shoot shoot;
    const QString path = shoot.writeScript(script);
    DialogClicker clicker;
    clicker.chooseFiles({ path });
    clicker.pressButton(QMessageBox::Ok);

    shoot.driver.click(kSelectRecord);

    QVERIFY(clicker.isSettled());
    checkErrorBox(clicker, path);
    QCOMPARE(shoot.driver.text(kScript), path);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page.isComplete());
}

void TestUIWPClauss::unreadableScriptShowsOneBox_data()
{
    QTest::addColumn<QString>("path"); // FOLDER stands for an existing folder
    for (const char *path : { "FOLDER/missing.txt", "FOLDER", "/dev/zero", "/dev/null",
                              "FOLDER/pipe", "FOLDER/hundred megabytes", " " }) {
        QTest::newRow(path) << QString::fromLatin1(path);
    }
}

void TestUIWPClauss::unreadableScriptShowsOneBox()
{
    QFETCH(QString, path);
    const Shoot shoot;
    const TrapPipe pipe(shoot.folder.path(QStringLiteral("pipe")));
    QFile large(shoot.writeScript("op_shoot\n", QStringLiteral("hundred megabytes")));
    QVERIFY(large.resize(100'000'000)); // of a line of NUL
    shoot.loadScript(scriptRow(3));
    path.replace(QLatin1String("FOLDER"), shoot.folder.path());
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    shoot.enter(path);

    QVERIFY(clicker.isSettled());
    checkErrorBox(clicker, path);
    QCOMPARE(shoot.driver.text(kScript), path);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,60"));
    QVERIFY(shoot.page.shots.isEmpty());
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPClauss::badScriptKeepsTheRanges()
{
    const Shoot shoot;
    shoot.loadScript(scriptRow(3));
    shoot.loadPhotos(3);
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    shoot.enter(shoot.writeScript("op_shoot\nop_h-angle=x\nop_shoot\nop_shoot\n",
                                  QStringLiteral("bad.txt")));

    QVERIFY(clicker.isSettled());
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,60"));
    QCOMPARE(shoot.page.shots.size(), 3); // those of the bad script, which the page does not show
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page.isComplete());
}

void TestUIWPClauss::badScriptOnAFreshPageShowsNotAvailable()
{
    const Shoot shoot;
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    shoot.enter(shoot.folder.path(QStringLiteral("missing.txt")));

    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax" }) {
        QCOMPARE(shoot.driver.text(name), notAvailable());
    }
}

void TestUIWPClauss::fileNameInTheBoxIsShownAsItIs()
{
    const Shoot shoot;
    const QString trap = shoot.folder.path(QStringLiteral("pipe"));
    const TrapPipe pipe(trap);
    const QString path = QStringLiteral("%1 <h1>Your licence has expired</h1> <img src='%2'> %1")
                             .arg(QStringLiteral("%1"), trap);
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    shoot.enter(path);

    QVERIFY(clicker.isSettled());
    checkErrorBox(clicker, path);
    QVERIFY(!pipe.wasOpened());
}

void TestUIWPClauss::typedPathIsReadWhenFinished()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(scriptRow(5));

    shoot.driver.type(kScript, script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Return);

    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    // It counts as the current file.
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).fileName, QStringLiteral("script.txt"));
}

void TestUIWPClauss::typedPathIsStoredWhateverTheResult()
{
    const Shoot shoot;
    shoot.loadScript(scriptRow(2));
    const QString missing = shoot.folder.path(QStringLiteral("missing.txt"));
    {
        DialogClicker clicker;
        clicker.pressButton(QMessageBox::Ok);
        shoot.enter(missing);
        QVERIFY(clicker.isSettled());
        checkErrorBox(clicker, missing);
    }

    QCOMPARE(shoot.driver.text(kScript), missing);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).fileName, QStringLiteral("missing.txt"));
}

void TestUIWPClauss::unchangedPathIsNotReadAgain()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(scriptRow(2));
    shoot.enter(script);
    shoot.driver.click("m_pInverseCoordinates");
    shoot.writeScript(scriptRow(4));

    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Return);
    shoot.enter(script);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    // Choosing it in the dialog reads it again.
    shoot.driver.load(kSelectRecord, { script });
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("4"));
}

void TestUIWPClauss::emptiedPathIsPutBack()
{
    const Shoot shoot;
    shoot.loadScript(scriptRow(2));
    const DialogClicker clicker;

    shoot.page.m_leConfigFile->selectAll();
    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Delete);
    QCOMPARE(shoot.driver.text(kScript), QString());
    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Return);

    QCOMPARE(shoot.driver.text(kScript), shoot.folder.path(QStringLiteral("script.txt")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QVERIFY(clicker.messageBoxes().isEmpty());
}

void TestUIWPClauss::leavingTheFieldReadsThePath()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(scriptRow(5));
    shoot.driver.type(kScript, script);

    leave(shoot.page.m_leConfigFile);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
}

void TestUIWPClauss::badScriptIsReadAgain_data()
{
    QTest::addColumn<bool>("typed"); // else chosen in the dialog
    QTest::addColumn<bool>("left"); // else ended with the Return key
    QTest::newRow("typed, Return") << true << false;
    QTest::newRow("typed, left") << true << true;
    QTest::newRow("chosen, Return") << false << false;
}

void TestUIWPClauss::badScriptIsReadAgain()
{
    QFETCH(bool, typed);
    QFETCH(bool, left);
    const Shoot shoot;
    const QString script = shoot.writeScript("op_h-angle=x\nop_shoot\n");
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);
    if (typed) {
        shoot.enter(script);
    } else {
        clicker.chooseFiles({ script });
        shoot.driver.click(kSelectRecord);
    }
    checkErrorBox(clicker, script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());

    shoot.writeScript(scriptRow(4)); // mended
    if (left) {
        editAndLeave(shoot.page.m_leConfigFile);
    } else {
        QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Return);
    }

    QVERIFY(clicker.isSettled());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("4"));
}

void TestUIWPClauss::boxAppearsOnceForEachReading()
{
    const Shoot shoot;
    const QString missing = shoot.folder.path(QStringLiteral("missing.txt"));
    const auto read = [&shoot, &missing](const std::function<void()> &finishEditing) {
        DialogClicker clicker;
        clicker.pressButton(QMessageBox::Ok);
        // The box takes the focus, and the edit reports once more while the box is open.
        clicker.beforeNextAnswer(
            [&shoot] { leave(shoot.page.m_leConfigFile, Qt::ActiveWindowFocusReason); });

        finishEditing();

        QVERIFY(clicker.isSettled());
        checkErrorBox(clicker, missing);
    };
    read([&] { shoot.enter(missing); });
    read([&] { QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Return); });
    read([&] { editAndLeave(shoot.page.m_leConfigFile); });
}

void TestUIWPClauss::boxForAChosenScriptReadsNothingElse()
{
    const Shoot shoot;
    const QString bad = shoot.writeScript("op_h-angle=x\n", QStringLiteral("bad.txt"));
    const QString typed = shoot.writeScript(scriptRow(2));
    DialogClicker clicker;
    clicker.chooseFiles({ bad });
    clicker.pressButton(QMessageBox::Ok);
    clicker.beforeNextAnswer([&] {
        // What stands in the field while the box comes is not what the page is reading.
        shoot.page.m_leConfigFile->setText(typed);
        clicker.beforeNextAnswer(
            [&shoot] { leave(shoot.page.m_leConfigFile, Qt::ActiveWindowFocusReason); });
    });

    shoot.driver.click(kSelectRecord);

    QVERIFY(clicker.isSettled());
    checkErrorBox(clicker, bad);
    QCOMPARE(shoot.driver.text(kScript), bad);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), notAvailable());
}

void TestUIWPClauss::nextHandsOverGroupsAnglesAndLinks()
{
    Shoot shoot;
    shoot.loadScript("op_v-angle=90\nop_h-angle=180\nop_shoot\nop_v-angle=0\nop_shoot\n"
                     "op_h-angle=150\nop_shoot\n");
    const QStringList photos = shoot.folder.addPhotos(3);
    shoot.driver.load(kSelectPhotos, photos);

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.imageGroups,
             (QVector<QStringList>{ { photos[0] }, { photos[1] }, { photos[2] } }));
    // 180 degrees = 3.14159265, 150 degrees = 2.61799388, 90 degrees = 1.57079633
    QCOMPARE(handed.yaw, (QVector<float>{ 3.14159265F, 3.14159265F, 2.61799388F }));
    QCOMPARE(handed.pitch, (QVector<float>{ 1.57079633F, 0.0F, 0.0F }));
    QCOMPARE(handed.lensModel, LensModel::NotChosen); // left to the photos
    QCOMPARE(handed.focalLength, 0.0F);
    QVERIFY(handed.roll.isEmpty());
    QCOMPARE(LiteralLinks::text(handed.authorizedLinks),
             QStringLiteral("0:1-2")); // 30 degrees at 24 mm; 90 are too many
}

void TestUIWPClauss::linksAreThoseOfThePlainLoop()
{
    std::mt19937 random(63); // seeded: a failure can be repeated
    const auto between = [&random](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    const QVector<float> lenses{
        0.0F, 8.0F, 24.0F, 50.0F, 200.0F, 600.0F, std::numeric_limits<float>::quiet_NaN()
    };
    int linked = 0;
    for (int run = 0; run < 20; ++run) {
        Shoot shoot;
        QByteArray script;
        QStringList files;
        QVector<PanoHead::PhotoDirection> photos;
        for (int i = 0; i < 40; ++i) {
            PanoHead::PhotoDirection photo{ static_cast<float>(10 * between(-18, 54)),
                                            static_cast<float>(10 * between(-9, 9)),
                                            lenses.at(between(0, lenses.size() - 1)) };
            if (i > 0 && between(0, 5) == 0) { // several photos of one position
                photo.yawDegrees = photos.last().yawDegrees;
                photo.pitchDegrees = photos.last().pitchDegrees;
            }
            script += "op_h-angle=" + QByteArray::number(static_cast<int>(photo.yawDegrees))
                + "\nop_v-angle=" + QByteArray::number(static_cast<int>(photo.pitchDegrees))
                + "\nop_shoot\n";
            files.append(
                shoot.folder.addPhoto(QStringLiteral("%1.jpg").arg(i, 2, 10, QLatin1Char('0')),
                                      photoWith(photo.focalMm)));
            photos.append(photo);
        }
        shoot.driver.load(kSelectRecord, files << shoot.writeScript(script));

        QVERIFY(shoot.page.validatePage());

        const QVector<AuthorizedLink> &links = fakeHost().descriptions.last().authorizedLinks;
        QCOMPARE(LiteralLinks::difference(links, LiteralLinks::close(photos)), QString());
        linked += links.size();
    }
    QVERIFY(linked > 0);
}

void TestUIWPClauss::identicalDirectionsAlwaysLink()
{
    Shoot shoot;
    // Where rounding takes the cosine of a direction with itself above 1.
    shoot.loadScript("op_h-angle=1\nop_v-angle=17\nop_shoot\nop_shoot\nop_shoot\n"
                     "op_h-angle=361\nop_shoot\n");
    shoot.loadPhotos(4, photoWith(600.0F));

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(LiteralLinks::text(fakeHost().descriptions.first().authorizedLinks),
             QStringLiteral("0:0-1 0:0-2 0:0-3 0:1-2 0:1-3 0:2-3"));
}

void TestUIWPClauss::linksFollowTheOrderOfReading()
{
    Shoot shoot;
    shoot.loadScript(scriptRow(3));
    // The wide lens belongs to the first photo, although it was taken last.
    FakePhoto wide = photoWith(24.0F);
    wide.shotTime = 9;
    QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg"), wide) };
    for (const char *name : { "b.jpg", "c.jpg" }) {
        photos.append(shoot.folder.addPhoto(QString::fromLatin1(name), photoWith(200.0F)));
    }
    shoot.driver.load(kSelectPhotos, photos);

    QVERIFY(shoot.page.validatePage());

    // 0 - 60 degrees: 0.7330 is just below 0.7338.
    QCOMPARE(LiteralLinks::text(fakeHost().descriptions.first().authorizedLinks),
             QStringLiteral("0:0-1 0:0-2"));
}

void TestUIWPClauss::wizardHearsOfATypedPath()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPClauss(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const PageDriver driver(page);
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    driver.load(kSelectPhotos, folder.addPhotos(2));
    driver.load(kSelectRecord, { folder.write(QStringLiteral("more.txt"), scriptRow(3)) });
    QVERIFY(!next->isEnabled());

    driver.type(kScript, folder.write(QStringLiteral("fitting.txt"), scriptRow(2)));
    leave(page->m_leConfigFile);

    QVERIFY(next->isEnabled());
}

void TestUIWPClauss::lastScriptOfASelectionWins()
{
    const Shoot shoot;
    const QString noEnding = shoot.folder.addPhoto(QStringLiteral("notatxt"));

    shoot.driver.load(kSelectRecord,
                      { shoot.writeScript(scriptRow(4), QStringLiteral("z.txt")), noEnding,
                        shoot.writeScript(scriptRow(2), QStringLiteral("a.Txt")) });

    QCOMPARE(shoot.driver.text(kScript), shoot.folder.path(QStringLiteral("a.Txt")));
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"notatxt\"; "));
}

void TestUIWPClauss::scriptDialogKeepsThePhotosOrderWanted()
{
    const Shoot shoot;
    QStringList files;
    for (const char *name : { "c.jpg", "a.jpg", "B.jpg" }) {
        files.append(shoot.folder.addPhoto(QString::fromLatin1(name)));
    }

    shoot.driver.load(kSelectRecord, files);

    QCOMPARE(fakeHost().readFiles(), files);
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"c.jpg\"; \"a.jpg\"; \"B.jpg\"; "));
}

void TestUIWPClauss::photosAloneKeepTheScript()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(scriptRow(2));
    shoot.driver.load(kSelectRecord, { script });
    shoot.writeScript(scriptRow(4));

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2));

    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2")); // not read again
    QCOMPARE(fakeHost().setLastPaths, (QStringList{ script, script }));
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPClauss::samePhotosFromTheScriptDialogAreNotReadAgain()
{
    const Shoot shoot;
    QStringList photos = shoot.folder.addPhotos(3);
    shoot.driver.load(kSelectRecord, photos);
    shoot.driver.load(kSelectRecord, QStringList(photos) << shoot.writeScript(scriptRow(3)));
    QCOMPARE(fakeHost().readFiles().size(), 3);
    QVERIFY(shoot.page.isComplete());

    // In another order they are another choice.
    std::reverse(photos.begin(), photos.end());
    shoot.driver.load(kSelectRecord, photos);
    QCOMPARE(fakeHost().readFiles().mid(3), photos);
    shoot.loadPhotos(3);
    QCOMPARE(fakeHost().readFiles().size(), 9);
}

void TestUIWPClauss::controlKeyOpensTheScriptsFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("shoot");
    QTest::newRow("URL syntax") << QStringLiteral("shoot #1? 50%41");
    QTest::newRow("umlauts") << QString::fromUtf8("Höhe über Zürich");
}

void TestUIWPClauss::controlKeyOpensTheScriptsFolder()
{
    QFETCH(QString, folder);
    const Shoot shoot;
    const QString script = shoot.writeScript(scriptRow(1), folder + QLatin1String("/a.txt"));
    shoot.driver.load(kSelectRecord, { script });
    const DesktopCatcher desktop;

    shoot.driver.click(kSelectRecord, Qt::ControlModifier);

    QCOMPARE(desktop.urls().size(), 1);
    QCOMPARE(desktop.urls().first().toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(fakeHost().setLastPaths, QStringList{ script });
}

void TestUIWPClauss::pageMayGoWhileTheBoxIsOpen_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "chosen", "typed", "asked for" }) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestUIWPClauss::pageMayGoWhileTheBoxIsOpen()
{
    QFETCH(QString, way);
    const ShootFolder folder;
    const QString bad = folder.write(QStringLiteral("bad.txt"), "op_h-angle=x\n");
    QPointer<UIWPClauss> page = new UIWPClauss(nullptr);
    const PageDriver driver(page);
    DialogClicker clicker;
    const auto deletePage = [&page] { delete page.data(); };

    if (way == QLatin1String("chosen")) {
        clicker.chooseFiles(folder.addPhotos(2) << bad);
        clicker.beforeNextAnswer([&clicker, deletePage] { clicker.beforeNextAnswer(deletePage); });
        driver.click(kSelectRecord);
    } else if (way == QLatin1String("asked for")) {
        clicker.beforeNextAnswer(deletePage);
        page->ParseConfigFile(bad);
    } else {
        clicker.beforeNextAnswer(deletePage);
        // Not by leaving the field: no edit survives in Qt when it is deleted in its own signal.
        page->m_leConfigFile->setText(bad);
        page->SetConfigFFilename();
    }

    QVERIFY(page.isNull());
    QCOMPARE(clicker.messageBoxes().size(), 1);
    QVERIFY(fakeHost().readFiles().isEmpty());
}

TEST_CLASS(TestUIWPClauss, FakeApplication)
#include "tst_uiwpclauss.moc"
