// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/matching.h"
#include "tests/host/align/alignpictures.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>

using namespace PanoHost;
using AlignPictures::Shot;
using Eigen::Matrix3d;

namespace
{

// 24 * hypot(480, 320) / hypot(36, 24) = 320 pixels per radian in the middle: 74 by 53 degrees.
const Camera kLandscape{ QSize(480, 320), 24.0, Projection::Rectilinear };
const Camera kPortrait{ QSize(320, 480), 24.0, Projection::Rectilinear };
const Camera kFisheye{ QSize(480, 320), 12.0, Projection::EquidistantFisheye };
const Camera kLonger{ QSize(600, 400), 35.0, Projection::Rectilinear };

/** Rays of the first camera to rays of the second. */
Matrix3d between(const Matrix3d &first, const Matrix3d &second)
{
    return second.transpose() * first;
}

/** The true rotation between two shots, the first taken \p degrees further to the right than it
 * was. */
Matrix3d predicted(const Shot &first, const Shot &second, double degrees)
{
    return between(
        rotationOf({ first.pose.yawDegrees + degrees, first.pose.pitchDegrees + degrees / 2,
                     first.pose.rollDegrees - degrees / 3 }),
        second.rotation());
}

/** The row of item \p number of a table of \p columns. */
int rowOf(int number, int columns)
{
    return number / columns;
}

double worst(const std::vector<double> &values)
{
    return values.empty() ? 1e6 : *std::max_element(values.begin(), values.end());
}

/** Features at made-up places, with descriptors that have nothing to do with each other. */
class MadeUp
{
public:
    void add(double x, double y, quint32 likeNumber)
    {
        m_set.places.push_back({ static_cast<float>(x), static_cast<float>(y) });
        m_set.descriptors.push_back(descriptor(likeNumber));
        m_set.lights.push_back(0);
    }

    [[nodiscard]] const FeatureSet &set() const { return m_set; }

private:
    /** Two of them share so few of their directions that they are nothing alike. */
    static FeatureSet::Descriptor descriptor(quint32 number)
    {
        FeatureSet::Descriptor values{};
        std::mt19937 generator(number);
        for (int set = 0; set < 8;) {
            std::uint8_t &value = values.at(generator() % values.size());
            set += value == 0 ? 1 : 0;
            value = 181; // 8 * 181^2 is about 512^2
        }
        return values;
    }

    FeatureSet m_set;
};

AlignLens plainLens()
{
    return AlignPictures::lensOf(kLandscape);
}

/** What \p first becomes when all its features move by \p x pixels, found again by \p rules. */
PairMatches matched(const FeatureSet &first, const FeatureSet &second, const MatchRules &rules,
                    quint32 seed = 1)
{
    const AlignLens lens = plainLens();
    return matchPair({ first, lens }, { second, lens }, Matrix3d::Identity(), rules, seed);
}

std::set<std::pair<int, int>> asSet(const PairMatches &matches)
{
    std::set<std::pair<int, int>> pairs;
    for (const auto &pair : matches.pairs) {
        pairs.insert({ pair.first, pair.second });
    }
    return pairs;
}

} // namespace

Q_DECLARE_METATYPE(Camera)
Q_DECLARE_METATYPE(Pose)

class TestMatching : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void neighboursAreTiedWithinAPartOfAPixel_data();
    void neighboursAreTiedWithinAPartOfAPixel();
    void photosOfDifferentLensesAreTied();
    void sameWindowsAreNotTakenForEachOther_data();
    void sameWindowsAreNotTakenForEachOther();
    void photosWithoutTextureHaveNoMatches();
    void identicalPhotosMatchEverywhere();
    void photosOfDifferentPlacesHaveNoConsensus();
    void predictionsBeyondTheGateAreRefused();
    void rulesFollowTheWidth();

    void partnersAreFoundAmongStrangers();
    void partnersOutsideTheWindowAreNotFound();
    void rivalsMakeAMatchUnsureUnlessTheyAreTheSameSpot_data();
    void rivalsMakeAMatchUnsureUnlessTheyAreTheSameSpot();
    void noSpotIsUsedTwice();
    void fewMatchesAreSpreadOverTheOverlap();
    void tooFewAgreeingMatchesAreNone_data();
    void tooFewAgreeingMatchesAreNone();
    void theSameInputGivesTheSameMatches();

    void overlapsAreThoseOfACloserLook_data();
    void overlapsAreThoseOfACloserLook();
    void directionsThatAreNoNumbersOverlapNothing();
};

