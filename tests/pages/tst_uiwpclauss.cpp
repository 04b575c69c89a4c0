// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/literallinks.h"
#include "tests/support/pageshoot.h"
#include "ui/xui.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QSignalSpy>
#include <QWizard>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>
#include <random>

namespace
{

constexpr char kScript[] = "m_leConfigFile";

/** A script with \p count shots in one row, 30 degrees apart from yaw 0. */
QByteArray row(int count)
{
    QByteArray script;
    for (int i = 0; i < count; ++i) {
        script += "op_h-angle=" + QByteArray::number(i * 30) + "\nop_shoot\n";
    }
    return script;
}

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

QString linksOf(const StructuredPanoramaProperties &description)
{
    QStringList links;
    for (const AuthorizedLink &link : description.authorizedLinks) {
        links.append(QStringLiteral("%1:%2-%3")
                         .arg(link.linkType)
                         .arg(link.indices.at(0))
                         .arg(link.indices.at(1)));
    }
    return links.join(QLatin1Char(' '));
}

} // namespace

class TestUIWPClauss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void newPageIsEmpty();
    void scriptIsShownInTheLabels_data();
    void scriptIsShownInTheLabels();
    void resetShowsNotAvailableAgain();
    void resetForgetsThePathAndThePhotos();
    void resetLeavesTheUsersChoicesAlone();
    void resetStopsTheReading();
    void photosAreListedByNameAndCounted();
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
    void boxForATypedPathAppearsOnce();

    void nextHandsOverACopyWithEveryOption_data();
    void nextHandsOverACopyWithEveryOption();
    void partlyCheckedBoxDoesNotCount();
    void nextHandsOverGroupsAnglesAndLinks();
    void linksAreThoseOfThePlainLoop();
    void identicalDirectionsAlwaysLink();
    void linksFollowTheOrderOfReading();
    void secondNextAppends();
    void nextWithoutShotsAndPhotosIsHarmless();

    void pageIsCompleteWhenEverythingFits_data();
    void pageIsCompleteWhenEverythingFits();
    void wizardHearsOfCompleteness();
    void actionSignalsCompleteness_data();
    void actionSignalsCompleteness();
    void goingBackResetsWanted();
    void goingBackStopsTheReading();
    void goingForthKeepsTheState();
    void savedStateIsEmpty();

    void dialogsAskAsDescribed_data();
    void dialogsAskAsDescribed();
    void dialogsStartAtTheCurrentFile();
    void scriptAndPhotosMayComeTogether();
    void lastScriptOfASelectionWins();
    void scriptDialogKeepsThePhotosOrderWanted();
    void photoDialogSortsCaseSensitively();
    void photosAloneKeepTheScript();
    void cancelledDialogsChangeNothing();
    void samePhotosFromTheScriptDialogAreNotReadAgain();
    void newPhotosReplaceThoseBeingRead();

    void controlKeyOpensPhotoOrFolder_data();
    void controlKeyOpensPhotoOrFolder();
    void controlKeyOpensTheLastPathItself();
    void controlKeyOpensNothingWithoutAPlace();
    void browserOpensWhatItIsGiven();

    void pageMayGoWhilePhotosAreRead();
    void pageMayGoWhileADialogIsOpen_data();
    void pageMayGoWhileADialogIsOpen();
    void pageMayGoWhileTheBoxIsOpen_data();
    void pageMayGoWhileTheBoxIsOpen();
};

