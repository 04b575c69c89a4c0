// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/heads.h"
#include "host/make/makejob.h"
#include "host/model/canvas.h"
#include "host/model/panoramajson.h"
#include "host/model/safefile.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

namespace
{

/** Steps that make little and write down that they were asked. */
struct FakeSteps {
    QStringList calls; ///< the steps, in order
    QString failsAt; ///< this step fails
    QString stopsAt; ///< before this step tells anything, the user has stopped
    bool isStopped = false;
    Panorama panorama = TestPanoramas::row(4);

    /** Why \p step cannot be done. */
    std::optional<Failure> enter(const QString &step, const JobWatch &watch)
    {
        calls += step;
        if (step == stopsAt) {
            isStopped = true;
            return interruption();
        }
        watch.report(0, 2, step);
        watch.report(2, 2, step);
        if (step == failsAt) {
            return Failure{ ExitCode::ToolFailed, step, QStringLiteral("it failed"), {} };
        }
        return {};
    }

    [[nodiscard]] MakeSteps steps()
    {
        MakeSteps steps;
        steps.import = [this](const ImportRequest &, const JobWatch &watch) -> Result<Panorama> {
            if (const auto failure = enter(QStringLiteral("import"), watch)) {
                return *failure;
            }
            watch.note(JobWatch::Note::Warning, QStringLiteral("no photo for shot 5"));
            return panorama;
        };
        steps.align = [this](const Panorama &given, const PtoOptions &options, const AlignOptions &,
                             const JobWatch &watch) -> Result<Alignment> {
            if (const auto failure = enter(QStringLiteral("align"), watch)) {
                return *failure;
            }
            AlignmentReport report;
            report.notes += QStringLiteral("there is one photo only: kept as recorded");
            return Alignment{ projectOf(given, options).value(), report };
        };
        steps.needs = [](const PtoFile &, const StitchOptions &) {
            return StitchNeeds{ { 200, 100 }, { 200, 100 }, 3'200'000, 1'500'000'000 };
        };
        steps.commands = [](const PtoFile &, const StitchOptions &options, const QString &) {
            return QStringList{
                QStringLiteral("nona --output=%1").arg(static_cast<int>(options.output))
            };
        };
        steps.stitch
            = [this](const PtoFile &project, const StitchOptions &options, const WorkFolder &work,
                     const JobWatch &watch) -> Result<StitchedPicture> {
            const QByteArray key = project.text(work.path()).value()
                + QByteArray::number(options.size.value) + QByteArray::number(int(options.output))
                + QByteArray::number(options.levels);
            const auto made = work.make(
                QStringLiteral("panorama.v"), key, [&](const QString &part) -> Result<QString> {
                    if (const auto failure = enter(QStringLiteral("stitch"), watch)) {
                        return *failure;
                    }
                    return writeFileAtomically(part, key);
                });
            if (!made) {
                return made.error();
            }
            StitchedPicture picture;
            picture.path = made.value();
            picture.size = picture.sphere = QSize(200, 100);
            return picture;
        };
        steps.origin = [](const PtoFile &, const StitchedPicture &) { return PictureOrigin(); };
        steps.deliver
            = [this](const DeliverJob &job, const JobWatch &watch) -> Result<QStringList> {
            QStringList paths;
            for (const Delivery kind : job.kinds) {
                const QString word = deliveryWords().at(static_cast<int>(kind));
                if (const auto failure = enter(word, watch)) {
                    return *failure;
                }
                const QString path = kind == Delivery::Picture
                    ? job.output
                    : QFileInfo(job.output).absolutePath() + QStringLiteral("/pano.") + word;
                paths += valueOrThrow(writeFileAtomically(path, word.toLatin1()));
            }
            return paths;
        };
        return steps;
    }
};

/** All that is said, with the progress. */
struct Said {
    QStringList warnings;
    QStringList infos;
    QVector<int> progress;

