// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <cmath>

namespace
{

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QJsonArray positionsOf(const QJsonObject &json)
{
    return json.value(QStringLiteral("positions")).toArray();
}

double yawOf(const QJsonObject &json, int position)
{
    return positionsOf(json).at(position).toObject().value(QStringLiteral("yawDeg")).toDouble();
}

double pitchOf(const QJsonObject &json, int position)
{
    return positionsOf(json).at(position).toObject().value(QStringLiteral("pitchDeg")).toDouble();
}

/** The photos of all positions, "a,b c,d" for two stacks of two. */
QString stacksOf(const QJsonObject &json)
{
    QStringList stacks;
    for (const QJsonValue &position : positionsOf(json)) {
        QStringList files;
        for (const QJsonValue &photo :
             position.toObject().value(QStringLiteral("photos")).toArray()) {
            files += photo.toObject().value(QStringLiteral("file")).toString();
        }
        stacks += files.join(QLatin1Char(','));
    }
    return stacks.join(QLatin1Char(' '));
}

/** "rc" of each shot of a grid with 2 rows and 3 columns, read off the signs of its angles. */
QString cellsOf(const QJsonObject &json)
{
    QStringList cells;
    for (int i = 0; i < positionsOf(json).size(); ++i) {
        const double yaw = yawOf(json, i);
        const int column = std::abs(yaw) < 1.0 ? 1 : (yaw < 0.0 ? 0 : 2);
        cells += QString::number(pitchOf(json, i) > 0.0 ? 0 : 1) + QString::number(column);
    }
    return cells.join(QLatin1Char(' '));
}

QJsonValue valueAt(const QJsonObject &json, const QString &path)
{
    const QStringList keys = path.split(QLatin1Char('.'));
    QJsonValue value = json;
    for (const QString &key : keys) {
        value = value.toObject().value(key);
    }
    return value;
}

} // namespace

class TestCliHeads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void gridCellsFollowTheOrderOfTheSweep_data();
    void gridCellsFollowTheOrderOfTheSweep();
    void gridAnglesComeFromLensAndOverlap_data();
    void gridAnglesComeFromLensAndOverlap();
    void bracketsAndIgnoredPhotosOfAGrid();
    void steepGridIsClampedAndSaid();
    void portraitGridUsesUprightFrames();
    void scriptGivesTheDirections();
    void decimalsOfAScriptAreCutWithAWarning();
    void harmlessScriptsAreRead_data();
    void harmlessScriptsAreRead();
    void focalLengthIsThePhotosMedian();
    void medianExposureStandsFirstInEachStack_data();
    void medianExposureStandsFirstInEachStack();
    void outputModeReachesTheProject_data();
    void outputModeReachesTheProject();
    void optionsReachTheDescription_data();
    void optionsReachTheDescription();
    void previewShowsTheLayout_data();
    void previewShowsTheLayout();
    void checkReports_data();
    void checkReports();
    void projectIsAcceptedByCheckpto_data();
    void projectIsAcceptedByCheckpto();

private:
    [[nodiscard]] CliBench::Run run(const QStringList &words) const { return m_bench.run(words); }
    [[nodiscard]] QJsonObject described(const QStringList &words) const;

    CliBench m_bench;
    QStringList m_photos; ///< 24 mm, all the same exposure
    QStringList m_brackets; ///< two positions, 1/400 s, 1/100 s and 1/25 s at each
};

