// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/zoomedcopy.h"

#include "tests/support/plainpreview.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QtTest>

#include <algorithm>
#include <random>

using namespace PanoHead;

namespace
{

QImage noise(const QSize &size, unsigned seed, QImage::Format format = QImage::Format_RGB32)
{
    std::mt19937 random(seed);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] = static_cast<QRgb>(random()) | 0xff000000U;
        }
    }
    return image.convertToFormat(format);
}

/** \p picture with \p region blackened. */
QImage outside(const QImage &picture, const QRegion &region)
{
    QImage rest = picture.copy();
    if (rest.isNull()) {
        return rest;
    }
    QPainter painter(&rest);
    for (const QRect &rect : region) {
        painter.fillRect(rect, Qt::black);
    }
    return rest;
}

} // namespace

class TestZoomedCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyIsWhatFastScalingMakes_data();
    void copyIsWhatFastScalingMakes();
    void patchedCopyIsWhatScalingTheNewPictureMakes_data();
    void patchedCopyIsWhatScalingTheNewPictureMakes();
    void fullZoomSharesThePicture();
    void lessThanAPixelIsNothing();
    void forgottenCopyHasNoPercent();
};

void TestZoomedCopy::copyIsWhatFastScalingMakes_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : { QSize(150, 100), QSize(1, 1), QSize(99, 101), QSize(1540, 1543),
                              QSize(4420, 260), QSize(32'767, 3), QSize(3, 32'767) }) {
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
}

void TestZoomedCopy::copyIsWhatFastScalingMakes()
{
    QFETCH(const QSize, size);
    const QImage picture = noise(size, 1);
    for (int percent = 1; percent <= 100; ++percent) {
        ZoomedCopy copy;
        QCOMPARE(copy.make(picture, percent), plainZoom(picture, percent));
        QCOMPARE(copy.percent(), percent);
    }
}

void TestZoomedCopy::patchedCopyIsWhatScalingTheNewPictureMakes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("format");
    for (const QSize size : { QSize(640, 480), QSize(1543, 777), QSize(100, 1), QSize(32'767, 5),
                              QSize(5, 32'767), QSize(9'999, 401) }) {
        for (const int percent : { 1, 7, 33, 50, 77, 99, 100 }) {
            QTest::addRow("%d x %d at %d %%", size.width(), size.height(), percent)
                << size << percent << static_cast<int>(QImage::Format_RGB32);
        }
    }
    QTest::newRow("with alpha") << QSize(640, 480) << 33
                                << static_cast<int>(QImage::Format_ARGB32_Premultiplied);
}

void TestZoomedCopy::patchedCopyIsWhatScalingTheNewPictureMakes()
{
    QFETCH(const QSize, size);
    QFETCH(const int, percent);
    QFETCH(const int, format);
    std::mt19937 random(3);
    QImage picture = noise(size, 1, static_cast<QImage::Format>(format));
    const QImage other = noise(size, 2, static_cast<QImage::Format>(format));
    ZoomedCopy copy;
    QPixmap shown = QPixmap::fromImage(copy.make(picture, percent));
    for (int round = 0; round < 20; ++round) {
        QRegion region;
        for (int i = 0; i < 4; ++i) {
            const QPoint corner(static_cast<int>(random() % size.width()),
                                static_cast<int>(random() % size.height()));
            // From one pixel to a tenth of the picture, up to its edges.
            region += QRect(corner,
                            QSize(1 + static_cast<int>(random() % (size.width() / 10 + 1)),
                                  1 + static_cast<int>(random() % (size.height() / 10 + 1))))
                & picture.rect();
        }
        for (const QRect &rect : region) {
            for (int y = rect.top(); y <= rect.bottom(); ++y) {
                const int start = 4 * rect.left();
                memcpy(picture.scanLine(y) + start,
                       (round % 2 == 0 ? other : picture).constScanLine(y) + start,
                       static_cast<std::size_t>(4 * rect.width()));
            }
        }
        const QImage before = shown.toImage().copy();
        const QRegion patched = copy.patch(&shown, picture, region);
        QCOMPARE(pixelDifference(shown.toImage(), plainZoom(picture, percent)), QString());
        QCOMPARE(pixelDifference(outside(shown.toImage(), patched), outside(before, patched)),
                 QString());
    }
}

void TestZoomedCopy::fullZoomSharesThePicture()
{
    const QImage picture = noise({ 640, 480 }, 1);
    ZoomedCopy copy;
    QCOMPARE(copy.make(picture, 100).constBits(), picture.constBits());
}

void TestZoomedCopy::lessThanAPixelIsNothing()
{
    ZoomedCopy copy;
    // 99 x 1 / 100 = 0.
    QVERIFY(copy.make(noise({ 99, 500 }, 1), 1).isNull());
    QVERIFY(copy.make(noise({ 500, 99 }, 1), 1).isNull());
    QCOMPARE(copy.make(noise({ 100, 199 }, 1), 1).size(), QSize(1, 1));
    QVERIFY(copy.make(QImage(), 50).isNull());
}

void TestZoomedCopy::forgottenCopyHasNoPercent()
{
    ZoomedCopy copy;
    (void)copy.make(noise({ 100, 100 }, 1), 50);
    copy.forget();
    QCOMPARE(copy.percent(), 0);
}

TEST_CLASS(TestZoomedCopy, QApplication)
#include "tst_zoomedcopy.moc"
