// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/savedlist.h"
#include "host/model/photofile.h"
#include "tests/host/gui/resultbench.h"
#include "tests/support/testprogram.h"

#include <QAccessible>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

using namespace PanoHost;

/** The page that shows what was delivered, and saves it. */
class TestResult : public QObject, private ResultBench
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

    /** In place of the desktop. */
    Q_SLOT void openUrl(const QUrl &url) { m_opened += url; }

private Q_SLOTS:
    void init() { openBench(); }
    void cleanup()
    {
        closeBench();
        m_opened.clear();
    }
    void resultsGoBesideThePhotos();
    void cancelledSavingLeavesNoFolder();
    void everySavedFileIsListed();
    void savedFilesAreShownInTheirFolder();
    void savingMovesNothing();
    void savedFilesAreRememberedAfterBack();
    void focalLengthCanBeEnteredAfterAll();
    void warningsLeaveRoomForThePicture();
    void optionsAreExplainedInTheSummary();
    void fullAndReadOnlyDisksAreSaid();
    void everythingIsDoneByKeys();
    void everyControlHasAName();
    void fitsSmallScreens();

private:
    QVector<QUrl> m_opened;
};

void TestResult::resultsGoBesideThePhotos()
{
    showResult(3);
    const QString folder = m_bench->path(QStringLiteral("shoot panorama"));
    QVERIFY(!QFileInfo::exists(folder));
    GuiBench::acceptFileDialog();
    click("m_saveProject");
    QVERIFY(QFileInfo(folder + QStringLiteral("/evening.pto")).isFile());
    GuiBench::answerFileDialog(m_bench->path(QStringLiteral("other.json")));
    click("m_saveJson");
    // From now on there.
    GuiBench::acceptFileDialog();
    click("m_saveTable");
    QVERIFY(QFileInfo(m_bench->path(QStringLiteral("evening.csv"))).isFile());
}

void TestResult::cancelledSavingLeavesNoFolder()
{
    showResult(2);
    GuiBench::cancelFileDialog();
    click("m_saveProject");
    QVERIFY(!QFileInfo::exists(m_bench->path(QStringLiteral("shoot panorama"))));
    QVERIFY(page()->isUnsaved());
}

void TestResult::everySavedFileIsListed()
{
    showResult(2);
    const auto *saved = page()->findChild<SavedList *>();
    const auto path = [this](const char *name) { return m_bench->path(QLatin1String(name)); };
    QVERIFY(page()->saveProject(path("a.pto")));
    QVERIFY(page()->saveJson(path("a.json")));
    QVERIFY(page()->saveTable(path("a.csv")));
    QCOMPARE(saved->files(), QStringList({ path("a.csv"), path("a.json"), path("a.pto") }));
    // The same once more is the last one again; a failure takes nobody's place.
    QVERIFY(page()->saveProject(path("a.pto")));
    QVERIFY(!page()->saveJson(path("nosuch/b.json")));
    QCOMPARE(saved->files(), QStringList({ path("a.pto"), path("a.csv"), path("a.json") }));
    QVERIFY(widget<QLabel>("m_problem")->isVisible());
    // Rows that find no room are scrolled to, not squeezed.
    const auto *show = widget<QPushButton>("m_show");
    QTRY_COMPARE(show->height(), show->sizeHint().height());
    m_bench->picture(QStringLiteral("result-saved"));
    QVERIFY(page()->saveJson(path("b.json")));
    QVERIFY(!widget<QLabel>("m_problem")->isVisible());
    QCOMPARE(page()->findChildren<QPushButton *>(QStringLiteral("m_show")).size(), 4);
}

void TestResult::savedFilesAreShownInTheirFolder()
{
    showResult(2);
    QDir(m_bench->path({})).mkdir(QStringLiteral("a b#c"));
    QVERIFY(page()->saveProject(m_bench->path(QStringLiteral("a b#c/a.pto"))));
    QCoreApplication::processEvents();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
    auto *show = widget<QPushButton>("m_show");
    QCOMPARE(show->accessibleName(), QStringLiteral("Show a.pto in its folder"));
    show->setFocus();
    QTest::keyClick(show, Qt::Key_Space);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(m_opened,
             QVector<QUrl>{ QUrl::fromLocalFile(m_bench->path(QStringLiteral("a b#c"))) });
    QVERIFY(QDir(m_bench->path(QStringLiteral("a b#c"))).removeRecursively());
    QTest::mouseClick(show, Qt::LeftButton);
    QVERIFY(widget<QLabel>("m_problem")->text().contains(QLatin1String("not there any more")));
}

