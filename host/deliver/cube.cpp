// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/cube.h"

#include "host/deliver/cubeface.h"
#include "host/deliver/finalplace.h"
#include "host/deliver/flatfile.h"
#include "host/deliver/outputname.h"
#include "host/deliver/partfolder.h"
#include "host/deliver/radiancefile.h"
#include "host/deliver/stitchedfile.h"
#include "host/deliver/vipswriter.h"
#include "host/model/parallel.h"
#include "host/model/said.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>

namespace PanoHost
{
namespace
{

/** What all sides are made of and how. */
struct CubeJob {
    const DeliverJob &job;
    const CubeView &view;
    int side; ///< pixels
    QString folder; ///< of the sides
    const JobWatch &watch;
};

/** Whether photos reach any of a side. */
using Reached = std::atomic<bool>;

/** Writes a side as a picture of \p T, some rows at a time. */
template <typename T>
Result<QString> writeFlat(const CubeJob &cube, const CubeFace &face, const QString &path,
                          Reached &reached)
{
    constexpr int kRows = 64;
    const int rowBytes = cube.side * 4 * static_cast<int>(sizeof(T));
    VipsWriter writer(path, QSize(cube.side, cube.side), cube.job.picture.depth);
    for (int first = 0; first < cube.side; first += kRows) {
        if (cube.watch.stopWanted()) {
            return interruption();
        }
        const int rows = std::min(kRows, cube.side - first);
        QByteArray bytes(rowBytes * rows, Qt::Uninitialized);
        char *const start = bytes.data();
        forEachRow(rows, [&](int row) {
            auto *const pixels
                = reinterpret_cast<T *>(start + static_cast<ptrdiff_t>(row) * rowBytes);
            if (cube.view.row(face, cube.side, first + row, pixels)) {
                reached = true;
            }
        });
        writer.add(bytes);
    }
    return writer.finish();
}

Result<QString> makeFlatFace(const CubeJob &cube, const CubeFace &face, const QString &name,
                             Reached &reached)
{
    const QString path = QDir(cube.folder).filePath(QStringLiteral("face.v"));
    const bool isDeep = cube.job.picture.depth == StitchedPicture::Depth::Bits16;
    Result<QString> written = isDeep ? writeFlat<quint16>(cube, face, path, reached)
                                     : writeFlat<quint8>(cube, face, path, reached);
    if (!written || !reached) {
        QFile::remove(path);
        return written;
    }
    const QSize size(cube.side, cube.side);
    const FlatPicture picture{ path, size, cube.job.picture.depth,
                               factsOf(cube.job.origin, size, nullptr) };
    Result<QString> saved = saveFlat(picture, cube.folder, name, cube.job.jpegQuality, cube.watch);
    QFile::remove(path);
    return saved;
}

Result<QString> makeExrFace(const CubeJob &cube, const CubeFace &face, const QString &name,
                            Reached &reached)
{
    RadiancePicture picture;
    picture.size = { cube.side, cube.side };
    picture.row = [&](int y, float *pixels) {
        if (cube.view.row(face, cube.side, y, pixels)) {
            reached = true;
        }
    };
    const QString path = QDir(cube.folder).filePath(name);
    Result<QString> saved = saveExr(picture, cube.job.origin, path, cube.watch);
    if (!reached) {
        QFile::remove(path);
    }
    return saved;
}

} // namespace

Result<QString> deliverCube(const DeliverJob &job, const JobWatch &watch)
{
    const QFileInfo output(job.output);
    const QString wanted = outputName(job.output, QStringLiteral("_cube"));
    const bool isRadiance = job.picture.depth == StitchedPicture::Depth::Radiance;
    const QString suffix = isRadiance ? QStringLiteral("exr") : output.suffix().toLower();
    const int side = cubeFaceSide(job.picture.sphere.width());
    if (Result<QString> place = checkFolderPlace(wanted); !place) {
        return place;
    }
    const Result<VipsFile> file = openStitched(job.picture);
    if (!file) {
        return file.error();
    }
    const Result<PartFolder> part = PartFolder::make(job.workFolder, QStringLiteral("cube.part"));
    if (!part) {
        return part.error();
    }
    const CubeView view(file.value(), job.picture);
    // A folder in it, so that something is there to be removed when it has moved.
    const CubeJob cube{ job, view, side, part.value().path(QStringLiteral("faces")), watch };
    if (!QDir().mkpath(cube.folder)) {
        return Failure{ ExitCode::ToolFailed, cube.folder, Said::tr("this folder cannot be made"),
                        Said::tr("is the disk full, or the folder above it read-only?") };
    }
    QStringList leftOut;
    for (const CubeFace &face : kCubeFaces) {
        const QString name = QLatin1String(face.name);
        Reached reached(false);
        const QString fileName = name + QLatin1Char('.') + suffix;
        Result<QString> made = isRadiance ? makeExrFace(cube, face, fileName, reached)
                                          : makeFlatFace(cube, face, fileName, reached);
        if (!made) {
            return made;
        }
        if (!reached) {
            leftOut += name;
        }
    }
    if (!leftOut.isEmpty()) {
        watch.note(JobWatch::Note::Warning,
                   Said::tr("no photo reaches these sides of the cube, which are left out: %1")
                       .arg(leftOut.join(QStringLiteral(", "))));
    }
    return moveFolder(cube.folder, wanted);
}

} // namespace PanoHost