void TestUIWPClauss::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPClauss::newPageIsEmpty()
{
    const Shoot shoot;

    QCOMPARE(shoot.driver.text("m_leConfigFile"), QString());
    QCOMPARE(shoot.driver.text("m_leImage"), QString());
    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" }) {
        QCOMPARE(shoot.driver.text(name), notAvailable());
    }
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page.isComplete());
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().descriptions.isEmpty());
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
    add("one row", row(3), "3", "0,60", "0,0");
    add("one shot", "op_h-angle=-7\nop_v-angle=33\nop_shoot\n", "1", "-7,-7", "33,33");
    add("decimals are cut: wanted", "op_h-angle=12.9\nop_shoot\nop_h-angle=-12.9\nop_shoot\n", "2",
        "-12,12", "0,0");
    add("six significant digits",
        "op_h-angle=1234567\nop_v-angle=-100000\nop_shoot\nop_v-angle=1e-7\nop_shoot\n", "2",
        "1.23457e+06,1.23457e+06", "-100000,1e-07");
    add("no shots: the scan's start as numbers", "op_h-angle=30\n", "N/A",
        "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("empty", "", "N/A", "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("byte order mark", "\xEF\xBB\xBF" + row(2), "2", "0,30", "0,0");
    add("CR LF", row(2).replace("\n", "\r\n"), "2", "0,30", "0,0");
    add("NUL between the lines", row(2) + '\0' + row(5), "2", "0,30", "0,0");
    add("NUL first", '\0' + row(2), "N/A", "3.40282e+38,-3.40282e+38", "3.40282e+38,-3.40282e+38");
    add("bad number behind a NUL", row(2) + '\0' + "\nop_h-angle=x\n", "2", "0,30", "0,0");
    add("invalid UTF-8", "\xC3(\xFF\n" + row(2), "2", "0,30", "0,0");
    add("commands of another head", "op_speed=fast\n" + row(2) + "OP_SHOOT\n op_shoot\n", "2",
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

void TestUIWPClauss::resetShowsNotAvailableAgain()
{
    const Shoot shoot;
    shoot.loadScript(row(3));
    shoot.loadPhotos(3);
    QVERIFY(!shoot.driver.picture().isNull());

    shoot.driver.click("m_pbReset");

    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax", "m_lbImageLog" }) {
        QCOMPARE(shoot.driver.text(name), notAvailable());
    }
    QCOMPARE(shoot.driver.text("m_leImage"), QString());
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(!shoot.page.isComplete());
}

void TestUIWPClauss::resetForgetsThePathAndThePhotos()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(row(2));
    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2) << script);
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("elsewhere"));
    QDir().mkpath(fakeHost().lastPath);

    shoot.driver.click("m_pbReset");

    QCOMPARE(shoot.driver.text(kScript), QString());
    QVERIFY(shoot.page.shots.isEmpty());
    QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).directory, fakeHost().lastPath);
    QCOMPARE(shoot.driver.cancelFiles(kSelectPhotos).directory, fakeHost().lastPath);
    // The same path is read again, and no old photo counts.
    shoot.enter(script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QVERIFY(!shoot.page.isComplete());
}

void TestUIWPClauss::resetLeavesTheUsersChoicesAlone()
{
    const Shoot shoot;
    for (const char *box : { "m_autoStart", "m_cleanLink", "m_noOptim", "m_GridOptim" }) {
        shoot.driver.click(box);
    }
    shoot.page.m_hSlider->setValue(33);

    shoot.driver.click("m_pbReset");

    QVERIFY(!shoot.page.m_autoStart->isChecked());
    QVERIFY(shoot.page.m_cleanLink->isChecked());
    QVERIFY(shoot.page.m_noOptim->isChecked());
    QVERIFY(!shoot.page.m_GridOptim->isChecked());
    QCOMPARE(shoot.page.m_hSlider->value(), 33);
}

void TestUIWPClauss::resetStopsTheReading()
{
    const Shoot shoot;
    Gate enter;
    FakePhoto slow;
    slow.enter = &enter;
    slow.spins = 200;
    shoot.driver.chooseFiles(kSelectPhotos, shoot.folder.addPhotos(200, slow));
    enter.pass();

    shoot.driver.click("m_pbReset");

    const int begun = fakeHost().readFiles().size();
    QVERIFY(begun < 200);
    shoot.driver.waitUntilRead();
    QCOMPARE(fakeHost().readFiles().size(), begun);
    // Nothing of them is left to count.
    shoot.loadScript(QByteArray());
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPClauss::photosAreListedByNameAndCounted()
{
    const Shoot shoot;

    shoot.driver.load(kSelectPhotos,
                      { shoot.folder.addPhoto(QStringLiteral("a.jpg")),
                        shoot.folder.addPhoto(QStringLiteral("b <i>c; d.jpg")),
                        shoot.folder.addPhoto(QStringLiteral("sub/e.tif")) });

    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"a.jpg\"; \"b <i>c; d.jpg\"; \"e.tif\"; "));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("3"));
    QVERIFY(shoot.page.m_leImage->maxLength() > 1'000'000); // every photo of the largest shoots
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
    QTest::newRow("CR only") << row(2).replace("\n", "\r");
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
    shoot.loadScript(row(3));
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
    shoot.loadScript(row(3));
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
    const QString script = shoot.writeScript(row(5));

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
    shoot.loadScript(row(2));
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
    const QString script = shoot.writeScript(row(2));
    shoot.enter(script);
    shoot.driver.click("m_pInverseCoordinates");
    shoot.writeScript(row(4));

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
    shoot.loadScript(row(2));
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
    const QString script = shoot.writeScript(row(5));
    shoot.driver.type(kScript, script);

    leave(shoot.page.m_leConfigFile);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
}

