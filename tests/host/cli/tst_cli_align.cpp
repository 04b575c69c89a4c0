// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panoramajson.h"
#include "host/model/ptofile.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/host/cli/clibench.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace PanoHost;

/** The command align, and import --align. */
class TestCliAlign : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void descriptionBecomesAnAlignedProject();
    void projectBecomesAnAlignedProject();
    void reportIsWrittenAsJson();
    void importAlignsInOneGo();
    void inputStaysAsItWas();
    void mistakesAreNamed_data();
    void mistakesAreNamed();
    void nothingIsWrittenWhenNoPhotoCanBeRead();
    void interruptedRunsWriteNothing();

private:
    CliBench m_bench;
    QStringList m_photos;
};

void TestCliAlign::initTestCase()
{
    const TestShoots::TestShoot shoot = TestShoots::tiny();
    auto panorama = TestShoots::photographed(shoot, m_bench.path(QStringLiteral("photos")));
    QVERIFY(panorama.ok());
    panorama.value().description.autoDetection = true;
    for (const Position &position : panorama.value().positions) {
        m_photos.append(position.photos.first().path);
    }
    QVERIFY(writePanoramaJson(panorama.value(), m_bench.path(QStringLiteral("shoot.json"))).ok());
    QVector<CliBench::Shot> shots;
    for (const Pose &pose : TestShoots::recordedAngles(shoot)) {
        shots.append({ pose.yawDegrees, pose.pitchDegrees });
    }
    m_bench.record(QStringLiteral("record.xml"), shots);
}

void TestCliAlign::descriptionBecomesAnAlignedProject()
{
    const auto run = m_bench.run({ QStringLiteral("align"), QStringLiteral("shoot.json") });
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.err.contains(QStringLiteral("6 of 6 photos tied")), qPrintable(run.err));
    QVERIFY(run.err.endsWith(QStringLiteral("written: shoot_aligned.pto\n")));
    QVERIFY(run.out.isEmpty());
    const auto project = PtoFile::read(m_bench.path(QStringLiteral("shoot_aligned.pto")));
    QVERIFY(project.ok());
    QVERIFY(project.value().points().size() > 50);
    QCOMPARE(project.value().images().at(2).path, m_photos.at(2));
}

void TestCliAlign::projectBecomesAnAlignedProject()
{
    QCOMPARE(m_bench.run({ QStringLiteral("align"), QStringLiteral("shoot.json") }).exitCode, 0);
    const auto run
        = m_bench.run({ QStringLiteral("align"), QStringLiteral("shoot_aligned.pto"),
                        QStringLiteral("-o"), QStringLiteral("again.pto"), QStringLiteral("-q") });
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.err.isEmpty());
    QVERIFY(PtoFile::read(m_bench.path(QStringLiteral("again.pto"))).ok());
}

void TestCliAlign::reportIsWrittenAsJson()
{
    const auto run
        = m_bench.run({ QStringLiteral("align"), QStringLiteral("shoot.json"), QStringLiteral("-q"),
                        QStringLiteral("--json"), QStringLiteral("-") });
    QCOMPARE(run.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(run.out.toUtf8()).object();
    QCOMPARE(report[QLatin1String("placed")].toBool(), true);
    const QJsonArray photos = report[QLatin1String("photos")].toArray();
    QCOMPARE(photos.size(), 6);
    QCOMPARE(photos[0].toObject()[QLatin1String("file")].toString(),
             QDir(m_bench.path({})).relativeFilePath(m_photos.at(0)));
}

void TestCliAlign::importAlignsInOneGo()
{
    const auto run
        = m_bench.run(QStringList{ QStringLiteral("import"), QStringLiteral("papywizard"),
                                   QStringLiteral("record.xml") }
                      + m_photos
                      + QStringList{ QStringLiteral("--align"), QStringLiteral("-o"),
                                     QStringLiteral("onego.pto") });
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(run.err.contains(QStringLiteral("6 of 6 photos tied")));
    const auto project = PtoFile::read(m_bench.path(QStringLiteral("onego.pto")));
    QVERIFY(project.ok() && project.value().hasRecord());
    const auto none = m_bench.run(
        QStringList{ QStringLiteral("import"), QStringLiteral("papywizard"),
                     QStringLiteral("record.xml") }
        + m_photos
        + QStringList{ QStringLiteral("--align"), QStringLiteral("--json"), QStringLiteral("-") });
    QCOMPARE(none.exitCode, 2);
    QVERIFY(none.err.contains(QStringLiteral("add -o NAME.pto")));
}

void TestCliAlign::inputStaysAsItWas()
{
    const QByteArray before = m_bench.content(QStringLiteral("shoot.json"));
    QCOMPARE(m_bench.run({ QStringLiteral("align"), QStringLiteral("shoot.json") }).exitCode, 0);
    QCOMPARE(m_bench.content(QStringLiteral("shoot.json")), before);
    const auto onto = m_bench.run({ QStringLiteral("align"), QStringLiteral("shoot_aligned.pto"),
                                    QStringLiteral("-o"), QStringLiteral("shoot_aligned.pto") });
    QCOMPARE(onto.exitCode, 3);
    QVERIFY(m_bench.leftovers().isEmpty());
}

void TestCliAlign::mistakesAreNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *line, int exitCode, const char *message) {
        QTest::newRow(name) << QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << exitCode << QString::fromLatin1(message);
    };
    row("no file", "", 2, "align takes one file, 0 given");
    row("two files", "a.json b.json", 2, "align takes one file, 2 given");
    row("no such file", "gone.json", 3, "gone.json");
    row("neither description nor project", "record.xml", 3, "record.xml");
    row("unknown lens parameter", "shoot.json --free f,z", 2, "'z' is none of f, a, b, c");
    row("no number", "shoot.json --features many", 2, "--features many: not a number");
    row("too few", "shoot.json --work-size 10", 2, "--work-size 10: not a number from 200");
    row("both ways", "shoot.json --level --no-level", 2, "exclude each other");
    row("one name for two results", "shoot.json -o x.pto --json x.pto", 2, "name the same file");
}

void TestCliAlign::mistakesAreNamed()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const auto run = m_bench.run(QStringList(QStringLiteral("align")) + arguments);
    QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
}

void TestCliAlign::nothingIsWrittenWhenNoPhotoCanBeRead()
{
    const QByteArray json = m_bench.content(QStringLiteral("shoot.json"));
    m_bench.file(QStringLiteral("moved.json"), QByteArray(json).replace("photos/", "elsewhere/"));
    const auto run = m_bench.run({ QStringLiteral("align"), QStringLiteral("moved.json") });
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains(QStringLiteral("were they moved since the import?")),
             qPrintable(run.err));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("moved_aligned.pto"))));
}

void TestCliAlign::interruptedRunsWriteNothing()
{
    const QString script = QStringLiteral(
        "exec 3< <(\"$0\" align shoot.json -o cut.pto --progress plain 2>&1); child=$!; "
        "read -r line <&3; kill -INT $child; wait $child; echo $?");
    const auto run = m_bench.runProgram(
        QStringLiteral("bash"),
        { QStringLiteral("-c"), script, QStringLiteral(PANOHOST_TEST_BINARY) });
    QCOMPARE(run.out.trimmed(), QStringLiteral("130"));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("cut.pto"))));
    QVERIFY(m_bench.leftovers().isEmpty());
}

TEST_CLASS(TestCliAlign, QCoreApplication)
#include "tst_cli_align.moc"
