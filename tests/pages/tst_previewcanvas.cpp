// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewcanvas.h"

#include "tests/support/fakeimage.h"
#include "tests/support/plainpreview.h"
#include "tests/support/sanitized.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QLinearGradient>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <random>

using namespace PanoHead;

namespace
{

/** A photo with a thumbnail of the test's own. */
class Photo : public FakeImage
{
public:
    explicit Photo(const QPixmap &thumbnail)
        : FakeImage({}, {})
        , m_thumbnail(thumbnail)
    {
    }

    QPixmap *Thumbnail() override { return &m_thumbnail; }

private:
    QPixmap m_thumbnail;
};

/** No two neighbouring pixels alike, so that a pixel from the wrong place shows. */
QPixmap noise(const QSize &size, unsigned seed, bool hasAlpha = false)
{
    std::mt19937 random(seed);
    QImage image(size, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto pixel = static_cast<QRgb>(random());
            image.setPixel(x, y, hasAlpha ? pixel : pixel | 0xff000000U);
        }
    }
    return QPixmap::fromImage(image);
}

/** 0 to \p end. */
double upTo(double end, std::mt19937 &random)
{
    return std::uniform_real_distribution<double>(0.0, end)(random);
}

/** Photos for a layout, with more in reserve. */
class Photos
{
public:
    void add(const QPixmap &thumbnail) { m_photos.push_back(std::make_unique<Photo>(thumbnail)); }
    /** A photo without any pixmap. */
    void addWithoutPixmap()
    {
        FakePhoto none;
        none.preview = FakePhoto::Preview::NullPointer;
        m_photos.push_back(std::make_unique<FakeImage>(QString(), none));
    }
    [[nodiscard]] QList<XIImageDef *> all() const
    {
        QList<XIImageDef *> list;
        for (const auto &photo : m_photos) {
            list.append(photo.get());
        }
        return list;
    }

private:
    std::vector<std::unique_ptr<XIImageDef>> m_photos;
};

PreviewCell cellAt(const QRectF &box, int image, float roll = 0.0F)
{
    PreviewCell cell;
    cell.box = box;
    cell.image = image;
    cell.roll = roll;
    cell.yaw = static_cast<float>(box.left()) / 3.0F;
    cell.pitch = -12.5F;
    return cell;
}

/** \p columns x \p rows cells of \p side pixels, \p step apart. */
PreviewLayout grid(int columns, int rows, double side, double step, double margin = 2.0)
{
    PreviewLayout layout;
    layout.canvas = QSize(static_cast<int>(2 * margin + step * (columns - 1) + side) + 1,
                          static_cast<int>(2 * margin + step * (rows - 1) + side) + 1);
    for (int i = 0; i < columns * rows; ++i) {
        layout.cells.append(cellAt(
            QRectF(margin + i % columns * step, margin + i / columns * step, side, side), i));
    }
    return layout;
}

PreviewColours plainColours()
{
    return { QBrush(QColor(0xef, 0xf0, 0xf1)), { QPen(QColor(0x23, 0x26, 0x29)), {} } };
}

/** One way in which photos come and go: the lists that a page shows one after the other. */
using Course = QVector<QList<XIImageDef *>>;

Course inOrder(const QList<XIImageDef *> &photos, int group)
{
    Course course;
    for (int count = 0; count <= photos.size(); count += group) {
        course.append(photos.mid(0, count));
    }
    course.append(photos);
    course.append(photos);
    return course;
}

/** Late photos that belong between early ones. */
Course outOfOrder(const QList<XIImageDef *> &photos, unsigned seed)
{
    std::mt19937 random(seed);
    Course course{ {} };
    QList<XIImageDef *> shown;
    for (XIImageDef *photo : photos) {
        // Mostly near the end, so that few cells change; sometimes anywhere.
        const int back = static_cast<int>(random() % (random() % 16 == 0 ? 1000 : 4));
        shown.insert(std::max(0, shown.size() - back), photo);
        if (shown.size() % 3 == 0) {
            course.append(shown);
        }
    }
    return course;
}

