// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/common/previewlayout.h"

#include <QBrush>
#include <QList>
#include <QPixmap>

class XIImageDef;

namespace PanoHead
{

/** How photos and captions are drawn into the cells. */
enum class CellStyle {
    FittedWithCaption, ///< scaled to the cell, aspect ratio ignored; number and angles on top
    UnscaledPhoto, ///< at its own size from the cell's corner; no caption
};

/** A layout picture to draw. */
struct PreviewScene {
    PreviewLayout layout;
    QList<XIImageDef *> images; ///< photos by preview index; a cell without its photo is an outline
    QBrush background;
    CellStyle style = CellStyle::FittedWithCaption;
};

/** Draws \p scene at 100 percent; null when there is nothing to draw or no memory for it. */
[[nodiscard]] QPixmap paintPreview(const PreviewScene &scene);

} // namespace PanoHead
