// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

class QQuickView;

/** Windows on a real (or virtual) screen; the offscreen platform draws no Qt Quick scene. */
namespace OnScreen
{

/**
 * Shows \p view, makes it the active window and waits until its scene can be photographed. Ends the
 * program when the scene is not drawn with OpenGL.
 */
void showAndDraw(QQuickView &view);

} // namespace OnScreen
