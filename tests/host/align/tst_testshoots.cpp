// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/model/photofile.h"
#include "importers/headfacts.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;
using namespace TestShoots;

namespace
{

/** Rotations all around that have nothing in common. */
Rotations someRotations()
{
    Rotations rotations;
    for (int i = 0; i < 12; ++i) {
        rotations.push_back(rotationOf({ i * 30.0, 40.0 - (i % 3) * 40.0, i * 5.0 }));
    }
    return rotations;
}

Rotations turned(const Rotations &rotations, const Eigen::Matrix3d &by)
{
    Rotations result;
    for (const Eigen::Matrix3d &rotation : rotations) {
        result.push_back(by * rotation);
    }
    return result;
}

bool near(double value, double wanted, double tolerance)
{
    return std::fabs(value - wanted) <= tolerance;
}

double meanLevel(const QImage &photo, const QRect &part)
{
    double sum = 0.0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            sum += qGreen(photo.pixel(x, y));
        }
    }
    return sum / (part.width() * part.height());
}

TestShoot onePhoto(TestScene scene)
{
    TestShoot shoot;
    shoot.scene = scene;
    shoot.camera.size = QSize(300, 200);
    shoot.planned = { {} };
    shoot.groups = { { 0 } };
    shoot.faults.play = 0.0;
    shoot.faults.rollPlay = 0.0;
    return shoot;
}

} // namespace

class TestTestShoots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commonRotationsAreNoErrors();
    void errorsAreAnglesAfterTheBestRotation();
    void groupsAreMeasuredInTheFrameOfOthers();
    void islandsAreTurnedAgainstEachOther();
    void playSpreadsAsTheFiguresSay();
    void crookedCamerasAddToTheHead();
    void slippedAxesStayOff();
    void bumpedPhotosAloneAreOff();
    void turnedCamerasStoreTurnedPixels();
    void recordsAreRounded_data();
    void recordsAreRounded();
    void photosSeeWhereTheyTrulyPoint();
    void truthsTurnWithWhatWasFound();
    void skiesAndIslandsAreJudgedApart();
    void nearWallsShiftWithTheEye();
    void scenesAreWhatTheirNamesSay();
    void noiseSpreadsAsToldAndIsTheSameEachTime();
    void automaticExposuresAreToldOrNot_data();
    void automaticExposuresAreToldOrNot();
    void panoramasAreWhatAnImportGives();
    void gridsAreLaidOutFromWhatTheUserSays();
    void photosOfTheSameShootAreNotTakenAgain();
    void shootsOfTheListHaveNamesOfTheirOwn();
};

void TestTestShoots::commonRotationsAreNoErrors()
{
    const Rotations truth = someRotations();
    const Rotations found = turned(truth, rotationOf({ 100.0, -20.0, 60.0 }));
    const AttitudeErrors errors = attitudeErrors(truth, found);
    QVERIFY(errors.rms < 1e-6);
    QVERIFY(errors.largest < 1e-6);
}

void TestTestShoots::errorsAreAnglesAfterTheBestRotation()
{
    // Half of the photos turned one way, half the other way, about the same axis of the world:
    // no common rotation helps, and each is 0.2 degrees off.
    const Rotations truth = someRotations();
    Rotations found = turned(truth, rotationOf({ 77.0, 5.0, -12.0 }));
    for (size_t i = 0; i < found.size(); ++i) {
        found[i] = rotationOf({ i % 2 == 0 ? 0.2 : -0.2, 0.0, 0.0 }) * found[i];
    }
    const AttitudeErrors even = attitudeErrors(truth, found);
    QVERIFY(near(even.rms, 0.2, 1e-5));
    QVERIFY(near(even.largest, 0.2, 1e-5));
    // One of twelve 1.2 degrees off: the best rotation takes 1 / 12 of it, 0.1, from all.
    // rms = sqrt((1.1^2 + 11 * 0.1^2) / 12) = 0.331662
    Rotations one = truth;
    one[5] = rotationOf({ 0.0, 1.2, 0.0 }) * one[5];
    const AttitudeErrors single = attitudeErrors(truth, one);
    QVERIFY(near(single.rms, 0.331662, 1e-4));
    QVERIFY(near(single.largest, 1.1, 1e-4));
}

