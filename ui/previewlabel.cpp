// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewlabel.h"

namespace PanoHead
{

namespace
{

int zoomed(int side, int percent)
{
    return static_cast<int>(qint64{ side } * percent / 100);
}

} // namespace

void PreviewLabel::showScene(const PreviewScene &scene, int zoomPercent)
{
    // The old picture goes first: both together could be half a gigabyte.
    setPixmap(QPixmap());
    const QPixmap canvas = paintPreview(scene);
    const QSize size(zoomed(canvas.width(), zoomPercent), zoomed(canvas.height(), zoomPercent));
    if (size.isEmpty()) {
        return;
    }
    setPixmap(canvas.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

void PreviewLabel::showNothing()
{
    setPixmap(QPixmap());
}

} // namespace PanoHead
