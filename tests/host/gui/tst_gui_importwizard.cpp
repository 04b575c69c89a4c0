// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/choicepage.h"
#include "host/gui/importwizard.h"
#include "host/gui/readingbar.h"
#include "host/gui/resultpage.h"
#include "host/gui/savedlist.h"
#include "host/gui/shootstrip.h"
#include "host/import/dialogcatcher.h"
#include "host/view/shootview.h"
#include "tests/host/testphotos.h"
#include "tests/support/hosthead.h"
#include "tests/support/testprogram.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

class TestImportWizard : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

    Q_SLOT void openUrl(const QUrl &url) { m_opened += url; }

private Q_SLOTS:
    void init();
    void cleanup();
    void headsAreOfferedWithNameAndComment();
    void lastHeadIsPreselected();
    void nextBackNextGivesNoPhotoTwice();
    void startingOverKeepsOldPhotosOut();
    void closingWhilePhotosLoadEndsAtOnce();
    void unloadingAfterUseWorks();
    void resultIsSummedUp();
    void photosOutOfOrderAreNamed();
    void resultIsSaved();
    void failedSavingIsSaid();
    void fileNamesAreNotReadAsMarkup();
    void finishWithoutSavingAsks();
    void finishAfterSavingDoesNotAsk();
    void droppedFilesAreFilledIn();
    void xmlGoesToAHeadThatReadsIt();
    void scriptGoesToAHeadThatReadsIt();
    void namesThatTheDialogCannotTakeAreSaid();
    void barStandsUnderThePageWhilePhotosAreRead();
    void barSaysHowFarThePageHasCome();
    void unreadablePhotoKeepsNextDisabled();
    void subtitleLinksOpenInTheBrowser();
    void enterMovesOnePageOnly();

private:
    [[nodiscard]] QString writeRecord(int shots);
    [[nodiscard]] QStringList writePhotos(int count, const QSize &size = QSize(60, 40));
    void makeWizard();
    void fillPapywizard(int count);
    [[nodiscard]] QListWidget *heads() const;
    /** The row of the head \p name. */
    [[nodiscard]] int rowOf(const char *name) const;
    [[nodiscard]] ResultPage *result() const;
    [[nodiscard]] QAbstractButton *next() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PluginLibrary> m_library;
    std::unique_ptr<ImportWizard> m_wizard;
    QVector<QUrl> m_opened;
};

void TestImportWizard::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    PanoHostApplication::instance()->setSettingsFile(m_folder->filePath(QStringLiteral("s.ini")));
    makeWizard();
}

void TestImportWizard::cleanup()
{
    m_wizard.reset();
    m_library.reset();
    m_opened.clear();
}

void TestImportWizard::makeWizard()
{
    m_wizard.reset();
    m_library.reset();
    auto library = PluginLibrary::open(QStringLiteral(PANOHOST_TEST_LIBRARY));
    QVERIFY2(library.ok(), library.ok() ? "" : qPrintable(library.error().text()));
    m_library = std::move(library).value();
    m_wizard = std::make_unique<ImportWizard>(*PanoHostApplication::instance(), *m_library);
    m_wizard->resize(900, 720); // room for all of every page
    m_wizard->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wizard.get()));
}

QString TestImportWizard::writeRecord(int shots)
{
    QByteArray xml = "<papywizard><header><lens type=\"rectilinear\"><focal>24</focal></lens>"
                     "</header><shoot>";
    for (int i = 0; i < shots; ++i) {
        xml += "<pict id=\"1\" bracket=\"1\"><position yaw=\"" + QByteArray::number(30 * i)
            + ".0\" pitch=\"0.0\"/></pict>";
    }
    return TestPhotos::writeFile(m_folder->filePath(QStringLiteral("record.xml")),
                                 xml + "</shoot></papywizard>");
}

QStringList TestImportWizard::writePhotos(int count, const QSize &size)
{
    QStringList photos;
    const QString first = m_folder->filePath(QStringLiteral("photo.jpg"));
    TestPhotos::writeOrdinary(first, size);
    for (int i = 0; i < count; ++i) {
        photos += m_folder->filePath(QStringLiteral("%1.jpg").arg(i, 4, 10, QLatin1Char('0')));
        QFile::link(first, photos.last());
    }
    return photos;
}

