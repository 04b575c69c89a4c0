// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/check/photoquality.h"
#include "host/model/commanderror.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/host/testphotos.h"
#include "tests/support/longruns.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace PanoHost;
using namespace TestShoots;

Q_DECLARE_METATYPE(TestShoots::TestShoot)

namespace
{

constexpr QSize kSize(450, 300);

/** A quarter of a sphere: three columns of two rows, as drawn for the other tests but larger. */
TestShoot small(const char *name = "small")
{
    TestShoot shoot = tiny();
    shoot.name = QLatin1String(name);
    shoot.camera.size = kSize;
    return shoot;
}

TestShoot of(TestScene scene, const char *name)
{
    TestShoot shoot = small(name);
    shoot.scene = scene;
    return shoot;
}

/** The photos of \p shoot, taken in \p folder, as it records them. */
QVector<ShotPhoto> taken(const TestShoot &shoot, const QString &folder)
{
    const Panorama panorama = photographed(shoot, folder).value();
    QVector<ShotPhoto> photos;
    for (int position = 0; position < panorama.positions.size(); ++position) {
        const Position &stack = panorama.positions[position];
        for (int level = 0; level < stack.photos.size(); ++level) {
            const PhotoInfo &photo = stack.photos[level];
            photos += ShotPhoto{ photo,
                                 photos.size(),
                                 position,
                                 level,
                                 { stack.yawDegrees, stack.pitchDegrees, 0.0 },
                                 double(clockwiseDegrees(photo.orientation)) };
        }
    }
    return photos;
}

KnownLens lensOf(const TestShoot &shoot)
{
    const bool isFisheye = shoot.camera.projection == Projection::EquidistantFisheye;
    return { shoot.statedFocal35mm, isFisheye ? LensModel::Fisheye : LensModel::Standard };
}

/** Each pixel the mean of those up to so many away, in a rectangle. */
QImage blurred(const QImage &sharp, int across, int down)
{
    const QImage grey = sharp.convertToFormat(QImage::Format_Grayscale8);
    QImage picture(sharp.size(), QImage::Format_RGB32);
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            int sum = 0;
            int count = 0;
            for (int row = qMax(0, y - down); row <= qMin(grey.height() - 1, y + down); ++row) {
                const uchar *const line = grey.constScanLine(row);
                for (int i = qMax(0, x - across); i <= qMin(grey.width() - 1, x + across); ++i) {
                    sum += line[i];
                    ++count;
                }
            }
            const int mean = (sum + count / 2) / count;
            picture.setPixel(x, y, qRgb(mean, mean, mean));
        }
    }
    return picture;
}

/** Another picture for \p photo, which keeps all that it says. */
void replace(ShotPhoto &photo, const QImage &picture)
{
    photo.photo.path += QStringLiteral(".new.jpg");
    QVERIFY(picture.save(photo.photo.path, "JPG", 92));
}

void blur(ShotPhoto &photo, int across, int down)
{
    replace(photo, blurred(QImage(photo.photo.path), across, down));
}

/** "blurred 5": each fault and its shot. */
QStringList namesOf(const QVector<Finding> &faults)
{
    QStringList names;
    for (const Finding &fault : faults) {
        names += QStringLiteral("%1 %2").arg(fault.topic).arg(fault.shots.first());
    }
    return names;
}

QStringList faultsOf(const QVector<ShotPhoto> &photos, const KnownLens &lens, int jobs = 0)
{
    return namesOf(qualityOf(photos, lens, {}, jobs).faults);
}

TestShoot fisheye()
{
    TestShoot shoot = small("fisheye");
    shoot.camera.projection = Projection::EquidistantFisheye;
    shoot.camera.focal35mm = 12.0;
    shoot.statedFocal35mm = 12.0;
    return shoot;
}

TestShoot portrait()
{
    TestShoot shoot = small("portrait");
    shoot.mounting = Mounting::PortraitTurned;
    return shoot;
}

TestShoot inBrackets()
{
    TestShoot shoot = small("brackets");
    shoot.exposures.bracket = { 0.0, -2.0, 2.0 };
    return shoot;
}

} // namespace

