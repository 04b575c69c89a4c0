// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panoramajson.h"

#include "host/model/relativepath.h"
#include "host/model/safefile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtMath>

#include <cmath>

namespace PanoHost
{

namespace
{

constexpr int kSchema = 1;
/** 70,000 positions with a million links take about 64 MB. */
constexpr qint64 kMostBytes = 512LL * 1024 * 1024;

// ---- values as JSON text

QByteArray json(double value)
{
    return std::isfinite(value) ? QByteArray::number(value, 'g', 9) : QByteArray("null");
}

QByteArray json(int value)
{
    return QByteArray::number(value);
}

QByteArray json(bool value)
{
    return value ? "true" : "false";
}

QByteArray json(const QString &text)
{
    QByteArray quoted = QJsonDocument(QJsonArray{ text }).toJson(QJsonDocument::Compact);
    return quoted.mid(1, quoted.size() - 2);
}

/** The pairs of one object, in the order in which they are added. */
class ObjectText
{
public:
    template <typename T> ObjectText &add(const char *key, const T &value)
    {
        return addText(key, json(value));
    }
    ObjectText &addText(const char *key, const QByteArray &value)
    {
        m_text += (m_text.isEmpty() ? "\"" : ", \"") + QByteArray(key) + "\": " + value;
        return *this;
    }
    [[nodiscard]] QByteArray text() const { return '{' + m_text + '}'; }

private:
    QByteArray m_text;
};

/** \p items one per line, \p indent deep; "[]" when there is none. */
QByteArray lines(const QByteArrayList &items, const QByteArray &indent)
{
    if (items.isEmpty()) {
        return "[]";
    }
    const QByteArray inner = '\n' + indent + "  ";
    return '[' + inner + items.join(',' + inner) + '\n' + indent + ']';
}

QByteArray numbers(const QVector<float> &values)
{
    QByteArrayList texts;
    texts.reserve(values.size());
    for (const float value : values) {
        texts.append(json(double(value)));
    }
    return '[' + texts.join(", ") + ']';
}

LensModel lensFromName(const QString &name)
{
    if (name == QLatin1String("standard")) {
        return LensModel::Standard;
    }
    return name == QLatin1String("fisheye") ? LensModel::Fisheye : LensModel::NotChosen;
}

QString absolute(const QString &path, const QString &folder)
{
    return path.isEmpty() || folder.isEmpty()
        ? path
        : QDir::cleanPath(QDir(folder).absoluteFilePath(path));
}

int gridColumns(const Panorama &panorama)
{
    const int rows = panorama.description.gridRows;
    return rows > 0 ? (panorama.positions.size() + rows - 1) / rows : 0;
}

// ---- the parts of the document

QByteArray photoJson(const PhotoInfo &photo, const QString &folder)
{
    ObjectText object;
    object.add("file", relativePath(photo.path, folder))
        .add("width", photo.storedSize.width())
        .add("height", photo.storedSize.height())
        .add("orientation", photo.orientation)
        .add("ev", photo.exposureValue.value_or(qQNaN()))
        .addText("time", photo.timeText.isEmpty() ? QByteArray("null") : json(photo.timeText));
    return object.text();
}

QByteArray positionJson(int index, const Position &position, const QString &folder)
{
    QByteArrayList photos;
    for (const PhotoInfo &photo : position.photos) {
        photos.append(photoJson(photo, folder));
    }
    ObjectText object;
    object.add("index", index)
        .add("yawDeg", position.yawDegrees)
        .add("pitchDeg", position.pitchDegrees)
        .add("rollDeg", position.rollDegrees)
        .addText("photos", lines(photos, "    "));
    return object.text();
}

QByteArray linkJson(const AuthorizedLink &link)
{
    QByteArrayList positions;
    for (const qint32 index : link.indices) {
        positions.append(json(index));
    }
    ObjectText object;
    object.add("type", link.linkType).addText("positions", '[' + positions.join(", ") + ']');
    return object.text();
}

QByteArray optionsJson(const StructuredPanoramaProperties &d)
{
    ObjectText object;
    object.add("autoDetection", d.autoDetection)
        .add("stackLinking",
             d.stackLinking == 0 ? QStringLiteral("hard") : QStringLiteral("detect"))
        .add("levelLinking",
             d.levelLinking == 0 ? QStringLiteral("reference") : QStringLiteral("all"))
        .add("useRecordedLocation", d.useRecordedLocation)
        .add("skipOptimization", d.skipOptimization)
        .add("cleanWrongLinks", d.cleanWrongLinks)
        .add("overlapPercent", d.overlap)
        .add("renderMode", d.renderMode);
    return object.text();
}

QByteArray gridJson(const Panorama &panorama)
{
    const StructuredPanoramaProperties &d = panorama.description;
    ObjectText object;
    object.add("mode", d.gridMode)
        .add("rows", d.gridRows)
        .add("columns", gridColumns(panorama))
        .add("bracketCount", d.gridBracketCount)
        .add("wrap360", d.gridWrap360);
    return object.text();
}

QByteArray reservedJson(const StructuredPanoramaProperties &d)
{
    const QByteArrayList values{ json(d.reservedValues[0]), json(d.reservedValues[1]),
                                 json(d.reservedValues[2]) };
    ObjectText object;
    object.addText("values", '[' + values.join(", ") + ']')
        .add("flag1", d.reservedFlag1)
        .add("index1", d.reservedIndex1)
        .add("text1", d.reservedText1)
        .add("text2", d.reservedText2)
        .add("flag3", d.reservedFlag3);
    return object.text();
}

QByteArray sourceJson(const SourceInfo &source, const QString &folder)
{
    ObjectText object;
    object.add("plugin", source.pluginUid)
        .add("name", source.name)
        .add("record", relativePath(source.record, folder))
        .add("version", source.version);
    return object.text();
}

QByteArray lensJson(const Panorama &panorama)
{
    const bool empty = panorama.positions.isEmpty();
    const QSize size = empty ? QSize() : panorama.positions.first().photos.first().storedSize;
    // A field of view that belongs to the digits written: who reads and writes them gets it again.
    const QByteArray focal = json(panorama.focal35mm);
    ObjectText object;
    object.add("model", lensName(panorama.lens))
        .addText("focal35mm", focal)
        .add("hfovDeg", horizontalFovDegrees(size, focal.toDouble(), panorama.lens));
    return object.text();
}

QByteArray anglesJson(const StructuredPanoramaProperties &d)
{
    return "{\n    \"yaw\": " + numbers(d.yaw) + ",\n    \"pitch\": " + numbers(d.pitch)
        + ",\n    \"roll\": " + numbers(d.roll) + "\n  }";
}

// ---- reading

/** Thrown nowhere else: the readers below stop at the first value of a wrong kind. */
struct WrongValue {
    QString key;
    QString expected;
};

/** The members of one object, with a default for those that are missing or null. */
class ObjectReader
{
public:
    ObjectReader(QJsonObject object, QString path)
        : m_object(std::move(object))
        , m_path(std::move(path))
    {
    }

