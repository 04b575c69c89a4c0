// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panoramajson.h"

#include "host/model/jsonfields.h"
#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace PanoHost
{

namespace
{

constexpr int kSchema = 1;
/** 70,000 positions with a million links take about 64 MB. */
constexpr qint64 kMostJsonBytes = 512LL * 1024 * 1024;

QString stackLinkingName(qint32 linking)
{
    return linking == 0 ? QStringLiteral("hard") : QStringLiteral("detect");
}

QString levelLinkingName(qint32 linking)
{
    return linking == 0 ? QStringLiteral("reference") : QStringLiteral("all");
}

double fieldOfView(const Panorama &panorama)
{
    const bool empty = panorama.positions.isEmpty();
    const QSize size = empty ? QSize() : panorama.positions.first().photos.first().storedSize;
    // It belongs to the digits written: who reads and writes them gets it again.
    return horizontalFovDegrees(size, jsonText(panorama.focal35mm).toDouble(), panorama.lens);
}

int gridColumns(const Panorama &panorama)
{
    const int rows = panorama.description.gridRows;
    const int cells = panorama.positions.size() + panorama.missingCells.size();
    return rows > 0 ? (cells + rows - 1) / rows : 0;
}

constexpr auto kSourceFields = [](JsonFields &json, auto &source) {
    json.field("plugin", source.pluginUid, "UID of the import plug-in");
    json.field("name", source.name);
    json.path("record", source.record, "path of the head's file; empty when there is none");
    json.field("version", source.version);
};

constexpr auto kLensFields = [](JsonFields &json, auto &panorama) {
    json.word("model", panorama.lens,
              { LensModel::Standard, LensModel::Fisheye, LensModel::NotChosen }, lensName);
    json.field("focal35mm", panorama.focal35mm,
               About("35 mm equivalent by the frame's diagonal; 0: not known").atLeast(0));
    json.derived("hfovDeg", fieldOfView(panorama),
                 About("horizontal field of view of the stored pixels of the first photo; "
                       "0: not known")
                     .atLeast(0));
};

constexpr auto kPhotoFields = [](JsonFields &json, auto &photo) {
    json.path("file", photo.path, About().atLeast(1).insist("a file name"));
    json.property("width", photo.storedSize, &QSize::width, &QSize::setWidth, "stored pixels");
    json.property("height", photo.storedSize, &QSize::height, &QSize::setHeight, "stored pixels");
    json.field("orientation", photo.orientation,
               About("EXIF orientation").atLeast(1).atMost(8).insist("1 to 8"));
    json.field("ev", photo.exposureValue,
               About("log2(N^2 / t) - log2(ISO / 100); null: not known").orNull());
    json.field("time", photo.timeText, About("ISO 8601 without zone; null: not known").orNull());
};

constexpr auto kPositionFields = [](JsonFields &json, auto &position) {
    json.index("index");
    json.field("yawDeg", position.yawDegrees, About("to the right").orNull());
    json.field("pitchDeg", position.pitchDegrees, About("up").orNull());
    json.field("rollDeg", position.rollDegrees,
               About("clockwise as seen from behind the camera").orNull());
    json.list("photos", position.photos, kPhotoFields,
              About("One photo, or the photos of an exposure bracket; the first is the reference.")
                  .atLeast(1)
                  .insist("a list with a photo"));
};

constexpr auto kAnglesFields = [](JsonFields &json, auto &description) {
    json.field("yaw", description.yaw);
    json.field("pitch", description.pitch);
    json.field("roll", description.roll);
};

constexpr auto kLinkFields = [](JsonFields &json, auto &link) {
    json.field("type", link.linkType, "1 below, 2 beside, 3 and 4 diagonal");
    json.field("positions", link.indices);
};

constexpr auto kOptionsFields = [](JsonFields &json, auto &description) {
    json.field("autoDetection", description.autoDetection);
    json.word("stackLinking", description.stackLinking, { 0, 1 }, stackLinkingName);
    json.word("levelLinking", description.levelLinking, { 0, 1 }, levelLinkingName);
    json.field("useRecordedLocation", description.useRecordedLocation);
    json.field("skipOptimization", description.skipOptimization);
    json.field("cleanWrongLinks", description.cleanWrongLinks);
    json.field("overlapPercent", description.overlap, About().orNull());
    json.field("renderMode", description.renderMode, "-1 not said, 2 tonemapped, 3 HDR radiance");
};

constexpr auto kGridFields = [](JsonFields &json, auto &panorama) {
    auto &description = panorama.description;
    json.field("mode", description.gridMode);
    json.field("rows", description.gridRows, "0: no grid");
    json.derived("columns", gridColumns(panorama), "follows from rows and positions; 0: no grid");
    json.field("missing", panorama.missingCells,
               "cells without a position, in shooting order from 0");
    json.field("bracketCount", description.gridBracketCount);
    json.field("wrap360", description.gridWrap360);
};

constexpr auto kReservedFields = [](JsonFields &json, auto &description) {
    json.field("values", description.reservedValues, About().atLeast(3).atMost(3));
    json.field("flag1", description.reservedFlag1);
    json.field("index1", description.reservedIndex1);
    json.field("text1", description.reservedText1);
    json.field("text2", description.reservedText2);
    json.field("flag3", description.reservedFlag3);
};

constexpr auto kProjectFields = [](JsonFields &json, auto &project) {
    json.field("yawCentreDeg", project.yawCentreDegrees, "was subtracted from every yaw");
    json.path("file", project.path);
};

constexpr auto kPanoramaFields = [](JsonFields &json, auto &panorama) {
    auto &description = panorama.description;
    json.constant("schema", kSchema);
    json.object("source", panorama.source, kSourceFields, "The importer and the head's record.");
    json.object("lens", panorama, kLensFields);
    json.field("positionsKnown", description.positionsKnown,
               "the directions were recorded by the head");
    json.field("rollKnown", description.rollKnown);
    json.list("positions", panorama.positions, kPositionFields, "One entry per shooting position.");
    json.object("angles", description, kAnglesFields,
                About("Radians as received, one entry per shot that has a photo.").inLines());
    json.list("links", description.authorizedLinks, kLinkFields,
              "Pairs of positions between which control points may be looked for.");
    json.object("options", description, kOptionsFields);
    json.object("grid", panorama, kGridFields);
    json.object("reserved", description, kReservedFields);
    json.optionalObject("pto", panorama.project, kProjectFields,
                        "The Hugin project written for this panorama.");
    json.field("warnings", panorama.warnings);
};

/** Fills what a document says once and a panorama says twice. */
void fillCopies(Panorama &panorama)
{
    StructuredPanoramaProperties &description = panorama.description;
    description.focalLength = static_cast<float>(panorama.focal35mm);
    description.lensModel = panorama.lens;
    for (Position &position : panorama.positions) {
        QStringList group;
        for (PhotoInfo &photo : position.photos) {
            photo.timeMs = timeMsFromText(photo.timeText);
            group.append(photo.path);
        }
        description.imageGroups.append(group);
    }
}

} // namespace

QByteArray panoramaToJson(const Panorama &panorama, const QString &folder)
{
    return writeJson([&](JsonFields &fields) { kPanoramaFields(fields, panorama); }, folder);
}

Result<Panorama> panoramaFromJson(const QByteArray &json, const QString &folder)
{
    Panorama panorama;
    panorama.lens = LensModel::NotChosen; // stays when the document does not name the lens
    const auto failure
        = readJson(json, folder, [&](JsonFields &fields) { kPanoramaFields(fields, panorama); });
    if (failure) {
        return *failure;
    }
    fillCopies(panorama);
    return panorama;
}

QByteArray identityOf(const Panorama &panorama)
{
    Panorama unsaved = panorama;
    unsaved.project.reset();
    return QCryptographicHash::hash(panoramaToJson(unsaved, {}), QCryptographicHash::Sha1);
}

QByteArray panoramaSchema()
{
    return jsonSchema("https://orvane.invalid/panohost.schema.json",
                      "A structured panorama, as panohost writes it (schema 1)",
                      "Paths are relative to the JSON file. Readers ignore keys that they do not "
                      "know.",
                      [](JsonFields &fields) {
                          const Panorama panorama;
                          kPanoramaFields(fields, panorama);
                      });
}

Result<Panorama> readPanoramaJson(const QString &path)
{
    const QString tryThis = Said::tr("name a file that 'panohost import --json' has written");
    const auto content = readRegularFile(path, kMostJsonBytes);
    if (!content) {
        Failure failure = content.error();
        failure.tryThis = tryThis;
        return failure;
    }
    auto panorama = panoramaFromJson(content.value(), QFileInfo(path).canonicalPath());
    if (!panorama) {
        Failure failure = panorama.error();
        failure.what = path + QStringLiteral(": ") + failure.what;
        failure.tryThis = tryThis;
        return failure;
    }
    return panorama;
}

Result<QString> writePanoramaJson(const Panorama &panorama, const QString &path)
{
    return writeFileAtomically(path, panoramaToJson(panorama, QFileInfo(path).absolutePath()));
}

} // namespace PanoHost
