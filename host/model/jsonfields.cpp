// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/jsonfields.h"

#include "host/model/relativepath.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtMath>

#include <cmath>
#include <limits>

namespace PanoHost
{

namespace
{

/** A line end, and the begin of the next line. */
QByteArray line(int indent)
{
    return '\n' + QByteArray(indent, ' ');
}

QByteArray pair(const char *key, const QByteArray &value)
{
    return '"' + QByteArray(key) + "\": " + value;
}

QByteArray inLines(char open, const QByteArrayList &members, char close, int indent)
{
    return open + line(indent + 2) + members.join(',' + line(indent + 2)) + line(indent) + close;
}

QString unless(bool fine, const char *expected)
{
    return fine ? QString() : QLatin1String(expected);
}

/** Writes the members of an object to the end of a text. */
class Writer : public JsonFields
{
public:
    Writer(QByteArray &text, const QString &folder, int indent, bool lines, int index = 0)
        : JsonFields(folder, index)
        , m_text(text)
        , m_indent(indent)
        , m_lines(lines)
    {
    }

    /** Writes an object, on a line that is indented by \p indent. */
    static void write(QByteArray &text, const QString &folder, int indent, bool lines, int index,
                      const Members &members)
    {
        text += '{';
        Writer writer(text, folder, lines ? indent + 2 : indent, lines, index);
        members(writer);
        text += lines ? line(indent) + '}' : "}";
    }

private:
    void addValue(const char *key, const Value &value, const About &about) override
    {
        QByteArray text = value.text();
        text = about.nullable && text == "\"\"" ? "null" : text;
        addKey(key, text.contains('\n') ? text.replace('\n', line(m_indent)) : text);
    }
    void addObject(const char *key, const Members &members, const About &about) override
    {
        addKey(key, {});
        write(m_text, folder(), m_indent, about.lines, 0, members);
    }
    void addList(const char *key, int count, const Item &item, const About &) override
    {
        addKey(key, "[");
        for (int i = 0; i < count; ++i) {
            m_text += (i == 0 ? "" : ",") + line(m_indent + 2);
            write(m_text, folder(), m_indent + 2, false, i,
                  [&](JsonFields &json) { item(json, i); });
        }
        m_text += count == 0 ? "]" : line(m_indent) + ']';
    }
    [[nodiscard]] bool has(const char *, bool known) const override { return known; }

    void addKey(const char *key, const QByteArray &value)
    {
        m_text += m_first ? "" : m_lines ? "," : ", ";
        if (m_lines) {
            m_text += line(m_indent);
        }
        m_text.append('"').append(key).append("\": ").append(value);
        m_first = false;
    }

    QByteArray &m_text;
    int m_indent;
    bool m_lines;
    bool m_first = true;
};

/** Reads the members of an object. Throws the `Failure` of the first that is wrong. */
class Reader : public JsonFields
{
public:
    /** \p place stands before the keys in messages. */
    Reader(QJsonObject object, const QString &folder, QString place = {})
        : JsonFields(folder)
        , m_object(std::move(object))
        , m_place(std::move(place))
    {
    }

private:
    void addValue(const char *key, const Value &value, const About &about) override
    {
        if (!value.take) {
            return;
        }
        const QJsonValue json = value.type.items == nullptr ? member(key) : array(key);
        const QString expected = value.take(json);
        require(expected.isEmpty(), key, expected);
        if (json.isDouble()) {
            insist(key, json.toDouble(), about);
        } else if (qstrcmp(value.type.name, "string") == 0) {
            insist(key, json.toString().size(), about);
        }
    }
    void addObject(const char *key, const Members &members, const About &) override
    {
        const QJsonValue json = member(key);
        require(json.isObject() || json.isNull(), key, QStringLiteral("an object"));
        Reader reader(json.toObject(), folder(), m_place + QLatin1String(key) + QLatin1Char('.'));
        members(reader);
    }
    void addList(const char *key, int, const Item &item, const About &about) override
    {
        const QJsonArray list = array(key);
        insist(key, list.size(), about);
        for (int i = 0; i < list.size(); ++i) {
            require(list[i].isObject(), key, QStringLiteral("a list of objects"));
            Reader reader(list[i].toObject(), folder(),
                          m_place + QLatin1String(key) + QLatin1Char('[') + QString::number(i)
                              + QLatin1String("]."));
            item(reader, i);
        }
    }
    [[nodiscard]] bool has(const char *key, bool) const override { return !member(key).isNull(); }

