// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

/** Ten entities, each ten times the one before: a billion letters when expanded. */
QByteArray entityBomb()
{
    QByteArray xml = "<?xml version=\"1.0\"?>\n<!DOCTYPE r [\n<!ENTITY e0 \"aaaaaaaaaa\">\n";
    for (int i = 1; i < 10; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ";";
        xml += "<!ENTITY e" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">\n";
    }
    return xml + "]>\n<r><shoot>&e9;&e9;&e9;&e9;&e9;&e9;&e9;</shoot></r>\n";
}

/** Whether \p output is the one error that the pattern \p message describes. */
bool isError(const QString &output, const QString &message)
{
    const QString pattern = QStringLiteral("panohost: error: ") + message + QStringLiteral("\n");
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern))
        .match(output)
        .hasMatch();
}

const QByteArray kBracketOfThree = R"(<bracketing nbPicts="3"/>)";

} // namespace

class TestCliBadInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void recordIsRefusedWithItsReason_data();
    void recordIsRefusedWithItsReason();
    void checkNamesTheReasonToo_data() { recordIsRefusedWithItsReason_data(); }
    void checkNamesTheReasonToo();
    void scriptIsRefusedWithItsLine_data();
    void scriptIsRefusedWithItsLine();
    void gridIsRefusedWithItsNumbers_data();
    void gridIsRefusedWithItsNumbers();
    void photosAreRefusedWithTheirReason_data();
    void photosAreRefusedWithTheirReason();
    void unreadablePhotosAreNamedOnceEach();
    void nameThatIsNoTextIsExplained();
    void resultIsRefusedBeforeAnythingIsRead_data();
    void resultIsRefusedBeforeAnythingIsRead();
    void oddNumbersInARecordDoNoHarm_data();
    void oddNumbersInARecordDoNoHarm();
    void missingLibraryExitsWithFour_data();
    void missingLibraryExitsWithFour();

private:
    void compareRefusal(const CliBench::Run &run, int exitCode, const QString &message);

    CliBench m_bench;
    QStringList m_photos;
};

