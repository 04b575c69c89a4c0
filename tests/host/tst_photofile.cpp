// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <future>
#include <vector>

using namespace PanoHost;
using TestPhotos::Exif;

namespace
{

constexpr double kTiny = 1e-9;

} // namespace

class PhotoFileTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void sizeIsThatOfTheStoredPixels();
    void thumbnailStandsUpright_data();
    void thumbnailStandsUpright();
    void nonsenseOrientationCountsAsUpright_data();
    void nonsenseOrientationCountsAsUpright();
    void thumbnailFitsIntoItsSquare_data();
    void thumbnailFitsIntoItsSquare();
    void focalLengthIsThe35mmEquivalent_data();
    void focalLengthIsThe35mmEquivalent();
    void exposureValueFollowsTheFormula_data();
    void exposureValueFollowsTheFormula();
    void timeKeepsItsFraction_data();
    void timeKeepsItsFraction();
    void timeTextReadsBack();
    void fisheyeIsKnownByItsName_data();
    void fisheyeIsKnownByItsName();
    void cameraAndLensAreNamed();
    void whatWasMadeOfPhotosSaysSo();
    void photoWithoutExifIsReadAllTheSame();
    void pngIsAPhoto();
    void rawFileShowsItsPreviewAndTheSizeOfThePhoto();
    void oddNamesAreRead_data();
    void oddNamesAreRead();
    void manyThreadsReadAtOnce();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

void PhotoFileTest::sizeIsThatOfTheStoredPixels()
{
    Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = "6";
    const QString path = at(QStringLiteral("portrait.jpg"));
    TestPhotos::writeJpeg(path, TestPhotos::quarters({ 1200, 800 }), exif);
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.path, path);
    QCOMPARE(reading.value().info.storedSize, QSize(1200, 800));
    QCOMPARE(reading.value().info.orientation, 6);
    const auto header = readPhotoInfo(path);
    QVERIFY(header.ok());
    QCOMPARE(header.value().storedSize, QSize(1200, 800));
    QCOMPARE(header.value().focal35mm, 24.0);
}

void PhotoFileTest::thumbnailStandsUpright_data()
{
    // Stored: red, green above blue, yellow. The EXIF value says where the stored first row and
    // column are seen: 6 means row at the right, column at the top, and so on.
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("expected");
    QTest::newRow("1 as stored") << 1 << "RGBY";
    QTest::newRow("2 mirrored") << 2 << "GRYB";
    QTest::newRow("3 upside down") << 3 << "YBGR";
    QTest::newRow("4 flipped") << 4 << "BYRG";
    QTest::newRow("5 transposed") << 5 << "RBGY";
    QTest::newRow("6 quarter turn clockwise") << 6 << "BRYG";
    QTest::newRow("7 transverse") << 7 << "YGBR";
    QTest::newRow("8 quarter turn back") << 8 << "GYRB";
}

void PhotoFileTest::thumbnailStandsUpright()
{
    QFETCH(int, orientation);
    QFETCH(QString, expected);
    Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = QByteArray::number(orientation);
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("turned%1.jpg").arg(orientation)),
                                               TestPhotos::quarters({ 600, 400 }), exif);
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.orientation, orientation);
    QCOMPARE(TestPhotos::seenQuarters(reading.value().thumbnail), expected);
    // 256 * 400 / 600 = 170.7
    const QSize expectedSize = orientation >= 5 ? QSize(171, 256) : QSize(256, 171);
    QCOMPARE(reading.value().thumbnail.size(), expectedSize);
}

void PhotoFileTest::nonsenseOrientationCountsAsUpright_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("zero") << QByteArray("0");
    QTest::newRow("nine") << QByteArray("9");
    QTest::newRow("largest") << QByteArray("65535");
}

void PhotoFileTest::nonsenseOrientationCountsAsUpright()
{
    QFETCH(QByteArray, value);
    Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = value;
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("nonsense.jpg")),
                                               TestPhotos::quarters({ 60, 40 }), exif);
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.orientation, 1);
    QCOMPARE(TestPhotos::seenQuarters(reading.value().thumbnail), QStringLiteral("RGBY"));
}

void PhotoFileTest::thumbnailFitsIntoItsSquare_data()
{
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QSize>("thumbnail");
    QTest::newRow("landscape") << QSize(1024, 512) << QSize(256, 128);
    QTest::newRow("portrait") << QSize(512, 1024) << QSize(128, 256);
    QTest::newRow("just the size") << QSize(256, 256) << QSize(256, 256);
    QTest::newRow("small ones are not enlarged") << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("a thread") << QSize(3000, 2) << QSize(256, 1);
}

