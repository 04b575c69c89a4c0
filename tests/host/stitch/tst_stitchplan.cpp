// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/stitchneeds.h"
#include "host/stitch/stitchplan.h"
#include "tests/support/testprogram.h"

#include <QCoreApplication>
#include <QtTest>

#include <cmath>

using namespace PanoHost;

namespace
{

/** A full turn of 3600 pixels: ten to the degree. */
const QByteArray kSphere = "p f2 w3600 h1800 v360 E12 R0 n\"TIFF_m\"\n";
/** 60 degrees around yaw 350 of the head, of which the rows from 200 to 400 are covered. */
const QByteArray kPart
    = "#panohost centre y-10\np f2 w600 h1800 v60 E12 R0 S0,600,200,400 n\"TIFF_m\"\n";

QByteArray image(const QByteArray &variables, const QByteArray &name)
{
    return "i w600 h400 f0 v50 r0 p0 Vb-0.25 Vc0 Vd0 " + variables + " n\"" + name + "\"\n";
}

/** Two brackets of three, the second one as much darker as the sun went behind a cloud. */
const QByteArray kBrackets = image("y0 j0 Eev12", "a1.jpg") + image("y=0 j=0 Eev14", "a2.jpg")
    + image("y=0 j=0 Eev10", "a3.jpg") + image("y40 j3 Eev11.5", "b1.jpg")
    + image("y=3 j=3 Eev13.5", "b2.jpg") + image("y=3 j=3 Eev9.5", "b3.jpg");

PtoFile projectOf(QByteArray text)
{
    text.replace("y=0 j", "y=0 p=0 r=0 j").replace("y=3 j", "y=3 p=3 r=3 j");
    // A variable counts where it stands first.
    text.replace("r0 p0 Vb-0.25 Vc0 Vd0 y=", "Vb-0.25 Vc0 Vd0 y=");
    return PtoFile::parse(text, QStringLiteral("/photos")).value();
}

StitchOptions withOutput(StitchOutput output)
{
    StitchOptions options;
    options.output = output;
    return options;
}

/** The value of \p name in the line of the image of \p project. */
double valueIn(const QByteArray &project, const QByteArray &name)
{
    const QByteArray line = project.mid(project.indexOf("\ni ") + 1);
    const int at = line.indexOf(' ' + name) + 1 + name.size();
    return line.mid(at, line.indexOf(' ', at) - at).toDouble();
}

double exposureOf(const QByteArray &project)
{
    const int at = project.indexOf(" E") + 2;
    return project.mid(at, project.indexOf(' ', at) - at).toDouble();
}

} // namespace

/** What is done to a project, without doing it. */
class TestStitchPlan : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sizesAreThoseWished_data();
    void sizesAreThoseWished();
    void wholeCanvasIsKeptWhenNothingIsCropped();
    void centreTurnsFullTurnsOnly();
    void sizesThatAreNoneAreRefused_data();
    void sizesThatAreNoneAreRefused();
    void spheresTooHighForAnyPictureAreRefused();
    void referencesAloneMakeThePlainPanorama();
    void levelsKeepTheirDistanceWhenTheyAreFused();
    void brokenBracketsJoinTheLayersOfTheirExposures();
    void lightIsWarpedAsItIs();
    void lightOfSeveralDirectionsIsJoinedOnTheCanvas();
    void photosGetPlainNames();
    void linesStandAlone();
    void masksCutOutWhatTheyCover();
    void commandsSayWhatIsMade();
    void lackOfRoomIsSaidWithFiguresAndCures_data();
    void lackOfRoomIsSaidWithFiguresAndCures();
    void needsGrowWithThePicture();
};

