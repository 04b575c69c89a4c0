// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "tests/hostile/failingmemory.h"
#include "tests/support/dialogclicker.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/longruns.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"
#include "ui/previewlabel.h"

#include <QMap>
#include <QSignalBlocker>
#include <QSlider>
#include <QtTest>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <optional>

using PanoHead::PreviewCell;
using PanoHead::PreviewScene;

using Make = std::function<QWizardPage *()>;
Q_DECLARE_METATYPE(Make)

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

constexpr int kMostAllocations = 5'000;

/** Enough for the 5,000 allocations in the long form. */
int photoCount()
{
    return rounds(20, 600);
}

bool sameDescription(const StructuredPanoramaProperties &a, const StructuredPanoramaProperties &b)
{
    const auto sameLinks = [](const AuthorizedLink &x, const AuthorizedLink &y) {
        return x.linkType == y.linkType && x.indices == y.indices;
    };
    return a.imageGroups == b.imageGroups && a.yaw == b.yaw && a.pitch == b.pitch
        && a.roll == b.roll && a.positionsKnown == b.positionsKnown
        && a.focalLength == b.focalLength && a.rollKnown == b.rollKnown
        && a.lensModel == b.lensModel && a.autoDetection == b.autoDetection
        && a.stackLinking == b.stackLinking && a.levelLinking == b.levelLinking
        && a.useRecordedLocation == b.useRecordedLocation
        && a.skipOptimization == b.skipOptimization && a.cleanWrongLinks == b.cleanWrongLinks
        && a.gridMode == b.gridMode && a.gridRows == b.gridRows
        && a.gridBracketCount == b.gridBracketCount && a.gridWrap360 == b.gridWrap360
        && a.overlap == b.overlap && a.renderMode == b.renderMode
        && std::equal(a.authorizedLinks.cbegin(), a.authorizedLinks.cend(),
                      b.authorizedLinks.cbegin(), b.authorizedLinks.cend(), sameLinks);
}

QByteArray script()
{
    QByteArray text;
    for (int i = 0; i < photoCount(); ++i) {
        text += "op_h-angle=" + QByteArray::number(i % 36 * 10) + "\nop_shoot\n";
    }
    return text;
}

/**
 * Runs \p work with the first, second... allocation failing until there are no more, and \p check
 * after each. Answers how many failed.
 */
int forEveryAllocation(Failing kind, const std::function<void()> &work,
                       const std::function<bool()> &check)
{
    for (int nth = 1; nth <= kMostAllocations; ++nth) {
        bool hasFailed = false;
        {
            const FailingMemory memory(kind, nth);
            work();
            hasFailed = memory.hasFailed();
        }
        if (!check()) {
            qWarning("Allocation %d", nth);
            return -1;
        }
        if (!hasFailed) {
            return nth - 1;
        }
    }
    return kMostAllocations;
}

/** Makes one allocation of the next run of \p page's reading thread fail. */
class ShortReading
{
public:
    ShortReading(const QWizardPage *page, int nth)
        : m_thread(page->findChild<ReadingThread *>())
    {
        QObject::connect(
            m_thread, qOverload<>(&ReadingThread::Start), &m_context,
            [this, nth] { m_memory.emplace(Failing::Everything, nth); }, Qt::DirectConnection);
        QObject::connect(
            m_thread, &ReadingThread::Done, &m_context,
            [this] {
                m_hasFailed = m_memory->hasFailed();
                m_memory.reset();
            },
            Qt::DirectConnection);
    }

    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }
    [[nodiscard]] int imageCount() const { return m_thread->XIImageDefs().size(); }

private:
    ReadingThread *m_thread;
    std::optional<FailingMemory> m_memory; // made and destroyed on the worker thread
    bool m_hasFailed = false;
    QObject m_context;
};

