// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/align/trueshoot.h"

#include <Eigen/SVD>

#include <cmath>

using namespace PanoHost;
using Eigen::AngleAxisd;
using Eigen::Quaterniond;
using Eigen::Vector2d;
using Eigen::Vector3d;

namespace
{

constexpr double kDegree = M_PI / 180.0;

Quaterniond turned(double degrees)
{
    return Quaterniond(AngleAxisd(degrees * kDegree, Vector3d::UnitY()));
}

Quaterniond pitched(double degrees)
{
    return Quaterniond(AngleAxisd(-degrees * kDegree, Vector3d::UnitX()));
}

Quaterniond rolled(double degrees)
{
    return Quaterniond(AngleAxisd(-degrees * kDegree, Vector3d::UnitZ()));
}

} // namespace

TrueShoot::TrueShoot(unsigned seed)
    : m_random(seed)
{
    AlignLens lens;
    lens.size = QSize(900, 600);
    lens.focalPixels = 525.0;
    lenses.push_back(lens);
}

void TrueShoot::addRow(double pitch, int count, double yaw)
{
    for (int i = 0; i < count; ++i) {
        Photo photo;
        photo.view.recorded = { yaw + i * 360.0 / count, pitch, 0.0 };
        photos.push_back(photo);
    }
}

void TrueShoot::addGrid(int columns, int rows, double yawStep, double pitchStep)
{
    for (int i = 0; i < columns * rows; ++i) {
        Photo photo;
        photo.view.recorded
            = { i % columns * yawStep, (i / columns - (rows - 1) / 2.0) * pitchStep, 0.0 };
        photos.push_back(photo);
    }
}

void TrueShoot::addSphere()
{
    addRow(-25.0, 12);
    addRow(25.0, 12);
    addRow(90.0, 1);
    addRow(-90.0, 1);
}

void TrueShoot::play(double degrees)
{
    for (Photo &photo : photos) {
        photo.extra.yaw += evenly(-degrees, degrees);
        photo.extra.pitch += evenly(-degrees, degrees);
        photo.extra.roll += evenly(-degrees, degrees);
    }
}

Quaterniond TrueShoot::attitude(int index) const
{
    const Photo &photo = photos[static_cast<size_t>(index)];
    const Angles &recorded = photo.view.recorded;
    return turned(recorded.yaw * yawScale + photo.extra.yaw)
        * pitched(recorded.pitch * pitchScale + photo.extra.pitch)
        * rolled(recorded.roll + photo.extra.roll) * pitched(mountPitch)
        * rolled(mountRoll + photo.view.turnDegrees);
}

HeadModel TrueShoot::recorded() const
{
    HeadModel model;
    for (const Photo &photo : photos) {
        model.views.push_back(photo.view);
    }
    model.corrections.resize(photos.size());
    model.lenses = lenses;
    for (AlignLens &lens : model.lenses) {
        lens.a = lens.b = lens.c = 0.0;
    }
    return model;
}

std::vector<TiePoint> TrueShoot::points(double noise, int most)
{
    std::vector<TiePoint> points;
    const int count = static_cast<int>(photos.size());
    for (int i = 0; i < count; ++i) {
        for (int j = i + 1; j < count; ++j) {
            appendPoints(points, { i, j }, noise, most);
        }
    }
    return points;
}

void TrueShoot::appendPoints(std::vector<TiePoint> &points, const QPair<int, int> &pair,
                             double noise, int most)
{
    const Photo &first = photos[static_cast<size_t>(pair.first)];
    const Photo &second = photos[static_cast<size_t>(pair.second)];
    if (!first.hasTexture || !second.hasTexture) {
        return;
    }
    const Eigen::Matrix3d turn = attitude(pair.first).toRotationMatrix();
    const Eigen::Matrix3d back = attitude(pair.second).toRotationMatrix().transpose();
    const AlignLens &lens = lenses[static_cast<size_t>(first.view.lens)];
    std::normal_distribution<double> miss(0.0, noise / M_SQRT2);
    const int draws = 5 * most;
    for (int draw = 0; draw < draws && most > 0; ++draw) {
        const Vector2d plane(evenly(-0.6, 0.6) * lens.size.width(),
                             evenly(-0.6, 0.6) * lens.size.height());
        const double angle = lens.model == LensModel::Fisheye
            ? plane.norm() / lens.focalPixels
            : std::atan(plane.norm() / lens.focalPixels);
        const Vector2d side = plane.normalized() * std::sin(angle);
        const Vector3d direction(side.x(), side.y(), std::cos(angle));
        TiePoint point{ pair.first, pair.second, {}, {} };
        if (sees(first, direction, point.inFirst)
            && sees(second, back * (turn * direction), point.inSecond)) {
            for (double *value : { &point.inFirst.x(), &point.inFirst.y(), &point.inSecond.x(),
                                   &point.inSecond.y() }) {
                *value += noise > 0.0 ? miss(m_random) : 0.0;
            }
            points.push_back(point);
            --most;
        }
    }
}

