// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demo.h"

#include "host/align/alignment.h"
#include "host/align/geometry.h"
#include "host/demo/exifwriter.h"
#include "host/demo/nearestphoto.h"
#include "host/demo/ordercheck.h"
#include "host/demo/photoshoot.h"
#include "host/model/canvas.h"
#include "host/model/panoramajson.h"
#include "host/model/photofile.h"
#include "host/model/ptoproject.h"
#include "host/model/safefile.h"
#include "host/stitch/projectcheck.h"
#include "host/stitch/stitcher.h"
#include "host/stitch/toolrun.h"

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

/** The scene has finer detail than small pictures can carry. */
constexpr double kLeastPsnrOfSmallPictures = 34.0;

/** The mean of the play turns everything; nothing else may, and no comparison would show it. */
constexpr double kLargestTurnDegrees = 0.3;

/** Longer lenses see more: the panorama of a part of the sphere is drawn larger. */
int sphereWidth(const Sizes &sizes, const Camera &camera)
{
    constexpr double kUsualFocal35mm = 24.0;
    return sizes.panoramaWidth * qRound(camera.focal35mm / kUsualFocal35mm);
}

/** Of the whole sphere, at the scale of \p part. */
QSize sphereSizeOf(const SpherePart &part)
{
    return { qRound(part.canvas.width() * 360.0 / part.horizontalFovDegrees),
             part.canvas.height() };
}

/** The images of the project that show the reference exposures: each position's first. */
QVector<int> referenceIndices(const Panorama &panorama)
{
    QVector<int> images;
    int index = 0;
    for (const Position &position : panorama.positions) {
        images.append(index);
        index += position.photos.size();
    }
    return images;
}

Rotations rotationsOf(const QVector<PtoImage> &images)
{
    Rotations rotations;
    for (const PtoImage &image : images) {
        rotations.push_back(rotationOf(image.angles));
    }
    return rotations;
}

Camera cameraOf(const PtoImage &image)
{
    return { image.size,
             focal35mmOf(image.size, image.focalPixels()),
             image.lens == LensModel::Fisheye ? Projection::EquidistantFisheye
                                              : Projection::Rectilinear,
             { image.a, image.b, image.c } };
}

