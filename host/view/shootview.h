// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/view/drawlist.h"
#include "host/view/thumbnailcache.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace PanoHost
{

/**
 * The photos of a shoot where they stand on the sphere, as a map or seen from inside. Dragging
 * moves it, the wheel zooms, a click takes a photo to the front.
 */
class ShootView : public QWidget
{
    Q_OBJECT
public:
    enum class Drawing {
        Best, ///< by the graphics card where there is one that can
        OpenGl, ///< the processor's too
        Software,
    };

    explicit ShootView(QWidget *parent = nullptr, Drawing drawing = Drawing::Best);
    ~ShootView() override;

    /** Where photos come from; at first they are read from their files. */
    void setPhotoSource(const PhotoSource &source) { m_loader.setSource(source); }

    /** Shows \p scene, all of it. */
    void showScene(ShootScene scene);
    [[nodiscard]] const ShootScene &scene() const { return m_scene; }

    [[nodiscard]] ViewMode mode() const { return m_camera.mode; }
    void setMode(ViewMode mode);
    void setLinksShown(bool shown);
    /** Hatched: where no photo looks. */
    void setGapsShown(bool shown);
    /** How many cells of the gaps' grid no photo covers; known once they are shown. */
    [[nodiscard]] int gapCount() const { return m_gaps ? m_gaps->corners.size() : 0; }

    [[nodiscard]] const ViewCamera &camera() const { return m_camera; }
    void setCamera(const ViewCamera &camera);
    void fit();
    void zoom(double factor);

    /** The photo that was clicked or stepped to; -1: none. */
    [[nodiscard]] int selected() const { return m_selected; }
    /** Takes the frame to the front, and to where it is seen. */
    void select(int frame);
    /** The frame that is seen at \p point; -1: none. */
    [[nodiscard]] int frameAt(const QPointF &point) const;
    /** What is said of a frame: file, shot and what it is to look out for. */
    [[nodiscard]] QString textOf(int frame) const;

    /** Whether the graphics card draws; known after the first picture. */
    [[nodiscard]] bool usesOpenGl() const { return m_usesOpenGl; }
    /** Whether all thumbnails that are of use have arrived, or cannot be read. */
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }

    [[nodiscard]] QSize sizeHint() const override { return { 640, 320 }; }
    [[nodiscard]] QSize minimumSizeHint() const override { return { 240, 120 }; }

Q_SIGNALS:
    /** A click, or Enter on the selected photo: the position and its reference photo among all
     * photos, both from 0. */
    void photoClicked(int position, int photo);
    /** The photo below the cursor or the selected one is another; empty: there is none. */
    void named(const QString &text);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void changed();
    void hover(int frame);
    void step(int by);
    void takeThumbnails();
    void wantThumbnails();
    void draw();
    [[nodiscard]] FrameFill fillOf(const Patch &patch) const;
    [[nodiscard]] double worstShown() const;

    ShootScene m_scene;
    ViewCamera m_camera;
    bool m_isFitted = true;
    bool m_showsLinks = false;
    bool m_showsGaps = false;
    std::optional<Gaps> m_gaps; ///< nothing: not yet looked for
    int m_selected = -1;
    int m_hovered = -1;
    std::optional<QPointF> m_pressed; ///< while a button is down: where it was last
    bool m_isDragged = false;

    const Drawing m_drawing;
    std::unique_ptr<PictureDrawer> m_drawer; ///< null before the first picture
    bool m_usesOpenGl = false;
    DrawList m_list; ///< of the picture
    QImage m_picture;
    bool m_isStale = true;
    ThumbnailCache m_thumbnails;
    bool m_isLoaded = true;
    QTimer m_wantSoon;
    QTimer m_takeSoon;
    ThumbnailLoader m_loader;
};

} // namespace PanoHost
