// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"
#include "hostlink/hostapplication.h"
#include "hostlink/xiabout.h"
#include "hostlink/xiapplication.h"
#include "hostlink/xipluginimport.h"

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QWizardPage>

#include <memory>

// What qt_metacast() answers to.
Q_DECLARE_INTERFACE(XIPluginImport, "XIPluginImport")
Q_DECLARE_INTERFACE(XIAbout, "XIAbout")

namespace PanoHead
{

/**
 * The plug-in object of one head. It owns the head's page, hands it to the host's wizard and keeps
 * the page's state in the host's settings (group: UID, key: object name) from one run to the next.
 *
 * A head derives its own class with `Q_OBJECT` and `Q_INTERFACES(XIPluginImport XIAbout)`, which
 * answers for the head, and passes that class's name: the object is not of the class yet when this
 * constructor runs.
 */
template <typename Page, const About &about>
class ImportPlugin : public QObject, public XIPluginImport, public XIAbout
{
public:
    ImportPlugin(QObject *parent, const char *className)
        : QObject(parent)
    {
        setObjectName(QString::fromLatin1(className));
        auto page = std::make_unique<Page>(nullptr); // no host's exception is to leak it
        if (XIApplication *host = findHost()) {
            page->RestoreState(
                host->ReadSetting(about.uidText(), objectName(), QVariant()).toByteArray());
        }
        m_page = page.release();
    }

    /** Lets the host keep the page's state, an empty one when the host has deleted the page. */
    ~ImportPlugin() override
    {
        // No exception leaves: a host that cannot keep the state lives on without it.
        try {
            if (XIApplication *host = findHost()) {
                const QByteArray state = m_page.isNull() ? QByteArray() : m_page->SaveState();
                host->WriteSetting(about.uidText(), objectName(), QVariant(state));
            }
        } catch (...) { // NOLINT(bugprone-empty-catch): nobody is left to be told
        }
        delete m_page.data();
    }

    QList<QWizardPage *> WizardPages() override { return { m_page.data() }; }
    [[nodiscard]] QString Name() const override { return about.nameText(); }
    [[nodiscard]] QString Author() const override { return About::authorText(); }
    [[nodiscard]] QString Company() const override { return About::companyText(); }
    [[nodiscard]] QString Comment() const override { return about.commentText(); }
    [[nodiscard]] QString Version() const override { return About::versionText(); }
    [[nodiscard]] QIcon Icon() const override { return QIcon(about.iconPath()); }
    [[nodiscard]] QString UID() const override { return about.uidText(); }

private:
    QList<QPointer<QWizardPage>> m_pages; ///< stays empty
    QPointer<Page> m_page;
};

} // namespace PanoHead
