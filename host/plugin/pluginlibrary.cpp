// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/pluginlibrary.h"

#include "host/model/panorama.h"
#include "host/model/said.h"
#include "host/plugin/panohostapplication.h"
#include "hostlink/xiabout.h"
#include "hostlink/xipluginimport.h"
#include "hostlink/xipluginlibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QWizardPage>

namespace PanoHost
{

namespace
{

QString interfaceId()
{
    return QStringLiteral("com.orvane.panohead");
}

Failure noPlugin(const QString &what, const QString &why)
{
    return { ExitCode::NoPlugin, what, why,
             Said::tr("set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so") };
}

/** The object's sub-object for the interface \p name; null when it has none. */
template <typename Interface> Interface *interfaceOf(QObject *object, const char *name)
{
    return object ? static_cast<Interface *>(object->qt_metacast(name)) : nullptr;
}

QString declaredInterface(const QString &file)
{
    return QPluginLoader(file).metaData().value(QLatin1String("IID")).toString();
}

/** The plug-in libraries at \p place: the file itself, or those of our interface in a folder. */
QStringList librariesAt(const QString &place)
{
    if (QFileInfo(place).isFile()) {
        return { place };
    }
    QStringList files;
    const QDir folder(place);
    const QStringList names = folder.entryList({ QStringLiteral("*.so") }, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString file = folder.absoluteFilePath(name);
        if (declaredInterface(file) == interfaceId()) {
            files.append(file);
        }
    }
    return files;
}

/** The letters of a library's string literal lie in the library and go with it. */
QString ownCopy(const QString &text)
{
    return QString(text.constData(), text.size());
}

} // namespace

QString ImportPlugin::head() const
{
    return object && about ? about->Name().toLower() : QString();
}

QWizardPage *ImportPlugin::page() const
{
    return object && import ? import->WizardPages().value(0) : nullptr;
}

SourceInfo ImportPlugin::source(const QString &record) const
{
    return { ownCopy(about->UID()), ownCopy(about->Name()), record, ownCopy(about->Version()) };
}

QStringList PluginLibrary::searchPath(const QString &fileOrFolder)
{
    if (!fileOrFolder.isEmpty()) {
        return { QFileInfo(fileOrFolder).absoluteFilePath() };
    }
    const QString here = QCoreApplication::applicationDirPath();
    QStringList places;
    const QString fromEnvironment = qEnvironmentVariable("PANOHOST_PLUGIN_PATH");
    const QStringList entries = fromEnvironment.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        places.append(QFileInfo(entry).absoluteFilePath());
    }
    places.append(here);
    places.append(QDir::cleanPath(here + QStringLiteral("/../lib/panohost")));
    places.append(QDir::cleanPath(here + QStringLiteral("/" PANOHOST_INSTALLED_PLUGIN_DIR)));
    // An installed program never looks into the folder it was built in: that may be anybody's now.
    if (here.startsWith(QStringLiteral(PANOHOST_BUILD_DIR "/"))) {
        places.append(QStringLiteral(PANOHOST_BUILD_DIR "/plugin"));
    }
    places.removeDuplicates();
    return places;
}

QString PluginLibrary::fileFor(const QString &fileOrFolder)
{
    for (const QString &place : searchPath(fileOrFolder)) {
        const QStringList files = librariesAt(place);
        if (!files.isEmpty()) {
            return files.first();
        }
    }
    return {};
}

Result<std::unique_ptr<PluginLibrary>> PluginLibrary::open(const QString &fileOrFolder)
{
    if (const QString file = fileFor(fileOrFolder); !file.isEmpty()) {
        return load(file);
    }
    const QStringList places = searchPath(fileOrFolder);
    if (!fileOrFolder.isEmpty() && !QFileInfo::exists(places.first())) {
        return noPlugin(places.first(), Said::tr("no such file or folder"));
    }
    return noPlugin(Said::tr("import plug-ins"),
                    Said::tr("no plug-in library in %1").arg(places.join(QStringLiteral(", "))));
}

Result<std::unique_ptr<PluginLibrary>> PluginLibrary::load(const QString &file)
{
    const QString declared = declaredInterface(file);
    if (declared.isEmpty()) {
        return noPlugin(file, Said::tr("is not a Qt plug-in library"));
    }
    if (declared != interfaceId()) {
        return noPlugin(
            file, Said::tr("its interface is '%1', '%2' is needed").arg(declared, interfaceId()));
    }
    std::unique_ptr<PluginLibrary> library(new PluginLibrary);
    library->m_loader.setFileName(file);
    // Qt's default keeps a library in memory for ever.
    library->m_loader.setLoadHints({});
    QObject *const root = library->m_loader.instance();
    if (!root) {
        return noPlugin(file, library->m_loader.errorString());
    }
    auto *const registry = interfaceOf<XIPluginLibrary>(root, "XIPluginLibrary");
    if (!registry) {
        return noPlugin(file, Said::tr("offers no list of plug-ins"));
    }
    library->m_about = interfaceOf<XIAbout>(root, "XIAbout");
    const QList<QPointer<QObject>> objects = registry->Plugins(XIPluginLibrary::AllHeads);
    for (const QPointer<QObject> &object : objects) {
        auto *const import = interfaceOf<XIPluginImport>(object, "XIPluginImport");
        auto *const about = interfaceOf<XIAbout>(object, "XIAbout");
        if (import && about) {
            library->m_plugins.append({ object, import, about });
        }
    }
    if (library->m_plugins.isEmpty()) {
        return noPlugin(file, Said::tr("holds no import plug-in"));
    }
    return library;
}

PluginLibrary::~PluginLibrary()
{
    unload();
}

QString PluginLibrary::path() const
{
    return m_loader.fileName();
}

const ImportPlugin *PluginLibrary::find(const QString &head) const
{
    for (const ImportPlugin &plugin : m_plugins) {
        if (plugin.head() == head.toLower()) {
            return &plugin;
        }
    }
    return nullptr;
}

bool PluginLibrary::unload()
{
    if (!m_loader.isLoaded()) {
        return false;
    }
    // The pages go first: they may still read photos, and point to the application's images.
    for (const ImportPlugin &plugin : qAsConst(m_plugins)) {
        delete plugin.object.data();
    }
    m_plugins.clear();
    m_about = nullptr;
    if (auto *const application = PanoHostApplication::instance()) {
        application->releaseLibraryHold();
    }
    return m_loader.unload();
}

} // namespace PanoHost
