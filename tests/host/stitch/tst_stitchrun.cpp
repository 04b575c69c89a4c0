// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/panoramastitch.h"
#include "host/stitch/toolrun.h"
#include "tests/support/testprogram.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <tiffio.h>

using namespace PanoHost;

namespace
{

/** A grey TIFF of 4 x 4 pixels, at (2, 1) of its canvas. */
bool writeTiff(const QString &path, int bits = 8)
{
    TIFF *const file = TIFFOpen(QFile::encodeName(path).constData(), "w");
    if (file == nullptr) {
        return false;
    }
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, 4);
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, 4);
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, bits);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, 4);
    TIFFSetField(file, TIFFTAG_XRESOLUTION, 150.0);
    TIFFSetField(file, TIFFTAG_YRESOLUTION, 150.0);
    TIFFSetField(file, TIFFTAG_XPOSITION, 2.0 / 150.0);
    TIFFSetField(file, TIFFTAG_YPOSITION, 1.0 / 150.0);
    QByteArray row(4 * bits / 8, 'x');
    for (uint32_t y = 0; y < 4; ++y) {
        TIFFWriteScanline(file, row.data(), y, 0);
    }
    TIFFClose(file);
    return true;
}

/** A picture of libvips' own format, 2 x 1 pixels; \p format 0 is of 8 bits, 2 of 16. */
QByteArray vipsPicture(int bands = 4, int format = 0)
{
    const QVector<qint32> header{ 0x08f2a6b6, 2, 1, bands, 8, format };
    QByteArray bytes(reinterpret_cast<const char *>(header.constData()), header.size() * 4);
    return bytes + QByteArray(64 - bytes.size(), '\0')
        + QByteArray(2 * bands * (format == 0 ? 1 : 2), 'x');
}

} // namespace

/** A stitch with programs of the test's own in place of the stitching tools. */
class TestStitchRun : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void whatChangedAloneIsMadeAgain_data();
    void whatChangedAloneIsMadeAgain();
    void missingToolsAreNamedWithTheirPackages_data();
    void missingToolsAreNamedWithTheirPackages();
    void badToolsAreExplained_data();
    void badToolsAreExplained();
    void toolsThatWorkAreWaitedFor();
    void temporaryFilesOfToolsGoIntoTheWorkFolder();
    void stoppedStitchGoesOn();
    void photosThatAreGoneAreNamed();
    void photosOfDifferentDepthsAreRefusedFirst();
    void greyPhotosBecomeColoured_data();
    void greyPhotosBecomeColoured();

private:
    void makeTool(const char *name, const QByteArray &script) const;
    void makeTools() const;
    [[nodiscard]] PtoFile project() const;
    [[nodiscard]] Result<StitchedPicture> stitched(const StitchOptions &options,
                                                   const JobWatch &watch = {}) const;
    /** What was called since the last time this was asked. */
    [[nodiscard]] QStringList calls() const;
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }

    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_panorama = "p f2 w360 h180 v360 E12 R0 n\"TIFF_m\"\n";
};

void TestStitchRun::init()
{
    m_path = qgetenv("PATH");
    m_folder = std::make_unique<QTemporaryDir>();
    QDir(m_folder->path()).mkdir(QStringLiteral("bin"));
    qputenv("PATH", QFile::encodeName(path("bin")) + ":/usr/bin:/bin");
    QVERIFY(writeTiff(path("made.tif")));
    QFile picture(path("made.v"));
    QVERIFY(picture.open(QIODevice::WriteOnly) && picture.write(vipsPicture()) > 0);
    for (const char *const name : { "it's a.jpg", "b \u65e5\u672c.jpg", "c.jpg" }) {
        QFile photo(m_folder->filePath(QString::fromUtf8(name)));
        QVERIFY(photo.open(QIODevice::WriteOnly) && photo.write("photo") > 0);
    }
    makeTools();
}

void TestStitchRun::cleanup()
{
    qputenv("PATH", m_path);
}

void TestStitchRun::makeTool(const char *name, const QByteArray &script) const
{
    QFile file(path("bin/") + QLatin1String(name));
    file.remove();
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    file.close();
    // A tool counts as another one when its time is another one: not here.
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(1'600'000'000),
                             QFileDevice::FileModificationTime));
}