void TestMatching::neighboursAreTiedWithinAPartOfAPixel_data()
{
    QTest::addColumn<Camera>("camera");
    QTest::addColumn<Pose>("first");
    QTest::addColumn<Pose>("second");
    QTest::newRow("beside") << kLandscape << Pose{ 0, 0, 0 } << Pose{ 40, 0, 0 };
    QTest::newRow("below, behind the back")
        << kLandscape << Pose{ 178, 10, 0 } << Pose{ -179, -20, 0 };
    QTest::newRow("portrait") << kPortrait << Pose{ 30, 0, 0 } << Pose{ 60, 5, 0 };
    QTest::newRow("turned by a quarter") << kLandscape << Pose{ 30, 0, 90 } << Pose{ 55, 0, 90 };
    QTest::newRow("one of them turned") << kLandscape << Pose{ 30, 0, 0 } << Pose{ 50, 0, 90 };
    QTest::newRow("up to the zenith") << kLandscape << Pose{ 30, 60, 0 } << Pose{ 80, 88, 5 };
    QTest::newRow("fisheye") << kFisheye << Pose{ 0, 0, 0 } << Pose{ 60, 0, 0 };
}

void TestMatching::neighboursAreTiedWithinAPartOfAPixel()
{
    QFETCH(Camera, camera);
    QFETCH(Pose, first);
    QFETCH(Pose, second);
    const Shot one(AlignPictures::texture(), camera, first);
    const Shot other(AlignPictures::texture(), camera, second);
    const Matrix3d truth = between(one.rotation(), other.rotation());
    // The play of a head before anything is known, and what is left of it once the lens is solved.
    for (const auto &[rules, degrees] :
         { std::pair(firstLook(other.lens), 2.0), std::pair(secondLook(other.lens), 0.2) }) {
        const PairMatches matches
            = matchPair(one.side(), other.side(), predicted(one, other, degrees), rules, 1);
        const std::vector<double> errors = AlignPictures::errors(matches, one, other);
        QVERIFY2(matches.pairs.size() >= 20, qPrintable(QString::number(matches.pairs.size())));
        QVERIFY(int(matches.pairs.size()) <= rules.mostPoints);
        QVERIFY2(AlignPictures::median(errors) < 0.3,
                 qPrintable(QString::number(AlignPictures::median(errors))));
        QVERIFY2(worst(errors) < rules.consensusPixels + 1.0,
                 qPrintable(QString::number(worst(errors))));
        QVERIFY2(degreesBetween(matches.rotation, truth) < 0.05,
                 qPrintable(QString::number(degreesBetween(matches.rotation, truth))));
    }
}

void TestMatching::photosOfDifferentLensesAreTied()
{
    const Shot one(AlignPictures::texture(), kLandscape, { 0, 0, 0 });
    const Shot other(AlignPictures::texture(), kLonger, { 20, 3, 0 });
    const PairMatches matches
        = matchPair(one.side(), other.side(), predicted(one, other, 0.5), firstLook(other.lens), 1);
    QVERIFY(matches.pairs.size() >= 20);
    QVERIFY(AlignPictures::median(AlignPictures::errors(matches, one, other)) < 0.4);
}

void TestMatching::sameWindowsAreNotTakenForEachOther_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<double>("degreesOff");
    // The window of the first look holds several of them: it may find them too much alike.
    QTest::newRow("first look") << true << 0.7;
    QTest::newRow("second look") << false << 0.2;
}

