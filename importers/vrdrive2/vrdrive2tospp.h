// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/papywizard/merlintospp.h"

#include <QList>
#include <QVector>

class XIImageDef;

/**
 * Generates the description from VR Drive 2 records, which follow the Papywizard schema. Adds one
 * step: the photo of median exposure comes first in every bracket, as the stack's reference.
 */
class VRDrive2ToSPP : public MerlinToSPP
{
public:
    /**
     * As `MerlinToSPP::generateSPP`; then swaps the reference to the front of every stack that
     * this call appended. \p imageDefs are the host's objects for \p images, in the same order. The
     * place of the reference is found in the first bracket and used for all: a head brackets
     * every position alike. With fewer photos than one bracket nothing is swapped.
     */
    void generateSPP(QStringList &images, const QList<XIImageDef *> &imageDefs, double focal,
                     LensModel lens);
};

namespace PanoHead
{

/**
 * Place of the reference among the \p exposures of one bracket: the last one that equals the
 * median, for an even count the lower of the two middle values. 0 when none does (not a number).
 */
[[nodiscard]] int referenceIndex(const QVector<double> &exposures);

} // namespace PanoHead
