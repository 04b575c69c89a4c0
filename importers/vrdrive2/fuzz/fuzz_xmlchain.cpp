// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/shoot.h"
#include "importers/vrdrive2/vrdrive2tospp.h"
#include "shoot/angles.h"
#include "shoot/recordedshoot.h"
#include "shoot/shootstate.h"

#include <algorithm>

using namespace PanoHead;

namespace
{

constexpr int kMaxPhotos = 64;

// As on the two pages, but for the canvas.
constexpr LayoutRules kRules[] = {
    { 8.0, Span::Absolute, Precision::Double, 32'767, kFuzzCanvasBytes },
    { 8.0, Span::NegatedSumToo, Precision::Double, 32'767, kFuzzCanvasBytes },
};

} // namespace

/** Any bytes through everything that a page does with a record from the click to Next. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    startOffscreen();
    static const MemoryFile file;
    static const PhotoSet photos(kMaxPhotos, true);
    file.fill(data, size);

    VRDrive2ToSPP generator;
    ShootState state;
    const bool isRead
        = readRecord(state, generator.shots, [&generator] { return generator.parse(file.path()); });
    FUZZ_CHECK(isRead == (state.shotCount >= 0));
    const int count = std::min(generator.shots.size(), kMaxPhotos);
    state.images = photos.names(count);
    const LensFacts recorded{ generator.xmlFocal, generator.xmlLensType };
    const LensFacts lens = adoptPhotos(state, recorded, { 24.0, 0 });
    (void)headerText(generator.title, generator.gps, generator.comment);
    (void)mismatchOf(state, recorded, generator.nbPicts);
    if (size % 2 == 0) {
        invertPitch(generator.shots);
        state.invertPitchRange();
        rotate(generator.shots, 90.0F);
    }

    QStringList names = state.images;
    generator.generateSPP(names, photos.images(count), size % 3 == 0 ? -1.0 : lens.focalMm,
                          LensModel::NotChosen);
    checkDescription(generator, count, generator.shots.size());
    for (const LayoutRules &rules : kRules) {
        const PreviewLayout layout = layOutShots(generator.shots, state.extents(), rules);
        checkLayout(layout, rules);
        paint(layout, photos.images(count), CellStyle::FittedWithCaption,
              static_cast<int>(size % 100) + 1);
    }
    return 0;
}
