// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/pages/everyshoot.h"
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"
#include "ui/xui.h"

#include <QtTest>

/** What the dialogs of all pages do alike. */
class TestEveryDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void dialogHasItsTextsAndOptions_data() { addDialogs(); }
    void dialogHasItsTextsAndOptions();
    void dialogFollowsTheHostsSetting_data() { addDialogs(); }
    void dialogFollowsTheHostsSetting();
    void dialogsStartAtTheCurrentFile_data() { addHeads(allHeads()); }
    void dialogsStartAtTheCurrentFile();
    void recordAndPhotosMayComeTogether_data() { addHeads(headsWithRecords()); }
    void recordAndPhotosMayComeTogether();
    void cancelledPhotoDialogChangesNothing_data() { addHeads(allHeads()); }
    void cancelledPhotoDialogChangesNothing();
    void cancelledRecordDialogChangesNothing_data();
    void cancelledRecordDialogChangesNothing();
    void cancelledDialogOnAnEmptyPageChangesNothing_data() { addDialogs(); }
    void cancelledDialogOnAnEmptyPageChangesNothing();
    void photosAreSortedCaseSensitively_data();
    void photosAreSortedCaseSensitively();
    void hostLearnsTheFirstPhoto_data() { addHeads(allHeads()); }
    void hostLearnsTheFirstPhoto();
    void controlKeyOpensTheFirstPhotoItself_data();
    void controlKeyOpensTheFirstPhotoItself();
    void controlKeyOpensTheLastPathItself_data();
    void controlKeyOpensTheLastPathItself();
    void controlKeyOpensNothingWithoutAPlace_data() { addDialogs(); }
    void controlKeyOpensNothingWithoutAPlace();
    void pageMayGoWhileADialogIsOpen_data() { addDialogs(); }
    void pageMayGoWhileADialogIsOpen();
};

void TestEveryDialog::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestEveryDialog::dialogHasItsTextsAndOptions()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const bool asksForTheRecord = button == kSelectRecord;
    const HeadShoot shoot(*head);
    fakeHost().lastPath = shoot.folder.path();

    const DialogClicker::SeenFileDialog dialog = shoot.driver.cancelFiles(button.constData());

    QCOMPARE(dialog.caption,
             asksForTheRecord ? QStringLiteral("Select the preset file and/or images")
                              : QStringLiteral("Select images"));
    QCOMPARE(dialog.nameFilters,
             asksForTheRecord ? head->recordFilters
                              : QStringList{ QStringLiteral("All Files (*.*)") });
    QCOMPARE(dialog.selectedNameFilter, QStringLiteral("All Files (*.*)"));
    QCOMPARE(dialog.fileMode, QFileDialog::ExistingFiles);
    QCOMPARE(dialog.directory, shoot.folder.path()); // the host's place while nothing is chosen
    QCOMPARE(dialog.fileName, QString());
}

void TestEveryDialog::dialogFollowsTheHostsSetting()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const HeadShoot shoot(*head);
    QVERIFY(shoot.driver.cancelFiles(button.constData())
                .options.testFlag(QFileDialog::DontUseNativeDialog));

    // This platform has no dialogs of its own, so Qt's come all the same.
    fakeHost().uiSettings.useSystemFileDialog = true;
    QVERIFY(!shoot.driver.cancelFiles(button.constData())
                 .options.testFlag(QFileDialog::DontUseNativeDialog));
}

void TestEveryDialog::dialogsStartAtTheCurrentFile()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    fakeHost().lastPath = QDir::tempPath();
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("card/b.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("card/a.jpg")) };
    QCOMPARE(shoot.driver.chooseFiles(kSelectPhotos, photos).directory, QDir::tempPath());
    shoot.driver.waitUntilRead();

    const DialogClicker::SeenFileDialog photoDialog = shoot.driver.cancelFiles(kSelectPhotos);
    QCOMPARE(photoDialog.directory, shoot.folder.path(QStringLiteral("card")));
    QCOMPARE(photoDialog.fileName, QStringLiteral("a.jpg")); // the first of the sorted photos

    if (head->recordName) {
        const QString record = shoot.writeRecord(2, QStringLiteral("head/"));
        QCOMPARE(shoot.driver.chooseFiles(kSelectRecord, { record }).directory, QDir::tempPath());
        const DialogClicker::SeenFileDialog recordDialog = shoot.driver.cancelFiles(kSelectRecord);
        QCOMPARE(recordDialog.directory, shoot.folder.path(QStringLiteral("head")));
        QCOMPARE(recordDialog.fileName, QString::fromLatin1(head->recordName));
    }
}

