// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDate>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QVector>

class QSettings;

namespace PanoHost
{

/** A shoot that was imported, and where it lay. */
struct RecentShoot {
    QString record; ///< path; empty: the head writes none
    QString folder; ///< of all photos
    QString first; ///< name of the first and the last photo there; empty: they lie deeper
    QString last;
    int photos = 0;
    QString head; ///< as on the command line
    QDate date; ///< of the import

    /** \p photos are at least one, in the order of their names. */
    [[nodiscard]] static RecentShoot of(const QString &head, const QString &record,
                                        const QStringList &photos);
    [[nodiscard]] bool isThere() const;
    /** Record and photos, or the folder that holds them. Any thread. */
    [[nodiscard]] QStringList files() const;
    /** Where its picture is kept. */
    [[nodiscard]] QString picturePath() const;
};

/** The last shoots, newest first, in the settings; their pictures in the cache folder. */
class RecentShoots
{
public:
    static constexpr int kMost = 8;
    static constexpr int kPictureSide = 96;

    explicit RecentShoots(QSettings &settings);

    [[nodiscard]] const QVector<RecentShoot> &all() const { return m_all; }
    /** In place of what was known of the same shoot. A null \p picture: none. */
    void add(RecentShoot shoot, const QImage &picture);
    void remove(int place);
    void clear();

private:
    void write() const;

    QSettings &m_settings;
    QVector<RecentShoot> m_all;
};

} // namespace PanoHost
