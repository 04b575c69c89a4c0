// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/demo/demohead.h"
#include "host/demo/photoshoot.h"
#include "host/demo/psnr.h"
#include "host/model/panoramajson.h"
#include "host/model/photofile.h"
#include "host/model/ptofile.h"
#include "host/stitch/toolrun.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace PanoHost;

namespace
{

constexpr int kRunMilliseconds = 280000;

/** What a run of panohost left. */
struct Run {
    int exitCode = -1;
    QString output;
    QString errors;
};

QStringList withLibrary(const QStringList &arguments)
{
    return arguments + QStringList{ QStringLiteral("--plugin"), QStringLiteral(PANOHOST_LIBRARY) };
}

Run runPanohost(const QStringList &arguments, const QString &folder, const QString &path = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!path.isNull()) {
        environment.insert(QStringLiteral("PATH"), path);
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(PANOHOST_PROGRAM), withLibrary(arguments));
    if (!process.waitForFinished(kRunMilliseconds)) {
        return {};
    }
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

/** The figure that the demo printed; -1 when it printed none. */
double printedPsnr(const QString &output)
{
    const QRegularExpression line(QStringLiteral("^Panorama: .*, ([0-9.]+) dB\\)$"),
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(output);
    return match.hasMatch() ? match.captured(1).toDouble() : -1.0;
}

QStringList filesBelow(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class TestEndToEnd : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void exactAnglesNeedNoOptimisation_data();
    void exactAnglesNeedNoOptimisation();
    void demoEndsWithAPanorama();
    void everyHeadReachesItsPanorama_data();
    void everyHeadReachesItsPanorama();
    void demoWithoutStitchingProgramsStillShowsAPicture();
    void interruptedDemoLeavesNoPanorama();
    void demoRefusesAFolderThatCannotBeMade();
    void demoRefusesWrongWords_data();
    void demoRefusesWrongWords();

private:
    const Scene m_scene;
    QImage m_truth;
};

void TestEndToEnd::initTestCase()
{
    initializePhotoReading();
    if (!findTool(QStringLiteral("nona")) || !findTool(QStringLiteral("verdandi"))) {
        QSKIP("hugin-tools are not installed");
    }
    m_truth = truthOf(m_scene, 2048);
}

void TestEndToEnd::exactAnglesNeedNoOptimisation_data()
{
    QTest::addColumn<int>("mounting");
    QTest::addColumn<bool>("fisheye");
    QTest::addColumn<QVector<double>>("stops");
    const QVector<double> single{ 0.0 };
    const auto row = [](Mounting mounting) { return static_cast<int>(mounting); };
    QTest::newRow("landscape") << row(Mounting::Landscape) << false << single;
    QTest::newRow("portrait, upright pixels") << row(Mounting::PortraitUpright) << false << single;
    QTest::newRow("portrait, turned pixels with an orientation")
        << row(Mounting::PortraitTurned) << false << single;
    QTest::newRow("fisheye") << row(Mounting::Landscape) << true << single;
    QTest::newRow("reference exposures of brackets")
        << row(Mounting::Landscape) << false << QVector<double>{ 0.0, -2.0, 2.0 };
}

void TestEndToEnd::exactAnglesNeedNoOptimisation()
{
    QFETCH(int, mounting);
    QFETCH(bool, fisheye);
    QFETCH(QVector<double>, stops);

    ShootPlan plan;
    plan.mounting = static_cast<Mounting>(mounting);
    plan.camera = { QSize(900, 600), 24.0, Projection::Rectilinear };
    QVector<ShootRow> rows = landscapeRows();
    if (fisheye) {
        plan.camera = { QSize(1800, 1200), 12.0, Projection::EquidistantFisheye };
        rows = { { 0.0, 4 }, { 55.0, 2 }, { -55.0, 2 } };
    } else if (plan.mounting != Mounting::Landscape) {
        rows = portraitRows();
    }
    if (plan.mounting == Mounting::PortraitUpright) {
        plan.camera.size.transpose();
    }
    plan.positions = withPlay(positionsOf(rows), 0.4);
    plan.stops = stops;

    const QTemporaryDir folder;
    const Result<QStringList> photos = takePhotos(m_scene, plan, folder.path(), {});
    QVERIFY(photos);
    const QString record = folder.filePath(QStringLiteral("record.xml"));
    QFile file(record);
    QVERIFY(file.open(QIODevice::WriteOnly));
    PanoHead::NotedShoot notes = notesOf(plan, QStringLiteral("exact"));
    notes.exactAngles = true;
    file.write(PanoHead::headFactsOf(QStringLiteral("papywizard"))->write(notes));
    file.close();

    QStringList arguments{ QStringLiteral("import"), QStringLiteral("papywizard"), record };
    arguments += photos.value();
    arguments += QStringList{ QStringLiteral("-o"), QStringLiteral("exact.pto") };
    if (fisheye) {
        arguments += QStringList{ QStringLiteral("--lens"), QStringLiteral("fisheye") };
    }
    const Run import = runPanohost(arguments, folder.path());
    QVERIFY2(import.exitCode == 0, qPrintable(import.errors));

    // The project's own canvas is larger; the truth is 2048 pixels wide.
    const Run stitch
        = runPanohost({ QStringLiteral("stitch"), QStringLiteral("exact.pto"), QStringLiteral("-o"),
                        QStringLiteral("exact.tif"), QStringLiteral("--size"),
                        QStringLiteral("2048"), QStringLiteral("--output"), QStringLiteral("ldr"),
                        QStringLiteral("--deliver"), QStringLiteral("picture") },
                      folder.path());
    QVERIFY2(stitch.exitCode == 0, qPrintable(stitch.errors));
    const Agreement agreement
        = agreementOf(QImage(folder.filePath(QStringLiteral("exact.tif"))), m_truth);
    qInfo("%.2f dB, %.4f covered", agreement.psnrDecibels, agreement.coveredShare);
    QCOMPARE(agreement.coveredShare, 1.0);
    QVERIFY(agreement.psnrDecibels > 38.0);
}

void TestEndToEnd::demoEndsWithAPanorama()
{
    const QTemporaryDir folder;
    const Run demo = runPanohost({ QStringLiteral("demo"), QStringLiteral("show") }, folder.path());
    QVERIFY2(demo.exitCode == 0, qPrintable(demo.errors));
    QVERIFY(
        demo.output.contains(QStringLiteral("Panorama: show/demo.jpg (2048x1024, 26 photos, ")));

    const QDir show(folder.filePath(QStringLiteral("show")));
    QCOMPARE(show.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
             (QStringList{ QStringLiteral("demo.html"), QStringLiteral("demo.jpg"),
                           QStringLiteral("demo.json"), QStringLiteral("demo.pto"),
                           QStringLiteral("demo.work"), QStringLiteral("layout.png"),
                           QStringLiteral("photos"), QStringLiteral("record.xml") }));
    QVERIFY(
        demo.output.endsWith(QStringLiteral("\nPage: show/demo.html (open it in any browser)\n")));
    QCOMPARE(QDir(show.filePath(QStringLiteral("photos"))).entryList(QDir::Files).size(), 26);
    QVERIFY(!QImage(show.filePath(QStringLiteral("layout.png"))).isNull());

    const Result<Panorama> description
        = readPanoramaJson(show.filePath(QStringLiteral("demo.json")));
    QVERIFY(description);
    QCOMPARE(description.value().positions.size(), 26);
    QVERIFY(description.value().description.authorizedLinks.size() > 26);

    // The record knows nothing of the head's play; the project has found it.
    const ShootPlan plan
        = demoPlan(*PanoHead::headFactsOf(QStringLiteral("papywizard")), QSize(900, 600));
    const Rotations truth = trueRotations(plan);
    const Result<PtoFile> project = PtoFile::read(show.filePath(QStringLiteral("demo.pto")));
    QVERIFY(project);
    QVERIFY(project.value().points().size() > 1000);
    Rotations recorded;
    Rotations aligned;
    for (const PtoImage &image : project.value().images()) {
        recorded.push_back(rotationOf(image.recorded));
        aligned.push_back(rotationOf(image.angles));
    }
    for (int i = 0; i < 26; ++i) {
        const Position &position = description.value().positions[i];
        const Angles described{ position.yawDegrees, position.pitchDegrees, position.rollDegrees };
        QVERIFY(degreesBetween(rotationOf(described), recorded[static_cast<size_t>(i)]) < 1e-6);
    }
    QVERIFY(attitudeErrors(truth, recorded).rms > 0.15);
    const AttitudeErrors left = attitudeErrors(truth, aligned);
    QVERIFY2(left.rms <= 0.006, qPrintable(QString::number(left.rms)));
    QVERIFY2(demo.errors.contains(QStringLiteral("26 of 26 photos tied, ")),
             qPrintable(demo.errors));
    QVERIFY2(demo.errors.contains(
                 QStringLiteral("checked: photos lie within %1 degrees of where they were taken\n")
                     .arg(left.largest, 0, 'f', 3)),
             qPrintable(demo.errors));

    // The printed figure is that of the file: compared here once more.
    const QSize size(2048, 1024);
    const QImage scene = truthOf(m_scene, { size, 360.0, 0.0, QRect(QPoint(0, 0), size) },
                                 commonRotation(truth, aligned, allOf(26)));
    const double psnr
        = agreementOf(QImage(show.filePath(QStringLiteral("demo.jpg"))), scene).psnrDecibels;
    QVERIFY(psnr >= 40.0);
    QVERIFY(std::fabs(psnr - printedPsnr(demo.output)) < 0.06);
}

void TestEndToEnd::everyHeadReachesItsPanorama_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("size");
    QTest::addColumn<double>("leastPsnr");
    QTest::addColumn<int>("photos");
    QTest::addColumn<QString>("record");
    QTest::newRow("clauss, whole degrees") << QStringLiteral("clauss") << QStringLiteral("normal")
                                           << 40.0 << 26 << QStringLiteral("script.txt");
    QTest::newRow("vrdrive2, reference exposures of brackets")
        << QStringLiteral("vrdrive2") << QStringLiteral("normal") << 40.0 << 78
        << QStringLiteral("record.xml");
    QTest::newRow("gigapan, a part of the sphere")
        << QStringLiteral("gigapan") << QStringLiteral("small") << 38.5 << 15 << QString();
}

void TestEndToEnd::everyHeadReachesItsPanorama()
{
    QFETCH(QString, head);
    QFETCH(QString, size);
    QFETCH(double, leastPsnr);
    QFETCH(int, photos);
    QFETCH(QString, record);
    const QTemporaryDir folder;
    const Run demo = runPanohost({ QStringLiteral("demo"), QStringLiteral("show"),
                                   QStringLiteral("--head"), head, QStringLiteral("--size"), size },
                                 folder.path());
    QVERIFY2(demo.exitCode == 0, qPrintable(demo.errors));
    qInfo("%.1f dB", printedPsnr(demo.output));
    QVERIFY(printedPsnr(demo.output) > leastPsnr);
    QVERIFY2(demo.errors.contains(
                 QStringLiteral("checkpto accepts the project and finds %1 photos").arg(photos)),
             qPrintable(demo.errors));
    QVERIFY2(demo.errors.contains(QStringLiteral("photos tied, ")), qPrintable(demo.errors));
    QCOMPARE(demo.errors.contains(QStringLiteral("positions lie in the order")), record.isEmpty());
    const QDir show(folder.filePath(QStringLiteral("show")));
    QVERIFY(!QImage(show.filePath(QStringLiteral("layout.png"))).isNull());
    QStringList files{ QStringLiteral("demo.html"), QStringLiteral("demo.jpg"),
                       QStringLiteral("demo.json"), QStringLiteral("demo.pto"),
                       QStringLiteral("demo.work"), QStringLiteral("layout.png"),
                       QStringLiteral("photos") };
    if (!record.isEmpty()) {
        files += record;
    }
    QCOMPARE(show.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
             files);
}

void TestEndToEnd::demoWithoutStitchingProgramsStillShowsAPicture()
{
    const QTemporaryDir folder;
    const QTemporaryDir noPrograms;
    const Run demo = runPanohost({ QStringLiteral("demo"), QStringLiteral("show"),
                                   QStringLiteral("--size"), QStringLiteral("small") },
                                 folder.path(), noPrograms.path());
    QCOMPARE(demo.exitCode, 5);
    QVERIFY2(demo.errors.contains(QStringLiteral("apt install hugin-tools enblend")),
             qPrintable(demo.errors));
    qInfo("%.1f dB", printedPsnr(demo.output));
    // Aligned as well.
    QVERIFY(printedPsnr(demo.output) > 36.0);
    QCOMPARE(QImage(folder.filePath(QStringLiteral("show/demo.jpg"))).size(), QSize(1024, 512));
    for (const char *file : { "demo.pto", "demo.json", "layout.png", "record.xml" }) {
        QVERIFY(QFileInfo(folder.filePath(QStringLiteral("show/") + QLatin1String(file))).size()
                > 0);
    }
}

void TestEndToEnd::interruptedDemoLeavesNoPanorama()
{
    const QTemporaryDir folder;
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral(PANOHOST_PROGRAM),
                  withLibrary({ QStringLiteral("demo"), QStringLiteral("show") }));
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(
        QFile::exists(folder.filePath(QStringLiteral("show/photos/demo_0002.jpg"))), 60000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(kRunMilliseconds));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 130);
    QCOMPARE(filesBelow(folder.filePath(QStringLiteral("show"))),
             QStringList{ QStringLiteral("photos") });
}

