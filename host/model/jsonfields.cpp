// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/jsonfields.h"

#include "host/model/relativepath.h"

#include <QDir>
#include <QJsonDocument>
#include <QtMath>

#include <cmath>
#include <limits>

namespace PanoHost
{

namespace
{

Failure refused(const QString &what, const QString &why)
{
    return { ExitCode::InputRefused, what, why, {} };
}

/** One rule of a schema. */
QByteArray rule(const char *name, const QByteArray &value)
{
    return '"' + QByteArray(name) + "\": " + value;
}

/** What a schema says of a value of \p type, but for what is in it. */
QByteArrayList rules(const char *type, const About &about)
{
    const QByteArray name = '"' + QByteArray(type) + '"';
    QByteArrayList list;
    if (about.description != nullptr) {
        list.append(rule("description", jsonText(QString::fromUtf8(about.description))));
    }
    list.append(rule("type", about.nullable ? '[' + name + ", \"null\"]" : name));
    const bool text = name == "\"string\"";
    const bool array = name == "\"array\"";
    if (about.least) {
        list.append(rule(text        ? "minLength"
                             : array ? "minItems"
                                     : "minimum",
                         jsonText(*about.least)));
    }
    if (about.most) {
        list.append(rule(text        ? "maxLength"
                             : array ? "maxItems"
                                     : "maximum",
                         jsonText(*about.most)));
    }
    return list;
}

QByteArray onOneLine(const QByteArrayList &rules)
{
    return "{ " + rules.join(", ") + " }";
}

QByteArray inLines(const QByteArrayList &rules, int indent)
{
    return '{' + jsonLine(indent + 2) + rules.join(',' + jsonLine(indent + 2)) + jsonLine(indent)
        + '}';
}

} // namespace

About &About::orNull()
{
    nullable = true;
    return *this;
}

About &About::atLeast(int smallest)
{
    least = smallest;
    return *this;
}

About &About::between(int smallest, int largest)
{
    least = smallest;
    most = largest;
    return *this;
}

About &About::insist(const char *what)
{
    insisted = what;
    return *this;
}

About &About::inLines()
{
    lines = true;
    return *this;
}

QByteArray jsonText(double value)
{
    return std::isfinite(value) ? QByteArray::number(value, 'g', 9) : QByteArray("null");
}

QByteArray jsonText(int value)
{
    return QByteArray::number(value);
}

QByteArray jsonText(bool value)
{
    return value ? "true" : "false";
}

QByteArray jsonText(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{ text }).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray jsonText(const std::optional<double> &value)
{
    return jsonText(value.value_or(qQNaN()));
}

QByteArray jsonLine(int indent)
{
    return '\n' + QByteArray(indent, ' ');
}

// ---- writing

JsonWriter::JsonWriter(QByteArray &text, QString folder, int indent, bool lines, int index)
    : m_text(text)
    , m_folder(std::move(folder))
    , m_indent(indent)
    , m_lines(lines)
    , m_index(index)
{
}

void JsonWriter::field(const char *key, const QString &text, const About &about)
{
    add(key, about.nullable && text.isEmpty() ? QByteArray("null") : jsonText(text));
}

void JsonWriter::path(const char *key, const QString &path, const About &about)
{
    field(key, relativePath(path, m_folder), about);
}

void JsonWriter::add(const char *key, const QByteArray &value)
{
    m_text += m_first ? "" : m_lines ? "," : ", ";
    m_text += (m_lines ? jsonLine(m_indent) : QByteArray()) + '"' + key + "\": " + value;
    m_first = false;
}

// ---- reading

JsonReader::JsonReader(QJsonObject object, QString folder, QString place)
    : m_object(std::move(object))
    , m_folder(std::move(folder))
    , m_place(std::move(place))
{
}

void JsonReader::field(const char *key, bool &value, const About &)
{
    const QJsonValue found = member(key);
    require(found.isBool() || found.isNull(), key, "true or false");
    value = found.toBool(value);
}

void JsonReader::field(const char *key, qint32 &value, const About &about)
{
    double number = value;
    field(key, number);
    const bool whole = number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max() && std::floor(number) == number;
    require(whole, key, "a whole number");
    value = static_cast<qint32>(number);
    insist(key, value, about);
}

void JsonReader::field(const char *key, double &value, const About &about)
{
    const QJsonValue found = member(key);
    require(found.isDouble() || found.isNull(), key, "a number");
    value = found.toDouble(value);
    insist(key, value, about);
}

void JsonReader::field(const char *key, std::optional<double> &value, const About &about)
{
    if (!member(key).isNull()) {
        field(key, value.emplace(), about);
    }
}

void JsonReader::field(const char *key, QString &value, const About &about)
{
    const QJsonValue found = member(key);
    require(found.isString() || found.isNull(), key, "a text");
    value = found.toString(value);
    insist(key, value.size(), about);
}

void JsonReader::constant(const char *key, int value)
{
    qint32 found = 0;
    field(key, found);
    require(found == value, key, jsonText(value).constData());
}

void JsonReader::path(const char *key, QString &path, const About &about)
{
    field(key, path, about);
    // No file's name holds a NUL.
    require(!path.contains(QChar::Null), key, "a file name");
    if (!path.isEmpty() && !m_folder.isEmpty()) {
        path = QDir::cleanPath(QDir(m_folder).absoluteFilePath(path));
    }
}

void JsonReader::numbers(const char *key, QVector<float> &values, const About &)
{
    const QJsonArray list = array(key);
    values.reserve(list.size());
    for (const QJsonValue &value : list) {
        require(value.isDouble() || value.isNull(), key, "a list of numbers");
        values.append(static_cast<float>(value.toDouble(qQNaN())));
    }
}

void JsonReader::numbers(const char *key, QVector<qint32> &values, const About &)
{
    const QJsonArray list = array(key);
    values.reserve(list.size());
    for (const QJsonValue &value : list) {
        // What is no whole number comes back as any number that is asked for.
        require(value.toInt(0) == value.toInt(1), key, "a list of whole numbers");
        values.append(value.toInt());
    }
}

void JsonReader::numbers(const char *key, std::array<qint32, 3> &values, const About &)
{
    const QJsonArray list = array(key);
    for (int i = 0; i < 3 && i < list.size(); ++i) {
        values[size_t(i)] = list[i].toInt();
    }
}

void JsonReader::texts(const char *key, QStringList &values)
{
    const QJsonArray list = array(key);
    for (const QJsonValue &value : list) {
        values.append(value.toString());
    }
}

QJsonValue JsonReader::member(const char *key) const
{
    const QJsonValue value = m_object.value(QLatin1String(key));
    return value.isUndefined() ? QJsonValue() : value;
}

QJsonArray JsonReader::array(const char *key) const
{
    const QJsonValue value = member(key);
    require(value.isArray() || value.isNull(), key, "a list");
    return value.toArray();
}

JsonReader JsonReader::inside(const char *key) const
{
    const QJsonValue value = member(key);
    require(value.isObject() || value.isNull(), key, "an object");
    return { value.toObject(), m_folder, m_place + QLatin1String(key) + QLatin1Char('.') };
}

JsonReader JsonReader::item(const char *key, const QJsonArray &list, int index) const
{
    require(list[index].isObject(), key, "a list of objects");
    return { list[index].toObject(), m_folder,
             m_place + QStringLiteral("%1[%2].").arg(QLatin1String(key)).arg(index) };
}

void JsonReader::require(bool fine, const char *key, const char *what) const
{
    if (!fine) {
        throw refused(m_place + QLatin1String(key),
                      QStringLiteral("must be ") + QLatin1String(what));
    }
}

void JsonReader::insist(const char *key, double measure, const About &about) const
{
    const bool outside
        = (about.least && measure < *about.least) || (about.most && measure > *about.most);
    require(about.insisted == nullptr || !outside, key, about.insisted);
}

Result<QJsonObject> jsonObject(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        const int line = json.left(error.offset).count('\n') + 1;
        return refused(QStringLiteral("line %1").arg(line),
                       QStringLiteral("not well-formed JSON (%1)").arg(error.errorString()));
    }
    return document.object();
}

