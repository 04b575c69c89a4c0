// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/desktop.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/heads.h"
#include "tests/support/heldphotos.h"
#include "ui/xui.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QThread>
#include <QWizard>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace
{

/** Something that a user does on a page. */
using Act = std::function<void(const HeadShoot &)>;
/** The text of a record. */
using Record = QByteArray (*)(const Head &head, int shots);

void checkFreshTexts(const HeadShoot &shoot)
{
    for (const TextOn &fresh : shoot.head.freshTexts) {
        const QString name = QString::fromLatin1(fresh.widget) + QLatin1String(": ");
        QCOMPARE(name + shoot.driver.text(fresh.widget), name + fresh.text);
    }
    for (const char *button : shoot.head.freshDisabled) {
        QVERIFY(!shoot.driver.find<QWidget>(button)->isEnabled());
    }
    QVERIFY(!shoot.page->isComplete());
}

bool isChecked(const HeadShoot &shoot, const char *button)
{
    return shoot.driver.find<QAbstractButton>(button)->isChecked();
}

bool isReading(const HeadShoot &shoot)
{
    return shoot.page->findChild<QThread *>()->isRunning();
}

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Record)
Q_DECLARE_METATYPE(FakePhoto::Reading)

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

    void nextHandsOverACopyWithEveryOption_data();
    void nextHandsOverACopyWithEveryOption();
    void partlyCheckedBoxDoesNotCount_data() { addHeads(allHeads()); }
    void partlyCheckedBoxDoesNotCount();
    void secondNextAppends_data() { addHeads(allHeads()); }
    void secondNextAppends();
    void nextOnAFreshPageIsHarmless_data() { addHeads(allHeads()); }
    void nextOnAFreshPageIsHarmless();

    void pageIsCompleteWhenEverythingFits_data();
    void pageIsCompleteWhenEverythingFits();
    void pageIsIncompleteWhilePhotosAreRead_data() { addHeads(allHeads()); }
    void pageIsIncompleteWhilePhotosAreRead();
    void wizardHearsOfCompleteness_data() { addHeads(allHeads()); }
    void wizardHearsOfCompleteness();
    void wizardHearsOfTheRecord_data() { addHeads(headsWithRecords()); }
    void wizardHearsOfTheRecord();
    void actionSignalsCompleteness_data();
    void actionSignalsCompleteness();

    void goingBackResetsWanted_data() { addHeads(headsWithRecords()); }
    void goingBackResetsWanted();
    void goingBackStopsTheReading_data();
    void goingBackStopsTheReading();
    void goingForthKeepsTheState_data() { addHeads(allHeads()); }
    void goingForthKeepsTheState();
    void savedStateIsEmpty_data();
    void savedStateIsEmpty();
    void enteringThePageChangesNothing_data() { addHeads(headsWithRecords()); }
    void enteringThePageChangesNothing();

    void dialogAsksAsDescribed_data() { addDialogs(); }
    void dialogAsksAsDescribed();
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
    void browserOpensWhatItIsGiven_data() { addHeads(allHeads()); }
    void browserOpensWhatItIsGiven();

    void pageMayGoWhilePhotosAreRead_data() { addHeads(allHeads()); }
    void pageMayGoWhilePhotosAreRead();
    void pageMayGoWhileADialogIsOpen_data() { addDialogs(); }
    void pageMayGoWhileADialogIsOpen();
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

void TestEveryPage::nextHandsOverACopyWithEveryOption_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("clicked");
    // Auto detection, clean, skip, recorded location, full turn.
    QTest::addColumn<QVector<bool>>("flags");
    QTest::addColumn<QVector<int>>("choices"); // level linking, stack linking, render mode
    for (const Head *head : allHeads()) {
        for (const HandedOver &row : head->handsOver) {
            QTest::addRow("%s: %s", head->name, *row.clicked ? row.clicked : "defaults")
                << head << QByteArray(row.clicked) << row.flags << row.choices;
        }
    }
}

