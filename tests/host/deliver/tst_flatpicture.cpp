// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/deliver.h"
#include "host/model/photofile.h"
#include "host/model/tifffile.h"
#include "tests/host/deliver/deliverbench.h"
#include "tests/support/testprogram.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#include <exiv2/exiv2.hpp>

#include <memory>

using namespace PanoHost;
using Depth = StitchedPicture::Depth;

namespace
{

/** Left half red, right half blue, the first two columns not covered, the pixel after them grey. */
Pixel flag(int x, int width, double full)
{
    if (x < 2) {
        return { 0.0, 0.0, 0.0, 0.0 };
    }
    return x < width / 2 ? Pixel{ full, 0.0, 0.0, full } : Pixel{ 0.0, 0.0, full, full };
}

/** Everything that the file \p path says, by key. */
QMap<QString, QString> factsIn(const QString &path)
{
    QMap<QString, QString> facts;
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    for (const auto &entry : image->exifData()) {
        facts[QString::fromStdString(entry.key())] = QString::fromStdString(entry.toString());
    }
    for (const auto &entry : image->xmpData()) {
        facts[QString::fromStdString(entry.key())] = QString::fromStdString(entry.toString());
    }
    return facts;
}

QByteArray profileIn(const QString &path)
{
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    const Exiv2::DataBuf *const data = image->iccProfileDefined() ? image->iccProfile() : nullptr;
    return data == nullptr
        ? QByteArray()
        : QByteArray(reinterpret_cast<const char *>(data->pData_), static_cast<int>(data->size_));
}

PictureOrigin fullOrigin()
{
    PictureOrigin origin;
    origin.iccProfile = DeliverBench::iccProfile('p', 70000);
    origin.taken = QDateTime::fromString(QStringLiteral("2024-05-01T10:00:00+02:00"), Qt::ISODate);
    origin.place = Place{ 35.51, -139.75, -12.5 };
    origin.author = QString::fromUtf8("Zoë & \"Zoe\" <z@example.org>");
    origin.copyright = QString::fromUtf8("© 写真家");
    origin.camera = QStringLiteral("Imaginary One");
    origin.lens = QStringLiteral("24 mm");
    origin.headingDegrees = 359.999;
    return origin;
}

} // namespace

class TestFlatPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { initializePhotoReading(); }
    void init();
    void placeOnTheSphereIsTold_data();
    void placeOnTheSphereIsTold();
    void headingIsToldOnlyWhenKnown();
    void jpegShowsThePicture_data();
    void jpegShowsThePicture();
    void colourIsAsFineAsBrightnessFromQuality90_data();
    void colourIsAsFineAsBrightnessFromQuality90();
    void tiffKeepsEveryBit_data();
    void tiffKeepsEveryBit();
    void tiffHasSmallerVersions();
    void jpegCarriesOnWhatThePhotosSay();
    void tiffCarriesOnWhatThePhotosSay();
    void timeWithoutAZoneStaysSo();
    void nothingIsSaidOfWhatIsNotKnown();
    void resultIsKnownAsOwn_data();
    void resultIsKnownAsOwn();
    void giantIsKnownAsOwnToo();
    void cutTiffIsNotComplete_data();
    void cutTiffIsNotComplete();
    void outputMayHaveAnyName_data();
    void outputMayHaveAnyName();
    void tooLargeForAJpegIsRefusedWithACure();
    void badToolLeavesTheOlderFile_data();
    void badToolLeavesTheOlderFile();
    void fullDiskLeavesTheOlderFile_data();
    void fullDiskLeavesTheOlderFile();
    void missingToolIsNamedWithItsPackage();
    void interruptionLeavesTheOlderFile();
    void targetThatTakesNothingIsNamed();

private:
    [[nodiscard]] DeliverJob jobFor(const StitchedPicture &picture, const QString &name) const;
    /** A picture of 64 x 32 pixels, all of its sphere. */
    [[nodiscard]] StitchedPicture small(Depth depth = Depth::Bits8) const;
    [[nodiscard]] QString output(const QString &name) const { return m_out->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<QTemporaryDir> m_out;
};

void TestFlatPicture::init()
{
    m_work = std::make_unique<QTemporaryDir>();
    m_out = std::make_unique<QTemporaryDir>();
}

