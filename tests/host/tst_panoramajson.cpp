// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/core/panoramajson.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace PanoHost;

namespace
{

const QString kFolder = QStringLiteral("/work/pano");

Panorama sample()
{
    Panorama panorama;
    panorama.source = { QStringLiteral("7A21C94E-5B20-2020-2020-483181480AB7"),
                        QStringLiteral("Papywizard import"), kFolder + QStringLiteral("/pano.xml"),
                        QStringLiteral("1.0") };
    panorama.focal35mm = 24.0;
    panorama.lens = LensModel::Standard;
    StructuredPanoramaProperties &d = panorama.description;
    d.positionsKnown = true;
    d.rollKnown = true;
    d.focalLength = 24.0F;
    d.lensModel = LensModel::Standard;
    d.autoDetection = true;
    d.levelLinking = 1;
    d.cleanWrongLinks = true;
    d.yaw = { 0.0F, 0.628318548F };
    d.pitch = { 0.785398185F, -0.785398185F };
    d.roll = { 0.0F, 1.57079637F };
    AuthorizedLink link;
    link.linkType = 2;
    link.indices = { 0, 1 };
    d.authorizedLinks = { link };
    for (int i = 0; i < 2; ++i) {
        Position position;
        position.yawDegrees = 36.0 * i;
        position.pitchDegrees = i == 0 ? 45.0 : -45.0;
        position.rollDegrees = 90.0 * i;
        PhotoInfo photo;
        photo.path = kFolder + QStringLiteral("/img_000%1.jpg").arg(i + 1);
        photo.storedSize = QSize(1200, 800);
        photo.orientation = i == 0 ? 1 : 6;
        if (i == 0) {
            photo.exposureValue = 12.643856189774724;
            photo.timeText = QStringLiteral("2024-05-01T10:00:00");
            photo.timeMs = 1714557600000;
        }
        position.photos = { photo };
        panorama.positions.append(position);
        d.imageGroups.append({ photo.path });
    }
    panorama.project = ProjectReference{ kFolder + QStringLiteral("/pano.pto"), 356.0 };
    panorama.warnings = QStringList(QStringLiteral("a \"warning\"\nof two lines"));
    return panorama;
}

/** A description full of odd values, different for each \p seed. */
Panorama randomPanorama(unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> angle(-1e4, 1e4);
    std::uniform_int_distribution<int> count(0, 5);
    Panorama panorama = sample();
    StructuredPanoramaProperties &d = panorama.description;
    d = StructuredPanoramaProperties();
    panorama.positions.clear();
    const int positions = count(random);
    for (int i = 0; i < positions; ++i) {
        Position position;
        position.yawDegrees = angle(random);
        position.pitchDegrees = angle(random) / 1e7;
        position.rollDegrees = angle(random);
        const int photos = 1 + count(random);
        for (int k = 0; k < photos; ++k) {
            PhotoInfo photo;
            photo.path = kFolder + QString::fromUtf8("/ä\"b\\c %1 $(id)\t.jpg").arg(k);
            photo.storedSize = QSize(count(random), count(random));
            photo.orientation = 1 + count(random);
            if (count(random) > 2) {
                photo.exposureValue = angle(random) / 1000.0;
                photo.timeText = QStringLiteral("2024-03-31T02:30:00.125");
            }
            position.photos.append(photo);
            // any bits that make a 32-bit float, finite or not
            const auto bits = static_cast<quint32>(random());
            float value = 0.0F;
            std::memcpy(&value, &bits, sizeof value);
            d.yaw.append(value);
            d.pitch.append(float(angle(random)));
        }
        panorama.positions.append(position);
    }
    d.gridRows = count(random);
    d.gridMode = count(random);
    d.overlap = angle(random);
    d.renderMode = count(random) - 1;
    d.reservedValues = { { -1, 2147483647, int(-2147483647 - 1) } };
    d.reservedText1 = QString::fromUtf8("全景");
    if (count(random) > 2) {
        panorama.project.reset();
    }
    return panorama;
}

// A validator for the part of JSON Schema (draft 7) that the schema file uses.

QString typeOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("boolean");
    case QJsonValue::Double:
        return std::floor(value.toDouble()) == value.toDouble() ? QStringLiteral("integer")
                                                                : QStringLiteral("number");
    case QJsonValue::String:
        return QStringLiteral("string");
    case QJsonValue::Array:
        return QStringLiteral("array");
    default:
        return QStringLiteral("object");
    }
}

bool hasType(const QJsonValue &value, const QJsonValue &wanted)
{
    const QJsonArray types = wanted.isArray() ? wanted.toArray() : QJsonArray{ wanted };
    const QString type = typeOf(value);
    return types.contains(type)
        || (type == QLatin1String("integer") && types.contains(QStringLiteral("number")));
}

QString validate(const QJsonValue &value, const QJsonObject &schema, const QString &path);