void TestMatching::sameWindowsAreNotTakenForEachOther()
{
    QFETCH(bool, first);
    QFETCH(double, degreesOff);
    const Shot one(AlignPictures::facade(), kLandscape, { 0, 0, 0 });
    const Shot other(AlignPictures::facade(), kLandscape, { 40, 0, 0 });
    const MatchRules rules = first ? firstLook(other.lens) : secondLook(other.lens);
    const PairMatches matches
        = matchPair(one.side(), other.side(), predicted(one, other, degreesOff), rules, 1);
    const std::vector<double> errors = AlignPictures::errors(matches, one, other);
    QVERIFY2(first || errors.size() >= 20, qPrintable(QString::number(errors.size())));
    // The next window is 4 degrees on: with this lens at least 20 pixels.
    for (const double error : errors) {
        QVERIFY2(error < 10.0, qPrintable(QString::number(error)));
    }
}

void TestMatching::photosWithoutTextureHaveNoMatches()
{
    const RayLight fog = [](const Vec3 &) { return Rgb{ 0.5F, 0.5F, 0.5F }; };
    const Shot one(fog, kLandscape, { 0, 0, 0 });
    const Shot other(AlignPictures::texture(), kLandscape, { 30, 0, 0 });
    for (const auto &[first, second] :
         { std::pair(&one, &other), std::pair(&other, &one), std::pair(&one, &one) }) {
        const PairMatches matches = matchPair(first->side(), second->side(), Matrix3d::Identity(),
                                              firstLook(second->lens), 1);
        QVERIFY(matches.pairs.empty());
    }
}

void TestMatching::identicalPhotosMatchEverywhere()
{
    const Shot shot(AlignPictures::texture(), kLandscape, { 0, 0, 0 });
    const PairMatches matches
        = matchPair(shot.side(), shot.side(), Matrix3d::Identity(), firstLook(shot.lens), 1);
    QCOMPARE(static_cast<int>(matches.pairs.size()), firstLook(shot.lens).mostPoints);
    QVERIFY(worst(AlignPictures::errors(matches, shot, shot)) < 1e-3);
    QVERIFY(degreesBetween(matches.rotation, Matrix3d::Identity()) < 1e-6);
}

void TestMatching::photosOfDifferentPlacesHaveNoConsensus()
{
    // The head says that they overlap by half; they show nothing in common.
    const Shot one(AlignPictures::texture(7), kLandscape, { 0, 0, 0 });
    const Shot other(AlignPictures::texture(70), kLandscape, { 35, 0, 0 });
    for (quint32 seed = 0; seed < 5; ++seed) {
        const PairMatches matches = matchPair(one.side(), other.side(), predicted(one, other, 0.0),
                                              firstLook(other.lens), seed);
        QVERIFY(matches.pairs.empty());
    }
}

void TestMatching::predictionsBeyondTheGateAreRefused()
{
    const Shot one(AlignPictures::texture(), kLandscape, { 0, 0, 0 });
    const Shot other(AlignPictures::texture(), kLandscape, { 30, 0, 0 });
    const MatchRules wide{ 480.0, 6.0, 0.0 };
    MatchRules gated = wide;
    gated.gateDegrees = 5.0;
    const Matrix3d wrong = between(one.rotation(), rotationOf({ 36.0, 0.0, 0.0 }));
    QVERIFY(!matchPair(one.side(), other.side(), wrong, wide, 1).pairs.empty());
    QVERIFY(matchPair(one.side(), other.side(), wrong, gated, 1).pairs.empty());
}

