// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/canvas.h"
#include "host/model/ptoline.h"
#include "host/model/ptoproject.h"
#include "tests/host/ptotexts.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>

using namespace PanoHost;
using namespace PtoTexts;
using TestPanoramas::row;

class PtoFileEditsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placedImageChangesItsAnglesOnly();
    void hardStackTurnsWithItsFirstImage();
    void linkedExposuresBecomeTheirOwn();
    void lensIsSetForAllImagesOfIt();
    void variableIsTakenOffItsLine_data();
    void variableIsTakenOffItsLine();
    void numberInMarksGivesWayToAPlainOne();
    void pointsTakeThePlaceOfThoseThere();
    void wrongPointsAreComments();
    void recordComesBackExactly();
    void recordedLensAndHeadOutliveTheAlignment();
    void importedProjectIsOurs();
    void canvasFollowsTheRulesOfTheImport_data();
    void canvasFollowsTheRulesOfTheImport();
    void chosenWidthStays();
    void namesFollowTheFolder_data();
    void namesFollowTheFolder();
    void panoramaKeepsWhatWasRecorded();
};

void PtoFileEditsTest::placedImageChangesItsAnglesOnly()
{
    PtoFile file = parsed(kHugins);
    file.place(1, { { 190.25, -4.0, -90.0 }, {} });
    QByteArray expected = kHugins;
    expected.replace("r89.5 p-1e-05 y30", "r-90.000000 p-4.000000 y-169.750000");
    QCOMPARE(textOf(file), expected);
    QVERIFY(same(file.images()[1].angles, { 190.25, -4.0, -90.0 }));
    QVERIFY(same(parsed(expected).images()[1].angles, { -169.75, -4.0, -90.0 }));

    // Angles that the line does not name; a camera that the project has moved from its place.
    file = parsed(project("i w60 h40 v50 TrX0.5 TrY0.0 n\"a.jpg\"\n"));
    file.place(0, { { 1.0, 2.0, 3.0 }, {} });
    QCOMPARE(lineWith(textOf(file), "a.jpg"),
             QByteArray("i w60 h40 v50 TrX0 TrY0.0 r3.000000 p2.000000 y1.000000 n\"a.jpg\""));
}

void PtoFileEditsTest::hardStackTurnsWithItsFirstImage()
{
    const QByteArray second = "i w60 h40 v50 r=0 p=0 y=0 j=0 Eev3 n\"b.jpg\"\n";
    PtoFile file = parsed(project(image("Eev2") + second));
    file.place(0, { { 1.0, 2.0, 3.0 }, 4.0 });
    file.place(1, { { 9.0, 9.0, 9.0 }, 5.0 });
    QVERIFY(same(file.images()[1].angles, { 1.0, 2.0, 3.0 }));
    QCOMPARE(lineWith(textOf(file), "b.jpg") + '\n',
             QByteArray(second).replace("Eev3", "Eev5.000000"));
}

void PtoFileEditsTest::linkedExposuresBecomeTheirOwn()
{
    PtoFile file
        = parsed(project(image("Eev7.5") + image("Eev=0", "b.jpg") + image("Eev=1", "c.jpg")));
    file.place(1, { {}, 8.0 });
    const PtoFile again = parsed(textOf(file));
    QCOMPARE(again.images()[0].exposureValue.value(), 7.5);
    QCOMPARE(again.images()[1].exposureValue.value(), 8.0);
    QCOMPARE(again.images()[2].exposureValue.value(), 7.5);
    // Linked to one that has none, and stays so.
    file = parsed(project(image() + image("q\"x\"Eev=0 Eev9", "b.jpg")));
    file.place(0, { {}, 8.0 });
    QVERIFY(!file.images()[1].exposureValue);
    QVERIFY(!parsed(textOf(file)).images()[1].exposureValue);
}

void PtoFileEditsTest::lensIsSetForAllImagesOfIt()
{
    // The third has a lens of its own, but shares b with the first; the fourth is of the third's
    // lens and has a c of its own.
    PtoFile file
        = parsed(project(image("b0.5 d3 Vb0", "a.jpg") + "i w60 h40 v=0 b=0 d=0 Vb=0 n\"b.jpg\"\n"
                         + image("b=0", "c.jpg") + "i w60 h40 v=2 b=2 c0.1 n\"d.jpg\"\n"));
    PtoLens lens;
    lens.horizontalFovDegrees = 51.5;
    lens.b = -0.02;
    lens.vignetting = Vignetting{ -0.45 };
    file.setLens(0, lens);
    lens.horizontalFovDegrees = 61.0;
    lens.b = 0.25;
    lens.vignetting.reset();
    file.setLens(2, lens);
    const QByteArray text = textOf(file);
    const QByteArray first = lineWith(text, "a.jpg");
    QVERIFY2(first.contains(" v51.5 ") && first.contains(" b-0.02 d0 Vb-0.45 "), first.constData());
    QCOMPARE(lineWith(text, "b.jpg").left(37), QByteArray("i w60 h40 v=0 b=0 d=0 Vb=0 a0 c0 Ra-0"));
    QVERIFY(lineWith(text, "c.jpg").contains(" v61 ")
            && lineWith(text, "c.jpg").contains(" b0.25 "));
    QVERIFY(lineWith(text, "d.jpg").startsWith("i w60 h40 v=2 b=2 c0 "));
    for (const PtoFile &each : { file, parsed(text) }) {
        for (int i = 0; i < 4; ++i) {
            const PtoImage &image = each.images()[i];
            QCOMPARE(image.horizontalFovDegrees, i < 2 ? 51.5 : 61.0);
            QCOMPARE(image.b, i < 2 ? -0.02 : 0.25);
            QCOMPARE(image.c, 0.0);
        }
    }
}