void TestImportWizard::fillPapywizard(int count)
{
    m_wizard->fillIn(QStringList(writeRecord(count)) + writePhotos(count));
    QTRY_VERIFY(next()->isEnabled());
    QVERIFY(m_wizard->currentPage()->isComplete());
    // The page may be complete before it hears of the last photos, and of their lens; a user's
    // click comes after that, one out of a test does not.
    QCoreApplication::processEvents();
}

ResultPage *TestImportWizard::result() const
{
    return qobject_cast<ResultPage *>(m_wizard->currentPage());
}

QAbstractButton *TestImportWizard::next() const
{
    return m_wizard->button(QWizard::NextButton);
}

QListWidget *TestImportWizard::heads() const
{
    return m_wizard->findChild<QListWidget *>(QStringLiteral("m_heads"));
}

int TestImportWizard::rowOf(const char *name) const
{
    const QListWidget *list = heads();
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(Qt::AccessibleTextRole) == QLatin1String(name)) {
            return row;
        }
    }
    qFatal("No head is called %s", name);
}

void TestImportWizard::headsAreOfferedWithNameAndComment()
{
    const QListWidget *list = heads();
    QCOMPARE(list->count(), static_cast<int>(allHostHeads().size()));
    int row = 0;
    for (const HostHead *head : allHostHeads()) {
        const QListWidgetItem *item = list->item(row++);
        const QString title = item->data(Qt::AccessibleTextRole).toString();
        QCOMPARE(title, QString::fromLatin1(head->name));
        const QStringList lines = item->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.mid(0, 2), QStringList({ title, QLatin1String(head->comment) }));
        QVERIFY2(lines.last().startsWith(QLatin1String("Needs ")), qPrintable(lines.last()));
        QVERIFY(!item->icon().isNull());
    }
}

void TestImportWizard::lastHeadIsPreselected()
{
    QCOMPARE(heads()->currentRow(), -1); // that one sorts first is no reason
    heads()->setCurrentRow(rowOf("Gigapan"));
    next()->click();
    QVERIFY(m_wizard->currentPage()->inherits("UIWPGigapan"));
    m_wizard->reject();
    makeWizard();
    QCOMPARE(heads()->currentRow(), rowOf("Gigapan"));
}

void TestImportWizard::nextBackNextGivesNoPhotoTwice()
{
    fillPapywizard(6);
    for (int round = 1; round <= 3; ++round) {
        next()->click();
        QVERIFY(result());
        // The page hands over what it has collected in all rounds.
        QCOMPARE(PanoHostApplication::instance()->delivery().imageGroups.size(), 6 * round);
        const Panorama &panorama = *result()->panorama();
        QCOMPARE(panorama.positions.size(), 6);
        QCOMPARE(photoCount(panorama), 6);
        // Pairs 30 and 60 degrees apart are within reach (64.7 degrees): 5 + 4.
        QCOMPARE(panorama.description.authorizedLinks.size(), 9);
        QVERIFY(qAbs(panorama.positions.at(5).yawDegrees - 150.0) < 1e-4);
        m_wizard->back();
        QVERIFY(m_wizard->currentPage()->inherits("UIWPMerlin"));
    }
}

void TestImportWizard::startingOverKeepsOldPhotosOut()
{
    fillPapywizard(6);
    next()->click();
    QCOMPARE(photoCount(*result()->panorama()), 6);
    m_wizard->back();
    m_wizard->back();
    QVERIFY(qobject_cast<ChoicePage *>(m_wizard->currentPage()));
    fillPapywizard(2);
    next()->click();
    QCOMPARE(photoCount(*result()->panorama()), 2);
    QCOMPARE(result()->panorama()->positions.size(), 2);
    QCOMPARE(result()->panorama()->description.authorizedLinks.size(), 1);
}

