// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QByteArrayList>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <array>
#include <initializer_list>
#include <optional>

/*
 * JSON documents whose fields are described once. A description names the fields of a record in the
 * order in which they are written:
 *
 *     constexpr auto kShotFields = [](auto &json, auto &shot) {
 *         json.path("file", shot.path);
 *         json.field("ev", shot.exposureValue, "null: not known");
 *     };
 *
 * `writeJson`, `readJson` and `jsonSchema` call it with a class of theirs. The three classes have
 * the same operations; `JsonWriter` says what they mean.
 */
namespace PanoHost
{

/** What is to be said of a field besides its key and type. */
struct About {
    About() = default;
    About(const char *text)
        : description(text)
    {
    }
    /** Null may stand for a number, and does for an empty text. */
    About &orNull();
    /** Bounds of a number, or of the length of a text or list. */
    About &atLeast(int smallest);
    About &between(int smallest, int largest);
    /** A reader refuses what is out of bounds: it "must be \p what". Without this it takes all. */
    About &insist(const char *what);
    /** The members of this object stand on a line each. */
    About &inLines();

    const char *description = nullptr;
    std::optional<int> least;
    std::optional<int> most;
    const char *insisted = nullptr;
    bool nullable = false;
    bool lines = false;
};

/** Numbers have at most 9 significant digits; those that are not finite are null. */
[[nodiscard]] QByteArray jsonText(double value);
[[nodiscard]] QByteArray jsonText(int value);
[[nodiscard]] QByteArray jsonText(bool value);
[[nodiscard]] QByteArray jsonText(const QString &text);
[[nodiscard]] QByteArray jsonText(const std::optional<double> &value);
/** A line end, and the begin of the next line. */
[[nodiscard]] QByteArray jsonLine(int indent);

/** Writes the members of an object. */
class JsonWriter
{
public:
    /** Appends to \p text, on a line that is indented by \p indent. */
    JsonWriter(QByteArray &text, QString folder, int indent = 0, bool lines = false, int index = 0);

    /** A truth value, a number or a text. */
    template <typename T> void field(const char *key, const T &value, const About & = {})
    {
        add(key, jsonText(value));
    }
    void field(const char *key, const QString &text, const About &about = {});
    /** A field behind a getter and a setter; 0 is set where it is missing. */
    template <typename Owner, typename T>
    void property(const char *key, const Owner &owner, T (Owner::*get)() const, void (Owner::*)(T),
                  const About & = {})
    {
        field(key, (owner.*get)());
    }
    /** Follows from other fields, so it is not read. */
    template <typename T> void derived(const char *key, const T &value, const About & = {})
    {
        field(key, value);
    }
    /** The place of this object in its list; not read. */
    void index(const char *key) { field(key, m_index); }
    /** The same in all documents; others are refused. */
    void constant(const char *key, int value) { field(key, value); }
    /** A file, written as it is found from the document's folder. */
    void path(const char *key, const QString &path, const About & = {});
    /** What \p name calls one of the values; other words are read as if it were missing. */
    template <typename T>
    void word(const char *key, const T &value, std::initializer_list<T>, QString (*name)(T))
    {
        field(key, name(value));
    }
    /** Numbers on one line. */
    template <typename Numbers>
    void numbers(const char *key, const Numbers &values, const About & = {})
    {
        QByteArrayList texts;
        texts.reserve(int(values.size()));
        for (const auto value : values) {
            texts.append(jsonText(value));
        }
        add(key, '[' + texts.join(", ") + ']');
    }
    /** Texts, one per line. */
    void texts(const char *key, const QStringList &values)
    {
        items(key, values, [this](const QString &value, int) { m_text += jsonText(value); });
    }
    template <typename Record, typename Fields>
    void object(const char *key, const Record &record, const Fields &fields,
                const About &about = {})
    {
        add(key, {});
        write(record, fields, m_indent, about.lines);
    }
    /** An object that may be missing. */
    template <typename Record, typename Fields>
    void object(const char *key, const std::optional<Record> &record, const Fields &fields,
                const About &about = {})
    {
        if (record) {
            object(key, *record, fields, about);
        }
    }
    /** Objects, one per line. */
    template <typename Record, typename Fields>
    void list(const char *key, const QVector<Record> &records, const Fields &fields,
              const About & = {})
    {
        items(key, records, [&](const Record &record, int index) {
            write(record, fields, m_indent + 2, false, index);
        });
    }
    /** \p record with its braces. */
    template <typename Record, typename Fields>
    void write(const Record &record, const Fields &fields, int indent, bool lines, int index = 0)
    {
        m_text += '{';
        JsonWriter members(m_text, m_folder, lines ? indent + 2 : indent, lines, index);
        fields(members, record);
        m_text += lines ? jsonLine(indent) + '}' : "}";
    }

private:
    template <typename List, typename Write>
    void items(const char *key, const List &values, const Write &write)
    {
        add(key, "[");
        for (int i = 0; i < values.size(); ++i) {
            m_text += (i == 0 ? "" : ",") + jsonLine(m_indent + 2);
            write(values[i], i);
        }
        m_text += values.isEmpty() ? "]" : jsonLine(m_indent) + ']';
    }
    void add(const char *key, const QByteArray &value);