void PtoFileEditsTest::variableIsTakenOffItsLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("left");
    QTest::newRow("between others")
        << QByteArray("p w1 S1,2,3,4 n\"a\"\n") << QByteArray("p w1 n\"a\"\n");
    QTest::newRow("first") << QByteArray("p  S1 w1\n") << QByteArray("p w1\n");
    QTest::newRow("last, Windows") << QByteArray("p w1 S1\r\n") << QByteArray("p w1\r\n");
    QTest::newRow("alone") << QByteArray("p S1") << QByteArray("p");
    QTest::newRow("twice") << QByteArray(R"(p S1 w1 S"2 3" h1)") << QByteArray("p w1 h1");
    QTest::newRow("behind a mark") << QByteArray(R"(p q"x"S1 w1)") << QByteArray(R"(p q"x" w1)");
    QTest::newRow("between marks") << QByteArray(R"(p w1 S"x"q"y")") << QByteArray(R"(p w1 q"y")");
    QTest::newRow("not there") << QByteArray("p w1 \tSx1 s1  \n")
                               << QByteArray("p w1 \tSx1 s1  \n");
    QTest::newRow("in a name") << QByteArray(R"(p n"a S1")") << QByteArray(R"(p n"a S1")");
}

void PtoFileEditsTest::variableIsTakenOffItsLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, left);
    removeVariable(line, "S");
    QCOMPARE(line, left);
}

void PtoFileEditsTest::numberInMarksGivesWayToAPlainOne()
{
    QByteArray line = R"(i a"40"40 n"x"y1)";
    setVariable(line, "a", "0.5");
    setVariable(line, "n", R"("z")");
    QCOMPARE(line, QByteArray(R"(i a0.5 40 n"z" y1)"));
}

void PtoFileEditsTest::pointsTakeThePlaceOfThoseThere()
{
    PtoFile file = parsed(kHugins);
    file.setPoints({ { 0, 1, 1.5, 2.25, 3.0, 4.00004 }, { 1, 0, -0.5, 0.0, 1.0, 2.0 } });
    QByteArray expected = kHugins;
    expected.replace("c n0 N1 x12.5 y45.25 X7.75 Y9 t0\n",
                     "c n0 N1 x1.5000 y2.2500 X3.0000 Y4.0000 t0\n"
                     "c n1 N0 x-0.5000 y0.0000 X1.0000 Y2.0000 t0\n");
    expected.replace("c n1 N0 x13 y46 X8 Y10 t0\n", "");
    QCOMPARE(textOf(file), expected);
    file.setPoints({});
    QCOMPARE(textOf(file).count("\nc "), 1); // the line

    file = parsed(project(image()).trimmed());
    file.setPoints({ { 0, 0, 1.0, 2.0, 3.0, 4.0 } });
    QCOMPARE(textOf(file), project(image()) + "c n0 N0 x1.0000 y2.0000 X3.0000 Y4.0000 t0\n");
}

void PtoFileEditsTest::wrongPointsAreComments()
{
    PtoFile file = parsed(kHugins);
    PtoPoint wrong{ 0, 1, 1.0, 2.0, 3.0, 4.0 };
    wrong.isWrong = true;
    file.setPoints({ wrong, { 0, 1, 5.0, 6.0, 7.0, 8.0 } });
    const QByteArray text = textOf(file);
    QVERIFY(text.contains(
        "\n#panohost wrong c n0 N1 x1.0000 y2.0000 X3.0000 Y4.0000 t0\nc n0 N1 x5.0000"));
    const PtoFile again = parsed(text);
    QCOMPARE(again.points().size(), 2);
    QVERIFY(again.points()[0].isWrong);
    QCOMPARE(again.points()[0].x2, 3.0);
    QVERIFY(!again.points()[1].isWrong);
}

