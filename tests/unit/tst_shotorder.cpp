// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/shotorder.h"

#include "tests/unit/plainimage.h"

#include <QRandomGenerator>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

using PanoHead::EqualTimes;
using PanoHead::ShotOrder;

namespace
{

using Times = QVector<long>;

/** Owns a host's photos, in reading order. */
struct Photos {
    explicit Photos(const Times &times)
    {
        for (const long time : times) {
            owned.push_back(std::make_unique<PlainImage>(time));
            list.append(owned.back().get());
        }
    }

    /** Places in reading order, as the photos stand in \p ordered. */
    [[nodiscard]] QVector<int> places(const QList<XIImageDef *> &ordered) const
    {
        QVector<int> result;
        for (XIImageDef *image : ordered) {
            result.append(list.indexOf(image));
        }
        return result;
    }

    std::vector<std::unique_ptr<PlainImage>> owned;
    QList<XIImageDef *> list;
};

/** Sorted by insertion, so that nothing is shared with the code under test. */
QVector<int> sortedPlaces(const Times &times, EqualTimes equalTimes)
{
    QVector<int> places;
    bool hasEqual = false;
    for (int i = 0; i < times.size(); ++i) {
        int at = places.size();
        while (at > 0 && times.at(places.at(at - 1)) > times.at(i)) {
            --at;
        }
        hasEqual = hasEqual || times.indexOf(times.at(i)) < i;
        places.insert(at, i);
    }
    if (hasEqual && equalTimes == EqualTimes::GiveUp) {
        std::sort(places.begin(), places.end());
    }
    return places;
}

} // namespace

class TestShotOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosStandByTime_data();
    void photosStandByTime();
    void photosThatArriveLaterTakeTheirPlaces();
    void randomArrivalsEqualOneSort();
    void everyPhotoIsAskedOnce();
    void anotherListIsOrderedAnew();
    void aLongerListMayContinueAShorterOne_data();
    void aLongerListMayContinueAShorterOne();
};

void TestShotOrder::photosStandByTime_data()
{
    QTest::addColumn<Times>("times");
    QTest::addColumn<QVector<int>>("stable");
    QTest::addColumn<QVector<int>>("givingUp"); // what pages that fall back to reading order show

    constexpr long kMin = std::numeric_limits<long>::min();
    constexpr long kMax = std::numeric_limits<long>::max();
    using Places = QVector<int>;
    QTest::newRow("none") << Times() << Places() << Places();
    QTest::newRow("one") << Times{ 5 } << Places{ 0 } << Places{ 0 };
    QTest::newRow("in order") << Times{ 1, 2, 3 } << Places{ 0, 1, 2 } << Places{ 0, 1, 2 };
    QTest::newRow("backwards") << Times{ 3, 2, 1 } << Places{ 2, 1, 0 } << Places{ 2, 1, 0 };
    QTest::newRow("mixed") << Times{ 20, 30, 10 } << Places{ 2, 0, 1 } << Places{ 2, 0, 1 };
    QTest::newRow("equal neighbours") << Times{ 2, 2, 1 } << Places{ 2, 0, 1 } << Places{ 0, 1, 2 };
    QTest::newRow("equal, not side by side")
        << Times{ 2, 1, 2 } << Places{ 1, 0, 2 } << Places{ 0, 1, 2 };
    QTest::newRow("brackets of one second")
        << Times{ 8, 8, 8, 7, 7, 7 } << Places{ 3, 4, 5, 0, 1, 2 } << Places{ 0, 1, 2, 3, 4, 5 };
    QTest::newRow("no times known") << Times{ 0, 0, 0 } << Places{ 0, 1, 2 } << Places{ 0, 1, 2 };
    QTest::newRow("before the epoch")
        << Times{ 0, -5, 5 } << Places{ 1, 0, 2 } << Places{ 1, 0, 2 };
    QTest::newRow("extremes") << Times{ kMax, kMin, 0 } << Places{ 1, 2, 0 } << Places{ 1, 2, 0 };
}

void TestShotOrder::photosStandByTime()
{
    QFETCH(Times, times);
    const Photos photos(times);
    ShotOrder stable(EqualTimes::KeepReadingOrder);
    QTEST(photos.places(stable.update(photos.list)), "stable");
    ShotOrder givingUp(EqualTimes::GiveUp);
    QTEST(photos.places(givingUp.update(photos.list)), "givingUp");
}

void TestShotOrder::photosThatArriveLaterTakeTheirPlaces()
{
    const Photos photos({ 10, 30, 20, 30, 5 });
    ShotOrder stable(EqualTimes::KeepReadingOrder);
    ShotOrder givingUp(EqualTimes::GiveUp);
    using Places = QVector<int>;
    const QVector<Places> stableSteps{
        { 0 }, { 0, 1 }, { 0, 2, 1 }, { 0, 2, 1, 3 }, { 4, 0, 2, 1, 3 }
    };
    // The fourth photo repeats a time: from then on the reading order stays.
    const QVector<Places> givingUpSteps{
        { 0 }, { 0, 1 }, { 0, 2, 1 }, { 0, 1, 2, 3 }, { 0, 1, 2, 3, 4 }
    };
    for (int count = 1; count <= photos.list.size(); ++count) {
        const QList<XIImageDef *> read = photos.list.mid(0, count);
        QCOMPARE(photos.places(stable.update(read)), stableSteps.at(count - 1));
        QCOMPARE(photos.places(givingUp.update(read)), givingUpSteps.at(count - 1));
        QCOMPARE(photos.places(stable.update(read)), stableSteps.at(count - 1));
    }
}

