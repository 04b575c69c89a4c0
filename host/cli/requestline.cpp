// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/requestline.h"

#include "host/model/commanderror.h"

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
};

/** An option of the import and which heads' pages have it. */
struct HeadOption {
    OptionRow row;
    bool (*isOf)(const HeadFacts &head);
};

bool anyHead(const HeadFacts & /*head*/)
{
    return true;
}

bool withRecord(const HeadFacts &head)
{
    return !head.isGrid();
}

bool withLinking(const HeadFacts &head)
{
    return head.hasLinking;
}

bool withTurns(const HeadFacts &head)
{
    return head.turnsCamera;
}

/** "vrdrive2, other": the heads whose page removes wrong links by itself. */
QByteArray cleaningHeads()
{
    QStringList names;
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        if (head->cleansLinks) {
            names += head->name();
        }
    }
    return names.join(QLatin1String(", ")).toLatin1();
}

/** What all heads of a kind have; a head's own choices come beside. */
const QVector<HeadOption> &sharedOptions()
{
    static const QByteArray cleanLinks
        = "remove wrong control points after detection (" + cleaningHeads() + ": default)";
    static const QVector<HeadOption> options{
        { { "--focal", "MM|xml|exif",
            "focal length, 35 mm equivalent; default: from the photos, else from the record" },
          anyHead },
        { { "--lens", "standard|fisheye|xml", "default: what the photos say, else the record",
            true },
          anyHead },
        { { "--rotate", "90|-90|180", "the camera was turned; 90 is clockwise", true }, withTurns },
        { { "--invert-pitch", nullptr, "the head counts downwards: swap up and down" },
          withRecord },
        { { "--detect", "reference|all",
            "control points in the reference exposures or in all of them", true },
          withLinking },
        { { "--stack", "hard|detect", "photos of a bracket: hard links, or detect control points",
            true },
          withLinking },
        { { "--skip-optimization", nullptr,
            "keep the recorded angles; good for previews and short lenses only" },
          anyHead },
        { { "--recorded-location", "yes|no", "start the optimisation from the recorded angles",
            true },
          withRecord },
        { { "--clean-links", nullptr, cleanLinks.constData() }, anyHead },
        { { "--no-clean-links", nullptr, "keep them" }, anyHead },
        { { "--auto-detection", nullptr, "detect control points without asking (default)" },
          anyHead },
        { { "--no-auto-detection", nullptr, "do not" }, anyHead },
        { { "--ignore-exif-rotation", nullptr,
            "the photos' EXIF orientation is wrong; use the recorded roll alone" },
          anyHead },
        { { "--order", "name|time|given",
            "which photo belongs to which shot, without a look at what the photos say", true },
          anyHead },
        { { "--fit", "auto|strict",
            "auto (default) finds out which photo belongs to which shot and imports shoots with "
            "missing, doubled or foreign photos; strict goes by names and refuses those",
            true },
          anyHead },
    };
    return options;
}

OptionRow optionOf(const PanoHead::OwnChoice &choice)
{
    return { choice.option, choice.words, choice.help, true };
}

/** The options that \p head has beside those of its kind. */
QVector<OptionRow> ownOptions(const HeadFacts &head)
{
    QVector<OptionRow> rows;
    for (const PanoHead::OwnChoice &choice : head.ownChoices) {
        const OptionRow row = optionOf(choice);
        rows += row;
    }
    return rows;
}

/** Presses the button that belongs to the word given for a choice of the head's own. */
QVector<ButtonState> ownButtonsFrom(const CommandLine &line, const HeadFacts &head)
{
    QVector<ButtonState> buttons;
    for (const PanoHead::OwnChoice &choice : head.ownChoices) {
        const QStringList words = QString::fromLatin1(choice.words).split(QLatin1Char('|'));
        const QStringList names = QString::fromLatin1(choice.buttons).split(QLatin1Char('|'));
        const QString name = longName(optionOf(choice));
        if (line.isSet(name)) {
            buttons += { names.value(words.indexOf(line.value(name))), true };
        }
    }
    return buttons;
}

QVector<ButtonState> buttonsFrom(const CommandLine &line, const HeadFacts &head)
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
    return buttons + ownButtonsFrom(line, head);
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

QStringList longNames(const QVector<OptionRow> &rows)
{
    QStringList names;
    for (const OptionRow &row : rows) {
        names += longName(row);
    }
    return names;
}