/** Each notes its name and what it makes, and makes it. */
void TestStitchRun::makeTools() const
{
    const QByteArray folder = QFile::encodeName(m_folder->path());
    makeTool("nona",
             "echo nona ${8#warped/part-} >> '" + folder + "/log'; cp '" + folder
                 + "/made.tif' \"${8}0000.tif\"\n");
    makeTool("verdandi",
             "echo verdandi >> '" + folder + "/log'; cp '" + folder
                 + "/made.tif' \"${1#--output=}\"\n");
    makeTool("enblend",
             "echo enblend >> '" + folder + "/log'; cp '" + folder
                 + "/made.tif' \"${1#--output=}\"\n");
    makeTool("vips", "echo vips $1 >> '" + folder + "/log'; cp '" + folder + "/made.v' \"$4\"\n");
}

PtoFile TestStitchRun::project() const
{
    QByteArray text = m_panorama;
    int yaw = 0;
    for (const char *const name : { "it's a.jpg", "b \u65e5\u672c.jpg", "c.jpg" }) {
        text += "i w60 h40 f0 v50 r0 p0 y" + QByteArray::number(yaw++ * 40) + " j0 n\""
            + QByteArray(name) + "\"\n";
    }
    return PtoFile::parse(text, m_folder->path()).value();
}

Result<StitchedPicture> TestStitchRun::stitched(const StitchOptions &options,
                                                const JobWatch &watch) const
{
    const auto work = WorkFolder::open(path("out.work"));
    return work ? stitchProject(project(), options, work.value(), watch) : work.error();
}

QStringList TestStitchRun::calls() const
{
    QFile log(path("log"));
    QStringList lines;
    if (log.open(QIODevice::ReadOnly)) {
        lines = QString::fromUtf8(log.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    log.remove();
    return lines;
}

void TestStitchRun::whatChangedAloneIsMadeAgain_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QStringList>("calls");
    const QStringList all{ QStringLiteral("nona 00000"), QStringLiteral("nona 00001"),
                           QStringLiteral("nona 00002"), QStringLiteral("verdandi"),
                           QStringLiteral("vips embed") };
    QTest::newRow("nothing") << QStringLiteral("nothing") << QStringList();
    QTest::newRow("a photo") << QStringLiteral("photo")
                             << QStringList{ QStringLiteral("nona 00002"),
                                             QStringLiteral("verdandi"),
                                             QStringLiteral("vips embed") };
    QTest::newRow("the blender") << QStringLiteral(
        "blender") << QStringList{ QStringLiteral("enblend"), QStringLiteral("vips embed") };
    QTest::newRow("the size") << QStringLiteral("size") << all;
    QTest::newRow("the crop") << QStringLiteral("crop")
                              << QStringList{ QStringLiteral("vips embed") };
    QTest::newRow("a result that is gone")
        << QStringLiteral("gone") << QStringList{ QStringLiteral("nona 00001") };
    QTest::newRow("a newer nona") << QStringLiteral("tool") << all;
}

void TestStitchRun::whatChangedAloneIsMadeAgain()
{
    QFETCH(QString, change);
    m_panorama = "p f2 w360 h180 v360 E12 R0 S0,360,20,160 n\"TIFF_m\"\n";
    StitchOptions options;
    options.jobs = 1; // in order
    QVERIFY(stitched(options));
    QCOMPARE(calls().size(), 5);
    if (change == QLatin1String("photo")) {
        QFile photo(path("c.jpg"));
        QVERIFY(photo.open(QIODevice::Append) && photo.write("!") == 1);
    } else if (change == QLatin1String("blender")) {
        options.blender = Blender::Enblend;
    } else if (change == QLatin1String("size")) {
        options.size = { StitchSize::Unit::Percent, 50.0 };
    } else if (change == QLatin1String("crop")) {
        options.crops = false;
    } else if (change == QLatin1String("gone")) {
        QVERIFY(QFile::remove(path("out.work/warped/00001.tif")));
    } else if (change == QLatin1String("tool")) {
        QFile nona(path("bin/nona"));
        QVERIFY(nona.open(QIODevice::ReadWrite));
        QVERIFY(nona.setFileTime(QDateTime::fromSecsSinceEpoch(1'700'000'000),
                                 QFileDevice::FileModificationTime));
    }
    const auto again = stitched(options);
    QVERIFY2(again, again ? "" : qPrintable(again.error().text()));
    QTEST(calls(), "calls");
}

void TestStitchRun::missingToolsAreNamedWithTheirPackages_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("packages");
    QTest::newRow("nona") << QStringLiteral("nona") << QStringLiteral("hugin-tools enblend");
    QTest::newRow("verdandi") << QStringLiteral("verdandi")
                              << QStringLiteral("hugin-tools enblend");
    QTest::newRow("vips") << QStringLiteral("vips") << QStringLiteral("libvips-tools");
}

void TestStitchRun::missingToolsAreNamedWithTheirPackages()
{
    QFETCH(QString, tool);
    QFETCH(QString, packages);
    qputenv("PATH", QFile::encodeName(path("bin")));
    QVERIFY(QFile::remove(path("bin/") + tool));
    const auto result = stitched({});
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolMissing);
    QCOMPARE(result.error().what, tool);
    QCOMPARE(result.error().tryThis, QStringLiteral("apt install ") + packages);
    QVERIFY(!QFile::exists(path("out.work/warped")));
}