void TestCliBadInput::initTestCase()
{
    m_photos = m_bench.photos(4);
    m_bench.record(QStringLiteral("four.xml"), CliBench::row(4));
    m_bench.record(QStringLiteral("five.xml"), CliBench::row(5));
    m_bench.record(QStringLiteral("one.xml"), CliBench::row(1));
    m_bench.record(QStringLiteral("brackets.xml"), CliBench::row(4), kBracketOfThree);
    m_bench.file(QStringLiteral("text.xml"), "shots: 4\n");
    m_bench.file(QStringLiteral("open.xml"), "<papywizard>\n<shoot>\n<pict>\n");
    m_bench.file(QStringLiteral("empty.xml"), "");
    m_bench.file(QStringLiteral("header.xml"), "<papywizard><header/></papywizard>");
    m_bench.file(QStringLiteral("noshots.xml"), "<papywizard><shoot/></papywizard>");
    m_bench.file(QStringLiteral("deep.xml"), nested(30000));
    m_bench.file(QStringLiteral("bomb.xml"), entityBomb());
    m_bench.file(QStringLiteral("long.xml"),
                 "<p>\n<shoot>\n" + QByteArray("<pict/>\n").repeated(130'001) + "</shoot></p>");
    m_bench.file(QStringLiteral("large.xml"), QByteArray(64 * 1024 * 1024 + 1, ' '));
    m_bench.file(QStringLiteral("nophoto.jpg"), "this is no photo");
    m_bench.file(QStringLiteral("kept.pto"), "kept");
    QVERIFY(QDir(m_bench.path(QString())).mkdir(QStringLiteral("folder")));
    QCOMPARE(mkfifo(QFile::encodeName(m_bench.path(QStringLiteral("pipe"))).constData(), 0600), 0);
}

void TestCliBadInput::compareRefusal(const CliBench::Run &run, int exitCode, const QString &message)
{
    QCOMPARE(run.out, QString());
    QVERIFY2(isError(run.err, message), qPrintable(run.err));
    QCOMPARE(run.exitCode, exitCode);
    QCOMPARE(m_bench.content(QStringLiteral("kept.pto")), QByteArray("kept"));
    QCOMPARE(m_bench.leftovers(), QStringList());
}

void TestCliBadInput::recordIsRefusedWithItsReason_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("head");
    const auto row = [](const char *name, const char *record, const char *message,
                        const char *head = "papywizard") {
        QTest::newRow(name) << QString::fromLatin1(record) << QString::fromLatin1(message)
                            << QString::fromLatin1(head);
    };
    row("missing", "nosuch.xml", "nosuch.xml: no such record; check the name");
    row("folder", "folder", "folder: .*not a regular file.*");
    row("FIFO", "pipe", "pipe: .*not a regular file.*");
    row("/dev/zero", "/dev/zero", "/dev/zero: .*not a regular file.*");
    row("plain text", "text.xml", "text.xml: line 1: not well-formed XML .*");
    row("cut off on line 4", "open.xml", "open.xml: line 4: not well-formed XML .*");
    row("no byte", "empty.xml", "empty.xml: .*not well-formed XML .*");
    row("a photo", "IMG_01.jpg", "IMG_01.jpg: .*not well-formed XML .*");
    row("no shoot element", "header.xml", "header.xml: no <shoot> pictures; .*old-style.*");
    row("no shots", "noshots.xml", "noshots.xml: .*no shot was recorded.*");
    row("30,000 nested elements", "deep.xml", "deep.xml: line 1: elements nested more than .*");
    row("entity bomb", "bomb.xml", "bomb.xml: line \\d+: .*entities.*");
    row("130,001 pictures", "long.xml", "long.xml: line 130003: more than 130000 pictures; .*");
    row("64 MiB and a byte", "large.xml", "large.xml: larger than 64 MiB; .*");
    row("one shot more", "five.xml", "five.xml: records 5 shots, 4 photos given; .*");
    row("three shots fewer", "one.xml", "one.xml: records 1 shot, 4 photos given; .*");
    row("no full brackets", "brackets.xml",
        "brackets.xml: 4 photos are not a multiple of bracket 3; .*");
    row("vrdrive2, no shots", "noshots.xml", "noshots.xml: .*no shot was recorded.*", "vrdrive2");
    row("vrdrive2, no full brackets", "brackets.xml",
        "brackets.xml: 4 photos are not a multiple of bracket 3; .*", "vrdrive2");
    row("vrdrive2, cut off on line 4", "open.xml", "open.xml: line 4: not well-formed XML .*",
        "vrdrive2");
    row("vrdrive2, 130,001 pictures", "long.xml",
        "long.xml: line 130003: more than 130000 pictures; .*", "vrdrive2");
    row("vrdrive2, /dev/zero", "/dev/zero", "/dev/zero: .*not a regular file.*", "vrdrive2");
    row("clauss, missing", "nosuch.txt", "nosuch.txt: no such record; check the name", "clauss");
    row("clauss, folder", "folder", "folder: .*not a regular file.*", "clauss");
    row("clauss, FIFO", "pipe", "pipe: .*not a regular file.*", "clauss");
    row("clauss, /dev/zero", "/dev/zero", "/dev/zero: .*not a regular file.*", "clauss");
    row("clauss, an XML record", "four.xml", "four.xml: no op_shoot command: .*", "clauss");
}

void TestCliBadInput::recordIsRefusedWithItsReason()
{
    QFETCH(QString, record);
    QFETCH(QString, message);
    QFETCH(QString, head);
    const QStringList words{ head, record };
    const QStringList output{ QStringLiteral("-o"), QStringLiteral("kept.pto") };
    compareRefusal(m_bench.run(QStringList(QStringLiteral("import")) + words + m_photos + output),
                   3, message);
}

/** What 'check' says when 'import' would refuse the record for itself. */
void TestCliBadInput::checkNamesTheReasonToo()
{
    QFETCH(QString, record);
    QFETCH(QString, message);
    QFETCH(QString, head);
    const QStringList words{ QStringLiteral("check"), head, record };
    const CliBench::Run run = m_bench.run(words + m_photos);
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(isError(run.err, message), qPrintable(run.err));
}

void TestCliBadInput::scriptIsRefusedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &script, const char *message) {
        QTest::newRow(name) << script << QStringLiteral("script.txt: ") + QLatin1String(message);
    };
    const QByteArray shots = QByteArray("op_shoot\n").repeated(4);
    row("word", shots + "op_h-angle=abc\n", "line 5: op_h-angle=abc is not a number; .*");
    row("nothing", "op_v-angle=\n" + shots, "line 1: op_v-angle= is not a number; .*");
    row("no sign", "op_v-angle 30\n" + shots, "line 1: op_v-angle= is not a number; .*");
    row("nan", "\nop_h-angle=nan\n" + shots, "line 2: op_h-angle=nan is not a number; .*");
    row("inf", "\nop_v-angle=-inf\n" + shots, "line 2: op_v-angle=-inf is not a number; .*");
    row("beyond 32 bits", "op_v-angle=1e39\n" + shots, "line 1: op_v-angle=1e39 is not a .*");
    row("behind a byte order mark", "\xEF\xBB\xBFop_h-angle=x\n" + shots,
        "line 1: op_h-angle=x is not a number; .*");
    row("carriage returns alone", "op_h-angle=30\rop_shoot\r",
        "line 1: op_h-angle=30op_shoot is not a number; its lines end in carriage returns .*");
    row("carriage returns alone, no angle", QByteArray(shots).replace('\n', '\r'),
        "no op_shoot command: .*; its lines end in carriage returns .*");
    row("UTF-16", QByteArray("o\0p\0_\0", 6),
        "no op_shoot command: .*; a NUL byte in line 1 ends the script; is it UTF-16?.*");
    row("empty", "", "no op_shoot command: no shot was recorded; .*");
    row("one long line", QByteArray(100'000'000, 'x'), "larger than 64 MiB; .*");
    row("a shot too few", "op_shoot\nop_shoot\nop_shoot\n", "records 3 shots, 4 photos given; .*");
}

