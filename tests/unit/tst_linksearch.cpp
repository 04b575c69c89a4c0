// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/linksearch.h"

#include "tests/support/plainlinks.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace PanoHead;

namespace
{

constexpr double kPi = 3.141592653589793;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

struct Angles {
    float yawDegrees;
    float pitchDegrees;
};

enum class Layout {
    Rows, ///< a grid as a head sweeps it, anywhere, with any step
    Sphere, ///< anywhere on the sphere
    Poles, ///< clusters close to the poles, some pitches beyond
    Seam, ///< clusters around half a turn
    ManyTurns, ///< yaws of up to 100,000 degrees, pitches beyond the poles
    RightAngles, ///< multiples of 45 and 90 degrees of either sign
    Duplicates, ///< many positions on few directions, some a rounding apart
    Brackets, ///< every direction three times in a row
    Spoiled, ///< not a number, infinities, minus zero, huge and tiny numbers between others
    Patch, ///< a mosaic of some degrees
    Patches, ///< several mosaics far apart, with single shots elsewhere
};
constexpr int kLayouts = 11;

class Shoots
{
public:
    explicit Shoots(unsigned seed)
        : m_random(seed)
    {
    }

    QVector<Angles> angles(Layout layout, int count)
    {
        QVector<Angles> all;
        switch (layout) {
        case Layout::Rows:
            all = grid(count, one<float>({ 1.0F, 5.0F, 7.5F, 15.0F, 30.0F, 36.0F }),
                       between(-400.0, 400.0), between(-90.0, 0.0));
            break;
        case Layout::Sphere:
            while (all.size() < count) {
                all.append({ between(-180.0, 180.0),
                             static_cast<float>(std::asin(between(-1.0, 1.0)) * 57.29578) });
            }
            break;
        case Layout::Poles:
            while (all.size() < count) {
                all.append(
                    { between(-360.0, 360.0), one<float>({ -90.0F, 90.0F }) + between(-6.0, 6.0) });
            }
            break;
        case Layout::Seam:
            while (all.size() < count) {
                all.append(
                    { one<float>({ -180.0F, 180.0F, 540.0F, 0.0F, 360.0F }) + between(-8.0, 8.0),
                      between(-10.0, 10.0) });
            }
            break;
        case Layout::ManyTurns:
            while (all.size() < count) {
                all.append({ between(-1e5, 1e5), between(-1000.0, 1000.0) });
            }
            break;
        case Layout::RightAngles:
            while (all.size() < count) {
                const float step = one<float>({ 45.0F, 90.0F, 180.0F });
                all.append({ step * one<float>({ -8, -4, -2, -1, -0.0F, 0, 1, 2, 3, 4, 6 }),
                             step * one<float>({ -2, -1, -0.0F, 0, 1, 2 }) });
            }
            break;
        case Layout::Duplicates:
            duplicates(all, count);
            break;
        case Layout::Brackets:
            for (const Angles &direction : grid(count / 3 + 1, 10.0F, between(0.0, 90.0), -30.0F)) {
                all += QVector<Angles>(3, direction);
            }
            all.resize(count);
            break;
        case Layout::Spoiled:
            spoiled(all, count);
            break;
        case Layout::Patch:
            all = grid(count, between(0.05, 1.0), between(-200.0, 200.0), between(-95.0, 85.0));
            break;
        case Layout::Patches:
            while (all.size() < count) {
                all += grid(std::min<int>(count - all.size(), 20), between(0.05, 2.0),
                            between(-400.0, 400.0), between(-95.0, 95.0));
                if (all.size() < count) {
                    all.append({ between(-180.0, 180.0), between(-90.0, 90.0) });
                }
            }
            break;
        }
        return all;
    }

    /** Anything from a useless to a useful focal length; often one at which the search changes. */
    float focalMm()
    {
        if (isOneIn(3)) {
            return between(50.0, 75.0);
        }
        return one<float>({ 0.0F,   -0.0F,  -1.0F,   -50.0F,  kNaN,  kInfinity, -kInfinity,
                            1e-30F, 1e-40F, 1e30F,   3e38F,   4.0F,  8.0F,      14.0F,
                            24.0F,  35.0F,  43.0F,   50.0F,   85.0F, 135.0F,    200.0F,
                            400.0F, 800.0F, 2000.0F, 10000.0F });
    }
    /** One that sees a part of the sphere. */
    float usefulFocalMm() { return std::exp2(between(3.0, 10.0)); }