void TestEveryDialog::recordAndPhotosMayComeTogether()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const QString record
        = shoot.folder.write(QString::fromLatin1(head->recordName).toUpper(), head->record(3));
    QStringList files = shoot.folder.addPhotos(3);
    files.insert(1, record);

    shoot.driver.load(kSelectRecord, files);

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.driver.text("m_leConfigFile"), record);
    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"IMG_0001.jpg\"; \"IMG_0002.jpg\"; \"IMG_0003.jpg\"; "));
    QCOMPARE(fakeHost().setLastPaths, QStringList{ record });
}

void TestEveryDialog::cancelledPhotoDialogChangesNothing()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);
    const QStringList told = fakeHost().setLastPaths;
    const QStringList read = fakeHost().readFiles();
    const QString names = shoot.driver.text("m_leImage");
    const QImage picture = shoot.driver.picture();

    shoot.driver.cancelFiles(kSelectPhotos);
    shoot.driver.waitUntilRead();

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.count(), shoot.countOf(2));
    QCOMPARE(shoot.driver.text("m_leImage"), names);
    QCOMPARE(shoot.driver.picture(), picture);
    QCOMPARE(fakeHost().setLastPaths, told);
    QCOMPARE(fakeHost().readFiles(), read);
}

void TestEveryDialog::cancelledRecordDialogChangesNothing_data()
{
    addHeads(headsThat(
        [](const Head &head) { return head.recordName != nullptr && !head.rereadsOnCancel; }));
}

void TestEveryDialog::cancelledRecordDialogChangesNothing()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);
    const QStringList told = fakeHost().setLastPaths;
    const QStringList read = fakeHost().readFiles();
    const QString path = shoot.writeRecord(4);

    shoot.driver.cancelFiles(kSelectRecord);
    shoot.driver.waitUntilRead();

    QCOMPARE(shoot.driver.text("m_leConfigFile"), path);
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QCOMPARE(fakeHost().setLastPaths, told);
    QCOMPARE(fakeHost().readFiles(), read);
    QVERIFY(shoot.page->isComplete());
}

void TestEveryDialog::cancelledDialogOnAnEmptyPageChangesNothing()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const HeadShoot shoot(*head);
    // Something that the page could read.
    fakeHost().lastPath
        = head->recordName ? shoot.writeRecord(2) : shoot.folder.addPhoto(QStringLiteral("a.jpg"));

    shoot.driver.cancelFiles(button.constData());

    checkFreshTexts(shoot);
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().readFiles().isEmpty());
}

void TestEveryDialog::photosAreSortedCaseSensitively_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("button");
    for (const Head *head : allHeads()) {
        QTest::addRow("%s: photos", head->name) << head << QByteArray(kSelectPhotos);
    }
    for (const Head *head : headsWithRecords()) {
        if (!head->keepsDialogOrder) {
            QTest::addRow("%s: record", head->name) << head << QByteArray(kSelectRecord);
        }
    }
}

void TestEveryDialog::photosAreSortedCaseSensitively()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const HeadShoot shoot(*head);
    QStringList files;
    for (const char *name : { "a.jpg", "IMG_9.jpg", "Z.jpg", "IMG_10.jpg" }) {
        files.append(shoot.folder.addPhoto(QString::fromLatin1(name)));
    }

    shoot.driver.load(button.constData(), files);

    QCOMPARE(namesOf(fakeHost().readFiles()),
             (QStringList{ QStringLiteral("IMG_10.jpg"), QStringLiteral("IMG_9.jpg"),
                           QStringLiteral("Z.jpg"), QStringLiteral("a.jpg") }));
    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"IMG_10.jpg\"; \"IMG_9.jpg\"; \"Z.jpg\"; \"a.jpg\"; "));
}

