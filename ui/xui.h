// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xuiinstances.h"

#include <QFileDialog>
#include <QList>
#include <QUrl>

class QObject;

/**
 * UI services shared by a host and its plug-in libraries. The host owns the settings and hands
 * them over at load time; without them the library makes its own.
 */
class XUI
{
public:
    /** Takes over the host's \p instances, or makes own settings when they are null. */
    static void init(XUIInstances *instances);
    /** Drops own settings; the host's are never touched. */
    static void exit();
    /** Registers "closure-library.rcc" from the application's folder, once per process. */
    static void loadJSLibraries();

    /** No options (the desktop's dialogs) or `DontUseNativeDialog`, as the settings say. */
    [[nodiscard]] static QFileDialog::Options UseSystemFileDialog();
    /** Writes the shared settings, so the host's choice changes too. */
    static void SetUseSystemFileDialog(bool use);

    /** Checks that the files exist; no file browser is started on this platform. */
    static void SelectInFileBrowser(QObject *parent, const QList<QUrl> &urls);

    static XUIInstances ms_instances;

private:
    static bool s_initialised; ///< own settings exist
    static bool s_rccLoaded; ///< stays set once the script library has been registered
};
