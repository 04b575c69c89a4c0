// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/shootscene.h"

#include "host/align/photoresiduals.h"
#include "host/model/panorama.h"
#include "host/model/ptofile.h"
#include "host/model/ptoline.h"
#include "host/view/viewcamera.h"

#include <QHash>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <tuple>

namespace PanoHost
{

namespace
{

/** Where nobody names a focal length or a size. */
constexpr double kAssumedFocal35mm = 50.0;
const QSize kAssumedSize(600, 400);
/** Beyond, circles of latitude are too curved for the photo's own grid. */
constexpr double kSteepDegrees = 75.0;
constexpr double kCellDegrees = 3.0;
/** Cells of all meshes together, roughly. */
constexpr int kMostCells = 60000;
constexpr float kNotSeen = std::numeric_limits<float>::quiet_NaN();

double yawOf(const Eigen::Vector3d &direction)
{
    return qRadiansToDegrees(std::atan2(direction.x(), direction.z()));
}

double pitchOf(const Eigen::Vector3d &direction)
{
    return qRadiansToDegrees(std::atan2(direction.y(), std::hypot(direction.x(), direction.z())));
}

/** The direction of the point (\p u, \p v) of the photo. */
Eigen::Vector3d directionIn(const ShootFrame &frame, double u, double v)
{
    const Eigen::Vector2d pixel(u * frame.lens.size.width() - 0.5,
                                v * frame.lens.size.height() - 0.5);
    return frame.toWorld * frame.lens.rayOf(pixel);
}

/** Fills in what follows from lens and angles. */
void place(ShootFrame *frame)
{
    const Angles &angles = frame->angles;
    frame->isPlaced = std::isfinite(angles.yaw) && std::isfinite(angles.pitch)
        && std::isfinite(angles.roll) && std::isfinite(frame->lens.focalPixels)
        && frame->lens.focalPixels > 0.0 && !frame->lens.size.isEmpty();
    if (!frame->isPlaced) {
        return;
    }
    frame->toWorld = rotationOf(angles);
    for (const double u : { 0.0, 1.0 }) {
        for (const double v : { 0.0, 1.0 }) {
            const double cosine = directionIn(*frame, u, v).dot(frame->toWorld.col(2));
            const double angle = qRadiansToDegrees(std::acos(std::clamp(cosine, -1.0, 1.0)));
            frame->radiusDegrees = std::max(frame->radiusDegrees, angle);
        }
    }
    frame->isPlaced = std::isfinite(frame->radiusDegrees) && frame->radiusDegrees > 0.0;
}

/** A fisheye's corners may lie behind the camera, beyond what the angle of a pixel tells. */
bool isAllAround(const ShootFrame &frame)
{
    const double corner = std::hypot(frame.lens.size.width(), frame.lens.size.height()) / 2.0;
    return frame.lens.model == LensModel::Fisheye && corner / frame.lens.focalPixels > M_PI * 0.9;
}

class MeshMaker
{
public:
    explicit MeshMaker(ShootScene *scene)
        : m_scene(*scene)
        , m_cellsEach(std::max(kMostCells / std::max(scene->frames.size(), 1), 1))
    {
    }

    void addMesh(const ShootFrame &frame)
    {
        FrameMesh mesh;
        mesh.first = static_cast<int>(m_scene.points.size());
        if (frame.isPlaced) {
            const Shape shape{ frame.angles.pitch,       frame.angles.roll,
                               frame.lens.focalPixels,   frame.lens.size.width(),
                               frame.lens.size.height(), static_cast<int>(frame.lens.model) };
            const auto known = m_known.find(shape);
            if (known != m_known.end()) {
                mesh = turned(*known->second.mesh(m_scene), frame.angles.yaw - known->second.yaw);
            } else {
                addAnew(frame, &mesh);
                m_known[shape] = { static_cast<int>(m_scene.meshes.size()), frame.angles.yaw };
            }
        }
        m_scene.meshes.push_back(mesh);
    }

private:
    /** What decides on a mesh but for its yaw: pitch, roll, focal length, size, lens. Lenses of one
     * shoot do not differ in more. */
    using Shape = std::tuple<double, double, double, int, int, int>;
    struct Known {
        int index = 0;
        double yaw = 0.0; ///< of its frame

        [[nodiscard]] const FrameMesh *mesh(const ShootScene &scene) const
        {
            return &scene.meshes[static_cast<size_t>(index)];
        }
    };

