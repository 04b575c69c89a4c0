// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/exifwriter.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <exiv2/exiv2.hpp>

using namespace PanoHost;

namespace
{

std::unique_ptr<Exiv2::Image> opened(const QString &path)
{
    std::unique_ptr<Exiv2::Image> image(
        Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString()).release());
    image->readMetadata();
    return image;
}

QImage striped(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            picture.setPixel(x, y, x < size.width() / 2 ? qRgb(200, 40, 40) : qRgb(40, 40, 200));
        }
    }
    return picture;
}

ShootPlan planWith(Mounting mounting)
{
    ShootPlan plan;
    plan.camera = { QSize(90, 60), 24.0, Projection::Rectilinear };
    plan.mounting = mounting;
    plan.positions = { { 0.0, 0.0, 0.0 }, { 45.0, 0.0, 0.0 } };
    plan.stops = { 0.0, -2.0, 2.0, 8.0 };
    return plan;
}

} // namespace

class TestExifWriter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void photoTellsLensTimeAndExposure_data();
    void photoTellsLensTimeAndExposure();
    void onlyTurnedPixelsHaveAnOrientation_data();
    void onlyTurnedPixelsHaveAnOrientation();
    void photoKeepsItsPixels();
    void panoramaTellsViewersWhatItIs();
    void panoramaKeepsTheColoursOfSinglePixels();
    void panoramaTooLargeForItsFormatIsRefused_data();
    void panoramaTooLargeForItsFormatIsRefused();
    void panoramaReplacesAnOlderOneAndLeavesNothingElse();
    void unwritablePlacesAreReportedAndLeaveNothing();

private:
    QTemporaryDir m_folder;
};

void TestExifWriter::initTestCase()
{
    Exiv2::XmpParser::initialize();
    QVERIFY(m_folder.isValid());
}

void TestExifWriter::photoTellsLensTimeAndExposure_data()
{
    QTest::addColumn<int>("shot");
    QTest::addColumn<QString>("exposureTime");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("subSeconds");
    // 1/250 s at the reference, four seconds and a quarter from one position to the next
    QTest::newRow("reference") << 0 << QStringLiteral("1/250")
                               << QStringLiteral("2026:05:01 10:20:30") << QStringLiteral("000");
    QTest::newRow("two stops darker")
        << 1 << QStringLiteral("1/1000") << QStringLiteral("2026:05:01 10:20:30")
        << QStringLiteral("600");
    QTest::newRow("two stops brighter")
        << 2 << QStringLiteral("1/63") // 4/250 = 1/62.5
        << QStringLiteral("2026:05:01 10:20:31") << QStringLiteral("200");
    QTest::newRow("a long exposure")
        << 3 << QStringLiteral("1024/1000") // 256/250 s
        << QStringLiteral("2026:05:01 10:20:31") << QStringLiteral("800");
    QTest::newRow("next position")
        << 4 << QStringLiteral("1/250") << QStringLiteral("2026:05:01 10:20:34")
        << QStringLiteral("250");
}

void TestExifWriter::photoTellsLensTimeAndExposure()
{
    QFETCH(int, shot);
    QFETCH(QString, exposureTime);
    QFETCH(QString, time);
    QFETCH(QString, subSeconds);
    const ShootPlan plan = planWith(Mounting::Landscape);
    const QString path = m_folder.filePath(QStringLiteral("photo.jpg"));
    QVERIFY(writePhoto(path, striped(plan.camera.size), shotsOf(plan)[shot], plan));

    const auto image = opened(path);
    Exiv2::ExifData &exif = image->exifData();
    const auto text
        = [&exif](const char *key) { return QString::fromStdString(exif[key].toString()); };
    QCOMPARE(text("Exif.Photo.FocalLengthIn35mmFilm"), QStringLiteral("24"));
    QCOMPARE(text("Exif.Photo.FocalLength"), QStringLiteral("1600/100"));
    QCOMPARE(text("Exif.Photo.ExposureTime"), exposureTime);
    QCOMPARE(text("Exif.Photo.FNumber"), QStringLiteral("8/1"));
    QCOMPARE(text("Exif.Photo.ISOSpeedRatings"), QStringLiteral("100"));
    QCOMPARE(text("Exif.Photo.DateTimeOriginal"), time);
    QCOMPARE(text("Exif.Photo.SubSecTimeOriginal"), subSeconds);
}

void TestExifWriter::onlyTurnedPixelsHaveAnOrientation_data()
{
    QTest::addColumn<int>("mounting");
    QTest::addColumn<QString>("orientation");
    QTest::newRow("landscape") << static_cast<int>(Mounting::Landscape) << QStringLiteral("1");
    QTest::newRow("upright") << static_cast<int>(Mounting::PortraitUpright) << QStringLiteral("1");
    QTest::newRow("turned") << static_cast<int>(Mounting::PortraitTurned) << QStringLiteral("6");
}

void TestExifWriter::onlyTurnedPixelsHaveAnOrientation()
{
    QFETCH(int, mounting);
    QFETCH(QString, orientation);
    const ShootPlan plan = planWith(static_cast<Mounting>(mounting));
    const QString path = m_folder.filePath(QStringLiteral("photo.jpg"));
    QVERIFY(writePhoto(path, striped(plan.camera.size), shotsOf(plan).first(), plan));
    QCOMPARE(QString::fromStdString(opened(path)->exifData()["Exif.Image.Orientation"].toString()),
             orientation);
}