void TestEndToEnd::demoRefusesAFolderThatCannotBeMade()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("occupied")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const Run demo
        = runPanohost({ QStringLiteral("demo"), QStringLiteral("occupied") }, folder.path());
    QCOMPARE(demo.exitCode, 1);
    QVERIFY2(demo.errors.contains(QStringLiteral("occupied: this folder cannot be made")),
             qPrintable(demo.errors));
    QCOMPARE(filesBelow(folder.path()), QStringList{ QStringLiteral("occupied") });
}

void TestEndToEnd::demoRefusesWrongWords_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("unknown head") << QStringList{ QStringLiteral("--head"),
                                                  QStringLiteral("robot") };
    QTest::newRow("unknown size") << QStringList{ QStringLiteral("--size"),
                                                  QStringLiteral("huge") };
    QTest::newRow("two folders") << QStringList{ QStringLiteral("one"), QStringLiteral("two") };
}

void TestEndToEnd::demoRefusesWrongWords()
{
    QFETCH(QStringList, words);
    const QTemporaryDir folder;
    const Run demo = runPanohost(QStringList{ QStringLiteral("demo") } + words, folder.path());
    QCOMPARE(demo.exitCode, 2);
    QVERIFY(demo.errors.startsWith(QStringLiteral("panohost: error: ")));
    QCOMPARE(filesBelow(folder.path()), QStringList());
}

TEST_CLASS(TestEndToEnd, QCoreApplication)
#include "tst_endtoend.moc"
