// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "benchmarks/alignroutes.h"

#include "benchmarks/hostrun.h"
#include "host/align/geometry.h"
#include "host/demo/psnr.h"
#include "host/model/panoramajson.h"
#include "host/model/ptofile.h"
#include "host/model/ptoproject.h"
#include "host/model/safefile.h"
#include "host/stitch/panoramastitch.h"
#include "host/stitch/vipsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <numeric>

using namespace PanoHost;
using AlignRoutes::Outcome;
using AlignRoutes::Taken;

namespace
{

QString pathIn(const Taken &taken, const char *name)
{
    return QDir(taken.folder).absoluteFilePath(QLatin1String(name));
}

QByteArrayList linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QByteArrayList();
}

void writeLines(const QString &path, const QByteArrayList &lines)
{
    (void)writeFileAtomically(path, lines.join('\n'));
}

/** Programs one after another, each of which makes the next one's project. */
class Chain
{
public:
    explicit Chain(const Taken &taken)
        : m_taken(taken)
    {
    }

    /** Runs \p program, politely, unless one before has failed to make its file. */
    void run(const char *program, const QStringList &arguments, const QString &makes)
    {
        if (!m_outcome.problem.isEmpty()) {
            return;
        }
        QFile::remove(makes);
        const HostRun::Run run = HostRun::run(
            QStringLiteral("/usr/bin/nice"),
            QStringList{ QStringLiteral("-n"), QStringLiteral("10"), QStringLiteral("timeout"),
                         QStringLiteral("1500"), QLatin1String(program) }
                + arguments,
            m_taken.folder, QLatin1String(program) + QStringLiteral(".log"));
        m_outcome.cpuSeconds += run.cpuSeconds;
        m_outcome.project = makes;
        if (!QFileInfo::exists(makes)) {
            m_outcome.project.clear();
            m_outcome.problem
                = QStringLiteral("%1 ended with %2").arg(QLatin1String(program)).arg(run.exitCode);
        }
    }

    [[nodiscard]] bool goesOn() const { return m_outcome.problem.isEmpty(); }
    [[nodiscard]] const Outcome &outcome() const { return m_outcome; }

private:
    const Taken &m_taken;
    Outcome m_outcome;
};

/** Writes \p from without the points between images that the record does not link to \p to.
 * Without any links all are kept. */
void keepLinked(const QString &from, const QString &to, const QVector<AuthorizedLink> &links)
{
    Result<PtoFile> project = PtoFile::read(from);
    if (!project) {
        return;
    }
    QSet<QPair<int, int>> linked;
    for (const AuthorizedLink &link : links) {
        linked.insert(qMakePair(int(link.indices[0]), int(link.indices[1])));
        linked.insert(qMakePair(int(link.indices[1]), int(link.indices[0])));
    }
    QVector<PtoPoint> kept;
    for (const PtoPoint &point : project.value().points()) {
        if (links.isEmpty() || linked.contains(qMakePair(point.first, point.second))) {
            kept.append(point);
        }
    }
    project.value().setPoints(kept);
    const Result<QByteArray> text = project.value().text(QFileInfo(to).absolutePath());
    if (text) {
        (void)writeFileAtomically(to, text.value());
    }
}

/** Writes \p from to \p to with variables for all photos but one of every group that points hold
 * together. */
void pinGroups(const QString &from, const QString &to, bool freesDistortion)
{
    const Result<PtoFile> project = PtoFile::read(from);
    if (!project) {
        return;
    }
    const int images = project.value().images().size();
    std::vector<int> group(static_cast<size_t>(images));
    std::iota(group.begin(), group.end(), 0);
    const auto rootOf = [&](int image) {
        while (group.at(image) != image) {
            image = group.at(image);
        }
        return image;
    };
    for (const PtoPoint &point : project.value().points()) {
        const int one = rootOf(point.first);
        const int other = rootOf(point.second);
        group.at(std::max(one, other)) = std::min(one, other);
    }
    QByteArrayList kept;
    for (const QByteArray &line : linesOf(from)) {
        if (line != "v" && !line.startsWith("v ")) {
            kept.append(line);
        }
    }
    kept.append("v v0");
    if (freesDistortion) {
        kept.append("v b0");
    }
    for (int image = 0; image < images; ++image) {
        if (rootOf(image) != image) {
            const QByteArray n = QByteArray::number(image);
            kept.append("v y" + n + " p" + n + " r" + n);
        }
    }
    kept.append("v\n");
    writeLines(to, kept);
}