void TestImportWizard::closingWhilePhotosLoadEndsAtOnce()
{
    constexpr int kCount = 400;
    QSignalSpy read(PanoHostApplication::instance(), &PanoHostApplication::photoRead);
    m_wizard->fillIn(QStringList(writeRecord(kCount)) + writePhotos(kCount, QSize(1200, 800)));
    QTRY_VERIFY(!read.isEmpty());
    m_wizard->close();
    m_wizard.reset();
    QVERIFY(m_library->unload());
    QVERIFY(read.size() < kCount);
}

void TestImportWizard::unloadingAfterUseWorks()
{
    fillPapywizard(3);
    next()->click();
    QVERIFY(result());
    m_wizard.reset();
    QVERIFY(m_library->unload());
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    QVERIFY(!maps.readAll().contains("libXPanoHead"));
}

void TestImportWizard::resultIsSummedUp()
{
    fillPapywizard(3);
    auto *page = m_wizard->currentPage();
    page->findChild<QAbstractButton *>(QStringLiteral("m_noOptim"))->click();
    next()->click();
    QCOMPARE(result()->findChild<QLabel *>(QStringLiteral("m_summary"))->text(),
             QStringLiteral("3 photos at 3 positions, standard lens of 24 mm, 3 links"));
    QString lines;
    for (const QLabel *label :
         result()->findChild<QWidget *>(QStringLiteral("m_lines"))->findChildren<QLabel *>()) {
        lines += label->text() + QLatin1Char('\n');
    }
    for (const char *part : { "record.xml", "standard lens of 24 mm",
                              "The head is trusted: photos stay where it has recorded them." }) {
        QVERIFY2(lines.contains(QLatin1String(part)), qPrintable(lines));
    }
    const ShootScene &scene = result()->findChild<ShootView *>()->scene();
    QCOMPARE(scene.frames.size(), 3);
    QVERIFY(qAbs(scene.frames.at(2).angles.yaw - 60.0) < 1e-4);
    QCOMPARE(scene.links.size(), 3);
    for (const ShootFrame &frame : scene.frames) {
        QVERIFY(frame.isLinked);
    }
}

void TestImportWizard::photosOutOfOrderAreNamed()
{
    QStringList photos = writePhotos(3);
    QVERIFY(QFile::remove(photos.last())); // all are one and the same
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif.insert("Exif.Photo.DateTimeOriginal", "2024:05:01 09:59:58");
    TestPhotos::writeJpeg(photos.last(), TestPhotos::quarters(QSize(60, 40)), exif);
    m_wizard->fillIn(QStringList(writeRecord(3)) + photos);
    QTRY_VERIFY(next()->isEnabled());
    QCoreApplication::processEvents(); // see fillPapywizard
    next()->click();
    QCOMPARE(result()->findChild<QLabel *>(QStringLiteral("m_warnings"))->text(),
             QStringLiteral("Order: %1 was taken before %2")
                 .arg(QFileInfo(photos.at(2)).fileName(), QFileInfo(photos.at(1)).fileName()));
}

void TestImportWizard::resultIsSaved()
{
    fillPapywizard(3);
    next()->click();
    const QString project = m_folder->filePath(QStringLiteral("a.pto"));
    const QString json = m_folder->filePath(QStringLiteral("a.json"));
    QVERIFY(result()->saveProject(project));
    QVERIFY(result()->saveJson(json));
    QCOMPARE(result()->findChild<SavedList *>()->files(), QStringList({ json, project }));
    QFile written(project);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll().count("\ni "), 3);
    QVERIFY(QFile::exists(json));
}

void TestImportWizard::failedSavingIsSaid()
{
    fillPapywizard(3);
    next()->click();
    QVERIFY(!result()->saveProject(m_folder->filePath(QStringLiteral("nosuch/a.pto"))));
    QVERIFY(result()
                ->findChild<QLabel *>(QStringLiteral("m_problem"))
                ->text()
                .startsWith(QLatin1String("a.pto was not saved: the folder ")));
}

