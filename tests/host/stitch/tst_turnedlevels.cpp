// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/panoramastitch.h"
#include "host/stitch/vipsfile.h"
#include "tests/support/testprogram.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>

#include <tiffio.h>

using namespace PanoHost;

namespace
{

constexpr double kDegree = M_PI / 180.0;
constexpr int kWidth = 600;
constexpr int kHeight = 400;
constexpr double kFovDegrees = 50.0;
constexpr int kPixelsPerDegree = 10;

/** The light from a direction: waves of 3 and 4 degrees, from 0.02 on the left to 3 on the right;
 * 1 is white of the reference. */
std::array<double, 3> lightFrom(double yawDegrees, double pitchDegrees)
{
    const double base = 0.25 * std::exp2(yawDegrees / 7.0);
    const double waves = 1.0 + 0.25 * std::sin(2.0 * M_PI * yawDegrees / 3.0)
        + 0.25 * std::cos(2.0 * M_PI * pitchDegrees / 4.0);
    return { base * waves, base, 0.5 * base * waves };
}

/** 16 bits of the light that a camera turned to \p yawDegrees sees, \p stops longer exposed. */
bool photograph(const QString &path, double yawDegrees, double stops)
{
    TIFF *const file = TIFFOpen(QFile::encodeName(path).constData(), "w");
    if (file == nullptr) {
        return false;
    }
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, kWidth);
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, kHeight);
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 16);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, kHeight);
    const double focal = kWidth / 2.0 / std::tan(kFovDegrees / 2.0 * kDegree);
    QVector<quint16> row(kWidth * 3);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const double right = x - (kWidth - 1) / 2.0;
            const double up = (kHeight - 1) / 2.0 - y;
            const double yaw = std::atan2(right, focal) / kDegree + yawDegrees;
            const double pitch = std::atan2(up, std::hypot(right, focal)) / kDegree;
            const std::array<double, 3> light = lightFrom(yaw, pitch);
            for (int i = 0; i < 3; ++i) {
                const double seen = std::min(light[size_t(i)] * std::exp2(stops), 1.0);
                row[3 * x + i] = quint16(std::lround(65535.0 * seen));
            }
        }
        TIFFWriteScanline(file, row.data(), uint32_t(y), 0);
    }
    TIFFClose(file);
    return true;
}

} // namespace

/** A bracket whose camera was moved between its photos, with the stitching tools themselves. */
class TestTurnedLevels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lightIsThatOfTheScene();
};

void TestTurnedLevels::lightIsThatOfTheScene()
{
    for (const char *const tool : { "nona", "verdandi", "vips" }) {
        if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty()) {
            QSKIP("the stitching tools are not installed");
        }
    }
    const QTemporaryDir folder;
    QByteArray text = "p f2 w600 h1800 v60 E12 R0 S0,600,700,1100 n\"TIFF_m\"\n";
    const std::array<double, 3> yaws{ 0.0, 0.3, -0.2 };
    const std::array<double, 3> stops{ 0.0, -2.0, 2.0 };
    for (size_t i = 0; i < yaws.size(); ++i) {
        const QString name = QStringLiteral("%1.tif").arg(i);
        QVERIFY(photograph(folder.filePath(name), yaws[i], stops[i]));
        text += "i w600 h400 f0 v50 r0 p0 y" + QByteArray::number(yaws[i]) + " Eev"
            + QByteArray::number(12.0 - stops[i]) + " j0 n\"" + name.toLatin1() + "\"\n";
    }
    const auto work = WorkFolder::open(folder.filePath(QStringLiteral("out.work")));
    QVERIFY(work);
    StitchOptions options;
    options.output = StitchOutput::Hdr;
    options.isLinear = true;
    const auto picture
        = stitchProject(PtoFile::parse(text, folder.path()).value(), options, work.value(), {});
    QVERIFY2(picture, picture ? "" : qPrintable(picture.error().text()));
    const auto file = VipsFile::open(picture.value().path);
    QVERIFY(file);
    QCOMPARE(file.value().size(), QSize(600, 400));
    QVector<double> errors;
    for (int y = 0; y < 400; ++y) {
        const auto *const row = file.value().row<float>(y);
        for (int x = 0; x < 600; ++x) {
            const double yaw = (x + 0.5) / kPixelsPerDegree - 30.0;
            const double pitch = 20.0 - (y + 0.5) / kPixelsPerDegree;
            const std::array<double, 3> light = lightFrom(yaw, pitch);
            for (int i = 0; i < 3 && row[4 * x + 3] > 0.0F; ++i) {
                errors += std::abs(double(row[4 * x + i]) / light[size_t(i)] - 1.0);
            }
        }
    }
    QVERIFY(errors.size() > 3 * 500 * 300);
    std::sort(errors.begin(), errors.end());
    const double median = errors[errors.size() / 2];
    const double nearlyAll = errors[errors.size() / 100 * 99];
    qInfo("median %.2f %% off, 99 %% within %.2f %%", 100.0 * median, 100.0 * nearlyAll);
    QVERIFY(median <= 0.01);
    QVERIFY(nearlyAll <= 0.05);
}

TEST_CLASS(TestTurnedLevels, QCoreApplication)
#include "tst_turnedlevels.moc"
