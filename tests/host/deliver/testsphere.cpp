// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "testsphere.h"

#include "testpicture.h"

#include <QDir>
#include <QtMath>

namespace PanoHost
{
namespace
{

QRgb colourAt(double yawDegrees, double pitchDegrees)
{
    constexpr double kReach = 15.0;
    if (qAbs(pitchDegrees) > 90 - kReach) {
        return pitchDegrees > 0 ? Marks::kZenith : Marks::kNadir;
    }
    if (qAbs(pitchDegrees) < kReach) {
        if (qAbs(yawDegrees) < kReach) {
            return Marks::kFront;
        }
        if (qAbs(yawDegrees) > 180 - kReach) {
            return Marks::kBack;
        }
        if (qAbs(qAbs(yawDegrees) - 90) < kReach) {
            return yawDegrees > 0 ? Marks::kRight : Marks::kLeft;
        }
    }
    return Marks::kElsewhere;
}

/** The light that a screen makes of \p byte. */
double lightOf(int byte)
{
    const double value = byte / 255.0;
    return value <= 0.04045 ? value / 12.92 : qPow((value + 0.055) / 1.055, 2.4);
}

Pixel pixelOf(QRgb colour, StitchedPicture::Depth depth)
{
    const auto value = [depth](int byte) {
        return depth == StitchedPicture::Depth::Radiance ? lightOf(byte)
            : depth == StitchedPicture::Depth::Bits16    ? byte * 257.0
                                                         : byte;
    };
    const double covered = depth == StitchedPicture::Depth::Radiance ? 1.0 : value(255);
    return { value(qRed(colour)), value(qGreen(colour)), value(qBlue(colour)), covered };
}

} // namespace

TestSphere::TestSphere(QSize sphere, QRect part, StitchedPicture::Depth depth)
    : folder(QDir::tempPath()
             + QStringLiteral("/of \"all\" [Q=1] 'kinds' #1 100%41 \u0416\u65e5-XXXXXX"))
{
    if (part.isNull()) {
        part = QRect(QPoint(0, 0), sphere);
    }
    job.workFolder = folder.filePath(QStringLiteral("my pano[x].work"));
    QDir().mkpath(job.workFolder);
    job.output = folder.filePath(QStringLiteral("my pano[x].jpg"));
    job.title = QStringLiteral("Terrace");
    job.picture.path = QDir(job.workFolder).filePath(QStringLiteral("panorama.v"));
    job.picture.size = part.size();
    job.picture.depth = depth;
    job.picture.sphere = sphere;
    job.picture.onSphere = part.topLeft();
    QVector<Pixel> pixels;
    pixels.reserve(part.width() * part.height());
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            pixels += pixelOf(colourAt((x + 0.5) * 360 / sphere.width() - 180,
                                       90 - (y + 0.5) * 180 / sphere.height()),
                              depth);
        }
    }
    ok = folder.isValid() && writeTestPicture(job.picture, pixels);
}

QString TestSphere::path(const char *name) const
{
    return folder.filePath(QString::fromUtf8(name));
}

bool isAlike(QRgb seen, QRgb wanted)
{
    constexpr int kTolerance = 8;
    return qAbs(qRed(seen) - qRed(wanted)) <= kTolerance
        && qAbs(qGreen(seen) - qGreen(wanted)) <= kTolerance
        && qAbs(qBlue(seen) - qBlue(wanted)) <= kTolerance;
}

} // namespace PanoHost
