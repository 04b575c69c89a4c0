// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/hdrmerge.h"
#include "host/stitch/tiffplace.h"
#include "host/stitch/vipsfile.h"
#include "tests/support/testprogram.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <memory>

#include <tiffio.h>

using namespace PanoHost;

namespace
{

/** A file of libvips' own format, written by hand. */
template <typename T>
QByteArray vipsBytes(int width, int height, int bands, int format, const QVector<T> &samples)
{
    const QVector<qint32> header{ 0x08f2a6b6, width, height, bands, 8 * int(sizeof(T)), format };
    QByteArray bytes(reinterpret_cast<const char *>(header.constData()),
                     header.size() * int(sizeof(qint32)));
    bytes.append(QByteArray(64 - bytes.size(), '\0'));
    bytes.append(reinterpret_cast<const char *>(samples.constData()),
                 samples.size() * int(sizeof(T)));
    return bytes;
}

constexpr int kBytes = 0;
constexpr int kWords = 2;
constexpr int kFloats = 6;

} // namespace

/** Brackets as light. */
class TestHdrMerge : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void lightIsFoundAgain_data();
    void lightIsFoundAgain();
    void theCurveIsUndone();
    void vignettingIsTakenOut();
    void alphaAndGreyAreUnderstood();
    void warpedLightIsJoinedWhereItIsSeen();
    void whatIsNoWarpedLightIsRefused();
    void unlikeSizesAreRefused();
    void whatIsNoPictureIsRefused_data();
    void whatIsNoPictureIsRefused();
    void noRoomIsSaid();

private:
    QString write(const char *name, const QByteArray &bytes);
    QVector<float> merged(const QVector<HdrLevel> &levels, const HdrCurve &curve);

    /** All samples of the TIFF file \p path of \p bands. */
    static QVector<float> samplesOf(const QString &path, int bands);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestHdrMerge::initTestCase()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TestHdrMerge::write(const char *name, const QByteArray &bytes)
{
    const QString path = m_folder->filePath(QLatin1String(name));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
}

/** All samples of the TIFF file that comes out. */
QVector<float> TestHdrMerge::merged(const QVector<HdrLevel> &levels, const HdrCurve &curve)
{
    const QString path = m_folder->filePath(QStringLiteral("out.tif"));
    if (!mergeLevels(levels, curve, path)) {
        return {};
    }
    return samplesOf(path, 3);
}