void TestCliBadInput::scriptIsRefusedWithItsLine()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    const QStringList words{ QStringLiteral("import"), QStringLiteral("clauss"),
                             m_bench.file(QStringLiteral("script.txt"), script) };
    const QStringList output{ QStringLiteral("-o"), QStringLiteral("kept.pto") };
    compareRefusal(m_bench.run(words + m_photos + output), 3, message);
}

void TestCliBadInput::gridIsRefusedWithItsNumbers_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *options, int exitCode, const char *message) {
        QTest::newRow(options) << QString::fromLatin1(options) << exitCode
                               << QString::fromLatin1(message);
    };
    row("--rows 3", 3, "photos: 3 rows do not divide 4 photos evenly; .*--ignore.*");
    row("--rows 5", 3, "photos: 5 rows do not divide 4 photos evenly; .*");
    row("--rows 2 --ignore 1", 3,
        "photos: 2 rows do not divide 4 photos less 1 ignored evenly; .*");
    row("--rows 4 --bracket 2", 3,
        "photos: 4 rows do not divide 2 positions \\(4 photos in brackets of 2\\) evenly; .*");
    row("--rows 1 --ignore 4", 3, "photos: --ignore 4 leaves none of 4; .*");
    row("--rows 1 --ignore 9", 3, "photos: --ignore 9 leaves none of 4; .*");
    row("--rows 1 --bracket 5", 3, "photos: --bracket 5 is more than 4 photos; .*");
    row("--rows 1 --bracket 3", 3, "photos: 4 photos are not a multiple of bracket 3; .*");
    row("--rows 1 --bracket 4 --ignore 1", 3,
        "photos: --bracket 4 is more than 4 photos less 1 ignored; .*");
    row("", 2, "a grid needs its number of rows; add --rows N");
    row("--rows 0", 2, "--rows 0: out of range; give a whole number from 1 to 100000");
    row("--rows -2", 2, "--rows -2: out of range; .*");
    row("--rows 2.5", 2, "--rows 2.5: out of range; .*");
    row("--rows many", 2, "--rows many: out of range; .*");
    row("--rows 99999999999", 2, "--rows 99999999999: out of range; .*");
    row("--rows 2 --bracket 0", 2, "--bracket 0: out of range; give .* from 1 to 99");
    row("--rows 2 --ignore 100", 2, "--ignore 100: out of range; give .* from 0 to 99, or .*");
    row("--rows 2 --overlap 4", 2, "--overlap 4: out of range; give a percentage from 5 to 100");
    row("--rows 2 --overlap nan", 2, "--overlap nan: out of range; .*");
    row("--rows 2 --mode rows", 2, "--mode rows: not one of columns, .*");
    row("--rows 2 --detect all --stack hard", 2, "--detect all needs --stack detect: .*");
    row("--rows 2 --invert-pitch", 2, "--invert-pitch is not an option of gigapan");
}