    void addAnew(const ShootFrame &frame, FrameMesh *mesh)
    {
        const bool isSteep
            = std::abs(pitchOf(frame.toWorld.col(2))) + frame.radiusDegrees > kSteepDegrees;
        if (isSteep) {
            addGridOfSphere(frame, mesh);
        } else {
            addGridOfPhoto(frame, mesh);
        }
    }

    /** The same mesh so many degrees farther to the right. */
    FrameMesh turned(const FrameMesh &mesh, double yawDegrees)
    {
        FrameMesh other = mesh;
        other.first = static_cast<int>(m_scene.points.size());
        const Eigen::Matrix3f turn = rotationOf({ yawDegrees, 0.0, 0.0 }).cast<float>();
        const int count = (mesh.columns + 1) * (mesh.rows + 1);
        const auto first = static_cast<size_t>(mesh.first);
        for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
            MeshPoint point = m_scene.points[first + i];
            point.direction = turn * point.direction;
            m_scene.points.push_back(point);
        }
        return other;
    }

    void addGridOfPhoto(const ShootFrame &frame, FrameMesh *mesh)
    {
        const int most = std::max(static_cast<int>(std::sqrt(m_cellsEach)), 1);
        const int cells = std::clamp(
            static_cast<int>(std::ceil(std::sqrt(2.0) * frame.radiusDegrees / kCellDegrees)), 1,
            most);
        mesh->columns = cells;
        mesh->rows = cells;
        // The axis is one of the points: the others lie within half a turn of it.
        const double middle = frame.angles.yaw;
        for (int row = 0; row <= cells; ++row) {
            for (int column = 0; column <= cells; ++column) {
                const double u = static_cast<double>(column) / cells;
                const double v = static_cast<double>(row) / cells;
                const Eigen::Vector3d direction = directionIn(frame, u, v);
                add(direction, wrappedDegrees(yawOf(direction) - middle), pitchOf(direction), u, v,
                    mesh);
            }
        }
    }

    void addGridOfSphere(const ShootFrame &frame, FrameMesh *mesh)
    {
        const double reach = isAllAround(frame) ? 180.0 : frame.radiusDegrees;
        const double axis = pitchOf(frame.toWorld.col(2));
        const double from = std::max(axis - reach, -90.0);
        const double to = std::min(axis + reach, 90.0);
        const bool holdsPole = axis + reach >= 90.0 || axis - reach <= -90.0;
        const double sine = std::sin(qDegreesToRadians(reach)) / std::cos(qDegreesToRadians(axis));
        const double across = holdsPole || sine >= 1.0 ? 180.0 : qRadiansToDegrees(std::asin(sine));
        const double step = std::min(kCellDegrees, reach / 4.0);
        const double flattest = from <= 0.0 && to >= 0.0
            ? 1.0
            : std::cos(qDegreesToRadians(std::min(std::abs(from), std::abs(to))));
        const double yawStep = std::min(step / std::max(flattest, 0.05), 10.0);
        mesh->rows = static_cast<int>(std::ceil((to - from) / step));
        mesh->columns = static_cast<int>(std::ceil(2.0 * across / yawStep));
        mesh->isCut = true;
        // Cells at the photo's edge have corners outside of it.
        const double least = std::cos(qDegreesToRadians(std::min(reach + 3.0 * step, 179.0)));
        // About the mesh's own middle, which a frame that looks past a pole has behind it.
        const double turn = wrappedDegrees(yawOf(frame.toWorld.col(2)) - frame.angles.yaw);
        for (int row = 0; row <= mesh->rows; ++row) {
            const double pitch = to - (to - from) * row / mesh->rows;
            for (int column = 0; column <= mesh->columns; ++column) {
                const double yaw = turn - across + 2.0 * across * column / mesh->columns;
                const Eigen::Vector3d direction = directionAt(frame.angles.yaw + yaw, pitch);
                const auto pixel = direction.dot(frame.toWorld.col(2)) < least
                    ? std::nullopt
                    : frame.lens.pixelOf(frame.toWorld.transpose() * direction);
                add(direction, yaw, pitch,
                    pixel ? (pixel->x() + 0.5) / frame.lens.size.width() : kNotSeen,
                    pixel ? (pixel->y() + 0.5) / frame.lens.size.height() : kNotSeen, mesh);
            }
        }
    }

