// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace PanoHost
{

/**
 * What has to be settled in the process before Qt starts. One object in main(), made before the
 * application object and destroyed after it.
 */
class Environment
{
public:
    /** Sees to it that file names are Unicode, and decodes the arguments after the program's name.
     */
    [[nodiscard]] static QStringList decodeArguments(int argc, char **argv);

    enum class Use {
        Window, ///< the desktop's platform, style and settings
        Command, ///< no display, no desktop integration, nothing written into the user's Qt
                 ///< settings
    };
    explicit Environment(Use use);

    /** What a window needs settled besides, before the application object exists. */
    static void prepareWindow();
    /** False when a window cannot be shown; \p qtOptions may say where. */
    [[nodiscard]] static bool hasDisplay(const QStringList &qtOptions);

private:
    std::unique_ptr<QTemporaryDir> m_configFolder;
};

} // namespace PanoHost
