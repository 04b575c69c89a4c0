// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/shottime.h"

#include "tests/support/testprogram.h"

#include <QTest>

#include <ctime>

using PanoHead::readShotTime;
using PanoHead::readShotTimes;

/** The times that heads write, in all their forms. */
class TestShotTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formsThatAreRead_data();
    void formsThatAreRead();
    void whatIsNoTimeIsInvalid_data();
    void whatIsNoTimeIsInvalid();
    void anyCutOfAStampIsReadOrInvalid();
    void noHourIsSkippedOrMadeTwice_data();
    void noHourIsSkippedOrMadeTwice();
    void timesWithoutADatePassMidnight_data();
    void timesWithoutADatePassMidnight();
    void timesStandInTheOrderOfTheirTexts();
};

void TestShotTime::formsThatAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("time"); // with milliseconds
    QTest::addColumn<int>("zoneMinutes");

    const auto row = [](const char *text, const char *time, int zoneMinutes = 0) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(time)
                            << zoneMinutes;
    };
    const char *const ten = "2024-05-01T10:00:00.000";
    row("2024-05-01_10h00m00s", ten);
    row("\n        2024-05-01_10h00m00s\r\n  ", ten);
    row("2024-05-01_10h00m00", ten);
    row("2024-05-01_10h00m00.25s", "2024-05-01T10:00:00.250");
    row("2024-05-01_10h00m00s.25", "2024-05-01T10:00:00.250");
    row("2024-05-01_23h59m59.999s", "2024-05-01T23:59:59.999");
    row("2024-05-01T10:00:00", ten);
    row("2024-05-01T10:00:00.5", "2024-05-01T10:00:00.500");
    row("2024-05-01T10:00:00,125", "2024-05-01T10:00:00.125");
    row("2024-05-01T10:00:00.123456789", "2024-05-01T10:00:00.123");
    row("2024-05-01T23:59:59.9999999", "2024-05-01T23:59:59.999"); // cut, not rounded up
    row("2024-05-01T10:00:00Z", ten);
    row("2024-05-01T10:00:00.250Z", "2024-05-01T10:00:00.250");
    row("2024-05-01T10:00:00+02:00", ten, 120);
    row("2024-05-01T10:00:00.250+02:00", "2024-05-01T10:00:00.250", 120);
    row("2024-05-01T10:00:00-0330", ten, -210);
    row("2024-05-01T10:00:00+14", ten, 840);
    row("2024-05-01T10:00:00+00:00", ten);
    row("2024-05-01 10:00:00", ten);
    row("2024-05-01 10:00:00 +02:00", ten, 120);
    row("2024:05:01 10:00:00", ten);
    row("2024:05:01 10:00:00.04", "2024-05-01T10:00:00.040");
    row("20240501_100000", ten);
    row("20240501T100000Z", ten);
    row("20240501_100000.001", "2024-05-01T10:00:00.001");
    row("10:00:00", "1970-01-01T10:00:00.000");
    row("00:00:00", "1970-01-01T00:00:00.000");
    row("10:00:00.75", "1970-01-01T10:00:00.750");
    row("10h00m00s", "1970-01-01T10:00:00.000");
    row("Wed May 1 10:00:00 2024", ten);
    row("Wed May 01 10:00:00 2024", ten);
    row("Wed May 1 10:00:00 2024 GMT+0200", ten, 120);
    row("2024-02-29_10h00m00s", "2024-02-29T10:00:00.000");
    row("9999-12-31_23h59m59s", "9999-12-31T23:59:59.000");
    row("0001-01-01_00h00m00s", "0001-01-01T00:00:00.000");
}

void TestShotTime::formsThatAreRead()
{
    QFETCH(QString, text);

    const QDateTime time = readShotTime(text);
    QVERIFY(time.isValid());
    QTEST(time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")), "time");
    QFETCH(int, zoneMinutes);
    QCOMPARE(time.offsetFromUtc(), 60 * zoneMinutes);
    QVERIFY(time.timeSpec() != Qt::LocalTime);
}

void TestShotTime::whatIsNoTimeIsInvalid_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QString();
    const char *const texts[]
        = { "", " \n", "now", "0", "2024", "2024-05-01", "10:00", "_", "T", "s", ":::::", "--_hms",
            // of no calendar and no clock
            "2023-02-29_10h00m00s", "2024-00-01_10h00m00s", "2024-13-01_10h00m00s",
            "2024-05-00_10h00m00s", "2024-05-32_10h00m00s", "0000-05-01_10h00m00s",
            "2024-05-01_24h00m00s", "2024-05-01_10h60m00s", "2024-05-01_10h00m60s",
            "2024-05-01_99h99m99s", "99999999_999999", "99:99:99", "0000:00:00 00:00:00",
            "    :  :     :  :  ", "Wed May 32 10:00:00 2024", "Wed May 1 25:00:00 2024",
            "Wed May 1 10:00:00 99999", "Wed May 1 10:00:00 -5", "Wed May 1 10:00:00 999999999999",
            // of another shape
            "24-05-01_10h00m00s", "2024-5-1_10h00m00s", "2024-05-01_1h00m00s",
            "2024-05-01-10h00m00s", "2024/05/01 10:00:00", "2024-05-01t10:00:00",
            "2024-05-01  10:00:00", "+024-05-01 10:00:00", "-2024-05-01 10:00:00",
            "2024-05-01_10h00m", "2024-05-01T10:00", "20240501100000", "2024-05-01_10H00M00S",
            "10.00.00", "1714557600",
            // with something behind
            "2024-05-01_10h00m00ss", "2024-05-01_10h00m00s.5s", "2024-05-01_10h00m00sx",
            "2024-05-01_10h00m000s", "2024-05-01T10:00:00.", "2024-05-01T10:00:00.Z",
            "2024-05-01T10:00:00.5.5", "2024-05-01T10:00:00.-5", "2024-05-01T10:00:00ZZ",
            "2024-05-01T10:00:00+", "2024-05-01T10:00:00+2", "2024-05-01T10:00:00+2:00",
            "2024-05-01T10:00:00+02:0", "2024-05-01T10:00:00+02:00x", "2024-05-01T10:00:00+15:00",
            "2024-05-01T10:00:00+02:60", "2024-05-01T10:00:00++2:00", "2024-05-01T10:00:00 CEST",
            "10:00:00 pm" };
    for (const char *text : texts) {
        QTest::addRow("'%s'", text) << QString::fromLatin1(text);
    }
    const auto row = [](const char *name, const QString &text) { QTest::newRow(name) << text; };
    row("NUL inside", QStringLiteral("2024-05-01_10h00m00s") + QChar(0));
    row("digits of another script", QStringLiteral("\u0662\u0660\u0662\u0664-05-01_10h00m00s"));
    row("fullwidth digits", QStringLiteral("\uFF11\uFF10:00:00"));
    row("lone surrogate", QStringLiteral("10:00:00") + QChar(0xD800));
    row("longer than any stamp",
        QStringLiteral("10:00:00.") + QString(56, QLatin1Char('0'))); // 65 characters
    row("ten million digits", QString(10'000'000, QLatin1Char('0')));
    row("ten million blanks and letters",
        QStringLiteral("Wed ") + QStringLiteral("a ").repeated(5'000'000));
}

