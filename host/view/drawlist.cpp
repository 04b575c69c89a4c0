// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/drawlist.h"

#include "host/model/ptoline.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{

namespace
{

// Where photos lie deeper on each other, only some of them are drawn: the others add nothing to
// see.
constexpr double kMostLayers = 16.0;

class ListMaker
{
public:
    ListMaker(const ShootScene &scene, const ViewCamera &camera, double scale)
        : m_scene(scene)
        , m_camera(camera)
        , m_scale(scale)
        , m_middle(camera.size.width() * scale / 2.0, camera.size.height() * scale / 2.0)
        , m_perDegree(camera.pixelsPerDegree * scale)
        , m_toCamera(camera.toCamera().cast<float>())
        , m_cornerDegrees(camera.cornerDegrees())
        , m_axis(camera.toCamera().row(2))
    {
    }

    /** About as many pixels as \p frame takes in the picture; 0: it is not seen. */
    [[nodiscard]] double pixelsOf(int frame) const
    {
        const FrameMesh &mesh = m_scene.meshes[static_cast<size_t>(frame)];
        const bool isSphere = m_camera.mode == ViewMode::Sphere;
        if (mesh.columns == 0
            || (isSphere ? !isAhead(m_scene.frames.at(frame))
                         : std::none_of(kTurns.begin(), kTurns.end(), [&](double turn) {
                               return isOnMap(mesh, yawOf(frame) + turn);
                           }))) {
            return 0.0;
        }
        const double side = sideDegrees(frame) * m_perDegree;
        return std::min(side * side, 4.0 * m_middle.x() * m_middle.y());
    }

    /** Pixels of the picture. */
    [[nodiscard]] double pixels() const { return 4.0 * m_middle.x() * m_middle.y(); }

    void add(int frame)
    {
        const FrameMesh &mesh = m_scene.meshes[static_cast<size_t>(frame)];
        if (mesh.columns == 0) {
            return;
        }
        if (m_camera.mode == ViewMode::Sphere) {
            addOnSphere(frame, mesh);
        } else {
            addOnMap(frame, mesh);
        }
    }

    [[nodiscard]] DrawList take() { return std::move(m_list); }

private:
    // At the edges of the map a frame has a place on either side.
    static constexpr std::array<double, 3> kTurns{ -360.0, 0.0, 360.0 };

    /** To the right of the camera's middle. */
    [[nodiscard]] double yawOf(int frame) const
    {
        return wrappedDegrees(m_scene.frames.at(frame).angles.yaw - m_camera.yawDegrees);
    }

    /** Whether a frame whose middle lies \p at degrees to the right is seen. */
    [[nodiscard]] bool isOnMap(const FrameMesh &mesh, double at) const
    {
        const double halfWidth = std::min(m_middle.x() / m_perDegree, 180.0);
        const double halfHeight = m_middle.y() / m_perDegree;
        return mesh.pitchTo >= m_camera.pitchDegrees - halfHeight
            && mesh.pitchFrom <= m_camera.pitchDegrees + halfHeight && at + mesh.yawTo >= -halfWidth
            && at + mesh.yawFrom <= halfWidth;
    }

    [[nodiscard]] bool isAhead(const ShootFrame &photo) const
    {
        const double cosine = std::clamp(m_axis.dot(photo.toWorld.col(2)), -1.0, 1.0);
        return qRadiansToDegrees(std::acos(cosine)) <= m_cornerDegrees + photo.radiusDegrees;
    }

    void addOnMap(int frame, const FrameMesh &mesh)
    {
        for (const double turn : kTurns) {
            const double at = yawOf(frame) + turn;
            if (!isOnMap(mesh, at)) {
                continue;
            }
            m_corners.clear();
            const MeshPoint *points = m_scene.points.data() + mesh.first;
            for (int i = 0; i < pointCount(mesh); ++i) {
                const MeshPoint &point = points[i];
                m_corners.push_back(
                    { static_cast<float>(m_middle.x() + (at + point.yaw) * m_perDegree),
                      static_cast<float>(m_middle.y()
                                         + (m_camera.pitchDegrees - point.pitch) * m_perDegree),
                      point.u, point.v });
            }
            addCells(frame, mesh);
        }
    }