    [[nodiscard]] double number(const char *key, double missing = 0.0) const
    {
        const QJsonValue value = member(key);
        require(value.isDouble() || absent(value), key, "a number");
        return value.toDouble(missing);
    }
    [[nodiscard]] qint32 integer(const char *key, qint32 missing = 0) const
    {
        const double value = number(key, missing);
        const bool whole
            = value >= -2147483648.0 && value <= 2147483647.0 && std::floor(value) == value;
        require(whole, key, "a whole number");
        return static_cast<qint32>(value);
    }
    [[nodiscard]] bool flag(const char *key, bool missing = false) const
    {
        const QJsonValue value = member(key);
        require(value.isBool() || absent(value), key, "true or false");
        return value.toBool(missing);
    }
    [[nodiscard]] QString text(const char *key) const
    {
        const QJsonValue value = member(key);
        require(value.isString() || absent(value), key, "a text");
        return value.toString();
    }
    [[nodiscard]] ObjectReader object(const char *key) const
    {
        const QJsonValue value = member(key);
        require(value.isObject() || absent(value), key, "an object");
        return { value.toObject(), pathOf(key) + QLatin1Char('.') };
    }
    [[nodiscard]] QJsonArray array(const char *key) const
    {
        const QJsonValue value = member(key);
        require(value.isArray() || absent(value), key, "a list");
        return value.toArray();
    }
    [[nodiscard]] bool has(const char *key) const { return !absent(member(key)); }
    [[nodiscard]] QString pathOf(const char *key) const { return m_path + QLatin1String(key); }
    void require(bool fine, const char *key, const char *expected) const
    {
        if (!fine) {
            throw WrongValue{ pathOf(key), QLatin1String(expected) };
        }
    }

private:
    [[nodiscard]] QJsonValue member(const char *key) const
    {
        return m_object.value(QLatin1String(key));
    }
    [[nodiscard]] static bool absent(const QJsonValue &value)
    {
        return value.isUndefined() || value.isNull();
    }

