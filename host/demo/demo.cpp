// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demo.h"

#include "host/align/geometry.h"
#include "host/demo/exifwriter.h"
#include "host/demo/nearestphoto.h"
#include "host/demo/ordercheck.h"
#include "host/demo/photoshoot.h"
#include "host/import/importjob.h"
#include "host/make/makejob.h"
#include "host/model/panoramajson.h"
#include "host/model/photofile.h"
#include "host/model/safefile.h"
#include "host/stitch/projectcheck.h"
#include "host/stitch/stitchlayout.h"
#include "host/stitch/vipsfile.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>

#include <utility>

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

/** Where \p picture shows anything; empty when it cannot be read. */
QImage alphaOf(const StitchedPicture &picture)
{
    const Result<VipsFile> file = VipsFile::open(picture.path);
    if (!file || file.value().sample() != VipsFile::Sample::Bits8) {
        return {};
    }
    const int bands = file.value().bands();
    QImage alpha(picture.size, QImage::Format_Alpha8);
    for (int y = 0; y < alpha.height(); ++y) {
        const auto *const row = file.value().row<quint8>(y);
        for (int x = 0; x < alpha.width(); ++x) {
            alpha.scanLine(y)[x] = row[x * bands + bands - 1];
        }
    }
    return alpha;
}

/** \p step, which tells \p hear what it was called with and what it answered. */
template <typename Answer, typename... Arguments, typename Hear>
std::function<Answer(Arguments...)> heard(std::function<Answer(Arguments...)> step, Hear hear)
{
    return [step = std::move(step), hear = std::move(hear)](Arguments... arguments) {
        Answer answer = step(arguments...);
        hear(answer, arguments...);
        return answer;
    };
}

/** The steps of the demo, in order; each answers why it could not be done. */
class Demo
{
public:
    Demo(PanoHostApplication &app, const DemoOptions &options, const JobWatch &watch)
        : m_app(app)
        , m_options(options)
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
    Outcome make();
    Outcome writeProject();
    Outcome checkLayout();
    Outcome checkAngles();
    Outcome compare();

    [[nodiscard]] QString path(const char *name) const
    {
        return QDir(m_options.folder).absoluteFilePath(QLatin1String(name));
    }
    [[nodiscard]] MakeSteps steps();
    [[nodiscard]] MakeRequest request() const;
    Outcome withoutStitchingTools(const Failure &missing);
    Outcome note(const Result<QString> &check);
    [[nodiscard]] QVector<PtoImage> referenceImages() const;
    [[nodiscard]] Outcome write(const QString &file, const QByteArray &content) const;
    void finishStep(const char *name);

