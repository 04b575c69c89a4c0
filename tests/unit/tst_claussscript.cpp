// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/claussscript.h"
#include "tests/support/testprogram.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

using PanoHead::ClaussScript;
using PanoHead::readClaussScript;

namespace
{

/** "yaw pitch" of every shot in six digits, separated by "|". */
QString anglesOf(const QVector<ShootData> &shots)
{
    QStringList texts;
    for (const ShootData &shot : shots) {
        texts.append(QStringLiteral("%1 %2").arg(shot.yaw).arg(shot.pitch));
    }
    return texts.join(QLatin1Char('|'));
}

/** \p text with "\n" between its words. */
QByteArray lines(const char *text)
{
    return QByteArray(text).replace(' ', '\n');
}

struct PlainScript {
    QVector<ShootData> shots;
    bool isSound = true;
    int firstBadLine = 0;
};

/** Word by word: the bytes up to the first NUL as text, a regular expression on every line. */
PlainScript readPlainly(const QByteArray &bytes)
{
    static const QRegularExpression command(
        QStringLiteral("([\\w\\d-]*)=?([\\w\\d-]*)")); // no Unicode properties
    QByteArray head = bytes.left(static_cast<int>(qstrnlen(bytes.constData(), bytes.size())));
    head.replace('\r', ""); // as reading in text mode does
    const QStringList texts = QString::fromUtf8(head).split(QLatin1Char('\n'));
    PlainScript script;
    float horizontal = 0.0F;
    float vertical = 0.0F;
    const auto read = [&script](const QString &value, int line) {
        bool ok = false;
        const float number = value.toFloat(&ok);
        if (ok && std::isfinite(number)) {
            return number;
        }
        if (script.isSound) {
            script.firstBadLine = line;
        }
        script.isSound = false;
        return 0.0F;
    };
    for (int i = 0; i < texts.size(); ++i) {
        const QRegularExpressionMatch match = command.match(texts.at(i));
        const QString key = match.captured(1);
        if (key == QLatin1String("op_shoot")) {
            ShootData shot;
            shot.yaw = horizontal;
            shot.pitch = vertical;
            shot.id = script.shots.size();
            script.shots.append(shot);
        } else if (key == QLatin1String("op_v-angle")) {
            vertical = read(match.captured(2), i + 1);
        } else if (key == QLatin1String("op_h-angle")) {
            horizontal = read(match.captured(2), i + 1);
        }
    }
    return script;
}

void compareWithPlain(const QByteArray &bytes)
{
    const ClaussScript script = readClaussScript(bytes);
    const PlainScript plain = readPlainly(bytes);
    const QByteArray shown = bytes.toPercentEncoding(" =\n-");
    QVERIFY2(script.isSound == plain.isSound, shown.constData());
    QVERIFY2(script.firstError.line == plain.firstBadLine, shown.constData());
    QVERIFY2(script.shots.size() == plain.shots.size(), shown.constData());
    for (int i = 0; i < script.shots.size(); ++i) {
        QVERIFY2(script.shots.at(i).yaw == plain.shots.at(i).yaw, shown.constData());
        QVERIFY2(script.shots.at(i).pitch == plain.shots.at(i).pitch, shown.constData());
        QVERIFY2(script.shots.at(i).id == plain.shots.at(i).id, shown.constData());
    }
}

} // namespace

/** The commands of a script, from bytes. */
class TestClaussScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shotsStandAtTheAnglesLastCommanded();
    void shotHasNothingButAnglesAndNumber();

    void soundScript_data();
    void soundScript();
    void linesEnd_data();
    void linesEnd();
    void textEndsAtTheFirstNul_data();
    void textEndsAtTheFirstNul();
    void textIsUtf8_data();
    void textIsUtf8();
    void keyIsTheWordAtTheLinesStart_data();
    void keyIsTheWordAtTheLinesStart();

    void valueIsTheWordBehindTheKey_data();
    void valueIsTheWordBehindTheKey();
    void whatIsNoNumberFails_data();
    void whatIsNoNumberFails();
    void badNumberReadsAsZeroAndReadingGoesOn();
    void errorNamesTheFirstBadLine_data();
    void errorNamesTheFirstBadLine();
    void longBadValueIsCutInTheError();

    void longLinesAreRead_data();
    void longLinesAreRead();
    void readsLikeTheRegularExpression_data();
    void readsLikeTheRegularExpression();
};

