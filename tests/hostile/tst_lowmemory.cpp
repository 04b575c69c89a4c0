// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "tests/hostile/failingmemory.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/heads.h"

#include <QEvent>
#include <QLabel>
#include <QtTest>

#include <optional>

/** A host that never runs out of memory itself. */
class SpareHost : public FakeApplication
{
public:
    using FakeApplication::FakeApplication;

    XIImageDef *CreateImageDef(const QString &fileName) override
    {
        const SpareMemory spare;
        return FakeApplication::CreateImageDef(fileName);
    }
    void ImportStructuredPanorama(StructuredPanoramaProperties description) override
    {
        const SpareMemory spare;
        FakeApplication::ImportStructuredPanorama(description);
    }
};

namespace
{

constexpr int kPhotos = 30;

/** A page with a shoot, and what it was like before something failed. */
struct LoadedShoot : HeadShoot {
    explicit LoadedShoot(const Head &shotWith)
        : HeadShoot(shotWith)
        , record(folder.path(QString::fromLatin1(shotWith.recordName)))
    {
        loadRecord(kPhotos);
        loadPhotos(kPhotos);
        picture = driver.picture();
        description = *made.description;
    }

    QString record;
    QImage picture;
    StructuredPanoramaProperties description;
};

/** What a page needs memory for. */
struct Step {
    const char *name;
    int most; ///< allocations to let fail; Qt's widgets, which may come behind them, do not survive
    void (*prepare)(const LoadedShoot &shoot);
    void (*run)(const LoadedShoot &shoot);
    bool (*isDone)(const LoadedShoot &shoot);
    bool (*isUndone)(const LoadedShoot &shoot); ///< the page is as it was, or has nothing instead
};

void parse(const LoadedShoot &shoot)
{
    shoot.head.parse(shoot.made, shoot.record);
}

bool isParsed(const LoadedShoot &shoot)
{
    return shoot.made.shots->size() == kPhotos && shoot.page->isComplete();
}

bool isWithoutRecord(const LoadedShoot &shoot)
{
    return shoot.made.shots->isEmpty() && !shoot.page->isComplete();
}

void wantWholePicture(const LoadedShoot &shoot)
{
    QEvent otherFonts(QEvent::FontChange);
    QCoreApplication::sendEvent(shoot.driver.preview(), &otherFonts);
    if (shoot.head.recordName != nullptr) {
        shoot.made.page->initializePage(); // the Papywizard page looks at no picture that it knows
    }
}

void draw(const LoadedShoot &shoot)
{
    QMetaObject::invokeMethod(shoot.made.page, "UpdatePreview");
}

bool isDrawn(const LoadedShoot &shoot)
{
    return shoot.driver.picture() == shoot.picture;
}

bool isBlank(const LoadedShoot &shoot)
{
    return shoot.driver.picture().isNull();
}

void forgetHandOvers(const LoadedShoot &shoot)
{
    fakeHost().descriptions.clear();
    *shoot.made.description = shoot.description;
}

void handOver(const LoadedShoot &shoot)
{
    (void)shoot.made.page->validatePage();
}

bool isHandedOver(const LoadedShoot & /*shoot*/)
{
    return fakeHost().descriptions.size() == 1;
}

bool isNotDescribed(const LoadedShoot &shoot)
{
    const StructuredPanoramaProperties &a = *shoot.made.description;
    const StructuredPanoramaProperties &b = shoot.description; // without links
    return fakeHost().descriptions.isEmpty() && a.authorizedLinks.isEmpty()
        && a.imageGroups == b.imageGroups && a.yaw == b.yaw && a.pitch == b.pitch
        && a.roll == b.roll && a.positionsKnown == b.positionsKnown && a.rollKnown == b.rollKnown
        && a.focalLength == b.focalLength && a.lensModel == b.lensModel
        && a.autoDetection == b.autoDetection && a.stackLinking == b.stackLinking
        && a.levelLinking == b.levelLinking && a.useRecordedLocation == b.useRecordedLocation
        && a.skipOptimization == b.skipOptimization && a.cleanWrongLinks == b.cleanWrongLinks
        && a.gridMode == b.gridMode && a.gridRows == b.gridRows
        && a.gridBracketCount == b.gridBracketCount && a.gridWrap360 == b.gridWrap360
        && a.overlap == b.overlap && a.renderMode == b.renderMode;
}

constexpr Step kParse{ "parse", 200, forgetHandOvers, parse, isParsed, isWithoutRecord };
constexpr Step kPreview{ "preview", 5'000, wantWholePicture, draw, isDrawn, isBlank };
constexpr Step kGenerate{
    "generate", 5'000, forgetHandOvers, handOver, isHandedOver, isNotDescribed
};

/** Runs \p step of \p shoot with the \p nth allocation failing; false: there were not so many. */
bool runsShort(const Step &step, const LoadedShoot &shoot, Failing kind, int nth)
{
    const FailingMemory memory(kind, nth);
    step.run(shoot);
    return memory.hasFailed();
}

} // namespace

Q_DECLARE_METATYPE(Failing)
Q_DECLARE_METATYPE(const Step *)

/** Memory runs out at one place or another. */
class TestLowMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStepThatRunsShortIsUndoneAndTold_data();
    void aStepThatRunsShortIsUndoneAndTold();
    void oneBoxOpensAndThePageMayGoWithIt_data();
    void oneBoxOpensAndThePageMayGoWithIt();
    void aPhotoThatCannotBeKeptIsNotCounted();
};

