// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/reshoot.h"

#include "host/check/photoquality.h"
#include "host/import/lenschoice.h"
#include "host/model/assumedgrid.h"
#include "host/model/displayname.h"
#include "host/model/panorama.h"
#include "host/model/pathparts.h"

#include <QMap>
#include <QSet>

#include <algorithm>

namespace PanoHost
{

namespace
{

constexpr double kUsualOverlapPercent = 40.0; // of grids whose user says nothing

/** A shot of the shoot, recorded or of a grid. */
struct Shot {
    QString photo; ///< empty: none
    QString place; ///< "yaw 30, pitch -15", "row 2, column 5"
    Angles recorded;
    int position = 0;
    int level = 0;
};

/** All shots of one shoot, and what is wrong with them. */
class Search
{
public:
    Search(PanoHostApplication &app, const ImportRequest &request, const ShootCheck &check,
           const JobWatch &watch)
        : m_app(app)
        , m_request(request)
        , m_check(check)
        , m_watch(watch)
        , m_given(request.photos)
    {
        m_given.sort(Qt::CaseSensitive);
        m_given = m_given.mid(request.grid ? request.grid->ignoredCount : 0);
        readPhotos();
        if (request.head->isGrid()) {
            addGrid();
        } else {
            addRecorded();
        }
    }

    Reshoot found()
    {
        noteMissing();
        notePictures();
        completePositions();
        tellShots();
        return m_found;
    }

private:
    void readPhotos()
    {
        QVector<PhotoInfo> infos;
        for (const QString &path : m_check.photos()) {
            m_watch.check();
            if (const Result<PhotoInfo> photo = m_app.photoInfo(path)) {
                m_infos.insert(path, photo.value());
                infos += photo.value();
            }
        }
        m_lens = lensInUse(m_request, knownLensOf(infos),
                           { m_check.record().focal35mm, m_check.record().lens });
    }

    void addRecorded()
    {
        const QVector<NotedShot> &noted = m_check.shots();
        const QStringList photos = photosOfShots();
        const int exposures = m_check.record().bracketCount;
        for (int i = 0; i < noted.size(); ++i) {
            const NotedShot &own = noted.at(i);
            Shot shot;
            shot.photo = photos.value(i);
            shot.place = QStringLiteral("yaw %1, pitch %2")
                             .arg(QString::number(own.yawDegrees, 'g', 6),
                                  QString::number(own.pitchDegrees, 'g', 6));
            shot.recorded
                = { own.yawDegrees, m_request.invertPitch ? -own.pitchDegrees : own.pitchDegrees,
                    own.rollDegrees + 90.0 * m_request.clockwiseTurns };
            const bool isNext = i > 0
                && (exposures > 1 ? i % exposures != 0
                                  : own.yawDegrees == noted.at(i - 1).yawDegrees
                            && own.pitchDegrees == noted.at(i - 1).pitchDegrees);
            shot.position = i == 0 ? 0 : m_shots.last().position + (isNext ? 0 : 1);
            shot.level = exposures > 1 ? own.level : isNext ? m_shots.last().level + 1 : 0;
            m_shots += shot;
        }
    }

    void addGrid()
    {
        const GridChoice &grid = *m_request.grid;
        const QStringList photos = photosOfShots().mid(grid.ignoredCount);
        StructuredPanoramaProperties description;
        description.imageGroups.resize(photos.size() / grid.bracketCount);
        description.gridRows = grid.rows;
        description.gridMode = grid.mode;
        description.gridWrap360 = grid.wrap360;
        description.overlap = grid.overlapPercent.value_or(kUsualOverlapPercent);
        const AssumedGrid layout
            = assumedGrid(description, uprightSize(m_infos.value(m_check.photos().value(0))),
                          m_lens.focal35mm, m_lens.lens);
        for (int i = 0; i < photos.size(); ++i) {
            const int position = i / grid.bracketCount;
            const GridCell cell = gridCellOf(position, grid.mode, grid.rows,
                                             description.imageGroups.size() / grid.rows);
            const GridDirection direction = layout.directions.value(position);
            m_shots += Shot{ photos.at(i),
                             gridCellName(cell),
                             { direction.yawDegrees, direction.pitchDegrees, 0.0 },
                             position,
                             i % grid.bracketCount };
        }
    }

    /** One for each shot; empty: none. */
    [[nodiscard]] QStringList photosOfShots() const
    {
        if (!m_check.fit()) {
            return m_check.photos();
        }
        QStringList photos;
        for (const FittedShot &shot : *m_check.fit()) {
            photos += shot.photo;
        }
        return photos;
    }

    /** Shots without a photo; of those that cannot be read it is seen which shot lacks them when
     * they stand between the photos of its neighbours. */
    void noteMissing()
    {
        QSet<QString> unread;
        for (const Finding &finding : m_check.findings()) {
            if (finding.topic == QLatin1String("bad")) {
                unread += QSet<QString>(finding.files.cbegin(), finding.files.cend());
            }
        }
        for (int i = 0; i < m_shots.size();) {
            if (!m_shots.at(i).photo.isEmpty()) {
                ++i;
                continue;
            }
            int end = i;
            while (end < m_shots.size() && m_shots.at(end).photo.isEmpty()) {
                ++end;
            }
            const int from = i == 0 ? 0 : m_given.indexOf(m_shots.at(i - 1).photo) + 1;
            const int to
                = end == m_shots.size() ? m_given.size() : m_given.indexOf(m_shots.at(end).photo);
            QStringList between;
            for (int photo = from; photo < to; ++photo) {
                if (unread.contains(m_given.at(photo))) {
                    between += m_given.at(photo);
                }
            }
            const bool areTheirs = between.size() == end - i;
            for (; i < end; ++i) {
                m_reasons[i]
                    += areTheirs ? QStringLiteral("unreadable") : QStringLiteral("missing");
                if (areTheirs) {
                    m_photoOf[i] = between.takeFirst();
                }
            }
        }
    }

