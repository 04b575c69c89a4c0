// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>

using namespace PanoHost;
using TestPanoramas::photoNamed;
using TestPanoramas::positionAt;
using TestPanoramas::row;

namespace
{

/** Out of line, else GCC 12 takes the assignment for one to the empty vector's shared block. */
Q_NEVER_INLINE void setExposure(PhotoInfo &photo, std::optional<double> exposure)
{
    photo.exposureValue = exposure;
}

QByteArrayList linesOf(const Panorama &panorama, char first, PtoOptions options = {})
{
    options.projectFolder = QStringLiteral("/photos");
    const auto project = makePtoProject(panorama, options);
    QByteArrayList found;
    if (project.ok()) {
        const QByteArrayList all = project.value().text.split('\n');
        for (const QByteArray &line : all) {
            if (line.startsWith(first)) {
                found.append(line);
            }
        }
    }
    return found;
}

/** The value of the variable \p name ("y", "j", "Eev") in an i-line or p-line, as it is written. */
QByteArray value(const QByteArray &line, const QByteArray &name)
{
    const QByteArrayList words = line.split(' ');
    for (const QByteArray &word : words) {
        const QByteArray rest = word.mid(name.size());
        const bool ends = rest.isEmpty() || !QChar::isLetter(uint(rest[0]));
        if (word.startsWith(name) && ends) {
            return rest;
        }
    }
    return "(none)";
}

QByteArrayList values(const QByteArrayList &lines, const QByteArray &name)
{
    QByteArrayList all;
    for (const QByteArray &line : lines) {
        all.append(value(line, name));
    }
    return all;
}

} // namespace

class PtoProjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void singlePhotoIsWrittenWordForWord();
    void anglesAreWrittenAsTheyAre();
    void yawIsWrapped_data();
    void yawIsWrapped();
    void orientationGoesIntoTheRoll_data();
    void orientationGoesIntoTheRoll();
    void fisheyeIsAnEquidistantLens();
    void hardLinkedStackFollowsItsFirstPhoto();
    void stackWithoutItsFirstPhotoFollowsTheNext();
    void detectedStackHasItsOwnAngles();
    void linkedVariablesAreNotOptimised();
    void detectedStacksAreOptimisedPhotoByPhoto();
    void skippedOptimisationNamesNoVariables();
    void photosOfAnotherSizeHaveTheirOwnLens();
    void missingExposureIsTheMedian();
    void noExposureAtAllIsNeverZero();
    void exposureThatIsZeroStaysZero();
    void panoramaExposureIsThatOfTheReferenceLevel();
    void fullTurnWithPolesIsNotCropped();
    void singleRowOfAFullTurnIsCroppedAboveAndBelow();
    void partialPanoramaIsCentredAndCropped();
    void pitchIsNeverShifted();
    void widthCanBeChosen();
    void outputFollowsStacksAndMode_data();
    void outputFollowsStacksAndMode();
};

void PtoProjectTest::singlePhotoIsWrittenWordForWord()
{
    // 75 degrees: the field of 73.74 rounded up, and one. 800 px per radian: 1047.2 wide, 1048
    // even; 2515 = 180 * 1048 / 75. Half the field down is atan(1/2) = 26.565 degrees: 371.2 px
    // from the middle at 1257.5.
    Panorama panorama = row(1);
    PtoOptions options;
    options.projectFolder = QStringLiteral("/photos");
    const auto project = makePtoProject(panorama, options);
    QVERIFY(project.ok());
    const QByteArray expected
        = "# hugin project file\n"
          "#hugin_ptoversion 2\n"
          "#panohost centre y0\n"
          "p f2 w1048 h2515 v75 k0 E12.643856 R0 S0,1048,886,1629 n\"TIFF_m c:LZW r:CROP\"\n"
          "m i0\n"
          "i w1200 h800 f0 v73.7397952917 Ra0 Rb0 Rc0 Rd0 Re0 a0 b0 c0 d0 e0 g0 t0 Va1 Vb0 Vc0 "
          "Vd0 Vx0 Vy0 Eev12.643856 Er1 Eb1 r0.000000 p0.000000 y0.000000 TrX0 TrY0 TrZ0 Tpy0 "
          "Tpp0 j0  Vm5 n\"1.jpg\"\n"
          "v v0\n"
          "v\n";
    QCOMPARE(project.value().text, expected);
    QCOMPARE(project.value().canvas, QSize(1048, 2515));
    QCOMPARE(project.value().crop, QRect(0, 886, 1048, 743));
    QCOMPARE(project.value().yawCentreDegrees, 0.0);
    QVERIFY(project.value().warnings.isEmpty());
}