void TestClaussScript::shotsStandAtTheAnglesLastCommanded()
{
    const ClaussScript script = readClaussScript(
        lines("op_h-angle=30 op_v-angle=-15 op_shoot op_shoot op_h-angle=60 op_shoot"));

    QVERIFY(script.isSound);
    QCOMPARE(script.firstError.line, 0);
    QCOMPARE(script.firstError.reason, QString());
    QCOMPARE(anglesOf(script.shots), QStringLiteral("30 -15|30 -15|60 -15"));
    QCOMPARE(script.shots.at(0).id, 0);
    QCOMPARE(script.shots.at(1).id, 1);
    QCOMPARE(script.shots.at(2).id, 2);
}

void TestClaussScript::shotHasNothingButAnglesAndNumber()
{
    const ShootData shot = readClaussScript(lines("op_h-angle=30 op_shoot op_shoot")).shots.at(1);

    QCOMPARE(shot.id, 1);
    QCOMPARE(shot.roll, 0.0F);
    QCOMPARE(shot.bracket, 0);
    QCOMPARE(shot.reserved, qint64{ 0 });
    QVERIFY(shot.time.isNull());
}

void TestClaussScript::soundScript_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("angles");
    const auto row = [](const char *name, const QByteArray &script, const char *angles) {
        QTest::newRow(name) << script << QString::fromLatin1(angles);
    };
    row("empty", "", "");
    row("no shots", "op_h-angle=30\n", "");
    row("shot before any angle", "op_shoot\n", "0 0");
    row("no newline at the end", "op_h-angle=30\nop_shoot", "30 0");
    row("angles after the last shot", "op_shoot\nop_h-angle=30\n", "0 0");
    row("angle set twice", lines("op_h-angle=30 op_h-angle=45 op_shoot"), "45 0");
    row("angles stay", lines("op_v-angle=5 op_shoot op_h-angle=1 op_shoot op_h-angle=2 op_shoot"),
        "0 5|1 5|2 5");
    row("other commands", lines("op_speed=abc op_wait=nan cam_shoot op_shoot"), "0 0");
    row("blank lines", "\n\n\nop_shoot\n\n", "0 0");
    row("comments", "# op_shoot\n; op_shoot\n// op_shoot\nop_shoot\n", "0 0");
}

void TestClaussScript::soundScript()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, angles);
    const ClaussScript read = readClaussScript(script);
    QVERIFY(read.isSound);
    QCOMPARE(anglesOf(read.shots), angles);
}

