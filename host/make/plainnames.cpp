// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/plainnames.h"

#include "host/model/commanderror.h"
#include "host/model/relativepath.h"
#include "host/model/said.h"

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

void makeLink(const PlainName &name)
{
    if (QFileInfo(name.link).symLinkTarget() == name.photo) {
        return;
    }
    QFile::remove(name.link);
    const QString folder = QFileInfo(name.link).absolutePath();
    if (!QDir().mkpath(folder) || !QFile::link(name.photo, name.link)) {
        throw CommandError({ ExitCode::ToolFailed, name.photo,
                             Said::tr("a Hugin project cannot hold a file name with "
                                      "quotation marks or line ends, and no link to it can "
                                      "be made in %1")
                                 .arg(folder),
                             Said::tr("rename the file") });
    }
}

} // namespace

QVector<PlainName> takePlainNames(Panorama &panorama, const QString &work)
{
    QVector<PlainName> names;
    int number = 0;
    for (Position &position : panorama.positions) {
        for (PhotoInfo &photo : position.photos) {
            ++number;
            const QString name = relativePath(photo.path, work);
            if (std::any_of(name.begin(), name.end(), isUnfit)) {
                names.append({ photo.path, QDir(work).filePath(linkName(number, photo.path)) });
                photo.path = names.last().link;
            }
        }
    }
    return names;
}

void linkPlainNames(const QVector<PlainName> &names)
{
    std::for_each(names.begin(), names.end(), makeLink);
}

} // namespace PanoHost
