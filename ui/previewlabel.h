// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/previewcanvas.h"
#include "ui/zoomedcopy.h"

#include <QLabel>

namespace PanoHead
{

/**
 * Shows a shoot's layout picture at the page's zoom, on the label's window colour or, for grids, on
 * light grey. The picture is whole when a call returns. It keeps its fonts and colours until the
 * next call: photos are asked for their thumbnails inside calls only. Screens with finer pixels
 * show what the zoom leaves out.
 */
class PreviewLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /**
     * Shows \p scene at \p zoomPercent of its size. Redraws what has changed since the last call;
     * everything when layout, zoom, fonts or colours have changed, or when \p isDrawnAnew. Throws
     * std::bad_alloc; the picture may be half drawn then.
     */
    void showScene(const PreviewScene &scene, int zoomPercent, bool isDrawnAnew = false);
    /** Forgets picture and scene. */
    void showNothing();
    /** The photos shown may be gone before the next call; the picture stays. */
    void forgetPhotos() { m_canvas.forgetPhotos(); }
    /** Of the last call; 0 before the first one. */
    [[nodiscard]] int zoomPercent() const { return m_zoomed.percent(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    /** The middle of the picture stays in the middle of the scroll area; it starts there. */
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] PreviewColours colours(CellStyle style) const;
    void showAll(int zoomPercent);
    void showPart(const QRegion &region);
    [[nodiscard]] QRect place() const;
    [[nodiscard]] QPixmap *ownPixmap() const;

    PreviewCanvas m_canvas;
    ZoomedCopy m_zoomed;
};

} // namespace PanoHead