void TestCliHeads::initTestCase()
{
    m_photos = m_bench.photos(6);
    const QByteArrayList times{ "1/400", "1/100", "1/25" };
    for (int i = 0; i < 6; ++i) {
        TestPhotos::Exif exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.ExposureTime"] = times.at(i % 3);
        exif["Exif.Photo.DateTimeOriginal"] = "2024:05:01 10:00:0" + QByteArray::number(i);
        m_brackets += QStringLiteral("b%1.jpg").arg(i);
        TestPhotos::writeJpeg(m_bench.path(m_brackets.last()), TestPhotos::quarters(QSize(60, 40)),
                              exif);
    }
    QVector<CliBench::Shot> shots(3, CliBench::Shot{ 0.0, 0.0 });
    shots += QVector<CliBench::Shot>(3, CliBench::Shot{ 30.0, 0.0 });
    (void)m_bench.record(QStringLiteral("brackets.xml"), shots, R"(<bracketing nbPicts="3"/>)");
    (void)m_bench.file(QStringLiteral("six.txt"),
                       "op_v-angle=-15\nop_h-angle=0\nop_shoot\nop_h-angle=30\nop_shoot\n"
                       "op_h-angle=60\nop_shoot\nop_v-angle=15\nop_shoot\nop_h-angle=30\nop_shoot\n"
                       "op_h-angle=0\nop_shoot\n");
}

QJsonObject TestCliHeads::described(const QStringList &words) const
{
    const CliBench::Run run = m_bench.run(QStringList{ QStringLiteral("describe") } + words);
    if (run.exitCode != 0) {
        qWarning("%s", qPrintable(run.err));
        return {};
    }
    return QJsonDocument::fromJson(run.out.toUtf8()).object();
}

void TestCliHeads::gridCellsFollowTheOrderOfTheSweep_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<int>("mode");
    // 2 rows of 3 columns; row 0 is the upper one.
    QTest::newRow("default") << QStringList() << "00 10 01 11 02 12" << 0;
    QTest::newRow("columns") << words("--mode columns") << "00 10 01 11 02 12" << 0;
    QTest::newRow("to the left") << words("--mode columns-from-right") << "02 12 01 11 00 10" << 3;
    QTest::newRow("downward") << words("--mode rows-down") << "00 01 02 10 11 12" << 1;
    QTest::newRow("upward") << words("--mode rows-up") << "10 11 12 00 01 02" << 2;
    QTest::newRow("serpentine, without a button")
        << words("--mode serpentine") << "10 11 12 02 01 00" << 4;
}

void TestCliHeads::gridCellsFollowTheOrderOfTheSweep()
{
    QFETCH(QStringList, options);
    QFETCH(QString, cells);
    QFETCH(int, mode);
    const QJsonObject json = described(QStringList{ QStringLiteral("gigapan") } + m_photos
                                       + words("--rows 2") + options);
    QCOMPARE(stacksOf(json), m_photos.join(QLatin1Char(' ')));
    QCOMPARE(cellsOf(json), cells);
    QCOMPARE(valueAt(json, QStringLiteral("grid.mode")).toInt(-1), mode);
    QCOMPARE(valueAt(json, QStringLiteral("grid.rows")).toInt(), 2);
    QCOMPARE(valueAt(json, QStringLiteral("grid.columns")).toInt(), 3);
    QCOMPARE(valueAt(json, QStringLiteral("positionsKnown")), QJsonValue(false));
}

void TestCliHeads::gridAnglesComeFromLensAndOverlap_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<double>("yawStep");
    QTest::addColumn<double>("pitchStep");
    constexpr double kDegrees = 180.0 / M_PI;
    // A 3:2 frame is 36 mm x 24 mm.
    const auto across = [=](double focal) { return 2.0 * std::atan(18.0 / focal) * kDegrees; };
    const auto down = [=](double focal) { return 2.0 * std::atan(12.0 / focal) * kDegrees; };
    QTest::newRow("page's 40 percent, EXIF's 24 mm")
        << QStringList() << 0.6 * across(24.0) << 0.6 * down(24.0);
    QTest::newRow("overlap 25") << words("--overlap 25") << 0.75 * across(24.0)
                                << 0.75 * down(24.0);
    QTest::newRow("overlap 12.5") << words("--overlap 12.5") << 0.875 * across(24.0)
                                  << 0.875 * down(24.0);
    QTest::newRow("focal given") << words("--focal 50") << 0.6 * across(50.0) << 0.6 * down(50.0);
    QTest::newRow("full turn") << words("--wrap360") << 120.0 << 0.6 * down(24.0);
    QTest::newRow("fisheye") << words("--lens fisheye") << 0.6 * 36.0 / 24.0 * kDegrees
                             << 0.6 * 24.0 / 24.0 * kDegrees;
}

