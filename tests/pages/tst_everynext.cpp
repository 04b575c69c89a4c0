// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/angles.h"
#include "tests/pages/everyshoot.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/heads.h"
#include "tests/support/heldphotos.h"
#include "ui/xui.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QWizard>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <initializer_list>

namespace
{

/** Something that a user does on a page. */
using Act = std::function<void(const HeadShoot &)>;
/** The text of a record. */
using Record = QByteArray (*)(const Head &head, int shots);

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Record)

/** When Next is enabled on all pages, what it hands over, and what Back leaves. */
class TestEveryNext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nextHandsOverACopyWithEveryOption_data();
    void nextHandsOverACopyWithEveryOption();
    void recordsTellTheAnglesThatNextHandsOver_data() { addHeads(headsWithRecords()); }
    void recordsTellTheAnglesThatNextHandsOver();
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
};

void TestEveryNext::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestEveryNext::nextHandsOverACopyWithEveryOption_data()
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

void TestEveryNext::nextHandsOverACopyWithEveryOption()
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

void TestEveryNext::recordsTellTheAnglesThatNextHandsOver()
{
    QFETCH(const Head *, head);
    if (head->facts->shots == nullptr) {
        QSKIP("the head does not tell its shots");
    }
    const HeadShoot shoot(*head);
    // Out of order, of odd angles and turns; the roll and the camera's place are the page's affair.
    PanoHead::NotedShoot written;
    written.exactAngles = true;
    written.isPortrait = true;
    written.shots = { { 12.3, -7.7, 90.0, 0, {} },
                      { -400.123456789, 88.8, 0.0, 0, {} },
                      { 0.1, -90.0, -1.0, 0, {} },
                      { 1085.7, 0.0, 0.0, 0, {} } };
    const QByteArray record = head->facts->write(written);
    shoot.driver.load(kSelectRecord,
                      { shoot.folder.write(QString::fromLatin1(head->recordName), record) });
    shoot.loadPhotos(4);

    QVERIFY(shoot.page->validatePage());

    PanoHead::ReadError error;
    const auto shots = head->facts->shots(record, &error);
    QVERIFY2(shots, qPrintable(error.reason));
    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.imageGroups.size(), 4);
    QCOMPARE(handed.yaw.size(), shots->size());
    for (int i = 0; i < shots->size(); ++i) {
        const PanoHead::NotedShot &shot = shots->at(i);
        QVERIFY(handed.yaw.at(i) == PanoHead::toRadians(static_cast<float>(shot.yawDegrees)));
        QVERIFY(handed.pitch.at(i) == PanoHead::toRadians(static_cast<float>(shot.pitchDegrees)));
        QCOMPARE(handed.roll.value(i), PanoHead::toRadians(static_cast<float>(shot.rollDegrees)));
    }
}

void TestEveryNext::partlyCheckedBoxDoesNotCount()
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

void TestEveryNext::secondNextAppends()
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

void TestEveryNext::nextOnAFreshPageIsHarmless()
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

void TestEveryNext::pageIsCompleteWhenEverythingFits_data()
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

void TestEveryNext::pageIsCompleteWhenEverythingFits()
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

void TestEveryNext::pageIsIncompleteWhilePhotosAreRead()
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

void TestEveryNext::wizardHearsOfCompleteness()
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

void TestEveryNext::wizardHearsOfTheRecord()
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

void TestEveryNext::actionSignalsCompleteness_data()
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

void TestEveryNext::actionSignalsCompleteness()
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

void TestEveryNext::goingBackResetsWanted()
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

void TestEveryNext::goingBackStopsTheReading_data()
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

void TestEveryNext::goingBackStopsTheReading()
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

void TestEveryNext::goingForthKeepsTheState()
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

TEST_CLASS(TestEveryNext, FakeApplication)
#include "tst_everynext.moc"