    [[nodiscard]] JobWatch watch(const FakeSteps *steps)
    {
        JobWatch watch;
        watch.progress = [this](int done, int total, const QString &) {
            QCOMPARE(total, 1000);
            progress += done;
        };
        watch.log = [this](JobWatch::Note note, const QString &text) {
            if (note != JobWatch::Note::Detail) {
                (note == JobWatch::Note::Warning ? warnings : infos) += text;
            }
        };
        watch.interrupted = [steps] { return steps->isStopped; };
        return watch;
    }
};

} // namespace

/** Which steps a job runs, keeps and goes on from; the steps themselves are made up. */
class TestMakeJob : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void firstRunDoesAllSteps();
    void secondRunKeepsAllAndSaysItAgain();
    void changesRedoWhatTheyConcern_data();
    void changesRedoWhatTheyConcern();
    void anotherKindIsDeliveredAlone();
    void deliveriesThatWereTouchedAreMadeAgain_data();
    void deliveriesThatWereTouchedAreMadeAgain();
    void stoppedAndFailedRunsGoOn_data();
    void stoppedAndFailedRunsGoOn();
    void recordThatIsTrustedIsNotAligned();
    void whatAPageHasDeliveredIsNotImportedAgain();
    void outputFollowsWishesPageAndBrackets_data();
    void outputFollowsWishesPageAndBrackets();
    void lightIsDeliveredAsLightToo();
    void rawFilesAreDevelopedFirst();
    void rawFilesNeedAConverter();
    void progressIsOneOfAllSteps();
    void folderOfSomethingElseIsRefused();
    void whatCannotBeDeliveredIsSaidFirst();
    void folderInUseIsRefused();
    void inputsAreNeverOverwritten();
    void stitchCleansUp_data();
    void stitchCleansUp();
    void stitchLeavesWhatMakeKeeps();
    void dryRunsWriteNothing();
    void logTellsWhatWasDone();

private:
    [[nodiscard]] QString file(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString work(const QString &name = {}) const
    {
        return QDir(file(QStringLiteral("pano.work"))).filePath(name);
    }
    [[nodiscard]] Result<QStringList> make(Said *said = nullptr)
    {
        Said own;
        m_fake.calls.clear();
        return makePanorama(m_request, m_fake.steps(), (said ? said : &own)->watch(&m_fake));
    }
    [[nodiscard]] QString calls() const { return m_fake.calls.join(QLatin1Char(' ')); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    FakeSteps m_fake;
    MakeRequest m_request;
};

void TestMakeJob::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_fake = {};
    m_request = {};
    m_request.import.head = &headNamed(QStringLiteral("papywizard"));
    m_request.import.record
        = TestPhotos::writeFile(file(QStringLiteral("shoot.xml")), "the record");
    for (const char *name : { "a.jpg", "b.jpg" }) {
        m_request.import.photos += TestPhotos::writeFile(file(QLatin1String(name)), name);
    }
    m_request.picture.path = file(QStringLiteral("pano.jpg"));
}

void TestMakeJob::firstRunDoesAllSteps()
{
    Said said;
    const auto made = make(&said);
    QVERIFY2(made.ok(), made.ok() ? "" : qPrintable(made.error().text()));
    QCOMPARE(calls(), QStringLiteral("import align stitch picture html"));
    QCOMPARE(made.value(),
             QStringList({ file(QStringLiteral("pano.jpg")), file(QStringLiteral("pano.html")) }));
    for (const char *name : { "1_import.json", "1_import.pto", "2_aligned.pto", "2_alignment.json",
                              "log.txt", "panorama.v" }) {
        QVERIFY2(QFile::exists(work(QLatin1String(name))), name);
    }
    QCOMPARE(said.warnings, QStringList(QStringLiteral("no photo for shot 5")));
    QCOMPARE(said.infos.first(), QStringLiteral("there is one photo only: kept as recorded"));
    QVERIFY2(said.infos.last().startsWith(
                 QStringLiteral("panorama of 200 x 100 pixels: takes about 3 MB in ")),
             qPrintable(said.infos.last()));
    QVERIFY(said.infos.last().endsWith(QStringLiteral(" are free) and 1.5 GB of memory")));
}

void TestMakeJob::secondRunKeepsAllAndSaysItAgain()
{
    Said first;
    Said second;
    QVERIFY(make(&first).ok());
    const auto made = make(&second);
    QVERIFY(made.ok());
    QCOMPARE(calls(), QString());
    QCOMPARE(made.value().size(), 2);
    QCOMPARE(second.warnings, first.warnings);
    QCOMPARE(second.infos.first(), first.infos.first());
    QCOMPARE(second.infos.at(1), QStringLiteral("kept: import, alignment"));
    QCOMPARE(second.infos.last(), QStringLiteral("kept: stitched panorama, picture, html"));
}

void TestMakeJob::changesRedoWhatTheyConcern_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("calls");
    const auto row = [](const char *change, const char *calls) {
        QTest::newRow(change) << QString::fromLatin1(change) << QString::fromLatin1(calls);
    };
    row("record", "import");
    row("focal", "import align stitch picture html");
    row("align", "align");
    row("size", "stitch picture html");
    row("quality", "picture html");
    row("jobs", "");
}

