// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

/** UI choices that a host shares with the plug-in libraries it loads. */
struct XUISettings {
    bool useSystemFileDialog = true; ///< the desktop's own file dialogs rather than Qt's
};

/** The handle that a host passes around. Host interface record: exactly this one pointer. */
struct XUIInstances {
    XUISettings *settings = nullptr; ///< not owned
};
