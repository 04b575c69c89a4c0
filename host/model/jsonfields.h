// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QByteArrayList>
#include <QJsonValue>
#include <QStringList>
#include <QVector>

#include <array>
#include <functional>
#include <initializer_list>
#include <optional>
#include <type_traits>

/*
 * JSON documents whose fields are described once, in the order in which they are written:
 *
 *     constexpr auto kShotFields = [](JsonFields &json, auto &shot) {
 *         json.path("file", shot.path);
 *         json.field("yawDeg", shot.yawDegrees, "to the right");
 *     };
 *
 * `writeJson`, `readJson` and `jsonSchema` call such a description.
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
    About &orNull() { return with(&About::nullable, true); }
    /** Bounds of a number, or of the length of a text or list. */
    About &atLeast(int smallest) { return with(&About::least, { smallest }); }
    About &atMost(int largest) { return with(&About::most, { largest }); }
    /** A reader refuses what is out of bounds: it "must be \p what". Without this it takes all. */
    About &insist(const char *what) { return with(&About::insisted, what); }
    /** The members of this object stand on a line each. */
    About &inLines() { return with(&About::lines, true); }

    const char *description = nullptr;
    std::optional<int> least;
    std::optional<int> most;
    const char *insisted = nullptr;
    bool nullable = false;
    bool lines = false;
    bool optional = false; ///< the object may be missing

private:
    template <typename T> About &with(T About::*member, std::common_type_t<T> value)
    {
        this->*member = value;
        return *this;
    }
};

/** Numbers have at most 9 significant digits; those that are not finite become null. */
[[nodiscard]] QByteArray jsonText(double value);
[[nodiscard]] QByteArray jsonText(int value);
[[nodiscard]] QByteArray jsonText(bool value);
[[nodiscard]] QByteArray jsonText(const QString &text);
[[nodiscard]] QByteArray jsonText(const std::optional<double> &value);
/** A list, on one line or on a line for each entry. */
[[nodiscard]] QByteArray jsonText(const QByteArrayList &values, bool lines);

/** Takes \p json unless it is null. Answers what it must be, nothing when it is that. */
[[nodiscard]] QString takeJson(const QJsonValue &json, double &value);
[[nodiscard]] QString takeJson(const QJsonValue &json, qint32 &value);
[[nodiscard]] QString takeJson(const QJsonValue &json, bool &value);
[[nodiscard]] QString takeJson(const QJsonValue &json, QString &value);
[[nodiscard]] QString takeJson(const QJsonValue &json, std::optional<double> &value);
[[nodiscard]] QString takeJson(const QJsonValue &json, QVector<float> &values);
[[nodiscard]] QString takeJson(const QJsonValue &json, QVector<double> &values);
[[nodiscard]] QString takeJson(const QJsonValue &json, QVector<qint32> &values);
[[nodiscard]] QString takeJson(const QJsonValue &json, std::array<qint32, 3> &values);
[[nodiscard]] QString takeJson(const QJsonValue &json, QStringList &values);

/** The members of one object, while it is written, read or put into a schema. */
class JsonFields
{
public:
    using Members = std::function<void(JsonFields &json)>;

    JsonFields(const JsonFields &) = delete;
    JsonFields &operator=(const JsonFields &) = delete;
    virtual ~JsonFields() = default;

