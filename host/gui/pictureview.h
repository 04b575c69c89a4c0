// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QGraphicsView>

class QGraphicsPixmapItem;

namespace PanoHost
{

/** A picture to look at: the wheel and the keys + and - magnify, dragging and arrows move, 0 and a
 * double click show all of it. */
class PictureView : public QGraphicsView
{
    Q_OBJECT
public:
    explicit PictureView(QWidget *parent = nullptr);

    void setPicture(const QImage &picture);
    /** Screen pixels for each of the picture. */
    [[nodiscard]] double magnification() const { return transform().m11(); }

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();
    void magnify(double factor);

    QGraphicsPixmapItem *m_item;
    bool m_fits = true; ///< all is shown, whatever the size of the window
};

} // namespace PanoHost
