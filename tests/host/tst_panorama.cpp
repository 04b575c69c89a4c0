// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panorama.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace PanoHost;

namespace
{

constexpr float kDegree = static_cast<float>(M_PI / 180.0);

/** \p positions of \p each photos p0_0, p0_1, ... and one angle per photo, 1 degree apart. */
StructuredPanoramaProperties description(int positions, int each)
{
    StructuredPanoramaProperties d;
    d.positionsKnown = true;
    d.focalLength = 24.0F;
    for (int i = 0; i < positions; ++i) {
        QStringList group;
        for (int k = 0; k < each; ++k) {
            group.append(QStringLiteral("p%1_%2").arg(i).arg(k));
            d.yaw.append(float(d.yaw.size()) * kDegree);
            d.pitch.append(-float(d.pitch.size()) * kDegree);
            d.roll.append(90.0F * kDegree);
        }
        d.imageGroups.append(group);
    }
    return d;
}

Result<PhotoInfo> ordinaryPhoto(const QString &path)
{
    PhotoInfo photo;
    photo.path = path;
    photo.storedSize = QSize(1200, 800);
    photo.focal35mm = 28.0;
    photo.lens = LensModel::Standard;
    return photo;
}

bool near(double actual, double expected)
{
    // a 32-bit angle of a few degrees is good to a few 1e-7 degrees
    return std::abs(actual - expected) < 1e-5;
}

} // namespace

class PanoramaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldOfViewFollowsTheDiagonal_data();
    void fieldOfViewFollowsTheDiagonal();
    void fieldOfViewNeedsItsNumbers_data();
    void fieldOfViewNeedsItsNumbers();
    void focalInPixelsFollowsTheDiagonal();
    void positionTakesItsAngle();
    void stackTakesTheAngleOfItsFirstPhoto();
    void oneAnglePerPositionIsTakenAsItIs();
    void stacksOfDifferentSizesKeepCount();
    void rollCountsOnlyWhenKnown();
    void focalLengthComesFromTheDescriptionFirst_data();
    void focalLengthComesFromTheDescriptionFirst();
    void lensComesFromTheDescriptionFirst_data();
    void lensComesFromTheDescriptionFirst();
    void unreadablePhotoIsRefusedByName();
    void descriptionWithoutPhotosIsRefused();
    void positionWithoutPhotosIsRefused();
    void tooFewAnglesAreRefused();
    void angleThatIsNoNumberIsRefused_data();
    void angleThatIsNoNumberIsRefused();
    void gridIsLaidOut();
};

void PanoramaTest::fieldOfViewFollowsTheDiagonal_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lens");
    QTest::addColumn<double>("expected");
    // 3:2 frames are exactly 36 x 24 mm: 2 atan(36 / 48), 2 atan(24 / 48), 36 / 12 rad;
    // a 4:3 frame of the same diagonal is 34.6133 mm wide: 2 atan(34.6133 / 48).
    QTest::newRow("landscape") << QSize(1200, 800) << 24.0 << 0 << 73.7397952917;
    QTest::newRow("portrait") << QSize(800, 1200) << 24.0 << 0 << 53.1301023542;
    QTest::newRow("4:3") << QSize(1200, 900) << 24.0 << 0 << 71.5915198294;
    QTest::newRow("fisheye") << QSize(1200, 800) << 12.0 << 1 << 171.887338539;
    QTest::newRow("long lens") << QSize(6000, 4000) << 50.0 << 0 << 39.5977527090;
}

void PanoramaTest::fieldOfViewFollowsTheDiagonal()
{
    QFETCH(QSize, size);
    QFETCH(double, focal);
    QFETCH(int, lens);
    QFETCH(double, expected);
    const double actual = horizontalFovDegrees(size, focal, static_cast<LensModel>(lens));
    QVERIFY2(std::abs(actual - expected) < 1e-9, qPrintable(QString::number(actual, 'g', 14)));
}

void PanoramaTest::fieldOfViewNeedsItsNumbers_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("focal");
    QTest::newRow("no size") << QSize() << 24.0;
    QTest::newRow("no height") << QSize(1200, 0) << 24.0;
    QTest::newRow("no focal length") << QSize(1200, 800) << 0.0;
    QTest::newRow("negative") << QSize(1200, 800) << -24.0;
    QTest::newRow("not a number") << QSize(1200, 800) << qQNaN();
    QTest::newRow("infinite") << QSize(1200, 800) << qInf();
}

void PanoramaTest::fieldOfViewNeedsItsNumbers()
{
    QFETCH(QSize, size);
    QFETCH(double, focal);
    QCOMPARE(horizontalFovDegrees(size, focal, LensModel::Standard), 0.0);
    QCOMPARE(horizontalFovDegrees(size, focal, LensModel::Fisheye), 0.0);
    QCOMPARE(focalPixels(size, focal), 0.0);
}