void TestExifWriter::photoKeepsItsPixels()
{
    const ShootPlan plan = planWith(Mounting::Landscape);
    const QString path = m_folder.filePath(QStringLiteral("photo.jpg"));
    QVERIFY(writePhoto(path, striped(plan.camera.size), shotsOf(plan).first(), plan));
    const QImage photo(path);
    QCOMPARE(photo.size(), plan.camera.size);
    for (const QPoint place : { QPoint(5, 5), QPoint(80, 50) }) {
        const QRgb expected = striped(plan.camera.size).pixel(place);
        QVERIFY(std::abs(qRed(photo.pixel(place)) - qRed(expected)) <= 3);
        QVERIFY(std::abs(qBlue(photo.pixel(place)) - qBlue(expected)) <= 3);
    }
}

void TestExifWriter::panoramaTellsViewersWhatItIs()
{
    const QString path = m_folder.filePath(QStringLiteral("panorama.jpg"));
    const Result<QString> written
        = writePanorama(path, striped(QSize(100, 20)), QSize(200, 100), QRect(30, 40, 100, 20));
    QVERIFY(written);
    QCOMPARE(written.value(), path);
    const auto image = opened(path);
    Exiv2::XmpData &xmp = image->xmpData();
    const auto text
        = [&xmp](const char *key) { return QString::fromStdString(xmp[key].toString()); };
    QCOMPARE(text("Xmp.GPano.ProjectionType"), QStringLiteral("equirectangular"));
    QCOMPARE(text("Xmp.GPano.UsePanoramaViewer"), QStringLiteral("True"));
    QCOMPARE(text("Xmp.GPano.FullPanoWidthPixels"), QStringLiteral("200"));
    QCOMPARE(text("Xmp.GPano.FullPanoHeightPixels"), QStringLiteral("100"));
    QCOMPARE(text("Xmp.GPano.CroppedAreaLeftPixels"), QStringLiteral("30"));
    QCOMPARE(text("Xmp.GPano.CroppedAreaTopPixels"), QStringLiteral("40"));
    QCOMPARE(text("Xmp.GPano.CroppedAreaImageWidthPixels"), QStringLiteral("100"));
    QCOMPARE(text("Xmp.GPano.CroppedAreaImageHeightPixels"), QStringLiteral("20"));
}

void TestExifWriter::panoramaKeepsTheColoursOfSinglePixels()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("demo.jpg"));
    QImage columns(64, 32, QImage::Format_RGB32);
    for (int y = 0; y < columns.height(); ++y) {
        for (int x = 0; x < columns.width(); ++x) {
            columns.setPixel(x, y, x % 2 == 0 ? qRgb(200, 60, 60) : qRgb(60, 60, 200));
        }
    }
    QVERIFY(writePanorama(file, columns, columns.size(), columns.rect()));
    const QImage written(file);
    for (int x = 0; x < columns.width(); ++x) {
        // Colours of half the width would be half red, half blue everywhere.
        QVERIFY(std::abs(qRed(written.pixel(x, 16)) - (x % 2 == 0 ? 200 : 60)) <= 10);
        QVERIFY(std::abs(qBlue(written.pixel(x, 16)) - (x % 2 == 0 ? 60 : 200)) <= 10);
    }
}

void TestExifWriter::panoramaTooLargeForItsFormatIsRefused_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("too wide") << QSize(65501, 1);
    QTest::newRow("too high") << QSize(1, 65501);
}

void TestExifWriter::panoramaTooLargeForItsFormatIsRefused()
{
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    const QImage picture(size, QImage::Format_RGB32);
    const Result<QString> written
        = writePanorama(folder.filePath(QStringLiteral("demo.jpg")), picture, size, picture.rect());
    QVERIFY(!written);
    QVERIFY2(written.error().why.contains(QStringLiteral("no JPEG file can hold")),
             qPrintable(written.error().why));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 0);
}

void TestExifWriter::panoramaReplacesAnOlderOneAndLeavesNothingElse()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("panorama.jpg"));
    for (const QSize size : { QSize(40, 20), QSize(60, 30) }) {
        QVERIFY(writePanorama(path, striped(size), size, QRect(QPoint(), size)));
        QCOMPARE(QImage(path).size(), size);
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{ QStringLiteral("panorama.jpg") });
}

void TestExifWriter::unwritablePlacesAreReportedAndLeaveNothing()
{
    const QString missing = m_folder.filePath(QStringLiteral("no/such/folder/panorama.jpg"));
    const Result<QString> panorama
        = writePanorama(missing, striped(QSize(40, 20)), QSize(40, 20), QRect(0, 0, 40, 20));
    QVERIFY(!panorama);
    QCOMPARE(panorama.error().code, ExitCode::ToolFailed);
    QCOMPARE(panorama.error().what, missing);

    QTemporaryDir folder;
    const QString occupied = folder.filePath(QStringLiteral("panorama.jpg"));
    QVERIFY(QDir().mkpath(occupied + QStringLiteral("/a folder with something in it")));
    QVERIFY(!writePanorama(occupied, striped(QSize(40, 20)), QSize(40, 20), QRect(0, 0, 40, 20)));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{ QStringLiteral("panorama.jpg") });

    const ShootPlan plan = planWith(Mounting::Landscape);
    QVERIFY(!writePhoto(missing, striped(plan.camera.size), shotsOf(plan).first(), plan));
}

TEST_CLASS(TestExifWriter, QCoreApplication)
#include "tst_exifwriter.moc"
