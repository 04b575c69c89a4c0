// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/bytesource.h"
#include "fuzz/check.h"
#include "fuzz/shoot.h"
#include "importers/clauss/clausstospp.h"
#include "importers/gigapan/gigapantospp.h"
#include "importers/gigapan/gridguess.h"
#include "importers/gigapan/gridlayout.h"
#include "importers/vrdrive2/vrdrive2tospp.h"
#include "shoot/anglerange.h"

using namespace PanoHead;

namespace
{

constexpr int kMaxPhotos = 72; // links of 64 directions and more are searched by an index

const PhotoSet &photos()
{
    static const PhotoSet set(kMaxPhotos, false);
    return set;
}

/** Shots until the bytes are used up: a run spent on linking equal directions finds little. */
QVector<ShootData> takeShots(ByteSource &bytes)
{
    QVector<ShootData> shots;
    for (int left = bytes.count(kMaxPhotos); left > 0 && bytes.size() > 0; --left) {
        ShootData shot;
        shot.yaw = bytes.angle();
        shot.pitch = bytes.angle();
        shot.roll = bytes.angle();
        shots.append(shot);
    }
    return shots;
}

/** Any shots, any number of photos, any answers of a page: also those that no page lets through. */
void generateFromRecord(ByteSource &bytes)
{
    const int count = bytes.count(kMaxPhotos);
    QStringList names = photos().names(count);
    const QList<XIImageDef *> images = photos().images(bytes.count(kMaxPhotos));
    VRDrive2ToSPP xml;
    xml.nbPicts = bytes.take<qint32>() % 64;
    xml.xmlFocal = bytes.take<double>();
    xml.xmlLensType = bytes.between(0, 1);
    const auto focal = bytes.take<double>();
    const auto lens = static_cast<LensModel>(bytes.between(-1, 1));
    xml.shots = takeShots(bytes);
    xml.generateSPP(names, images, focal, lens);
    checkDescription(xml, count, xml.shots.size());
}

void generateFromScript(ByteSource &bytes)
{
    const int count = bytes.count(kMaxPhotos);
    QStringList names = photos().names(count);
    const QList<XIImageDef *> images = photos().images(bytes.count(kMaxPhotos));
    ClaussToSPP script;
    script.shots = takeShots(bytes);
    script.generateSPP(names, images);
    checkDescription(script, count, script.shots.size());
}

void layOut(ByteSource &bytes)
{
    const int smallestStep = bytes.between(0, 8);
    const QVector<ShootData> shots = takeShots(bytes);
    const AngleExtents extents = extentsOf(shots);
    for (const Span span : { Span::Absolute, Span::NegatedSumToo }) {
        for (const Precision precision : { Precision::Single, Precision::Double }) {
            const LayoutRules rules{ static_cast<double>(smallestStep), span, precision, 32'767,
                                     kFuzzCanvasBytes };
            checkLayout(layOutShots(shots, extents, rules), rules);
        }
    }
}

void generateFromGrid(ByteSource &bytes)
{
    const int count = bytes.count(kMaxPhotos);
    const int rows = bytes.count(32) - 2;
    const int columns = bytes.count(32) - 2;
    const int bracket = bytes.take<qint32>();
    const int ignored = bytes.take<qint32>();
    const int mode = bytes.between(-1, 6);
    const bool is360 = bytes.between(0, 1) == 1;
    GigapanToSPP grid(rows, columns, mode, bracket, ignored);
    grid.generateSPP(photos().names(count), is360);
    for (const QStringList &group : grid.imageGroups) {
        FUZZ_CHECK(!group.isEmpty());
    }
    for (const AuthorizedLink &link : grid.authorizedLinks) {
        FUZZ_CHECK(link.indices[0] >= 0 && link.indices[0] < rows * columns);
        FUZZ_CHECK(link.indices[1] >= 0 && link.indices[1] < rows * columns);
    }
    const GridSize guess = guessGrid(count);
    FUZZ_CHECK(guess.rows >= 1 && guess.rows * guess.columns == count);
    (void)columnsFor(count, ignored & 0xffff, bracket, rows);
    const GridView view{ bytes.count(99) + 1, bytes.count(99) + 1, mode, bracket, ignored };
    const PreviewLayout layout
        = layOutGrid(view, QSize(bytes.between(0, 65'535), bytes.between(0, 65'535)));
    FUZZ_CHECK(layout.canvas.width() <= 10'000 && layout.canvas.height() <= 10'000);
    FUZZ_CHECK(layout.isEmpty() || layout.cells.size() == view.rows * view.columns);
}

} // namespace

/** One of the generators or layouts on values that come neither from a reader nor from a page. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    ByteSource bytes(data, size);
    switch (bytes.between(0, 3)) {
    case 0:
        generateFromGrid(bytes);
        break;
    case 1:
        generateFromRecord(bytes);
        break;
    case 2:
        generateFromScript(bytes);
        break;
    default:
        layOut(bytes);
    }
    return 0;
}