void PhotoFileTest::thumbnailFitsIntoItsSquare()
{
    QFETCH(QSize, stored);
    QFETCH(QSize, thumbnail);
    const QString path
        = TestPhotos::writeOrdinary(at(QStringLiteral("sized%1.jpg").arg(stored.width())), stored);
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().thumbnail.size(), thumbnail);
}

void PhotoFileTest::focalLengthIsThe35mmEquivalent_data()
{
    QTest::addColumn<Exif>("exif");
    QTest::addColumn<double>("expected");
    // 1200 x 800 pixels at 50 pixels per millimetre are 24 x 16 mm: two thirds of a full frame,
    // so 16 mm count as 24.
    const Exif sensor{ { "Exif.Photo.FocalLength", "16/1" },
                       { "Exif.Photo.PixelXDimension", "1200" },
                       { "Exif.Photo.PixelYDimension", "800" },
                       { "Exif.Photo.FocalPlaneXResolution", "50/1" },
                       { "Exif.Photo.FocalPlaneYResolution", "50/1" },
                       { "Exif.Photo.FocalPlaneResolutionUnit", "4" } };
    const auto with = [](Exif exif, const Exif &changes) {
        for (auto it = changes.begin(); it != changes.end(); ++it) {
            exif[it.key()] = it.value();
        }
        return exif;
    };
    const auto resolution = [&](const char *value, const char *unit) {
        return with(sensor,
                    { { "Exif.Photo.FocalPlaneXResolution", value },
                      { "Exif.Photo.FocalPlaneYResolution", value },
                      { "Exif.Photo.FocalPlaneResolutionUnit", unit } });
    };
    QTest::newRow("named") << Exif{ { "Exif.Photo.FocalLengthIn35mmFilm", "28" } } << 28.0;
    QTest::newRow("the named one wins")
        << with(sensor, { { "Exif.Photo.FocalLengthIn35mmFilm", "25" } }) << 25.0;
    QTest::newRow("zero means not named")
        << with(sensor, { { "Exif.Photo.FocalLengthIn35mmFilm", "0" } }) << 24.0;
    QTest::newRow("per millimetre") << sensor << 24.0;
    QTest::newRow("per inch") << resolution("1270/1", "2") << 24.0;
    QTest::newRow("per centimetre") << resolution("500/1", "3") << 24.0;
    QTest::newRow("per micrometre") << resolution("5/100", "5") << 24.0;
    QTest::newRow("no sensor size") << Exif{ { "Exif.Photo.FocalLength", "16/1" } } << 0.0;
    QTest::newRow("zero over zero") << resolution("0/0", "4") << 0.0;
    QTest::newRow("a sensor of 24 m") << resolution("5/100", "4") << 0.0;
    QTest::newRow("nothing") << Exif{} << 0.0;
}

void PhotoFileTest::focalLengthIsThe35mmEquivalent()
{
    QFETCH(Exif, exif);
    QFETCH(double, expected);
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("focal.jpg")),
                                               TestPhotos::quarters({ 600, 400 }), exif);
    const auto photo = readPhotoInfo(path);
    QVERIFY(photo.ok());
    QVERIFY2(std::abs(photo.value().focal35mm - expected) < 1e-6,
             qPrintable(QString::number(photo.value().focal35mm, 'g', 12)));
}

