// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/canvas.h"
#include "host/model/ptoline.h"
#include "host/model/ptoproject.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <cmath>
#include <stdexcept>
#include <string>

using namespace PanoHost;
using TestPanoramas::row;

namespace
{

const QString kFolder = QStringLiteral("/photos");

/** As Hugin 2022 saves one: two images of one lens, the second one with its own angles. */
const QByteArray kHugins
    = "# hugin project file\n"
      "#hugin_ptoversion 2\n"
      "p f2 w3000 h1500 v360  k0 E12.6 R0 n\"TIFF_m c:LZW r:CROP\"\n"
      "m g1 i0 f0 m2 p0.00784314\n"
      "\n"
      "# image lines\n"
      "#-hugin  cropFactor=1\n"
      "i w1200 h800 f0 v73.7397952916881 Ra0 Rb0 Rc0 Rd0 Re0 Eev12.6438561897747 Er1 Eb1 r90.25 "
      "p45 y-179.5 TrX0 TrY0 TrZ0 Tpy0 Tpp0 j0 a0.001 b-0.02 c0 d0 e0 g0 t0 Va1 Vb0 Vc0 Vd0 Vx0 "
      "Vy0  Vm5 n\"img one.jpg\"\n"
      "#-hugin  cropFactor=1\n"
      "i w1200 h800 f0 v=0 Ra=0 Rb=0 Rc=0 Rd=0 Re=0 Eev13.5 Er1 Eb1 r89.5 p-1e-05 y30 TrX0 TrY0 "
      "TrZ0 Tpy0 Tpp0 j1 a=0 b=0 c=0 d=0 e=0 g=0 t=0 Va=0 Vb=0 Vc=0 Vd=0 Vx=0 Vy=0  Vm5 "
      "n\"/far/img2.jpg\"\n"
      "\n"
      "\n"
      "# specify variables that should be optimized\n"
      "v v0\n"
      "v r1\n"
      "v\n"
      "\n"
      "\n"
      "# control points\n"
      "c n0 N1 x12.5 y45.25 X7.75 Y9 t0\n"
      "c n0 N0 x1 y2 X3 Y4 t1\n"
      "c n1 N0 x13 y46 X8 Y10 t0\n"
      "\n"
      "k i0 t0 p\"1 2 3 4 5 6\"\n"
      "#hugin_optimizeReferenceImage 0\n"
      "#hugin_blender enblend\n";

/** One that is read; \p images are i-lines. */
QByteArray project(const QByteArray &images, const QByteArray &more = {})
{
    return "p f2 w100 h50 v360\n" + images + more;
}

/** An i-line with \p variables in place of the usual ones of that name. */
QByteArray image(const QByteArray &variables = {}, const QByteArray &name = "a.jpg")
{
    return "i w60 h40 f0 v50 r0 p0 y0 j0 " + variables + " n\"" + name + "\"\n";
}

PtoFile parsed(const QByteArray &text)
{
    const auto file = PtoFile::parse(text, kFolder);
    if (!file) {
        throw std::runtime_error(qPrintable(file.error().text()));
    }
    return file.value();
}

QByteArray textOf(const PtoFile &file, const QString &folder = kFolder)
{
    return file.text(folder).value();
}

QByteArray lineWith(const QByteArray &text, const QByteArray &part)
{
    const QByteArrayList lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (line.contains(part)) {
            return line;
        }
    }
    return {};
}

QByteArray withoutCentre(QByteArray text)
{
    return text.replace(lineWith(text, "#panohost centre"), "");
}

bool same(const Angles &one, const Angles &other, double tolerance = 0.0)
{
    return std::abs(one.yaw - other.yaw) <= tolerance
        && std::abs(one.pitch - other.pitch) <= tolerance
        && std::abs(one.roll - other.roll) <= tolerance;
}

} // namespace

class PtoFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void projectOfHuginIsRead();
    void textIsKeptByteForByte_data();
    void textIsKeptByteForByte();
    void variablesComeInAnyOrder();
    void linkedImagesHaveTheValuesOfTheirMaster();
    void badProjectIsRefused_data();
    void badProjectIsRefused();
    void numbersAreThoseOfTheCLocale();
    void placedImageChangesItsAnglesOnly();
    void hardStackTurnsWithItsFirstImage();
    void linkedExposuresBecomeTheirOwn();
    void lensIsSetForAllImagesOfIt();
    void variableIsTakenOffItsLine_data();
    void variableIsTakenOffItsLine();
    void numberInMarksGivesWayToAPlainOne();
    void pointsTakeThePlaceOfThoseThere();
    void wrongPointsAreComments();
    void withoutRecordTheFilesAnglesAreIt();
    void recordComesBackExactly();
    void recordedLensAndHeadOutliveTheAlignment();
    void yawsAreThoseOfTheHead();
    void importedProjectIsOurs();
    void canvasIsWhatTheProjectAsksFor_data();
    void canvasIsWhatTheProjectAsksFor();
    void canvasFollowsTheRulesOfTheImport_data();
    void canvasFollowsTheRulesOfTheImport();
    void chosenWidthStays();
    void namesFollowTheFolder_data();
    void namesFollowTheFolder();
    void panoramaKeepsWhatWasRecorded();
    void readNamesTheFile();
};

void PtoFileTest::projectOfHuginIsRead()
{
    const PtoFile file = parsed(kHugins);
    QCOMPARE(file.images().size(), 2);
    const PtoImage &first = file.images()[0];
    QCOMPARE(first.path, QStringLiteral("/photos/img one.jpg"));
    QCOMPARE(first.size, QSize(1200, 800));
    QCOMPARE(first.lens, LensModel::Standard);
    QCOMPARE(first.horizontalFovDegrees, 73.7397952916881);
    QCOMPARE(first.a, 0.001);
    QCOMPARE(first.b, -0.02);
    QCOMPARE(first.exposureValue.value(), 12.6438561897747);
    QVERIFY(same(first.angles, { -179.5, 45.0, 90.25 }));
    QCOMPARE(first.lensMaster, -1);
    const PtoImage &second = file.images()[1];
    QCOMPARE(second.path, QStringLiteral("/far/img2.jpg"));
    QCOMPARE(second.lensMaster, 0);
    QCOMPARE(second.b, -0.02);
    QVERIFY(same(second.angles, { 30.0, -1e-5, 89.5 }));
    QCOMPARE(second.stackMaster, -1); // the number behind j means nothing
    QCOMPARE(file.points().size(), 2);
    const PtoPoint &point = file.points()[0];
    QCOMPARE(point.first, 0);
    QCOMPARE(point.second, 1);
    QCOMPARE(point.x1, 12.5);
    QCOMPARE(point.y1, 45.25);
    QCOMPARE(point.x2, 7.75);
    QCOMPARE(point.y2, 9.0);
    QVERIFY(!point.isWrong);
    QVERIFY(!file.isOurs());
    QVERIFY(!file.hasRecord());
}

void PtoFileTest::textIsKeptByteForByte_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("Hugin's") << kHugins;
    QTest::newRow("no line end at the end") << project(image()) + "#hugin_blender enblend";
    QTest::newRow("image at the end") << project(image()).trimmed();
    QTest::newRow("line ends of Windows") << QByteArray(kHugins).replace("\n", "\r\n");
    QTest::newRow("unknown lines and variables")
        << project(image("Zz=9 q\"a b\" -buf 12 ?"), "x y z\n*\n\n\n# note\n c n9\n");
    QTest::newRow("tabs and blanks") << project("i\tw60  h40\tv50 y1  n\"a b.jpg\"  \n");
    QTest::newRow("unknown comment of ours") << project(image()) + "#panohost later x1\n";
    QTest::newRow("own comments") << project(image()) + "#panohost centre y-0.50\n"
            + "#panohost record i0 y1.50 p2 r3 turn90\n#panohost wrong c n0 N0 x1 y2 X3 Y4 t0\n";
    QTest::newRow("bytes of no character set")
        << project(image()) + "# \xff\xfe" + QByteArray(2, '\0') + "\x01\n";
}

