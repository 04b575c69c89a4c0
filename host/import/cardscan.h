// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/cardreport.h"
#include "host/model/jobwatch.h"

#include <QStringList>

namespace PanoHost
{

/**
 * Finds every photo, RAW files too, and every record below \p folders and reads what they say of
 * themselves; no picture is decoded. Hidden files and folders are passed over, each file and folder
 * counts once, however many links lead to it, and pictures that were made of photos are no photos.
 * What cannot be read is named and does no harm. Throws when one of \p folders is none, or when
 * \p watch says so.
 */
[[nodiscard]] Card scanCard(const QStringList &folders, const JobWatch &watch);

} // namespace PanoHost