QVector<float> TestHdrMerge::samplesOf(const QString &path, int bands)
{
    TIFF *const file = TIFFOpen(QFile::encodeName(path).constData(), "r");
    uint32_t width = 0;
    uint32_t height = 0;
    TIFFGetField(file, TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(file, TIFFTAG_IMAGELENGTH, &height);
    QVector<float> samples(int(width * height) * bands);
    for (uint32_t y = 0; y < height; ++y) {
        TIFFReadScanline(file, samples.data() + y * width * uint32_t(bands), y, 0);
    }
    TIFFClose(file);
    return samples;
}

void TestHdrMerge::lightIsFoundAgain_data()
{
    QTest::addColumn<QVector<double>>("light"); // of one pixel, 1: white of the middle exposure
    // Levels of a quarter, one and four times the exposure: white at 4, 1 and 0.25.
    QTest::newRow("all levels show it") << QVector<double>{ 0.1, 0.15, 0.05 };
    QTest::newRow("the longest is clipped") << QVector<double>{ 0.5, 0.4, 0.3 };
    QTest::newRow("one colour is clipped") << QVector<double>{ 0.7, 0.02, 0.01 };
    QTest::newRow("only the shortest shows it") << QVector<double>{ 2.5, 1.5, 2.0 };
    QTest::newRow("deep shadow") << QVector<double>{ 0.001, 0.002, 0.003 };
    QTest::newRow("black") << QVector<double>{ 0.0, 0.0, 0.0 };
    // The shortest exposure tells white at least.
    QTest::newRow("all are clipped") << QVector<double>{ 4.0, 4.0, 4.0 };
}

void TestHdrMerge::lightIsFoundAgain()
{
    QFETCH(QVector<double>, light);
    QVector<HdrLevel> levels;
    for (const double gain : { 1.0, 4.0, 0.25 }) { // in any order
        QVector<quint16> samples;
        for (const double colour : light) {
            samples += quint16(std::lround(65535.0 * std::min(colour / gain, 1.0)));
        }
        const QByteArray name = "level" + QByteArray::number(gain) + ".v";
        levels += { write(name.constData(), vipsBytes(1, 1, 3, kWords, samples)), gain };
    }
    const QVector<float> found = merged(levels, { true, {} });
    QCOMPARE(found.size(), 3);
    for (int colour = 0; colour < 3; ++colour) {
        // 1/65535 of the shortest exposure's white is the coarsest step there is.
        const double tolerance = 1e-4 + 1e-3 * light[colour];
        QVERIFY2(std::abs(double(found[colour]) - light[colour]) <= tolerance,
                 qPrintable(QString::number(double(found[colour]))));
    }
}

void TestHdrMerge::theCurveIsUndone()
{
    // sRGB: 188 of 255 is half the light of white (0.7372 -> 0.5029), 55 is 0.0382.
    const QString path
        = write("curve.v", vipsBytes<quint8>(1, 1, 3, kBytes, QVector<quint8>{ 188, 55, 0 }));
    const QVector<float> found = merged({ { path, 1.0 } }, { false, {} });
    QVERIFY(std::abs(found.value(0) - 0.5029F) < 5e-4F);
    QVERIFY(std::abs(found.value(1) - 0.0382F) < 5e-4F);
    QCOMPARE(found.value(2), 0.0F);
}

void TestHdrMerge::vignettingIsTakenOut()
{
    // 3 x 1 pixels: the outer middles lie 1 pixel off; half the diagonal is sqrt(10)/2, so
    // r^2 = 1 / 2.5 = 0.4. With b = -0.5 there arrives 0.8 of the light.
    const QString path
        = write("corners.v",
                vipsBytes<float>(3, 1, 3, kFloats,
                                 { 0.4F, 0.4F, 0.4F, 0.5F, 0.5F, 0.5F, 0.4F, 0.2F, 0.1F }));
    const QVector<float> found = merged({ { path, 1.0 } }, { true, { -0.5, 0.0, 0.0 } });
    const QVector<float> expected{ 0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.25F, 0.125F };
    QCOMPARE(found.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QVERIFY(std::abs(found[i] - expected[i]) < 1e-6F);
    }
}

void TestHdrMerge::alphaAndGreyAreUnderstood()
{
    const QVector<quint8> withAlpha{ 51, 102, 153, 255 };
    const QVector<float> colours = merged(
        { { write("alpha.v", vipsBytes(1, 1, 4, kBytes, withAlpha)), 1.0 } }, { true, {} });
    QCOMPARE(colours, (QVector<float>{ 0.2F, 0.4F, 0.6F }));
    const QVector<float> grey = merged(
        { { write("grey.v", vipsBytes<quint8>(1, 1, 1, kBytes, { 51 })), 1.0 } }, { true, {} });
    QCOMPARE(grey, (QVector<float>{ 0.2F, 0.2F, 0.2F }));
}

void TestHdrMerge::warpedLightIsJoinedWhereItIsSeen()
{
    // Pixels: both levels show it, the short one alone, the long one alone, the long one is clipped
    // at its white of 0.25, it alone and clipped, none.
    const float none = 0.0F;
    const QVector<float> shortest{ 0.1F, 0.1F, 0.1F, 1.0F, 0.8F, 0.4F, 0.2F, 1.0F,
                                   none, none, none, none, 0.5F, 0.4F, 0.3F, 1.0F,
                                   none, none, none, none, none, none, none, none };
    const QVector<float> longest{ 0.1F,  0.1F,  0.1F, 1.0F, none,  none,  none,  none,
                                  0.1F,  0.05F, 0.0F, 1.0F, 0.25F, 0.25F, 0.25F, 1.0F,
                                  0.25F, 0.25F, 0.2F, 1.0F, none,  none,  none,  none };
    const QVector<float> expected{ 0.1F,  0.1F,  0.1F, 1.0F, 0.8F, 0.4F, 0.2F, 1.0F,
                                   0.1F,  0.05F, 0.0F, 1.0F, 0.5F, 0.4F, 0.3F, 1.0F,
                                   0.25F, 0.25F, 0.2F, 1.0F, none, none, none, none };
    const QString path = m_folder->filePath(QStringLiteral("joined.tif"));
    QVERIFY(mergeWarped({ { write("long.v", vipsBytes(6, 1, 4, kFloats, longest)), 0.25 },
                          { write("short.v", vipsBytes(6, 1, 4, kFloats, shortest)), 1.0 } },
                        QRect(30, 20, 6, 1), QSize(100, 50), path));
    const QVector<float> found = samplesOf(path, 4);
    QCOMPARE(found.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QVERIFY2(std::abs(found[i] - expected[i]) < 1e-6F, qPrintable(QString::number(i)));
    }
    QCOMPARE(tiffPlace(path), std::make_optional(QRect(30, 20, 6, 1)));
}

void TestHdrMerge::whatIsNoWarpedLightIsRefused()
{
    const QString path = m_folder->filePath(QStringLiteral("no.tif"));
    const QString photo = write("photo.v", vipsBytes<quint8>(1, 1, 4, kBytes, { 1, 2, 3, 255 }));
    QVERIFY(!mergeWarped({ { photo, 1.0 } }, QRect(0, 0, 1, 1), QSize(9, 9), path));
    const QString light = write("light.v", vipsBytes<float>(1, 1, 4, kFloats, { 1, 1, 1, 1 }));
    QVERIFY(mergeWarped({ { light, 1.0 } }, QRect(0, 0, 1, 1), QSize(9, 9), path));
    QVERIFY(!mergeWarped({ { light, 1.0 } }, QRect(0, 0, 2, 1), QSize(9, 9), path));
}

void TestHdrMerge::unlikeSizesAreRefused()
{
    const QString one = write("one.v", vipsBytes<quint8>(1, 1, 1, kBytes, { 1 }));
    const QString two = write("two.v", vipsBytes<quint8>(2, 1, 1, kBytes, { 1, 2 }));
    const Result<QString> result = mergeLevels({ { one, 1.0 }, { two, 4.0 } }, {},
                                               m_folder->filePath(QStringLiteral("no.tif")));
    QVERIFY(!result);
    QCOMPARE(result.error().what, two);
    QCOMPARE(result.error().why,
             QStringLiteral("is of another size than the others of its bracket"));
}

void TestHdrMerge::whatIsNoPictureIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = vipsBytes<quint8>(2, 2, 3, kBytes, QVector<quint8>(12, 7));
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("header only") << good.left(64);
    QTest::newRow("last byte missing") << good.left(good.size() - 1);
    QTest::newRow("another magic") << QByteArray(good).replace(0, 1, "x");
    QTest::newRow("complex numbers") << vipsBytes<quint8>(2, 2, 3, 7, QVector<quint8>(96, 7));
    QTest::newRow("no width") << vipsBytes<quint8>(0, 2, 3, kBytes, { 1 });
    QTest::newRow("huge") << vipsBytes<quint8>(2147483647, 2147483647, 60, kBytes, { 1 });
    QTest::newRow("many bands") << vipsBytes<quint8>(1, 1, 1000000, kBytes, { 1 });
}

void TestHdrMerge::whatIsNoPictureIsRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!VipsFile::open(write("bad.v", bytes)));
}

void TestHdrMerge::noRoomIsSaid()
{
    const QString path = write("grey.v", vipsBytes<quint8>(1, 1, 1, kBytes, { 51 }));
    const Result<QString> result
        = mergeLevels({ { path, 1.0 } }, {}, QStringLiteral("/nowhere/out.tif"));
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolFailed);
    QVERIFY(!mergeLevels({ { path, 1.0 } }, {}, QStringLiteral("/dev/full")));
}

TEST_CLASS(TestHdrMerge, QCoreApplication)
#include "tst_hdrmerge.moc"
