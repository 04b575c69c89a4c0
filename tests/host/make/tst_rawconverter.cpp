// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/rawconverter.h"
#include "host/model/jobwatch.h"
#include "host/stitch/workfolder.h"
#include "tests/host/make/support/dngfile.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

using namespace PanoHost;

class TestRawConverter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knownOnesNeedNoArguments_data();
    void knownOnesNeedNoArguments();
    void othersSayWhereTheirFilesGo_data();
    void othersSayWhereTheirFilesGo();
    void rawFilesBecomeTiffsOnce();
    void programsThatNameTheirFilesThemselvesAreFollowed();
    void lightComesOutAsItWentIn_data();
    void lightComesOutAsItWentIn();
    void dcrawTakesTheFirstBalanceForAll();
    void turnedPhotosComeOutUpright();
    void sensorValuesWithoutAPreviewAreRaw();
    void balancesThatMayDifferAreWarnedOf_data();
    void balancesThatMayDifferAreWarnedOf();
    void failuresAreNamed_data();
    void failuresAreNamed();
    void missingConvertersAreNamedWithTheirPackages_data();
    void missingConvertersAreNamedWithTheirPackages();
};

void TestRawConverter::knownOnesNeedNoArguments_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("wantsLight");
    QTest::addColumn<bool>("isLinear");
    QTest::newRow("dcraw") << QStringLiteral("dcraw") << false << false;
    QTest::newRow("dcraw, light") << QStringLiteral("dcraw") << true << true;
    QTest::newRow("libraw") << QStringLiteral("dcraw_emu") << false << false;
    QTest::newRow("libraw, light") << QStringLiteral("dcraw_emu") << true << true;
    QTest::newRow("by its path") << QStringLiteral("/opt/x/dcraw") << true << true;
    QTest::newRow("darktable") << QStringLiteral("darktable-cli") << false << false;
    QTest::newRow("darktable, light") << QStringLiteral("darktable-cli") << true << true;
    QTest::newRow("rawtherapee") << QStringLiteral("rawtherapee-cli") << true << false;
}

void TestRawConverter::knownOnesNeedNoArguments()
{
    QFETCH(QString, command);
    QFETCH(bool, wantsLight);
    const auto converter = rawConverterNamed(command, wantsLight);
    QVERIFY(converter.ok());
    QCOMPARE(converter.value().program, command);
    QCOMPARE(converter.value().arguments.count(QStringLiteral("%i")), 1);
    QTEST(converter.value().isLinear, "isLinear");
}

void TestRawConverter::othersSayWhereTheirFilesGo_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("arguments"); // empty: refused
    QTest::newRow("template") << QStringLiteral("conv --in=%i \"%o\" 'x y'")
                              << QStringList{ QStringLiteral("--in=%i"), QStringLiteral("%o"),
                                              QStringLiteral("'x"), QStringLiteral("y'") };
    QTest::newRow("blanks") << QStringLiteral("conv \"a b\" %i %o")
                            << QStringList{ QStringLiteral("a b"), QStringLiteral("%i"),
                                            QStringLiteral("%o") };
    QTest::newRow("known, with arguments of one's own")
        << QStringLiteral("dcraw -v %i %o")
        << QStringList{ QStringLiteral("-v"), QStringLiteral("%i"), QStringLiteral("%o") };
    QTest::newRow("no output") << QStringLiteral("conv %i") << QStringList();
    QTest::newRow("no input") << QStringLiteral("conv %o") << QStringList();
    QTest::newRow("unknown, alone") << QStringLiteral("conv") << QStringList();
    QTest::newRow("nothing") << QStringLiteral(" ") << QStringList();
}

void TestRawConverter::othersSayWhereTheirFilesGo()
{
    QFETCH(QString, command);
    QFETCH(QStringList, arguments);
    const auto converter = rawConverterNamed(command, true);
    QCOMPARE(converter.ok(), !arguments.isEmpty());
    if (converter) {
        QCOMPARE(converter.value().arguments, arguments);
        QVERIFY(!converter.value().isLinear);
    } else {
        QCOMPARE(converter.error().code, ExitCode::Usage);
    }
}