void TestEveryDialog::hostLearnsTheFirstPhoto()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const QStringList files{ shoot.folder.addPhoto(QStringLiteral("b.jpg")),
                             shoot.folder.addPhoto(QStringLiteral("a.jpg")) };

    shoot.driver.load(kSelectPhotos, files);

    QCOMPARE(fakeHost().setLastPaths, QStringList{ shoot.folder.path(QStringLiteral("a.jpg")) });
}

// The other pages open the folder instead.
void TestEveryDialog::controlKeyOpensTheFirstPhotoItself_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("name");
    for (const Head *head : headsThat([](const Head &one) { return one.showsPhotoItself; })) {
        const auto row = [head](const char *name, const char *photo) {
            QTest::addRow("%s: %s", head->name, name) << head << QString::fromUtf8(photo);
        };
        row("plain", "shoot/a.jpg");
        row("number sign", "shoot #1/a#2.jpg");
        row("question mark", "which?/a?.jpg");
        row("percent", "50%41/a%20.jpg");
        row("umlauts", "Höhe über Zürich/ä.jpg");
    }
}

void TestEveryDialog::controlKeyOpensTheFirstPhotoItself()
{
    QFETCH(const Head *, head);
    QFETCH(QString, name);
    const HeadShoot shoot(*head);
    const QString second = shoot.folder.addPhoto(
        QString(name).replace(QLatin1String(".jpg"), QLatin1String("_z.jpg")));
    const QString first = shoot.folder.addPhoto(name);
    QVERIFY(first < second);
    shoot.loadRecord(2);
    shoot.driver.load(kSelectPhotos, { second, first });
    const QStringList told = fakeHost().setLastPaths;
    const QString before = shoot.driver.text("m_leImage");
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QCOMPARE(desktop.urls(), QVector<QUrl>{ QUrl::fromLocalFile(first) });
    QCOMPARE(desktop.urls().first().toLocalFile(), first);
    QVERIFY(clicker.fileDialogs().isEmpty());
    QCOMPARE(shoot.driver.text("m_leImage"), before);
    QVERIFY(shoot.page->isComplete());
    QCOMPARE(fakeHost().setLastPaths, told);
}

void TestEveryDialog::controlKeyOpensTheLastPathItself_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("place");
    for (const Head *head : headsThat([](const Head &one) { return one.showsPhotoItself; })) {
        QTest::addRow("%s: a photo", head->name) << head << QStringLiteral("before #1/a.jpg");
        QTest::addRow("%s: nothing any more", head->name) << head << QStringLiteral("last/place");
    }
}

void TestEveryDialog::controlKeyOpensTheLastPathItself()
{
    QFETCH(const Head *, head);
    QFETCH(QString, place);
    const HeadShoot shoot(*head);
    shoot.folder.addPhoto(QStringLiteral("before #1/a.jpg"));
    fakeHost().lastPath = shoot.folder.path(place);
    const DesktopCatcher desktop;

    shoot.driver.click(kSelectPhotos, Qt::ControlModifier);

    QCOMPARE(desktop.urls().size(), 1);
    QCOMPARE(desktop.urls().first().toLocalFile(), fakeHost().lastPath);
    checkFreshTexts(shoot);
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().readFiles().isEmpty());
}

void TestEveryDialog::controlKeyOpensNothingWithoutAPlace()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const HeadShoot shoot(*head);
    const DesktopCatcher desktop;
    const DialogClicker clicker;

    shoot.driver.click(button.constData(), Qt::ControlModifier);

    QVERIFY(desktop.urls().isEmpty());
    QVERIFY(clicker.fileDialogs().isEmpty());
}

void TestEveryDialog::pageMayGoWhileADialogIsOpen()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, button);
    const HeadShoot shoot(*head);
    DialogClicker clicker;
    clicker.beforeNextAnswer([&shoot] { delete shoot.page.data(); });

    shoot.driver.click(button.constData());

    QVERIFY(shoot.page.isNull());
    QCOMPARE(clicker.fileDialogs().size(), 1);
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().readFiles().isEmpty());
}

TEST_CLASS(TestEveryDialog, FakeApplication)
#include "tst_everydialog.moc"
