// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "ui/xuipixmaphelper.h"

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace
{

QPixmap solid(QSize size, QColor colour, qreal ratio = 1.0)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

class TestXuiPixmapHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setAlphaCutsTheRatioToAWholeNumber_data();
    void setAlphaCutsTheRatioToAWholeNumber();
    void setAlphaFadesEveryPixel_data();
    void setAlphaFadesEveryPixel();
    void setAlphaFadesWhatIsFadedAlready();
    void setAlphaOfANullPixmapStaysNull();
    void scaledCountsInDevicePixels_data();
    void scaledCountsInDevicePixels();
    void scaledIsFastAndIgnoresTheAspectRatio();
    void displayRectIsInDeviceIndependentPixels_data();
    void displayRectIsInDeviceIndependentPixels();
    void createTakesTheFirstAvailableSize();
    void createFadesOnRequest();
    void createScalesToAValidSizeOnly_data();
    void createScalesToAValidSizeOnly();
    void createOfAMissingPictureIsNull();
};

void TestXuiPixmapHelper::setAlphaCutsTheRatioToAWholeNumber_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("1.0") << 1.0 << 1.0;
    QTest::newRow("1.5 becomes 1.0") << 1.5 << 1.0;
    QTest::newRow("2.0") << 2.0 << 2.0;
    QTest::newRow("2.75 becomes 2.0") << 2.75 << 2.0;
}

void TestXuiPixmapHelper::setAlphaCutsTheRatioToAWholeNumber()
{
    QFETCH(const qreal, ratio);
    QFETCH(const qreal, expected);
    QPixmap pixmap = solid({ 21, 13 }, Qt::red, ratio);
    XuiPixmapHelper::SetAlpha(pixmap, 128);
    QCOMPARE(pixmap.devicePixelRatio(), expected);
    QCOMPARE(pixmap.size(), QSize(21, 13)); // device pixels stay what they are
    // The whole surface was painted, whatever the ratio; the painter's 8-bit steps may lose one.
    const QImage image = pixmap.toImage();
    QVERIFY(qAbs(image.pixelColor(0, 0).alpha() - 128) <= 1);
    QVERIFY(qAbs(image.pixelColor(20, 12).alpha() - 128) <= 1);
}

void TestXuiPixmapHelper::setAlphaFadesEveryPixel_data()
{
    QTest::addColumn<int>("alpha");
    QTest::newRow("invisible") << 0;
    QTest::newRow("a quarter") << 64;
    QTest::newRow("half") << 128;
    QTest::newRow("almost opaque") << 254;
    QTest::newRow("opaque") << 255;
}

void TestXuiPixmapHelper::setAlphaFadesEveryPixel()
{
    QFETCH(const int, alpha);
    QPixmap pixmap = solid({ 8, 4 }, QColor(200, 100, 50));
    XuiPixmapHelper::SetAlpha(pixmap, alpha);
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 8; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            // 255 * (alpha / 255), with one step of rounding in the painter's 8-bit arithmetic.
            QVERIFY(qAbs(pixel.alpha() - alpha) <= 1);
            if (alpha > 0) {
                // Undoing the premultiplication of a faint pixel loses up to 255 / alpha steps.
                const int tolerance = 255 / alpha + 1;
                QVERIFY(qAbs(pixel.red() - 200) <= tolerance);
                QVERIFY(qAbs(pixel.green() - 100) <= tolerance);
                QVERIFY(qAbs(pixel.blue() - 50) <= tolerance);
            }
        }
    }
}

void TestXuiPixmapHelper::setAlphaFadesWhatIsFadedAlready()
{
    QPixmap pixmap = solid({ 4, 4 }, QColor(255, 255, 255, 128));
    XuiPixmapHelper::SetAlpha(pixmap, 128);
    // 128 * 128 / 255 = 64.25
    QVERIFY(qAbs(pixmap.toImage().pixelColor(1, 1).alpha() - 64) <= 1);
}

void TestXuiPixmapHelper::setAlphaOfANullPixmapStaysNull()
{
    QPixmap pixmap;
    XuiPixmapHelper::SetAlpha(pixmap, 128);
    QVERIFY(pixmap.isNull());
}

void TestXuiPixmapHelper::scaledCountsInDevicePixels_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("ratio 1") << 1.0 << QSize(10, 10) << QSize(10, 10);
    QTest::newRow("ratio 2") << 2.0 << QSize(10, 10) << QSize(20, 20);
    QTest::newRow("ratio 1.5") << 1.5 << QSize(10, 20) << QSize(15, 30);
    // 7.5 and 10.5 round away from zero.
    QTest::newRow("halves round up") << 1.5 << QSize(5, 7) << QSize(8, 11);
    // 1.25 * 9 = 11.25, 1.25 * 11 = 13.75
    QTest::newRow("quarters round to the nearest") << 1.25 << QSize(9, 11) << QSize(11, 14);
}

