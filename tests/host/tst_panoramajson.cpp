// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panoramajson.h"
#include "tests/host/testpanoramas.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <random>

using namespace PanoHost;
using TestPanoramas::kFolder;
using TestPanoramas::randomPanorama;
using TestPanoramas::sample;

class PanoramaJsonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleIsWrittenWordForWord();
    void sampleReadsBack();
    void everyPanoramaComesBackByteForByte();
    void fieldOfViewBelongsToTheFocalLengthWritten();
    void everyAngleKeepsItsBits();
    void unknownKeysAreIgnored();
    void missingKeysAreDefaults();
    void pathsFollowTheFolder();
    void wrongKindIsRefusedByKey_data();
    void wrongKindIsRefusedByKey();
    void brokenTextIsRefusedByLine_data();
    void brokenTextIsRefusedByLine();
    void damagedTextIsReadOrRefused();
    void fileRoundTrip();
    void photosAreFoundThroughALinkedFolder();
    void fileErrorsNameTheFile();
};

void PanoramaJsonTest::sampleIsWrittenWordForWord()
{
    const QByteArray expected = R"({
  "schema": 1,
  "source": {"plugin": "7A21C94E-5B20-2020-2020-483181480AB7", "name": "Papywizard import", "record": "pano.xml", "version": "1.0"},
  "lens": {"model": "standard", "focal35mm": 24, "hfovDeg": 73.7397953},
  "positionsKnown": true,
  "rollKnown": true,
  "positions": [
    {"index": 0, "yawDeg": 0, "pitchDeg": 45, "rollDeg": 0, "photos": [
      {"file": "img_0001.jpg", "width": 1200, "height": 800, "orientation": 1, "ev": 12.6438562, "time": "2024-05-01T10:00:00"}
    ]},
    {"index": 1, "yawDeg": 36, "pitchDeg": -45, "rollDeg": 90, "photos": [
      {"file": "img_0002.jpg", "width": 1200, "height": 800, "orientation": 6, "ev": null, "time": null}
    ]}
  ],
  "angles": {
    "yaw": [0, 0.628318548],
    "pitch": [0.785398185, -0.785398185],
    "roll": [0, 1.57079637]
  },
  "links": [
    {"type": 2, "positions": [0, 1]}
  ],
  "options": {"autoDetection": true, "stackLinking": "hard", "levelLinking": "all", "useRecordedLocation": true, "skipOptimization": false, "cleanWrongLinks": true, "overlapPercent": 80, "renderMode": -1},
  "grid": {"mode": 0, "rows": 0, "columns": 0, "missing": [], "bracketCount": 1, "wrap360": false},
  "reserved": {"values": [0, 0, 0], "flag1": false, "index1": -1, "text1": "", "text2": "", "flag3": false},
  "pto": {"yawCentreDeg": 356, "file": "pano.pto"},
  "warnings": [
    "a \"warning\"\nof two lines"
  ]
}
)";
    QCOMPARE(panoramaToJson(sample(), kFolder), expected);
    QVERIFY(!QJsonDocument::fromJson(expected).isNull());
}

void PanoramaJsonTest::sampleReadsBack()
{
    const Panorama before = sample();
    const auto read = panoramaFromJson(panoramaToJson(before, kFolder), kFolder);
    QVERIFY(read.ok());
    const Panorama &after = read.value();
    QCOMPARE(after.source.pluginUid, before.source.pluginUid);
    QCOMPARE(after.source.record, before.source.record);
    QCOMPARE(after.focal35mm, 24.0);
    QCOMPARE(after.lens, LensModel::Standard);
    QCOMPARE(after.positions.size(), 2);
    QCOMPARE(after.positions[1].photos[0].path, before.positions[1].photos[0].path);
    QCOMPARE(after.positions[1].photos[0].orientation, 6);
    QVERIFY(!after.positions[1].photos[0].exposureValue);
    QCOMPARE(after.positions[0].photos[0].timeMs, qint64(1714557600000));
    QCOMPARE(after.positions[0].photos[0].storedSize, QSize(1200, 800));
    const StructuredPanoramaProperties &d = after.description;
    QCOMPARE(d.imageGroups, before.description.imageGroups);
    QCOMPARE(d.yaw, before.description.yaw);
    QCOMPARE(d.roll, before.description.roll);
    QCOMPARE(d.authorizedLinks.size(), 1);
    QCOMPARE(d.authorizedLinks[0].indices, (QVector<qint32>{ 0, 1 }));
    QCOMPARE(d.focalLength, 24.0F);
    QCOMPARE(d.lensModel, LensModel::Standard);
    QVERIFY(d.positionsKnown && d.rollKnown && d.autoDetection && d.cleanWrongLinks);
    QCOMPARE(d.levelLinking, 1);
    QCOMPARE(d.stackLinking, 0);
    QVERIFY(after.project.has_value());
    QCOMPARE(after.project->path, before.project->path);
    QCOMPARE(after.project->yawCentreDegrees, 356.0);
    QCOMPARE(after.warnings, before.warnings);
}

