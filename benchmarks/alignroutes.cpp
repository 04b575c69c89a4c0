// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "benchmarks/alignroutes.h"

#include "benchmarks/hostrun.h"
#include "host/align/geometry.h"
#include "host/demo/psnr.h"
#include "host/model/panoramajson.h"
#include "host/model/ptoproject.h"
#include "host/model/safefile.h"
#include "host/stitch/stitcher.h"

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

/** The text behind \p key in \p line, an i-line; empty when it has none. */
QByteArray field(const QByteArray &line, const char *key)
{
    const int at = line.indexOf(QByteArray(" ") + key);
    const int begin = at + 1 + static_cast<int>(qstrlen(key));
    const int end = line.indexOf(' ', begin);
    return at < 0 ? QByteArray() : line.mid(begin, end < 0 ? -1 : end - begin);
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

struct PointEnds {
    int first;
    int second;
};

PointEnds endsOf(const QByteArray &line)
{
    return { field(line, "n").toInt(), field(line, "N").toInt() };
}

/** Drops points between images that the record does not link; without links all are kept. */
QByteArrayList betweenLinks(const QByteArrayList &lines, const QVector<AuthorizedLink> &links)
{
    QSet<QPair<int, int>> linked;
    for (const AuthorizedLink &link : links) {
        linked.insert(qMakePair(int(link.indices[0]), int(link.indices[1])));
        linked.insert(qMakePair(int(link.indices[1]), int(link.indices[0])));
    }
    QByteArrayList kept;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(kept), [&](const QByteArray &line) {
        const PointEnds ends = endsOf(line);
        return links.isEmpty() || !line.startsWith("c ")
            || linked.contains(qMakePair(ends.first, ends.second));
    });
    return kept;
}

/** Variables of all photos but one in every group that points hold together. */
QByteArrayList withPinnedGroups(const QByteArrayList &lines, int images, bool freesDistortion)
{
    std::vector<int> group(static_cast<size_t>(images));
    std::iota(group.begin(), group.end(), 0);
    const auto rootOf = [&](int image) {
        while (group.at(image) != image) {
            image = group.at(image);
        }
        return image;
    };
    QByteArrayList kept;
    for (const QByteArray &line : lines) {
        if (line.startsWith("c ")) {
            const PointEnds ends = endsOf(line);
            const int one = rootOf(ends.first);
            const int other = rootOf(ends.second);
            group.at(std::max(one, other)) = std::min(one, other);
        }
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
    return kept;
}

QStringList photosOf(const Panorama &panorama)
{
    QStringList photos;
    for (const Position &position : panorama.positions) {
        photos.append(position.photos.first().path);
    }
    return photos;
}

/** Image numbers of \p lines by the names of their files. */
QHash<QString, int> imagesByName(const QByteArrayList &imageLines)
{
    QHash<QString, int> images;
    for (const QByteArray &line : imageLines) {
        const int begin = line.indexOf(" n\"") + 3;
        const QString name = QFile::decodeName(line.mid(begin, line.indexOf('"', begin) - begin));
        images.insert(QFileInfo(name).fileName(), images.size());
    }
    return images;
}

QByteArrayList imageLinesOf(const QByteArrayList &lines)
{
    QByteArrayList images;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(images),
                 [](const QByteArray &line) { return line.startsWith("i "); });
    return images;
}

/** The first photos of all positions as image numbers of a project; empty when it lacks one. */
QVector<int> referenceImages(const QByteArrayList &imageLines, const Taken &taken)
{
    const QHash<QString, int> images = imagesByName(imageLines);
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

double valueOf(const QByteArrayList &imageLines, int image, const char *key)
{
    QByteArray text = field(imageLines[image], key);
    for (int hops = 0; text.startsWith('=') && hops < 3; ++hops) {
        text = field(imageLines.value(text.mid(1).toInt()), key);
    }
    return text.toDouble();
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
        arguments << QStringLiteral("-p") << QStringLiteral("3");
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
        writeLines(linked,
                   betweenLinks(linesOf(found), taken.reference.description.authorizedLinks));
    }
    // Where the layout is a guess, points are far from where it puts them.
    QStringList clean_{ QStringLiteral("-o"), clean, linked };
    if (!taken.reference.description.positionsKnown) {
        clean_.prepend(QStringLiteral("-p"));
    }
    chain.run("cpclean", clean_, clean);
    if (chain.goesOn()) {
        const LensErrors &errors = taken.shoot.camera.errors;
        writeLines(
            pinned,
            withPinnedGroups(linesOf(clean), taken.reference.positions.size(), errors.b != 0.0));
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
    const QByteArrayList imageLines = imageLinesOf(linesOf(project));
    TestShoots::Rotations rotations;
    for (const int image : referenceImages(imageLines, taken)) {
        rotations.push_back(
            rotationOf({ valueOf(imageLines, image, "y"), valueOf(imageLines, image, "p"),
                         valueOf(imageLines, image, "r") }));
    }
    return rotations;
}

double AlignRoutes::psnrOf(const QString &project, const Taken &taken,
                           const Eigen::Matrix3d &common, int width)
{
    // The project's photos on the whole sphere, whatever part and projection it has come to.
    static const QRegularExpression kExposure(QStringLiteral(" E(-?[0-9.]+)"));
    QByteArrayList lines = linesOf(project);
    for (QByteArray &line : lines) {
        if (line.startsWith("p ")) {
            line = QStringLiteral("p f2 w%1 h%2 v360 k0 E%3 R0 n\"TIFF_m c:LZW r:CROP\"")
                       .arg(width)
                       .arg(width / 2)
                       .arg(kExposure.match(QString::fromLatin1(line)).captured(1))
                       .toLatin1();
        }
    }
    const QString whole = pathIn(taken, "whole.pto");
    writeLines(whole, lines);
    const QSize canvas(width, width / 2);
    const StitchJob job{ whole, canvas, true, referenceImages(imageLinesOf(lines), taken) };
    const Result<QImage> stitched = stitch(job, {});
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
