// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// The search for links against plain double loops.
#include "benchmarks/bars.h"
#include "shoot/linksearch.h"
#include "tests/support/plainlinks.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace PanoHead;

namespace
{

constexpr double kPi = 3.141592653589793;
constexpr double kDegree = kPi / 180.0;
// Between a step and a diagonal: four neighbours on a lattice.
constexpr double kStepsInReach = 1.2;

struct Shoot {
    QVector<Direction> positions;
    double stepDegrees = 0.0;

    /** The lens through which a position has four neighbours. */
    [[nodiscard]] float focalMm(double factor) const
    {
        const double reach = kStepsInReach * stepDegrees * kDegree;
        return static_cast<float>(43.266615305567875 / 2.0 / std::tan(reach * factor));
    }
};

void append(Shoot &shoot, double yawDegrees, double pitchDegrees)
{
    shoot.positions.append(
        { static_cast<float>(yawDegrees * kDegree), static_cast<float>(pitchDegrees * kDegree) });
}

/** A full sphere, row by row, fewer columns towards the poles. */
Shoot sphere(int count)
{
    Shoot shoot;
    shoot.stepDegrees = std::sqrt(4.0 * kPi / count) / kDegree;
    const int rows = static_cast<int>(std::lround(180.0 / shoot.stepDegrees));
    for (int row = 0; row < rows; ++row) {
        // As many as the area of the row asks for; the sums are rounded, so that none is missing.
        const auto upTo = [rows, count](int end) {
            return std::lround(count * (1.0 - std::cos(kPi * end / rows)) / 2.0);
        };
        const long columns = upTo(row + 1) - upTo(row);
        for (long column = 0; column < columns; ++column) {
            append(shoot, 360.0 * static_cast<double>(column) / static_cast<double>(columns),
                   90.0 - 180.0 * (row + 0.5) / rows);
        }
    }
    return shoot;
}

/** A long lens over a part of the horizon. */
Shoot mosaic(int count, double stepDegrees)
{
    Shoot shoot;
    shoot.stepDegrees = stepDegrees;
    const int columns = static_cast<int>(std::sqrt(2.0 * count));
    for (int i = 0; i < count; ++i) {
        append(shoot, 160.0 + i % columns * stepDegrees, -10.0 + i / columns * stepDegrees);
    }
    return shoot;
}

QVector<AuthorizedLink> found(const Shoot &shoot, float halfField)
{
    QVector<AuthorizedLink> links;
    appendNeighbourLinks(links, shoot.positions, halfField);
    return links;
}

/** The links of \p links that start at the sampled positions. */
QVector<AuthorizedLink> sampled(const QVector<AuthorizedLink> &links,
                                const PlainLinks::Outer &outer)
{
    QVector<AuthorizedLink> sample;
    for (const AuthorizedLink &link : links) {
        if (link.indices[0] % outer.step == outer.first) {
            sample.append(link);
        }
    }
    return sample;
}

using Loop
    = QVector<AuthorizedLink> (*)(const QVector<Direction> &, float, const PlainLinks::Outer &);

/**
 * How many times faster the search is than \p loop. The loop runs over every \p sampleStep -th
 * outer position, with all inner ones; its time is multiplied accordingly.
 */
Bars::Figure speedUp(const Shoot &shoot, Loop loop, int sampleStep)
{
    const float halfField = PlainLinks::halfField(shoot.focalMm(0.65));
    const PlainLinks::Outer outer{ sampleStep / 2, sampleStep };
    QVector<AuthorizedLink> expected;
    const double loopSeconds = sampleStep
        * Bars::medianSeconds(1, [&] { expected = loop(shoot.positions, halfField, outer); });
    QVector<AuthorizedLink> links;
    const double seconds = Bars::leastSeconds(15, [&] { links = found(shoot, halfField); });
    return { loopSeconds / seconds,
             Bars::text("%.4g s -> %.4g ms, %.2f links each%s", loopSeconds, seconds * 1e3,
                        static_cast<double>(links.size()) / shoot.positions.size(),
                        sampleStep > 1
                            ? Bars::text(", loop over every %dth position", sampleStep).c_str()
                            : ""),
             PlainLinks::difference(sampled(links, outer), expected).toStdString() };
}

Bars::Figure growth(int small, int large)
{
    const Shoot few = sphere(small);
    const Shoot many = sphere(large);
    const float fewField = PlainLinks::halfField(few.focalMm(0.65));
    const float manyField = PlainLinks::halfField(many.focalMm(0.65));
    const Bars::KeptMemory kept;
    // Other programs and their use of the caches only make both slower, for a while.
    double fewSeconds = std::numeric_limits<double>::infinity();
    double manySeconds = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 15; ++round) {
        fewSeconds = std::min(fewSeconds, Bars::seconds([&] { found(few, fewField); }));
        manySeconds = std::min(manySeconds, Bars::seconds([&] { found(many, manyField); }));
    }
    return { Bars::exponent(small, fewSeconds, large, manySeconds),
             Bars::text("%.4g ms -> %.4g ms", fewSeconds * 1e3, manySeconds * 1e3),
             {} };
}

