// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewlabel.h"

#include "tests/support/allocations.h"
#include "tests/support/fakeimage.h"
#include "tests/support/literalpreview.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

#include <memory>
#include <random>

using namespace PanoHead;

namespace
{

class Photo : public FakeImage
{
public:
    explicit Photo(unsigned seed)
        : FakeImage({}, {})
    {
        repaint(seed);
    }

    /** Another picture in the same object. */
    void repaint(unsigned seed)
    {
        std::mt19937 random(seed);
        QImage image(160, 120, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, static_cast<QRgb>(random()) | 0xff000000U);
            }
        }
        m_thumbnail = QPixmap::fromImage(image);
    }

    QPixmap *Thumbnail() override { return &m_thumbnail; }

private:
    QPixmap m_thumbnail;
};

/** A scene of \p columns x \p rows cells \p step pixels apart, with its photos in reserve. */
struct Shoot {
    Shoot(int columns, int rows, double step, int photoCount)
    {
        scene.layout.canvas = QSize(static_cast<int>(step * (columns - 1)) + 100,
                                    static_cast<int>(step * (rows - 1)) + 100);
        for (int i = 0; i < columns * rows; ++i) {
            PreviewCell cell;
            cell.box = QRectF(2 + i % columns * step, 2 + i / columns * step, 96, 96);
            cell.image = i;
            scene.layout.cells.append(cell);
        }
        for (int i = 0; i < photoCount; ++i) {
            photos.push_back(std::make_unique<Photo>(static_cast<unsigned>(i)));
        }
    }

    /** The scene with the first \p count photos. */
    [[nodiscard]] PreviewScene with(int count) const
    {
        PreviewScene shown = scene;
        for (int i = 0; i < count; ++i) {
            shown.images.append(photos[i % photos.size()].get());
        }
        return shown;
    }

    PreviewScene scene;
    std::vector<std::unique_ptr<Photo>> photos;
};

/** A grid whose canvas has ten million pixels. */
Shoot largeGrid()
{
    Shoot grid(40, 25, 100, 1000);
    grid.scene.style = CellStyle::UnscaledPhoto;
    return grid;
}

QImage shownBy(const QLabel &label)
{
    return label.pixmap(Qt::ReturnByValue).toImage();
}

QString differenceFrom(const QLabel &label, const PreviewScene &scene, int zoom)
{
    return pixelDifference(
        shownBy(label),
        literalZoom(literalPicture(scene, literalColours(scene.style, label)), zoom));
}

} // namespace

class TestPreviewLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureIsTheLiteralOneAtEveryZoom_data();
    void pictureIsTheLiteralOneAtEveryZoom();
    void zoomMayChangeWithThePhotos();
    void gridsAreLightGreyWhateverThePalette();
    void fontChangeRedrawsEverything();
    void applicationFontChangeRedrawsEverything();
    void paletteChangeRedrawsEverything();
    void forgottenPhotosAreNotTouchedAgain();
    void newPhotosAtOldAddressesAreDrawn();
    void emptySceneShowsNothing();
    void preparedSceneIsNotShown();
    void preparedSceneIsShownLater();
    void takenPixmapKeepsItsPicture();
    void changeOutOfSightIsNotPainted();
    void sameSceneKeepsThePixmap();
    void largeGridIsShownInSteps();
    void photosMayComeBeforeALargeGridIsComplete();
    void zoomMayChangeBeforeALargeGridIsComplete();
    void photosMayGoBeforeALargeGridIsComplete();
    void largeGridIsEmptyUntilItIsShown();
    void largeGridAppearsFirstWhereItIsSeen();
    void largeGridIsShownAtOnceAtFullZoom();
    void updatesAllocateNoFurtherPicture_data();
    void updatesAllocateNoFurtherPicture();
};

void TestPreviewLabel::pictureIsTheLiteralOneAtEveryZoom_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<double>("step");
    for (const double step : { 96.0, 14.4, 70.37 }) {
        for (const int zoom : { 1, 7, 33, 50, 77, 99, 100 }) {
            QTest::addRow("cells %g pixels apart at %d %%", step, zoom) << zoom << step;
        }
    }
}

void TestPreviewLabel::pictureIsTheLiteralOneAtEveryZoom()
{
    QFETCH(const int, zoom);
    QFETCH(const double, step);
    const Shoot shoot(11, 7, step, 77);
    PreviewLabel label;
    for (const int count : { 0, 1, 2, 10, 20, 22, 21, 30, 40, 41, 50, 70, 77, 60, 10, 0, 12 }) {
        label.showScene(shoot.with(count), zoom);
        QCOMPARE(differenceFrom(label, shoot.with(count), zoom), QString());
    }
    // Two photos in each other's place.
    PreviewScene swapped = shoot.with(40);
    label.showScene(swapped, zoom);
    swapped.images.swapItemsAt(3, 31);
    label.showScene(swapped, zoom);
    QCOMPARE(differenceFrom(label, swapped, zoom), QString());
}