    QJsonObject m_object;
    QString m_path;
};

/** Entry \p index of the list \p key as an object. */
ObjectReader entry(const ObjectReader &parent, const char *key, const QJsonArray &list, int index)
{
    parent.require(list[index].isObject(), key, "a list of objects");
    return { list[index].toObject(), parent.pathOf(key) + QStringLiteral("[%1].").arg(index) };
}

/** The path \p key, relative to \p folder; empty when there is none. No path holds a NUL. */
QString readPath(const ObjectReader &object, const char *key, const QString &folder)
{
    const QString path = object.text(key);
    object.require(!path.contains(QChar::Null), key, "a file name");
    return absolute(path, folder);
}

PhotoInfo readPhotoEntry(const ObjectReader &object, const QString &folder)
{
    PhotoInfo photo;
    photo.path = readPath(object, "file", folder);
    object.require(!photo.path.isEmpty(), "file", "a file name");
    photo.storedSize = QSize(object.integer("width"), object.integer("height"));
    photo.orientation = object.integer("orientation", 1);
    object.require(photo.orientation >= 1 && photo.orientation <= 8, "orientation", "1 to 8");
    if (object.has("ev")) {
        photo.exposureValue = object.number("ev");
    }
    photo.timeText = object.text("time");
    photo.timeMs = timeMsFromText(photo.timeText);
    return photo;
}

Position readPosition(const ObjectReader &object, const QString &folder)
{
    Position position;
    position.yawDegrees = object.number("yawDeg");
    position.pitchDegrees = object.number("pitchDeg");
    position.rollDegrees = object.number("rollDeg");
    const QJsonArray photos = object.array("photos");
    object.require(!photos.isEmpty(), "photos", "a list with a photo");
    for (int i = 0; i < photos.size(); ++i) {
        position.photos.append(readPhotoEntry(entry(object, "photos", photos, i), folder));
    }
    return position;
}

QVector<float> readAngles(const ObjectReader &angles, const char *key)
{
    const QJsonArray list = angles.array(key);
    QVector<float> values;
    values.reserve(list.size());
    for (const QJsonValue &value : list) {
        angles.require(value.isDouble() || value.isNull(), key, "a list of numbers");
        values.append(static_cast<float>(value.toDouble(qQNaN())));
    }
    return values;
}

AuthorizedLink readLink(const ObjectReader &object)
{
    AuthorizedLink link;
    link.linkType = object.integer("type");
    const QJsonArray positions = object.array("positions");
    for (const QJsonValue &position : positions) {
        constexpr qint32 kNone = -2147483647 - 1;
        const qint32 index = position.toInt(kNone);
        object.require(index != kNone, "positions", "a list of whole numbers");
        link.indices.append(index);
    }
    return link;
}

void readOptions(const ObjectReader &options, StructuredPanoramaProperties &d)
{
    d.autoDetection = options.flag("autoDetection");
    d.stackLinking = options.text("stackLinking") == QLatin1String("detect") ? 1 : 0;
    d.levelLinking = options.text("levelLinking") == QLatin1String("all") ? 1 : 0;
    d.useRecordedLocation = options.flag("useRecordedLocation", true);
    d.skipOptimization = options.flag("skipOptimization");
    d.cleanWrongLinks = options.flag("cleanWrongLinks");
    d.overlap = options.number("overlapPercent", d.overlap);
    d.renderMode = options.integer("renderMode", -1);
}

void readGrid(const ObjectReader &grid, StructuredPanoramaProperties &d)
{
    d.gridMode = grid.integer("mode");
    d.gridRows = grid.integer("rows");
    d.gridBracketCount = grid.integer("bracketCount", 1);
    d.gridWrap360 = grid.flag("wrap360");
}

void readReserved(const ObjectReader &reserved, StructuredPanoramaProperties &d)
{
    const QJsonArray values = reserved.array("values");
    for (int i = 0; i < 3 && i < values.size(); ++i) {
        d.reservedValues[size_t(i)] = values[i].toInt();
    }
    d.reservedFlag1 = reserved.flag("flag1");
    d.reservedIndex1 = reserved.integer("index1", -1);
    d.reservedText1 = reserved.text("text1");
    d.reservedText2 = reserved.text("text2");
    d.reservedFlag3 = reserved.flag("flag3");
}

Panorama readPanorama(const ObjectReader &root, const QString &folder)
{
    root.require(root.integer("schema") == kSchema, "schema", "1");
    Panorama panorama;
    const ObjectReader source = root.object("source");
    panorama.source = { source.text("plugin"), source.text("name"),
                        readPath(source, "record", folder), source.text("version") };
    const ObjectReader lens = root.object("lens");
    panorama.lens = lensFromName(lens.text("model"));
    panorama.focal35mm = lens.number("focal35mm");

    StructuredPanoramaProperties &d = panorama.description;
    d.focalLength = static_cast<float>(panorama.focal35mm);
    d.lensModel = panorama.lens;
    d.positionsKnown = root.flag("positionsKnown");
    d.rollKnown = root.flag("rollKnown");
    const QJsonArray positions = root.array("positions");
    for (int i = 0; i < positions.size(); ++i) {
        const Position position = readPosition(entry(root, "positions", positions, i), folder);
        QStringList group;
        for (const PhotoInfo &photo : position.photos) {
            group.append(photo.path);
        }
        d.imageGroups.append(group);
        panorama.positions.append(position);
    }
    const ObjectReader angles = root.object("angles");
    d.yaw = readAngles(angles, "yaw");
    d.pitch = readAngles(angles, "pitch");
    d.roll = readAngles(angles, "roll");
    const QJsonArray links = root.array("links");
    for (int i = 0; i < links.size(); ++i) {
        d.authorizedLinks.append(readLink(entry(root, "links", links, i)));
    }
    readOptions(root.object("options"), d);
    readGrid(root.object("grid"), d);
    readReserved(root.object("reserved"), d);
    if (root.has("pto")) {
        const ObjectReader project = root.object("pto");
        panorama.project
            = ProjectReference{ readPath(project, "file", folder), project.number("yawCentreDeg") };
    }
    const QJsonArray warnings = root.array("warnings");
    for (const QJsonValue &warning : warnings) {
        panorama.warnings.append(warning.toString());
    }
    return panorama;
}

Failure refused(const QString &what, const QString &why)
{
    return { ExitCode::InputRefused, what, why, {} };
}

} // namespace

QByteArray panoramaToJson(const Panorama &panorama, const QString &folder)
{
    const StructuredPanoramaProperties &d = panorama.description;
    QByteArrayList positions;
    for (int i = 0; i < panorama.positions.size(); ++i) {
        positions.append(positionJson(i, panorama.positions[i], folder));
    }
    QByteArrayList links;
    links.reserve(d.authorizedLinks.size());
    for (const AuthorizedLink &link : d.authorizedLinks) {
        links.append(linkJson(link));
    }
    QByteArrayList warnings;
    for (const QString &warning : panorama.warnings) {
        warnings.append(json(warning));
    }
    QByteArrayList members{
        "\"schema\": " + json(kSchema),        "\"source\": " + sourceJson(panorama.source, folder),
        "\"lens\": " + lensJson(panorama),     "\"positionsKnown\": " + json(d.positionsKnown),
        "\"rollKnown\": " + json(d.rollKnown), "\"positions\": " + lines(positions, "  "),
        "\"angles\": " + anglesJson(d),        "\"links\": " + lines(links, "  "),
        "\"options\": " + optionsJson(d),      "\"grid\": " + gridJson(panorama),
        "\"reserved\": " + reservedJson(d),
    };
    if (panorama.project) {
        ObjectText project;
        project.add("yawCentreDeg", panorama.project->yawCentreDegrees)
            .add("file", relativePath(panorama.project->path, folder));
        members.append("\"pto\": " + project.text());
    }
    members.append("\"warnings\": " + lines(warnings, "  "));
    return "{\n  " + members.join(",\n  ") + "\n}\n";
}

Result<Panorama> panoramaFromJson(const QByteArray &json, const QString &folder)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        const int line = json.left(error.offset).count('\n') + 1;
        return refused(QStringLiteral("line %1").arg(line),
                       QStringLiteral("not well-formed JSON (%1)").arg(error.errorString()));
    }
    try {
        return readPanorama({ document.object(), {} }, folder);
    } catch (const WrongValue &mismatch) {
        return refused(mismatch.key, QStringLiteral("must be ") + mismatch.expected);
    }
}

Result<Panorama> readPanoramaJson(const QString &path)
{
    const QString tryThis = QStringLiteral("name a file that 'panohost import --json' has written");
    const auto content = readRegularFile(path, kMostBytes);
    if (!content) {
        Failure failure = content.error();
        failure.tryThis = tryThis;
        return failure;
    }
    auto panorama = panoramaFromJson(content.value(), QFileInfo(path).canonicalPath());
    if (!panorama) {
        Failure failure = panorama.error();
        failure.what = path + QStringLiteral(": ") + failure.what;
        failure.tryThis = tryThis;
        return failure;
    }
    return panorama;
}

Result<QString> writePanoramaJson(const Panorama &panorama, const QString &path)
{
    return writeFileAtomically(path, panoramaToJson(panorama, QFileInfo(path).absolutePath()));
}

} // namespace PanoHost