// Every script commands 30 degrees, then a shot, then -15 degrees, then a shot.
void TestClaussScript::linesEnd_data()
{
    QTest::addColumn<QByteArray>("separator");
    QTest::addColumn<QString>("angles");
    QTest::addColumn<bool>("sound");
    const QString both = QStringLiteral("30 0|30 -15");
    QTest::newRow("LF") << QByteArray("\n") << both << true;
    QTest::newRow("CR LF") << QByteArray("\r\n") << both << true;
    QTest::newRow("LF CR") << QByteArray("\n\r") << both << true;
    QTest::newRow("CR CR LF") << QByteArray("\r\r\n") << both << true;
    // Text mode drops carriage returns, so that all lines fuse: "30op_shootop_v-angle".
    QTest::newRow("CR only") << QByteArray("\r") << QString() << false;
    // None of these ends a line; the first command's value ends at it.
    for (const char *none : { "\v", "\f", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9", "\x1E" }) {
        QTest::addRow("no end: %s", QByteArray(none).toHex().constData())
            << QByteArray(none) << QString() << true;
    }
}

void TestClaussScript::linesEnd()
{
    QFETCH(QByteArray, separator);
    QFETCH(QString, angles);
    QFETCH(bool, sound);
    const ClaussScript script = readClaussScript(
        lines("op_h-angle=30 op_shoot op_v-angle=-15 op_shoot").replace("\n", separator));
    QCOMPARE(script.isSound, sound);
    QCOMPARE(anglesOf(script.shots), angles);
}

void TestClaussScript::textEndsAtTheFirstNul_data()
{
    QTest::addColumn<QByteArray>("script"); // "0" stands for a NUL
    QTest::addColumn<QString>("angles");
    QTest::newRow("first byte") << QByteArray("0op_shoot\n") << QString();
    QTest::newRow("between lines") << QByteArray("op_shoot\n0op_shoot\n") << QStringLiteral("0 0");
    QTest::newRow("behind a key") << QByteArray("op_shoot0\nop_shoot\n") << QStringLiteral("0 0");
    QTest::newRow("in a key") << QByteArray("op_shoot\nop_sh0oot\n") << QStringLiteral("0 0");
    QTest::newRow("in a value") << QByteArray("op_h-angle=12034\nop_shoot\n") << QString();
    QTest::newRow("last byte") << QByteArray("op_shoot\n0") << QStringLiteral("0 0");
    // The byte order mark of UTF-16 is no text, and every other byte is a NUL.
    QTest::newRow("UTF-16, little end first") << QByteArray("\xFF\xFEo0p0_0") << QString();
    QTest::newRow("UTF-16, big end first") << QByteArray("\xFE\xFF"
                                                         "0o0p0_")
                                           << QString();
}

void TestClaussScript::textEndsAtTheFirstNul()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, angles);
    const ClaussScript read = readClaussScript(script.replace('0', QByteArray(1, '\0')));
    QVERIFY(read.isSound); // without any message
    QCOMPARE(anglesOf(read.shots), angles);
}

void TestClaussScript::textIsUtf8_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("shots");
    const QByteArray mark("\xEF\xBB\xBF");
    QTest::newRow("byte order mark") << mark + "op_shoot\nop_shoot\n" << 2;
    QTest::newRow("byte order mark behind a dropped CR") << "\r" + mark + "op_shoot\n" << 1;
    QTest::newRow("byte order mark alone") << mark << 0;
    QTest::newRow("two byte order marks") << mark + mark + "op_shoot\nop_shoot\n" << 1;
    QTest::newRow("byte order mark later") << QByteArray("op_shoot\n") + mark + "op_shoot\n" << 1;
    QTest::newRow("cut byte order mark") << QByteArray("\xEF\xBBop_shoot\nop_shoot\n") << 1;
    QTest::newRow("other text") << QByteArray("// H\xC3\xB6he\nop_shoot\n") << 1;
    QTest::newRow("invalid bytes") << QByteArray("\xC3(\xFF\xFE\n\x80op_shoot\nop_shoot\n") << 1;
    QTest::newRow("invalid bytes behind the key") << QByteArray("op_shoot\xFF\n") << 1;
}

void TestClaussScript::textIsUtf8()
{
    QFETCH(QByteArray, script);
    QFETCH(int, shots);
    const ClaussScript read = readClaussScript(script);
    QVERIFY(read.isSound);
    QCOMPARE(read.shots.size(), shots);
}

void TestClaussScript::keyIsTheWordAtTheLinesStart_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("shoots");
    const auto row = [](const QByteArray &line, bool shoots) {
        QTest::newRow(line.toPercentEncoding(" =-").constData()) << line << shoots;
    };
    for (const char *line :
         { "op_shoot", "op_shoot=", "op_shoot=1", "op_shoot=abc", "op_shoot 1", "op_shoot;",
           "op_shoot==", "op_shoot.x", "op_shoot\t", "op_shoot(op_h-angle=abc)",
           "op_shoot\xCC\x81" /* an accent is no word character */, "op_shoot\xC3\xA9" }) {
        row(line, true);
    }
    for (const char *line :
         { "OP_SHOOT", "Op_shoot", " op_shoot", "\top_shoot", "=op_shoot", "op_shoots", "op_shoot1",
           "op_shoot-", "op_shoot_", "-op_shoot", "_op_shoot", "op-shoot", "op shoot", "op_shoo",
           "\"op_shoot\"", "x=op_shoot", "\xC3\xA9op_shoot" }) {
        row(line, false);
    }
}

