// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"
#include "host/plugin/hostimage.h"
#include "host/plugin/photoreader.h"
#include "host/plugin/thumbnailstore.h"
#include "hostlink/xiapplication.h"
#include "hostlink/xuiinstances.h"
#include "model/structuredpanoramaproperties.h"

#include <QApplication>
#include <QHash>
#include <QLocale>
#include <QMutex>
#include <QSet>
#include <QSettings>
#include <QTranslator>

#include <functional>
#include <memory>
#include <vector>

namespace PanoHost
{

/** A photo that could not be read, and why. */
struct UnreadablePhoto {
    QString path;
    QString why;
};

/**
 * The application object of the reference host; plug-in libraries find the host interface in it.
 *
 * Settings are one INI file: the user's own, or the one given to `setSettingsFile` before the
 * first use. Everything is for the GUI thread but `CreateImageDef`, `photoInfo` and
 * `unreadablePhotos`.
 */
class PanoHostApplication : public QApplication, public XIApplication
{
    Q_OBJECT
public:
    PanoHostApplication(int &argc, char **argv);
    ~PanoHostApplication() override;

    /** The application object, when it is one of these. */
    [[nodiscard]] static PanoHostApplication *instance();

    void Reserved1() override { }
    void Reserved2() override { }
    /** The folder of the last file chosen, or the user's pictures folder. */
    QString LastPath() override;
    void SetLastPath(const QString &path) override;
    QVariant ReadSetting(const QString &group, const QString &key,
                         const QVariant &defaultValue) override;
    void WriteSetting(const QString &group, const QString &key, const QVariant &value) override;
    void Reserved3() override { }
    QLocale Locale() override;
    void Reserved4() override { }
    void Reserved5() override { }
    /** Looks in ":/Translation/"; "XPanoHead_fr_FR.qm" falls back to "XPanoHead_fr.qm". */
    void LoadTranslation(const QString &fileName) override;
    XIImageDef *CreateImageDef(const QString &fileName) override;
    void ImportStructuredPanorama(StructuredPanoramaProperties spp) override;
    void Reserved6() override { }
    void Reserved7() override { }
    XUIInstances *UIInstances() override;

    /** Uses the INI file \p path from now on instead of the user's own. */
    void setSettingsFile(const QString &path);
    [[nodiscard]] QSettings &settings() { return *m_settings; }
    /** Photos that are read from now on share the desktop's thumbnails, unless the settings say
     * that these are none of ours. */
    void shareThumbnails();
    /** What `Locale()` answers from now on; libraries ask when they are loaded. */
    void setLocale(const QLocale &locale) { m_locale = locale; }
    /**
     * From now on \p tell is called with the reason when a slot throws, a plug-in's page mostly,
     * and the event loop goes on; null: whoever runs the loop gets what is thrown.
     */
    void setTellThrown(std::function<void(const QString &why)> tell)
    {
        m_tellThrown = std::move(tell);
    }
    bool notify(QObject *receiver, QEvent *event) override;

    /** What the pages' file dialogs look like; kept in this run only. */
    void setUseSystemFileDialog(bool use) { m_xuiSettings.useSystemFileDialog = use; }

    /**
     * Photos named \p alias (a link in a temporary folder) are the file \p truePath: it is what
     * images are read from and what the delivered description names.
     */
    void addPathAlias(const QString &alias, const QString &truePath);
    /** Photos named like \p photo have what it says, and no file that is read. */
    void addStandIn(const PhotoReading &photo);
    /** Of the stand-ins too. */
    void clearPathAliases();
    /** The true path of an alias; any other \p path as it is. Any thread. */
    [[nodiscard]] QString truePath(const QString &path) const;

    /** The description that arrived last, with true paths, as the page handed it over. */
    [[nodiscard]] const StructuredPanoramaProperties &delivery() const { return m_delivery; }
    /** How many descriptions have arrived. */
    [[nodiscard]] int deliveryCount() const { return m_deliveryCount; }

    /** What is known about the photo \p path. Any thread. */
    [[nodiscard]] Result<PhotoInfo> photoInfo(const QString &path);

    /** The photos that could not be read, oldest first, each once. Any thread. */
    [[nodiscard]] QVector<UnreadablePhoto> unreadablePhotos() const;
    void clearUnreadablePhotos();

    [[nodiscard]] const ThumbnailStore &thumbnails() const { return m_thumbnails; }
    /** Reads the photos that pages and commands ask for. */
    [[nodiscard]] PhotoReader &photos() { return m_photos; }

    /**
     * Before a library is unloaded, after its pages are gone: removes the translators, whose data
     * lies in the library's resources, and deletes the images that its pages pointed to.
     */
    void releaseLibraryHold();

Q_SIGNALS:
    /** `delivery()` is new. */
    void delivered();
    /** A photo was read, or could not be. Emitted on the thread that asked for it. */
    void photoRead(const QString &path, bool readable);

private:
    [[nodiscard]] PhotoReader::Answer readPhoto(const QString &path);
    void rememberUnreadable(const QString &path, const QString &why);

    std::unique_ptr<QSettings> m_settings;
    QLocale m_locale;
    std::function<void(const QString &)> m_tellThrown;
    XUISettings m_xuiSettings;
    XUIInstances m_xuiInstances;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    StructuredPanoramaProperties m_delivery;
    int m_deliveryCount = 0;

    ThumbnailStore m_thumbnails;
    PhotoReader m_photos{ m_thumbnails };
    mutable QMutex m_photoMutex; ///< guards what follows
    QHash<QString, QString> m_aliases;
    QHash<QString, std::shared_ptr<const PhotoData>> m_standIns; ///< by path
    QVector<UnreadablePhoto> m_unreadable;
    QSet<QString> m_unreadablePaths; ///< those of `m_unreadable`
    std::vector<std::unique_ptr<HostImage>> m_images;
};

} // namespace PanoHost