void TestMakeJob::changesRedoWhatTheyConcern()
{
    QFETCH(QString, change);
    QVERIFY(make().ok());
    if (change == QLatin1String("record")) {
        // The import gives the same again.
        (void)TestPhotos::writeFile(file(QStringLiteral("shoot.xml")), "the record, with a note");
    } else if (change == QLatin1String("focal")) {
        m_request.import.focal35mm = 35.0;
        m_fake.panorama.focal35mm = 35.0;
    } else if (change == QLatin1String("align")) {
        m_request.align.features = 100;
    } else if (change == QLatin1String("size")) {
        m_request.picture.stitch.size = { StitchSize::Unit::Percent, 50.0 };
    } else if (change == QLatin1String("quality")) {
        m_request.picture.jpegQuality = 50;
    } else {
        m_request.align.jobs = m_request.picture.stitch.jobs = 3;
    }
    QVERIFY(make().ok());
    QTEST(calls(), "calls");
}

void TestMakeJob::anotherKindIsDeliveredAlone()
{
    QVERIFY(make().ok());
    m_request.picture.kinds = { Delivery::Picture, Delivery::Zoom };
    QVERIFY(make().ok());
    QCOMPARE(calls(), QStringLiteral("zoom"));
}

void TestMakeJob::deliveriesThatWereTouchedAreMadeAgain_data()
{
    QTest::addColumn<bool>("isGone");
    QTest::newRow("gone") << true;
    QTest::newRow("another file") << false;
}

void TestMakeJob::deliveriesThatWereTouchedAreMadeAgain()
{
    QFETCH(bool, isGone);
    QVERIFY(make().ok());
    if (isGone) {
        QVERIFY(QFile::remove(m_request.picture.path));
    } else {
        (void)TestPhotos::writeFile(m_request.picture.path, "another panorama");
    }
    QVERIFY(make().ok());
    QCOMPARE(calls(), QStringLiteral("picture"));
}

void TestMakeJob::stoppedAndFailedRunsGoOn_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<bool>("isStopped");
    QTest::addColumn<QString>("calls"); // of the run after it
    const QString all = QStringLiteral("import align stitch picture html");
    for (const QString &step : all.split(QLatin1Char(' '))) {
        const QString rest = all.mid(all.indexOf(step));
        QTest::newRow(qPrintable(step + QStringLiteral(" stopped"))) << step << true << rest;
        QTest::newRow(qPrintable(step + QStringLiteral(" failed"))) << step << false << rest;
    }
}

void TestMakeJob::stoppedAndFailedRunsGoOn()
{
    QFETCH(QString, step);
    QFETCH(bool, isStopped);
    (isStopped ? m_fake.stopsAt : m_fake.failsAt) = step;
    Said said;
    const auto answer = make(&said);
    QVERIFY(!answer.ok());
    if (isStopped) {
        QCOMPARE(answer.error().code, ExitCode::Interrupted);
        QCOMPARE(answer.error().text(),
                 QStringLiteral("stopped; the same command goes on from here"));
    } else {
        QCOMPARE(answer.error().text(), step + QStringLiteral(": it failed"));
        QVERIFY(said.infos.last().startsWith(QStringLiteral("what was finished is kept in ")));
    }
    QCOMPARE(QFile::exists(m_request.picture.path), step == QLatin1String("html"));
    m_fake.stopsAt = m_fake.failsAt = QString();
    m_fake.isStopped = false;
    QVERIFY(make().ok());
    QTEST(calls(), "calls");
}

