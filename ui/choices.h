// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

class QCheckBox;
class QRadioButton;
struct StructuredPanoramaProperties;

namespace PanoHead
{

/** The two pairs of radio buttons on a page's "Stack" tab. */
struct LinkingChoices {
    QRadioButton *referenceLevel;
    QRadioButton *allLevels;
    QRadioButton *hardLinks;
    QRadioButton *detectPoints;
};

/** Hard links go only with the reference level: "All stack levels" was clicked. */
void onAllLevelsClicked(const LinkingChoices &choices, bool checked);
/** Hard links go only with the reference level: "Use hard links" was clicked. */
void onHardLinksClicked(const LinkingChoices &choices, bool checked);
/** Writes `levelLinking` and `stackLinking`; a pair without a checked button writes nothing. */
void writeLinking(StructuredPanoramaProperties &description, const LinkingChoices &choices);

/** The check boxes of a page's detection options. */
struct DetectionOptions {
    QCheckBox *autoDetection;
    QCheckBox *cleanWrongLinks;
    QCheckBox *skipOptimization;
    QCheckBox *useRecordedLocation; ///< null on a page that has none: the field keeps its value
};

/** A flag is true only when its box is fully checked. */
void writeOptions(StructuredPanoramaProperties &description, const DetectionOptions &options);

} // namespace PanoHead
