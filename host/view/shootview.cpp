// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/shootview.h"

#include "host/view/gldrawer.h"
#include "host/view/viewmarks.h"

#include <QApplication>
#include <QFileInfo>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <QWheelEvent>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace PanoHost
{

namespace
{

/** A step of the keys or the wheel. */
constexpr double kZoomStep = 1.25;
constexpr double kPanPart = 0.1;
constexpr int kWheelNotch = 120;
/** Below this the colours would make much of nothing. */
constexpr double kLeastWorstPixels = 2.0;

} // namespace

ShootView::ShootView(QWidget *parent, Drawing drawing)
    : QWidget(parent)
    , m_drawing(drawing)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // While the picture moves, nothing is read: both want the processor.
    constexpr int kRestMs = 60;
    m_wantSoon.setSingleShot(true);
    m_wantSoon.setInterval(kRestMs);
    connect(&m_wantSoon, &QTimer::timeout, this, &ShootView::wantThumbnails);
    // Many photos arrive in one go.
    m_takeSoon.setSingleShot(true);
    m_takeSoon.setInterval(kRestMs);
    connect(&m_takeSoon, &QTimer::timeout, this, &ShootView::takeThumbnails);
    connect(&m_loader, &ThumbnailLoader::loaded, &m_takeSoon, qOverload<>(&QTimer::start));
    showScene({});
}

ShootView::~ShootView() = default;

void ShootView::showScene(ShootScene scene)
{
    m_loader.forget();
    m_scene = std::move(scene);
    m_thumbnails.reset(m_scene.frames.size());
    m_isLoaded = m_scene.frames.isEmpty();
    m_gaps.reset();
    m_selected = -1;
    m_list = {};
    hover(-1);
    const int positions = m_scene.frames.size();
    setAccessibleName(
        tr("Picture of the shoot: %1, %2")
            .arg(m_scene.photoCount == 1 ? tr("1 photo") : tr("%1 photos").arg(m_scene.photoCount),
                 positions == 1 ? tr("1 position") : tr("%1 positions").arg(positions)));
    setAccessibleDescription({});
    fit();
}

void ShootView::setMode(ViewMode mode)
{
    m_camera.mode = mode;
    if (m_isFitted) {
        fit();
    } else {
        setCamera(m_camera.zoomed(1.0, rect().center()));
    }
}

void ShootView::setLinksShown(bool shown)
{
    m_showsLinks = shown;
    update();
}

void ShootView::setGapsShown(bool shown)
{
    m_showsGaps = shown;
    if (shown && !m_gaps) {
        m_gaps = gapsOf(m_scene);
    }
    update();
}

void ShootView::setCamera(const ViewCamera &camera)
{
    m_camera = camera;
    m_camera.size = size();
    m_isFitted = false;
    changed();
}

void ShootView::fit()
{
    m_camera.size = size();
    m_camera = m_camera.fitted(m_scene.coverage);
    m_isFitted = true;
    changed();
}

void ShootView::zoom(double factor)
{
    setCamera(m_camera.zoomed(factor, QRectF(rect()).center()));
}

void ShootView::changed()
{
    m_isStale = true;
    m_isLoaded = m_scene.frames.isEmpty();
    m_loader.want({});
    m_wantSoon.start();
    update();
}

void ShootView::select(int frame)
{
    if (frame >= m_scene.frames.size()) {
        frame = -1;
    }
    m_selected = frame;
    const auto point = middleOf(m_scene, m_camera, frame);
    const bool isSeen = point && rect().contains(point->toPoint());
    if (frame >= 0 && m_scene.frames.at(frame).isPlaced && !isSeen) {
        m_camera.yawDegrees = m_scene.frames.at(frame).angles.yaw;
        m_camera.pitchDegrees = m_scene.frames.at(frame).angles.pitch;
        // Within bounds again.
        setCamera(m_camera.dragged({}));
    }
    const QString text = textOf(frame);
    setAccessibleDescription(text);
    Q_EMIT named(text);
    changed();
}

