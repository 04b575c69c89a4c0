// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/recentshoots.h"

#include "host/import/givenfiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace PanoHost
{

namespace
{

QString arrayName()
{
    return QStringLiteral("panohost/recent");
}

/** The deepest folder that holds all of \p files. */
QString folderOf(const QStringList &files)
{
    QString folder = QFileInfo(files.first()).absolutePath();
    const auto holds
        = [&folder](const QString &file) { return file.startsWith(folder + QLatin1Char('/')); };
    while (folder.size() > 1 && !std::all_of(files.begin(), files.end(), holds)) {
        folder = QFileInfo(folder).absolutePath();
    }
    return folder;
}

} // namespace

RecentShoot RecentShoot::of(const QString &head, const QString &record, const QStringList &photos)
{
    RecentShoot shoot;
    shoot.head = head;
    shoot.record = record;
    shoot.folder = folderOf(photos);
    shoot.photos = photos.size();
    shoot.date = QDate::currentDate();
    const bool isFlat = std::all_of(photos.begin(), photos.end(), [&shoot](const QString &photo) {
        return QFileInfo(photo).absolutePath() == shoot.folder;
    });
    if (isFlat) {
        shoot.first = QFileInfo(photos.first()).fileName();
        shoot.last = QFileInfo(photos.last()).fileName();
    }
    return shoot;
}

bool RecentShoot::isThere() const
{
    return (record.isEmpty() || QFileInfo(record).isFile())
        && (first.isEmpty() ? QFileInfo(folder).isDir()
                            : QFileInfo::exists(QDir(folder).filePath(first)));
}

QStringList RecentShoot::files() const
{
    QStringList files;
    if (!record.isEmpty()) {
        files += record;
    }
    if (first.isEmpty()) {
        return files + QStringList(folder);
    }
    const QDir place(folder);
    for (const QString &name : place.entryList(QDir::Files)) {
        if (name >= first && name <= last && isPhotoName(name)) {
            files += place.filePath(name);
        }
    }
    return files;
}

QString RecentShoot::picturePath() const
{
    const QString key = head + QLatin1Char('\n') + record + QLatin1Char('\n') + folder
        + QLatin1Char('\n') + first;
    const QByteArray name
        = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
        + QStringLiteral("/recent/%1.png").arg(QLatin1String(name));
}

RecentShoots::RecentShoots(QSettings &settings)
    : m_settings(settings)
{
    const int count = std::min(settings.beginReadArray(arrayName()), kMost);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const auto text = [&settings](const char *key) {
            return settings.value(QLatin1String(key)).toString();
        };
        RecentShoot shoot;
        shoot.record = text("record");
        shoot.folder = text("folder");
        shoot.first = text("first");
        shoot.last = text("last");
        shoot.photos = settings.value(QStringLiteral("photos")).toInt();
        shoot.head = text("head");
        shoot.date = QDate::fromString(text("date"), Qt::ISODate);
        m_all += shoot;
    }
    settings.endArray();
}

void RecentShoots::add(RecentShoot shoot, const QImage &picture)
{
    const QString path = shoot.picturePath();
    for (int i = m_all.size() - 1; i >= 0; --i) {
        if (m_all.at(i).picturePath() == path) {
            m_all.removeAt(i);
        }
    }
    m_all.prepend(std::move(shoot));
    while (m_all.size() > kMost) {
        QFile::remove(m_all.takeLast().picturePath());
    }
    // Nobody misses a picture that cannot be kept.
    if (!picture.isNull() && QDir().mkpath(QFileInfo(path).path())) {
        (void)picture.save(path, "PNG");
    }
    write();
}

void RecentShoots::remove(int place)
{
    QFile::remove(m_all.takeAt(place).picturePath());
    write();
}

void RecentShoots::clear()
{
    while (!m_all.isEmpty()) {
        QFile::remove(m_all.takeLast().picturePath());
    }
    write();
}

void RecentShoots::write() const
{
    m_settings.remove(arrayName());
    m_settings.beginWriteArray(arrayName(), m_all.size());
    for (int i = 0; i < m_all.size(); ++i) {
        const RecentShoot &shoot = m_all.at(i);
        m_settings.setArrayIndex(i);
        m_settings.setValue(QStringLiteral("record"), shoot.record);
        m_settings.setValue(QStringLiteral("folder"), shoot.folder);
        m_settings.setValue(QStringLiteral("first"), shoot.first);
        m_settings.setValue(QStringLiteral("last"), shoot.last);
        m_settings.setValue(QStringLiteral("photos"), shoot.photos);
        m_settings.setValue(QStringLiteral("head"), shoot.head);
        m_settings.setValue(QStringLiteral("date"), shoot.date.toString(Qt::ISODate));
    }
    m_settings.endArray();
}

} // namespace PanoHost
