// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/photoanswers.h"

#include "tests/support/testprogram.h"
#include "tests/unit/plainimage.h"

#include <QPair>
#include <QRandomGenerator>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

using namespace PanoHead;

namespace
{

using Times = QVector<long>;
using Lens = QPair<float, int>; // focal length in mm, lens type

constexpr QSize kThumbnail(160, 120);
constexpr PhotoQuestions kLensOnly{ true, false, EqualTimes::KeepReadingOrder };
constexpr PhotoQuestions kBoth{ true, true, EqualTimes::KeepReadingOrder };

constexpr PhotoQuestions timesOnly(EqualTimes equalTimes)
{
    return { false, true, equalTimes };
}

/** A photo whose thumbnail may come late. */
class Photo : public PlainImage
{
public:
    using PlainImage::PlainImage;

    QSize thumbnail = kThumbnail;
    int thumbnailQuestions = 0;
};

QSize thumbnailOf(XIImageDef &image)
{
    auto &photo = static_cast<Photo &>(image);
    ++photo.thumbnailQuestions;
    return photo.thumbnail;
}

PhotoAnswers answersTo(const PhotoQuestions &questions)
{
    return { questions, thumbnailOf };
}

/** Owns a host's photos, in reading order. */
struct Photos {
    explicit Photos(const Times &times)
    {
        for (const long time : times) {
            add(std::make_unique<Photo>(time));
        }
    }
    explicit Photos(const QVector<Lens> &lenses)
    {
        for (const Lens &lens : lenses) {
            add(std::make_unique<Photo>(lens.first, lens.second));
        }
    }
    /** \p count photos that know everything, a second apart. */
    explicit Photos(int count)
    {
        for (int i = 0; i < count; ++i) {
            add(std::make_unique<Photo>(24.0F, 0));
            owned.back()->shotTime = i + 1;
        }
    }

    void add(std::unique_ptr<Photo> photo)
    {
        list.append(photo.get());
        owned.push_back(std::move(photo));
    }

    /** Places in reading order, as the photos stand in \p ordered; -1 for null. */
    [[nodiscard]] QVector<int> places(const QList<XIImageDef *> &ordered) const
    {
        QVector<int> result;
        for (XIImageDef *image : ordered) {
            result.append(list.indexOf(image));
        }
        return result;
    }

    [[nodiscard]] int questions() const
    {
        int sum = 0;
        for (const auto &image : owned) {
            sum += image->questions();
        }
        return sum;
    }

    [[nodiscard]] int thumbnailQuestions() const
    {
        int sum = 0;
        for (const auto &image : owned) {
            sum += image->thumbnailQuestions;
        }
        return sum;
    }

    std::vector<std::unique_ptr<Photo>> owned;
    QList<XIImageDef *> list;
};

/** The order of \p photos, asked of \p answers after an update. */
const QList<XIImageDef *> &orderOf(PhotoAnswers &answers, const QList<XIImageDef *> &photos)
{
    answers.update(photos);
    return answers.inOrder();
}

LensFacts lensOf(PhotoAnswers &answers, const QList<XIImageDef *> &photos)
{
    answers.update(photos);
    return answers.lens();
}

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

Q_DECLARE_METATYPE(PanoHead::AskAgain)

class TestPhotoAnswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosStandByTime_data();
    void photosStandByTime();
    void photosThatArriveLaterTakeTheirPlaces();
    void randomArrivalsEqualOneSort();
    void anotherListIsOrderedAnew();
    void photosWhoseTimesAreNotAskedStandInReadingOrder();
    void focalIsTheMeanAndTheLastLensDecides_data();
    void focalIsTheMeanAndTheLastLensDecides();
    void photosThatArriveLaterGiveTheSameFacts();
    void anotherListIsTalliedAnew();
    void whatAPhotoHasAnsweredIsNotAskedAgain_data();
    void whatAPhotoHasAnsweredIsNotAskedAgain();
    void lateAnswersCount_data();
    void lateAnswersCount();
    void lateTimesChangeTheOrder();
    void aHundredAreAskedAgainInTurn();
    void allWithoutAnAnswerAreAskedAgain();
    void thumbnailsOfAllAreAskedAgain();
    void nothingIsKnownOfForgottenPhotos();
};

void TestPhotoAnswers::photosStandByTime_data()
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

void TestPhotoAnswers::photosStandByTime()
{
    QFETCH(Times, times);
    const Photos photos(times);
    PhotoAnswers stable = answersTo(timesOnly(EqualTimes::KeepReadingOrder));
    QTEST(photos.places(orderOf(stable, photos.list)), "stable");
    PhotoAnswers givingUp = answersTo(timesOnly(EqualTimes::GiveUp));
    QTEST(photos.places(orderOf(givingUp, photos.list)), "givingUp");
}