void PtoFileTest::textIsKeptByteForByte()
{
    QFETCH(QByteArray, text);
    QCOMPARE(textOf(parsed(text)), text);
}

void PtoFileTest::variablesComeInAnyOrder()
{
    const PtoFile file
        = parsed(project("i n\"y9 p9 .jpg\" y1.5 Vx7 h40 Eev-2 Xy3 p+2 v50.5 Zy4 r-3 f3 w60\n"));
    const PtoImage &image = file.images()[0];
    QVERIFY(same(image.angles, { 1.5, 2.0, -3.0 }));
    QCOMPARE(image.size, QSize(60, 40));
    QCOMPARE(image.lens, LensModel::Fisheye);
    QCOMPARE(image.exposureValue.value(), -2.0);
    QCOMPARE(image.path, QStringLiteral("/photos/y9 p9 .jpg"));
}

void PtoFileTest::linkedImagesHaveTheValuesOfTheirMaster()
{
    // Links of links end at the one that has a value.
    const PtoFile file
        = parsed(project(image("Eev7 b0.5") + image()
                         + "i w60 h40 f0 v=0 r=1 p=1 y=1 j=1 b=0 Eev=0 n\"c.jpg\"\n"
                           "i w60 h40 f0 v=2 r=2 p=2 y=2 j=2 b=2 Eev=2 n\"d.jpg\"\n"));
    const PtoImage &last = file.images()[3];
    QCOMPARE(last.lensMaster, 0);
    QCOMPARE(last.angleMaster, 1);
    QCOMPARE(last.stackMaster, 1);
    QCOMPARE(last.b, 0.5);
    QCOMPARE(last.exposureValue.value(), 7.0);
    QCOMPARE(last.horizontalFovDegrees, 50.0);
}