void PtoProjectTest::anglesAreWrittenAsTheyAre()
{
    Panorama panorama = row(6);
    panorama.positions[1].yawDegrees = 36.0;
    panorama.positions[1].pitchDegrees = 45.25;
    panorama.positions[1].rollDegrees = -2.5;
    const QByteArray line = linesOf(panorama, 'i')[1];
    QCOMPARE(value(line, "y"), QByteArray("36.000000"));
    QCOMPARE(value(line, "p"), QByteArray("45.250000"));
    QCOMPARE(value(line, "r"), QByteArray("-2.500000"));
    QCOMPARE(value(line, "v"), QByteArray("=0"));
}

void PtoProjectTest::yawIsWrapped_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("zero") << 0.0 << QByteArray("0.000000");
    QTest::newRow("minus zero") << -0.0 << QByteArray("0.000000");
    QTest::newRow("just less than half a turn") << 179.9 << QByteArray("179.900000");
    QTest::newRow("half a turn") << 180.0 << QByteArray("-180.000000");
    QTest::newRow("minus half a turn") << -180.0 << QByteArray("-180.000000");
    QTest::newRow("rounds to half a turn") << 179.99999999 << QByteArray("-180.000000");
    QTest::newRow("more than half a turn") << 324.0 << QByteArray("-36.000000");
    QTest::newRow("a turn") << 360.0 << QByteArray("0.000000");
    QTest::newRow("a little less than nothing") << -1e-9 << QByteArray("0.000000");
    QTest::newRow("many turns") << 3610.0 << QByteArray("10.000000");
    QTest::newRow("many turns back") << -3610.0 << QByteArray("-10.000000");
}

void PtoProjectTest::yawIsWrapped()
{
    QFETCH(double, yaw);
    QFETCH(QByteArray, written);
    Panorama panorama = row(6);
    panorama.positions.append(positionAt(yaw, 0.0, { photoNamed(QStringLiteral("x.jpg")) }));
    QCOMPARE(value(linesOf(panorama, 'i').last(), "y"), written);
}

void PtoProjectTest::orientationGoesIntoTheRoll_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<double>("roll");
    QTest::addColumn<bool>("ignore");
    QTest::addColumn<double>("extra");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("upright") << 1 << 0.0 << false << 0.0 << QByteArray("0.000000");
    QTest::newRow("turned clockwise") << 6 << 0.0 << false << 0.0 << QByteArray("90.000000");
    QTest::newRow("turned back") << 8 << 0.0 << false << 0.0 << QByteArray("-90.000000");
    QTest::newRow("upside down") << 3 << 0.0 << false << 0.0 << QByteArray("-180.000000");
    QTest::newRow("recorded roll is added") << 6 << 5.0 << false << 0.0 << QByteArray("95.000000");
    QTest::newRow("ignored") << 6 << 5.0 << true << 0.0 << QByteArray("5.000000");
    QTest::newRow("extra roll") << 6 << 5.0 << true << 90.0 << QByteArray("95.000000");
}

void PtoProjectTest::orientationGoesIntoTheRoll()
{
    QFETCH(int, orientation);
    QFETCH(double, roll);
    QFETCH(bool, ignore);
    QFETCH(double, extra);
    QFETCH(QByteArray, written);
    Panorama panorama = row(6);
    panorama.positions[2].rollDegrees = roll;
    panorama.positions[2].photos[0].orientation = orientation;
    PtoOptions options;
    options.ignoreExifRotation = ignore;
    options.extraRollDegrees = extra;
    const QByteArray line = linesOf(panorama, 'i', options)[2];
    QCOMPARE(value(line, "r"), written);
    // The photo stays as it is stored: lying, with the field of the lying frame.
    QVERIFY(line.startsWith("i w1200 h800 f0 v=0 "));
}