void TestStitchPlan::sizesAreThoseWished_data()
{
    QTest::addColumn<QByteArray>("panorama");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("value");
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QSize>("sphere");
    const auto full = int(StitchSize::Unit::Full);
    const auto percent = int(StitchSize::Unit::Percent);
    const auto width = int(StitchSize::Unit::Width);
    QTest::newRow("sphere") << kSphere << full << 0.0 << QSize(3600, 1800)
                            << QRect(0, 0, 3600, 1800) << QSize(3600, 1800);
    QTest::newRow("half") << kSphere << percent << 50.0 << QSize(1800, 900)
                          << QRect(0, 0, 1800, 900) << QSize(1800, 900);
    QTest::newRow("wide") << kSphere << width << 8192.0 << QSize(8192, 4096)
                          << QRect(0, 0, 8192, 4096) << QSize(8192, 4096);
    QTest::newRow("odd widths become even") << kSphere << width << 1001.0 << QSize(1002, 501)
                                            << QRect(0, 0, 1002, 501) << QSize(1002, 501);
    QTest::newRow("part") << kPart << full << 0.0 << QSize(600, 1800) << QRect(0, 200, 600, 200)
                          << QSize(3600, 1800);
    QTest::newRow("half a part") << kPart << percent << 50.0 << QSize(300, 900)
                                 << QRect(0, 100, 300, 100) << QSize(1800, 900);
    // 200 and 400 of 1800 rows are 66.7 and 133.3 of 600: all that is covered stays.
    QTest::newRow("a third of a part")
        << kPart << width << 200.0 << QSize(200, 600) << QRect(0, 66, 200, 68) << QSize(1200, 600);
}

void TestStitchPlan::sizesAreThoseWished()
{
    QFETCH(QByteArray, panorama);
    QFETCH(int, unit);
    QFETCH(double, value);
    StitchOptions options;
    options.size = { StitchSize::Unit(unit), value };
    const auto layout = layOut(projectOf(panorama + image("y0 j0", "a.jpg")), options);
    QVERIFY(layout);
    QTEST(layout.value().canvas, "canvas");
    QTEST(layout.value().area, "area");
    QTEST(layout.value().sphere(), "sphere");
}

void TestStitchPlan::wholeCanvasIsKeptWhenNothingIsCropped()
{
    StitchOptions options;
    options.crops = false;
    const auto layout = layOut(projectOf(kPart + image("y0 j0", "a.jpg")), options);
    QCOMPARE(layout.value().area, QRect(0, 0, 600, 1800));
}

void TestStitchPlan::centreTurnsFullTurnsOnly()
{
    StitchOptions options;
    options.centreYawDegrees = 90.0;
    const auto sphere = planStitch(projectOf(kSphere + image("y100 j0", "a.jpg")), options);
    QCOMPARE(sphere.value().layout.yawCentreDegrees, 90.0);
    QCOMPARE(valueIn(sphere.value().warps[0].projectText, "y"), 10.0);
    // A part of the sphere stays where its middle is: 20 of the head is 10 right of -10 ... 20.
    const auto part = planStitch(projectOf(kPart + image("y20 j0", "a.jpg")), options);
    QCOMPARE(part.value().layout.yawCentreDegrees, -10.0);
    QCOMPARE(valueIn(part.value().warps[0].projectText, "y"), 20.0);
}

void TestStitchPlan::sizesThatAreNoneAreRefused_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("value");
    for (const double value : { 0.0, -5.0, 1e9, std::nan(""), HUGE_VAL }) {
        QTest::addRow("width %g", value) << int(StitchSize::Unit::Width) << value;
        QTest::addRow("%g percent", value) << int(StitchSize::Unit::Percent) << value;
    }
}

void TestStitchPlan::sizesThatAreNoneAreRefused()
{
    QFETCH(int, unit);
    QFETCH(double, value);
    StitchOptions options;
    options.size = { StitchSize::Unit(unit), value };
    const auto layout = layOut(projectOf(kSphere + image("y0 j0", "a.jpg")), options);
    QVERIFY(!layout);
    QCOMPARE(layout.error().tryThis, QStringLiteral("choose another --size"));
}

void TestStitchPlan::spheresTooHighForAnyPictureAreRefused()
{
    const QByteArray sliver = "p f2 w4000 h3 v0.0001 n\"TIFF_m\"\n";
    const auto layout = layOut(projectOf(sliver + image("y0 j0", "a.jpg")), {});
    QVERIFY(!layout);
    QCOMPARE(layout.error().tryThis, QStringLiteral("choose another --size"));
}

void TestStitchPlan::referencesAloneMakeThePlainPanorama()
{
    const auto plan = planStitch(projectOf(kSphere + kBrackets), withOutput(StitchOutput::Ldr));
    QCOMPARE(plan.value().warps.size(), 2);
    QCOMPARE(plan.value().warps[1].image, 3);
    QVERIFY(!plan.value().isFused());
    QCOMPARE(plan.value().layers[0].warps, (QVector<int>{ 0, 1 }));
    QCOMPARE(plan.value().layers[0].blended, QStringLiteral("blended.tif"));
    // All become as bright as the panorama is to be.
    for (const StitchWarp &warp : plan.value().warps) {
        QCOMPARE(exposureOf(warp.projectText), 12.0);
    }
}

