// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/mismatch.h"

#include <cmath>

namespace PanoHead
{

namespace
{

bool focalLengthsDiffer(double photosMm, double recordMm)
{
    return photosMm > 0.0 && recordMm != kNoRecordedFocal
        && std::abs(photosMm - recordMm) * 10.0 > photosMm;
}

} // namespace

bool fillsBrackets(int photos, int bracketCount)
{
    return bracketCount < 1 || photos % bracketCount == 0;
}

Mismatch lastMismatch(const ShootFacts &record, int bracketCount, const ShootFacts &photos)
{
    if (record.count < 1 || photos.count < 1) {
        return Mismatch::None;
    }
    if (photos.lens.lensType != record.lens.lensType) {
        return Mismatch::LensType;
    }
    if (focalLengthsDiffer(photos.lens.focalMm, record.lens.focalMm)) {
        return Mismatch::FocalLength;
    }
    if (record.count != photos.count) {
        return Mismatch::Count;
    }
    return fillsBrackets(photos.count, bracketCount) ? Mismatch::None : Mismatch::Bracketing;
}

} // namespace PanoHead
