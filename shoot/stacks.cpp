// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/stacks.h"

#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"
#include "shoot/angles.h"
#include "shoot/linksearch.h"

#include <algorithm>

namespace PanoHead
{

void appendStacks(StructuredPanoramaProperties &description, const QStringList &images,
                  int bracketCount)
{
    const int bracket = std::max(bracketCount, 1);
    const int positions = images.size() / bracket;
    description.imageGroups.reserve(description.imageGroups.size() + positions);
    for (int position = 0; position < positions; ++position) {
        description.imageGroups.append(images.mid(position * bracket, bracket));
    }
}

void appendStackLinks(StructuredPanoramaProperties &description, const QVector<ShootData> &shots,
                      int photoCount, int bracketCount, float focalMm)
{
    const int bracket = std::max(bracketCount, 1);
    const int positions = std::min(photoCount, shots.size()) / bracket;
    QVector<Direction> directions;
    directions.reserve(positions);
    for (int position = 0; position < positions; ++position) {
        const ShootData &shot = shots.at(position * bracket);
        directions.append({ toRadians(shot.yaw), toRadians(shot.pitch) });
    }
    appendNeighbourLinks(description.authorizedLinks, directions, halfFieldOfView(focalMm));
}

} // namespace PanoHead
