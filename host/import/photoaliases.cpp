// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/photoaliases.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{

namespace
{

/** Double quotes separate names in the dialog's line edit; control characters do not survive it. */
bool dialogMisreads(const QString &path)
{
    return std::any_of(path.begin(), path.end(), [](QChar letter) {
        return letter == QLatin1Char('"') || letter.unicode() < 0x20 || letter.unicode() == 0x7f
            || letter == QChar::LineSeparator || letter == QChar::ParagraphSeparator;
    });
}

/** ".jpg" for most; empty when the ending itself is one that the dialog would misread. */
QString safeEnding(const QString &photo)
{
    const QString suffix = QFileInfo(photo).suffix();
    if (suffix.isEmpty() || dialogMisreads(suffix)) {
        return {};
    }
    return QLatin1Char('.') + suffix;
}

/** Makes \p link point to \p photo, or an empty file where there is none. */
QString makeLink(const QString &link, const QString &photo)
{
    QFile target(photo.isEmpty() ? link : photo);
    const bool made = photo.isEmpty() ? target.open(QIODevice::WriteOnly) : target.link(link);
    return made ? QString() : target.errorString();
}

} // namespace

bool PhotoAliases::areNeeded(const QStringList &photos)
{
    if (std::any_of(photos.begin(), photos.end(), dialogMisreads)) {
        return true;
    }
    return !std::is_sorted(photos.begin(), photos.end());
}

QStringList PhotoAliases::create(const QStringList &photos, QString *error)
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/panohost-photos-XXXXXX"));
    if (!m_folder->isValid()) {
        *error = m_folder->errorString();
        return {};
    }
    const int digits = QString::number(photos.size()).size();
    QStringList links;
    links.reserve(photos.size());
    m_truePaths.reserve(photos.size());
    for (const QString &photo : photos) {
        const QString number
            = QString::number(links.size() + 1).rightJustified(digits, QLatin1Char('0'));
        const QString link = m_folder->filePath(number + safeEnding(photo));
        const QString trouble = makeLink(link, photo);
        if (!trouble.isEmpty()) {
            *error = QStringLiteral("%1: %2").arg(m_folder->path(), trouble);
            return {};
        }
        if (!photo.isEmpty()) {
            m_truePaths.insert(link, photo);
        }
        links += link;
    }
    return links;
}

} // namespace PanoHost
