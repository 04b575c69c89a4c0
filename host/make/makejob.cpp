// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/makejob.h"

#include "host/deliver/outputname.h"
#include "host/import/inputcheck.h"
#include "host/make/damagedphotos.h"
#include "host/make/makekeys.h"
#include "host/make/overallprogress.h"
#include "host/make/plainnames.h"
#include "host/make/rawconverter.h"
#include "host/make/saidlines.h"
#include "host/make/stepseconds.h"
#include "host/make/worklog.h"
#include "host/model/canvas.h"
#include "host/model/displayname.h"
#include "host/model/panoramajson.h"
#include "host/model/ptoproject.h"
#include "host/model/safefile.h"
#include "host/model/said.h"
#include "host/plugin/pluginlibrary.h"
#include "host/stitch/stitchneeds.h"
#include "host/stitch/toolrun.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStorageInfo>

#include <algorithm>

namespace PanoHost
{
namespace
{

/** What is there of \p path: it, or the next folder above it that exists. */
QString existingFolder(const QString &path)
{
    QString folder = path;
    while (!QFileInfo::exists(folder) && !QFileInfo(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath();
    }
    return folder;
}

QString needsText(const StitchNeeds &needs, const QString &work)
{
    return Said::tr(
               "panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory")
        .arg(QString::number(needs.picture.width()), QString::number(needs.picture.height()),
             bytesText(needs.diskBytes), displayName(work),
             bytesText(QStorageInfo(existingFolder(work)).bytesAvailable()),
             bytesText(needs.memoryBytes));
}

/** How far the light of the panorama can be trusted. */
QString lightText(bool isLinear)
{
    return isLinear ? Said::tr("the light is exact to a fraction of a percent, but where "
                               "every exposure clips it or shows noise")
                    : Said::tr("the light is good for looking at, not for measuring: the "
                               "photos' curve is taken for sRGB's; RAW files, or TIFFs "
                               "without a curve and --linear, make it exact");
}

/** Refuses a folder of that name that somebody keeps other things in. */
void requireOwnFolder(const QString &path)
{
    QStringList content
        = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    content.removeAll(QStringLiteral("lock")); // who stopped just after it began has left no more
    if (!content.isEmpty() && !content.contains(WorkLog::fileName())) {
        throw inputRefused(displayName(path),
                           Said::tr("is to hold what is kept of this panorama, and holds "
                                    "something else"),
                           Said::tr("rename it, or choose another name with -o"));
    }
}

WorkFolder openWork(const QString &path)
{
    requireOwnFolder(path);
    return valueOrThrow(WorkFolder::open(path));
}

bool hasBrackets(const PtoFile &project)
{
    return std::any_of(project.images().begin(), project.images().end(),
                       [](const PtoImage &image) { return image.stackMaster >= 0; });
}

/** Says what of a project and of wishes a panorama does not follow. */
void tellNotFollowed(const PtoFile &project, const StitchOptions &options, const JobWatch &watch)
{
    const auto warn = [&](const QString &text) { watch.note(JobWatch::Note::Warning, text); };
    if (!project.isEquirectangular()) {
        warn(Said::tr("the project asks for another projection; the panorama becomes "
                      "equirectangular"));
    }
    if (project.hasKeepingMasks()) {
        warn(Said::tr("masks that include a region are passed over, only those that exclude "
                      "one count"));
    }
    if (options.centreYawDegrees && project.canvas().horizontalFovDegrees < 360.0) {
        warn(Said::tr("--centre turns full turns only; this part of the sphere stays as it "
                      "is"));
    }
}

/** A project to be stitched, and what the page says of it. */
struct PlacedProject {
    PtoFile project;
    int renderMode = -1;
    bool levels = false; ///< has yet to be turned upright
    bool isLinear = false; ///< of light, whatever is wished
    QVector<PlainName> names = {}; ///< of its photos, that have yet to be linked
};

StitchOptions stitchOptions(const PictureWishes &wishes, const PlacedProject &placed)
{
    StitchOptions options = wishes.stitch;
    options.output = outputFor(wishes, placed.renderMode, hasBrackets(placed.project));
    options.levels = options.levels || placed.levels;
    options.isLinear = options.isLinear || placed.isLinear;
    return options;
}

QVector<Delivery> kindsOf(const PictureWishes &wishes, StitchOutput output)
{
    if (!wishes.kinds.isEmpty()) {
        return wishes.kinds;
    }
    QVector<Delivery> kinds{ Delivery::Picture, Delivery::Page };
    if (output == StitchOutput::Hdr) {
        kinds += Delivery::Radiance;
    }
    return kinds;
}

/** Refuses what is in the way of a result, before hours are spent. */
void requirePlaces(const PictureWishes &wishes)
{
    DeliverJob job;
    job.output = wishes.path;
    job.kinds = kindsOf(wishes, wishes.output.value_or(StitchOutput::Ldr));
    const Result<QString> places = checkPlaces(job);
    if (!places) {
        const Failure &failure = places.error();
        throw inputRefused(displayName(failure.what), failure.why, failure.tryThis);
    }
}

QStringList photosOf(const PtoFile &project)
{
    QStringList photos;
    for (const PtoImage &image : project.images()) {
        photos += image.path;
    }
    return photos;
}

/** \p panorama as it is before any alignment, to be worked on in the folder \p work. */
PlacedProject asRecorded(Panorama panorama, bool ignoresExifRotation, const QString &work,
                         const JobWatch &watch)
{
    const QVector<PlainName> names = takePlainNames(panorama, work);
    PtoOptions options;
    options.ignoreExifRotation = ignoresExifRotation;
    options.projectFolder = work;
    for (const QString &warning : valueOrThrow(makePtoProject(panorama, options)).warnings) {
        watch.note(JobWatch::Note::Warning, warning);
    }
    return { valueOrThrow(projectOf(panorama, options)), panorama.description.renderMode, false,
             false, names };
}

PlacedProject readInput(const StitchRequest &request, const QString &work, const JobWatch &watch)
{
    if (request.input.endsWith(QLatin1String(".pto"), Qt::CaseInsensitive)) {
        return { valueOrThrow(PtoFile::read(request.input)) };
    }
    return asRecorded(valueOrThrow(readPanoramaJson(request.input)), request.ignoresExifRotation,
                      work, watch);
}

int photosIn(const MakeRequest &request)
{
    return request.imported ? photoCount(*request.imported) : request.import.photos.size();
}

/** What a result must not take the place of. */
QStringList inputsOf(const MakeRequest &request)
{
    if (!request.imported) {
        return QStringList(request.import.record) + request.import.photos;
    }
    return QStringList(request.imported->source.record) + photoPaths(*request.imported);
}

/** One run of steps in a work folder. */
class MakeRun
{
public:
    MakeRun(const PictureWishes &wishes, const MakeSteps &steps, const JobWatch &watch,
            QVector<OverallProgress::Step> expected)
        : m_wishes(wishes)
        , m_steps(steps)
        , m_watch(watch)
        , m_work(openWork(workFolderOf(wishes.path)))
        , m_log(m_work.path(WorkLog::fileName()))
        , m_progress(std::move(expected))
    {
        m_clock.start();
    }

    /** What to make of record and photos. */
    PlacedProject place(const MakeRequest &request);
    /** \p step is the first of the two. */
    QStringList stitchAndDeliver(int step, const PlacedProject &placed);
    void tellKept();

private:
    using Time = OverallProgress::Time;
    using Contents = QVector<QByteArray>;

    [[nodiscard]] Time now() const { return Time(m_clock.elapsed()); }
    [[nodiscard]] JobWatch begin(int step);
    void note(JobWatch::Note note, const QString &text);
    /** Has \p run make the contents of \p files, unless they are there already. */
    void keptStep(int step, const QString &name, const QStringList &files, const QByteArray &key,
                  const std::function<Contents(const JobWatch &watch)> &run);
    [[nodiscard]] Panorama imported(const MakeRequest &request, const JobWatch &watch) const;
    [[nodiscard]] Panorama import(const MakeRequest &request);
    [[nodiscard]] bool develop(int step, Panorama &panorama, const QString &command);
    [[nodiscard]] StitchedPicture stitch(int step, const PtoFile &project,
                                         const StitchOptions &options);
    [[nodiscard]] QStringList deliver(const DeliverJob &job, Delivery kind, const JobWatch &watch);

    const PictureWishes &m_wishes;
    const MakeSteps &m_steps;
    const JobWatch &m_watch;
    WorkFolder m_work;
    WorkLog m_log;
    OverallProgress m_progress;
    QElapsedTimer m_clock;
    SaidLines m_said; ///< in the step that is at work
    QStringList m_kept; ///< and not told yet
};

void MakeRun::note(JobWatch::Note note, const QString &text)
{
    m_log.add(text);
    m_said.add(note, text);
    m_watch.note(note, text);
}

/** The watch of a step that begins. */
JobWatch MakeRun::begin(int step)
{
    m_watch.check();
    m_said = {};
    m_progress.begin(step, now());
    JobWatch watch = m_watch;
    watch.progress = [this](int done, int total, const QString &text) {
        const OverallProgress::State state = m_progress.at(done, total, text, now());
        m_watch.report(state.done, OverallProgress::kTotal, state.text);
    };
    watch.log = [this](JobWatch::Note kind, const QString &text) { note(kind, text); };
    return watch;
}

void MakeRun::tellKept()
{
    if (!m_kept.isEmpty()) {
        note(JobWatch::Note::Info,
             QStringLiteral("kept: %1").arg(m_kept.join(QStringLiteral(", "))));
    }
    m_kept.clear();
}

void MakeRun::keptStep(int step, const QString &name, const QStringList &files,
                       const QByteArray &key,
                       const std::function<Contents(const JobWatch &watch)> &run)
{
    const JobWatch watch = begin(step);
    const QString saidFile
        = files.first().section(QLatin1Char('_'), 0, 0) + QStringLiteral("_said.txt");
    const QStringList all = files + QStringList(saidFile);
    if (std::all_of(all.begin(), all.end(),
                    [&](const QString &file) { return m_work.has(file, key); })) {
        m_kept += name;
        const SaidLines before = SaidLines::read(m_work.path(saidFile));
        for (const auto &[kind, text] : before.lines()) {
            note(kind, text);
        }
        return;
    }
    m_log.add(name);
    Contents contents = run(watch);
    contents += m_said.text();
    m_watch.check();
    for (int i = 0; i < all.size(); ++i) {
        (void)valueOrThrow(m_work.make(all.at(i), key, [&](const QString &part) {
            return writeFileAtomically(part, contents.at(i));
        }));
    }
}

Panorama MakeRun::imported(const MakeRequest &request, const JobWatch &watch) const
{
    if (!request.imported) {
        return valueOrThrow(m_steps.import(request.import, watch));
    }
    warnOfDamage(*request.imported, watch);
    return *request.imported;
}

Panorama MakeRun::import(const MakeRequest &request)
{
    const QString json = QStringLiteral("1_import.json");
    const QByteArray key = request.imported
        ? importedKey(*request.imported)
        : importKey(request.import, PluginLibrary::fileFor(request.import.pluginPath));
    const QString raw = QStringLiteral("1_raw.txt");
    keptStep(0, QStringLiteral("import"), { json, QStringLiteral("1_import.pto"), raw }, key,
             [&](const JobWatch &watch) {
                 watch.report(0, 1, QStringLiteral("reading record and photos"));
                 Panorama panorama = imported(request, watch);
                 PtoOptions options;
                 options.ignoreExifRotation = request.import.ignoreExifRotation;
                 options.projectFolder = m_work.path();
                 Panorama named = panorama;
                 linkPlainNames(takePlainNames(named, m_work.path()));
                 const PtoProject project = valueOrThrow(makePtoProject(named, options));
                 for (const QString &warning : project.warnings) {
                     watch.note(JobWatch::Note::Warning, warning);
                 }
                 panorama.warnings += project.warnings;
                 panorama.project = ProjectReference{ m_work.path(QStringLiteral("1_import.pto")),
                                                      project.yawCentreDegrees };
                 return Contents{ panoramaToJson(panorama, m_work.path()), project.text,
                                  rawMarks(panorama) };
             });
    // Numbers are rounded there: every run goes on from the same ones.
    Panorama panorama = valueOrThrow(readPanoramaJson(m_work.path(json)));
    constexpr qint64 kMostMarks = 1LL << 24;
    setRawMarks(panorama, valueOrThrow(readRegularFile(m_work.path(raw), kMostMarks)));
    return panorama;
}

/** Puts TIFFs in the place of RAW files; answers whether they hold light. */
bool MakeRun::develop(int step, Panorama &panorama, const QString &command)
{
    const int count = rawCount(panorama);
    if (count == 0) {
        return false;
    }
    if (command.isEmpty()) {
        throw inputRefused(Said::tr("photos"), Said::tr("%1 of them are RAW files").arg(count),
                           Said::tr("add --raw-converter dcraw, dcraw_emu, darktable-cli or "
                                    "rawtherapee-cli, or give JPEGs or TIFFs of them"));
    }
    const bool wantsLight
        = outputFor(m_wishes, panorama.description.renderMode, false) == StitchOutput::Hdr;
    const RawConverter converter = valueOrThrow(rawConverterNamed(command, wantsLight));
    const JobWatch watch = begin(step);
    m_log.add(QStringLiteral("$ ")
              + (QStringList(converter.program) + converter.arguments).join(QLatin1Char(' ')));
    developPhotos(panorama, converter, m_work, watch);
    return converter.isLinear;
}

PlacedProject MakeRun::place(const MakeRequest &request)
{
    Panorama panorama = import(request);
    int step = 1;
    bool isLinear = false;
    if (!request.rawConverter.isEmpty() || rawCount(panorama) > 0) {
        isLinear = develop(step, panorama, request.rawConverter);
        ++step;
    }
    linkPlainNames(takePlainNames(panorama, m_work.path()));
    PtoOptions options;
    options.ignoreExifRotation = request.import.ignoreExifRotation;
    options.projectFolder = m_work.path();
    const PtoFile recorded = valueOrThrow(projectOf(panorama, options));
    const double photoMegapixels = megapixelsOf(recorded);
    m_progress.expect(step, alignSeconds(recorded.images().size(), photoMegapixels));
    const QSize canvas = recorded.canvas().size;
    m_progress.expect(step + 1, stitchSeconds(photoMegapixels, canvas));
    m_progress.expect(step + 2, deliverSeconds(usualCount(m_wishes.kinds), canvas));
    if (panorama.description.skipOptimization) {
        note(JobWatch::Note::Info,
             Said::tr("photos stay where the head says: optimisation is skipped"));
        return { recorded, panorama.description.renderMode, request.align.levels.value_or(false),
                 isLinear };
    }
    const QString project = QStringLiteral("2_aligned.pto");
    const QByteArray key = alignKey(panoramaToJson(panorama, {}), options.ignoreExifRotation,
                                    request.align, photosOf(recorded));
    keptStep(step, QStringLiteral("alignment"), { project, QStringLiteral("2_alignment.json") },
             key, [&](const JobWatch &watch) {
                 const Alignment aligned
                     = valueOrThrow(m_steps.align(panorama, options, request.align, watch));
                 for (const QString &sentence : sentences(aligned.report)) {
                     watch.note(JobWatch::Note::Info, sentence);
                 }
                 return Contents{ valueOrThrow(aligned.project.text(m_work.path())),
                                  alignmentToJson(aligned.report, m_work.path()) };
             });
    return { valueOrThrow(PtoFile::read(m_work.path(project))), panorama.description.renderMode,
             false, isLinear };
}

StitchedPicture MakeRun::stitch(int step, const PtoFile &project, const StitchOptions &options)
{
    const StitchNeeds needs = valueOrThrow(m_steps.needs(project, options));
    (void)valueOrThrow(checkSize(kindsOf(m_wishes, options.output), m_wishes.path, needs.picture));
    m_progress.expect(step, stitchSeconds(megapixelsOf(project), needs.canvas));
    m_progress.expect(step + 1, deliverSeconds(usualCount(m_wishes.kinds), needs.picture));
    const JobWatch watch = begin(step);
    tellNotFollowed(project, options, watch);
    note(JobWatch::Note::Info, needsText(needs, m_work.path()));
    if (options.output == StitchOutput::Hdr) {
        note(JobWatch::Note::Info, lightText(options.isLinear));
    }
    for (const QString &command : valueOrThrow(m_steps.commands(project, options, m_work.path()))) {
        if (!command.startsWith(QLatin1String("printf "))) { // what it writes stays in a file
            m_log.add(QStringLiteral("$ ") + command);
        }
    }
    const QByteArray before = stampOf(m_work.path(QStringLiteral("panorama.v")));
    StitchedPicture picture = valueOrThrow(m_steps.stitch(project, options, m_work, watch));
    if (!before.isEmpty() && stampOf(picture.path) == before) {
        m_kept += QStringLiteral("stitched panorama");
    }
    return picture;
}

/** As it was when it was delivered: whoever has changed it since gets it anew. */
bool isUnchanged(const QByteArray &note, QStringList *paths)
{
    const QJsonArray files = QJsonDocument::fromJson(note).array();
    for (const QJsonValue &file : files) {
        const QString path = file[QLatin1String("path")].toString();
        if (file[QLatin1String("stamp")].toString().toLatin1() != stampOf(path)) {
            return false;
        }
        *paths += path;
    }
    return !files.isEmpty();
}

QStringList MakeRun::deliver(const DeliverJob &job, Delivery kind, const JobWatch &watch)
{
    const QString word = deliveryWords().at(static_cast<int>(kind));
    const QString name = QStringLiteral("delivered_%1.json").arg(word);
    const QByteArray key = deliveryKey(job, kind);
    constexpr qint64 kMostNoteBytes = 1 << 20;
    QStringList paths;
    if (m_work.has(name, key)) {
        const Result<QByteArray> note = readRegularFile(m_work.path(name), kMostNoteBytes);
        if (note && isUnchanged(note.value(), &paths)) {
            m_kept += word;
            return paths;
        }
    }
    (void)QFile::remove(m_work.path(name)); // is not true any more
    DeliverJob one = job;
    one.kinds = { kind };
    paths = valueOrThrow(m_steps.deliver(one, watch));
    QJsonArray files;
    for (const QString &path : paths) {
        files += QJsonObject{ { QStringLiteral("path"), path },
                              { QStringLiteral("stamp"), QString::fromLatin1(stampOf(path)) } };
    }
    (void)valueOrThrow(m_work.make(name, key, [&](const QString &part) {
        return writeFileAtomically(part, QJsonDocument(files).toJson());
    }));
    return paths;
}

QStringList MakeRun::stitchAndDeliver(int step, const PlacedProject &placed)
{
    tellKept();
    linkPlainNames(placed.names);
    const StitchOptions options = stitchOptions(m_wishes, placed);
    DeliverJob job;
    job.picture = stitch(step, placed.project, options);
    job.origin = m_steps.origin(placed.project, job.picture);
    job.title = QFileInfo(m_wishes.path).completeBaseName();
    job.output = m_wishes.path;
    job.jpegQuality = m_wishes.jpegQuality;
    job.iiifAddress = m_wishes.iiifAddress;
    job.workFolder = m_work.path();
    const JobWatch watch = begin(step + 1);
    QStringList made;
    for (const Delivery kind : kindsOf(m_wishes, options.output)) {
        m_watch.check();
        made += deliver(job, kind, watch);
    }
    tellKept();
    m_watch.report(OverallProgress::kTotal, OverallProgress::kTotal, QStringLiteral("done"));
    for (const QString &path : qAsConst(made)) {
        m_log.add(QStringLiteral("written: %1").arg(path));
    }
    return made;
}

/** What \p work answers, or throws. */
Result<QStringList> answerOf(const std::function<QStringList()> &work)
{
    try {
        return work();
    } catch (const CommandError &error) {
        return error.failure();
    }
}

/** The same of work that is gone on from: where it has stopped the user learns how. */
Result<QStringList> resumableAnswerOf(const QString &workFolder, const JobWatch &watch,
                                      const std::function<QStringList()> &work)
{
    Result<QStringList> answer = answerOf(work);
    if (answer) {
        return answer;
    }
    Failure failure = answer.error();
    if (QDir::isAbsolutePath(failure.what)) {
        failure.what = displayName(failure.what);
    }
    if (failure.code == ExitCode::Interrupted) {
        failure.what = QStringLiteral("stopped; the same command goes on from here");
    } else if (failure.code == ExitCode::ToolFailed) {
        watch.note(JobWatch::Note::Info,
                   Said::tr("what was finished is kept in %1: the same command goes on from "
                            "there")
                       .arg(displayName(workFolder)));
    }
    return failure;
}

/** Where a user runs the commands: what is kept in the work folder stays as it is. */
QString scriptFolderOf(const PictureWishes &wishes)
{
    return outputName(wishes.path, QStringLiteral(".commands"));
}

Result<QStringList> commandsOf(const PlacedProject &placed, const PictureWishes &wishes,
                               const MakeSteps &steps, const JobWatch &watch)
{
    const QString work = workFolderOf(wishes.path);
    const StitchOptions options = stitchOptions(wishes, placed);
    const Result<StitchNeeds> needs = steps.needs(placed.project, options);
    if (!needs) {
        return needs.error();
    }
    (void)valueOrThrow(
        checkSize(kindsOf(wishes, options.output), wishes.path, needs.value().picture));
    tellNotFollowed(placed.project, options, watch);
    watch.note(JobWatch::Note::Info, needsText(needs.value(), work));
    QStringList commands;
    for (const PlainName &name : placed.names) {
        commands += QStringLiteral("mkdir -p ") + shellQuoted(QFileInfo(name.link).path());
        commands += QStringLiteral("ln -sf ") + shellQuoted(name.photo) + QLatin1Char(' ')
            + shellQuoted(name.link);
    }
    const Result<QStringList> stitch
        = steps.commands(placed.project, options, scriptFolderOf(wishes));
    return stitch ? Result<QStringList>(commands + stitch.value()) : stitch;
}

} // namespace

QString workFolderOf(const QString &path)
{
    return outputName(path, QStringLiteral(".work"));
}

QStringList deliveryWords()
{
    return { QStringLiteral("picture"),  QStringLiteral("html"), QStringLiteral("zoom"),
             QStringLiteral("radiance"), QStringLiteral("cube"), QStringLiteral("iiif") };
}

StitchOutput outputFor(const PictureWishes &wishes, int renderMode, bool hasBrackets)
{
    if (wishes.output) {
        return *wishes.output;
    }
    if (wishes.kinds.contains(Delivery::Radiance) || renderMode == kHdrRadiance) {
        return StitchOutput::Hdr;
    }
    return hasBrackets ? StitchOutput::Fused : StitchOutput::Ldr;
}

Result<QStringList> makePanorama(const MakeRequest &request, const MakeSteps &steps,
                                 const JobWatch &watch)
{
    return resumableAnswerOf(workFolderOf(request.picture.path), watch, [&] {
        requireWritable(request.picture.path, inputsOf(request));
        requirePlaces(request.picture);
        if (!request.rawConverter.isEmpty()) { // nothing is begun with a wrong one
            (void)valueOrThrow(rawConverterNamed(request.rawConverter, false));
        }
        MakeRun run(
            request.picture, steps, watch,
            allSteps(photosIn(request), !request.rawConverter.isEmpty(), request.picture.kinds));
        const PlacedProject placed = run.place(request);
        return run.stitchAndDeliver(request.rawConverter.isEmpty() ? 2 : 3, placed);
    });
}

Result<QStringList> stitchPanorama(const StitchRequest &request, const MakeSteps &steps,
                                   const JobWatch &watch)
{
    return resumableAnswerOf(workFolderOf(request.picture.path), watch, [&] {
        const QString work = workFolderOf(request.picture.path);
        const PlacedProject placed = readInput(request, work, watch);
        QStringList inputs = QStringList(request.input) + photosOf(placed.project);
        for (const PlainName &name : placed.names) {
            inputs += name.photo;
        }
        requireWritable(request.picture.path, inputs);
        requirePlaces(request.picture);
        QStringList made;
        {
            MakeRun run(request.picture, steps, watch,
                        stitchingSteps(megapixelsOf(placed.project), placed.project.canvas().size,
                                       request.picture.kinds));
            made = run.stitchAndDeliver(0, placed);
        }
        const bool isMakes
            = QFileInfo::exists(QDir(work).filePath(QStringLiteral("1_import.json")));
        if (!request.keepsWork && !isMakes) {
            QDir(work).removeRecursively();
        }
        return made;
    });
}

Result<QStringList> makeCommands(const MakeRequest &request, const MakeSteps &steps,
                                 const JobWatch &watch)
{
    return answerOf([&] {
        const Panorama panorama = valueOrThrow(steps.import(request.import, watch));
        if (!panorama.description.skipOptimization) {
            watch.note(JobWatch::Note::Info,
                       Said::tr("photos lie where the record puts them in these commands: "
                                "nothing is aligned yet"));
        }
        const PlacedProject placed = asRecorded(panorama, request.import.ignoreExifRotation,
                                                scriptFolderOf(request.picture), watch);
        return valueOrThrow(commandsOf(placed, request.picture, steps, watch));
    });
}

Result<QStringList> stitchCommandsOf(const StitchRequest &request, const MakeSteps &steps,
                                     const JobWatch &watch)
{
    return answerOf([&] {
        const PlacedProject placed = readInput(request, scriptFolderOf(request.picture), watch);
        return valueOrThrow(commandsOf(placed, request.picture, steps, watch));
    });
}

} // namespace PanoHost
