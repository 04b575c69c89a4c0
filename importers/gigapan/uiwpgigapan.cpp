// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

UIWPGigapan::UIWPGigapan(QWidget *parent)
    : QWizardPage(parent)
{
    setTitle(tr("Gigapan import"));
    setSubTitle(tr("This importer is not available yet."));
}

bool UIWPGigapan::isComplete() const
{
    return false;
}

QByteArray UIWPGigapan::SaveState() const
{
    return {};
}

void UIWPGigapan::RestoreState(const QByteArray &state)
{
    Q_UNUSED(state)
}