class TestPhotoQuality : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blurredPhotosAreFound_data();
    void blurredPhotosAreFound();
    void severalBlurredPhotosAreFound();
    void soundShootsRaiseNoAlarm_data();
    void soundShootsRaiseNoAlarm();
    void recordsThatSayNonsenseRaiseNoAlarm_data();
    void recordsThatSayNonsenseRaiseNoAlarm();
    void anExposureThatStandsOutIsFound_data();
    void anExposureThatStandsOutIsFound();
    void blackAndWhitePhotosAreFound_data();
    void blackAndWhitePhotosAreFound();
    void turnsWithinABracketAreFound_data();
    void turnsWithinABracketAreFound();
    void damagedFilesAreFound();
    void whatIsNotLookedIntoIsNotDamaged();
    void aStopIsObeyed();

private:
    /** Photos of a shoot are drawn once. */
    QVector<ShotPhoto> photosOf(const TestShoot &shoot)
    {
        if (!m_taken.contains(shoot.name)) {
            m_taken[shoot.name] = taken(shoot, m_folder.filePath(shoot.name));
        }
        return m_taken[shoot.name];
    }

    QTemporaryDir m_folder;
    QMap<QString, QVector<ShotPhoto>> m_taken;
};

void TestPhotoQuality::blurredPhotosAreFound_data()
{
    QTest::addColumn<TestShoot>("shoot");
    QTest::addColumn<int>("photo");
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("down");
    QTest::newRow("5 pixels") << small() << 1 << 2 << 2;
    QTest::newRow("5 pixels, in a corner") << small() << 3 << 2 << 2;
    QTest::newRow("9 pixels") << small() << 4 << 4 << 4;
    QTest::newRow("21 pixels") << small() << 1 << 10 << 10;
    QTest::newRow("shaken, 11 pixels across") << small() << 1 << 5 << 0;
    QTest::newRow("shaken, 11 pixels down") << small() << 5 << 0 << 5;
    QTest::newRow("portrait") << portrait() << 4 << 2 << 2;
    QTest::newRow("fisheye") << fisheye() << 2 << 2 << 2;
    QTest::newRow("one of a bracket") << inBrackets() << 6 << 2 << 2;
}

void TestPhotoQuality::blurredPhotosAreFound()
{
    QFETCH(TestShoot, shoot);
    QFETCH(int, photo);
    QFETCH(int, across);
    QFETCH(int, down);
    QVector<ShotPhoto> photos = photosOf(shoot);
    blur(photos[photo], across, down);
    const PhotoQuality quality = qualityOf(photos, lensOf(shoot));
    QCOMPARE(namesOf(quality.faults), QStringList(QStringLiteral("blurred %1").arg(photo)));
    const Finding &fault = quality.faults.first();
    QCOMPARE(fault.files, QStringList(photos[photo].photo.path));
    QVERIFY2(fault.sureness > 0.7 && fault.sureness < 1.0,
             qPrintable(QString::number(fault.sureness)));
    QVERIFY(fault.action == Finding::Action::Reshoot);
    QVERIFY(quality.compared > photos.size() / 2);
}

void TestPhotoQuality::severalBlurredPhotosAreFound()
{
    const TestShoot shoot = small();
    QVector<ShotPhoto> photos = photosOf(shoot);
    blur(photos[0], 2, 2);
    blur(photos[3], 4, 4);
    const QStringList faults{ QStringLiteral("blurred 0"), QStringLiteral("blurred 3") };
    for (const int jobs : { 1, 4 }) {
        QCOMPARE(faultsOf(photos, lensOf(shoot), jobs), faults);
    }
}

void TestPhotoQuality::soundShootsRaiseNoAlarm_data()
{
    QTest::addColumn<TestShoot>("shoot");
    const auto row = [](const TestShoot &shoot) { QTest::newRow(qPrintable(shoot.name)) << shoot; };
    row(small());
    row(portrait());
    row(fisheye());
    row(inBrackets());
    row(of(TestScene::OpenSky, "half of it sky"));
    row(of(TestScene::Facade, "facade"));
    TestShoot shoot = of(TestScene::Haze, "noise in haze");
    shoot.noiseLevels = 4.0;
    row(shoot);
    shoot = small("automatic, not told");
    shoot.exposures.automatic = 1.5;
    shoot.exposures.isTold = false;
    row(shoot);
    shoot = small("a worn head");
    shoot.faults.play = 1.5;
    row(shoot);
    if (rounds(1, 2) == 1) {
        return;
    }
    shoot = small("automatic, told");
    shoot.exposures.automatic = 1.5;
    row(shoot);
    shoot = small("wrong focal length");
    shoot.statedFocal35mm *= 0.95;
    row(shoot);
    row(of(TestScene::PlainBelt, "an even belt"));
    row(of(TestScene::FineTerrace, "fine detail"));
    for (const TestShoot &other : all()) {
        row(other);
    }
}