void TestMakeJob::recordThatIsTrustedIsNotAligned()
{
    m_fake.panorama.description.skipOptimization = true;
    Said said;
    QVERIFY(make(&said).ok());
    QCOMPARE(calls(), QStringLiteral("import stitch picture html"));
    QCOMPARE(said.infos.first(),
             QStringLiteral("photos stay where the head says: optimisation is skipped"));
    QVERIFY(!QFile::exists(work(QStringLiteral("2_aligned.pto"))));
    // Nobody else would level it.
    m_request.align.levels = true;
    QVERIFY(make().ok());
    QCOMPARE(calls(), QStringLiteral("stitch picture html"));
}

void TestMakeJob::whatAPageHasDeliveredIsNotImportedAgain()
{
    m_request.imported = m_fake.panorama;
    m_request.import = {};
    QVERIFY(make().ok());
    QCOMPARE(calls(), QStringLiteral("align stitch picture html"));
    QVERIFY(QFile::exists(work(QStringLiteral("1_import.pto"))));
    QVERIFY(make().ok());
    QCOMPARE(calls(), QString());
    m_request.imported->positions[1].yawDegrees += 1.0;
    QVERIFY(make().ok());
    QCOMPARE(calls(), QStringLiteral("align stitch picture html"));
    // Its photos are inputs.
    m_request.picture.path = TestPhotos::writeFile(file(QStringLiteral("photo.jpg")), "a photo");
    m_request.imported->positions[1].photos[0].path = m_request.picture.path;
    QVERIFY(!make().ok());
}

void TestMakeJob::outputFollowsWishesPageAndBrackets_data()
{
    QTest::addColumn<int>("wished"); // -1: not
    QTest::addColumn<bool>("wantsRadiance");
    QTest::addColumn<int>("renderMode");
    QTest::addColumn<bool>("hasBrackets");
    QTest::addColumn<int>("output");
    const int none = -1;
    const int ldr = static_cast<int>(StitchOutput::Ldr);
    const int fused = static_cast<int>(StitchOutput::Fused);
    const int hdr = static_cast<int>(StitchOutput::Hdr);
    QTest::newRow("single photos") << none << false << -1 << false << ldr;
    QTest::newRow("brackets") << none << false << -1 << true << fused;
    QTest::newRow("page: ordinary") << none << false << 2 << true << fused;
    QTest::newRow("page: ordinary, single photos") << none << false << 2 << false << ldr;
    QTest::newRow("page: light") << none << false << 3 << true << hdr;
    QTest::newRow("page: light, single photos") << none << false << 3 << false << hdr;
    QTest::newRow("wish beats page") << ldr << false << 3 << true << ldr;
    QTest::newRow("light to be delivered") << none << true << 2 << true << hdr;
}

void TestMakeJob::outputFollowsWishesPageAndBrackets()
{
    QFETCH(int, wished);
    QFETCH(bool, wantsRadiance);
    QFETCH(int, renderMode);
    QFETCH(bool, hasBrackets);
    PictureWishes wishes;
    if (wished >= 0) {
        wishes.output = static_cast<StitchOutput>(wished);
    }
    if (wantsRadiance) {
        wishes.kinds = { Delivery::Radiance };
    }
    QTEST(static_cast<int>(outputFor(wishes, renderMode, hasBrackets)), "output");
}

void TestMakeJob::lightIsDeliveredAsLightToo()
{
    m_fake.panorama = TestPanoramas::row(4, 3);
    m_fake.panorama.description.renderMode = 3;
    Said said;
    QVERIFY(make(&said).ok());
    QCOMPARE(calls(), QStringLiteral("import align stitch picture html radiance"));
    // How far it can be trusted is said.
    const QString curve = QStringLiteral("the light is good for looking at, not for measuring");
    QCOMPARE(said.infos.filter(curve).size(), 1);

    m_request.picture.stitch.isLinear = true;
    Said ofLinear;
    QVERIFY(make(&ofLinear).ok());
    QCOMPARE(ofLinear.infos.filter(curve).size(), 0);
    QCOMPARE(ofLinear.infos.filter(QStringLiteral("the light is exact")).size(), 1);
}