void TestEveryPage::nextHandsOverACopyWithEveryOption()
{
    QFETCH(const Head *, head);
    QFETCH(QByteArray, clicked);
    QFETCH(QVector<bool>, flags);
    QFETCH(QVector<int>, choices);
    const HeadShoot shoot(*head);
    shoot.loadRecord(4);
    shoot.loadPhotos(4);
    if (!clicked.isEmpty()) {
        shoot.driver.click(clicked.constData());
    }

    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 1);
    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE((QVector<bool>{ handed.autoDetection, handed.cleanWrongLinks, handed.skipOptimization,
                             handed.useRecordedLocation, handed.gridWrap360 }),
             flags);
    QCOMPARE((QVector<int>{ handed.levelLinking, handed.stackLinking, handed.renderMode }),
             choices);
    QCOMPARE(handed.positionsKnown, head->positionsKnown);
    QCOMPARE(handed.rollKnown, head->rollKnown);
    QCOMPARE(handed.overlap, head->overlap);
    QCOMPARE(handed.gridBracketCount, 1);
    // A copy: what the page does later does not reach it.
    shoot.made.description->imageGroups.clear();
    QCOMPARE(handed.imageGroups.size(), 4);
}

void TestEveryPage::partlyCheckedBoxDoesNotCount()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    for (const OptionBox &option : head->options) {
        auto *box = shoot.driver.find<QCheckBox>(option.box);
        box->setTristate(true);
        box->setCheckState(Qt::PartiallyChecked);
    }

    QVERIFY(shoot.page->validatePage());

    for (const OptionBox &option : head->options) {
        QVERIFY2(!(fakeHost().descriptions.first().*option.field), option.box);
    }
}

void TestEveryPage::secondNextAppends()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    shoot.loadPhotos(2);

    QVERIFY(shoot.page->validatePage());
    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 2);
    const StructuredPanoramaProperties &first = fakeHost().descriptions.first();
    const StructuredPanoramaProperties &second = fakeHost().descriptions.last();
    QCOMPARE(first.imageGroups.size(), 2);
    QCOMPARE(first.authorizedLinks.size(), 1);
    QCOMPARE(second.imageGroups, first.imageGroups + first.imageGroups);
    QCOMPARE(second.yaw, first.yaw + first.yaw);
    QCOMPARE(second.pitch, first.pitch + first.pitch);
    QCOMPARE(second.roll, first.roll + first.roll);
    QCOMPARE(second.authorizedLinks.size(), 2);
    for (const AuthorizedLink &link : second.authorizedLinks) {
        QCOMPARE(link.linkType, first.authorizedLinks.first().linkType);
        QCOMPARE(link.indices, first.authorizedLinks.first().indices);
    }
}

void TestEveryPage::nextOnAFreshPageIsHarmless()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);

    QVERIFY(shoot.page->validatePage());
    shoot.loadRecord(0);
    QVERIFY(shoot.page->validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 2);
    for (const StructuredPanoramaProperties &handed : fakeHost().descriptions) {
        QVERIFY(handed.imageGroups.isEmpty());
        QVERIFY(handed.yaw.isEmpty());
    }
}

