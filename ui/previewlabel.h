// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/previewcanvas.h"
#include "ui/zoomedcopy.h"

#include <QLabel>

#include <new>

namespace PanoHead
{

/**
 * Shows a shoot's layout picture at the page's zoom, on the label's window colour or, for grids, on
 * light grey. Redraws what has changed since the last call; everything when fonts or colours
 * change.
 */
class PreviewLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /** Shows \p scene at \p zoomPercent of its size. Its photos must outlive the next call. Throws
     * std::bad_alloc; the picture may be half drawn then. */
    void showScene(const PreviewScene &scene, int zoomPercent);
    /** Draws \p scene already, as far as nobody sees it: the next call shows it sooner. */
    void prepareScene(const PreviewScene &scene);
    /** Calls \p draw, which works out and shows a scene; without memory for it nothing is shown. */
    template <typename Draw> void withinMemory(const Draw &draw)
    {
        try {
            draw();
        } catch (const std::bad_alloc &) {
            showNothing();
        }
    }
    /** The photos shown may be gone before the next call. */
    void forgetPhotos();

protected:
    void changeEvent(QEvent *event) override;
    /** The middle of the picture stays in the middle of the scroll area; it starts there. */
    void resizeEvent(QResizeEvent *event) override;

private:
    void showNothing();
    [[nodiscard]] PreviewColours colours(CellStyle style) const;
    void showAll();
    void showPart(const QRegion &region);
    [[nodiscard]] QPixmap *ownPixmap() const;

    PreviewScene m_scene;
    int m_zoomPercent = 100;
    PreviewCanvas m_canvas;
    ZoomedCopy m_zoomed;
};

} // namespace PanoHead
