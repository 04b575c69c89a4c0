// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Tie points of photos of 24 megapixels, against decoding and SIFT of the same photos on the same
// processors, each in a process of its own; how the camera turned between neighbours, in the same
// way; and how matching grows with the number of photos.
#include "benchmarks/bars.h"
#include "benchmarks/hostrun.h"
#include "host/align/seenturns.h"
#include "host/align/tiepoints.h"
#include "host/model/parallel.h"
#include "host/model/photofile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtMath>

#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>

using namespace PanoHost;
using Eigen::Matrix3d;
using Eigen::Vector2d;

namespace
{

const QSize kSize(6000, 4000);
constexpr int kRows = 10;
constexpr int kColumns = 10;
constexpr double kStepDegrees = 36.0; // 54 degrees wide: a third is overlap

AlignLens photoLens()
{
    AlignLens lens;
    lens.size = kSize;
    lens.focalPixels = 35.0 * std::hypot(kSize.width(), kSize.height()) / 43.266615;
    return lens;
}

QString photoName(int row, int column)
{
    return QStringLiteral("row%1_%2.jpg").arg(row).arg(column);
}

int viewOf(int row, int column)
{
    return row * kColumns + (column + kColumns) % kColumns;
}

/** Grey noise of all sizes, once around: a picture of a full turn, 90 degrees high. */
cv::Mat turnOfNoise()
{
    const cv::Size size(16'000, 4'000);
    cv::RNG random(5);
    cv::Mat sum(size, CV_32F, cv::Scalar(120.0));
    for (int cell = 2; cell <= 512; cell *= 2) {
        cv::Mat coarse(size.height / cell + 2, size.width / cell + 2, CV_32F);
        random.fill(coarse, cv::RNG::NORMAL, 0.0, cell < 8 ? 8.0 : 14.0);
        cv::Mat fine;
        cv::resize(coarse, fine, cv::Size(), cell, cell, cv::INTER_CUBIC);
        sum += fine(cv::Rect(cv::Point(0, 0), size));
    }
    cv::Mat levels;
    sum.convertTo(levels, CV_8U);
    return levels;
}

/** Photos of one row, all around; the other rows are further names for them. */
void writePhotos(const QDir &folder)
{
    const cv::Mat turn = turnOfNoise();
    const AlignLens lens = photoLens();
    cv::RNG random(7);
    for (int column = 0; column < kColumns; ++column) {
        const Matrix3d rotation = rotationOf({ column * kStepDegrees, 0.0, 0.0 });
        cv::Mat across(kSize.height(), kSize.width(), CV_32F);
        cv::Mat down(kSize.height(), kSize.width(), CV_32F);
        forEachRow(kSize.height(), [&](int y) {
            for (int x = 0; x < kSize.width(); ++x) {
                const Eigen::Vector3d ray = rotation * lens.rayOf({ x, y });
                const double yaw = std::atan2(ray.x(), ray.z()) / (2.0 * M_PI);
                const double pitch = std::asin(ray.y()) / (0.5 * M_PI);
                across.at<float>(y, x) = static_cast<float>((yaw + 0.5) * turn.cols);
                down.at<float>(y, x) = static_cast<float>((0.5 - pitch) * turn.rows);
            }
        });
        cv::Mat levels;
        cv::remap(turn, levels, across, down, cv::INTER_LINEAR, cv::BORDER_REPLICATE);
        cv::Mat noise(levels.size(), CV_8U);
        random.fill(noise, cv::RNG::UNIFORM, 0, 9); // of the sensor
        levels += noise;
        QImage picture(kSize, QImage::Format_RGB32);
        cv::Mat colours(kSize.height(), kSize.width(), CV_8UC4, picture.bits(),
                        static_cast<size_t>(picture.bytesPerLine()));
        cv::cvtColor(levels, colours, cv::COLOR_GRAY2BGRA);
        const QString path = folder.filePath(photoName(0, column));
        if (!picture.save(path, nullptr, 92)) {
            qFatal("cannot write the photos");
        }
        for (int row = 1; row < kRows; ++row) {
            const QString other = folder.filePath(photoName(row, column));
            if (::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData())
                != 0) {
                qFatal("cannot name the photos");
            }
        }
    }
}