void PtoFileEditsTest::recordComesBackExactly()
{
    PtoFile file
        = parsed(project(image() + "i w60 h40 v50 r=0 p=0 y=0 j=0 n\"b\"\n" + image({}, "c")));
    const QVector<Angles> recorded{ { 1.0 / 3.0, -0.1, 1e-17 }, {}, { 725.0, 89.999999999, -0.0 } };
    file.setRecord(recorded, { 90.0, 7.0, 12.5 });
    const QByteArray text = textOf(file);
    QVERIFY(text.endsWith("\n#panohost record i0 y0.3333333333333333 p-0.1 r1e-17 turn90 v50\n"
                          "#panohost record i2 y725 p89.999999999 r0 turn12.5 v50\n"));
    for (const PtoFile &each : { file, parsed(text) }) {
        QVERIFY(each.hasRecord());
        QVERIFY(same(each.images()[0].recorded, recorded[0]));
        QVERIFY(same(each.images()[1].recorded, recorded[0]));
        QCOMPARE(each.images()[1].turnDegrees, 90.0);
        QVERIFY(same(each.images()[2].recorded, recorded[2]));
        QCOMPARE(each.images()[2].turnDegrees, 12.5);
    }
    // In place of the lines that are there, wherever they stand.
    PtoFile again = parsed(text + "k i0\n");
    again.setRecord({ {}, {}, {} }, { 0.0, 0.0, 0.0 });
    QVERIFY(textOf(again).endsWith("\"c\"\n#panohost record i0 y0 p0 r0 turn0 v50\n"
                                   "#panohost record i2 y0 p0 r0 turn0 v50\nk i0\n"));
}

void PtoFileEditsTest::recordedLensAndHeadOutliveTheAlignment()
{
    PtoFile file = parsed(project(image()));
    QVERIFY(file.head().isEmpty());
    file.keepRecord("noroll");
    PtoLens lens;
    lens.horizontalFovDegrees = 61.5;
    file.setLens(0, lens);
    const QByteArray text = textOf(file);
    QVERIFY(text.endsWith("#panohost head noroll\n#panohost record i0 y0 p0 r0 turn0 v50\n"));
    PtoFile again = parsed(text);
    QCOMPARE(again.head(), QByteArray("noroll"));
    QCOMPARE(again.images()[0].recordedFovDegrees, 50.0);
    QCOMPARE(again.images()[0].horizontalFovDegrees, 61.5);
    again.keepRecord(again.head());
    QCOMPARE(textOf(again), text);
    // Of a project without record lines the file's own is it.
    QCOMPARE(parsed(project(image())).images()[0].recordedFovDegrees, 50.0);
}

void PtoFileEditsTest::importedProjectIsOurs()
{
    PtoOptions options;
    options.projectFolder = kFolder;
    const PtoFile file = parsed(makePtoProject(row(3), options).value().text);
    QVERIFY(file.isOurs());
    QVERIFY(!file.hasRecord());
    // What Hugin saves has none of our lines.
    QVERIFY(!parsed(kHugins).isOurs());
}

void PtoFileEditsTest::canvasFollowsTheRulesOfTheImport_data()
{
    QTest::addColumn<int>("positions");
    QTest::addColumn<int>("each");
    QTest::addColumn<int>("stackLinking");
    QTest::addColumn<int>("lens");
    QTest::newRow("full turn, cropped above and below") << 6 << 1 << 0 << 0;
    QTest::newRow("partial") << 2 << 1 << 0 << 0;
    QTest::newRow("hard-linked stacks") << 2 << 3 << 0 << 0;
    QTest::newRow("detected stacks") << 2 << 3 << 1 << 0;
    QTest::newRow("fisheye") << 4 << 1 << 0 << 1;
}

void PtoFileEditsTest::canvasFollowsTheRulesOfTheImport()
{
    QFETCH(int, positions);
    QFETCH(int, each);
    QFETCH(int, stackLinking);
    QFETCH(int, lens);
    // The shoot as the head said it, and as it is: the import of what it is must be what comes out.
    Panorama recorded = row(6, each);
    recorded.positions.resize(positions);
    recorded.description.stackLinking = stackLinking;
    recorded.lens = static_cast<LensModel>(lens);
    Panorama real = recorded;
    for (int i = 0; i < positions; ++i) {
        real.positions[i].yawDegrees += 40.25 + 0.5 * i;
        real.positions[i].pitchDegrees = 12.5 - i;
        real.positions[i].rollDegrees = -1.0;
    }
    PtoOptions options;
    options.projectFolder = kFolder;
    PtoFile file = parsed(makePtoProject(recorded, options).value().text);
    for (int i = 0; i < file.images().size(); ++i) {
        const Position &position = real.positions[i / each];
        file.place(i, { { position.yawDegrees, position.pitchDegrees, position.rollDegrees }, {} });
    }
    file.layOutCanvas();
    const auto expected = makePtoProject(real, options).value();
    QCOMPARE(file.canvas().size, expected.canvas);
    QCOMPARE(file.canvas().crop, expected.crop);
    QCOMPARE(file.canvas().yawCentreDegrees, expected.yawCentreDegrees);
    // The centre has more digits than the lens that it follows from.
    const double centre = expected.yawCentreDegrees;
    QVERIFY(std::abs(file.yawCentreDegrees() - centre) < 1e-9);
    QCOMPARE(withoutCentre(textOf(file)), withoutCentre(expected.text));
    // Once more changes nothing that is worth a word.
    PtoFile again = parsed(textOf(file));
    again.layOutCanvas();
    QVERIFY(std::abs(again.yawCentreDegrees() - centre) < 1e-6);
    QCOMPARE(lineWith(textOf(again), "p f2"), lineWith(expected.text, "p f2"));
}