void TestResult::savingMovesNothing()
{
    showResult(2);
    const auto places = [this] {
        QVector<QRect> found;
        for (const char *name : { "m_views", "m_saveProject", "m_openHugin", "m_saved" }) {
            found += widget<QWidget>(name)->geometry();
        }
        return found;
    };
    QCoreApplication::processEvents();
    const QVector<QRect> before = places();
    for (int i = 0; i < 5; ++i) {
        QVERIFY(page()->saveJson(m_bench->path(QStringLiteral("%1.json").arg(i))));
    }
    QVERIFY(!page()->saveJson(m_bench->path(QStringLiteral("nosuch/%1.json"))));
    QCoreApplication::processEvents();
    QCOMPARE(places(), before);
}

void TestResult::savedFilesAreRememberedAfterBack()
{
    showResult(2);
    const QString project = m_bench->path(QStringLiteral("a.pto"));
    QVERIFY(!widget<QPushButton>("m_openHugin")->isEnabled());
    QVERIFY(page()->saveProject(project));
    QVERIFY(page()->saveJson(m_bench->path(QStringLiteral("a.json"))));
    const QStringList files = page()->findChild<SavedList *>()->files();
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::NextButton);
    QVERIFY(widget<QPushButton>("m_openHugin")->isEnabled());
    QCOMPARE(page()->findChild<SavedList *>()->files(), files);
    QVERIFY(!page()->isUnsaved());
    QVERIFY(page()->panorama()->project.has_value());

    // Another option, another panorama: that is nowhere yet.
    m_bench->press(QWizard::BackButton);
    auto *trustsHead = m_bench->wizard().currentPage()->findChild<QAbstractButton *>(
        QStringLiteral("m_noOptim"));
    trustsHead->click();
    m_bench->press(QWizard::NextButton);
    QVERIFY(!widget<QPushButton>("m_openHugin")->isEnabled());
    QVERIFY(page()->isUnsaved());
    QCOMPARE(page()->findChild<SavedList *>()->files(), QStringList());

    // As it was; meanwhile the project was deleted.
    m_bench->press(QWizard::BackButton);
    trustsHead->click();
    QVERIFY(QFile::remove(project));
    m_bench->press(QWizard::NextButton);
    QVERIFY(!widget<QPushButton>("m_openHugin")->isEnabled());
    QVERIFY(!page()->isUnsaved());
    QCOMPARE(page()->findChild<SavedList *>()->files(), files.mid(0, 1)); // the description

    m_bench->press(QWizard::BackButton);
    QVERIFY(QFile::remove(files.first()));
    m_bench->press(QWizard::NextButton);
    QVERIFY(page()->isUnsaved()); // nothing is left of it
}

void TestResult::focalLengthCanBeEnteredAfterAll()
{
    m_bench->choose("Gigapan");
    m_bench->drop(m_bench->photos(0, 14, false));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QVERIFY(page());
    auto *back = widget<QPushButton>("m_enterFocal");
    QVERIFY(back->isVisible());
    QVERIFY(widget<QLabel>("m_warnings")
                ->text()
                .contains(QLatin1String("Until then all 15 positions lie on one point.")));
    QVERIFY(!page()->saveProject(m_bench->path(QStringLiteral("a.pto"))));
    const QString problem = widget<QLabel>("m_problem")->text();
    QVERIFY2(problem.contains(QLatin1String("the focal length is not known")), qPrintable(problem));
    QVERIFY2(!problem.contains(QLatin1String("--")), qPrintable(problem));
    m_bench->picture(QStringLiteral("result-nofocal"));
    QTest::mouseClick(back, Qt::LeftButton);
    QTRY_VERIFY(m_bench->isSettled());
    QCOMPARE(m_bench->row("focal").state, StripRow::State::Trouble);
    m_bench->strip().setOpen(true);
    QDoubleSpinBox *field = m_bench->strip().findChild<QDoubleSpinBox *>();
    QVERIFY(field);
    field->setValue(28.0);
    m_bench->press("focal", StripAction::EnterFocal);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QVERIFY(!widget<QPushButton>("m_enterFocal")->isVisible());
    QVERIFY(widget<QLabel>("m_summary")->text().contains(QLatin1String("standard lens of 28 mm")));
    QVERIFY(page()->saveProject(m_bench->path(QStringLiteral("a.pto"))));
}