    void add(const Eigen::Vector3d &direction, double yaw, double pitch, double u, double v,
             FrameMesh *mesh)
    {
        MeshPoint point;
        point.direction = direction.cast<float>();
        point.yaw = static_cast<float>(yaw);
        point.pitch = static_cast<float>(pitch);
        point.u = static_cast<float>(u);
        point.v = static_cast<float>(v);
        const bool isFirst = static_cast<int>(m_scene.points.size()) == mesh->first;
        mesh->yawFrom = isFirst ? point.yaw : std::min(mesh->yawFrom, point.yaw);
        mesh->yawTo = isFirst ? point.yaw : std::max(mesh->yawTo, point.yaw);
        mesh->pitchFrom = isFirst ? point.pitch : std::min(mesh->pitchFrom, point.pitch);
        mesh->pitchTo = isFirst ? point.pitch : std::max(mesh->pitchTo, point.pitch);
        m_scene.points.push_back(point);
    }

    ShootScene &m_scene;
    int m_cellsEach;
    std::map<Shape, Known> m_known;
};

/** What all scenes need once their frames and links are known. */
void finish(ShootScene *scene)
{
    QVector<Frame> covering;
    for (ShootFrame &frame : scene->frames) {
        place(&frame);
        scene->worstResidualPixels = std::max(scene->worstResidualPixels, frame.residualPixels);
        if (frame.isPlaced) {
            covering += { frame.lens.size,  frame.lens.focalPixels, frame.lens.model,
                          frame.angles.yaw, frame.angles.pitch,     frame.angles.roll };
        }
    }
    MeshMaker maker(scene);
    for (const ShootFrame &frame : qAsConst(scene->frames)) {
        maker.addMesh(frame);
    }
    for (const auto &link : qAsConst(scene->links)) {
        scene->frames[link.first].isLinked = true;
        scene->frames[link.second].isLinked = true;
    }
    scene->coverage
        = covering.isEmpty() ? Coverage{ 0.0, 360.0, -90.0, 90.0 } : coverageOf(covering);
}

} // namespace

bool ShootFrame::shows(const Eigen::Vector3d &direction) const
{
    constexpr double kSlack = 1e-3;
    if (!isPlaced
        || (!isAllAround(*this)
            && direction.dot(toWorld.col(2))
                < std::cos(qDegreesToRadians(std::min(radiusDegrees + kSlack, 180.0))))) {
        return false;
    }
    const auto pixel = lens.pixelOf(toWorld.transpose() * direction);
    return pixel && lens.contains(*pixel);
}

int ShootScene::frameAt(const Eigen::Vector3d &direction, int front) const
{
    if (front >= 0 && front < frames.size() && frames.at(front).shows(direction)) {
        return front;
    }
    for (int i = frames.size() - 1; i >= 0; --i) {
        if (frames.at(i).shows(direction)) {
            return i;
        }
    }
    return -1;
}

ShootScene sceneOf(const Panorama &panorama)
{
    ShootScene scene;
    const bool knowsFocal = panorama.focal35mm > 0.0 && std::isfinite(panorama.focal35mm);
    scene.assumesFocal = !knowsFocal;
    const double focal35mm = knowsFocal ? panorama.focal35mm : kAssumedFocal35mm;
    for (const Position &position : panorama.positions) {
        ShootFrame frame;
        frame.photo = scene.photoCount;
        frame.photoCount = position.photos.size();
        scene.photoCount += frame.photoCount;
        const PhotoInfo photo = position.photos.value(0);
        frame.path = photo.path;
        frame.lens.size = photo.storedSize.isEmpty() ? kAssumedSize : photo.storedSize;
        frame.lens.model = panorama.lens;
        frame.lens.focalPixels = focalPixels(frame.lens.size, focal35mm);
        frame.angles = { position.yawDegrees, position.pitchDegrees,
                         position.rollDegrees + clockwiseDegrees(photo.orientation) };
        scene.frames += frame;
    }
    for (const AuthorizedLink &link : panorama.description.authorizedLinks) {
        const int from = link.indices.size() == 2 ? link.indices.at(0) : -1;
        const int to = link.indices.size() == 2 ? link.indices.at(1) : -1;
        // Grids link cells that hold no photo as well.
        if (from >= 0 && to >= 0 && from < scene.frames.size() && to < scene.frames.size()
            && from != to) {
            scene.links += { from, to };
        }
    }
    finish(&scene);
    return scene;
}

