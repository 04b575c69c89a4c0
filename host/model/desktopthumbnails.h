// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QString>

#include <optional>

namespace PanoHost
{

/** What decides whether the photos on a mounted file system get thumbnails. */
struct Mount {
    QString point; ///< "/media/card"
    QByteArray fileSystem; ///< "ext4"
    bool readOnly = false;
    bool removable = false; ///< its medium or its drive can be taken out
};

/** Whether \p mount belongs to this machine and can be written to. */
[[nodiscard]] bool isOwnPlace(const Mount &mount);

/**
 * The thumbnails that all programs of the desktop share (freedesktop.org, Thumbnail Managing
 * Standard): PNG files of at most 256 x 256 pixels in the folder "large", named by the MD5 sum of
 * the photo's URI. Upright pictures.
 *
 * Any thread, any number of objects and programs at once.
 */
class DesktopThumbnails
{
public:
    /** Which photos leave a thumbnail on the disk: what is taken away later leaves no trace. */
    enum class Places {
        OwnDisks, ///< not those on read-only, removable or network places
        Every, ///< the user gave leave
    };

    explicit DesktopThumbnails(Places places = Places::OwnDisks, QString folder = defaultFolder());

    /** "thumbnails" in the user's folder for caches. */
    [[nodiscard]] static QString defaultFolder();

    /**
     * The thumbnail of the photo \p path, when there is one of its present state: last changed at
     * \p modified (seconds count) and \p bytes large. Takes bounded memory whatever lies there.
     */
    [[nodiscard]] std::optional<QImage> find(const QString &path, const QDateTime &modified,
                                             qint64 bytes) const;

    /**
     * Keeps \p upright for `find`, unless `mayKeepFor` says no. It must be what the desktop would
     * make of the whole photo: 256 pixels on the longer side, less only for a smaller photo. A disk
     * that is full or read-only keeps nothing; a file is there completely or not at all.
     */
    void keep(const QString &path, const QDateTime &modified, qint64 bytes,
              const QImage &upright) const;

    /**
     * Whether the place of the photo \p path allows a thumbnail. Never for pictures among the
     * thumbnails themselves.
     */
    [[nodiscard]] bool mayKeepFor(const QString &path) const;

private:
    [[nodiscard]] QString fileFor(const QByteArray &uri) const;

    const Places m_places;
    const QString m_folder;
    mutable QMutex m_mutex;
    mutable QHash<quint64, bool> m_ownDevices; ///< by device number, as far as asked for
};

} // namespace PanoHost
