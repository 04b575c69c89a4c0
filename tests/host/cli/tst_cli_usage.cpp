// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/support/hosthead.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QtTest>

class TestCliUsage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void helpTeachesOnEveryLevel_data();
    void helpTeachesOnEveryLevel();
    void helpFitsATerminal_data();
    void helpFitsATerminal();
    void versionGoesToStdout_data();
    void versionGoesToStdout();
    void wrongWordsExitWithTwo_data();
    void wrongWordsExitWithTwo();
    void noDisplayIsSaid();
    void commonOptionsMayStandBeforeTheCommand();
    void pluginsAreListed();
    void describePrintsATable();
    void previewIsAPicture();
    void checkReportsAndRefuses();
    void settingsFileIsUsed();
    void fullDiskIsSaid();
    void quietSaysNothing();
    void colorIsUsedOnRequestOnly_data();
    void colorIsUsedOnRequestOnly();

private:
    [[nodiscard]] QStringList words(const char *line) const;

    CliBench m_bench;
};

QStringList TestCliUsage::words(const char *line) const
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void TestCliUsage::initTestCase()
{
    (void)m_bench.photos(3);
    (void)m_bench.record(QStringLiteral("r.xml"), { { 0.0, 0.0 }, { 30.0, 0.0 }, { 200.0, 0.0 } });
    (void)m_bench.record(QStringLiteral("two.xml"), CliBench::row(2));
}

void TestCliUsage::helpTeachesOnEveryLevel_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line :
         { "--help", "-h", "import --help", "check --help", "sort --help", "describe --help",
           "preview --help", "plugins --help", "make --help", "stitch --help",
           "import papywizard --help", "import papywizard r.xml -o --help -h" }) {
        QTest::newRow(line) << QString::fromLatin1(line);
    }
}

void TestCliUsage::helpTeachesOnEveryLevel()
{
    QFETCH(QString, line);
    const CliBench::Run run = m_bench.run(line.split(QLatin1Char(' ')));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err, QString());
    QVERIFY(run.out.startsWith(QLatin1String("Usage:\n  panohost ")));
    QVERIFY(run.out.contains(QLatin1String("\nExamples:\n  # ")));
    QVERIFY(run.out.contains(QLatin1String("\n  --plugin FILE|DIR ")));
}

void TestCliUsage::helpFitsATerminal_data()
{
    helpTeachesOnEveryLevel_data();
}

void TestCliUsage::helpFitsATerminal()
{
    QFETCH(QString, line);
    const QString help = m_bench.run(line.split(QLatin1Char(' '))).out;
    for (const QString &text : help.split(QLatin1Char('\n'))) {
        QVERIFY2(text.size() <= 84, qPrintable(text));
        QVERIFY2(!text.endsWith(QLatin1Char(' ')), qPrintable(text));
    }
}

void TestCliUsage::versionGoesToStdout_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("program") << QStringLiteral("--version");
    QTest::newRow("command") << QStringLiteral("import --version");
}

void TestCliUsage::versionGoesToStdout()
{
    QFETCH(QString, line);
    const CliBench::Run run = m_bench.run(line.split(QLatin1Char(' ')));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err, QString());
    QVERIFY2(QRegularExpression(QStringLiteral("^panohost \\d+\\.\\d+\\.\\d+\n$"))
                 .match(run.out)
                 .hasMatch(),
             qPrintable(run.out));
}

