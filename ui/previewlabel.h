// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/previewcanvas.h"
#include "ui/zoomedcopy.h"

#include <QBasicTimer>
#include <QLabel>
#include <QRegion>

#include <new>

namespace PanoHead
{

/**
 * Shows a shoot's layout picture at the page's zoom, on the label's window colour or, for grids, on
 * light grey. Redraws what has changed since the last call; everything when fonts or colours
 * change. A large grid, which a first photo can enlarge, is brought to show in steps of some
 * milliseconds from the event loop, first what the user sees; until then it is empty.
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
    /** All of the picture is there. */
    [[nodiscard]] bool isComplete() const { return m_missing.isEmpty(); }

protected:
    void changeEvent(QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    /** The middle of the picture stays in the middle of the scroll area; it starts there. */
    void resizeEvent(QResizeEvent *event) override;

private:
    void showNothing();
    [[nodiscard]] PreviewColours colours(CellStyle style) const;
    void showAll();
    void showPart(const QRegion &region);
    void showMissing();
    [[nodiscard]] QRect nextMissing() const;
    [[nodiscard]] QRect place() const;
    [[nodiscard]] QPixmap *ownPixmap() const;

    PreviewScene m_scene;
    int m_zoomPercent = 100;
    PreviewCanvas m_canvas;
    ZoomedCopy m_zoomed;
    QRegion m_missing; // of the unscaled picture, not yet shown
    QBasicTimer m_timer; // runs while something is missing
};

} // namespace PanoHead