void TestShotOrder::randomArrivalsEqualOneSort()
{
    QRandomGenerator random(3);
    for (int round = 0; round < 500; ++round) {
        // Times from few or from many: with and without equal ones, in long rising runs or none.
        const int spread = round % 3 == 0 ? 10 : 100'000;
        Times times;
        const int count = static_cast<int>(random.bounded(40));
        for (int i = 0; i < count; ++i) {
            times.append(round % 2 == 0 ? static_cast<long>(random.bounded(spread))
                                        : i * 10L - (random.bounded(8) == 0 ? 35L : 0L));
        }
        const Photos photos(times);
        for (const EqualTimes equalTimes : { EqualTimes::KeepReadingOrder, EqualTimes::GiveUp }) {
            ShotOrder order(equalTimes);
            int arrived = 0;
            while (arrived < count) {
                arrived = std::min(count, arrived + 1 + static_cast<int>(random.bounded(10)));
                QCOMPARE(photos.places(order.update(photos.list.mid(0, arrived))),
                         sortedPlaces(times.mid(0, arrived), equalTimes));
            }
        }
    }
}

void TestShotOrder::everyPhotoIsAskedOnce()
{
    const Photos photos({ 3, 1, 2, 2 });
    ShotOrder order(EqualTimes::GiveUp);
    for (int count = 0; count <= photos.list.size(); ++count) {
        order.update(photos.list.mid(0, count));
        order.update(photos.list.mid(0, count));
    }
    for (const auto &image : photos.owned) {
        QCOMPARE(image->questions(), 1);
    }
}

void TestShotOrder::anotherListIsOrderedAnew()
{
    const Photos photos({ 3, 1, 2, 1 });
    const auto listOf = [&photos](const QVector<int> &places) {
        QList<XIImageDef *> list;
        for (const int place : places) {
            list.append(photos.list.at(place));
        }
        return list;
    };
    ShotOrder order(EqualTimes::GiveUp);
    QCOMPARE(photos.places(order.update(photos.list)), QVector<int>({ 0, 1, 2, 3 }));
    QCOMPARE(photos.places(order.update(listOf({ 0, 1, 2 }))), QVector<int>({ 1, 2, 0 }));
    QCOMPARE(photos.places(order.update(listOf({ 2, 0 }))), QVector<int>({ 2, 0 }));
    QCOMPARE(photos.places(order.update({})), QVector<int>());
    QCOMPARE(photos.places(order.update(listOf({ 0, 2 }))), QVector<int>({ 2, 0 }));
    order.forget();
    QCOMPARE(photos.places(order.update(listOf({ 0, 2, 1 }))), QVector<int>({ 1, 2, 0 }));
    QCOMPARE(photos.owned[0]->questions(), 5); // asked again after each new start
}

void TestShotOrder::aLongerListMayContinueAShorterOne_data()
{
    QTest::addColumn<QVector<int>>("list");
    QTest::addColumn<QVector<int>>("seen");
    QTest::addColumn<bool>("continues");

    using Places = QVector<int>;
    QTest::newRow("both empty") << Places{} << Places{} << true;
    QTest::newRow("nothing seen") << Places{ 0 } << Places{} << true;
    QTest::newRow("the same") << Places{ 0, 1 } << Places{ 0, 1 } << true;
    QTest::newRow("one more") << Places{ 0, 1, 2 } << Places{ 0, 1 } << true;
    QTest::newRow("one less") << Places{ 0 } << Places{ 0, 1 } << false;
    QTest::newRow("emptied") << Places{} << Places{ 0 } << false;
    QTest::newRow("another one") << Places{ 1 } << Places{ 0 } << false;
    QTest::newRow("another order") << Places{ 1, 0, 2 } << Places{ 0, 1 } << false;
    QTest::newRow("one put in front") << Places{ 2, 0, 1 } << Places{ 0, 1 } << false;
}

void TestShotOrder::aLongerListMayContinueAShorterOne()
{
    QFETCH(QVector<int>, list);
    QFETCH(QVector<int>, seen);
    const Photos photos({ 1, 2, 3 });
    const auto chosen = [&photos](const QVector<int> &places) {
        QList<XIImageDef *> images;
        for (const int place : places) {
            images.append(photos.list.at(place));
        }
        return images;
    };
    QTEST(PanoHead::continues(chosen(list), chosen(seen)), "continues");
}

QTEST_GUILESS_MAIN(TestShotOrder)
#include "tst_shotorder.moc"
