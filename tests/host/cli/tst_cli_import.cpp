// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>
#include <csignal>

class TestCliImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void projectAndDescriptionAreWritten();
    void describeRoundTripsByteForByte();
    void optionsReachTheDescription_data();
    void optionsReachTheDescription();
    void angleOptionsTurnThePositions_data();
    void angleOptionsTurnThePositions();
    void focalLengthComesFromTheWantedPlace_data();
    void focalLengthComesFromTheWantedPlace();
    void unknownFocalLengthIsRefused();
    void photosWithoutFocalLengthDoNotLowerTheMean();
    void fisheyeOfTheRecordIsTakenWhenPhotosDoNotSay();
    void bracketsBecomeStacks();
    void orderDecidesWhichPhotoBelongsToWhichShot_data();
    void orderDecidesWhichPhotoBelongsToWhichShot();
    void orderByTimeNeedsTimes();
    void oddNamesArriveUnchanged_data();
    void oddNamesArriveUnchanged();
    void quotationMarkCannotStandInAProject();
    void userSettingsStayUntouched();
    void interruptLeavesNothingBehind_data();
    void interruptLeavesNothingBehind();
    void checkptoAcceptsTheProject();

private:
    [[nodiscard]] CliBench::Run import(const QString &record, const QStringList &photos,
                                       const QStringList &options) const;
    [[nodiscard]] QJsonObject description(const QString &record, const QStringList &photos,
                                          const QStringList &options = {}) const;
    [[nodiscard]] static QStringList firstPhotos(const QJsonObject &description);

    CliBench m_bench;
    QStringList m_photos;
    QString m_record;
};

void TestCliImport::initTestCase()
{
    m_photos = m_bench.photos(6);
    // Two rows of three: yaw 0, 30, 60 at pitch 0 and 40.
    QVector<CliBench::Shot> shots;
    for (const double pitch : { 0.0, 40.0 }) {
        for (const double yaw : { 0.0, 30.0, 60.0 }) {
            shots += { yaw, pitch };
        }
    }
    m_record = m_bench.record(QStringLiteral("six.xml"), shots);
}

CliBench::Run TestCliImport::import(const QString &record, const QStringList &photos,
                                    const QStringList &options) const
{
    const QStringList words{ QStringLiteral("import"), QStringLiteral("papywizard"), record };
    return m_bench.run(words + photos + options);
}

QJsonObject TestCliImport::description(const QString &record, const QStringList &photos,
                                       const QStringList &options) const
{
    const CliBench::Run run = import(
        record, photos, QStringList{ QStringLiteral("--json"), QStringLiteral("-") } + options);
    if (run.exitCode != 0) {
        qWarning("%s", qPrintable(run.err));
        return {};
    }
    return QJsonDocument::fromJson(run.out.toUtf8()).object();
}

QStringList TestCliImport::firstPhotos(const QJsonObject &description)
{
    QStringList files;
    for (const QJsonValue &position : description.value(QStringLiteral("positions")).toArray()) {
        const QJsonArray photos = position.toObject().value(QStringLiteral("photos")).toArray();
        files += photos.at(0).toObject().value(QStringLiteral("file")).toString();
    }
    return files;
}

void TestCliImport::projectAndDescriptionAreWritten()
{
    const CliBench::Run run = import(m_record, m_photos,
                                     { QStringLiteral("-o"), QStringLiteral("six.pto"),
                                       QStringLiteral("--json"), QStringLiteral("six.json") });
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out, QString());
    // Half the diagonal view of 24 mm is 42.03 degrees; over 0.65 that reaches 64.7 degrees. Within
    // reach are all pairs of a row (30 and 60 degrees of yaw): 3 + 3; those above each other: 3;
    // and the diagonals of 30 degrees (48.4): 4; not those of 60 degrees (67.5).
    QCOMPARE(run.err, QStringLiteral("panohost: six.pto: 6 positions, 6 photos, 13 links\n"));
    QVERIFY(m_bench.content(QStringLiteral("six.pto")).contains(" n\"IMG_06.jpg\""));
    const QJsonObject json
        = QJsonDocument::fromJson(m_bench.content(QStringLiteral("six.json"))).object();
    QCOMPARE(json.value(QStringLiteral("schema")).toInt(), 1);
    QCOMPARE(firstPhotos(json), m_photos);
    const QJsonObject source = json.value(QStringLiteral("source")).toObject();
    QCOMPARE(source.value(QStringLiteral("record")).toString(), m_record);
    QCOMPARE(source.value(QStringLiteral("plugin")).toString(),
             QStringLiteral("7A21C94E-5B20-2020-2020-483181480AB7"));
    QCOMPARE(json.value(QStringLiteral("pto")).toObject().value(QStringLiteral("file")).toString(),
             QStringLiteral("six.pto"));
}

