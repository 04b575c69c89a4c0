// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/zoomtiles.h"

#include "host/deliver/finalplace.h"
#include "host/deliver/outputname.h"
#include "host/deliver/partfolder.h"
#include "host/deliver/screenpicture.h"
#include "host/deliver/viewerpage.h"
#include "host/deliver/vips.h"
#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

#include <algorithm>

namespace PanoHost
{
namespace
{

constexpr int kTileSide = 512;
constexpr int kTileOverlap = 1;
constexpr int kWholeSide = 1024; ///< of the picture that IIIF's viewers show while tiles load
constexpr qint64 kInfoBytes = 1 << 20;

/** A way to lay out tiles, each half as fine a picture as the one before, as `vips` knows it. */
struct TileLayout {
    QString name; ///< of the tiles, in their folder
    QStringList options;
    int coarsestSide; ///< pixels at most: there the pictures end
};

/** How many tiles a picture of \p size has, with all its coarser ones. */
int tileCount(QSize size, int coarsestSide)
{
    const auto along = [](int pixels) { return (pixels + kTileSide - 1) / kTileSide; };
    const auto halved = [](int pixels) { return (pixels + 1) / 2; };
    int count = along(size.width()) * along(size.height());
    while (std::max(size.width(), size.height()) > coarsestSide) {
        size = { halved(size.width()), halved(size.height()) };
        count += along(size.width()) * along(size.height());
    }
    return count;
}

/** Cuts \p screen into tiles in \p folder, a new one in the work folder, and looks at each. */
Result<QString> cutTiles(const QString &screen, const QString &folder, const TileLayout &layout,
                         const DeliverJob &job, const JobWatch &watch)
{
    const QString work = QFileInfo(folder).path();
    // Several threads of `vips` write JPEGs at once, and some forget the background: it is put
    // behind the picture before.
    const QString opaque = QStringLiteral("opaque.v");
    const QStringList flatten{ QStringLiteral("flatten"), vipsName(screen, work), opaque,
                               QStringLiteral("--background"), backgroundText() };
    if (Result<QString> flat = runVips(flatten, work, watch); !flat) {
        return flat;
    }
    const QStringList arguments
        = QStringList{ QStringLiteral("dzsave"),
                       opaque,
                       vipsName(QDir(folder).filePath(layout.name), work),
                       QStringLiteral("--tile-size"),
                       QString::number(kTileSide),
                       QStringLiteral("--suffix"),
                       QStringLiteral(".jpg") + jpegOptions(job.jpegQuality) }
        + layout.options;
    if (Result<QString> cut = runVips(arguments, work, watch); !cut) {
        return cut;
    }
    // On a full disk it leaves tiles out and says that all is well.
    int missing = tileCount(job.picture.size, layout.coarsestSide);
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (files.fileName() == QStringLiteral("vips-properties.xml")) {
            QFile::remove(file); // what nobody needs
        } else if (file.endsWith(QStringLiteral(".jpg"))) {
            if (Result<QString> whole = wholeJpeg(file); !whole) {
                return whole;
            }
            --missing;
        }
    }
    return missing <= 0 ? Result<QString>(folder) : notWhole(folder);
}

/** Gives the finished \p folder its place; answers its file \p opened. */
Result<QString> place(const QString &folder, const QString &wanted, const QString &opened)
{
    const Result<QString> placed = moveFolder(folder, wanted);
    return placed ? QDir(wanted).filePath(opened) : placed;
}

Result<QString> zoomFolder(const DeliverJob &job, const JobWatch &watch)
{
    const QString wanted = outputName(job.output, QStringLiteral("_zoom"));
    if (Result<QString> isFree = checkFolderPlace(wanted); !isFree) {
        return isFree;
    }
    const Result<PartFolder> part = PartFolder::make(job.workFolder, QStringLiteral("part-zoom"));
    if (!part) {
        return part.error();
    }
    const QString folder = part.value().path(QStringLiteral("zoom"));
    if (!QDir().mkpath(folder)) { // the other layout makes it
        return notWhole(folder);
    }
    Result<QString> screen
        = screenPicture(job.picture, job.origin.iccProfile, part.value().path(), watch);
    if (!screen) {
        return screen;
    }
    const QSize size = job.picture.size;
    const QJsonObject source{
        { QStringLiteral("Image"),
          QJsonObject{ { QStringLiteral("xmlns"),
                         QStringLiteral("http://schemas.microsoft.com/deepzoom/2008") },
                       { QStringLiteral("Url"), QStringLiteral("tiles_files/") },
                       { QStringLiteral("Format"), QStringLiteral("jpg") },
                       { QStringLiteral("Overlap"), kTileOverlap },
                       { QStringLiteral("TileSize"), kTileSide },
                       { QStringLiteral("Size"),
                         QJsonObject{ { QStringLiteral("Width"), size.width() },
                                      { QStringLiteral("Height"), size.height() } } } } },
    };
    const QString opened = QStringLiteral("index.html");
    const QByteArray page
        = viewerPage(QStringLiteral("zoom.html"), job.title,
                     { { "NOTICE", viewerFile(QStringLiteral("openseadragon.txt")) },
                       { "VIEWER", viewerFile(QStringLiteral("openseadragon.js")) },
                       { "SOURCE", scriptText(source) } });
    if (Result<QString> written = writeFileAtomically(QDir(folder).filePath(opened), page);
        !written) {
        return written;
    }
    if (Result<QString> cut
        = cutTiles(screen.value(), folder,
                   { QStringLiteral("tiles"),
                     { QStringLiteral("--overlap"), QString::number(kTileOverlap) },
                     1 },
                   job, watch);
        !cut) {
        return cut;
    }
    return place(folder, wanted, opened);
}

/** A picture of the whole panorama, which level 0 demands; answers its size. */
Result<QSize> addWholePicture(const QString &screen, int quality, const PartFolder &part,
                              const JobWatch &watch)
{
    const QString name = QStringLiteral("iiif/full/max/0/default.jpg");
    const QString side = QString::number(kWholeSide);
    QDir().mkpath(QFileInfo(part.path(name)).path());
    if (const Result<QString> made
        = runVips({ QStringLiteral("thumbnail"), vipsName(screen, part.path()),
                    name + jpegOptions(quality), side, QStringLiteral("--height"), side,
                    QStringLiteral("--size"), QStringLiteral("down") },
                  part.path(), watch);
        !made) {
        return made.error();
    }
    if (const Result<QString> whole = wholeJpeg(part.path(name)); !whole) {
        return whole.error();
    }
    const QSize size = QImageReader(part.path(name)).size();
    const QString sized
        = part.path(QStringLiteral("iiif/full/%1,%2/0").arg(size.width()).arg(size.height()));
    const QString copy = QDir(sized).filePath(QStringLiteral("default.jpg"));
    return QDir().mkpath(sized) && QFile::copy(part.path(name), copy) ? Result<QSize>(size)
                                                                      : notWhole(copy);
}

/** Completes what `vips` says in \p path of the tiles. */
Result<QString> completeInfo(const QString &path, const QString &id, QSize whole)
{
    const Result<QByteArray> said = readRegularFile(path, kInfoBytes);
    if (!said) {
        return said.error();
    }
    QJsonObject info = QJsonDocument::fromJson(said.value()).object();
    info.insert(QStringLiteral("id"), id);
    // Of a picture that is one tile it names none.
    const QString factors = QStringLiteral("scaleFactors");
    QJsonObject tiles = info.value(QStringLiteral("tiles")).toArray().at(0).toObject();
    if (tiles.value(factors).toArray().isEmpty()) {
        tiles.insert(factors, QJsonArray{ 1 });
        info.insert(QStringLiteral("tiles"), QJsonArray{ tiles });
    }
    info.insert(QStringLiteral("sizes"),
                QJsonArray{ QJsonObject{ { QStringLiteral("width"), whole.width() },
                                         { QStringLiteral("height"), whole.height() } } });
    info.insert(QStringLiteral("maxWidth"), kWholeSide);
    info.insert(QStringLiteral("maxHeight"), kWholeSide);
    return writeFileAtomically(path, QJsonDocument(info).toJson());
}

Result<QString> iiifFolder(const DeliverJob &job, const JobWatch &watch)
{
    QString address = job.iiifAddress;
    while (address.endsWith(QLatin1Char('/'))) {
        address.chop(1);
    }
    if (address.isEmpty()) {
        return Failure{ ExitCode::Usage, QStringLiteral("iiif"),
                        Said::tr("the address where the folder will be reached is not known"),
                        Said::tr("give it, such as https://example.org/panoramas") };
    }
    const QString wanted = outputName(job.output, QStringLiteral("_iiif"));
    if (Result<QString> isFree = checkFolderPlace(wanted); !isFree) {
        return isFree;
    }
    const Result<PartFolder> part = PartFolder::make(job.workFolder, QStringLiteral("part-iiif"));
    if (!part) {
        return part.error();
    }
    Result<QString> screen
        = screenPicture(job.picture, job.origin.iccProfile, part.value().path(), watch);
    if (!screen) {
        return screen;
    }
    const QString folder = part.value().path(QStringLiteral("iiif"));
    if (Result<QString> cut = cutTiles(screen.value(), folder,
                                       { {},
                                         { QStringLiteral("--layout"), QStringLiteral("iiif3"),
                                           QStringLiteral("--id"), address },
                                         kTileSide },
                                       job, watch);
        !cut) {
        return cut;
    }
    const Result<QSize> whole
        = addWholePicture(screen.value(), job.jpegQuality, part.value(), watch);
    if (!whole) {
        return whole.error();
    }
    const QString opened = QStringLiteral("info.json");
    const QString id = address + QLatin1Char('/')
        + QString::fromLatin1(QUrl::toPercentEncoding(QFileInfo(wanted).fileName()));
    if (Result<QString> written = completeInfo(QDir(folder).filePath(opened), id, whole.value());
        !written) {
        return written;
    }
    return place(folder, wanted, opened);
}

using Maker = Result<QString>(const DeliverJob &job, const JobWatch &watch);

Result<QString> reported(Maker *make, const QString &what, const DeliverJob &job,
                         const JobWatch &watch)
{
    watch.report(0, 1, what);
    Result<QString> made = make(job, watch);
    if (made) {
        watch.report(1, 1, what);
    }
    return made;
}

} // namespace

Result<QString> makeZoomFolder(const DeliverJob &job, const JobWatch &watch)
{
    return reported(zoomFolder, QStringLiteral("cutting tiles"), job, watch);
}

Result<QString> makeIiifFolder(const DeliverJob &job, const JobWatch &watch)
{
    return reported(iiifFolder, QStringLiteral("cutting tiles for IIIF"), job, watch);
}

} // namespace PanoHost