void TestEveryPage::pageIsCompleteWhenEverythingFits_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<Record>("record");
    QTest::addColumn<int>("shots"); // -1: no record
    QTest::addColumn<int>("photos");
    QTest::addColumn<bool>("oneUnreadable");
    QTest::addColumn<bool>("complete");
    struct Row {
        const char *name;
        int shots;
        int photos;
        bool oneUnreadable;
        bool complete;
    };
    const std::initializer_list<Row> rows{
        { "12 shots, 12 photos", 12, 12, false, true },
        { "12 shots, 12 photos, one unreadable", 12, 12, true, false },
        { "11 shots, 12 photos, one unreadable", 11, 12, true, false },
        { "11 shots, 12 photos", 11, 12, false, false },
        { "12 shots, 11 photos", 12, 11, false, false },
        { "13 shots, 12 photos", 13, 12, false, false },
        { "no record, 12 photos", -1, 12, false, false },
        { "12 shots, no photos", 12, 0, false, false },
        { "no record, no photos", -1, 0, false, false },
        { "no shots, no photos", 0, 0, false, true },
    };
    const auto add = [&rows](const Head &head, const char *note, Record record) {
        for (const Row &row : rows) {
            QTest::addRow("%s%s: %s", head.name, note, row.name)
                << &head << record << row.shots << row.photos << row.oneUnreadable << row.complete;
        }
    };
    for (const Head *head : headsWithRecords()) {
        add(*head, "", [](const Head &of, int shots) { return of.record(shots); });
        if (head->bracketsOf != nullptr) {
            add(*head, ", in threes",
                [](const Head &of, int shots) { return of.bracketsOf(shots, 3); });
        }
    }
}

void TestEveryPage::pageIsCompleteWhenEverythingFits()
{
    QFETCH(const Head *, head);
    QFETCH(Record, record);
    QFETCH(int, shots);
    QFETCH(int, photos);
    QFETCH(bool, oneUnreadable);
    QFETCH(bool, complete);
    const HeadShoot shoot(*head);
    const QStringList files = shoot.folder.addPhotos(photos);
    if (oneUnreadable) {
        FakePhoto photo;
        photo.reading = FakePhoto::Reading::Fails;
        fakeHost().setPhoto(files.at(3), photo);
    }

    if (shots >= 0) {
        const QString name = QString::fromLatin1(head->recordName);
        shoot.driver.load(kSelectRecord, { shoot.folder.write(name, record(*head, shots)) });
    }
    if (photos > 0) {
        shoot.driver.load(kSelectPhotos, files);
    }

    QCOMPARE(shoot.page->isComplete(), complete);
}

void TestEveryPage::pageIsIncompleteWhilePhotosAreRead()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    shoot.loadRecord(2);
    Gate enter;
    Gate leave;
    FakePhoto held;
    held.enter = &enter;
    held.leave = &leave;
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("a.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("b.jpg"), held) };

    shoot.driver.chooseFiles(kSelectPhotos, photos);
    enter.pass();
    const bool isComplete = shoot.page->isComplete();
    const QString count = shoot.count();
    leave.open();
    shoot.driver.waitUntilRead();

    QVERIFY(!isComplete);
    QCOMPARE(count, shoot.countOf(2));
    QVERIFY(shoot.page->isComplete());
}

void TestEveryPage::wizardHearsOfCompleteness()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QWizard wizard;
    wizard.addPage(shoot.page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    QVERIFY(!next->isEnabled());

    shoot.loadRecord(2);
    QVERIFY(!next->isEnabled());
    shoot.loadPhotos(2);
    QVERIFY(next->isEnabled()); // heard when the last photo arrived
    shoot.driver.click("m_pbReset");
    QVERIFY(!next->isEnabled());

    shoot.loadRecord(1);
    Gate leave;
    FakePhoto held;
    held.leave = &leave;
    shoot.driver.chooseFiles(kSelectPhotos,
                             { shoot.folder.addPhoto(QStringLiteral("held.jpg"), held) });
    const bool isEnabled = next->isEnabled();
    leave.open();
    shoot.driver.waitUntilRead();
    QVERIFY(!isEnabled);
    QVERIFY(next->isEnabled());
    FakePhoto broken;
    broken.reading = FakePhoto::Reading::Fails;
    shoot.driver.load(kSelectPhotos,
                      { shoot.folder.addPhoto(QStringLiteral("broken.jpg"), broken) });
    QVERIFY(!next->isEnabled());
}