void TestCliImport::describeRoundTripsByteForByte()
{
    QCOMPARE(import(m_record, m_photos, { QStringLiteral("--json"), QStringLiteral("round.json") })
                 .exitCode,
             0);
    const CliBench::Run run
        = m_bench.run({ QStringLiteral("describe"), QStringLiteral("round.json") });
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.toUtf8(), m_bench.content(QStringLiteral("round.json")));
}

void TestCliImport::optionsReachTheDescription_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const char *name, const QStringList &options, const char *key,
                        const QJsonValue &value) {
        QTest::newRow(name) << options << QString::fromLatin1(key) << value;
    };
    const auto words = [](const char *line) {
        return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    row("automatic by default", {}, "autoDetection", true);
    row("not automatic", words("--no-auto-detection"), "autoDetection", false);
    row("automatic", words("--auto-detection"), "autoDetection", true);
    row("hard links by default", {}, "stackLinking", QStringLiteral("hard"));
    row("hard links", words("--stack hard"), "stackLinking", QStringLiteral("hard"));
    row("stack detected", words("--stack detect"), "stackLinking", QStringLiteral("detect"));
    row("reference level by default", {}, "levelLinking", QStringLiteral("reference"));
    row("reference level with detected stacks", words("--detect reference --stack detect"),
        "levelLinking", QStringLiteral("reference"));
    row("all levels", words("--detect all"), "levelLinking", QStringLiteral("all"));
    row("all levels detect stacks", words("--detect all"), "stackLinking",
        QStringLiteral("detect"));
    row("location by default", {}, "useRecordedLocation", true);
    row("location", words("--recorded-location yes"), "useRecordedLocation", true);
    row("no location", words("--recorded-location no"), "useRecordedLocation", false);
    row("optimised by default", {}, "skipOptimization", false);
    row("not optimised", words("--skip-optimization"), "skipOptimization", true);
    row("not cleaned by default", {}, "cleanWrongLinks", false);
    row("cleaned", words("--clean-links"), "cleanWrongLinks", true);
}

void TestCliImport::optionsReachTheDescription()
{
    QFETCH(QStringList, options);
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    const QJsonObject json = description(m_record, m_photos, options);
    QCOMPARE(json.value(QStringLiteral("options")).toObject().value(key), value);
}

void TestCliImport::angleOptionsTurnThePositions_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("roll");
    const QString rotate = QStringLiteral("--rotate");
    QTest::newRow("as recorded") << QStringList() << 40.0 << 0.0;
    QTest::newRow("upside down head")
        << QStringList{ QStringLiteral("--invert-pitch") } << -40.0 << 0.0;
    QTest::newRow("clockwise") << QStringList{ rotate, QStringLiteral("90") } << 40.0 << 90.0;
    QTest::newRow("to the left") << QStringList{ rotate, QStringLiteral("-90") } << 40.0 << -90.0;
    QTest::newRow("upside down camera")
        << QStringList{ rotate, QStringLiteral("180") } << 40.0 << 180.0;
}

void TestCliImport::angleOptionsTurnThePositions()
{
    QFETCH(QStringList, options);
    QFETCH(double, pitch);
    QFETCH(double, roll);
    const QJsonObject json = description(m_record, m_photos, options);
    const QJsonObject last = json.value(QStringLiteral("positions")).toArray().at(5).toObject();
    // Angles travel as radians in 32 bits.
    QVERIFY(std::abs(last.value(QStringLiteral("yawDeg")).toDouble() - 60.0) < 1e-5);
    QVERIFY(std::abs(last.value(QStringLiteral("pitchDeg")).toDouble() - pitch) < 1e-5);
    QVERIFY(std::abs(last.value(QStringLiteral("rollDeg")).toDouble() - roll) < 1e-5);
}

void TestCliImport::focalLengthComesFromTheWantedPlace_data()
{
    QTest::addColumn<QByteArray>("recorded");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<double>("focal");
    QTest::addColumn<QString>("warning");
    const QString option = QStringLiteral("--focal");
    const QString differs = QStringLiteral(
        "panohost: warning: focal length 24 mm (EXIF) against 27.2 mm (record); using EXIF; choose "
        "with --focal");
    // The photos say 24 mm.
    QTest::newRow("photos by default") << QByteArray("25.0") << QStringList() << 24.0 << QString();
    QTest::newRow("more than a tenth apart")
        << QByteArray("27.2") << QStringList() << 24.0 << differs;
    QTest::newRow("photos wanted")
        << QByteArray("27.2") << QStringList{ option, QStringLiteral("exif") } << 24.0 << QString();
    QTest::newRow("record wanted")
        << QByteArray("27.2") << QStringList{ option, QStringLiteral("xml") } << 27.2 << QString();
    QTest::newRow("given") << QByteArray("27.2") << QStringList{ option, QStringLiteral("35.5") }
                           << 35.5 << QString();
}