void TestLowMemory::aStepThatRunsShortIsUndoneAndTold_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<const Step *>("step");
    QTest::addColumn<Failing>("kind");
    const auto add = [](const Head *head, const Step &step, Failing kind, const char *what = "") {
        QTest::addRow("%s: %s%s", head->name, step.name, what) << head << &step << kind;
    };
    for (const Head *head : headsWithRecords()) {
        add(head, kParse, Failing::Everything);
    }
    for (const Head *head : allHeads()) {
        add(head, kPreview, Failing::OperatorNew, ", of operator new");
        add(head, kPreview, Failing::Pixels, ", of pixels");
        add(head, kGenerate, Failing::Everything);
    }
}

void TestLowMemory::aStepThatRunsShortIsUndoneAndTold()
{
    QFETCH(const Head *, head);
    QFETCH(const Step *, step);
    QFETCH(const Failing, kind);

    const LoadedShoot shoot(*head);
    int undone = 0;
    for (int nth = 1; nth <= step->most; nth += 1 + nth / 20) {
        DialogClicker boxes;
        boxes.pressButton();
        step->prepare(shoot);
        if (!runsShort(*step, shoot, kind, nth)) {
            break;
        }
        QVERIFY(boxes.messageBoxes().isEmpty()); // not within the page's own slot
        QCoreApplication::processEvents();
        if (step->isDone(shoot)) {
            QVERIFY(boxes.messageBoxes().isEmpty());
            continue;
        }
        QVERIFY2(step->isUndone(shoot), qPrintable(QString::number(nth)));
        QVERIFY(boxes.isSettled());
        QCOMPARE(boxes.messageBoxes().size(), 1);
        QCOMPARE(boxes.messageBoxes().first().icon, QMessageBox::Warning);
        QVERIFY(boxes.messageBoxes().first().text.contains(QStringLiteral("not enough memory")));
        ++undone;
        step->run(shoot);
        QVERIFY(step->isDone(shoot));
    }
    QVERIFY(undone > 0);
}

void TestLowMemory::oneBoxOpensAndThePageMayGoWithIt_data()
{
    QTest::addColumn<bool>("goesBefore");
    QTest::newRow("page goes while the box is open") << false;
    QTest::newRow("page goes before") << true;
}

void TestLowMemory::oneBoxOpensAndThePageMayGoWithIt()
{
    QFETCH(const bool, goesBefore);

    const LoadedShoot shoot(gigapan());
    const auto remove = [&shoot] { delete shoot.page.data(); };
    DialogClicker boxes;
    for (int shortage = 0; shortage < 3; ++shortage) {
        QVERIFY(runsShort(kGenerate, shoot, Failing::Everything, 1));
    }
    if (goesBefore) {
        remove();
    } else {
        boxes.beforeNextAnswer([&boxes, &remove] {
            QCoreApplication::processEvents();
            QCOMPARE(boxes.messageBoxes().size(), 1);
            remove();
        });
    }
    QCoreApplication::processEvents();
    QVERIFY(shoot.page.isNull());
    QCOMPARE(boxes.messageBoxes().size(), goesBefore ? 0 : 1);
}

void TestLowMemory::aPhotoThatCannotBeKeptIsNotCounted()
{
    const LoadedShoot shoot(gigapan());
    auto *thread = shoot.page->findChild<ReadingThread *>();
    std::optional<FailingMemory> memory; // made and destroyed on the worker thread
    bool hasFailed = true;
    int nth = 1;
    const QObject context;
    connect(
        thread, qOverload<>(&ReadingThread::Start), &context,
        [&memory, &nth] { memory.emplace(Failing::Everything, nth); }, Qt::DirectConnection);
    connect(
        thread, &ReadingThread::Done, &context,
        [&memory, &hasFailed] {
            hasFailed = memory->hasFailed();
            memory.reset();
        },
        Qt::DirectConnection);
    int incomplete = 0;
    for (; hasFailed; ++nth) {
        shoot.loadPhotos(kPhotos);
        const bool isWhole = thread->XIImageDefs().size() == kPhotos;
        QCOMPARE(shoot.page->isComplete(), isWhole);
        incomplete += isWhole ? 0 : 1;
    }
    QVERIFY(incomplete > 0);
    QVERIFY(shoot.page->isComplete());
}

TEST_CLASS(TestLowMemory, SpareHost)
#include "tst_lowmemory.moc"