void TestPhotoQuality::soundShootsRaiseNoAlarm()
{
    QFETCH(TestShoot, shoot);
    QCOMPARE(faultsOf(photosOf(shoot), lensOf(shoot)), QStringList());
}

void TestPhotoQuality::recordsThatSayNonsenseRaiseNoAlarm_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("turn");
    QTest::addColumn<double>("focal35mm");
    QTest::newRow("upside down") << 1.0 << -1.0 << 0.0 << 24.0;
    QTest::newRow("mirrored") << -1.0 << 1.0 << 0.0 << 24.0;
    QTest::newRow("turned by a quarter") << 1.0 << 1.0 << 90.0 << 24.0;
    QTest::newRow("turned by half") << 1.0 << 1.0 << 180.0 << 24.0;
    QTest::newRow("all at one place") << 0.0 << 0.0 << 0.0 << 24.0;
    QTest::newRow("a lens twice as long") << 1.0 << 1.0 << 0.0 << 48.0;
    QTest::newRow("a lens half as long") << 1.0 << 1.0 << 0.0 << 12.0;
    QTest::newRow("no lens") << 1.0 << 1.0 << 0.0 << 0.0;
}

void TestPhotoQuality::recordsThatSayNonsenseRaiseNoAlarm()
{
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(double, turn);
    QFETCH(double, focal35mm);
    QVector<ShotPhoto> photos = photosOf(small());
    for (ShotPhoto &photo : photos) {
        photo.recorded.yaw *= yaw;
        photo.recorded.pitch *= pitch;
        photo.turnDegrees += turn;
    }
    QCOMPARE(faultsOf(photos, { focal35mm, LensModel::Standard }), QStringList());
}

void TestPhotoQuality::anExposureThatStandsOutIsFound_data()
{
    QTest::addColumn<QVector<double>>("values"); // by photo
    QTest::addColumn<QStringList>("faults");
    QTest::newRow("one") << QVector<double>{ 12.0, 12.0, 12.0, 14.0, 12.0, 12.0 }
                         << QStringList{ QStringLiteral("exposure 3") };
    QTest::newRow("one, and rounding") << QVector<double>{ 12.0, 12.1, 11.9, 12.0, 12.0, 11.3 }
                                       << QStringList{ QStringLiteral("exposure 5") };
    QTest::newRow("none") << QVector<double>{ 12.0, 12.0, 12.0, 12.0, 12.0, 12.0 } << QStringList();
    QTest::newRow("a third of a stop")
        << QVector<double>{ 12.0, 12.0, 12.3, 12.0, 12.0, 12.0 } << QStringList();
    QTest::newRow("automatic") << QVector<double>{ 12.0, 12.3, 12.0, 14.0, 12.0, 12.0 }
                               << QStringList();
    QTest::newRow("two halves") << QVector<double>{ 12.0, 12.0, 12.0, 14.0, 14.0, 14.0 }
                                << QStringList();
}

void TestPhotoQuality::anExposureThatStandsOutIsFound()
{
    QFETCH(QVector<double>, values);
    QFETCH(QStringList, faults);
    QVector<ShotPhoto> photos = photosOf(small());
    for (int i = 0; i < photos.size(); ++i) {
        photos[i].photo.exposureValue = values[i];
    }
    QCOMPARE(faultsOf(photos, lensOf(small())), faults);
    // Levels are no outliers of each other, and nobody knows what is usual of four.
    for (ShotPhoto &photo : photos) {
        photo.level = photo.shot % 2;
    }
    QCOMPARE(faultsOf(photos, lensOf(small())), QStringList());
}

void TestPhotoQuality::blackAndWhitePhotosAreFound_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("black") << qRgb(0, 0, 0) << false;
    QTest::newRow("white") << qRgb(255, 255, 255) << false;
    QTest::newRow("black, as the camera was set") << qRgb(0, 0, 0) << true;
}