void TestXuiPixmapHelper::scaledCountsInDevicePixels()
{
    QFETCH(const qreal, ratio);
    QFETCH(const QSize, wanted);
    QFETCH(const QSize, pixels);
    QPixmap pixmap = solid({ 40, 30 }, Qt::blue, ratio);
    QCOMPARE(XuiPixmapHelper::Scaled(pixmap, wanted).size(), pixels);
    QCOMPARE(pixmap.size(), QSize(40, 30));
}

void TestXuiPixmapHelper::scaledIsFastAndIgnoresTheAspectRatio()
{
    // Four fields, doubled in width only: a smooth scaler would mix them at the borders.
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::green);
    image.setPixelColor(0, 1, Qt::blue);
    image.setPixelColor(1, 1, Qt::white);
    QPixmap pixmap = QPixmap::fromImage(image);
    const QImage scaled = XuiPixmapHelper::Scaled(pixmap, { 8, 2 }).toImage();
    QCOMPARE(scaled.size(), QSize(8, 2));
    for (int x = 0; x < 8; ++x) {
        QCOMPARE(scaled.pixelColor(x, 0), QColor(x < 4 ? Qt::red : Qt::green));
        QCOMPARE(scaled.pixelColor(x, 1), QColor(x < 4 ? Qt::blue : Qt::white));
    }
}

void TestXuiPixmapHelper::displayRectIsInDeviceIndependentPixels_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("ratio 1") << QSize(21, 13) << 1.0 << QRect(0, 0, 21, 13);
    QTest::newRow("10.5 rounds up") << QSize(21, 21) << 2.0 << QRect(0, 0, 11, 11);
    // 20 / 1.5 = 13.33, 10 / 1.5 = 6.67
    QTest::newRow("ratio 1.5") << QSize(20, 10) << 1.5 << QRect(0, 0, 13, 7);
}

void TestXuiPixmapHelper::displayRectIsInDeviceIndependentPixels()
{
    QFETCH(const QSize, pixels);
    QFETCH(const qreal, ratio);
    QFETCH(const QRect, rect);
    QPixmap pixmap = solid(pixels, Qt::green, ratio);
    QCOMPARE(XuiPixmapHelper::GetDisplayRect(pixmap), rect);
}

void TestXuiPixmapHelper::createTakesTheFirstAvailableSize()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("logo.png"));
    QVERIFY(solid({ 48, 32 }, Qt::red).save(path));
    const QPixmap pixmap = XuiPixmapHelper::CreateHighDpiPixmap(path, 255, QSize(-1, -1));
    QCOMPARE(pixmap.size(), QSize(48, 32));
    QCOMPARE(pixmap.toImage().pixelColor(10, 10), QColor(Qt::red));
}

void TestXuiPixmapHelper::createFadesOnRequest()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("logo.png"));
    QVERIFY(solid({ 48, 32 }, Qt::red).save(path));
    const QPixmap pixmap = XuiPixmapHelper::CreateHighDpiPixmap(path, 51, QSize());
    QVERIFY(qAbs(pixmap.toImage().pixelColor(10, 10).alpha() - 51) <= 1);
    QCOMPARE(pixmap.size(), QSize(48, 32));
}

void TestXuiPixmapHelper::createScalesToAValidSizeOnly_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("expected");
    const QSize own(48, 32);
    QTest::newRow("a size") << QSize(10, 20) << QSize(10, 20);
    QTest::newRow("1 x 1") << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("the invalid size") << QSize(-1, -1) << own;
    QTest::newRow("no width") << QSize(0, 20) << own;
    QTest::newRow("no height") << QSize(20, 0) << own;
}

void TestXuiPixmapHelper::createScalesToAValidSizeOnly()
{
    QFETCH(const QSize, size);
    QFETCH(const QSize, expected);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("logo.png"));
    QVERIFY(solid({ 48, 32 }, Qt::red).save(path));
    QCOMPARE(XuiPixmapHelper::CreateHighDpiPixmap(path, 255, size).size(), expected);
}

void TestXuiPixmapHelper::createOfAMissingPictureIsNull()
{
    QVERIFY(XuiPixmapHelper::CreateHighDpiPixmap(QStringLiteral(":/no/such.png"), 128, { 10, 10 })
                .isNull());
    QVERIFY(XuiPixmapHelper::CreateHighDpiPixmap(QString(), 255, {}).isNull());
}

TEST_CLASS(TestXuiPixmapHelper, QApplication)
#include "tst_xuipixmaphelper.moc"