void TestStitchPlan::levelsKeepTheirDistanceWhenTheyAreFused()
{
    const auto plan = planStitch(projectOf(kSphere + kBrackets), withOutput(StitchOutput::Fused));
    QCOMPARE(plan.value().warps.size(), 6);
    QCOMPARE(plan.value().layers.size(), 3);
    QCOMPARE(plan.value().layers[0].warps, (QVector<int>{ 0, 3 }));
    QCOMPARE(plan.value().layers[2].warps, (QVector<int>{ 2, 5 }));
    // nona brightens a photo by the panorama's exposure value less its own: 0, 0, 0 stops for the
    // first bracket; the second one was taken half a stop darker, all of its levels.
    QVector<double> stops;
    for (const StitchWarp &warp : plan.value().warps) {
        stops += exposureOf(warp.projectText) - valueIn(warp.projectText, "Eev");
    }
    QCOMPARE(stops, (QVector<double>{ 0.0, 0.0, 0.0, 0.5, 0.5, 0.5 }));
}

void TestStitchPlan::brokenBracketsJoinTheLayersOfTheirExposures()
{
    // Of a third bracket only the darker photo (EV 14, two stops) and the brighter one are left.
    const auto plan = planStitch(projectOf(kSphere + kBrackets + image("y80 j6 Eev14", "c2.jpg")
                                           + image("y=6 p=6 r=6 j=6 Eev10", "c3.jpg")),
                                 withOutput(StitchOutput::Fused));
    QVERIFY(plan);
    QCOMPARE(plan.value().layers.size(), 3);
    QCOMPARE(plan.value().layers[0].warps, (QVector<int>{ 0, 3 }));
    QCOMPARE(plan.value().layers[1].warps, (QVector<int>{ 1, 4, 6 }));
    QCOMPARE(plan.value().layers[2].warps, (QVector<int>{ 2, 5, 7 }));
}

void TestStitchPlan::lightIsWarpedAsItIs()
{
    const auto plan = planStitch(projectOf(kSphere + kBrackets), withOutput(StitchOutput::Hdr));
    QCOMPARE(plan.value().lights.size(), 2);
    QCOMPARE(plan.value().lights[1].images, (QVector<int>{ 3, 4, 5 }));
    QCOMPARE(plan.value().warps.size(), 2);
    QCOMPARE(plan.value().depth, StitchedPicture::Depth::Radiance);
    // White of the darkest photo, EV 14, is 4 times that of EV 12, and a corner that gets 0.75 of
    // the light makes it 5.33: up to 8 it is a power of two.
    QCOMPARE(plan.value().gainOf(1), 4.0);
    QCOMPARE(plan.value().lightScale, 8.0);
    const QByteArray project = plan.value().warps[1].projectText;
    QCOMPARE(exposureOf(project), 0.0);
    QCOMPARE(valueIn(project, "Eev"), 0.0);
    QCOMPARE(valueIn(project, "Vb"), 0.0);
    QVERIFY(project.contains("n\"../light/00003.tif\""));
}

void TestStitchPlan::lightOfSeveralDirectionsIsJoinedOnTheCanvas()
{
    const QByteArray turned = image("y80 j6 Eev12", "c1.jpg") + image("y80.3 j=6 Eev14", "c2.jpg");
    const auto plan
        = planStitch(projectOf(kSphere + kBrackets + turned), withOutput(StitchOutput::Hdr));
    QVERIFY(plan);
    QCOMPARE(plan.value().lights.size(), 4);
    QCOMPARE(plan.value().lights[2].images, (QVector<int>{ 6 }));
    QCOMPARE(plan.value().lights[3].images, (QVector<int>{ 7 }));
    QCOMPARE(valueIn(plan.value().warps[3].projectText, "y"), 80.3);
    QCOMPARE(plan.value().joins.size(), 1);
    QCOMPARE(plan.value().joins[0].warps, (QVector<int>{ 2, 3 }));
    QCOMPARE(plan.value().layers.size(), 1);
    QCOMPARE(plan.value().partsOf(plan.value().layers[0]),
             (QStringList{ QStringLiteral("warped/00000.tif"), QStringLiteral("warped/00003.tif"),
                           QStringLiteral("joined/00006.tif") }));
    // Joining takes room: the part of the canvas of both, 50 x 34 degrees, three times over.
    const StitchNeeds needs = needsOf(plan.value());
    const auto common = planStitch(projectOf(kSphere + kBrackets + image("y80 j6 Eev12", "c1.jpg")),
                                   withOutput(StitchOutput::Hdr));
    QVERIFY(needs.diskBytes - needsOf(common.value()).diskBytes > 4LL * 500 * 340 * 16);
}