void TestCliBadInput::gridIsRefusedWithItsNumbers()
{
    QFETCH(QString, options);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QStringList words{ QStringLiteral("import"), QStringLiteral("gigapan") };
    const QStringList output{ QStringLiteral("-o"), QStringLiteral("kept.pto") };
    const QStringList given = options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    compareRefusal(m_bench.run(words + m_photos + given + output), exitCode, message);
}

void TestCliBadInput::photosAreRefusedWithTheirReason_data()
{
    QTest::addColumn<QString>("photo");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *photo, const char *message) {
        QTest::newRow(name) << QString::fromLatin1(photo) << QString::fromLatin1(message);
    };
    row("missing", "nosuch.jpg", "nosuch.jpg: no such photo; .*");
    row("no photo", "nophoto.jpg", "nophoto.jpg: cannot read .*; .*");
    row("folder", "folder", "folder: is a folder; .*");
    row("FIFO", "pipe", "pipe: is not a regular file; name photos only");
    row("device", "/dev/zero", "/dev/zero: is not a regular file; name photos only");
    row("named twice", "IMG_01.jpg", "IMG_01.jpg: given twice; .*");
}

void TestCliBadInput::photosAreRefusedWithTheirReason()
{
    QFETCH(QString, photo);
    QFETCH(QString, message);
    QStringList photos = m_photos;
    photos[2] = photo;
    const QStringList words{ QStringLiteral("import"), QStringLiteral("papywizard"),
                             QStringLiteral("four.xml") };
    const QStringList output{ QStringLiteral("-o"), QStringLiteral("kept.pto") };
    compareRefusal(m_bench.run(words + photos + output), 3, message);
}