void TestUIWPClauss::boxForATypedPathAppearsOnce()
{
    const Shoot shoot;
    const QString missing = shoot.folder.path(QStringLiteral("missing.txt"));
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);
    // The box takes the focus, and the edit reports once more while the box is open.
    clicker.beforeNextAnswer(
        [&shoot] { leave(shoot.page.m_leConfigFile, Qt::ActiveWindowFocusReason); });

    shoot.enter(missing);
    QTest::keyClick(shoot.page.m_leConfigFile, Qt::Key_Return);
    leave(shoot.page.m_leConfigFile);

    QVERIFY(clicker.isSettled());
    checkErrorBox(clicker, missing);
}

void TestUIWPClauss::nextHandsOverACopyWithEveryOption_data()
{
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QVector<bool>>("flags"); // auto detection, clean, skip, recorded location
    const auto add = [](const char *clicked, const QVector<bool> &flags) {
        QTest::newRow(*clicked ? clicked : "defaults") << QString::fromLatin1(clicked) << flags;
    };
    add("", { true, false, false, true });
    add("m_autoStart", { false, false, false, true });
    add("m_cleanLink", { true, true, false, true });
    add("m_noOptim", { true, false, true, true });
    add("m_GridOptim", { true, false, false, false });
}

void TestUIWPClauss::nextHandsOverACopyWithEveryOption()
{
    QFETCH(QString, clicked);
    QFETCH(QVector<bool>, flags);
    Shoot shoot;
    shoot.loadScript(row(2));
    shoot.loadPhotos(2);
    if (!clicked.isEmpty()) {
        shoot.driver.click(clicked.toLatin1().constData());
    }

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 1);
    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE((QVector<bool>{ handed.autoDetection, handed.cleanWrongLinks, handed.skipOptimization,
                             handed.useRecordedLocation }),
             flags);
    QVERIFY(handed.positionsKnown);
    QVERIFY(!handed.rollKnown);
    QCOMPARE(handed.overlap, 25.0);
    QCOMPARE(handed.lensModel, LensModel::NotChosen);
    QCOMPARE(handed.focalLength, 0.0F);
    QCOMPARE(handed.levelLinking, 0);
    QCOMPARE(handed.stackLinking, 0);
    // A copy: what the page does later does not reach it.
    shoot.page.imageGroups.clear();
    QCOMPARE(handed.imageGroups.size(), 2);
}

void TestUIWPClauss::partlyCheckedBoxDoesNotCount()
{
    Shoot shoot;
    for (QCheckBox *box : { shoot.page.m_autoStart, shoot.page.m_cleanLink, shoot.page.m_noOptim,
                            shoot.page.m_GridOptim }) {
        box->setTristate(true);
        box->setCheckState(Qt::PartiallyChecked);
    }

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QVERIFY(!handed.autoDetection);
    QVERIFY(!handed.cleanWrongLinks);
    QVERIFY(!handed.skipOptimization);
    QVERIFY(!handed.useRecordedLocation);
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
    QVERIFY(handed.roll.isEmpty());
    QCOMPARE(linksOf(handed), QStringLiteral("0:1-2")); // 30 degrees at 24 mm; 90 are too many
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

    QCOMPARE(linksOf(fakeHost().descriptions.first()),
             QStringLiteral("0:0-1 0:0-2 0:0-3 0:1-2 0:1-3 0:2-3"));
}

void TestUIWPClauss::linksFollowTheOrderOfReading()
{
    Shoot shoot;
    shoot.loadScript(row(3));
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
    QCOMPARE(linksOf(fakeHost().descriptions.first()), QStringLiteral("0:0-1 0:0-2"));
}