void PhotoFileTest::exposureValueFollowsTheFormula_data()
{
    QTest::addColumn<Exif>("exif");
    QTest::addColumn<double>("expected"); // NaN: not known
    const auto exif = [](const char *f, const char *t, const char *iso) {
        return Exif{ { "Exif.Photo.FNumber", f },
                     { "Exif.Photo.ExposureTime", t },
                     { "Exif.Photo.ISOSpeedRatings", iso } };
    };
    // log2(64 * 100) = 12.643856189774724
    QTest::newRow("f/8, 1/100 s, ISO 100") << exif("8/1", "1/100", "100") << 12.643856189774724;
    QTest::newRow("two stops shorter") << exif("8/1", "1/400", "100") << 14.643856189774724;
    QTest::newRow("ISO 200 is one less") << exif("8/1", "1/100", "200") << 11.643856189774724;
    QTest::newRow("one second at f/1 is zero") << exif("1/1", "1/1", "100") << 0.0;
    QTest::newRow("long exposures are negative") << exif("1/1", "30/1", "100") << -std::log2(30.0);
    // A lens without contacts: f/3.5 stands in, log2(12.25 * 100).
    QTest::newRow("manual lens") << exif("0/1", "1/100", "100") << std::log2(1225.0);
    QTest::newRow("no ISO counts as 100")
        << Exif{ { "Exif.Photo.FNumber", "8/1" }, { "Exif.Photo.ExposureTime", "1/100" } }
        << 12.643856189774724;
    // APEX: 2^(6/2) = 8; 2^-7 = 1/128 s; log2(64 * 128) = 13.
    QTest::newRow("APEX values") << Exif{ { "Exif.Photo.ApertureValue", "6/1" },
                                          { "Exif.Photo.ShutterSpeedValue", "7/1" },
                                          { "Exif.Photo.ISOSpeedRatings", "100" } }
                                 << 13.0;
    QTest::newRow("no time, no value") << Exif{ { "Exif.Photo.FNumber", "8/1" } } << qQNaN();
    QTest::newRow("time zero") << exif("8/1", "0/1", "100") << qQNaN();
    QTest::newRow("time over zero") << exif("8/1", "1/0", "100") << qQNaN();
}

void PhotoFileTest::exposureValueFollowsTheFormula()
{
    QFETCH(Exif, exif);
    QFETCH(double, expected);
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("exposure.jpg")),
                                               TestPhotos::quarters({ 60, 40 }), exif);
    const auto photo = readPhotoInfo(path);
    QVERIFY(photo.ok());
    QCOMPARE(photo.value().exposureValue.has_value(), !std::isnan(expected));
    if (!std::isnan(expected)) {
        QVERIFY(std::abs(*photo.value().exposureValue - expected) < kTiny);
    }
}

void PhotoFileTest::timeKeepsItsFraction_data()
{
    QTest::addColumn<Exif>("exif");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("ms");
    // date -u -d "2024-05-01 10:00:00" +%s gives 1714557600
    const qint64 ten = 1714557600000;
    const auto exif = [](const char *time, const char *fraction) {
        return Exif{ { "Exif.Photo.DateTimeOriginal", time },
                     { "Exif.Photo.SubSecTimeOriginal", fraction } };
    };
    const char *const stamp = "2024:05:01 10:00:00";
    QTest::newRow("whole seconds")
        << Exif{ { "Exif.Photo.DateTimeOriginal", stamp } } << "2024-05-01T10:00:00" << ten;
    QTest::newRow("hundredths") << exif(stamp, "25") << "2024-05-01T10:00:00.250" << ten + 250;
    QTest::newRow("tenths") << exif(stamp, "5") << "2024-05-01T10:00:00.500" << ten + 500;
    QTest::newRow("microseconds") << exif(stamp, "123456") << "2024-05-01T10:00:00.123"
                                  << ten + 123;
    QTest::newRow("leading zero") << exif(stamp, "05") << "2024-05-01T10:00:00.050" << ten + 50;
    QTest::newRow("blank fraction") << exif(stamp, "   ") << "2024-05-01T10:00:00" << ten;
    QTest::newRow("words as fraction") << exif(stamp, "abc") << "2024-05-01T10:00:00" << ten;
    QTest::newRow("minus as fraction") << exif(stamp, "-5") << "2024-05-01T10:00:00" << ten;
    QTest::newRow("digitised time stands in")
        << Exif{ { "Exif.Photo.DateTimeDigitized", stamp } } << "2024-05-01T10:00:00" << ten;
    QTest::newRow("file time stands in")
        << Exif{ { "Exif.Image.DateTime", stamp } } << "2024-05-01T10:00:00" << ten;
    QTest::newRow("clock never set") << exif("0000:00:00 00:00:00", "00") << "" << qint64(0);
    QTest::newRow("no such day") << exif("2023:02:29 10:00:00", "0") << "" << qint64(0);
    QTest::newRow("no such hour") << exif("2024:05:01 24:00:00", "0") << "" << qint64(0);
    QTest::newRow("no such separators") << exif("2024-05-01 10:00:00", "0") << "" << qint64(0);
    QTest::newRow("signs for digits") << exif("2024:05:01 +1:-0:00", "0") << "" << qint64(0);
    QTest::newRow("more behind it") << exif("2024:05:01 10:00:00+02", "0") << "" << qint64(0);
    QTest::newRow("blank") << exif("    :  :     :  :  ", "") << "" << qint64(0);
    // An hour that the clocks of central Europe skip: date -u gives 1711852200.
    QTest::newRow("skipped hour") << exif("2024:03:31 02:30:00", "0") << "2024-03-31T02:30:00.000"
                                  << qint64(1711852200000);
}

