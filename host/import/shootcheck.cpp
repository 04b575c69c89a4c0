// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/shootcheck.h"

#include "host/import/gridfit.h"
#include "host/import/inputcheck.h"
#include "host/import/lenschoice.h"
#include "host/import/photofit.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/said.h"

#include <QFileInfo>

namespace PanoHost
{

ShootCheck::ShootCheck(PanoHostApplication &app, ImportRequest request, JobWatch watch)
    : m_app(app)
    , m_request(std::move(request))
    , m_watch(std::move(watch))
{
}

void ShootCheck::require()
{
    openRecord();
    findPhotos();
    matchPhotos();
    checkCounts();
    orderPhotos();
}

void ShootCheck::examine()
{
    openRecord();
    findPhotos();
    matchPhotos();
    if (m_request.grid) {
        m_findings.prepend(gridFinding(
            *m_request.grid, m_request.fit ? m_request.fit->size() : m_request.photos.size()));
    }
    orderPhotos();
    lookAtPhotos();
    checkCounts();
}

void ShootCheck::openRecord()
{
    if (m_request.head->isGrid()) {
        return;
    }
    m_record = readRecord(*m_request.head, m_request.record, &m_shots);
    for (const QString &remark : qAsConst(m_record.remarks)) {
        m_watch.note(JobWatch::Note::Warning,
                     QStringLiteral("%1: %2").arg(displayName(m_request.record), remark));
    }
    m_findings += recordFinding(m_request.record, m_record);
}

void ShootCheck::findPhotos()
{
    m_photos = m_request.fit ? photosOf(*m_request.fit) : m_request.photos;
    requirePhotoFiles(m_photos);
    if (!m_request.fit && m_request.order == PhotoOrder::ByName) {
        m_photos.sort(Qt::CaseSensitive);
    }
    m_app.photos().readAhead(m_photos);
}

/** Of the photos given, in their order; names the others the first time. */
const QVector<PhotoInfo> &ShootCheck::readable()
{
    if (!m_readable) {
        m_readable.emplace();
        for (const QString &path : qAsConst(m_photos)) {
            m_watch.check();
            const Result<PhotoInfo> photo = m_app.photoInfo(path);
            if (photo) {
                *m_readable += photo.value();
            } else {
                m_findings += badPhotoFinding(path, photo.error().why);
            }
            m_watch.report(m_readable->size(), m_photos.size(),
                           QStringLiteral("reading %1").arg(QFileInfo(path).fileName()));
        }
    }
    return *m_readable;
}

KnownLens ShootCheck::lensOf(const QVector<PhotoInfo> &photos) const
{
    return lensInUse(m_request, knownLensOf(photos), { m_record.focal35mm, m_record.lens });
}

void ShootCheck::matchPhotos()
{
    if (!m_request.matchesPhotos || m_request.fit || (m_shots.isEmpty() && !m_request.grid)) {
        return;
    }
    const QVector<PhotoInfo> &photos = readable();
    RecordedShots record{ displayName(m_request.record), m_shots, m_record.bracketCount,
                          m_request.clockwiseTurns };
    for (NotedShot &shot : record.shots) {
        shot.pitchDegrees = m_request.invertPitch ? -shot.pitchDegrees : shot.pitchDegrees;
    }
    auto matched = m_request.grid ? fitGrid(*m_request.grid, photos, lensOf(photos), m_watch)
                                  : fitPhotos(record, photos, lensOf(photos), m_watch);
    const bool allReadable = photos.size() == m_photos.size();
    if (!matched) {
        // Photos that cannot be read are what is to be said first.
        if (allReadable) {
            m_doubt = matched.error();
        }
        return;
    }
    PhotoFit found = std::move(matched).value();
    if (found.fit) {
        m_request.fit = std::move(found.fit);
        m_photos = photosOf(*m_request.fit);
    } else if (!allReadable && !m_request.grid) {
        fitByNames();
    }
    m_findings += found.findings;
    m_toldBy = found.toldBy;
}

/** The photos that can be read belong to the shots, one after the other. */
void ShootCheck::fitByNames()
{
    m_request.fit.emplace();
    for (const PhotoInfo &photo : qAsConst(*m_readable)) {
        *m_request.fit += FittedShot{ photo.path, 0, {} };
    }
    m_photos = photosOf(*m_request.fit);
}

void ShootCheck::orderPhotos()
{
    if (!m_request.fit && m_request.order == PhotoOrder::ByTime) {
        m_photos = orderedByTime(m_app, m_photos, m_watch);
    }
}

void ShootCheck::lookAtPhotos()
{
    const int given = m_request.photos.size();
    const QVector<PhotoInfo> &photos = readable();
    m_findings += photosFinding(photos, given);
    if (const auto lens = lensFinding(knownLensOf(photos), m_record.focal35mm);
        lens && m_request.focalSource != ValueSource::Given) {
        m_findings += *lens;
    }
    QVector<PhotoInfo> ordered;
    for (const QString &path : qAsConst(m_photos)) {
        if (const Result<PhotoInfo> photo = m_app.photoInfo(path)) {
            ordered += photo.value();
        }
    }
    m_findings += orderFinding(ordered);
    m_findings += gapFinding(ordered);
    if (!m_toldBy.isEmpty()) {
        m_findings += Finding{ QStringLiteral("pictures"),
                               Said::tr("not opened: %1 agree").arg(m_toldBy) };
    }
}

void ShootCheck::checkCounts() const
{
    if (m_doubt) {
        throw CommandError(*m_doubt);
    }
    if (m_request.fit && photosOf(*m_request.fit).isEmpty()) {
        throw inputRefused(m_request.grid ? Said::tr("the grid") : displayName(m_request.record),
                           Said::tr("none of its shots has a photo"),
                           Said::tr("are these the photos of this shoot?"));
    }
    const int shots = m_request.fit ? m_request.fit->size() : m_request.photos.size();
    if (m_request.grid) {
        requireFullGrid(*m_request.grid, shots);
    } else {
        requireMatchingCounts(displayName(m_request.record), m_record, shots);
    }
}

} // namespace PanoHost