/** While it lives, the program has all its memory in use and gets no more. */
class NoMemory
{
public:
    NoMemory()
    {
        QFile statistics(QStringLiteral("/proc/self/statm"));
        m_isArmed = statistics.open(QIODevice::ReadOnly) && getrlimit(RLIMIT_AS, &m_before) == 0;
        const rlim_t pages = statistics.readLine().split(' ').first().toULong();
        statistics.close();
        rlimit less = m_before;
        less.rlim_cur = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
        m_isArmed = m_isArmed && setrlimit(RLIMIT_AS, &less) == 0;
        for (size_t bytes = 1024 * 1024; m_isArmed && bytes >= sizeof(Block); bytes /= 2) {
            while (auto *block = static_cast<Block *>(std::malloc(bytes))) {
                block->next = m_blocks;
                m_blocks = block;
            }
        }
    }
    ~NoMemory()
    {
        while (m_blocks != nullptr) {
            std::free(std::exchange(m_blocks, m_blocks->next));
        }
        setrlimit(RLIMIT_AS, &m_before);
    }
    NoMemory(const NoMemory &) = delete;
    NoMemory &operator=(const NoMemory &) = delete;

    [[nodiscard]] bool isArmed() const { return m_isArmed; }

private:
    struct Block {
        Block *next;
    };

    rlimit m_before{};
    Block *m_blocks = nullptr;
    bool m_isArmed = false;
};

} // namespace

/** Memory runs out at one place or another. */
class TestLowMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theAllocationAskedForFails();
    void aRecordIsReadWholeOrNotAtAll();
    void aScriptIsReadWholeOrNotAtAll();
    void nextIsRefusedWithoutHalfADescription_data();
    void nextIsRefusedWithoutHalfADescription();
    void nextIsRefusedInSilenceWithoutMemoryForTheMessage_data();
    void nextIsRefusedInSilenceWithoutMemoryForTheMessage();
    void theMessageComesWhileMemoryIsStillShort_data();
    void theMessageComesWhileMemoryIsStillShort();
    void aPhotoThatCannotBeKeptIsToldAndNotCounted_data();
    void aPhotoThatCannotBeKeptIsToldAndNotCounted();
    void photosThatCannotBeQueuedAreTold();
    void aPageMayGoWhileTheMessageIsOpen();
    void aPreviewIsDrawnWholeOrEmpty_data();
    void aPreviewIsDrawnWholeOrEmpty();
    void aPatchedPreviewIsWholeOrEmpty();

private:
    void load(const PageDriver &driver, const QStringList &files) const;

    ShootFolder m_folder;
    QStringList m_photos;
    QString m_record;
    QString m_script;
};

void TestLowMemory::initTestCase()
{
    m_photos = m_folder.addPhotos(photoCount());
    RecordXml record = RecordXml::row(photoCount());
    record.nbPicts = QStringLiteral("2");
    record.focal = QStringLiteral("24");
    m_record = m_folder.write(QStringLiteral("shoot.xml"), record.bytes());
    m_script = m_folder.write(QStringLiteral("shoot.txt"), script());
}

/** The photos, and \p files for pages that want a record. */
void TestLowMemory::load(const PageDriver &driver, const QStringList &files) const
{
    driver.load("m_pbSelectImages", m_photos);
    if (!files.isEmpty()) {
        driver.load("m_pbSelectConfigFile", files);
    }
}

void TestLowMemory::theAllocationAskedForFails()
{
    bool threw = false;
    {
        const FailingMemory memory(Failing::Everything, 2);
        void *first = std::malloc(10);
        void *second = std::malloc(10);
        void *third = std::malloc(10);
        threw = first != nullptr && second == nullptr && third != nullptr && memory.hasFailed();
        std::free(first);
        std::free(third);
    }
    QVERIFY(threw);
    threw = false;
    try {
        const FailingMemory memory(Failing::Everything, 1);
        QString text(100, QLatin1Char('x'));
    } catch (const std::bad_alloc &) {
        threw = true;
    }
    QVERIFY(threw);
}

void TestLowMemory::aRecordIsReadWholeOrNotAtAll()
{
    MerlinToSPP whole;
    QVERIFY(whole.parse(m_record));
    MerlinToSPP generator;
    bool isRead = false;
    const int failed = forEveryAllocation(
        Failing::Everything, [&] { isRead = generator.parse(m_record); },
        [&] {
            const bool isEmpty = generator.shots.isEmpty() && generator.title.isEmpty()
                && generator.nbPicts == -1 && generator.xmlFocal == -1.0;
            const bool isWhole = generator.shots.size() == whole.shots.size()
                && generator.title == whole.title && generator.comment == whole.comment
                && generator.nbPicts == whole.nbPicts && generator.xmlFocal == whole.xmlFocal;
            return isRead ? isWhole : isEmpty;
        });
    QVERIFY2(failed > 500, qPrintable(QString::number(failed)));
    QVERIFY(generator.parse(m_record));
}

