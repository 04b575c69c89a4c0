// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/viewmarks.h"

#include "host/view/drawlist.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QWidget>
#include <QWindow>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{

namespace
{

// Beyond these, outlines, numbers and lines are a blur, and painting them takes long.
constexpr int kMostOutlines = 400;
constexpr int kMostNumbers = 150;
constexpr int kMostLinks = 20000;
constexpr float kLeastOutlinedSide = 12.0F;
constexpr float kLeastNumberedSide = 36.0F;
/** Points on the shorter way from \p from to \p to along a great circle. */
QVector<Eigen::Vector3d> greatCircle(const Eigen::Vector3d &from, const Eigen::Vector3d &to)
{
    constexpr double kStepDegrees = 6.0;
    const double angle = std::acos(std::clamp(from.dot(to), -1.0, 1.0));
    const int steps
        = std::max(static_cast<int>(std::ceil(qRadiansToDegrees(angle) / kStepDegrees)), 1);
    QVector<Eigen::Vector3d> way;
    for (int i = 0; i <= steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        const Eigen::Vector3d point = std::sin(angle) > 1e-9
            ? Eigen::Vector3d((std::sin((1.0 - part) * angle) * from + std::sin(part * angle) * to)
                              / std::sin(angle))
            : (i == 0 ? from : to);
        way += point;
    }
    return way;
}

/** A line that stands out from whatever lies below it. */
void drawOutlined(QPainter &painter, const QVector<QPolygonF> &lines, const QPen &pen,
                  const QColor &ground)
{
    for (const QPen &each : { QPen(ground, pen.widthF() + 2.0), pen }) {
        painter.setPen(each);
        for (const QPolygonF &line : lines) {
            painter.drawPolyline(line);
        }
    }
}

} // namespace

QColor mixed(const QColor &a, const QColor &b, double part)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * part,
                            a.greenF() + (b.greenF() - a.greenF()) * part,
                            a.blueF() + (b.blueF() - a.blueF()) * part);
}

QColor faint(QColor colour, double opacity)
{
    colour.setAlphaF(opacity);
    return colour;
}

QColor residualColour(double part)
{
    struct Stop {
        double at;
        int red, green, blue;
    };
    constexpr std::array<Stop, 5> kStops{ { { 0.0, 68, 1, 84 },
                                            { 0.25, 59, 82, 139 },
                                            { 0.5, 33, 145, 140 },
                                            { 0.75, 94, 201, 98 },
                                            { 1.0, 253, 231, 37 } } };
    const double at = std::clamp(part, 0.0, 1.0);
    size_t i = 1;
    while (i + 1 < kStops.size() && at > kStops[i].at) {
        ++i;
    }
    const Stop &a = kStops[i - 1];
    const Stop &b = kStops[i];
    return mixed(QColor(a.red, a.green, a.blue), QColor(b.red, b.green, b.blue),
                 (at - a.at) / (b.at - a.at));
}

std::optional<QPointF> middleOf(const ShootScene &scene, const ViewCamera &camera, int frame)
{
    if (frame < 0 || !scene.frames.at(frame).isPlaced) {
        return {};
    }
    return camera.pointOf(scene.frames.at(frame).toWorld.col(2));
}

ViewMarks::ViewMarks(const QWidget &view, const ShootScene &scene, const ViewCamera &camera,
                     const DrawList &list, int selected)
    : m_view(view)
    , m_scene(scene)
    , m_camera(camera)
    , m_list(list)
    , m_selected(selected)
{
}

QVector<QPolygonF> ViewMarks::linesBetween(const QVector<Eigen::Vector3d> &way) const
{
    QVector<QPolygonF> lines;
    QPolygonF line;
    const double turn = 360.0 * m_camera.pixelsPerDegree;
    const auto end = [&lines, &line] {
        if (line.size() > 1) {
            lines += line;
        }
        line.clear();
    };
    for (const Eigen::Vector3d &direction : way) {
        const auto point = m_camera.pointOf(direction);
        if (!point) {
            end();
            continue;
        }
        const double across = line.isEmpty() ? 0.0 : point->x() - line.last().x();
        if (m_camera.mode == ViewMode::Flat && std::abs(across) > turn / 2.0) {
            // Over the join: out on one side and in on the other.
            const QPointF over(across > 0.0 ? -turn : turn, 0.0);
            const QPointF last = line.last();
            line += *point + over;
            end();
            line += last - over;
        }
        line += *point;
    }
    end();
    return lines;
}