void TestImportWizard::fileNamesAreNotReadAsMarkup()
{
    fillPapywizard(3);
    next()->click();
    m_wizard->resize(1600, 900); // all of it can be read
    const QString name = QStringLiteral("<h1>Your licence has expired<img src='x'>.pto");
    QVERIFY(result()->saveProject(m_folder->filePath(name)));
    int shown = 0;
    QCoreApplication::processEvents();
    for (const QLabel *label : m_wizard->findChildren<QLabel *>()) {
        if (label->text().contains(name)) {
            ++shown;
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
    }
    QCOMPARE(shown, 1);
}

void TestImportWizard::finishWithoutSavingAsks()
{
    fillPapywizard(3);
    next()->click();
    {
        DialogCatcher cancel;
        m_wizard->button(QWizard::FinishButton)->click();
        QCOMPARE(cancel.takeMessages().size(), 1);
    }
    QVERIFY(m_wizard->isVisible());
}

void TestImportWizard::finishAfterSavingDoesNotAsk()
{
    fillPapywizard(3);
    next()->click();
    QVERIFY(result()->saveJson(m_folder->filePath(QStringLiteral("a.json"))));
    DialogCatcher dialogs;
    m_wizard->button(QWizard::FinishButton)->click();
    QCOMPARE(dialogs.takeMessages(), QStringList());
    QVERIFY(!m_wizard->isVisible());
}

void TestImportWizard::droppedFilesAreFilledIn()
{
    QMimeData data;
    QList<QUrl> urls{ QUrl::fromLocalFile(writeRecord(2)) };
    for (const QString &photo : writePhotos(2)) {
        urls += QUrl::fromLocalFile(photo);
    }
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_wizard.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_wizard.get(), &drop);
    QVERIFY(m_wizard->currentPage()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_wizard->currentPage()->isComplete());
    QCOMPARE(m_wizard->currentPage()->findChild<QLineEdit *>(QStringLiteral("m_leImage"))->text(),
             QStringLiteral("\"0000.jpg\"; \"0001.jpg\"; "));
}

void TestImportWizard::xmlGoesToAHeadThatReadsIt()
{
    heads()->setCurrentRow(rowOf("Clauss")); // Clauss reads scripts
    m_wizard->fillIn({ writeRecord(2) });
    QVERIFY(m_wizard->currentPage()->inherits("UIWPMerlin"));
    m_wizard->back();
    heads()->setCurrentRow(rowOf("VRDrive2"));
    m_wizard->fillIn({ writeRecord(2) });
    QVERIFY(m_wizard->currentPage()->inherits("UIWPVRDrive2"));
}

void TestImportWizard::scriptGoesToAHeadThatReadsIt()
{
    heads()->setCurrentRow(rowOf("Papywizard"));
    const QString script
        = TestPhotos::writeFile(m_folder->filePath(QStringLiteral("Script.TXT")), "");
    m_wizard->fillIn({ script });
    QVERIFY(m_wizard->currentPage()->inherits("UIWPClauss"));
    QCOMPARE(
        m_wizard->currentPage()->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"))->text(),
        script);
}

void TestImportWizard::barStandsUnderThePageWhilePhotosAreRead()
{
    m_wizard->show();
    auto *bar = m_wizard->findChild<ReadingBar *>();
    QCOMPARE(bar->total(), 0);
    m_wizard->fillIn(QStringList(writeRecord(12)) + writePhotos(12));
    QCOMPARE(bar->total(), 12); // the record is none of them
    QTRY_COMPARE(bar->total(), 0);
    QTRY_VERIFY(next()->isEnabled());
    QVERIFY(!bar->isVisible());

    const QWidget *content = next()->parentWidget();
    auto *strip = m_wizard->findChild<ShootStrip *>();
    QTRY_COMPARE(StripTexts::summary(strip->rows()), QStringLiteral("Everything agrees"));
    strip->setOpen(false);
    const int before = content->height();
    QCOMPARE(before, m_wizard->height() - strip->height());
    bar->begin(300);
    QTRY_VERIFY(bar->isVisible());
    QCOMPARE(bar->geometry().bottom(), m_wizard->rect().bottom());
    QCOMPARE(bar->width(), m_wizard->width());
    QCOMPARE(content->height(), m_wizard->height() - bar->height() - strip->height());
    m_wizard->resize(m_wizard->size() + QSize(40, 50));
    QCOMPARE(bar->geometry().bottom(), m_wizard->rect().bottom());
    QCOMPARE(content->height(), m_wizard->height() - bar->height() - strip->height());
    bar->end();
    QVERIFY(!bar->isVisible());
    QCOMPARE(content->height(), m_wizard->height() - strip->height());
}

