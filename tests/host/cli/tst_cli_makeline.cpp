// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/stitchline.h"
#include "tests/host/cli/clibench.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QtTest>

using namespace PanoHost;

/** What make and stitch understand, and refuse before anything is made. */
class TestCliMakeLine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void nothingSaidIsTheUsualCase();
    void sizesAreUnderstood_data();
    void sizesAreUnderstood();
    void otherOptionsAreUnderstood();
    void mistakesAreNamed_data();
    void mistakesAreNamed();

private:
    [[nodiscard]] static PictureWishes wishesOf(const char *line);

    CliBench m_bench;
};

void TestCliMakeLine::initTestCase()
{
    (void)m_bench.photos(3);
    (void)m_bench.record(QStringLiteral("r.xml"), CliBench::row(3));
}

PictureWishes TestCliMakeLine::wishesOf(const char *line)
{
    CommandLine words({}, stitchOptionRows());
    (void)words.parse(QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    return pictureWishes(words, QStringLiteral("/usual/name.jpg"));
}

void TestCliMakeLine::nothingSaidIsTheUsualCase()
{
    const PictureWishes wishes = wishesOf("");
    QCOMPARE(wishes.path, QStringLiteral("/usual/name.jpg"));
    QVERIFY(!wishes.output);
    QVERIFY(wishes.kinds.isEmpty());
    QVERIFY(wishes.stitch.blender == Blender::Internal);
    QVERIFY(wishes.stitch.size.unit == StitchSize::Unit::Full);
    QVERIFY(wishes.stitch.crops);
    QVERIFY(!wishes.stitch.centreYawDegrees);
    QVERIFY(!wishes.stitch.isLinear);
    QCOMPARE(wishes.jpegQuality, 92);
}

void TestCliMakeLine::sizesAreUnderstood_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("value");
    const auto row = [](const char *word, StitchSize::Unit unit, double value) {
        QTest::newRow(word) << QString::fromLatin1(word) << static_cast<int>(unit) << value;
    };
    row("full", StitchSize::Unit::Full, 0.0);
    row("50%", StitchSize::Unit::Percent, 50.0);
    row("12.5%", StitchSize::Unit::Percent, 12.5);
    row("100%", StitchSize::Unit::Percent, 100.0);
    row("4096", StitchSize::Unit::Width, 4096.0);
}

void TestCliMakeLine::sizesAreUnderstood()
{
    QFETCH(QString, word);
    const StitchSize size = wishesOf(("--size " + word.toLatin1()).constData()).stitch.size;
    QTEST(static_cast<int>(size.unit), "unit");
    QTEST(size.value, "value");
}

void TestCliMakeLine::otherOptionsAreUnderstood()
{
    const PictureWishes wishes
        = wishesOf("--output hdr --blender enblend --crop no --centre -12.5 --linear --jpeg 80 "
                   "--deliver iiif,picture,radiance,picture --iiif-address https://a.example/b "
                   "-o /else/where.TIFF");
    QCOMPARE(wishes.path, QStringLiteral("/else/where.TIFF"));
    QVERIFY(wishes.output == StitchOutput::Hdr);
    QVERIFY(wishes.stitch.blender == Blender::Enblend);
    QVERIFY(!wishes.stitch.crops);
    QCOMPARE(wishes.stitch.centreYawDegrees.value_or(0.0), -12.5);
    QVERIFY(wishes.stitch.isLinear);
    QCOMPARE(wishes.jpegQuality, 80);
    QCOMPARE(wishes.kinds,
             (QVector<Delivery>{ Delivery::Iiif, Delivery::Picture, Delivery::Radiance }));
    QCOMPARE(wishes.iiifAddress, QStringLiteral("https://a.example/b"));
    QVERIFY(wishesOf("--output ldr").output == StitchOutput::Ldr);
    QVERIFY(wishesOf("--output fused").output == StitchOutput::Fused);
}