// ---- the schema

JsonSchema::JsonSchema(int indent)
    : m_indent(indent)
{
}

void JsonSchema::constant(const char *key, int value)
{
    add(key, onOneLine(QByteArrayList{ rule("const", jsonText(value)) }));
}

QByteArray JsonSchema::text(const About &about, const QByteArrayList &head) const
{
    const QByteArrayList own{ rule("required", '[' + m_required.join(", ") + ']'),
                              rule("additionalProperties", jsonText(false)),
                              rule("properties", inLines(m_properties, m_indent + 2)) };
    return inLines(head + rules("object", about) + own, m_indent);
}

void JsonSchema::add(const char *key, const QByteArray &schema, bool required)
{
    m_properties.append(rule(key, schema));
    if (required) {
        m_required.append('"' + QByteArray(key) + '"');
    }
}

void JsonSchema::addScalar(const char *key, const char *type, const About &about)
{
    add(key, onOneLine(rules(type, about)));
}

void JsonSchema::addWords(const char *key, const QByteArrayList &words)
{
    add(key, onOneLine(QByteArrayList{ rule("enum", '[' + words.join(", ") + ']') }));
}

void JsonSchema::addList(const char *key, const char *type, const About &about, const About &item)
{
    add(key,
        onOneLine(rules("array", about)
                  + QByteArrayList{ rule("items", onOneLine(rules(type, item))) }));
}

void JsonSchema::addList(const char *key, const JsonSchema &items, const About &about)
{
    add(key,
        inLines(rules("array", about) + QByteArrayList{ rule("items", items.text({})) },
                m_indent + 4));
}

} // namespace PanoHost
