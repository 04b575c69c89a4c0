// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/shootreport.h"

#include "host/import/givenfiles.h"
#include "host/import/lenschoice.h"
#include "host/import/shootcheck.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/said.h"
#include "shoot/linksearch.h"

#include <QFileInfo>
#include <QtMath>

namespace PanoHost
{

namespace
{

/** Takes photos that have gone, or are no files, out of \p request. */
void nameVanished(ImportRequest &request, const JobWatch &watch, ShootReport &report)
{
    QStringList there;
    for (const QString &photo : qAsConst(request.photos)) {
        watch.check();
        if (QFileInfo(photo).isFile()) {
            there += photo;
        } else {
            report.findings += badPhotoFinding(photo, Said::tr("no such photo"));
        }
    }
    request.photos = there;
}

/** Takes pictures that were made of photos, panoramas and layouts, out of \p request. */
void nameOwn(PanoHostApplication &app, ImportRequest &request, const JobWatch &watch,
             ShootReport &report)
{
    QStringList photos;
    for (const QString &path : qAsConst(request.photos)) {
        watch.check();
        const Result<PhotoInfo> photo = app.photoInfo(path);
        if (photo && photo.value().isPanorama) {
            report.findings += badPhotoFinding(path, Said::tr("was made of other photos"));
        } else {
            photos += path;
        }
    }
    request.photos = photos;
}

/** Of the photos at \p paths; names those that cannot be read where \p report is not null. */
QVector<PhotoInfo> readPhotos(PanoHostApplication &app, const QStringList &paths,
                              const JobWatch &watch, ShootReport *report)
{
    QVector<PhotoInfo> photos;
    photos.reserve(paths.size());
    for (const QString &path : paths) {
        watch.check();
        const Result<PhotoInfo> photo = app.photoInfo(path);
        if (photo) {
            photos += photo.value();
        } else if (report != nullptr) {
            report->findings += badPhotoFinding(path, photo.error().why);
        }
    }
    return photos;
}

/** What photos say alone. */
void tellPhotos(PanoHostApplication &app, ImportRequest request, const JobWatch &watch,
                ShootReport &report)
{
    request.photos.sort(Qt::CaseSensitive);
    report.photos = readPhotos(app, request.photos, watch, &report);
    if (!report.photos.isEmpty()) {
        report.findings += photoFindings(report.photos, request.photos.size());
    }
}

void tellRecord(const ImportRequest &request, ShootReport &report)
{
    try {
        report.summary = readRecord(*request.head, request.record, &report.shots);
        report.findings += recordFinding(request.record, report.summary);
    } catch (const CommandError &error) {
        report.refusal = error.failure();
    }
}

/** What both say together. */
void tellShoot(PanoHostApplication &app, const ImportRequest &request, const JobWatch &watch,
               ShootReport &report)
{
    ShootCheck check(app, request, watch);
    try {
        check.examine();
    } catch (const CommandError &error) {
        if (error.failure().code == ExitCode::Interrupted) {
            throw;
        }
        report.refusal = error.failure();
    }
    report.findings += check.findings();
    report.summary = check.record();
    report.shots = check.shots();
    report.photos = readPhotos(app, check.photos(), watch, nullptr);
    if (check.photos().isEmpty()) {
        tellPhotos(app, request, watch, report); // the record is of no use
    } else if (check.fit() && !report.refusal && !report.photos.isEmpty()) {
        const int levels = request.grid ? request.grid->bracketCount : report.summary.bracketCount;
        report.fitted = FittedPhotos{ *check.fit(), report.photos, levels, request.grid.has_value(),
                                      check.findings() };
    }
}

/** Shots whose position has no photo at all do not count. */
QVector<NotedShot> shotsWithPhotos(const ShootReport &report)
{
    if (!report.fitted) {
        return report.shots;
    }
    const int levels = std::max(report.fitted->levels, 1);
    QVector<NotedShot> shots;
    for (int first = 0; first + levels <= report.shots.size(); first += levels) {
        const ShotFit stack = report.fitted->fit.mid(first, levels);
        if (!photosOf(stack).isEmpty()) {
            shots += report.shots.mid(first, levels);
        }
    }
    return shots;
}

} // namespace

ShootReport reportOn(PanoHostApplication &app, ImportRequest request, const JobWatch &watch)
{
    ShootReport report;
    report.head = request.head;
    report.record = request.record;
    report.given = request.photos.size();
    nameVanished(request, watch, report);
    nameOwn(app, request, watch, report);
    const bool needsRecord = !request.head->isGrid();
    if (!request.photos.isEmpty() && !(needsRecord && request.record.isEmpty())) {
        tellShoot(app, request, watch, report);
    } else if (!request.photos.isEmpty()) {
        tellPhotos(app, request, watch, report);
    } else if (needsRecord && !request.record.isEmpty()) {
        tellRecord(request, report);
    }
    if (!request.record.isEmpty() && report.summary.shotCount == 0) {
        report.otherHead = readerOf(request.record, request.head);
    }
    report.lens = knownLensOf(report.photos);
    const KnownLens used
        = lensInUse(request, report.lens, { report.summary.focal35mm, report.summary.lens });
    if (const auto links
        = linksFinding(*report.head, shotsWithPhotos(report), report.summary.bracketCount, used)) {
        report.findings += *links;
    }
    return report;
}

std::optional<Finding> linksFinding(const HeadFacts &head, const QVector<NotedShot> &shots,
                                    int levels, const KnownLens &lens)
{
    // Of many more there may be so many links that memory runs out.
    constexpr int kMostPositions = 1000;
    const int positions = shots.size() / std::max(levels, 1);
    if (positions < 2 || positions > kMostPositions || !(lens.focal35mm > 0.0)
        || lens.lens == LensModel::Fisheye) {
        return {};
    }
    const auto focal = static_cast<float>(lens.focal35mm);
    QVector<AuthorizedLink> links;
    if (head.hasLens) {
        QVector<PanoHead::Direction> directions;
        for (int i = 0; i < positions; ++i) {
            const NotedShot &shot = shots.at(i * levels);
            directions.append({ static_cast<float>(qDegreesToRadians(shot.yawDegrees)),
                                static_cast<float>(qDegreesToRadians(shot.pitchDegrees)) });
        }
        PanoHead::appendNeighbourLinks(links, directions, PanoHead::halfFieldOfView(focal));
    } else {
        QVector<PanoHead::PhotoDirection> directions;
        for (int i = 0; i < positions; ++i) {
            const NotedShot &shot = shots.at(i * levels);
            directions.append({ static_cast<float>(shot.yawDegrees),
                                static_cast<float>(shot.pitchDegrees), focal });
        }
        PanoHead::appendCloseLinks(links, directions);
    }
    QVector<bool> isLinked(positions);
    for (const AuthorizedLink &link : qAsConst(links)) {
        for (const qint32 index : link.indices) {
            isLinked[index] = true;
        }
    }
    const int alone = isLinked.count(false);
    Finding finding{
        QStringLiteral("links"),
        Said::tr("%1 between %2").arg(counted(links.size(), "link"), counted(positions, "position"))
    };
    if (alone > 0) {
        finding.kind = Finding::Kind::Trouble;
        finding.text
            += Said::tr("; %1 without a neighbour near enough").arg(counted(alone, "position"));
    }
    return finding;
}

QString lensKey(const PhotoInfo &photo)
{
    // No key of the settings may hold a slash.
    return QStringLiteral("%1, %2, %3x%4")
        .arg(photo.camera, photo.lensName)
        .arg(photo.storedSize.width())
        .arg(photo.storedSize.height())
        .replace(QLatin1Char('/'), QLatin1Char('_'));
}

} // namespace PanoHost
