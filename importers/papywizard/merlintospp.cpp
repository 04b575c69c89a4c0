// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"

#include "importers/papywizard/papywizardreader.h"
#include "shoot/angles.h"
#include "shoot/mismatch.h"
#include "shoot/recordfile.h"
#include "shoot/stacks.h"

namespace
{

void take(MerlinToSPP &generator, const PanoHead::PapywizardRecord &record)
{
    generator.shots = record.shots;
    generator.title = record.title;
    generator.gps = record.gps;
    generator.comment = record.comment;
    generator.xmlFocal = record.xmlFocal;
    generator.sensorCoef = record.sensorCoef;
    generator.nbPicts = record.nbPicts;
    generator.xmlLensType = record.xmlLensType;
    generator.portrait = record.portrait;
}

} // namespace

MerlinToSPP::MerlinToSPP()
{
    positionsKnown = true;
    rollKnown = true;
    useRecordedLocation = true;
    overlap = 80.0;
}

bool MerlinToSPP::parse(const QString &path)
{
    take(*this, {});
    std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, nullptr);
    const std::optional<PanoHead::PapywizardRecord> record
        = bytes ? PanoHead::readPapywizard(*std::move(bytes)) : std::nullopt;
    if (record) {
        take(*this, *record);
    }
    return record.has_value();
}

void MerlinToSPP::forgetRecord()
{
    shots.clear();
    nbPicts = -1;
    xmlFocal = PanoHead::kNoRecordedFocal;
    xmlLensType = 0;
}

void MerlinToSPP::generateSPP(const QStringList &images, double focal, LensModel lens)
{
    const double chosenFocal = focal < 0.0 ? xmlFocal : focal;
    PanoHead::appendStacks(*this, images, nbPicts);
    PanoHead::appendAngles(*this, shots, PanoHead::RollAngles::Write);
    focalLength = static_cast<float>(chosenFocal);
    lensModel = lens == LensModel::NotChosen ? static_cast<LensModel>(xmlLensType) : lens;
    if (lensModel != LensModel::Fisheye) {
        PanoHead::appendStackLinks(*this, shots, images.size(), nbPicts, focalLength);
    }
}
