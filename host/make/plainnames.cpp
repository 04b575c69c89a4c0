// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/plainnames.h"

#include "host/model/commanderror.h"
#include "host/model/relativepath.h"
#include "host/stitch/workfolder.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{
namespace
{

bool isUnfit(QChar c)
{
    return c == QLatin1Char('"') || c.category() == QChar::Other_Control;
}

QString linkName(int number, const QString &path)
{
    QString name = QFileInfo(path).fileName();
    std::replace_if(name.begin(), name.end(), isUnfit, QLatin1Char('_'));
    constexpr int kMostLetters = 60; // of up to four bytes each, in names of up to 255
    return QStringLiteral("names/%1-%2").arg(QString::number(number), name.right(kMostLetters));
}

QString linkTo(const QString &path, const QString &link)
{
    if (QFileInfo(link).symLinkTarget() == path) {
        return link;
    }
    QFile::remove(link);
    if (!QDir().mkpath(QFileInfo(link).absolutePath()) || !QFile::link(path, link)) {
        throw CommandError({ ExitCode::ToolFailed, path,
                             QStringLiteral("a Hugin project cannot hold a file name with "
                                            "quotation marks or line ends, and no link to it can "
                                            "be made in %1")
                                 .arg(QFileInfo(link).absolutePath()),
                             QStringLiteral("rename the file") });
    }
    return link;
}

} // namespace

void givePlainNames(Panorama &panorama, const WorkFolder &work)
{
    int number = 0;
    for (Position &position : panorama.positions) {
        for (PhotoInfo &photo : position.photos) {
            ++number;
            const QString name = relativePath(photo.path, work.path());
            if (std::any_of(name.begin(), name.end(), isUnfit)) {
                photo.path = linkTo(photo.path, work.path(linkName(number, photo.path)));
            }
        }
    }
}

} // namespace PanoHost