void PtoFileTest::badProjectIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("said");
    const QString again = QStringLiteral("; open the project in Hugin and save it again");
    const auto badImage = [&](const char *name, const QByteArray &line, const char *why) {
        QTest::newRow(name) << project(image() + line)
                            << QStringLiteral("line 3: ") + QLatin1String(why) + again;
    };
    QTest::newRow("empty") << QByteArray()
                           << "the project: holds no images; is it a project that Hugin opens?";
    QTest::newRow("no panorama line")
        << image()
        << "the project: has no line for the panorama (p); is it a project that Hugin opens?";
    badImage("endless line", "i w60 h40 v50 n\"a\"" + QByteArray(65536, ' ') + '\n',
             "longer than 65536 bytes");
    QTest::newRow("panorama line without an end")
        << QByteArray("p h\"100 w200\n" + image())
        << QStringLiteral("line 1: the quotation mark at the end of h is missing") + again;
    QTest::newRow("old program") << project(
        image(),
        "o f0 y0\n") << QStringLiteral("line 3: o-lines are of programs older than Hugin") + again;
    badImage("no width", "i h40 v50 n\"a\"\n", "w is missing");
    badImage("no height", "i w40 v50 n\"a\"\n", "h is missing");
    badImage("height of nothing", "i w40 h0 v50 n\"a\"\n", "h cannot be 0");
    badImage("half a pixel", "i w40.5 h40 v50 n\"a\"\n", "w cannot be 40.5");
    badImage("huge", "i w10000001 h40 v50 n\"a\"\n", "w cannot be 10000001");
    badImage("no field of view", "i w60 h40 n\"a\"\n",
             "no such lens has a field of view of 0 degrees (v)");
    badImage("half a turn", "i w60 h40 v180 n\"a\"\n",
             "no such lens has a field of view of 180 degrees (v)");
    badImage("no name", "i w60 h40 v50\n", "names no file (n)");
    badImage("name without marks", "i w60 h40 v50 na.jpg\n", "names no file (n)");
    badImage("empty name", "i w60 h40 v50 n\"\"\n", "names no file (n)");
    badImage("name without an end", "i w60 h40 v50 n\"a\n",
             "the quotation mark at the end of n is missing");
    badImage("not a number", "i w60 h40 v50 ynan n\"a\"\n", "y is no number: 'nan'");
    badImage("infinite", "i w60 h40 v50 p-inf n\"a\"\n", "p is no number: '-inf'");
    badImage("infinite, without a sign", "i w60 h40 v50 rINF n\"a\"\n", "r is no number: 'INF'");
    badImage("no digits", "i w60 h40 v50 r n\"a\"\n", "r is no number: ''");
    badImage("comma", "i w60 h40 v50,5 n\"a\"\n", "v is no number: '50,5'");
    badImage("two numbers in one", "i w60 h40 v50 y1.2.3 n\"a\"\n", "y is no number: '1.2.3'");
    badImage("hexadecimal", "i w60 h40 v0x20 n\"a\"\n", "v is no number: '0x20'");
    badImage("too large a number", "i w60 h40 v50 y1e999 n\"a\"\n", "y is no number: '1e999'");
    badImage("beyond all turns", "i w60 h40 v50 y1e10 n\"a\"\n", "y is no number: '1e10'");
    badImage("linked to itself", "i w60 h40 v=1 n\"a\"\n", "v=1 links to no image before image 1");
    badImage("linked to a later one", "i w60 h40 v50 j=2 n\"a\"\n",
             "j=2 links to no image before image 1");
    badImage("linked to nothing", "i w60 h40 v50 y= n\"a\"\n",
             "y= links to no image before image 1");
    badImage("linked to less than nothing", "i w60 h40 v50 y=-1 n\"a\"\n",
             "y=-1 links to no image before image 1");
    QTest::newRow("some angles linked")
        << project(image() + "i w60 h40 v50 y=0 p=0 r1 n\"a\"\n")
        << "line 3: yaw, pitch and roll are not linked to the same image; link all three of them "
           "in Hugin, or none";
    QTest::newRow("lens of another size")
        << project(image() + "i w40 h60 v=0 n\"a\"\n")
        << "line 3: shares the lens of image 0, of another size or kind; give it a lens of its own "
           "in Hugin";
    QTest::newRow("cylinder") << project("i w40 h60 f1 v90 n\"a\"\n")
                              << "line 2: only normal (f0) and fisheye lenses (f2, f3) can be "
                                 "aligned, not f1; choose one of them in Hugin";
    for (const QByteArray &name : { QByteArray("a\0b", 3), QByteArray("a\x1b[31m") }) {
        QTest::addRow("name with the control character %d", int(name[1]))
            << project(image({}, name))
            << "line 2: a file name holds what is no letter; rename the file";
    }
    const auto badComment = [&](const char *name, const QByteArray &line, const char *why) {
        QTest::newRow(name) << project(image(), line)
                            << QStringLiteral("line 3: ") + QLatin1String(why) + again;
    };
    badComment("point of no image", "c n0 N1 x1 y2 X3 Y4 t0\n",
               "image 1 is not there; the last one is 0");
    badComment("point of less than no image", "c n-1 N0 x1 y2 X3 Y4 t0\n", "n cannot be -1");
    badComment("point without a place", "c n0 N0 x1 y2 X3 t0\n", "Y is missing");
    badComment("point that is no number", "c n0 N0 x1 y2 Xnan Y3\n", "X is no number: 'nan'");
    badComment("wrong point of no image", "#panohost wrong c n0 N7 x1 y2 X3 Y4 t0\n",
               "image 7 is not there; the last one is 0");
    badComment("record of no image", "#panohost record i1 y1 p2 r3 turn0\n",
               "image 1 is not there; the last one is 0");
    badComment("half a record", "#panohost record i0 y1\n", "p is missing");
    badComment("centre without a number", "#panohost centre\n", "y is missing");
}

void PtoFileTest::badProjectIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, said);
    const auto file = PtoFile::parse(text, kFolder);
    QVERIFY(!file.ok());
    QCOMPARE(file.error().text(), said);
    QCOMPARE(file.error().code, ExitCode::InputRefused);
}