/** Four neighbours on the far side for each photo: beside, below, and both diagonals. */
std::vector<QPair<int, int>> photoPairs()
{
    std::vector<QPair<int, int>> pairs;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            const int view = viewOf(row, column);
            pairs.emplace_back(view, viewOf(row, column + 1));
            for (int step = -1; step <= 1 && row + 1 < kRows; ++step) {
                pairs.emplace_back(view, viewOf(row + 1, column + step));
            }
        }
    }
    return pairs;
}

/** Finds the tie points of the photos in \p folder, twice. Answers the exit code. */
int findPoints(const QDir &folder)
{
    HeadModel model;
    model.lenses.push_back(photoLens());
    std::vector<ViewPhoto> photos;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            const double play = 0.2 * ((row + column) % 3 - 1);
            photos.push_back({ folder.filePath(photoName(row, column)), kSize });
            model.views.push_back({ { column * kStepDegrees + play, play, 0.0 }, 0.0, 0, -1 });
            model.corrections.push_back({});
        }
    }
    TiePointFinder finder(photos);
    finder.readFeatures();
    const auto pairs = photoPairs();
    const TiePoints first = finder.match(pairs, model, firstLook);
    for (size_t i = 0; i < model.views.size(); ++i) {
        model.corrections[i]
            = { -0.9
                    * (model.views[i].recorded.yaw - static_cast<int>(i) % kColumns * kStepDegrees),
                -0.9 * model.views[i].recorded.pitch, 0.0 };
    }
    const TiePoints second
        = finder.match(pairs, model, secondLook, {}, TiePointFinder::Afterwards::ReleaseFeatures);
    for (const TiePoints *look : { &first, &second }) {
        for (const TiePoints::Pair &pair : look->pairs) {
            if (pair.points < 20) {
                return 1;
            }
        }
    }
    return 0;
}

/** Sees how the camera turned between the photos in \p folder. Answers the exit code. */
int seeTurns(const QDir &folder)
{
    QVector<PhotoInfo> photos;
    for (int view = 0; view < kRows * kColumns; ++view) {
        PhotoInfo photo;
        photo.path = folder.filePath(photoName(view / kColumns, view % kColumns));
        photo.storedSize = kSize;
        photos += photo;
    }
    constexpr double kFocal35mm = 35.0;
    SeenTurns turns(photos, kFocal35mm, LensModel::Standard);
    for (int view = 1; view < photos.size(); ++view) {
        if (!turns.between(view - 1, view)) {
            return 1;
        }
    }
    return 0;
}

/** Decodes the photos in \p folder and has SIFT describe them, on all processors. */
int describePhotos(const QDir &folder, int widest)
{
    cv::setNumThreads(1);
    std::vector<int> counts(kRows * kColumns, 0);
    forEachRow(kRows * kColumns, [&](int view) {
        const QImage picture = QImage(folder.filePath(photoName(view / kColumns, view % kColumns)))
                                   .convertToFormat(QImage::Format_Grayscale8);
        const cv::Mat whole(picture.height(), picture.width(), CV_8UC1,
                            const_cast<uchar *>(picture.constBits()),
                            static_cast<size_t>(picture.bytesPerLine()));
        cv::Mat small;
        const double scale = static_cast<double>(widest) / picture.width();
        cv::resize(whole, small, cv::Size(), scale, scale, cv::INTER_AREA);
        std::vector<cv::KeyPoint> points;
        cv::Mat descriptors;
        cv::SIFT::create(0, 3, 0.012, 12.0)
            ->detectAndCompute(small, cv::noArray(), points, descriptors);
        counts[static_cast<size_t>(view)] = descriptors.rows;
    });
    return *std::min_element(counts.begin(), counts.end()) > 0 ? 0 : 1;
}

/** The programs on the same photos, each run once. */
class Photos
{
public:
    explicit Photos(QString self)
        : m_self(std::move(self))
    {
    }

    const HostRun::Run &points() { return run(m_points, "--points"); }
    const HostRun::Run &plain() { return run(m_plain, "--plain"); }
    const HostRun::Run &turns() { return run(m_turns, "--turns"); }
    const HostRun::Run &plainSmall() { return run(m_plainSmall, "--plain-900"); }

private:
    const HostRun::Run &run(std::optional<HostRun::Run> &kept, const char *mode)
    {
        if (!kept) {
            if (!m_written) {
                writePhotos(QDir(m_folder.path()));
                m_written = true;
            }
            kept = HostRun::run(m_self, { QLatin1String(mode), m_folder.path() }, m_folder.path());
        }
        return *kept;
    }

