// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignment.h"
#include "host/deliver/deliver.h"
#include "host/import/importrequest.h"

#include <QByteArray>
#include <QStringList>

namespace PanoHost
{

/**
 * All that decides on a result, as text for `WorkFolder`: two results of one key are the same.
 * Of files it is name, size and time of their last change; of records the content.
 */

/** Of an import through \p library, the plug-in library's file. Not for filled pages. */
[[nodiscard]] QByteArray importKey(const ImportRequest &request, const QString &library);

/** Of what a page has delivered: the description, and its photos. */
[[nodiscard]] QByteArray importedKey(const Panorama &panorama);

/** Of the alignment of what \p panoramaJson describes, with its \p photos. */
[[nodiscard]] QByteArray alignKey(const QByteArray &panoramaJson, bool ignoresExifRotation,
                                  const AlignOptions &options, const QStringList &photos);

/** Of what \p job makes as \p kind; its list of kinds does not count. */
[[nodiscard]] QByteArray deliveryKey(const DeliverJob &job, Delivery kind);

} // namespace PanoHost
