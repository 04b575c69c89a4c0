// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/rawconverter.h"

#include "host/model/displayname.h"
#include "host/model/jobwatch.h"
#include "host/model/photofile.h"
#include "host/model/said.h"
#include "host/stitch/toolrun.h"
#include "host/stitch/workfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>

namespace PanoHost
{
namespace
{

const QString kInput = QStringLiteral("%i");
const QString kOutput = QStringLiteral("%o");
const QString kBalance = QStringLiteral("%w");
const QString kDcrawsLight = QStringLiteral("-4");
const QString kDarktablesLight = QStringLiteral("LIN_REC709"); // of sRGB's primaries

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

/** Brightness is never adjusted to the picture: photos are to go together. */
std::optional<QStringList> knownArguments(const QString &program, bool wantsLight)
{
    const QString name = QFileInfo(program).fileName();
    if (name == QLatin1String("dcraw")) { // sRGB's primaries
        return wantsLight ? words("%w -o 1 -4 -T %i") : words("%w -o 1 -6 -W -g 2.4 12.92 -T %i");
    }
    if (name == QLatin1String("dcraw_emu")) { // -c 0: white is not what is brightest
        return wantsLight ? words("-w -c 0 -o 1 -4 -T -Z %o %i")
                          : words("-w -c 0 -o 1 -6 -W -g 2.4 12.92 -T -Z %o %i");
    }
    if (name == QLatin1String("rawtherapee-cli")) { // without a profile nothing is embellished
        return words("-o %o -b16 -t -Y -c %i");
    }
    if (name == QLatin1String("darktable-cli")) {
        QStringList arguments = words("%i %o --icc-type SRGB --apply-custom-presets false --core "
                                      "--library :memory: --conf plugins/darkroom/workflow=none "
                                      "--conf plugins/imageio/format/tiff/bpp=16");
        if (wantsLight) {
            arguments.replace(arguments.indexOf(QStringLiteral("SRGB")), kDarktablesLight);
        }
        return arguments;
    }
    return {};
}

Failure notAConverter(const QString &command, const QString &why)
{
    return { ExitCode::Usage, QStringLiteral("--raw-converter %1").arg(command), why,
             Said::tr("name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a "
                      "command with %i for the RAW file and %o for the TIFF") };
}

Result<QString> programOf(const RawConverter &converter)
{
    if (QFileInfo(converter.program).isAbsolute()) {
        return converter.program;
    }
    if (converter.program.contains(QLatin1Char('/'))) {
        return QDir().absoluteFilePath(converter.program);
    }
    Result<QString> found = findTool(converter.program);
    if (found) {
        return found;
    }
    static const QHash<QString, QString> packages{
        { QStringLiteral("dcraw"), QStringLiteral("dcraw") },
        { QStringLiteral("dcraw_emu"), QStringLiteral("libraw-bin") },
        { QStringLiteral("darktable-cli"), QStringLiteral("darktable") },
        { QStringLiteral("rawtherapee-cli"), QStringLiteral("rawtherapee") },
    };
    const QString package = packages.value(converter.program);
    return Failure{ ExitCode::ToolMissing, converter.program,
                    Said::tr("this RAW converter was not found"),
                    package.isEmpty()
                        ? Said::tr("is its name right? of those known: apt install dcraw, "
                                   "libraw-bin, darktable or rawtherapee")
                        : QStringLiteral("apt install %1").arg(package) };
}

/** Has dcraw take for all photos the white balance that the camera chose for \p first; where it
 * names none, that of daylight. */
QStringList withBalance(const QString &dcraw, const QStringList &arguments, const QString &first,
                        const WorkFolder &work, const JobWatch &watch)
{
    const ToolEnd said = valueOrThrow(runToEnd(
        dcraw, { QStringLiteral("-i"), QStringLiteral("-v"), first }, work.path(), watch, {}));
    static const QRegularExpression kFour(
        QLatin1String(R"(^Camera multipliers: ([\d.]+) ([\d.]+) ([\d.]+) ([\d.]+)$)"),
        QRegularExpression::MultilineOption);
    const QRegularExpressionMatch found = kFour.match(said.said);
    QStringList balanced;
    for (const QString &argument : arguments) {
        if (argument != kBalance) {
            balanced += argument;
        } else if (found.hasMatch()) {
            balanced += QStringLiteral("-r");
            balanced += found.capturedTexts().mid(1);
        }
    }
    return balanced;
}

/** The RAW files of \p panorama. */
QVector<PhotoInfo *> rawPhotos(Panorama &panorama)
{
    QVector<PhotoInfo *> photos;
    for (Position &position : panorama.positions) {
        for (PhotoInfo &photo : position.photos) {
            if (photo.isRaw) {
                photos += &photo;
            }
        }
    }
    return photos;
}

void warnOfBalance(const QVector<PhotoInfo *> &photos, const QString &program,
                   const JobWatch &watch)
{
    const auto automatic = std::count_if(photos.begin(), photos.end(), [](const PhotoInfo *photo) {
        const Result<PhotoInfo> info = readPhotoInfo(photo->path);
        return info && info.value().hasAutomaticBalance;
    });
    if (automatic > 0) {
        watch.note(JobWatch::Note::Warning,
                   Said::tr("the camera chose the white balance of %1 RAW files one by one, "
                            "and %2 follows it: their colours may differ; dcraw takes the "
                            "first one's for all")
                       .arg(QString::number(automatic), QFileInfo(program).fileName()));
    }
}

/** One RAW file, by a plain name in the work folder, where the program runs. */
Result<QString> develop(const QString &program, const RawConverter &converter, const QString &raw,
                        const QString &part, const WorkFolder &work, const JobWatch &watch)
{
    const QFileInfo tiff(part);
    const QString copy = tiff.dir().filePath(QStringLiteral("raw-") + tiff.completeBaseName()
                                             + QLatin1Char('.') + QFileInfo(raw).suffix());
    QFile::remove(copy);
    // No link: darktable-cli finds none behind a relative path.
    if (!QFile::copy(raw, copy)) {
        return Failure{ ExitCode::ToolFailed, displayName(copy),
                        Said::tr("this copy of a photo cannot be made"),
                        Said::tr("is the photo readable? is the disk full?") };
    }
    QStringList arguments = converter.arguments;
    for (QString &argument : arguments) {
        argument.replace(kInput, QDir(work.path()).relativeFilePath(copy));
        argument.replace(kOutput, QDir(work.path()).relativeFilePath(part));
    }
    const Result<QString> run = runTool(program, arguments, work.path(), watch);
    QFile::remove(copy);
    if (!run) {
        Failure failure = run.error();
        if (failure.code == ExitCode::ToolFailed) {
            failure.what += Said::tr(", of %1").arg(displayName(raw));
        }
        return failure;
    }
    const QFileInfo file(copy);
    QFile::rename(file.dir().filePath(file.completeBaseName() + QStringLiteral(".tiff")), part);
    if (isDamaged(part)) {
        return orLackOfRoom({ ExitCode::ToolFailed, QFileInfo(program).fileName(),
                              Said::tr("it left no whole picture of %1").arg(displayName(raw)),
                              Said::tr("can it read this camera's files? is the disk full?") },
                            work.path());
    }
    return part;
}

} // namespace

Result<RawConverter> rawConverterNamed(const QString &command, bool wantsLight)
{
    QStringList parts = QProcess::splitCommand(command);
    if (parts.isEmpty()) {
        return notAConverter(command, Said::tr("names no program"));
    }
    RawConverter converter;
    converter.program = parts.takeFirst();
    const std::optional<QStringList> known = knownArguments(converter.program, wantsLight);
    if (parts.isEmpty() && known) {
        converter.arguments = *known;
        converter.isLinear = known->contains(kDcrawsLight) || known->contains(kDarktablesLight);
        converter.followsCamera = !known->contains(kBalance);
        return converter;
    }
    const QString all = parts.join(QLatin1Char(' '));
    if (!all.contains(kInput) || !all.contains(kOutput)) {
        return notAConverter(command, Said::tr("does not say where its files go"));
    }
    converter.arguments = parts;
    return converter;
}

int rawCount(const Panorama &panorama)
{
    int count = 0;
    for (const Position &position : panorama.positions) {
        count
            += static_cast<int>(std::count_if(position.photos.begin(), position.photos.end(),
                                              [](const PhotoInfo &photo) { return photo.isRaw; }));
    }
    return count;
}

QByteArray rawMarks(const Panorama &panorama)
{
    QByteArray marks;
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            marks += photo.isRaw ? '1' : '0';
        }
    }
    return marks;
}