void TestStitchRun::badToolsAreExplained_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("why");
    for (const char *const tool : { "nona", "verdandi", "vips" }) {
        const QString name = QString::fromLatin1(tool);
        QTest::addRow("%s fails", tool)
            << name << QByteArray("echo loading; echo no luck; exit 1\n")
            << QStringLiteral("it failed and said: no luck");
        QTest::addRow("%s is killed", tool)
            << name << QByteArray("kill -KILL $$\n")
            << QStringLiteral("it was killed, perhaps because memory ran out");
        QTest::addRow("%s hangs", tool) << name << QByteArray("exec sleep 600\n")
                                        << QStringLiteral("it was stopped since it did nothing "
                                                          "for 1 s");
    }
    // The line that tells of the disk, not the last one.
    QTest::newRow("nona cannot write")
        << QStringLiteral("nona")
        << QByteArray("echo 'exportImage(): Unable to write TIFF data.'; echo '(tiff.cxx:876)'\n"
                      "exit 1\n")
        << QStringLiteral("it failed and said: exportImage(): Unable to write TIFF data.");
    QTest::newRow("verdandi crashes when it cannot write")
        << QStringLiteral("verdandi")
        << QByteArray("echo 'Write error at scanline 0.'; echo terminate called\n"
                      "ulimit -c 0; kill -ABRT $$\n")
        << QStringLiteral("it crashed (signal 6) and said: Write error at scanline 0.");
    QTest::newRow("nona fails somewhere in its source")
        << QStringLiteral("nona") << QByteArray("echo no codec; echo '(./a.cxx:233)'; exit 1\n")
        << QStringLiteral("it failed and said: no codec");
    QTest::newRow("nona leaves nothing") << QStringLiteral("nona") << QByteArray("exit 0\n")
                                         << QStringLiteral("made no picture of it's a.jpg");
    QTest::newRow("nona writes half")
        << QStringLiteral("nona") << QByteArray("head -c 150 made.tif > \"${8}0000.tif\"\n")
        << QStringLiteral("was not written to its end");
    QTest::newRow("verdandi leaves nothing") << QStringLiteral("verdandi") << QByteArray("exit 0\n")
                                             << QStringLiteral("was not written to its end");
    QTest::newRow("verdandi writes half")
        << QStringLiteral("verdandi") << QByteArray("head -c 150 made.tif > \"${1#--output=}\"\n")
        << QStringLiteral("was not written to its end");
    QTest::newRow("vips writes half")
        << QStringLiteral("vips") << QByteArray("head -c 65 made.v > \"$4\"\n")
        << QStringLiteral("was not written to its end");
}

void TestStitchRun::badToolsAreExplained()
{
    QFETCH(QString, tool);
    QFETCH(QByteArray, script);
    QFETCH(QString, why);
    script.replace("made.", "'" + QFile::encodeName(m_folder->path()) + "'/made.");
    makeTool(tool.toLatin1().constData(), script);
    JobWatch watch;
    watch.patience = std::chrono::seconds(why.endsWith(QLatin1String("for 1 s")) ? 1 : 600);
    StitchOptions options;
    options.jobs = 1;
    QDir::setCurrent(m_folder->path());
    const auto result = stitched(options, watch);
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolFailed);
    QCOMPARE(result.error().why, why);
    QVERIFY(!QFile::exists(path("out.work/panorama.v")));

    // With the tool mended the same goes on, and comes to its end.
    makeTools();
    const auto mended = stitched(options);
    QVERIFY2(mended, mended ? "" : qPrintable(mended.error().text()));
}