/** The panorama of \p images without any stitching program. */
QImage withoutStitching(const QVector<PtoImage> &images, int width)
{
    QVector<PlacedPhoto> photos;
    for (const PtoImage &image : images) {
        photos.append({ QImage(image.path),
                        cameraOf(image),
                        { image.angles.yaw, image.angles.pitch, image.angles.roll } });
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
        , m_plan(demoPlan(*options.head, m_sizes.photo))
        , m_sphereWidth(sphereWidth(m_sizes, m_plan.camera))
    {
        m_timer.start();
    }

    Result<DemoReport> run();

private:
    using Outcome = std::optional<Failure>;

    Outcome makeFolder();
    Outcome photograph();
    Outcome import();
    Outcome alignPhotos();
    Outcome writeProject();
    Outcome checkLayout();
    Outcome checkAngles();
    Outcome makePanorama();
    Outcome compare();

    [[nodiscard]] QString path(const char *name) const
    {
        return QDir(m_options.folder).absoluteFilePath(QLatin1String(name));
    }
    Outcome note(const Result<QString> &check);
    [[nodiscard]] QVector<PtoImage> referenceImages() const;
    [[nodiscard]] SpherePart wholeSphere() const;
    [[nodiscard]] Outcome write(const QString &file, const QByteArray &content) const;
    void finishStep(const char *name);

    const DemoOptions &m_options;
    const DemoImporter &m_importer;
    const JobWatch &m_watch;
    const Sizes m_sizes;
    const ShootPlan m_plan;
    const int m_sphereWidth; ///< of the whole sphere, pixels
    const Scene m_scene;
    QElapsedTimer m_timer;
    QString m_record;
    QStringList m_photos;
    Panorama m_panorama; ///< as recorded
    std::optional<PtoFile> m_project; ///< aligned
    Eigen::Matrix3d m_common = Eigen::Matrix3d::Identity(); ///< from the project to the truth
    StitchJob m_job;
    SpherePart m_part; ///< what the panorama shows
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
    if (!m_options.head->isGrid()) {
        m_record = QDir(m_options.folder).absoluteFilePath(demoRecordFile(*m_options.head));
        if (Outcome failure = write(m_record, demoRecord(*m_options.head, m_plan))) {
            return failure;
        }
    }
    finishStep("taking the photos");
    return {};
}

Demo::Outcome Demo::import()
{
    DemoImport imported = m_importer(*m_options.head, m_record, m_photos);
    m_panorama = std::move(imported.panorama);
    QByteArray picture;
    QBuffer buffer(&picture);
    buffer.open(QIODevice::WriteOnly);
    markAsOwn(imported.layout);
    if (imported.layout.save(&buffer, "PNG")) {
        if (Outcome failure = write(path("layout.png"), picture)) {
            return failure;
        }
    }
    finishStep("importing them");
    return {};
}

Demo::Outcome Demo::alignPhotos()
{
    // A part of the sphere is drawn to the scale of the whole one.
    const Result<PtoProject> draft = makePtoProject(m_panorama);
    if (!draft) {
        return draft.error();
    }
    m_panorama.warnings += draft.value().warnings;
    PtoOptions options;
    options.projectFolder = m_options.folder;
    options.width = 2 * qRound(m_sphereWidth * draft.value().horizontalFovDegrees / (2.0 * 360.0));
    Result<Alignment> aligned = align(m_panorama, options, {}, m_watch);
    if (!aligned) {
        return aligned.error();
    }
    m_project = std::move(aligned.value().project);
    m_report.findings = sentences(aligned.value().report);
    finishStep("aligning them");
    return {};
}

Demo::Outcome Demo::writeProject()
{
    m_job.projectPath = path("demo.pto");
    const Result<QByteArray> text = m_project->text(m_options.folder);
    if (!text) {
        return text.error();
    }
    if (Outcome failure = write(m_job.projectPath, text.value())) {
        return failure;
    }
    const Canvas canvas = m_project->canvas();
    m_job.canvas = canvas.size;
    m_job.fullTurn = canvas.horizontalFovDegrees >= 360.0;
    m_job.images = referenceIndices(m_panorama);
    m_part = { canvas.size, canvas.horizontalFovDegrees, canvas.yawCentreDegrees,
               canvas.crop.isNull() ? QRect(QPoint(0, 0), canvas.size) : canvas.crop };
    m_panorama.project = ProjectReference{ m_job.projectPath, canvas.yawCentreDegrees };
    const Result<QString> json = writePanoramaJson(m_panorama, path("demo.json"));
    return json ? Outcome() : Outcome(json.error());
}

QVector<PtoImage> Demo::referenceImages() const
{
    QVector<PtoImage> images;
    for (const int index : m_job.images) {
        images.append(m_project->images()[index]);
    }
    return images;
}

SpherePart Demo::wholeSphere() const
{
    const QSize size(m_sphereWidth, m_sphereWidth / 2);
    return { size, 360.0, 0.0, QRect(QPoint(0, 0), size) };
}

Demo::Outcome Demo::note(const Result<QString> &check)
{
    if (check) {
        m_report.checks.append(check.value());
        return {};
    }
    // Stitching says so too, and goes on without.
    return check.error().code == ExitCode::ToolMissing ? Outcome() : Outcome(check.error());
}

Demo::Outcome Demo::checkLayout()
{
    // What a record says is rounded; a grid's cells are computed.
    if (m_options.head->isGrid()) {
        if (Outcome failure = note(checkOrder(m_panorama, m_plan))) {
            return failure;
        }
    }
    return note(checkProject(m_job.projectPath, m_photos.size(), m_watch));
}

Demo::Outcome Demo::checkAngles()
{
    const Rotations truth = trueRotations(m_plan);
    const Rotations found = rotationsOf(referenceImages());
    m_common = commonRotation(truth, found, allOf(static_cast<int>(found.size())));
    const AttitudeErrors errors = attitudeErrors(truth, found);
    const double turned = degreesBetween(m_common, Eigen::Matrix3d::Identity());
    if (turned > kLargestTurnDegrees) {
        return Failure{ ExitCode::ToolFailed,
                        m_job.projectPath,
                        QStringLiteral("the panorama as a whole is turned by %1 degrees")
                            .arg(turned, 0, 'f', 1),
                        {} };
    }
    m_report.checks.append(QStringLiteral("photos lie within %1 degrees of where they were taken")
                               .arg(errors.largest, 0, 'f', 3));
    return {};
}

Demo::Outcome Demo::makePanorama()
{
    const Result<QImage> stitched = stitch(m_job, m_watch);
    if (stitched) {
        m_stitched = stitched.value().copy(m_part.crop);
    } else if (stitched.error().code == ExitCode::ToolMissing) {
        m_report.missingTool = stitched.error();
        m_part = wholeSphere();
        m_stitched = withoutStitching(referenceImages(), m_sphereWidth);
    } else {
        return stitched.error();
    }
    m_report.size = m_stitched.size();
    const QSize sphere = sphereSizeOf(m_part);
    const QRect onSphere
        = m_part.crop.translated(qRound((sphere.width() - m_part.canvas.width()) / 2.0
                                        + m_part.yawCentreDegrees * sphere.width() / 360.0),
                                 0);
    const Result<QString> written = writePanorama(path("demo.jpg"), m_stitched, sphere, onSphere);
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
    m_report.agreement = agreementOf(written, truthOf(m_scene, m_part, m_common));
    finishStep("comparing with the scene");
    return {};
}

Result<DemoReport> Demo::run()
{
    using Step = Outcome (Demo::*)();
    constexpr std::array<Step, 9> kSteps{ &Demo::makeFolder,   &Demo::photograph,
                                          &Demo::import,       &Demo::alignPhotos,
                                          &Demo::writeProject, &Demo::checkLayout,
                                          &Demo::checkAngles,  &Demo::makePanorama,
                                          &Demo::compare };
    for (const Step step : kSteps) {
        if (m_watch.stopWanted()) {
            return interruption();
        }
        if (const Outcome failure = (this->*step)()) {
            return *failure;
        }
    }
    m_report.leastPsnrDecibels = m_options.size == DemoSize::Normal
        ? m_options.head->demo.leastPsnrDecibels
        : kLeastPsnrOfSmallPictures;
    return m_report;
}

} // namespace

Result<DemoReport> runDemo(const DemoOptions &options, const DemoImporter &importer,
                           const JobWatch &watch)
{
    return Demo(options, importer, watch).run();
}

} // namespace PanoHost
