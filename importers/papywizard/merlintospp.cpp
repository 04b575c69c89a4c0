// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"

#include "importers/papywizard/papywizardreader.h"
#include "shoot/angles.h"
#include "shoot/mismatch.h"
#include "shoot/recordfile.h"
#include "shoot/stacks.h"

MerlinToSPP::MerlinToSPP()
{
    positionsKnown = true;
    rollKnown = true;
    useRecordedLocation = true;
    overlap = 80.0;
}

bool MerlinToSPP::parse(const QString &path)
{
    std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, nullptr);
    const std::optional<PanoHead::PapywizardRecord> read
        = bytes ? PanoHead::readPapywizard(*std::move(bytes)) : std::nullopt;
    const PanoHead::PapywizardRecord record = read.value_or(PanoHead::PapywizardRecord());
    shots = record.shots;
    title = record.title;
    gps = record.gps;
    comment = record.comment;
    xmlFocal = record.xmlFocal;
    sensorCoef = record.sensorCoef;
    nbPicts = record.nbPicts;
    xmlLensType = record.xmlLensType;
    portrait = record.portrait;
    return read.has_value();
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
