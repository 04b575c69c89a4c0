// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/pages/claussshoot.h"
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "ui/xui.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QWizard>
#include <QtTest>

#include <functional>

namespace
{

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

/** The path of a script, chosen or typed, and the box about one that cannot be read. */
class TestUIWPClaussPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pathOfBeforeTheResetIsReadAgain();
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
    void wizardHearsOfATypedPath();
    void pageMayGoWhileTheBoxIsOpen_data();
    void pageMayGoWhileTheBoxIsOpen();
};

void TestUIWPClaussPath::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPClaussPath::pathOfBeforeTheResetIsReadAgain()
{
    const ClaussShoot shoot;
    const QString script = shoot.writeScript(scriptRow(2));
    shoot.driver.load(kSelectRecord, shoot.folder.addPhotos(2) << script);
    shoot.driver.click("m_pbReset");

    shoot.enter(script);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QVERIFY(!shoot.page.isComplete()); // no old photo counts
}

void TestUIWPClaussPath::badScriptShowsOneBox_data()
{
    QTest::addColumn<QByteArray>("script");
    for (const char *value : { "abc", "", "nan", "inf", "-inf", "1e39", "--5", "+5", "0x10" }) {
        QTest::addRow("angle \"%s\"", value) << QByteArray("op_h-angle=") + value + "\nop_shoot\n";
    }
    QTest::newRow("no equals sign") << QByteArray("op_h-angle 30\nop_shoot\n");
    QTest::newRow("many bad numbers") << QByteArray("op_h-angle=x\nop_v-angle=y\n").repeated(100);
    QTest::newRow("CR only") << scriptRow(2).replace("\n", "\r");
}

void TestUIWPClaussPath::badScriptShowsOneBox()
{
    QFETCH(QByteArray, script);
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::unreadableScriptShowsOneBox_data()
{
    QTest::addColumn<QString>("path"); // FOLDER stands for an existing folder
    for (const char *path : { "FOLDER/missing.txt", "FOLDER", "/dev/zero", "/dev/null",
                              "FOLDER/pipe", "FOLDER/hundred megabytes", " " }) {
        QTest::newRow(path) << QString::fromLatin1(path);
    }
}

void TestUIWPClaussPath::unreadableScriptShowsOneBox()
{
    QFETCH(QString, path);
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::badScriptKeepsTheRanges()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::badScriptOnAFreshPageShowsNotAvailable()
{
    const ClaussShoot shoot;
    DialogClicker clicker;
    clicker.pressButton(QMessageBox::Ok);

    shoot.enter(shoot.folder.path(QStringLiteral("missing.txt")));

    for (const char *name : { "m_lbPapyLog", "m_lbThetaMinMax", "m_lbPhiMinMax" }) {
        QCOMPARE(shoot.driver.text(name), notAvailable());
    }
}

void TestUIWPClaussPath::fileNameInTheBoxIsShownAsItIs()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::typedPathIsReadWhenFinished()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::typedPathIsStoredWhateverTheResult()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::unchangedPathIsNotReadAgain()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::emptiedPathIsPutBack()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::leavingTheFieldReadsThePath()
{
    const ClaussShoot shoot;
    const QString script = shoot.writeScript(scriptRow(5));
    shoot.driver.type(kScript, script);

    leave(shoot.page.m_leConfigFile);

    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("5"));
}

void TestUIWPClaussPath::badScriptIsReadAgain_data()
{
    QTest::addColumn<bool>("typed"); // else chosen in the dialog
    QTest::addColumn<bool>("left"); // else ended with the Return key
    QTest::newRow("typed, Return") << true << false;
    QTest::newRow("typed, left") << true << true;
    QTest::newRow("chosen, Return") << false << false;
}

void TestUIWPClaussPath::badScriptIsReadAgain()
{
    QFETCH(bool, typed);
    QFETCH(bool, left);
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::boxAppearsOnceForEachReading()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::boxForAChosenScriptReadsNothingElse()
{
    const ClaussShoot shoot;
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

void TestUIWPClaussPath::wizardHearsOfATypedPath()
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

void TestUIWPClaussPath::pageMayGoWhileTheBoxIsOpen_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "chosen", "typed", "asked for" }) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestUIWPClaussPath::pageMayGoWhileTheBoxIsOpen()
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

TEST_CLASS(TestUIWPClaussPath, FakeApplication)
#include "tst_uiwpclauss_path.moc"
