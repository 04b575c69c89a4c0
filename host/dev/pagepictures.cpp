// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/environment.h"
#include "host/demo/demohead.h"
#include "host/demo/photoshoot.h"
#include "host/dev/darkpalette.h"
#include "host/gui/importwizard.h"
#include "host/gui/makepage.h"
#include "host/gui/shootstrip.h"
#include "host/model/photofile.h"
#include "host/plugin/pluginlibrary.h"
#include "host/view/shootview.h"

#include <QAbstractButton>
#include <QCommandLineParser>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFont>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <functional>

/*
 * Photographs the wizard: every tab of every import page, filled with a shoot of the demo's scene,
 * and the host's own pages. scripts/screenshots runs it for all themes, scales and languages.
 */

using namespace PanoHost;

namespace
{

struct WindowSize {
    const char *name;
    QSize size;
};

// A window frame around the small one fits a screen of 800 x 600.
constexpr std::array<WindowSize, 2> kSizes{ { { "small", { 790, 570 } },
                                              { "large", { 1000, 780 } } } };
// The demo's layout pictures fit without scroll bars.
constexpr WindowSize kWholePreview{ "large", { 900, 920 } };
constexpr WindowSize kFilm{ "film", { 800, 640 } };
constexpr QSize kPhotoSize(360, 240);

[[noreturn]] void fail(const QString &what)
{
    QTextStream(stderr) << "pagepictures: " << what << '\n';
    std::exit(1);
}

void waitFor(const std::function<bool()> &condition, const QString &what)
{
    const QDeadlineTimer deadline(std::chrono::minutes(1));
    while (!condition()) {
        if (deadline.hasExpired()) {
            fail(what);
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
}

/** Until the strip below the page knows all that there is to know. */
void waitForStrip(ImportWizard &wizard)
{
    const auto *strip = wizard.findChild<ShootStrip *>();
    waitFor(
        [strip] {
            const QVector<StripRow> &rows = strip->rows();
            return std::any_of(rows.begin(), rows.end(), [](const StripRow &row) {
                return row.name == QLatin1String("photos");
            });
        },
        QStringLiteral("the photos were not looked at"));
}

/** Until the picture on the result page shows all photos. */
void waitForThumbnails(ImportWizard &wizard)
{
    const auto *view = wizard.currentPage()->findChild<ShootView *>();
    waitFor([view] { return view->isLoaded(); }, QStringLiteral("thumbnails were not read"));
}

/** Brackets end with the reference exposure: the last photo of a position is seen on top. */
ShootPlan planOf(const HeadFacts &head)
{
    ShootPlan plan = demoPlan(head, kPhotoSize);
    if (plan.stops.size() > 1) {
        plan.stops = { -2.0, 2.0, 0.0 };
    }
    return plan;
}

/** Takes the photos of \p head and writes its record, unless an earlier run has done so. */
QStringList shoot(const HeadFacts &head, const QString &folder)
{
    const QDir dir(folder);
    const ShootPlan plan = planOf(head);
    QStringList files;
    for (const PlannedShot &shot : shotsOf(plan)) {
        files += dir.absoluteFilePath(shot.fileName);
    }
    if (!QFile::exists(files.last())) {
        dir.mkpath(QStringLiteral("."));
        const Result<QStringList> taken = takePhotos(Scene(), plan, dir.absolutePath(), {});
        if (!taken) {
            fail(taken.error().text());
        }
    }
    if (!head.isGrid()) {
        QFile record(dir.absoluteFilePath(demoRecordFile(head)));
        if (!record.open(QIODevice::WriteOnly) || record.write(demoRecord(head, plan)) < 0) {
            fail(record.fileName() + QStringLiteral(": cannot be written"));
        }
        files += record.fileName();
    }
    return files;
}

/** Takes the pictures of one run, all under one folder. */
class Photographer
{
public:
    Photographer(PanoHostApplication &app, const PluginLibrary &library, const QString &folder)
        : m_app(app)
        , m_library(library)
        , m_folder(folder)
    {
        m_folder.mkpath(QStringLiteral("."));
    }

    void everything(const HeadFacts &head, const QStringList &files);
    void smallTabs(const HeadFacts &head, const QStringList &files);
    void choicePage();
    /** The whole way from dropped files to the panorama, as frames with the milliseconds that each
     * is to be seen in their names. */
    void film(const QStringList &files);

private:
    void picture(ImportWizard &wizard, const QString &name, const WindowSize &size) const;
    void bothSizes(ImportWizard &wizard, const QString &name) const;
    void open(ImportWizard &wizard, const QString &head) const;
    static void fill(ImportWizard &wizard, const QStringList &files);
    void misfit(ImportWizard &wizard, const QString &head, QStringList files) const;

    void frame(ImportWizard &wizard, int milliseconds);

    PanoHostApplication &m_app;
    const PluginLibrary &m_library;
    QDir m_folder;
    int m_frames = 0;
};

void Photographer::picture(ImportWizard &wizard, const QString &name, const WindowSize &size) const
{
    wizard.resize(size.size);
    // The layout settles in the event loop, that of the hidden scroll bars in the turn after.
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
    }
    const QString file
        = m_folder.filePath(QStringLiteral("%1-%2.png").arg(name, QLatin1String(size.name)));
    if (!wizard.grab().save(file)) {
        fail(file + QStringLiteral(": cannot be written"));
    }
}

void Photographer::bothSizes(ImportWizard &wizard, const QString &name) const
{
    for (const WindowSize &size : kSizes) {
        picture(wizard, name, size);
    }
}

void Photographer::open(ImportWizard &wizard, const QString &head) const
{
    wizard.show();
    auto *list = wizard.findChild<QListWidget *>(QStringLiteral("m_heads"));
    for (int i = 0; i < m_library.plugins().size(); ++i) {
        if (m_library.plugins().at(i).head() == head) {
            list->setCurrentRow(i);
        }
    }
    wizard.next();
}

void Photographer::fill(ImportWizard &wizard, const QStringList &files)
{
    wizard.fillIn(files);
    waitFor([&wizard] { return wizard.button(QWizard::NextButton)->isEnabled(); },
            QStringLiteral("the page did not accept its photos"));
    waitForStrip(wizard);
}

/** The page with a photo too few, which it warns of. */
void Photographer::misfit(ImportWizard &wizard, const QString &head, QStringList files) const
{
    files.removeFirst();
    wizard.fillIn(files);
    waitFor([&wizard] { return !wizard.button(QWizard::NextButton)->isEnabled(); },
            QStringLiteral("the page accepted a photo too few"));
    waitForStrip(wizard);
    bothSizes(wizard, head + QStringLiteral("-misfit"));
}

void Photographer::everything(const HeadFacts &head, const QStringList &files)
{
    const QString name = head.name();
    ImportWizard wizard(m_app, m_library);
    open(wizard, name);
    bothSizes(wizard, name + QStringLiteral("-empty"));
    fill(wizard, files);
    auto *tabs = wizard.currentPage()->findChild<QTabWidget *>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        bothSizes(wizard, QStringLiteral("%1-tab%2").arg(name).arg(tab + 1));
    }
    tabs->setCurrentIndex(0);
    wizard.next();
    waitForThumbnails(wizard);
    auto *views = wizard.currentPage()->findChild<QTabWidget *>();
    for (int view = 0; view < views->count(); ++view) {
        views->setCurrentIndex(view);
        bothSizes(wizard,
                  name + QStringLiteral("-result")
                      + (view == 0 ? QString() : QString::number(view + 1)));
    }
    wizard.back();
    // Reduced thumbnails lose pixels; here they are seen as they are.
    wizard.currentPage()->findChild<QSlider *>(QStringLiteral("m_hSlider"))->setValue(100);
    picture(wizard, name + QStringLiteral("-whole"), kWholePreview);
    if (!head.isGrid()) {
        misfit(wizard, name, files);
    }
    wizard.done(QDialog::Rejected);
}

void Photographer::smallTabs(const HeadFacts &head, const QStringList &files)
{
    const QString name = head.name();
    ImportWizard wizard(m_app, m_library);
    open(wizard, name);
    fill(wizard, files);
    auto *tabs = wizard.currentPage()->findChild<QTabWidget *>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        picture(wizard, QStringLiteral("%1-tab%2").arg(name).arg(tab + 1), kSizes.front());
    }
    wizard.done(QDialog::Rejected);
}