    PanoHostApplication &m_app;
    const DemoOptions &m_options;
    const JobWatch &m_watch;
    const Sizes m_sizes;
    const ShootPlan m_plan;
    const int m_sphereWidth; ///< of the whole sphere, pixels
    const Scene m_scene;
    QElapsedTimer m_timer;
    QString m_record;
    QStringList m_photos;
    QImage m_layout;
    Panorama m_panorama; ///< as recorded
    std::optional<PtoFile> m_project; ///< aligned
    Eigen::Matrix3d m_common = Eigen::Matrix3d::Identity(); ///< from the project to the truth
    SpherePart m_part; ///< what the panorama shows
    QImage m_covered; ///< opaque where it shows anything
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

/** The real ones; what goes through them is kept for the comparison. */
MakeSteps Demo::steps()
{
    MakeSteps steps = makeSteps(m_app);
    steps.import = [this](const ImportRequest &request, const JobWatch &watch) {
        Result<Panorama> imported = importShoot(m_app, request, watch, &m_layout);
        if (imported) {
            m_panorama = imported.value();
        }
        finishStep("importing them");
        return imported;
    };
    steps.align = heard(steps.align, [this](const Result<Alignment> &aligned, auto &&...) {
        if (aligned) {
            m_project = aligned.value().project;
        }
        finishStep("aligning them");
    });
    steps.stitch = heard(steps.stitch,
                         [this](const Result<StitchedPicture> &stitched, const PtoFile &project,
                                const StitchOptions &options, auto &&...) {
                             const auto layout = layOut(project, options);
                             if (stitched && layout) {
                                 m_part
                                     = { layout.value().canvas, layout.value().horizontalFovDegrees,
                                         layout.value().yawCentreDegrees, layout.value().area };
                                 m_covered = alphaOf(stitched.value());
                             }
                             finishStep("stitching");
                         });
    return steps;
}

MakeRequest Demo::request() const
{
    MakeRequest request;
    request.import.head = m_options.head;
    request.import.pluginPath = m_options.pluginPath;
    request.import.record = m_record;
    request.import.photos = m_photos;
    request.picture.path = path("demo.jpg");
    request.picture.output = StitchOutput::Ldr; // the scene as one exposure shows it
    request.picture.jpegQuality = 98; // as good as the comparison
    request.picture.stitch.size = { StitchSize::Unit::Width, static_cast<double>(m_sphereWidth) };
    if (m_options.head->isGrid()) {
        request.import.grid = GridChoice();
        request.import.grid->rows = kDemoGrid.rows;
        request.import.grid->overlapPercent = kDemoGrid.overlapPercent;
        // A part of the sphere is drawn to the scale of the whole one.
        request.picture.stitch.size
            = { StitchSize::Unit::Percent,
                100.0 * m_sphereWidth / (2.0 * kPi * m_plan.camera.focalPixels()) };
    }
    return request;
}

Demo::Outcome Demo::make()
{
    const Result<QStringList> made = makePanorama(request(), steps(), m_watch);
    if (!made && made.error().code == ExitCode::ToolMissing && m_project) {
        return withoutStitchingTools(made.error());
    }
    if (!made) {
        return made.error();
    }
    m_report.panoramaPath = made.value().value(0);
    m_report.pagePath = made.value().value(1);
    finishStep("writing the panorama");
    return {};
}

Demo::Outcome Demo::withoutStitchingTools(const Failure &missing)
{
    m_report.missingTool = missing;
    const QSize size(m_sphereWidth, m_sphereWidth / 2);
    m_part = { size, 360.0, 0.0, QRect(QPoint(0, 0), size) };
    const QImage picture = withoutStitching(referenceImages(), m_sphereWidth);
    m_covered = picture.convertToFormat(QImage::Format_Alpha8);
    const Result<QString> written = writePanorama(path("demo.jpg"), picture, size, m_part.crop);
    if (!written) {
        return written.error();
    }
    m_report.panoramaPath = written.value();
    finishStep("putting them together");
    return {};
}

Demo::Outcome Demo::writeProject()
{
    QByteArray picture;
    QBuffer buffer(&picture);
    buffer.open(QIODevice::WriteOnly);
    markAsOwn(m_layout);
    if (m_layout.save(&buffer, "PNG")) {
        if (Outcome failure = write(path("layout.png"), picture)) {
            return failure;
        }
    }
    const Result<QByteArray> text = m_project->text(m_options.folder);
    if (!text) {
        return text.error();
    }
    if (Outcome failure = write(path("demo.pto"), text.value())) {
        return failure;
    }
    m_panorama.project = ProjectReference{ path("demo.pto"), m_project->yawCentreDegrees() };
    const Result<QString> json = writePanoramaJson(m_panorama, path("demo.json"));
    return json ? Outcome() : Outcome(json.error());
}

QVector<PtoImage> Demo::referenceImages() const
{
    QVector<PtoImage> images;
    for (const PtoImage &image : m_project->images()) {
        if (image.stackMaster < 0) {
            images.append(image);
        }
    }
    return images;
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
    return note(checkProject(path("demo.pto"), m_photos.size(), m_watch));
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
                        path("demo.pto"),
                        QStringLiteral("the panorama as a whole is turned by %1 degrees")
                            .arg(turned, 0, 'f', 1),
                        {} };
    }
    m_report.checks.append(QStringLiteral("photos lie within %1 degrees of where they were taken")
                               .arg(errors.largest, 0, 'f', 3));
    return {};
}

Demo::Outcome Demo::compare()
{
    m_watch.report(0, 1, QStringLiteral("comparing with the scene"));
    QImage written(m_report.panoramaPath);
    m_report.size = written.size();
    written.setAlphaChannel(m_covered);
    m_report.agreement = agreementOf(written, truthOf(m_scene, m_part, m_common));
    finishStep("comparing with the scene");
    return {};
}

Result<DemoReport> Demo::run()
{
    using Step = Outcome (Demo::*)();
    constexpr std::array<Step, 7> kSteps{ &Demo::makeFolder,  &Demo::photograph,
                                          &Demo::make,        &Demo::writeProject,
                                          &Demo::checkLayout, &Demo::checkAngles,
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

Result<DemoReport> runDemo(PanoHostApplication &app, const DemoOptions &options,
                           const JobWatch &watch)
{
    return Demo(app, options, watch).run();
}

} // namespace PanoHost