void TestPreviewLabel::zoomMayChangeWithThePhotos()
{
    const Shoot shoot(11, 7, 80.5, 77);
    std::mt19937 random(1);
    PreviewLabel label;
    for (int step = 0; step < 100; ++step) {
        const int zoom
            = 1 + static_cast<int>(random() % (step % 3 == 0 ? 100 : 2)) + (step % 2) * 98;
        const int count = std::min(77, step - step % 3);
        label.showScene(shoot.with(count), std::min(zoom, 100));
        QCOMPARE(differenceFrom(label, shoot.with(count), std::min(zoom, 100)), QString());
    }
}

void TestPreviewLabel::gridsAreLightGreyWhateverThePalette()
{
    Shoot shoot(6, 6, 60, 36);
    shoot.scene.style = CellStyle::UnscaledPhoto;
    PreviewLabel label;
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, Qt::darkBlue);
    palette.setColor(QPalette::WindowText, Qt::white);
    label.setPalette(palette);
    const PreviewColours colours{ QBrush(Qt::lightGray), { QPen(Qt::black), {} } };
    for (int count = 0; count <= 36; count += 4) {
        label.showScene(shoot.with(count), 50);
        QCOMPARE(pixelDifference(shownBy(label),
                                 literalZoom(literalPicture(shoot.with(count), colours), 50)),
                 QString());
    }
}

void TestPreviewLabel::fontChangeRedrawsEverything()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(20), 100);
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
    QCOMPARE(differenceFrom(label, shoot.with(20), 100), QString());
    label.showScene(shoot.with(23), 100);
    QCOMPARE(differenceFrom(label, shoot.with(23), 100), QString());
}

void TestPreviewLabel::applicationFontChangeRedrawsEverything()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.show();
    label.showScene(shoot.with(20), 100);
    const QImage before = shownBy(label);
    const QFont font = QApplication::font();
    QFont larger = font;
    larger.setPointSize(font.pointSize() + 4);
    QApplication::setFont(larger);
    QCoreApplication::processEvents();
    const QString apart = differenceFrom(label, shoot.with(20), 100);
    const bool changed = shownBy(label) != before;
    QApplication::setFont(font);
    QCOMPARE(apart, QString());
    QVERIFY(changed);
}

void TestPreviewLabel::paletteChangeRedrawsEverything()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(20), 77);
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, Qt::darkGreen);
    palette.setColor(QPalette::WindowText, Qt::yellow);
    label.setPalette(palette);
    QCOMPARE(differenceFrom(label, shoot.with(20), 77), QString());
    label.showScene(shoot.with(22), 77);
    QCOMPARE(differenceFrom(label, shoot.with(22), 77), QString());
}

void TestPreviewLabel::forgottenPhotosAreNotTouchedAgain()
{
    Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(36), 50);
    label.forgetPhotos();
    shoot.photos.clear();
    // Draws again, with what it knows.
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, Qt::darkGreen);
    label.setPalette(palette);
    label.showScene(shoot.with(0), 50);
    QCOMPARE(differenceFrom(label, shoot.with(0), 50), QString());
}

void TestPreviewLabel::newPhotosAtOldAddressesAreDrawn()
{
    Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(36), 50);
    label.forgetPhotos();
    // The same objects with other thumbnails, as a host's memory may have it.
    for (unsigned i = 0; i < 36; ++i) {
        shoot.photos[i]->repaint(100 + i);
    }
    for (const int count : { 0, 3, 36 }) {
        label.showScene(shoot.with(count), 50);
        QCOMPARE(differenceFrom(label, shoot.with(count), 50), QString());
    }
    label.forgetPhotos();
    shoot.photos[0]->repaint(200);
    label.showScene(shoot.with(36), 50);
    QCOMPARE(differenceFrom(label, shoot.with(36), 50), QString());
}

void TestPreviewLabel::preparedSceneIsNotShown()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.prepareScene(shoot.with(0));
    QVERIFY(shownBy(label).isNull());
    label.showScene(shoot.with(20), 50);
    const QImage before = shownBy(label).copy();
    label.prepareScene(Shoot(3, 3, 96, 0).with(0));
    QCOMPARE(shownBy(label), before);
}

