// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/viewerpage.h"

#include <QFile>
#include <QJsonDocument>

#include <utility>

// Resources of a static library are not there by themselves; a macro of the global namespace.
static void initViewers()
{
    Q_INIT_RESOURCE(viewers);
}

namespace PanoHost
{

QByteArray viewerFile(const QString &name)
{
    initViewers();
    QFile file(QStringLiteral(":/viewers/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s was not built in", qPrintable(name));
    }
    return file.readAll();
}

QByteArray viewerPage(const QString &name, const QString &title,
                      QHash<QByteArray, QByteArray> fields)
{
    fields.insert("TITLE", title.toHtmlEscaped().toUtf8());
    fields.insert("BACKGROUND",
                  QByteArray("rgb(G, G, G)").replace('G', QByteArray::number(kBackgroundGrey)));
    // Between two signs stands a word, what is filled in is not looked at again.
    const QList<QByteArray> parts = viewerFile(name).split('@');
    QByteArray page;
    for (int i = 0; i < parts.size(); ++i) {
        page += i % 2 == 0 ? parts[i] : fields.value(parts[i]);
    }
    return page;
}

QByteArray scriptText(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).replace('<', "\\u003c");
}

} // namespace PanoHost
