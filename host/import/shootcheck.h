// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/findings.h"
#include "host/import/importrequest.h"
#include "host/model/jobwatch.h"
#include "host/plugin/panohostapplication.h"

namespace PanoHost
{

/**
 * Checks record and photos against each other, without the library or its pages: everything that
 * can be said before the page gets them. Each step throws the CommandError that says why they
 * cannot be imported; `findings` tells what was found until then. Any thread.
 */
class ShootCheck
{
public:
    /** \p app outlives it. */
    ShootCheck(PanoHostApplication &app, ImportRequest request, JobWatch watch);

    /** What an import needs: stops at the first thing that is in its way. */
    void require();
    /** The same, and all that record and photos say, before anything that is in the way. */
    void examine();

    /** Empty for heads without one. */
    [[nodiscard]] const RecordSummary &record() const { return m_record; }
    [[nodiscard]] const QVector<NotedShot> &shots() const { return m_shots; }
    [[nodiscard]] const QVector<Finding> &findings() const { return m_findings; }
    /** The photos that are imported, in the order of the shots. */
    [[nodiscard]] const QStringList &photos() const { return m_photos; }
    /** Which photo belongs to which shot, where that is not the order of `photos`. */
    [[nodiscard]] const std::optional<ShotFit> &fit() const { return m_request.fit; }

private:
    void openRecord();
    void findPhotos();
    /** Photos that cannot be read count as missing. */
    void matchPhotos();
    void fitByNames();
    /** Through which \p photos were taken, as far as it is known. */
    [[nodiscard]] KnownLens lensOf(const QVector<PhotoInfo> &photos) const;
    void orderPhotos();
    void lookAtPhotos();
    void checkCounts() const;
    [[nodiscard]] const QVector<PhotoInfo> &readable();

    PanoHostApplication &m_app;
    ImportRequest m_request;
    JobWatch m_watch;
    RecordSummary m_record;
    QVector<NotedShot> m_shots;
    QVector<Finding> m_findings;
    QString m_toldBy; ///< as `PhotoFit::toldBy`
    std::optional<Failure> m_doubt; ///< which photo belongs to which shot
    QStringList m_photos;
    std::optional<QVector<PhotoInfo>> m_readable; ///< of the photos given, once they are read
};

} // namespace PanoHost