QStringList photosOf(const Panorama &panorama)
{
    QStringList photos;
    for (const Position &position : panorama.positions) {
        photos.append(position.photos.first().path);
    }
    return photos;
}

/** The first photos of all positions as image numbers of \p project; empty when it lacks one. */
QVector<int> referenceImages(const PtoFile &project, const Taken &taken)
{
    QHash<QString, int> images;
    for (const PtoImage &image : project.images()) {
        images.insert(QFileInfo(image.path).fileName(), images.size());
    }
    QVector<int> found;
    for (const QString &photo : photosOf(taken.panorama)) {
        const int image = images.value(QFileInfo(photo).fileName(), -1);
        if (image < 0) {
            return {};
        }
        found.append(image);
    }
    return found;
}

/** The part of a picture that holds everything opaque. */
QRect opaqueRows(const QImage &picture)
{
    const QImage alpha = picture.convertToFormat(QImage::Format_Alpha8);
    int top = picture.height();
    int bottom = -1;
    for (int row = 0; row < alpha.height(); ++row) {
        const auto *const line = alpha.constScanLine(row);
        if (std::any_of(line, line + alpha.width(), [](uchar a) { return a == 255; })) {
            top = std::min(top, row);
            bottom = row;
        }
    }
    return { QPoint(0, top), QPoint(picture.width() - 1, bottom) };
}

/** The agreement at the exposure that suits \p picture best: nobody knows which is right. */
double bestPsnr(const QImage &picture, const LightField &truth)
{
    double low = -1.0;
    double high = 1.0;
    const auto psnr
        = [&](double stops) { return agreementOf(picture, developed(truth, stops)).psnrDecibels; };
    for (int i = 0; i < 10; ++i) {
        const double one = low + (high - low) / 3.0;
        const double other = high - (high - low) / 3.0;
        (psnr(one) < psnr(other) ? low : high) = psnr(one) < psnr(other) ? one : other;
    }
    return psnr((low + high) / 2.0);
}

} // namespace

Outcome AlignRoutes::imported(const Taken &taken)
{
    Panorama panorama = taken.panorama;
    const QString path = pathIn(taken, "imported.pto");
    const Result<PtoProject> project = writePtoProject(panorama, path);
    if (!project) {
        return { {}, 0.0, project.error().why };
    }
    panorama.project = ProjectReference{ path, project.value().yawCentreDegrees };
    const Result<QString> json = writePanoramaJson(panorama, pathIn(taken, "imported.json"));
    return json ? Outcome{ path, 0.0, {} } : Outcome{ {}, 0.0, json.error().why };
}

Outcome AlignRoutes::hugin(const Taken &taken)
{
    Chain chain(taken);
    const QString start = pathIn(taken, "hugin_0.pto");
    const QString found = pathIn(taken, "hugin_1.pto");
    const QString clean = pathIn(taken, "hugin_2.pto");
    const QString end = pathIn(taken, "hugin.pto");
    QStringList arguments{ QStringLiteral("-o"), start };
    if (taken.panorama.lens == LensModel::Fisheye) {
        // EXIF data do not name the projection, and so no field of view that fits it.
        const double fov = horizontalFovDegrees(taken.shoot.camera.size, taken.panorama.focal35mm,
                                                LensModel::Fisheye);
        arguments << QStringLiteral("-p") << QStringLiteral("3") << QStringLiteral("-f")
                  << QString::number(fov);
    }
    chain.run("pto_gen", arguments + photosOf(taken.panorama), start);
    chain.run("cpfind",
              { QStringLiteral("--multirow"), QStringLiteral("--ncores"), QStringLiteral("1"),
                QStringLiteral("-o"), found, start },
              found);
    chain.run("cpclean", { QStringLiteral("-o"), clean, found }, clean);
    chain.run("autooptimiser",
              { QStringLiteral("-a"), QStringLiteral("-l"), QStringLiteral("-s"),
                QStringLiteral("-m"), QStringLiteral("-o"), end, clean },
              end);
    return chain.outcome();
}