void TestResult::warningsLeaveRoomForThePicture()
{
    showResult(2);
    const int before = widget<QWidget>("m_views")->height();
    m_bench->press(QWizard::BackButton);
    m_bench->wizard()
        .currentPage()
        ->findChild<QComboBox *>(QStringLiteral("m_cbLensType"))
        ->setCurrentIndex(1);
    m_bench->press(QWizard::NextButton);
    QVERIFY(widget<QLabel>("m_warnings")
                ->text()
                .startsWith(QLatin1String("The lens is taken for a fisheye")));
    page()->setRemarks({ QStringLiteral("One."), QStringLiteral("Two.") });
    QCoreApplication::processEvents();
    QVERIFY(widget<QWidget>("m_views")->height() > before / 2);
}

void TestResult::optionsAreExplainedInTheSummary()
{
    showResult(2);
    QVERIFY(page()->isAncestorOf(m_bench->wizard().focusWidget())); // not on Help
    pressAlt(Qt::Key_U);
    QVERIFY(widget<QWidget>("m_lines")->isVisible());
    m_bench->picture(QStringLiteral("result-summary"));
}

/** Once more in a process of its own, which has a full disk and one that can only be read. */
void TestResult::fullAndReadOnlyDisksAreSaid()
{
    const QString place = qEnvironmentVariable("PANOHOST_TEST_DISKS");
    if (place.isEmpty()) {
        const QString script = QStringLiteral(
            "mkdir \"$1/full\" \"$1/fixed\" && mount -t tmpfs -o size=64k none \"$1/full\" "
            "&& mount -t tmpfs -o ro none \"$1/fixed\" || exit 125\n"
            "printf old > \"$1/full/old.pto\"; cat /dev/zero > \"$1/full/filler\" 2> /dev/null\n"
            "PANOHOST_TEST_DISKS=$1 exec \"$0\" tst_gui_result fullAndReadOnlyDisksAreSaid\n");
        // Root needs no more; others become root of a name space of their own.
        for (const char *options : { "-m", "-rm" }) {
            const QTemporaryDir disks;
            QProcess process;
            process.setProcessChannelMode(QProcess::MergedChannels);
            process.start(QStringLiteral("unshare"),
                          { QLatin1String(options), QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                            script, QCoreApplication::applicationFilePath(), disks.path() });
            QVERIFY(process.waitForFinished(-1));
            const QByteArray output = process.readAll();
            if (process.exitStatus() == QProcess::NormalExit
                && output.contains("fullAndReadOnlyDisksAreSaid")) {
                QVERIFY2(process.exitCode() == 0, output.constData());
                return;
            }
        }
        QSKIP("No file system can be mounted here");
    }
    showResult(3);
    const auto save = [&](const char *button, const QString &file) {
        GuiBench::answerFileDialog(QDir(place).filePath(file));
        click(button);
        return widget<QLabel>("m_problem")->text();
    };
    const QString full = QStringLiteral("%1 was not saved: the disk is full. Make room on it, or "
                                        "choose a folder on another disk.");
    QCOMPARE(save("m_saveProject", QStringLiteral("full/a.pto")), full.arg(QLatin1String("a.pto")));
    m_bench->picture(QStringLiteral("result-full"));
    QCOMPARE(save("m_saveJson", QStringLiteral("full/a.json")), full.arg(QLatin1String("a.json")));
    QCOMPARE(save("m_saveTable", QStringLiteral("full/a.csv")), full.arg(QLatin1String("a.csv")));
    QVERIFY(!page()->saveProject(QDir(place).filePath(QStringLiteral("full/old.pto"))));
    QFile old(QDir(place).filePath(QStringLiteral("full/old.pto")));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
    QCOMPARE(QDir(QDir(place).filePath(QStringLiteral("full"))).entryList(QDir::Files),
             QStringList({ QStringLiteral("filler"), QStringLiteral("old.pto") }));
    QCOMPARE(save("m_saveProject", QStringLiteral("fixed/a.pto")),
             QStringLiteral("a.pto was not saved: nothing can be written in %1/fixed. Choose a "
                            "folder of your own, such as your pictures.")
                 .arg(place));
    // Nothing is lost: elsewhere it goes.
    QVERIFY(page()->isUnsaved());
    QCOMPARE(save("m_saveProject", m_bench->path(QStringLiteral("a.pto"))), QString());
    QVERIFY(!page()->isUnsaved());
}

