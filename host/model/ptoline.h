// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

/* Lines of Hugin projects: a letter that says what the line is about, then variables in any order,
 * `w1200 y-12.5 v=0 n"a b.jpg"`. Numbers are those of the C locale, whatever the user's locale. */
namespace PanoHost
{

[[nodiscard]] inline std::string_view viewOf(const QByteArray &line)
{
    return { line.constData(), static_cast<size_t>(line.size()) };
}

/** A variable as it is written. */
struct PtoVariable {
    std::string_view name; ///< letters only
    std::string_view value; ///< without the quotation marks
    bool isUnclosed = false; ///< the mark at the end is missing
};

/** Takes the next variable off \p rest, after the line's letter; nothing at the end of the line.
 * What is no variable comes without a name. */
[[nodiscard]] std::optional<PtoVariable> takeVariable(std::string_view &rest);

/** A number with nothing around it; nothing when it is none, or not finite. */
[[nodiscard]] std::optional<double> ptoDouble(std::string_view text);
[[nodiscard]] std::optional<int> ptoInt(std::string_view text);

/** \p value with \p decimals digits behind the point. */
[[nodiscard]] QByteArray ptoNumber(double value, int decimals);
/** The shortest text that \p value comes back from. */
[[nodiscard]] QByteArray ptoExactNumber(double value);
/** \p degrees in [-180, 180), also after it is written with 6 decimals. */
[[nodiscard]] double wrappedDegrees(double degrees);

/** Gives the first variable \p name of \p line the value \p value; one that is missing is put
 * before the name of the file, or at the end. */
void setVariable(QByteArray &line, std::string_view name, const QByteArray &value);
/** Takes all variables \p name off \p line. */
void removeVariable(QByteArray &line, std::string_view name);

} // namespace PanoHost