    /** A value of one of the types above. What a document lacks or has as null stays as it is. */
    template <typename T> void field(const char *key, T &value, const About &about = {})
    {
        const auto text = [&] { return textOf(value); };
        const auto take
            = [](const QJsonValue &json, auto &target) { return takeJson(json, target); };
        add(key, typeOf<T>(), value, text, take, about);
    }
    /** A field behind a getter and a setter; 0 when it is missing. */
    template <typename T, typename Owner, typename Record>
    void property(const char *key, Record &record, T (Owner::*get)() const, void (Owner::*set)(T),
                  const About &about = {})
    {
        const auto text = [&] { return jsonText((record.*get)()); };
        const auto take = [set](const QJsonValue &json, auto &owner) {
            T value{};
            QString expected = takeJson(json, value);
            (owner.*set)(value);
            return expected;
        };
        add(key, typeOf<T>(), record, text, take, about);
    }
    /** A field that follows from others; never read. */
    template <typename T> void derived(const char *key, const T &value, const About &about = {})
    {
        field(key, value, about);
    }
    /** The place of this object in its list; never read. */
    void index(const char *key) { derived(key, m_index, About().atLeast(0)); }
    /** The same in all documents; others are refused. */
    void constant(const char *key, int value);
    /** A file, written as it is found from the folder of the document. */
    template <typename Path> void path(const char *key, Path &path, const About &about = {})
    {
        const auto take
            = [this](const QJsonValue &json, auto &target) { return takePath(json, target); };
        const auto text = [&] { return pathText(path); };
        add(key, typeOf<QString>(), path, text, take, about);
    }
    /** What \p name calls one of \p values; another word counts as missing. */
    template <typename Value, typename T>
    void word(const char *key, Value &value, std::initializer_list<T> values, QString (*name)(T))
    {
        QByteArrayList words;
        for (const T one : values) {
            words.append(jsonText(name(one)));
        }
        const auto take = [&](const QJsonValue &json, auto &target) {
            QString text;
            QString expected = takeJson(json, text);
            for (const T one : values) {
                target = name(one) == text ? one : target;
            }
            return expected;
        };
        const auto text = [&] { return jsonText(name(value)); };
        add(key, { "enum", nullptr, jsonText(words, false) }, value, text, take, {});
    }
    template <typename Record, typename Fields>
    void object(const char *key, Record &record, const Fields &fields, const About &about = {})
    {
        const auto members = [&](JsonFields &json) { fields(json, record); };
        addObject(key, members, about);
    }
    /** An object that may be missing: \p record is a std::optional. */
    template <typename Record, typename Fields>
    void optionalObject(const char *key, Record &record, const Fields &fields, About about = {})
    {
        about.optional = true;
        if (!has(key, record.has_value())) {
            return;
        }
        if constexpr (std::is_const_v<Record>) {
            const auto known = record.value_or(typename Record::value_type());
            object(key, known, fields, about);
        } else {
            object(key, record.emplace(), fields, about);
        }
    }
    /** Objects, one per line. */
    template <typename List, typename Fields>
    void list(const char *key, List &records, const Fields &fields, const About &about = {})
    {
        using Record = typename List::value_type;
        const auto item = [&](JsonFields &json, int index) {
            if constexpr (std::is_const_v<List>) {
                static const Record kFresh{};
                fields(json, index < records.size() ? records[index] : kFresh);
            } else {
                records.append(Record());
                fields(json, records.last());
            }
        };
        addList(key, records.size(), item, about);
    }

protected:
    using Item = std::function<void(JsonFields &json, int index)>;
    /** A type as the schema names it; with \p allowed, the rule that lists the values. */
    struct Type {
        const char *name;
        const char *items = nullptr; ///< the type of an array's entries
        QByteArray allowed = {};
    };
    struct Value {
        Type type;
        std::function<QByteArray()> text;
        std::function<QString(const QJsonValue &json)> take; ///< none: not read
    };

    explicit JsonFields(QString folder, int index = 0);
    [[nodiscard]] const QString &folder() const { return m_folder; }

private:
    virtual void addValue(const char *key, const Value &value, const About &about) = 0;
    virtual void addObject(const char *key, const Members &members, const About &about) = 0;
    virtual void addList(const char *key, int count, const Item &item, const About &about) = 0;
    /** Whether there is such an optional object; \p known: in the record. */
    [[nodiscard]] virtual bool has(const char *key, bool known) const = 0;

    template <typename T, typename Text, typename Take>
    void add(const char *key, const Type &type, T &target, const Text &text, const Take &take,
             const About &about)
    {
        Value value{ type, text, {} };
        if constexpr (!std::is_const_v<T>) {
            value.take = [&](const QJsonValue &json) { return take(json, target); };
        }
        addValue(key, value, about);
    }
    template <typename T> [[nodiscard]] static constexpr const char *typeName()
    {
        using Plain = std::remove_const_t<T>;
        if constexpr (std::is_same_v<Plain, bool>) {
            return "boolean";
        } else if constexpr (std::is_integral_v<Plain>) {
            return "integer";
        } else if constexpr (std::is_same_v<Plain, QString>) {
            return "string";
        } else if constexpr (std::is_convertible_v<double, Plain>) {
            return "number";
        } else {
            return "array";
        }
    }
    template <typename T> [[nodiscard]] static Type typeOf()
    {
        if constexpr (*typeName<T>() == 'a') {
            return { "array", typeName<typename T::value_type>() };
        }
        return { typeName<T>() };
    }
    template <typename T> [[nodiscard]] static QByteArray textOf(const T &value)
    {
        if constexpr (*typeName<T>() == 'a') {
            QByteArrayList texts;
            texts.reserve(static_cast<int>(value.size()));
            for (const auto &entry : value) {
                texts.append(jsonText(entry));
            }
            return jsonText(texts, std::is_same_v<T, QStringList>);
        } else {
            return jsonText(value);
        }
    }
    [[nodiscard]] QByteArray pathText(const QString &path) const;
    [[nodiscard]] QString takePath(const QJsonValue &json, QString &path) const;

    QString m_folder;
    int m_index;
};

/** Fields as a document in \p folder (empty: paths are absolute), with a line end at the end. */
[[nodiscard]] QByteArray writeJson(const JsonFields::Members &members, const QString &folder);

/** Reads a document. Nothing when it could be read; a failure names the line or the key. */
[[nodiscard]] std::optional<Failure> readJson(const QByteArray &json, const QString &folder,
                                              const JsonFields::Members &members);

/** The schema (JSON Schema, draft 7) of what `writeJson` makes of \p members. */
[[nodiscard]] QByteArray jsonSchema(const char *id, const char *title, const About &about,
                                    const JsonFields::Members &members);

} // namespace PanoHost