void TestClaussScript::keyIsTheWordAtTheLinesStart()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, shoots);
    const ClaussScript script = readClaussScript(line + "\n");
    QVERIFY(script.isSound);
    QCOMPARE(script.shots.size(), shoots ? 1 : 0);
}

void TestClaussScript::valueIsTheWordBehindTheKey_data()
{
    QTest::addColumn<QByteArray>("command"); // behind "op_h-angle" and behind "op_v-angle"
    QTest::addColumn<float>("angle");
    const auto row = [](const char *command, float angle) {
        QTest::newRow(*command ? command : "nothing") << QByteArray(command) << angle;
    };
    row("=30", 30.0F);
    row("=-15", -15.0F);
    row("=0", 0.0F);
    row("=-0", -0.0F);
    row("=007", 7.0F);
    row("=1234567", 1234567.0F);
    row("=12.5", 12.0F); // cut at the point
    row("=5.9", 5.0F);
    row("=-0.9", -0.0F);
    row("=5=6", 5.0F);
    row("=5 ", 5.0F);
    row("=5 6", 5.0F);
    row("=5;op_shoot", 5.0F);
    row("=5,5", 5.0F);
    row("=5\xC2\xB0", 5.0F); // a degree sign
    row("=1e2", 100.0F);
    row("=1E2", 100.0F);
    row("=1e-2", 0.01F);
    row("=1e5", 100000.0F);
    row("=99999999999999999999", 1e20F); // 20 nines
}

void TestClaussScript::valueIsTheWordBehindTheKey()
{
    QFETCH(QByteArray, command);
    QFETCH(float, angle);
    const ClaussScript script = readClaussScript("op_h-angle" + command + "\nop_shoot\n"
                                                 + "op_v-angle" + command + "\nop_shoot\n");
    QVERIFY(script.isSound);
    QCOMPARE(script.shots.size(), 2);
    QCOMPARE(script.shots.at(0).yaw, angle);
    QCOMPARE(script.shots.at(0).pitch, 0.0F);
    QCOMPARE(script.shots.at(1).yaw, angle);
    QCOMPARE(script.shots.at(1).pitch, angle);
}

void TestClaussScript::whatIsNoNumberFails_data()
{
    QTest::addColumn<QByteArray>("command"); // behind the key
    const auto row = [](const QByteArray &command, const char *name = nullptr) {
        QTest::newRow(name ? name : command.toPercentEncoding(" =+.-").constData()) << command;
    };
    row("", "no value");
    row(" 30", "no equals sign");
    for (const char *value : { "abc",         "-",         "--5",
                               "5-5",         "-5-",       "+5",
                               "0x10",        "1_0",       "=5",
                               " 5",          ".5",        "5a",
                               "e5",          "1e",        "1e-",
                               "5-",          "_5",        "1e400",
                               "nan",         "NaN",       "-nan",
                               "inf",         "INF",       "-inf",
                               "infinity",    "-infinity", "\xD9\xA5" /* an Arabic 5 */,
                               "\xEF\xBC\x95" /* a full-width 5 */ }) {
        row(QByteArray("=") + value);
    }
    row("=" + QByteArray(39, '9'), "39 nines: infinite as 32-bit float");
    row("=-" + QByteArray(39, '9'), "the same below zero");
    row("=" + QByteArray(400, '9'), "400 nines");
}

void TestClaussScript::whatIsNoNumberFails()
{
    QFETCH(QByteArray, command);
    for (const char *key : { "op_h-angle", "op_v-angle" }) {
        const ClaussScript script = readClaussScript(key + command + "\nop_shoot\n");
        QVERIFY(!script.isSound);
        QCOMPARE(anglesOf(script.shots), QStringLiteral("0 0"));
        QCOMPARE(script.firstError.line, 1);
    }
}

void TestClaussScript::badNumberReadsAsZeroAndReadingGoesOn()
{
    const ClaussScript script = readClaussScript(
        lines("op_h-angle=30 op_v-angle=5 op_shoot op_h-angle=abc op_shoot op_h-angle=60 "
              "op_v-angle=x op_shoot"));

    QVERIFY(!script.isSound);
    QCOMPARE(anglesOf(script.shots), QStringLiteral("30 5|0 5|60 0"));
}