DeliverJob TestFlatPicture::jobFor(const StitchedPicture &picture, const QString &name) const
{
    DeliverJob job;
    job.picture = picture;
    job.output = output(name);
    job.kinds = { Delivery::Picture };
    job.workFolder = m_work->path();
    return job;
}

StitchedPicture TestFlatPicture::small(Depth depth) const
{
    const double full = depth == Depth::Bits8 ? 255.0 : depth == Depth::Bits16 ? 65535.0 : 1.0;
    return DeliverBench::writePanorama(m_work->path(), { 64, 32 }, { 64, 32 }, { 0, 0 }, depth,
                                       [full](int x, int) { return flag(x, 64, full); });
}

void TestFlatPicture::placeOnTheSphereIsTold_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("sphere");
    QTest::addColumn<QPoint>("onSphere");
    QTest::addColumn<QString>("name");
    const QString jpeg = QStringLiteral("a.jpg");
    const QString tiff = QStringLiteral("a.tif");
    QTest::newRow("full") << QSize(64, 32) << QSize(64, 32) << QPoint(0, 0) << jpeg;
    QTest::newRow("partial") << QSize(40, 10) << QSize(80, 40) << QPoint(20, 12) << jpeg;
    QTest::newRow("up to the seam") << QSize(30, 20) << QSize(80, 40) << QPoint(50, 20) << jpeg;
    QTest::newRow("full turn, no poles") << QSize(80, 20) << QSize(80, 40) << QPoint(0, 10) << jpeg;
    QTest::newRow("full, TIFF") << QSize(64, 32) << QSize(64, 32) << QPoint(0, 0) << tiff;
    QTest::newRow("partial, TIFF") << QSize(40, 10) << QSize(80, 40) << QPoint(20, 12) << tiff;
}

void TestFlatPicture::placeOnTheSphereIsTold()
{
    QFETCH(QSize, size);
    QFETCH(QSize, sphere);
    QFETCH(QPoint, onSphere);
    QFETCH(QString, name);
    const StitchedPicture picture = DeliverBench::writePanorama(
        m_work->path(), size, sphere, onSphere, Depth::Bits8, [](int, int) {
            return Pixel{ 9.0, 9.0, 9.0, 255.0 };
        });
    const Result<QStringList> made = deliver(jobFor(picture, name), {});
    QVERIFY2(made.ok(), made ? "" : qPrintable(made.error().text()));
    QCOMPARE(made.value(), QStringList(output(name)));
    const QMap<QString, QString> facts = factsIn(output(name));
    const auto pixels = [&facts](const char *key) {
        return facts.value(QStringLiteral("Xmp.GPano.%1Pixels").arg(QLatin1String(key)));
    };
    QCOMPARE(facts.value(QStringLiteral("Xmp.GPano.ProjectionType")),
             QStringLiteral("equirectangular"));
    QCOMPARE(facts.value(QStringLiteral("Xmp.GPano.UsePanoramaViewer")), QStringLiteral("True"));
    QCOMPARE(pixels("FullPanoWidth"), QString::number(sphere.width()));
    QCOMPARE(pixels("FullPanoHeight"), QString::number(sphere.height()));
    QCOMPARE(pixels("CroppedAreaImageWidth"), QString::number(size.width()));
    QCOMPARE(pixels("CroppedAreaImageHeight"), QString::number(size.height()));
    QCOMPARE(pixels("CroppedAreaLeft"), QString::number(onSphere.x()));
    QCOMPARE(pixels("CroppedAreaTop"), QString::number(onSphere.y()));
    // The file is as large as it says.
    const QString field = QStringLiteral("-f");
    QCOMPARE(DeliverBench::said(QStringLiteral("vipsheader"),
                                { field, QStringLiteral("width"), name }, m_out->path())
                 .trimmed(),
             QString::number(size.width()));
    QCOMPARE(DeliverBench::said(QStringLiteral("vipsheader"),
                                { field, QStringLiteral("height"), name }, m_out->path())
                 .trimmed(),
             QString::number(size.height()));
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList(name));
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

