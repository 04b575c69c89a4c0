// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/overlapdetail.h"

#include <QtGlobal>

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace PanoHost
{

namespace
{

using Eigen::Matrix2d;
using Eigen::Matrix3d;
using Eigen::Vector2d;

constexpr int kCellColumns = 12;
constexpr int kCellRows = 8;
constexpr int kCells = kCellColumns * kCellRows;
constexpr int kTensorNumbers = 3;
constexpr int kCoarsePixels = 8;

constexpr int kMostShift = 4; ///< parts of the brightness in which partners are looked for
constexpr int kLeastSamples = 40;
/** Mean square of the differences that noise makes. */
constexpr double kNoise = 2.0;

/** The mean of each square of \p size pixels. */
QImage reduced(const QImage &picture, int size)
{
    QImage small(picture.width() / size, picture.height() / size, QImage::Format_Grayscale8);
    std::vector<int> sums(static_cast<size_t>(small.width()));
    for (int row = 0; row < small.height(); ++row) {
        std::fill(sums.begin(), sums.end(), 0);
        for (int y = row * size; y < (row + 1) * size; ++y) {
            const uchar *const line = picture.constScanLine(y);
            for (int x = 0; x < small.width() * size; ++x) {
                sums[static_cast<size_t>(x / size)] += line[x];
            }
        }
        uchar *const target = small.scanLine(row);
        for (int column = 0; column < small.width(); ++column) {
            target[column] = static_cast<uchar>(sums[static_cast<size_t>(column)] / (size * size));
        }
    }
    return small;
}

int partOf(double place, int parts)
{
    return std::clamp(static_cast<int>(place * parts), 0, parts - 1);
}

/** A place of the first photo that the second sees too. */
struct Sample {
    Vector2d first; ///< 0 to 1
    Vector2d second;
    /** What a step in the first is in the second: pixels. */
    Matrix2d steps;
};

Vector2d placeIn(const Vector2d &pixel, const QSize &size)
{
    return { (pixel.x() + 0.5) / size.width(), (pixel.y() + 0.5) / size.height() };
}

bool isInside(const Vector2d &place)
{
    return place.x() >= 0.0 && place.x() < 1.0 && place.y() >= 0.0 && place.y() < 1.0;
}

std::vector<Sample> samplesOf(const DetailView &first, const DetailView &second)
{
    const Matrix3d toSecond = second.rotation.transpose() * first.rotation;
    const QSize size = first.lens.size;
    std::vector<Sample> samples;
    for (int row = 0; row < PictureDetail::kRows; ++row) {
        for (int column = 0; column < PictureDetail::kColumns; ++column) {
            const Vector2d place((column + 0.5) / PictureDetail::kColumns,
                                 (row + 0.5) / PictureDetail::kRows);
            const Vector2d pixel(place.x() * size.width() - 0.5, place.y() * size.height() - 0.5);
            const auto there = [&](const Vector2d &own) {
                return second.lens.pixelOf(toSecond * first.lens.rayOf(own));
            };
            const auto middle = there(pixel);
            const auto right = there(pixel + Vector2d::UnitX());
            const auto below = there(pixel + Vector2d::UnitY());
            // Some that lie outside come inside when the pictures are shifted.
            constexpr double kMargin = double(kMostShift) / PictureDetail::kRows;
            if (middle && right && below
                && second.lens.contains(*middle, kMargin * second.lens.size.height())) {
                Sample sample{ place, placeIn(*middle, second.lens.size), {} };
                sample.steps << *right - *middle, *below - *middle;
                samples.push_back(sample);
            }
        }
    }
    return samples;
}

/** Of the samples that lie in the second photo when it is shifted: how alike both are, -1 to 1;
 * less where they are too few. */
double likeness(const std::vector<Sample> &samples, const DetailView &first,
                const DetailView &second, const Vector2d &shift)
{
    double count = 0.0;
    Vector2d sum = Vector2d::Zero();
    Matrix2d products = Matrix2d::Zero();
    for (const Sample &sample : samples) {
        const Vector2d there = sample.second + shift;
        if (isInside(there)) {
            const Vector2d pair(first.detail.brightness(sample.first.x(), sample.first.y()),
                                second.detail.brightness(there.x(), there.y()));
            count += 1.0;
            sum += pair;
            products += pair * pair.transpose();
        }
    }
    if (count < kLeastSamples) {
        return -2.0;
    }
    const Matrix2d covariance = products / count - sum * sum.transpose() / (count * count);
    constexpr double kEven = 1.0; // levels, squared
    return covariance(0, 1) / std::sqrt((covariance(0, 0) + kEven) * (covariance(1, 1) + kEven));
}

bool isLost(double light)
{
    return light < 6.0 || light > 249.0;
}

bool isMiddle(double light)
{
    return light > 25.0 && light < 230.0;
}

/** How much of the detail \p other \p own shows, in the direction of which it shows least. */
double leastShare(const Matrix2d &own, const Matrix2d &other)
{
    const Matrix2d noise = kNoise * Matrix2d::Identity();
    const Eigen::GeneralizedSelfAdjointEigenSolver<Matrix2d> shares(own + noise, other + noise,
                                                                    Eigen::EigenvaluesOnly);
    return shares.eigenvalues().x();
}

} // namespace

PictureDetail::PictureDetail(const GreyPicture &picture)
{
    const QImage small = reduced(picture.picture, kCoarsePixels);
    if (small.width() < kColumns / 4 || small.height() < kRows / 4) {
        return;
    }
    m_brightness.resize(size_t{ kColumns } * kRows);
    std::vector<int> sums(m_brightness.size());
    std::vector<int> counts(m_brightness.size());
    const QSize size = picture.picture.size();
    for (int y = 0; y < size.height(); ++y) {
        const uchar *const line = picture.picture.constScanLine(y);
        const int row = y * kRows / size.height();
        for (int x = 0; x < size.width(); ++x) {
            const int part = row * kColumns + x * kColumns / size.width();
            sums[static_cast<size_t>(part)] += line[x];
            ++counts[static_cast<size_t>(part)];
        }
    }
    for (size_t i = 0; i < sums.size(); ++i) {
        m_brightness[i] = static_cast<std::uint8_t>(sums[i] / std::max(1, counts[i]));
    }
    addTensors(picture.picture, 0);
    addTensors(small, 1);
}

void PictureDetail::addTensors(const QImage &picture, int size)
{
    std::array<std::array<qint64, kTensorNumbers>, kCells> sums{};
    std::array<int, kCells> counts{};
    const int width = picture.width();
    for (int y = 1; y + 1 < picture.height(); ++y) {
        const uchar *const above = picture.constScanLine(y - 1);
        const uchar *const line = picture.constScanLine(y);
        const uchar *const below = picture.constScanLine(y + 1);
        const int row = y * kCellRows / picture.height() * kCellColumns;
        for (int x = 1; x + 1 < width; ++x) {
            const qint64 across = line[x + 1] - line[x - 1];
            const qint64 down = below[x] - above[x];
            const int column = x * kCellColumns / width;
            const auto cell = static_cast<size_t>(row) + static_cast<size_t>(column);
            sums[cell][0] += across * across;
            sums[cell][1] += across * down;
            sums[cell][2] += down * down;
            ++counts[cell];
        }
    }
    Q_ASSERT(m_tensors.size() == static_cast<size_t>(size) * kCells * kTensorNumbers);
    for (size_t cell = 0; cell < kCells; ++cell) {
        for (const qint64 sum : sums[cell]) {
            const double mean = static_cast<double>(sum) / std::max(1, counts[cell]);
            m_tensors.emplace_back(static_cast<float>(mean / 4.0)); // of pixels two apart
        }
    }
}

double PictureDetail::brightness(double x, double y) const
{
    const double across = std::clamp(x * kColumns - 0.5, 0.0, kColumns - 1.001);
    const double down = std::clamp(y * kRows - 0.5, 0.0, kRows - 1.001);
    const auto column = static_cast<int>(across);
    const auto row = static_cast<int>(down);
    const std::uint8_t *const part
        = &m_brightness[static_cast<size_t>(row) * kColumns + static_cast<size_t>(column)];
    const double u = across - column;
    const double v = down - row;
    return (1.0 - v) * ((1.0 - u) * part[0] + u * part[1])
        + v * ((1.0 - u) * part[kColumns] + u * part[kColumns + 1]);
}

Matrix2d PictureDetail::tensorAt(double x, double y, int size) const
{
    const int cell = partOf(y, kCellRows) * kCellColumns + partOf(x, kCellColumns);
    const auto *const numbers = &m_tensors[static_cast<size_t>(size * kCells + cell) * 3];
    Matrix2d tensor;
    tensor << double(numbers[0]), double(numbers[1]), double(numbers[1]), double(numbers[2]);
    return tensor;
}

std::optional<SeenByBoth> seenByBoth(const DetailView &first, const DetailView &second)
{
    if (first.detail.isEmpty() || second.detail.isEmpty()) {
        return {};
    }
    const std::vector<Sample> samples = samplesOf(first, second);
    SeenByBoth seen;
    Vector2d shift = Vector2d::Zero();
    seen.likeness = likeness(samples, first, second, shift);
    if (seen.likeness < -1.0) {
        return {};
    }
    for (int down = -kMostShift; down <= kMostShift; ++down) {
        for (int across = -kMostShift; across <= kMostShift; ++across) {
            const Vector2d tried(double(across) / PictureDetail::kColumns,
                                 double(down) / PictureDetail::kRows);
            const double found = likeness(samples, first, second, tried);
            if (found > seen.likeness) {
                seen.likeness = found;
                shift = tried;
            }
        }
    }
    std::array<Matrix2d, 2> fine{ Matrix2d::Zero(), Matrix2d::Zero() };
    std::array<double, 2> coarse{};
    std::vector<double> details;
    for (const Sample &sample : samples) {
        const Vector2d there = sample.second + shift;
        if (isInside(there)) {
            // A difference along a step of the first is one along what that step is in the second.
            const auto turned = [&sample](const Matrix2d &tensor) -> Matrix2d {
                return sample.steps.transpose() * tensor * sample.steps;
            };
            const Matrix2d own = first.detail.fine(sample.first.x(), sample.first.y());
            const Matrix2d other = turned(second.detail.fine(there.x(), there.y()));
            fine[0] += own;
            fine[1] += other;
            coarse[0] += first.detail.coarse(sample.first.x(), sample.first.y()).trace();
            coarse[1] += turned(second.detail.coarse(there.x(), there.y())).trace();
            details.push_back(std::max(own.trace(), other.trace()));
            const double ownLight = first.detail.brightness(sample.first.x(), sample.first.y());
            const double otherLight = second.detail.brightness(there.x(), there.y());
            seen.lostInFirst += isLost(ownLight) && isMiddle(otherLight) ? 1.0 : 0.0;
            seen.lostInSecond += isLost(otherLight) && isMiddle(ownLight) ? 1.0 : 0.0;
        }
    }
    const auto count = static_cast<double>(details.size());
    seen.lostInFirst /= count;
    seen.lostInSecond /= count;
    fine[0] /= count;
    fine[1] /= count;
    const double contrast = (coarse[0] / count + kNoise) / (coarse[1] / count + kNoise);
    seen.sharpnessOfFirst = leastShare(fine[0], fine[1]) / contrast;
    seen.sharpnessOfSecond = leastShare(fine[1], fine[0]) * contrast;
    const auto quarter = details.begin() + static_cast<std::ptrdiff_t>(details.size() / 4);
    std::nth_element(details.begin(), quarter, details.end(), std::greater<>());
    seen.detail = *quarter;
    return seen;
}

} // namespace PanoHost
