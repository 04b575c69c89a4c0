// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "host/model/panoramajson.h"

#include <cstdint>

/** Any bytes as a saved panorama: refused with a reason, or the same again when written twice. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString folder = QStringLiteral("/shoot");
    const auto panorama = PanoHost::panoramaFromJson(
        QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)), folder);
    if (!panorama) {
        FUZZ_CHECK(!panorama.error().why.isEmpty());
        return 0;
    }
    const QByteArray written = PanoHost::panoramaToJson(panorama.value(), folder);
    const auto again = PanoHost::panoramaFromJson(written, folder);
    FUZZ_CHECK(again.ok());
    FUZZ_CHECK(PanoHost::panoramaToJson(again.value(), folder) == written);
    return 0;
}