void TestFlatPicture::headingIsToldOnlyWhenKnown()
{
    DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    QVERIFY(deliver(job, {}).ok());
    const QString key = QStringLiteral("Xmp.GPano.PoseHeadingDegrees");
    QVERIFY(!factsIn(job.output).contains(key));
    job.origin.headingDegrees = 80.125;
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(factsIn(job.output).value(key).toDouble(), 80.13);
    job.origin.headingDegrees = 359.999; // 360.00 would be out of range
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(factsIn(job.output).value(key).toDouble(), 0.0);
}

void TestFlatPicture::jpegShowsThePicture_data()
{
    QTest::addColumn<int>("depth");
    QTest::newRow("8 bits") << int(Depth::Bits8);
    QTest::newRow("16 bits") << int(Depth::Bits16);
    QTest::newRow("radiance") << int(Depth::Radiance);
}

void TestFlatPicture::jpegShowsThePicture()
{
    QFETCH(int, depth);
    DeliverJob job = jobFor(small(Depth(depth)), QStringLiteral("a.jpg"));
    job.jpegQuality = 100;
    const Result<QStringList> made = deliver(job, {});
    QVERIFY2(made.ok(), made ? "" : qPrintable(made.error().text()));
    const QImage picture(job.output);
    QCOMPARE(picture.size(), QSize(64, 32));
    const auto isNear = [&picture](int x, QColor colour) {
        const QColor seen = picture.pixelColor(x, 16);
        constexpr int kJpeg = 6; // what the format takes from steep edges nearby
        return std::abs(seen.red() - colour.red()) <= kJpeg
            && std::abs(seen.green() - colour.green()) <= kJpeg
            && std::abs(seen.blue() - colour.blue()) <= kJpeg;
    };
    QVERIFY(isNear(0, Qt::black)); // where nothing is
    QVERIFY(isNear(16, Qt::red));
    QVERIFY(isNear(48, Qt::blue));
}

void TestFlatPicture::colourIsAsFineAsBrightnessFromQuality90_data()
{
    QTest::addColumn<int>("quality");
    QTest::addColumn<bool>("isFine");
    QTest::newRow("89") << 89 << false;
    QTest::newRow("90") << 90 << true;
    QTest::newRow("100") << 100 << true;
}

void TestFlatPicture::colourIsAsFineAsBrightnessFromQuality90()
{
    QFETCH(int, quality);
    QFETCH(bool, isFine);
    DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    job.jpegQuality = quality;
    QVERIFY(deliver(job, {}).ok());
    QFile file(job.output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    // Start of frame: length (2), bits, height (2), width (2), 3 components: number, sampling.
    const int frame = bytes.indexOf(QByteArray("\xff\xc0\x00\x11\x08", 5));
    QVERIFY(frame > 0);
    QCOMPARE(bytes[frame + 11], isFine ? '\x11' : '\x22');
}

void TestFlatPicture::tiffKeepsEveryBit_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("red");
    QTest::addColumn<QString>("blue");
    QTest::newRow("8 bits") << int(Depth::Bits8) << "((VipsBandFormat) VIPS_FORMAT_UCHAR)"
                            << "255 0 0 255"
                            << "0 0 255 255";
    QTest::newRow("16 bits") << int(Depth::Bits16) << "((VipsBandFormat) VIPS_FORMAT_USHORT)"
                             << "65535 0 0 65535"
                             << "0 0 65535 65535";
    QTest::newRow("radiance") << int(Depth::Radiance) << "((VipsBandFormat) VIPS_FORMAT_UCHAR)"
                              << "255 0 0 255"
                              << "0 0 255 255";
}

void TestFlatPicture::tiffKeepsEveryBit()
{
    QFETCH(int, depth);
    QFETCH(QString, format);
    QFETCH(QString, red);
    QFETCH(QString, blue);
    const QString name = QStringLiteral("a.tif");
    const Result<QStringList> made = deliver(jobFor(small(Depth(depth)), name), {});
    QVERIFY2(made.ok(), made ? "" : qPrintable(made.error().text()));
    QCOMPARE(DeliverBench::said(QStringLiteral("vipsheader"),
                                { QStringLiteral("-f"), QStringLiteral("format"), name },
                                m_out->path())
                 .trimmed(),
             format);
    QCOMPARE(DeliverBench::pixelOf(name, 0, 0, m_out->path()), QStringLiteral("0 0 0 0"));
    QCOMPARE(DeliverBench::pixelOf(name, 2, 0, m_out->path()), red);
    QCOMPARE(DeliverBench::pixelOf(name, 31, 31, m_out->path()), red);
    QCOMPARE(DeliverBench::pixelOf(name, 63, 31, m_out->path()), blue);
}

