// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/windowtexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

/** Resources of a static library are found only once somebody asks for them. */
static void loadResources()
{
    Q_INIT_RESOURCE(windowtexts);
}

namespace PanoHost
{

void loadWindowTexts(const QLocale &locale)
{
    loadResources();
    const auto load = [&locale](const QString &name, const QString &folder) {
        auto *translator = new QTranslator(qApp);
        if (!translator->load(locale, name, QStringLiteral("_"), folder)
            || !QCoreApplication::installTranslator(translator)) {
            delete translator;
        }
    };
    load(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    load(QStringLiteral("PanoHost"), QStringLiteral(":/Translation"));
}

} // namespace PanoHost
