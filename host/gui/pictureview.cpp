// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/pictureview.h"

#include <QGraphicsPixmapItem>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr double kMostMagnification = 8.0;
constexpr double kKeyFactor = 1.25;

} // namespace

PictureView::PictureView(QWidget *parent)
    : QGraphicsView(parent)
    , m_item(new QGraphicsPixmapItem)
{
    setScene(new QGraphicsScene(this));
    scene()->addItem(m_item);
    m_item->setTransformationMode(Qt::SmoothTransformation);
    setDragMode(QGraphicsView::ScrollHandDrag);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setAccessibleName(tr("Finished panorama"));
    setToolTip(tr("Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it."));
}

void PictureView::setPicture(const QImage &picture)
{
    m_item->setPixmap(QPixmap::fromImage(picture));
    scene()->setSceneRect(m_item->boundingRect());
    fit();
}

void PictureView::fit()
{
    m_fits = true;
    fitInView(m_item, Qt::KeepAspectRatio);
}

/** Never smaller than all of it. */
void PictureView::magnify(double factor)
{
    const double wanted = magnification() * factor;
    const QRectF whole = m_item->boundingRect();
    const double least = std::min(viewport()->width() / std::max(1.0, whole.width()),
                                  viewport()->height() / std::max(1.0, whole.height()));
    if (wanted <= least) {
        fit();
        return;
    }
    m_fits = false;
    const double bounded = std::min(wanted, std::max(kMostMagnification, magnification()));
    scale(bounded / magnification(), bounded / magnification());
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    constexpr double kNotch = 120.0;
    magnify(std::pow(kKeyFactor, event->angleDelta().y() / kNotch));
    event->accept();
}

void PictureView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        magnify(kKeyFactor);
        break;
    case Qt::Key_Minus:
        magnify(1.0 / kKeyFactor);
        break;
    case Qt::Key_0:
        fit();
        break;
    default:
        QGraphicsView::keyPressEvent(event);
    }
}

void PictureView::mouseDoubleClickEvent(QMouseEvent *event)
{
    fit();
    event->accept();
}

void PictureView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (m_fits) {
        fit();
    }
}

} // namespace PanoHost
