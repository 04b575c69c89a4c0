// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"
#include "host/stitch/stitchedpicture.h"

#include <QByteArray>
#include <QFile>
#include <QSize>
#include <QString>

namespace PanoHost
{

/** Writes a picture of R G B alpha in libvips' own format, row after row. */
class VipsWriter
{
public:
    VipsWriter(const QString &path, const QSize &size, StitchedPicture::Depth depth);

    /** Whole rows, in the byte order of the machine. */
    void add(const QByteArray &rows);

    /**
     * To be called when all rows are there; \p xmp and \p iccProfile go where the picture goes that
     * vips makes of this one. Answers the path.
     */
    [[nodiscard]] Result<QString> finish(const QByteArray &xmp = {},
                                         const QByteArray &iccProfile = {});

private:
    QFile m_file;
    bool m_isSound = true;
};

} // namespace PanoHost