void PanoramaJsonTest::everyPanoramaComesBackByteForByte()
{
    for (unsigned seed = 0; seed < 300; ++seed) {
        const QByteArray written = panoramaToJson(randomPanorama(seed), kFolder);
        const auto read = panoramaFromJson(written, kFolder);
        QVERIFY2(read.ok(), qPrintable(QString::number(seed)));
        QCOMPARE(panoramaToJson(read.value(), kFolder), written);
    }
}

/** Nine digits of a focal length are written; a field of view of all of them differs in the last.
 */
void PanoramaJsonTest::fieldOfViewBelongsToTheFocalLengthWritten()
{
    Panorama panorama = sample();
    for (int i = 0; i < 1000; ++i) {
        panorama.focal35mm = 8.0 + i / 7.0;
        const QByteArray written = panoramaToJson(panorama, kFolder);
        const auto read = panoramaFromJson(written, kFolder);
        QVERIFY(read.ok());
        QCOMPARE(panoramaToJson(read.value(), kFolder), written);
    }
}

void PanoramaJsonTest::everyAngleKeepsItsBits()
{
    std::mt19937 random(1);
    Panorama panorama = sample();
    for (int i = 0; i < 20000; ++i) {
        const auto bits = static_cast<quint32>(random());
        float value = 0.0F;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) {
            panorama.description.yaw.append(value);
        }
    }
    const auto read = panoramaFromJson(panoramaToJson(panorama, kFolder), kFolder);
    QVERIFY(read.ok());
    QCOMPARE(read.value().description.yaw.size(), panorama.description.yaw.size());
    QVERIFY(std::memcmp(read.value().description.yaw.constData(),
                        panorama.description.yaw.constData(),
                        size_t(panorama.description.yaw.size()) * sizeof(float))
            == 0);
}

void PanoramaJsonTest::unknownKeysAreIgnored()
{
    const QByteArray plain = panoramaToJson(sample(), kFolder);
    QByteArray text = plain;
    text.replace("{\n  \"schema\"", "{\n  \"new\": {\"a\": [1, 2]},\n  \"schema\"");
    text.replace("{\"index\": 0,", "{\"shutter\": 1, \"index\": 0,");
    text.replace("{\"type\": 2,", "{\"weight\": null, \"type\": 2,");
    QVERIFY(text != plain);
    const auto read = panoramaFromJson(text, kFolder);
    QVERIFY(read.ok());
    QCOMPARE(panoramaToJson(read.value(), kFolder), plain);
}

void PanoramaJsonTest::missingKeysAreDefaults()
{
    const auto read = panoramaFromJson("{\"schema\": 1}", kFolder);
    QVERIFY(read.ok());
    const StructuredPanoramaProperties fresh;
    const StructuredPanoramaProperties &d = read.value().description;
    QVERIFY(d.imageGroups.isEmpty());
    QCOMPARE(d.useRecordedLocation, fresh.useRecordedLocation);
    QCOMPARE(d.overlap, fresh.overlap);
    QCOMPARE(d.renderMode, fresh.renderMode);
    QCOMPARE(d.reservedIndex1, fresh.reservedIndex1);
    QCOMPARE(d.gridBracketCount, fresh.gridBracketCount);
    QVERIFY(!read.value().project);
}

