// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/view/shootscene.h"
#include "host/view/viewcamera.h"

#include <QColor>
#include <QPolygonF>
#include <QVector>

#include <optional>

class QPainter;
class QWidget;

namespace PanoHost
{

struct DrawList;

/** \p a with \p part of \p b. */
[[nodiscard]] QColor mixed(const QColor &a, const QColor &b, double part);
[[nodiscard]] QColor faint(QColor colour, double opacity);
/** The colour of a residual, \p part of the worst one: dark blue to yellow, lighter all the way. */
[[nodiscard]] QColor residualColour(double part);

/** Where the middle of a frame of \p scene is seen; \p frame may be -1. */
[[nodiscard]] std::optional<QPointF> middleOf(const ShootScene &scene, const ViewCamera &camera,
                                              int frame);

/** What is painted below and above the photos of one picture, in the colours of its widget. */
class ViewMarks
{
public:
    /** All outlive this; \p selected is a frame, -1: none. */
    ViewMarks(const QWidget &view, const ShootScene &scene, const ViewCamera &camera,
              const DrawList &list, int selected);

    /** Of angles, on maps. */
    void paintGrid(QPainter &painter) const;
    /** Hatched. */
    void paintGaps(QPainter &painter, const Gaps &gaps) const;
    void paintLinks(QPainter &painter) const;
    /** Of lone photos dashed, of the selected one in the colour of selections. */
    void paintOutlines(QPainter &painter) const;
    /** And signs of lone photos. */
    void paintNumbers(QPainter &painter) const;
    /** Of the colours of residuals, up to \p worstPixels. */
    void paintLegend(QPainter &painter, const QString &title, double worstPixels) const;

private:
    [[nodiscard]] QVector<QPolygonF> outlineOf(int frame) const;
    [[nodiscard]] QVector<QPolygonF> linesBetween(const QVector<Eigen::Vector3d> &way) const;

    const QWidget &m_view;
    const ShootScene &m_scene;
    const ViewCamera &m_camera;
    const DrawList &m_list;
    const int m_selected;
};

} // namespace PanoHost
