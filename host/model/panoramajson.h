// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

#include <QByteArray>

namespace PanoHost
{

/**
 * \p panorama as JSON of schema 1 (host/data/panohost.schema.json), with a line end at the end.
 * Keys come in a fixed order, numbers with at most 9 significant digits, numbers that are not
 * finite as null, paths relative to \p folder (empty: absolute).
 */
[[nodiscard]] QByteArray panoramaToJson(const Panorama &panorama, const QString &folder);

/** What tells \p panorama from others: the same for the same description of the same photos,
 * whatever project was written of it. */
[[nodiscard]] QByteArray identityOf(const Panorama &panorama);

/**
 * Reads what `panoramaToJson` wrote; unknown keys are ignored. Writing the result for the same
 * folder gives the same bytes. Errors name the line or the key and carry no file name.
 */
[[nodiscard]] Result<Panorama> panoramaFromJson(const QByteArray &json, const QString &folder);

/** The schema that every result of `panoramaToJson` fits. */
[[nodiscard]] QByteArray panoramaSchema();

/** Reads a JSON file; paths are taken relative to its folder. */
[[nodiscard]] Result<Panorama> readPanoramaJson(const QString &path);

/** Writes a JSON file at once (never a partial one). Answers the path. */
[[nodiscard]] Result<QString> writePanoramaJson(const Panorama &panorama, const QString &path);

} // namespace PanoHost
