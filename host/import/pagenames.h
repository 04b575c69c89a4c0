// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/findings.h"
#include "host/import/photoaliases.h"
#include "host/import/shotfit.h"
#include "host/model/panorama.h"
#include "host/plugin/panohostapplication.h"

namespace PanoHost
{

/** The shots of a record or a grid and the photos that belong to them, as a page is to get them. */
struct FittedPhotos {
    ShotFit fit;
    QVector<PhotoInfo> photos; ///< those that there are, in the order of the shots; one at least
    int levels = 1; ///< photos per position
    bool isGrid = false;
    QVector<Finding> findings; ///< on the way to it
};

/**
 * The names under which a page gets its photos. The application answers for them, and for shots
 * that have no photo, until this object goes. One at a time.
 */
class PageNames
{
public:
    /** \p app outlives it. */
    explicit PageNames(PanoHostApplication &app);
    ~PageNames();
    PageNames(const PageNames &) = delete;
    PageNames &operator=(const PageNames &) = delete;

    /** For \p photos, in their order. Throws when links are needed and cannot be made. */
    [[nodiscard]] QStringList of(const QStringList &photos);
    /** The same for all shots; stand-ins get a picture when the page's layout is wanted. */
    [[nodiscard]] QStringList of(const FittedPhotos &fitted, bool wantsLayout);

    /** What `of` got last. */
    [[nodiscard]] const FittedPhotos &fitted() const { return m_fitted; }
    [[nodiscard]] bool haveStandIns() const { return !m_standIns.isEmpty(); }
    /**
     * Takes the stand-ins out of \p description, as the page has delivered it; \p wishes gets the
     * cells of a grid that have no photo. Answers a line for each recorded shot without one.
     */
    [[nodiscard]] QStringList takeOutStandIns(StructuredPanoramaProperties &description,
                                              JoinWishes &wishes) const;

private:
    [[nodiscard]] QStringList linksTo(const QStringList &photos);

    PanoHostApplication &m_app;
    PhotoAliases m_aliases;
    FittedPhotos m_fitted;
    QSet<QString> m_standIns;
};

} // namespace PanoHost
