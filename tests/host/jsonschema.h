// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

/** A validator for the part of JSON Schema (draft 7) that the host's schemas use. */
namespace JsonSchema
{

/** Empty when \p document fits \p schema, else where and why not. */
[[nodiscard]] QString problem(const QJsonObject &document, const QJsonObject &schema);

} // namespace JsonSchema