void TestFlatPicture::tiffHasSmallerVersions()
{
    // 1,000 x 500, 500 x 250 and 250 x 125, which is no larger than a tile.
    const StitchedPicture picture
        = DeliverBench::writePanorama(m_work->path(), { 1000, 500 }, { 1000, 500 }, { 0, 0 },
                                      Depth::Bits8, [](int x, int) { return flag(x, 1000, 255); });
    const QString name = QStringLiteral("a.tiff");
    QVERIFY(deliver(jobFor(picture, name), {}).ok());
    const auto header = [&](const QString &field, const QString &file) {
        return DeliverBench::said(QStringLiteral("vipsheader"),
                                  { QStringLiteral("-f"), field, file }, m_out->path())
            .trimmed();
    };
    QCOMPARE(header(QStringLiteral("n-pages"), name), QStringLiteral("3"));
    QCOMPARE(header(QStringLiteral("width"), name + QStringLiteral("[page=2]")),
             QStringLiteral("250"));
}

void TestFlatPicture::jpegCarriesOnWhatThePhotosSay()
{
    DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    job.origin = fullOrigin();
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(profileIn(job.output), job.origin.iccProfile);
    const QMap<QString, QString> facts = factsIn(job.output);
    const auto is = [&facts](const char *key, const QString &value) {
        const QString found = facts.value(QString::fromLatin1(key), QStringLiteral("(none)"));
        if (found != value) {
            qWarning() << key << found << "instead of" << value;
        }
        return found == value;
    };
    QVERIFY(is("Exif.Image.Software", QStringLiteral("panohost")));
    QVERIFY(is("Exif.Image.Model", job.origin.camera));
    QVERIFY(is("Exif.Image.Artist", job.origin.author));
    QVERIFY(is("Exif.Image.Copyright", job.origin.copyright));
    QVERIFY(is("Exif.Photo.LensModel", job.origin.lens));
    QVERIFY(is("Exif.Photo.DateTimeOriginal", QStringLiteral("2024:05:01 10:00:00")));
    QVERIFY(is("Exif.Photo.OffsetTimeOriginal", QStringLiteral("+02:00")));
    QVERIFY(is("Exif.Photo.ColorSpace", QStringLiteral("65535")));
    QVERIFY(is("Exif.Photo.PixelXDimension", QStringLiteral("64")));
    QVERIFY(is("Exif.Photo.PixelYDimension", QStringLiteral("32")));
    // 0.51 degrees are 30 minutes 36 seconds, 0.75 degrees 45 minutes.
    QVERIFY(is("Exif.GPSInfo.GPSLatitude", QStringLiteral("35/1 30/1 360000/10000")));
    QVERIFY(is("Exif.GPSInfo.GPSLatitudeRef", QStringLiteral("N")));
    QVERIFY(is("Exif.GPSInfo.GPSLongitude", QStringLiteral("139/1 45/1 0/10000")));
    QVERIFY(is("Exif.GPSInfo.GPSLongitudeRef", QStringLiteral("W")));
    QVERIFY(is("Exif.GPSInfo.GPSAltitude", QStringLiteral("1250/100")));
    QVERIFY(is("Exif.GPSInfo.GPSAltitudeRef", QStringLiteral("1")));
    QVERIFY(is("Xmp.dc.creator", job.origin.author));
}

void TestFlatPicture::tiffCarriesOnWhatThePhotosSay()
{
    DeliverJob job = jobFor(small(Depth::Bits16), QStringLiteral("a.tif"));
    job.origin = fullOrigin();
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(profileIn(job.output), job.origin.iccProfile);
    const QMap<QString, QString> facts = factsIn(job.output);
    const auto is = [&facts](const char *key, const QString &value) {
        const QString found = facts.value(QString::fromLatin1(key), QStringLiteral("(none)"));
        if (found != value) {
            qWarning() << key << found << "instead of" << value;
        }
        return found == value;
    };
    QVERIFY(is("Xmp.xmp.CreatorTool", QStringLiteral("panohost")));
    QVERIFY(is("Xmp.tiff.Model", job.origin.camera));
    QVERIFY(is("Xmp.dc.creator", job.origin.author));
    QVERIFY(is("Xmp.dc.rights", QStringLiteral("lang=\"x-default\" ") + job.origin.copyright));
    QVERIFY(is("Xmp.aux.Lens", job.origin.lens));
    QVERIFY(is("Xmp.exif.DateTimeOriginal", QStringLiteral("2024-05-01T10:00:00+02:00")));
    QVERIFY(is("Xmp.exif.GPSLatitude", QStringLiteral("35,30.600000N")));
    QVERIFY(is("Xmp.exif.GPSLongitude", QStringLiteral("139,45.000000W")));
    QVERIFY(is("Xmp.exif.GPSAltitude", QStringLiteral("1250/100")));
    QVERIFY(is("Xmp.exif.GPSAltitudeRef", QStringLiteral("1")));
}