void TestLowMemory::aScriptIsReadWholeOrNotAtAll()
{
    ClaussToSPP generator;
    bool isRead = false;
    const int failed = forEveryAllocation(
        Failing::Everything, [&] { isRead = generator.parse(m_script); },
        [&] {
            return isRead ? generator.shots.size() == photoCount() : generator.shots.isEmpty();
        });
    QVERIFY2(failed > 5, qPrintable(QString::number(failed)));
    QVERIFY(generator.parse(m_script));
}

void TestLowMemory::nextIsRefusedWithoutHalfADescription_data()
{
    QTest::addColumn<Make>("makePage");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("Papywizard") << Make([] { return new UIWPMerlin(nullptr); })
                                << QStringList(m_record);
    QTest::newRow("VR Drive 2") << Make([] { return new UIWPVRDrive2(nullptr); })
                                << QStringList(m_record);
    QTest::newRow("Clauss") << Make([] { return new UIWPClauss(nullptr); })
                            << QStringList(m_script);
    QTest::newRow("Gigapan") << Make([] { return new UIWPGigapan(nullptr); }) << QStringList();
}

void TestLowMemory::nextIsRefusedWithoutHalfADescription()
{
    QFETCH(const Make, makePage);
    QFETCH(const QStringList, files);

    const std::unique_ptr<QWizardPage> page(makePage());
    const PageDriver driver(page.get());
    load(driver, files);
    QVERIFY(page->isComplete());
    const auto *description = dynamic_cast<StructuredPanoramaProperties *>(page.get());
    QVERIFY(description != nullptr);

    fakeHost().descriptions.reserve(kMostAllocations); // the host's memory is its own affair
    int refused = 0;
    for (int nth = 1; nth <= kMostAllocations; ++nth) {
        const StructuredPanoramaProperties before = *description;
        const int delivered = fakeHost().descriptions.size();
        DialogClicker boxes;
        boxes.pressButton();
        bool isAccepted = false;
        bool hasFailed = false;
        {
            // The box that reports it needs memory itself.
            const FailingMemory memory(Failing::Everything, nth);
            isAccepted = page->validatePage();
            hasFailed = memory.hasFailed();
        }
        QCOMPARE(fakeHost().descriptions.size(), delivered + (isAccepted ? 1 : 0));
        QCOMPARE(boxes.messageBoxes().size(), isAccepted ? 0 : 1);
        if (!isAccepted) {
            QVERIFY2(sameDescription(*description, before), qPrintable(QString::number(nth)));
            QCOMPARE(boxes.messageBoxes().first().icon, QMessageBox::Warning);
            ++refused;
        }
        if (!hasFailed) {
            QVERIFY(isAccepted);
            break;
        }
    }
    QVERIFY2(refused > 10, qPrintable(QString::number(refused)));
}

void TestLowMemory::nextIsRefusedInSilenceWithoutMemoryForTheMessage_data()
{
    nextIsRefusedWithoutHalfADescription_data();
}

