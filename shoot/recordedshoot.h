// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "shoot/mismatch.h"

#include <QString>
#include <QVector>

#include <functional>

namespace PanoHead
{

struct ShootState;

// What a page with a head's record does with its state as record and photos come.

/**
 * Has \p read read a record into \p shots and measures them. When it answers false, the shot count
 * is -1, the extents stay as they are, and so is this answer.
 */
bool readRecord(ShootState &state, const QVector<ShootData> &shots,
                const std::function<bool()> &read);

/** Takes focal length and lens type over from the photos and answers what to preset from both. */
[[nodiscard]] LensFacts adoptPhotos(ShootState &state, const LensFacts &recorded,
                                    const LensFacts &photos);

/** One line each, for the record's tool tip. Show it as plain text only. */
[[nodiscard]] QString headerText(const QString &title, const QString &gps, const QString &comment);

/** \p bracketCount is the recorded one. */
[[nodiscard]] Mismatch mismatchOf(const ShootState &state, const LensFacts &recorded,
                                  int bracketCount);

} // namespace PanoHead
