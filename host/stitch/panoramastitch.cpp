// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/panoramastitch.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/parallel.h"
#include "host/model/safefile.h"
#include "host/model/said.h"
#include "host/stitch/hdrmerge.h"
#include "host/stitch/stitchneeds.h"
#include "host/stitch/tiffplace.h"
#include "host/stitch/toolrun.h"
#include "host/stitch/vipsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QStorageInfo>

#include <atomic>
#include <thread>
#include <utility>

namespace PanoHost
{
namespace
{

const QString kBlended = QStringLiteral("blended.tif");
const QString kPanorama = QStringLiteral("panorama.v");

/** The path without its ending. */
QString stemOf(const QString &path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return path.left(dot);
}

/** nona numbers what it makes. */
QString nonasName(const QString &stem)
{
    return stem + QStringLiteral("0000.tif");
}

QString blenderName(Blender blender)
{
    return blender == Blender::Internal ? QStringLiteral("verdandi") : QStringLiteral("enblend");
}

QString withoutFolder(const QString &work, const QString &path)
{
    return QDir(work).relativeFilePath(path);
}

/** One stitch, step by step; what fails is thrown. */
class Run
{
public:
    Run(StitchPlan plan, const WorkFolder &work, const JobWatch &watch)
        : m_plan(std::move(plan))
        , m_work(work)
        , m_watch(watch)
    {
    }

    StitchedPicture run();

private:
    struct Tool {
        QString path;
        QByteArray stamp; ///< another version makes another picture
    };
    void findTools();
    [[nodiscard]] Tool blender() const
    {
        return m_tools.value(blenderName(m_plan.options.blender));
    }
    void checkPhotos() const;
    void checkDepths() const;
    void linkPhotos();
    void checkRoom() const;
    void inParallel(int steps, const QString &text, const std::function<void(int)> &step);
    void call(const Tool &tool, const QStringList &arguments) const;
    void embed(const QString &picture, const QString &out, const QRect &place,
               const QRect &area) const;
    void makeLight(int bracket);
    void warp(int index);
    void join(int bracket);
    void blend(int layer);
    void fuse();
    void finish();
    [[nodiscard]] StitchedPicture::Depth depth() const;
    QString make(const QString &name, const QByteArray &source,
                 const std::function<void(const QString &part)> &maker) const;
    [[nodiscard]] QByteArray photoKey(int image) const;
    [[nodiscard]] QByteArray lightKey(const StitchLight &light) const;
    [[nodiscard]] QByteArray warpKey(int index) const;
    [[nodiscard]] QByteArray joinKey(const StitchJoin &join) const;
    [[nodiscard]] QByteArray layerKey(const StitchLayer &layer) const;
    [[nodiscard]] QByteArray blendKey() const;
    [[nodiscard]] QByteArray pictureKey() const;
    [[nodiscard]] qint64 doneBytes() const;