void TestCliMakeLine::mistakesAreNamed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *line, int exitCode, const char *message) {
        QTest::newRow(line) << QString::fromLatin1(line) << exitCode
                            << QString::fromLatin1(message);
    };
    const auto mistake = [&row](const char *options, const char *message) {
        const QByteArray made = QByteArray("make papywizard r.xml IMG_01.jpg ") + options;
        row(made.constData(), 2, message);
        const QByteArray stitched = QByteArray("stitch a.pto ") + options;
        row(stitched.constData(), 2, message);
    };
    mistake("-o a.png", "-o a.png: not the name of a JPEG or TIFF file; name it NAME.jpg");
    mistake("-o pano", "-o pano: not the name of");
    mistake("-o .jpg", "-o .jpg: not the name of");
    mistake("--output a.jpg", "--output a.jpg: not one of ldr, fused, hdr");
    mistake("--size 0%", "--size 0%: not a size; give 'full'");
    mistake("--size 101%", "--size 101%: not a size");
    mistake("--size nan%", "--size nan%: not a size");
    mistake("--size 10", "--size 10: not a size");
    mistake("--size big", "--size big: not a size");
    mistake("--centre north", "--centre north: not a direction");
    mistake("--centre nan", "--centre nan: not a direction");
    mistake("--centre 361", "--centre 361: not a direction");
    mistake("--jpeg 0", "--jpeg 0: not a number from 1 to 100");
    mistake("--jobs 0", "--jobs 0: not a number from 1 to 1024");
    mistake("--crop maybe", "--crop maybe: not one of yes, no");
    mistake("--blender best", "--blender best: not one of internal, enblend");
    mistake("--deliver picture,htm", "'htm' is none of picture, html, zoom, radiance, cube, iiif");
    mistake("--deliver picture,htm", "did you mean 'html'?");
    mistake("--deliver iiif", "--deliver iiif needs the address");
    mistake("--deliver iiif --iiif-address example.org",
            "example.org: not the address of a server");
    mistake("--iiif-address http://a", "--iiif-address is for --deliver iiif");
    mistake("--deliver radiance --output ldr", "--deliver radiance is the light itself");
    mistake("--linear --output fused", "--linear says how brackets become light");
    row("make papywizard r.xml IMG_01.jpg --raw-converter ufraw", 2,
        "--raw-converter ufraw: does not say where its files go; name dcraw, dcraw_emu, ");
    row("make", 2, "no head given");
    row("make papywizard r.xml", 2, "no photos given");
    row("make papywizard r.xml IMG_01.jpg --keep", 2, "unknown option '--keep'");
    row("make papywizard r.xml IMG_01.jpg --rows 3", 2, "--rows is not an option of papywizard");
    row("make papywizard r.xml IMG_01.jpg --level --no-level", 2, "exclude each other");
    row("make papywizard r.xml gone.jpg", 3, "gone.jpg: no such photo; check the name");
    row("make papywizard gone.xml IMG_01.jpg", 3, "gone.xml");
    row("make papywizard r.xml IMG_01.jpg -o IMG_01.jpg", 3, "is one of the input files");
    row("make papywizard r.xml IMG_01.jpg -o no/where.jpg", 3, "does not exist; make it first");
    row("make papywizard r.xml IMG_01.jpg -o /proc/pano.jpg", 3, "cannot be written there");
    row("stitch", 2, "stitch takes one file, 0 given; name a project or description");
    row("stitch a.pto b.pto", 2, "stitch takes one file, 2 given");
    row("stitch gone.pto", 3, "gone.pto");
    row("stitch r.xml", 3, "r.xml");
}

void TestCliMakeLine::mistakesAreNamed()
{
    QFETCH(QString, line);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QStringList before = QDir(m_bench.path({})).entryList(QDir::Files);
    const auto run = m_bench.run(line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(run.exitCode, exitCode);
    QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(QDir(m_bench.path({})).entryList(QDir::Files), before);
}

TEST_CLASS(TestCliMakeLine, QCoreApplication)
#include "tst_cli_makeline.moc"