QString validateObject(const QJsonObject &object, const QJsonObject &schema, const QString &path)
{
    const QJsonArray required = schema[QLatin1String("required")].toArray();
    for (const QJsonValue &key : required) {
        if (!object.contains(key.toString())) {
            return path + QStringLiteral(": lacks ") + key.toString();
        }
    }
    const QJsonObject properties = schema[QLatin1String("properties")].toObject();
    const QStringList keys = object.keys();
    for (const QString &key : keys) {
        if (!properties.contains(key)) {
            return path + QStringLiteral(": must not have ") + key;
        }
        const QString problem
            = validate(object[key], properties[key].toObject(), path + QLatin1Char('/') + key);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

QString validateArray(const QJsonArray &array, const QJsonObject &schema, const QString &path)
{
    const int least = schema[QLatin1String("minItems")].toInt(0);
    const int most = schema[QLatin1String("maxItems")].toInt(std::numeric_limits<int>::max());
    if (array.size() < least || array.size() > most) {
        return path + QStringLiteral(": number of items");
    }
    for (int i = 0; i < array.size(); ++i) {
        const QString problem = validate(array[i], schema[QLatin1String("items")].toObject(),
                                         path + QStringLiteral("[%1]").arg(i));
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

/** Empty when \p value fits \p schema, else where and why not. */
QString validate(const QJsonValue &value, const QJsonObject &schema, const QString &path)
{
    if (schema.contains(QLatin1String("type")) && !hasType(value, schema[QLatin1String("type")])) {
        return path + QStringLiteral(": is of type ") + typeOf(value);
    }
    const bool listed = !schema.contains(QLatin1String("enum"))
        || schema[QLatin1String("enum")].toArray().contains(value);
    const bool constant
        = !schema.contains(QLatin1String("const")) || schema[QLatin1String("const")] == value;
    const bool inRange = !value.isDouble()
        || (value.toDouble() >= schema[QLatin1String("minimum")].toDouble(-1e300)
            && value.toDouble() <= schema[QLatin1String("maximum")].toDouble(1e300));
    const bool longEnough = !value.isString()
        || value.toString().size() >= schema[QLatin1String("minLength")].toInt(0);
    if (!listed || !constant || !inRange || !longEnough) {
        return path + QStringLiteral(": has a value that is not allowed");
    }
    if (value.isObject()) {
        return validateObject(value.toObject(), schema, path);
    }
    return value.isArray() ? validateArray(value.toArray(), schema, path) : QString();
}

QJsonObject schema()
{
    QFile file(QStringLiteral(PANOHOST_SCHEMA));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot open the schema");
    }
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

class PanoramaJsonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleIsWrittenWordForWord();
    void sampleReadsBack();
    void everyPanoramaComesBackByteForByte();
    void fieldOfViewBelongsToTheFocalLengthWritten();
    void everyAngleKeepsItsBits();
    void outputFitsTheSchema();
    void schemaCheckFindsWhatIsWrong_data();
    void schemaCheckFindsWhatIsWrong();
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
  "grid": {"mode": 0, "rows": 0, "columns": 0, "bracketCount": 1, "wrap360": false},
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

void PanoramaJsonTest::outputFitsTheSchema()
{
    const QJsonObject rules = schema();
    QVERIFY(rules.contains(QLatin1String("properties")));
    const auto problem = [&rules](const Panorama &panorama) {
        return validate(QJsonDocument::fromJson(panoramaToJson(panorama, kFolder)).object(), rules,
                        {});
    };
    QCOMPARE(problem(sample()), QString());
    QCOMPARE(problem(Panorama()), QString());
    for (unsigned seed = 0; seed < 100; ++seed) {
        const QString found = problem(randomPanorama(seed));
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void PanoramaJsonTest::schemaCheckFindsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("schema 2") << QByteArray("\"schema\": 1") << QByteArray("\"schema\": 2");
    QTest::newRow("renamed key") << QByteArray("\"links\"") << QByteArray("\"Links\"");
    QTest::newRow("text for a number")
        << QByteArray("\"focal35mm\": 24") << QByteArray("\"focal35mm\": \"24\"");
    QTest::newRow("fraction for a count")
        << QByteArray("\"width\": 1200") << QByteArray("\"width\": 1200.5");
    QTest::newRow("orientation 9")
        << QByteArray("\"orientation\": 6") << QByteArray("\"orientation\": 9");
    QTest::newRow("unknown lens") << QByteArray("\"standard\"") << QByteArray("\"round\"");
    QTest::newRow("extra key") << QByteArray("{\"type\": 2,")
                               << QByteArray("{\"x\": 1, \"type\": 2,");
}

void PanoramaJsonTest::schemaCheckFindsWhatIsWrong()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QByteArray text = panoramaToJson(sample(), kFolder);
    QVERIFY(text.contains(from));
    text.replace(from, to);
    QVERIFY(!validate(QJsonDocument::fromJson(text).object(), schema(), {}).isEmpty());
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
