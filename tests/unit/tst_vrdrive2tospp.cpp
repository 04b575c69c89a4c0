// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/vrdrive2tospp.h"

#include "tests/support/testprogram.h"
#include "tests/unit/plainimage.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

static_assert(std::is_base_of_v<MerlinToSPP, VRDrive2ToSPP>);
static_assert(sizeof(VRDrive2ToSPP) == sizeof(MerlinToSPP)); // no fields of its own
static_assert(!std::is_polymorphic_v<VRDrive2ToSPP>);

namespace
{

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

class ExposedImage : public PlainImage
{
public:
    explicit ExposedImage(float exposure)
        : PlainImage(24.0F, 0)
        , m_exposure(exposure)
    {
    }

    float Exposure() override
    {
        ++m_exposureQuestions;
        return m_exposure;
    }
    [[nodiscard]] int exposureQuestions() const { return m_exposureQuestions; }

private:
    float m_exposure;
    int m_exposureQuestions = 0;
};

/** The host's objects for photos of these exposures. */
class Images
{
public:
    explicit Images(const QVector<float> &exposures)
    {
        for (const float exposure : exposures) {
            m_images.push_back(std::make_unique<ExposedImage>(exposure));
        }
    }

    [[nodiscard]] QList<XIImageDef *> list() const
    {
        QList<XIImageDef *> all;
        for (const auto &image : m_images) {
            all.append(image.get());
        }
        return all;
    }
    [[nodiscard]] const ExposedImage &at(std::size_t index) const { return *m_images.at(index); }

private:
    std::vector<std::unique_ptr<ExposedImage>> m_images;
};

/** "a", "b", "c"... */
QStringList letters(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QString(QChar('a' + i)));
    }
    return names;
}

/** The names in every stack, as one word each. */
QStringList words(const VRDrive2ToSPP &generator)
{
    QStringList stacks;
    for (const QStringList &group : generator.imageGroups) {
        stacks.append(group.join(QString()));
    }
    return stacks;
}

QStringList split(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/** One call for \p exposures.size() photos with as many shots. */
void generate(VRDrive2ToSPP &generator, int nbPicts, const QVector<float> &exposures,
              int images = -1)
{
    generator.nbPicts = nbPicts;
    generator.shots.resize(exposures.size());
    QStringList files = letters(exposures.size());
    const Images photos(images < 0 ? exposures : exposures.mid(0, images));
    generator.generateSPP(files, photos.list(), 24.0, LensModel::Standard);
    QCOMPARE(files, letters(exposures.size()));
}

/** The reference, step by step: sort a copy, drop both ends while three are left, look it up. */
int plainReference(const QVector<double> &exposures)
{
    QVector<double> copy = exposures;
    std::sort(copy.begin(), copy.end());
    while (copy.size() >= 3) {
        copy.removeFirst();
        copy.removeLast();
    }
    int last = 0;
    for (int i = 0; i < exposures.size(); ++i) {
        if (exposures.at(i) == copy.first()) {
            last = i;
        }
    }
    return last;
}

} // namespace

/** The order of the photos in the stacks of a head that brackets its exposures. */
class TestVRDrive2ToSPP : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newGeneratorHasThePapywizardDefaults();

    void referenceIsTheLastMedian_data();
    void referenceIsTheLastMedian();
    void referenceIsThatOfThePlainSteps();
    void referenceSurvivesWhatIsNoNumber_data();
    void referenceSurvivesWhatIsNoNumber();

    void referenceChangesPlacesWithTheFirst_data();
    void referenceChangesPlacesWithTheFirst();
    void placeComesFromTheFirstBracketForAll();
    void onlyTheFirstBracketIsAsked();
    void descriptionIsThePapywizardOneOtherwise();

    void bracketCountBelowOneReordersNothing_data();
    void bracketCountBelowOneReordersNothing();
    void fewerImagesThanTheBracketReorderNothing_data();
    void fewerImagesThanTheBracketReorderNothing();
    void hugeBracketCountDoesNoHarm();

    void secondCallLeavesTheFirstCallsStacksAlone();
    void secondCallMayHaveAnotherBracketCount();
};

void TestVRDrive2ToSPP::newGeneratorHasThePapywizardDefaults()
{
    const VRDrive2ToSPP generator;
    QVERIFY(generator.positionsKnown);
    QVERIFY(generator.rollKnown);
    QVERIFY(generator.useRecordedLocation);
    QCOMPARE(generator.overlap, 80.0);
    QCOMPARE(generator.nbPicts, -1);
    QVERIFY(generator.shots.isEmpty());
}

