// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignmentreport.h"

#include "host/model/displayname.h"
#include "host/model/jsonfields.h"
#include "host/model/said.h"

#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr int kSchema = 1;

/** \p value with at most \p decimals of them and no noughts at the end. */
QString figure(double value, int decimals)
{
    static const QRegularExpression noughts(QStringLiteral("\\.?0+$"));
    const QString text = QString::number(value, 'f', decimals);
    return text.contains(QLatin1Char('.')) ? QString(text).remove(noughts) : text;
}

QString fileName(const QString &path)
{
    return QFileInfo(path).fileName();
}

QString pointsSentence(const AlignmentReport &report)
{
    return Said::tr("%1 of %2 tied, %3, median %4 pixels")
        .arg(QString::number(report.tiedCount()), counted(report.photos.size(), "photo"),
             (report.pointCount == 1 ? Said::tr("%1 point") : Said::tr("%1 points"))
                 .arg(QLocale(QLocale::English, QLocale::UnitedStates).toString(report.pointCount)),
             figure(report.medianPixels, 2));
}

/** Names all photos of a few, and the first of many. */
QString namesOf(const QStringList &paths)
{
    constexpr int kMost = 4;
    QStringList names;
    for (const QString &path : paths.mid(0, kMost)) {
        names.append(fileName(path));
    }
    const int more = paths.size() - names.size();
    return names.join(QLatin1String(", "))
        + (more > 0 ? Said::tr(" and %1 more").arg(more) : QString());
}

void addUntied(const AlignmentReport &report, QStringList &lines)
{
    QStringList untied;
    for (const AlignedPhoto &photo : report.photos) {
        if (!photo.isTied()) {
            untied.append(photo.path);
        }
    }
    if (!untied.isEmpty()) {
        lines.append((untied.size() == 1
                          ? Said::tr("no points in %1 (%2): kept where the head put it")
                          : Said::tr("no points in %1 (%2): kept where the head put them"))
                         .arg(counted(untied.size(), "photo"), namesOf(untied)));
    }
}

void addLens(const AlignmentReport &report, QStringList &lines)
{
    constexpr double kVisibleMm = 0.05;
    if (report.focal35mm > 0.0
        && std::abs(report.focal35mm - report.recordedFocal35mm) >= kVisibleMm) {
        lines.append(Said::tr("lens %1 mm instead of %2")
                         .arg(figure(report.focal35mm, 1), figure(report.recordedFocal35mm, 1)));
    }
}

void addLight(const AlignmentReport &report, QStringList &lines)
{
    constexpr double kVisibleShare = 0.1;
    if (report.cornerLight < 1.0 - kVisibleShare) {
        lines.append(Said::tr("the lens darkens its corners by %1 %: evened out")
                         .arg(qRound(100.0 * (1.0 - report.cornerLight))));
    }
    constexpr double kVisibleStops = 0.2;
    const auto isLess = [](double one, double other) { return std::abs(one) < std::abs(other); };
    const auto *const most
        = std::max_element(report.exposureShifts.cbegin(), report.exposureShifts.cend(), isLess);
    if (most != report.exposureShifts.cend() && std::abs(*most) >= kVisibleStops) {
        lines.append(
            Said::tr("exposures are not what the photos say, by up to %1 stops: evened out")
                .arg(figure(std::abs(*most), 1)));
    }
}

void addHead(const AlignmentReport &report, QStringList &lines)
{
    if (report.playDegrees) {
        constexpr double kNoneDegrees = 0.01;
        lines.append(Said::tr("the head repeats to %1 degrees")
                         .arg(*report.playDegrees < kNoneDegrees
                                  ? Said::tr("less than %1").arg(kNoneDegrees)
                                  : figure(*report.playDegrees, 2)));
    }
    constexpr double kVisibleDegrees = 0.1;
    const double crooked
        = std::hypot(report.isGrid ? 0.0 : report.mountPitchDegrees, report.mountRollDegrees);
    if (crooked >= kVisibleDegrees) {
        lines.append(
            Said::tr("the camera sits %1 degrees crooked on the head").arg(figure(crooked, 1)));
    }
    constexpr double kVisibleShare = 0.005;
    if (report.isGrid
        && std::abs(report.yawScale - 1.0) + std::abs(report.pitchScale - 1.0) > kVisibleShare) {
        lines.append(Said::tr("the head's steps are %1 (across) and %2 (up) times what was stated")
                         .arg(figure(report.yawScale, 3), figure(report.pitchScale, 3)));
    }
}

QString slipSentence(const SlippedAxis &slip)
{
    return slip.yawDegrees > 0.0
        ? Said::tr("from %1 on the head stands %2 degrees farther right than recorded: did its "
                   "turning axis slip?")
        : slip.yawDegrees < 0.0
        ? Said::tr("from %1 on the head stands %2 degrees farther left than recorded: did its "
                   "turning axis slip?")
        : slip.pitchDegrees > 0.0
        ? Said::tr("from %1 on the head stands %2 degrees higher than recorded: did its tilting "
                   "axis slip?")
        : Said::tr("from %1 on the head stands %2 degrees lower than recorded: did its tilting "
                   "axis slip?");
}

