// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/merlintospp.h"

#include "importers/papywizard/papywizardreader.h"
#include "shoot/angles.h"
#include "shoot/linksearch.h"
#include "shoot/recordfile.h"

#include <algorithm>

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

void MerlinToSPP::generateSPP(const QStringList &images, double focal, LensModel lens)
{
    const double chosenFocal = focal < 0.0 ? xmlFocal : focal;
    appendStacks(images);
    PanoHead::appendAngles(*this, shots, PanoHead::RollAngles::Write);
    focalLength = static_cast<float>(chosenFocal);
    lensModel = lens == LensModel::NotChosen ? static_cast<LensModel>(xmlLensType) : lens;
    if (lensModel != LensModel::Fisheye) {
        appendLinks(images.size(), focalLength);
    }
}

int MerlinToSPP::bracketCount() const
{
    return std::max(nbPicts, 1);
}

void MerlinToSPP::appendStacks(const QStringList &images)
{
    const int bracket = bracketCount();
    const int positions = images.size() / bracket;
    imageGroups.reserve(imageGroups.size() + positions);
    for (int position = 0; position < positions; ++position) {
        imageGroups.append(images.mid(position * bracket, bracket));
    }
}

/** A position points where its first exposure points. */
void MerlinToSPP::appendLinks(int photos, float focalMm)
{
    const int bracket = bracketCount();
    const int positions = std::min(photos, shots.size()) / bracket;
    QVector<PanoHead::Direction> directions;
    directions.reserve(positions);
    for (int position = 0; position < positions; ++position) {
        const ShootData &shot = shots.at(position * bracket);
        directions.append({ PanoHead::toRadians(shot.yaw), PanoHead::toRadians(shot.pitch) });
    }
    PanoHead::appendNeighbourLinks(authorizedLinks, directions, PanoHead::halfFieldOfView(focalMm));
}
