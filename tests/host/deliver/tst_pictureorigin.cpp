// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/pictureorigin.h"
#include "host/model/photofile.h"
#include "tests/host/deliver/deliverbench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <exiv2/exiv2.hpp>

#include <memory>

using namespace PanoHost;
using TestPhotos::Exif;

namespace
{

void embedProfile(const QString &path, const QByteArray &profile)
{
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    Exiv2::DataBuf data(reinterpret_cast<const Exiv2::byte *>(profile.constData()), profile.size());
    image->setIccProfile(data, false);
    image->writeMetadata();
}

} // namespace

class TestPictureOrigin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { initializePhotoReading(); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void everythingIsReadFromAJpeg();
    void placesSouthAndWestAreNegative();
    void cameraIsNamedOnce_data();
    void cameraIsNamedOnce();
    void nonsenseIsNotKnown_data();
    void nonsenseIsNotKnown();
    void profileMustBeTheSame_data();
    void profileMustBeTheSame();
    void profileComesFromTiffToo();
    void headingIsThatOfTheMiddle_data();
    void headingIsThatOfTheMiddle();
    void photosThatAreGoneDoNoHarm();
    void onlyAHandfulIsLookedAt();

private:
    QString photo(int number, const Exif &exif = {}) const
    {
        const QString path = m_folder->filePath(QStringLiteral("%1.jpg").arg(number));
        return TestPhotos::writeJpeg(path, TestPhotos::quarters(QSize(32, 24)), exif);
    }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPictureOrigin::everythingIsReadFromAJpeg()
{
    const QString first = photo(1,
                                { { "Exif.Image.Make", "Canon" },
                                  { "Exif.Image.Model", "Canon EOS 5D" },
                                  { "Exif.Image.Artist", "Zoë  Ångström\n" },
                                  { "Exif.Image.Copyright", "© Zoë" },
                                  { "Exif.Photo.LensModel", "EF 24mm" },
                                  { "Exif.Photo.DateTimeOriginal", "2024:05:01 10:00:00" },
                                  { "Exif.Photo.OffsetTimeOriginal", "-03:30" },
                                  { "Exif.GPSInfo.GPSLatitudeRef", "N" },
                                  { "Exif.GPSInfo.GPSLatitude", "35/1 30/1 36/1" },
                                  { "Exif.GPSInfo.GPSLongitudeRef", "E" },
                                  { "Exif.GPSInfo.GPSLongitude", "139/1 45/1 0/1" },
                                  { "Exif.GPSInfo.GPSAltitudeRef", "0" },
                                  { "Exif.GPSInfo.GPSAltitude", "1205/10" } });
    const PictureOrigin origin = originOf({ { first, 0.0, 0.0 } }, 0.0);
    QCOMPARE(origin.camera, QStringLiteral("Canon EOS 5D"));
    QCOMPARE(origin.lens, QStringLiteral("EF 24mm"));
    QCOMPARE(origin.author, QString::fromUtf8("Zoë Ångström"));
    QCOMPARE(origin.copyright, QString::fromUtf8("© Zoë"));
    QCOMPARE(origin.taken.toString(Qt::ISODate), QStringLiteral("2024-05-01T10:00:00-03:30"));
    QVERIFY(origin.place.has_value());
    QCOMPARE(origin.place->latitudeDegrees, 35.51); // 30' 36" = 0.51 degrees
    QCOMPARE(origin.place->longitudeDegrees, 139.75);
    QCOMPARE(origin.place->altitudeMetres.value_or(0.0), 120.5);
    QVERIFY(!origin.headingDegrees.has_value());
    QCOMPARE(origin.iccProfile, QByteArray());
}

void TestPictureOrigin::placesSouthAndWestAreNegative()
{
    const QString first = photo(1,
                                { { "Exif.GPSInfo.GPSLatitudeRef", "S" },
                                  { "Exif.GPSInfo.GPSLatitude", "0/1 3045/100 0/1" },
                                  { "Exif.GPSInfo.GPSLongitudeRef", "W" },
                                  { "Exif.GPSInfo.GPSLongitude", "70/1 0/1 0/0" },
                                  { "Exif.GPSInfo.GPSAltitudeRef", "1" },
                                  { "Exif.GPSInfo.GPSAltitude", "400/1" } });
    const PictureOrigin origin = originOf({ { first, 0.0, 0.0 } }, 0.0);
    QVERIFY(origin.place.has_value());
    QCOMPARE(origin.place->latitudeDegrees, -0.5075); // 30.45 / 60
    QCOMPARE(origin.place->longitudeDegrees, -70.0);
    QCOMPARE(origin.place->altitudeMetres.value_or(0.0), -400.0);
}

void TestPictureOrigin::cameraIsNamedOnce_data()
{
    QTest::addColumn<QByteArray>("make");
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QString>("camera");
    QTest::newRow("model alone") << QByteArray() << QByteArray("One") << QStringLiteral("One");
    QTest::newRow("both") << QByteArray("Imaginary") << QByteArray("One")
                          << QStringLiteral("Imaginary One");
    QTest::newRow("first word of the maker")
        << QByteArray("IMAGINARY CORPORATION") << QByteArray("Imaginary D1")
        << QStringLiteral("Imaginary D1");
    QTest::newRow("maker alone") << QByteArray("Imaginary") << QByteArray()
                                 << QStringLiteral("Imaginary");
}

void TestPictureOrigin::cameraIsNamedOnce()
{
    QFETCH(QByteArray, make);
    QFETCH(QByteArray, model);
    QFETCH(QString, camera);
    const QString first = photo(1, { { "Exif.Image.Make", make }, { "Exif.Image.Model", model } });
    QCOMPARE(originOf({ { first, 0.0, 0.0 } }, 0.0).camera, camera);
}

void TestPictureOrigin::nonsenseIsNotKnown_data()
{
    QTest::addColumn<QByteArray>("latitude");
    QTest::addColumn<QByteArray>("reference");
    QTest::newRow("beyond the pole") << QByteArray("91/1 0/1 0/1") << QByteArray("N");
    QTest::newRow("no denominator") << QByteArray("35/0 0/1 0/1") << QByteArray("N");
    QTest::newRow("no half of the earth") << QByteArray("35/1 0/1 0/1") << QByteArray();
}

void TestPictureOrigin::nonsenseIsNotKnown()
{
    QFETCH(QByteArray, latitude);
    QFETCH(QByteArray, reference);
    Exif exif{ { "Exif.GPSInfo.GPSLatitude", latitude },
               { "Exif.GPSInfo.GPSLongitudeRef", "E" },
               { "Exif.GPSInfo.GPSLongitude", "10/1 0/1 0/1" },
               { "Exif.GPSInfo.GPSImgDirection", "400/1" },
               { "Exif.Photo.DateTimeOriginal", "0000:00:00 00:00:00" } };
    if (!reference.isEmpty()) {
        exif["Exif.GPSInfo.GPSLatitudeRef"] = reference;
    }
    const PictureOrigin origin = originOf({ { photo(1, exif), 0.0, 0.0 } }, 0.0);
    QVERIFY(!origin.place.has_value());
    QVERIFY(!origin.headingDegrees.has_value());
    QVERIFY(!origin.taken.isValid());
}

void TestPictureOrigin::profileMustBeTheSame_data()
{
    QTest::addColumn<QByteArrayList>("profiles");
    QTest::addColumn<QByteArray>("carried");
    const QByteArray a = DeliverBench::iccProfile('a');
    const QByteArray b = DeliverBench::iccProfile('b');
    const QByteArray large = DeliverBench::iccProfile('l', 200000);
    QByteArray grey = a;
    grey.replace(16, 4, "GRAY");
    QTest::newRow("the same") << QByteArrayList{ a, a, a } << a;
    QTest::newRow("one has none") << QByteArrayList{ a, {}, a } << QByteArray();
    QTest::newRow("the first has none") << QByteArrayList{ {}, a, a } << QByteArray();
    QTest::newRow("different") << QByteArrayList{ a, a, b } << QByteArray();
    QTest::newRow("in several segments") << QByteArrayList{ large, large } << large;
    QTest::newRow("of grey pictures") << QByteArrayList{ grey, grey } << QByteArray();
    QTest::newRow("cut off") << QByteArrayList{ a.left(100) } << QByteArray();
}

void TestPictureOrigin::profileMustBeTheSame()
{
    QFETCH(QByteArrayList, profiles);
    QFETCH(QByteArray, carried);
    QVector<PhotoView> photos;
    for (const QByteArray &profile : profiles) {
        photos.append({ photo(photos.size()), 0.0, 0.0 });
        if (!profile.isEmpty()) {
            embedProfile(photos.last().path, profile);
        }
    }
    QCOMPARE(originOf(photos, 0.0).iccProfile, carried);
}

void TestPictureOrigin::profileComesFromTiffToo()
{
    const QByteArray profile = DeliverBench::iccProfile('t');
    const QString folder = m_folder->path();
    TestPhotos::writeFile(m_folder->filePath(QStringLiteral("t.icc")), profile);
    photo(1);
    DeliverBench::said(QStringLiteral("vips"),
                       { QStringLiteral("tiffsave"), QStringLiteral("1.jpg"),
                         QStringLiteral("1.tif"), QStringLiteral("--profile"),
                         QStringLiteral("t.icc") },
                       folder);
    QCOMPARE(
        originOf({ { m_folder->filePath(QStringLiteral("1.tif")), 0.0, 0.0 } }, 0.0).iccProfile,
        profile);
}

void TestPictureOrigin::headingIsThatOfTheMiddle_data()
{
    QTest::addColumn<QVector<QVector<double>>>("photos"); // direction, yaw, pitch
    QTest::addColumn<double>("centreYaw");
    QTest::addColumn<double>("heading"); // negative: not known
    using Photos = QVector<QVector<double>>;
    QTest::newRow("looks to the middle") << Photos{ { 90.0, 0.0, 0.0 } } << 0.0 << 90.0;
    // 30 degrees to the right of the head's zero, which so is at 60; the middle 20 to the right.
    QTest::newRow("beside it") << Photos{ { 90.0, 30.0, 0.0 } } << 20.0 << 80.0;
    QTest::newRow("across north") << Photos{ { 10.0, 30.0, 0.0 } } << 0.0 << 340.0;
    QTest::newRow("the mean of two, across north")
        << Photos{ { 358.0, 0.0, 0.0 }, { 14.0, 10.0, 0.0 } } << 0.0 << 1.0;
    QTest::newRow("the zenith does not count")
        << Photos{ { 123.0, 0.0, 90.0 }, { 90.0, 0.0, 10.0 } } << 0.0 << 90.0;
    QTest::newRow("contradiction")
        << Photos{ { 0.0, 0.0, 0.0 }, { 180.0, 0.0, 0.0 } } << 0.0 << -1.0;
}

void TestPictureOrigin::headingIsThatOfTheMiddle()
{
    QFETCH(QVector<QVector<double>>, photos);
    QFETCH(double, centreYaw);
    QFETCH(double, heading);
    QVector<PhotoView> views;
    for (const QVector<double> &row : photos) {
        const QByteArray direction = QByteArray::number(row[0]) + "/1";
        views.append({ photo(views.size(), { { "Exif.GPSInfo.GPSImgDirection", direction } }),
                       row[1], row[2] });
    }
    const PictureOrigin origin = originOf(views, centreYaw);
    QCOMPARE(origin.headingDegrees.has_value(), heading >= 0.0);
    if (heading >= 0.0) {
        QVERIFY2(std::abs(*origin.headingDegrees - heading) < 1e-9,
                 qPrintable(QString::number(*origin.headingDegrees)));
    }
}

void TestPictureOrigin::photosThatAreGoneDoNoHarm()
{
    const QString last = photo(2,
                               { { "Exif.Image.Artist", "Zoe" },
                                 { "Exif.Photo.DateTimeOriginal", "2024:05:01 10:00:00" } });
    embedProfile(last, DeliverBench::iccProfile('a'));
    const PictureOrigin origin = originOf({ { m_folder->filePath(QStringLiteral("gone.jpg")) },
                                            { QStringLiteral("/dev/zero") },
                                            { last } },
                                          0.0);
    QCOMPARE(origin.author, QStringLiteral("Zoe"));
    QCOMPARE(origin.iccProfile, DeliverBench::iccProfile('a'));
    QVERIFY(!origin.taken.isValid()); // of the first photo, which is gone
    QVERIFY(!originOf({}, 0.0).taken.isValid());
}

void TestPictureOrigin::onlyAHandfulIsLookedAt()
{
    // Of 101 the 1st, 26th, 51st, 76th and last; all others are gone.
    QVector<PhotoView> photos(101, { m_folder->filePath(QStringLiteral("gone.jpg")) });
    photos[99].path = photo(99, { { "Exif.Image.Artist", "Nobody" } });
    photos[75].path = photo(75, { { "Exif.Image.Artist", "Somebody" } });
    QCOMPARE(originOf(photos, 0.0).author, QStringLiteral("Somebody"));
}

TEST_CLASS(TestPictureOrigin, QCoreApplication)
#include "tst_pictureorigin.moc"