void TestClaussScript::errorNamesTheFirstBadLine_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("reason");
    const QString wrong = QStringLiteral("op_h-angle=abc is not a number");
    QTest::newRow("first line") << QByteArray("op_h-angle=abc") << 1 << wrong;
    QTest::newRow("LF") << QByteArray("op_shoot\n\nop_h-angle=abc\nop_v-angle=x\n") << 3 << wrong;
    QTest::newRow("CR LF") << QByteArray("op_shoot\r\n\r\nop_h-angle=abc\r\n") << 3 << wrong;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF\nop_h-angle=abc\n") << 2 << wrong;
    QTest::newRow("vertical") << QByteArray("op_v-angle=--5.5\n") << 1
                              << QStringLiteral("op_v-angle=--5 is not a number");
}

void TestClaussScript::errorNamesTheFirstBadLine()
{
    QFETCH(QByteArray, script);
    QFETCH(int, line);
    QFETCH(QString, reason);
    const ClaussScript read = readClaussScript(script);
    QCOMPARE(read.firstError.line, line);
    QCOMPARE(read.firstError.reason, reason);
}

void TestClaussScript::longBadValueIsCutInTheError()
{
    const ClaussScript read = readClaussScript("op_h-angle=" + QByteArray(1'000'000, 'x'));
    QVERIFY(!read.isSound);
    QVERIFY(read.firstError.reason.size() < 100);
}

void TestClaussScript::longLinesAreRead_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("sound");
    const int tenMillion = 10'000'000;
    QTest::newRow("unknown key") << QByteArray(tenMillion, 'x') << true;
    QTest::newRow("no key") << QByteArray(tenMillion, ' ') << true;
    QTest::newRow("value") << "op_h-angle=" + QByteArray(tenMillion, 'x') << false;
    QTest::newRow("rest behind the value") << "op_h-angle=0" + QByteArray(tenMillion, ' ') << true;
    QTest::newRow("equals signs") << QByteArray(tenMillion, '=') << true;
    QTest::newRow("newlines") << QByteArray(tenMillion, '\n') << true;
}

void TestClaussScript::longLinesAreRead()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, sound);
    const ClaussScript script = readClaussScript("op_shoot\n" + line + "\nop_shoot\n");
    QCOMPARE(script.isSound, sound);
    QCOMPARE(script.shots.size(), 2);
}

void TestClaussScript::readsLikeTheRegularExpression_data()
{
    QTest::addColumn<QVector<QByteArray>>("pieces");
    QVector<QByteArray> bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(QByteArray(1, static_cast<char>(byte)));
    }
    QTest::newRow("any bytes") << bytes;
    QVector<QByteArray> words{ "op_shoot", "op_h-angle", "op_v-angle", "=",        "\n",
                               "\n",       "\n",         "\r",         "\r\n",     "5",
                               "-",        "30",         "nan",        "inf",      "e",
                               ".",        " ",          "_",          "0",        "999999999",
                               "\xC2\x85", "\xC3",       "x",          "OP_SHOOT", "\xEF\xBB\xBF" };
    QTest::newRow("words") << words;
    QTest::newRow("words, mostly sound") << QVector<QByteArray>{
        "op_shoot\n", "op_shoot\r\n", "op_h-angle=", "op_v-angle=",      "op_h-angle=30\n",
        "12",         "-7",           "\n",          "op_v-angle=-15\n", "\n"
    };
    words.append(QByteArray(1, '\0'));
    QTest::newRow("words and NUL") << words;
}

void TestClaussScript::readsLikeTheRegularExpression()
{
    QFETCH(QVector<QByteArray>, pieces);
    QRandomGenerator random(6);
    for (int round = 0; round < 4000 && !QTest::currentTestFailed(); ++round) {
        QByteArray script;
        const int count = random.bounded(40);
        for (int i = 0; i < count; ++i) {
            script += pieces.at(random.bounded(pieces.size()));
        }
        compareWithPlain(script);
    }
}

TEST_CLASS(TestClaussScript, QCoreApplication)
#include "tst_claussscript.moc"
