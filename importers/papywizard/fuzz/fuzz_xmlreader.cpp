// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "importers/papywizard/papywizardreader.h"

#include <cmath>
#include <cstdint>

/** Any bytes as a Papywizard record: refused with a reason, or read into finite numbers. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    PanoHead::ReadError error;
    const auto record = PanoHead::readPapywizard(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size)),
        &error);
    FUZZ_CHECK(record.has_value() == error.reason.isEmpty());
    if (!record) {
        return 0;
    }
    for (const ShootData &shot : record->shots) {
        FUZZ_CHECK(std::isfinite(shot.yaw) && std::isfinite(shot.pitch) && shot.roll == 0.0F);
    }
    FUZZ_CHECK(std::isfinite(record->sensorCoef));
    FUZZ_CHECK(std::isfinite(record->xmlFocal));
    FUZZ_CHECK(record->xmlLensType == 0 || record->xmlLensType == 1);
    FUZZ_CHECK(record->shots.isEmpty() || record->hasShoot);
    return 0;
}