namespace
{

/** A panorama of one RAW file in portrait position, and a photo that is none. */
Panorama withRawFile(const QTemporaryDir &folder, const QString &name)
{
    Panorama panorama = TestPanoramas::row(2);
    PhotoInfo &photo = panorama.positions[0].photos[0];
    photo.path = TestPhotos::writeFile(folder.filePath(name), "raw");
    photo.orientation = 6;
    photo.isRaw = true;
    return panorama;
}

RawConverter shell(const QString &script)
{
    return { QStringLiteral("sh"),
             { QStringLiteral("-c"), script, QStringLiteral("%i"), QStringLiteral("%o") },
             false };
}

} // namespace

void TestRawConverter::rawFilesBecomeTiffsOnce()
{
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    const QString tiff = folder.filePath(QStringLiteral("made.tif"));
    QVERIFY(TestPhotos::quarters(QSize(40, 60)).save(tiff, "TIFF"));
    const QString count = folder.filePath(QStringLiteral("count"));
    const RawConverter converter
        = shell(QStringLiteral("echo \"$0 $1\" >> '%1'; grep -q raw \"$0\" && cp '%2' \"$1\"")
                    .arg(count, tiff));
    // Neither blanks nor options, brackets or line ends reach the program.
    const QString name = QStringLiteral("-o it's [1]\n%i.NEF");
    Panorama panorama = withRawFile(folder, name);
    QCOMPARE(rawCount(panorama), 1);
    const QString other = panorama.positions[1].photos[0].path;
    developPhotos(panorama, converter, work.value(), {});
    const PhotoInfo &photo = panorama.positions[0].photos[0];
    QCOMPARE(photo.path, work.value().path(QStringLiteral("developed/00001.tif")));
    QCOMPARE(photo.storedSize, QSize(40, 60));
    QCOMPARE(photo.orientation, 1);
    QCOMPARE(rawCount(panorama), 0);
    QCOMPARE(panorama.positions[1].photos[0].path, other);
    QFile calls(count);
    QVERIFY(calls.open(QIODevice::ReadOnly));
    const QByteArray called = calls.readAll();
    QCOMPARE(called, QByteArray("developed/raw-part-00001.NEF developed/part-00001.tif\n"));
    Panorama again = TestPanoramas::row(2);
    again.positions[0].photos[0].path = folder.filePath(name);
    again.positions[0].photos[0].isRaw = true;
    developPhotos(again, converter, work.value(), {});
    QCOMPARE(QFileInfo(count).size(), called.size()); // it is there already
    QCOMPARE(again.positions[0].photos[0].storedSize, QSize(40, 60));
}

