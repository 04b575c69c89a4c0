// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/clausstospp.h"

#include "hostlink/xiimagedef.h"
#include "importers/clauss/claussscript.h"
#include "shoot/angles.h"
#include "shoot/linksearch.h"

#include <algorithm>

ClaussToSPP::ClaussToSPP()
{
    positionsKnown = true;
    useRecordedLocation = false;
    overlap = 25.0;
}

bool ClaussToSPP::parse(const QString &fileName)
{
    shots = {}; // clearing a list that others share needs memory
    const std::optional<QByteArray> bytes = PanoHead::readRecordFile(fileName, nullptr);
    if (!bytes) {
        return false;
    }
    const PanoHead::ClaussScript script = PanoHead::readClaussScript(*bytes);
    shots = script.shots;
    return script.isSound;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a fixed signature
void ClaussToSPP::generateSPP(QStringList &images, QList<XIImageDef *> imageDefs)
{
    for (const QString &image : qAsConst(images)) {
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