void TestTestShoots::groupsAreMeasuredInTheFrameOfOthers()
{
    const Rotations truth = someRotations();
    Rotations found = truth;
    const Chosen sure{ 0, 1, 2, 3, 4, 5, 6, 7 };
    const Chosen others{ 8, 9, 10, 11 };
    for (const int i : others) {
        found[static_cast<size_t>(i)] = rotationOf({ 0.3, 0.0, 0.0 }) * found.at(i);
    }
    const Eigen::Matrix3d common = commonRotation(truth, found, sure);
    QVERIFY(attitudeErrors(truth, found, common, sure).largest < 1e-6);
    QVERIFY(near(attitudeErrors(truth, found, common, others).rms, 0.3, 1e-6));
}

void TestTestShoots::islandsAreTurnedAgainstEachOther()
{
    const Rotations truth = someRotations();
    Rotations found = turned(truth, rotationOf({ 10.0, 3.0, 0.0 }));
    const Chosen one{ 0, 2, 4 };
    const Chosen other{ 1, 3, 5, 7 };
    QVERIFY(degreesBetweenGroups(truth, found, one, other) < 1e-6);
    for (const int i : other) {
        found[static_cast<size_t>(i)] = rotationOf({ 0.0, 0.25, 0.0 }) * found.at(i);
    }
    QVERIFY(near(degreesBetweenGroups(truth, found, one, other), 0.25, 1e-6));
}

void TestTestShoots::playSpreadsAsTheFiguresSay()
{
    // Up to 0.3 degrees either way, evenly: each axis spreads by 0.3 / sqrt(3), both together by
    // 0.3 * sqrt(2 / 3) = 0.2449 degrees. Over many photos:
    TestShoot shoot;
    setRows(shoot, { { 0.0, 3600 } });
    TestShoot still = shoot;
    still.faults.play = 0.0;
    still.faults.rollPlay = 0.0;
    shoot.faults.rollPlay = 0.0;
    const AttitudeErrors errors = attitudeErrors(trueRotations(shoot), trueRotations(still));
    QVERIFY2(near(errors.rms, 0.2449, 0.004), qPrintable(QString::number(errors.rms)));
    QVERIFY(errors.largest < 0.3 * std::sqrt(2.0) + 0.02);
    TestShoot again = shoot;
    again.seed = 2;
    QVERIFY(trueRotations(shoot)[5] == trueRotations(shoot)[5]);
    QVERIFY(trueRotations(shoot)[5] != trueRotations(again)[5]);
}

void TestTestShoots::crookedCamerasAddToTheHead()
{
    TestShoot shoot = onePhoto(TestScene::Terrace);
    shoot.planned = { { 40.0, 30.0 } };
    shoot.faults.mountPitch = 0.8;
    QVERIFY(degreesBetween(trueRotations(shoot)[0], rotationOf({ 40.0, 30.8, 0.0 })) < 1e-6);
    shoot.faults.mountRoll = 0.5;
    QVERIFY(degreesBetween(trueRotations(shoot)[0], rotationOf({ 40.0, 30.8, 0.5 })) < 1e-6);
}

void TestTestShoots::slippedAxesStayOff()
{
    TestShoot shoot = tiny();
    shoot.faults.slipsFrom = 4;
    const Rotations truth = trueRotations(shoot);
    shoot.faults.slipsFrom = -1;
    const Rotations without = trueRotations(shoot);
    for (int i = 0; i < 6; ++i) {
        QVERIFY(near(degreesBetween(truth.at(i), without.at(i)), i < 4 ? 0.0 : 6.0, 1e-4));
    }
}

void TestTestShoots::bumpedPhotosAloneAreOff()
{
    TestShoot shoot = tiny();
    const Rotations without = trueRotations(shoot);
    shoot.faults.bumped = 1;
    const Rotations truth = trueRotations(shoot);
    for (int i = 0; i < 6; ++i) {
        const double off = degreesBetween(truth.at(i), without.at(i));
        // Of its axis; yaw at a pitch of 20 degrees turns the picture as well.
        QVERIFY(i == 1 ? off > 2.9 && off < 3.3 : off < 1e-6);
    }
}