void TestEveryPage::wizardHearsOfTheRecord()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QWizard wizard;
    wizard.addPage(shoot.page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    const QAbstractButton *next = wizard.button(QWizard::NextButton);

    shoot.loadPhotos(2);
    QVERIFY(!next->isEnabled());
    shoot.loadRecord(2);
    QVERIFY(next->isEnabled());
    shoot.loadRecord(3);
    QVERIFY(!next->isEnabled());
    shoot.loadRecord(2);
    QVERIFY(next->isEnabled());
    shoot.driver.click("m_pbReset");
    QVERIFY(!next->isEnabled());
    shoot.loadRecord(2);
    QVERIFY(!next->isEnabled());
    shoot.loadPhotos(2);
    QVERIFY(next->isEnabled());
}

void TestEveryPage::actionSignalsCompleteness_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<Act>("act");
    const auto row = [](const Heads &heads, const char *name, const Act &act) {
        for (const Head *head : heads) {
            QTest::addRow("%s: %s", head->name, name) << head << act;
        }
    };
    const auto clickRow = [&row](const Heads &heads, const char *button) {
        row(heads, button, [button](const HeadShoot &shoot) { shoot.driver.click(button); });
    };
    clickRow(allHeads(), "m_pbReset");
    for (const Head *head : allHeads()) {
        for (const char *button : head->tellingButtons) {
            clickRow({ head }, button);
        }
    }
    row(allHeads(), "zoom",
        [](const HeadShoot &shoot) { shoot.driver.find<QSlider>("m_hSlider")->setValue(20); });
    row(allHeads(), "photos", [](const HeadShoot &shoot) {
        shoot.driver.chooseFiles(kSelectPhotos, shoot.folder.addPhotos(1));
    });
    row(headsWithRecords(), "record", [](const HeadShoot &shoot) {
        shoot.driver.chooseFiles(kSelectRecord, { shoot.writeRecord(2) });
    });
    row(headsThat([](const Head &head) { return head.rereadsOnCancel; }), "cancelled record dialog",
        [](const HeadShoot &shoot) { shoot.driver.cancelFiles(kSelectRecord); });
    row(headsThat([](const Head &head) { return head.tellsWhileTyping; }), "typed path",
        [](const HeadShoot &shoot) { shoot.driver.type("m_leConfigFile", QStringLiteral("x")); });
    row(headsThat(
            [](const Head &head) { return head.recordName != nullptr && !head.tellsWhileTyping; }),
        "typed path", [](const HeadShoot &shoot) {
            shoot.driver.type("m_leConfigFile", shoot.writeRecord(3, QStringLiteral("other/")));
            QTest::keyClick(shoot.driver.find<QLineEdit>("m_leConfigFile"), Qt::Key_Return);
        });
}

void TestEveryPage::actionSignalsCompleteness()
{
    QFETCH(const Head *, head);
    QFETCH(Act, act);
    const HeadShoot shoot(*head);
    shoot.loadEverything();
    const QSignalSpy spy(shoot.page, &QWizardPage::completeChanged);

    act(shoot);

    QVERIFY(spy.count() >= 1);
    // The silencing of the widgets ended with the update.
    QVERIFY(!shoot.page->signalsBlocked());
    QVERIFY(!shoot.driver.find<QSlider>("m_hSlider")->signalsBlocked());
}

void TestEveryPage::goingBackResetsWanted()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QWizard wizard;
    wizard.addPage(new QWizardPage);
    wizard.addPage(shoot.page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    wizard.next();
    QCOMPARE(wizard.currentPage(), shoot.page.data());
    shoot.loadRecord(2);
    shoot.loadPhotos(2);
    QVERIFY(shoot.page->isComplete());

    wizard.back();

    checkFreshTexts(shoot);
    QVERIFY(shoot.made.shots->isEmpty());
    QVERIFY(shoot.driver.picture().isNull());
    QVERIFY(fakeHost().descriptions.isEmpty());
}

void TestEveryPage::goingBackStopsTheReading_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("count"); // of the photos, as the page shows it afterwards
    for (const Head *head : allHeads()) {
        // A grid has no record that other photos could belong to: only the reading stops.
        QTest::newRow(head->name) << head
                                  << (head->facts->isGrid() ? head->countText.arg(20)
                                                            : QStringLiteral("N/A"));
    }
}

