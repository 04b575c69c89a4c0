// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/headfacts.h"
#include "shoot/recordlimits.h"
#include "tests/support/testprogram.h"

#include <QTest>

using namespace PanoHead;

Q_DECLARE_METATYPE(const HeadFacts *)

/** The shots that records tell of, without a page. */
class TestNotedShots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenShotsComeBack_data();
    void writtenShotsComeBack();
    void exactAnglesAreThoseOf32Bits();
    void gridsTellNothing();
    void otherRecordsAreRefusedAsByTheSummary_data();
    void otherRecordsAreRefusedAsByTheSummary();
    void levelsAreAsNotedOrByPlace_data();
    void levelsAreAsNotedOrByPlace();
    void timesAreReadInAnyForm();
    void shotsKeepTheOrderOfTheRecord();
    void rollAndPortraitTurnNothing();
    void scriptsKnowNeitherTimesNorBrackets();
    void largeRecordsAreRead();
};

namespace
{

const HeadFacts &headOf(const char *name)
{
    return *headFactsOf(QString::fromLatin1(name));
}

/** Of a record that is read. */
QVector<NotedShot> shotsOf(const HeadFacts &head, const QByteArray &record)
{
    ReadError error;
    return head.shots(record, &error).value_or(QVector<NotedShot>());
}

/** In the schema of the Papywizard controller; \p picts are elements. */
QByteArray recordOf(const QByteArray &picts, const QByteArray &nbPicts = "1")
{
    return "<papywizard><header><camera><bracketing nbPicts='" + nbPicts
        + "'/></camera></header><shoot>" + picts + "</shoot></papywizard>";
}

QVector<int> levelsOf(const QVector<NotedShot> &shots)
{
    QVector<int> levels;
    for (const NotedShot &shot : shots) {
        levels += shot.level;
    }
    return levels;
}

/** Two rows of three positions, out of order, with \p bracketCount exposures each. */
NotedShoot smallShoot(int bracketCount)
{
    NotedShoot shoot;
    shoot.bracketCount = bracketCount;
    const QDateTime start(QDate(2024, 5, 1), QTime(23, 59, 50), Qt::UTC);
    for (const double pitch : { 45.0, -30.0 }) {
        for (const double yaw : { 120.0, 0.0, -120.0 }) {
            for (int level = 0; level < bracketCount; ++level) {
                shoot.shots += { yaw, pitch, 0.0, level, start.addSecs(7 * shoot.shots.size()) };
            }
        }
    }
    return shoot;
}

} // namespace

void TestNotedShots::writtenShotsComeBack_data()
{
    QTest::addColumn<const HeadFacts *>("head");
    QTest::addColumn<int>("bracketCount");
    for (const HeadFacts *head : allHeadFacts()) {
        if (head->shots == nullptr) {
            continue;
        }
        for (const int count : { 1, 3 }) {
            QTest::addRow("%s, exposures: %d", head->title, count) << head << count;
        }
    }
}

void TestNotedShots::writtenShotsComeBack()
{
    QFETCH(const HeadFacts *, head);
    QFETCH(int, bracketCount);

    const NotedShoot shoot = smallShoot(bracketCount);
    ReadError error;
    const auto shots = head->shots(head->write(shoot), &error);
    QVERIFY2(shots, qPrintable(error.reason));
    QCOMPARE(shots->size(), 6 * bracketCount);
    for (int i = 0; i < shots->size(); ++i) {
        const NotedShot &shot = shots->at(i);
        const NotedShot &written = shoot.shots.at(i);
        QCOMPARE(shot.yawDegrees, written.yawDegrees);
        QCOMPARE(shot.pitchDegrees, written.pitchDegrees);
        QCOMPARE(shot.rollDegrees, 0.0);
        QCOMPARE(shot.level, head->notesBrackets ? written.level : 0);
        if (shot.time.isValid()) {
            QCOMPARE(shot.time, written.time);
        }
        // The heads of whose records it is known that they hold times.
        QVERIFY(shot.time.isValid() || !head->notesBrackets);
    }
}

/** 12.3 has no place in 24 bits, which is what pages hand over. */
void TestNotedShots::exactAnglesAreThoseOf32Bits()
{
    NotedShoot shoot;
    shoot.exactAngles = true;
    shoot.shots = { { 12.3, -0.0123456789, 0.0, 0, {} }, { 1085.7, -400.1, 0.0, 0, {} } };
    const HeadFacts &head = headOf("papywizard");
    const QVector<NotedShot> shots = shotsOf(head, head.write(shoot));
    QCOMPARE(shots.size(), 2);
    QVERIFY(shots.at(0).yawDegrees == static_cast<double>(12.3F));
    QVERIFY(shots.at(0).pitchDegrees == static_cast<double>(-0.0123456789F));
    QVERIFY(shots.at(1).yawDegrees == static_cast<double>(1085.7F));
    QVERIFY(shots.at(1).pitchDegrees == static_cast<double>(-400.1F));
    QVERIFY(!shots.at(0).time.isValid());
}

