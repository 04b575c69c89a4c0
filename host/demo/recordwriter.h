// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/shootplan.h"

#include <QByteArray>

namespace PanoHost
{

/** How precisely a head writes down its angles. */
enum class RecordedAngles {
    OneDecimal, ///< as real heads do
    Exact,
};

/**
 * A record in the format of the Papywizard controller, version "c", with the habits of real files:
 * element texts between line breaks and blanks, `time` as 2026-05-01_10h20m30s, a `roll` attribute.
 * With several exposures per position there is one `pict` for each photo.
 * \param title any text
 */
[[nodiscard]] QByteArray papywizardRecord(const ShootPlan &plan, const QString &title,
                                          RecordedAngles angles = RecordedAngles::OneDecimal);

/** A script as a Clauss head runs it: whole degrees, an angle only where it changes. */
[[nodiscard]] QByteArray claussScript(const ShootPlan &plan);

} // namespace PanoHost