void PtoProjectTest::fisheyeIsAnEquidistantLens()
{
    Panorama panorama = row(6);
    panorama.focal35mm = 12.0;
    panorama.lens = LensModel::Fisheye;
    const QByteArrayList lines = linesOf(panorama, 'i');
    QVERIFY(lines[0].startsWith("i w1200 h800 f3 v171.8873385392 Ra0 "));
    QVERIFY(lines[1].startsWith("i w1200 h800 f3 v=0 "));
    // 400 px per radian: 2 pi * 400 = 2513.3
    QCOMPARE(value(linesOf(panorama, 'p')[0], "w"), QByteArray("2514"));
}

void PtoProjectTest::hardLinkedStackFollowsItsFirstPhoto()
{
    Panorama panorama = row(6, 3);
    setExposure(panorama.positions[1].photos[1], 14.643856);
    const QByteArrayList lines = linesOf(panorama, 'i');
    QCOMPARE(lines.size(), 18);
    QVERIFY(lines[3].contains(" r0.000000 p0.000000 y60.000000 TrX0 TrY0 TrZ0 Tpy0 Tpp0 j0  Vm5 "));
    QCOMPARE(lines[4],
             QByteArray("i w1200 h800 f0 v=0 Ra=0 Rb=0 Rc=0 Rd=0 Re=0 a=0 b=0 c=0 d=0 e=0 g=0 t=0 "
                        "Va=0 Vb=0 Vc=0 Vd=0 Vx=0 Vy=0 Eev14.643856 Er1 Eb1 r=3 p=3 y=3 TrX=3 "
                        "TrY=3 TrZ=3 Tpy=3 Tpp=3 j=3  Vm5 n\"5.jpg\""));
    QCOMPARE(values(lines, "j"),
             (QByteArrayList{ "0", "=0", "=0", "0", "=3", "=3", "0", "=6", "=6", "0", "=9", "=9",
                              "0", "=12", "=12", "0", "=15", "=15" }));
}

void PtoProjectTest::stackWithoutItsFirstPhotoFollowsTheNext()
{
    Panorama panorama = row(6, 3);
    panorama.positions[1].photos.removeFirst(); // 5 and 6 are left
    panorama.positions[3].photos.resize(1);
    const QByteArrayList lines = linesOf(panorama, 'i');
    QCOMPARE(values(lines, "j"),
             (QByteArrayList{ "0", "=0", "=0", "0", "=3", "0", "=5", "=5", "0", "0", "=9", "=9",
                              "0", "=12", "=12" }));
    QCOMPARE(
        values(lines, "y"),
        (QByteArrayList{ "0.000000", "=0", "=0", "60.000000", "=3", "120.000000", "=5", "=5",
                         "-180.000000", "-120.000000", "=9", "=9", "-60.000000", "=12", "=12" }));
    QCOMPARE(value(lines[3], "n"), QByteArray("\"5.jpg\""));
    QCOMPARE(linesOf(panorama, 'v').size(), 1 + 5 * 3 + 1);
}

void PtoProjectTest::detectedStackHasItsOwnAngles()
{
    Panorama panorama = row(6, 3);
    panorama.description.stackLinking = 1;
    const QByteArrayList lines = linesOf(panorama, 'i');
    QVERIFY(
        lines[4].contains(" r0.000000 p0.000000 y60.000000 TrX0 TrY0 TrZ0 Tpy0 Tpp0 j=3  Vm5 "));
    QVERIFY(lines[4].contains(" v=0 "));
}

void PtoProjectTest::linkedVariablesAreNotOptimised()
{
    QCOMPARE(linesOf(row(3), 'v'),
             (QByteArrayList{ "v v0", "v y1", "v p1", "v r1", "v y2", "v p2", "v r2", "v" }));
    // Stacks of two: the photos 1, 3 and 5 follow 0, 2 and 4.
    QCOMPARE(linesOf(row(3, 2), 'v'),
             (QByteArrayList{ "v v0", "v y2", "v p2", "v r2", "v y4", "v p4", "v r4", "v" }));
}

void PtoProjectTest::detectedStacksAreOptimisedPhotoByPhoto()
{
    Panorama panorama = row(2, 2);
    panorama.description.stackLinking = 1;
    QCOMPARE(linesOf(panorama, 'v'),
             (QByteArrayList{ "v v0", "v y1", "v p1", "v r1", "v y2", "v p2", "v r2", "v y3",
                              "v p3", "v r3", "v" }));
}

