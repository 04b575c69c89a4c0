// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewlabel.h"

#include "tests/support/allocations.h"
#include "tests/support/fakeimage.h"
#include "tests/support/plainpreview.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QtTest>

#include <functional>
#include <memory>
#include <numeric>
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

    QPixmap *Thumbnail() override
    {
        ++m_questions;
        return &m_thumbnail;
    }
    [[nodiscard]] int questions() const { return m_questions; }

private:
    QPixmap m_thumbnail;
    int m_questions = 0;
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

    /** How often any photo has been asked for its thumbnail. */
    [[nodiscard]] int questions() const
    {
        return std::accumulate(photos.cbegin(), photos.cend(), 0,
                               [](int sum, const auto &photo) { return sum + photo->questions(); });
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
    return pixelDifference(shownBy(label),
                           plainZoom(plainPicture(scene, plainColours(scene.style, label)), zoom));
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(PreviewLabel &)>)

class TestPreviewLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureIsThePlainOneAtEveryZoom_data();
    void pictureIsThePlainOneAtEveryZoom();
    void zoomMayChangeWithThePhotos();
    void gridsAreLightGreyWhateverThePalette();
    void pictureKeepsItsLooksUntilTheNextCall_data();
    void pictureKeepsItsLooksUntilTheNextCall();
    void forgottenPhotosAreNotTouchedAgain();
    void newPhotosAtOldAddressesAreDrawn();
    void emptySceneShowsNothing();
    void drawingAnewShowsOtherPicturesOfTheSamePhotos();
    void takenPixmapKeepsItsPicture();
    void changeOutOfSightIsNotPainted();
    void fineScreenShowsEveryPixelOfThePicture();
    void sameSceneKeepsThePixmap();
    void largeGridIsWholeWhenTheCallReturns_data();
    void largeGridIsWholeWhenTheCallReturns();
    void updatesAllocateNoFurtherPicture_data();
    void updatesAllocateNoFurtherPicture();
};

void TestPreviewLabel::pictureIsThePlainOneAtEveryZoom_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<double>("step");
    for (const double step : { 96.0, 14.4, 70.37 }) {
        for (const int zoom : { 1, 7, 33, 50, 77, 99, 100 }) {
            QTest::addRow("cells %g pixels apart at %d %%", step, zoom) << zoom << step;
        }
    }
}

void TestPreviewLabel::pictureIsThePlainOneAtEveryZoom()
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
                                 plainZoom(plainPicture(shoot.with(count), colours), 50)),
                 QString());
    }
}

/** Puts a label's or the application's looks back. */
class LooksGuard
{
public:
    LooksGuard() = default;
    ~LooksGuard()
    {
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
        QApplication::setStyle(m_style);
    }
    Q_DISABLE_COPY(LooksGuard)

private:
    QFont m_font = QApplication::font();
    QPalette m_palette = QApplication::palette();
    QString m_style = QApplication::style()->objectName();
};

QFont largerFont()
{
    QFont font = QApplication::font();
    font.setPointSize(font.pointSize() + 4);
    return font;
}

QPalette greenPalette()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, Qt::darkGreen);
    palette.setColor(QPalette::WindowText, Qt::yellow);
    return palette;
}

void TestPreviewLabel::pictureKeepsItsLooksUntilTheNextCall_data()
{
    using Change = std::function<void(PreviewLabel &)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("the label's font")
        << Change([](PreviewLabel &label) { label.setFont(largerFont()); });
    QTest::newRow("the application's font")
        << Change([](PreviewLabel &) { QApplication::setFont(largerFont()); });
    QTest::newRow("the label's palette")
        << Change([](PreviewLabel &label) { label.setPalette(greenPalette()); });
    QTest::newRow("the application's palette")
        << Change([](PreviewLabel &) { QApplication::setPalette(greenPalette()); });
    QTest::newRow("style sheet") << Change([](PreviewLabel &label) {
        label.setStyleSheet(QStringLiteral("font-size: 20pt; color: red"));
    });
}

void TestPreviewLabel::pictureKeepsItsLooksUntilTheNextCall()
{
    QFETCH(std::function<void(PreviewLabel &)>, change);
    const LooksGuard guard;
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.show();
    label.showScene(shoot.with(20), 77);
    const QImage before = shownBy(label).copy();
    const int questions = shoot.questions();
    change(label);
    QCoreApplication::processEvents();
    QCOMPARE(shownBy(label), before);
    QCOMPARE(shoot.questions(), questions);
    // One more photo, and all of the picture has the new looks.
    label.showScene(shoot.with(21), 77);
    QCOMPARE(differenceFrom(label, shoot.with(21), 77), QString());
}

void TestPreviewLabel::forgottenPhotosAreNotTouchedAgain()
{
    Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(36), 50);
    label.forgetPhotos();
    shoot.photos.clear();
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

void TestPreviewLabel::drawingAnewShowsOtherPicturesOfTheSamePhotos()
{
    const Shoot shoot(6, 6, 60, 36);
    PreviewLabel label;
    label.showScene(shoot.with(20), 50);
    for (unsigned i = 0; i < 36; ++i) {
        shoot.photos[i]->repaint(100 + i);
    }
    label.showScene(shoot.with(20), 50, true);
    QCOMPARE(differenceFrom(label, shoot.with(20), 50), QString());
    shoot.photos[3]->repaint(200);
    label.showScene(shoot.with(20), 60);
    QCOMPARE(differenceFrom(label, shoot.with(20), 60), QString());
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

/** At half its size, on a screen with two pixels for each, the picture is as sharp as it is. */
void TestPreviewLabel::fineScreenShowsEveryPixelOfThePicture()
{
    const Shoot shoot(6, 4, 96, 24); // 580 x 388 pixels
    PreviewLabel label;
    label.showScene(shoot.with(20), 50);
    label.resize(label.sizeHint());
    QCOMPARE(label.size(), QSize(290, 194));
    QImage screen(580, 388, QImage::Format_RGB32);
    screen.setDevicePixelRatio(2.0);
    label.render(&screen);
    screen.setDevicePixelRatio(1.0);
    const QImage picture
        = plainPicture(shoot.with(20), plainColours(CellStyle::FittedWithCaption, label));
    QCOMPARE(pixelDifference(screen, picture), QString());
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

void TestPreviewLabel::largeGridIsWholeWhenTheCallReturns_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : { 35, 50, 100 }) {
        QTest::addRow("%d %%", zoom) << zoom;
    }
}

void TestPreviewLabel::largeGridIsWholeWhenTheCallReturns()
{
    QFETCH(const int, zoom);
    const Shoot grid = largeGrid();
    PreviewLabel label;
    // None, the first rows, the middle and the last ones.
    for (const int count : { 0, 7, 400, 530, 1000 }) {
        label.showScene(grid.with(count), zoom);
        QCOMPARE(differenceFrom(label, grid.with(count), zoom), QString());
    }
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

TEST_CLASS(TestPreviewLabel, QApplication)
#include "tst_previewlabel.moc"