/** Groups of any size; some photos replaced by others, swapped and taken away again. */
Course restless(const QList<XIImageDef *> &photos, unsigned seed)
{
    std::mt19937 random(seed);
    const auto any = [&random](int count) { return static_cast<int>(random() % count); };
    Course course{ {} };
    QList<XIImageDef *> shown;
    QList<XIImageDef *> left = photos;
    for (int step = 0; step < 40; ++step) {
        const int kind = any(8);
        if (kind < 4) {
            for (int i = any(9); i > 0 && !left.isEmpty(); --i) {
                shown.append(left.takeFirst());
            }
        } else if (kind == 4 && shown.size() > 1) {
            shown.swapItemsAt(any(shown.size()), any(shown.size()));
        } else if (kind == 5 && !shown.isEmpty() && !left.isEmpty()) {
            std::swap(shown[any(shown.size())], left[any(left.size())]);
        } else if (kind == 6 && !shown.isEmpty()) {
            left.append(shown.takeLast());
        } else if (kind == 7 && any(5) == 0) {
            left += shown;
            shown.clear();
        }
        course.append(shown);
    }
    return course;
}

} // namespace

Q_DECLARE_METATYPE(PanoHead::PreviewLayout)
Q_DECLARE_METATYPE(PanoHead::PreviewColours)

class TestPreviewCanvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictureIsThePlainOneAtEveryStep_data();
    void pictureIsThePlainOneAtEveryStep();
    void pictureOfAGridIsThePlainOneAtEveryStep_data();
    void pictureOfAGridIsThePlainOneAtEveryStep();
    void changeNamesThePixelsThatChange();
    void onlyCellsThatChangeAreAskedForTheirPhotos();
    void thumbnailsAreDrawnAsThePainterScalesThem_data();
    void thumbnailsAreDrawnAsThePainterScalesThem();
    void anotherLayoutRedrawsEverything();
    void otherColoursRedrawEverything();
    void invalidatingRedrawsEverything();
    void emptyLayoutHasNoPicture();
    void canvasAtTheLimitIsFollowed_data();
    void canvasAtTheLimitIsFollowed();

private:
    void follow(PreviewScene scene, const PreviewColours &colours, const Course &course);
};

void TestPreviewCanvas::initTestCase()
{
    if (kIsSanitized) {
        qInfo("With a sanitizer: two courses per layout and a quarter of the places only");
    } else {
        qInfo("All courses and places");
    }
}

/** Shows the lists of \p course one after the other and compares the picture after each. */
void TestPreviewCanvas::follow(PreviewScene scene, const PreviewColours &colours,
                               const Course &course)
{
    PreviewCanvas canvas;
    int patches = 0;
    for (int step = 0; step < course.size(); ++step) {
        scene.images = course[step];
        const QImage before = canvas.image().copy();
        const PreviewCanvas::Change change = canvas.changeTo(scene, colours);
        canvas.update(scene, colours, change);
        patches += change.everything || change.isNone() ? 0 : 1;

        const QString apart = pixelDifference(canvas.image(), plainPicture(scene, colours));
        QVERIFY2(apart.isEmpty(),
                 qPrintable(QStringLiteral("step %1: %2").arg(QString::number(step), apart)));
        PreviewCanvas fresh;
        fresh.update(scene, colours, fresh.changeTo(scene, colours));
        QCOMPARE(canvas.image(), fresh.image());
        // What the change does not name has not changed.
        if (!change.everything) {
            QImage outside = canvas.image().copy();
            for (const QRect &rect : change.region) {
                QVERIFY(outside.rect().contains(rect));
                for (int y = rect.top(); y <= rect.bottom(); ++y) {
                    memcpy(outside.scanLine(y) + 4 * rect.left(),
                           before.constScanLine(y) + 4 * rect.left(), 4 * rect.width());
                }
            }
            QVERIFY(outside == before);
        }
    }
    // A test of patches must not be one of redraws; gradients are never patched.
    QVERIFY(patches > 0 || colours.background.gradient() != nullptr);
}

