// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/makepage.h"
#include "host/gui/pictureview.h"
#include "host/gui/preferences.h"
#include "host/stitch/workfolder.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QWizard>
#include <QtTest>

#include <atomic>

using namespace PanoHost;

namespace
{

/** Steps that take as long as the test wants. */
struct HeldSteps {
    QSemaphore mayGoOn; ///< alignment and stitch wait for one each
    std::atomic<int> aligned{ 0 };
    std::atomic<int> stitched{ 0 };
    std::optional<Failure> failure; ///< of the stitch
    StitchOptions options; ///< of the last stitch

    /** Until the test lets go, or the user stops it; then false. */
    bool wait(const JobWatch &watch)
    {
        constexpr int kSoonMs = 5;
        while (!mayGoOn.tryAcquire(1, kSoonMs)) {
            if (watch.stopWanted()) {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] MakeSteps steps()
    {
        MakeSteps steps;
        steps.align = [this](const Panorama &panorama, const PtoOptions &projectOptions,
                             const AlignOptions &, const JobWatch &watch) -> Result<Alignment> {
            ++aligned;
            watch.report(1, 4, QStringLiteral("looking for features"));
            watch.note(JobWatch::Note::Warning, QStringLiteral("the third photo is dark"));
            if (!wait(watch)) {
                return interruption();
            }
            return Alignment{ projectOf(panorama, projectOptions).value(), {} };
        };
        steps.needs = [](const PtoFile &, const StitchOptions &) {
            return StitchNeeds{ { 4000, 2000 }, { 4000, 2000 }, 64'000'000, 512'000'000 };
        };
        steps.commands
            = [](const PtoFile &, const StitchOptions &, const QString &) { return QStringList(); };
        steps.stitch = [this](const PtoFile &, const StitchOptions &wanted, const WorkFolder &work,
                              const JobWatch &watch) -> Result<StitchedPicture> {
            ++stitched;
            options = wanted;
            watch.report(0, 2, QStringLiteral("blending"));
            if (!wait(watch)) {
                return interruption();
            }
            if (failure) {
                return *failure;
            }
            StitchedPicture picture;
            picture.path = work.path(QStringLiteral("panorama.v"));
            picture.size = picture.sphere = QSize(400, 200);
            return picture;
        };
        steps.origin = [](const PtoFile &, const StitchedPicture &) { return PictureOrigin(); };
        steps.deliver = [](const DeliverJob &job, const JobWatch &) -> Result<QStringList> {
            QString path = job.output;
            if (job.kinds.first() == Delivery::Picture) {
                QImage picture(400, 200, QImage::Format_RGB32);
                picture.fill(Qt::darkCyan);
                picture.save(path);
            } else {
                path.replace(QStringLiteral(".jpg"),
                             job.kinds.first() == Delivery::Page ? QStringLiteral(".html")
                                                                 : QStringLiteral("_zoom"));
            }
            return QStringList(path);
        };
        return steps;
    }
};

} // namespace

/** The page that makes the panorama; the steps are made up. */
class TestGuiMake : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void resultsGoBesideThePhotos();
    void estimateIsSaidBefore();
    void printsAreMeasuredAsPreferred();
    void stepsAreShownAndThePictureAtTheEnd();
    void stoppedAndGoneOnWith();
    void failureSaysWhatToDoInThisWindow();
    void panoramaThatIsBeingMadeElsewhereIsLeftAlone();
    void settingsBecomeWishes();
    void trustedHeadIsNotAligned();
    void leavingThePageStops();
    void theSameIsNotMadeTwice();
    void pageThatIsDestroyedStops();
    void pictureIsMagnifiedByWheelAndKeys();

private:
    void open(int photosOfEach = 1);
    template <typename Widget> [[nodiscard]] Widget *find(const char *name) const
    {
        return m_wizard->findChild<Widget *>(QLatin1String(name));
    }
    [[nodiscard]] QString state() const { return find<QLabel>("m_makeState")->text(); }
    void press(const char *button) const
    {
        QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
    }
    void make()
    {
        press("m_make");
        m_held->mayGoOn.release(2);
        QTRY_VERIFY(m_page->hasMade());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HeldSteps> m_held;
    std::unique_ptr<QWizard> m_wizard;
    MakePage *m_page = nullptr;
    Panorama m_panorama;
};

void TestGuiMake::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_held = std::make_unique<HeldSteps>();
}

void TestGuiMake::cleanup()
{
    m_wizard.reset();
    m_held.reset();
    m_folder.reset();
}

/** A wizard with a page before, and the panorama of four photos in the folder "card". */
void TestGuiMake::open(int photosOfEach)
{
    m_panorama = TestPanoramas::row(4, photosOfEach);
    QDir(m_folder->path()).mkpath(QStringLiteral("card"));
    for (Position &position : m_panorama.positions) {
        for (PhotoInfo &photo : position.photos) {
            photo.path
                = m_folder->filePath(QStringLiteral("card/") + QFileInfo(photo.path).fileName());
            QImage(12, 8, QImage::Format_RGB32).save(photo.path, "JPG");
        }
    }
    m_panorama.source.record.clear();
    m_wizard = std::make_unique<QWizard>();
    m_wizard->addPage(new QWizardPage);
    m_page = new MakePage(*PanoHostApplication::instance(), m_held->steps());
    m_wizard->addPage(m_page);
    m_wizard->resize(900, 700);
    m_wizard->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wizard.get()));
    m_wizard->next();
    m_page->take(m_panorama);
}