void TestUIWPClauss::secondNextAppends()
{
    Shoot shoot;
    shoot.loadScript(row(2));
    shoot.loadPhotos(2);

    QVERIFY(shoot.page.validatePage());
    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 2);
    const StructuredPanoramaProperties &second = fakeHost().descriptions.last();
    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), 2);
    QCOMPARE(second.imageGroups.size(), 4);
    QCOMPARE(second.yaw.size(), 4);
    QCOMPARE(linksOf(second), QStringLiteral("0:0-1 0:0-1"));
}

void TestUIWPClauss::nextWithoutShotsAndPhotosIsHarmless()
{
    Shoot shoot;
    QVERIFY(shoot.page.validatePage());
    shoot.loadScript(QByteArray());
    QVERIFY(shoot.page.isComplete());
    QVERIFY(shoot.page.validatePage());
    QCOMPARE(fakeHost().descriptions.size(), 2);
    QVERIFY(fakeHost().descriptions.last().imageGroups.isEmpty());
}

void TestUIWPClauss::pageIsCompleteWhenEverythingFits_data()
{
    QTest::addColumn<int>("shots"); // -1: no script
    QTest::addColumn<int>("photos");
    QTest::addColumn<bool>("oneUnreadable");
    QTest::addColumn<bool>("complete");
    QTest::newRow("12 shots, 12 photos") << 12 << 12 << false << true;
    QTest::newRow("12 shots, 11 photos") << 12 << 11 << false << false;
    QTest::newRow("11 shots, 12 photos") << 11 << 12 << false << false;
    QTest::newRow("12 shots, 12 photos, one unreadable") << 12 << 12 << true << false;
    QTest::newRow("11 shots, 12 photos, one unreadable") << 11 << 12 << true << false;
    QTest::newRow("no script, 12 photos") << -1 << 12 << false << false;
    QTest::newRow("12 shots, no photos") << 12 << 0 << false << false;
    QTest::newRow("no script, no photos") << -1 << 0 << false << false;
    QTest::newRow("no shots, no photos") << 0 << 0 << false << true;
}

void TestUIWPClauss::pageIsCompleteWhenEverythingFits()
{
    QFETCH(int, shots);
    QFETCH(int, photos);
    QFETCH(bool, oneUnreadable);
    QFETCH(bool, complete);
    const Shoot shoot;
    const QStringList files = shoot.folder.addPhotos(photos);
    if (oneUnreadable) {
        FakePhoto photo;
        photo.reading = FakePhoto::Reading::Fails;
        fakeHost().setPhoto(files.at(3), photo);
    }

    if (shots >= 0) {
        shoot.loadScript(row(shots));
    }
    if (photos > 0) {
        shoot.driver.load(kSelectPhotos, files);
    }

    QCOMPARE(shoot.page.isComplete(), complete);
}

void TestUIWPClauss::wizardHearsOfCompleteness()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPClauss(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const PageDriver driver(page);
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    QVERIFY(!next->isEnabled());

    driver.load(kSelectPhotos, folder.addPhotos(2));
    QVERIFY(!next->isEnabled());
    const QString fitting = folder.write(QStringLiteral("fitting.txt"), row(2));
    driver.load(kSelectRecord, { fitting });
    QVERIFY(next->isEnabled());
    driver.load(kSelectRecord, { folder.write(QStringLiteral("more.txt"), row(3)) });
    QVERIFY(!next->isEnabled());
    driver.type(kScript, fitting);
    leave(page->m_leConfigFile);
    QVERIFY(next->isEnabled());
    driver.click("m_pbReset");
    QVERIFY(!next->isEnabled());
    driver.load(kSelectRecord, { fitting });
    QVERIFY(!next->isEnabled());
    driver.load(kSelectPhotos, folder.addPhotos(2));
    QVERIFY(next->isEnabled()); // heard when the last photo arrived
}

void TestUIWPClauss::actionSignalsCompleteness_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "m_pbReset", "m_pInverseCoordinates", "m_hSlider", kScript,
                              kSelectRecord, kSelectPhotos }) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestUIWPClauss::actionSignalsCompleteness()
{
    QFETCH(QString, name);
    const QByteArray widget = name.toLatin1();
    const Shoot shoot;
    shoot.loadScript(row(2));
    shoot.loadPhotos(2);
    const QSignalSpy spy(&shoot.page, &QWizardPage::completeChanged);

    if (widget == kSelectRecord) {
        shoot.driver.chooseFiles(kSelectRecord, { shoot.writeScript(row(3)) });
    } else if (widget == kSelectPhotos) {
        shoot.driver.chooseFiles(kSelectPhotos, shoot.folder.addPhotos(1));
    } else if (widget == "m_hSlider") {
        shoot.page.m_hSlider->setValue(20);
    } else if (widget == kScript) {
        shoot.enter(shoot.writeScript(row(3), QStringLiteral("other.txt")));
    } else {
        shoot.driver.click(widget.constData());
    }

    QVERIFY(spy.count() >= 1);
    QVERIFY(!shoot.page.signalsBlocked());
    QVERIFY(!shoot.page.m_hSlider->signalsBlocked());
}