void TrueShoot::spoil(std::vector<TiePoint> &points, double share)
{
    for (TiePoint &point : points) {
        if (evenly(0.0, 1.0) < share) {
            const int lens = photos[static_cast<size_t>(point.second)].view.lens;
            const QSize size = lenses[static_cast<size_t>(lens)].size;
            point.inSecond = { evenly(0.0, size.width()), evenly(0.0, size.height()) };
        }
    }
}

double TrueShoot::error(const HeadModel &model, const Chosen &counted, const Chosen &fitted) const
{
    const int count = static_cast<int>(photos.size());
    std::vector<Eigen::Matrix3d> truths;
    std::vector<Eigen::Matrix3d> answers;
    Eigen::Matrix3d sum = Eigen::Matrix3d::Zero();
    for (int i = 0; i < count; ++i) {
        truths.emplace_back(attitude(i).toRotationMatrix());
        answers.push_back(model.rotation(i));
        if (!fitted || fitted(i)) {
            sum += truths.back() * answers.back().transpose();
        }
    }
    const Eigen::JacobiSVD<Eigen::Matrix3d> svd(sum, Eigen::ComputeFullU | Eigen::ComputeFullV);
    const Eigen::Matrix3d &u = svd.matrixU();
    const Eigen::Matrix3d &v = svd.matrixV();
    const Vector3d proper(1.0, 1.0, (u * v.transpose()).determinant());
    const Eigen::Matrix3d common = u * proper.asDiagonal() * v.transpose();
    double squares = 0.0;
    int of = 0;
    for (int i = 0; i < count; ++i) {
        if (!counted || counted(i)) {
            const auto index = static_cast<size_t>(i);
            const AngleAxisd rest(
                Eigen::Matrix3d(truths[index].transpose() * common * answers[index]));
            squares += rest.angle() * rest.angle();
            ++of;
        }
    }
    return std::sqrt(squares / of) / kDegree;
}

double TrueShoot::evenly(double from, double to)
{
    return std::uniform_real_distribution<double>(from, to)(m_random);
}

bool TrueShoot::sees(const Photo &photo, const Vector3d &direction, Vector2d &pixel) const
{
    const AlignLens &lens = lenses[static_cast<size_t>(photo.view.lens)];
    const double angle = std::acos(std::clamp(direction.z() / direction.norm(), -1.0, 1.0));
    if (lens.model != LensModel::Fisheye && angle > 1.5) {
        return false;
    }
    const double ideal
        = lens.focalPixels * (lens.model == LensModel::Fisheye ? angle : std::tan(angle));
    // Farther out the polynomial comes back to where it was.
    if (ideal > std::hypot(lens.size.width(), lens.size.height())) {
        return false;
    }
    const double r = ideal / (std::min(lens.size.width(), lens.size.height()) / 2.0);
    const double radius = ideal
        * (lens.a * std::pow(r, 3) + lens.b * std::pow(r, 2) + lens.c * r + 1.0 - lens.a - lens.b
           - lens.c);
    const double around = std::atan2(direction.y(), direction.x());
    pixel = { (lens.size.width() - 1) / 2.0 + radius * std::cos(around),
              (lens.size.height() - 1) / 2.0 - radius * std::sin(around) };
    return pixel.x() >= -0.5 && pixel.x() <= lens.size.width() - 0.5 && pixel.y() >= -0.5
        && pixel.y() <= lens.size.height() - 0.5;
}
