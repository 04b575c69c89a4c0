// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/view/viewshoots.h"

#include "host/demo/camera.h"
#include "tests/host/testpanoramas.h"

#include <cmath>

using namespace PanoHost;

Panorama ViewShoots::shootOf(const QVector<Pose> &poses, double focal35mm, LensModel lens)
{
    Panorama panorama;
    panorama.focal35mm = focal35mm;
    panorama.lens = lens;
    for (const Pose &pose : poses) {
        const int number = panorama.positions.size() + 1;
        Position position = TestPanoramas::positionAt(
            pose.yaw, pose.pitch,
            { TestPanoramas::photoNamed(QStringLiteral("%1.jpg").arg(number)) });
        position.rollDegrees = pose.roll;
        panorama.positions += position;
    }
    return panorama;
}

Panorama ViewShoots::sphereOf(int count)
{
    // Rows as far apart as the photos in them, about as many as fit.
    const double step = std::sqrt(4.0 * M_PI / count) * 180.0 / M_PI;
    const int rows = qRound(180.0 / step);
    QVector<Pose> poses;
    for (int row = 0; row < rows; ++row) {
        const double pitch = 90.0 - (row + 0.5) * 180.0 / rows;
        const int columns = std::max(qRound(360.0 / step * std::cos(pitch * M_PI / 180.0)), 1);
        for (int column = 0; column < columns && poses.size() < count; ++column) {
            poses += { column * 360.0 / columns, pitch, 0.0 };
        }
    }
    while (poses.size() < count) {
        poses += poses.at(poses.size() / 2);
    }
    // Half as wide again as the steps: 43.27 mm is the diagonal, 1.2 of 0.83 of it the width.
    const double width = 36.0;
    return shootOf(poses, width / (2.0 * std::tan(1.5 * step * M_PI / 360.0)));
}

void ViewShoots::link(Panorama *panorama, int from, int to)
{
    AuthorizedLink link;
    link.linkType = 2;
    link.indices = { from, to };
    panorama->description.authorizedLinks += link;
}

QRgb ViewShoots::colourOf(int frame)
{
    // Neighbours differ by far more than rounding.
    return qRgb(40 + frame * 53 % 200, 40 + frame * 97 % 200, 40 + frame * 31 % 200);
}

FrameFill ViewShoots::plainFill(const Patch &patch)
{
    FrameFill fill;
    fill.texture = QImage(3, 2, QImage::Format_RGB32);
    fill.texture.fill(colourOf(patch.frame));
    return fill;
}

int ViewShoots::frontFrame(const Panorama &panorama, const ViewCamera &camera, int x, int y)
{
    const double right = x + 0.5 - camera.size.width() / 2.0;
    const double up = camera.size.height() / 2.0 - y - 0.5;
    Vec3 direction;
    if (camera.mode == ViewMode::Flat) {
        const double yaw = right / camera.pixelsPerDegree;
        const double pitch = camera.pitchDegrees + up / camera.pixelsPerDegree;
        if (std::abs(yaw) > 180.0 || std::abs(pitch) > 90.0) {
            return -1;
        }
        direction = directionTo(camera.yawDegrees + yaw, pitch);
    } else {
        // The screen as a photo, whose diagonal counts as 43.27 mm.
        const QSize size = camera.size.toSize();
        const double focal = camera.pixelsPerDegree * 180.0 / M_PI;
        const Camera screen{ size, focal35mmOf(size, focal) };
        direction = View(screen, { camera.yawDegrees, camera.pitchDegrees, 0.0 })
                        .directionAt(x + 0.5, y + 0.5);
    }
    const Camera lens{ QSize(1200, 800), panorama.focal35mm,
                       panorama.lens == LensModel::Fisheye ? Projection::EquidistantFisheye
                                                           : Projection::Rectilinear };
    for (int i = panorama.positions.size() - 1; i >= 0; --i) {
        const Position &position = panorama.positions.at(i);
        const View view(lens, { position.yawDegrees, position.pitchDegrees, position.rollDegrees });
        if (view.pixelAt(direction)) {
            return i;
        }
    }
    return -1;
}

double ViewShoots::wrongShare(const QImage &picture, const Panorama &panorama,
                              const ViewCamera &camera)
{
    const int width = picture.width();
    const int height = picture.height();
    std::vector<int> expected;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            expected.push_back(frontFrame(panorama, camera, x, y));
        }
    }
    const auto at = [&](int x, int y) { return expected[static_cast<size_t>(y * width + x)]; };
    int wrong = 0;
    for (int y = 1; y + 1 < height; ++y) {
        for (int x = 1; x + 1 < width; ++x) {
            const int frame = at(x, y);
            bool isEdge = false;
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    isEdge = isEdge || at(x + dx, y + dy) != frame;
                }
            }
            const QRgb colour = frame < 0 ? 0 : colourOf(frame);
            wrong += !isEdge && picture.pixel(x, y) != colour ? 1 : 0;
        }
    }
    return static_cast<double>(wrong) / (width * height);
}