void TestUIWPClauss::goingBackResetsWanted()
{
    const ShootFolder folder;
    QWizard wizard;
    wizard.addPage(new QWizardPage);
    auto *page = new UIWPClauss(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    wizard.next();
    QCOMPARE(wizard.currentPage(), page);
    const PageDriver driver(page);
    driver.load(kSelectRecord,
                folder.addPhotos(2) << folder.write(QStringLiteral("a.txt"), row(2)));
    QVERIFY(page->isComplete());

    wizard.back();

    QVERIFY(!page->isComplete());
    QVERIFY(page->shots.isEmpty());
    QCOMPARE(driver.text(kScript), QString());
    QCOMPARE(driver.text("m_lbImageLog"), notAvailable());
    QVERIFY(driver.picture().isNull());
    QVERIFY(fakeHost().descriptions.isEmpty());
}

void TestUIWPClauss::goingBackStopsTheReading()
{
    Shoot shoot;
    Gate enter;
    FakePhoto slow;
    slow.enter = &enter;
    slow.spins = 200;
    shoot.driver.chooseFiles(kSelectPhotos, shoot.folder.addPhotos(200, slow));
    enter.pass();

    shoot.page.cleanupPage();

    const int begun = fakeHost().readFiles().size();
    QVERIFY(begun < 200);
    shoot.driver.waitUntilRead();
    QCOMPARE(fakeHost().readFiles().size(), begun);
    QCOMPARE(shoot.driver.text("m_lbImageLog"), notAvailable());
}

void TestUIWPClauss::goingForthKeepsTheState()
{
    const ShootFolder folder;
    QWizard wizard;
    auto *page = new UIWPClauss(nullptr);
    wizard.addPage(page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const PageDriver driver(page);
    driver.load(kSelectRecord,
                folder.addPhotos(2) << folder.write(QStringLiteral("a.txt"), row(2)));
    const QImage picture = driver.picture();

    QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
    QVERIFY(wizard.currentPage() != page);
    QCOMPARE(fakeHost().descriptions.size(), 1);
    wizard.back();

    QCOMPARE(wizard.currentPage(), page);
    QVERIFY(page->isComplete());
    QCOMPARE(driver.picture(), picture);
}

void TestUIWPClauss::savedStateIsEmpty()
{
    Shoot shoot;
    shoot.loadScript(row(2));
    shoot.loadPhotos(2);
    const QImage picture = shoot.driver.picture();

    QCOMPARE(shoot.page.SaveState(), QByteArray());
    shoot.page.RestoreState(QByteArray("\0\xff any bytes", 12));
    shoot.page.initializePage();

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QCOMPARE(shoot.driver.text("m_lbImageLog"), QStringLiteral("2"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestUIWPClauss::dialogsAskAsDescribed_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("caption");
    QTest::newRow("script") << QString::fromLatin1(kSelectRecord)
                            << QStringLiteral("Select the preset file and/or images");
    QTest::newRow("photos") << QString::fromLatin1(kSelectPhotos)
                            << QStringLiteral("Select images");
}

void TestUIWPClauss::dialogsAskAsDescribed()
{
    QFETCH(QString, button);
    QFETCH(QString, caption);
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.path();
    const QByteArray name = button.toLatin1();

    const DialogClicker::SeenFileDialog dialog = shoot.driver.cancelFiles(name.constData());

    QCOMPARE(dialog.caption, caption);
    QCOMPARE(dialog.nameFilters, QStringList{ QStringLiteral("All Files (*.*)") });
    QCOMPARE(dialog.selectedNameFilter, QStringLiteral("All Files (*.*)"));
    QCOMPARE(dialog.fileMode, QFileDialog::ExistingFiles);
    QCOMPARE(dialog.directory, shoot.folder.path()); // the host's place while there is no script
    QCOMPARE(dialog.fileName, QString());
    QVERIFY(dialog.options.testFlag(QFileDialog::DontUseNativeDialog));

    fakeHost().uiSettings.useSystemFileDialog = true;
    QVERIFY(!shoot.driver.cancelFiles(name.constData())
                 .options.testFlag(QFileDialog::DontUseNativeDialog));
}

void TestUIWPClauss::dialogsStartAtTheCurrentFile()
{
    const Shoot shoot;
    fakeHost().lastPath = QDir::tempPath();
    shoot.driver.load(kSelectRecord, { shoot.writeScript(row(2), QStringLiteral("head/a.txt")) });
    shoot.driver.load(kSelectPhotos,
                      { shoot.folder.addPhoto(QStringLiteral("card/b.jpg")),
                        shoot.folder.addPhoto(QStringLiteral("card/a.jpg")) });

    const DialogClicker::SeenFileDialog scriptDialog = shoot.driver.cancelFiles(kSelectRecord);
    QCOMPARE(scriptDialog.directory, shoot.folder.path(QStringLiteral("head")));
    QCOMPARE(scriptDialog.fileName, QStringLiteral("a.txt"));
    const DialogClicker::SeenFileDialog photoDialog = shoot.driver.cancelFiles(kSelectPhotos);
    QCOMPARE(photoDialog.directory, shoot.folder.path(QStringLiteral("card")));
    QCOMPARE(photoDialog.fileName, QStringLiteral("a.jpg"));
}

void TestUIWPClauss::scriptAndPhotosMayComeTogether()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(row(3), QStringLiteral("SCRIPT.TXT"));
    QStringList files = shoot.folder.addPhotos(3);
    files.insert(1, script);

    shoot.driver.load(kSelectRecord, files);

    QVERIFY(shoot.page.isComplete());
    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"IMG_0001.jpg\"; \"IMG_0002.jpg\"; \"IMG_0003.jpg\"; "));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ script });
}