void PanoramaTest::focalInPixelsFollowsTheDiagonal()
{
    // 1200 pixels are 36 mm.
    QVERIFY(std::abs(focalPixels({ 1200, 800 }, 24.0) - 800.0) < 1e-9);
    QVERIFY(std::abs(focalPixels({ 800, 1200 }, 24.0) - 800.0) < 1e-9);
    QVERIFY(std::abs(focalPixels({ 1200, 800 }, 12.0) - 400.0) < 1e-9);
}

void PanoramaTest::positionTakesItsAngle()
{
    SourceInfo source;
    source.name = QStringLiteral("Papywizard");
    const auto panorama = joinPanorama(description(3, 1), source, ordinaryPhoto);
    QVERIFY(panorama.ok());
    QCOMPARE(panorama.value().positions.size(), 3);
    QCOMPARE(panorama.value().source.name, QStringLiteral("Papywizard"));
    QCOMPARE(photoCount(panorama.value()), 3);
    for (int i = 0; i < 3; ++i) {
        const Position &position = panorama.value().positions[i];
        QVERIFY(near(position.yawDegrees, i));
        QVERIFY(near(position.pitchDegrees, -i));
        QCOMPARE(position.photos.size(), 1);
        QCOMPARE(position.photos[0].path, QStringLiteral("p%1_0").arg(i));
    }
}

void PanoramaTest::stackTakesTheAngleOfItsFirstPhoto()
{
    const auto panorama = joinPanorama(description(4, 3), {}, ordinaryPhoto);
    QVERIFY(panorama.ok());
    QCOMPARE(photoCount(panorama.value()), 12);
    for (int i = 0; i < 4; ++i) {
        QVERIFY(near(panorama.value().positions[i].yawDegrees, 3 * i));
        QCOMPARE(panorama.value().positions[i].photos[2].path, QStringLiteral("p%1_2").arg(i));
    }
}

void PanoramaTest::oneAnglePerPositionIsTakenAsItIs()
{
    StructuredPanoramaProperties d = description(4, 3);
    d.yaw.resize(4);
    d.pitch.resize(4);
    d.roll.resize(4);
    const auto panorama = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(panorama.ok());
    for (int i = 0; i < 4; ++i) {
        QVERIFY(near(panorama.value().positions[i].yawDegrees, i));
    }
}

void PanoramaTest::stacksOfDifferentSizesKeepCount()
{
    StructuredPanoramaProperties d = description(3, 2);
    d.imageGroups[0].removeLast(); // 1 + 2 + 2 photos: positions start at shots 0, 1 and 3
    const auto panorama = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(panorama.ok());
    QVERIFY(near(panorama.value().positions[1].yawDegrees, 1));
    QVERIFY(near(panorama.value().positions[2].yawDegrees, 3));
}

void PanoramaTest::rollCountsOnlyWhenKnown()
{
    StructuredPanoramaProperties d = description(1, 1);
    d.rollKnown = true;
    const auto known = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(known.ok());
    QVERIFY(near(known.value().positions[0].rollDegrees, 90.0));
    d.rollKnown = false;
    const auto unknown = joinPanorama(d, {}, ordinaryPhoto);
    QCOMPARE(unknown.value().positions[0].rollDegrees, 0.0);
    d.rollKnown = true;
    d.roll.clear();
    const auto missing = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(missing.ok());
    QCOMPARE(missing.value().positions[0].rollDegrees, 0.0);
}

void PanoramaTest::focalLengthComesFromTheDescriptionFirst_data()
{
    QTest::addColumn<float>("described");
    QTest::addColumn<double>("expected");
    // the photos say 20, 28, 35 and nothing: 28 is their median
    QTest::newRow("described") << 24.5F << 24.5;
    QTest::newRow("zero") << 0.0F << 28.0;
    QTest::newRow("negative") << -1.0F << 28.0;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 28.0;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << 28.0;
}

void PanoramaTest::focalLengthComesFromTheDescriptionFirst()
{
    QFETCH(float, described);
    QFETCH(double, expected);
    StructuredPanoramaProperties d = description(4, 1);
    d.focalLength = described;
    const auto panorama = joinPanorama(d, {}, [](const QString &path) -> Result<PhotoInfo> {
        PhotoInfo photo;
        photo.path = path;
        const QHash<QString, double> focals{ { QStringLiteral("p0_0"), 35.0 },
                                             { QStringLiteral("p1_0"), 20.0 },
                                             { QStringLiteral("p2_0"), 28.0 } };
        photo.focal35mm = focals.value(path);
        return photo;
    });
    QVERIFY(panorama.ok());
    QCOMPARE(panorama.value().focal35mm, expected);
}