/** File names are bytes, and these bytes are no letters in UTF-8. */
void TestCliBadInput::unreadablePhotosAreNamedOnceEach()
{
    constexpr int kBad = 300;
    CliBench own;
    const QStringList photos = own.photos(3);
    QStringList bad;
    for (int i = 0; i < kBad; ++i) {
        bad += own.file(QStringLiteral("bad%1.jpg").arg(i, 3, 10, QLatin1Char('0')), "no photo");
    }
    const QString record = own.record(QStringLiteral("many.xml"), CliBench::row(kBad + 3));
    const QStringList words
        = QStringList{ QStringLiteral("check"), QStringLiteral("papywizard"), record } + bad
        + photos;
    const CliBench::Run run = own.run(words);
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(
        isError(run.err, QStringLiteral("bad000.jpg: cannot read .* \\(and 299 more of 303 .*")),
        qPrintable(run.err));
    QStringList rows = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(rows.takeFirst().left(9), QStringLiteral("record   "));
    for (const QString &photo : qAsConst(bad)) {
        QVERIFY2(rows.first().startsWith(QStringLiteral("bad      %1: ").arg(photo)),
                 qPrintable(rows.first()));
        rows.removeFirst();
    }
    QVERIFY(rows.first().startsWith(QLatin1String("photos   303 given, 3 readable")));

    const CliBench::Run json = own.run(words + QStringList(QStringLiteral("--json")));
    QCOMPARE(json.exitCode, 3);
    QCOMPARE(json.err, run.err);
    const QJsonObject object = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QCOMPARE(object.value(QStringLiteral("importable")), QJsonValue(false));
    const QJsonArray findings = object.value(QStringLiteral("findings")).toArray();
    QCOMPARE(findings.at(1)[QStringLiteral("files")].toArray(),
             QJsonArray{ own.path(bad.first()) });
    const QJsonValue last = findings.last();
    QCOMPARE(last[QStringLiteral("topic")], QJsonValue(QStringLiteral("result")));
    QVERIFY(last[QStringLiteral("trouble")].toBool());
    QVERIFY(run.err.contains(last[QStringLiteral("text")].toString()));
}

void TestCliBadInput::nameThatIsNoTextIsExplained()
{
    const QByteArray name = QFile::encodeName(m_bench.path(QStringLiteral("bad"))) + "\xff.jpg";
    QCOMPARE(::mknod(name.constData(), S_IFREG | 0600, 0), 0);
    const CliBench::Run run = m_bench.runProgram(
        QStringLiteral("/bin/sh"),
        { QStringLiteral("-c"),
          QStringLiteral("exec \"$0\" import papywizard one.xml bad?.jpg -o bad.pto"),
          QStringLiteral(PANOHOST_TEST_BINARY) });
    QCOMPARE(::unlink(name.constData()), 0);
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.err,
             QStringLiteral("panohost: error: bad\ufffd.jpg: no such photo; rename the file: its "
                            "name is not in UTF-8\n"));
    QVERIFY(!QFile::exists(m_bench.path(QStringLiteral("bad.pto"))));
}

void TestCliBadInput::resultIsRefusedBeforeAnythingIsRead_data()
{
    QTest::addColumn<QStringList>("output");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    const auto row
        = [](const char *name, const QStringList &output, int exitCode, const char *message) {
              QTest::newRow(name) << output << exitCode << QString::fromLatin1(message);
          };
    const QString o = QStringLiteral("-o");
    const QString json = QStringLiteral("--json");
    row("no folder", { o, QStringLiteral("nosuch/a.pto") }, 3,
        "nosuch/a.pto: the folder .*/nosuch does not exist; .*");
    row("no folder for the description",
        { o, QStringLiteral("kept.pto"), json, QStringLiteral("nosuch/a.json") }, 3,
        "nosuch/a.json: the folder .*/nosuch does not exist; .*");
    row("folder is a file", { o, QStringLiteral("IMG_01.jpg/a.pto") }, 3,
        "IMG_01.jpg/a.pto: cannot be written there: .*; .*");
    row("not writable", { o, QStringLiteral("/proc/a.pto") }, 3,
        "/proc/a.pto: cannot be written there: .*; .*");
    row("a folder", { o, QStringLiteral("folder") }, 3, "folder: is a folder; .*");
    row("a folder for the description",
        { o, QStringLiteral("kept.pto"), json, QStringLiteral("folder") }, 3,
        "folder: is a folder; .*");
    row("a device", { o, QStringLiteral("/dev/full") }, 3, "/dev/full: is not a regular file; .*");
    row("a photo", { o, QStringLiteral("IMG_02.jpg") }, 3, "IMG_02.jpg: is one of the input .*");
    row("the record", { o, QStringLiteral("./four.xml") }, 3, ".*: is one of the input files; .*");
    row("none", {}, 2, "no result asked for; .*");
    row("one file for both", { o, QStringLiteral("a.x"), json, QStringLiteral("./a.x") }, 2,
        "-o and --json name the same file; .*");
}

