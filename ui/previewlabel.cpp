// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewlabel.h"

#include <QEvent>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>

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

void PreviewLabel::showScene(const PreviewScene &scene, int zoomPercent)
{
    const PreviewColours wanted = colours(scene.style);
    const PreviewCanvas::Change change = m_canvas.changeTo(scene, wanted);
    const bool isOtherZoom = zoomPercent != m_zoomed.percent();
    m_scene = scene;
    m_zoomPercent = zoomPercent;
    if (change.isNone() && !isOtherZoom) {
        return;
    }
    // The label's picture shares its pixels with the copies here; drawing on them while it does
    // would make further copies.
    setPixmap(QPixmap());
    if (change.everything || m_zoomed.percent() == 100) {
        m_zoomed = ZoomedCopy();
    }
    m_canvas.update(scene, wanted, change);
    if (m_zoomed.percent() != zoomPercent) {
        m_zoomed.make(m_canvas.image(), zoomPercent);
    } else {
        m_zoomed.patch(m_canvas.image(), change.region);
    }
    setPixmap(QPixmap::fromImage(m_zoomed.image(), Qt::NoOpaqueDetection));
}

void PreviewLabel::forgetPhotos()
{
    m_scene.images.clear();
    m_canvas.invalidate();
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
        if (!m_scene.layout.isEmpty()) {
            showScene(PreviewScene(m_scene), m_zoomPercent);
        }
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