void TestPhotoQuality::blackAndWhitePhotosAreFound()
{
    QFETCH(QRgb, colour);
    QFETCH(bool, isTold);
    QVector<ShotPhoto> photos = photosOf(small());
    QImage picture(kSize, QImage::Format_RGB32);
    picture.fill(colour);
    replace(photos[4], picture);
    if (isTold) {
        // All of them at another exposure, as an automatic camera chooses.
        for (int i = 0; i < photos.size(); ++i) {
            photos[i].photo.exposureValue = 12.0 + i;
        }
    }
    QCOMPARE(faultsOf(photos, lensOf(small())),
             isTold ? QStringList() : QStringList{ QStringLiteral("exposure 4") });
}

void TestPhotoQuality::turnsWithinABracketAreFound_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("focal35mm");
    QTest::newRow("not at all") << 0.0 << 0.0 << 24.0;
    QTest::newRow("by less than a pixel") << 0.1 << 0.0 << 24.0;
    QTest::newRow("to the side") << 1.0 << 0.0 << 24.0;
    QTest::newRow("down") << 0.0 << -2.0 << 24.0;
    QTest::newRow("the focal length is not known") << 1.0 << 0.0 << 0.0;
}

void TestPhotoQuality::turnsWithinABracketAreFound()
{
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(double, focal35mm);
    TestShoot shoot = inBrackets();
    shoot.name = QStringLiteral("bracket");
    shoot.planned = { { 20.0, -5.0 } };
    shoot.groups = { { 0 } };
    QVector<ShotPhoto> photos = photosOf(shoot);
    shoot.name += QStringLiteral(" %1 %2").arg(yaw).arg(pitch);
    shoot.planned[0].yawDegrees += yaw;
    shoot.planned[0].pitchDegrees += pitch;
    photos[1].photo.path = photosOf(shoot)[1].photo.path;
    // A photo in the ratio of 3 : 2 is 36 mm wide. Off its middle a turn moves what it shows by
    // more.
    const double pixels = 24.0 / 36.0 * kSize.width() * radians(std::hypot(yaw, pitch));
    const QVector<Finding> faults = qualityOf(photos, { focal35mm, LensModel::Standard }).faults;
    if (pixels < 2.0) {
        QCOMPARE(faults.size(), 0);
        return;
    }
    // There and back.
    QCOMPARE(faults.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(faults[i].topic, QStringLiteral("moved"));
        QCOMPARE(faults[i].shots, QVector<int>{ i + 1 });
        const double told = faults[i].text.section(QLatin1Char(' '), 3, 3).toDouble();
        QVERIFY2(told > pixels - 0.5 && told < 1.2 * pixels, qPrintable(faults[i].text));
    }
}

void TestPhotoQuality::damagedFilesAreFound()
{
    QVector<ShotPhoto> photos = photosOf(small());
    QFile whole(photos[2].photo.path);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    photos[2].photo.path = TestPhotos::writeFile(m_folder.filePath(QStringLiteral("half.jpg")),
                                                 whole.read(whole.size() / 2));
    photos[5].photo.path = m_folder.filePath(QStringLiteral("gone.jpg"));
    QCOMPARE(faultsOf(photos, lensOf(small())),
             (QStringList{ QStringLiteral("bad 2"), QStringLiteral("bad 5") }));
}

void TestPhotoQuality::whatIsNotLookedIntoIsNotDamaged()
{
    QVector<ShotPhoto> photos = photosOf(small());
    photos[2].photo.path = TestPhotos::writeFile(
        m_folder.filePath(QStringLiteral("raw.tif")),
        TestPhotos::rawFile(kSize, 1,
                            { TestPhotos::jpegBytes(TestPhotos::quarters(QSize(300, 200))) }));
    const PhotoQuality quality = qualityOf(photos, lensOf(small()));
    QCOMPARE(quality.faults.size(), 0);
    QCOMPARE(quality.compared, 5);
    QCOMPARE(qualityOf({}, lensOf(small())).faults.size(), 0);
}

void TestPhotoQuality::aStopIsObeyed()
{
    JobWatch watch;
    int asked = 0;
    watch.interrupted = [&asked] { return ++asked > 1; };
    bool isStopped = false;
    try {
        (void)qualityOf(photosOf(small()), lensOf(small()), watch);
    } catch (const CommandError &error) {
        isStopped = error.failure().code == ExitCode::Interrupted;
    }
    QVERIFY(isStopped);
}

TEST_CLASS(TestPhotoQuality, QCoreApplication)
#include "tst_photoquality.moc"