void TestTestShoots::turnedCamerasStoreTurnedPixels()
{
    TestShoot shoot = onePhoto(TestScene::Terrace);
    shoot.planned = { { 10.0, 20.0 } };
    shoot.mounting = Mounting::PortraitTurned;
    QVERIFY(degreesBetween(trueRotations(shoot)[0], rotationOf({ 10.0, 20.0, 90.0 })) < 1e-6);
    const QTemporaryDir folder;
    const Result<Panorama> panorama = photographed(shoot, folder.path());
    QVERIFY(panorama.ok());
    QCOMPARE(panorama.value().positions[0].photos[0].storedSize, QSize(300, 200));
    QVERIFY(degreesBetween(rotationsOf(panorama.value())[0], trueRotations(shoot)[0]) < 1e-4);
}

void TestTestShoots::recordsAreRounded_data()
{
    QTest::addColumn<int>("noted");
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("recorded");
    const int papywizard = static_cast<int>(Noted::Papywizard);
    const int clauss = static_cast<int>(Noted::Clauss);
    QTest::newRow("0.1 degrees") << papywizard << 51.428571 << 51.4;
    QTest::newRow("0.1 degrees, away from zero") << papywizard << -51.46 << -51.5;
    QTest::newRow("cut off") << clauss << 51.9 << 51.0;
    QTest::newRow("cut off toward zero") << clauss << -51.9 << -51.0;
}

void TestTestShoots::recordsAreRounded()
{
    QFETCH(int, noted);
    QFETCH(double, yaw);
    QFETCH(double, recorded);
    TestShoot shoot = onePhoto(TestScene::Terrace);
    shoot.noted = static_cast<Noted>(noted);
    shoot.planned = { { yaw, 0.0 } };
    QVERIFY(near(recordedAngles(shoot)[0].yawDegrees, recorded, 1e-9));
}

void TestTestShoots::photosSeeWhereTheyTrulyPoint()
{
    // The light of the photo's middle is that of the scene in the direction of the axis.
    TestShoot shoot = onePhoto(TestScene::Terrace);
    shoot.camera.size = QSize(301, 201);
    shoot.planned = { { 140.0, -30.0, 20.0 } };
    shoot.faults.play = 0.3;
    const Eigen::Vector3d axis = trueRotations(shoot)[0].col(2);
    const Rgb expected = lightOf(TestScene::Terrace)(Vec3{ axis.x(), axis.z(), axis.y() });
    const LightField light = lightAt(shoot, 0);
    const Rgb seen = light.pixels[100 * 301 + 150];
    QVERIFY(near(seen.red, expected.red, 1e-5));
    QVERIFY(near(seen.green, expected.green, 1e-5));
    QVERIFY(near(seen.blue, expected.blue, 1e-5));
}

void TestTestShoots::truthsTurnWithWhatWasFound()
{
    // What truly looked to yaw 90 is believed to have looked to yaw 0, and 10 degrees higher.
    const TestShoot shoot = tiny();
    const Rotations found = turned(
        trueRotations(shoot), rotationOf({ 0.0, 10.0, 0.0 }) * rotationOf({ -90.0, 0.0, 0.0 }));
    const Eigen::Matrix3d common = judged(shoot, found).common;
    const auto believed = [&](int yaw, int pitch) {
        const QRect spot(18000 + 100 * yaw, 9000 - 100 * pitch, 1, 1); // 0.01 degrees
        return truthOf(shoot, { QSize(36000, 18000), 360.0, 0.0, spot }, common).pixels[0].red;
    };
    // The spot's own middle is half of its size further.
    const auto truly = [&](double yaw, double pitch) {
        return lightOf(shoot.scene)(directionTo(yaw + 0.005, pitch - 0.005)).red;
    };
    QVERIFY(near(believed(0, 10), truly(90.0, 0.0), 0.01));
    QVERIFY(near(believed(0, 30), truly(90.0, 20.0), 0.01));
    QVERIFY(near(believed(0, -40), truly(90.0, -50.0), 0.01));
    QVERIFY(near(believed(90, 0), truly(180.0, 0.0), 0.01));
}