void TestMatching::rulesFollowTheWidth()
{
    AlignLens lens = plainLens();
    lens.size = QSize(6000, 4000);
    QCOMPARE(firstLook(lens).windowPixels, 960.0); // 16 %
    QCOMPARE(firstLook(lens).consensusPixels, 72.0); // 1.2 %
    QCOMPARE(firstLook(lens).gateDegrees, 15.0);
    QCOMPARE(firstLook(lens).sameSpotPixels, 12.0); // 0.2 %
    QCOMPARE(secondLook(lens).windowPixels, 72.0); // 1.2 %
    QCOMPARE(secondLook(lens).consensusPixels, 48.0); // 0.8 %
    QCOMPARE(secondLook(lens).gateDegrees, 1.0);
    QCOMPARE(secondLook(lens).sameSpotPixels, 12.0);
    lens.size = QSize(400, 300);
    QCOMPARE(firstLook(lens).sameSpotPixels, 3.0);
    QCOMPARE(firstLook(lens).consensusPixels, 6.0);
    QCOMPARE(secondLook(lens).windowPixels, 8.0);
    QCOMPARE(secondLook(lens).consensusPixels, 4.0);
}

void TestMatching::partnersAreFoundAmongStrangers()
{
    MadeUp one;
    MadeUp other;
    std::set<std::pair<int, int>> expected;
    for (int i = 0; i < 60; ++i) {
        const double x = 15.0 + 50.0 * (i % 9);
        const double y = 15.0 + 40.0 * rowOf(i, 9);
        // Every third one of the second photo shows something else.
        one.add(x, y, 1000U + static_cast<quint32>(i));
        other.add(x + 0.5 * (i % 2), y, (i % 3 == 0 ? 5000U : 1000U) + static_cast<quint32>(i));
        if (i % 3 != 0) {
            expected.insert({ i, i });
        }
    }
    QCOMPARE(asSet(matched(one.set(), other.set(), { 60.0, 4.0, 5.0, 100 })), expected);
}

void TestMatching::partnersOutsideTheWindowAreNotFound()
{
    const auto found = [](double shift) {
        MadeUp one;
        MadeUp other;
        for (int i = 0; i < 30; ++i) {
            const double x = 200.0 + 16.0 * (i % 6);
            const double y = 120.0 + 16.0 * rowOf(i, 6);
            one.add(x, y, static_cast<quint32>(i));
            other.add(x + shift, y, static_cast<quint32>(i));
        }
        return matched(one.set(), other.set(), { 20.0, 6.0, 15.0, 100 }).pairs.size();
    };
    QCOMPARE(found(19.5), size_t{ 30 });
    QCOMPARE(found(20.5), size_t{ 0 });
    QCOMPARE(found(-19.5), size_t{ 30 });
    QCOMPARE(found(-20.5), size_t{ 0 });
}

void TestMatching::rivalsMakeAMatchUnsureUnlessTheyAreTheSameSpot_data()
{
    QTest::addColumn<double>("away");
    QTest::addColumn<bool>("sure");
    QTest::newRow("another direction of the same spot") << 2.5 << true;
    QTest::newRow("a spot of its own") << 3.5 << false;
    QTest::newRow("a spot outside the window") << 30.0 << true;
}

void TestMatching::rivalsMakeAMatchUnsureUnlessTheyAreTheSameSpot()
{
    QFETCH(double, away);
    QFETCH(bool, sure);
    MadeUp one;
    MadeUp other;
    for (int i = 0; i < 20; ++i) {
        const double x = 40.0 + 100.0 * (i % 5);
        const double y = 40.0 + 80.0 * rowOf(i, 5);
        one.add(x, y, static_cast<quint32>(i));
        other.add(x, y, static_cast<quint32>(i));
    }
    other.add(40.0 + away, 40.0, 0); // looks like feature 0
    const PairMatches matches = matched(one.set(), other.set(), { 20.0, 6.0, 15.0, 100 });
    QCOMPARE(asSet(matches).count({ 0, 0 }), size_t{ sure ? 1U : 0U });
    QVERIFY(matches.pairs.size() >= 19);
}

void TestMatching::noSpotIsUsedTwice()
{
    MadeUp one;
    MadeUp other;
    for (int i = 0; i < 20; ++i) {
        const double x = 40.0 + 100.0 * (i % 5);
        const double y = 40.0 + 80.0 * rowOf(i, 5);
        for (const quint32 direction : { 0U, 100U }) {
            one.add(x, y, static_cast<quint32>(i) + direction);
            other.add(x, y, static_cast<quint32>(i) + direction);
        }
    }
    QCOMPARE(matched(one.set(), other.set(), { 20.0, 6.0, 15.0, 100 }).pairs.size(), size_t{ 20 });
}

