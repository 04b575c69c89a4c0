// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/recordedshoot.h"

#include "importers/papywizard/merlintospp.h"
#include "shoot/shootstate.h"

namespace PanoHead
{

bool readRecord(MerlinToSPP &generator, ShootState &state, const QString &path)
{
    state.shotCount = -1;
    if (!generator.parse(path)) {
        return false;
    }
    state.shotCount = generator.shots.size();
    state.setExtents(extentsOf(generator.shots));
    return true;
}

void forgetShoot(MerlinToSPP &generator, ShootState &state)
{
    state = ShootState();
    generator.shots.clear();
    generator.nbPicts = -1;
    generator.xmlFocal = kNoRecordedFocal;
    generator.xmlLensType = 0;
}

LensFacts adoptPhotos(ShootState &state, const MerlinToSPP &generator, const LensFacts &photos)
{
    state.imageFocal = photos.focalMm;
    state.imageLensType = photos.lensType;
    return presetLens(photos, { generator.xmlFocal, generator.xmlLensType });
}

QString headerText(const MerlinToSPP &generator)
{
    return QStringLiteral("%1\n%2\n%3").arg(generator.title, generator.gps, generator.comment);
}

Mismatch mismatchOf(const MerlinToSPP &generator, const ShootState &state)
{
    return lastMismatch({ state.shotCount, { generator.xmlFocal, generator.xmlLensType } },
                        generator.nbPicts,
                        { state.images.size(), { state.imageFocal, state.imageLensType } });
}

} // namespace PanoHead