void PtoProjectTest::skippedOptimisationNamesNoVariables()
{
    Panorama panorama = row(3);
    panorama.description.skipOptimization = true;
    QCOMPARE(linesOf(panorama, 'v'), (QByteArrayList{ "v" }));
}

void PtoProjectTest::photosOfAnotherSizeHaveTheirOwnLens()
{
    Panorama panorama = row(6);
    panorama.positions[2].photos[0].storedSize = QSize(800, 1200);
    panorama.positions[4].photos[0].storedSize = QSize(800, 1200);
    const QByteArrayList lines = linesOf(panorama, 'i');
    QCOMPARE(values(lines, "v"),
             (QByteArrayList{ "73.7397952917", "=0", "53.1301023542", "=0", "=2", "=0" }));
    QCOMPARE(values(lines, "Va"), (QByteArrayList{ "1", "=0", "1", "=0", "=2", "=0" }));
    const QByteArrayList variables = linesOf(panorama, 'v');
    QVERIFY(variables.contains("v v0"));
    QVERIFY(variables.contains("v v2"));
    QVERIFY(!variables.contains("v v4"));
    QCOMPARE(makePtoProject(panorama).value().warnings,
             QStringList{ QStringLiteral("the photos have 2 different sizes in pixels") });
}

void PtoProjectTest::missingExposureIsTheMedian()
{
    Panorama panorama = row(6);
    const QVector<std::optional<double>> exposures{ 10.0, {}, 14.0, 11.0, qQNaN(), 13.0 };
    for (int i = 0; i < 6; ++i) {
        setExposure(panorama.positions[i].photos[0], exposures[i]);
    }
    // known: 10 11 13 14; the median's lower neighbour is a value that a photo has
    QCOMPARE(values(linesOf(panorama, 'i'), "Eev"),
             (QByteArrayList{ "10.000000", "11.000000", "14.000000", "11.000000", "11.000000",
                              "13.000000" }));
    QCOMPARE(makePtoProject(panorama).value().warnings,
             QStringList{ QStringLiteral("2 of 6 photos name no exposure; 11 is assumed") });
}

void PtoProjectTest::noExposureAtAllIsNeverZero()
{
    Panorama panorama = row(3);
    for (Position &position : panorama.positions) {
        position.photos[0].exposureValue.reset();
    }
    const QByteArrayList written = values(linesOf(panorama, 'i'), "Eev");
    QCOMPARE(written, (QByteArrayList{ written[0], written[0], written[0] }));
    QVERIFY(written[0].toDouble() > 1.0);
    QCOMPARE(value(linesOf(panorama, 'p')[0], "E"), written[0]);
}

void PtoProjectTest::exposureThatIsZeroStaysZero()
{
    Panorama panorama = row(3);
    setExposure(panorama.positions[1].photos[0], 0.0); // a second at f/1
    QCOMPARE(value(linesOf(panorama, 'i')[1], "Eev"), QByteArray("0.000000"));
}

void PtoProjectTest::panoramaExposureIsThatOfTheReferenceLevel()
{
    Panorama panorama = row(5, 3);
    for (int i = 0; i < 5; ++i) {
        setExposure(panorama.positions[i].photos[0], 10.0 + i); // median 12
        setExposure(panorama.positions[i].photos[1], 20.0);
        setExposure(panorama.positions[i].photos[2], 21.0);
    }
    QCOMPARE(value(linesOf(panorama, 'p')[0], "E"), QByteArray("12.000000"));
}

void PtoProjectTest::fullTurnWithPolesIsNotCropped()
{
    Panorama panorama = row(6);
    panorama.positions.append(positionAt(0, 90, { photoNamed(QStringLiteral("up.jpg")) }));
    panorama.positions.append(positionAt(0, -90, { photoNamed(QStringLiteral("down.jpg")) }));
    // 2 pi * 800 px = 5026.5
    QCOMPARE(linesOf(panorama, 'p')[0],
             QByteArray("p f2 w5026 h2513 v360 k0 E12.643856 R0 n\"TIFF_m c:LZW r:CROP\""));
    const auto project = makePtoProject(panorama);
    QVERIFY(project.value().crop.isNull());
    QCOMPARE(project.value().yawCentreDegrees, 0.0);
}

