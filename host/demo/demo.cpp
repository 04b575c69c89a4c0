// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demo.h"

#include "host/core/panoramajson.h"
#include "host/core/ptoproject.h"
#include "host/core/safefile.h"
#include "host/demo/exifwriter.h"
#include "host/demo/nearestphoto.h"
#include "host/demo/photoshoot.h"
#include "host/demo/stitcher.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>

namespace PanoHost
{
namespace
{

struct Sizes {
    QSize photo;
    int panoramaWidth;
};

Sizes sizesOf(DemoSize size)
{
    return size == DemoSize::Small ? Sizes{ QSize(600, 400), 1024 }
                                   : Sizes{ QSize(900, 600), 2048 };
}

/** The images of the project that show the reference exposures: each position's first. */
QVector<int> referenceImages(const Panorama &panorama)
{
    QVector<int> images;
    int index = 0;
    for (const Position &position : panorama.positions) {
        images.append(index);
        index += position.photos.size();
    }
    return images;
}

/** The project's panorama without any stitching program. */
QImage withoutStitching(const Panorama &panorama, int width)
{
    QVector<PlacedPhoto> photos;
    const Projection projection = panorama.lens == LensModel::Fisheye
        ? Projection::EquidistantFisheye
        : Projection::Rectilinear;
    for (const Position &position : panorama.positions) {
        const PhotoInfo &photo = position.photos.first();
        photos.append({ QImage(photo.path),
                        { photo.storedSize, panorama.focal35mm, projection },
                        { position.yawDegrees, position.pitchDegrees,
                          position.rollDegrees + clockwiseDegrees(photo.orientation) } });
    }
    return nearestPhotoPanorama(photos, width);
}

/** The steps of the demo, in order; each answers why it could not be done. */
class Demo
{
public:
    Demo(const DemoOptions &options, const DemoImporter &importer, const JobWatch &watch)
        : m_options(options)
        , m_importer(importer)
        , m_watch(watch)
        , m_sizes(sizesOf(options.size))
        , m_plan(options.head->plan(m_sizes.photo))
    {
        m_timer.start();
    }

    Result<DemoReport> run();

private:
    using Outcome = std::optional<Failure>;

    Outcome makeFolder();
    Outcome photograph();
    Outcome import();
    Outcome writeProject();
    Outcome makePanorama();
    Outcome compare();

    [[nodiscard]] QString path(const char *name) const
    {
        return QDir(m_options.folder).absoluteFilePath(QLatin1String(name));
    }
    [[nodiscard]] Outcome write(const QString &file, const QByteArray &content) const;
    void finishStep(const char *name);

    const DemoOptions &m_options;
    const DemoImporter &m_importer;
    const JobWatch &m_watch;
    const Sizes m_sizes;
    const ShootPlan m_plan;
    const Scene m_scene;
    QElapsedTimer m_timer;
    QString m_record;
    QStringList m_photos;
    Panorama m_panorama;
    StitchJob m_job;
    QImage m_stitched;
    DemoReport m_report;
};

void Demo::finishStep(const char *name)
{
    m_report.steps.append(
        { QString::fromLatin1(name), static_cast<double>(m_timer.restart()) / 1000.0 });
}

Demo::Outcome Demo::write(const QString &file, const QByteArray &content) const
{
    const Result<QString> written = writeFileAtomically(file, content);
    return written ? Outcome() : Outcome(written.error());
}

Demo::Outcome Demo::makeFolder()
{
    if (QDir().mkpath(path("photos"))) {
        return {};
    }
    return Failure{ ExitCode::ToolFailed, m_options.folder,
                    QStringLiteral("this folder cannot be made"),
                    QStringLiteral("name another one: panohost demo DIR") };
}

Demo::Outcome Demo::photograph()
{
    const Result<QStringList> photos = takePhotos(m_scene, m_plan, path("photos"), m_watch);
    if (!photos) {
        return photos.error();
    }
    m_photos = photos.value();
    m_report.photoCount = m_photos.size();
    if (m_options.head->record != nullptr) {
        m_record = path(m_options.head->recordFile);
        if (Outcome failure = write(m_record, m_options.head->record(m_plan))) {
            return failure;
        }
    }
    finishStep("taking the photos");
    return {};
}

Demo::Outcome Demo::import()
{
    DemoImport imported = m_importer(QString::fromLatin1(m_options.head->name), m_record, m_photos);
    m_panorama = std::move(imported.panorama);
    QByteArray picture;
    QBuffer buffer(&picture);
    buffer.open(QIODevice::WriteOnly);
    if (imported.layout.save(&buffer, "PNG")) {
        if (Outcome failure = write(path("layout.png"), picture)) {
            return failure;
        }
    }
    finishStep("importing them");
    return {};
}

Demo::Outcome Demo::writeProject()
{
    PtoOptions options;
    options.width = m_sizes.panoramaWidth;
    m_job.projectPath = path("demo.pto");
    const Result<PtoProject> project = writePtoProject(m_panorama, m_job.projectPath, options);
    if (!project) {
        return project.error();
    }
    m_job.canvas = project.value().canvas;
    m_job.fullTurn = project.value().horizontalFovDegrees >= 360.0;
    m_job.images = referenceImages(m_panorama);
    m_panorama.warnings += project.value().warnings;
    m_panorama.project = ProjectReference{ m_job.projectPath, project.value().yawCentreDegrees };
    const Result<QString> json = writePanoramaJson(m_panorama, path("demo.json"));
    return json ? Outcome() : Outcome(json.error());
}

Demo::Outcome Demo::makePanorama()
{
    const Result<QImage> stitched = stitch(m_job, m_watch);
    if (stitched) {
        m_stitched = stitched.value();
    } else if (stitched.error().code == ExitCode::ToolMissing) {
        m_report.missingTool = stitched.error();
        m_stitched = withoutStitching(m_panorama, m_sizes.panoramaWidth);
    } else {
        return stitched.error();
    }
    m_report.size = m_stitched.size();
    const Result<QString> written
        = writePanorama(path("demo.jpg"), m_stitched, m_stitched.size(), m_stitched.rect());
    if (!written) {
        return written.error();
    }
    m_report.panoramaPath = written.value();
    finishStep("stitching");
    return {};
}

Demo::Outcome Demo::compare()
{
    m_watch.report(0, 1, QStringLiteral("comparing with the scene"));
    QImage written(m_report.panoramaPath);
    written.setAlphaChannel(m_stitched.convertToFormat(QImage::Format_Alpha8));
    m_report.agreement = agreementOf(written, truthOf(m_scene, m_sizes.panoramaWidth));
    finishStep("comparing with the scene");
    return {};
}

Result<DemoReport> Demo::run()
{
    using Step = Outcome (Demo::*)();
    constexpr std::array<Step, 6> kSteps{
        &Demo::makeFolder,   &Demo::photograph,   &Demo::import,
        &Demo::writeProject, &Demo::makePanorama, &Demo::compare
    };
    for (const Step step : kSteps) {
        if (m_watch.stopWanted()) {
            return interruption();
        }
        if (const Outcome failure = (this->*step)()) {
            return *failure;
        }
    }
    return m_report;
}

} // namespace

Result<DemoReport> runDemo(const DemoOptions &options, const DemoImporter &importer,
                           const JobWatch &watch)
{
    return Demo(options, importer, watch).run();
}

} // namespace PanoHost
