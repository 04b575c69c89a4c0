// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/displaytexts.h"

#include "shoot/anglerange.h"
#include "tests/support/testprogram.h"

#include <QTest>

#include <limits>

using PanoHead::AngleRange;

Q_DECLARE_METATYPE(PanoHead::AngleRange)

class TestDisplayTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photoNamesAreQuoted_data();
    void photoNamesAreQuoted();
    void everyPhotoIsNamed();
    void countsBelowOneAreNotAvailable_data();
    void countsBelowOneAreNotAvailable();
    void rangesShowSixDigits_data();
    void rangesShowSixDigits();
    void focalLengthsHaveTwoDecimals_data();
    void focalLengthsHaveTwoDecimals();
    void warningsAreRed();
};

void TestDisplayTexts::photoNamesAreQuoted_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QStringList &files, const char *text) {
        QTest::newRow(name) << files << QString::fromUtf8(text);
    };
    row("none", {}, "");
    row("one", { QStringLiteral("/photos/a.jpg") }, "\"a.jpg\"; ");
    row("several, with a blank behind the last",
        { QStringLiteral("/a/1.jpg"), QStringLiteral("/b/2.jpg") }, "\"1.jpg\"; \"2.jpg\"; ");
    row("no folder", { QStringLiteral("a.jpg") }, "\"a.jpg\"; ");
    row("blanks, quotes and semicolons stay", { QStringLiteral("/p/a \"b\"; c.jpg") },
        "\"a \"b\"; c.jpg\"; ");
    row("place markers stay", { QStringLiteral("/p/%1%2.jpg") }, "\"%1%2.jpg\"; ");
    row("markup stays", { QStringLiteral("/p/<b>&amp;.jpg") }, "\"<b>&amp;.jpg\"; ");
    row("backslash is part of a name", { QStringLiteral("/p/a\\b.jpg") }, "\"a\\b.jpg\"; ");
    row("letters beyond ASCII", { QString::fromUtf8("/p/\u00e9\u65e5.jpg") },
        "\"\u00e9\u65e5.jpg\"; ");
    row("empty name", { QString() }, "\"\"; ");
}

void TestDisplayTexts::photoNamesAreQuoted()
{
    QFETCH(QStringList, files);
    QTEST(PanoHead::photoNames(files), "text");
}

void TestDisplayTexts::everyPhotoIsNamed()
{
    QStringList files;
    for (int i = 0; i < 10'000; ++i) {
        files.append(QStringLiteral("/photos/img%1.jpg").arg(i, 5, 10, QLatin1Char('0')));
    }
    const QString text = PanoHead::photoNames(files);
    QCOMPARE(text.size(), 10'000 * 16); // "img00000.jpg" with two quotes, semicolon and blank
    QVERIFY(text.endsWith(QLatin1String("\"img09999.jpg\"; ")));
}

void TestDisplayTexts::countsBelowOneAreNotAvailable_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");

    QTest::newRow("none loaded") << -1 << QStringLiteral("none");
    QTest::newRow("0") << 0 << QStringLiteral("none");
    QTest::newRow("1") << 1 << QStringLiteral("1");
    QTest::newRow("no digit groups") << 70'000 << QStringLiteral("70000");
}

void TestDisplayTexts::countsBelowOneAreNotAvailable()
{
    QFETCH(int, count);
    QTEST(PanoHead::countText(count, QStringLiteral("none")), "text");
}

void TestDisplayTexts::rangesShowSixDigits_data()
{
    QTest::addColumn<AngleRange>("range");
    QTest::addColumn<QString>("text");

    constexpr float kLargest = std::numeric_limits<float>::max();
    const auto row = [](const char *name, const AngleRange &range, const char *text) {
        QTest::newRow(name) << range << QString::fromUtf8(text);
    };
    row("whole degrees", { -30, 60 }, "-30,60");
    row("decimals", { -12.5F, 0.1F }, "-12.5,0.1");
    row("six significant digits", { 12.3456789F, 1234.5678F }, "12.3457,1234.57");
    row("no position", { 0, 0 }, "0,0");
    row("large angles", { -1e6F, 123456 }, "-1e+06,123456");
    row("unknown", AngleRange::unknown(), "none");
    row("only the minimum unknown", { -kLargest, 3 }, "none");
    row("only the maximum unknown", { 3, kLargest }, "none");
    row("scan without shots shows its start", AngleRange::scanStart(), "3.40282e+38,-3.40282e+38");
    row("the next number to unknown", { -3.4028233e38F, 0 }, "-3.40282e+38,0");
}

void TestDisplayTexts::rangesShowSixDigits()
{
    QFETCH(AngleRange, range);
    QTEST(PanoHead::rangeText(range, QStringLiteral("none")), "text");
}

void TestDisplayTexts::focalLengthsHaveTwoDecimals_data()
{
    QTest::addColumn<double>("focal");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole") << 24.0 << QStringLiteral("24.00mm");
    QTest::newRow("one decimal") << 27.2 << QStringLiteral("27.20mm");
    QTest::newRow("rounded down") << 16.664 << QStringLiteral("16.66mm");
    QTest::newRow("rounded up") << 23.9961 << QStringLiteral("24.00mm");
    QTest::newRow("no digit groups") << 10'000.0 << QStringLiteral("10000.00mm");
    QTest::newRow("0") << 0.0 << QStringLiteral("0.00mm");
    QTest::newRow("negative") << -8.0 << QStringLiteral("-8.00mm");
}

void TestDisplayTexts::focalLengthsHaveTwoDecimals()
{
    QFETCH(double, focal);
    QTEST(PanoHead::focalText(focal), "text");
}

void TestDisplayTexts::warningsAreRed()
{
    QCOMPARE(PanoHead::warningText(QString()), QStringLiteral("<p style='color:red'></p>"));
    QCOMPARE(PanoHead::warningText(QStringLiteral("100 %1")),
             QStringLiteral("<p style='color:red'>100 %1</p>"));
}

TEST_CLASS(TestDisplayTexts, QCoreApplication)
#include "tst_displaytexts.moc"