void Photographer::choicePage()
{
    ImportWizard wizard(m_app, m_library);
    wizard.show();
    bothSizes(wizard, QStringLiteral("choice"));
    wizard.done(QDialog::Rejected);
}

void Photographer::frame(ImportWizard &wizard, int milliseconds)
{
    constexpr int kDigits = 3;
    picture(wizard,
            QStringLiteral("film-%1-%2")
                .arg(m_frames++, kDigits, 10, QLatin1Char('0'))
                .arg(milliseconds),
            kFilm);
}

void Photographer::film(const QStringList &files)
{
    constexpr int kShortMs = 300;
    constexpr int kLookMs = 1500;
    constexpr int kReadMs = 2500;
    ImportWizard wizard(m_app, m_library);
    wizard.show();
    frame(wizard, kLookMs);
    fill(wizard, files);
    frame(wizard, kReadMs);
    wizard.next();
    waitForThumbnails(wizard);
    frame(wizard, kReadMs);
    wizard.findChild<QAbstractButton *>(QStringLiteral("m_sphere"))->click();
    frame(wizard, kReadMs);
    wizard.next();
    frame(wizard, kReadMs);
    auto *page = qobject_cast<MakePage *>(wizard.currentPage());
    page->findChild<QPushButton *>(QStringLiteral("m_make"))->click();
    QElapsedTimer clock;
    clock.start();
    const QString text = QStringLiteral("m_makeState");
    QString before;
    waitFor(
        [&] {
            const QString now = page->findChild<QLabel *>(text)->text();
            if (page->isRunning() && now != before && clock.elapsed() > kShortMs) {
                before = now;
                clock.start();
                frame(wizard, kShortMs);
            }
            return !page->isRunning();
        },
        QStringLiteral("the panorama was not made"));
    if (!page->hasMade()) {
        fail(page->findChild<QLabel *>(text)->text());
    }
    frame(wizard, kReadMs + kReadMs);
    wizard.done(QDialog::Accepted);
}