void TestEveryPage::goingBackStopsTheReading()
{
    QFETCH(const Head *, head);
    QFETCH(QString, count);
    const HeadShoot shoot(*head);
    HeldPhotos held(shoot.driver, shoot.folder, 20);

    shoot.page->cleanupPage();

    QVERIFY(!isReading(shoot));
    held.letGo();
    shoot.driver.waitUntilRead();
    QCOMPARE(fakeHost().readFiles().size(), 2);
    QVERIFY(!shoot.page->isComplete());
    QCOMPARE(shoot.count(), count);
}

void TestEveryPage::goingForthKeepsTheState()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    QWizard wizard;
    wizard.addPage(shoot.page);
    wizard.addPage(new QWizardPage);
    wizard.show();
    shoot.loadRecord(4);
    shoot.loadPhotos(4);
    const QImage picture = shoot.driver.picture();

    QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
    QVERIFY(wizard.currentPage() != shoot.page);
    QCOMPARE(fakeHost().descriptions.size(), 1);
    wizard.back();

    QCOMPARE(wizard.currentPage(), shoot.page.data());
    QVERIFY(shoot.page->isComplete());
    QCOMPARE(shoot.count(), shoot.countOf(4));
    QCOMPARE(shoot.driver.picture(), picture);
    // The stacks of the first time are still there.
    QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
    QCOMPARE(fakeHost().descriptions.last().imageGroups.size(), 8);
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

void TestEveryPage::dialogAsksAsDescribed()
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

void TestEveryPage::dialogFollowsTheHostsSetting()
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

void TestEveryPage::dialogsStartAtTheCurrentFile()
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

void TestEveryPage::recordAndPhotosMayComeTogether()
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

void TestEveryPage::cancelledPhotoDialogChangesNothing()
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

void TestEveryPage::cancelledRecordDialogChangesNothing_data()
{
    addHeads(headsThat(
        [](const Head &head) { return head.recordName != nullptr && !head.rereadsOnCancel; }));
}

void TestEveryPage::cancelledRecordDialogChangesNothing()
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

void TestEveryPage::cancelledDialogOnAnEmptyPageChangesNothing()
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

void TestEveryPage::photosAreSortedCaseSensitively_data()
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

void TestEveryPage::photosAreSortedCaseSensitively()
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

void TestEveryPage::hostLearnsTheFirstPhoto()
{
    QFETCH(const Head *, head);
    const HeadShoot shoot(*head);
    const QStringList files{ shoot.folder.addPhoto(QStringLiteral("b.jpg")),
                             shoot.folder.addPhoto(QStringLiteral("a.jpg")) };

    shoot.driver.load(kSelectPhotos, files);

    QCOMPARE(fakeHost().setLastPaths, QStringList{ shoot.folder.path(QStringLiteral("a.jpg")) });
}

// The other pages open the folder instead.
void TestEveryPage::controlKeyOpensTheFirstPhotoItself_data()
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

void TestEveryPage::controlKeyOpensTheFirstPhotoItself()
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

void TestEveryPage::controlKeyOpensTheLastPathItself_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QString>("place");
    for (const Head *head : headsThat([](const Head &one) { return one.showsPhotoItself; })) {
        QTest::addRow("%s: a photo", head->name) << head << QStringLiteral("before #1/a.jpg");
        QTest::addRow("%s: nothing any more", head->name) << head << QStringLiteral("last/place");
    }
}

void TestEveryPage::controlKeyOpensTheLastPathItself()
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

void TestEveryPage::controlKeyOpensNothingWithoutAPlace()
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

void TestEveryPage::pageMayGoWhileADialogIsOpen()
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

TEST_CLASS(TestEveryPage, FakeApplication)
#include "tst_everypage.moc"