void PtoProjectTest::singleRowOfAFullTurnIsCroppedAboveAndBelow()
{
    // 26.565 degrees up and down at 5026 / 360 px per degree: 370.9 px from the middle, 1256.5.
    QCOMPARE(value(linesOf(row(6), 'p')[0], "S"), QByteArray("0,5026,885,1628"));
}

void PtoProjectTest::partialPanoramaIsCentredAndCropped()
{
    Panorama panorama = row(1);
    panorama.positions[0].yawDegrees = 350.0;
    panorama.positions.append(positionAt(10.0, 0.0, { photoNamed(QStringLiteral("2.jpg")) }));
    panorama.positions.append(positionAt(32.0, 0.0, { photoNamed(QStringLiteral("3.jpg")) }));
    // from -10 - 36.87 to 32 + 36.87: 115.74 wide about 11
    const auto project = makePtoProject(panorama);
    QVERIFY(project.ok());
    QVERIFY(std::abs(project.value().yawCentreDegrees - 11.0) < 1e-9);
    QCOMPARE(project.value().horizontalFovDegrees, 117.0);
    QCOMPARE(values(linesOf(panorama, 'i'), "y"),
             (QByteArrayList{ "-21.000000", "-1.000000", "21.000000" }));
    // w = 2 round(117 deg * 800 / 2) = 2 round(816.8), h = round(180 * 1634 / 117)
    const QByteArray line = linesOf(panorama, 'p')[0];
    QCOMPARE(value(line, "v"), QByteArray("117"));
    QCOMPARE(value(line, "w"), QByteArray("1634"));
    QCOMPARE(value(line, "h"), QByteArray("2514"));
}

void PtoProjectTest::pitchIsNeverShifted()
{
    Panorama panorama = row(2);
    for (int i = 0; i < 2; ++i) {
        panorama.positions[i] = positionAt(20.0 * i, 30.0 + i, panorama.positions[i].photos);
    }
    QCOMPARE(values(linesOf(panorama, 'i'), "p"), (QByteArrayList{ "30.000000", "31.000000" }));
}

void PtoProjectTest::widthCanBeChosen()
{
    PtoOptions options;
    options.width = 4096;
    Panorama panorama = row(6);
    panorama.positions.append(positionAt(0, 90, { photoNamed(QStringLiteral("up.jpg")) }));
    panorama.positions.append(positionAt(0, -90, { photoNamed(QStringLiteral("down.jpg")) }));
    const QByteArray line = linesOf(panorama, 'p', options)[0];
    QVERIFY(line.startsWith("p f2 w4096 h2048 v360 "));
}

void PtoProjectTest::outputFollowsStacksAndMode_data()
{
    QTest::addColumn<int>("each");
    QTest::addColumn<int>("renderMode");
    QTest::addColumn<QByteArrayList>("expected");
    const QByteArrayList none;
    const QByteArrayList fused{ "#hugin_outputLDRBlended false",
                                "#hugin_outputLDRExposureBlended true" };
    const QByteArrayList hdr{ "#hugin_outputLDRBlended false", "#hugin_outputHDRBlended true" };
    QTest::newRow("single exposures") << 1 << -1 << none;
    QTest::newRow("single exposures, tonemapped") << 1 << 2 << none;
    QTest::newRow("stacks") << 3 << -1 << fused;
    QTest::newRow("stacks, tonemapped") << 3 << 2 << fused;
    QTest::newRow("stacks, radiance") << 3 << 3 << hdr;
}

void PtoProjectTest::outputFollowsStacksAndMode()
{
    QFETCH(int, each);
    QFETCH(int, renderMode);
    QFETCH(QByteArrayList, expected);
    Panorama panorama = row(3, each);
    panorama.description.renderMode = renderMode;
    QByteArrayList comments = linesOf(panorama, '#');
    QCOMPARE(comments.takeFirst(), QByteArray("# hugin project file"));
    QCOMPARE(comments.takeFirst(), QByteArray("#hugin_ptoversion 2"));
    QCOMPARE(comments.takeFirst(), QByteArray("#panohost centre y0"));
    QCOMPARE(comments, expected);
}

TEST_CLASS(PtoProjectTest, QCoreApplication)
#include "tst_ptoproject.moc"