void TestCliHeads::gridAnglesComeFromLensAndOverlap()
{
    QFETCH(QStringList, options);
    QFETCH(double, yawStep);
    QFETCH(double, pitchStep);
    const QJsonObject json = described(QStringList{ QStringLiteral("gigapan") } + m_photos
                                       + words("--rows 2") + options);
    QCOMPARE(positionsOf(json).size(), 6);
    // Column by column: shot 0 is the upper left cell, shot 5 the lower right one.
    QVERIFY(std::abs(yawOf(json, 0) + yawStep) < 1e-6);
    QVERIFY(std::abs(yawOf(json, 5) - yawStep) < 1e-6);
    QVERIFY(std::abs(pitchOf(json, 0) - pitchStep / 2.0) < 1e-6);
    QVERIFY(std::abs(pitchOf(json, 5) + pitchStep / 2.0) < 1e-6);
}

void TestCliHeads::bracketsAndIgnoredPhotosOfAGrid()
{
    const QStringList photos = m_bench.photos(14, QStringLiteral("grid_"));
    const QJsonObject json = described(QStringList{ QStringLiteral("gigapan") } + photos
                                       + words("--rows 2 --bracket 3 --ignore 2"));
    QCOMPARE(stacksOf(json),
             QStringLiteral("grid_03.jpg,grid_04.jpg,grid_05.jpg grid_06.jpg,grid_07.jpg,"
                            "grid_08.jpg grid_09.jpg,grid_10.jpg,grid_11.jpg grid_12.jpg,"
                            "grid_13.jpg,grid_14.jpg"));
    QCOMPARE(valueAt(json, QStringLiteral("grid.bracketCount")).toInt(), 3);
    // Each of the four cells with each other one.
    QCOMPARE(json.value(QStringLiteral("links")).toArray().size(), 6);
}

void TestCliHeads::steepGridIsClampedAndSaid()
{
    // Six rows of 31.9 degrees reach 79.7 degrees up; without much overlap they pass 85.
    const CliBench::Run run
        = m_bench.run(QStringList{ QStringLiteral("describe"), QStringLiteral("gigapan") }
                      + m_photos + words("--rows 6 --overlap 5"));
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.err.contains(QLatin1String("overlap or rows do not fit this lens")),
             qPrintable(run.err));
    QCOMPARE(pitchOf(QJsonDocument::fromJson(run.out.toUtf8()).object(), 0), 85.0);
}

void TestCliHeads::portraitGridUsesUprightFrames()
{
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = "6";
    QStringList photos;
    for (int i = 0; i < 2; ++i) {
        photos += QStringLiteral("portrait%1.jpg").arg(i);
        TestPhotos::writeJpeg(m_bench.path(photos.last()), TestPhotos::quarters(QSize(60, 40)),
                              exif);
    }
    const QStringList line = QStringList{ QStringLiteral("gigapan") } + photos + words("--rows 1");
    const double narrow = 0.6 * 2.0 * std::atan(12.0 / 24.0) * 180.0 / M_PI;
    const double wide = 0.6 * 2.0 * std::atan(18.0 / 24.0) * 180.0 / M_PI;
    const QJsonObject turned = described(line);
    QVERIFY(std::abs(yawOf(turned, 1) - yawOf(turned, 0) - narrow) < 1e-6);
    const QJsonObject stored = described(line + words("--ignore-exif-rotation"));
    QVERIFY(std::abs(yawOf(stored, 1) - yawOf(stored, 0) - wide) < 1e-6);
}

