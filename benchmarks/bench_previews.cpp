// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// What a whole load costs the GUI thread on the real pages, against drawing every cell once.
#include "benchmarks/bars.h"
#include "hostlink/readingthread.h"
#include "importers/clauss/claussscript.h"
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/gridguess.h"
#include "importers/gigapan/gridlayout.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/papywizardreader.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "tests/support/allocations.h"
#include "tests/support/plainpreview.h"
#include "tests/support/recordshoot.h"
#include "ui/previewlabel.h"
#include "ui/xui.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>

using namespace PanoHead;

namespace
{

constexpr int kMostPhotos = 20'000;
constexpr int kZoom = 50; // as a fresh page has it
// The smallest step counts as 8 degrees, so that cells this close overlap 44-fold.
constexpr double kSweepStepDegrees = 1.2;
constexpr int kClaussBrackets = 3; // 20,000 photos on a canvas within its limit

enum class Head { Papywizard, VRDrive2, Clauss, Gigapan };

struct HeadInfo {
    Head head;
    const char *name;
    double firstBar; ///< one full drawing where the first photos bring the picture or its size
    double loadBar;
};

const HeadInfo kHeads[] = {
    { Head::Papywizard, "Papywizard", 1.0, 5.0 },
    { Head::VRDrive2, "VR Drive 2", 0.1, 5.0 },
    { Head::Clauss, "Clauss", 0.1, 2.0 },
    { Head::Gigapan, "Gigapan", 1.0, 3.0 },
};

std::unique_ptr<QWizardPage> newPage(Head head)
{
    switch (head) {
    case Head::Papywizard:
        return std::make_unique<UIWPMerlin>(nullptr);
    case Head::VRDrive2:
        return std::make_unique<UIWPVRDrive2>(nullptr);
    case Head::Clauss:
        return std::make_unique<UIWPClauss>(nullptr);
    case Head::Gigapan:
        return std::make_unique<UIWPGigapan>(nullptr);
    }
    return {};
}

/** Columns of a sweep of \p count directions that is about as high as wide. */
int sweepColumns(int count)
{
    return static_cast<int>(std::ceil(std::sqrt(count)));
}

QVector<ShootData> shotsOf(Head head, int count)
{
    const int brackets = head == Head::Clauss ? kClaussBrackets : 1;
    const double step = head == Head::Clauss ? 1.0 : kSweepStepDegrees;
    const int columns = sweepColumns(count / brackets);
    QVector<ShootData> shots;
    for (int i = 0; i < count; ++i) {
        const int row = i / brackets / columns;
        // To and fro, as heads sweep.
        const int place = i / brackets % columns;
        const int column = row % 2 == 0 ? place : columns - 1 - place;
        ShootData shot;
        shot.yaw = QString::number(column * step).toFloat();
        shot.pitch = QString::number(-row * step).toFloat();
        shots.append(shot);
    }
    return shots;
}

QByteArray recordOf(Head head, const QVector<ShootData> &shots)
{
    if (head == Head::Clauss) {
        QByteArray script;
        for (const ShootData &shot : shots) {
            script += "op_h-angle=" + QByteArray::number(shot.yaw)
                + "\nop_v-angle=" + QByteArray::number(shot.pitch) + "\nop_shoot\n";
        }
        return script;
    }
    RecordXml record;
    for (const ShootData &shot : shots) {
        record.shots.append({ QString::number(shot.yaw), QString::number(shot.pitch) });
    }
    return record.bytes();
}

PreviewLayout layoutOf(Head head, int count)
{
    if (head == Head::Gigapan) {
        const GridSize size = guessGrid(count);
        GridView grid;
        grid.rows = size.rows;
        grid.columns = size.columns;
        return layOutGrid(grid, QSize(160, 120));
    }
    LayoutRules rules;
    rules.smallestStepDegrees = head == Head::Clauss ? 0.0 : 8.0;
    rules.span = head == Head::VRDrive2 ? Span::NegatedSumToo : Span::Absolute;
    rules.precision = head == Head::Clauss ? Precision::Single : Precision::Double;
    const QVector<ShootData> shots = shotsOf(head, count);
    return layOutShots(shots, extentsOf(shots), rules);
}

/** Least costs of plain drawing. */
struct Reference {
    double cellsSeconds = std::numeric_limits<double>::infinity(); ///< each once, on a warm canvas
    double redrawSeconds = std::numeric_limits<double>::infinity(); ///< with canvas, zoomed copy
    QImage shown;
};

Reference referenceFor(const PreviewScene &scene, const PreviewColours &colours)
{
    Reference reference;
    QPixmap canvas(scene.layout.canvas);
    canvas.fill(colours.background.color()); // all its pages are there from now on
    QPainter painter(&canvas);
    reference.cellsSeconds
        = Bars::leastSeconds(5, [&] { drawPlainCells(painter, scene, colours.caption); });
    reference.redrawSeconds = Bars::leastSeconds(
        2, [&] { reference.shown = plainZoom(plainPicture(scene, colours), kZoom); });
    return reference;
}

struct Load {
    int photos = 0;
    double recordSeconds = 0.0; ///< reading the record and what is drawn then
    double chooseSeconds = 0.0; ///< after the dialog
    std::vector<double> steps; ///< one per Loaded()
    std::vector<double> longest; ///< one per Loaded(): without a turn of the event loop
    Reference reference;
    std::string mistake;

