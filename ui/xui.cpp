// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/xui.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QResource>

#include <memory>

XUIInstances XUI::ms_instances;
bool XUI::s_initialised = false;
bool XUI::s_rccLoaded = false;

namespace
{

// Freed as the library is unloaded, when no exit() has done so.
std::unique_ptr<XUISettings> g_ownSettings;

QString scriptLibraryPath()
{
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(QStringLiteral("closure-library.rcc"));
}

} // namespace

// The macro declares the initialiser and must stand in the global namespace.
static void registerResources()
{
    Q_INIT_RESOURCE(XUI);
}

void XUI::init(XUIInstances *instances)
{
    if (s_initialised) {
        return;
    }
    if (instances != nullptr) {
        ms_instances = *instances;
        return;
    }
    registerResources();
    g_ownSettings = std::make_unique<XUISettings>();
    ms_instances.settings = g_ownSettings.get();
    // Copies: Qt keeps them after the library, and with it its literals, has been unloaded.
    QDir::setSearchPaths(QString::fromLatin1("UI"), { QString::fromLatin1(":/UI") });
    s_initialised = true;
}

void XUI::exit()
{
    if (!s_initialised) {
        return;
    }
    g_ownSettings.reset();
    ms_instances.settings = nullptr;
    s_initialised = false;
    if (s_rccLoaded) {
        // The flag stays set: the script library is loaded once per process.
        QResource::unregisterResource(scriptLibraryPath());
    }
}

void XUI::loadJSLibraries()
{
    if (s_rccLoaded) {
        return;
    }
    if (!QResource::registerResource(scriptLibraryPath())) {
        qCritical("Cannot load closure-library.rcc file needed by XUI");
        return;
    }
    s_rccLoaded = true;
}

QFileDialog::Options XUI::UseSystemFileDialog()
{
    const bool system
        = ms_instances.settings == nullptr || ms_instances.settings->useSystemFileDialog;
    return system ? QFileDialog::Options() : QFileDialog::DontUseNativeDialog;
}

void XUI::SetUseSystemFileDialog(bool use)
{
    if (ms_instances.settings != nullptr) {
        ms_instances.settings->useSystemFileDialog = use;
    }
}

void XUI::SelectInFileBrowser(QObject *parent, const QList<QUrl> &urls)
{
    Q_UNUSED(parent)
    for (const QUrl &url : urls) {
        if (url.scheme() == QLatin1String("file") && QFile::exists(url.toLocalFile())) {
            // No reveal action is defined for this platform.
            continue;
        }
    }
}
