// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"
#include "host/model/result.h"

#include <QString>
#include <QStringList>

namespace PanoHost
{

/**
 * Runs `vips` in \p folder: an operation of its own, files and options. It reads "NAME[OPTIONS]"
 * where a file name is expected, so name files by `vipsName`. Answers the program's path.
 */
[[nodiscard]] Result<QString> runVips(const QStringList &arguments, const QString &folder,
                                      const JobWatch &watch);

/** \p path seen from \p folder: what both have in common, which users have named, is not in it. */
[[nodiscard]] QString vipsName(const QString &path, const QString &folder);

/** The colour that shows where no photo reaches, as `vips` takes it: "24 24 24". */
[[nodiscard]] QString backgroundText();

/** What `vips` reads after the name of a JPEG; the background shows where no photo reaches. */
[[nodiscard]] QString jpegOptions(int quality);

/** That `vips` ended well and left only part of \p path. */
[[nodiscard]] Failure notWhole(const QString &path);

/** Whether \p path is a JPEG that has its end; answers the path. */
[[nodiscard]] Result<QString> wholeJpeg(const QString &path);

} // namespace PanoHost