void TestCliImport::focalLengthComesFromTheWantedPlace()
{
    QFETCH(QByteArray, recorded);
    QFETCH(QStringList, options);
    QFETCH(double, focal);
    QFETCH(QString, warning);
    m_bench.record(QStringLiteral("focal.xml"), CliBench::row(6), {},
                   "<lens type=\"rectilinear\"><focal>" + recorded + "</focal></lens>");
    const CliBench::Run run
        = import(QStringLiteral("focal.xml"), m_photos,
                 QStringList{ QStringLiteral("--json"), QStringLiteral("-"), QStringLiteral("-q") }
                     + options);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err.trimmed(), warning);
    const QJsonObject lens = QJsonDocument::fromJson(run.out.toUtf8())
                                 .object()
                                 .value(QStringLiteral("lens"))
                                 .toObject();
    // The page keeps three decimals, the description 32 bits.
    QVERIFY(std::abs(lens.value(QStringLiteral("focal35mm")).toDouble() - focal) < 1e-5);
    QCOMPARE(lens.value(QStringLiteral("model")).toString(), QStringLiteral("standard"));
}

void TestCliImport::unknownFocalLengthIsRefused()
{
    const QString photo = QStringLiteral("plain.jpg");
    TestPhotos::writeJpeg(m_bench.path(photo), TestPhotos::quarters(QSize(60, 40)), {});
    const QString record = m_bench.record(QStringLiteral("nolens.xml"), CliBench::row(1), {}, {});
    const CliBench::Run run
        = import(record, { photo }, { QStringLiteral("-o"), QStringLiteral("nolens.pto") });
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.err,
             QStringLiteral("panohost: error: focal length: not known from the photos' "
                            "EXIF data or the record; give it with --focal MM (35 mm "
                            "equivalent)\n"));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("nolens.pto"))));
    const QJsonObject json
        = description(record, { photo }, { QStringLiteral("--focal"), QStringLiteral("50") });
    QCOMPARE(json.value(QStringLiteral("lens")).toObject().value(QStringLiteral("focal35mm")),
             QJsonValue(50.0));
}

void TestCliImport::photosWithoutFocalLengthDoNotLowerTheMean()
{
    QStringList photos = m_photos;
    photos[3] = QStringLiteral("IMG_035.jpg");
    TestPhotos::writeJpeg(m_bench.path(photos[3]), TestPhotos::quarters(QSize(60, 40)), {});
    const QJsonObject json = description(m_record, photos);
    QCOMPARE(json.value(QStringLiteral("lens")).toObject().value(QStringLiteral("focal35mm")),
             QJsonValue(24.0));
    const QJsonArray warnings = json.value(QStringLiteral("warnings")).toArray();
    QVERIFY(warnings.at(0).toString().startsWith(QLatin1String("1 of the photos name no focal")));
}

void TestCliImport::fisheyeOfTheRecordIsTakenWhenPhotosDoNotSay()
{
    m_bench.record(QStringLiteral("fish.xml"), CliBench::row(6), {},
                   R"(<lens type="FishEye"><focal>12.0</focal></lens>)");
    const QString record = QStringLiteral("fish.xml");
    const QString option = QStringLiteral("--lens");
    const auto model = [&](const QStringList &options) {
        const QJsonObject json = description(record, m_photos, options);
        return json.value(QStringLiteral("lens")).toObject().value(QStringLiteral("model"));
    };
    QCOMPARE(model({}), QJsonValue(QStringLiteral("fisheye")));
    QCOMPARE(model({ option, QStringLiteral("xml") }), QJsonValue(QStringLiteral("fisheye")));
    QCOMPARE(model({ option, QStringLiteral("standard") }), QJsonValue(QStringLiteral("standard")));
}