void TestMakeJob::rawFilesAreDevelopedFirst()
{
    const QString tiff = file(QStringLiteral("made.tif"));
    QVERIFY(TestPhotos::quarters(QSize(60, 40)).save(tiff, "TIFF"));
    PhotoInfo &photo = m_fake.panorama.positions[1].photos[0];
    photo.path = TestPhotos::writeFile(file(QStringLiteral("b.NEF")), "raw");
    photo.isRaw = true;
    m_request.rawConverter = QStringLiteral("sh -c \"echo x >> '%1'; cp '%2' $1\" %i %o")
                                 .arg(file(QStringLiteral("count")), tiff);
    for (int run = 0; run < 2; ++run) {
        Said said;
        const auto made = make(&said);
        QVERIFY2(made.ok(), made.ok() ? "" : qPrintable(made.error().text()));
        QVERIFY(std::is_sorted(said.progress.begin(), said.progress.end()));
        QCOMPARE(QFileInfo(file(QStringLiteral("count"))).size(), 2); // once
    }
    QCOMPARE(calls(), QString());
    const auto project = PtoFile::read(work(QStringLiteral("2_aligned.pto")));
    QVERIFY(project.ok());
    QCOMPARE(project.value().images().at(1).path, work(QStringLiteral("developed/00001.tif")));
    QCOMPARE(project.value().images().at(1).size, QSize(60, 40));
}

void TestMakeJob::rawFilesNeedAConverter()
{
    m_fake.panorama.positions[1].photos[0].isRaw = true;
    const auto made = make();
    QVERIFY(!made.ok());
    QVERIFY2(made.error().text().startsWith(
                 QStringLiteral("photos: 1 of them are RAW files; add --raw-converter ")),
             qPrintable(made.error().text()));
    QCOMPARE(calls(), QStringLiteral("import"));
    m_request.rawConverter = QStringLiteral("nonsense");
    QVERIFY(!make().ok());
    QCOMPARE(calls(), QString());
}

void TestMakeJob::progressIsOneOfAllSteps()
{
    Said said;
    QVERIFY(make(&said).ok());
    QVERIFY(said.progress.size() >= 10);
    QVERIFY(std::is_sorted(said.progress.begin(), said.progress.end()));
    QCOMPARE(said.progress.count(1000), 1);
    QCOMPARE(said.progress.last(), 1000);
}

void TestMakeJob::folderOfSomethingElseIsRefused()
{
    QVERIFY(QDir().mkpath(work()));
    (void)TestPhotos::writeFile(work(QStringLiteral("diary.txt")), "mine");
    const auto answer = make();
    QVERIFY(!answer.ok());
    QCOMPARE(answer.error().code, ExitCode::InputRefused);
    QVERIFY(answer.error().text().contains(QStringLiteral("holds something else")));
    QCOMPARE(QDir(work()).entryList(QDir::Files), QStringList(QStringLiteral("diary.txt")));
    QCOMPARE(calls(), QString());
}

void TestMakeJob::whatCannotBeDeliveredIsSaidFirst()
{
    const QString zoom = file(QStringLiteral("pano_zoom"));
    QVERIFY(QDir().mkpath(zoom));
    TestPhotos::writeFile(zoom + QStringLiteral("/mine.txt"), "mine");
    m_request.picture.kinds = { Delivery::Picture, Delivery::Zoom };
    const auto refused = make();
    QVERIFY(!refused.ok());
    QCOMPARE(refused.error().code, ExitCode::InputRefused);
    QCOMPARE(refused.error().why, QStringLiteral("is a folder that panohost has not made"));
    QCOMPARE(calls(), QString());

    // How large the panorama becomes is known after the alignment.
    m_request.picture.kinds = {};
    MakeSteps steps = m_fake.steps();
    steps.needs = [](const PtoFile &, const StitchOptions &) {
        return StitchNeeds{ { 70'000, 35'000 }, { 70'000, 35'000 }, 1, 1 };
    };
    const auto large = makePanorama(m_request, steps, {});
    QVERIFY(!large.ok());
    QCOMPARE(large.error().code, ExitCode::InputRefused);
    QCOMPARE(calls(), QStringLiteral("import align"));
}