void TestMatching::fewMatchesAreSpreadOverTheOverlap()
{
    MadeUp one;
    // 360 in the upper left corner, one in each other field of 5 x 5.
    int number = 0;
    for (int i = 0; i < 360; ++i) {
        one.add(4.0 + 4.0 * (i % 20), 4.0 + 3.0 * rowOf(i, 20), static_cast<quint32>(++number));
    }
    for (int field = 1; field < 25; ++field) {
        one.add(40.0 + 90.0 * (field % 5), 30.0 + 60.0 * rowOf(field, 5),
                static_cast<quint32>(++number));
    }
    const PairMatches matches = matched(one.set(), one.set(), { 3.0, 3.0, 15.0, 30 });
    QCOMPARE(matches.pairs.size(), size_t{ 30 });
    int crowded = 0;
    for (const auto &pair : matches.pairs) {
        crowded += pair.first < 360 ? 1 : 0;
    }
    QCOMPARE(crowded, 6); // 30 less one from each of the 24 other fields
}

void TestMatching::tooFewAgreeingMatchesAreNone_data()
{
    QTest::addColumn<int>("agreeing");
    QTest::addColumn<int>("others");
    QTest::addColumn<bool>("enough");
    // At least 5, and at least 4 and a fifth of all.
    QTest::newRow("four of four") << 4 << 0 << false;
    QTest::newRow("five of five") << 5 << 0 << true;
    QTest::newRow("twelve of forty") << 12 << 28 << true;
    QTest::newRow("eleven of forty") << 11 << 29 << false;
}

void TestMatching::tooFewAgreeingMatchesAreNone()
{
    QFETCH(int, agreeing);
    QFETCH(int, others);
    QFETCH(bool, enough);
    MadeUp one;
    MadeUp other;
    for (int i = 0; i < agreeing + others; ++i) {
        const double x = 40.0 + 50.0 * (i % 8);
        const double y = 40.0 + 50.0 * rowOf(i, 8);
        // Those that do not agree are off in every direction.
        const double angle = 2.4 * i;
        const double off = i < agreeing ? 0.0 : 9.0 + i % 7;
        one.add(x, y, static_cast<quint32>(i));
        other.add(x + off * std::cos(angle), y + off * std::sin(angle), static_cast<quint32>(i));
    }
    const PairMatches matches = matched(one.set(), other.set(), { 20.0, 2.0, 15.0, 100 });
    QCOMPARE(static_cast<int>(matches.pairs.size()), enough ? agreeing : 0);
}

void TestMatching::theSameInputGivesTheSameMatches()
{
    const Shot one(AlignPictures::texture(), kLandscape, { 0, 0, 0 });
    const Shot other(AlignPictures::texture(), kLandscape, { 40, 0, 0 });
    const auto run = [&] {
        return matchPair(one.side(), other.side(), predicted(one, other, 1.0),
                         firstLook(other.lens), 12345);
    };
    const PairMatches once = run();
    const PairMatches again = run();
    QCOMPARE(once.pairs, again.pairs);
    QVERIFY(once.rotation == again.rotation);
}