void TestPreviewLabel::preparedSceneIsShownLater()
{
    const Shoot shoot(11, 7, 60, 77);
    const Shoot other(12, 7, 50, 77);
    PreviewLabel label;
    label.prepareScene(shoot.with(0));
    label.showScene(shoot.with(5), 50);
    QCOMPARE(differenceFrom(label, shoot.with(5), 50), QString());
    label.prepareScene(other.with(0));
    label.showScene(other.with(3), 50);
    QCOMPARE(differenceFrom(label, other.with(3), 50), QString());
    // Prepared for another one than comes.
    label.prepareScene(shoot.with(0));
    label.showScene(other.with(3), 50);
    QCOMPARE(differenceFrom(label, other.with(3), 50), QString());
    label.prepareScene(PreviewScene());
    label.showScene(other.with(4), 50);
    QCOMPARE(differenceFrom(label, other.with(4), 50), QString());
}

void TestPreviewLabel::takenPixmapKeepsItsPicture()
{
    const Shoot shoot(11, 7, 60, 77);
    PreviewLabel label;
    label.showScene(shoot.with(10), 50);
    const QPixmap taken = label.pixmap(Qt::ReturnByValue);
    const QImage before = taken.toImage().copy();
    label.showScene(shoot.with(20), 50);
    QCOMPARE(taken.toImage(), before);
    QVERIFY(taken.cacheKey() != label.pixmap(Qt::ReturnByValue).cacheKey());
}

/** Counts the paint events of a widget. */
class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    int count = 0;
};

void TestPreviewLabel::changeOutOfSightIsNotPainted()
{
    const Shoot shoot(11, 40, 96, 440);
    QScrollArea area;
    auto *label = new PreviewLabel;
    area.setWidget(label);
    area.setWidgetResizable(true);
    area.resize(300, 300);
    area.show();
    label->showScene(shoot.with(10), 99);
    QCoreApplication::processEvents();
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    QCoreApplication::processEvents();
    PaintCounter counter;
    label->installEventFilter(&counter);
    label->showScene(shoot.with(20), 99);
    QCoreApplication::processEvents();
    QCOMPARE(counter.count, 0);
    // What is in sight is painted.
    area.verticalScrollBar()->setValue(0);
    area.horizontalScrollBar()->setValue(0);
    QCoreApplication::processEvents();
    counter.count = 0;
    label->showScene(shoot.with(12), 99);
    QCoreApplication::processEvents();
    QVERIFY(counter.count > 0);
    QCOMPARE(pixelDifference(area.viewport()->grab().toImage().copy(0, 0, 200, 200),
                             shownBy(*label).copy(0, 0, 200, 200)),
             QString());
}

void TestPreviewLabel::emptySceneShowsNothing()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(36), 50);
    label.showScene(PreviewScene(), 50);
    QVERIFY(shownBy(label).isNull());
    label.showScene(shoot.with(36), 50);
    QCOMPARE(differenceFrom(label, shoot.with(36), 50), QString());
}

void TestPreviewLabel::sameSceneKeepsThePixmap()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(36), 50);
    const qint64 key = label.pixmap(Qt::ReturnByValue).cacheKey();
    label.showScene(shoot.with(36), 50);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).cacheKey(), key);
}

void TestPreviewLabel::largeGridIsShownInSteps()
{
    const Shoot grid = largeGrid();
    PreviewLabel label;
    label.showScene(grid.with(7), 50);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), QSize(2000, 1250));
    QVERIFY(!label.isComplete());
    QTRY_VERIFY(label.isComplete());
    QCOMPARE(differenceFrom(label, grid.with(7), 50), QString());
    // From now on it follows the photos at once.
    label.showScene(grid.with(17), 50);
    QVERIFY(label.isComplete());
    QCOMPARE(differenceFrom(label, grid.with(17), 50), QString());
}

