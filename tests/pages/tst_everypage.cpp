// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/pages/everyshoot.h"
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"
#include "tests/support/heldphotos.h"
#include "ui/xui.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QWizard>
#include <QtTest>

/** What the pages of all heads do alike. */
class TestEveryPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testsKnowTheHeadAsTheHostDoes_data() { addHeads(allHeads()); }
    void testsKnowTheHeadAsTheHostDoes();
    void newPageIsEmpty_data() { addHeads(allHeads()); }
    void newPageIsEmpty();
    void photosAreListedByNameAndCounted_data() { addHeads(allHeads()); }
    void photosAreListedByNameAndCounted();
    void twoThousandPhotosAreListedWhole_data() { addHeads(allHeads()); }
    void twoThousandPhotosAreListedWhole();
    void newPhotosReplaceThoseBeingRead_data() { addHeads(allHeads()); }
    void newPhotosReplaceThoseBeingRead();
    void resetShowsAFreshPage_data() { addHeads(allHeads()); }
    void resetShowsAFreshPage();
    void resetForgetsPathPhotosAndShots_data() { addHeads(allHeads()); }
    void resetForgetsPathPhotosAndShots();
    void resetLeavesTheUsersChoicesAlone_data() { addHeads(allHeads()); }
    void resetLeavesTheUsersChoicesAlone();
    void resetStopsTheReading_data() { addHeads(allHeads()); }
    void resetStopsTheReading();
    void resetWhileReadingLeavesNoPhotoToCount_data() { addHeads(headsWithRecords()); }
    void resetWhileReadingLeavesNoPhotoToCount();
    void allLevelsBringDetectedPoints_data() { addHeads(headsWithLinking()); }
    void allLevelsBringDetectedPoints();
    void hardLinksBringTheReferenceLevel_data() { addHeads(headsWithLinking()); }
    void hardLinksBringTheReferenceLevel();
    void otherRadioButtonsChangeNothingElse_data() { addHeads(headsWithLinking()); }
    void otherRadioButtonsChangeNothingElse();
    void savedStateIsEmpty_data();
    void savedStateIsEmpty();
    void enteringThePageChangesNothing_data() { addHeads(headsWithRecords()); }
    void enteringThePageChangesNothing();
    void browserOpensWhatItIsGiven_data() { addHeads(allHeads()); }
    void browserOpensWhatItIsGiven();
    void pageMayGoWhilePhotosAreRead_data() { addHeads(allHeads()); }
    void pageMayGoWhilePhotosAreRead();
};

void TestEveryPage::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

/** What a head is said to have decides which rows it gets: no head is left out by an oversight. */
void TestEveryPage::testsKnowTheHeadAsTheHostDoes()
{
    QFETCH(const Head *, head);
    const PanoHead::HeadFacts &facts = *head->facts;
    const HostHead &host = *head->host;
    QCOMPARE(facts.about->nameText(), QString::fromLatin1(host.name));
    QCOMPARE(facts.about->uidText(), QString::fromLatin1(host.uid));
    QCOMPARE(QByteArray(host.title), QByteArray(head->name));
    QCOMPARE(facts.hasLens, host.hasLens);
    QCOMPARE(facts.turnsCamera, host.turnsCamera);
    QCOMPARE(facts.notesBrackets, head->bracketsOf != nullptr);
    QVERIFY(!head->handsOver.empty() && !head->options.empty() && !head->chosen.empty());
    for (const bool hasRecord :
         { host.recordName != nullptr, host.record != nullptr, host.hostileFiles != nullptr,
           head->recordName != nullptr, head->recordOf != nullptr, head->parse != nullptr,
           head->enterPath != nullptr }) {
        QCOMPARE(hasRecord, !facts.isGrid());
    }
    if (!facts.isGrid()) {
        QCOMPARE(facts.ordersByTime, host.ordersByTime);
        QCOMPARE(facts.ordersByTime, head->order != PhotoOrder::AsRead);
        QVERIFY(facts.isRecord(QString::fromLatin1(head->recordName)));
        PanoHead::ReadError error;
        const auto summary = facts.summary(head->record(3), &error);
        QVERIFY2(summary, qPrintable(error.reason));
        QCOMPARE(summary->shotCount, 3);
    }
}