void TestPhotoAnswers::photosThatArriveLaterTakeTheirPlaces()
{
    const Photos photos(Times{ 10, 30, 20, 30, 5 });
    PhotoAnswers stable = answersTo(timesOnly(EqualTimes::KeepReadingOrder));
    PhotoAnswers givingUp = answersTo(timesOnly(EqualTimes::GiveUp));
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
        QCOMPARE(photos.places(orderOf(stable, read)), stableSteps.at(count - 1));
        QCOMPARE(photos.places(orderOf(givingUp, read)), givingUpSteps.at(count - 1));
        QCOMPARE(photos.places(orderOf(stable, read)), stableSteps.at(count - 1));
    }
}

void TestPhotoAnswers::randomArrivalsEqualOneSort()
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
            PhotoAnswers order = answersTo(timesOnly(equalTimes));
            int arrived = 0;
            while (arrived < count) {
                arrived = std::min(count, arrived + 1 + static_cast<int>(random.bounded(10)));
                QCOMPARE(photos.places(orderOf(order, photos.list.mid(0, arrived))),
                         sortedPlaces(times.mid(0, arrived), equalTimes));
            }
        }
    }
}

void TestPhotoAnswers::anotherListIsOrderedAnew()
{
    const Photos photos(Times{ 3, 1, 2, 1 });
    const auto listOf = [&photos](const QVector<int> &places) {
        QList<XIImageDef *> list;
        for (const int place : places) {
            list.append(photos.list.at(place));
        }
        return list;
    };
    PhotoAnswers order = answersTo(timesOnly(EqualTimes::GiveUp));
    QCOMPARE(photos.places(orderOf(order, photos.list)), QVector<int>({ 0, 1, 2, 3 }));
    QCOMPARE(photos.places(orderOf(order, listOf({ 0, 1, 2 }))), QVector<int>({ 1, 2, 0 }));
    QCOMPARE(photos.places(orderOf(order, listOf({ 2, 0 }))), QVector<int>({ 2, 0 }));
    QCOMPARE(photos.places(orderOf(order, {})), QVector<int>());
    QCOMPARE(photos.places(orderOf(order, listOf({ 0, 2 }))), QVector<int>({ 2, 0 }));
    order.forget();
    QCOMPARE(photos.places(orderOf(order, listOf({ 0, 2, 1 }))), QVector<int>({ 1, 2, 0 }));
    QCOMPARE(photos.owned[0]->questions(), 5); // asked again after each new start
}

void TestPhotoAnswers::photosWhoseTimesAreNotAskedStandInReadingOrder()
{
    const Photos photos(Times{ 3, 1, 2 });
    PhotoAnswers answers = answersTo(kLensOnly);
    QCOMPARE(photos.places(orderOf(answers, photos.list)), QVector<int>({ 0, 1, 2 }));
}

void TestPhotoAnswers::focalIsTheMeanAndTheLastLensDecides_data()
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

void TestPhotoAnswers::focalIsTheMeanAndTheLastLensDecides()
{
    QFETCH(QVector<Lens>, lenses);
    const Photos photos(lenses);
    PhotoAnswers answers = answersTo(kLensOnly);
    const LensFacts facts = lensOf(answers, photos.list);
    QTEST(facts.focalMm, "focal");
    QTEST(facts.lensType, "lensType");
}

void TestPhotoAnswers::photosThatArriveLaterGiveTheSameFacts()
{
    const Photos photos(QVector<Lens>{ { 20, 1 }, { 24, 0 }, { 28, 1 }, { 32, 0 } });
    PhotoAnswers tally = answersTo(kLensOnly);
    QCOMPARE(lensOf(tally, photos.list.mid(0, 1)).focalMm, 20.0);
    QCOMPARE(lensOf(tally, photos.list.mid(0, 3)).focalMm, 24.0);
    QCOMPARE(lensOf(tally, photos.list.mid(0, 3)).lensType, 1);
    QCOMPARE(lensOf(tally, photos.list).focalMm, 26.0);
    QCOMPARE(lensOf(tally, photos.list).lensType, 0);
    // Every photo was asked once for each of both answers.
    QCOMPARE(photos.questions(), 8);
}