void TestGuiMake::resultsGoBesideThePhotos()
{
    open();
    QCOMPARE(m_page->path(), m_folder->filePath(QStringLiteral("card panorama/card.jpg")));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("card panorama"))));
    // Who forgets the ending gets the usual one.
    find<QLineEdit>("m_makePath")->setText(m_folder->filePath(QStringLiteral("a.b")));
    QCOMPARE(m_page->path(), m_folder->filePath(QStringLiteral("a.b.jpg")));
    find<QLineEdit>("m_makePath")->setText(m_folder->filePath(QStringLiteral("a.TIF")));
    QCOMPARE(m_page->path(), m_folder->filePath(QStringLiteral("a.TIF")));
}

void TestGuiMake::estimateIsSaidBefore()
{
    open();
    QTRY_COMPARE(state(),
                 QStringLiteral("4,000 x 2,000 pixels at most (34 x 17 cm at 300 dpi); takes up to "
                                "64 MB of the disk and 512 MB of memory."));
}

/** 300 pixels to an inch of 2.54 cm. */
void TestGuiMake::printsAreMeasuredAsPreferred()
{
    PanoHostApplication &app = *PanoHostApplication::instance();
    const auto prefer = [&app](const char *units) {
        Preferences box(app, nullptr);
        auto *list = box.findChild<QComboBox *>(QStringLiteral("m_units"));
        list->setCurrentIndex(list->findText(QLatin1String(units)));
        QCOMPARE(list->currentText(), QLatin1String(units));
        box.accept();
    };
    prefer("Inches");
    open();
    QTRY_VERIFY2(state().contains(QStringLiteral("(13 x 6.7 in at 300 dpi)")), qPrintable(state()));
    prefer("Centimetres");
    m_page->take(m_panorama);
    QTRY_VERIFY2(state().contains(QStringLiteral("(34 x 17 cm at 300 dpi)")), qPrintable(state()));
}

void TestGuiMake::stepsAreShownAndThePictureAtTheEnd()
{
    open();
    press("m_make");
    QTRY_VERIFY2(state().startsWith(QStringLiteral("Looking for details in the photos (step 2 of")),
                 qPrintable(state()));
    QCOMPARE(find<QPushButton>("m_make")->text(), QStringLiteral("St&op"));
    QVERIFY(!find<QLineEdit>("m_makePath")->isEnabled());
    QVERIFY(!m_wizard->button(QWizard::FinishButton)->isEnabled());
    QTRY_COMPARE(find<QPlainTextEdit>("m_makeLog")->toPlainText(),
                 QStringLiteral("Warning: the third photo is dark"));
    m_held->mayGoOn.release();
    QTRY_VERIFY2(state().startsWith(QStringLiteral("Blending the photos (step 3 of")),
                 qPrintable(state()));
    QVERIFY(find<QProgressBar>("m_makeProgress")->value() > 0);
    m_held->mayGoOn.release();
    QTRY_VERIFY(m_page->hasMade());
    const QString folder = m_folder->filePath(QStringLiteral("card panorama/"));
    QCOMPARE(state(), QStringLiteral("Done:\n%1card.jpg\n%1card.html").arg(folder));
    QVERIFY(find<PictureView>("m_madePicture")->isVisible());
    QVERIFY(find<QPushButton>("m_openFolder")->isVisible());
    QVERIFY(find<QPushButton>("m_openBrowser")->isVisible());
    QVERIFY(m_wizard->button(QWizard::FinishButton)->isEnabled());
}

void TestGuiMake::stoppedAndGoneOnWith()
{
    open();
    press("m_make");
    m_held->mayGoOn.release();
    QTRY_COMPARE(m_held->stitched.load(), 1);
    press("m_make"); // it says Stop
    QTRY_VERIFY(!m_page->isRunning());
    QCOMPARE(
        state(),
        QStringLiteral("Stopped. What was finished is kept: Make panorama goes on from there."));
    QVERIFY(!m_page->hasMade());
    QCOMPARE(find<QPushButton>("m_make")->text(), QStringLiteral("&Make panorama"));
    press("m_make");
    m_held->mayGoOn.release();
    QTRY_VERIFY(m_page->hasMade());
    QCOMPARE(m_held->aligned.load(), 1);
    QCOMPARE(m_held->stitched.load(), 2);
}