void TestNotedShots::gridsTellNothing()
{
    QVERIFY(headOf("gigapan").shots == nullptr);
    for (const char *name : { "papywizard", "vrdrive2", "clauss" }) {
        QVERIFY2(headOf(name).shots != nullptr, name);
    }
}

void TestNotedShots::otherRecordsAreRefusedAsByTheSummary_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("nonsense") << QByteArray("nonsense");
    QTest::newRow("no shoot") << QByteArray("<p/>");
    QTest::newRow("no picture") << recordOf("");
    QTest::newRow("cut off") << recordOf("<pict/>").chopped(20);
    QTest::newRow("no shooting") << QByteArray("op_h-angle=1\n");
    QTest::newRow("bad angle") << QByteArray("op_shoot\nop_h-angle=x\nop_shoot\n");
    QTest::newRow("UTF-16") << QByteArray("o\0p\0_\0s\0h\0o\0o\0t\0", 16);
    QTest::newRow("too many shots") << QByteArray("op_shoot\n").repeated(kMaxRecordedShots + 1);
    QTest::newRow("a record") << recordOf("<pict/>");
    QTest::newRow("a script") << QByteArray("op_shoot\n");
}

void TestNotedShots::otherRecordsAreRefusedAsByTheSummary()
{
    QFETCH(QByteArray, record);

    for (const HeadFacts *head : allHeadFacts()) {
        if (head->shots == nullptr) {
            continue;
        }
        ReadError expected;
        ReadError error;
        const auto summary = head->summary(record, &expected);
        const auto shots = head->shots(record, &error);
        QCOMPARE(shots.has_value(), summary.has_value());
        QCOMPARE(error.reason, expected.reason);
        QCOMPARE(error.line, expected.line);
        QCOMPARE(error.advice, expected.advice);
        QVERIFY(!shots || shots->size() == summary->shotCount);
    }
}

void TestNotedShots::levelsAreAsNotedOrByPlace_data()
{
    QTest::addColumn<QByteArray>("nbPicts");
    QTest::addColumn<QByteArray>("brackets"); // attributes
    QTest::addColumn<QVector<int>>("levels");
    const auto row = [](const char *name, const char *nbPicts, const char *brackets,
                        const QVector<int> &levels) {
        QTest::newRow(name) << QByteArray(nbPicts) << QByteArray(brackets) << levels;
    };
    row("from 1", "3", "1 2 3 1 2 3", { 0, 1, 2, 0, 1, 2 });
    row("from 0", "3", "0 1 2 0 1 2", { 0, 1, 2, 0, 1, 2 });
    row("downwards", "3", "3 2 1 3 2 1", { 2, 1, 0, 2, 1, 0 });
    row("one picture is missing", "3", "1 2 3 1 3 1 2 3", { 0, 1, 2, 0, 2, 0, 1, 2 });
    row("the first is missing", "3", "2 3 1 2 3", { 1, 2, 0, 1, 2 });
    row("aborted", "3", "1 2 3 1", { 0, 1, 2, 0 });
    row("aborted before the last exposure", "3", "1 2", { 0, 1 });
    row("all the same", "2", "1 1 1 1", { 0, 1, 0, 1 });
    row("counted on", "2", "1 2 3 4", { 0, 1, 0, 1 });
    row("no numbers", "2", "a b c d", { 0, 1, 0, 1 });
    row("a number out of range", "2", "1 2 1 2147483648", { 0, 1, 0, 1 });
    row("as far apart as can be", "2", "-2147483648 2147483647", { 0, 1 });
    row("no brackets", "1", "1 1 1", { 0, 0, 0 });
    row("numbers without brackets", "1", "1 2 3", { 0, 0, 0 });
    row("no count", "", "1 2 3", { 0, 0, 0 });
    row("count below 1", "-3", "1 2 3", { 0, 0, 0 });
    row("count beyond all pictures", "2147483647", "1 2 3", { 0, 1, 2 });
}

void TestNotedShots::levelsAreAsNotedOrByPlace()
{
    QFETCH(QByteArray, nbPicts);
    QFETCH(QByteArray, brackets);

    QByteArray picts;
    for (const QByteArray &bracket : brackets.split(' ')) {
        picts += "<pict bracket='" + bracket + "'/>";
    }
    for (const char *name : { "papywizard", "vrdrive2" }) {
        QTEST(levelsOf(shotsOf(headOf(name), recordOf(picts, nbPicts))), "levels");
    }
}