void PhotoFileTest::timeKeepsItsFraction()
{
    QFETCH(Exif, exif);
    QFETCH(QString, text);
    QFETCH(qint64, ms);
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin");
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("time.jpg")),
                                               TestPhotos::quarters({ 60, 40 }), exif);
    const auto photo = readPhotoInfo(path);
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    QVERIFY(photo.ok());
    QCOMPARE(photo.value().timeText, text);
    QCOMPARE(photo.value().timeMs, ms);
}

void PhotoFileTest::timeTextReadsBack()
{
    QCOMPARE(timeMsFromText(QStringLiteral("2024-05-01T10:00:00")), qint64(1714557600000));
    QCOMPARE(timeMsFromText(QStringLiteral("2024-05-01T10:00:00.050")), qint64(1714557600050));
    QCOMPARE(timeMsFromText(QStringLiteral("yesterday")), qint64(0));
    QCOMPARE(timeMsFromText({}), qint64(0));
}

void PhotoFileTest::fisheyeIsKnownByItsName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("focal");
    QTest::addColumn<int>("expected");
    QTest::newRow("one word") << QByteArray("EF8-15mm f/4L FISHEYE USM") << QByteArray("12") << 1;
    QTest::newRow("hyphen") << QByteArray("8mm f/3.5 Fish-eye") << QByteArray("12") << 1;
    QTest::newRow("two words") << QByteArray("Fish Eye 16") << QByteArray("16") << 1;
    QTest::newRow("ordinary") << QByteArray("24-70mm f/2.8") << QByteArray("24") << 0;
    QTest::newRow("very short and silent") << QByteArray("8mm f/3.5") << QByteArray("12") << -1;
    QTest::newRow("no name") << QByteArray() << QByteArray("24") << -1;
    QTest::newRow("named, no focal length") << QByteArray("24mm") << QByteArray("0") << -1;
}

void PhotoFileTest::fisheyeIsKnownByItsName()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, focal);
    QFETCH(int, expected);
    Exif exif{ { "Exif.Photo.FocalLengthIn35mmFilm", focal } };
    if (!name.isEmpty()) {
        exif["Exif.Photo.LensModel"] = name;
    }
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("lens.jpg")),
                                               TestPhotos::quarters({ 60, 40 }), exif);
    const auto photo = readPhotoInfo(path);
    QVERIFY(photo.ok());
    QCOMPARE(static_cast<int>(photo.value().lens), expected);
}

void PhotoFileTest::cameraAndLensAreNamed()
{
    const Exif exif{ { "Exif.Image.Make", "Imaginary  Optics " },
                     { "Exif.Image.Model", "Pinhole One" },
                     { "Exif.Photo.BodySerialNumber", "0042" },
                     { "Exif.Photo.LensModel", "Loupe 24 mm" } };
    const auto photo = readPhotoInfo(TestPhotos::writeJpeg(at(QStringLiteral("named.jpg")),
                                                           TestPhotos::quarters({ 60, 40 }), exif));
    QVERIFY(photo.ok());
    QCOMPARE(photo.value().camera, QStringLiteral("Imaginary Optics Pinhole One 0042"));
    QCOMPARE(photo.value().lensName, QStringLiteral("Loupe 24 mm"));
    QVERIFY(!photo.value().isRaw && !photo.value().isPanorama);
}

void PhotoFileTest::whatWasMadeOfPhotosSaysSo()
{
    const auto isPanorama = [](const QString &path) {
        const auto photo = readPhotoInfo(path);
        return photo.ok() && photo.value().isPanorama;
    };
    const QString sphere = TestPhotos::writeOrdinary(at(QStringLiteral("sphere.jpg")));
    QVERIFY(!isPanorama(sphere));
    TestPhotos::embedXmp(sphere, "GPano");
    QVERIFY(isPanorama(sphere));
    QImage layout = TestPhotos::quarters({ 60, 40 });
    for (const char *const name : { "layout.png", "layout.jpg" }) {
        const QString path = at(QString::fromLatin1(name));
        QVERIFY(layout.save(path));
        QVERIFY(!isPanorama(path));
        QImage marked = layout;
        markAsOwn(marked);
        QVERIFY(marked.save(path));
        QVERIFY(isPanorama(path));
    }
}