void TestCliHeads::scriptGivesTheDirections()
{
    const QStringList line = words("clauss six.txt") + m_photos;
    const QJsonObject json = described(line);
    QCOMPARE(stacksOf(json), m_photos.join(QLatin1Char(' ')));
    const QVector<double> yaws{ 0.0, 30.0, 60.0, 60.0, 30.0, 0.0 };
    for (int i = 0; i < 6; ++i) {
        QVERIFY(std::abs(yawOf(json, i) - yaws[i]) < 1e-5);
        QVERIFY(std::abs(pitchOf(json, i) - (i < 3 ? -15.0 : 15.0)) < 1e-5);
    }
    const QJsonObject inverted = described(line + words("--invert-pitch"));
    QVERIFY(std::abs(pitchOf(inverted, 0) - 15.0) < 1e-5);
    QVERIFY(std::abs(yawOf(inverted, 1) - 30.0) < 1e-5);
    QCOMPARE(valueAt(json, QStringLiteral("source.record")), QJsonValue(QStringLiteral("six.txt")));
}

void TestCliHeads::decimalsOfAScriptAreCutWithAWarning()
{
    m_bench.file(QStringLiteral("decimals.txt"),
                 "op_h-angle=12.5\nop_v-angle=3.0\nop_shoot\nop_h-angle=42.75\nop_shoot\n");
    const CliBench::Run run
        = m_bench.run(words("describe clauss decimals.txt IMG_01.jpg IMG_02.jpg"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err,
             QStringLiteral("panohost: warning: decimals.txt: the importer reads whole degrees "
                            "only; the decimals of 2 angles are cut off\n"));
    const QJsonObject json = QJsonDocument::fromJson(run.out.toUtf8()).object();
    QVERIFY(std::abs(yawOf(json, 0) - 12.0) < 1e-5);
    QVERIFY(std::abs(yawOf(json, 1) - 42.0) < 1e-5);
    QCOMPARE(json.value(QStringLiteral("warnings")).toArray().size(), 1);
}

void TestCliHeads::harmlessScriptsAreRead_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("warning");
    const QByteArray good = "op_h-angle=20\nop_shoot\nop_h-angle=50\nop_shoot\n";
    const auto row = [](const char *name, const QByteArray &script, const char *warning = "") {
        QTest::newRow(name) << script << QString::fromLatin1(warning);
    };
    row("plain", good);
    row("no newline at the end", good.chopped(1));
    row("CR and LF", QByteArray(good).replace("\n", "\r\n"));
    row("byte order mark", "\xEF\xBB\xBF" + good);
    row("other commands", "op_wait=3\n# comment\n\n" + good + "op_end\n");
    row("NUL behind the last command", good + QByteArray(3, '\0'),
        "a NUL byte in line 5 ends the script");
    row("a long line", QByteArray(20'000'000, 'x') + '\n' + good);
}

void TestCliHeads::harmlessScriptsAreRead()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, warning);
    m_bench.file(QStringLiteral("harmless.txt"), script);
    const CliBench::Run run
        = m_bench.run(words("describe clauss harmless.txt IMG_01.jpg IMG_02.jpg"));
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(warning.isEmpty() ? run.err.isEmpty() : run.err.contains(warning),
             qPrintable(run.err));
    const QJsonObject json = QJsonDocument::fromJson(run.out.toUtf8()).object();
    QVERIFY(std::abs(yawOf(json, 0) - 20.0) < 1e-5);
    QVERIFY(std::abs(yawOf(json, 1) - 50.0) < 1e-5);
}

