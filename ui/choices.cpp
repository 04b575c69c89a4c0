// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/choices.h"

#include "model/structuredpanoramaproperties.h"

#include <QCheckBox>
#include <QRadioButton>

namespace PanoHead
{

namespace
{

void writePair(qint32 &field, const QRadioButton *zero, const QRadioButton *one)
{
    if (zero->isChecked()) {
        field = 0;
    } else if (one->isChecked()) {
        field = 1;
    }
}

bool isFullyChecked(const QCheckBox *box)
{
    return box->checkState() == Qt::Checked;
}

} // namespace

void onAllLevelsClicked(const LinkingChoices &choices, bool checked)
{
    if (checked) {
        choices.detectPoints->setChecked(true);
        choices.hardLinks->setChecked(false);
    }
}

void onHardLinksClicked(const LinkingChoices &choices, bool checked)
{
    if (checked) {
        choices.referenceLevel->setChecked(true);
        choices.allLevels->setChecked(false);
    }
}

void writeLinking(StructuredPanoramaProperties &description, const LinkingChoices &choices)
{
    writePair(description.levelLinking, choices.referenceLevel, choices.allLevels);
    writePair(description.stackLinking, choices.hardLinks, choices.detectPoints);
}

void writeOptions(StructuredPanoramaProperties &description, const DetectionOptions &options)
{
    description.autoDetection = isFullyChecked(options.autoDetection);
    description.cleanWrongLinks = isFullyChecked(options.cleanWrongLinks);
    description.skipOptimization = isFullyChecked(options.skipOptimization);
    if (options.useRecordedLocation != nullptr) {
        description.useRecordedLocation = isFullyChecked(options.useRecordedLocation);
    }
}

} // namespace PanoHead