    QString m_self;
    QTemporaryDir m_folder;
    bool m_written = false;
    std::optional<HostRun::Run> m_points;
    std::optional<HostRun::Run> m_plain;
    std::optional<HostRun::Run> m_turns;
    std::optional<HostRun::Run> m_plainSmall;
};

Bars::Figure timeOf(Photos &photos)
{
    const HostRun::Run &points = photos.points();
    const HostRun::Run &plain = photos.plain();
    return { points.wallSeconds / plain.wallSeconds,
             Bars::text("%.3g s (CPU %.3g s) against %.3g s (CPU %.3g s)", points.wallSeconds,
                        points.cpuSeconds, plain.wallSeconds, plain.cpuSeconds),
             points.exitCode == 0 && plain.exitCode == 0 ? "" : "pairs without points" };
}

Bars::Figure memoryOf(Photos &photos)
{
    const HostRun::Run &points = photos.points();
    return { points.megabytes,
             Bars::text("%.3g s, plain SIFT %.0f MB", points.wallSeconds, photos.plain().megabytes),
             points.exitCode == 0 ? "" : "pairs without points" };
}

/** On one processor against all of them: of processor time. */
Bars::Figure timeOfTurns(Photos &photos)
{
    const HostRun::Run &turns = photos.turns();
    const HostRun::Run &plain = photos.plainSmall();
    return { turns.cpuSeconds / plain.cpuSeconds,
             Bars::text("CPU %.3g s against %.3g s", turns.cpuSeconds, plain.cpuSeconds),
             turns.exitCode == 0 && plain.exitCode == 0 ? "" : "a turn is not seen" };
}

/** A sphere of at least \p least photos with made-up features that neighbours share. */
struct MadeUpShoot {
    AlignLens lens;
    std::vector<Matrix3d> rotations;
    std::vector<const AlignLens *> lenses;
    std::vector<FeatureSet> features;

    explicit MadeUpShoot(int least)
    {
        const double step = std::sqrt(4.0 * M_PI / least);
        lens.size = kSize;
        // A third more than the step in both directions.
        lens.focalPixels = kSize.height() / (1.33 * step);
        const double rowStep = qRadiansToDegrees(step);
        for (double pitch = -90.0 + rowStep / 2.0; pitch < 90.0; pitch += rowStep) {
            const double yawStep = 1.5 * rowStep / std::cos(qDegreesToRadians(pitch));
            for (double yaw = -180.0; yaw < 180.0; yaw += yawStep) {
                rotations.push_back(rotationOf({ yaw, pitch, 0.0 }));
            }
        }
        lenses.assign(rotations.size(), &lens);
        features.resize(rotations.size());
    }
    MadeUpShoot(const MadeUpShoot &) = delete;
    MadeUpShoot &operator=(const MadeUpShoot &) = delete;

    [[nodiscard]] std::vector<QPair<int, int>> pairs() const
    {
        return overlappingPairs(rotations, lenses);
    }

    void fill()
    {
        constexpr int kOwn = 40;
        for (size_t view = 0; view < features.size(); ++view) {
            std::mt19937 generator(static_cast<std::uint32_t>(view));
            for (int i = 0; i < kOwn; ++i) {
                const Vector2d place(static_cast<double>(generator() % 6000),
                                     static_cast<double>(generator() % 4000));
                add(view, place, static_cast<std::uint32_t>(generator()));
            }
        }
        for (const auto &[first, second] : pairs()) {
            show(static_cast<size_t>(first), static_cast<size_t>(second), kOwn);
            show(static_cast<size_t>(second), static_cast<size_t>(first), kOwn);
        }
    }

    /** How many pairs are tied. */
    [[nodiscard]] int match() const
    {
        int tied = 0;
        const MatchRules rules = secondLook(lens);
        for (const auto &[first, second] : pairs()) {
            const auto one = static_cast<size_t>(first);
            const auto other = static_cast<size_t>(second);
            const PairMatches found
                = matchPair({ features[one], lens }, { features[other], lens },
                            rotations[other].transpose() * rotations[one], rules, 1);
            tied += found.pairs.empty() ? 0 : 1;
        }
        return tied;
    }

private:
    void add(size_t view, const Vector2d &place, std::uint32_t look)
    {
        FeatureSet &set = features[view];
        std::mt19937 generator(look);
        FeatureSet::Descriptor descriptor{};
        for (int i = 0; i < 12; ++i) {
            descriptor.at(generator() % descriptor.size()) = 148; // 12 * 148^2 is about 512^2
        }
        set.places.push_back({ static_cast<float>(place.x()), static_cast<float>(place.y()) });
        set.descriptors.push_back(descriptor);
        set.lights.push_back(0);
    }

