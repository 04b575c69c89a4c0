// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/view/thumbnailloader.h"

#include <QWidget>

#include <functional>

class QLabel;
class QToolButton;

namespace PanoHost
{

class LatestJob;
struct Panorama;
class PtoFile;
struct ShootScene;
class ShootView;

/** The picture of a shoot with its tools, and a line that names the photo below the cursor. */
class ShootPanel : public QWidget
{
    Q_OBJECT
public:
    explicit ShootPanel(QWidget *parent = nullptr);

    /** Where photos come from; at first they are read from their files. */
    void setPhotoSource(const PhotoSource &source);

    /** As recorded. Large shoots follow later, so that the window answers. */
    void show(const Panorama &panorama);
    /** With the lens and the angles that an alignment has found, and how well they fit. */
    void showAligned(const PtoFile &project);
    void clear();

    [[nodiscard]] ShootView *view() const { return m_view; }

    using QWidget::show;

Q_SIGNALS:
    /** The position and its reference photo among all photos, both from 0. */
    void photoClicked(int position, int photo);

private:
    QToolButton *addTool(const QString &name, const QString &text, const QString &tip);
    void present(int positions, const std::function<ShootScene()> &make);
    void showScene(ShootScene scene);
    void tell(const QString &named);

    LatestJob *m_maker; ///< of scenes
    ShootView *m_view;
    QLabel *m_named;
    QToolButton *m_links = nullptr;
    QToolButton *m_gaps = nullptr;
};

} // namespace PanoHost