void PtoFileEditsTest::chosenWidthStays()
{
    PtoOptions options;
    options.width = 2000;
    PtoFile file = parsed(makePtoProject(row(6), options).value().text);
    PtoLens lens;
    lens.horizontalFovDegrees = 90.0;
    file.setLens(0, lens);
    file.layOutCanvas();
    QVERIFY(lineWith(textOf(file), "p f2").startsWith("p f2 w2000 h1000 v360 "));
    // 1200 pixels in 90 degrees: 600 a radian, 3769.9 in a turn.
    PtoFile natural = parsed(makePtoProject(row(6)).value().text);
    natural.setLens(0, lens);
    natural.layOutCanvas();
    QVERIFY(lineWith(textOf(natural), "p f2").startsWith("p f2 w3770 h1885 v360 "));
}

void PtoFileEditsTest::namesFollowTheFolder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("same folder") << QByteArray("./a//b.jpg") << "/photos"
                                 << QByteArray("./a//b.jpg");
    QTest::newRow("same folder, said otherwise")
        << QByteArray("a b.jpg") << "/photos/x/../" << QByteArray("a b.jpg");
    QTest::newRow("below") << QByteArray("a b.jpg") << "/photos/aligned"
                           << QByteArray("../a b.jpg");
    QTest::newRow("above") << QByteArray("x/a.jpg") << "/" << QByteArray("photos/x/a.jpg");
    QTest::newRow("absolute") << QByteArray("/far/a.jpg") << "/far" << QByteArray("/far/a.jpg");
    QTest::newRow("no folder") << QByteArray("../a.jpg") << QString() << QByteArray("/a.jpg");
}

void PtoFileEditsTest::namesFollowTheFolder()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, folder);
    QFETCH(QByteArray, written);
    const PtoFile file = parsed(project(image({}, name)));
    QCOMPARE(textOf(file, folder), project(image({}, written)));
}

void PtoFileEditsTest::panoramaKeepsWhatWasRecorded()
{
    // Angles with more digits than the project writes; a photo in portrait; a roll of the user's
    // own.
    Panorama panorama = row(3, 2);
    panorama.positions.resize(2);
    panorama.positions[0].yawDegrees = 370.123456789012;
    panorama.positions[1].pitchDegrees = 1.0 / 3.0;
    panorama.positions[1].rollDegrees = 0.1;
    panorama.positions[1].photos[0].orientation = 6;
    PtoOptions options;
    options.projectFolder = kFolder;
    options.extraRollDegrees = 1.5;
    const auto file = projectOf(panorama, options);
    QVERIFY(file.ok());
    const PtoFile again = parsed(textOf(file.value()));
    for (const PtoFile &each : { file.value(), again }) {
        QVERIFY(each.isOurs());
        QVERIFY(each.hasRecord());
        QCOMPARE(each.images().size(), 4);
        QVERIFY(same(each.images()[1].recorded, { 370.123456789012, 0.0, 0.0 }));
        QCOMPARE(each.images()[1].turnDegrees, 1.5);
        QVERIFY(same(each.images()[3].recorded, { 120.0, 1.0 / 3.0, 0.1 }));
        QCOMPARE(each.images()[3].turnDegrees, 91.5);
        // The angles are those that the project writes.
        QVERIFY(std::abs(each.images()[2].angles.roll - 91.6) < 1e-9);
        QVERIFY(std::abs(std::remainder(each.images()[0].angles.yaw - 10.123457, 360.0)) < 1e-5);
    }
    options.ignoreExifRotation = true;
    QCOMPARE(projectOf(panorama, options).value().images()[3].turnDegrees, 1.5);
    // Only images with angles of their own have a line.
    QCOMPARE(textOf(file.value()).count("#panohost record "), 2);
    panorama.focal35mm = 0.0;
    QVERIFY(!projectOf(panorama, options).ok());
}

TEST_CLASS(PtoFileEditsTest, QCoreApplication)
#include "tst_ptofile_edits.moc"
