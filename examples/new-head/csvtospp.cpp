// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/csvtospp.h"

#include "hostlink/xiimagedef.h"
#include "importers/csv/csvreader.h"
#include "shoot/angles.h"
#include "shoot/linksearch.h"

#include <algorithm>

CsvToSPP::CsvToSPP()
{
    positionsKnown = true;
    overlap = 25.0;
}

bool CsvToSPP::parse(const QString &fileName)
{
    shots = {}; // clearing a list that others share needs memory
    PanoHead::ReadError error;
    const auto bytes = PanoHead::readRecordFile(fileName, &error);
    const auto read = bytes ? PanoHead::readCsv(*bytes, &error) : std::nullopt;
    shots = read.value_or(QVector<ShootData>());
    return read.has_value();
}

void CsvToSPP::generateSPP(const QStringList &images, const QList<XIImageDef *> &imageDefs)
{
    for (const QString &image : images) {
        imageGroups.append({ image });
    }
    PanoHead::appendAngles(*this, shots, PanoHead::RollAngles::LeaveEmpty);
    const int count = std::min({ images.size(), shots.size(), imageDefs.size() });
    QVector<PanoHead::PhotoDirection> photos;
    photos.reserve(count);
    for (int i = 0; i < count; ++i) {
        photos.append({ shots.at(i).yaw, shots.at(i).pitch, imageDefs.at(i)->FocalLength() });
    }
    PanoHead::appendCloseLinks(authorizedLinks, photos);
}