void TestCliImport::bracketsBecomeStacks()
{
    QVector<CliBench::Shot> shots;
    for (const double yaw : { 0.0, 30.0 }) {
        shots += QVector<CliBench::Shot>(3, CliBench::Shot{ yaw, 0.0 });
    }
    const QString record
        = m_bench.record(QStringLiteral("stacks.xml"), shots, R"(<bracketing nbPicts="3"/>)");
    const QJsonObject json = description(record, m_photos);
    const QJsonArray positions = json.value(QStringLiteral("positions")).toArray();
    QCOMPARE(positions.size(), 2);
    QCOMPARE(positions.at(1).toObject().value(QStringLiteral("photos")).toArray().size(), 3);
    QCOMPARE(firstPhotos(json), (QStringList{ m_photos.at(0), m_photos.at(3) }));
    QVERIFY(std::abs(positions.at(1).toObject().value(QStringLiteral("yawDeg")).toDouble() - 30.0)
            < 1e-5);
}

void TestCliImport::orderDecidesWhichPhotoBelongsToWhichShot_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("expected");
    const QString option = QStringLiteral("--order");
    const QString a = QStringLiteral("a.jpg");
    const QString b = QStringLiteral("B.jpg");
    const QString ten = QStringLiteral("x10.jpg");
    const QString nine = QStringLiteral("x9.jpg");
    // Given as a, x9, B, x10; taken in the order B, x9, a, x10.
    // The record tells no times, so nobody knows whether names or times are right.
    QTest::newRow("what they say themselves") << QStringList() << QStringList{ b, a, ten, nine };
    QTest::newRow("strictly by name")
        << QStringList{ QStringLiteral("--fit"), QStringLiteral("strict") }
        << QStringList{ b, a, ten, nine };
    QTest::newRow("by name, asked for")
        << QStringList{ option, QStringLiteral("name") } << QStringList{ b, a, ten, nine };
    QTest::newRow("as given") << QStringList{ option, QStringLiteral("given") }
                              << QStringList{ a, nine, b, ten };
    QTest::newRow("by time") << QStringList{ option, QStringLiteral("time") }
                             << QStringList{ b, nine, a, ten };
}

void TestCliImport::orderDecidesWhichPhotoBelongsToWhichShot()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, expected);
    const QStringList photos{ QStringLiteral("a.jpg"), QStringLiteral("x9.jpg"),
                              QStringLiteral("B.jpg"), QStringLiteral("x10.jpg") };
    const QByteArrayList seconds{ "30", "20", "10", "40" };
    for (int i = 0; i < photos.size(); ++i) {
        TestPhotos::Exif exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.DateTimeOriginal"] = "2024:05:01 10:00:" + seconds.at(i);
        TestPhotos::writeJpeg(m_bench.path(photos.at(i)), TestPhotos::quarters(QSize(60, 40)),
                              exif);
    }
    const QString record = m_bench.record(QStringLiteral("four.xml"), CliBench::row(4));
    QCOMPARE(firstPhotos(description(record, photos, options)), expected);
    QCOMPARE(m_bench.leftovers(), QStringList());
}

void TestCliImport::orderByTimeNeedsTimes()
{
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif.remove("Exif.Photo.DateTimeOriginal");
    TestPhotos::writeJpeg(m_bench.path(QStringLiteral("timeless.jpg")),
                          TestPhotos::quarters(QSize(60, 40)), exif);
    const QString record = m_bench.record(QStringLiteral("one.xml"), CliBench::row(1));
    const CliBench::Run run = import(record, { QStringLiteral("timeless.jpg") },
                                     { QStringLiteral("--order"), QStringLiteral("time"),
                                       QStringLiteral("--json"), QStringLiteral("-") });
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.err,
             QStringLiteral("panohost: error: timeless.jpg: has no capture time to order "
                            "by; use --order name or --order given\n"));
}

void TestCliImport::oddNamesArriveUnchanged_data()
{
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const char *photo) {
        QTest::newRow(name) << QString::fromUtf8(photo);
    };
    row("blanks", " two  blanks .jpg");
    row("double quotes", "the \"best\" one.jpg");
    row("new line", "two\nlines.jpg");
    row("backslash", "back\\slash.jpg");
    row("dollar", "$HOME.jpg");
    row("tilde", "~root.jpg");
    row("HTML", "<b>bold&amp;.jpg");
    row("percent and hash", "a#b?c%41.jpg");
    row("shell", "$(id);`id`.jpg");
    row("umlaut and snowman", "\xc3\xa4\xe2\x98\x83.jpg");
    row("no ending", "noending");
    row("colon", "http:x.jpg");
}

void TestCliImport::oddNamesArriveUnchanged()
{
    QFETCH(QString, name);
    TestPhotos::writeOrdinary(m_bench.path(name), QSize(60, 40));
    const QString record = m_bench.record(QStringLiteral("one.xml"), CliBench::row(1));
    QCOMPARE(firstPhotos(description(record, { name })), QStringList(name));
    QCOMPARE(m_bench.leftovers(), QStringList());
}