Bars::Figure wideField(int count, float focalMm)
{
    const Shoot shoot = sphere(count);
    const float halfField = PlainLinks::halfField(focalMm);
    const QVector<AuthorizedLink> expected = PlainLinks::neighbours(shoot.positions, halfField, {});
    QVector<AuthorizedLink> links;
    std::vector<double> searching;
    std::vector<double> appending;
    for (int run = 0; run < 3; ++run) {
        links = {};
        searching.push_back(Bars::medianSeconds(1, [&] { links = found(shoot, halfField); }));
        QVector<AuthorizedLink> copy;
        appending.push_back(Bars::medianSeconds(1, [&] {
            copy.reserve(expected.size());
            for (const AuthorizedLink &link : expected) {
                copy.append({ link.linkType, { link.indices[0], link.indices[1] } });
            }
        }));
    }
    const double search = Bars::median(searching);
    const double append = Bars::median(appending);
    return { search / append,
             Bars::text("%d links: %.3g s, appending them %.3g s", links.size(), search, append),
             PlainLinks::difference(links, expected).toStdString() };
}

/** The worst ratio of the search's time to the loop's, over many sizes and lenses. */
Bars::Figure worstLoss(Loop loop)
{
    Bars::Figure worst;
    for (const int count : { 50, 56, 63, 64, 70, 80, 100, 150, 300, 700, 1500 }) {
        const Shoot shoot = sphere(count);
        for (const float focalMm : { 8.0F, 24.0F, 50.0F, 63.0F, 64.0F, 70.0F, 100.0F, 800.0F }) {
            const float halfField = PlainLinks::halfField(focalMm);
            const int runs = count < 200 ? 101 : 11;
            const double search = Bars::medianSeconds(runs, [&] { found(shoot, halfField); });
            const double plain
                = Bars::medianSeconds(runs, [&] { loop(shoot.positions, halfField, {}); });
            if (search / plain > worst.value) {
                worst.value = search / plain;
                worst.detail = Bars::text("%d positions, %g mm: %.3g us against %.3g us", count,
                                          static_cast<double>(focalMm), search * 1e6, plain * 1e6);
            }
            if (worst.mistake.empty()) {
                worst.mistake = PlainLinks::difference(found(shoot, halfField),
                                                       loop(shoot.positions, halfField, {}))
                                    .toStdString();
            }
        }
    }
    return worst;
}

