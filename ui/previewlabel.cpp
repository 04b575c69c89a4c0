// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewlabel.h"

#include "ui/pixels.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

namespace PanoHead
{

namespace
{

/** Moves \p bar so that what was in the middle of \p before pixels is so in \p after pixels. */
void keepMiddle(QScrollBar *bar, int before, int after)
{
    const int page = bar->pageStep();
    const double middle = before > page ? (bar->value() + page / 2.0) / before : 0.5;
    bar->setValue(qRound(middle * after - page / 2.0));
}

/** Dark text can be read on most photos; the bright text of dark themes drowns in bright skies. */
QBrush captionGround(const QColor &text, QColor window)
{
    constexpr qreal kOpacity = 0.6;
    if (text.lightness() <= window.lightness()) {
        return {};
    }
    window.setAlphaF(kOpacity);
    return window;
}

} // namespace

void PreviewLabel::showScene(const PreviewScene &scene, int zoomPercent, bool isDrawnAnew)
{
    const bool isOtherZoom = zoomPercent != m_zoomed.percent();
    if (isDrawnAnew || isOtherZoom) {
        m_canvas.invalidate();
    }
    const PreviewColours wanted = colours(scene.style);
    const PreviewCanvas::Change change = m_canvas.changeTo(scene, wanted);
    // At full zoom the label's picture shares its pixels with the canvas; drawing on that while it
    // does would make a copy. And old pictures go before new ones come.
    const bool showsAll = change.everything || (zoomPercent == 100 && !change.isNone());
    if (showsAll) {
        setPixmap(QPixmap());
    }
    m_canvas.update(scene, wanted, change);
    if (showsAll || m_canvas.image().isNull()) {
        showAll(zoomPercent);
    } else if (!change.isNone()) {
        showPart(change.region);
    }
}

void PreviewLabel::showNothing()
{
    clear();
    m_canvas.clear();
    m_zoomed.forget();
}

void PreviewLabel::showAll(int zoomPercent)
{
    const QImage copy = m_zoomed.make(m_canvas.image(), zoomPercent);
    setPixmap(copy.isNull() ? QPixmap()
                            : withPixels(QPixmap::fromImage(copy, Qt::NoOpaqueDetection)));
}

/** Without a new layout of the page, and without a repaint when nobody can see \p region. */
void PreviewLabel::showPart(const QRegion &region)
{
    QPixmap *shown = ownPixmap();
    if (shown == nullptr || shown->isNull()) {
        return;
    }
    const QRegion patched = m_zoomed.patch(shown, m_canvas.image(), region);
    if (devicePixelRatioF() > 1.0) {
        update(); // pixels that the zoom leaves out may have changed too
    } else {
        update(patched.translated(place().topLeft()));
    }
}

/** Where the picture stands on the label. */
QRect PreviewLabel::place() const
{
    return QStyle::alignedRect(layoutDirection(), alignment(), ownPixmap()->size(), contentsRect());
}

/** The label keeps the only reference to it, so that drawing on it copies nothing. */
QPixmap *PreviewLabel::ownPixmap() const
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return const_cast<QPixmap *>(pixmap());
    QT_WARNING_POP
}

/** The pixmap has one pixel for several of a fine screen; the canvas has more. */
void PreviewLabel::paintEvent(QPaintEvent *event)
{
    const QPixmap *shown = ownPixmap();
    QPainter painter(this);
    if (painter.deviceTransform().m11() <= 1.0 || shown == nullptr || shown->isNull()
        || m_canvas.image().isNull()) {
        painter.end();
        QLabel::paintEvent(event);
        return;
    }
    const QRect whole = place();
    // Beyond what is asked for, so that smoothing has no edge there; not all, which may be too
    // large to be painted.
    constexpr int kMargin = 4;
    const QRectF part = whole & event->rect().adjusted(-kMargin, -kMargin, kMargin, kMargin);
    const QSizeF canvas = m_canvas.image().size();
    const QTransform toCanvas = QTransform::fromTranslate(-whole.x(), -whole.y())
        * QTransform::fromScale(canvas.width() / whole.width(), canvas.height() / whole.height());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(part, m_canvas.image(), toCanvas.mapRect(part));
}

void PreviewLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::ApplicationFontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        m_canvas.invalidate();
        break;
    default:
        break;
    }
}

void PreviewLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    QWidget *viewport = parentWidget();
    auto *area
        = viewport == nullptr ? nullptr : qobject_cast<QScrollArea *>(viewport->parentWidget());
    if (area != nullptr) {
        keepMiddle(area->horizontalScrollBar(), event->oldSize().width(), event->size().width());
        keepMiddle(area->verticalScrollBar(), event->oldSize().height(), event->size().height());
    }
}

PreviewColours PreviewLabel::colours(CellStyle style) const
{
    if (style == CellStyle::UnscaledPhoto) {
        return { QBrush(Qt::lightGray), { QPen(Qt::black), QBrush() } };
    }
    const QBrush window = palette().brush(QPalette::Current, QPalette::Window);
    const QColor text = palette().color(QPalette::Current, QPalette::WindowText);
    return { window, { QPen(text), captionGround(text, window.color()) } };
}

} // namespace PanoHead