void TestCliUsage::wrongWordsExitWithTwo_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *line, const char *message) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(message);
    };
    row("imprt",
        "'imprt' is neither a command nor a file; did you mean 'import'?; "
        "see 'panohost --help'");
    row("zzzzzz", "'zzzzzz' is neither a command nor a file; see 'panohost --help'");
    row("import", "no head given; one of clauss, gigapan, papywizard, *");
    row("import papywizrd r.xml", "unknown head 'papywizrd'; did you mean 'papywizard'?*");
    row("import papywizard", "papywizard needs its record, RECORD.xml, and the photos; *");
    row("import papywizard r.xml", "no photos given; *");
    row("import papywizard r.xml IMG_01.jpg --focla 3",
        "unknown option '--focla'; did you mean "
        "'--focal'?");
    row("import papywizard r.xml IMG_01.jpg -o", "Missing value after '-o'");
    row("import papywizard r.xml IMG_01.jpg --focal x -o a.pto",
        "--focal x: not a focal length; *");
    row("import papywizard r.xml IMG_01.jpg --focal nan -o a.pto",
        "--focal nan: not a focal length; *");
    row("import papywizard r.xml IMG_01.jpg --focal 0 -o a.pto",
        "--focal 0: not a focal length; *");
    row("import papywizard r.xml IMG_01.jpg --focal 10001 -o a.pto",
        "--focal 10001: not a focal length; *");
    row("import papywizard r.xml IMG_01.jpg --lens fishy -o a.pto",
        "--lens fishy: not one of standard, fisheye, xml; did you mean 'fisheye'?");
    row("import papywizard r.xml IMG_01.jpg --rotate 45 -o a.pto",
        "--rotate 45: not one of 90, -90, 180*");
    row("import papywizard r.xml IMG_01.jpg --detect all --stack hard -o a.pto",
        "--detect all needs --stack detect: *");
    row("import papywizard r.xml IMG_01.jpg --auto-detection --no-auto-detection -o a.pto",
        "--auto-detection and --no-auto-detection exclude each other; *");
    row("import papywizard r.xml IMG_01.jpg --clean-links --no-clean-links -o a.pto",
        "--clean-links and --no-clean-links exclude each other; *");
    row("import papywizard r.xml IMG_01.jpg --rows 3 -o a.pto",
        "--rows is not an option of papywizard");
    row("import papywizard r.xml IMG_01.jpg --output-mode hdr -o a.pto",
        "--output-mode is not an option of papywizard");
    row("import vrdrive2 r.xml IMG_01.jpg --detect all --stack hard -o a.pto",
        "--detect all needs --stack detect: *");
    row("import vrdrive2 r.xml IMG_01.jpg --output-mode jpg -o a.pto",
        "--output-mode jpg: not one of ldr, hdr*");
    row("import vrdrive2 r.xml -o a.pto", "no photos given; *");
    row("import vrdrive2 -o a.pto", "vrdrive2 needs its record, RECORD.xml, and the photos; *");
    row("import clauss -o a.pto", "clauss needs its record, SCRIPT.txt, and the photos; *");
    row("import clauss s.txt IMG_01.jpg --detect all -o a.pto",
        "--detect is not an option of clauss");
    row("import clauss s.txt IMG_01.jpg --rotate 90 -o a.pto",
        "--rotate is not an option of clauss");
    row("import gigapan --rows 2 -o a.pto", "no photos given; name them, e.g. DIR/*.jpg");
    row("import gigpan IMG_01.jpg -o a.pto", "unknown head 'gigpan'; did you mean 'gigapan'?*");
    row("import papywizard r.xml IMG_01.jpg --lang xx -o a.pto", "--lang xx: no such language; *");
    row("preview papywizard r.xml IMG_01.jpg", "no picture named; add -o LAYOUT.png");
    row("preview papywizard r.xml IMG_01.jpg -o a.pto", "-o a.pto: no picture format; *");
    row("plugins extra", "unexpected 'extra'; did you mean --plugin extra?");
    row("plugins --skip-optimization", "unknown option '--skip-optimization'; see --help");
}

void TestCliUsage::wrongWordsExitWithTwo()
{
    QFETCH(QString, line);
    QFETCH(QString, message);
    const CliBench::Run run = m_bench.run(line.split(QLatin1Char(' ')));
    const QString expected = QStringLiteral("panohost: error: ") + message;
    const bool matches = expected.endsWith(QLatin1Char('*'))
        ? run.err.startsWith(expected.chopped(1))
        : run.err == expected + QLatin1Char('\n');
    QVERIFY2(matches, qPrintable(run.err));
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.out, QString());
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("a.pto"))));
}

void TestCliUsage::noDisplayIsSaid()
{
    const CliBench::Run run = m_bench.run({});
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.err.startsWith(QLatin1String("panohost: error: no display to show the window on")));
}

void TestCliUsage::commonOptionsMayStandBeforeTheCommand()
{
    const CliBench::Run run
        = m_bench.run({ QStringLiteral("--plugin"), QStringLiteral(PANOHOST_TEST_LIBRARY),
                        QStringLiteral("-v"), QStringLiteral("plugins") });
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err,
             QStringLiteral("panohost: using %1\n").arg(QStringLiteral(PANOHOST_TEST_LIBRARY)));
}

void TestCliUsage::pluginsAreListed()
{
    const CliBench::Run run = m_bench.run({ QStringLiteral("plugins") });
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err, QString());
    const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), static_cast<int>(allHostHeads().size()));
    QCOMPARE(lines.at(2),
             QStringLiteral("papywizard\tPapywizard\tOrvane\t3.0.0.400\t"
                            "7A21C94E-5B20-2020-2020-483181480AB7\t"
                            "Papywizard XML import plugin"));
}