void TestMakeJob::folderInUseIsRefused()
{
    const auto other = WorkFolder::open(work());
    QVERIFY(other.ok());
    const auto answer = make();
    QVERIFY(!answer.ok());
    QVERIFY2(answer.error().text().contains(QStringLiteral("is in use by")),
             qPrintable(answer.error().text()));
    QCOMPARE(calls(), QString());
}

void TestMakeJob::inputsAreNeverOverwritten()
{
    m_request.picture.path = m_request.import.photos.first();
    const auto answer = make();
    QVERIFY(!answer.ok());
    QCOMPARE(answer.error().why, QStringLiteral("is one of the input files"));
    QCOMPARE(files(),
             QStringList({ QStringLiteral("a.jpg"), QStringLiteral("b.jpg"),
                           QStringLiteral("shoot.xml") }));

    const QString json = file(QStringLiteral("d.json"));
    m_fake.panorama.positions[0].photos[0].path = m_request.import.photos.first();
    QVERIFY(writePanoramaJson(m_fake.panorama, json).ok());
    StitchRequest request;
    request.input = json;
    request.picture.path = m_request.import.photos.first();
    const auto stitched = stitchPanorama(request, m_fake.steps(), {});
    QVERIFY(!stitched.ok());
    QCOMPARE(stitched.error().why, QStringLiteral("is one of the input files"));
}

void TestMakeJob::stitchCleansUp_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("keeps");
    QTest::newRow("project") << QStringLiteral("d.pto") << false;
    QTest::newRow("description") << QStringLiteral("d.json") << false;
    QTest::newRow("kept") << QStringLiteral("d.json") << true;
}

void TestMakeJob::stitchCleansUp()
{
    QFETCH(bool, keeps);
    QFETCH(QString, input);
    StitchRequest request;
    request.input = file(input);
    request.keepsWork = keeps;
    request.picture.path = m_request.picture.path;
    QVERIFY(writePanoramaJson(m_fake.panorama, file(QStringLiteral("d.json"))).ok());
    QVERIFY(writePtoProject(m_fake.panorama, file(QStringLiteral("d.pto"))).ok());

    // What failed can be gone on from.
    m_fake.failsAt = QStringLiteral("html");
    QVERIFY(!stitchPanorama(request, m_fake.steps(), {}).ok());
    QVERIFY(QFile::exists(work(QStringLiteral("panorama.v"))));
    m_fake.failsAt = QString();
    m_fake.calls.clear();
    QVERIFY(stitchPanorama(request, m_fake.steps(), {}).ok());
    QCOMPARE(calls(), QStringLiteral("html"));
    QCOMPARE(QFile::exists(work()), keeps);
    QVERIFY(QFile::exists(request.picture.path));
}

void TestMakeJob::stitchLeavesWhatMakeKeeps()
{
    QVERIFY(make().ok());
    StitchRequest request;
    request.input = work(QStringLiteral("2_aligned.pto"));
    request.picture.path = m_request.picture.path;
    QVERIFY(stitchPanorama(request, m_fake.steps(), {}).ok());
    QVERIFY(QFile::exists(request.input));
}

void TestMakeJob::dryRunsWriteNothing()
{
    const QStringList before = files();
    Said said;
    JobWatch watch = said.watch(&m_fake);
    watch.progress = {}; // it is the import's own
    const auto commands = makeCommands(m_request, m_fake.steps(), watch);
    QVERIFY(commands.ok());
    QCOMPARE(commands.value(), QStringList(QStringLiteral("nona --output=0")));
    QVERIFY(said.infos.last().startsWith(QStringLiteral("panorama of 200 x 100 pixels")));
    QCOMPARE(calls(), QStringLiteral("import"));
    QCOMPARE(files(), before);
}

void TestMakeJob::logTellsWhatWasDone()
{
    QVERIFY(make().ok());
    const auto log = readRegularFile(work(QStringLiteral("log.txt")), 1 << 20);
    QVERIFY(log.ok());
    for (const char *text : { "import\n", "no photo for shot 5\n", "alignment\n",
                              "$ nona --output=0\n", "pano.jpg\n" }) {
        QVERIFY2(log.value().contains(text), text);
    }
}

TEST_CLASS(TestMakeJob, QCoreApplication)
#include "tst_makejob.moc"