void addOptions(QCommandLineParser &line)
{
    line.setApplicationDescription(QStringLiteral("Photographs the import wizard and its pages."));
    line.addHelpOption();
    line.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("for the pictures"));
    line.addOptions({
        { QStringLiteral("plugin"), QStringLiteral("the plug-in library"), QStringLiteral("FILE") },
        { QStringLiteral("shoots"), QStringLiteral("for the photos; those there are used again"),
          QStringLiteral("FOLDER"), QStringLiteral("shoots") },
        { QStringLiteral("dark"), QStringLiteral("dark theme") },
        { QStringLiteral("film"), QStringLiteral("only the way from files to the panorama") },
        { QStringLiteral("lang"), QStringLiteral("only the small tabs, in this language"),
          QStringLiteral("CODE") },
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QStringList words = Environment::decodeArguments(argc, argv);
    const Environment environment(Environment::Use::Command);
    initializePhotoReading();
    Environment::prepareWindow();
    int qtArgumentCount = 1;
    PanoHostApplication app(qtArgumentCount, argv);
    QCommandLineParser line;
    addOptions(line);
    line.process(QStringList{ QStringLiteral("pagepictures") } + words);
    if (line.positionalArguments().size() != 1) {
        line.showHelp(2);
    }

    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    // Desktops have fonts of 9 to 11 points; without one Qt takes 12.
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
    if (line.isSet(QStringLiteral("dark"))) {
        QApplication::setPalette(darkPalette());
    }
    app.setLocale(QLocale(line.value(QStringLiteral("lang")).isEmpty()
                              ? QStringLiteral("en")
                              : line.value(QStringLiteral("lang"))));
    auto opened = PluginLibrary::open(line.value(QStringLiteral("plugin")));
    if (!opened) {
        fail(opened.error().text());
    }
    const auto library = std::move(opened).value();
    Photographer photographer(app, *library, line.positionalArguments().constFirst());
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        const QStringList files
            = shoot(*head, QDir(line.value(QStringLiteral("shoots"))).filePath(head->name()));
        if (line.isSet(QStringLiteral("film"))) {
            if (head->name() == QLatin1String("papywizard")) {
                photographer.film(files);
            }
            continue;
        }
        if (line.isSet(QStringLiteral("lang"))) {
            photographer.smallTabs(*head, files);
        } else {
            photographer.everything(*head, files);
        }
    }
    if (!line.isSet(QStringLiteral("lang")) && !line.isSet(QStringLiteral("film"))) {
        photographer.choicePage();
    }
    return 0;
}
