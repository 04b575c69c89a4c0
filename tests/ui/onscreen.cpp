// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/ui/onscreen.h"

#include <QQuickView>
#include <QSGRendererInterface>
#include <QtTest>

void OnScreen::showAndDraw(QQuickView &view)
{
    // No window manager adds a frame or moves the window about.
    view.setFlag(Qt::FramelessWindowHint);
    view.setPosition(10, 10);
    view.show();
    view.requestActivate();
    if (!QTest::qWaitForWindowActive(&view) || !QTest::qWaitForWindowExposed(&view))
        qFatal("The window does not show");
    if (view.rendererInterface()->graphicsApi() != QSGRendererInterface::OpenGL)
        qFatal("The window is not drawn with OpenGL");
}
