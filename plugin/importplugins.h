// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xiabout.h"
#include "hostlink/xipluginimport.h"

#include <QObject>
#include <QPointer>
#include <QWizardPage>

class UIWPClauss;
class UIWPGigapan;
class UIWPMerlin;
class UIWPVRDrive2;

// One plug-in object per head. Each owns its page, hands it to the host's wizard and keeps the
// page's state in the host's settings (group: UID, key: object name) from one run to the next.

/** Clauss Rodeon scripts. */
class XClaussImport : public QObject, public XIPluginImport, public XIAbout
{
    Q_OBJECT

public:
    explicit XClaussImport(QObject *parent);
    ~XClaussImport() override;

    QList<QWizardPage *> WizardPages() override;
    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString Author() const override;
    [[nodiscard]] QString Company() const override;
    [[nodiscard]] QString Comment() const override;
    [[nodiscard]] QString Version() const override;
    [[nodiscard]] QIcon Icon() const override;
    [[nodiscard]] QString UID() const override;

private:
    QList<QPointer<QWizardPage>> m_pages; ///< stays empty
    QPointer<UIWPClauss> m_page;
};

/** Gigapan grids. */
class XGigapanImport : public QObject, public XIPluginImport, public XIAbout
{
    Q_OBJECT

public:
    explicit XGigapanImport(QObject *parent);
    ~XGigapanImport() override;

    QList<QWizardPage *> WizardPages() override;
    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString Author() const override;
    [[nodiscard]] QString Company() const override;
    [[nodiscard]] QString Comment() const override;
    [[nodiscard]] QString Version() const override;
    [[nodiscard]] QIcon Icon() const override;
    [[nodiscard]] QString UID() const override;

private:
    QList<QPointer<QWizardPage>> m_pages; ///< stays empty
    QPointer<UIWPGigapan> m_page;
};

/** Papywizard XML records of Merlin/Orion and many other heads. */
class XMerlinImport : public QObject, public XIPluginImport, public XIAbout
{
    Q_OBJECT

public:
    explicit XMerlinImport(QObject *parent);
    ~XMerlinImport() override;

    QList<QWizardPage *> WizardPages() override;
    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString Author() const override;
    [[nodiscard]] QString Company() const override;
    [[nodiscard]] QString Comment() const override;
    [[nodiscard]] QString Version() const override;
    [[nodiscard]] QIcon Icon() const override;
    [[nodiscard]] QString UID() const override;

private:
    QList<QPointer<QWizardPage>> m_pages; ///< stays empty
    QPointer<UIWPMerlin> m_page;
};

/** VR Drive 2 records, which follow the Papywizard schema. */
class XVRDrive2Import : public QObject, public XIPluginImport, public XIAbout
{
    Q_OBJECT

public:
    explicit XVRDrive2Import(QObject *parent);
    ~XVRDrive2Import() override;

    QList<QWizardPage *> WizardPages() override;
    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString Author() const override;
    [[nodiscard]] QString Company() const override;
    [[nodiscard]] QString Comment() const override;
    [[nodiscard]] QString Version() const override;
    [[nodiscard]] QIcon Icon() const override;
    [[nodiscard]] QString UID() const override;

private:
    QList<QPointer<QWizardPage>> m_pages; ///< stays empty
    QPointer<UIWPVRDrive2> m_page;
};
