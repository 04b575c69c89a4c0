// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/headfacts.h"
#include "shoot/recordlimits.h"
#include "tests/support/testprogram.h"

#include <QTest>

#include <numeric>

using namespace PanoHead;

Q_DECLARE_METATYPE(const HeadFacts *)

/** Records with some of their shots only, for heads to take these again. */
class TestRecordExcerpts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chosenShotsStay_data();
    void chosenShotsStay();
    void allElseStaysInRecords();
    void onlyPicturesOfTheShootCount();
    void documentsOfAnyKindAreCopied_data();
    void documentsOfAnyKindAreCopied();
    void whatOnlyLenientParsersTakeIsRefused();
    void scriptsAreCopiedLineByLine_data();
    void scriptsAreCopiedLineByLine();
    void largeRecordsAreCopied();
};

namespace
{

const HeadFacts &headOf(const char *name)
{
    return *headFactsOf(QString::fromLatin1(name));
}

QByteArray excerptOf(const HeadFacts &head, const QByteArray &record, const QVector<int> &shots)
{
    ReadError error;
    return head.excerpt(record, shots, &error).value_or("refused: " + error.reason.toUtf8());
}

QVector<NotedShot> shotsOf(const HeadFacts &head, const QByteArray &record)
{
    ReadError error;
    return head.shots(record, &error).value_or(QVector<NotedShot>());
}

QVector<double> yawsOf(const HeadFacts &head, const QByteArray &record)
{
    QVector<double> yaws;
    for (const NotedShot &shot : shotsOf(head, record)) {
        yaws += shot.yawDegrees;
    }
    return yaws;
}

/** Twelve positions of \p bracketCount exposures; the yaw of each is 30 degrees times its number.
 */
NotedShoot shootOf(int bracketCount)
{
    NotedShoot shoot;
    shoot.bracketCount = bracketCount;
    shoot.title = QStringLiteral("K\u00f6ln & \u6771\u4eac <2>");
    for (int i = 0; i < 12 * bracketCount; ++i) {
        const double position = i / bracketCount; // NOLINT(bugprone-integer-division): whole
        shoot.shots += { 30.0 * position, -5.0, 0.0, i % bracketCount,
                         QDateTime(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC).addSecs(4LL * i) };
    }
    return shoot;
}

} // namespace

void TestRecordExcerpts::chosenShotsStay_data()
{
    QTest::addColumn<const HeadFacts *>("head");
    QTest::addColumn<int>("bracketCount");
    QTest::addColumn<QVector<int>>("shots");
    for (const HeadFacts *head : allHeadFacts()) {
        if (head->excerpt == nullptr) {
            continue;
        }
        QTest::addRow("%s, the first", head->title) << head << 1 << QVector<int>{ 0 };
        QTest::addRow("%s, the last", head->title) << head << 1 << QVector<int>{ 11 };
        QTest::addRow("%s, some", head->title) << head << 1 << QVector<int>{ 2, 3, 7 };
        QTest::addRow("%s, two positions of three", head->title)
            << head << 3 << QVector<int>{ 6, 7, 8, 30, 31, 32 };
    }
    for (const char *name : { "papywizard", "vrdrive2", "clauss" }) {
        QVERIFY2(headOf(name).excerpt != nullptr, name);
    }
}

void TestRecordExcerpts::chosenShotsStay()
{
    QFETCH(const HeadFacts *, head);
    QFETCH(int, bracketCount);
    QFETCH(QVector<int>, shots);

    const QByteArray record = head->write(shootOf(bracketCount));
    const QVector<NotedShot> before = shotsOf(*head, record);
    const QByteArray excerpt = excerptOf(*head, record, shots);
    const QVector<NotedShot> after = shotsOf(*head, excerpt);
    QCOMPARE(after.size(), shots.size());
    for (int i = 0; i < after.size(); ++i) {
        QCOMPARE(after[i].yawDegrees, 30.0 * (shots[i] / bracketCount));
        QCOMPARE(after[i].pitchDegrees, -5.0);
        QCOMPARE(after[i].level, before[shots[i]].level);
        QCOMPARE(after[i].time, before[shots[i]].time);
    }
    ReadError error;
    const auto summary = head->summary(excerpt, &error);
    const auto whole = head->summary(record, &error);
    QCOMPARE(summary->bracketCount, whole->bracketCount);
    QCOMPARE(summary->focal35mm, whole->focal35mm);
    QCOMPARE(summary->lens, whole->lens);
    // All of them give the same record, which gives itself.
    QVector<int> all(before.size());
    std::iota(all.begin(), all.end(), 0);
    QCOMPARE(excerptOf(*head, record, all), record);
}

