// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/canvas.h"
#include "host/model/ptoproject.h"
#include "tests/host/ptotexts.h"
#include "tests/support/testprogram.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <string>

using namespace PanoHost;
using namespace PtoTexts;

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
    void withoutRecordTheFilesAnglesAreIt();
    void yawsAreThoseOfTheHead();
    void canvasIsWhatTheProjectAsksFor_data();
    void canvasIsWhatTheProjectAsksFor();
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
    badImage("mask of no known kind", "k i0 t5 p\"1 2 3 4 5 6\"\n", "t cannot be 5");
    badImage("mask of no corners", "k i0 t0 p\"1 2 x 4\"\n", "p is no list of corners: '1 2 x 4'");
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
                              << "line 2: only normal (f0) and fisheye lenses (f2, f3) are "
                                 "understood, not f1; choose one of them in Hugin";
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