    void notePictures()
    {
        QVector<ShotPhoto> photos;
        for (int i = 0; i < m_shots.size(); ++i) {
            const Shot &shot = m_shots.at(i);
            if (shot.photo.isEmpty()) {
                continue;
            }
            m_photoOf[i] = shot.photo;
            const auto info = m_infos.constFind(shot.photo);
            if (info == m_infos.constEnd()) {
                m_reasons[i] += QStringLiteral("unreadable");
                continue;
            }
            photos += ShotPhoto{
                *info,
                i,
                shot.position,
                shot.level,
                shot.recorded,
                m_request.ignoreExifRotation ? 0.0 : double(clockwiseDegrees(info->orientation))
            };
        }
        const PhotoQuality quality = qualityOf(photos, m_lens, m_watch);
        static const QMap<QString, QString> reasons{
            { QStringLiteral("bad"), QStringLiteral("unreadable") },
            { QStringLiteral("blurred"), QStringLiteral("blurred against its neighbours") },
            { QStringLiteral("exposure"), QStringLiteral("exposure off") },
            { QStringLiteral("moved"), QStringLiteral("moved since its bracket") },
        };
        for (const Finding &fault : quality.faults) {
            m_reasons[fault.shots.first()] += reasons.value(fault.topic);
        }
        m_found.findings = quality.faults;
        m_found.findings
            += Finding{ QStringLiteral("quality"),
                        QStringLiteral("%1 looked at, %2 compared with their neighbours")
                            .arg(counted(photos.size(), "photo"))
                            .arg(quality.compared) };
    }

    /** A bracket is taken as a whole: the light changes. */
    void completePositions()
    {
        QSet<int> positions;
        for (auto shot = m_reasons.cbegin(); shot != m_reasons.cend(); ++shot) {
            positions += m_shots.at(shot.key()).position;
        }
        for (int i = 0; i < m_shots.size(); ++i) {
            if (positions.contains(m_shots.at(i).position)) {
                m_found.shots += i;
            }
        }
    }

    void tellShots()
    {
        const QString topic = QStringLiteral("reshoot");
        for (const int i : qAsConst(m_found.shots)) {
            const QStringList reasons = m_reasons.value(i, { QStringLiteral("with its bracket") });
            Finding finding{ topic,
                             QStringLiteral("shot %1 (%2): %3")
                                 .arg(QString::number(i + 1), m_shots.at(i).place,
                                      reasons.join(QStringLiteral(", "))),
                             Finding::Kind::Trouble };
            finding.shots = { i };
            finding.cure = nameToTake(i);
            finding.action = Finding::Action::Reshoot;
            if (m_photoOf.contains(i)) {
                finding.files = QStringList(m_photoOf.value(i));
            }
            m_found.findings += finding;
        }
        if (m_found.shots.isEmpty()) {
            m_found.findings += Finding{ topic, QStringLiteral("nothing has to be taken again") };
            return;
        }
        Finding way{
            topic, QStringLiteral("%1 to take again").arg(counted(m_found.shots.size(), "shot"))
        };
        way.shots = m_found.shots;
        way.cure = isByName()
            ? QStringLiteral("then import all by their names: --order name")
            : QStringLiteral("then name all photos in the order of the shots: --order given");
        m_found.findings += way;
    }

    /** Whether the photos, in the order of their names, are those of the shots. */
    [[nodiscard]] bool isByName() const
    {
        QStringList photos;
        for (int shot = 0; shot < m_shots.size(); ++shot) {
            photos += m_photoOf.value(shot);
        }
        photos.removeAll(QString());
        return photos == m_given;
    }

    /** What the new photo is to be called, so that it comes in its place by name. */
    [[nodiscard]] QString nameToTake(int shot) const
    {
        if (m_photoOf.contains(shot)) {
            return QStringLiteral("name the new one %1").arg(nameOf(m_photoOf.value(shot)));
        }
        int before = shot;
        while (before >= 0 && !m_photoOf.contains(before)) {
            --before;
        }
        int behind = shot;
        while (behind < m_shots.size() && !m_photoOf.contains(behind)) {
            ++behind;
        }
        QStringList places;
        if (before >= 0) {
            places += QStringLiteral("after %1").arg(nameOf(m_photoOf.value(before)));
        }
        if (behind < m_shots.size()) {
            places += QStringLiteral("before %1").arg(nameOf(m_photoOf.value(behind)));
        }
        return QStringLiteral("name it so that it comes %1")
            .arg(places.join(QStringLiteral(" and ")));
    }

    PanoHostApplication &m_app;
    const ImportRequest &m_request;
    const ShootCheck &m_check;
    const JobWatch &m_watch;
    QStringList m_given; // by name, without those that a grid ignores
    QHash<QString, PhotoInfo> m_infos; // by path
    KnownLens m_lens;
    QVector<Shot> m_shots;
    QMap<int, QStringList> m_reasons; // by shot
    QHash<int, QString> m_photoOf; // by shot: the one that is to be replaced
    Reshoot m_found;
};

} // namespace

Reshoot shotsToTakeAgain(PanoHostApplication &app, const ImportRequest &request,
                         const ShootCheck &check, const JobWatch &watch)
{
    return Search(app, request, check, watch).found();
}

} // namespace PanoHost