void TestShotTime::whatIsNoTimeIsInvalid()
{
    QFETCH(QString, text);

    QVERIFY(!readShotTime(text).isValid());
}

void TestShotTime::anyCutOfAStampIsReadOrInvalid()
{
    const QString stamp = QStringLiteral("2024-05-01T10:00:00.250+02:00");
    int read = 0;
    for (int from = 0; from < stamp.size(); ++from) {
        for (int length = 0; length <= stamp.size() - from; ++length) {
            read += readShotTime(stamp.mid(from, length)).isValid() ? 1 : 0;
        }
    }
    // Cut behind the seconds, a digit of the fraction, the hours or the minutes of the zone; with
    // the date and from the time on.
    QCOMPARE(read, 2 * (1 + 3 + 2));
}

void TestShotTime::noHourIsSkippedOrMadeTwice_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("own form") << QStringLiteral("2024-03-31_01h59m30s")
                              << QStringLiteral("2024-03-31_02h00m30s");
    QTest::newRow("text form") << QStringLiteral("Sun Mar 31 01:59:30 2024")
                               << QStringLiteral("Sun Mar 31 02:00:30 2024");
    QTest::newRow("autumn") << QStringLiteral("2024-10-27_02h59m30s")
                            << QStringLiteral("2024-10-27_03h00m30s");
    QTest::newRow("autumn, text form")
        << QStringLiteral("Sun Oct 27 02:59:30 2024") << QStringLiteral("Sun Oct 27 03:00:30 2024");
}

/** Heads do not know when clocks change, or know it of another country. */
void TestShotTime::noHourIsSkippedOrMadeTwice()
{
    QFETCH(QString, first);
    QFETCH(QString, second);

    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin");
    tzset();
    const qint64 seconds = readShotTime(first).secsTo(readShotTime(second));
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
    QCOMPARE(seconds, 60);
}

void TestShotTime::timesWithoutADatePassMidnight_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QVector<int>>("seconds"); // after the first
    const auto row = [](const char *name, const char *texts, const QVector<int> &seconds) {
        QTest::newRow(name) << QString::fromLatin1(texts).split(QLatin1Char('|')) << seconds;
    };
    row("midnight", "23:59:50|00:00:05|00:00:20", { 0, 15, 30 });
    row("two midnights", "20:00:00|02:00:00|12:00:00|20:00:00|02:00:00",
        { 0, 21600, 57600, 86400, 108000 });
    row("back and forth, in another order than taken", "00:00:05|23:59:50|00:00:10", { 0, -15, 5 });
    row("what is no time, or has a date, means nothing", "23:59:50|?|2024-05-01 10:00:00|00:00:05",
        { 0, -1, -1, 15 });
}

void TestShotTime::timesWithoutADatePassMidnight()
{
    QFETCH(QStringList, texts);
    QFETCH(QVector<int>, seconds);

    const QVector<QDateTime> times = readShotTimes(texts);
    QCOMPARE(times.size(), texts.size());
    for (int i = 0; i < times.size(); ++i) {
        if (texts.at(i).size() == 8) {
            QCOMPARE(times.first().secsTo(times.at(i)), qint64{ seconds.at(i) });
        }
    }
}

void TestShotTime::timesStandInTheOrderOfTheirTexts()
{
    QCOMPARE(readShotTimes({}), QVector<QDateTime>());
    const QVector<QDateTime> times
        = readShotTimes({ QStringLiteral("2024-05-02 00:00:00"), QString(),
                          QStringLiteral("2024-05-01 23:59:59"), QStringLiteral("?") });
    QCOMPARE(times,
             (QVector<QDateTime>{ { QDate(2024, 5, 2), QTime(0, 0), Qt::UTC },
                                  {},
                                  { QDate(2024, 5, 1), QTime(23, 59, 59), Qt::UTC },
                                  {} }));
}

TEST_CLASS(TestShotTime, QCoreApplication)
#include "tst_shottime.moc"