void TestMatching::overlapsAreThoseOfACloserLook_data()
{
    QTest::addColumn<QVector<QPair<Camera, Pose>>>("shots");
    using Shots = QVector<QPair<Camera, Pose>>;
    QTest::newRow("none") << Shots();
    QTest::newRow("one") << Shots{ { kLandscape, { 0, 0, 0 } } };
    QTest::newRow("two alike") << Shots{ { kLandscape, { 9, 8, 7 } }, { kLandscape, { 9, 8, 7 } } };
    const auto sphere = [](const Camera &camera, const Camera &every3rd, double step) {
        Shots shots;
        const int rows = static_cast<int>(180.0 / step);
        for (int row = 0; row <= rows; ++row) {
            for (int column = 0; column < 2 * rows; ++column) {
                shots.append(
                    { shots.size() % 3 == 0 ? every3rd : camera,
                      { column * step - 180.0, row * step - 90.0, 20.0 * (shots.size() % 2) } });
            }
        }
        return shots;
    };
    QTest::newRow("sphere") << sphere(kLandscape, kLandscape, 36.0);
    QTest::newRow("sphere, portrait") << sphere(kPortrait, kPortrait, 45.0);
    QTest::newRow("sphere, fisheye") << sphere(kFisheye, kFisheye, 60.0);
    const Camera tele{ QSize(480, 320), 200.0, Projection::Rectilinear };
    QTest::newRow("sphere, two lenses") << sphere(tele, kLandscape, 30.0);
    Shots grid;
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 12; ++column) {
            grid.append({ tele, { 174.0 + 7.0 * column, -80.0 + 5.0 * row, 0.0 } });
        }
    }
    QTest::newRow("long lens") << grid;
}

void TestMatching::overlapsAreThoseOfACloserLook()
{
    using Shots = QVector<QPair<Camera, Pose>>;
    QFETCH(Shots, shots);
    std::vector<AlignLens> lenses;
    std::vector<Matrix3d> rotations;
    for (const auto &[camera, pose] : shots) {
        lenses.push_back(AlignPictures::lensOf(camera));
        rotations.push_back(rotationOf(AlignPictures::anglesOf(pose)));
    }
    std::vector<const AlignLens *> lensOfEach;
    lensOfEach.reserve(lenses.size());
    for (const AlignLens &lens : lenses) {
        lensOfEach.push_back(&lens);
    }
    const auto pairs = overlappingPairs(rotations, lensOfEach);
    QVERIFY(std::is_sorted(pairs.begin(), pairs.end()));
    const std::set<QPair<int, int>> found(pairs.begin(), pairs.end());
    QCOMPARE(found.size(), pairs.size());
    // The share of the narrower photo that the other camera sees, at far more places.
    const auto share = [&](int i, int j) {
        const View from(shots[i].first, shots[i].second);
        const View to(shots[j].first, shots[j].second);
        constexpr int kSide = 24;
        int seen = 0;
        for (int n = 0; n < kSide * kSide; ++n) {
            const QSize size = shots[i].first.size;
            seen += to.pixelAt(from.directionAt((n % kSide + 0.5) * size.width() / kSide,
                                                (rowOf(n, kSide) + 0.5) * size.height() / kSide))
                ? 1
                : 0;
        }
        return double(seen) / (kSide * kSide);
    };
    for (int i = 0; i < shots.size(); ++i) {
        for (int j = i + 1; j < shots.size(); ++j) {
            const bool firstIsNarrower = shots[i].first.focal35mm >= shots[j].first.focal35mm;
            const double overlap = firstIsNarrower ? share(i, j) : share(j, i);
            const bool listed = found.count({ i, j }) > 0;
            QVERIFY2(overlap > 0.015 || !listed, qPrintable(QStringLiteral("%1 %2").arg(i).arg(j)));
            QVERIFY2(overlap < 0.06 || listed, qPrintable(QStringLiteral("%1 %2").arg(i).arg(j)));
        }
    }
}

void TestMatching::directionsThatAreNoNumbersOverlapNothing()
{
    const AlignLens lens = plainLens();
    const double none = std::numeric_limits<double>::quiet_NaN();
    const std::vector<Matrix3d> rotations{ rotationOf({ 0, 0, 0 }), rotationOf({ none, 0, 0 }),
                                           rotationOf({ 10, 0, 0 }), rotationOf({ 0, 0, none }) };
    const auto pairs = overlappingPairs(rotations, { 4, &lens });
    QCOMPARE(pairs, (std::vector<QPair<int, int>>{ { 0, 2 } }));
}

TEST_CLASS(TestMatching, QCoreApplication)
#include "tst_matching.moc"