    const StitchPlan m_plan;
    const WorkFolder &m_work;
    const JobWatch &m_watch;
    QMap<QString, Tool> m_tools;
    std::atomic<bool> m_stops = false;
    const std::thread::id m_thread = std::this_thread::get_id(); ///< the job's own
};

void Run::findTools()
{
    QStringList names{ QStringLiteral("nona"), QStringLiteral("vips"),
                       blenderName(m_plan.options.blender) };
    if (m_plan.isFused()) {
        names += QStringLiteral("enfuse");
    }
    for (const QString &name : qAsConst(names)) {
        const QString path = valueOrThrow(findTool(name));
        m_tools.insert(name, { path, name.toLatin1() + ' ' + stampOf(path) + '\n' });
    }
}

void Run::checkPhotos() const
{
    QStringList gone;
    for (int image = 0; image < m_plan.photos.size(); ++image) {
        const QString &path = m_plan.layout.project.images()[image].path;
        if (!m_plan.photos.at(image).isEmpty() && !QFileInfo(path).isFile()) {
            gone += displayName(path);
        }
    }
    if (!gone.isEmpty()) {
        constexpr int kNamed = 3;
        throw inputRefused(
            QStringList(gone.mid(0, kNamed)).join(QStringLiteral(", ")),
            gone.size() > kNamed
                ? Said::tr("these photos of the project, and %1 more, are not there any more")
                      .arg(gone.size() - kNamed)
                : Said::tr("not there any more"),
            Said::tr("put the photos back where they were, or import them again"));
    }
    if (m_plan.depth != StitchedPicture::Depth::Radiance) {
        checkDepths();
    }
}

/** Blenders take photos of one depth only, and say so when all are warped. */
void Run::checkDepths() const
{
    QString first;
    for (int image = 0; image < m_plan.photos.size(); ++image) {
        const QString &path = m_plan.layout.project.images()[image].path;
        if (m_plan.photos.at(image).isEmpty()) {
            continue;
        }
        if (first.isEmpty()) {
            first = path;
        } else if (bitsOf(path) != bitsOf(first)) {
            throw inputRefused(Said::tr("photos"),
                               Said::tr("%1 has %2 bits a colour, %3 has %4, and all must be "
                                        "alike to be blended")
                                   .arg(displayName(first), QString::number(bitsOf(first)),
                                        displayName(path), QString::number(bitsOf(path))),
                               Said::tr("convert or develop them alike"));
        }
    }
}

/** Programs read photos by plain names, whatever they are called. */
void Run::linkPhotos()
{
    QDir().mkpath(m_work.path(QStringLiteral("photos")));
    for (int image = 0; image < m_plan.photos.size(); ++image) {
        const QString &name = m_plan.photos.at(image);
        const QString &photo = m_plan.layout.project.images()[image].path;
        if (name.isEmpty() || QFileInfo(m_work.path(name)).symLinkTarget() == photo) {
            continue;
        }
        QFile::remove(m_work.path(name));
        // Memory cards know no links.
        if (!QFile::link(photo, m_work.path(name)) && !QFile::copy(photo, m_work.path(name))) {
            throw CommandError({ ExitCode::ToolFailed, m_work.path(name),
                                 Said::tr("cannot be written"), Said::tr("is the disk full?") });
        }
    }
}

qint64 Run::doneBytes() const
{
    qint64 bytes = 0;
    const auto add = [&](const QString &name) { bytes += QFileInfo(m_work.path(name)).size(); };
    for (const StitchLight &light : m_plan.lights) {
        add(light.joined);
    }
    for (const StitchWarp &warp : m_plan.warps) {
        add(warp.warped);
    }
    for (const StitchJoin &join : m_plan.joins) {
        add(join.joined);
    }
    for (const StitchLayer &layer : m_plan.layers) {
        add(layer.blended);
    }
    add(kBlended);
    add(kPanorama);
    return bytes;
}

void Run::checkRoom() const
{
    const QStorageInfo disk(m_work.path());
    if (const auto lack = lackOfRoom(needsOf(m_plan), m_work.path(), doneBytes(),
                                     disk.bytesAvailable(), availableMemory())) {
        throw CommandError(*lack);
    }
}

void Run::inParallel(int steps, const QString &text, const std::function<void(int)> &step)
{
    int told = -1;
    const auto follow = [&](int done) {
        m_stops = m_watch.stopWanted();
        if (std::exchange(told, done) != done) {
            m_watch.report(done, steps, text);
        }
    };
    if (steps > 0) {
        forEachRow(steps, step, m_plan.options.jobs, follow);
        follow(steps);
    }
}

void Run::call(const Tool &tool, const QStringList &arguments) const
{
    JobWatch watch;
    // The user's wish is asked for by the job's own thread, which tells the others.
    watch.interrupted = [this] {
        return m_stops || (std::this_thread::get_id() == m_thread && m_watch.stopWanted());
    };
    watch.patience = m_watch.patience;
    (void)valueOrThrow(runTool(tool.path, arguments, m_work.path(), watch));
}

QString Run::make(const QString &name, const QByteArray &source,
                  const std::function<void(const QString &part)> &maker) const
{
    if (m_stops) {
        throw CommandError(interruption());
    }
    return valueOrThrow(m_work.make(name, source, [&](const QString &part) -> Result<QString> {
        try {
            maker(withoutFolder(m_work.path(), part));
        } catch (const CommandError &error) {
            return error.failure();
        }
        const bool isWhole = name.endsWith(QLatin1String(".v")) ? VipsFile::open(part).ok()
                                                                : tiffPlace(part).has_value();
        if (!isWhole) {
            return orLackOfRoom(
                { ExitCode::ToolFailed, name, Said::tr("was not written to its end"),
                  Said::tr("is there enough room in %1?").arg(displayName(m_work.path())) },
                m_work.path());
        }
        return part;
    }));
}

QByteArray Run::photoKey(int image) const
{
    const QString &path = m_plan.layout.project.images()[image].path;
    return path.toUtf8() + '\n' + stampOf(path) + '\n';
}

QByteArray Run::lightKey(const StitchLight &light) const
{
    QByteArray key = m_plan.options.isLinear ? "linear\n" : "sRGB\n";
    key += QByteArray::number(m_plan.lightScale) + '\n';
    for (const int image : light.images) {
        const Vignetting v = m_plan.layout.project.vignettingOf(image);
        key += photoKey(image);
        for (const double number : { m_plan.gainOf(image), v.b, v.c, v.d }) {
            key += QByteArray::number(number, 'g', 17) + '\n';
        }
    }
    return key;
}

QByteArray Run::warpKey(int index) const
{
    const StitchWarp &warp = m_plan.warps.at(index);
    const QByteArray source
        = m_plan.lights.isEmpty() ? photoKey(warp.image) : lightKey(m_plan.lights.at(index));
    return m_tools.value(QStringLiteral("nona")).stamp + warp.projectText + source;
}

QByteArray Run::joinKey(const StitchJoin &join) const
{
    QByteArray key = m_tools.value(QStringLiteral("vips")).stamp;
    for (const int warp : join.warps) {
        key += warpKey(warp);
    }
    return key;
}

QByteArray Run::layerKey(const StitchLayer &layer) const
{
    QByteArray key = blender().stamp
        + blendArguments(m_plan, layer, QString()).join(QLatin1Char('\n')).toUtf8();
    for (const int warp : layer.warps) {
        key += warpKey(warp);
    }
    for (const int join : layer.joins) {
        key += joinKey(m_plan.joins.at(join));
    }
    return key;
}

/** Of what is left when everything is one picture. */
QByteArray Run::blendKey() const
{
    QByteArray key
        = m_plan.isFused() ? m_tools.value(QStringLiteral("enfuse")).stamp : QByteArray();
    for (const StitchLayer &layer : m_plan.layers) {
        key += layerKey(layer);
    }
    return key;
}

QByteArray Run::pictureKey() const
{
    const QRect &area = m_plan.layout.area;
    QByteArray key = m_tools.value(QStringLiteral("vips")).stamp + blendKey();
    for (const int number : { area.x(), area.y(), area.width(), area.height() }) {
        key += QByteArray::number(number) + ' ';
    }
    return key;
}

/** Cuts \p area of the canvas out of \p picture, which lies at \p place there. */
void Run::embed(const QString &picture, const QString &out, const QRect &place,
                const QRect &area) const
{
    call(m_tools.value(QStringLiteral("vips")),
         // Behind "--" a number below 0 is no option.
         { QStringLiteral("embed"), QStringLiteral("--"), picture, out,
           QString::number(place.x() - area.x()), QString::number(place.y() - area.y()),
           QString::number(area.width()), QString::number(area.height()) });
}

void Run::makeLight(int bracket)
{
    const StitchLight &light = m_plan.lights.at(bracket);
    make(light.joined, lightKey(light), [&](const QString &part) {
        QVector<HdrLevel> levels;
        for (const int image : light.images) {
            const QString pixels = stemOf(part) + QStringLiteral("-%1.v").arg(image);
            call(m_tools.value(QStringLiteral("vips")),
                 { QStringLiteral("copy"), m_plan.photos.at(image), pixels });
            levels += { m_work.path(pixels), m_plan.gainOf(image) / m_plan.lightScale };
        }
        const HdrCurve curve{ m_plan.options.isLinear,
                              m_plan.layout.project.vignettingOf(light.images.first()) };
        const Result<QString> merged = mergeLevels(levels, curve, m_work.path(part));
        for (const HdrLevel &level : qAsConst(levels)) {
            QFile::remove(level.path);
        }
        (void)valueOrThrow(merged);
    });
}

void Run::warp(int index)
{
    const StitchWarp &warp = m_plan.warps.at(index);
    make(warp.warped, warpKey(index), [&](const QString &part) {
        (void)valueOrThrow(writeFileAtomically(m_work.path(warp.project), warp.projectText));
        const QString photo = displayName(m_plan.layout.project.images()[warp.image].path);
        try {
            call(m_tools.value(QStringLiteral("nona")), warpArguments(warp, stemOf(part)));
        } catch (const CommandError &error) {
            Failure failure = error.failure();
            if (failure.code == ExitCode::ToolFailed) {
                failure.what = Said::tr("nona, of %1").arg(photo);
            }
            throw CommandError(failure);
        }
        const QString made = m_work.path(nonasName(stemOf(part)));
        if (!QFile::rename(made, m_work.path(part))) {
            throw CommandError({ ExitCode::ToolFailed, QStringLiteral("nona"),
                                 Said::tr("made no picture of %1").arg(photo),
                                 Said::tr("is it a photo that other programs open?") });
        }
    });
}

/** Joins levels that look into directions of their own, on the part of the canvas of them all. */
void Run::join(int bracket)
{
    const StitchJoin &join = m_plan.joins.at(bracket);
    make(join.joined, joinKey(join), [&](const QString &part) {
        const auto placeOf = [this](int warp) {
            return tiffPlace(m_work.path(m_plan.warps.at(warp).warped)).value_or(QRect());
        };
        QRect all;
        for (const int warp : join.warps) {
            all |= placeOf(warp);
        }
        QVector<HdrLevel> levels;
        for (const int warp : join.warps) {
            const StitchWarp &level = m_plan.warps.at(warp);
            const QString pixels = stemOf(part) + QStringLiteral("-%1.v").arg(level.image);
            embed(level.warped, pixels, placeOf(warp), all);
            levels += { m_work.path(pixels), m_plan.gainOf(level.image) / m_plan.lightScale };
        }
        const Result<QString> merged
            = mergeWarped(levels, all, m_plan.layout.canvas, m_work.path(part));
        for (const HdrLevel &level : qAsConst(levels)) {
            QFile::remove(level.path);
        }
        (void)valueOrThrow(merged);
    });
}

void Run::blend(int layer)
{
    const StitchLayer &photos = m_plan.layers.at(layer);
    make(photos.blended, layerKey(photos), [&](const QString &part) {
        (void)valueOrThrow(
            runTool(blender().path, blendArguments(m_plan, photos, part), m_work.path(), m_watch));
    });
}

void Run::fuse()
{
    make(kBlended, blendKey(), [&](const QString &part) {
        (void)valueOrThrow(runTool(m_tools.value(QStringLiteral("enfuse")).path,
                                   fuseArguments(m_plan, part), m_work.path(), m_watch));
    });
}

/** Crops and pads what the blender left to the wished area; grey becomes red, green and blue. */
void Run::finish()
{
    make(kPanorama, pictureKey(), [&](const QString &part) {
        const auto change = [&](const QString &operation, const QStringList &wishes) {
            const QString before = stemOf(part) + QStringLiteral("-before.v");
            QFile::rename(m_work.path(part), m_work.path(before));
            call(m_tools.value(QStringLiteral("vips")),
                 QStringList{ operation, QStringLiteral("--"), before, part } + wishes);
            QFile::remove(m_work.path(before));
        };
        const QRect area = m_plan.layout.area;
        const QRect place = tiffPlace(m_work.path(kBlended)).value_or(area);
        embed(kBlended, part, place, area);
        if (m_plan.depth == StitchedPicture::Depth::Radiance) {
            const QString factor = QString::number(m_plan.lightScale, 'g', 17);
            change(QStringLiteral("linear"),
                   { QStringLiteral("%1 %1 %1 1").arg(factor), QStringLiteral("0 0 0 0") });
        }
        const Result<VipsFile> made = VipsFile::open(m_work.path(part));
        constexpr int kColours = 3;
        if (made && made.value().bands() < kColours) {
            const bool isDeep = made.value().sample() == VipsFile::Sample::Bits16;
            change(QStringLiteral("colourspace"),
                   { isDeep ? QStringLiteral("rgb16") : QStringLiteral("srgb") });
        }
    });
}

/** What came out tells: not all kinds of photos say how deep they are before they are read. */
StitchedPicture::Depth Run::depth() const
{
    const Result<VipsFile> made = VipsFile::open(m_work.path(kPanorama));
    if (made && made.value().sample() == VipsFile::Sample::Bits16) {
        return StitchedPicture::Depth::Bits16;
    }
    return m_plan.depth == StitchedPicture::Depth::Radiance ? m_plan.depth
                                                            : StitchedPicture::Depth::Bits8;
}

StitchedPicture Run::run()
{
    findTools();
    checkPhotos();
    checkRoom();
    linkPhotos();
    inParallel(m_plan.lights.size(), QStringLiteral("joining brackets to light"),
               [this](int bracket) { makeLight(bracket); });
    inParallel(m_plan.warps.size(), QStringLiteral("warping photos with nona"),
               [this](int index) { warp(index); });
    inParallel(m_plan.joins.size(), QStringLiteral("joining warped brackets"),
               [this](int bracket) { join(bracket); });
    // One after the other, each may take all the memory that there is.
    const int pictures = m_plan.layers.size() + (m_plan.isFused() ? 1 : 0);
    for (int layer = 0; layer < m_plan.layers.size(); ++layer) {
        m_watch.report(layer, pictures, QStringLiteral("blending"));
        blend(layer);
    }
    if (m_plan.isFused()) {
        m_watch.report(m_plan.layers.size(), pictures,
                       QStringLiteral("fusing brackets with enfuse"));
        fuse();
    }
    finish();
    m_watch.report(pictures, pictures, QStringLiteral("blending"));
    const StitchLayout &layout = m_plan.layout;
    StitchedPicture picture;
    picture.path = m_work.path(kPanorama);
    picture.size = layout.area.size();
    picture.depth = depth();
    picture.sphere = layout.sphere();
    const int left = (picture.sphere.width() - layout.canvas.width()) / 2;
    picture.onSphere = layout.area.topLeft() + QPoint(left, 0);
    picture.centreYawDegrees = layout.yawCentreDegrees;
    picture.exposureValue = layout.exposure;
    return picture;
}

} // namespace

Result<StitchNeeds> needsOf(const PtoFile &project, const StitchOptions &options)
{
    const Result<StitchPlan> plan = planStitch(project, options);
    return plan ? Result<StitchNeeds>(needsOf(plan.value())) : plan.error();
}

Result<QStringList> stitchCommands(const PtoFile &project, const StitchOptions &options,
                                   const QString &work)
{
    const Result<StitchPlan> planned = planStitch(project, options);
    if (!planned) {
        return planned.error();
    }
    const StitchPlan &plan = planned.value();
    QStringList commands;
    const auto add = [&](const QStringList &words) {
        QStringList quoted;
        for (const QString &word : words) {
            quoted += shellQuoted(word);
        }
        commands += quoted.join(QLatin1Char(' '));
    };
    QStringList folders{ QStringLiteral("mkdir"), QStringLiteral("-p") };
    for (const char *const name : { "photos", "light", "warped", "layers" }) {
        folders += QDir(work).filePath(QLatin1String(name));
    }
    add(folders);
    add({ QStringLiteral("cd"), work });
    for (int image = 0; image < plan.photos.size(); ++image) {
        if (!plan.photos.at(image).isEmpty()) {
            add({ QStringLiteral("ln"), QStringLiteral("-sf"),
                  plan.layout.project.images()[image].path, plan.photos.at(image) });
        }
    }
    for (const StitchLight &light : plan.lights) {
        QStringList levels;
        for (const int image : light.images) {
            levels += plan.photos.at(image);
        }
        commands += QStringLiteral("# panohost joins %1 to %2")
                        .arg(levels.join(QLatin1Char(' ')), light.joined);
    }
    for (const StitchWarp &warp : plan.warps) {
        const QString stem = stemOf(warp.warped);
        commands += QStringLiteral("printf %s %1 > %2")
                        .arg(shellQuoted(QString::fromUtf8(warp.projectText)), warp.project);
        add(QStringList{ QStringLiteral("OMP_NUM_THREADS=1"), QStringLiteral("nona") }
            + warpArguments(warp, stem));
        add({ QStringLiteral("mv"), nonasName(stem), warp.warped });
    }
    for (const StitchLayer &layer : plan.layers) {
        add(QStringList{ blenderName(options.blender) }
            + blendArguments(plan, layer, layer.blended));
    }
    if (plan.isFused()) {
        add(QStringList{ QStringLiteral("enfuse") } + fuseArguments(plan, kBlended));
    }
    const QRect &area = plan.layout.area;
    commands += QStringLiteral("# panohost cuts %1 to %2 x %3 pixels from (%4, %5) of the canvas")
                    .arg(kBlended)
                    .arg(area.width())
                    .arg(area.height())
                    .arg(area.x())
                    .arg(area.y());
    return commands;
}

Result<StitchedPicture> stitchProject(const PtoFile &project, const StitchOptions &options,
                                      const WorkFolder &work, const JobWatch &watch)
{
    Result<StitchPlan> plan = planStitch(project, options);
    if (!plan) {
        return plan.error();
    }
    try {
        return Run(std::move(plan).value(), work, watch).run();
    } catch (const CommandError &error) {
        return error.failure();
    }
}

} // namespace PanoHost
