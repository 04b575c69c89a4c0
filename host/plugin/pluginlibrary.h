// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QPluginLoader>
#include <QPointer>
#include <QStringList>
#include <QVector>

#include <memory>

class QWizardPage;
class XIAbout;
class XIPluginImport;

namespace PanoHost
{

struct SourceInfo;

/**
 * One import plug-in of a loaded library. Its objects belong to the library: never cast them to
 * the library's own classes; ask `inherits()` and find widgets by object name.
 */
struct ImportPlugin {
    QPointer<QObject> object;
    XIPluginImport *import = nullptr;
    XIAbout *about = nullptr;

    /** The head's name on the command line: the plug-in's name in lower case. */
    [[nodiscard]] QString head() const;
    /** The plug-in's page; null when somebody has deleted it. */
    [[nodiscard]] QWizardPage *page() const;
    /** Where a description of the page comes from; the texts outlive the library. */
    [[nodiscard]] SourceInfo source(const QString &record) const;
};

/** A loaded plug-in library; unloaded for real by `unload` or when this object goes away. */
class PluginLibrary
{
public:
    /**
     * Finds, checks and loads a library and creates its plug-ins.
     *
     * \p fileOrFolder is what the user asked for and then the only place looked at; empty: the
     * entries of PANOHOST_PLUGIN_PATH, the program's folder, the installed place, the build tree.
     * Errors have `ExitCode::NoPlugin` and list the places that were searched.
     */
    [[nodiscard]] static Result<std::unique_ptr<PluginLibrary>> open(const QString &fileOrFolder);

    /** The file that `open` would load; empty: there is none. */
    [[nodiscard]] static QString fileFor(const QString &fileOrFolder);
    /** The files and folders that `open` looks at, in order. */
    [[nodiscard]] static QStringList searchPath(const QString &fileOrFolder);

    ~PluginLibrary();
    PluginLibrary(const PluginLibrary &) = delete;
    PluginLibrary &operator=(const PluginLibrary &) = delete;

    [[nodiscard]] QString path() const;
    [[nodiscard]] const XIAbout *about() const { return m_about; }
    [[nodiscard]] const QVector<ImportPlugin> &plugins() const { return m_plugins; }
    /** The plug-in for \p head ("papywizard", any case); null when there is none. */
    [[nodiscard]] const ImportPlugin *find(const QString &head) const;

    /**
     * Deletes the plug-ins with their pages (take the pages out of any wizard first, or delete
     * the wizard), lets go of the application's images and translators, and unloads the library.
     * False when Qt kept it loaded.
     */
    bool unload();

private:
    PluginLibrary() = default;
    [[nodiscard]] static Result<std::unique_ptr<PluginLibrary>> load(const QString &file);

    QPluginLoader m_loader;
    XIAbout *m_about = nullptr;
    QVector<ImportPlugin> m_plugins;
};

} // namespace PanoHost
