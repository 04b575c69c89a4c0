// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

UIWPClauss::UIWPClauss(QWidget *parent)
    : QWizardPage(parent)
{
    setTitle(tr("Clauss import"));
    setSubTitle(tr("This importer is not available yet."));
}

bool UIWPClauss::isComplete() const
{
    return false;
}

QByteArray UIWPClauss::SaveState() const
{
    return {};
}

void UIWPClauss::RestoreState(const QByteArray &state)
{
    Q_UNUSED(state)
}