void TestRecordExcerpts::allElseStaysInRecords()
{
    const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<papywizard "
                            "version=\"c\">\n  <header>\n    <general>\n      <title>a &amp; "
                            "b</title>\n    </general>\n    <own x=\"1\"/>\n  </header>\n"
                            "  <shoot by=\"hand\">\n    <!-- first -->\n";
    const auto pict = [](int id) {
        return "    <pict id=\"" + QByteArray::number(id)
            + "\" bracket=\"1\">\n      <time>10:00:00</time>\n      <position yaw=\"1.0\"/>\n"
              "    </pict>\n";
    };
    const QByteArray end = "  </shoot>\n  <more/>\n</papywizard>";
    const QByteArray record = head + pict(7) + pict(3) + pict(9) + end;
    QCOMPARE(excerptOf(headOf("papywizard"), record, { 1 }), head + pict(3) + end + '\n');
}

/** As the reader counts them: children of the root's first `shoot`. */
void TestRecordExcerpts::onlyPicturesOfTheShootCount()
{
    const auto pict = [](int yaw) {
        return "<pict><position yaw=\"" + QByteArray::number(yaw)
            + "\"/><pict><position yaw=\"99\"/></pict></pict>";
    };
    const QByteArray record = "<p><pict/><header><pict/><shoot><pict/></shoot></header><shoot>"
        + pict(0) + "<shoot><pict/></shoot>" + pict(1) + "<x><pict/></x>" + pict(2)
        + "</shoot><shoot>" + pict(50) + "</shoot></p>";
    const HeadFacts &head = headOf("vrdrive2");
    QCOMPARE(yawsOf(head, record), (QVector<double>{ 0.0, 1.0, 2.0 }));
    const QByteArray excerpt = excerptOf(head, record, { 0, 2 });
    QCOMPARE(yawsOf(head, excerpt), (QVector<double>{ 0.0, 2.0 }));
    QCOMPARE(excerpt.count("<pict"), record.count("<pict") - 2);
}

void TestRecordExcerpts::documentsOfAnyKindAreCopied_data()
{
    QTest::addColumn<QByteArray>("record");
    const QByteArray shoot = "<shoot><pict><position yaw='1'/></pict><pict><position yaw='2'/>"
                             "</pict></shoot>";
    const auto row
        = [](const char *name, const QByteArray &record) { QTest::newRow(name) << record; };
    row("no declaration", "<p>" + shoot + "</p>");
    row("byte order mark", "\xEF\xBB\xBF<p>" + shoot + "</p>");
    row("Latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?><p x='\xE9'>" + shoot + "</p>");
    row("comments and instructions",
        "<!-- a --><?b c?><p>" + shoot + "<!-- d --><?e f?></p><!-- g -->");
    row("entities", "<!DOCTYPE p [<!ENTITY yaw '2'>]><p>&yaw;" + shoot + "</p>");
    row("colons", "<a:p xmlns:a='b'><a:q c:d='e'/>" + shoot + "</a:p>");
    row("unknown prefixes", "<a:p><b:q c:d='e'/>" + shoot + "</a:p>");
    row("sections", "<p><![CDATA[<shoot>]]>" + shoot + "</p>");
    row("character references", "<p x='&#10;&lt;&quot;'>&#60;&#233;" + shoot + "</p>");
    row("carriage returns", "<p>\r\n" + shoot + "\r\n</p>");
}

void TestRecordExcerpts::documentsOfAnyKindAreCopied()
{
    QFETCH(QByteArray, record);

    const HeadFacts &head = headOf("papywizard");
    QCOMPARE(yawsOf(head, record), (QVector<double>{ 1.0, 2.0 }));
    const QByteArray excerpt = excerptOf(head, record, { 1 });
    QVERIFY2(yawsOf(head, excerpt) == QVector<double>{ 2.0 }, excerpt.constData());
    QCOMPARE(excerptOf(head, excerpt, { 0 }), excerpt);
}