/** Options that other heads have and this one has not. */
void refuseForeignOptions(const CommandLine &line, const HeadFacts &head)
{
    const QStringList own = longNames(optionsOf(head));
    const QStringList all = longNames(importOptions());
    for (const QString &name : all) {
        if (line.isSet(name) && !own.contains(name)) {
            throw usageError(QStringLiteral("--%1 is not an option of %2").arg(name, head.name()));
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
    if (!request.head->isGrid()) {
        if (words.isEmpty()) {
            throw usageError(
                QStringLiteral("%1 needs its record, %2, and the photos")
                    .arg(request.head->name(), QString::fromLatin1(request.head->record)),
                QStringLiteral("see 'panohost import --help'"));
        }
        request.record = QDir().absoluteFilePath(words.takeFirst());
    }
    if (words.isEmpty()) {
        throw usageError(QStringLiteral("no photos given"),
                         request.head->isGrid()
                             ? QStringLiteral("name them, e.g. DIR/*.jpg")
                             : QStringLiteral("name them after the record, e.g. DIR/*.jpg"));
    }
    request.photos.reserve(words.size());
    for (const QString &word : words) {
        request.photos += QDir::cleanPath(QDir().absoluteFilePath(word));
    }
}

struct WholeNumber {
    const char *option;
    int smallest;
    int largest; ///< of the page's field
    const char *tryThis;
};

constexpr WholeNumber kRows{ "rows", 1, 100000, "give a whole number from %1 to %2" };
constexpr WholeNumber kBracket{ "bracket", 1, 99, "give a whole number from %1 to %2" };
constexpr WholeNumber kIgnored{
    "ignore", 0, 99, "give a whole number from %1 to %2, or leave the photos out of the command"
};

constexpr double kSmallestOverlap = 5.0;
constexpr double kLargestOverlap = 100.0;

int wholeNumber(const CommandLine &line, const WholeNumber &option, int otherwise)
{
    const QString name = QString::fromLatin1(option.option);
    if (!line.isSet(name)) {
        return otherwise;
    }
    bool isNumber = false;
    const int number = line.value(name).toInt(&isNumber);
    if (!isNumber || number < option.smallest || number > option.largest) {
        throw usageError(
            QStringLiteral("--%1 %2: out of range").arg(name, line.value(name)),
            QString::fromLatin1(option.tryThis)
                .arg(QString::number(option.smallest), QString::number(option.largest)));
    }
    return number;
}

std::optional<double> overlap(const CommandLine &line)
{
    const QString name = QStringLiteral("overlap");
    if (!line.isSet(name)) {
        return {};
    }
    bool isNumber = false;
    const double percent = line.value(name).toDouble(&isNumber);
    if (!isNumber || !(percent >= kSmallestOverlap && percent <= kLargestOverlap)) {
        throw usageError(QStringLiteral("--overlap %1: out of range").arg(line.value(name)),
                         QStringLiteral("give a percentage from %1 to %2")
                             .arg(kSmallestOverlap)
                             .arg(kLargestOverlap));
    }
    return percent;
}

QVector<OptionRow> gridOptions()
{
    return {
        { "--rows", "N", "rows of the grid; the columns follow from the photos" },
        { "--mode", "columns|columns-from-right|rows-down|rows-up|serpentine",
          "the order in which the head swept the grid: column by column from the left (default) "
          "or from the right, row by row from the top or from the bottom, or row by row from the "
          "bottom and to and fro",
          true },
        { "--bracket", "N", "photos per position; default: 1" },
        { "--ignore", "N", "photos in front that belong to no position; default: 0" },
        { "--wrap360", nullptr, "the columns reach around a full turn" },
        { "--overlap", "PERCENT", "overlap of neighbouring photos, 5 to 100; default: 40" },
    };
}

GridChoice gridChoice(const CommandLine &line)
{
    if (!line.isSet(QString::fromLatin1(kRows.option))) {
        throw usageError(QStringLiteral("a grid needs its number of rows"),
                         QStringLiteral("add --rows N"));
    }
    GridChoice grid;
    grid.rows = wholeNumber(line, kRows, 1);
    grid.bracketCount = wholeNumber(line, kBracket, 1);
    grid.ignoredCount = wholeNumber(line, kIgnored, 0);
    grid.mode = gridModeNamed(line.value(QStringLiteral("mode")));
    grid.wrap360 = line.isSet(QStringLiteral("wrap360"));
    grid.overlapPercent = overlap(line);
    return grid;
}

} // namespace

QVector<OptionRow> importOptions()
{
    QVector<OptionRow> rows;
    for (const HeadOption &option : sharedOptions()) {
        rows += option.row;
    }
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        rows += ownOptions(*head);
    }
    return rows + gridOptions();
}

QVector<OptionRow> optionsOf(const HeadFacts &head)
{
    QVector<OptionRow> rows;
    for (const HeadOption &option : sharedOptions()) {
        if (option.isOf(head)) {
            rows += option.row;
        }
    }
    return rows + ownOptions(head) + (head.isGrid() ? gridOptions() : QVector<OptionRow>());
}

CommandLine importingLine(CommandHelp help, const QVector<OptionRow> &ownOptions)
{
    help.about += "\n\nHeads:";
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        const QByteArray record = head->isGrid() ? "" : head->record + QByteArray(" ");
        help.about += "\n  " + head->name().toLatin1().leftJustified(11) + record + "PHOTO...";
    }
    return { std::move(help), ownOptions + importOptions() };
}

ImportRequest importRequest(const Session &session, const CommandLine &line)
{
    QStringList words = line.positional();
    if (words.isEmpty()) {
        throw usageError(
            QStringLiteral("no head given"),
            QStringLiteral("one of %1; see --help").arg(headNames().join(QLatin1String(", "))));
    }
    ImportRequest request;
    request.pluginPath = session.pluginPath;
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
    request.buttons = buttonsFrom(line, *request.head);
    request.ignoreExifRotation = line.isSet(QStringLiteral("ignore-exif-rotation"));
    request.order = orderFrom(line.value(QStringLiteral("order")));
    request.matchesPhotos = !line.isSet(QStringLiteral("order"))
        && line.value(QStringLiteral("fit")) != QLatin1String("strict");
    if (request.head->isGrid()) {
        request.grid = gridChoice(line);
    }
    setFiles(request, words);
    return request;
}

} // namespace PanoHost
