// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "plugin/library.h"

#include "hostlink/about.h"
#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"
#include "plugin/registry.h"
#include "ui/xui.h"

#include <QCoreApplication>
#include <QIcon>

namespace
{

// The picture does not exist under the library's own folder: the plug-ins show theirs, the library
// shows none.
constexpr PanoHead::About kAbout{
    "XPanoHead",
    "Comment", // the placeholder by which hosts know the library
    ":/%1/Resources/XGigapan.png",
    "7A21C94E-5B20-2020-2020-2D91D0DDB961",
};

} // namespace

Library::Library(QObject *parent)
    : QObject(parent)
{
    setObjectName(QString::fromLatin1("XPanoHead")); // a copy, which outlives the library
    XIApplication *host = PanoHead::findHost();
    if (host == nullptr) {
        return;
    }
    host->LoadTranslation(
        QStringLiteral("%1_%2.qm").arg(QStringLiteral("XPanoHead"), host->Locale().name()));
    XUI::init(host->UIInstances());
}

Library::~Library()
{
    const QList<QPointer<QObject>> plugins = m_plugins;
    for (const QPointer<QObject> &plugin : plugins) {
        delete plugin.data();
    }
}

QList<QPointer<QObject>> Library::Plugins(XIPluginLibrary::APX kinds)
{
    for (const PanoHead::Registration &importer : PanoHead::importers()) {
        if ((static_cast<int>(kinds) & importer.kinds) != 0) {
            m_plugins.append(importer.create());
        }
    }
    return m_plugins;
}

QString Library::Name() const
{
    return kAbout.nameText();
}
QString Library::Author() const
{
    return PanoHead::About::authorText();
}
QString Library::Company() const
{
    return PanoHead::About::companyText();
}
QString Library::Comment() const
{
    return kAbout.commentText();
}
QString Library::Version() const
{
    return PanoHead::About::versionText();
}
QIcon Library::Icon() const
{
    return QIcon(kAbout.iconPath());
}
QString Library::UID() const
{
    return kAbout.uidText();
}
