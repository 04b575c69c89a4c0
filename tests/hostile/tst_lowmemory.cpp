// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
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

#include <algorithm>
#include <functional>
#include <memory>
#include <new>

using PanoHead::PreviewCell;
using PanoHead::PreviewScene;

using Make = std::function<QWizardPage *()>;
Q_DECLARE_METATYPE(Make)

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
    void aPreviewIsDrawnWholeOrEmpty_data();
    void aPreviewIsDrawnWholeOrEmpty();
    void aPatchedPreviewIsWholeOrEmpty();

private:
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
    driver.load("m_pbSelectImages", m_photos);
    if (!files.isEmpty()) {
        driver.load("m_pbSelectConfigFile", files);
    }
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
    driver.load("m_pbSelectImages", m_photos);
    if (!files.isEmpty()) {
        driver.load("m_pbSelectConfigFile", files);
    }
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

FAKE_HOST_MAIN(FakeApplication, TestLowMemory)
#include "tst_lowmemory.moc"
