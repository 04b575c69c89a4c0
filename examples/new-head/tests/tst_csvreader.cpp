// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/csvreader.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHead;

/** What a list of shots says, and what makes it none. */
class TestCsvReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLineIsAShot();
    void brokenListIsRefusedWithItsLine_data();
    void brokenListIsRefusedWithItsLine();
};

void TestCsvReader::everyLineIsAShot()
{
    ReadError error;
    const auto shots = readCsv("a.jpg,-30.5,10\r\n\nb.jpg, 0 ,1e1,more\nc.jpg,0,0", &error);
    QVERIFY2(shots, qPrintable(error.reason));
    QCOMPARE(shots->size(), 3);
    QCOMPARE(shots->at(0).yaw, -30.5F);
    QCOMPARE(shots->at(0).pitch, 10.0F);
    QCOMPARE(shots->at(1).pitch, 10.0F);
    QCOMPARE(shots->at(2).id, 2);
}

void TestCsvReader::brokenListIsRefusedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<int>("line");
    QTest::newRow("no pitch") << QByteArray("a,0,0\nb,1\n") << 2;
    QTest::newRow("no number") << QByteArray("a,north,0\n") << 1;
    QTest::newRow("not a number") << QByteArray("a,nan,0\n") << 1;
    QTest::newRow("infinite") << QByteArray("a,0,0\n\na,0,inf\n") << 3;
    QTest::newRow("beyond a thousand turns") << QByteArray("a,360001,0\n") << 1;
    QTest::newRow("130,001 shots") << QByteArray("a,0,0\n").repeated(130'001) << 130'001;
}

void TestCsvReader::brokenListIsRefusedWithItsLine()
{
    QFETCH(QByteArray, csv);
    QFETCH(int, line);
    ReadError error;
    QVERIFY(!readCsv(csv, &error));
    QVERIFY(!error.reason.isEmpty());
    QCOMPARE(error.line, line);
}

TEST_CLASS(TestCsvReader, QCoreApplication)
#include "tst_csvreader.moc"
