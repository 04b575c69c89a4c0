// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewlabel.h"

#include "ui/pixels.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <limits>

namespace PanoHead
{

namespace
{

constexpr qint64 kMostAtOnce = 8'000'000; // pixels of the unscaled picture; some 20 milliseconds

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
        m_canvas.update(scene, wanted, change);
        return;
    }
    // At full zoom the label's picture shares its pixels with the canvas; drawing on that while it
    // does would make a copy. And old pictures go before new ones come.
    const bool showsAll = change.everything || isOtherZoom || zoomPercent == 100;
    if (showsAll) {
        setPixmap(QPixmap());
    }
    m_canvas.update(scene, wanted, change);
    if (showsAll || m_canvas.isNull()) {
        showAll();
    } else {
        showPart(change.region);
    }
}

void PreviewLabel::prepareScene(const PreviewScene &scene)
{
    const PreviewColours wanted = colours(scene.style);
    const PreviewCanvas::Change change = m_canvas.changeTo(scene, wanted);
    if (!change.isNone()) {
        m_canvas.update(scene, wanted, change);
        m_zoomed.forget();
    }
}

void PreviewLabel::showNothing()
{
    clear();
    m_timer.stop();
    m_missing = QRegion();
    m_scene = PreviewScene();
    m_canvas.clear();
    m_zoomed.forget();
}

void PreviewLabel::forgetPhotos()
{
    m_scene.images.clear();
    m_canvas.forgetPhotos();
}

void PreviewLabel::showAll()
{
    m_timer.stop();
    m_missing = QRegion();
    const bool isLarge = qint64{ m_canvas.size().width() } * m_canvas.size().height() > kMostAtOnce;
    if (isLarge && m_scene.style == CellStyle::UnscaledPhoto && m_zoomPercent < 100) {
        setPixmap(withPixels(QPixmap(m_zoomed.begin(m_canvas.size(), m_zoomPercent))));
        m_missing = QRect(QPoint(), m_canvas.size());
        m_timer.start(0, this);
        return;
    }
    const QImage copy = m_zoomed.make(m_canvas.image(), m_zoomPercent);
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
    const QImage &picture = m_canvas.imageIn(region.boundingRect());
    const QRegion patched = m_zoomed.patch(shown, picture, region);
    update(patched.translated(place().topLeft()));
}

void PreviewLabel::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QLabel::timerEvent(event);
        return;
    }
    withinMemory([this] { showMissing(); });
}

/** Shows what is missing, for some milliseconds. */
void PreviewLabel::showMissing()
{
    constexpr int kMilliseconds = 1;
    QElapsedTimer time;
    time.start();
    while (!m_missing.isEmpty() && !time.hasExpired(kMilliseconds)) {
        const QRect part = nextMissing();
        m_missing -= part;
        showPart(part);
    }
    if (m_missing.isEmpty()) {
        m_timer.stop();
    }
}

/** Some of the missing rows, those nearest to the middle of what is seen. */
QRect PreviewLabel::nextMissing() const
{
    constexpr int kRows = 32;
    const QRect seen = visibleRegion().boundingRect();
    const int middle = seen.isEmpty() ? m_canvas.size().height() / 2
                                      : (seen.center().y() - place().top()) * 100 / m_zoomPercent;
    QRect nearest;
    int least = std::numeric_limits<int>::max();
    for (const QRect &rect : m_missing) {
        const int distance = std::max({ rect.top() - middle, middle - rect.bottom(), 0 });
        if (distance < least) {
            least = distance;
            const int top = std::max(rect.top(), std::min(middle, rect.bottom() - kRows + 1));
            nearest = QRect(rect.left(), top, rect.width(), kRows) & rect;
        }
    }
    return nearest;
}

/** An incomplete picture has no pixels yet where something is missing. */
void PreviewLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    for (const QRect &rect : m_missing) {
        const int top = rect.top() * m_zoomPercent / 100;
        const int bottom = (rect.bottom() + 1) * m_zoomPercent / 100;
        painter.fillRect(QRect(place().left(), place().top() + top, place().width(), bottom - top),
                         colours(m_scene.style).background);
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
            withinMemory([this] { showScene(PreviewScene(m_scene), m_zoomPercent); });
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