void PtoFileTest::numbersAreThoseOfTheCLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const std::string old = std::setlocale(LC_ALL, nullptr);
    // Not there on every machine; Qt's own is the more important one.
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    PtoFile file = parsed(kHugins);
    const double b = file.images()[0].b;
    file.place(0, { { 1.5, 2.5, 3.5 }, 4.5 });
    const QByteArray text = textOf(file);
    QLocale::setDefault(before);
    std::setlocale(LC_ALL, old.c_str());
    QCOMPARE(b, -0.02);
    QVERIFY(
        lineWith(text, "img one").contains(" Eev4.500000 Er1 Eb1 r3.500000 p2.500000 y1.500000 "));
}

void PtoFileTest::placedImageChangesItsAnglesOnly()
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

void PtoFileTest::hardStackTurnsWithItsFirstImage()
{
    const QByteArray second = "i w60 h40 v50 r=0 p=0 y=0 j=0 Eev3 n\"b.jpg\"\n";
    PtoFile file = parsed(project(image("Eev2") + second));
    file.place(0, { { 1.0, 2.0, 3.0 }, 4.0 });
    file.place(1, { { 9.0, 9.0, 9.0 }, 5.0 });
    QVERIFY(same(file.images()[1].angles, { 1.0, 2.0, 3.0 }));
    QCOMPARE(lineWith(textOf(file), "b.jpg") + '\n',
             QByteArray(second).replace("Eev3", "Eev5.000000"));
}

void PtoFileTest::linkedExposuresBecomeTheirOwn()
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

void PtoFileTest::lensIsSetForAllImagesOfIt()
{
    // The third has a lens of its own, but shares b with the first; the fourth is of the third's
    // lens and has a c of its own.
    PtoFile file
        = parsed(project(image("b0.5 d3 Vb0", "a.jpg") + "i w60 h40 v=0 b=0 d=0 Vb=0 n\"b.jpg\"\n"
                         + image("b=0", "c.jpg") + "i w60 h40 v=2 b=2 c0.1 n\"d.jpg\"\n"));
    PtoLens lens;
    lens.horizontalFovDegrees = 51.5;
    lens.b = -0.02;
    lens.vignettingB = -0.45;
    file.setLens(0, lens);
    lens.horizontalFovDegrees = 61.0;
    lens.b = 0.25;
    lens.vignettingB.reset();
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

void PtoFileTest::variableIsTakenOffItsLine_data()
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

void PtoFileTest::variableIsTakenOffItsLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, left);
    removeVariable(line, "S");
    QCOMPARE(line, left);
}

void PtoFileTest::numberInMarksGivesWayToAPlainOne()
{
    QByteArray line = R"(i a"40"40 n"x"y1)";
    setVariable(line, "a", "0.5");
    setVariable(line, "n", R"("z")");
    QCOMPARE(line, QByteArray(R"(i a0.5 40 n"z" y1)"));
}

void PtoFileTest::pointsTakeThePlaceOfThoseThere()
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

void PtoFileTest::wrongPointsAreComments()
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

void PtoFileTest::withoutRecordTheFilesAnglesAreIt()
{
    // Rolls of 90.25 and 89.5: a camera in portrait, and what is left of each.
    const PtoFile file = parsed(kHugins);
    QCOMPARE(file.images()[0].turnDegrees, 90.0);
    QVERIFY(same(file.images()[0].recorded, { -179.5, 45.0, 0.25 }));
    QVERIFY(same(file.images()[1].recorded, { 30.0, -1e-5, -0.5 }));
    // One photo of another position of the camera stays as turned as it is.
    const PtoFile mixed = parsed(project("i w60 h40 v50 r1 n\"a\"\ni w60 h40 v50 r-1 n\"b\"\n"
                                         "i w60 h40 v50 r269 n\"c\"\n"));
    QCOMPARE(mixed.images()[2].turnDegrees, 0.0);
    QVERIFY(same(mixed.images()[2].recorded, { 0.0, 0.0, -91.0 }));
}