void TestFlatPicture::timeWithoutAZoneStaysSo()
{
    DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    job.origin.taken = QDateTime({ 2024, 3, 31 }, { 2, 30 }, Qt::UTC);
    QVERIFY(deliver(job, {}).ok());
    const QMap<QString, QString> facts = factsIn(job.output);
    QCOMPARE(facts.value(QStringLiteral("Exif.Photo.DateTimeOriginal")),
             QStringLiteral("2024:03:31 02:30:00"));
    QCOMPARE(facts.value(QStringLiteral("Xmp.exif.DateTimeOriginal")),
             QStringLiteral("2024-03-31T02:30:00"));
    QVERIFY(!facts.contains(QStringLiteral("Exif.Photo.OffsetTimeOriginal")));
}

void TestFlatPicture::nothingIsSaidOfWhatIsNotKnown()
{
    const DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(profileIn(job.output), QByteArray());
    QStringList keys = factsIn(job.output).keys();
    keys = keys.filter(QRegularExpression(QStringLiteral("^(?!Xmp.GPano)")));
    QCOMPARE(
        keys,
        QStringList({ QStringLiteral("Exif.Image.ExifTag"), QStringLiteral("Exif.Image.Software"),
                      QStringLiteral("Exif.Photo.ExifVersion"),
                      QStringLiteral("Exif.Photo.PixelXDimension"),
                      QStringLiteral("Exif.Photo.PixelYDimension"),
                      QStringLiteral("Xmp.xmp.CreatorTool") }));
}

void TestFlatPicture::resultIsKnownAsOwn_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("JPEG") << QStringLiteral("a.jpg");
    QTest::newRow("TIFF") << QStringLiteral("a.tif");
}

void TestFlatPicture::resultIsKnownAsOwn()
{
    QFETCH(QString, name);
    const DeliverJob job = jobFor(small(Depth::Bits16), name);
    QVERIFY(deliver(job, {}).ok());
    const Result<PhotoInfo> info = readPhotoInfo(job.output);
    QVERIFY2(info.ok(), info ? "" : qPrintable(info.error().text()));
    QVERIFY(info.value().isPanorama);
    QVERIFY(!info.value().isRaw);
    QCOMPARE(info.value().storedSize, QSize(64, 32));
}

void TestFlatPicture::giantIsKnownAsOwnToo()
{
    const QString name = QStringLiteral("a.tif");
    QVERIFY(deliver(jobFor(small(), name), {}).ok());
    // As it is written where 4 GB would not do.
    DeliverBench::said(QStringLiteral("vips"),
                       { QStringLiteral("tiffsave"), name, QStringLiteral("big.tif"),
                         QStringLiteral("--bigtiff"), QStringLiteral("--tile") },
                       m_out->path());
    const Result<PhotoInfo> info = readPhotoInfo(output(QStringLiteral("big.tif")));
    QVERIFY2(info.ok(), info ? "" : qPrintable(info.error().text()));
    QVERIFY(info.value().isPanorama);
    DeliverBench::said(QStringLiteral("vips"),
                       { QStringLiteral("tiffsave"), name, QStringLiteral("bare.tif"),
                         QStringLiteral("--bigtiff"), QStringLiteral("--strip") },
                       m_out->path());
    QVERIFY(!readPhotoInfo(output(QStringLiteral("bare.tif"))).value().isPanorama);
}

void TestFlatPicture::cutTiffIsNotComplete_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("TIFF") << QStringList();
    QTest::newRow("BigTIFF") << QStringList(QStringLiteral("--bigtiff"));
}