void TestVRDrive2ToSPP::referenceIsTheLastMedian_data()
{
    QTest::addColumn<QVector<double>>("exposures");
    QTest::addColumn<int>("index");
    const auto row = [](const char *name, const QVector<double> &exposures, int index) {
        QTest::newRow(name) << exposures << index;
    };
    row("none", {}, 0);
    row("one", { 5.0 }, 0);
    row("even: the lower of both", { 1.0, -1.0 }, 1); // -1 1: -1
    row("even, lower first", { -1.0, 1.0 }, 0);
    row("median first", { 0.0, -2.0, 2.0 }, 0);
    row("median in the middle", { -2.0, 0.0, 2.0 }, 1);
    row("median last", { -2.0, 2.0, 0.0 }, 2);
    row("four: the lower of the two in the middle", { 3.0, 1.0, 4.0, 2.0 }, 3); // 1 [2] 3 4
    row("five in shooting order", { -2.0, -1.0, 0.0, 1.0, 2.0 }, 2);
    row("six", { 6.0, 5.0, 4.0, 3.0, 2.0, 1.0 }, 3); // 1 2 [3] 4 5 6
    row("seven, zigzag", { 0.0, -1.0, 1.0, -2.0, 2.0, -3.0, 3.0 }, 0);
    row("repeated median: the later one", { 0.0, -1.0, 0.0 }, 2); // -1 [0] 0
    row("repeated median at both ends", { 7.0, 1.0, 9.0, 7.0 }, 3); // 1 [7] 7 9
    row("all equal", { 2.0, 2.0, 2.0 }, 2);
    row("two equal", { 2.0, 2.0 }, 1);
    row("both zeros are equal", { 0.0, -1.0, 1.0, -0.0, 2.0 }, 3);
    row("no tolerance", { 1.0000001, 1.0, 0.0 }, 1); // 0 [1] 1.0000001
    row("infinite", { kInfinity, -kInfinity, 3.0 }, 2);
}

void TestVRDrive2ToSPP::referenceIsTheLastMedian()
{
    QFETCH(QVector<double>, exposures);
    QFETCH(int, index);
    QCOMPARE(PanoHead::referenceIndex(exposures), index);
}

void TestVRDrive2ToSPP::referenceIsThatOfThePlainSteps()
{
    QRandomGenerator random(20260104);
    for (int round = 0; round < 5000; ++round) {
        QVector<double> exposures(random.bounded(1, 12));
        for (double &exposure : exposures) {
            exposure = random.bounded(-4, 5) / 3.0; // few values: many repeat
        }
        QCOMPARE(PanoHead::referenceIndex(exposures), plainReference(exposures));
    }
}

void TestVRDrive2ToSPP::referenceSurvivesWhatIsNoNumber_data()
{
    QTest::addColumn<QVector<double>>("exposures");
    QTest::addColumn<int>("index");
    QTest::newRow("nothing but") << QVector<double>{ kNaN, kNaN, kNaN } << 0;
    QTest::newRow("the middle is none") << QVector<double>{ 1.0, kNaN, kNaN } << 0;
    QTest::newRow("one among two") << QVector<double>{ kNaN, 4.0 } << 1;
    QTest::newRow("one among three") << QVector<double>{ kNaN, 4.0, 2.0 } << 1; // 2 [4] none
    QTest::newRow("many") << QVector<double>{ kNaN, 3.0, kNaN, 1.0, 2.0 } << 1; // 1 2 [3]
}

void TestVRDrive2ToSPP::referenceSurvivesWhatIsNoNumber()
{
    QFETCH(QVector<double>, exposures);
    QFETCH(int, index);
    QCOMPARE(PanoHead::referenceIndex(exposures), index);
}

void TestVRDrive2ToSPP::referenceChangesPlacesWithTheFirst_data()
{
    QTest::addColumn<int>("nbPicts");
    QTest::addColumn<QVector<float>>("exposures");
    QTest::addColumn<QString>("stacks");
    const auto row
        = [](const char *name, int nbPicts, const QVector<float> &exposures, const char *stacks) {
              QTest::newRow(name) << nbPicts << exposures << QString::fromLatin1(stacks);
          };
    row("no brackets", 1, { 3, 1, 2 }, "a b c");
    row("two: every pair is swapped", 2, { 1, -1, 1, -1 }, "ba dc");
    row("three, reference first already", 3, { 0, -2, 2, 0, -2, 2 }, "abc def");
    row("five: first and third change places", 5, { -2, -1, 0, 1, 2, -2, -1, 0, 1, 2 },
        "cbade hgfij");
    row("repeated median: the later one", 3, { 0, -1, 0 }, "cba");
    row("a rest that fills no bracket is no stack", 2, { 1, -1, 1 }, "ba");
}

void TestVRDrive2ToSPP::referenceChangesPlacesWithTheFirst()
{
    QFETCH(int, nbPicts);
    QFETCH(QVector<float>, exposures);
    QFETCH(QString, stacks);
    VRDrive2ToSPP generator;

    generate(generator, nbPicts, exposures);

    QCOMPARE(words(generator), stacks.split(QLatin1Char(' ')));
}

void TestVRDrive2ToSPP::placeComesFromTheFirstBracketForAll()
{
    VRDrive2ToSPP generator;

    // By itself the second bracket would keep its order, and the third one bring its last forward.
    generate(generator, 3, { -2, 0, 2, 0, -2, 2, -2, 2, 0 });

    QCOMPARE(words(generator), split("bac edf hgi"));
}