void TestGuiMake::failureSaysWhatToDoInThisWindow()
{
    open();
    m_held->failure = Failure{
        ExitCode::ToolFailed, QStringLiteral("the disk"), QStringLiteral("1 GB is missing"),
        QStringLiteral("make room, name another place with -o, or choose a smaller --size")
    };
    press("m_make");
    m_held->mayGoOn.release(2);
    QTRY_COMPARE(state(),
                 QStringLiteral("the disk: 1 GB is missing; make room, name another place, or "
                                "choose a smaller size"));
    QVERIFY(find<QPushButton>("m_make")->isEnabled());
    QVERIFY(find<QLineEdit>("m_makePath")->isEnabled());
    const QString log = find<QPlainTextEdit>("m_makeLog")->toPlainText();
    QVERIFY2(!log.contains(QStringLiteral("command")), qPrintable(log));
}

void TestGuiMake::panoramaThatIsBeingMadeElsewhereIsLeftAlone()
{
    open();
    const QString folder = m_folder->filePath(QStringLiteral("card panorama"));
    QVERIFY(QDir().mkpath(folder));
    const Result<WorkFolder> other = WorkFolder::open(folder + QStringLiteral("/card.work"));
    QVERIFY(other.ok());
    press("m_make");
    QTRY_VERIFY(!m_page->isRunning());
    QVERIFY2(state().contains(QStringLiteral("wait for it to end, or choose another name")),
             qPrintable(state()));
    QVERIFY2(!state().contains(QStringLiteral(" -o")), qPrintable(state()));
    find<QLineEdit>("m_makePath")->setText(folder + QStringLiteral("/other.jpg"));
    make();
    QCOMPARE(m_held->stitched.load(), 1);
}

void TestGuiMake::settingsBecomeWishes()
{
    open(3);
    QVERIFY(find<QComboBox>("m_makeOutput")->isVisible());
    QCOMPARE(find<QComboBox>("m_makeOutput")->currentText(),
             QStringLiteral("Fused: shows lights and shadows"));
    find<QComboBox>("m_makeSize")->setCurrentIndex(1);
    find<QComboBox>("m_makeOutput")->setCurrentIndex(1);
    find<QCheckBox>("m_makeWebPage")->setChecked(false);
    find<QCheckBox>("m_makeZoom")->setChecked(true);
    make();
    QCOMPARE(m_held->options.size.value, 50.0);
    QCOMPARE(m_held->options.output, StitchOutput::Ldr);
    const QString folder = m_folder->filePath(QStringLiteral("card panorama/"));
    QCOMPARE(state(), QStringLiteral("Done:\n%1card.jpg\n%1card_zoom").arg(folder));
    QVERIFY(!find<QPushButton>("m_openBrowser")->isVisible());
}

void TestGuiMake::trustedHeadIsNotAligned()
{
    open();
    QVERIFY(!find<QComboBox>("m_makeOutput")->isVisible()); // there are no brackets
    find<QCheckBox>("m_trustHead")->setChecked(true);
    make();
    QCOMPARE(m_held->aligned.load(), 0);
    // What the import page has said is offered.
    m_panorama.description.skipOptimization = true;
    m_panorama.positions[0].yawDegrees = 3.0;
    find<QCheckBox>("m_trustHead")->setChecked(false);
    m_page->take(m_panorama);
    QVERIFY(find<QCheckBox>("m_trustHead")->isChecked());
}

void TestGuiMake::leavingThePageStops()
{
    open();
    press("m_make");
    QTRY_COMPARE(m_held->aligned.load(), 1);
    m_wizard->back();
    QTRY_VERIFY(!m_page->isRunning());
    QVERIFY(!m_page->hasMade());
}

void TestGuiMake::theSameIsNotMadeTwice()
{
    open();
    make();
    m_wizard->back();
    m_wizard->next();
    m_page->take(m_panorama);
    QVERIFY(m_page->hasMade());
    QVERIFY(find<QPushButton>("m_openFolder")->isVisible());
    m_panorama.positions[1].yawDegrees += 1.0;
    m_page->take(m_panorama);
    QVERIFY(!m_page->hasMade());
    QVERIFY(find<QPushButton>("m_make")->isVisible());
}

void TestGuiMake::pageThatIsDestroyedStops()
{
    open();
    press("m_make");
    QTRY_COMPARE(m_held->aligned.load(), 1);
    m_wizard.reset();
    QVERIFY(
        QFile::exists(m_folder->filePath(QStringLiteral("card panorama/card.work/1_import.json"))));
}

void TestGuiMake::pictureIsMagnifiedByWheelAndKeys()
{
    PictureView view;
    view.resize(402, 302);
    view.setPicture(QImage(800, 400, QImage::Format_RGB32));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const double fitting = view.magnification();
    QVERIFY2(qAbs(fitting - 0.5) < 0.02, qPrintable(QString::number(fitting)));
    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY2(qAbs(view.magnification() / fitting - 1.25) < 1e-6,
             qPrintable(QString::number(view.magnification())));
    QTest::keyClick(&view, Qt::Key_Minus);
    QTest::keyClick(&view, Qt::Key_Minus);
    QCOMPARE(view.magnification(), fitting);
    QTest::keyClick(&view, Qt::Key_Plus);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton);
    QCOMPARE(view.magnification(), fitting);
}

TEST_CLASS(TestGuiMake, PanoHostApplication)
#include "tst_gui_make.moc"