    /** The first \p count features of view \p from are in view \p to as well. */
    void show(size_t from, size_t to, int count)
    {
        const Matrix3d turn = rotations[to].transpose() * rotations[from];
        for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
            const FeatureSet::Place place = features[from].places[i];
            const auto seen = lens.pixelOf(turn * lens.rayOf({ place.x, place.y }));
            if (seen && lens.contains(*seen)) {
                FeatureSet &set = features[to];
                set.places.push_back(
                    { static_cast<float>(seen->x()), static_cast<float>(seen->y()) });
                set.descriptors.push_back(features[from].descriptors[i]);
                set.lights.push_back(0);
            }
        }
    }
};

Bars::Figure pairGrowth(int few, int many)
{
    const MadeUpShoot small(few);
    const MadeUpShoot large(many);
    size_t smallPairs = 0;
    size_t largePairs = 0;
    const double smallSeconds = Bars::leastSeconds(9, [&] { smallPairs = small.pairs().size(); });
    const double largeSeconds = Bars::leastSeconds(3, [&] { largePairs = large.pairs().size(); });
    return { Bars::exponent(static_cast<double>(small.rotations.size()), smallSeconds,
                            static_cast<double>(large.rotations.size()), largeSeconds),
             Bars::text("%zu pairs in %.3g ms, %zu in %.3g ms", smallPairs, smallSeconds * 1e3,
                        largePairs, largeSeconds * 1e3),
             smallPairs > small.rotations.size() ? "" : "neighbours are missing" };
}

Bars::Figure matchGrowth(int few, int many)
{
    MadeUpShoot small(few);
    MadeUpShoot large(many);
    small.fill();
    large.fill();
    int smallTied = 0;
    int largeTied = 0;
    const double smallSeconds = Bars::leastSeconds(3, [&] { smallTied = small.match(); });
    const double largeSeconds = Bars::leastSeconds(2, [&] { largeTied = large.match(); });
    return { Bars::exponent(static_cast<double>(small.rotations.size()), smallSeconds,
                            static_cast<double>(large.rotations.size()), largeSeconds),
             Bars::text("%d pairs tied in %.3g s, %d in %.3g s", smallTied, smallSeconds, largeTied,
                        largeSeconds),
             largeTied > static_cast<int>(large.rotations.size()) ? "" : "neighbours are missing" };
}

} // namespace

int main(int argc, char **argv)
{
    initializePhotoReading();
    const QCoreApplication app(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--points") == 0) {
        return findPoints(QDir(QFile::decodeName(argv[2])));
    }
    if (argc == 3 && std::strcmp(argv[1], "--plain") == 0) {
        return describePhotos(QDir(QFile::decodeName(argv[2])), TiePointOptions().widest);
    }
    if (argc == 3 && std::strcmp(argv[1], "--turns") == 0) {
        return seeTurns(QDir(QFile::decodeName(argv[2])));
    }
    if (argc == 3 && std::strcmp(argv[1], "--plain-900") == 0) {
        return describePhotos(QDir(QFile::decodeName(argv[2])), 900);
    }
    using Bars::Need;
    const auto atMost = [](double limit, const char *unit) {
        return Bars::Bar{ Need::AtMost, limit, unit };
    };
    Photos photos(QCoreApplication::applicationFilePath());
    Bars::add("tie points/100 photos of 24 megapixels/time of decoding and SIFT alone",
              atMost(1.5, "x"), [&] { return timeOf(photos); });
    Bars::add("tie points/100 photos of 24 megapixels/peak memory", atMost(1500.0, " MB"),
              [&] { return memoryOf(photos); });
    Bars::add("seen turns/100 photos of 24 megapixels/time of decoding and SIFT at 900 pixels",
              atMost(1.5, "x"), [&] { return timeOfTurns(photos); });
    Bars::add("overlapping pairs/from 10,000 to 70,000/cost exponent", atMost(1.1, ""),
              [] { return pairGrowth(10'000, 70'000); });
    Bars::add("matching/from 1,000 to 10,000/cost exponent", atMost(1.1, ""),
              [] { return matchGrowth(1'000, 10'000); });
    return Bars::run(argc, argv);
}