int ShootView::frameAt(const QPointF &point) const
{
    const auto direction = m_camera.directionOf(point);
    return direction ? m_scene.frameAt(*direction, m_selected) : -1;
}

QString ShootView::textOf(int frame) const
{
    if (frame < 0 || frame >= m_scene.frames.size()) {
        return {};
    }
    const ShootFrame &one = m_scene.frames.at(frame);
    QStringList parts{ QFileInfo(one.path).fileName(),
                       tr("position %1 of %2").arg(frame + 1).arg(m_scene.frames.size()) };
    if (m_scene.photoCount != m_scene.frames.size()) {
        parts += tr("shot %1 of %2").arg(one.photo + 1).arg(m_scene.photoCount);
    }
    if (one.photoCount > 1) {
        parts += tr("first of %1 photos here").arg(one.photoCount);
    }
    if (one.residualPixels >= 0.0) {
        parts += tr("off by %1 pixels").arg(locale().toString(one.residualPixels, 'f', 2));
    } else if (m_scene.isAligned) {
        parts += tr("no control points");
    }
    if (!one.isLinked) {
        parts += tr("linked to no other photo");
    }
    if (m_thumbnails.isUnreadable(frame)) {
        parts += tr("cannot be read");
    }
    return parts.join(tr(", "));
}

void ShootView::hover(int frame)
{
    if (frame == m_hovered) {
        return;
    }
    m_hovered = frame;
    Q_EMIT named(textOf(frame >= 0 ? frame : m_selected));
}

void ShootView::step(int by)
{
    const int count = m_scene.frames.size();
    if (count > 0) {
        const int start = m_selected < 0 ? (by > 0 ? -1 : 0) : m_selected;
        select((start + by + count) % count);
    }
}

void ShootView::takeThumbnails()
{
    for (const LoadedThumbnail &loaded : m_loader.take()) {
        m_thumbnails.put(loaded);
    }
    m_isStale = true;
    update();
    if (!m_wantSoon.isActive()) {
        wantThumbnails();
    }
}

void ShootView::wantThumbnails()
{
    const std::vector<WantedThumbnail> wanted = m_thumbnails.wantedFor(m_list, m_scene);
    m_isLoaded = wanted.empty();
    m_loader.want(wanted);
}

double ShootView::worstShown() const
{
    return std::max(m_scene.worstResidualPixels, kLeastWorstPixels);
}

FrameFill ShootView::fillOf(const Patch &patch) const
{
    FrameFill fill;
    fill.texture = m_thumbnails.pictureFor(patch);
    if (fill.texture.isNull()) {
        // Neighbours differ, so that frames are told apart before their photos are there.
        constexpr int kShades = 3;
        const double part = 0.2 + 0.1 * (patch.frame % kShades);
        fill.plain
            = mixed(palette().color(QPalette::Base), palette().color(QPalette::Text), part).rgb();
    }
    const double residual = m_scene.frames.at(patch.frame).residualPixels;
    if (residual >= 0.0) {
        constexpr double kStrength = 0.5;
        fill.tint = faint(residualColour(residual / worstShown()), kStrength).rgba();
    }
    return fill;
}

void ShootView::draw()
{
    if (size().isEmpty()) {
        return;
    }
    const double scale = devicePixelRatioF();
    m_list = drawListOf(m_scene, m_camera, scale, m_selected);
    if (!m_drawer && m_drawing != Drawing::Software) {
        m_drawer = makeGlDrawer(m_drawing == Drawing::OpenGl ? GlBy::Any : GlBy::Card);
        m_usesOpenGl = m_drawer != nullptr;
    }
    const auto drawWith = [this, scale](PictureDrawer *drawer) {
        return drawer->draw(m_list, (QSizeF(size()) * scale).toSize(), mapRect(m_camera, scale),
                            [this](const Patch &patch) { return fillOf(patch); });
    };
    m_picture = m_drawer ? drawWith(m_drawer.get()) : QImage();
    if (m_picture.isNull()) {
        // There is no graphics card that can, or it has gone away.
        m_usesOpenGl = false;
        m_drawer = std::make_unique<SoftDrawer>();
        m_picture = drawWith(m_drawer.get());
    }
    m_picture.setDevicePixelRatio(scale);
    m_isStale = false;
}