void PanoramaJsonTest::pathsFollowTheFolder()
{
    const QByteArray text = panoramaToJson(sample(), QStringLiteral("/work/elsewhere"));
    QVERIFY(text.contains("\"file\": \"../pano/img_0001.jpg\""));
    QVERIFY(text.contains("\"record\": \"../pano/pano.xml\""));
    QVERIFY(text.contains("\"file\": \"../pano/pano.pto\""));
    const auto read = panoramaFromJson(text, QStringLiteral("/work/elsewhere"));
    QVERIFY(read.ok());
    QCOMPARE(read.value().positions[0].photos[0].path, kFolder + QStringLiteral("/img_0001.jpg"));
    const auto moved = panoramaFromJson(text, QStringLiteral("/home/elsewhere"));
    QCOMPARE(moved.value().positions[0].photos[0].path, QStringLiteral("/home/pano/img_0001.jpg"));
    QVERIFY(panoramaToJson(sample(), {}).contains("\"file\": \"/work/pano/img_0001.jpg\""));
}

void PanoramaJsonTest::wrongKindIsRefusedByKey_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    QTest::newRow("no schema") << QByteArray("{}") << "schema: must be 1";
    QTest::newRow("schema 2") << QByteArray("{\"schema\": 2}") << "schema: must be 1";
    QTest::newRow("a list") << QByteArray("[1, 2]") << "schema: must be 1";
    QTest::newRow("source") << QByteArray("{\"schema\": 1, \"source\": 5}")
                            << "source: must be an object";
    QTest::newRow("focal length") << QByteArray("{\"schema\": 1, \"lens\": {\"focal35mm\": \"x\"}}")
                                  << "lens.focal35mm: must be a number";
    QTest::newRow("positions") << QByteArray("{\"schema\": 1, \"positions\": {}}")
                               << "positions: must be a list";
    QTest::newRow("position") << QByteArray("{\"schema\": 1, \"positions\": [3]}")
                              << "positions: must be a list of objects";
    QTest::newRow("no photos") << QByteArray("{\"schema\": 1, \"positions\": [{\"photos\": []}]}")
                               << "positions[0].photos: must be a list with a photo";
    QTest::newRow("no file") << QByteArray(
        "{\"schema\": 1, \"positions\": [{\"photos\": [{\"width\": 1}]}]}")
                             << "positions[0].photos[0].file: must be a file name";
    QTest::newRow("NUL in a photo's name")
        << QByteArray(R"({"schema": 1, "positions": [{"photos": [{"file": "a\u0000.jpg"}]}]})")
        << "positions[0].photos[0].file: must be a file name";
    QTest::newRow("NUL in the record's name")
        << QByteArray(R"({"schema": 1, "source": {"record": "a\u0000"}})")
        << "source.record: must be a file name";
    QTest::newRow("NUL in the project's name")
        << QByteArray(R"({"schema": 1, "pto": {"file": "a\u0000"}})")
        << "pto.file: must be a file name";
    QTest::newRow("width") << QByteArray(
        "{\"schema\": 1, \"positions\": [{\"photos\": [{\"file\": \"a\", \"width\": 1e300}]}]}")
                           << "positions[0].photos[0].width: must be a whole number";
    QTest::newRow("orientation") << QByteArray(
        "{\"schema\": 1, \"positions\": [{\"photos\": [{\"file\": \"a\", \"orientation\": 0}]}]}")
                                 << "positions[0].photos[0].orientation: must be 1 to 8";
    QTest::newRow("angle") << QByteArray("{\"schema\": 1, \"angles\": {\"yaw\": [\"x\"]}}")
                           << "angles.yaw: must be a list of numbers";
    QTest::newRow("link") << QByteArray(
        "{\"schema\": 1, \"links\": [{\"positions\": [0, 1]}, {\"positions\": [\"x\"]}]}")
                          << "links[1].positions: must be a list of whole numbers";
    QTest::newRow("half a position")
        << QByteArray("{\"schema\": 1, \"links\": [{\"positions\": [0.5, 1]}]}")
        << "links[0].positions: must be a list of whole numbers";
    QTest::newRow("flag") << QByteArray("{\"schema\": 1, \"positionsKnown\": 1}")
                          << "positionsKnown: must be true or false";
}

void PanoramaJsonTest::wrongKindIsRefusedByKey()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, text);
    const auto read = panoramaFromJson(json, kFolder);
    QVERIFY(!read.ok());
    QCOMPARE(read.error().text(), text);
}