void TestPreviewLabel::photosMayComeBeforeALargeGridIsComplete()
{
    const Shoot grid = largeGrid();
    PreviewLabel label;
    label.showScene(grid.with(1), 50);
    // The first rows, the middle and the last ones.
    for (const int count : { 20, 400, 530, 600, 840, 1000 }) {
        QVERIFY(!label.isComplete());
        label.showScene(grid.with(count), 50);
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(label.isComplete());
    QCOMPARE(differenceFrom(label, grid.with(1000), 50), QString());
}

void TestPreviewLabel::zoomMayChangeBeforeALargeGridIsComplete()
{
    const Shoot grid = largeGrid();
    PreviewLabel label;
    for (const int zoom : { 50, 90, 35 }) {
        label.showScene(grid.with(12), zoom);
        QCoreApplication::processEvents();
        QVERIFY(!label.isComplete());
    }
    QTRY_VERIFY(label.isComplete());
    QCOMPARE(differenceFrom(label, grid.with(12), 35), QString());
}

void TestPreviewLabel::photosMayGoBeforeALargeGridIsComplete()
{
    PreviewLabel label;
    PreviewScene outlines;
    {
        Shoot grid = largeGrid();
        outlines = grid.with(0);
        label.showScene(grid.with(100), 50);
        QVERIFY(!label.isComplete());
        label.forgetPhotos();
    }
    QTRY_VERIFY(label.isComplete());
    // Nothing had been drawn when the photos went.
    QCOMPARE(differenceFrom(label, outlines, 50), QString());
}

void TestPreviewLabel::largeGridIsEmptyUntilItIsShown()
{
    const Shoot grid = largeGrid();
    PreviewLabel label;
    label.showScene(grid.with(5), 50);
    label.resize(label.sizeHint());
    QImage empty(label.size(), QImage::Format_RGB32);
    empty.fill(Qt::lightGray);
    QCOMPARE(pixelDifference(label.grab().toImage(), empty), QString());
    QTRY_VERIFY(label.isComplete());
    QCOMPARE(pixelDifference(label.grab().toImage(), shownBy(label)), QString());
}

void TestPreviewLabel::largeGridAppearsFirstWhereItIsSeen()
{
    const Shoot grid = largeGrid();
    QScrollArea area;
    auto *label = new PreviewLabel;
    area.setWidget(label);
    area.setWidgetResizable(true);
    area.resize(400, 300);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    label->showScene(grid.with(0), 50);
    QTRY_VERIFY(label->isComplete());
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());

    Shoot moved = largeGrid();
    for (PreviewCell &cell : moved.scene.layout.cells) {
        cell.box.translate(2, 0); // one pixel at this zoom
    }
    label->showScene(moved.with(0), 50);
    const auto isThere = [&](int y) {
        // The left side of the first cell of some row of cells, and none where it was before.
        const QImage shown = shownBy(*label);
        return shown.pixel(2, y) == 0xff000000 && shown.pixel(1, y) != 0xff000000;
    };
    while (!label->isComplete() && !isThere(1230)) {
        QCoreApplication::processEvents();
    }
    QVERIFY(isThere(1230));
    QVERIFY(!isThere(20));
    QTRY_VERIFY(label->isComplete());
    QVERIFY(isThere(20));
}

void TestPreviewLabel::largeGridIsShownAtOnceAtFullZoom()
{
    const Shoot grid = largeGrid();
    PreviewLabel label;
    label.showScene(grid.with(3), 100);
    QVERIFY(label.isComplete());
    QCOMPARE(differenceFrom(label, grid.with(3), 100), QString());
}

void TestPreviewLabel::updatesAllocateNoFurtherPicture_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : { 30, 50, 100 }) {
        QTest::addRow("%d %%", zoom) << zoom;
    }
}

void TestPreviewLabel::updatesAllocateNoFurtherPicture()
{
    if (!Allocations::areCounted()) {
        QSKIP("memory is not counted in this build");
    }
    QFETCH(const int, zoom);
    constexpr int kPhotos = 1'600;
    const Shoot shoot(40, 40, 96, 16);
    PreviewScene scene = shoot.with(kPhotos);
    const QList<XIImageDef *> all = scene.images;
    PreviewLabel label;
    // The caption's glyphs are cached at first use.
    label.showScene(Shoot(2, 2, 96, 1).with(0), 50);
    const std::int64_t before = Allocations::held();
    const std::int64_t canvas
        = std::int64_t{ 4 } * scene.layout.canvas.width() * scene.layout.canvas.height();
    const std::int64_t zoomed = zoom == 100 ? 0 : canvas * zoom * zoom / 10'000;

    Allocations::resetPeak();
    scene.images.clear();
    label.showScene(scene, zoom);
    for (int count = 10; count <= kPhotos; count += 10) {
        scene.images = all.mid(0, count);
        label.showScene(scene, zoom);
    }
    const auto peak = static_cast<double>(Allocations::peak() - before);
    const double bound = 1.35 * static_cast<double>(canvas + zoomed);
    QVERIFY2(peak <= bound,
             qPrintable(QStringLiteral("%1 MB at the most, %2 MB allowed")
                            .arg(QString::number(peak / 1e6), QString::number(bound / 1e6))));

    // Everything once more: the old pictures go before the new ones come.
    Allocations::resetPeak();
    label.forgetPhotos();
    label.showScene(scene, zoom);
    QVERIFY(static_cast<double>(Allocations::peak() - before) <= bound);
}

QTEST_MAIN(TestPreviewLabel)
#include "tst_previewlabel.moc"