    int count(int first, int last)
    {
        return std::uniform_int_distribution<int>(first, last)(m_random);
    }
    bool isOneIn(int times) { return count(1, times) == 1; }

private:
    float between(double first, double last)
    {
        return static_cast<float>(std::uniform_real_distribution<double>(first, last)(m_random));
    }
    template <typename T> T one(std::initializer_list<T> choices)
    {
        return choices.begin()[count(0, static_cast<int>(choices.size()) - 1)];
    }

    QVector<Angles> grid(int count, float step, float yaw, float pitch)
    {
        const int columns = std::max(1, this->count(1, 2 * static_cast<int>(std::sqrt(count)) + 1));
        QVector<Angles> all;
        for (int i = 0; i < count; ++i) {
            all.append({ yaw + static_cast<float>(i % columns) * step,
                         pitch + static_cast<float>(i / columns) * step });
        }
        return all;
    }

    void duplicates(QVector<Angles> &all, int count)
    {
        const Layout kind = one({ Layout::Sphere, Layout::RightAngles, Layout::Rows });
        const QVector<Angles> few = angles(kind, std::max(1, count / 5));
        while (all.size() < count) {
            Angles direction = few[this->count(0, few.size() - 1)];
            if (isOneIn(4)) {
                direction.yawDegrees = std::nextafter(direction.yawDegrees, 1e9F);
            }
            if (isOneIn(4)) {
                direction.pitchDegrees += between(-1e-6, 1e-6);
            }
            all.append(direction);
        }
    }

    void spoiled(QVector<Angles> &all, int count)
    {
        all = angles(one({ Layout::Rows, Layout::Poles, Layout::Brackets }), count);
        for (Angles &direction : all) {
            float &angle = isOneIn(2) ? direction.yawDegrees : direction.pitchDegrees;
            if (isOneIn(3)) {
                angle = one<float>({ kNaN, kInfinity, -kInfinity, -0.0F, 0.0F, 1e-30F, -1e-42F,
                                     3e38F, -3e38F, 1e20F });
            }
        }
    }

    std::mt19937 m_random;
};

QVector<Direction> asDirections(const QVector<Angles> &angles)
{
    QVector<Direction> positions;
    for (const Angles &direction : angles) {
        positions.append(
            { static_cast<float>(static_cast<double>(direction.yawDegrees) * kPi / 180),
              static_cast<float>(static_cast<double>(direction.pitchDegrees) * kPi / 180) });
    }
    return positions;
}

/** All photos through the lens \p focalMm; below zero and the like included. */
QVector<PhotoDirection> asPhotos(const QVector<Angles> &angles, float focalMm)
{
    QVector<PhotoDirection> photos;
    for (const Angles &direction : angles) {
        photos.append({ direction.yawDegrees, direction.pitchDegrees, focalMm });
    }
    return photos;
}

/** Half of the photos through lenses of their own. */
void mixFocals(Shoots &shoots, QVector<PhotoDirection> &photos)
{
    for (PhotoDirection &photo : photos) {
        if (shoots.isOneIn(2)) {
            photo.focalMm = shoots.isOneIn(3) ? shoots.focalMm() : shoots.usefulFocalMm();
        }
    }
}

} // namespace

class TestLinkSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void halfFieldOfViewIsRoundedOnce_data();
    void halfFieldOfViewIsRoundedOnce();
    void neighbourLinksAreThoseOfTheDoubleLoop_data();
    void neighbourLinksAreThoseOfTheDoubleLoop();
    void neighbourLinksOfManyPositionsAreThoseOfTheDoubleLoop();
    void closeLinksAreThoseOfTheDoubleLoop_data();
    void closeLinksAreThoseOfTheDoubleLoop();
    void closeLinksOfManyPhotosAreThoseOfTheDoubleLoop();
    void linksAreAppended();
    void duplicatesGetNoneOrTwoNeighbourLinks_data();
    void duplicatesGetNoneOrTwoNeighbourLinks();
    void identicalPhotosAreAlwaysClose();
    void millionsOfLinksWereCompared();

private:
    void compareNeighbourLinks(const QVector<Direction> &positions, float halfField);
    void compareCloseLinks(const QVector<PhotoDirection> &photos);

    qint64 m_inputs = 0;
    qint64 m_links = 0;
};

void TestLinkSearch::compareNeighbourLinks(const QVector<Direction> &positions, float halfField)
{
    QVector<AuthorizedLink> links;
    appendNeighbourLinks(links, positions, halfField);
    const QVector<AuthorizedLink> expected = PlainLinks::neighbours(positions, halfField);
    const QString where = PlainLinks::difference(links, expected);
    QVERIFY2(where.isEmpty(),
             qPrintable(QStringLiteral("%1 positions, half field %2: %3")
                            .arg(QString::number(positions.size()),
                                 QString::number(static_cast<double>(halfField)), where)));
    ++m_inputs;
    m_links += expected.size();
}

