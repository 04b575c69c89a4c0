// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>

/** Pixmaps for high-resolution screens. */
class XuiPixmapHelper
{
public:
    XuiPixmapHelper() = default;

    /**
     * The picture at \p path in its first available size, made translucent when \p alpha is not
     * 255 and scaled when \p size is at least 1 x 1 (device-independent pixels). Null when there
     * is no such picture.
     */
    [[nodiscard]] static QPixmap CreateHighDpiPixmap(QString path, int alpha, QSize size);

    /**
     * Multiplies the opacity by \p alpha / 255. The device pixel ratio is cut to a whole number:
     * 1.5 becomes 1.0.
     */
    static void SetAlpha(QPixmap &pixmap, int alpha);

    /** \p pixmap scaled to \p size in device-independent pixels, aspect ratio ignored. */
    [[nodiscard]] static QPixmap Scaled(QPixmap &pixmap, QSize size);

    /** The rectangle that \p pixmap covers at (0, 0), in device-independent pixels. */
    [[nodiscard]] static QRect GetDisplayRect(QPixmap &pixmap);
};
