// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/resulttexts.h"

#include "host/check/findings.h"
#include "host/import/striprows.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cmath>

namespace PanoHost
{

namespace
{

/** The fewest and the most photos of a position. */
struct BracketSizes {
    int fewest = 0;
    int most = 0;
};

BracketSizes bracketSizes(const Panorama &panorama)
{
    BracketSizes sizes{ panorama.positions.first().photos.size(), 0 };
    for (const Position &position : panorama.positions) {
        sizes.fewest = std::min(sizes.fewest, position.photos.size());
        sizes.most = std::max(sizes.most, position.photos.size());
    }
    return sizes;
}

bool areOnOnePoint(const QVector<Position> &positions)
{
    constexpr double kSameDegrees = 1e-4; // recorded angles are of single precision
    const Position &first = positions.first();
    return positions.size() > 1
        && std::all_of(positions.begin(), positions.end(), [&first](const Position &position) {
               return std::abs(position.yawDegrees - first.yawDegrees) < kSameDegrees
                   && std::abs(position.pitchDegrees - first.pitchDegrees) < kSameDegrees;
           });
}

} // namespace

bool ResultTexts::needsFocal(const Panorama &panorama)
{
    return !(panorama.focal35mm > 0.0);
}

QString ResultTexts::headline(const Panorama &panorama)
{
    const int photos = photoCount(panorama);
    const int positions = panorama.positions.size();
    const int links = panorama.description.authorizedLinks.size();
    const BracketSizes sizes = bracketSizes(panorama);
    QString text = tr("%1 at %2")
                       .arg(photos == 1 ? tr("1 photo") : tr("%1 photos").arg(photos),
                            positions == 1 ? tr("1 position") : tr("%1 positions").arg(positions));
    if (sizes.most > 1) {
        text += sizes.fewest == sizes.most
            ? tr(" (brackets of %1)").arg(sizes.most)
            : tr(" (brackets of %1 to %2)")
                  .arg(QString::number(sizes.fewest), QString::number(sizes.most));
    }
    text = tr("%1, %2, %3")
               .arg(text, lens(panorama).value,
                    links == 0       ? tr("no links")
                        : links == 1 ? tr("1 link")
                                     : tr("%1 links").arg(links));
    return panorama.description.renderMode == kHdrRadiance ? tr("%1, into HDR").arg(text) : text;
}

QVector<SummaryLine> ResultTexts::lines(const Panorama &panorama)
{
    QVector<SummaryLine> lines;
    if (!panorama.source.record.isEmpty()) {
        lines += { tr("Record"), onOneLine(QFileInfo(panorama.source.record).fileName()), {}, {} };
    }
    lines += lens(panorama);
    if (hasBrackets(panorama) || panorama.description.renderMode == kHdrRadiance) {
        lines += brackets(panorama);
    }
    lines += links(panorama);
    lines += points(panorama);
    if (hasBrackets(panorama)) {
        lines += panorama.description.stackLinking == 0
            ? SummaryLine{ tr("Within brackets"), tr("as one"),
                           tr("The photos of a bracket lie exactly on each other."),
                           tr("Right for a firm tripod: one direction counts for all of them.") }
            : SummaryLine{ tr("Within brackets"), tr("each by itself"),
                           tr("Control points are looked for between the photos of a bracket."),
                           tr("Right when the camera may have moved between two exposures.") };
    }
    lines += panorama.description.cleanWrongLinks
        ? SummaryLine{ tr("Wrong points"), tr("removed"), {}, {} }
        : SummaryLine{
              tr("Wrong points"), tr("kept"), tr("They are marked, and move nothing."), {}
          };
    lines += optimisation(panorama);
    return lines;
}

SummaryLine ResultTexts::lens(const Panorama &panorama)
{
    const bool isFisheye = panorama.lens == LensModel::Fisheye;
    SummaryLine line{ tr("Lens"), {}, {}, tr("As for 35 mm film: it says how wide a photo sees.") };
    if (needsFocal(panorama)) {
        line.value = isFisheye ? tr("fisheye lens, focal length not known")
                               : tr("standard lens, focal length not known");
        line.meaning = tr("Nothing can be put together without it.");
    } else {
        const QString millimetres = QString::number(panorama.focal35mm, 'g', 5);
        line.value = isFisheye ? tr("fisheye lens of %1 mm").arg(millimetres)
                               : tr("standard lens of %1 mm").arg(millimetres);
    }
    return line;
}

SummaryLine ResultTexts::brackets(const Panorama &panorama)
{
    const bool isHdr = panorama.description.renderMode == kHdrRadiance;
    if (!hasBrackets(panorama)) {
        return { tr("Brackets"),
                 tr("none, into HDR"),
                 tr("HDR was chosen, but there is one exposure of each position."),
                 {} };
    }
    return isHdr
        ? SummaryLine{ tr("Brackets"), tr("into HDR"),
                       tr("The picture holds the light itself, from all exposures."),
                       tr("For programs that work on with it: no screen shows all of it.") }
        : SummaryLine{ tr("Brackets"),
                       tr("into an ordinary picture"),
                       tr("Of each exposure what is neither too dark nor too bright."),
                       {} };
}

SummaryLine ResultTexts::links(const Panorama &panorama)
{
    const int count = panorama.description.authorizedLinks.size();
    SummaryLine line{ tr("Links"), QString::number(count),
                      tr("Control points are looked for in these pairs of neighbours alone."),
                      tr("Photos that are no neighbours are never compared: a sky or a wall that "
                         "looks alike cannot lead astray.") };
    if (count == 0) {
        line.value = tr("none");
        line.meaning = panorama.positions.size() == 1
            ? tr("One position has no neighbours.")
            : tr("All photos that overlap are compared instead.");
    }
    return line;
}

SummaryLine ResultTexts::points(const Panorama &panorama)
{
    const QString title = tr("Control points");
    if (!panorama.description.autoDetection) {
        return { title, tr("not looked for"), tr("Photos stay where the head has recorded them."),
                 tr("In Hugin you can set control points by hand.") };
    }
    SummaryLine line{
        title, tr("looked for"), tr("Spots that two photos share say how they belong together."), {}
    };
    if (hasBrackets(panorama)) {
        if (panorama.description.levelLinking == 0) {
            line.value = tr("looked for in one exposure of each bracket");
            line.tip = tr("In the first photo of each bracket, the reference.");
        } else {
            line.value = tr("looked for in all exposures");
            line.tip = tr("Takes longer, and finds more where one exposure is too dark or too "
                          "bright.");
        }
    }
    return line;
}

SummaryLine ResultTexts::optimisation(const Panorama &panorama)
{
    const QString title = tr("Optimisation");
    if (panorama.description.skipOptimization) {
        return { title, tr("skipped"),
                 tr("The head is trusted: photos stay where it has recorded them."),
                 tr("Right for a head without play. It saves the time of looking for points.") };
    }
    return panorama.description.useRecordedLocation
        ? SummaryLine{ title, tr("from the record"),
                       tr("Control points move the photos; those without any stay as recorded."),
                       tr("The usual choice: skies and walls without a mark stay in place.") }
        : SummaryLine{ title, tr("free"), tr("The record is where the search begins, no more."),
                       tr("Right when the head has slipped.") };
}

QStringList ResultTexts::warnings(const Panorama &panorama)
{
    return lensWarnings(panorama) + layoutWarnings(panorama) + panorama.warnings
        + photoWarnings(panorama);
}

QStringList ResultTexts::lensWarnings(const Panorama &panorama)
{
    if (needsFocal(panorama)) {
        return { panorama.source.record.isEmpty()
                     ? tr("The focal length is not known: no photo names it. Go back and enter it "
                          "in the line below the page, at \"Focal length\".")
                     : tr("The focal length is not known: neither the record nor a photo names it. "
                          "Go back and enter it in the line below the page, at "
                          "\"Focal length\".") };
    }
    int fisheyes = 0;
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            fisheyes += photo.lens == LensModel::Fisheye ? 1 : 0;
        }
    }
    if (panorama.lens == LensModel::Fisheye && fisheyes == 0) {
        return { tr("The lens is taken for a fisheye, and no photo says so. If it is none, go back "
                    "and choose the standard lens.") };
    }
    if (panorama.lens == LensModel::Standard && fisheyes > 0) {
        return { tr("The photos say that they were taken through a fisheye, and the lens is taken "
                    "for a standard one. If it is a fisheye, go back and choose that.") };
    }
    return {};
}