void TestCliHeads::focalLengthIsThePhotosMedian()
{
    QStringList photos;
    for (const char *focal : { "24", "28", "50", "0" }) {
        TestPhotos::Exif exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.FocalLengthIn35mmFilm"] = focal;
        if (qstrcmp(focal, "0") == 0) {
            exif = {};
        }
        photos += QStringLiteral("focal%1.jpg").arg(photos.size());
        TestPhotos::writeJpeg(m_bench.path(photos.last()), TestPhotos::quarters(QSize(60, 40)),
                              exif);
    }
    m_bench.file(QStringLiteral("four.txt"), "op_shoot\nop_shoot\nop_shoot\nop_shoot\n");
    const QString focal = QStringLiteral("lens.focal35mm");
    const QStringList clauss = words("clauss four.txt") + photos;
    const QJsonObject json = described(clauss);
    QCOMPARE(valueAt(json, focal), QJsonValue(28.0));
    const QString warnings = QString::fromUtf8(
        QJsonDocument(json.value(QStringLiteral("warnings")).toArray()).toJson());
    QVERIFY2(warnings.contains(QLatin1String("1 of the photos name no focal length")),
             qPrintable(warnings));
    QVERIFY2(warnings.contains(QLatin1String("focal lengths from 24 mm to 50 mm; using their "
                                             "median")),
             qPrintable(warnings));
    const QJsonObject given = described(clauss + words("--focal 35 --lens fisheye"));
    QCOMPARE(valueAt(given, focal), QJsonValue(35.0));
    QCOMPARE(valueAt(given, QStringLiteral("lens.model")), QJsonValue(QStringLiteral("fisheye")));
    QCOMPARE(given.value(QStringLiteral("warnings")).toArray().size(), 0);
    const CliBench::Run unknown = m_bench.run(words("describe gigapan focal3.jpg --rows 1"));
    QCOMPARE(unknown.exitCode, 3);
    QCOMPARE(unknown.err,
             QStringLiteral("panohost: error: focal length: not known from the photos' EXIF data; "
                            "give it with --focal MM (35 mm equivalent)\n"));
}

void TestCliHeads::medianExposureStandsFirstInEachStack_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("stacks");
    // Shot 1/400, 1/100, 1/25: the middle one changes places with the first.
    QTest::newRow("vrdrive2") << QStringLiteral("vrdrive2")
                              << QStringLiteral("b1.jpg,b0.jpg,b2.jpg b4.jpg,b3.jpg,b5.jpg");
    QTest::newRow("papywizard keeps the order")
        << QStringLiteral("papywizard")
        << QStringLiteral("b0.jpg,b1.jpg,b2.jpg b3.jpg,b4.jpg,b5.jpg");
}

void TestCliHeads::medianExposureStandsFirstInEachStack()
{
    QFETCH(QString, head);
    QFETCH(QString, stacks);
    const QJsonObject json
        = described(QStringList{ head, QStringLiteral("brackets.xml") } + m_brackets);
    QCOMPARE(stacksOf(json), stacks);
    QVERIFY(std::abs(yawOf(json, 1) - 30.0) < 1e-5);
}

void TestCliHeads::outputModeReachesTheProject_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("renderMode");
    QTest::addColumn<QByteArray>("output");
    const QByteArray fused
        = "#hugin_outputLDRBlended false\n#hugin_outputLDRExposureBlended true\n";
    const QByteArray hdr = "#hugin_outputLDRBlended false\n#hugin_outputHDRBlended true\n";
    QTest::newRow("default") << QStringList() << 2 << fused;
    QTest::newRow("ldr") << words("--output-mode ldr") << 2 << fused;
    QTest::newRow("hdr") << words("--output-mode hdr") << 3 << hdr;
}

void TestCliHeads::outputModeReachesTheProject()
{
    QFETCH(QStringList, options);
    QFETCH(int, renderMode);
    QFETCH(QByteArray, output);
    const CliBench::Run run = m_bench.run(words("import vrdrive2 brackets.xml") + m_brackets
                                          + words("-o output.pto --json output.json") + options);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    const QByteArray project = m_bench.content(QStringLiteral("output.pto"));
    QVERIFY2(project.contains(output), project.constData());
    // The median's exposure: log2(64 * 100) at f/8, 1/100 s, ISO 100.
    QVERIFY2(project.contains(" E12.643856 R0 "), project.constData());
    const QJsonObject json
        = QJsonDocument::fromJson(m_bench.content(QStringLiteral("output.json"))).object();
    QCOMPARE(valueAt(json, QStringLiteral("options.renderMode")).toInt(), renderMode);
}