void TestRecordExcerpts::whatOnlyLenientParsersTakeIsRefused()
{
    const QByteArray record = "<p>\n<q a='1' a='2'/><shoot><pict/></shoot></p>";
    const HeadFacts &head = headOf("papywizard");
    QCOMPARE(shotsOf(head, record).size(), 1);
    ReadError error;
    QVERIFY(!head.excerpt(record, { 0 }, &error));
    QVERIFY2(error.reason.startsWith(QLatin1String("not strictly XML (")),
             qPrintable(error.reason));
    QCOMPARE(error.line, 2);
    QVERIFY(!head.excerpt(record, { 0 }, nullptr));
}

void TestRecordExcerpts::scriptsAreCopiedLineByLine_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QVector<int>>("shots");
    QTest::addColumn<QByteArray>("excerpt");
    const auto row
        = [](const char *name, const char *script, const QVector<int> &shots, const char *excerpt) {
              QTest::newRow(name) << QByteArray(script) << shots << QByteArray(excerpt);
          };
    row("an angle that stays set", "op_v-angle=5\nop_h-angle=1\nop_shoot\nop_h-angle=2\nop_shoot\n",
        { 1 }, "op_v-angle=5\nop_h-angle=2\nop_shoot\n");
    row("angles of others go",
        "op_v-angle=5\nop_h-angle=1\nop_shoot\nop_v-angle=6\nop_shoot\nop_v-angle=7\nop_shoot\n",
        { 2 }, "op_h-angle=1\nop_v-angle=7\nop_shoot\n");
    row("other commands stay", "# a\nop_speed=3\nop_shoot\nop_wait\nop_shoot\nop_end\n", { 0 },
        "# a\nop_speed=3\nop_shoot\nop_wait\nop_end\n");
    row("the way home", "op_h-angle=9\nop_shoot\nop_h-angle=10\nop_shoot\nop_h-angle=0\n", { 0 },
        "op_h-angle=9\nop_shoot\nop_h-angle=0\n");
    row("several shots at one angle", "op_h-angle=9\nop_shoot\nop_shoot\nop_shoot\n", { 0, 2 },
        "op_h-angle=9\nop_shoot\nop_shoot\n");
    row("line ends, no last one", "op_h-angle=9\r\nop_shoot\r\nop_h-angle=10\r\nop_shoot", { 1 },
        "op_h-angle=10\r\nop_shoot");
    row("carriage returns within", "op_sh\root\nop_h-an\rgle=4\nop_shoot\n", { 1 },
        "op_h-an\rgle=4\nop_shoot\n");
    row("byte order mark", "\xEF\xBB\xBFop_shoot\nop_h-angle=4\nop_shoot\n", { 1 },
        "op_h-angle=4\nop_shoot\n");
    QTest::newRow("behind a NUL byte nothing counts")
        << QByteArray("op_shoot\nop_shoot\0op_shoot\nop_shoot\n", 37) << QVector<int>{ 1 }
        << QByteArray("op_shoot");
}

void TestRecordExcerpts::scriptsAreCopiedLineByLine()
{
    QFETCH(QByteArray, script);
    QFETCH(QVector<int>, shots);
    QTEST(excerptOf(headOf("clauss"), script, shots), "excerpt");
}

void TestRecordExcerpts::largeRecordsAreCopied()
{
    constexpr int kPictures = 70'000;
    QByteArray picts;
    QByteArray script;
    QVector<int> shots;
    for (int i = 0; i < kPictures; ++i) {
        const QByteArray yaw = QByteArray::number(i % 360);
        picts += "<pict>\n<position yaw=\"" + yaw + "\"/>\n</pict>\n";
        script += "op_h-angle=" + yaw + "\nop_shoot\n";
        if (i % 7 == 0) {
            shots += i;
        }
    }
    const QByteArray record = "<p><shoot>" + picts + "</shoot></p>";
    for (const auto &[name, bytes] :
         { std::pair{ "papywizard", record }, std::pair{ "clauss", script } }) {
        const QVector<double> yaws = yawsOf(headOf(name), excerptOf(headOf(name), bytes, shots));
        QCOMPARE(yaws.size(), shots.size());
        for (int i = 0; i < yaws.size(); ++i) {
            QCOMPARE(yaws[i], double(7 * i % 360));
        }
    }
}

TEST_CLASS(TestRecordExcerpts, QCoreApplication)
#include "tst_recordexcerpts.moc"
