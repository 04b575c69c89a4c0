// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/panohostapplication.h"

#include "host/model/commanderror.h"

#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QStandardPaths>
#include <QThread>

#include <new>

namespace PanoHost
{

namespace
{

QString lastPathKey()
{
    return QStringLiteral("panohost/lastPath");
}

} // namespace

PanoHostApplication::PanoHostApplication(int &argc, char **argv)
    : QApplication(argc, argv)
    , m_locale(QLocale::system())
    , m_xuiInstances{ &m_xuiSettings }
{
    setApplicationName(QStringLiteral("panohost"));
    setOrganizationName(QStringLiteral("Orvane"));
    m_settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                             organizationName(), applicationName());
    shareThumbnails();
}

PanoHostApplication::~PanoHostApplication()
{
    releaseLibraryHold();
}

PanoHostApplication *PanoHostApplication::instance()
{
    return qobject_cast<PanoHostApplication *>(QCoreApplication::instance());
}

bool PanoHostApplication::notify(QObject *receiver, QEvent *event)
{
    if (!m_tellThrown || QThread::currentThread() != thread()) {
        return QApplication::notify(receiver, event);
    }
    try {
        return QApplication::notify(receiver, event);
    } catch (const CommandError &error) {
        m_tellThrown(error.failure().text());
    } catch (const std::bad_alloc &) {
        m_tellThrown(tr("not enough memory"));
    } catch (const std::exception &error) {
        m_tellThrown(QString::fromLocal8Bit(error.what()));
    } catch (...) {
        m_tellThrown(tr("it does not say why"));
    }
    return true;
}

QString PanoHostApplication::LastPath()
{
    QString path = m_settings->value(lastPathKey()).toString();
    if (!path.isEmpty() && QFileInfo(path).isDir()) {
        return path;
    }
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

void PanoHostApplication::SetLastPath(const QString &path)
{
    if (path.isEmpty()) {
        return;
    }
    const QFileInfo info(truePath(path));
    m_settings->setValue(lastPathKey(),
                         info.isDir() ? info.absoluteFilePath() : info.absolutePath());
}

QVariant PanoHostApplication::ReadSetting(const QString &group, const QString &key,
                                          const QVariant &defaultValue)
{
    return m_settings->value(group + QLatin1Char('/') + key, defaultValue);
}

void PanoHostApplication::WriteSetting(const QString &group, const QString &key,
                                       const QVariant &value)
{
    m_settings->setValue(group + QLatin1Char('/') + key, value);
}

QLocale PanoHostApplication::Locale()
{
    return m_locale;
}

void PanoHostApplication::LoadTranslation(const QString &fileName)
{
    auto translator = std::make_unique<QTranslator>();
    // The base name alone: a library has no business elsewhere in the file system.
    QString name = QFileInfo(fileName).fileName();
    const QString suffix = QStringLiteral(".qm");
    if (name.endsWith(suffix)) {
        name.chop(suffix.size());
    }
    // Qt strips parts at "_" until it finds a file: XPanoHead_fr_FR becomes XPanoHead_fr.
    if (translator->load(name, QStringLiteral(":/Translation"), QStringLiteral("_"), suffix)
        && installTranslator(translator.get())) {
        m_translators.push_back(std::move(translator));
    }
}

XIImageDef *PanoHostApplication::CreateImageDef(const QString &fileName)
{
    const QString path = truePath(fileName);
    const PhotoReader::Answer answer = readPhoto(path);
    if (!answer) {
        rememberUnreadable(path, answer.error().why);
        Q_EMIT photoRead(path, false);
        return nullptr;
    }
    auto image = std::make_unique<HostImage>(m_thumbnails, answer.value());
    HostImage *const made = image.get();
    {
        const QMutexLocker locker(&m_photoMutex);
        m_images.push_back(std::move(image));
    }
    Q_EMIT photoRead(path, true);
    return made;
}

PhotoReader::Answer PanoHostApplication::readPhoto(const QString &path)
{
    {
        const QMutexLocker locker(&m_photoMutex);
        const auto standIn = m_standIns.constFind(path);
        if (standIn != m_standIns.cend()) {
            return *standIn;
        }
    }
    return m_photos.read(path);
}

void PanoHostApplication::ImportStructuredPanorama(StructuredPanoramaProperties spp)
{
    for (QStringList &group : spp.imageGroups) {
        for (QString &path : group) {
            path = truePath(path);
        }
    }
    m_delivery = std::move(spp);
    ++m_deliveryCount;
    Q_EMIT delivered();
}

XUIInstances *PanoHostApplication::UIInstances()
{
    return &m_xuiInstances;
}

void PanoHostApplication::setSettingsFile(const QString &path)
{
    m_settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    shareThumbnails();
}

void PanoHostApplication::shareThumbnails()
{
    using Places = DesktopThumbnails::Places;
    const bool shares
        = m_settings->value(QStringLiteral("panohost/sharedThumbnails"), true).toBool();
    const bool everywhere
        = m_settings->value(QStringLiteral("panohost/thumbnailsOfRemovablePlaces"), false).toBool();
    m_photos.shareThumbnails(shares ? std::make_shared<const DesktopThumbnails>(
                                 everywhere ? Places::Every : Places::OwnDisks)
                                    : nullptr);
}

void PanoHostApplication::addPathAlias(const QString &alias, const QString &truePath)
{
    const QMutexLocker locker(&m_photoMutex);
    m_aliases.insert(alias, truePath);
}

void PanoHostApplication::addStandIn(const PhotoReading &photo)
{
    const auto data = std::make_shared<const PhotoData>(m_thumbnails, photo);
    const QMutexLocker locker(&m_photoMutex);
    m_standIns.insert(photo.info.path, data);
}

void PanoHostApplication::clearPathAliases()
{
    const QMutexLocker locker(&m_photoMutex);
    m_aliases.clear();
    m_standIns.clear();
}

QString PanoHostApplication::truePath(const QString &path) const
{
    const QMutexLocker locker(&m_photoMutex);
    return m_aliases.value(path, path);
}

Result<PhotoInfo> PanoHostApplication::photoInfo(const QString &path)
{
    const PhotoReader::Answer answer = m_photos.read(path);
    if (!answer) {
        return answer.error();
    }
    return answer.value()->info();
}

QVector<UnreadablePhoto> PanoHostApplication::unreadablePhotos() const
{
    const QMutexLocker locker(&m_photoMutex);
    return m_unreadable;
}

void PanoHostApplication::clearUnreadablePhotos()
{
    const QMutexLocker locker(&m_photoMutex);
    m_unreadable.clear();
    m_unreadablePaths.clear();
}

void PanoHostApplication::releaseLibraryHold()
{
    for (const auto &translator : m_translators) {
        removeTranslator(translator.get());
    }
    m_translators.clear();
    {
        const QMutexLocker locker(&m_photoMutex);
        m_images.clear();
    }
    m_photos.forget();
}

void PanoHostApplication::rememberUnreadable(const QString &path, const QString &why)
{
    const QMutexLocker locker(&m_photoMutex);
    if (m_unreadablePaths.contains(path)) {
        return;
    }
    m_unreadablePaths.insert(path);
    m_unreadable.append({ path, why });
}

} // namespace PanoHost