ShootScene sceneOf(const PtoFile &project)
{
    ShootScene scene;
    scene.isAligned = true;
    const PhotoResiduals residuals = photoResiduals(project);
    const QVector<PtoImage> &images = project.images();
    std::vector<int> frameOf(static_cast<size_t>(images.size()), -1);
    scene.photoCount = images.size();
    for (int i = 0; i < images.size(); ++i) {
        const PtoImage &image = images.at(i);
        int &own = frameOf[static_cast<size_t>(i)];
        if (image.stackMaster >= 0) {
            own = frameOf[static_cast<size_t>(image.stackMaster)];
            ++scene.frames[own].photoCount;
            continue;
        }
        own = scene.frames.size();
        ShootFrame frame;
        frame.path = image.path;
        frame.photo = i;
        frame.lens = lensOf(image);
        frame.angles = image.angles;
        frame.residualPixels = residuals[static_cast<size_t>(i)].value_or(-1.0);
        scene.frames += frame;
    }
    QHash<QPair<int, int>, bool> known;
    for (const PtoPoint &point : project.points()) {
        const int from = frameOf[static_cast<size_t>(point.first)];
        const int to = frameOf[static_cast<size_t>(point.second)];
        const QPair<int, int> link(std::min(from, to), std::max(from, to));
        if (!point.isWrong && from != to && !known.value(link)) {
            known.insert(link, true);
            scene.links += link;
        }
    }
    finish(&scene);
    return scene;
}

Gaps gapsOf(const ShootScene &scene)
{
    Gaps gaps;
    const Coverage &band = scene.coverage;
    const double height = band.highestPitchDegrees - band.lowestPitchDegrees;
    // Narrow panoramas have narrow gaps; no more cells than a sphere of the ordinary ones.
    gaps.stepDegrees = std::clamp(std::max(band.yawSpanDegrees / 180.0, height / 90.0), 0.01, 2.0);
    const int columns = static_cast<int>(std::ceil(band.yawSpanDegrees / gaps.stepDegrees - 1e-6));
    const int rows = static_cast<int>(std::ceil(height / gaps.stepDegrees - 1e-6));
    if (columns <= 0 || rows <= 0) {
        return gaps;
    }
    const double west = band.yawCentreDegrees - band.yawSpanDegrees / 2.0;
    std::vector<char> covered(static_cast<size_t>(columns) * static_cast<size_t>(rows), 0);
    for (int frame = 0; frame < scene.frames.size(); ++frame) {
        const FrameMesh &mesh = scene.meshes[static_cast<size_t>(frame)];
        if (mesh.columns == 0) {
            continue;
        }
        const ShootFrame &photo = scene.frames.at(frame);
        const double own = photo.angles.yaw + mesh.yawFrom;
        const int wide = static_cast<int>((mesh.yawTo - mesh.yawFrom) / gaps.stepDegrees) + 2;
        const double start = std::fmod(own - west, 360.0);
        const int firstColumn = static_cast<int>(
            std::floor((start < 0.0 ? start + 360.0 : start) / gaps.stepDegrees));
        const int turn = static_cast<int>(std::lround(360.0 / gaps.stepDegrees));
        const int firstRow = std::max(
            static_cast<int>((mesh.pitchFrom - band.lowestPitchDegrees) / gaps.stepDegrees) - 1, 0);
        const int lastRow = std::min(
            static_cast<int>((mesh.pitchTo - band.lowestPitchDegrees) / gaps.stepDegrees) + 1,
            rows - 1);
        for (int row = firstRow; row <= lastRow; ++row) {
            for (int i = -1; i <= wide; ++i) {
                const int column = (firstColumn + i + turn) % turn;
                if (column >= columns) {
                    continue;
                }
                char &cell = covered[static_cast<size_t>(row) * static_cast<size_t>(columns)
                                     + static_cast<size_t>(column)];
                cell = cell != 0
                    || photo.shows(
                        directionAt(west + (column + 0.5) * gaps.stepDegrees,
                                    band.lowestPitchDegrees + (row + 0.5) * gaps.stepDegrees));
            }
        }
    }
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (covered[static_cast<size_t>(row) * static_cast<size_t>(columns)
                        + static_cast<size_t>(column)]
                == 0) {
                gaps.corners += { west + column * gaps.stepDegrees,
                                  band.lowestPitchDegrees + row * gaps.stepDegrees };
            }
        }
    }
    return gaps;
}

} // namespace PanoHost
