// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/anglerange.h"

#include <QString>
#include <QStringList>

namespace PanoHead
{

/** What a page with a head's record keeps beside its generator. */
struct ShootState {
    QString configPath; ///< the head's record; also the start location of its dialog
    QStringList images; ///< full paths of the chosen photos
    qint32 shotCount = -1; ///< recorded shots; -1: no record, or one that cannot be read
    double imageFocal = 0.0; ///< mm, mean of the photos; 0: unknown
    qint32 imageLensType = 0; ///< a `LensModel` value, of the last photo
    float yawMin = -AngleRange::kUnbounded;
    float yawMax = AngleRange::kUnbounded;
    float pitchMin = -AngleRange::kUnbounded;
    float pitchMax = AngleRange::kUnbounded;

    [[nodiscard]] AngleExtents extents() const
    {
        return { { yawMin, yawMax }, { pitchMin, pitchMax } };
    }
    void setExtents(const AngleExtents &extents);
    /** The pitch of every shot has been negated. */
    void invertPitchRange();
};

} // namespace PanoHead