void TestFlatPicture::cutTiffIsNotComplete()
{
    QFETCH(QStringList, options);
    DeliverBench::writePanorama(m_work->path(), { 300, 150 }, { 300, 150 }, { 0, 0 }, Depth::Bits8,
                                [](int x, int) { return flag(x, 300, 255.0); });
    DeliverBench::said(QStringLiteral("vips"),
                       QStringList{ QStringLiteral("tiffsave"), QStringLiteral("panorama.v"),
                                    QStringLiteral("a.tif"), QStringLiteral("--tile"),
                                    QStringLiteral("--pyramid"), QStringLiteral("--compression"),
                                    QStringLiteral("deflate") }
                           + options,
                       m_work->path());
    QFile file(m_work->filePath(QStringLiteral("a.tif")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QVERIFY(isCompleteTiff(buffer, { 300, 150 }));
    QVERIFY(!isCompleteTiff(buffer, { 300, 151 }));
    QVERIFY(!isCompleteTiff(buffer, { 299, 150 }));
    for (int length = 0; length < bytes.size(); ++length) {
        QByteArray cut = bytes.left(length);
        QBuffer part(&cut);
        QVERIFY(part.open(QIODevice::ReadOnly));
        QVERIFY2(!isCompleteTiff(part, { 300, 150 }), qPrintable(QString::number(length)));
    }
}

void TestFlatPicture::outputMayHaveAnyName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotes and blanks") << QStringLiteral(" it's a \"panorama\" .jpg");
    QTest::newRow("newline") << QStringLiteral("a\nb.jpg");
    QTest::newRow("brackets") << QStringLiteral("a[1].jpg");
    QTest::newRow("brackets, TIFF") << QStringLiteral("a[compression=jpeg].tif");
    QTest::newRow("Japanese") << QString::fromUtf8("パノラマ.tif");
    QTest::newRow("dash first") << QStringLiteral("-o.JPEG");
}

void TestFlatPicture::outputMayHaveAnyName()
{
    QFETCH(QString, name);
    // The work folder is named after the output.
    DeliverJob job = jobFor(small(), name);
    job.workFolder = output(name + QStringLiteral(".work"));
    QVERIFY(QDir().mkpath(job.workFolder));
    const QString moved = QDir(job.workFolder).filePath(QStringLiteral("panorama.v"));
    QVERIFY(QFile::rename(job.picture.path, moved));
    job.picture.path = moved;
    const Result<QStringList> made = deliver(job, {});
    QVERIFY2(made.ok(), made ? "" : qPrintable(made.error().text()));
    QCOMPARE(QImageReader(job.output).size(), QSize(64, 32));
    QVERIFY(readPhotoInfo(job.output).value().isPanorama);
}

void TestFlatPicture::tooLargeForAJpegIsRefusedWithACure()
{
    DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    job.picture.size = { 65536, 20000 };
    job.picture.sphere = { 65536, 32768 };
    const Result<QStringList> made = deliver(job, {});
    QVERIFY(!made);
    QCOMPARE(made.error().text(),
             job.output
                 + QStringLiteral(": the panorama has 65536 x 20000 pixels, and JPEG files at most "
                                  "65535 to a side; name it .tif, or make it smaller with --size"));
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList());
}

void TestFlatPicture::badToolLeavesTheOlderFile_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("why");
    const QString cut = QStringLiteral("it left a file that is not complete");
    // The real one, whose result loses its second half.
    const QByteArray half = "vips \"$@\" || exit 1\nfor f in panorama.tif plain.jpg; do\n"
                            "  [ -f $f ] && truncate -s $(($(stat -c %s $f) / 2)) $f\ndone\n";
    QTest::newRow("fails") << QByteArray("echo 'no room' >&2\nexit 1\n")
                           << QStringLiteral("it failed and said: no room");
    QTest::newRow("is killed") << QByteArray("kill -KILL $$\n")
                               << QStringLiteral("it was killed, perhaps because memory ran out");
    QTest::newRow("writes nothing") << QByteArray("exit 0\n") << cut;
    QTest::newRow("writes half a file") << half + "exit 0\n" << cut;
    QTest::newRow("writes an empty file")
        << QByteArray("for name; do case $name in *'['*) : > \"${name%%'['*}\";; esac; done\n")
        << cut;
}