void TestRawConverter::programsThatNameTheirFilesThemselvesAreFollowed()
{
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    const QString tiff = folder.filePath(QStringLiteral("made.tif"));
    QVERIFY(TestPhotos::quarters(QSize(40, 60)).save(tiff, "TIFF"));
    // As dcraw does: the last argument is the RAW file, and "-i" has it say what it knows of one.
    const QString program = TestPhotos::writeFile(
        folder.filePath(QStringLiteral("dcraw")),
        "#!/bin/sh\n[ $1 = -i ] && exec echo 'Camera multipliers: 2.5 1 1.5 0'\n"
        "[ \"$*\" = \"-r 2.5 1 1.5 0 -o 1 -4 -T developed/raw-part-00001.NEF\" ] || exit 1\n"
        "for raw; do :; done\ncp '"
            + tiff.toUtf8() + "' \"${raw%.*}.tiff\"\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    Panorama panorama = withRawFile(folder, QStringLiteral("a.NEF"));
    developPhotos(panorama, rawConverterNamed(program, true).value(), work.value(), {});
    QCOMPARE(panorama.positions[0].photos[0].storedSize, QSize(40, 60));
    const QDir developed(work.value().path(QStringLiteral("developed")));
    QCOMPARE(developed.entryList(QDir::Files),
             QStringList({ QStringLiteral("00001.tif"), QStringLiteral("00001.tif.key") }));
    QCOMPARE(QDir(folder.path()).entryList({ QStringLiteral("*.tiff") }), QStringList());
}

namespace
{

using Light = std::function<std::array<double, 3>(int x, int y)>;
constexpr int kEdge = 16; ///< pixels that converters cut off, or know less well

/** Grows to the right in red, downward in green, to the lower right in blue; up to \p most. */
Light ramp(const QSize &size, double most)
{
    return [size, most](int x, int y) {
        const double right = (x + 1.0) / size.width();
        const double down = (y + 1.0) / size.height();
        return std::array<double, 3>{ most * (0.1 + 0.9 * right), most * (0.1 + 0.9 * down),
                                      most * (0.1 + 0.45 * (right + down)) };
    };
}

QString writeRaw(const QTemporaryDir &folder, const QString &name, const DngPicture &picture,
                 const QByteArray &exposureTime)
{
    QString path = folder.filePath(name);
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Photo.ExposureTime"] = exposureTime;
    if (!writeDng(path, picture)) {
        return {};
    }
    TestPhotos::addExif(path, exif);
    return path;
}

Panorama panoramaOf(const QStringList &photos)
{
    Panorama panorama;
    for (const QString &photo : photos) {
        const auto info = readPhotoInfo(photo);
        panorama.positions
            += TestPanoramas::positionAt(0.0, 0.0, { info ? info.value() : PhotoInfo() });
    }
    return panorama;
}

double linearOfSrgb(double v)
{
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

/** How far the photo \p path is at most from \p light, of whose rows and columns \p cut are
 * missing at each edge; percent. */
double mostOffIn(const QString &path, const Light &light, bool isLinear, int cut = 0)
{
    const QImage picture(path);
    double most = picture.depth() == 64 ? 0.0 : 100.0; // 16 bits a colour
    for (int y = kEdge; y < picture.height() - kEdge; ++y) {
        for (int x = kEdge; x < picture.width() - kEdge; ++x) {
            const QColor seen = picture.pixelColor(x, y);
            const std::array<double, 3> values{ seen.redF(), seen.greenF(), seen.blueF() };
            const std::array<double, 3> expected = light(x + cut, y + cut);
            for (size_t i = 0; i < values.size(); ++i) {
                const double found = isLinear ? values[i] : linearOfSrgb(values[i]);
                most = std::max(most, 100.0 * std::abs(found / expected[i] - 1.0));
            }
        }
    }
    return most;
}

constexpr double kMostOff = 0.5; ///< percent
constexpr QSize kSensor(600, 400); // the smallest that all converters take

} // namespace

void TestRawConverter::lightComesOutAsItWentIn_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("wantsLight");
    QTest::addColumn<int>("cut");
    QTest::addColumn<double>("mostOff"); // percent
    for (const bool wantsLight : { false, true }) {
        const char *const what = wantsLight ? "light" : "picture";
        const auto row = [&](const char *program, int cut, double mostOff) {
            QTest::addRow("%s, %s", program, what)
                << QString::fromLatin1(program) << wantsLight << cut << mostOff;
        };
        row("dcraw", 0, 0.5);
        row("dcraw_emu", 0, 0.5);
        row("darktable-cli", 0, 0.5);
        row("rawtherapee-cli", 4, 1.0); // its steps are coarser in the dark
    }
}

void TestRawConverter::lightComesOutAsItWentIn()
{
    QFETCH(QString, program);
    QFETCH(bool, wantsLight);
    QFETCH(int, cut);
    QFETCH(double, mostOff);
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        QSKIP("this converter is not installed");
    }
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    constexpr double kMost = 0.96; // no converter may take it for white
    DngPicture longer{ kSensor, ramp(kSensor, kMost) };
    DngPicture shorter{ kSensor, ramp(kSensor, kMost / 4.0) };
    Panorama panorama
        = panoramaOf({ writeRaw(folder, QStringLiteral("long.dng"), longer, "1/25"),
                       writeRaw(folder, QStringLiteral("short.dng"), shorter, "1/100") });
    const Panorama recorded = panorama;
    QCOMPARE(rawCount(panorama), 2);
    const RawConverter converter = rawConverterNamed(program, wantsLight).value();
    try {
        developPhotos(panorama, converter, work.value(), {});
    } catch (const CommandError &error) {
        QFAIL(qPrintable(error.failure().text()));
    }
    const PhotoInfo &bright = panorama.positions[0].photos[0];
    const PhotoInfo &dark = panorama.positions[1].photos[0];
    QCOMPARE(bright.storedSize, kSensor - 2 * QSize(cut, cut));
    QCOMPARE(QImageReader(bright.path).size(), bright.storedSize);
    const double brightOff = mostOffIn(bright.path, longer.light, converter.isLinear, cut);
    const double darkOff = mostOffIn(dark.path, shorter.light, converter.isLinear, cut);
    qInfo("%.2f %% off at most, a quarter of the light %.2f %%", brightOff, darkOff);
    QVERIFY(brightOff <= mostOff);
    QVERIFY(darkOff <= mostOff);
    // What converters write of exposures is not asked for.
    for (int i = 0; i < 2; ++i) {
        const PhotoInfo &photo = panorama.positions[i].photos[0];
        const PhotoInfo &raw = recorded.positions[i].photos[0];
        QCOMPARE(photo.exposureValue, raw.exposureValue);
        QCOMPARE(photo.focal35mm, raw.focal35mm);
        QCOMPARE(photo.timeText, QStringLiteral("2024-05-01T10:00:00"));
    }
    QCOMPARE(dark.exposureValue.value() - bright.exposureValue.value(), 2.0);
}

