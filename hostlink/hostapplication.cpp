// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/hostapplication.h"

#include "hostlink/xiapplication.h"

#include <QCoreApplication>

XIApplication *PanoHead::findHost()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (application == nullptr) {
        return nullptr;
    }
    return static_cast<XIApplication *>(application->qt_metacast("XIApplication"));
}