void PhotoFileTest::photoWithoutExifIsReadAllTheSame()
{
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("bare.jpg")),
                                               TestPhotos::quarters({ 600, 400 }), {});
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    const PhotoInfo &info = reading.value().info;
    QCOMPARE(info.storedSize, QSize(600, 400));
    QCOMPARE(info.orientation, 1);
    QCOMPARE(info.focal35mm, 0.0);
    QCOMPARE(info.lens, LensModel::NotChosen);
    QVERIFY(!info.exposureValue);
    QCOMPARE(info.timeMs, qint64(0));
    QVERIFY(info.timeText.isEmpty());
    QVERIFY(info.camera.isEmpty() && info.lensName.isEmpty());
}

void PhotoFileTest::pngIsAPhoto()
{
    const QString path = at(QStringLiteral("picture.png"));
    QVERIFY(TestPhotos::quarters({ 600, 400 }).save(path));
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.storedSize, QSize(600, 400));
    QCOMPARE(reading.value().thumbnail.size(), QSize(256, 171));
    QCOMPARE(TestPhotos::seenQuarters(reading.value().thumbnail), QStringLiteral("RGBY"));
}

void PhotoFileTest::rawFileShowsItsPreviewAndTheSizeOfThePhoto()
{
    const QByteArray preview = TestPhotos::jpegBytes(TestPhotos::quarters({ 480, 320 }));
    const QString path = TestPhotos::writeFile(at(QStringLiteral("photo.dng")),
                                               TestPhotos::rawFile({ 6000, 4000 }, 6, { preview }));
    const auto reading = readPhoto(path);
    QVERIFY2(reading.ok(), "not read");
    QCOMPARE(reading.value().info.storedSize, QSize(6000, 4000));
    QCOMPARE(reading.value().info.orientation, 6);
    QVERIFY(reading.value().info.isRaw);
    QCOMPARE(reading.value().thumbnail.size(), QSize(171, 256));
    QCOMPARE(TestPhotos::seenQuarters(reading.value().thumbnail), QStringLiteral("BRYG"));
}

void PhotoFileTest::oddNamesAreRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotation mark") << "a\"b.jpg";
    QTest::newRow("line end") << "a\nb.jpg";
    QTest::newRow("command") << "$(id).jpg";
    QTest::newRow("leading hyphen") << "-x.jpg";
    QTest::newRow("a hyphen") << "-";
    QTest::newRow("looks like an address") << "http:";
    QTest::newRow("umlaut") << QString::fromUtf8("Höhe.jpg");
    QTest::newRow("placeholder") << "%1 %2.jpg";
    QTest::newRow("no suffix") << "IMG_0001";
    QTest::newRow("wrong suffix") << "photo.png";
    QTest::newRow("blank at the end") << "photo ";
}

void PhotoFileTest::oddNamesAreRead()
{
    QFETCH(QString, name);
    const QString path = TestPhotos::writeOrdinary(at(QStringLiteral("plain.jpg")));
    QFile::remove(at(name));
    QVERIFY(QFile::copy(path, at(name)));
    const auto reading = readPhoto(at(name));
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.path, at(name));
    QCOMPARE(reading.value().info.focal35mm, 24.0);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
    const auto relative = readPhoto(name);
    QDir::setCurrent(before);
    QVERIFY(relative.ok());
    QCOMPARE(relative.value().info.focal35mm, 24.0);
}

void PhotoFileTest::manyThreadsReadAtOnce()
{
    constexpr int kPhotos = 12;
    QStringList paths;
    for (int i = 0; i < kPhotos; ++i) {
        Exif exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.FocalLengthIn35mmFilm"] = QByteArray::number(20 + i);
        paths.append(TestPhotos::writeJpeg(at(QStringLiteral("thread%1.jpg").arg(i)),
                                           TestPhotos::quarters({ 300, 200 }), exif));
        TestPhotos::embedXmp(paths.last(), "camera" + QByteArray::number(i));
    }
    const auto readAll = [&paths] {
        int right = 0;
        for (int i = 0; i < kPhotos; ++i) {
            const auto reading = readPhoto(paths[i]);
            right += reading.ok() && reading.value().info.focal35mm == 20.0 + i ? 1 : 0;
        }
        return right;
    };
    std::vector<std::future<int>> runs;
    for (int i = 0; i < 4; ++i) {
        runs.push_back(std::async(std::launch::async, readAll));
    }
    for (std::future<int> &run : runs) {
        QCOMPARE(run.get(), kPhotos);
    }
}

TEST_CLASS(PhotoFileTest, QGuiApplication)
#include "tst_photofile.moc"