void TestCliImport::quotationMarkCannotStandInAProject()
{
    const QString name = QStringLiteral("a\"b.jpg");
    TestPhotos::writeOrdinary(m_bench.path(name), QSize(60, 40));
    const QString record = m_bench.record(QStringLiteral("one.xml"), CliBench::row(1));
    const CliBench::Run run
        = import(record, { name }, { QStringLiteral("-o"), QStringLiteral("quote.pto") });
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.startsWith(QLatin1String("panohost: error: ")), qPrintable(run.err));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("quote.pto"))));
}

void TestCliImport::userSettingsStayUntouched()
{
    QTemporaryDir home;
    const QProcessEnvironment before = m_bench.environment();
    m_bench.environment().insert(QStringLiteral("HOME"), home.path());
    QCOMPARE(import(m_record, m_photos, { QStringLiteral("--json"), QStringLiteral("-") }).exitCode,
             0);
    m_bench.environment() = before;
    const QDir folder(home.path());
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void TestCliImport::interruptLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("order");
    QTest::addColumn<QByteArray>("progress");
    QTest::newRow("import, reading photos")
        << QStringLiteral("import") << QStringLiteral("many.pto") << QStringLiteral("given")
        << QByteArray("[ 20/600] reading");
    QTest::newRow("import, ordering photos")
        << QStringLiteral("import") << QStringLiteral("many.pto") << QStringLiteral("time")
        << QByteArray("[ 20/600] capture time");
    QTest::newRow("preview, reading photos")
        << QStringLiteral("preview") << QStringLiteral("many.png") << QStringLiteral("given")
        << QByteArray("[ 20/600] reading");
}

void TestCliImport::interruptLeavesNothingBehind()
{
    QFETCH(QString, command);
    QFETCH(QString, result);
    QFETCH(QString, order);
    QFETCH(QByteArray, progress);
    // Enough photos for the signal to arrive while they are read.
    constexpr int kCount = 600;
    const QString big = m_bench.path(QStringLiteral("big.jpg"));
    TestPhotos::writeOrdinary(big, QSize(1500, 1000));
    QStringList photos;
    for (int i = 0; i < kCount; ++i) {
        photos += QStringLiteral("big%1.jpg").arg(i, 3, 10, QLatin1Char('0'));
        const QString link = m_bench.path(photos.last());
        QVERIFY(QFile::exists(link) || QFile::link(big, link));
    }
    const QString record = m_bench.record(QStringLiteral("many.xml"), CliBench::row(kCount));
    QProcess process;
    process.setWorkingDirectory(m_bench.path(QString()));
    process.setProcessEnvironment(m_bench.environment());
    process.start(QStringLiteral(PANOHOST_TEST_BINARY),
                  QStringList{ command, QStringLiteral("papywizard"), record } + photos
                      + QStringList{ QStringLiteral("-o"), result, QStringLiteral("--progress"),
                                     QStringLiteral("plain"), QStringLiteral("--order"), order });
    process.setReadChannel(QProcess::StandardError);
    QVERIFY(process.waitForStarted());
    QByteArray err;
    while (!err.contains(progress)) {
        QVERIFY2(process.waitForReadyRead(), err.constData());
        err += process.readAllStandardError();
    }
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished());
    err += process.readAllStandardError();
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == 130, err.constData());
    QVERIFY2(
        err.endsWith("panohost: stopped; your files are as they were, and no unfinished result "
                     "is left\n"),
        err.constData());
    QVERIFY(!err.contains("error"));
    QVERIFY(!QFile::exists(m_bench.path(result)));
    QCOMPARE(m_bench.leftovers(), QStringList());
}

void TestCliImport::checkptoAcceptsTheProject()
{
    const QString checkpto = QStandardPaths::findExecutable(QStringLiteral("checkpto"));
    if (checkpto.isEmpty()) {
        QSKIP("hugin-tools are not installed");
    }
    QCOMPARE(
        import(m_record, m_photos, { QStringLiteral("-o"), QStringLiteral("tools.pto") }).exitCode,
        0);
    QProcess process;
    process.setWorkingDirectory(m_bench.path(QString()));
    process.start(checkpto, { QStringLiteral("tools.pto") });
    QVERIFY(process.waitForFinished());
    const QString out = QString::fromUtf8(process.readAllStandardOutput());
    // Without control points every photo is a group of its own: the answer is their number.
    QVERIFY2(out.contains(QLatin1String("contains\n6 images")), qPrintable(out));
    QCOMPARE(process.exitCode(), 6);
}

TEST_CLASS(TestCliImport, QCoreApplication)
#include "tst_cli_import.moc"
