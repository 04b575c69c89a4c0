// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/screenpicture.h"

#include "host/deliver/vips.h"
#include "host/model/safefile.h"

#include <QDir>
#include <QVector>

namespace PanoHost
{

Result<QString> screenPicture(const StitchedPicture &picture, const QByteArray &iccProfile,
                              const QString &folder, const JobWatch &watch)
{
    using Depth = StitchedPicture::Depth;
    const QString source = vipsName(picture.path, folder);
    const QString srgb = QStringLiteral("srgb");
    const bool managed = picture.depth != Depth::Radiance && !iccProfile.isEmpty();
    QVector<QStringList> steps; // operation, options; the files stand between them
    if (picture.depth == Depth::Bits16) {
        steps += { QStringLiteral("colourspace"), srgb, QStringLiteral("--source-space"),
                   QStringLiteral("rgb16") };
    } else if (picture.depth == Depth::Radiance) {
        steps += { QStringLiteral("colourspace"), srgb, QStringLiteral("--source-space"),
                   QStringLiteral("scrgb") };
        // Alpha stays as it is, 0 or 1.
        steps += { QStringLiteral("linear"), QStringLiteral("1 1 1 255"), QStringLiteral("0 0 0 0"),
                   QStringLiteral("--uchar") };
    }
    if (managed) {
        const QString profile = QStringLiteral("screen.icc");
        if (Result<QString> written
            = writeFileAtomically(QDir(folder).filePath(profile), iccProfile);
            !written) {
            return written;
        }
        steps += { QStringLiteral("icc_transform"), srgb, QStringLiteral("--input-profile"),
                   profile };
    }

    QString file = source;
    for (int i = 0; i < steps.size(); ++i) {
        const QString next = QStringLiteral("screen%1.v").arg(i);
        const QStringList arguments
            = steps[i].mid(0, 1) + QStringList{ file, next } + steps[i].mid(1);
        if (Result<QString> ran = runVips(arguments, folder, watch); !ran) {
            return ran;
        }
        if (i > 0) {
            QFile::remove(QDir(folder).filePath(file));
        }
        file = next;
    }
    return steps.isEmpty() ? picture.path : QDir(folder).filePath(file);
}

} // namespace PanoHost