void TestLinkSearch::compareCloseLinks(const QVector<PhotoDirection> &photos)
{
    QVector<AuthorizedLink> links;
    appendCloseLinks(links, photos);
    const QVector<AuthorizedLink> expected = PlainLinks::close(photos);
    const QString where = PlainLinks::difference(links, expected);
    QVERIFY2(
        where.isEmpty(),
        qPrintable(QStringLiteral("%1 photos: %2").arg(QString::number(photos.size()), where)));
    ++m_inputs;
    m_links += expected.size();
}

void TestLinkSearch::halfFieldOfViewIsRoundedOnce_data()
{
    QTest::addColumn<float>("focalMm");
    for (const float focalMm : { 0.0F, -0.0F, -1.0F, 24.0F, 50.0F, 800.0F, 1e-30F, 1e30F, 3e38F,
                                 kInfinity, -kInfinity, kNaN }) {
        QTest::addRow("%g mm", static_cast<double>(focalMm)) << focalMm;
    }
}

void TestLinkSearch::halfFieldOfViewIsRoundedOnce()
{
    QFETCH(const float, focalMm);
    const float half = halfFieldOfView(focalMm);
    const float expected = PlainLinks::halfField(focalMm);
    QVERIFY(half == expected || (std::isnan(half) && std::isnan(expected)));
}

void TestLinkSearch::neighbourLinksAreThoseOfTheDoubleLoop_data()
{
    QTest::addColumn<int>("layout");
    QTest::newRow("rows and columns") << static_cast<int>(Layout::Rows);
    QTest::newRow("all over the sphere") << static_cast<int>(Layout::Sphere);
    QTest::newRow("around the poles") << static_cast<int>(Layout::Poles);
    QTest::newRow("around half a turn") << static_cast<int>(Layout::Seam);
    QTest::newRow("many turns") << static_cast<int>(Layout::ManyTurns);
    QTest::newRow("right angles") << static_cast<int>(Layout::RightAngles);
    QTest::newRow("duplicates") << static_cast<int>(Layout::Duplicates);
    QTest::newRow("brackets") << static_cast<int>(Layout::Brackets);
    QTest::newRow("numbers that are none") << static_cast<int>(Layout::Spoiled);
    QTest::newRow("a small mosaic") << static_cast<int>(Layout::Patch);
    QTest::newRow("mosaics far apart") << static_cast<int>(Layout::Patches);
}