void TestLowMemory::nextIsRefusedInSilenceWithoutMemoryForTheMessage()
{
    QFETCH(const Make, makePage);
    QFETCH(const QStringList, files);

    const std::unique_ptr<QWizardPage> page(makePage());
    const PageDriver driver(page.get());
    load(driver, files);
    const auto *description = dynamic_cast<StructuredPanoramaProperties *>(page.get());
    QVERIFY(description != nullptr);
    const int most = rounds(60, kMostAllocations);
    int refused = 0;
    for (int nth = 1; nth <= most; ++nth) {
        const StructuredPanoramaProperties before = *description;
        const int delivered = fakeHost().descriptions.size();
        const DialogClicker boxes;
        bool isAccepted = false;
        bool hasFailed = false;
        {
            const FailingMemory memory(Failing::Everything, nth, Shortage::Lasting);
            isAccepted = page->validatePage();
            hasFailed = memory.hasFailed();
        }
        QCOMPARE(isAccepted, !hasFailed);
        QCOMPARE(fakeHost().descriptions.size(), delivered + (isAccepted ? 1 : 0));
        QVERIFY(boxes.messageBoxes().isEmpty());
        QVERIFY(page->findChildren<QMessageBox *>().isEmpty());
        if (isAccepted) {
            break;
        }
        QVERIFY2(sameDescription(*description, before), qPrintable(QString::number(nth)));
        ++refused;
    }
    QVERIFY2(refused > 10, qPrintable(QString::number(refused)));
    QVERIFY(page->validatePage());
}

void TestLowMemory::theMessageComesWhileMemoryIsStillShort_data()
{
    nextIsRefusedWithoutHalfADescription_data();
}

void TestLowMemory::theMessageComesWhileMemoryIsStillShort()
{
    QFETCH(const Make, makePage);
    QFETCH(const QStringList, files);

    const std::unique_ptr<QWizardPage> page(makePage());
    const PageDriver driver(page.get());
    load(driver, files);
    // A first message makes Qt read its fonts and icons and deepens the stack.
    DialogClicker boxes;
    boxes.pressButton();
    {
        const FailingMemory memory(Failing::Everything, 1);
        QVERIFY(!page->validatePage());
    }
    boxes.pressButton();
    bool isArmed = false;
    bool isAccepted = true;
    {
        const NoMemory memory;
        isArmed = memory.isArmed();
        isAccepted = page->validatePage();
    }
    QVERIFY(isArmed);
    QVERIFY(!isAccepted);
    QCOMPARE(boxes.messageBoxes().size(), 2);
    QVERIFY(boxes.isSettled());
    QVERIFY(page->validatePage());
}

void TestLowMemory::aPhotoThatCannotBeKeptIsToldAndNotCounted_data()
{
    nextIsRefusedWithoutHalfADescription_data();
}

void TestLowMemory::aPhotoThatCannotBeKeptIsToldAndNotCounted()
{
    QFETCH(const Make, makePage);
    QFETCH(const QStringList, files);

    const std::unique_ptr<QWizardPage> page(makePage());
    const PageDriver driver(page.get());
    load(driver, files);
    int shortages = 0;
    bool hasFailed = true;
    for (int nth = 1; hasFailed; ++nth) {
        DialogClicker boxes;
        boxes.chooseFiles(m_photos);
        const ShortReading reading(page.get(), nth);
        driver.click("m_pbSelectImages");
        driver.waitUntilRead();
        hasFailed = reading.hasFailed();
        const bool isShort = reading.imageCount() < m_photos.size();
        QCOMPARE(page->isComplete(), !isShort);
        boxes.pressButton();
        QCoreApplication::processEvents();
        QTRY_COMPARE(boxes.messageBoxes().size(), isShort ? 1 : 0);
        if (isShort) {
            const DialogClicker::SeenMessageBox &box = boxes.messageBoxes().first();
            QCOMPARE(box.icon, QMessageBox::Warning);
            QVERIFY(box.text.contains(QStringLiteral("not enough memory")));
            ++shortages;
        }
    }
    QVERIFY(shortages > 0);
    QVERIFY(page->isComplete());
}

void TestLowMemory::photosThatCannotBeQueuedAreTold()
{
    const UIWPGigapan page(nullptr);
    auto *thread = page.findChild<ReadingThread *>();
    QVERIFY(thread != nullptr);
    DialogClicker boxes;
    {
        const FailingMemory memory(Failing::Everything, 1);
        thread->Start(m_photos);
    }
    QVERIFY(boxes.messageBoxes().isEmpty()); // not within the page's own slot
    boxes.pressButton();
    QCoreApplication::processEvents();
    QCOMPARE(boxes.messageBoxes().size(), 1);
    QVERIFY(boxes.isSettled());
}