void TestCliUsage::describePrintsATable()
{
    const CliBench::Run run
        = m_bench.run(words("describe papywizard r.xml IMG_01.jpg IMG_02.jpg IMG_03.jpg --text"));
    QCOMPARE(run.exitCode, 0);
    // Only the first two are within reach of each other.
    QCOMPARE(run.out,
             QStringLiteral("3 positions, 3 photos, 1 link, 24 mm, standard lens\n"
                            " pos      yaw    pitch     roll  links to     photos\n"
                            "   0     0.00     0.00     0.00  1            IMG_01.jpg\n"
                            "   1    30.00     0.00     0.00               IMG_02.jpg\n"
                            "   2   200.00     0.00     0.00               IMG_03.jpg\n"));
}

void TestCliUsage::previewIsAPicture()
{
    const CliBench::Run run = m_bench.run(
        words("preview papywizard r.xml IMG_01.jpg IMG_02.jpg IMG_03.jpg -o layout.png"));
    QCOMPARE(run.exitCode, 0);
    const QImage picture(m_bench.path(QStringLiteral("layout.png")));
    // Smallest step 30 degrees: 96 / 30 pixels per degree; 200 degrees wide, with a border of 100.
    QCOMPARE(picture.size(), QSize(740, 100));
}

void TestCliUsage::checkReportsAndRefuses()
{
    const CliBench::Run good
        = m_bench.run(words("check papywizard r.xml IMG_01.jpg IMG_02.jpg IMG_03.jpg"));
    QCOMPARE(good.exitCode, 0);
    QVERIFY2(good.out.startsWith(
                 QLatin1String("record   r.xml: 3 shots, bracket 1, focal 24 mm, lens standard\n"
                               "photos   3 given, 3 readable, focal 24 mm, lens not known\n")),
             qPrintable(good.out));
    QVERIFY(good.out.endsWith(QLatin1String("result   can be imported\n")));

    const CliBench::Run bad
        = m_bench.run(words("check papywizard two.xml IMG_01.jpg IMG_02.jpg IMG_03.jpg"));
    QCOMPARE(bad.exitCode, 3);
    QVERIFY(bad.out.contains(QLatin1String("two.xml: 2 shots")));
    QVERIFY(bad.out.contains(QLatin1String("photos   3 given")));
    QVERIFY(bad.err.startsWith(
        QLatin1String("panohost: error: two.xml: records 2 shots, 3 photos given")));
}

void TestCliUsage::settingsFileIsUsed()
{
    const CliBench::Run run = m_bench.run(words(
        "import papywizard r.xml IMG_01.jpg IMG_02.jpg IMG_03.jpg --json - -q --settings s.ini"));
    QCOMPARE(run.exitCode, 0);
    // The plug-in keeps its page's state under its UID when it goes.
    QVERIFY2(
        m_bench.content(QStringLiteral("s.ini")).contains("[7A21C94E-5B20-2020-2020-483181480AB7]"),
        m_bench.content(QStringLiteral("s.ini")).constData());
}

void TestCliUsage::fullDiskIsSaid()
{
    const CliBench::Run run
        = m_bench.run({ QStringLiteral("plugins") }, QStringLiteral("/dev/full"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.err,
             QStringLiteral("panohost: error: standard output: No space left on device; "
                            "is the disk full?\n"));
}

void TestCliUsage::quietSaysNothing()
{
    const CliBench::Run run = m_bench.run(
        words("import papywizard r.xml IMG_01.jpg IMG_02.jpg IMG_03.jpg -o q.pto -q"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out + run.err, QString());
}

void TestCliUsage::colorIsUsedOnRequestOnly_data()
{
    QTest::addColumn<QString>("when");
    QTest::addColumn<bool>("colored");
    QTest::newRow("no terminal") << QStringLiteral("auto") << false;
    QTest::newRow("always") << QStringLiteral("always") << true;
    QTest::newRow("never") << QStringLiteral("never") << false;
}

void TestCliUsage::colorIsUsedOnRequestOnly()
{
    QFETCH(QString, when);
    QFETCH(bool, colored);
    const CliBench::Run run
        = m_bench.run(words("plugins --plugin nosuch.so --color") + QStringList(when));
    QCOMPARE(run.exitCode, 4);
    QCOMPARE(run.err.startsWith(QLatin1String("\x1b[31mpanohost: error:")), colored);
}

TEST_CLASS(TestCliUsage, QCoreApplication)
#include "tst_cli_usage.moc"