void TestStitchPlan::photosGetPlainNames()
{
    const auto plan
        = planStitch(projectOf(kSphere + image("y0 j0", "a b$(id).JPG")
                               + image("y40 j1", "no ending") + image("y80 j2", "c.j p\u00e9g")),
                     {});
    QVERIFY(plan);
    QCOMPARE(
        plan.value().photos,
        (QVector<QString>{ QStringLiteral("photos/00000.jpg"), QStringLiteral("photos/00001.photo"),
                           QStringLiteral("photos/00002.photo") }));
}

void TestStitchPlan::linesStandAlone()
{
    const auto plan = planStitch(projectOf(kSphere + image("y7.5 j0 a0.01 v50", "a.jpg")
                                           + image("y40 j1 a=0 d=0 Vx=0", "b.jpg")),
                                 {});
    QVERIFY(plan);
    const QByteArray project = plan.value().warps[1].projectText;
    QVERIFY2(!project.contains('='), project.constData());
    QCOMPARE(valueIn(project, "a"), 0.01);
    QCOMPARE(valueIn(project, "y"), 40.0);
    QCOMPARE(project.count("\ni "), 1);
}

void TestStitchPlan::masksCutOutWhatTheyCover()
{
    const QByteArray images = image("y0 j0", "a.jpg")
        + image("y40 j1", "b.jpg").replace("v50", "v=0") + image("y80 j2", "c.jpg");
    const auto linesOf = [&](const QByteArray &masks) {
        const auto plan = planStitch(projectOf(kSphere + images + masks), {});
        QList<QByteArray> lines;
        for (const StitchWarp &warp : plan.value().warps) {
            const int begin = warp.projectText.indexOf("\nk ");
            lines += begin < 0 ? QByteArray() : warp.projectText.mid(begin + 1);
        }
        return lines;
    };
    const QByteArray cut = "k i0 t0 p\"1 2 30.5 4 5 6\"\n";
    using Lines = QList<QByteArray>;
    QCOMPARE(linesOf({}), (Lines{ {}, {}, {} }));
    QCOMPARE(linesOf("k i1 t0 p\"1 2 30.5 4 5 6\"\n"), (Lines{ {}, cut, {} }));
    QCOMPARE(linesOf("k i1 t2 p\"1 2 30.5 4 5 6\"\n"), (Lines{ {}, cut, {} })); // of its stack
    QCOMPARE(linesOf("k i1 t4 p\"1 2 30.5 4 5 6\"\n"), (Lines{ cut, cut, {} })); // of its lens
    // Those that keep something would cut it out of all others.
    QCOMPARE(linesOf("k i1 t1 p\"1 2 30.5 4 5 6\"\n"), (Lines{ {}, {}, {} }));
    QVERIFY(projectOf(kSphere + images + "k i1 t3 p\"1 2\"\n").hasKeepingMasks());
    QVERIFY(!projectOf(kSphere + images + cut).hasKeepingMasks());
    // Of no image.
    QCOMPARE(linesOf("k i7 t4 p\"1 2 30.5 4 5 6\"\n"), (Lines{ {}, {}, {} }));
}