    /** Without the first step, which gives a grid its size and some pages their picture. */
    [[nodiscard]] double laterSeconds() const
    {
        return std::accumulate(steps.cbegin() + 1, steps.cend(), 0.0);
    }
    [[nodiscard]] double allSeconds() const
    {
        return recordSeconds + chooseSeconds + steps.front() + laterSeconds();
    }
};

const RecordShoot &recordShoot()
{
    static const RecordShoot shoot(kMostPhotos);
    return shoot;
}

/** \p values is not larger anywhere than \p others. */
void takeLess(std::vector<double> *values, const std::vector<double> &others)
{
    std::transform(values->cbegin(), values->cend(), others.cbegin(), values->begin(),
                   [](double a, double b) { return std::min(a, b); });
}

Load measureOnce(Head head, int count)
{
    const std::unique_ptr<QWizardPage> page = newPage(head);
    PageLoad pageLoad(page.get());
    Load load;
    load.photos = count;
    if (head != Head::Gigapan) {
        const QString name
            = head == Head::Clauss ? QStringLiteral("shoot.txt") : QStringLiteral("shoot.xml");
        load.recordSeconds
            = pageLoad.enterRecord(recordShoot().write(name, recordOf(head, shotsOf(head, count))));
    }
    load.chooseSeconds = pageLoad.choosePhotos(recordShoot().photos(count));
    while (!pageLoad.isDone()) {
        const PageLoad::Cost cost = pageLoad.readNext();
        load.steps.push_back(cost.all);
        load.longest.push_back(cost.longest);
    }
    pageLoad.driver().waitUntilRead();

    PreviewScene scene;
    scene.layout = layoutOf(head, count);
    scene.images = page->findChild<ReadingThread *>()->XIImageDefs();
    scene.style = head == Head::Gigapan ? CellStyle::UnscaledPhoto : CellStyle::FittedWithCaption;
    load.reference = referenceFor(scene, plainColours(scene.style, *pageLoad.driver().preview()));
    load.mistake = pixelDifference(pageLoad.driver().picture(), load.reference.shown).toStdString();
    if (scene.images.size() != count || !page->isComplete()) {
        load.mistake = "photos were lost";
    }
    return load;
}

/** Every step's least cost of three loads: what comes on top is other programs'. */
Load measure(Head head, int count)
{
    Load least = measureOnce(head, count);
    for (int run = 1; run < 3; ++run) {
        const Load load = measureOnce(head, count);
        least.recordSeconds = std::min(least.recordSeconds, load.recordSeconds);
        least.chooseSeconds = std::min(least.chooseSeconds, load.chooseSeconds);
        least.reference.cellsSeconds
            = std::min(least.reference.cellsSeconds, load.reference.cellsSeconds);
        least.reference.redrawSeconds
            = std::min(least.reference.redrawSeconds, load.reference.redrawSeconds);
        takeLess(&least.steps, load.steps);
        takeLess(&least.longest, load.longest);
        least.mistake += load.mistake;
    }
    return least;
}

/** Each size is measured once and serves several rows. */
const Load &loadOf(Head head, int count)
{
    static std::map<std::pair<Head, int>, Load> loads;
    const std::pair<Head, int> key(head, count);
    const auto known = loads.find(key);
    return known != loads.end() ? known->second
                                : loads.emplace(key, measure(head, count)).first->second;
}

/** What the page takes to read the record, without drawing anything. */
double readingSeconds(Head head, int count)
{
    const QByteArray record = recordOf(head, shotsOf(head, count));
    double least = std::numeric_limits<double>::infinity();
    for (int run = 0; run < 3; ++run) {
        least = std::min(least, Bars::seconds([&] {
                             if (head == Head::Clauss) {
                                 (void)readClaussScript(record);
                             } else {
                                 (void)readPapywizard(record);
                             }
                         }));
    }
    return least;
}

Bars::Figure laterSteps(Head head)
{
    const Load &load = loadOf(head, 10'000);
    return { load.laterSeconds() / load.reference.cellsSeconds,
             Bars::text("%.3g s against %.3g s", load.laterSeconds(), load.reference.cellsSeconds),
             load.mistake };
}

Bars::Figure firstStep(Head head)
{
    const Load &load = loadOf(head, 10'000);
    return { load.longest.front() / load.reference.redrawSeconds,
             Bars::text("%.3g ms; full redraw %.3g ms", load.longest.front() * 1e3,
                        load.reference.redrawSeconds * 1e3),
             load.mistake };
}

/** From the click on the record to the last photo; the record's outlines are drawn in it, too. */
Bars::Figure wholeLoadWithRecord(Head head)
{
    const Load &load = loadOf(head, 10'000);
    const double reading = head == Head::Gigapan ? 0.0 : readingSeconds(head, 10'000);
    const double seconds = load.allSeconds() - reading;
    return { seconds / load.reference.cellsSeconds,
             Bars::text("%.3g s against %.3g s; reading the record alone %.3g s", seconds,
                        load.reference.cellsSeconds, reading),
             load.mistake };
}

Bars::Figure longestStep(Head head)
{
    const Load &load = loadOf(head, 10'000);
    const auto longest = std::max_element(load.longest.cbegin() + 1, load.longest.cend());
    return { *longest / load.reference.cellsSeconds,
             Bars::text("step %d of %zu: %.3g ms; each cell once %.3g ms",
                        static_cast<int>(longest - load.longest.cbegin()) + 1, load.longest.size(),
                        *longest * 1e3, load.reference.cellsSeconds * 1e3),
             load.mistake };
}

Bars::Figure growth(Head head)
{
    const Load &few = loadOf(head, 1'000);
    const Load &many = loadOf(head, kMostPhotos);
    return { Bars::exponent(few.photos, few.allSeconds(), many.photos, many.allSeconds()),
             Bars::text("%.3g s -> %.3g s", few.allSeconds(), many.allSeconds()),
             few.mistake + many.mistake };
}

/** The label alone, so that records and photos do not count. */
Bars::Figure memory(Head head)
{
    constexpr int kPhotos = 10'000;
    PreviewScene scene;
    scene.layout = layoutOf(head, kPhotos);
    scene.style = head == Head::Gigapan ? CellStyle::UnscaledPhoto : CellStyle::FittedWithCaption;
    QPixmap thumbnail(160, 120);
    thumbnail.fill(Qt::darkCyan);
    std::deque<RecordPhoto> photos;
    QList<XIImageDef *> all;
    for (int i = 0; i < kPhotos; ++i) {
        photos.emplace_back(QString(), FakePhoto(), &thumbnail);
        all.append(&photos.back());
    }
    PreviewLabel label;
    const std::int64_t before = Allocations::held();
    Allocations::resetPeak();
    for (int count = 0; count <= kPhotos; count += 10) {
        scene.images = all.mid(0, count);
        label.showScene(scene, kZoom);
    }
    label.forgetPhotos();
    label.showScene(scene, kZoom);
    const auto peak = static_cast<double>(Allocations::peak() - before);
    const QSize canvas = scene.layout.canvas;
    const double canvasBytes = 4.0 * canvas.width() * canvas.height();
    const double pictures = canvasBytes * (1.0 + kZoom * kZoom / 10'000.0);
    return { peak / pictures,
             Bars::text("%.1f MB; canvas %d x %d, %.1f MB with its zoomed copy", peak / 1e6,
                        canvas.width(), canvas.height(), pictures / 1e6),
             canvasBytes <= 256.0 * 1024 * 1024 || head == Head::Gigapan ? ""
                                                                         : "canvas too large" };
}

void addRows(const HeadInfo &info)
{
    const Head head = info.head;
    const std::string name = std::string(info.name) + " preview/";
    const auto atMost = [](double limit, const char *unit = "x") {
        return Bars::Bar{ Bars::Need::AtMost, limit, unit };
    };
    Bars::add(name + "first step of 10,000 photos/time of a full redraw", atMost(info.firstBar),
              [head] { return firstStep(head); });
    Bars::add(name + "later steps of 10,000 photos/time of drawing each cell once",
              atMost(info.loadBar), [head] { return laterSteps(head); });
    Bars::add(name + "longest later step of 10,000 photos/time of drawing each cell once",
              atMost(0.1), [head] { return longestStep(head); });
    Bars::add(name + "10,000 photos with the outlines before/time of drawing each cell once",
              { Bars::Need::Nothing, 0.0, "x" }, [head] { return wholeLoadWithRecord(head); });
    Bars::add(name + "from 1,000 to 20,000 photos/cost exponent", atMost(1.15, ""),
              [head] { return growth(head); });
    Bars::add(name + "peak memory/of canvas and zoomed copy", atMost(1.35),
              [head] { return memory(head); });
}

} // namespace

int main(int argc, char **argv)
{
    RecordShootApplication application(argc, argv);
    XUI::init(fakeHost().UIInstances());
    for (const HeadInfo &info : kHeads) {
        addRows(info);
    }
    return Bars::run(argc, argv);
}
