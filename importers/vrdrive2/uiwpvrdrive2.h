// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QWizardPage>

/** Stands in for the importer's page until the importer exists. */
class UIWPVRDrive2 : public QWizardPage
{
    Q_OBJECT

public:
    explicit UIWPVRDrive2(QWidget *parent);

    [[nodiscard]] bool isComplete() const override;
    [[nodiscard]] QByteArray SaveState() const;
    void RestoreState(const QByteArray &state);
};