void PanoramaTest::lensComesFromTheDescriptionFirst_data()
{
    QTest::addColumn<int>("described");
    QTest::addColumn<int>("photo");
    QTest::addColumn<int>("expected");
    QTest::newRow("standard described") << 0 << 1 << 0;
    QTest::newRow("fisheye described") << 1 << 0 << 1;
    QTest::newRow("fisheye photo") << -1 << 1 << 1;
    QTest::newRow("standard photo") << -1 << 0 << 0;
    QTest::newRow("nothing known") << -1 << -1 << 0;
    QTest::newRow("a value of no meaning") << 7 << -1 << 0;
}

void PanoramaTest::lensComesFromTheDescriptionFirst()
{
    QFETCH(int, described);
    QFETCH(int, photo);
    QFETCH(int, expected);
    StructuredPanoramaProperties d = description(1, 1);
    d.lensModel = static_cast<LensModel>(described);
    const auto panorama = joinPanorama(d, {}, [photo](const QString &path) -> Result<PhotoInfo> {
        PhotoInfo info;
        info.path = path;
        info.lens = static_cast<LensModel>(photo);
        return info;
    });
    QVERIFY(panorama.ok());
    QCOMPARE(static_cast<int>(panorama.value().lens), expected);
}

void PanoramaTest::unreadablePhotoIsRefusedByName()
{
    const auto panorama
        = joinPanorama(description(3, 1), {}, [](const QString &path) -> Result<PhotoInfo> {
              if (path == QLatin1String("p1_0")) {
                  return Failure{ ExitCode::InputRefused, path, QStringLiteral("gone"), {} };
              }
              return ordinaryPhoto(path);
          });
    QVERIFY(!panorama.ok());
    QCOMPARE(panorama.error().what, QStringLiteral("p1_0"));
    QCOMPARE(panorama.error().why, QStringLiteral("gone"));
}

void PanoramaTest::descriptionWithoutPhotosIsRefused()
{
    const auto panorama = joinPanorama({}, {}, ordinaryPhoto);
    QVERIFY(!panorama.ok());
    QCOMPARE(panorama.error().text(), QStringLiteral("the description: holds no photos"));
}

void PanoramaTest::positionWithoutPhotosIsRefused()
{
    StructuredPanoramaProperties d = description(3, 1);
    d.imageGroups[1].clear();
    const auto panorama = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(!panorama.ok());
    QCOMPARE(panorama.error().text(), QStringLiteral("position 2: has no photo"));
}

void PanoramaTest::tooFewAnglesAreRefused()
{
    StructuredPanoramaProperties d = description(3, 2);
    d.pitch.removeLast();
    const auto panorama = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(!panorama.ok());
    QCOMPARE(panorama.error().text(),
             QStringLiteral("the description: 5 recorded directions for 6 photos at 3 positions"));
    d.yaw.clear();
    QVERIFY(!joinPanorama(d, {}, ordinaryPhoto).ok());
}

void PanoramaTest::angleThatIsNoNumberIsRefused_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<float>("value");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    QTest::newRow("yaw not a number") << 0 << nan;
    QTest::newRow("pitch not a number") << 1 << nan;
    QTest::newRow("roll not a number") << 2 << nan;
    QTest::newRow("yaw infinite") << 0 << infinite;
    QTest::newRow("pitch minus infinite") << 1 << -infinite;
}

void PanoramaTest::angleThatIsNoNumberIsRefused()
{
    QFETCH(int, list);
    QFETCH(float, value);
    StructuredPanoramaProperties d = description(3, 1);
    d.rollKnown = true;
    (list == 0 ? d.yaw : list == 1 ? d.pitch : d.roll)[1] = value;
    const auto panorama = joinPanorama(d, {}, ordinaryPhoto);
    QVERIFY(!panorama.ok());
    QCOMPARE(panorama.error().text(),
             QStringLiteral("shot 2: its direction is not a number; correct the record"));
}

void PanoramaTest::gridIsLaidOut()
{
    StructuredPanoramaProperties d;
    d.imageGroups = { { QStringLiteral("a") }, { QStringLiteral("b") }, { QStringLiteral("c") } };
    d.gridRows = 1;
    d.gridMode = 1;
    d.overlap = 50.0;
    d.positionsKnown = false;
    const auto panorama = joinPanorama(d, {}, [](const QString &path) -> Result<PhotoInfo> {
        // Portrait photos, stored lying: the grid counts them standing.
        PhotoInfo photo = ordinaryPhoto(path).value();
        photo.orientation = 6;
        photo.focal35mm = 24.0;
        return photo;
    });
    QVERIFY(panorama.ok());
    const double step = 53.1301023542 / 2.0;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(near(panorama.value().positions[i].yawDegrees, (i - 1) * step));
        QVERIFY(near(panorama.value().positions[i].pitchDegrees, 0.0));
    }
}

TEST_CLASS(PanoramaTest, QCoreApplication)
#include "tst_panorama.moc"
