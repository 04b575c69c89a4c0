// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/importrequest.h"
#include "host/model/jobwatch.h"
#include "host/plugin/panohostapplication.h"

#include <QStringList>

namespace PanoHost
{

/**
 * Throws unless a file can be written at \p path: its folder exists and can be written, the path is
 * no folder, and it is none of \p inputs.
 */
void requireWritable(const QString &path, const QStringList &inputs);

/** Throws unless each of \p photos is a regular, readable file, named once. */
void requirePhotoFiles(const QStringList &photos);

/** Throws unless the photos are as many as the record's shots and fill its brackets. */
void requireMatchingCounts(const QString &recordName, const RecordSummary &record, int photoCount);

/** \p photos in the order of their capture times; throws when one has none. */
[[nodiscard]] QStringList orderedByTime(PanoHostApplication &app, const QStringList &photos,
                                        const JobWatch &watch);

} // namespace PanoHost