    QByteArray &m_text;
    QString m_folder;
    int m_indent;
    bool m_lines;
    int m_index;
    bool m_first = true;
};

/** Reads the members of an object; what is missing or null stays as it is. Throws `Failure`. */
class JsonReader
{
public:
    /** \p place stands before the keys in messages. */
    JsonReader(QJsonObject object, QString folder, QString place = {});

    void field(const char *key, bool &value, const About & = {});
    void field(const char *key, qint32 &value, const About &about = {});
    void field(const char *key, double &value, const About &about = {});
    void field(const char *key, std::optional<double> &value, const About &about = {});
    void field(const char *key, QString &value, const About &about = {});
    template <typename Owner, typename T>
    void property(const char *key, Owner &owner, T (Owner::*)() const, void (Owner::*set)(T),
                  const About &about = {})
    {
        T value{};
        field(key, value, about);
        (owner.*set)(value);
    }
    template <typename T> void derived(const char *, const T &, const About & = {}) { }
    void index(const char *) { }
    void constant(const char *key, int value);
    void path(const char *key, QString &path, const About &about = {});
    template <typename T>
    void word(const char *key, T &value, std::initializer_list<T> values, QString (*name)(T))
    {
        QString text;
        field(key, text);
        for (const T candidate : values) {
            value = name(candidate) == text ? candidate : value;
        }
    }
    void numbers(const char *key, QVector<float> &values, const About & = {});
    void numbers(const char *key, QVector<qint32> &values, const About & = {});
    void numbers(const char *key, std::array<qint32, 3> &values, const About & = {});
    void texts(const char *key, QStringList &values);
    template <typename Record, typename Fields>
    void object(const char *key, Record &record, const Fields &fields, const About & = {})
    {
        JsonReader members = inside(key);
        fields(members, record);
    }
    template <typename Record, typename Fields>
    void object(const char *key, std::optional<Record> &record, const Fields &fields,
                const About & = {})
    {
        if (!member(key).isNull()) {
            object(key, record.emplace(), fields);
        }
    }
    template <typename Record, typename Fields>
    void list(const char *key, QVector<Record> &records, const Fields &fields,
              const About &about = {})
    {
        const QJsonArray values = array(key);
        insist(key, values.size(), about);
        for (int i = 0; i < values.size(); ++i) {
            JsonReader members = item(key, values, i);
            Record record;
            fields(members, record);
            records.append(record);
        }
    }

private:
    [[nodiscard]] QJsonValue member(const char *key) const;
    [[nodiscard]] QJsonArray array(const char *key) const;
    [[nodiscard]] JsonReader inside(const char *key) const;
    [[nodiscard]] JsonReader item(const char *key, const QJsonArray &list, int index) const;
    void require(bool fine, const char *key, const char *what) const;
    void insist(const char *key, double measure, const About &about) const;

    QJsonObject m_object;
    QString m_folder;
    QString m_place;
};

/** Describes the members of an object in a schema (JSON Schema, draft 7). */
class JsonSchema
{
public:
    /** The schema begins on a line that is indented by \p indent. */
    explicit JsonSchema(int indent = 0);