QStringList ResultTexts::layoutWarnings(const Panorama &panorama)
{
    const int count = panorama.positions.size();
    if (areOnOnePoint(panorama.positions)) {
        return { needsFocal(panorama) && !panorama.description.positionsKnown
                     ? tr("Until then all %1 positions lie on one point.").arg(count)
                     : tr("All %1 positions lie on one point: the record says that the head did "
                          "not move.")
                           .arg(count) };
    }
    if (count > 1 && panorama.description.authorizedLinks.isEmpty() && !needsFocal(panorama)
        && panorama.lens != LensModel::Fisheye) {
        return { tr("No two photos are linked: through a lens of %1 mm neighbours are too far "
                    "apart. Is the focal length right?")
                     .arg(QString::number(panorama.focal35mm, 'g', 5)) };
    }
    return {};
}

/** What the photos say against the shoot. */
QStringList ResultTexts::photoWarnings(const Panorama &panorama)
{
    QVector<PhotoInfo> photos;
    for (const Position &position : panorama.positions) {
        QVector<PhotoInfo> bracket = position.photos; // the reference comes first in it
        std::stable_sort(
            bracket.begin(), bracket.end(),
            [](const PhotoInfo &one, const PhotoInfo &other) { return one.timeMs < other.timeMs; });
        photos += bracket;
    }
    QStringList texts;
    for (const Finding &finding : photoFindings(photos, photos.size())) {
        if (finding.kind == Finding::Kind::Trouble) {
            const QString title = finding.topic == QLatin1String("order") ? tr("Order")
                : finding.topic == QLatin1String("gaps")                  ? tr("Pause")
                                                                          : tr("Photos");
            texts += tr("%1: %2").arg(title, finding.text);
        }
    }
    return texts;
}

