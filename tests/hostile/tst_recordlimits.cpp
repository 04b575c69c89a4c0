// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/claussscript.h"
#include "importers/clauss/clausstospp.h"
#include "importers/papywizard/merlintospp.h"
#include "importers/papywizard/papywizardreader.h"
#include "tests/support/testprogram.h"

#include <QTemporaryFile>
#include <QTest>

using namespace PanoHead;

/** Records as large as the largest of any head, and larger. */
class TestRecordLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScriptMayHaveSoManyShots();
    void oneShotMoreLeavesNone();
    void aBadAngleBehindTheLimitIsNotTheReason();
    void theGeneratorKeepsNothingOfATooLongScript();
    void anXmlRecordMayHaveSoManyShots();
    void onePictureMoreIsRefused();
    void theLargestShootsAreRead_data();
    void theLargestShootsAreRead();
};

namespace
{

QByteArray shots(int count)
{
    return QByteArray("op_shoot\n").repeated(count);
}

QByteArray pictures(int count)
{
    return "<p><header><camera><bracketing nbPicts='3'/></camera></header><shoot>"
        + QByteArray("<pict/>").repeated(count) + "</shoot></p>";
}

/** A line of its own for each element, with both characters that end it on some systems. */
QByteArray line(const QByteArray &text)
{
    return "      " + text + "\r\n";
}

/** What heads write beside time and place: numbers, with or without more about them. */
QByteArray remarks(int count, const QByteArray &attributes)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "remark" + QByteArray::number(i);
        lines += line('<' + name + attributes + ">123.45</" + name + '>');
    }
    return lines;
}

/** Positions in rows of 350, one degree apart. */
QByteArray shoot(int positions, int exposures, const QByteArray &moreChildren)
{
    QByteArray text = "<?xml version='1.0' encoding='utf-8'?>\r\n<papywizard>\r\n  <shoot>\r\n";
    for (int i = 0; i < positions * exposures; ++i) {
        const int position = i / exposures;
        text += "    <pict id='" + QByteArray::number(i + 1) + "' bracket='"
            + QByteArray::number(i % exposures + 1) + "'>\r\n"
            + line("<time>Sat May 1 10:20:30 2010</time>")
            + line("<position yaw='" + QByteArray::number(position % 350) + ".0' pitch='"
                   + QByteArray::number(position / 350 - 90) + ".0' roll='0.0'/>")
            + moreChildren + "    </pict>\r\n";
    }
    return text + "  </shoot>\r\n</papywizard>\r\n";
}

} // namespace

void TestRecordLimits::aScriptMayHaveSoManyShots()
{
    const ClaussScript script = readClaussScript(shots(130'000));
    QVERIFY(script.isSound);
    QCOMPARE(script.shots.size(), 130'000);
    QCOMPARE(script.shots.last().id, 129'999);
}

void TestRecordLimits::oneShotMoreLeavesNone()
{
    const ClaussScript script = readClaussScript("# a long one\n" + shots(130'001));
    QVERIFY(!script.isSound);
    QVERIFY(script.shots.isEmpty());
    QCOMPARE(script.firstError.reason, QStringLiteral("more than 130000 shots"));
    QCOMPARE(script.firstError.line, 130'002);
}

void TestRecordLimits::aBadAngleBehindTheLimitIsNotTheReason()
{
    const ClaussScript script = readClaussScript(shots(130'001) + "op_h-angle=x\n");
    QCOMPARE(script.firstError.reason, QStringLiteral("more than 130000 shots"));
}

void TestRecordLimits::theGeneratorKeepsNothingOfATooLongScript()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(shots(3));
    file.flush();
    ClaussToSPP generator;
    QVERIFY(generator.parse(file.fileName()));
    QCOMPARE(generator.shots.size(), 3);
    file.write(shots(130'000));
    file.flush();
    QVERIFY(!generator.parse(file.fileName()));
    QVERIFY(generator.shots.isEmpty());
}

void TestRecordLimits::anXmlRecordMayHaveSoManyShots()
{
    const auto record = readPapywizard(pictures(130'000));
    QVERIFY(record.has_value());
    QCOMPARE(record->shots.size(), 130'000);
}

void TestRecordLimits::onePictureMoreIsRefused()
{
    ReadError error;
    QVERIFY(!readPapywizard(pictures(130'001), &error));
    QCOMPARE(error.reason, QStringLiteral("more than 130000 pictures"));
    QVERIFY(!readPapywizard("<p>\n<shoot>\n" + QByteArray("<pict/>\n").repeated(130'001), &error));
    QCOMPARE(error.reason, QStringLiteral("more than 130000 pictures"));
    QCOMPARE(error.line, 130'003);

    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(pictures(130'001));
    file.flush();
    MerlinToSPP generator;
    QVERIFY(!generator.parse(file.fileName()));
    QVERIFY(generator.shots.isEmpty());
    QCOMPARE(generator.nbPicts, -1);
}

void TestRecordLimits::theLargestShootsAreRead_data()
{
    QTest::addColumn<int>("positions");
    QTest::addColumn<int>("exposures");
    QTest::addColumn<QByteArray>("moreChildren");

    const QByteArray none;
    const QByteArray three = " unit='x' source='head' quality='good'";
    QTest::newRow("70,000 with two children each") << 70'000 << 1 << none;
    QTest::newRow("70,000 with eight children each") << 70'000 << 1 << remarks(6, none);
    QTest::newRow("70,000 with eight children and their attributes")
        << 70'000 << 1 << remarks(6, three);
    QTest::newRow("31,000 with three exposures") << 31'000 << 3 << none;
    QTest::newRow("31,000 with three exposures and eight children each")
        << 31'000 << 3 << remarks(6, none);
}

void TestRecordLimits::theLargestShootsAreRead()
{
    QFETCH(int, positions);
    QFETCH(int, exposures);
    QFETCH(QByteArray, moreChildren);

    ReadError error;
    const auto record = readPapywizard(shoot(positions, exposures, moreChildren), &error);
    QVERIFY2(record.has_value(), qPrintable(error.reason));
    QCOMPARE(record->shots.size(), positions * exposures);
    const ShootData &last = record->shots.last();
    QCOMPARE(last.id, positions * exposures);
    QCOMPARE(last.bracket, exposures);
    QCOMPARE(last.yaw, static_cast<float>((positions - 1) % 350));
    QCOMPARE(last.pitch, static_cast<float>((positions - 1) / 350 - 90));
    QCOMPARE(last.time, QDateTime(QDate(2010, 5, 1), QTime(10, 20, 30)));
}

TEST_CLASS(TestRecordLimits, QCoreApplication)
#include "tst_recordlimits.moc"