void TestTestShoots::skiesAndIslandsAreJudgedApart()
{
    const Eigen::Matrix3d common = rotationOf({ 50.0, -7.0, 3.0 });
    TestShoot sky = *named(QStringLiteral("sky"));
    Rotations found = turned(trueRotations(sky), common);
    for (size_t i = 16; i < 25; ++i) { // 8 + 8 with texture, 8 + 1 without
        found[i] = found[i] * rotationOf({ 0.0, 0.2, 0.0 });
    }
    const Verdict ofSky = judged(sky, found);
    QVERIFY(ofSky.tied.largest < 1e-6);
    QVERIFY(near(ofSky.apart, 0.2, 1e-6));

    const TestShoot two = islands(5, 4, 1);
    Rotations apart = turned(trueRotations(two), common);
    for (size_t i = 5; i < 9; ++i) {
        apart[i] = rotationOf({ 0.0, 0.0, 0.7 }) * apart[i];
    }
    const Verdict ofIslands = judged(two, apart);
    QVERIFY(ofIslands.tied.largest < 1e-6);
    QVERIFY(near(ofIslands.apart, 0.7, 1e-6));
}

void TestTestShoots::nearWallsShiftWithTheEye()
{
    // From (0.03, 0.04, 0) a ray to the north meets the wall at y = 2.5 in (0.03, 2.5, 0), which
    // lies atan(0.03 / 2.5) = 0.68751 degrees to the right of the north of the head.
    const RayLight still = lightOf(TestScene::Room);
    const RayLight moved = lightOf(TestScene::Room, { 0.03, 0.04, 0.0 });
    const auto same = [](const Rgb &a, const Rgb &b) {
        return near(a.red, b.red, 1e-5) && near(a.green, b.green, 1e-5)
            && near(a.blue, b.blue, 1e-5);
    };
    QVERIFY(same(moved(directionTo(0.0, 0.0)), still(directionTo(0.68751, 0.0))));
    // To the west the wall is 3 m away, of which 3.03 m are left: 0.04 / 3 to the right (north).
    QVERIFY(same(moved(directionTo(-90.0, 0.0)), still(directionTo(-90.0 + 0.76390, 0.0))));
    // Straight up: 1.3 m to the ceiling; (0.03, 0.04) is 0.05 m off: atan(0.05 / 1.3) from the
    // zenith, toward atan2(0.03, 0.04) = 36.86990 degrees.
    QVERIFY(same(moved(directionTo(0.0, 90.0)), still(directionTo(36.86990, 90.0 - 2.20260))));
    // The lens is ahead of the axes in the direction of the photo: what is straight ahead stays.
    TestShoot shoot = onePhoto(TestScene::Room);
    shoot.camera.size = QSize(301, 201);
    shoot.nodalOffsetMetres = 0.04;
    QVERIFY(same(lightAt(shoot, 0).pixels[100 * 301 + 150], still(directionTo(0.0, 0.0))));
    // 45 degrees to the right the ray (0, 0.04) + t * (1, 1) meets x = 2.5 at y = 2.54, beyond the
    // wall at y = 2.5: it is met at x = 2.46, atan(2.46 / 2.5) = 44.53800 degrees.
    QVERIFY(same(lightOf(TestScene::Room, { 0.0, 0.04, 0.0 })(directionTo(45.0, 0.0)),
                 still(directionTo(44.53800, 0.0))));
}

void TestTestShoots::scenesAreWhatTheirNamesSay()
{
    const RayLight terrace = lightOf(TestScene::Terrace);
    const auto same = [](const Rgb &a, const Rgb &b) {
        return a.red == b.red && a.green == b.green && a.blue == b.blue;
    };
    const RayLight sky = lightOf(TestScene::OpenSky);
    QVERIFY(same(sky(directionTo(17.0, 23.0)), sky(directionTo(-100.0, 88.0))));
    QVERIFY(same(sky(directionTo(17.0, 10.0)), terrace(directionTo(17.0, 10.0))));
    const RayLight belt = lightOf(TestScene::PlainBelt);
    QVERIFY(same(belt(directionTo(17.0, 5.9)), belt(directionTo(140.0, -5.9))));
    QVERIFY(same(belt(directionTo(17.0, -9.1)), terrace(directionTo(17.0, -9.1))));
    // Glass alike in every window, plaster not.
    const RayLight facade = lightOf(TestScene::Facade);
    const auto alike = [](const Rgb &a, const Rgb &b) { return near(a.red, b.red, 1e-5); };
    QVERIFY(alike(facade(directionTo(0.5, 1.0)), facade(directionTo(40.5, 1.0))));
    QVERIFY(!alike(facade(directionTo(2.0, 1.0)), facade(directionTo(42.0, 1.0))));
    // Grain of the finer terrace dims or brightens all colours alike.
    const Rgb fine = lightOf(TestScene::FineTerrace)(directionTo(10.0, -20.0));
    const Rgb coarse = terrace(directionTo(10.0, -20.0));
    QVERIFY(fine.red != coarse.red && near(fine.red / coarse.red, fine.blue / coarse.blue, 1e-4));
    // Four differences of the haze make one of the terrace.
    const RayLight haze = lightOf(TestScene::Haze);
    const Vec3 one = directionTo(0.0, -30.0);
    const Vec3 other = directionTo(5.0, -60.0);
    QVERIFY(
        near(4.0 * (haze(one).red - haze(other).red), terrace(one).red - terrace(other).red, 1e-5));
}