void TestCliHeads::optionsReachTheDescription_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    const auto row
        = [](const char *name, const QStringList &line, const char *key, const QJsonValue &value) {
              QTest::newRow(name) << line << QString::fromLatin1(key) << value;
          };
    const QStringList vrdrive2 = words("vrdrive2 brackets.xml") + m_brackets;
    const QStringList clauss = words("clauss six.txt") + m_photos;
    const QStringList gigapan = words("gigapan") + m_photos + words("--rows 3");
    row("VR Drive 2 cleans by default", vrdrive2, "options.cleanWrongLinks", true);
    row("VR Drive 2 does not", vrdrive2 + words("--no-clean-links"), "options.cleanWrongLinks",
        false);
    row("VR Drive 2 all levels", vrdrive2 + words("--detect all"), "options.stackLinking",
        QStringLiteral("detect"));
    row("VR Drive 2 no location", vrdrive2 + words("--recorded-location no"),
        "options.useRecordedLocation", false);
    row("Clauss is guided by default", clauss, "options.useRecordedLocation", true);
    row("Clauss free", clauss + words("--recorded-location no"), "options.useRecordedLocation",
        false);
    row("Clauss not cleaned by default", clauss, "options.cleanWrongLinks", false);
    row("Clauss cleaned", clauss + words("--clean-links"), "options.cleanWrongLinks", true);
    row("Clauss not optimised", clauss + words("--skip-optimization"), "options.skipOptimization",
        true);
    row("Clauss not automatic", clauss + words("--no-auto-detection"), "options.autoDetection",
        false);
    row("grid overlap by default", gigapan, "options.overlapPercent", 40.0);
    row("grid overlap", gigapan + words("--overlap 15"), "options.overlapPercent", 15.0);
    row("grid wraps", gigapan + words("--wrap360"), "grid.wrap360", true);
    row("grid does not wrap", gigapan, "grid.wrap360", false);
    row("grid all levels", gigapan + words("--detect all"), "options.levelLinking",
        QStringLiteral("all"));
    row("grid stacks detected", gigapan + words("--stack detect"), "options.stackLinking",
        QStringLiteral("detect"));
    row("grid not automatic", gigapan + words("--no-auto-detection"), "options.autoDetection",
        false);
    row("grid not optimised", gigapan + words("--skip-optimization"), "options.skipOptimization",
        true);
    row("grid cleaned", gigapan + words("--clean-links"), "options.cleanWrongLinks", true);
}

void TestCliHeads::optionsReachTheDescription()
{
    QFETCH(QStringList, line);
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QCOMPARE(valueAt(described(line), key), value);
}

void TestCliHeads::previewShowsTheLayout_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QSize>("size");
    // Cells of half the thumbnail, 30 x 20, with 4 pixels between and around them.
    QTest::newRow("gigapan") << words("gigapan") + m_photos + words("--rows 2")
                             << QSize(3 * 34 + 4, 2 * 24 + 4);
    QTest::newRow("gigapan, other rows")
        << words("gigapan") + m_photos + words("--rows 3 --mode serpentine")
        << QSize(2 * 34 + 4, 3 * 24 + 4);
    // 96 pixels for the smallest step, 30 degrees; a border of 100.
    QTest::newRow("clauss") << words("clauss six.txt") + m_photos << QSize(292, 196);
    QTest::newRow("vrdrive2") << words("vrdrive2 brackets.xml") + m_brackets << QSize(196, 100);
}