void TestStitchPlan::commandsSayWhatIsMade()
{
    const QString work = QStringLiteral("/tmp/it's here.work");
    const auto commands
        = stitchCommands(projectOf(kSphere + kBrackets), withOutput(StitchOutput::Fused), work);
    QVERIFY(commands);
    const QStringList &lines = commands.value();
    QCOMPARE(lines.size(), 2 + 6 + 3 * 6 + 3 + 1 + 1);
    QCOMPARE(lines[1], QStringLiteral("cd '/tmp/it'\\''s here.work'"));
    QCOMPARE(lines[7].section(QLatin1Char(' '), -1), QStringLiteral("photos/00005.jpg"));
    QVERIFY2(lines[8].startsWith(QStringLiteral("printf %s 'p f2 ")), qPrintable(lines[8]));
    QVERIFY2(lines[8].endsWith(QStringLiteral("' > warped/00000.pto")), qPrintable(lines[8]));
    QCOMPARE(
        lines[9],
        QStringLiteral(
            "OMP_NUM_THREADS=1 nona -m TIFF_m -r ldr -z NONE -o warped/00000 warped/00000.pto"));
    QCOMPARE(lines[10], QStringLiteral("mv warped/000000000.tif warped/00000.tif"));
    QCOMPARE(lines[26],
             QStringLiteral("verdandi --output=layers/00000.tif --wrap warped/00000.tif "
                            "warped/00003.tif"));
    QCOMPARE(lines[29],
             QStringLiteral("enfuse --output=blended.tif --wrap=horizontal layers/00000.tif "
                            "layers/00001.tif layers/00002.tif"));
    QVERIFY2(lines[30].startsWith(QStringLiteral("# panohost cuts blended.tif to ")),
             qPrintable(lines[30]));
    StitchOptions options;
    options.blender = Blender::Enblend;
    const auto part = stitchCommands(projectOf(kPart + image("y0 j0", "a.jpg")), options, work);
    QVERIFY(part.value().contains(QStringLiteral("enblend --output=blended.tif warped/00000.tif")));
    const auto light
        = stitchCommands(projectOf(kSphere + kBrackets), withOutput(StitchOutput::Hdr), work);
    QVERIFY(light.value().contains(QStringLiteral(
        "# panohost joins photos/00000.jpg photos/00001.jpg photos/00002.jpg to light/00000.tif")));
}

void TestStitchPlan::lackOfRoomIsSaidWithFiguresAndCures_data()
{
    QTest::addColumn<qint64>("doneBytes");
    QTest::addColumn<qint64>("freeBytes");
    QTest::addColumn<qint64>("memoryBytes");
    QTest::addColumn<QString>("text");
    const qint64 giga = 1'000'000'000;
    QTest::newRow("all suffices") << 0LL << 12 * giga << 4 * giga << QString();
    QTest::newRow("most is there already") << 11 * giga << 1 * giga << 4 * giga << QString();
    QTest::newRow("disk") << 0LL << 11'900'000'000LL << 4 * giga
                          << QStringLiteral("/out.work: the stitch needs 12.0 GB there, 11.9 GB "
                                            "are free; make room, name another place with -o, or "
                                            "choose a smaller --size");
    QTest::newRow("memory") << 0LL << 12 * giga << 350'000'000LL
                            << QStringLiteral("memory: the stitch needs about 3.0 GB, 350 MB are "
                                              "available; close other programs, or choose --jobs 1 "
                                              "or a smaller --size");
}

void TestStitchPlan::lackOfRoomIsSaidWithFiguresAndCures()
{
    QFETCH(qint64, doneBytes);
    QFETCH(qint64, freeBytes);
    QFETCH(qint64, memoryBytes);
    StitchNeeds needs;
    needs.diskBytes = 12'000'000'000;
    needs.memoryBytes = 3'000'000'000;
    const auto lack
        = lackOfRoom(needs, QStringLiteral("/out.work"), doneBytes, freeBytes, memoryBytes);
    QTEST(lack ? lack->text() : QString(), "text");
}

void TestStitchPlan::needsGrowWithThePicture()
{
    const PtoFile project = projectOf(kSphere + kBrackets);
    StitchOptions options;
    const StitchNeeds plain = needsOf(project, options).value();
    // Each photo is 50 x 34.5 degrees at least, 4 bytes a pixel, and the picture 3600 x 1800.
    QVERIFY(plain.diskBytes >= 2 * 500 * 340 * 4 + 3600 * 1800 * 4);
    QVERIFY(plain.diskBytes < 3600 * 1800 * 4 * 5);
    QCOMPARE(plain.canvas, QSize(3600, 1800));
    options.size = { StitchSize::Unit::Percent, 200.0 };
    const StitchNeeds large = needsOf(project, options).value();
    QVERIFY(large.diskBytes > 3 * plain.diskBytes);
    QVERIFY(large.memoryBytes > plain.memoryBytes);
    options.blender = Blender::Enblend;
    QVERIFY(needsOf(project, options).value().memoryBytes > large.memoryBytes);
}

TEST_CLASS(TestStitchPlan, QCoreApplication)
#include "tst_stitchplan.moc"
