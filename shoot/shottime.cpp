// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/shottime.h"

#include <cmath>
#include <optional>

namespace PanoHead
{

namespace
{

/** How stamps begin; 0 is any digit. With or without a date, numbers from the year down. */
constexpr const char *kShapes[] = { "0000-00-00_00h00m00",
                                    "0000-00-00T00:00:00",
                                    "0000-00-00 00:00:00",
                                    "0000:00:00 00:00:00",
                                    "00000000_000000",
                                    "00000000T000000",
                                    "00:00:00",
                                    "00h00m00" };
constexpr int kDateDigits = 8;
constexpr double kDayMs = 24.0 * 60.0 * 60.0 * 1000.0;
constexpr QDate kNoDate = QDate::fromJulianDay(2'440'588); // 1 January 1970

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** The digits of \p text, if it begins like \p shape; else empty. */
QString digitsOf(const QString &text, QLatin1String shape)
{
    if (text.size() < shape.size()) {
        return {};
    }
    QString digits;
    for (int i = 0; i < shape.size(); ++i) {
        const bool wantsDigit = shape[i] == QLatin1Char('0');
        if (wantsDigit ? !isDigit(text[i]) : text[i] != shape[i]) {
            return {};
        }
        if (wantsDigit) {
            digits += text[i];
        }
    }
    return digits;
}

/** What comes behind the seconds of a stamp, bit by bit. */
class Rest
{
public:
    explicit Rest(QString text)
        : m_text(std::move(text))
    {
    }

    bool skip(char c)
    {
        const bool isThere = m_text.startsWith(QLatin1Char(c));
        m_text.remove(0, isThere ? 1 : 0);
        return isThere;
    }

    /** 250 for ".25" and ",2509", 0 for no fraction; nothing for a point without digits. */
    std::optional<int> milliseconds()
    {
        if (!skip('.') && !skip(',')) {
            return 0;
        }
        int count = 0;
        while (count < m_text.size() && isDigit(m_text[count])) {
            ++count;
        }
        const QString digits = m_text.left(count);
        m_text.remove(0, count);
        return count == 0 ? std::nullopt
                          : std::optional(digits.leftJustified(3, QLatin1Char('0'), true).toInt());
    }

    /** The zone in seconds east of Greenwich, to which all must belong that is left. */
    [[nodiscard]] std::optional<int> zone() const
    {
        const QString text = m_text.trimmed();
        if (text.isEmpty() || text == QLatin1String("Z")) {
            return 0;
        }
        const bool isWest = text[0] == QLatin1Char('-');
        if (!isWest && text[0] != QLatin1Char('+')) {
            return std::nullopt;
        }
        for (const QLatin1String shape :
             { QLatin1String("00:00"), QLatin1String("0000"), QLatin1String("00") }) {
            const QString digits = digitsOf(text.mid(1), shape);
            if (digits.isEmpty() || text.size() != 1 + shape.size()) {
                continue;
            }
            const QTime offset(digits.leftRef(2).toInt(), digits.midRef(2).toInt());
            constexpr int kFarthestHours = 14;
            if (!offset.isValid() || offset > QTime(kFarthestHours, 0)) {
                return std::nullopt;
            }
            return (isWest ? -1 : 1) * QTime(0, 0).secsTo(offset);
        }
        return std::nullopt;
    }

private:
    QString m_text;
};

QDateTime timeOf(const QString &digits, Rest rest)
{
    const auto number
        = [&digits](int at, int count = 2) { return digits.midRef(at, count).toInt(); };
    const int at = digits.size() > kDateDigits ? kDateDigits : 0;
    const QDate date = at == 0 ? kNoDate : QDate(number(0, 4), number(4), number(6));
    const QTime time(number(at), number(at + 2), number(at + 4));
    const bool isSpelt = rest.skip('s');
    const std::optional<int> milliseconds = rest.milliseconds();
    if (!isSpelt) {
        rest.skip('s');
    }
    const std::optional<int> zone = rest.zone();
    if (!date.isValid() || !time.isValid() || !milliseconds || !zone) {
        return {};
    }
    return { date, time.addMSecs(*milliseconds), Qt::OffsetFromUTC, *zone };
}

QDateTime timeInTextForm(const QString &text)
{
    const QDateTime read = QDateTime::fromString(text, Qt::TextDate);
    const bool isOfItsYear = read.date().year() > 0 && read.date().year() < 10'000;
    if (!isOfItsYear || !read.time().isValid()) {
        return {};
    }
    return read.timeSpec() == Qt::LocalTime ? QDateTime(read.date(), read.time(), Qt::UTC) : read;
}

} // namespace

QDateTime readShotTime(const QString &text)
{
    const QString stamp = text.trimmed();
    if (stamp.size() > kMaxShotTimeLength) {
        return {};
    }
    for (const char *const row : kShapes) {
        const QLatin1String shape(row);
        const QString digits = digitsOf(stamp, shape);
        if (!digits.isEmpty()) {
            return timeOf(digits, Rest(stamp.mid(shape.size())));
        }
    }
    return timeInTextForm(stamp);
}

QVector<QDateTime> readShotTimes(const QStringList &texts)
{
    QVector<QDateTime> times;
    times.reserve(texts.size());
    QDateTime before; // the last one without a date
    for (const QString &text : texts) {
        QDateTime time = readShotTime(text);
        if (time.isValid() && time.date() == kNoDate) {
            const qint64 ahead = before.isValid() ? before.msecsTo(time) : 0;
            time = time.addDays(-std::lround(static_cast<double>(ahead) / kDayMs));
            before = time;
        }
        times += time;
    }
    return times;
}

} // namespace PanoHead