    void addOnSphere(int frame, const FrameMesh &mesh)
    {
        if (!isAhead(m_scene.frames.at(frame))) {
            return;
        }
        m_corners.clear();
        const auto focal = static_cast<float>(m_camera.focalPixels() * m_scale);
        const MeshPoint *points = m_scene.points.data() + mesh.first;
        for (int i = 0; i < pointCount(mesh); ++i) {
            const MeshPoint &point = points[i];
            const Eigen::Vector3f seen = m_toCamera * point.direction;
            const bool isBehind = !(seen.z() > static_cast<float>(kLeastViewCosine));
            const float perUnit = isBehind ? 0.0F : focal / seen.z();
            m_corners.push_back({ static_cast<float>(m_middle.x()) + seen.x() * perUnit,
                                  static_cast<float>(m_middle.y()) - seen.y() * perUnit, point.u,
                                  isBehind ? std::nanf("") : point.v });
        }
        addCells(frame, mesh);
    }

    [[nodiscard]] static int pointCount(const FrameMesh &mesh)
    {
        return (mesh.columns + 1) * (mesh.rows + 1);
    }

    void addCells(int frame, const FrameMesh &mesh)
    {
        Patch patch;
        patch.frame = frame;
        patch.first = static_cast<int>(m_list.points.size());
        patch.isCut = mesh.isCut;
        for (int row = 0; row < mesh.rows; ++row) {
            for (int column = 0; column < mesh.columns; ++column) {
                const int first = row * (mesh.columns + 1) + column;
                const ScreenPoint *upper = m_corners.data() + first;
                const ScreenPoint *lower = upper + mesh.columns + 1;
                addCell(upper[0], upper[1], lower[0], lower[1], mesh.isCut);
            }
        }
        patch.count = static_cast<int>(m_list.points.size()) - patch.first;
        if (patch.count > 0) {
            patch.side = static_cast<float>(sideDegrees(frame) * m_perDegree);
            m_list.patches.push_back(patch);
        }
    }

    void addCell(const ScreenPoint &a, const ScreenPoint &b, const ScreenPoint &c,
                 const ScreenPoint &d, bool isCut)
    {
        if (std::isnan(a.v) || std::isnan(b.v) || std::isnan(c.v) || std::isnan(d.v)) {
            return;
        }
        const auto within = [](float p, float q, float r, float s, float from, float to) {
            return std::max(std::max(p, q), std::max(r, s)) >= from
                && std::min(std::min(p, q), std::min(r, s)) <= to;
        };
        if (!within(a.x, b.x, c.x, d.x, 0.0F, static_cast<float>(2.0 * m_middle.x()))
            || !within(a.y, b.y, c.y, d.y, 0.0F, static_cast<float>(2.0 * m_middle.y()))
            || (isCut
                && (!within(a.u, b.u, c.u, d.u, 0.0F, 1.0F)
                    || !within(a.v, b.v, c.v, d.v, 0.0F, 1.0F)))) {
            return;
        }
        m_list.points.insert(m_list.points.end(), { a, b, c, c, b, d });
    }

    [[nodiscard]] double sideDegrees(int frame) const
    {
        const AlignLens &lens = m_scene.frames.at(frame).lens;
        const double longer = std::max(lens.size.width(), lens.size.height());
        return qRadiansToDegrees(longer / lens.focalPixels);
    }

    const ShootScene &m_scene;
    const ViewCamera &m_camera;
    const double m_scale;
    const QPointF m_middle;
    const double m_perDegree;
    const Eigen::Matrix3f m_toCamera;
    const double m_cornerDegrees;
    const Eigen::Vector3d m_axis;
    std::vector<ScreenPoint> m_corners; ///< of one mesh
    DrawList m_list;
};

} // namespace

DrawList drawListOf(const ShootScene &scene, const ViewCamera &camera, double scale, int front)
{
    ListMaker maker(scene, camera, scale);
    double pixels = 0.0;
    for (int frame = 0; frame < scene.frames.size(); ++frame) {
        pixels += maker.pixelsOf(frame);
    }
    const int step
        = std::max(1, static_cast<int>(std::ceil(pixels / (kMostLayers * maker.pixels()))));
    for (int frame = 0; frame < scene.frames.size(); frame += step) {
        if (frame != front) {
            maker.add(frame);
        }
    }
    if (front >= 0 && front < scene.frames.size()) {
        maker.add(front);
    }
    return maker.take();
}

QRect mapRect(const ViewCamera &camera, double scale)
{
    const QRectF screen(QPointF(), camera.size * scale);
    if (camera.mode == ViewMode::Sphere) {
        return screen.toAlignedRect();
    }
    const double perDegree = camera.pixelsPerDegree * scale;
    const double top = screen.center().y() + (camera.pitchDegrees - 90.0) * perDegree;
    const QRectF map(screen.center().x() - 180.0 * perDegree, top, 360.0 * perDegree,
                     180.0 * perDegree);
    return map.intersected(screen).toRect();
}

} // namespace PanoHost
