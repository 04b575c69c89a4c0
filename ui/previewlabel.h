// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/previewpainter.h"

#include <QLabel>

namespace PanoHead
{

/** Shows a shoot's layout picture at the page's zoom. */
class PreviewLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /** Draws \p scene and shows it at \p zoomPercent of its size. */
    void showScene(const PreviewScene &scene, int zoomPercent);
    /** Shows nothing. */
    void showNothing();
};

} // namespace PanoHead
