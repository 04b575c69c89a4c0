// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/previewcanvas.h"

#include <QImage>
#include <QString>

/**
 * The picture of \p scene as its description says it, drawn in one go by plain calls of the
 * painter: background, then cell by cell the photo into the cell (or unscaled from its corner), the
 * outline and the caption. Takes nothing from the code under test but the places of the cells.
 */
[[nodiscard]] QImage plainPicture(const PanoHead::PreviewScene &scene,
                                  const PanoHead::PreviewColours &colours);

/** The colours in which \p label shows pictures of \p style: those of its theme, or of grids. */
[[nodiscard]] PanoHead::PreviewColours plainColours(PanoHead::CellStyle style,
                                                    const QWidget &label);

/** \p picture at \p percent: sides cut to whole pixels, aspect ratio ignored, fast scaling. */
[[nodiscard]] QImage plainZoom(const QImage &picture, int percent);

/** Draws the cells of \p scene one after the other, outlined with the painter's pen. */
void drawPlainCells(QPainter &painter, const PanoHead::PreviewScene &scene,
                    const PanoHead::CaptionColours &caption);

/** Empty when both pictures are the same; otherwise how many pixels differ and where the first. */
[[nodiscard]] QString pixelDifference(const QImage &picture, const QImage &expected);