void TestLowMemory::aPageMayGoWhileTheMessageIsOpen()
{
    auto page = std::make_unique<UIWPGigapan>(nullptr);
    const PageDriver driver(page.get());
    load(driver, {});
    DialogClicker boxes;
    boxes.beforeNextAnswer([&page] { page.reset(); });
    const FailingMemory memory(Failing::Everything, 1);
    QVERIFY(!page->validatePage());
    QCOMPARE(boxes.messageBoxes().size(), 1);
    QVERIFY(page == nullptr);
}

void TestLowMemory::aPreviewIsDrawnWholeOrEmpty_data()
{
    nextIsRefusedWithoutHalfADescription_data();
}

void TestLowMemory::aPreviewIsDrawnWholeOrEmpty()
{
    QFETCH(const Make, makePage);
    QFETCH(const QStringList, files);

    const std::unique_ptr<QWizardPage> page(makePage());
    const PageDriver driver(page.get());
    load(driver, files);
    // The slot alone: the slider would draw itself too.
    const bool hasZoomSlot = page->metaObject()->indexOfSlot("OnZoomChanged()") >= 0;
    const auto redraw = [&page, slot = hasZoomSlot ? "OnZoomChanged" : "UpdatePreview"] {
        QMetaObject::invokeMethod(page.get(), slot);
    };
    auto *slider = driver.find<QSlider>("m_hSlider");
    const auto setZoom = [slider](int zoom) {
        const QSignalBlocker blocker(slider);
        slider->setValue(zoom);
    };
    QMap<int, QImage> whole;
    for (const int zoom : { 50, 60 }) {
        setZoom(zoom);
        redraw();
        whole[zoom] = driver.picture();
        QVERIFY(!whole[zoom].isNull());
    }

    for (const Failing kind : { Failing::OperatorNew, Failing::Pixels }) {
        int empty = 0;
        setZoom(60);
        redraw();
        int zoom = 50;
        setZoom(zoom);
        const int failed = forEveryAllocation(kind, redraw, [&] {
            const QImage picture = driver.picture();
            empty += picture.isNull() ? 1 : 0;
            const bool isFine = picture.isNull() || picture == whole[zoom];
            // Another zoom next time, so that it is drawn again.
            zoom = 110 - zoom;
            setZoom(zoom);
            return isFine;
        });
        QVERIFY(failed > 0);
        QVERIFY(empty > 0);
    }
}

void TestLowMemory::aPatchedPreviewIsWholeOrEmpty()
{
    constexpr int kColumns = 6;
    constexpr int kCells = 36;
    PreviewScene scene;
    scene.layout.canvas = QSize(400, 400);
    for (int i = 0; i < kCells; ++i) {
        PreviewCell cell;
        cell.box = QRectF(i % kColumns * 60 + 2, i / kColumns * 60 + 2, 96, 96);
        cell.image = i;
        cell.roll = 30.0F;
        scene.layout.cells.append(cell);
    }
    FakeImage photo(QStringLiteral("/photo.jpg"), FakePhoto());
    const auto with = [&scene, &photo](int count) {
        PreviewScene shown = scene;
        for (int i = 0; i < count; ++i) {
            shown.images.append(&photo);
        }
        return shown;
    };
    const auto picture
        = [](const QLabel &label) { return label.pixmap(Qt::ReturnByValue).toImage(); };
    constexpr int kZoom = 50;
    PanoHead::PreviewLabel fresh;
    fresh.showScene(with(21), kZoom);
    const QImage whole = picture(fresh);

    for (const Failing kind : { Failing::OperatorNew, Failing::Pixels }) {
        PanoHead::PreviewLabel label;
        const PreviewScene next = with(21);
        int empty = 0;
        label.showScene(with(20), kZoom);
        const int failed = forEveryAllocation(
            kind, [&] { label.withinMemory([&] { label.showScene(next, kZoom); }); },
            [&] {
                const QImage shown = picture(label);
                empty += shown.isNull() ? 1 : 0;
                label.showScene(with(20), kZoom);
                return shown.isNull() || shown == whole;
            });
        QVERIFY(failed > 0);
        QVERIFY(empty > 0);
    }
}

FAKE_HOST_MAIN(SpareHost, TestLowMemory)
#include "tst_lowmemory.moc"