QVector<QPolygonF> ViewMarks::outlineOf(int frame) const
{
    constexpr int kSteps = 12;
    const ShootFrame &one = m_scene.frames.at(frame);
    const std::array<QPointF, 5> corners{ QPointF(0, 0), QPointF(1, 0), QPointF(1, 1),
                                          QPointF(0, 1), QPointF(0, 0) };
    QVector<Eigen::Vector3d> way;
    for (size_t side = 0; side < 4; ++side) {
        for (int i = 0; i < kSteps; ++i) {
            const QPointF place = corners[side] + (corners[side + 1] - corners[side]) * i / kSteps;
            way += one.toWorld
                * one.lens.rayOf({ place.x() * one.lens.size.width() - 0.5,
                                   place.y() * one.lens.size.height() - 0.5 });
        }
    }
    way += way.first();
    return linesBetween(way);
}

void ViewMarks::paintGrid(QPainter &painter) const
{
    if (m_camera.mode != ViewMode::Flat) {
        return;
    }
    constexpr int kStep = 30;
    painter.setPen(faint(m_view.palette().color(QPalette::Text), 0.15));
    for (int yaw = -180; yaw < 180; yaw += kStep) {
        const double x = m_camera.pointOf(directionAt(yaw, 0.0))->x();
        painter.drawLine(QPointF(x, 0.0), QPointF(x, m_view.height()));
    }
    for (int pitch = -90; pitch <= 90; pitch += kStep) {
        const double y = m_camera.pointOf(directionAt(0.0, pitch))->y();
        painter.drawLine(QPointF(0.0, y), QPointF(m_view.width(), y));
    }
}

