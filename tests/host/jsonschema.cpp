// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/jsonschema.h"

#include <QJsonArray>
#include <QStringList>

#include <cmath>
#include <limits>

namespace
{

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

} // namespace

QString JsonSchema::problem(const QJsonObject &document, const QJsonObject &schema)
{
    return validate(document, schema, {});
}