void TestLinkSearch::neighbourLinksAreThoseOfTheDoubleLoop()
{
    QFETCH(const int, layout);
    Shoots shoots(static_cast<unsigned>(1000 + layout));
    // Every size around the one from which an index is made, each with several lenses.
    for (int round = 0; round < 3; ++round) {
        for (int count = 2; count <= 70; ++count) {
            const auto positions = asDirections(shoots.angles(static_cast<Layout>(layout), count));
            compareNeighbourLinks(positions, PlainLinks::halfField(shoots.focalMm()));
            compareNeighbourLinks(positions, PlainLinks::halfField(shoots.usefulFocalMm()));
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
    for (int round = 0; round < 5; ++round) {
        const auto positions
            = asDirections(shoots.angles(static_cast<Layout>(layout), shoots.count(71, 400)));
        compareNeighbourLinks(positions, PlainLinks::halfField(shoots.focalMm()));
        compareNeighbourLinks(positions, PlainLinks::halfField(shoots.usefulFocalMm()));
        // Tiny fields: only directions that are the same up to rounding are near.
        compareNeighbourLinks(positions, std::ldexp(1.0F, -shoots.count(10, 40)));
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void TestLinkSearch::neighbourLinksOfManyPositionsAreThoseOfTheDoubleLoop()
{
    Shoots shoots(21);
    for (int layout = 0; layout < kLayouts; ++layout) {
        const auto positions
            = asDirections(shoots.angles(static_cast<Layout>(layout), shoots.count(500, 700)));
        for (const float focalMm : { 24.0F, 63.4F, 63.6F, 200.0F, 1500.0F }) {
            compareNeighbourLinks(positions, PlainLinks::halfField(focalMm));
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
}

void TestLinkSearch::closeLinksAreThoseOfTheDoubleLoop_data()
{
    neighbourLinksAreThoseOfTheDoubleLoop_data();
}

void TestLinkSearch::closeLinksAreThoseOfTheDoubleLoop()
{
    QFETCH(const int, layout);
    Shoots shoots(static_cast<unsigned>(2000 + layout));
    const auto compareBoth = [this, &shoots](QVector<PhotoDirection> photos) {
        compareCloseLinks(photos);
        mixFocals(shoots, photos);
        compareCloseLinks(photos);
    };
    for (int round = 0; round < 3; ++round) {
        for (int count = 2; count <= 70; ++count) {
            const auto angles = shoots.angles(static_cast<Layout>(layout), count);
            compareBoth(asPhotos(angles, shoots.focalMm()));
            compareBoth(asPhotos(angles, shoots.usefulFocalMm()));
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
    for (int round = 0; round < 5; ++round) {
        const auto angles = shoots.angles(static_cast<Layout>(layout), shoots.count(71, 400));
        compareBoth(asPhotos(angles, shoots.focalMm()));
        compareBoth(asPhotos(angles, shoots.usefulFocalMm()));
        compareBoth(asPhotos(angles, 1e10F));
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void TestLinkSearch::closeLinksOfManyPhotosAreThoseOfTheDoubleLoop()
{
    Shoots shoots(22);
    for (int layout = 0; layout < kLayouts; ++layout) {
        const auto angles = shoots.angles(static_cast<Layout>(layout), shoots.count(500, 700));
        for (const float focalMm : { 24.0F, 58.5F, 58.7F, 200.0F, 1500.0F }) {
            QVector<PhotoDirection> photos = asPhotos(angles, focalMm);
            compareCloseLinks(photos);
            mixFocals(shoots, photos);
            compareCloseLinks(photos);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
}

void TestLinkSearch::linksAreAppended()
{
    const AuthorizedLink earlier{ 7, { 5, 6 } };
    QVector<AuthorizedLink> neighbours{ earlier };
    appendNeighbourLinks(neighbours, { { 0.0F, 0.0F }, { 0.1F, 0.0F } }, 0.5F);
    QCOMPARE(PlainLinks::difference(neighbours, { earlier, { 2, { 0, 1 } } }), QString());
    QVector<AuthorizedLink> close{ earlier };
    appendCloseLinks(close, { { 0.0F, 0.0F, 50.0F }, { 5.0F, 0.0F, 50.0F } });
    QCOMPARE(PlainLinks::difference(close, { earlier, { 0, { 0, 1 } } }), QString());
}

void TestLinkSearch::duplicatesGetNoneOrTwoNeighbourLinks_data()
{
    QTest::addColumn<float>("yaw");
    QTest::addColumn<float>("pitch");
    QTest::addColumn<int>("links");
    // cos 0 (cos 0 cos 0 cos 0 + 0) + 0 = 1: an angle of 0, type 2 from both sides.
    QTest::newRow("cosine 1") << 0.0F << 0.0F << 2;
    // A pair whose cosine is above 1 is looked for, since it depends on the last digit.
    for (int i = 1; i < 1000; ++i) {
        const float yaw = static_cast<float>(i) * 0.01F;
        const double c = std::cos(static_cast<double>(yaw));
        const double s = std::sin(static_cast<double>(yaw));
        if (c * c + s * s > 1.0) {
            QTest::newRow("cosine above 1") << yaw << 0.0F << 0;
            break;
        }
    }
}

void TestLinkSearch::duplicatesGetNoneOrTwoNeighbourLinks()
{
    QFETCH(const float, yaw);
    QFETCH(const float, pitch);
    QFETCH(const int, links);
    QVector<AuthorizedLink> found;
    appendNeighbourLinks(found, { { yaw, pitch }, { yaw, pitch } }, 0.5F);
    QCOMPARE(found.size(), links);
}

void TestLinkSearch::identicalPhotosAreAlwaysClose()
{
    for (int degree = 0; degree < 360; ++degree) {
        const PhotoDirection photo{ static_cast<float>(degree), static_cast<float>(degree % 90),
                                    5000.0F };
        QVector<AuthorizedLink> links;
        appendCloseLinks(links, { photo, photo });
        QCOMPARE(links.size(), 1);
    }
}

void TestLinkSearch::millionsOfLinksWereCompared()
{
    qInfo("%lld inputs with %lld links were compared", m_inputs, m_links);
    if (m_inputs == 0) {
        QSKIP("the comparisons were not selected");
    }
    QVERIFY(m_inputs > 5'000);
    QVERIFY(m_links > 5'000'000);
}

TEST_CLASS(TestLinkSearch, QCoreApplication)
#include "tst_linksearch.moc"