void TestTestShoots::noiseSpreadsAsToldAndIsTheSameEachTime()
{
    TestShoot shoot = onePhoto(TestScene::OpenSky);
    shoot.planned = { { 0.0, 89.0 } };
    shoot.noiseLevels = 4.0;
    const QTemporaryDir one;
    const QTemporaryDir other;
    const Result<Panorama> panorama = photographed(shoot, one.path());
    QVERIFY(panorama.ok() && photographed(shoot, other.path()).ok());
    const QString name = QFileInfo(panorama.value().positions[0].photos[0].path).fileName();
    const QImage photo(QDir(one.path()).filePath(name));
    QCOMPARE(photo, QImage(QDir(other.path()).filePath(name)));
    const double mean = meanLevel(photo, photo.rect());
    double squares = 0.0;
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x) {
            squares += std::pow(qGreen(photo.pixel(x, y)) - mean, 2);
        }
    }
    const double spread = std::sqrt(squares / (photo.width() * photo.height()));
    // The JPEG keeps the noise of the light and some of that of the colours; green holds most.
    QVERIFY2(spread > 2.5 && spread < 4.5, qPrintable(QString::number(spread)));
}

void TestTestShoots::automaticExposuresAreToldOrNot_data()
{
    QTest::addColumn<bool>("told");
    QTest::newRow("told") << true;
    QTest::newRow("not told") << false;
}

void TestTestShoots::automaticExposuresAreToldOrNot()
{
    QFETCH(bool, told);
    TestShoot shoot = tiny();
    shoot.camera.size = QSize(150, 100);
    shoot.noiseLevels = 0.0;
    shoot.exposures.automatic = 1.0;
    shoot.exposures.isTold = told;
    const QTemporaryDir folder;
    const Result<Panorama> panorama = photographed(shoot, folder.path());
    QVERIFY(panorama.ok());
    TestShoot even = shoot;
    even.exposures.automatic = 0.0;
    double least = 100.0;
    double most = -100.0;
    for (int i = 0; i < 6; ++i) {
        const PhotoInfo &photo = panorama.value().positions[i].photos[0];
        QVERIFY(photo.exposureValue.has_value());
        least = std::min(least, *photo.exposureValue);
        most = std::max(most, *photo.exposureValue);
        // A photo whose value says "more light" is brighter than that of the reference exposure.
        const double level = meanLevel(QImage(photo.path), QRect(0, 0, 150, 100));
        const double reference = meanLevel(developed(lightAt(even, i)), QRect(0, 0, 150, 100));
        const double stops = std::log2(250.0) + 6.0 - *photo.exposureValue; // f/8, 1/250 s, ISO 100
        if (std::fabs(stops) > 0.05) {
            QVERIFY((level > reference) == (stops > 0.0));
        }
        QVERIFY(std::fabs(level - reference) > 0.1);
    }
    QVERIFY(told ? most - least > 0.3 && most - least < 2.0 : most == least);
}

