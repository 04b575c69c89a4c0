// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "plugin/importplugins.h"

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "plugin/about.h"

#include <QIcon>

#include <memory>

using PanoHead::About;

namespace
{

constexpr About kClauss{
    "Clauss",
    "Clauss Rodeon import plugin",
    ":/%1/Resources/XClauss.png",
    "7A21C94E-5B20-2020-2020-D6D081182F97",
};
constexpr About kGigapan{
    "Gigapan",
    "Gigapan import plugin",
    ":/%1/Resources/XGigapan.png",
    "7A21C94E-5B20-2020-2020-6028D47773DF",
};
constexpr About kPapywizard{
    "Papywizard",
    "Papywizard XML import plugin",
    ":/%1/Resources/Papywizard.png",
    "7A21C94E-5B20-2020-2020-483181480AB7",
};
constexpr About kVRDrive2{
    "VRDrive2",
    "VRDrive2 XML import plugin",
    ":/%1/Resources/VRDrive2.png",
    "7A21C94E-5B20-2020-2020-B662C695C918",
};

/** Names the plug-in, makes its page and gives the page the state that the host has kept. */
template <typename Page> Page *createPage(QObject *plugin, const About &about)
{
    plugin->setObjectName(QString::fromLatin1(plugin->metaObject()->className()));
    auto page = std::make_unique<Page>(nullptr); // no host's exception is to leak it
    if (XIApplication *host = PanoHead::findHost()) {
        page->RestoreState(
            host->ReadSetting(about.uidText(), plugin->objectName(), QVariant()).toByteArray());
    }
    return page.release();
}

/**
 * Lets the host keep the page's state, an empty one when the host has deleted the page. Called by
 * destructors, which let no exception out: a host that cannot keep the state lives on without it.
 */
template <typename Page>
void savePage(QObject *plugin, const About &about, const QPointer<Page> &page)
{
    try {
        if (XIApplication *host = PanoHead::findHost()) {
            const QByteArray state = page.isNull() ? QByteArray() : page->SaveState();
            host->WriteSetting(about.uidText(), plugin->objectName(), QVariant(state));
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): nobody is left to be told
    }
    delete page.data();
}

} // namespace

XClaussImport::XClaussImport(QObject *parent)
    : QObject(parent)
    , m_page(createPage<UIWPClauss>(this, kClauss))
{
}

XClaussImport::~XClaussImport()
{
    savePage(this, kClauss, m_page);
}

QList<QWizardPage *> XClaussImport::WizardPages()
{
    return { m_page.data() };
}
QString XClaussImport::Name() const
{
    return kClauss.nameText();
}
QString XClaussImport::Author() const
{
    return About::authorText();
}
QString XClaussImport::Company() const
{
    return About::companyText();
}
QString XClaussImport::Comment() const
{
    return kClauss.commentText();
}
QString XClaussImport::Version() const
{
    return About::versionText();
}
QIcon XClaussImport::Icon() const
{
    return QIcon(kClauss.iconPath());
}
QString XClaussImport::UID() const
{
    return kClauss.uidText();
}

XGigapanImport::XGigapanImport(QObject *parent)
    : QObject(parent)
    , m_page(createPage<UIWPGigapan>(this, kGigapan))
{
}

XGigapanImport::~XGigapanImport()
{
    savePage(this, kGigapan, m_page);
}

QList<QWizardPage *> XGigapanImport::WizardPages()
{
    return { m_page.data() };
}
QString XGigapanImport::Name() const
{
    return kGigapan.nameText();
}
QString XGigapanImport::Author() const
{
    return About::authorText();
}
QString XGigapanImport::Company() const
{
    return About::companyText();
}
QString XGigapanImport::Comment() const
{
    return kGigapan.commentText();
}
QString XGigapanImport::Version() const
{
    return About::versionText();
}
QIcon XGigapanImport::Icon() const
{
    return QIcon(kGigapan.iconPath());
}
QString XGigapanImport::UID() const
{
    return kGigapan.uidText();
}

XMerlinImport::XMerlinImport(QObject *parent)
    : QObject(parent)
    , m_page(createPage<UIWPMerlin>(this, kPapywizard))
{
}

XMerlinImport::~XMerlinImport()
{
    savePage(this, kPapywizard, m_page);
}

QList<QWizardPage *> XMerlinImport::WizardPages()
{
    return { m_page.data() };
}
QString XMerlinImport::Name() const
{
    return kPapywizard.nameText();
}
QString XMerlinImport::Author() const
{
    return About::authorText();
}
QString XMerlinImport::Company() const
{
    return About::companyText();
}
QString XMerlinImport::Comment() const
{
    return kPapywizard.commentText();
}
QString XMerlinImport::Version() const
{
    return About::versionText();
}
QIcon XMerlinImport::Icon() const
{
    return QIcon(kPapywizard.iconPath());
}
QString XMerlinImport::UID() const
{
    return kPapywizard.uidText();
}

XVRDrive2Import::XVRDrive2Import(QObject *parent)
    : QObject(parent)
    , m_page(createPage<UIWPVRDrive2>(this, kVRDrive2))
{
}

XVRDrive2Import::~XVRDrive2Import()
{
    savePage(this, kVRDrive2, m_page);
}

QList<QWizardPage *> XVRDrive2Import::WizardPages()
{
    return { m_page.data() };
}
QString XVRDrive2Import::Name() const
{
    return kVRDrive2.nameText();
}
QString XVRDrive2Import::Author() const
{
    return About::authorText();
}
QString XVRDrive2Import::Company() const
{
    return About::companyText();
}
QString XVRDrive2Import::Comment() const
{
    return kVRDrive2.commentText();
}
QString XVRDrive2Import::Version() const
{
    return About::versionText();
}
QIcon XVRDrive2Import::Icon() const
{
    return QIcon(kVRDrive2.iconPath());
}
QString XVRDrive2Import::UID() const
{
    return kVRDrive2.uidText();
}
