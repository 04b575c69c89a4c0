// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/spherepage.h"

#include "host/deliver/finalplace.h"
#include "host/deliver/outputname.h"
#include "host/deliver/partfolder.h"
#include "host/deliver/screenpicture.h"
#include "host/deliver/viewerpage.h"
#include "host/deliver/vips.h"
#include "host/model/safefile.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace PanoHost
{
namespace
{

constexpr QSize kLargest(8192, 4096); ///< what graphics of phones hold
constexpr double kStartDegrees = 90.0;
constexpr double kWidestDegrees = 120.0;
constexpr double kFinestDegrees = 30.0; ///< of pictures that show nothing more

/** What the viewer is to know of the panorama. */
QJsonObject viewOf(const StitchedPicture &picture, QSize shown,
                   const std::optional<double> &headingDegrees)
{
    const double perColumn = 360.0 / picture.sphere.width();
    const double perRow = 180.0 / picture.sphere.height();
    const double width = picture.size.width() * perColumn;
    const double height = picture.size.height() * perRow;
    const double top = 90.0 - picture.onSphere.y() * perRow;
    const double bottom = top - height;
    const bool goesRound = picture.size.width() >= picture.sphere.width();
    const bool hasZenith = picture.onSphere.y() <= 0;
    const bool hasNadir = picture.onSphere.y() + picture.size.height() >= picture.sphere.height();
    const double grey = kBackgroundGrey / 255.0;

    QJsonObject view{
        { QStringLiteral("type"), QStringLiteral("equirectangular") },
        { QStringLiteral("autoLoad"), true },
        { QStringLiteral("ignoreGPanoXMP"), true },
        { QStringLiteral("haov"), width },
        { QStringLiteral("vaov"), height },
        { QStringLiteral("vOffset"), (top + bottom) / 2 },
        { QStringLiteral("hfov"), std::min(kStartDegrees, width) },
        // A pixel of the picture becomes some four of a screen.
        { QStringLiteral("minHfov"),
          std::clamp(480.0 * width / shown.width(), 1.0, kFinestDegrees) },
        { QStringLiteral("maxHfov"), std::min(kWidestDegrees, width) },
        { QStringLiteral("backgroundColor"), QJsonArray{ grey, grey, grey } },
    };
    if (!goesRound) {
        view.insert(QStringLiteral("minYaw"), -width / 2);
        view.insert(QStringLiteral("maxYaw"), width / 2);
    }
    // The limits are those of the window's edges; at a pole its middle is meant to arrive.
    if (!hasZenith) {
        view.insert(QStringLiteral("maxPitch"), top);
    }
    if (!hasNadir) {
        view.insert(QStringLiteral("minPitch"), bottom);
    }
    view.insert(QStringLiteral("avoidShowingBackground"), !hasZenith && !hasNadir);
    if (headingDegrees) {
        // Of the middle of the sphere; the viewer counts from the middle of the picture.
        const double offset
            = (picture.onSphere.x() + picture.size.width() / 2.0) * perColumn - 180.0;
        view.insert(QStringLiteral("compass"), true);
        view.insert(QStringLiteral("northOffset"),
                    std::fmod(*headingDegrees + offset + 360.0, 360.0));
    }
    return view;
}

QSize shownSize(QSize size)
{
    const double scale = std::min({ 1.0, double(kLargest.width()) / size.width(),
                                    double(kLargest.height()) / size.height() });
    return QSize(qRound(size.width() * scale), qRound(size.height() * scale)).expandedTo({ 1, 1 });
}

/** The picture of the page as a JPEG. */
Result<QByteArray> jpegOf(const DeliverJob &job, QSize shown, const PartFolder &part,
                          const JobWatch &watch)
{
    const Result<QString> screen
        = screenPicture(job.picture, job.origin.iccProfile, part.path(), watch);
    if (!screen) {
        return screen.error();
    }
    // Scaling keeps what is transparent apart.
    const QString jpeg = QStringLiteral("panorama.jpg");
    const QString source = vipsName(screen.value(), part.path());
    const QString target = jpeg + jpegOptions(job.jpegQuality);
    const QStringList arguments = shown == job.picture.size
        ? QStringList{ QStringLiteral("copy"), source, target }
        : QStringList{ QStringLiteral("thumbnail"),
                       source,
                       target,
                       QString::number(shown.width()),
                       QStringLiteral("--height"),
                       QString::number(shown.height()),
                       QStringLiteral("--size"),
                       QStringLiteral("force") };
    if (const Result<QString> saved = runVips(arguments, part.path(), watch); !saved) {
        return saved.error();
    }
    if (const Result<QString> whole = wholeJpeg(part.path(jpeg)); !whole) {
        return whole.error();
    }
    constexpr qint64 kMaxBytes = 512 << 20;
    return readRegularFile(part.path(jpeg), kMaxBytes);
}

} // namespace

Result<QString> makeSpherePage(const DeliverJob &job, const JobWatch &watch)
{
    const QString what = QStringLiteral("making the page");
    watch.report(0, 1, what);
    const Result<PartFolder> part = PartFolder::make(job.workFolder, QStringLiteral("part-html"));
    if (!part) {
        return part.error();
    }
    const QSize shown = shownSize(job.picture.size);
    const Result<QByteArray> jpeg = jpegOf(job, shown, part.value(), watch);
    if (!jpeg) {
        return jpeg.error();
    }
    const QByteArray page = viewerPage(
        QStringLiteral("sphere.html"), job.title,
        { { "STYLE", viewerFile(QStringLiteral("pannellum.css")) },
          { "NOTICE", viewerFile(QStringLiteral("pannellum.txt")) },
          { "VIEWER", viewerFile(QStringLiteral("pannellum.js")) },
          { "PANORAMA", scriptText(viewOf(job.picture, shown, job.origin.headingDegrees)) },
          { "PICTURE", jpeg.value().toBase64() } });
    Result<QString> written
        = writeFileAtomically(part.value().path(QStringLiteral("page.html")), page);
    if (!written) {
        return written;
    }
    Result<QString> placed
        = moveFile(written.value(), outputName(job.output, QStringLiteral(".html")));
    if (placed) {
        watch.report(1, 1, what);
    }
    return placed;
}

} // namespace PanoHost
