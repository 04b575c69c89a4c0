// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/photonames.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <iterator>
#include <map>
#include <numeric>

namespace PanoHost
{

namespace
{

constexpr int kCounterRange = 10000; ///< cameras count to 9999
constexpr int kLeastDigits = 3; ///< of a counter

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** A photo's path, taken apart around its counter. */
struct CountedName {
    QString front; ///< folder and what stands before the counter
    int counter = -1;
    int digits = 0;
};

CountedName countedName(const QString &path)
{
    const int start = path.lastIndexOf(QLatin1Char('/')) + 1;
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    int end = dot > start ? dot : path.size();
    CountedName short_;
    // From the back: the first run of digits that is long enough, else the last.
    while (end > start) {
        while (end > start && !isDigit(path.at(end - 1))) {
            --end;
        }
        int begin = end;
        while (begin > start && isDigit(path.at(begin - 1))) {
            --begin;
        }
        if (begin == end) {
            break;
        }
        const int digits = end - begin;
        constexpr int kMostDigits = 9; // of an int
        const int counter = path.midRef(begin, digits).right(kMostDigits).toInt();
        CountedName name{ path.left(begin), counter, digits };
        if (digits >= kLeastDigits) {
            return name;
        }
        if (short_.counter < 0) {
            short_ = name;
        }
        end = begin;
    }
    if (short_.counter < 0) {
        short_.front = path.left(start);
    }
    return short_;
}

/** Numbers by value, letters in any case. */
int naturalOrder(const QString &one, const QString &other)
{
    int i = 0;
    int j = 0;
    while (i < one.size() && j < other.size()) {
        if (isDigit(one.at(i)) && isDigit(other.at(j))) {
            const auto number = [](const QString &text, int *at) {
                while (*at < text.size() && text.at(*at) == QLatin1Char('0')) {
                    ++*at;
                }
                const int begin = *at;
                while (*at < text.size() && isDigit(text.at(*at))) {
                    ++*at;
                }
                return text.midRef(begin, *at - begin);
            };
            const QStringRef left = number(one, &i);
            const QStringRef right = number(other, &j);
            if (left.size() != right.size()) {
                return left.size() - right.size();
            }
            const int order = left.compare(right);
            if (order != 0) {
                return order;
            }
            continue;
        }
        const int order = one.at(i).toLower().unicode() - other.at(j).toLower().unicode();
        if (order != 0) {
            return order;
        }
        ++i;
        ++j;
    }
    return (one.size() - i) - (other.size() - j);
}

/** Has \p begin to \p end, of one counter in rising order, start after the longest pause if the
 * counter ran over there. */
void startAfterRollover(const std::vector<CountedName> &names, std::vector<int>::iterator begin,
                        std::vector<int>::iterator end)
{
    constexpr int kFewLost = 16; // photos that are gone just where the counter ran over
    constexpr int kLongPause = 1000;
    const int around = names.at(*begin).counter + kCounterRange - names.at(*(end - 1)).counter;
    if (end - begin < 2 || around < 1 || around > kFewLost) {
        return;
    }
    auto start = begin;
    int longest = kLongPause;
    for (auto i = begin + 1; i != end; ++i) {
        const int pause = names.at(*i).counter - names.at(*(i - 1)).counter;
        if (pause > longest) {
            longest = pause;
            start = i;
        }
    }
    std::rotate(begin, start, end);
}

/** Photos that bear the counters for the first time, then those for the second time, and so on; the
 * other way round when that is \p sorted. */
std::vector<int> cardByCard(const std::vector<CountedName> &names, const std::vector<int> &sorted)
{
    std::map<int, int> seen;
    std::vector<int> cards(names.size());
    for (int photo : sorted) {
        cards.at(photo) = seen[names.at(photo).counter]++;
    }
    std::vector<int> order = sorted;
    const auto rising = [&](int one, int other) {
        return std::make_pair(cards.at(one), names.at(one).counter)
            < std::make_pair(cards.at(other), names.at(other).counter);
    };
    std::stable_sort(order.begin(), order.end(), rising);
    if (order == sorted) {
        std::stable_sort(order.begin(), order.end(),
                         [&cards](int one, int other) { return cards.at(one) > cards.at(other); });
    }
    return order;
}

} // namespace

NameOrder nameOrderOf(const QStringList &paths)
{
    std::vector<CountedName> names;
    names.reserve(paths.size());
    for (const QString &path : paths) {
        names.push_back(countedName(path));
    }
    NameOrder order;
    order.sorted.resize(paths.size());
    std::iota(order.sorted.begin(), order.sorted.end(), 0);
    std::stable_sort(order.sorted.begin(), order.sorted.end(), [&paths](int one, int other) {
        return naturalOrder(paths.at(one), paths.at(other)) < 0;
    });
    order.counted = order.sorted;
    bool isDoubtful = false;
    std::vector<std::pair<int, int>> ranges; // of counters that follow each other
    for (auto begin = order.counted.begin(); begin != order.counted.end();) {
        const CountedName &first = names.at(*begin);
        auto end = begin + 1;
        while (end != order.counted.end() && names.at(*end).front == first.front
               && names.at(*end).digits == first.digits) {
            const bool isSame = names.at(*end).counter == names.at(*(end - 1)).counter;
            isDoubtful = isDoubtful || (isSame && first.counter >= 0);
            ++end;
        }
        if (first.counter >= 0) {
            ranges.emplace_back(first.counter, names.at(*(end - 1)).counter);
        }
        if (first.digits == 4) {
            startAfterRollover(names, begin, end);
        }
        begin = end;
    }
    std::sort(ranges.begin(), ranges.end());
    for (std::size_t i = 1; i < ranges.size(); ++i) {
        isDoubtful = isDoubtful || ranges[i].first <= ranges[i - 1].second;
    }
    if (isDoubtful) {
        order.other = cardByCard(names, order.sorted);
    }
    return order;
}

QStringList withoutCompanions(const QStringList &paths)
{
    static const QStringList kPreferred[] = {
        { QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("jpe") },
        { QStringLiteral("png"), QStringLiteral("tif"), QStringLiteral("tiff") },
    };
    const auto rankOf = [](const QFileInfo &file) {
        const auto *const rank = std::find_if(
            std::begin(kPreferred), std::end(kPreferred),
            [&](const QStringList &endings) { return endings.contains(file.suffix().toLower()); });
        return rank - std::begin(kPreferred);
    };
    const auto commonName = [](const QFileInfo &file) {
        return file.path() + QLatin1Char('/') + file.completeBaseName().toLower();
    };
    QHash<QString, qint64> best;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        const auto known = best.find(commonName(file));
        if (known == best.end()) {
            best.insert(commonName(file), rankOf(file));
        } else {
            *known = std::min<qint64>(*known, rankOf(file));
        }
    }
    QStringList kept;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        if (rankOf(file) == best.value(commonName(file))) {
            kept += path;
        }
    }
    return kept;
}

int counterOf(const QString &path)
{
    return countedName(path).counter;
}

bool isCountedNext(const QString &path, const QString &next, int most)
{
    const CountedName one = countedName(path);
    const CountedName other = countedName(next);
    if (one.front != other.front || one.counter < 0 || other.counter < 0) {
        return false;
    }
    const int steps = (other.counter - one.counter + kCounterRange) % kCounterRange;
    return steps >= 1 && steps <= most;
}

} // namespace PanoHost
