// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/photofacts.h"

#include "tests/unit/plainimage.h"

#include <QPair>
#include <QTest>
#include <QVector>

#include <limits>
#include <memory>
#include <vector>

using PanoHead::LensFacts;
using PanoHead::LensTally;
using PanoHead::presetLens;

namespace
{

using Lens = QPair<float, int>; // focal length in mm, lens type

/** Owns a host's photos. */
struct Photos {
    explicit Photos(const QVector<Lens> &lenses)
    {
        for (const Lens &lens : lenses) {
            owned.push_back(std::make_unique<PlainImage>(lens.first, lens.second));
            list.append(owned.back().get());
        }
    }

    [[nodiscard]] int questions() const
    {
        int sum = 0;
        for (const auto &image : owned) {
            sum += image->questions();
        }
        return sum;
    }

    std::vector<std::unique_ptr<PlainImage>> owned;
    QList<XIImageDef *> list;
};

} // namespace

class TestPhotoFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void focalIsTheMeanAndTheLastLensDecides_data();
    void focalIsTheMeanAndTheLastLensDecides();
    void photosThatArriveLaterGiveTheSameFacts();
    void anotherListIsTalliedAnew();
    void photosKnowBetterThanTheRecord_data();
    void photosKnowBetterThanTheRecord();
};

void TestPhotoFacts::focalIsTheMeanAndTheLastLensDecides_data()
{
    QTest::addColumn<QVector<Lens>>("lenses");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lensType");

    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    QTest::newRow("no photos") << QVector<Lens>() << 0.0 << 0;
    QTest::newRow("one photo") << QVector<Lens>{ { 24, 1 } } << 24.0 << 1;
    QTest::newRow("mean of three") << QVector<Lens>{ { 24, 0 }, { 24, 0 }, { 30, 0 } } << 26.0 << 0;
    QTest::newRow("a photo without focal length counts as 0")
        << QVector<Lens>{ { 24, 0 }, { 0, 0 } } << 12.0 << 0;
    QTest::newRow("32-bit answers, summed in 64 bits")
        << QVector<Lens>{ { 0.1F, 0 }, { 16'777'216, 0 } }
        << (static_cast<double>(0.1F) + 16'777'216.0) / 2.0 << 0;
    QTest::newRow("the last lens type") << QVector<Lens>{ { 24, 1 }, { 24, 0 } } << 24.0 << 0;
    QTest::newRow("the last lens type, fisheye")
        << QVector<Lens>{ { 24, 0 }, { 24, 1 } } << 24.0 << 1;
    QTest::newRow("unknown lens types are passed over")
        << QVector<Lens>{ { 24, 1 }, { 24, 2 }, { 24, -1 }, { 24, 1'000'000 } } << 24.0 << 1;
    QTest::newRow("only unknown lens types") << QVector<Lens>{ { 24, -1 } } << 24.0 << 0;
    QTest::newRow("focal lengths that are not finite are passed over")
        << QVector<Lens>{ { kNaN, 0 }, { 24, 0 }, { kInfinity, 0 }, { 30, 0 }, { -kInfinity, 1 } }
        << 27.0 << 1;
    QTest::newRow("only focal lengths that are not finite")
        << QVector<Lens>{ { kNaN, 1 } } << 0.0 << 1;
    QTest::newRow("negative") << QVector<Lens>{ { -10, 0 } } << -10.0 << 0;
}

void TestPhotoFacts::focalIsTheMeanAndTheLastLensDecides()
{
    QFETCH(QVector<Lens>, lenses);
    const Photos photos(lenses);
    const LensFacts facts = LensTally().update(photos.list);
    QTEST(facts.focalMm, "focal");
    QTEST(facts.lensType, "lensType");
}

void TestPhotoFacts::photosThatArriveLaterGiveTheSameFacts()
{
    const Photos photos({ { 20, 1 }, { 24, 0 }, { 28, 1 }, { 32, 0 } });
    LensTally tally;
    QCOMPARE(tally.update(photos.list.mid(0, 1)).focalMm, 20.0);
    QCOMPARE(tally.update(photos.list.mid(0, 3)).focalMm, 24.0);
    QCOMPARE(tally.update(photos.list.mid(0, 3)).lensType, 1);
    QCOMPARE(tally.update(photos.list).focalMm, 26.0);
    QCOMPARE(tally.update(photos.list).lensType, 0);
    // Every photo was asked once for each of both answers.
    QCOMPARE(photos.questions(), 8);
}

void TestPhotoFacts::anotherListIsTalliedAnew()
{
    const Photos first({ { 20, 1 }, { 24, 1 } });
    const Photos second({ { 50, 0 } });
    LensTally tally;
    QCOMPARE(tally.update(first.list).focalMm, 22.0);
    QCOMPARE(tally.update(second.list).focalMm, 50.0);
    QCOMPARE(tally.update(second.list).lensType, 0);
    QCOMPARE(tally.update({}).focalMm, 0.0);
    QCOMPARE(tally.update(first.list).lensType, 1);
    // Shorter than before, and in another order: not what was seen.
    QCOMPARE(tally.update(first.list.mid(1)).focalMm, 24.0);
    QCOMPARE(tally.update({ first.list.at(1), second.list.at(0) }).focalMm, 37.0);
    QCOMPARE(tally.update({ second.list.at(0), first.list.at(1) }).lensType, 1);
    tally.forget();
    QCOMPARE(tally.update(second.list).focalMm, 50.0);
}

void TestPhotoFacts::photosKnowBetterThanTheRecord_data()
{
    QTest::addColumn<double>("photosFocal");
    QTest::addColumn<int>("photosLens");
    QTest::addColumn<double>("recordFocal");
    QTest::addColumn<int>("recordLens");
    QTest::addColumn<double>("focal");
    QTest::addColumn<int>("lens");

    QTest::newRow("photos") << 24.0 << 0 << 35.0 << 1 << 24.0 << 0;
    QTest::newRow("photos do not know") << 0.0 << 0 << 35.0 << 1 << 35.0 << 1;
    QTest::newRow("photos know less than nothing") << -1.0 << 0 << 35.0 << 1 << 35.0 << 1;
    QTest::newRow("neither knows") << 0.0 << 1 << -1.0 << 0 << 0.0 << 0;
    QTest::newRow("record says 0") << 0.0 << 0 << 0.0 << 1 << 0.0 << 1;
}

void TestPhotoFacts::photosKnowBetterThanTheRecord()
{
    QFETCH(double, photosFocal);
    QFETCH(int, photosLens);
    QFETCH(double, recordFocal);
    QFETCH(int, recordLens);
    const LensFacts preset = presetLens({ photosFocal, photosLens }, { recordFocal, recordLens });
    QTEST(preset.focalMm, "focal");
    QTEST(preset.lensType, "lens");
}

QTEST_GUILESS_MAIN(TestPhotoFacts)
#include "tst_photofacts.moc"