QString ResultTexts::savingProblem(const Failure &failure, const QString &path)
{
    const QFileInfo file(path);
    const QString name = onOneLine(file.fileName());
    const QString folder = onOneLine(file.absolutePath());
    const auto isSaid
        = [&failure](int error) { return failure.why.contains(qt_error_string(error)); };
    if (file.isDir()) {
        return tr("%1 was not saved: there is a folder of that name. Choose another name.")
            .arg(name);
    }
    if (!QFileInfo(file.absolutePath()).isDir()) {
        return tr("%1 was not saved: the folder %2 is not there. Was it moved, or its disk "
                  "unplugged? Choose another folder.")
            .arg(name, folder);
    }
    if (isSaid(ENOSPC) || isSaid(EDQUOT)) {
        return tr("%1 was not saved: the disk is full. Make room on it, or choose a folder on "
                  "another disk.")
            .arg(name);
    }
    if (isSaid(EACCES) || isSaid(EPERM) || isSaid(EROFS)) {
        return tr("%1 was not saved: nothing can be written in %2. Choose a folder of your own, "
                  "such as your pictures.")
            .arg(name, folder);
    }
    if (file.exists() && !file.isWritable()) {
        return tr("%1 was not saved: a file of that name is there and is protected. Choose "
                  "another name.")
            .arg(name);
    }
    if (isSaid(ENAMETOOLONG)) {
        return tr("%1 was not saved: the name is too long. Choose a shorter one.").arg(name);
    }
    return tr("%1 was not saved: %2").arg(name, windowText(failure));
}

} // namespace PanoHost