void TestUIWPClauss::lastScriptOfASelectionWins()
{
    const Shoot shoot;
    const QString noEnding = shoot.folder.addPhoto(QStringLiteral("notatxt"));

    shoot.driver.load(kSelectRecord,
                      { shoot.writeScript(row(4), QStringLiteral("z.txt")), noEnding,
                        shoot.writeScript(row(2), QStringLiteral("a.Txt")) });

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

void TestUIWPClauss::photoDialogSortsCaseSensitively()
{
    const Shoot shoot;
    QStringList files;
    for (const char *name : { "a.jpg", "IMG_9.jpg", "Z.jpg", "IMG_10.jpg" }) {
        files.append(shoot.folder.addPhoto(QString::fromLatin1(name)));
    }

    shoot.driver.load(kSelectPhotos, files);

    QCOMPARE(namesOf(fakeHost().readFiles()),
             (QStringList{ QStringLiteral("IMG_10.jpg"), QStringLiteral("IMG_9.jpg"),
                           QStringLiteral("Z.jpg"), QStringLiteral("a.jpg") }));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ files.at(3) });
}

void TestUIWPClauss::photosAloneKeepTheScript()
{
    const Shoot shoot;
    const QString script = shoot.writeScript(row(2));
    shoot.driver.load(kSelectRecord, { script });
    shoot.writeScript(row(4));

    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2));

    QCOMPARE(shoot.driver.text(kScript), script);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2")); // not read again
    QCOMPARE(fakeHost().setLastPaths, (QStringList{ script, script }));
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPClauss::cancelledDialogsChangeNothing()
{
    const Shoot shoot;
    shoot.loadScript(row(2));
    shoot.loadPhotos(2);
    shoot.driver.click("m_pInverseCoordinates");
    const QStringList told = fakeHost().setLastPaths;
    shoot.writeScript(row(4));

    shoot.driver.cancelFiles(kSelectRecord);
    shoot.driver.cancelFiles(kSelectPhotos);
    shoot.driver.waitUntilRead();

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QVERIFY(shoot.page.isComplete());
    QCOMPARE(fakeHost().setLastPaths, told);
    QCOMPARE(fakeHost().readFiles().size(), 2);
}