void TestImportWizard::barSaysHowFarThePageHasCome()
{
    ReadingBar bar;
    bar.announce(3);
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.findChild<QLabel *>()->text(), QStringLiteral("3 photos are handed over..."));
    bar.begin(3);
    QCOMPARE(bar.text(), QStringLiteral("0 of 3 photos"));
    bar.advance();
    QVERIFY(bar.text().startsWith(QLatin1String("1 of 3 photos")));
    bar.advance();
    bar.advance();
    QCOMPARE(bar.total(), 0);
    bar.advance(); // of a run that was given up
    QCOMPARE(bar.total(), 0);
    bar.begin(300);
    for (int i = 0; i < 120; ++i) {
        bar.advance();
    }
    // How much is left is not known in the first two seconds.
    static const QRegularExpression all(
        QStringLiteral("^120 of 300 photos, \\d+ per second, \\d+ s left$"));
    QTRY_VERIFY2(bar.text().contains(all), qPrintable(bar.text()));
}

void TestImportWizard::namesThatTheDialogCannotTakeAreSaid()
{
    const QString photo = m_folder->filePath(QStringLiteral("a\"b.jpg"));
    TestPhotos::writeOrdinary(photo);
    DialogCatcher dialogs;
    m_wizard->fillIn({ writeRecord(1), photo });
    const QStringList messages = dialogs.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages.first().contains(QLatin1String("double quote")));
}

void TestImportWizard::unreadablePhotoKeepsNextDisabled()
{
    QStringList photos = writePhotos(3);
    QVERIFY(QFile::remove(photos.at(1)));
    TestPhotos::writeFile(photos.at(1), "no photo");
    QSignalSpy read(PanoHostApplication::instance(), &PanoHostApplication::photoRead);
    m_wizard->fillIn(QStringList(writeRecord(3)) + photos);
    QTRY_COMPARE(read.size(), 3);
    QVERIFY(!next()->isEnabled());
}

void TestImportWizard::subtitleLinksOpenInTheBrowser()
{
    fillPapywizard(2);
    const QString subtitle = m_wizard->currentPage()->subTitle();
    const QRegularExpressionMatch link
        = QRegularExpression(QStringLiteral("href=[\"']([^\"']+)[\"']")).match(subtitle);
    QVERIFY2(link.hasMatch(), qPrintable(subtitle));
    QLabel *label = nullptr;
    for (QLabel *candidate : m_wizard->findChildren<QLabel *>()) {
        if (candidate->text() == subtitle && candidate->isVisible()) {
            label = candidate;
        }
    }
    QVERIFY(label);
    QVERIFY(!label->openExternalLinks()); // the page opens it
    const QUrl url(link.captured(1));
    QDesktopServices::setUrlHandler(url.scheme(), this, "openUrl");
    label->setFocus();
    QTest::keyClick(label, Qt::Key_Tab);
    QTest::keyClick(label, Qt::Key_Return);
    QDesktopServices::unsetUrlHandler(url.scheme());
    QCOMPARE(m_opened, QVector<QUrl>{ url });
}

void TestImportWizard::enterMovesOnePageOnly()
{
    heads()->setCurrentRow(rowOf("Papywizard"));
    heads()->setFocus();
    QTest::keyClick(heads(), Qt::Key_Return);
    QVERIFY(m_wizard->currentPage()->inherits("UIWPMerlin"));
    QVERIFY(!next()->isEnabled());
}

TEST_CLASS(TestImportWizard, PanoHostApplication)
#include "tst_gui_importwizard.moc"