    [[nodiscard]] QJsonValue member(const char *key) const
    {
        const QJsonValue value = m_object.value(QLatin1String(key));
        return value.isUndefined() ? QJsonValue() : value;
    }
    [[nodiscard]] QJsonArray array(const char *key) const
    {
        const QJsonValue json = member(key);
        require(json.isArray() || json.isNull(), key, QStringLiteral("a list"));
        return json.toArray();
    }
    void require(bool fine, const char *key, const QString &expected) const
    {
        if (!fine) {
            throw refused(m_place + QLatin1String(key), QStringLiteral("must be ") + expected);
        }
    }
    void insist(const char *key, double measure, const About &about) const
    {
        const bool outside
            = (about.least && measure < *about.least) || (about.most && measure > *about.most);
        require(about.insisted == nullptr || !outside, key, QLatin1String(about.insisted));
    }

    QJsonObject m_object;
    QString m_place;
};

/** Puts the members of an object into a schema. */
class Schema : public JsonFields
{
public:
    /** The object's schema begins on a line that is indented by \p indent. */
    explicit Schema(int indent)
        : JsonFields({})
        , m_indent(indent)
    {
    }

    [[nodiscard]] QByteArray text(const About &about, const QByteArrayList &head = {}) const
    {
        const QByteArrayList own{ pair("required", jsonText(m_required, false)),
                                  pair("additionalProperties", jsonText(false)),
                                  pair("properties",
                                       inLines('{', m_properties, '}', m_indent + 2)) };
        return inLines('{', head + rules("object", about) + own, '}', m_indent);
    }

private:
    void addValue(const char *key, const Value &value, const About &about) override
    {
        const Type &type = value.type;
        QByteArrayList list = type.allowed.isEmpty()
            ? rules(type.name, about)
            : QByteArrayList{ pair(type.name, type.allowed) };
        if (type.items != nullptr) {
            // Null stands for a number that is not finite.
            const bool number = qstrcmp(type.items, "number") == 0;
            list.append(
                pair("items", onOneLine(rules(type.items, number ? About().orNull() : About()))));
        }
        add(key, onOneLine(list), about);
    }
    void addObject(const char *key, const Members &members, const About &about) override
    {
        Schema schema(m_indent + 4);
        members(schema);
        add(key, schema.text(about), about);
    }
    void addList(const char *key, int, const Item &item, const About &about) override
    {
        Schema schema(m_indent + 6);
        item(schema, 0);
        const QByteArrayList items{ pair("items", schema.text({})) };
        add(key, inLines('{', rules("array", about) + items, '}', m_indent + 4), about);
    }
    [[nodiscard]] bool has(const char *, bool) const override { return true; }

    void add(const char *key, const QByteArray &schema, const About &about)
    {
        m_properties.append(pair(key, schema));
        if (!about.optional) {
            m_required.append('"' + QByteArray(key) + '"');
        }
    }
    static QByteArray onOneLine(const QByteArrayList &rules)
    {
        return "{ " + rules.join(", ") + " }";
    }
    /** What is said of a value of \p type, but for what is in it. */
    static QByteArrayList rules(const char *type, const About &about)
    {
        const QByteArray name = '"' + QByteArray(type) + '"';
        const QByteArray measure = name == "\"string\"" ? "Length"
            : name == "\"array\""                       ? "Items"
                                                        : "imum";
        QByteArrayList list;
        if (about.description != nullptr) {
            list.append(pair("description", jsonText(QString::fromUtf8(about.description))));
        }
        list.append(pair("type", about.nullable ? '[' + name + ", \"null\"]" : name));
        if (about.least) {
            list.append(pair("min" + measure, jsonText(*about.least)));
        }
        if (about.most) {
            list.append(pair("max" + measure, jsonText(*about.most)));
        }
        return list;
    }