void TestUIWPClauss::samePhotosFromTheScriptDialogAreNotReadAgain()
{
    const Shoot shoot;
    QStringList photos = shoot.folder.addPhotos(3);
    shoot.driver.load(kSelectRecord, photos);
    shoot.driver.load(kSelectRecord, QStringList(photos) << shoot.writeScript(row(3)));
    QCOMPARE(fakeHost().readFiles().size(), 3);
    QVERIFY(shoot.page.isComplete());

    // In another order they are another choice.
    std::reverse(photos.begin(), photos.end());
    shoot.driver.load(kSelectRecord, photos);
    QCOMPARE(fakeHost().readFiles().mid(3), photos);
    shoot.loadPhotos(3);
    QCOMPARE(fakeHost().readFiles().size(), 9);
}

void TestUIWPClauss::newPhotosReplaceThoseBeingRead()
{
    const Shoot shoot;
    shoot.loadScript(row(2));
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

    shoot.loadPhotos(2);

    QVERIFY(shoot.page.isComplete());
}

void TestUIWPClauss::controlKeyOpensPhotoOrFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("shoot");
    QTest::newRow("URL syntax") << QStringLiteral("shoot #1? 50%41");
    QTest::newRow("umlauts") << QString::fromUtf8("Höhe über Zürich");
}

void TestUIWPClauss::controlKeyOpensPhotoOrFolder()
{
    QFETCH(QString, folder);
    const Shoot shoot;
    const QString script = shoot.writeScript(row(1), folder + QLatin1String("/a.txt"));
    const QString photo = shoot.folder.addPhoto(folder + QLatin1String("-photos/a.jpg"));
    shoot.driver.load(kSelectRecord, { script, photo });
    const DesktopCatcher desktop;

    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QCOMPARE(desktop.urls().size(), 2);
    QCOMPARE(desktop.urls()[0].toLocalFile(), shoot.folder.path(folder));
    QCOMPARE(desktop.urls()[1].toLocalFile(), photo); // the first photo itself: wanted
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"a.jpg\"; "));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ script });
}

void TestUIWPClauss::controlKeyOpensTheLastPathItself()
{
    const Shoot shoot;
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("last/place"));
    const DesktopCatcher desktop;

    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QCOMPARE(desktop.urls().size(), 1);
    QCOMPARE(desktop.urls()[0].toLocalFile(), fakeHost().lastPath);
}

void TestUIWPClauss::controlKeyOpensNothingWithoutAPlace()
{
    const Shoot shoot;
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    shoot.driver.click(kSelectRecord, Qt::ControlModifier);
    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QVERIFY(desktop.urls().isEmpty());
    QVERIFY(clicker.fileDialogs().isEmpty());
}

void TestUIWPClauss::browserOpensWhatItIsGiven()
{
    Shoot shoot;
    const DesktopCatcher desktop;
    shoot.page.BrowserWeb(QStringLiteral("https://example.org/a?b=c#d"));
    QCOMPARE(desktop.urls(), QVector<QUrl>{ QUrl(QStringLiteral("https://example.org/a?b=c#d")) });
}

void TestUIWPClauss::pageMayGoWhilePhotosAreRead()
{
    auto shoot = std::make_unique<Shoot>();
    Gate enter;
    FakePhoto slow;
    slow.enter = &enter;
    slow.spins = 200;
    shoot->driver.chooseFiles(kSelectPhotos, shoot->folder.addPhotos(200, slow));
    enter.pass();

    shoot.reset();

    const int begun = fakeHost().readFiles().size();
    QVERIFY(begun >= 1);
    QVERIFY(begun < 200);
    QCoreApplication::processEvents();
    QCOMPARE(fakeHost().readFiles().size(), begun);
}

void TestUIWPClauss::pageMayGoWhileADialogIsOpen_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("script") << QString::fromLatin1(kSelectRecord);
    QTest::newRow("photos") << QString::fromLatin1(kSelectPhotos);
}

void TestUIWPClauss::pageMayGoWhileADialogIsOpen()
{
    QFETCH(QString, button);
    QPointer<UIWPClauss> page = new UIWPClauss(nullptr);
    const PageDriver driver(page);
    DialogClicker clicker;
    clicker.beforeNextAnswer([&page] { delete page.data(); });

    driver.click(button.toLatin1().constData());

    QVERIFY(page.isNull());
    QCOMPARE(clicker.fileDialogs().size(), 1);
    QVERIFY(fakeHost().setLastPaths.isEmpty());
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

FAKE_HOST_MAIN(FakeApplication, TestUIWPClauss)
#include "tst_uiwpclauss.moc"