/** \p shoot through its lens; every direction \p brackets times, every lens its own when mixed. */
QVector<PhotoDirection> photosOf(const Shoot &shoot, int brackets, bool mixed)
{
    QVector<PhotoDirection> photos;
    const float focalMm = shoot.focalMm(0.7);
    for (const Direction &position : shoot.positions) {
        for (int bracket = 0; bracket < brackets; ++bracket) {
            const float factor
                = mixed ? 0.7F + 0.1F * static_cast<float>(photos.size() * 7 % 8) : 1.0F;
            photos.append({ static_cast<float>(static_cast<double>(position.yaw) / kDegree),
                            static_cast<float>(static_cast<double>(position.pitch) / kDegree),
                            focalMm * factor });
        }
    }
    return photos;
}

Bars::Figure closeSpeedUp(const QVector<PhotoDirection> &photos)
{
    QVector<AuthorizedLink> expected;
    const double loopSeconds
        = Bars::medianSeconds(1, [&] { expected = PlainLinks::close(photos); });
    QVector<AuthorizedLink> links;
    const double seconds = Bars::leastSeconds(15, [&] {
        links = {};
        appendCloseLinks(links, photos);
    });
    return { loopSeconds / seconds,
             Bars::text("%.4g s -> %.4g ms, %.2f links each", loopSeconds, seconds * 1e3,
                        static_cast<double>(links.size()) / photos.size()),
             PlainLinks::difference(links, expected).toStdString() };
}

} // namespace

int main(int argc, char **argv)
{
    using Bars::Need;
    const auto atLeast = [](double limit) { return Bars::Bar{ Need::AtLeast, limit, "x" }; };
    const auto atMost = [](double limit, const char *unit = "x") {
        return Bars::Bar{ Need::AtMost, limit, unit };
    };
    Bars::add("Papywizard links/10,000, four neighbours each/faster than the double loop",
              atLeast(1000), [] { return speedUp(sphere(10'000), PlainLinks::neighbours, 1); });
    Bars::add("Papywizard links/10,000 in a mosaic of 14 x 7 degrees/faster than the double loop",
              atLeast(1000),
              [] { return speedUp(mosaic(10'000, 0.1), PlainLinks::neighbours, 1); });
    Bars::add("Papywizard links/50,000/faster than the double loop", atLeast(1500),
              [] { return speedUp(sphere(50'000), PlainLinks::neighbours, 50); });
    Bars::add("Papywizard links/70,000/faster than a double loop with hoisted trigonometry",
              atLeast(200),
              [] { return speedUp(sphere(70'000), PlainLinks::neighboursHoisted, 50); });
    Bars::add("Papywizard links/10,000 at 24 mm/time of appending the same list", atMost(3.0),
              [] { return wideField(10'000, 24.0F); });
    Bars::add("Papywizard links/50 positions and more/worst time of the double loop", atMost(1.0),
              [] { return worstLoss(PlainLinks::neighbours); });
    Bars::add("Papywizard links/50 and more/worst time of a double loop with hoisted trigonometry",
              atMost(1.0), [] { return worstLoss(PlainLinks::neighboursHoisted); });
    Bars::add("Clauss links/20,000 photos/faster than the double loop", atLeast(500),
              [] { return closeSpeedUp(photosOf(sphere(20'000), 1, false)); });
    Bars::add("Clauss links/20,000 photos, mixed focal lengths/faster than the double loop",
              atLeast(500), [] { return closeSpeedUp(photosOf(sphere(20'000), 1, true)); });
    Bars::add("Clauss links/20,001 photos, triple brackets/faster than the double loop",
              atLeast(500), [] { return closeSpeedUp(photosOf(sphere(6'667), 3, false)); });
    Bars::add("Clauss links/20,001 photos, brackets and mixed lenses/faster than the double loop",
              atLeast(400), [] { return closeSpeedUp(photosOf(sphere(6'667), 3, true)); });
    // Last, because the C library never goes back to all of its own ways.
    Bars::add("Papywizard links/from 10,000 to 70,000/cost exponent", atMost(1.10, ""),
              [] { return growth(10'000, 70'000); });
    return Bars::run(argc, argv);
}