void TestStitchRun::toolsThatWorkAreWaitedFor()
{
    JobWatch watch;
    watch.patience = std::chrono::seconds(1);
    // Some seconds, and its child's, with a processor of its own; as long as it takes without.
    const auto end = runToEnd(
        QStringLiteral("/bin/sh"),
        { QStringLiteral("-c"),
          QStringLiteral(
              "i=0; while [ $i -lt 600000 ]; do i=$((i + 1)); done\n"
              "sh -c 'i=600000; while [ $i -lt 1200000 ]; do i=$((i + 1)); done' & wait $!") },
        m_folder->path(), watch);
    QVERIFY2(end, end ? "" : qPrintable(end.error().text()));
    QCOMPARE(end.value().exitCode, 0);
}

void TestStitchRun::temporaryFilesOfToolsGoIntoTheWorkFolder()
{
    const auto end = runToEnd(QStringLiteral("/bin/sh"),
                              { QStringLiteral("-c"), QStringLiteral("printf %s \"$TMPDIR\"") },
                              m_folder->path(), {});
    QVERIFY(end);
    QCOMPARE(end.value().said, m_folder->path());
}

void TestStitchRun::stoppedStitchGoesOn()
{
    StitchOptions options;
    options.jobs = 1;
    makeTool("verdandi",
             "echo verdandi >> '" + QFile::encodeName(m_folder->path())
                 + "/log'; exec sleep 600\n");
    JobWatch watch;
    watch.interrupted = [this] {
        QFile log(path("log"));
        return log.open(QIODevice::ReadOnly) && log.readAll().contains("verdandi");
    };
    const auto stopped = stitched(options, watch);
    QVERIFY(!stopped);
    QCOMPARE(stopped.error().code, ExitCode::Interrupted);
    (void)calls();
    makeTools();
    QVERIFY(stitched(options));
    QCOMPARE(calls(), (QStringList{ QStringLiteral("verdandi"), QStringLiteral("vips embed") }));
}

void TestStitchRun::photosThatAreGoneAreNamed()
{
    QVERIFY(QFile::remove(path("c.jpg")));
    QDir::setCurrent(m_folder->path());
    const auto result = stitched({});
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::InputRefused);
    QCOMPARE(result.error().text(),
             QStringLiteral("c.jpg: not there any more; put the photos back where they were, or "
                            "import them again"));
    QVERIFY(!QFile::exists(path("out.work/photos")));
}

void TestStitchRun::photosOfDifferentDepthsAreRefusedFirst()
{
    QVERIFY(writeTiff(path("c.jpg"), 16));
    QDir::setCurrent(m_folder->path());
    const auto result = stitched({});
    QDir::setCurrent(QDir::rootPath());
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::InputRefused);
    QCOMPARE(
        result.error().why,
        QStringLiteral("it's a.jpg has 8 bits a colour, c.jpg has 16, and all must be alike to "
                       "be blended"));
    QVERIFY(calls().isEmpty());
}

void TestStitchRun::greyPhotosBecomeColoured_data()
{
    QTest::addColumn<int>("bands");
    QTest::addColumn<int>("format");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<int>("depth");
    const int bits8 = static_cast<int>(StitchedPicture::Depth::Bits8);
    const int bits16 = static_cast<int>(StitchedPicture::Depth::Bits16);
    const QString embed = QStringLiteral("vips embed");
    QTest::newRow("colours") << 4 << 0 << QStringList{ embed } << bits8;
    // Its depth is that of what came out: PNG and others do not say theirs before.
    QTest::newRow("deep colours") << 4 << 2 << QStringList{ embed } << bits16;
    QTest::newRow("grey") << 2 << 0 << QStringList{ embed, QStringLiteral("vips colourspace srgb") }
                          << bits8;
    QTest::newRow("deep grey") << 2 << 2
                               << QStringList{ embed, QStringLiteral("vips colourspace rgb16") }
                               << bits16;
}

void TestStitchRun::greyPhotosBecomeColoured()
{
    QFETCH(int, bands);
    QFETCH(int, format);
    QFETCH(int, depth);
    QFile picture(path("made.v"));
    QVERIFY(picture.open(QIODevice::WriteOnly) && picture.write(vipsPicture(bands, format)) > 0);
    picture.close();
    const QByteArray folder = QFile::encodeName(m_folder->path());
    makeTool("vips",
             "word=$5; test $1 = embed && word=; echo vips $1 $word >> '" + folder + "/log'; cp '"
                 + folder + "/made.v' \"$4\"\n");
    const auto result = stitched({});
    QVERIFY2(result, result ? "" : qPrintable(result.error().text()));
    QCOMPARE(static_cast<int>(result.value().depth), depth);
    QTEST(calls().filter(QStringLiteral("vips")), "calls");
}

TEST_CLASS(TestStitchRun, QCoreApplication)
#include "tst_stitchrun.moc"
