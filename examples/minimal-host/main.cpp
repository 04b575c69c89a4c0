// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// The smallest host: loads the library, shows every page in a wizard and prints what each delivers.
//
//   minimal-host PATH/libXPanoHead.so

#include "hostlink/xiabout.h"
#include "hostlink/xiapplication.h"
#include "hostlink/xiimagedef.h"
#include "hostlink/xipluginimport.h"
#include "hostlink/xipluginlibrary.h"
#include "hostlink/xuiinstances.h"
#include "model/structuredpanoramaproperties.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>
#include <QPixmap>
#include <QPluginLoader>
#include <QTextStream>
#include <QTranslator>
#include <QWizard>

#include <memory>
#include <vector>

namespace
{

/** A photo whose thumbnail is made when the page first asks for it, on the GUI thread. */
class Photo : public XIImageDef
{
public:
    explicit Photo(const QString &file)
        : m_file(file)
    {
    }

    QPixmap *Thumbnail() override
    {
        if (m_thumbnail.isNull()) {
            QImageReader reader(m_file);
            reader.setAutoTransform(true);
            reader.setScaledSize(reader.size().scaled(160, 160, Qt::KeepAspectRatio));
            m_thumbnail = QPixmap::fromImage(reader.read());
        }
        return &m_thumbnail;
    }
    void Reserved1() override { }
    void Reserved2() override { }
    void Reserved3() override { }
    void Reserved4() override { }
    void Reserved5() override { }
    void Reserved6() override { }
    void Reserved7() override { }
    void Reserved8() override { }
    void Reserved9() override { }
    void Reserved10() override { }
    // A real host reads these four from the photo's EXIF data.
    float FocalLength() override { return 0.0F; }
    int LensType() override { return static_cast<int>(LensModel::Standard); }
    long ShotTime() override { return QFileInfo(m_file).lastModified().toMSecsSinceEpoch(); }
    float Exposure() override { return 0.0F; }

private:
    QString m_file;
    QPixmap m_thumbnail;
};

/** The application object doubles as the host: the library finds it by the interface's name. */
class MinimalHost : public QApplication, public XIApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    void Reserved1() override { }
    void Reserved2() override { }
    QString LastPath() override { return m_lastPath; }
    void SetLastPath(const QString &path) override { m_lastPath = QFileInfo(path).absolutePath(); }
    QVariant ReadSetting(const QString &, const QString &, const QVariant &fallback) override
    {
        return fallback;
    }
    void WriteSetting(const QString &, const QString &, const QVariant &) override { }
    void Reserved3() override { }
    QLocale Locale() override { return QLocale(); }
    void Reserved4() override { }
    void Reserved5() override { }
    void LoadTranslation(const QString &file) override
    {
        // Cuts parts off the name until there is a file: XPanoHead_fr_FR becomes XPanoHead_fr.
        m_translator = std::make_unique<QTranslator>();
        if (m_translator->load(QFileInfo(file).completeBaseName(),
                               QStringLiteral(":/Translation"))) {
            installTranslator(m_translator.get());
        }
    }
    /** Called on the pages' reading threads, so it makes no pixmap and locks what it shares. */
    XIImageDef *CreateImageDef(const QString &file) override
    {
        if (!QImageReader(file).canRead()) {
            return nullptr;
        }
        const QMutexLocker lock(&m_mutex);
        m_photos.push_back(std::make_unique<Photo>(file));
        return m_photos.back().get();
    }
    void ImportStructuredPanorama(StructuredPanoramaProperties panorama) override
    {
        QTextStream out(stdout);
        for (int i = 0; i < panorama.imageGroups.size(); ++i) {
            out << i << ": " << panorama.imageGroups.at(i).join(QLatin1String(", ")) << '\n';
        }
        out << panorama.imageGroups.size() << " positions, " << panorama.yaw.size()
            << " recorded angles, " << panorama.authorizedLinks.size() << " permitted links, "
            << panorama.focalLength << " mm\n";
    }
    void Reserved6() override { }
    void Reserved7() override { }
    XUIInstances *UIInstances() override { return &m_ui; }

    /** Before the library goes: the translation lies in its resources. */
    void removeTranslation() { m_translator.reset(); }

private:
    QString m_lastPath;
    std::unique_ptr<QTranslator> m_translator;
    QMutex m_mutex; ///< guards m_photos
    /** Until the program ends: no page says when it has done with one. */
    std::vector<std::unique_ptr<Photo>> m_photos;
    XUISettings m_settings;
    XUIInstances m_ui{ &m_settings };
};

} // namespace

int main(int argc, char **argv)
{
    MinimalHost host(argc, argv);
    QTextStream err(stderr);
    if (MinimalHost::arguments().size() != 2) {
        err << "usage: minimal-host PATH/libXPanoHead.so\n";
        return 2;
    }
    QPluginLoader loader(QFileInfo(MinimalHost::arguments().at(1)).absoluteFilePath());
    loader.setLoadHints({}); // Qt's default keeps a library in the process for ever
    QObject *root = loader.instance();
    auto *library = root == nullptr
        ? nullptr
        : static_cast<XIPluginLibrary *>(root->qt_metacast("XIPluginLibrary"));
    if (library == nullptr) {
        err << "minimal-host: cannot load the library: " << loader.errorString() << '\n';
        return 1;
    }
    QWizard wizard;
    const QList<QPointer<QObject>> plugins = library->Plugins(XIPluginLibrary::AllHeads);
    for (const QPointer<QObject> &plugin : plugins) {
        auto *import = static_cast<XIPluginImport *>(plugin->qt_metacast("XIPluginImport"));
        const QList<QWizardPage *> pages = import->WizardPages();
        for (QWizardPage *page : pages) {
            wizard.addPage(page); // its link opens in the browser, without our help
        }
    }
    wizard.resize(900, 700);
    wizard.exec();
    // The plug-ins own their pages: give them back before the wizard goes.
    const QList<int> ids = wizard.pageIds();
    for (const int id : ids) {
        QWizardPage *page = wizard.page(id);
        wizard.removePage(id);
        page->setParent(nullptr);
    }
    host.removeTranslation();
    return loader.unload() ? 0 : 1;
}

#include "main.moc"