void TestPhotoAnswers::anotherListIsTalliedAnew()
{
    const Photos first(QVector<Lens>{ { 20, 1 }, { 24, 1 } });
    const Photos second(QVector<Lens>{ { 50, 0 } });
    PhotoAnswers tally = answersTo(kLensOnly);
    QCOMPARE(lensOf(tally, first.list).focalMm, 22.0);
    QCOMPARE(lensOf(tally, second.list).focalMm, 50.0);
    QCOMPARE(lensOf(tally, second.list).lensType, 0);
    QCOMPARE(lensOf(tally, {}).focalMm, 0.0);
    QCOMPARE(lensOf(tally, first.list).lensType, 1);
    // Shorter than before, and in another order: not what was seen.
    QCOMPARE(lensOf(tally, first.list.mid(1)).focalMm, 24.0);
    QCOMPARE(lensOf(tally, { first.list.at(1), second.list.at(0) }).focalMm, 37.0);
    QCOMPARE(lensOf(tally, { second.list.at(0), first.list.at(1) }).lensType, 1);
    tally.forget();
    QCOMPARE(lensOf(tally, second.list).focalMm, 50.0);
}

void TestPhotoAnswers::whatAPhotoHasAnsweredIsNotAskedAgain_data()
{
    QTest::addColumn<AskAgain>("again");
    QTest::newRow("nobody") << AskAgain::Nobody;
    QTest::newRow("some") << AskAgain::Some;
    QTest::newRow("unanswered") << AskAgain::Unanswered;
}

void TestPhotoAnswers::whatAPhotoHasAnsweredIsNotAskedAgain()
{
    QFETCH(AskAgain, again);
    const Photos photos(40);
    PhotoAnswers answers = answersTo(kBoth);
    for (int count = 0; count <= 40; count += 10) {
        QVERIFY(!answers.update(photos.list.mid(0, count), again));
        QVERIFY(!answers.update(photos.list.mid(0, count), again));
    }
    QCOMPARE(photos.questions(), 40 * 3);
    QCOMPARE(photos.thumbnailQuestions(), 40);
}

void TestPhotoAnswers::lateAnswersCount_data()
{
    QTest::addColumn<float>("focal");
    QTest::addColumn<int>("lensType");
    QTest::addColumn<long>("time");
    QTest::addColumn<QSize>("thumbnail");
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    QTest::newRow("no focal length") << 0.0F << 1 << 2L << kThumbnail;
    QTest::newRow("a focal length that is no number") << kNaN << 1 << 2L << kThumbnail;
    QTest::newRow("an infinite focal length") << kInfinity << 1 << 2L << kThumbnail;
    QTest::newRow("lens not chosen") << 50.0F << -1 << 2L << kThumbnail;
    QTest::newRow("a lens that is not known") << 50.0F << 7 << 2L << kThumbnail;
    QTest::newRow("no time") << 50.0F << 1 << 0L << kThumbnail;
    QTest::newRow("no thumbnail") << 50.0F << 1 << 2L << QSize();
    QTest::newRow("an empty thumbnail") << 50.0F << 1 << 2L << QSize(0, 0);
    QTest::newRow("nothing") << 0.0F << -1 << 0L << QSize();
}

void TestPhotoAnswers::lateAnswersCount()
{
    QFETCH(float, focal);
    QFETCH(int, lensType);
    QFETCH(long, time);
    QFETCH(QSize, thumbnail);
    for (const AskAgain again : { AskAgain::Some, AskAgain::Unanswered, AskAgain::Thumbnails }) {
        const Photos photos(2); // at 1 and at 2, both 24 mm
        Photo &late = *photos.owned[1];
        late.focalMm = focal;
        late.lensType = lensType;
        late.shotTime = time;
        late.thumbnail = thumbnail;
        PhotoAnswers answers = answersTo(kBoth);
        answers.update(photos.list);
        QVERIFY(!answers.update(photos.list, again)); // it knows no more yet

        late.focalMm = 50.0F;
        late.lensType = 1;
        late.shotTime = 2;
        late.thumbnail = kThumbnail;
        QVERIFY(!answers.update(photos.list, AskAgain::Nobody));
        QVERIFY(answers.update(photos.list, again));
        QCOMPARE(answers.lens().focalMm, 37.0);
        QCOMPARE(answers.lens().lensType, 1);
        QCOMPARE(photos.places(answers.inOrder()), QVector<int>({ 0, 1 }));
        const int questions = photos.questions();
        QVERIFY(!answers.update(photos.list, again));
        QCOMPARE(photos.questions(), questions);
    }
}