    int m_indent;
    QByteArrayList m_required;
    QByteArrayList m_properties;
};

} // namespace

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

QByteArray jsonText(const QByteArrayList &values, bool lines)
{
    return lines && !values.isEmpty() ? inLines('[', values, ']', 0)
                                      : '[' + values.join(", ") + ']';
}

QString takeJson(const QJsonValue &json, bool &value)
{
    value = json.toBool(value);
    return unless(json.isBool() || json.isNull(), "true or false");
}

QString takeJson(const QJsonValue &json, double &value)
{
    value = json.toDouble(value);
    return unless(json.isDouble() || json.isNull(), "a number");
}

QString takeJson(const QJsonValue &json, qint32 &value)
{
    double number = value;
    const QString expected = takeJson(json, number);
    const bool whole = number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max() && std::floor(number) == number;
    value = whole ? static_cast<qint32>(number) : value;
    return expected.isEmpty() ? unless(whole, "a whole number") : expected;
}

QString takeJson(const QJsonValue &json, QString &value)
{
    value = json.toString(value);
    return unless(json.isString() || json.isNull(), "a text");
}

QString takeJson(const QJsonValue &json, std::optional<double> &value)
{
    return json.isNull() ? QString() : takeJson(json, value.emplace());
}

namespace
{

template <typename Number> QString takeNumbers(const QJsonValue &json, QVector<Number> &values)
{
    bool fine = true;
    const QJsonArray list = json.toArray();
    values.reserve(list.size());
    for (const QJsonValue &value : list) {
        fine = fine && (value.isDouble() || value.isNull());
        values.append(static_cast<Number>(value.toDouble(qQNaN())));
    }
    return unless(fine, "a list of numbers");
}

} // namespace

QString takeJson(const QJsonValue &json, QVector<float> &values)
{
    return takeNumbers(json, values);
}

QString takeJson(const QJsonValue &json, QVector<double> &values)
{
    return takeNumbers(json, values);
}

QString takeJson(const QJsonValue &json, QVector<qint32> &values)
{
    bool fine = true;
    const QJsonArray list = json.toArray();
    values.reserve(list.size());
    for (const QJsonValue &value : list) {
        // What is no whole number is whatever is asked for instead.
        fine = fine && value.toInt(0) == value.toInt(1);
        values.append(value.toInt());
    }
    return unless(fine, "a list of whole numbers");
}

QString takeJson(const QJsonValue &json, std::array<qint32, 3> &values)
{
    const QJsonArray list = json.toArray();
    for (int i = 0; i < 3 && i < list.size(); ++i) {
        values[size_t(i)] = list[i].toInt();
    }
    return {};
}

QString takeJson(const QJsonValue &json, QStringList &values)
{
    const QJsonArray list = json.toArray();
    for (const QJsonValue &value : list) {
        values.append(value.toString());
    }
    return {};
}

JsonFields::JsonFields(QString folder, int index)
    : m_folder(std::move(folder))
    , m_index(index)
{
}

void JsonFields::constant(const char *key, int value)
{
    const auto take = [value](const QJsonValue &json) {
        int found = value - 1;
        const QString expected = takeJson(json, found);
        return expected.isEmpty() && found != value ? QString::number(value) : expected;
    };
    addValue(key,
             { { "const", nullptr, jsonText(value) }, [value] { return jsonText(value); }, take },
             {});
}

QByteArray JsonFields::pathText(const QString &path) const
{
    return jsonText(relativePath(path, m_folder));
}

QString JsonFields::takePath(const QJsonValue &json, QString &path) const
{
    const QString expected = takeJson(json, path);
    if (!expected.isEmpty() || path.contains(QChar::Null)) {
        return expected.isEmpty() ? QStringLiteral("a file name") : expected;
    }
    if (!path.isEmpty() && !m_folder.isEmpty()) {
        path = QDir::cleanPath(QDir(m_folder).absoluteFilePath(path));
    }
    return {};
}

QByteArray writeJson(const JsonFields::Members &members, const QString &folder)
{
    QByteArray text;
    Writer::write(text, folder, 0, true, 0, members);
    return text + '\n';
}

std::optional<Failure> readJson(const QByteArray &json, const QString &folder,
                                const JsonFields::Members &members)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        const int line = json.left(error.offset).count('\n') + 1;
        return refused(QStringLiteral("line %1").arg(line),
                       QStringLiteral("not well-formed JSON (%1)").arg(error.errorString()));
    }
    try {
        Reader reader(document.object(), folder);
        members(reader);
        return {};
    } catch (const Failure &failure) {
        return failure;
    }
}

QByteArray jsonSchema(const char *id, const char *title, const About &about,
                      const JsonFields::Members &members)
{
    Schema schema(0);
    members(schema);
    const QByteArrayList head{
        pair("$schema", jsonText(QStringLiteral("http://json-schema.org/draft-07/schema#"))),
        pair("$id", jsonText(QString::fromUtf8(id))),
        pair("title", jsonText(QString::fromUtf8(title)))
    };
    return schema.text(about, head) + '\n';
}

} // namespace PanoHost
