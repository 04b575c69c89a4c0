// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// The built panohost from record and photos to the panorama, against Hugin's own tools from the
// same photos to a panorama of the same size: 26 of 6 megapixels, a head with 0.3 degrees of play.
// Takes half an hour.
#include "benchmarks/alignroutes.h"
#include "benchmarks/bars.h"
#include "benchmarks/hostrun.h"
#include "host/demo/demohead.h"
#include "host/demo/psnr.h"
#include "host/import/heads.h"
#include "host/model/canvas.h"
#include "host/model/photofile.h"
#include "host/model/ptofile.h"
#include "host/model/safefile.h"
#include "tests/host/align/support/shootlist.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <optional>

using namespace PanoHost;

namespace
{

/** A panorama and what it took. */
struct Panorama360 {
    double cpuSeconds = 0.0;
    double psnr = 0.0;
    std::string mistake;
    int width = 0;
};

TestShoots::TestShoot sixMegapixels()
{
    TestShoots::TestShoot shoot = *TestShoots::named(QStringLiteral("play"));
    shoot.camera.size = QSize(3000, 2000);
    return shoot;
}

/** The shoot in a folder of its own, which lives as long as this. */
class Shoot
{
public:
    Shoot()
        : m_shoot(sixMegapixels())
        , m_taken{ m_shoot, {}, {}, m_folder.path() }
    {
        const auto panorama = TestShoots::photographed(m_shoot, m_folder.path());
        if (panorama) {
            m_taken.panorama = panorama.value();
            m_taken.reference = panorama.value();
        }
    }

    [[nodiscard]] const AlignRoutes::Taken &taken() const { return m_taken; }
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QLatin1String(name));
    }

    /** The picture at \p file, which \p project describes, against the scene. */
    [[nodiscard]] Panorama360 judged(const QString &file, const QString &project,
                                     double cpuSeconds) const
    {
        const Result<PtoFile> placed = PtoFile::read(project);
        const TestShoots::Rotations found = AlignRoutes::rotationsIn(project, m_taken);
        const QImage picture(file);
        if (!placed || found.empty() || picture.isNull()) {
            return { cpuSeconds, 0.0, "no panorama at " + file.toStdString() };
        }
        const Canvas canvas = placed.value().canvas();
        if (picture.width() != 2 * picture.height() || canvas.horizontalFovDegrees != 360.0
            || !placed.value().isEquirectangular()) {
            return { cpuSeconds, 0.0, "not the whole sphere: " + file.toStdString() };
        }
        const SpherePart part{ picture.size(), canvas.horizontalFovDegrees, canvas.yawCentreDegrees,
                               picture.rect() };
        const Eigen::Matrix3d common = TestShoots::judged(m_shoot, found).common;
        return { cpuSeconds,
                 agreementOf(picture, developed(TestShoots::truthOf(m_shoot, part, common)))
                     .psnrDecibels,
                 {},
                 picture.width() };
    }

private:
    QTemporaryDir m_folder;
    TestShoots::TestShoot m_shoot;
    AlignRoutes::Taken m_taken;
};

Panorama360 byHugin(const Shoot &shoot)
{
    const AlignRoutes::Outcome aligned = AlignRoutes::hugin(shoot.taken());
    if (aligned.project.isEmpty()) {
        return { aligned.cpuSeconds, 0.0, aligned.problem.toStdString() };
    }
    const HostRun::Run run = HostRun::run(
        QStringLiteral("/usr/bin/hugin_executor"),
        { QStringLiteral("--stitching"), QStringLiteral("--prefix=hugin"), aligned.project },
        shoot.taken().folder, QStringLiteral("hugin_executor.log"));
    return shoot.judged(shoot.path("hugin.tif"), aligned.project,
                        aligned.cpuSeconds + run.cpuSeconds);
}

Panorama360 byPanohost(const Shoot &shoot, const QString &panohost, const QString &library,
                       int width)
{
    ShootPlan plan;
    plan.camera = shoot.taken().shoot.camera;
    plan.positions = TestShoots::recordedAngles(shoot.taken().shoot);
    (void)writeFileAtomically(shoot.path("record.xml"),
                              demoRecord(headNamed(QStringLiteral("papywizard")), plan));
    QStringList arguments{ QStringLiteral("make"),
                           QStringLiteral("papywizard"),
                           QStringLiteral("record.xml"),
                           QStringLiteral("--plugin"),
                           library,
                           QStringLiteral("-o"),
                           QStringLiteral("own.tif"),
                           QStringLiteral("--size"),
                           QString::number(width) };
    for (const Position &position : shoot.taken().panorama.positions) {
        arguments += position.photos.first().path;
    }
    const HostRun::Run run
        = HostRun::run(panohost, arguments, shoot.taken().folder, QStringLiteral("own.log"));
    return shoot.judged(shoot.path("own.tif"), shoot.path("own.work/2_aligned.pto"),
                        run.cpuSeconds);
}

std::string text(const char *format, double one, double other)
{
    return QString::asprintf(format, one, other).toStdString();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    initializePhotoReading();
    const QString panohost = QCoreApplication::arguments().value(1);
    const QString library = QCoreApplication::arguments().value(2);
    std::optional<Shoot> shoot;
    Panorama360 own;
    Panorama360 hugin;
    const auto once = [&] {
        if (!shoot) {
            shoot.emplace();
            hugin = byHugin(*shoot);
            if (hugin.mistake.empty()) {
                own = byPanohost(*shoot, panohost, library, hugin.width);
            }
        }
    };
    Bars::add("make, 26 photos of 6 megapixels: processor time against Hugin's tools",
              { Bars::Need::AtMost, 0.4, "" }, [&] {
                  once();
                  return Bars::Figure{ own.cpuSeconds / hugin.cpuSeconds,
                                       text("%.0f s, %.0f s", own.cpuSeconds, hugin.cpuSeconds),
                                       own.mistake + hugin.mistake };
              });
    Bars::add("make, 26 photos of 6 megapixels: nearer to the scene than Hugin's tools",
              { Bars::Need::AtLeast, 0.0, "dB" }, [&] {
                  once();
                  return Bars::Figure{ own.psnr - hugin.psnr,
                                       text("%.1f dB, %.1f dB", own.psnr, hugin.psnr),
                                       own.mistake + hugin.mistake };
              });
    return Bars::run(argc, argv);
}