void TestNotedShots::timesAreReadInAnyForm()
{
    const auto pict
        = [](const QByteArray &time) { return "<pict><time>" + time + "</time></pict>"; };
    const QByteArray long65 = "10:00:00." + QByteArray(56, '0');
    const QVector<NotedShot> shots = shotsOf(
        headOf("papywizard"),
        recordOf(pict("\n  2024-05-01_10h00m00s\n  ") + pict("2024-05-01T10:00:01+02:00")
                 + "<pict/>" + pict("Wed May 1 10:00:02 2024") + pict("soon")
                 + pict("2024:05:01 10:00:03") + pict("") + pict(long65)
                 + pict(QByteArray(1'000'000, '1')) + pict("2024-05-01_10h<b>00</b>m&#48;4s")
                 + "<pict><time>23:59:59</time><time>10:00:00</time></pict>" + pict("00:00:01")));
    const auto at
        = [](int second) { return QDateTime(QDate(2024, 5, 1), QTime(10, 0, second), Qt::UTC); };
    QVector<QDateTime> times;
    for (const NotedShot &shot : shots) {
        times += shot.time;
    }
    QCOMPARE(times,
             (QVector<QDateTime>{ at(0),
                                  at(1).addSecs(-7200),
                                  {},
                                  at(2),
                                  {},
                                  at(3),
                                  {},
                                  {},
                                  {},
                                  at(4),
                                  { QDate(1970, 1, 1), QTime(23, 59, 59), Qt::UTC },
                                  { QDate(1970, 1, 2), QTime(0, 0, 1), Qt::UTC } }));
}

/** Neither times nor numbers move them: photos belong to them as they stand. */
void TestNotedShots::shotsKeepTheOrderOfTheRecord()
{
    const QVector<NotedShot> shots = shotsOf(
        headOf("papywizard"),
        recordOf("<pict id='3'><time>2024-05-01_10h00m03s</time><position yaw='3'/></pict>"
                 "<pict id='1'><time>2024-05-01_10h00m01s</time><position yaw='1'/></pict>"
                 "<pict id='2'><position yaw='2'/></pict>"));
    QCOMPARE(shots.size(), 3);
    QCOMPARE(shots.at(0).yawDegrees, 3.0);
    QCOMPARE(shots.at(1).yawDegrees, 1.0);
    QCOMPARE(shots.at(2).yawDegrees, 2.0);
    QCOMPARE(shots.at(0).time.time(), QTime(10, 0, 3));
    QCOMPARE(shots.at(1).time.time(), QTime(10, 0, 1));
    QVERIFY(!shots.at(2).time.isValid());
}

void TestNotedShots::rollAndPortraitTurnNothing()
{
    NotedShoot shoot;
    shoot.isPortrait = true;
    shoot.shots = { { 30.0, 10.0, 90.0, 0, {} } };
    const HeadFacts &head = headOf("papywizard");
    const QVector<NotedShot> shots = shotsOf(head, head.write(shoot));
    QCOMPARE(shots.size(), 1);
    QCOMPARE(shots.at(0).rollDegrees, 0.0);
    QCOMPARE(shots.at(0).pitchDegrees, 10.0);
}

void TestNotedShots::scriptsKnowNeitherTimesNorBrackets()
{
    const QVector<NotedShot> shots
        = shotsOf(headOf("clauss"),
                  "op_v-angle=-45\r\nop_h-angle=-30.9\nop_time=10:00:00\nop_shoot\nop_shoot\n"
                  "op_h-angle=400\nop_shoot\n");
    QCOMPARE(shots.size(), 3);
    const double yaws[] = { -30.0, -30.0, 400.0 };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(shots.at(i).yawDegrees, yaws[i]);
        QCOMPARE(shots.at(i).pitchDegrees, -45.0);
        QCOMPARE(shots.at(i).rollDegrees, 0.0);
        QCOMPARE(shots.at(i).level, 0);
        QVERIFY(shots.at(i).time.isNull());
    }
}

void TestNotedShots::largeRecordsAreRead()
{
    constexpr int kPictures = 90'000; // a shot a second passes midnight
    QByteArray picts;
    for (int i = 0; i < kPictures; ++i) {
        picts += "<pict bracket='" + QByteArray::number(i % 2 + 1) + "'><time>"
            + QTime(0, 0).addSecs(i).toString(Qt::ISODate).toLatin1() + "</time></pict>";
    }
    const QVector<NotedShot> shots = shotsOf(headOf("vrdrive2"), recordOf(picts, "2"));
    QCOMPARE(shots.size(), kPictures);
    QCOMPARE(shots.last().level, 1);
    QCOMPARE(shots.first().time.secsTo(shots.last().time), qint64{ kPictures - 1 });

    const QVector<NotedShot> script
        = shotsOf(headOf("clauss"), QByteArray("op_shoot\n").repeated(kMaxRecordedShots));
    QCOMPARE(script.size(), kMaxRecordedShots);
}

TEST_CLASS(TestNotedShots, QCoreApplication)
#include "tst_notedshots.moc"
