// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/screenpicture.h"
#include "testpicture.h"
#include "tests/support/testprogram.h"

#include <QColorSpace>
#include <QDir>
#include <QTemporaryDir>

using namespace PanoHost;
using Depth = StitchedPicture::Depth;
Q_DECLARE_METATYPE(PanoHost::StitchedPicture::Depth)

class TestScreenPicture : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyDepthBecomesEightBits_data();
    void everyDepthBecomesEightBits();
    void picturesOfScreensAreTakenAsTheyAre();
    void coloursOfAnotherSpaceAreConverted_data();
    void coloursOfAnotherSpaceAreConverted();
    void brokenProfileCountsAsNone();
    void missingVipsIsNamedWithItsPackage();
    void nothingButTheResultStays();

private:
    static StitchedPicture onePixel(const QTemporaryDir &folder, Depth depth)
    {
        StitchedPicture picture;
        picture.path = folder.filePath(QStringLiteral("panorama.v"));
        picture.size = { 1, 1 };
        picture.depth = depth;
        return picture;
    }
};

void TestScreenPicture::everyDepthBecomesEightBits_data()
{
    QTest::addColumn<Depth>("depth");
    QTest::addColumn<QVector<double>>("pixel");
    QTest::addColumn<QVector<double>>("expected");
    using V = QVector<double>;
    QTest::newRow("16 bits") << Depth::Bits16 << V{ 65535, 257, 32896, 65535 }
                             << V{ 255, 1, 128, 255 };
    QTest::newRow("16 bits, not covered") << Depth::Bits16 << V{ 0, 0, 0, 0 } << V{ 0, 0, 0, 0 };
    // 0.214041 is the light that sRGB calls 0.5, 0.5 * 255 = 127.5.
    QTest::newRow("radiance") << Depth::Radiance << V{ 1, 0, 0.214041, 1 } << V{ 255, 0, 128, 255 };
    // 0.001 is on the straight part of the curve: 0.001 * 12.92 * 255 = 3.3.
    QTest::newRow("radiance, dark")
        << Depth::Radiance << V{ 0.001, 0.001, 0.001, 1 } << V{ 3, 3, 3, 255 };
    QTest::newRow("radiance, out of range")
        << Depth::Radiance << V{ 40000, -1, 1.0001, 1 } << V{ 255, 0, 255, 255 };
    QTest::newRow("radiance, not covered") << Depth::Radiance << V{ 0, 0, 0, 0 } << V{ 0, 0, 0, 0 };
}

void TestScreenPicture::everyDepthBecomesEightBits()
{
    QFETCH(Depth, depth);
    QFETCH(QVector<double>, pixel);
    QFETCH(QVector<double>, expected);
    const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/a[b]=\"c' \n-XXXXXX"));
    const StitchedPicture picture = onePixel(folder, depth);
    QVERIFY(writeTestPicture(picture, { { pixel[0], pixel[1], pixel[2], pixel[3] } }));
    const Result<QString> made = screenPicture(picture, {}, folder.path(), {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    const QVector<Pixel> pixels = readTestPicture(made.value());
    QCOMPARE(pixels.size(), 1);
    for (int band = 0; band < 4; ++band) {
        // Half a step either way may be rounded up or down.
        QVERIFY2(qAbs(pixels[0][band] - expected[band]) <= 1,
                 qPrintable(QStringLiteral("%1: %2").arg(band).arg(pixels[0][band])));
    }
    QCOMPARE(pixels[0][3], expected[3]);
}

void TestScreenPicture::picturesOfScreensAreTakenAsTheyAre()
{
    const QTemporaryDir folder;
    const StitchedPicture picture = onePixel(folder, Depth::Bits8);
    const Result<QString> made = screenPicture(picture, {}, folder.path(), {});
    QVERIFY(made);
    QCOMPARE(made.value(), picture.path);
}

void TestScreenPicture::coloursOfAnotherSpaceAreConverted_data()
{
    QTest::addColumn<Depth>("depth");
    QTest::addColumn<double>("step");
    QTest::newRow("8 bits") << Depth::Bits8 << 1.0;
    QTest::newRow("16 bits") << Depth::Bits16 << 257.0;
}

void TestScreenPicture::coloursOfAnotherSpaceAreConverted()
{
    QFETCH(Depth, depth);
    QFETCH(double, step);
    const QTemporaryDir folder;
    const StitchedPicture picture = onePixel(folder, depth);
    QVERIFY(writeTestPicture(picture, { { 100 * step, 200 * step, 100 * step, 255 * step } }));
    const QByteArray profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    const Result<QString> made = screenPicture(picture, profile, folder.path(), {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    const QVector<Pixel> pixels = readTestPicture(made.value());
    QCOMPARE(pixels.size(), 1);
    const QColorTransform independent
        = QColorSpace(QColorSpace::AdobeRgb).transformationToColorSpace(QColorSpace::SRgb);
    const QRgb expected = independent.map(qRgb(100, 200, 100));
    QVERIFY(qRed(expected) < 90); // the two spaces differ there
    QVERIFY(qAbs(pixels[0][0] - qRed(expected)) <= 2);
    QVERIFY(qAbs(pixels[0][1] - qGreen(expected)) <= 2);
    QVERIFY(qAbs(pixels[0][2] - qBlue(expected)) <= 2);
    QCOMPARE(pixels[0][3], 255.0);
}

void TestScreenPicture::brokenProfileCountsAsNone()
{
    const QTemporaryDir folder;
    const StitchedPicture picture = onePixel(folder, Depth::Bits8);
    QVERIFY(writeTestPicture(picture, { { 1, 2, 3, 255 } }));
    const Result<QString> made = screenPicture(picture, "no profile", folder.path(), {});
    QVERIFY(made);
    QCOMPARE(readTestPicture(made.value()), QVector<Pixel>({ { 1, 2, 3, 255 } }));
}

void TestScreenPicture::missingVipsIsNamedWithItsPackage()
{
    const QTemporaryDir folder;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()));
    const Result<QString> made
        = screenPicture(onePixel(folder, Depth::Bits16), {}, folder.path(), {});
    qputenv("PATH", path);
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::ToolMissing);
    QCOMPARE(made.error().what, QStringLiteral("vips"));
    QCOMPARE(made.error().tryThis, QStringLiteral("apt install libvips-tools"));
}

void TestScreenPicture::nothingButTheResultStays()
{
    const QTemporaryDir folder;
    const StitchedPicture picture = onePixel(folder, Depth::Radiance);
    QVERIFY(writeTestPicture(picture, { { 1, 1, 1, 1 } }));
    const Result<QString> made = screenPicture(picture, {}, folder.path(), {});
    QVERIFY(made);
    const QStringList names{ QStringLiteral("panorama.v"), QFileInfo(made.value()).fileName() };
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files, QDir::Name), names);
}

TEST_CLASS(TestScreenPicture, QCoreApplication)
#include "tst_screenpicture.moc"
