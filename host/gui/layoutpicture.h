// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

#include <QPolygonF>
#include <QVector>
#include <QWidget>

namespace PanoHost
{

/** What the layout picture shows, in degrees: yaw to the right, pitch up. */
struct LayoutScene {
    QVector<QPointF> places; ///< one per position, yaw in [-180, 180)
    QVector<QPair<int, int>> links; ///< pairs of places, both in range
    QVector<bool> linked; ///< whether a place has a link at all
};

[[nodiscard]] LayoutScene layoutScene(const Panorama &panorama);

/** A small flat map of the sphere: a numbered mark per position, lines for the links. */
class LayoutPicture : public QWidget
{
    Q_OBJECT
public:
    explicit LayoutPicture(QWidget *parent = nullptr);

    void show(const LayoutScene &scene);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /** Where the map lies: twice as wide as high, with room for the numbers at its edges. */
    [[nodiscard]] QRectF map() const;
    [[nodiscard]] QPointF onScreen(const QPointF &place) const;
    void paintGrid(QPainter &painter) const;
    void paintLinks(QPainter &painter) const;
    void paintPlaces(QPainter &painter) const;

    LayoutScene m_scene;
};

} // namespace PanoHost