void addFaults(const AlignmentReport &report, QStringList &lines)
{
    for (const SlippedAxis &slip : report.slips) {
        const bool turns = slip.yawDegrees != 0.0;
        lines.append(slipSentence(slip).arg(
            fileName(slip.path), figure(std::abs(turns ? slip.yawDegrees : slip.pitchDegrees), 1)));
    }
    for (const BumpedPhoto &bump : report.bumps) {
        lines.append(Said::tr("%1 was taken %2 degrees from where the head says: was it bumped?")
                         .arg(fileName(bump.path), figure(bump.degrees, 1)));
    }
    if (report.parallaxPixels) {
        lines.append(
            Said::tr("residuals suggest parallax (%1 pixels): near things move against far ones; "
                     "is the camera's nodal point on the head's axes?")
                .arg(figure(*report.parallaxPixels, 1)));
    }
}

constexpr auto kAnglesFields = [](JsonFields &json, auto &angles) {
    json.field("yawDeg", angles.yaw, "to the right");
    json.field("pitchDeg", angles.pitch, "up");
    json.field("rollDeg", angles.roll, "clockwise as seen from behind the camera");
};

constexpr auto kPhotoFields = [](JsonFields &json, auto &photo) {
    json.index("index");
    json.path("file", photo.path);
    json.field("points", photo.points, About("right ones; three and more hold a photo").atLeast(0));
    json.object("recorded", photo.recorded, kAnglesFields);
    json.object("aligned", photo.aligned, kAnglesFields);
    json.field("movedDeg", photo.movedDegrees,
               About("by the points, away from where head, mount and lens put it").atLeast(0));
};

constexpr auto kSlipFields = [](JsonFields &json, auto &slip) {
    json.path("file", slip.path, "the first photo after it");
    json.field("yawDeg", slip.yawDegrees);
    json.field("pitchDeg", slip.pitchDegrees);
};

constexpr auto kBumpFields = [](JsonFields &json, auto &bump) {
    json.path("file", bump.path);
    json.field("deg", bump.degrees, About().atLeast(0));
};

constexpr auto kLensFields = [](JsonFields &json, auto &report) {
    json.field("recordedFocal35mm", report.recordedFocal35mm);
    json.field("focal35mm", report.focal35mm, "0: the photos have several sizes");
    json.field("a", report.distortionA);
    json.field("b", report.distortionB);
    json.field("c", report.distortionC);
    json.field("cornerLight", report.cornerLight, "the corners' share of the middle's light");
};

constexpr auto kHeadFields = [](JsonFields &json, auto &report) {
    json.field("playDeg", report.playDegrees,
               About("one standard deviation of an axis; null: too few photos are tied").orNull());
    json.field("mountPitchDeg", report.mountPitchDegrees, "of the camera on the head");
    json.field("mountRollDeg", report.mountRollDegrees);
    json.field("yawScale", report.yawScale, "true steps to recorded ones");
    json.field("pitchScale", report.pitchScale);
};

constexpr auto kReportFields = [](JsonFields &json, auto &report) {
    json.constant("schema", kSchema);
    json.field("placed", report.isPlaced, "photos were moved; the notes say why not");
    json.field("pairs", report.pairCount, "looked at");
    json.field("matchedPairs", report.matchedPairCount);
    json.field("points", report.pointCount, "right ones");
    json.field("wrongPoints", report.wrongPointCount);
    json.field("medianPixels", report.medianPixels, "residual of the right points");
    json.object("lens", report, kLensFields);
    json.object("head", report, kHeadFields);
    json.list("slips", report.slips, kSlipFields,
              "From here on an axis stands elsewhere than recorded.");
    json.list("bumps", report.bumps, kBumpFields, "Photos that stand elsewhere, one by one.");
    json.field("parallaxPixels", report.parallaxPixels,
               About("residuals that only a moving viewpoint explains; null: none").orNull());
    json.field("exposureShifts", report.exposureShifts,
               "stops, one per photo; empty: no photometry");
    json.list("photos", report.photos, kPhotoFields,
              "One entry per photo with a direction of its own.");
    json.field("notes", report.notes);
};

} // namespace

int AlignmentReport::tiedCount() const
{
    return static_cast<int>(std::count_if(
        photos.cbegin(), photos.cend(), [](const AlignedPhoto &photo) { return photo.isTied(); }));
}

QStringList sentences(const AlignmentReport &report)
{
    QStringList lines;
    if (report.pointCount > 0) {
        lines.append(pointsSentence(report));
    }
    if (report.isPlaced) {
        addHead(report, lines);
        addLens(report, lines);
        addLight(report, lines);
        addUntied(report, lines);
        addFaults(report, lines);
    }
    return lines + report.notes;
}

QByteArray alignmentToJson(const AlignmentReport &report, const QString &folder)
{
    return writeJson([&](JsonFields &fields) { kReportFields(fields, report); }, folder);
}

Result<AlignmentReport> alignmentFromJson(const QByteArray &json, const QString &folder)
{
    AlignmentReport report;
    const auto failure
        = readJson(json, folder, [&](JsonFields &fields) { kReportFields(fields, report); });
    return failure ? Result<AlignmentReport>(*failure) : report;
}

QByteArray alignmentSchema()
{
    return jsonSchema(
        "https://orvane.invalid/panohost-alignment.schema.json",
        "What panohost has learnt by aligning a panorama (schema 1)",
        "Paths are relative to the JSON file. Readers ignore keys that they do not know.",
        [](JsonFields &fields) {
            const AlignmentReport report;
            kReportFields(fields, report);
        });
}

} // namespace PanoHost