void TestEveryPage::newPageIsEmpty()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);

    checkFreshTexts(shoot);
    QCOMPARE(shoot.driver.picture().size(), head->freshPicture);
    QVERIFY(fakeHost().setLastPaths.isEmpty());
    QVERIFY(fakeHost().descriptions.isEmpty());
}

void TestEveryPage::photosAreListedByNameAndCounted()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("b <i>c; d.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("sub/e.tif")) };

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.driver.text("m_leImage"),
             QStringLiteral("\"a.jpg\"; \"b <i>c; d.jpg\"; \"e.tif\"; "));
    QCOMPARE(shoot.count(), shoot.countOf(3));
    // Every photo of the largest shoots.
    QVERIFY(shoot.driver.find<QLineEdit>("m_leImage")->maxLength() > 1'000'000);
}

void TestEveryPage::twoThousandPhotosAreListedWhole()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QStringList photos;
    QString expected;
    for (int i = 0; i < 2000; ++i) {
        const QString name
            = QStringLiteral("panorama_photo_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        photos.append(shoot.folder.addPhoto(name));
        expected += QLatin1Char('"') + name + QLatin1String("\"; ");
    }

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.count(), shoot.countOf(2000));
    QCOMPARE(expected.size(), 2000 * 27);
    QVERIFY(shoot.driver.text("m_leImage") == expected);
}

void TestEveryPage::newPhotosReplaceThoseBeingRead()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("new_1.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("new_2.jpg")) };
    const HeldPhotos held(shoot.driver, shoot.folder);

    shoot.driver.load(kSelectPhotos, photos);

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.count(), shoot.countOf(2));
    QCOMPARE(shoot.driver.text("m_leImage"), QStringLiteral("\"new_1.jpg\"; \"new_2.jpg\"; "));
    QCOMPARE(namesOf(fakeHost().readFiles()),
             (QStringList{ QStringLiteral("IMG_0001.jpg"), QStringLiteral("IMG_0002.jpg"),
                           QStringLiteral("new_1.jpg"), QStringLiteral("new_2.jpg") }));
}

void TestEveryPage::resetShowsAFreshPage()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadEverything();
    for (const TextOn &fresh : head->freshTexts) {
        QVERIFY2(shoot.driver.text(fresh.widget) != fresh.text, fresh.widget);
    }
    for (const char *button : head->freshDisabled) {
        QVERIFY2(shoot.driver.find<QWidget>(button)->isEnabled(), button);
    }
    const QImage fresh = HeadShoot(*head).driver.picture();
    QVERIFY(shoot.driver.picture() != fresh);

    shoot.driver.click("m_pbReset");

    checkFreshTexts(shoot);
    QCOMPARE(shoot.driver.picture(), fresh);
}

void TestEveryPage::resetForgetsPathPhotosAndShots()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(3);
    shoot.loadPhotos(3);
    QVERIFY(shoot.page->validatePage());
    fakeHost().lastPath = shoot.folder.path(QStringLiteral("elsewhere"));
    QDir().mkpath(fakeHost().lastPath);

    shoot.driver.click("m_pbReset");

    QVERIFY(!shoot.page->isComplete());
    // What was handed over before stays in the page's own description.
    QCOMPARE(shoot.made.description->imageGroups.size(), 3);
    // No dialog knows a file of its own any more.
    QCOMPARE(shoot.driver.cancelFiles(kSelectPhotos).directory, fakeHost().lastPath);
    if (head->recordName) {
        QVERIFY(shoot.made.shots->isEmpty());
        QCOMPARE(shoot.driver.cancelFiles(kSelectRecord).directory, fakeHost().lastPath);
    }
}

void TestEveryPage::resetLeavesTheUsersChoicesAlone()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadEverything();
    for (const char *button : head->choices) {
        shoot.driver.click(button);
    }
    for (const ValueOf &entry : head->entries) {
        shoot.driver.find<QWidget>(entry.widget)->setProperty(entry.property, entry.value);
    }

    shoot.driver.click("m_pbReset");

    for (const ValueOf &chosen : head->chosen) {
        QVERIFY2(shoot.value(chosen) == chosen.value, chosen.widget);
    }
}

