// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/layoutpicture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr double kYawSpan = 360.0;
constexpr double kPitchSpan = 180.0;
// Beyond these, numbers and lines are a blur, and painting them takes long.
constexpr int kMostNumbers = 150;
constexpr int kMostLinks = 20000;

double wrappedYaw(double yaw)
{
    const double turned = std::fmod(yaw + kYawSpan / 2.0, kYawSpan);
    return (turned < 0.0 ? turned + kYawSpan : turned) - kYawSpan / 2.0;
}

/** Angles arrive as radians in single precision, where a half turn can fall on either side. */
double withoutRoundingNoise(double degrees)
{
    constexpr double kFinest = 1e-4;
    return std::round(degrees / kFinest) * kFinest;
}

/** \p colour made fainter; it stays visible on any theme's ground. */
QColor faint(QColor colour, double opacity)
{
    colour.setAlphaF(opacity);
    return colour;
}

} // namespace

LayoutScene layoutScene(const Panorama &panorama)
{
    LayoutScene scene;
    for (const Position &position : panorama.positions) {
        scene.places += QPointF(wrappedYaw(withoutRoundingNoise(position.yawDegrees)),
                                position.pitchDegrees);
    }
    scene.linked.fill(false, scene.places.size());
    for (const AuthorizedLink &link : panorama.description.authorizedLinks) {
        const bool pair = link.indices.size() == 2;
        const int from = pair ? link.indices.at(0) : -1;
        const int to = pair ? link.indices.at(1) : -1;
        // Grids link cells that hold no photo as well.
        if (from < 0 || to < 0 || from >= scene.places.size() || to >= scene.places.size()) {
            continue;
        }
        scene.links += { from, to };
        scene.linked[from] = true;
        scene.linked[to] = true;
    }
    return scene;
}

LayoutPicture::LayoutPicture(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Layout of the positions"));
    setMinimumSize(240, 120);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LayoutPicture::show(const LayoutScene &scene)
{
    m_scene = scene;
    update();
}

QSize LayoutPicture::sizeHint() const
{
    return { 480, 240 };
}

void LayoutPicture::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(map(), palette().base());
    paintGrid(painter);
    paintLinks(painter);
    paintPlaces(painter);
}

QRectF LayoutPicture::map() const
{
    // Numbers stand to the upper right of their marks, at the edges too.
    const double margin = fontMetrics().height() + 2.0;
    const double numberWidth = fontMetrics().horizontalAdvance(QStringLiteral("000"));
    const double mapWidth
        = std::min(width() - 2.0 * (margin + numberWidth), 2.0 * (height() - 2.0 * margin));
    const QSizeF size(mapWidth, mapWidth / 2.0);
    return { QPointF((width() - size.width()) / 2.0, (height() - size.height()) / 2.0), size };
}

QPointF LayoutPicture::onScreen(const QPointF &place) const
{
    const QRectF area = map();
    return { area.center().x() + place.x() / kYawSpan * area.width(),
             area.center().y() - place.y() / kPitchSpan * area.height() };
}

void LayoutPicture::paintGrid(QPainter &painter) const
{
    constexpr int kStep = 30;
    constexpr int kEast = static_cast<int>(kYawSpan) / 2;
    constexpr int kTop = static_cast<int>(kPitchSpan) / 2;
    painter.setPen(faint(palette().color(QPalette::Text), 0.12));
    for (int yaw = -kEast; yaw <= kEast; yaw += kStep) {
        painter.drawLine(onScreen(QPointF(yaw, -kTop)), onScreen(QPointF(yaw, kTop)));
    }
    for (int pitch = -kTop; pitch <= kTop; pitch += kStep) {
        painter.drawLine(onScreen(QPointF(-kEast, pitch)), onScreen(QPointF(kEast, pitch)));
    }
}

void LayoutPicture::paintLinks(QPainter &painter) const
{
    painter.setPen(faint(palette().color(QPalette::Text), 0.45));
    painter.setClipRect(map());
    const int count = std::min(m_scene.links.size(), kMostLinks);
    for (int i = 0; i < count; ++i) {
        const QPointF from = m_scene.places.at(m_scene.links.at(i).first);
        QPointF to = m_scene.places.at(m_scene.links.at(i).second);
        // The short way round: over the seam the line leaves the picture on one side.
        to.setX(from.x() + wrappedYaw(to.x() - from.x()));
        painter.drawLine(onScreen(from), onScreen(to));
    }
    painter.setClipping(false);
}

void LayoutPicture::paintPlaces(QPainter &painter) const
{
    constexpr double kRadius = 3.0;
    const bool numbered = m_scene.places.size() <= kMostNumbers;
    for (int i = 0; i < m_scene.places.size(); ++i) {
        const QPointF place = onScreen(m_scene.places.at(i));
        painter.setPen(palette().color(QPalette::Text));
        // An unlinked position is a ring: told apart without colour.
        painter.setBrush(m_scene.linked.at(i) ? palette().highlight() : QBrush(Qt::NoBrush));
        painter.drawEllipse(place, kRadius, kRadius);
        if (numbered) {
            painter.drawText(place + QPointF(kRadius + 1.0, -kRadius), QString::number(i));
        }
    }
}

} // namespace PanoHost