void TestCliHeads::previewShowsTheLayout()
{
    QFETCH(QStringList, line);
    QFETCH(QSize, size);
    const CliBench::Run run = m_bench.run(words("preview") + line + words("-o layout.png"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(QImage(m_bench.path(QStringLiteral("layout.png"))).size(), size);
}

void TestCliHeads::checkReports_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QString>("start");
    QTest::newRow("clauss")
        << words("clauss six.txt") + m_photos
        << QStringLiteral("record   six.txt: 6 shots, bracket 1, focal not known, lens not known\n"
                          "photos   6 given, 6 readable, focal 24 mm, lens not known\n");
    QTest::newRow("vrdrive2")
        << words("vrdrive2 brackets.xml") + m_brackets
        << QStringLiteral("record   brackets.xml: 6 shots, bracket 3, focal 24 mm, lens standard\n"
                          "photos   6 given, 6 readable, focal 24 mm, lens not known\n");
    QTest::newRow("gigapan") << words("gigapan") + m_photos + words("--rows 3")
                             << QStringLiteral(
                                    "grid     3 rows, 2 columns, bracket 1, 0 ignored\n"
                                    "photos   6 given, 6 readable, focal 24 mm, lens not known\n");
}

void TestCliHeads::checkReports()
{
    QFETCH(QStringList, line);
    QFETCH(QString, start);
    const CliBench::Run run = m_bench.run(words("check") + line);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(run.out.startsWith(start), qPrintable(run.out));
    QVERIFY(run.out.endsWith(QLatin1String("result   can be imported\n")));

    const CliBench::Run json = m_bench.run(words("check --json") + line);
    const QJsonObject object = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QVERIFY(object.value(QStringLiteral("importable")).toBool());
    QString same;
    for (const QJsonValue &row : object.value(QStringLiteral("findings")).toArray()) {
        same += QStringLiteral("%1 %2\n")
                    .arg(row[QStringLiteral("topic")].toString(), -8)
                    .arg(row[QStringLiteral("text")].toString());
    }
    QCOMPARE(same, run.out);
}

void TestCliHeads::projectIsAcceptedByCheckpto_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<int>("photos");
    QTest::newRow("gigapan") << words("gigapan") + m_photos + words("--rows 2") << 6;
    QTest::newRow("gigapan, full turn, serpentine")
        << words("gigapan") + m_photos + words("--rows 2 --wrap360 --mode serpentine") << 6;
    QTest::newRow("gigapan, brackets")
        << words("gigapan") + m_brackets + words("--rows 1 --bracket 3") << 6;
    QTest::newRow("gigapan, fisheye")
        << words("gigapan") + m_photos + words("--rows 1 --lens fisheye --focal 12") << 6;
    QTest::newRow("clauss") << words("clauss six.txt") + m_photos << 6;
    QTest::newRow("vrdrive2, fused") << words("vrdrive2 brackets.xml") + m_brackets << 6;
    QTest::newRow("vrdrive2, HDR, control points in stacks") << words("vrdrive2 brackets.xml")
            + m_brackets + words("--output-mode hdr --detect all --skip-optimization")
                                                             << 6;
}

void TestCliHeads::projectIsAcceptedByCheckpto()
{
    const QString checkpto = QStandardPaths::findExecutable(QStringLiteral("checkpto"));
    if (checkpto.isEmpty()) {
        QSKIP("hugin-tools are not installed");
    }
    QFETCH(QStringList, line);
    QFETCH(int, photos);
    const CliBench::Run run = m_bench.run(words("import") + line + words("-o tools.pto"));
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QProcess process;
    process.setWorkingDirectory(m_bench.path(QString()));
    process.start(checkpto, { QStringLiteral("tools.pto") });
    QVERIFY(process.waitForFinished());
    const QString out = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(out.contains(QStringLiteral("contains\n%1 images").arg(photos)), qPrintable(out));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
}

TEST_CLASS(TestCliHeads, QCoreApplication)
#include "tst_cli_heads.moc"
