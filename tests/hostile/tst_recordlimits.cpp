// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/claussscript.h"
#include "importers/clauss/clausstospp.h"
#include "importers/papywizard/merlintospp.h"
#include "importers/papywizard/papywizardreader.h"

#include <QTemporaryFile>
#include <QTest>

using namespace PanoHead;

/** Records that are larger than any head's. */
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

} // namespace

void TestRecordLimits::aScriptMayHaveSoManyShots()
{
    const ClaussScript script = readClaussScript(shots(80'000));
    QVERIFY(script.isSound);
    QCOMPARE(script.shots.size(), 80'000);
    QCOMPARE(script.shots.last().id, 79'999);
}

void TestRecordLimits::oneShotMoreLeavesNone()
{
    const ClaussScript script = readClaussScript("# a long one\n" + shots(80'001));
    QVERIFY(!script.isSound);
    QVERIFY(script.shots.isEmpty());
    QCOMPARE(script.firstError.reason, QStringLiteral("more than 80000 shots"));
    QCOMPARE(script.firstError.line, 80'002);
}

void TestRecordLimits::aBadAngleBehindTheLimitIsNotTheReason()
{
    const ClaussScript script = readClaussScript(shots(80'001) + "op_h-angle=x\n");
    QCOMPARE(script.firstError.reason, QStringLiteral("more than 80000 shots"));
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
    file.write(shots(80'000));
    file.flush();
    QVERIFY(!generator.parse(file.fileName()));
    QVERIFY(generator.shots.isEmpty());
}

void TestRecordLimits::anXmlRecordMayHaveSoManyShots()
{
    const auto record = readPapywizard(pictures(80'000));
    QVERIFY(record.has_value());
    QCOMPARE(record->shots.size(), 80'000);
}

void TestRecordLimits::onePictureMoreIsRefused()
{
    ReadError error;
    QVERIFY(!readPapywizard(pictures(80'001), &error));
    QCOMPARE(error.reason, QStringLiteral("more than 80000 pictures"));

    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(pictures(80'001));
    file.flush();
    MerlinToSPP generator;
    QVERIFY(!generator.parse(file.fileName()));
    QVERIFY(generator.shots.isEmpty());
    QCOMPARE(generator.nbPicts, -1);
}

QTEST_GUILESS_MAIN(TestRecordLimits)
#include "tst_recordlimits.moc"
