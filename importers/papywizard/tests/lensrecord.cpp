// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/tests/lensrecord.h"

QByteArray lensRecord(const QVector<ShotAngles> &shots)
{
    QByteArray xml = "<papywizard><header><lens type=\"rectilinear\"><focal>35.0</focal></lens>"
                     "</header><shoot>";
    for (const ShotAngles &shot : shots) {
        xml += "<pict><position yaw=\"" + QByteArray::number(shot.yawDegrees) + "\" pitch=\""
            + QByteArray::number(shot.pitchDegrees) + "\"/></pict>";
    }
    return xml + "</shoot></papywizard>";
}