void TestVRDrive2ToSPP::onlyTheFirstBracketIsAsked()
{
    VRDrive2ToSPP generator;
    generator.nbPicts = 2;
    generator.shots.resize(6);
    QStringList files = letters(6);
    const Images photos({ 1, 2, 3, 4, 5, 6 });

    generator.generateSPP(files, photos.list(), 24.0, LensModel::Standard);

    for (std::size_t i = 0; i < 6; ++i) {
        QCOMPARE(photos.at(i).exposureQuestions() > 0, i < 2);
    }
}

void TestVRDrive2ToSPP::descriptionIsThePapywizardOneOtherwise()
{
    QVector<ShootData> shots(6);
    for (int i = 0; i < shots.size(); ++i) {
        shots[i].yaw = 30.0F * static_cast<float>(i / 2);
        shots[i].pitch = -10.0F;
        shots[i].roll = 90.0F;
    }
    MerlinToSPP plain;
    plain.nbPicts = 2;
    plain.shots = shots;
    plain.generateSPP(letters(6), 24.0, LensModel::Standard);
    VRDrive2ToSPP generator;
    generator.nbPicts = 2;
    generator.shots = shots;
    QStringList files = letters(6);
    const Images photos({ 1, 0, 1, 0, 1, 0 });

    generator.generateSPP(files, photos.list(), 24.0, LensModel::Standard);

    QCOMPARE(words(generator), split("ba dc fe"));
    QCOMPARE(generator.yaw, plain.yaw);
    QCOMPARE(generator.pitch, plain.pitch);
    QCOMPARE(generator.roll, plain.roll);
    QCOMPARE(generator.focalLength, 24.0F);
    QCOMPARE(generator.lensModel, LensModel::Standard);
    QCOMPARE(plain.authorizedLinks.size(), 3); // 0-1, 1-2 and 0-2, 60 degrees apart
    QCOMPARE(generator.authorizedLinks.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(generator.authorizedLinks.at(i).indices, plain.authorizedLinks.at(i).indices);
        QCOMPARE(generator.authorizedLinks.at(i).linkType, plain.authorizedLinks.at(i).linkType);
    }
}

void TestVRDrive2ToSPP::bracketCountBelowOneReordersNothing_data()
{
    QTest::addColumn<int>("nbPicts");
    QTest::newRow("not said") << -1;
    QTest::newRow("0") << 0;
    QTest::newRow("-3") << -3;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestVRDrive2ToSPP::bracketCountBelowOneReordersNothing()
{
    QFETCH(int, nbPicts);
    VRDrive2ToSPP generator;

    generate(generator, nbPicts, { 1, -1 });

    QCOMPARE(words(generator), split("a b"));
}

void TestVRDrive2ToSPP::fewerImagesThanTheBracketReorderNothing_data()
{
    QTest::addColumn<int>("images");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("one less than the bracket") << 2;
}

void TestVRDrive2ToSPP::fewerImagesThanTheBracketReorderNothing()
{
    QFETCH(int, images);
    VRDrive2ToSPP generator;

    generate(generator, 3, { -2, 0, 2, -2, 0, 2 }, images);
    QCOMPARE(words(generator), split("abc def"));

    // As many as the bracket are enough.
    generator.imageGroups.clear();
    generate(generator, 3, { -2, 0, 2, -2, 0, 2 }, 3);
    QCOMPARE(words(generator), split("bac edf"));
}

void TestVRDrive2ToSPP::hugeBracketCountDoesNoHarm()
{
    for (const QVector<float> &exposures : { QVector<float>(), QVector<float>{ 1, 2, 3 } }) {
        VRDrive2ToSPP generator;
        generate(generator, std::numeric_limits<int>::max(), exposures);
        QVERIFY(generator.imageGroups.isEmpty());
        QVERIFY(generator.authorizedLinks.isEmpty());
        QCOMPARE(generator.yaw.size(), exposures.size());
    }
}

void TestVRDrive2ToSPP::secondCallLeavesTheFirstCallsStacksAlone()
{
    VRDrive2ToSPP generator;

    generate(generator, 2, { 1, -1, 1, -1 });
    generate(generator, 2, { 1, -1, 1, -1 });

    QCOMPARE(words(generator), split("ba dc ba dc"));
}

void TestVRDrive2ToSPP::secondCallMayHaveAnotherBracketCount()
{
    VRDrive2ToSPP generator;

    // Place 4 exists in the stacks of the second call only.
    generate(generator, 2, { 1, -1 });
    generate(generator, 5, { 5, 4, 2, 1, 3 });
    generate(generator, 1, { 5 });

    QCOMPARE(words(generator), split("ba ebcda a"));
}

TEST_CLASS(TestVRDrive2ToSPP, QCoreApplication)
#include "tst_vrdrive2tospp.moc"
