// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/pagenames.h"

#include "host/model/commanderror.h"
#include "host/model/said.h"

namespace PanoHost
{

PageNames::PageNames(PanoHostApplication &app)
    : m_app(app)
{
}

PageNames::~PageNames()
{
    m_app.clearPathAliases();
}

QStringList PageNames::linksTo(const QStringList &photos)
{
    QString error;
    QStringList links = m_aliases.create(photos, &error);
    if (links.isEmpty()) {
        throw CommandError({ ExitCode::ToolFailed, Said::tr("temporary links to the photos"), error,
                             Said::tr("is the temporary folder full? set TMPDIR") });
    }
    const QHash<QString, QString> &truePaths = m_aliases.truePaths();
    for (auto link = truePaths.begin(); link != truePaths.end(); ++link) {
        m_app.addPathAlias(link.key(), link.value());
    }
    return links;
}

QStringList PageNames::of(const QStringList &photos)
{
    return PhotoAliases::areNeeded(photos) ? linksTo(photos) : photos;
}

QStringList PageNames::of(const FittedPhotos &fitted, bool wantsLayout)
{
    m_fitted = fitted;
    QStringList photos;
    photos.reserve(fitted.fit.size());
    for (const FittedShot &shot : fitted.fit) {
        photos += shot.photo;
    }
    QStringList links = linksTo(photos);
    const QVector<PhotoInfo> all = withStandIns(fitted.fit, fitted.photos, fitted.levels);
    for (int i = 0; i < links.size(); ++i) {
        PhotoInfo photo = all.at(i);
        if (photo.path.isEmpty()) {
            photo.path = links.at(i);
            m_standIns += photo.path;
            m_app.addStandIn({ photo, wantsLayout ? greyThumbnail(photo) : QImage() });
        }
    }
    return links;
}

QStringList PageNames::takeOutStandIns(StructuredPanoramaProperties &description,
                                       JoinWishes &wishes) const
{
    if (m_fitted.fit.isEmpty()) {
        return {};
    }
    QStringList warnings;
    if (m_fitted.isGrid) {
        wishes.missingCells = emptyPositions(description, m_standIns);
    } else {
        warnings = missingShotWarnings(m_fitted.fit, description, m_fitted.levels);
    }
    description = withoutStandIns(std::move(description), m_standIns);
    return warnings;
}

} // namespace PanoHost