void TestPhotoAnswers::lateTimesChangeTheOrder()
{
    const Photos photos(Times{ 30, 0, 10, 0 });
    PhotoAnswers answers = answersTo(timesOnly(EqualTimes::KeepReadingOrder));
    QCOMPARE(photos.places(orderOf(answers, photos.list)), QVector<int>({ 1, 3, 2, 0 }));
    photos.owned[1]->shotTime = 20;
    QVERIFY(answers.update(photos.list, AskAgain::Some));
    QCOMPARE(photos.places(answers.inOrder()), QVector<int>({ 3, 2, 1, 0 }));

    // Two without a time have the same one.
    PhotoAnswers givingUp = answersTo(timesOnly(EqualTimes::GiveUp));
    photos.owned[1]->shotTime = 0;
    QCOMPARE(photos.places(orderOf(givingUp, photos.list)), QVector<int>({ 0, 1, 2, 3 }));
    photos.owned[1]->shotTime = 20;
    QVERIFY(givingUp.update(photos.list, AskAgain::Some));
    QCOMPARE(photos.places(givingUp.inOrder()), QVector<int>({ 3, 2, 1, 0 }));
}

void TestPhotoAnswers::aHundredAreAskedAgainInTurn()
{
    const Photos photos(250);
    for (const auto &photo : photos.owned) {
        photo->thumbnail = QSize();
    }
    PhotoAnswers answers = answersTo(kBoth);
    answers.update(photos.list);
    const auto asked = [&](int from, int to) {
        int sum = 0;
        for (int i = from; i < to; ++i) {
            sum += photos.owned[i]->thumbnailQuestions - 1;
        }
        return sum;
    };
    answers.update(photos.list, AskAgain::Some);
    QCOMPARE(asked(0, 100), 100);
    QCOMPARE(asked(100, 250), 0);
    answers.update(photos.list, AskAgain::Some);
    QCOMPARE(asked(0, 100), 100);
    QCOMPARE(asked(100, 200), 100);
    // The last fifty, and the first fifty again.
    answers.update(photos.list, AskAgain::Some);
    QCOMPARE(asked(0, 50), 100);
    QCOMPARE(asked(50, 100), 50);
    QCOMPARE(asked(200, 250), 50);
    QCOMPARE(photos.thumbnailQuestions(), 250 + 300);
    QCOMPARE(photos.questions(), 250 * 3); // the other answers are there
}

void TestPhotoAnswers::allWithoutAnAnswerAreAskedAgain()
{
    const Photos photos(250);
    for (int i = 0; i < 250; i += 2) {
        photos.owned[i]->thumbnail = QSize();
    }
    PhotoAnswers answers = answersTo(kBoth);
    answers.update(photos.list);
    QCOMPARE(answers.firstThumbnail(), kThumbnail);
    photos.owned[0]->thumbnail = QSize(80, 60);
    QVERIFY(answers.update(photos.list, AskAgain::Unanswered));
    QCOMPARE(photos.thumbnailQuestions(), 250 + 125);
    QCOMPARE(answers.firstThumbnail(), QSize(80, 60));
    QVERIFY(!answers.update(photos.list, AskAgain::Unanswered));
    QCOMPARE(photos.thumbnailQuestions(), 250 + 125 + 124);
}

void TestPhotoAnswers::thumbnailsOfAllAreAskedAgain()
{
    const Photos photos(250);
    PhotoAnswers answers = answersTo(kBoth);
    answers.update(photos.list);
    photos.owned[7]->thumbnail = QSize();
    photos.owned[0]->thumbnail = QSize(80, 60);
    QVERIFY(answers.update(photos.list, AskAgain::Thumbnails));
    QCOMPARE(photos.thumbnailQuestions(), 2 * 250);
    QCOMPARE(photos.questions(), 3 * 250);
    QCOMPARE(answers.firstThumbnail(), QSize(80, 60));
    QVERIFY(answers.inOrder().at(7) == nullptr); // it has none any more
    photos.owned[7]->thumbnail = kThumbnail;
    QVERIFY(answers.update(photos.list, AskAgain::Some));
    QVERIFY(answers.inOrder().at(7) == photos.list.at(7));
}

void TestPhotoAnswers::nothingIsKnownOfForgottenPhotos()
{
    Photos photos(3);
    PhotoAnswers answers = answersTo(kBoth);
    answers.update(photos.list);
    answers.forget();
    QVERIFY(answers.inOrder().isEmpty());
    QVERIFY(answers.firstThumbnail().isEmpty());
    QCOMPARE(answers.lens().focalMm, 0.0);
    photos.owned.clear(); // not touched again
    QVERIFY(!answers.update({}, AskAgain::Thumbnails));
    QVERIFY(answers.inOrder().isEmpty());
}

TEST_CLASS(TestPhotoAnswers, QCoreApplication)
#include "tst_photoanswers.moc"
