// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

UIWPVRDrive2::UIWPVRDrive2(QWidget *parent)
    : QWizardPage(parent)
{
    setTitle(tr("VRDrive2 import"));
    setSubTitle(tr("This importer is not available yet."));
}

bool UIWPVRDrive2::isComplete() const
{
    return false;
}

QByteArray UIWPVRDrive2::SaveState() const
{
    return {};
}

void UIWPVRDrive2::RestoreState(const QByteArray &state)
{
    Q_UNUSED(state)
}
