// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/importrequest.h"

#include "host/cli/commanderror.h"

#include <QDir>

namespace PanoHost
{

namespace
{

struct ButtonOption {
    const char *option;
    const char *value; ///< null for a switch
    const char *button;
    bool checked;
};

/** In the order of pressing: the pages couple the two radio groups, so the stack comes first. */
constexpr ButtonOption kButtonOptions[] = {
    { "stack", "hard", "m_rbStackLinking0", true },
    { "stack", "detect", "m_rbStackLinking1", true },
    { "detect", "reference", "m_rbLevelLinking0", true },
    { "detect", "all", "m_rbLevelLinking1", true },
    { "auto-detection", nullptr, "m_autoStart", true },
    { "no-auto-detection", nullptr, "m_autoStart", false },
    { "clean-links", nullptr, "m_cleanLink", true },
    { "no-clean-links", nullptr, "m_cleanLink", false },
    { "skip-optimization", nullptr, "m_noOptim", true },
    { "recorded-location", "yes", "m_GridOptim", true },
    { "recorded-location", "no", "m_GridOptim", false },
    { "output-mode", "ldr", "m_rbOutputMode1", true },
    { "output-mode", "hdr", "m_rbOutputMode2", true },
};

QVector<ButtonState> buttonsFrom(const CommandLine &line)
{
    QVector<ButtonState> buttons;
    for (const ButtonOption &row : kButtonOptions) {
        const QString option = QString::fromLatin1(row.option);
        const bool wanted = line.isSet(option)
            && (row.value == nullptr || line.value(option) == QLatin1String(row.value));
        if (wanted) {
            buttons += { QString::fromLatin1(row.button), row.checked };
        }
    }
    return buttons;
}

void refuseContradictions(const CommandLine &line)
{
    if (line.value(QStringLiteral("detect")) == QLatin1String("all")
        && line.value(QStringLiteral("stack")) == QLatin1String("hard")) {
        throw usageError(QStringLiteral("--detect all needs --stack detect: hard-linked photos of "
                                        "a stack take their place from its reference photo"),
                         QStringLiteral("drop one of the two"));
    }
    for (const QString &name :
         { QStringLiteral("auto-detection"), QStringLiteral("clean-links") }) {
        if (line.isSet(name) && line.isSet(QStringLiteral("no-") + name)) {
            throw usageError(QStringLiteral("--%1 and --no-%1 exclude each other").arg(name),
                             QStringLiteral("drop one of the two"));
        }
    }
}

/** Options that other heads have and this one has not. */
void refuseForeignOptions(const CommandLine &line, const HeadRow &head)
{
    const QStringList own = QString::fromLatin1(head.options).split(QLatin1Char('|'));
    for (const OptionRow &row : importOptions()) {
        const QString name = longName(row);
        if (line.isSet(name) && !own.contains(name)) {
            throw usageError(QStringLiteral("--%1 is not an option of %2")
                                 .arg(name, QString::fromLatin1(head.name)));
        }
    }
}

void setFocal(ImportRequest &request, const QString &word)
{
    if (word == QLatin1String("xml") || word == QLatin1String("exif")) {
        request.focalSource
            = word == QLatin1String("xml") ? ValueSource::Record : ValueSource::Photos;
        return;
    }
    constexpr double kSmallestMm = 1.0;
    constexpr double kLargestMm = 10000.0;
    bool isNumber = false;
    request.focal35mm = word.toDouble(&isNumber);
    if (!isNumber || !(request.focal35mm >= kSmallestMm && request.focal35mm <= kLargestMm)) {
        throw usageError(QStringLiteral("--focal %1: not a focal length").arg(word),
                         QStringLiteral("give millimetres from 1 to 10000 (35 mm equivalent), "
                                        "'xml' or 'exif'"));
    }
    request.focalSource = ValueSource::Given;
}

void setLens(ImportRequest &request, const QString &word)
{
    if (word == QLatin1String("xml")) {
        request.lensSource = ValueSource::Record;
        return;
    }
    request.lensSource = ValueSource::Given;
    request.lens = word == QLatin1String("fisheye") ? LensModel::Fisheye : LensModel::Standard;
}

PhotoOrder orderFrom(const QString &word)
{
    if (word == QLatin1String("time")) {
        return PhotoOrder::ByTime;
    }
    return word == QLatin1String("given") ? PhotoOrder::AsGiven : PhotoOrder::ByName;
}

void setFiles(ImportRequest &request, QStringList words)
{
    const QString head = QString::fromLatin1(request.head->name);
    if (request.head->recordName != nullptr) {
        if (words.isEmpty()) {
            throw usageError(QStringLiteral("%1 needs its record, %2, and the photos")
                                 .arg(head, QString::fromLatin1(request.head->recordName)),
                             QStringLiteral("see 'panohost import --help'"));
        }
        request.record = QDir().absoluteFilePath(words.takeFirst());
    }
    if (words.isEmpty()) {
        throw usageError(QStringLiteral("no photos given"),
                         request.head->recordName == nullptr
                             ? QStringLiteral("name them, e.g. DIR/*.jpg")
                             : QStringLiteral("name them after the record, e.g. DIR/*.jpg"));
    }
    request.photos.reserve(words.size());
    for (const QString &word : words) {
        request.photos += QDir::cleanPath(QDir().absoluteFilePath(word));
    }
}

} // namespace

QVector<OptionRow> importOptions()
{
    return QVector<OptionRow>{
        { "--focal", "MM|xml|exif",
          "focal length, 35 mm equivalent; default: from the photos, else from the record" },
        { "--lens", "standard|fisheye|xml", "default: what the photos say, else the record", true },
        { "--rotate", "90|-90|180", "the camera was turned; 90 is clockwise", true },
        { "--invert-pitch", nullptr, "the head counts downwards: swap up and down" },
        { "--detect", "reference|all",
          "control points in the reference exposures or in all of them", true },
        { "--stack", "hard|detect", "photos of a bracket: hard links, or detect control points",
          true },
        { "--output-mode", "ldr|hdr",
          "vrdrive2: brackets become an ordinary picture (default) or HDR radiance", true },
        { "--skip-optimization", nullptr,
          "keep the recorded angles; good for previews and short lenses only" },
        { "--recorded-location", "yes|no", "start the optimisation from the recorded angles",
          true },
        { "--clean-links", nullptr,
          "remove wrong control points after detection (vrdrive2: default)" },
        { "--no-clean-links", nullptr, "keep them" },
        { "--auto-detection", nullptr, "detect control points without asking (default)" },
        { "--no-auto-detection", nullptr, "do not" },
        { "--ignore-exif-rotation", nullptr,
          "the photos' EXIF orientation is wrong; use the recorded roll alone" },
        { "--order", "name|time|given", "which photo belongs to which shot; default: by name",
          true },
    }
    + gridOptions();
}

CommandLine importingLine(CommandHelp help, const QVector<OptionRow> &ownOptions)
{
    help.about += "\n\nHeads:";
    for (const HeadRow &head : heads()) {
        const QByteArray record
            = head.recordName == nullptr ? "" : head.recordName + QByteArray(" ");
        help.about += "\n  " + QByteArray(head.name).leftJustified(11) + record + "PHOTO...";
    }
    return CommandLine(std::move(help), ownOptions + importOptions());
}

ImportRequest importRequest(const CommandLine &line)
{
    QStringList words = line.positional();
    if (words.isEmpty()) {
        throw usageError(
            QStringLiteral("no head given"),
            QStringLiteral("one of %1; see --help").arg(headNames().join(QLatin1String(", "))));
    }
    ImportRequest request;
    request.head = &headNamed(words.takeFirst());
    refuseForeignOptions(line, *request.head);
    refuseContradictions(line);
    if (line.isSet(QStringLiteral("focal"))) {
        setFocal(request, line.value(QStringLiteral("focal")));
    }
    if (line.isSet(QStringLiteral("lens"))) {
        setLens(request, line.value(QStringLiteral("lens")));
    }
    request.clockwiseTurns = line.value(QStringLiteral("rotate")).toInt() / 90;
    request.invertPitch = line.isSet(QStringLiteral("invert-pitch"));
    request.buttons = buttonsFrom(line);
    request.ignoreExifRotation = line.isSet(QStringLiteral("ignore-exif-rotation"));
    request.order = orderFrom(line.value(QStringLiteral("order")));
    if (request.head->readRecord == nullptr) {
        request.grid = gridChoice(line);
    }
    setFiles(request, words);
    return request;
}

} // namespace PanoHost