void TestRawConverter::dcrawTakesTheFirstBalanceForAll()
{
    if (QStandardPaths::findExecutable(QStringLiteral("dcraw")).isEmpty()) {
        QSKIP("dcraw is not installed");
    }
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    const QSize size(120, 80);
    DngPicture picture{ size, ramp(size, 0.9) };
    const QString first = writeRaw(folder, QStringLiteral("it's 1.dng"), picture, "1/100");
    // More than all red there is: where each photo is balanced by itself, this one gets brighter.
    picture.statedRed = 1.4;
    const QString other = writeRaw(folder, QStringLiteral("2.dng"), picture, "1/100");
    Panorama panorama = panoramaOf({ first, other });
    developPhotos(panorama, rawConverterNamed(QStringLiteral("dcraw"), true).value(), work.value(),
                  {});
    for (const Position &position : qAsConst(panorama.positions)) {
        QVERIFY(mostOffIn(position.photos[0].path, picture.light, true) <= kMostOff);
    }
}

void TestRawConverter::turnedPhotosComeOutUpright()
{
    if (QStandardPaths::findExecutable(QStringLiteral("dcraw")).isEmpty()) {
        QSKIP("dcraw is not installed");
    }
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    const QSize size(120, 80);
    DngPicture picture{ size, ramp(size, 0.9) };
    picture.orientation = 6; // a quarter clockwise
    const QString path = writeRaw(folder, QStringLiteral("a.dng"), picture, "1/100");
    Panorama panorama = panoramaOf({ path });
    QCOMPARE(uprightSize(panorama.positions[0].photos[0]), size.transposed());
    developPhotos(panorama, rawConverterNamed(QStringLiteral("dcraw"), true).value(), work.value(),
                  {});
    const PhotoInfo &photo = panorama.positions[0].photos[0];
    QCOMPARE(photo.storedSize, size.transposed());
    QCOMPARE(photo.orientation, 1);
    const auto upright = [&](int x, int y) { return picture.light(y, size.height() - 1 - x); };
    QVERIFY(mostOffIn(photo.path, upright, true) <= kMostOff);
}

void TestRawConverter::sensorValuesWithoutAPreviewAreRaw()
{
    const QTemporaryDir folder;
    DngPicture picture{ QSize(60, 40), ramp(QSize(60, 40), 1.0) };
    picture.hasPreview = false;
    const auto photo = readPhotoInfo(writeRaw(folder, QStringLiteral("a.dng"), picture, "1/100"));
    QVERIFY(photo.ok());
    QVERIFY(photo.value().isRaw);
    QCOMPARE(photo.value().storedSize, picture.size);
}

void TestRawConverter::balancesThatMayDifferAreWarnedOf_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("whiteBalance"); // EXIF: 0 automatic, 1 manual
    QTest::addColumn<int>("warnings");
    QTest::newRow("automatic") << QStringLiteral("dcraw_emu") << QByteArray("0") << 1;
    QTest::newRow("chosen") << QStringLiteral("dcraw_emu") << QByteArray("1") << 0;
    QTest::newRow("one for all") << QStringLiteral("dcraw") << QByteArray("0") << 0;
}

