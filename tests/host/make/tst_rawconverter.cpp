// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/rawconverter.h"
#include "host/model/jobwatch.h"
#include "host/stitch/workfolder.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

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
    void failuresAreNamed_data();
    void failuresAreNamed();
};

void TestRawConverter::knownOnesNeedNoArguments_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("wantsLight");
    QTest::addColumn<bool>("isLinear");
    QTest::newRow("dcraw") << QStringLiteral("dcraw") << false << false;
    QTest::newRow("dcraw, light") << QStringLiteral("dcraw") << true << true;
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
    // As dcraw does: the last argument is the RAW file.
    const QString program = TestPhotos::writeFile(folder.filePath(QStringLiteral("dcraw")),
                                                  "#!/bin/sh\nfor raw; do :; done\ncp '"
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
    RawConverter missing;
    missing.program = QStringLiteral("no-such-converter");
    try {
        developPhotos(panorama, missing, work.value(), {});
        QFAIL("it is found");
    } catch (const CommandError &error) {
        QCOMPARE(error.failure().code, ExitCode::ToolMissing);
    }
}

TEST_CLASS(TestRawConverter, QCoreApplication)
#include "tst_rawconverter.moc"