void ViewMarks::paintGaps(QPainter &painter, const Gaps &gaps) const
{
    const double step = gaps.stepDegrees;
    constexpr double kLongest = 10.0;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const auto &corners = gaps.corners;
    for (int i = 0; i < corners.size();) {
        // Cells of a row side by side are one.
        int last = i;
        while (last + 1 < corners.size() && corners.at(last + 1).second == corners.at(i).second
               && std::abs(corners.at(last + 1).first - corners.at(last).first - step) < step / 2.0
               && corners.at(last + 1).first + step - corners.at(i).first < kLongest) {
            ++last;
        }
        const double west = corners.at(i).first;
        const double east = corners.at(last).first + step;
        const double low = std::max(corners.at(i).second, -90.0);
        const double high = std::min(corners.at(i).second + step, 90.0);
        i = last + 1;
        if (m_camera.mode == ViewMode::Flat) {
            const QPointF middle
                = *m_camera.pointOf(directionAt((west + east) / 2.0, (low + high) / 2.0));
            const QSizeF size = QSizeF(east - west, high - low) * m_camera.pixelsPerDegree;
            for (const double turn : { -360.0, 0.0, 360.0 }) {
                const QRectF cell(middle.x() + turn * m_camera.pixelsPerDegree - size.width() / 2,
                                  middle.y() - size.height() / 2, size.width(), size.height());
                if (cell.intersects(m_view.rect())) {
                    path.addRect(cell);
                }
            }
            continue;
        }
        QPolygonF cell;
        for (const Eigen::Vector3d &corner : { directionAt(west, low), directionAt(east, low),
                                               directionAt(east, high), directionAt(west, high) }) {
            if (const auto point = m_camera.pointOf(corner)) {
                cell += *point;
            }
        }
        if (cell.size() == 4 && cell.boundingRect().intersects(m_view.rect())) {
            path.addPolygon(cell);
            path.closeSubpath();
        }
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillPath(path, QBrush(m_view.palette().color(QPalette::Text), Qt::BDiagPattern));
    painter.restore();
}

void ViewMarks::paintLinks(QPainter &painter) const
{
    const int count = std::min(m_scene.links.size(), kMostLinks);
    QVector<QPolygonF> lines;
    for (int i = 0; i < count; ++i) {
        const auto &link = m_scene.links.at(i);
        const ShootFrame &from = m_scene.frames.at(link.first);
        const ShootFrame &to = m_scene.frames.at(link.second);
        if (!from.isPlaced || !to.isPlaced) {
            continue;
        }
        const Eigen::Vector3d start = from.toWorld.col(2);
        const Eigen::Vector3d end = to.toWorld.col(2);
        lines += linesBetween(greatCircle(start, end));
    }
    painter.setRenderHint(QPainter::Antialiasing, count <= kMostOutlines);
    drawOutlined(painter, lines, QPen(m_view.palette().color(QPalette::Text), 1.0),
                 m_view.palette().color(QPalette::Base));
    painter.setRenderHint(QPainter::Antialiasing);
}

void ViewMarks::paintOutlines(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    const QColor ground = m_view.palette().color(QPalette::Base);
    const double scale = m_view.devicePixelRatioF();
    if (m_list.patches.size() <= kMostOutlines) {
        painter.setPen(QPen(faint(ground, 0.7), 1.0));
        for (const Patch &patch : m_list.patches) {
            const ShootFrame &frame = m_scene.frames.at(patch.frame);
            if (patch.side < kLeastOutlinedSide * scale || patch.frame == m_selected) {
                continue;
            }
            const QVector<QPolygonF> lines = outlineOf(patch.frame);
            if (!frame.isLinked) {
                QPen dashed(m_view.palette().color(QPalette::Text), 2.0);
                dashed.setDashPattern({ 4.0, 3.0 });
                drawOutlined(painter, lines, dashed, ground);
                painter.setPen(QPen(faint(ground, 0.7), 1.0));
                continue;
            }
            for (const QPolygonF &line : lines) {
                painter.drawPolyline(line);
            }
        }
    }
    if (m_selected >= 0 && m_scene.frames.at(m_selected).isPlaced) {
        drawOutlined(painter, outlineOf(m_selected),
                     QPen(m_view.palette().color(QPalette::Highlight), 3.0), ground);
    }
}

void ViewMarks::paintNumbers(QPainter &painter) const
{
    if (m_list.patches.size() > kMostOutlines) {
        return;
    }
    const bool isNumbered = m_scene.frames.size() <= kMostNumbers;
    const int side = m_view.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &m_view);
    const QPixmap sign = m_view.style()
                             ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, &m_view)
                             .pixmap(m_view.window()->windowHandle(), QSize(side, side));
    const QFontMetricsF metrics(m_view.font());
    const double scale = m_view.devicePixelRatioF();
    for (const Patch &patch : m_list.patches) {
        const ShootFrame &frame = m_scene.frames.at(patch.frame);
        const auto middle = middleOf(m_scene, m_camera, patch.frame);
        if (!middle || patch.side < kLeastOutlinedSide * scale) {
            continue;
        }
        double right = middle->x();
        if (isNumbered && patch.side >= kLeastNumberedSide * scale) {
            const QString number = QString::number(patch.frame + 1);
            QRectF box(0.0, 0.0, metrics.horizontalAdvance(number) + 6.0, metrics.height() + 2.0);
            box.moveCenter(*middle);
            right = box.right() + side / 2.0 + 2.0;
            painter.setPen(Qt::NoPen);
            painter.setBrush(m_view.palette().base());
            painter.drawRoundedRect(box, 3.0, 3.0);
            painter.setPen(m_view.palette().color(QPalette::Text));
            painter.drawText(box, Qt::AlignCenter, number);
        }
        if (!frame.isLinked && patch.side >= static_cast<float>(side * scale)) {
            painter.drawPixmap(QPointF(right - side / 2.0, middle->y() - side / 2.0), sign);
        }
    }
}

void ViewMarks::paintLegend(QPainter &painter, const QString &title, double worstPixels) const
{
    constexpr double kWidth = 120.0;
    constexpr double kBar = 10.0;
    constexpr double kPad = 6.0;
    const QFontMetricsF metrics(m_view.font());
    const QString worst = m_view.locale().toString(worstPixels, 'f', 1);
    const double wide = std::max(kWidth, metrics.horizontalAdvance(title));
    const QRectF box(kPad, m_view.height() - kBar - 2.0 * metrics.height() - 3.0 * kPad,
                     wide + 2.0 * kPad, kBar + 2.0 * metrics.height() + 2.0 * kPad);
    painter.setPen(m_view.palette().color(QPalette::Text));
    painter.setBrush(m_view.palette().base());
    painter.drawRect(box);
    const QRectF inner = box.adjusted(kPad, kPad, -kPad, -kPad);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, title);
    const QRectF bar(inner.left(), inner.top() + metrics.height(), wide, kBar);
    QLinearGradient colours(bar.topLeft(), bar.topRight());
    for (const double at : { 0.0, 0.25, 0.5, 0.75, 1.0 }) {
        colours.setColorAt(at, residualColour(at));
    }
    painter.fillRect(bar, colours);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("0"));
    painter.drawText(inner, Qt::AlignRight | Qt::AlignBottom, worst);
}

} // namespace PanoHost
