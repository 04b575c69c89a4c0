// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoline.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr std::string_view kBlanks = " \t\r\n";

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/** Letters that are a number which is none: "nan" of "ynan". */
bool endsInNoNumber(std::string_view word)
{
    if (word.size() <= 3) {
        return false;
    }
    const QByteArray end = QByteArray(word.data() + word.size() - 3, 3).toLower();
    return end == "nan" || end == "inf";
}

template <typename T> std::optional<T> numberIn(std::string_view text)
{
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    T value{};
    const char *const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end) {
        return {};
    }
    return value;
}

/** The place of the value of the first variable \p name, with its quotation marks; -1: there is
 * none. */
std::pair<int, int> placeOf(const QByteArray &line, std::string_view name)
{
    std::string_view rest = viewOf(line).substr(1);
    while (const auto variable = takeVariable(rest)) {
        if (variable->name == name) {
            const auto begin = variable->name.data() + variable->name.size() - line.constData();
            return { int(begin), int(line.size() - int(rest.size()) - begin) };
        }
    }
    return { -1, 0 };
}

} // namespace

std::optional<PtoVariable> takeVariable(std::string_view &rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    if (rest.empty()) {
        return {};
    }
    size_t letters = 0;
    while (letters < rest.size() && isLetter(rest[letters])) {
        ++letters;
    }
    PtoVariable variable;
    variable.name = rest.substr(0, letters);
    rest.remove_prefix(letters);
    if (letters > 0 && !rest.empty() && rest[0] == '"') {
        const size_t close = rest.find('"', 1);
        variable.isUnclosed = close == std::string_view::npos;
        variable.value = rest.substr(1, variable.isUnclosed ? close : close - 1);
        rest.remove_prefix(variable.isUnclosed ? rest.size() : close + 1);
        return variable;
    }
    const size_t end = std::min(rest.find_first_of(kBlanks), rest.size());
    variable.value = rest.substr(0, end);
    rest.remove_prefix(end);
    if (end == 0 && endsInNoNumber(variable.name)) {
        variable.value = variable.name.substr(letters - 3);
        variable.name.remove_suffix(3);
    }
    return variable;
}

std::optional<double> ptoDouble(std::string_view text)
{
    const auto value = numberIn<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> ptoInt(std::string_view text)
{
    return numberIn<int>(text);
}

QByteArray ptoNumber(double value, int decimals)
{
    return QByteArray::number(value, 'f', decimals);
}

QByteArray ptoExactNumber(double value)
{
    // Adding zero makes -0 a plain 0.
    return QByteArray::number(value + 0.0, 'g', QLocale::FloatingPointShortest);
}

double wrappedDegrees(double degrees)
{
    double turn = std::remainder(degrees, 360.0);
    turn = std::round(turn * 1e6) / 1e6;
    // Adding zero makes -0 a plain 0.
    return (turn >= 180.0 ? turn - 360.0 : turn) + 0.0;
}

void setVariable(QByteArray &line, std::string_view name, const QByteArray &value)
{
    const auto [begin, length] = placeOf(line, name);
    if (begin >= 0) {
        // Only a quotation mark parts two variables as a blank does.
        const int end = begin + length;
        const bool runsOn = end < line.size() && kBlanks.find(line[end]) == std::string_view::npos;
        line.replace(begin, length, runsOn ? value + ' ' : value);
        return;
    }
    const auto fileName = placeOf(line, "n").first;
    const auto content = viewOf(line).find_last_not_of(kBlanks);
    const int at = fileName >= 0 ? fileName - 1 : int(content) + 1;
    const QByteArray word = QByteArray(name.data(), int(name.size())) + value;
    line.insert(at, fileName >= 0 ? word + ' ' : ' ' + word);
}

void removeVariable(QByteArray &line, std::string_view name)
{
    QByteArray kept = line.left(1);
    std::string_view rest = viewOf(line).substr(1);
    bool more = true;
    while (more) {
        const std::string_view before = rest;
        const auto variable = takeVariable(rest);
        std::string_view part = before.substr(0, before.size() - rest.size());
        if (variable && variable->name == name) {
            // The blanks before it go along, unless they part its neighbours.
            const bool partsNeighbours
                = !rest.empty() && kBlanks.find(rest[0]) == std::string_view::npos;
            part = part.substr(0, partsNeighbours ? part.find_first_not_of(kBlanks) : 0);
        }
        kept.append(part.data(), int(part.size()));
        more = variable.has_value();
    }
    line = kept;
}

} // namespace PanoHost
