// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/featurestore.h"
#include "host/model/commanderror.h"
#include "host/model/parallel.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <random>

using namespace PanoHost;

namespace
{

constexpr std::int64_t kFeatureBytes = 8 + 128 + 2;

/** A set of its own for each number. */
FeatureSet madeUp(int number, int count)
{
    std::mt19937 generator(static_cast<std::uint32_t>(number));
    FeatureSet set;
    for (int i = 0; i < count; ++i) {
        set.places.push_back({ static_cast<float>(generator() % 6000), static_cast<float>(i) });
        FeatureSet::Descriptor descriptor{};
        for (std::uint8_t &value : descriptor) {
            value = static_cast<std::uint8_t>(generator());
        }
        set.descriptors.push_back(descriptor);
        set.lights.push_back(static_cast<std::uint16_t>(generator()));
    }
    return set;
}

bool isThatOf(const std::shared_ptr<const FeatureSet> &set, int number, int count)
{
    const FeatureSet expected = madeUp(number, count);
    return set && set->descriptors == expected.descriptors && set->lights == expected.lights
        && std::equal(set->places.begin(), set->places.end(), expected.places.begin(),
                      expected.places.end(),
                      [](const auto &a, const auto &b) { return a.x == b.x && a.y == b.y; });
}

} // namespace

class TestFeatureStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void setsComeBackAsTheyWere_data();
    void setsComeBackAsTheyWere();
    void memoryIsBounded();
    void whatWasAskedForLastStaysInMemory();
    void releasedSetsAreGone();
    void setsInUseOutliveTheStore();
    void severalThreadsMayAsk();
    void nothingIsLeftOfTheFile();
    void aFolderWithoutRoomIsNamed();
};

void TestFeatureStore::setsComeBackAsTheyWere_data()
{
    QTest::addColumn<qint64>("mostBytes");
    QTest::addColumn<bool>("spilled");
    QTest::newRow("room for all") << qint64{ 1'000'000 } << false;
    QTest::newRow("room for two") << qint64(2 * 60 * kFeatureBytes) << true;
    QTest::newRow("room for none") << qint64{ 0 } << true;
}

void TestFeatureStore::setsComeBackAsTheyWere()
{
    QFETCH(qint64, mostBytes);
    QFETCH(bool, spilled);
    FeatureStore store(mostBytes);
    for (int i = 0; i < 20; ++i) {
        store.put(i, madeUp(i, i % 3 * 30)); // some are empty
    }
    QCOMPARE(store.bytesInFile() > 0, spilled);
    for (const int i : { 19, 0, 7, 7, 12, 3, 0, 19, 1 }) {
        QVERIFY(isThatOf(store.features(i), i, i % 3 * 30));
    }
    QVERIFY(!store.features(20));
}

void TestFeatureStore::memoryIsBounded()
{
    constexpr std::int64_t kMost = 5 * 100 * kFeatureBytes;
    FeatureStore store(kMost);
    for (int i = 0; i < 30; ++i) {
        store.put(i, madeUp(i, 100));
        QVERIFY(store.bytesInMemory() <= kMost);
    }
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 30; ++i) {
            QVERIFY(isThatOf(store.features(i), i, 100));
            QVERIFY(store.bytesInMemory() <= kMost);
        }
    }
    // Each was written once, however often it had to make room.
    QCOMPARE(store.bytesInFile(), 30 * 100 * kFeatureBytes);
}

void TestFeatureStore::whatWasAskedForLastStaysInMemory()
{
    FeatureStore store(2 * 10 * kFeatureBytes);
    store.put(0, madeUp(0, 10));
    store.put(1, madeUp(1, 10));
    const auto first = store.features(0);
    store.put(2, madeUp(2, 10));
    QCOMPARE(store.features(0), first); // the same object: it was not read back
    QCOMPARE(store.bytesInFile(), 10 * kFeatureBytes);
}

void TestFeatureStore::releasedSetsAreGone()
{
    FeatureStore store(10 * kFeatureBytes);
    store.put(0, madeUp(0, 10));
    store.put(1, madeUp(1, 10)); // 0 goes to the file
    store.release(0);
    store.release(1);
    store.release(1);
    store.release(5);
    QCOMPARE(store.bytesInMemory(), std::int64_t{ 0 });
    QVERIFY(!store.features(0) && !store.features(1));
    store.put(2, madeUp(2, 10));
    QVERIFY(isThatOf(store.features(2), 2, 10));
}

void TestFeatureStore::setsInUseOutliveTheStore()
{
    std::shared_ptr<const FeatureSet> kept;
    {
        FeatureStore store(0);
        store.put(4, madeUp(4, 50));
        kept = store.features(4);
        store.release(4);
    }
    QVERIFY(isThatOf(kept, 4, 50));
}

void TestFeatureStore::severalThreadsMayAsk()
{
    FeatureStore store(3 * 40 * kFeatureBytes);
    std::atomic<int> wrong{ 0 };
    forEachRow(
        16, [&](int i) { store.put(i, madeUp(i, 40)); }, 3);
    forEachRow(
        200, [&](int i) { wrong += isThatOf(store.features(i * 7 % 16), i * 7 % 16, 40) ? 0 : 1; },
        3);
    QCOMPARE(wrong.load(), 0);
}

void TestFeatureStore::nothingIsLeftOfTheFile()
{
    const QTemporaryDir folder;
    {
        FeatureStore store(0, folder.path());
        store.put(0, madeUp(0, 10));
        for (const QFileInfo &file : QDir(folder.path()).entryInfoList(QDir::Files)) {
            QCOMPARE(file.permissions() & (QFile::ReadGroup | QFile::ReadOther),
                     QFile::Permissions());
        }
    }
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestFeatureStore::aFolderWithoutRoomIsNamed()
{
    FeatureStore store(0, QStringLiteral("/nonexistent"));
    try {
        store.put(0, madeUp(0, 10));
        QFAIL("nothing was thrown");
    } catch (const CommandError &error) {
        QCOMPARE(error.failure().code, ExitCode::ToolFailed);
        QCOMPARE(error.failure().what, QStringLiteral("/nonexistent"));
        QVERIFY(error.failure().tryThis.contains(QStringLiteral("TMPDIR")));
    }
}

TEST_CLASS(TestFeatureStore, QCoreApplication)
#include "tst_featurestore.moc"
