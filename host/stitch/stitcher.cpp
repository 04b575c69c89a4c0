// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/stitcher.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QStorageInfo>
#include <QTemporaryDir>

namespace PanoHost
{
namespace
{

/** Names only, in the order of the images. */
QStringList warpedPhotos(const QString &folder)
{
    return QDir(folder).entryList({ QStringLiteral("warped*.tif") }, QDir::Files, QDir::Name);
}

Result<QString> warp(const StitchJob &job, const QString &nona, const QString &folder,
                     const JobWatch &watch)
{
    QStringList arguments{ QStringLiteral("-m"), QStringLiteral("TIFF_m"),
                           QStringLiteral("-z"), QStringLiteral("NONE"),
                           QStringLiteral("-o"), QDir(folder).filePath(QStringLiteral("warped")) };
    for (const int image : job.images) {
        arguments << QStringLiteral("-i") << QString::number(image);
    }
    const QFileInfo project(job.projectPath);
    arguments << project.absoluteFilePath();
    const int total = std::max(1, job.images.size());
    return runTool(nona, arguments, project.absolutePath(), watch, [&] {
        watch.report(std::min(warpedPhotos(folder).size(), total), total,
                     QStringLiteral("warping photos with nona"));
    });
}

/** The blended picture; its offset says where on the canvas it belongs. */
Result<QImage> blend(const StitchJob &job, const QString &verdandi, const QString &folder,
                     const JobWatch &watch)
{
    watch.report(0, 1, QStringLiteral("blending with verdandi"));
    const QString blended = QStringLiteral("blended.png"); // the offset survives in a PNG
    QStringList arguments{ QStringLiteral("-o"), blended };
    if (job.fullTurn) {
        arguments << QStringLiteral("-w");
    }
    const Result<QString> run = runTool(verdandi, arguments + warpedPhotos(folder), folder, watch);
    if (!run) {
        return run.error();
    }
    const QImage picture(QDir(folder).filePath(blended));
    if (picture.isNull()) {
        return Failure{ ExitCode::ToolFailed, QStringLiteral("verdandi"),
                        QStringLiteral("it left no picture that can be read"),
                        QStringLiteral("is there enough room in %1?").arg(QDir::tempPath()) };
    }
    watch.report(1, 1, QStringLiteral("blending with verdandi"));
    return picture;
}

/** What a helper program says or does that finds no room tells nobody so. */
Failure orLackOfRoom(const Failure &failure, const QString &folder)
{
    constexpr qint64 kMegabyte = 1024LL * 1024;
    constexpr qint64 kHardlyAnyMegabytes = 16; // a warped photo may take as much
    const qint64 megabytes = QStorageInfo(folder).bytesAvailable() / kMegabyte;
    if (failure.code != ExitCode::ToolFailed || megabytes >= kHardlyAnyMegabytes) {
        return failure;
    }
    return { failure.code, failure.what,
             QStringLiteral("it failed, and there is hardly any room left in %1 (%2 MB)")
                 .arg(QDir::tempPath())
                 .arg(megabytes),
             QStringLiteral("make room there, or set TMPDIR to a folder with more") };
}

} // namespace

Result<QImage> stitch(const StitchJob &job, const JobWatch &watch)
{
    const Result<QString> nona = findTool(QStringLiteral("nona"));
    const Result<QString> verdandi = findTool(QStringLiteral("verdandi"));
    if (!nona || !verdandi) {
        return nona ? verdandi.error() : nona.error();
    }
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        return Failure{ ExitCode::ToolFailed, QStringLiteral("temporary folder"),
                        folder.errorString(), QStringLiteral("set TMPDIR to a folder with room") };
    }
    const Result<QString> warped = warp(job, nona.value(), folder.path(), watch);
    if (!warped) {
        return orLackOfRoom(warped.error(), folder.path());
    }
    const Result<QImage> blended = blend(job, verdandi.value(), folder.path(), watch);
    if (!blended) {
        return orLackOfRoom(blended.error(), folder.path());
    }
    QImage canvas(job.canvas, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter(&canvas).drawImage(blended.value().offset(), blended.value());
    return canvas;
}

} // namespace PanoHost
