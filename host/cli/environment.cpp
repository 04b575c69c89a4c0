// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/environment.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QtGlobal>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <langinfo.h>

namespace PanoHost
{

namespace
{

/**
 * File names are bytes; Qt turns them into text by the locale. Under the plain "C" locale names
 * with accents would be mangled, here and in every tool that is called.
 */
void requireUnicodeFileNames()
{
    std::setlocale(LC_ALL, "");
    if (QByteArray(nl_langinfo(CODESET)) == QByteArrayLiteral("UTF-8")) {
        return;
    }
    qunsetenv("LC_ALL");
    qputenv("LC_CTYPE", "C.UTF-8");
    std::setlocale(LC_ALL, "");
}

/** Qt's remarks about its own platform are no news for whoever runs a command. */
bool isPlatformNote(const QByteArray &text)
{
    return text.contains("propagateSizeHints") || text.contains("XDG_RUNTIME_DIR")
        || text.contains("runtime directory") || text.contains("This plugin does not support");
}

void messageHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const QByteArray text = message.toLocal8Bit();
    if (isPlatformNote(text)) {
        return;
    }
    // Qt ends the program then.
    const bool hasLostDisplay
        = text.contains("X11 connection broke") || text.contains("Wayland connection broke");
    std::fprintf(stderr, "panohost: %s\n",
                 hasLostDisplay ? "error: the display has gone away; what was saved is there, your "
                                  "photos are as they were: start panohost again"
                                : text.constData());
    if (type == QtFatalMsg) {
        std::abort();
    }
}

} // namespace

QStringList Environment::decodeArguments(int argc, char **argv)
{
    requireUnicodeFileNames();
    QStringList words;
    words.reserve(argc);
    for (int i = 1; i < argc; ++i) {
        words += QString::fromLocal8Bit(argv[i]);
    }
    return words;
}

Environment::Environment(Use use)
{
    qInstallMessageHandler(messageHandler);
    if (use == Use::Window) {
        return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    // File dialogs keep their state in QtProject.conf: a command must not change the user's.
    m_configFolder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                                     + QStringLiteral("/panohost-config-XXXXXX"));
    if (m_configFolder->isValid()) {
        const QByteArray folder = QFile::encodeName(m_configFolder->path());
        qputenv("XDG_CONFIG_HOME", folder);
        // Qt would make a folder of its own in the temporary files and leave it there.
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
            qputenv("XDG_RUNTIME_DIR", folder);
        }
    }
}

void Environment::prepareWindow()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

bool Environment::hasDisplay(const QStringList &qtOptions)
{
    const bool isSaid = std::any_of(qtOptions.begin(), qtOptions.end(), [](const QString &option) {
        const QString name = option.section(QLatin1Char('='), 0, 0);
        return name == QLatin1String("-platform") || name == QLatin1String("-display");
    });
    return isSaid || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

} // namespace PanoHost