void TestPreviewCanvas::pictureIsThePlainOneAtEveryStep_data()
{
    QTest::addColumn<PreviewLayout>("layout");
    QTest::addColumn<PreviewColours>("colours");
    QTest::addColumn<bool>("hasAlpha");

    PreviewLayout turned = grid(9, 7, 96, 93.7);
    const QVector<float> rolls{ 0.0F,   90.0F,  270.0F, 450.0F,
                                180.0F, -90.0F, 45.0F,  std::numeric_limits<float>::quiet_NaN() };
    for (PreviewCell &cell : turned.cells) {
        cell.roll = rolls[cell.image % rolls.size()];
    }
    PreviewLayout brackets = grid(5, 5, 96, 96);
    for (int i = 0; i < 50; ++i) {
        brackets.cells.append(cellAt(brackets.cells[i % 25].box, 25 + i));
    }
    PreviewLayout random = grid(1, 1, 96, 96);
    std::mt19937 numbers(5);
    random.canvas = QSize(700, 500);
    for (int i = 1; i < 80; ++i) {
        const double x = upTo(600.0, numbers);
        const double y = upTo(400.0, numbers);
        random.cells.append(cellAt(QRectF(x, y, 96, 96), i));
    }
    PreviewLayout outside = grid(8, 6, 96, 80.0, -40.5);
    outside.canvas = QSize(600, 420);
    PreviewLayout shared = grid(9, 7, 96, 50.25);
    for (PreviewCell &cell : shared.cells) {
        cell.image /= 2;
    }
    QLinearGradient gradient(0, 0, 700, 500);
    gradient.setColorAt(0.0, Qt::yellow);
    gradient.setColorAt(1.0, Qt::blue);

    const PreviewColours plain = plainColours();
    QTest::newRow("side by side") << grid(9, 7, 96, 96) << plain << false;
    QTest::newRow("side by side at fractions") << grid(9, 7, 96, 96.3333, 2.71) << plain << false;
    QTest::newRow("at halves") << grid(9, 7, 96, 95.5, 2.5) << plain << false;
    QTest::newRow("far apart") << grid(9, 5, 96, 140.4) << plain << false;
    QTest::newRow("overlapping 44-fold") << grid(14, 10, 96, 14.4) << plain << false;
    QTest::newRow("overlapping at halves") << grid(14, 10, 96, 14.5, 2.5) << plain << false;
    QTest::newRow("turned") << turned << plain << false;
    QTest::newRow("brackets on the same place") << brackets << plain << false;
    QTest::newRow("anywhere") << random << plain << false;
    QTest::newRow("reduced") << grid(20, 15, 17.3, 17.3) << plain << false;
    QTest::newRow("reduced below a pixel") << grid(20, 15, 0.4, 0.4) << plain << false;
    QTest::newRow("partly outside") << outside << plain << false;
    QTest::newRow("one photo in two cells") << shared << plain << false;
    QTest::newRow("thumbnails with alpha") << grid(9, 7, 96, 40.6) << plain << true;
    QTest::newRow("background that lets through")
        << grid(9, 7, 96, 60.5) << PreviewColours{ QBrush(QColor(200, 30, 90, 120)), plain.caption }
        << false;
    QTest::newRow("background with a pattern")
        << grid(9, 7, 96, 60.5)
        << PreviewColours{ QBrush(Qt::red, Qt::DiagCrossPattern), plain.caption } << false;
    QTest::newRow("background with a texture")
        << grid(9, 7, 96, 60.5) << PreviewColours{ QBrush(noise({ 37, 29 }, 9)), plain.caption }
        << false;
    QTest::newRow("background with a gradient")
        << grid(9, 7, 96, 60.5) << PreviewColours{ QBrush(gradient), plain.caption } << false;
    QTest::newRow("captions on a ground")
        << grid(9, 7, 96, 60.5)
        << PreviewColours{ plain.background, { QPen(Qt::white), QBrush(QColor(20, 20, 20, 153)) } }
        << false;
    QTest::newRow("captions that let through")
        << grid(9, 7, 96, 60.5)
        << PreviewColours{ plain.background, { QPen(QColor(9, 9, 9, 99)), {} } } << false;
}