void TestFlatPicture::badToolLeavesTheOlderFile()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, why);
    const QTemporaryDir tools;
    const StitchedPicture picture = small();
    for (const char *name : { "a.jpg", "a.tif" }) {
        const DeliverJob job = jobFor(picture, QString::fromLatin1(name));
        QFile older(job.output);
        QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
        older.close();
        const DeliverBench::FakeTools fakes(tools.path());
        fakes.add(QStringLiteral("vips"), script);
        const Result<QStringList> made = deliver(job, {});
        QVERIFY(!made);
        QCOMPARE(made.error().code, ExitCode::ToolFailed);
        QCOMPARE(made.error().what, QStringLiteral("vips"));
        QCOMPARE(made.error().why, why);
        QVERIFY(older.open(QIODevice::ReadOnly));
        QCOMPARE(older.readAll(), QByteArray("older"));
        QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
    }
    QCOMPARE(DeliverBench::allIn(m_out->path()),
             QStringList({ QStringLiteral("a.jpg"), QStringLiteral("a.tif") }));
}

void TestFlatPicture::fullDiskLeavesTheOlderFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("room");
    const QString jpeg = QStringLiteral("a.jpg");
    const QString tiff = QStringLiteral("a.tif");
    QTest::newRow("JPEG, nothing") << jpeg << 0;
    QTest::newRow("JPEG, what vips is told") << jpeg << 100;
    QTest::newRow("JPEG, without a profile") << jpeg << 30000;
    QTest::newRow("TIFF, nothing") << tiff << 0;
    QTest::newRow("TIFF, half of what vips is told") << tiff << 30000;
    // 65,000 bytes of profile for vips are 86,668 of text; the picture has 131,072.
    QTest::newRow("TIFF, what vips is told") << tiff << 100000;
}

void TestFlatPicture::fullDiskLeavesTheOlderFile()
{
    QFETCH(QString, name);
    QFETCH(int, room);
    quint32 seed = 1;
    const auto noise = [&seed](int, int) {
        const auto next = [&seed] { return double((seed = seed * 1664525 + 1013904223) >> 16U); };
        return Pixel{ next(), next(), next(), 65535.0 };
    };
    DeliverJob job = jobFor(DeliverBench::writePanorama(m_work->path(), { 256, 64 }, { 256, 128 },
                                                        { 0, 0 }, Depth::Bits16, noise),
                            name);
    job.jpegQuality = 30;
    job.origin.iccProfile = DeliverBench::iccProfile('p', 65000);
    QFile older(job.output);
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    const Result<QStringList> made = [&] {
        const DeliverBench::FileSizeLimit limit(static_cast<rlim_t>(room));
        return deliver(job, {});
    }();
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::ToolFailed);
    QVERIFY(!made.error().tryThis.isEmpty());
    QVERIFY(older.open(QIODevice::ReadOnly));
    QCOMPARE(older.readAll(), QByteArray("older"));
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList(name));
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

void TestFlatPicture::missingToolIsNamedWithItsPackage()
{
    const QTemporaryDir tools;
    const DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    const DeliverBench::FakeTools fakes(tools.path());
    fakes.hideOthers();
    const Result<QStringList> made = deliver(job, {});
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::ToolMissing);
    QCOMPARE(made.error().tryThis, QStringLiteral("apt install libvips-tools"));
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList());
}

void TestFlatPicture::interruptionLeavesTheOlderFile()
{
    const DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    QFile older(job.output);
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    JobWatch watch;
    watch.interrupted = [] { return true; };
    const Result<QStringList> made = deliver(job, watch);
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::Interrupted);
    QCOMPARE(QFileInfo(job.output).size(), 5);
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

void TestFlatPicture::targetThatTakesNothingIsNamed()
{
    DeliverJob job = jobFor(small(), QStringLiteral("a.jpg"));
    job.output = QStringLiteral("/proc/self/a.jpg");
    const Result<QStringList> made = deliver(job, {});
    QVERIFY(!made);
    QCOMPARE(made.error().what, job.output);
    QVERIFY(made.error().why.startsWith(QLatin1String("cannot be written (")));
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

TEST_CLASS(TestFlatPicture, QCoreApplication)
#include "tst_flatpicture.moc"