void TestResult::everythingIsDoneByKeys()
{
    showResult(3);
    pressAlt(Qt::Key_O);
    QVERIFY(table()->isVisible());
    tabTo(table());
    QSignalSpy selected(page(), &ResultPage::positionSelected);
    QTest::keyClick(table(), Qt::Key_Down);
    QTest::keyClick(table(), Qt::Key_Down);
    QVERIFY(!selected.isEmpty());
    tabTo(widget<QWidget>("m_saveProject")); // Tab leaves the table
    int saved = 0;
    for (const Qt::Key letter : { Qt::Key_P, Qt::Key_D, Qt::Key_T }) {
        GuiBench::acceptFileDialog();
        pressAlt(letter);
        ++saved;
        QTRY_COMPARE(page()->findChild<SavedList *>()->files().size(), saved);
    }
    QTRY_VERIFY(widget<QPushButton>("m_show")->isVisible());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
    tabTo(widget<QWidget>("m_show"));
    QTest::keyClick(m_bench->wizard().focusWidget(), Qt::Key_Space);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(m_opened,
             QVector<QUrl>{ QUrl::fromLocalFile(m_bench->path(QStringLiteral("shoot panorama"))) });
}

void TestResult::everyControlHasAName()
{
    showResult(2);
    QVERIFY(page()->saveJson(m_bench->path(QStringLiteral("a.json"))));
    auto *views = widget<QTabWidget>("m_views");
    int controls = 0;
    for (int view = 0; view < views->count(); ++view) {
        views->setCurrentIndex(view);
        QCoreApplication::processEvents();
        for (QWidget *control : page()->findChildren<QWidget *>()) {
            const bool isReached = control->isVisible() && control->isEnabled()
                && (control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus
                && control->focusProxy() == nullptr;
            if (isReached && qobject_cast<QTabBar *>(control) == nullptr) {
                QAccessibleInterface *told = QAccessible::queryAccessibleInterface(control);
                QVERIFY(told);
                QVERIFY2(!told->text(QAccessible::Name).isEmpty(),
                         control->metaObject()->className());
                ++controls;
            }
        }
    }
    QVERIFY(controls >= 3 * 4);
}

void TestResult::fitsSmallScreens()
{
    QFont font = QApplication::font();
    font.setPointSize(10); // as desktops have it
    QApplication::setFont(font);
    m_bench->reopen();
    m_bench->wizard().resize(800, 570); // 800 x 600 with a frame
    showResult(3);
    page()->setRemarks({ QStringLiteral("The photos do not stand at their shots: go back, and "
                                        "press Fix.") });
    QCoreApplication::processEvents();
    QVERIFY2(m_bench->wizard().minimumHeight() <= 570,
             qPrintable(QString::number(m_bench->wizard().minimumHeight())));
    QCOMPARE(m_bench->wizard().size(), QSize(800, 570));
    QVERIFY2(widget<QWidget>("m_views")->height() >= 200,
             qPrintable(QString::number(widget<QWidget>("m_views")->height())));
    m_bench->picture(QStringLiteral("result-small"));
}

TEST_CLASS(TestResult, PanoHostApplication)
#include "tst_gui_result.moc"