void PtoFileTest::recordComesBackExactly()
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

void PtoFileTest::recordedLensAndHeadOutliveTheAlignment()
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

void PtoFileTest::yawsAreThoseOfTheHead()
{
    const QByteArray text = "#panohost centre y100\n" + project("i w60 h40 v50 y-20 n\"a.jpg\"\n");
    PtoFile file = parsed(text);
    QCOMPARE(file.yawCentreDegrees(), 100.0);
    QCOMPARE(file.images()[0].angles.yaw, 80.0);
    QCOMPARE(file.images()[0].recorded.yaw, 80.0);
    file.place(0, { { 90.0, 0.0, 0.0 }, {} });
    QVERIFY(lineWith(textOf(file), "a.jpg").contains(" y-10.000000 "));
}

void PtoFileTest::importedProjectIsOurs()
{
    PtoOptions options;
    options.projectFolder = kFolder;
    const PtoFile file = parsed(makePtoProject(row(3), options).value().text);
    QVERIFY(file.isOurs());
    QVERIFY(!file.hasRecord());
    // What Hugin saves has none of our lines.
    QVERIFY(!parsed(kHugins).isOurs());
}

void PtoFileTest::canvasIsWhatTheProjectAsksFor_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("fov");
    QTest::addColumn<QRect>("crop");
    QTest::newRow("all of it") << QByteArray("p f2 w3000 h1500 v360") << QSize(3000, 1500) << 360.0
                               << QRect();
    // Left, right, top, bottom; the second of each lies behind.
    QTest::newRow("cropped") << QByteArray("p f2 w1000 h1800 v100.5 S10,900,700,1200")
                             << QSize(1000, 1800) << 100.5 << QRect(10, 700, 890, 500);
    QTest::newRow("crop that is none")
        << QByteArray("p f2 w3000 h1500 v360 S5,2") << QSize(3000, 1500) << 360.0 << QRect();
    QTest::newRow("crop inside out") << QByteArray("p f2 w3000 h1500 v360 S9,5,-2147483648,3")
                                     << QSize(3000, 1500) << 360.0 << QRect();
}

void PtoFileTest::canvasIsWhatTheProjectAsksFor()
{
    QFETCH(QByteArray, line);
    QFETCH(QSize, size);
    QFETCH(double, fov);
    QFETCH(QRect, crop);
    QByteArray text = kHugins;
    text.replace("p f2 w3000 h1500 v360 ", line);
    const Canvas canvas = parsed(text).canvas();
    QCOMPARE(canvas.size, size);
    QCOMPARE(canvas.horizontalFovDegrees, fov);
    QCOMPARE(canvas.crop, crop);
}

void PtoFileTest::canvasFollowsTheRulesOfTheImport_data()
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

void PtoFileTest::canvasFollowsTheRulesOfTheImport()
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

void PtoFileTest::chosenWidthStays()
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

void PtoFileTest::namesFollowTheFolder_data()
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

void PtoFileTest::namesFollowTheFolder()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, folder);
    QFETCH(QByteArray, written);
    const PtoFile file = parsed(project(image({}, name)));
    QCOMPARE(textOf(file, folder), project(image({}, written)));
}

void PtoFileTest::panoramaKeepsWhatWasRecorded()
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

void PtoFileTest::readNamesTheFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a b.pto"));
    QCOMPARE(PtoFile::read(path).error().text(), path + QStringLiteral(": no such file"));
    QCOMPARE(PtoFile::read(folder.path()).error().text(),
             folder.path() + QStringLiteral(": is a folder"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(project("i w1\n"));
    file.close();
    QCOMPARE(PtoFile::read(path).error().text(),
             path
                 + QStringLiteral(
                     ": line 2: h is missing; open the project in Hugin and save it again"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(project(image()));
    file.close();
    QCOMPARE(PtoFile::read(path).value().images()[0].path,
             folder.filePath(QStringLiteral("a.jpg")));
}

TEST_CLASS(PtoFileTest, QCoreApplication)
#include "tst_ptofile.moc"
