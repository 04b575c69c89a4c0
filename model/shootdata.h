// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QTypeInfo>

/**
 * One shot as a head recorded it. Collected by the readers; not part of the description.
 *
 * Host interface record: the fields and their order are fixed.
 */
struct ShootData {
    qint64 reserved = 0; ///< left at 0
    float yaw = 0.0F; ///< degrees, positive to the right, as recorded (any number of turns)
    float pitch = 0.0F; ///< degrees, positive up
    float roll = 0.0F; ///< degrees about the optical axis; set by the pages' rotate buttons only
    qint32 id = 0; ///< picture number from the record
    qint32 bracket = 0; ///< exposure index within the bracket, as recorded
    QDateTime time; ///< null when the record gives none
};

Q_DECLARE_TYPEINFO(ShootData, Q_MOVABLE_TYPE);