    void field(const char *key, bool, const About &about = {}) { addScalar(key, "boolean", about); }
    void field(const char *key, int, const About &about = {}) { addScalar(key, "integer", about); }
    void field(const char *key, double, const About &about = {})
    {
        addScalar(key, "number", about);
    }
    void field(const char *key, const std::optional<double> &, About about = {})
    {
        addScalar(key, "number", about.orNull());
    }
    void field(const char *key, const QString &, const About &about = {})
    {
        addScalar(key, "string", about);
    }
    template <typename Owner, typename T>
    void property(const char *key, const Owner &, T (Owner::*)() const, void (Owner::*)(T),
                  const About &about = {})
    {
        field(key, T(), about);
    }
    template <typename T> void derived(const char *key, const T &value, const About &about = {})
    {
        field(key, value, about);
    }
    void index(const char *key) { field(key, 0, About().atLeast(0)); }
    void constant(const char *key, int value);
    void path(const char *key, const QString &path, const About &about = {})
    {
        field(key, path, about);
    }
    template <typename T>
    void word(const char *key, const T &, std::initializer_list<T> values, QString (*name)(T))
    {
        QByteArrayList words;
        for (const T value : values) {
            words.append(jsonText(name(value)));
        }
        addWords(key, words);
    }
    void numbers(const char *key, const QVector<float> &, const About &about = {})
    {
        addList(key, "number", about, About().orNull());
    }
    template <typename Numbers>
    void numbers(const char *key, const Numbers &, const About &about = {})
    {
        addList(key, "integer", about);
    }
    void texts(const char *key, const QStringList &) { addList(key, "string", {}); }
    template <typename Record, typename Fields>
    void object(const char *key, const Record &record, const Fields &fields,
                const About &about = {})
    {
        JsonSchema members(m_indent + 4);
        fields(members, record);
        add(key, members.text(about));
    }
    template <typename Record, typename Fields>
    void object(const char *key, const std::optional<Record> &, const Fields &fields,
                const About &about = {})
    {
        JsonSchema members(m_indent + 4);
        const Record record{};
        fields(members, record);
        add(key, members.text(about), false);
    }
    template <typename Record, typename Fields>
    void list(const char *key, const QVector<Record> &, const Fields &fields,
              const About &about = {})
    {
        JsonSchema members(m_indent + 6);
        const Record record{};
        fields(members, record);
        addList(key, members, about);
    }
    /** The schema itself; \p head comes first. */
    [[nodiscard]] QByteArray text(const About &about, const QByteArrayList &head = {}) const;

private:
    void add(const char *key, const QByteArray &schema, bool required = true);
    void addScalar(const char *key, const char *type, const About &about);
    void addWords(const char *key, const QByteArrayList &words);
    void addList(const char *key, const char *type, const About &about, const About &item = {});
    void addList(const char *key, const JsonSchema &items, const About &about);

    int m_indent;
    QByteArrayList m_required;
    QByteArrayList m_properties;
};

/** \p record as a document in \p folder (empty: paths are absolute), with a line end at the end. */
template <typename Record, typename Fields>
[[nodiscard]] QByteArray writeJson(const Record &record, const Fields &fields,
                                   const QString &folder)
{
    QByteArray text;
    JsonWriter(text, folder).write(record, fields, 0, true);
    return text + '\n';
}

/** The object of a document; a failure names the line. */
[[nodiscard]] Result<QJsonObject> jsonObject(const QByteArray &json);

/** Reads a document into \p record, which has the defaults. Failures name the line or the key. */
template <typename Record, typename Fields>
[[nodiscard]] Result<Record> readJson(const QByteArray &json, Record record, const Fields &fields,
                                      const QString &folder)
{
    const Result<QJsonObject> object = jsonObject(json);
    if (!object) {
        return object.error();
    }
    try {
        JsonReader reader(object.value(), folder);
        fields(reader, record);
        return record;
    } catch (const Failure &failure) {
        return failure;
    }
}

/** The schema of the documents that `writeJson` makes of records like \p record. */
template <typename Record, typename Fields>
[[nodiscard]] QByteArray jsonSchema(const char *id, const char *title, const About &about,
                                    const Record &record, const Fields &fields)
{
    JsonSchema schema;
    fields(schema, record);
    return schema.text(about,
                       { "\"$schema\": \"http://json-schema.org/draft-07/schema#\"",
                         "\"$id\": " + jsonText(QLatin1String(id)),
                         "\"title\": " + jsonText(QLatin1String(title)) })
        + '\n';
}

} // namespace PanoHost
