// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/recordedshoot.h"

#include "shoot/shootstate.h"

namespace PanoHead
{

bool readRecord(ShootState &state, const QVector<ShootData> &shots,
                const std::function<bool()> &read)
{
    state.shotCount = -1;
    if (!read()) {
        return false;
    }
    state.shotCount = shots.size();
    state.setExtents(extentsOf(shots));
    return true;
}

LensFacts adoptPhotos(ShootState &state, const LensFacts &recorded, const LensFacts &photos)
{
    state.imageFocal = photos.focalMm;
    state.imageLensType = photos.lensType;
    return presetLens(photos, recorded);
}

QString headerText(const QString &title, const QString &gps, const QString &comment)
{
    return QStringLiteral("%1\n%2\n%3").arg(title, gps, comment);
}

Mismatch mismatchOf(const ShootState &state, const LensFacts &recorded, int bracketCount)
{
    return lastMismatch({ state.shotCount, recorded }, bracketCount,
                        { state.images.size(), { state.imageFocal, state.imageLensType } });
}

} // namespace PanoHead