void TestCliBadInput::resultIsRefusedBeforeAnythingIsRead()
{
    QFETCH(QStringList, output);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QByteArray photo = m_bench.content(QStringLiteral("IMG_02.jpg"));
    const QStringList words{ QStringLiteral("import"), QStringLiteral("papywizard"),
                             QStringLiteral("four.xml") };
    compareRefusal(m_bench.run(words + m_photos + output), exitCode, message);
    QCOMPARE(m_bench.content(QStringLiteral("IMG_02.jpg")), photo);
}

void TestCliBadInput::oddNumbersInARecordDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("camera");
    QTest::addColumn<QByteArray>("yaw0");
    const QByteArray none;
    const QByteArray zero = "0.0";
    QTest::newRow("nbPicts 0") << QByteArray(R"(<bracketing nbPicts="0"/>)") << zero;
    QTest::newRow("nbPicts -3") << QByteArray(R"(<bracketing nbPicts="-3"/>)") << zero;
    QTest::newRow("nbPicts abc") << QByteArray(R"(<bracketing nbPicts="abc"/>)") << zero;
    QTest::newRow("yaw nan") << none << QByteArray("nan");
    QTest::newRow("yaw 1e308") << none << QByteArray("1e308");
}

void TestCliBadInput::oddNumbersInARecordDoNoHarm()
{
    QFETCH(QByteArray, camera);
    QFETCH(QByteArray, yaw0);
    const QString name = m_bench.record(QStringLiteral("odd.xml"), CliBench::row(4), camera);
    QByteArray xml = m_bench.content(name);
    m_bench.file(name, xml.replace("yaw=\"0.0\"", "yaw=\"" + yaw0 + '"'));

    const QStringList words{ QStringLiteral("import"), QStringLiteral("papywizard"), name };
    const QStringList output{ QStringLiteral("--json"), QStringLiteral("-") };
    const CliBench::Run run = m_bench.run(words + m_photos + output);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    // A number that cannot be one counts as 0, a bracket below 1 as none: four positions, the
    // first at yaw 0.
    const QJsonArray positions = QJsonDocument::fromJson(run.out.toUtf8())
                                     .object()
                                     .value(QStringLiteral("positions"))
                                     .toArray();
    QCOMPARE(positions.size(), 4);
    QCOMPARE(positions.at(0).toObject().value(QStringLiteral("yawDeg")).toDouble(-1.0), 0.0);
    // Angles travel as radians in 32 bits.
    const double yaw = positions.at(1).toObject().value(QStringLiteral("yawDeg")).toDouble();
    QVERIFY2(std::abs(yaw - 90.0) < 1e-5, qPrintable(run.out));
}

void TestCliBadInput::missingLibraryExitsWithFour_data()
{
    QTest::addColumn<QString>("library");
    QTest::newRow("no such file") << QStringLiteral("nosuch.so");
    QTest::newRow("folder without one") << QStringLiteral("folder");
    QTest::newRow("not a library") << QStringLiteral("IMG_01.jpg");
    QTest::newRow("a library of something else") << QStringLiteral(PANOHOST_TEST_OTHER_LIBRARY);
}

void TestCliBadInput::missingLibraryExitsWithFour()
{
    QFETCH(QString, library);
    const QStringList words{ QStringLiteral("import"), QStringLiteral("papywizard"),
                             QStringLiteral("four.xml") };
    const QStringList options{ QStringLiteral("-o"), QStringLiteral("kept.pto"),
                               QStringLiteral("--plugin"), library };
    compareRefusal(m_bench.run(words + m_photos + options), 4, QStringLiteral(".*; .*--plugin.*"));
}

TEST_CLASS(TestCliBadInput, QCoreApplication)
#include "tst_cli_badinput.moc"