void TestEveryPage::resetStopsTheReading()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    HeldPhotos held(shoot.driver, shoot.folder);

    shoot.driver.click("m_pbReset");

    QVERIFY(!isReading(shoot));
    held.letGo();
    shoot.driver.waitUntilRead();
    QCOMPARE(fakeHost().readFiles().size(), 2);
    checkFreshTexts(shoot);
    QCOMPARE(shoot.driver.picture().size(), head->freshPicture);
}

void TestEveryPage::resetWhileReadingLeavesNoPhotoToCount()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const HeldPhotos held(shoot.driver, shoot.folder);
    shoot.driver.click("m_pbReset");

    shoot.loadRecord(0);

    QVERIFY(shoot.page->isComplete());
}

void TestEveryPage::allLevelsBringDetectedPoints()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);

    shoot.driver.click("m_rbLevelLinking1");

    QVERIFY(isChecked(shoot, "m_rbLevelLinking1"));
    QVERIFY(!isChecked(shoot, "m_rbLevelLinking0"));
    QVERIFY(isChecked(shoot, "m_rbStackLinking1"));
    QVERIFY(!isChecked(shoot, "m_rbStackLinking0"));
}

void TestEveryPage::hardLinksBringTheReferenceLevel()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.driver.click("m_rbLevelLinking1");

    shoot.driver.click("m_rbStackLinking0");

    QVERIFY(isChecked(shoot, "m_rbStackLinking0"));
    QVERIFY(!isChecked(shoot, "m_rbStackLinking1"));
    QVERIFY(isChecked(shoot, "m_rbLevelLinking0"));
    QVERIFY(!isChecked(shoot, "m_rbLevelLinking1"));
}

void TestEveryPage::otherRadioButtonsChangeNothingElse()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);

    shoot.driver.click("m_rbStackLinking1");
    QVERIFY(isChecked(shoot, "m_rbLevelLinking0"));
    shoot.driver.click("m_rbLevelLinking1");
    shoot.driver.click("m_rbLevelLinking0");
    QVERIFY(isChecked(shoot, "m_rbLevelLinking0"));
    QVERIFY(isChecked(shoot, "m_rbStackLinking1"));
    QVERIFY(!isChecked(shoot, "m_rbStackLinking0"));
}

void TestEveryPage::savedStateIsEmpty_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<int>("signalCount"); // of pages whose preview tells when it is updated
    for (const Head *head : allHeads()) {
        QTest::newRow(head->name) << head << head->signalsOnRestore;
    }
}

void TestEveryPage::savedStateIsEmpty()
{
    QFETCH(const Head *, head);
    QFETCH(int, signalCount);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);
    const QImage picture = shoot.driver.picture();
    const QString names = shoot.driver.text("m_leImage");

    QCOMPARE(head->saveState(shoot.made), QByteArray());
    const QSignalSpy spy(shoot.page, &QWizardPage::completeChanged);
    head->restoreState(shoot.made, QByteArray("\0\xff any bytes", 12));

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.count(), shoot.countOf(2));
    QCOMPARE(shoot.driver.text("m_leImage"), names);
    QCOMPARE(shoot.driver.picture(), picture);
    QCOMPARE(spy.count(), signalCount);
}

void TestEveryPage::enteringThePageChangesNothing()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);
    const QImage picture = shoot.driver.picture();

    shoot.page->initializePage();

    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.driver.text("m_lbPapyLog"), QStringLiteral("2"));
    QCOMPARE(shoot.count(), QStringLiteral("2"));
    QCOMPARE(shoot.driver.picture(), picture);
}

void TestEveryPage::browserOpensWhatItIsGiven()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const DesktopCatcher desktop;

    QVERIFY(QMetaObject::invokeMethod(
        shoot.page, "BrowserWeb", Q_ARG(QString, QStringLiteral("https://example.org/a?b=c#d"))));

    QCOMPARE(desktop.urls(), QVector<QUrl>{ QUrl(QStringLiteral("https://example.org/a?b=c#d")) });
}

void TestEveryPage::pageMayGoWhilePhotosAreRead()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const HeldPhotos held(shoot.driver, shoot.folder);

    delete shoot.page.data();

    QCOMPARE(fakeHost().readFiles().size(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(fakeHost().readFiles().size(), 2);
}

TEST_CLASS(TestEveryPage, FakeApplication)
#include "tst_everypage.moc"