void PanoramaJsonTest::brokenTextIsRefusedByLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("start");
    QTest::newRow("empty") << QByteArray() << "line 1: not well-formed JSON (";
    QTest::newRow("words") << QByteArray("hello") << "line 1: not well-formed JSON (";
    QTest::newRow("cut off") << QByteArray("{\n\"schema\": 1,\n\"lens\": {")
                             << "line 3: not well-formed JSON (";
    QTest::newRow("100,000 lists deep")
        << QByteArray(100000, '[') << "line 1: not well-formed JSON (";
}

void PanoramaJsonTest::brokenTextIsRefusedByLine()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, start);
    const auto read = panoramaFromJson(json, kFolder);
    QVERIFY(!read.ok());
    QVERIFY2(read.error().text().startsWith(start), qPrintable(read.error().text()));
}

void PanoramaJsonTest::damagedTextIsReadOrRefused()
{
    const QByteArray whole = panoramaToJson(sample(), kFolder);
    std::mt19937 random(7);
    int readable = 0;
    for (int i = 0; i < 3000; ++i) {
        QByteArray text = whole;
        const int changes = 1 + int(random() % 3);
        for (int k = 0; k < changes; ++k) {
            static const QByteArray kLikely = "0123456789-.eE\"{}[],:ntf \n\\";
            text[int(random() % uint(text.size()))] = kLikely[int(random() % uint(kLikely.size()))];
        }
        const auto read = panoramaFromJson(text, kFolder);
        if (!read) {
            QVERIFY(!read.error().text().isEmpty());
            continue;
        }
        // What was read can be written, and that comes back as it is.
        ++readable;
        const QByteArray written = panoramaToJson(read.value(), kFolder);
        const auto again = panoramaFromJson(written, kFolder);
        QVERIFY2(again.ok(), written.constData());
        QCOMPARE(panoramaToJson(again.value(), kFolder), written);
    }
    QVERIFY(readable > 100);
    QVERIFY(readable < 2900);
}

void PanoramaJsonTest::fileRoundTrip()
{
    QTemporaryDir folder;
    Panorama panorama = sample();
    panorama.positions[0].photos[0].path = folder.filePath(QStringLiteral("photos/a.jpg"));
    const QString path = folder.filePath(QStringLiteral("pano.json"));
    QVERIFY(writePanoramaJson(panorama, path).ok());
    const auto read = readPanoramaJson(path);
    QVERIFY(read.ok());
    QCOMPARE(read.value().positions[0].photos[0].path,
             folder.filePath(QStringLiteral("photos/a.jpg")));
    const QString again = folder.filePath(QStringLiteral("again.json"));
    QVERIFY(writePanoramaJson(read.value(), again).ok());
    QFile first(path);
    QFile second(again);
    QVERIFY(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    QCOMPARE(second.readAll(), first.readAll());
}

void PanoramaJsonTest::photosAreFoundThroughALinkedFolder()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("deep/real")));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("deep/real")),
                        folder.filePath(QStringLiteral("linked"))));
    Panorama panorama = sample();
    panorama.positions[0].photos[0].path = folder.filePath(QStringLiteral("a.jpg"));
    const QString path = folder.filePath(QStringLiteral("linked/pano.json"));
    QVERIFY(writePanoramaJson(panorama, path).ok());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\"file\": \"../../a.jpg\""));
    const auto read = readPanoramaJson(path);
    QVERIFY(read.ok());
    QCOMPARE(read.value().positions[0].photos[0].path,
             QFileInfo(folder.path()).canonicalFilePath() + QStringLiteral("/a.jpg"));
}

void PanoramaJsonTest::fileErrorsNameTheFile()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("broken.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\n");
    file.close();
    QVERIFY(readPanoramaJson(path).error().text().startsWith(
        path + QStringLiteral(": line 2: not well-formed JSON (")));
    QCOMPARE(readPanoramaJson(QStringLiteral("/dev/zero")).error().text(),
             QStringLiteral("/dev/zero: is not a regular file; name a file that "
                            "'panohost import --json' has written"));
    QVERIFY(!writePanoramaJson(sample(), folder.filePath(QStringLiteral("no/x.json"))).ok());
}

TEST_CLASS(PanoramaJsonTest, QCoreApplication)
#include "tst_panoramajson.moc"
