// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/displayname.h"

#include "host/model/said.h"

#include <QDir>

namespace PanoHost
{

QString displayName(const QString &path)
{
    const QString relative = QDir::current().relativeFilePath(path);
    return relative.startsWith(QLatin1String("..")) ? path : relative;
}

QString counted(int count, const char *noun)
{
    [[maybe_unused]] static const char *const kTranslated[] = {
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n column"),
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n file"),
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n link"),
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n photo"),
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n position"),
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n row"),
        QT_TRANSLATE_N_NOOP("PanoHost::Said", "%n shot"),
    };
    const QByteArray text = QByteArray("%n ") + noun;
    const QString plain = QString::number(count) + QLatin1Char(' ') + QLatin1String(noun);
    const QString said = Said::tr(text.constData(), nullptr, count);
    return said == plain && count != 1 ? plain + QLatin1Char('s') : said;
}

} // namespace PanoHost
