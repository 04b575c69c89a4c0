// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "plugin/library.h"

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"
#include "plugin/about.h"
#include "plugin/importplugins.h"
#include "ui/xui.h"

#include <QCoreApplication>
#include <QIcon>

namespace
{

constexpr int kEveryKind = ~0;

struct Registration {
    int kinds; ///< created when the host wants any of these
    QObject *(*create)();
};

template <typename Plugin> QObject *create()
{
    return new Plugin(nullptr);
}

/** Every importer, in the order in which hosts list them. */
constexpr Registration kImporters[] = {
    { XIPluginLibrary::AllHeads, create<XClaussImport> },
    { kEveryKind, create<XGigapanImport> },
    { kEveryKind, create<XMerlinImport> },
    { XIPluginLibrary::AllHeads, create<XVRDrive2Import> },
};

// The picture does not exist under the library's own folder, so hosts show no icon: wanted.
constexpr PanoHead::About kAbout{
    "XPanoHead",
    "Comment", // hosts know the library by this placeholder: wanted
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
    for (const Registration &importer : kImporters) {
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
