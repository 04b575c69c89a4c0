// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/attitudeerrors.h"
#include "host/import/importrequest.h"
#include "host/model/ptofile.h"
#include "tests/host/brokenshoots.h"

#include <QHash>
#include <QMap>
#include <QStringList>

/** A made-up shoot as it lies in a folder. */
struct ShootFiles {
    QString record;
    QStringList photos; ///< sorted by name, as a shell gives them
    QHash<QString, int> truth; ///< of each photo its shot; -1: none
    QHash<QString, Eigen::Matrix3d> rotations; ///< camera to world
};

/** Takes the photos of made-up shoots: 24 mm, the demo's terrace. What was seen once is kept. */
class ShootPhotographer
{
public:
    /** \p shoot with its photos, a tenth of their size to a side, in \p folder, which is made. */
    ShootFiles photographed(const MadeShoot &shoot, const PanoHost::HeadFacts &head,
                            const QString &folder);
    /** The same with photos of a few pixels that show nothing. */
    static ShootFiles withoutPictures(const MadeShoot &shoot, const PanoHost::HeadFacts &head,
                                      const QString &folder);

private:
    [[nodiscard]] QByteArray picture(const Eigen::Matrix3d &rotation, const QSize &size,
                                     double exposure);

    QMap<QByteArray, QByteArray> m_seen;
};

/** What `panohost import --fit auto` wants of \p files. */
[[nodiscard]] PanoHost::ImportRequest requestFor(const PanoHost::HeadFacts &head,
                                                 const ShootFiles &files);

/** What is wrong with the pairing in \p panorama of \p shoot, which lies in \p files: every shot
 * that has photos must have one of them, in its place. Empty: nothing. */
[[nodiscard]] QString misreadIn(const PanoHost::Panorama &panorama, const MadeShoot &shoot,
                                const ShootFiles &files);

/** How far the photos of \p aligned are from where they truly pointed. */
[[nodiscard]] PanoHost::AttitudeErrors errorsOf(const PanoHost::PtoFile &aligned,
                                                const PanoHost::Panorama &panorama,
                                                const ShootFiles &files);
