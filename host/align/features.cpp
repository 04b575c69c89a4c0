// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/features.h"

#include "host/model/photofile.h"
#include "host/model/said.h"

#include <QSemaphore>

#include <opencv2/core/version.hpp>
#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace PanoHost
{

namespace
{

constexpr int kCellColumns = 12;
constexpr int kCellRows = 8;
constexpr int kCells = kCellColumns * kCellRows;
constexpr double kContrastThreshold = 0.012;
constexpr double kEdgeThreshold = 12.0;
constexpr int kLeastSide = 16; ///< pixels; smaller pictures have no features
/** The light around a feature is that of a square with this many pixels on each side of its middle.
 */
constexpr int kLightReach = 2;

/**
 * SIFT doubles the picture first. Up to 4.7 OpenCV takes places back as if the middle of the first
 * pixel of both were the same, a quarter of a pixel too far to the right and down.
 */
#if CV_VERSION_MAJOR > 4 || (CV_VERSION_MAJOR == 4 && CV_VERSION_MINOR >= 8)
constexpr double kSiftOffset = 0.0;
#else
constexpr double kSiftOffset = 0.25;
#endif

/** \p picture, in whose memory it is, for OpenCV to read. */
cv::Mat matrixOf(const QImage &picture)
{
    return { picture.height(), picture.width(), CV_8UC1, const_cast<uchar *>(picture.constBits()),
             static_cast<size_t>(picture.bytesPerLine()) };
}

QImage reduced(const QImage &picture, int widest)
{
    if (picture.width() <= widest) {
        return picture;
    }
    const int height = qRound(double(picture.height()) * widest / picture.width());
    QImage small(widest, std::max(1, height), QImage::Format_Grayscale8);
    cv::Mat target(small.height(), small.width(), CV_8UC1, small.bits(),
                   static_cast<size_t>(small.bytesPerLine()));
    cv::resize(matrixOf(picture), target, target.size(), 0.0, 0.0, cv::INTER_AREA);
    return small;
}

/**
 * The memory that looking for features takes, in megabytes: whoever looks at a time shares it.
 * Floats of the doubled picture, 11 in each octave, and the smaller octaves together a third more.
 */
class FeatureTurn
{
public:
    explicit FeatureTurn(const cv::Mat &picture)
        : m_megabytes(static_cast<int>(
            std::min(picture.total() * 4 * sizeof(float) * 11 / 3 * 4 >> 20U, size_t{ kMost })))
    {
        room().acquire(m_megabytes);
    }
    ~FeatureTurn() { room().release(m_megabytes); }
    FeatureTurn(const FeatureTurn &) = delete;
    FeatureTurn &operator=(const FeatureTurn &) = delete;

private:
    static constexpr int kMost = 1216;
    static QSemaphore &room()
    {
        static QSemaphore megabytes(kMost);
        return megabytes;
    }

    int m_megabytes;
};

/** (0, 0) is the middle of the first pixel. */
cv::Point2d placeOf(const cv::KeyPoint &point)
{
    return { point.pt.x - kSiftOffset, point.pt.y - kSiftOffset };
}

int cellOf(const cv::KeyPoint &point, const cv::Size &size)
{
    const cv::Point2d place = placeOf(point);
    const int column = static_cast<int>((place.x + 0.5) * kCellColumns / size.width);
    const int row = static_cast<int>((place.y + 0.5) * kCellRows / size.height);
    return std::clamp(row, 0, kCellRows - 1) * kCellColumns
        + std::clamp(column, 0, kCellColumns - 1);
}

/** The \p most strongest of each cell, cell by cell. */
std::vector<cv::KeyPoint> spread(const std::vector<cv::KeyPoint> &points, const cv::Size &size,
                                 int most)
{
    std::array<std::vector<cv::KeyPoint>, kCells> cells;
    for (const cv::KeyPoint &point : points) {
        cells.at(static_cast<size_t>(cellOf(point, size))).push_back(point);
    }
    // Complete, so that the answer does not depend on the order in which OpenCV finds them.
    const auto stronger = [](const cv::KeyPoint &a, const cv::KeyPoint &b) {
        return std::tie(b.response, a.pt.y, a.pt.x, a.size, a.angle)
            < std::tie(a.response, b.pt.y, b.pt.x, b.size, b.angle);
    };
    std::vector<cv::KeyPoint> kept;
    for (auto &cell : cells) {
        const auto end = cell.begin()
            + std::min<std::ptrdiff_t>(most, std::distance(cell.begin(), cell.end()));
        std::partial_sort(cell.begin(), end, cell.end(), stronger);
        kept.insert(kept.end(), cell.begin(), end);
    }
    return kept;
}

FeatureSet::Descriptor rootSift(const float *sift)
{
    constexpr float kUnit = 512.0F;
    FeatureSet::Descriptor root{};
    float sum = 0.0F;
    for (size_t i = 0; i < root.size(); ++i) {
        sum += sift[i];
    }
    for (size_t i = 0; sum > 0.0F && i < root.size(); ++i) {
        const float value = std::sqrt(sift[i] / sum) * kUnit;
        root[i] = static_cast<std::uint8_t>(std::min(255.0F, std::round(value)));
    }
    return root;
}

/** The sRGB curve backwards, 65535: white. */
std::array<std::uint32_t, 256> linearLevels()
{
    std::array<std::uint32_t, 256> levels{};
    for (size_t i = 0; i < levels.size(); ++i) {
        const double value = static_cast<double>(i) / 255.0;
        const double linear
            = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        levels[i] = static_cast<std::uint32_t>(std::lround(linear * 65535.0));
    }
    return levels;
}

std::uint16_t lightAround(const cv::Mat &picture, const cv::Point2d &place)
{
    static const std::array<std::uint32_t, 256> levels = linearLevels();
    const int column = cvRound(place.x);
    const int row = cvRound(place.y);
    std::uint32_t sum = 0;
    std::uint32_t pixels = 0;
    for (int y = std::max(0, row - kLightReach); y <= std::min(picture.rows - 1, row + kLightReach);
         ++y) {
        for (int x = std::max(0, column - kLightReach);
             x <= std::min(picture.cols - 1, column + kLightReach); ++x) {
            sum += levels.at(picture.at<std::uint8_t>(y, x));
            ++pixels;
        }
    }
    return static_cast<std::uint16_t>(pixels > 0 ? sum / pixels : 0);
}

double whiteShare(const QImage &picture)
{
    constexpr int kWhite = 250;
    return static_cast<double>(cv::countNonZero(matrixOf(picture) >= kWhite))
        / (static_cast<double>(picture.width()) * picture.height());
}

/** OpenCV's own threads stay off: photos are the unit of parallel work. */
void useOneThread()
{
    static const bool once = [] {
        cv::setNumThreads(1);
        return true;
    }();
    Q_UNUSED(once)
}

} // namespace

Result<GreyPicture> readGreyPicture(const QString &path, const QSize &storedSize, int widest)
{
    useOneThread();
    auto read = readStoredPixels(path, widest);
    if (!read) {
        return read.error();
    }
    StoredPixels pixels = std::move(read).value();
    if (pixels.storedSize != storedSize) {
        return Failure{ ExitCode::InputRefused,
                        path,
                        Said::tr("was %1 x %2 pixels when imported, is now %3 x %4")
                            .arg(storedSize.width())
                            .arg(storedSize.height())
                            .arg(pixels.storedSize.width())
                            .arg(pixels.storedSize.height()),
                        {} };
    }
    const QImage grey
        = std::exchange(pixels.picture, {}).convertToFormat(QImage::Format_Grayscale8);
    const QImage small = reduced(grey, widest);
    return GreyPicture{ small, double(small.width()) / grey.width() / pixels.divisor,
                        double(small.height()) / grey.height() / pixels.divisor,
                        whiteShare(small) };
}

GreyPicture reduced(const GreyPicture &picture, int widest)
{
    GreyPicture small = picture;
    small.picture = reduced(picture.picture, widest);
    small.xScale *= double(small.picture.width()) / picture.picture.width();
    small.yScale *= double(small.picture.height()) / picture.picture.height();
    return small;
}

double sharpnessOf(const GreyPicture &picture)
{
    useOneThread();
    cv::Mat differences;
    cv::Laplacian(matrixOf(picture.picture), differences, CV_32F);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(differences, mean, deviation);
    return deviation[0] * deviation[0];
}

FeatureSet featuresOf(const GreyPicture &picture, const FeatureOptions &options)
{
    if (std::min(picture.picture.width(), picture.picture.height()) < kLeastSide) {
        return {};
    }
    useOneThread();
    const cv::Mat grey = matrixOf(picture.picture);
    const FeatureTurn turn(grey);
    const auto sift = cv::SIFT::create(0, 3, kContrastThreshold, kEdgeThreshold);
    std::vector<cv::KeyPoint> points;
    sift->detect(grey, points);
    points = spread(points, grey.size(), options.most / kCells);
    // Describing costs more than finding: only those that are kept.
    cv::Mat descriptors;
    if (!points.empty()) {
        sift->compute(grey, points, descriptors);
    }
    FeatureSet features;
    features.places.reserve(points.size());
    features.descriptors.reserve(points.size());
    features.lights.reserve(points.size());
    for (size_t i = 0; i < points.size(); ++i) {
        const cv::Point2d place = placeOf(points[i]);
        features.places.push_back({ static_cast<float>((place.x + 0.5) / picture.xScale - 0.5),
                                    static_cast<float>((place.y + 0.5) / picture.yScale - 0.5) });
        features.descriptors.push_back(rootSift(descriptors.ptr<float>(static_cast<int>(i))));
        features.lights.push_back(lightAround(grey, place));
    }
    return features;
}

} // namespace PanoHost