void setRawMarks(Panorama &panorama, const QByteArray &marks)
{
    int photoNumber = 0;
    for (Position &position : panorama.positions) {
        for (PhotoInfo &photo : position.photos) {
            photo.isRaw = photoNumber < marks.size() && marks.at(photoNumber) == '1';
            ++photoNumber;
        }
    }
}

void developPhotos(Panorama &panorama, const RawConverter &converter, const WorkFolder &work,
                   const JobWatch &watch)
{
    const QVector<PhotoInfo *> photos = rawPhotos(panorama);
    if (photos.isEmpty()) {
        return;
    }
    const QString program = valueOrThrow(programOf(converter));
    RawConverter balanced = converter;
    if (converter.followsCamera) {
        warnOfBalance(photos, program, watch);
    } else if (converter.arguments.contains(kBalance)) {
        balanced.arguments
            = withBalance(program, converter.arguments, photos.first()->path, work, watch);
    }
    const QByteArray command
        = (QStringList(program) + balanced.arguments).join(QLatin1Char('\n')).toUtf8()
        + stampOf(program);
    int number = 0;
    for (PhotoInfo *const photo : photos) {
        watch.check();
        watch.report(number, photos.size(),
                     QStringLiteral("developing %1").arg(QFileInfo(photo->path).fileName()));
        const QString name
            = QStringLiteral("developed/%1.tif").arg(++number, 5, 10, QLatin1Char('0'));
        const QString raw = photo->path;
        const QByteArray key = command + raw.toUtf8() + '\n' + stampOf(raw);
        photo->path = valueOrThrow(work.make(name, key, [&](const QString &part) {
            return develop(program, balanced, raw, part, work, watch);
        }));
        // Converters turn photos upright, and cut their edges.
        const PhotoInfo developed = valueOrThrow(readPhotoInfo(photo->path));
        photo->storedSize = developed.storedSize;
        photo->orientation = developed.orientation;
        photo->isRaw = false;
    }
    watch.report(photos.size(), photos.size(), QStringLiteral("developing photos"));
}

} // namespace PanoHost
