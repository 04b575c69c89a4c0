// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/shootview.h"

#include "host/view/gldrawer.h"

#include <QApplication>
#include <QFileInfo>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QToolTip>
#include <QWheelEvent>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

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
/** A step of the keys or the wheel. */
constexpr double kZoomStep = 1.25;
constexpr double kPanPart = 0.1;
constexpr int kWheelNotch = 120;
/** Below this the colours would make much of nothing. */
constexpr double kLeastWorstPixels = 2.0;

/** \p a with \p part of \p b. */
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
    const auto point = middleOf(frame);
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
    paintGrid(painter);
    painter.drawImage(QPointF(), m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_showsGaps) {
        paintGaps(painter);
    }
    paintOutlines(painter);
    if (m_showsLinks) {
        paintLinks(painter);
    }
    painter.setClipping(false);
    paintMarks(painter);
    if (m_scene.isAligned && m_scene.worstResidualPixels > 0.0) {
        paintLegend(painter);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

QVector<QPolygonF> ShootView::linesBetween(const QVector<Eigen::Vector3d> &way) const
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

QVector<QPolygonF> ShootView::outlineOf(int frame) const
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

std::optional<QPointF> ShootView::middleOf(int frame) const
{
    if (frame < 0 || !m_scene.frames.at(frame).isPlaced) {
        return {};
    }
    return m_camera.pointOf(m_scene.frames.at(frame).toWorld.col(2));
}

void ShootView::paintGrid(QPainter &painter) const
{
    if (m_camera.mode != ViewMode::Flat) {
        return;
    }
    constexpr int kStep = 30;
    painter.setPen(faint(palette().color(QPalette::Text), 0.15));
    for (int yaw = -180; yaw < 180; yaw += kStep) {
        const double x = m_camera.pointOf(directionAt(yaw, 0.0))->x();
        painter.drawLine(QPointF(x, 0.0), QPointF(x, height()));
    }
    for (int pitch = -90; pitch <= 90; pitch += kStep) {
        const double y = m_camera.pointOf(directionAt(0.0, pitch))->y();
        painter.drawLine(QPointF(0.0, y), QPointF(width(), y));
    }
}

void ShootView::paintGaps(QPainter &painter) const
{
    const double step = m_gaps->stepDegrees;
    constexpr double kLongest = 10.0;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const auto &corners = m_gaps->corners;
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
                if (cell.intersects(rect())) {
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
        if (cell.size() == 4 && cell.boundingRect().intersects(rect())) {
            path.addPolygon(cell);
            path.closeSubpath();
        }
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillPath(path, QBrush(palette().color(QPalette::Text), Qt::BDiagPattern));
    painter.restore();
}

void ShootView::paintLinks(QPainter &painter) const
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
    drawOutlined(painter, lines, QPen(palette().color(QPalette::Text), 1.0),
                 palette().color(QPalette::Base));
    painter.setRenderHint(QPainter::Antialiasing);
}

void ShootView::paintOutlines(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    const QColor ground = palette().color(QPalette::Base);
    if (m_list.patches.size() <= kMostOutlines) {
        painter.setPen(QPen(faint(ground, 0.7), 1.0));
        for (const Patch &patch : m_list.patches) {
            const ShootFrame &frame = m_scene.frames.at(patch.frame);
            if (patch.side < kLeastOutlinedSide || patch.frame == m_selected) {
                continue;
            }
            const QVector<QPolygonF> lines = outlineOf(patch.frame);
            if (!frame.isLinked) {
                QPen dashed(palette().color(QPalette::Text), 2.0);
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
                     QPen(palette().color(QPalette::Highlight), 3.0), ground);
    }
}

void ShootView::paintMarks(QPainter &painter) const
{
    if (m_list.patches.size() > kMostOutlines) {
        return;
    }
    const bool isNumbered = m_scene.frames.size() <= kMostNumbers;
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const QPixmap sign = style()
                             ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                             .pixmap(window()->windowHandle(), QSize(side, side));
    const QFontMetricsF metrics(font());
    const double scale = devicePixelRatioF();
    for (const Patch &patch : m_list.patches) {
        const ShootFrame &frame = m_scene.frames.at(patch.frame);
        const auto middle = middleOf(patch.frame);
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
            painter.setBrush(palette().base());
            painter.drawRoundedRect(box, 3.0, 3.0);
            painter.setPen(palette().color(QPalette::Text));
            painter.drawText(box, Qt::AlignCenter, number);
        }
        if (!frame.isLinked && patch.side >= static_cast<float>(side * scale)) {
            painter.drawPixmap(QPointF(right - side / 2.0, middle->y() - side / 2.0), sign);
        }
    }
}

void ShootView::paintLegend(QPainter &painter) const
{
    constexpr double kWidth = 120.0;
    constexpr double kBar = 10.0;
    constexpr double kPad = 6.0;
    const QFontMetricsF metrics(font());
    const QString title = tr("Off by, pixels");
    const QString worst = locale().toString(worstShown(), 'f', 1);
    const double wide = std::max(kWidth, metrics.horizontalAdvance(title));
    const QRectF box(kPad, height() - kBar - 2.0 * metrics.height() - 3.0 * kPad, wide + 2.0 * kPad,
                     kBar + 2.0 * metrics.height() + 2.0 * kPad);
    painter.setPen(palette().color(QPalette::Text));
    painter.setBrush(palette().base());
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