void TestTestShoots::panoramasAreWhatAnImportGives()
{
    TestShoot shoot = tiny();
    shoot.camera.size = QSize(150, 100);
    shoot.exposures.bracket = { 0.0, -2.0, 2.0 };
    const QTemporaryDir folder;
    const Result<Panorama> joined = photographed(shoot, folder.path());
    QVERIFY(joined.ok());
    const Panorama &panorama = joined.value();
    QCOMPARE(panorama.source.name,
             PanoHead::headFactsOf(QStringLiteral("papywizard"))->about->nameText());
    QCOMPARE(panorama.positions.size(), 6);
    QCOMPARE(panorama.positions[3].photos.size(), 3);
    QCOMPARE(panorama.focal35mm, 24.0);
    QVERIFY(near(panorama.positions[3].yawDegrees, -30.0, 1e-5));
    QVERIFY(near(panorama.positions[3].pitchDegrees, -15.0, 1e-5));
    QVERIFY(panorama.description.autoDetection);
    // Half of the diagonal is atan(21.6333 / 24) = 42.03 degrees: 64.7 degrees and less are near.
    // 13 of 15 pairs: across the rows from -30 to 30 it is acos(sin 20 sin -15 + cos 20 cos 15
    // cos 60) = 68.6 degrees, within the rows at most 57.8.
    QCOMPARE(panorama.description.authorizedLinks.size(), 13);
    // Nobody's photo is far from where the record says.
    const AttitudeErrors errors = attitudeErrors(trueRotations(shoot), rotationsOf(panorama));
    QVERIFY(errors.rms > 0.1 && errors.largest < 0.5);
}

void TestTestShoots::gridsAreLaidOutFromWhatTheUserSays()
{
    TestShoot shoot = grid(10.0);
    shoot.camera.size = QSize(60, 40);
    const QTemporaryDir folder;
    const Result<Panorama> joined = photographed(shoot, folder.path());
    QVERIFY(joined.ok());
    const Panorama &panorama = joined.value();
    QCOMPARE(panorama.positions.size(), 36);
    QVERIFY(!panorama.description.positionsKnown);
    // 3 * 9 below, 4 * 8 beside, 2 * 3 * 8 across
    QCOMPARE(panorama.description.authorizedLinks.size(), 107);
    // At 50 mm 36 mm are 39.5978 degrees wide: 60 % of them are stated, 70 % are true.
    const double stated = panorama.positions[4].yawDegrees - panorama.positions[0].yawDegrees;
    QVERIFY(near(stated, 0.6 * 39.5978, 1e-3));
    QVERIFY(near(shoot.planned[4].yawDegrees - shoot.planned[0].yawDegrees, 0.7 * 39.5978, 1e-3));
    // Said to sweep rows, the fifth photo is the fifth of the upper row.
    shoot.grid.order = PanoHead::kRowsDownward;
    const Result<Panorama> otherwise = photographed(shoot, folder.path());
    QVERIFY(otherwise.ok());
    QVERIFY(near(otherwise.value().positions[4].yawDegrees, 0.0, 1e-6));
    QCOMPARE(otherwise.value().positions[4].pitchDegrees, panorama.positions[0].pitchDegrees);
    double pitch = 0.0;
    for (const Pose &pose : shoot.planned) {
        pitch += pose.pitchDegrees / 36.0;
    }
    QVERIFY(near(pitch, 6.0, 1e-9));
}

void TestTestShoots::photosOfTheSameShootAreNotTakenAgain()
{
    TestShoot shoot = onePhoto(TestScene::Terrace);
    const QTemporaryDir folder;
    const Result<Panorama> first = photographed(shoot, folder.path());
    QVERIFY(first.ok());
    const QString path = first.value().positions[0].photos[0].path;
    QVERIFY(QImage(QSize(300, 200), QImage::Format_RGB32).save(path, "JPG"));
    const QImage mark(path);
    QVERIFY(photographed(shoot, folder.path()).ok());
    QCOMPARE(QImage(path), mark);
    shoot.camera.errors.b = -0.01;
    QVERIFY(photographed(shoot, folder.path()).ok());
    QVERIFY(QImage(path) != mark);
}

void TestTestShoots::shootsOfTheListHaveNamesOfTheirOwn()
{
    QStringList names;
    for (const TestShoot &shoot : all()) {
        names.append(shoot.name);
        int grouped = 0;
        for (const Chosen &group : shoot.groups) {
            grouped += static_cast<int>(group.size());
        }
        QCOMPARE(grouped, shoot.planned.size());
        QVERIFY(named(shoot.name).has_value());
    }
    QCOMPARE(names.removeDuplicates(), 0);
    QVERIFY(!named(QStringLiteral("no such shoot")));
}

TEST_CLASS(TestTestShoots, QCoreApplication)
#include "tst_testshoots.moc"