Outcome AlignRoutes::guided(const Taken &taken)
{
    const QString start = pathIn(taken, "guided_0.pto");
    const QString found = pathIn(taken, "guided_1.pto");
    const QString linked = pathIn(taken, "guided_2.pto");
    const QString clean = pathIn(taken, "guided_3.pto");
    const QString pinned = pathIn(taken, "guided_4.pto");
    const QString end = pathIn(taken, "guided.pto");
    const Result<PtoProject> project = writePtoProject(taken.reference, start);
    if (!project) {
        return { {}, 0.0, project.error().why };
    }
    Chain chain(taken);
    chain.run("cpfind",
              { QStringLiteral("--prealigned"), QStringLiteral("--ncores"), QStringLiteral("1"),
                QStringLiteral("-o"), found, start },
              found);
    if (chain.goesOn()) {
        keepLinked(found, linked, taken.reference.description.authorizedLinks);
    }
    // Where the layout is a guess, points are far from where it puts them.
    QStringList clean_{ QStringLiteral("-o"), clean, linked };
    if (!taken.reference.description.positionsKnown) {
        clean_.prepend(QStringLiteral("-p"));
    }
    chain.run("cpclean", clean_, clean);
    if (chain.goesOn()) {
        pinGroups(clean, pinned, taken.shoot.camera.errors.b != 0.0);
    }
    chain.run("autooptimiser", { QStringLiteral("-n"), QStringLiteral("-o"), end, pinned }, end);
    return chain.outcome();
}

Outcome AlignRoutes::own(const Taken &taken, const QString &panohost)
{
    const QString end = pathIn(taken, "own.pto");
    QFile::remove(end);
    const HostRun::Run run = HostRun::run(
        panohost,
        { QStringLiteral("align"), pathIn(taken, "imported.json"), QStringLiteral("-o"), end },
        taken.folder, QStringLiteral("own.log"));
    return QFileInfo::exists(end)
        ? Outcome{ end, run.cpuSeconds, {} }
        : Outcome{ {}, run.cpuSeconds, QStringLiteral("panohost ended with %1").arg(run.exitCode) };
}

TestShoots::Rotations AlignRoutes::rotationsIn(const QString &project, const Taken &taken)
{
    const Result<PtoFile> file = PtoFile::read(project);
    TestShoots::Rotations rotations;
    if (file) {
        for (const int image : referenceImages(file.value(), taken)) {
            const Angles &angles = file.value().images()[image].angles;
            // As it is written: the panorama is stitched so.
            rotations.push_back(rotationOf(
                { angles.yaw - file.value().yawCentreDegrees(), angles.pitch, angles.roll }));
        }
    }
    return rotations;
}

namespace
{

/** A stitched panorama of 8 bits, with its alpha. */
Result<QImage> pictureIn(const QString &path)
{
    const Result<VipsFile> file = VipsFile::open(path);
    if (!file) {
        return file.error();
    }
    QImage picture(file.value().size(), QImage::Format_RGBA8888);
    for (int y = 0; y < picture.height(); ++y) {
        std::copy_n(file.value().row<uchar>(y), picture.width() * 4, picture.scanLine(y));
    }
    return picture;
}

} // namespace

double AlignRoutes::psnrOf(const QString &project, const Taken &taken,
                           const Eigen::Matrix3d &common, int width)
{
    // The project's photos on the whole sphere, whatever part and projection it has come to.
    const Result<PtoFile> file = PtoFile::read(project);
    if (!file) {
        return 0.0;
    }
    const QSize canvas(width, width / 2);
    QByteArray text = QStringLiteral("p f2 w%1 h%2 v360 k0 E%3 R0 n\"TIFF_m c:LZW r:CROP\"\n")
                          .arg(width)
                          .arg(width / 2)
                          .arg(file.value().exposure().value_or(0.0), 0, 'f', 6)
                          .toLatin1();
    for (const int image : referenceImages(file.value(), taken)) {
        text += file.value().loneLine(image, QFile::encodeName(file.value().images()[image].path),
                                      file.value().yawCentreDegrees());
    }
    const Result<PtoFile> whole = PtoFile::parse(text, taken.folder);
    const Result<WorkFolder> work = WorkFolder::open(pathIn(taken, "whole.work"));
    if (!whole || !work) {
        return 0.0;
    }
    const Result<StitchedPicture> made = stitchProject(whole.value(), {}, work.value(), {});
    const Result<QImage> stitched
        = made ? pictureIn(made.value().path) : Result<QImage>(made.error());
    if (!stitched) {
        return 0.0;
    }
    const QRect crop = opaqueRows(stitched.value());
    const QImage picture = stitched.value().copy(crop);
    const LightField truth = TestShoots::truthOf(taken.shoot, { canvas, 360.0, 0.0, crop }, common);
    const TestShoots::Exposures &exposures = taken.shoot.exposures;
    const bool anyExposure
        = exposures.automatic > 0.0 || taken.shoot.camera.errors.vignettingB != 0.0;
    return anyExposure ? bestPsnr(picture, truth)
                       : agreementOf(picture, developed(truth)).psnrDecibels;
}
