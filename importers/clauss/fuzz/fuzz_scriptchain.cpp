// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/shoot.h"
#include "importers/clauss/clausstospp.h"
#include "shoot/anglerange.h"
#include "shoot/angles.h"

#include <algorithm>

using namespace PanoHead;

namespace
{

constexpr int kMaxPhotos = 64;

// As on the page, but for the canvas.
constexpr LayoutRules kRules{ 0.0, Span::Absolute, Precision::Single, 32'767, kFuzzCanvasBytes };

} // namespace

/** Any bytes through everything that the Clauss page does with a script from the click to Next. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    startOffscreen();
    static const MemoryFile file;
    static const PhotoSet photos(kMaxPhotos, true);
    file.fill(data, size);

    ClaussToSPP generator;
    if (!generator.parse(file.path())) {
        return 0;
    }
    AngleExtents extents = extentsOf(generator.shots);
    if (size % 2 == 0) {
        invertPitch(generator.shots);
        extents.pitch = extents.pitch.negated();
    }
    const int count = std::min(generator.shots.size(), kMaxPhotos);
    QStringList names = photos.names(count);
    generator.generateSPP(names, photos.images(count));
    checkDescription(generator, count, generator.shots.size());
    const PreviewLayout layout = layOutShots(generator.shots, extents, kRules);
    checkLayout(layout, kRules);
    paint(layout, photos.images(count), CellStyle::FittedWithCaption,
          static_cast<int>(size % 100) + 1);
    return 0;
}
