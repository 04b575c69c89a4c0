// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "importers/clauss/claussscript.h"

#include <cmath>
#include <cstdint>

/** Any bytes as a Clauss script: numbered positions at finite angles. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const PanoHead::ClaussScript script = PanoHead::readClaussScript(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    for (int i = 0; i < script.shots.size(); ++i) {
        const ShootData &shot = script.shots.at(i);
        FUZZ_CHECK(shot.id == i && shot.time.isNull() && shot.roll == 0.0F);
        FUZZ_CHECK(std::isfinite(shot.yaw) && std::isfinite(shot.pitch));
    }
    FUZZ_CHECK(script.isSound == script.firstError.reason.isEmpty());
    return 0;
}