void TestRawConverter::balancesThatMayDifferAreWarnedOf()
{
    QFETCH(QString, program);
    QFETCH(QByteArray, whiteBalance);
    QFETCH(int, warnings);
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    const QString tiff = folder.filePath(QStringLiteral("made.tif"));
    QVERIFY(TestPhotos::quarters(QSize(40, 60)).save(tiff, "TIFF"));
    const QString path
        = TestPhotos::writeFile(folder.filePath(program),
                                "#!/bin/sh\nfor raw; do :; done\nfor made in "
                                "\"${raw%.*}.tiff\" developed/part-00001.tif; do cp '"
                                    + tiff.toUtf8() + "' \"$made\"; done\n");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    DngPicture picture{ QSize(60, 40), ramp(QSize(60, 40), 1.0) };
    const QString raw = writeRaw(folder, QStringLiteral("a.dng"), picture, "1/100");
    TestPhotos::addExif(raw, { { "Exif.Photo.WhiteBalance", whiteBalance } });
    Panorama panorama = panoramaOf({ raw });
    QStringList said;
    JobWatch watch;
    watch.log = [&said](JobWatch::Note kind, const QString &text) {
        if (kind == JobWatch::Note::Warning) {
            said += text;
        }
    };
    developPhotos(panorama, rawConverterNamed(path, true).value(), work.value(), watch);
    QCOMPARE(said.size(), warnings);
    QVERIFY(said.isEmpty()
            || said[0].startsWith(QStringLiteral("the camera chose the white balance of 1 RAW "
                                                 "files one by one, and dcraw_emu follows it")));
}

void TestRawConverter::failuresAreNamed_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("message");
    QTest::newRow("fails") << QStringLiteral("echo no such camera; exit 1")
                           << QStringLiteral("sh, of %1: it failed and said: no such camera; ");
    QTest::newRow("killed") << QStringLiteral("kill -KILL $$")
                            << QStringLiteral("sh, of %1: it was killed, perhaps because memory");
    QTest::newRow("nothing") << QStringLiteral("true")
                             << QStringLiteral("sh: it left no whole picture of %1; ");
    QTest::newRow("half a file") << QStringLiteral("printf 'II*\\0' > \"$1\"")
                                 << QStringLiteral("sh: it left no whole picture of %1; ");
}

void TestRawConverter::failuresAreNamed()
{
    QFETCH(QString, script);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    Panorama panorama = withRawFile(folder, QStringLiteral("a.NEF"));
    try {
        developPhotos(panorama, shell(script), work.value(), {});
        QFAIL("it is taken for a picture");
    } catch (const CommandError &error) {
        message = message.arg(folder.filePath(QStringLiteral("a.NEF")));
        QVERIFY2(error.failure().text().startsWith(message), qPrintable(error.failure().text()));
        const QDir developed(work.value().path(QStringLiteral("developed")));
        QVERIFY(developed.isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
    }
}

void TestRawConverter::missingConvertersAreNamedWithTheirPackages_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("cure");
    const auto row = [](const char *program, const char *cure) {
        QTest::newRow(program) << QString::fromLatin1(program) << QString::fromLatin1(cure);
    };
    row("dcraw", "apt install dcraw");
    row("dcraw_emu", "apt install libraw-bin");
    row("darktable-cli", "apt install darktable");
    row("rawtherapee-cli", "apt install rawtherapee");
    row("no-such-converter",
        "is its name right? of those known: apt install dcraw, libraw-bin, darktable or "
        "rawtherapee");
}

void TestRawConverter::missingConvertersAreNamedWithTheirPackages()
{
    QFETCH(QString, program);
    QFETCH(QString, cure);
    const QTemporaryDir folder;
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("pano.work")));
    QVERIFY(work.ok());
    Panorama panorama = withRawFile(folder, QStringLiteral("a.NEF"));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()));
    const auto restored = qScopeGuard([&path] { qputenv("PATH", path); });
    try {
        developPhotos(panorama, { program, {} }, work.value(), {});
        QFAIL("it is found");
    } catch (const CommandError &error) {
        QCOMPARE(error.failure().code, ExitCode::ToolMissing);
        QCOMPARE(error.failure().why, QStringLiteral("this RAW converter was not found"));
        QCOMPARE(error.failure().tryThis, cure);
    }
}

TEST_CLASS(TestRawConverter, QCoreApplication)
#include "tst_rawconverter.moc"