void TestPreviewCanvas::pictureIsThePlainOneAtEveryStep()
{
    QFETCH(const PreviewLayout, layout);
    QFETCH(const PreviewColours, colours);
    QFETCH(const bool, hasAlpha);
    Photos photos;
    const QVector<QSize> sizes{ { 160, 120 }, { 120, 160 }, { 96, 96 }, { 97, 95 },
                                { 1, 1 },     { 33, 200 },  { 300, 7 } };
    for (int i = 0; i < layout.cells.size() + 8; ++i) {
        if (i % 13 == 5) {
            photos.addWithoutPixmap();
        } else if (i % 13 == 9) {
            photos.add(QPixmap());
        } else {
            photos.add(noise(sizes[i % sizes.size()], static_cast<unsigned>(i), hasAlpha));
        }
    }
    PreviewScene scene;
    scene.layout = layout;
    const QList<XIImageDef *> all = photos.all();
    QVector<Course> courses{ inOrder(all, 10), restless(all, 3) };
    if (!kIsSanitized) {
        courses << inOrder(all, 4) << outOfOrder(all, 1) << restless(all, 4);
    }
    for (const Course &course : courses) {
        follow(scene, colours, course);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void TestPreviewCanvas::pictureOfAGridIsThePlainOneAtEveryStep_data()
{
    QTest::addColumn<QVector<QSize>>("sizes");
    QTest::newRow("twice the cells") << QVector<QSize>{ { 80, 60 } };
    QTest::newRow("as large as the cells") << QVector<QSize>{ { 40, 30 } };
    QTest::newRow("smaller than the cells") << QVector<QSize>{ { 20, 10 } };
    QTest::newRow("of different sizes")
        << QVector<QSize>{ { 80, 60 }, { 60, 80 }, { 10, 10 }, { 200, 40 }, { 1, 150 } };
    QTest::newRow("first small, then large")
        << QVector<QSize>{ { 10, 10 }, { 10, 10 }, { 10, 10 }, { 10, 10 },  { 10, 10 },
                           { 10, 10 }, { 10, 10 }, { 10, 10 }, { 400, 300 } };
}

void TestPreviewCanvas::pictureOfAGridIsThePlainOneAtEveryStep()
{
    QFETCH(const QVector<QSize>, sizes);
    PreviewScene scene;
    scene.style = CellStyle::UnscaledPhoto;
    scene.layout.canvas = QSize(12 * 44 + 4, 9 * 34 + 4);
    for (int i = 0; i < 108; ++i) {
        // Column by column, upwards in every other: neighbours in time are not always so in place.
        const int column = i / 9;
        const int row = column % 2 == 0 ? i % 9 : 8 - i % 9;
        scene.layout.cells.append(cellAt(QRectF(4 + column * 44, 4 + row * 34, 40, 30), i));
    }
    Photos photos;
    for (int i = 0; i < 112; ++i) {
        if (i % 17 == 7) {
            photos.addWithoutPixmap();
        } else {
            photos.add(noise(sizes[i % sizes.size()], static_cast<unsigned>(i), i % 5 == 0));
        }
    }
    const PreviewColours colours{ QBrush(Qt::lightGray), { QPen(Qt::black), {} } };
    const QList<XIImageDef *> all = photos.all();
    QVector<Course> courses{ inOrder(all, 10), restless(all, 2) };
    if (!kIsSanitized) {
        courses << outOfOrder(all, 1) << restless(all, 3);
    }
    for (const Course &course : courses) {
        follow(scene, colours, course);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void TestPreviewCanvas::changeNamesThePixelsThatChange()
{
    PreviewScene scene;
    scene.layout = grid(9, 7, 96, 96);
    PreviewCanvas canvas;
    canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    QVERIFY(canvas.changeTo(scene, plainColours()).isNone());

    Photo photo(noise({ 96, 96 }, 1));
    scene.images.append(&photo);
    const PreviewCanvas::Change change = canvas.changeTo(scene, plainColours());
    QVERIFY(!change.everything);
    // The cell stands at 2,2, and its photo covers it; the outline stays as it is.
    QVERIFY(change.region.contains(QRect(2, 2, 96, 96)));
    QVERIFY(QRect(0, 0, 102, 102).contains(change.region.boundingRect()));
    const QRegion named = change.region;
    const QImage before = canvas.image().copy();
    canvas.update(scene, plainColours(), change);
    int changed = 0;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (canvas.image().pixel(x, y) != before.pixel(x, y)) {
                ++changed;
                QVERIFY(named.contains(QPoint(x, y)));
            }
        }
    }
    QVERIFY(changed > 90 * 90);
}

/** Counts how often it is asked for its thumbnail. */
class CountingPhoto : public Photo
{
public:
    using Photo::Photo;
    QPixmap *Thumbnail() override
    {
        ++requests;
        return Photo::Thumbnail();
    }
    int requests = 0;
};

void TestPreviewCanvas::onlyCellsThatChangeAreAskedForTheirPhotos()
{
    PreviewScene scene;
    scene.layout = grid(20, 1, 96, 96);
    std::vector<std::unique_ptr<CountingPhoto>> photos;
    for (int i = 0; i < 20; ++i) {
        photos.push_back(std::make_unique<CountingPhoto>(noise({ 96, 96 }, 1)));
    }
    PreviewCanvas canvas;
    for (int count = 0; count <= 20; ++count) {
        scene.images.clear();
        for (int i = 0; i < count; ++i) {
            scene.images.append(photos[i].get());
        }
        canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    }
    // Its own step and those of the two neighbours, a few requests each; not all twenty steps.
    QVERIFY2(photos[0]->requests < 16, qPrintable(QString::number(photos[0]->requests)));
}

void TestPreviewCanvas::thumbnailsAreDrawnAsThePainterScalesThem_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : { QSize(160, 120), QSize(96, 96), QSize(95, 97), QSize(1, 1),
                              QSize(2, 3), QSize(1000, 700), QSize(48, 36), QSize(192, 192) }) {
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
}

/** At any place of a cell, whole, half and odd. */
void TestPreviewCanvas::thumbnailsAreDrawnAsThePainterScalesThem()
{
    QFETCH(const QSize, size);
    std::mt19937 random(17);
    Photo photo(noise(size, 3));
    PreviewScene scene;
    scene.layout.canvas = QSize(220, 220);
    // Outlines only, so that a photo in the first cell is a change of few.
    for (int i = 0; i < 4; ++i) {
        scene.layout.cells.append(cellAt(QRectF(i, i, 96, 96), 1));
    }
    for (int i = 0; i < (kIsSanitized ? 100 : 400); ++i) {
        const auto place = [&random, i] {
            const double parts[] = { 0.0, 0.5, 0.25, 1e-9, 1.0 - 1e-9, upTo(1.0, random) };
            return std::floor(upTo(110.0, random)) + parts[i % 6];
        };
        const double side = i % 4 == 3 ? upTo(100.0, random) : 96.0;
        scene.layout.cells[0] = cellAt(QRectF(place(), place(), side, side), 0);
        PreviewCanvas canvas;
        for (const int count : { 0, 1 }) {
            scene.images = count == 0 ? QList<XIImageDef *>() : QList<XIImageDef *>{ &photo };
            const PreviewCanvas::Change change = canvas.changeTo(scene, plainColours());
            QCOMPARE(change.everything, count == 0);
            canvas.update(scene, plainColours(), change);
        }
        PreviewCanvas fresh;
        fresh.update(scene, plainColours(), fresh.changeTo(scene, plainColours()));
        const QImage plain = plainPicture(scene, plainColours());
        QString apart = pixelDifference(canvas.image(), plain);
        apart += pixelDifference(fresh.image(), plain);
        const QRectF box = scene.layout.cells[0].box;
        QVERIFY2(apart.isEmpty(),
                 qPrintable(QStringLiteral("at %1,%2, side %3: %4")
                                .arg(QString::number(box.left(), 'g', 12),
                                     QString::number(box.top(), 'g', 12), QString::number(side),
                                     apart)));
    }
}

void TestPreviewCanvas::anotherLayoutRedrawsEverything()
{
    PreviewScene scene;
    scene.layout = grid(9, 7, 96, 60);
    PreviewCanvas canvas;
    canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    scene.layout.cells[5].roll = 90.0F;
    QVERIFY(canvas.changeTo(scene, plainColours()).everything);
    scene.layout = grid(9, 7, 96, 61);
    const PreviewCanvas::Change change = canvas.changeTo(scene, plainColours());
    QVERIFY(change.everything);
    canvas.update(scene, plainColours(), change);
    QCOMPARE(pixelDifference(canvas.image(), plainPicture(scene, plainColours())), QString());
}

void TestPreviewCanvas::otherColoursRedrawEverything()
{
    PreviewScene scene;
    scene.layout = grid(9, 7, 96, 60);
    PreviewCanvas canvas;
    canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    for (const PreviewColours &colours :
         { PreviewColours{ QBrush(Qt::white), { QPen(Qt::black), {} } },
           PreviewColours{ QBrush(Qt::white), { QPen(Qt::red), {} } } }) {
        const PreviewCanvas::Change change = canvas.changeTo(scene, colours);
        QVERIFY(change.everything);
        canvas.update(scene, colours, change);
        QCOMPARE(pixelDifference(canvas.image(), plainPicture(scene, colours)), QString());
    }
}

void TestPreviewCanvas::invalidatingRedrawsEverything()
{
    PreviewScene scene;
    scene.layout = grid(9, 7, 96, 60);
    PreviewCanvas canvas;
    canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    const QFont before = QApplication::font();
    QFont larger = before;
    larger.setPointSize(before.pointSize() + 5);
    QApplication::setFont(larger);
    canvas.invalidate();
    const PreviewCanvas::Change change = canvas.changeTo(scene, plainColours());
    QVERIFY(change.everything);
    canvas.update(scene, plainColours(), change);
    QCOMPARE(pixelDifference(canvas.image(), plainPicture(scene, plainColours())), QString());
    QApplication::setFont(before);
}

void TestPreviewCanvas::emptyLayoutHasNoPicture()
{
    PreviewScene scene;
    PreviewCanvas canvas;
    const PreviewCanvas::Change first = canvas.changeTo(scene, plainColours());
    canvas.update(scene, plainColours(), first);
    QVERIFY(canvas.image().isNull());
    QVERIFY(canvas.changeTo(scene, plainColours()).isNone());

    scene.layout = grid(2, 2, 96, 96);
    canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    QVERIFY(!canvas.image().isNull());
    scene.layout = {};
    canvas.update(scene, plainColours(), canvas.changeTo(scene, plainColours()));
    QVERIFY(canvas.image().isNull());
}

void TestPreviewCanvas::canvasAtTheLimitIsFollowed_data()
{
    QTest::addColumn<QSize>("canvas");
    QTest::newRow("widest") << QSize(32'767, 300);
    QTest::newRow("highest") << QSize(300, 32'767);
}

void TestPreviewCanvas::canvasAtTheLimitIsFollowed()
{
    QFETCH(const QSize, canvas);
    const bool isWide = canvas.width() > canvas.height();
    PreviewScene scene;
    scene.layout.canvas = canvas;
    Photos photos;
    for (int i = 0; i < 100; ++i) {
        const double place = 2.25 + (32'767 - 100) * i / 99.0;
        scene.layout.cells.append(
            cellAt(isWide ? QRectF(place, 50.5, 96, 96) : QRectF(50.5, place, 96, 96), i));
        photos.add(noise({ 160, 120 }, static_cast<unsigned>(i)));
    }
    follow(scene, plainColours(), inOrder(photos.all(), 24));
}

TEST_CLASS(TestPreviewCanvas, QApplication)
#include "tst_previewcanvas.moc"