void ShootView::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (m_isStale) {
        draw();
    }
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setClipRect(mapRect(m_camera, 1.0));
    painter.fillRect(rect(), palette().base());
    const ViewMarks marks(*this, m_scene, m_camera, m_list, m_selected);
    marks.paintGrid(painter);
    painter.drawImage(QPointF(), m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_showsGaps) {
        marks.paintGaps(painter, *m_gaps);
    }
    marks.paintOutlines(painter);
    if (m_showsLinks) {
        marks.paintLinks(painter);
    }
    painter.setClipping(false);
    marks.paintNumbers(painter);
    if (m_scene.isAligned && m_scene.worstResidualPixels > 0.0) {
        marks.paintLegend(painter, tr("Off by, pixels"), worstShown());
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

bool ShootView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), textOf(frameAt(help->pos())), this);
        return true;
    }
    return QWidget::event(event);
}

void ShootView::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    if (m_isFitted) {
        fit();
    } else {
        setCamera(m_camera);
    }
}

void ShootView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        changed();
    }
    QWidget::changeEvent(event);
}

void ShootView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_pressed = event->localPos();
    m_isDragged = false;
}

void ShootView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed) {
        hover(frameAt(event->localPos()));
        return;
    }
    const QPointF way = event->localPos() - *m_pressed;
    if (!m_isDragged && way.manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    m_isDragged = true;
    setCursor(Qt::ClosedHandCursor);
    m_pressed = event->localPos();
    setCamera(m_camera.dragged(way));
}

void ShootView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_pressed) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_pressed.reset();
    unsetCursor();
    if (m_isDragged) {
        return;
    }
    const int frame = frameAt(event->localPos());
    select(frame);
    if (frame >= 0) {
        Q_EMIT photoClicked(frame, m_scene.frames.at(frame).photo);
    }
}

void ShootView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        fit();
    }
}

void ShootView::wheelEvent(QWheelEvent *event)
{
    const double notches = static_cast<double>(event->angleDelta().y()) / kWheelNotch;
    setCamera(m_camera.zoomed(std::pow(kZoomStep, notches), event->position()));
    event->accept();
}

void ShootView::keyPressEvent(QKeyEvent *event)
{
    const bool steps = event->modifiers().testFlag(Qt::ControlModifier);
    const QPointF pan(width() * kPanPart, height() * kPanPart);
    switch (event->key()) {
    case Qt::Key_Left:
        steps ? step(-1) : setCamera(m_camera.dragged({ pan.x(), 0.0 }));
        break;
    case Qt::Key_Right:
        steps ? step(1) : setCamera(m_camera.dragged({ -pan.x(), 0.0 }));
        break;
    case Qt::Key_Up:
        setCamera(m_camera.dragged({ 0.0, pan.y() }));
        break;
    case Qt::Key_Down:
        setCamera(m_camera.dragged({ 0.0, -pan.y() }));
        break;
    case Qt::Key_P:
        step(-1);
        break;
    case Qt::Key_N:
        step(1);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(kZoomStep);
        break;
    case Qt::Key_Minus:
        zoom(1.0 / kZoomStep);
        break;
    case Qt::Key_Home:
    case Qt::Key_0:
        fit();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_selected < 0) {
            step(1);
        }
        if (m_selected >= 0) {
            Q_EMIT photoClicked(m_selected, m_scene.frames.at(m_selected).photo);
        }
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ShootView::leaveEvent(QEvent *event)
{
    hover(-1);
    QWidget::leaveEvent(event);
}

} // namespace PanoHost
