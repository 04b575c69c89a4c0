// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/photonames.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

/** The order that names tell, worked out by hand. */
class TestPhotoNames : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesTellAnOrder_data();
    void namesTellAnOrder();
    void oneFileOfEachPhotoIsKept_data();
    void oneFileOfEachPhotoIsKept();
    void countersAreFound_data();
    void countersAreFound();
};

void TestPhotoNames::namesTellAnOrder_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QString>("sorted");
    QTest::addColumn<QString>("counted");
    QTest::addColumn<QString>("other");
    const auto row = [](const char *name, const QString &paths, const char *sorted,
                        const char *counted, const char *other) {
        QTest::newRow(name) << paths.split(QLatin1Char(' ')) << QString::fromLatin1(sorted)
                            << QString::fromLatin1(counted) << QString::fromLatin1(other);
    };
    row("by value", QStringLiteral("P10.jpg P9.jpg p1.JPG"), "2 1 0", "2 1 0", "");
    row("leading zeros", QStringLiteral("a/P010.jpg a/P9.jpg"), "1 0", "1 0", "");
    row("rollover", QStringLiteral("D_0000.j D_0001.j D_9998.j D_9999.j"), "0 1 2 3", "2 3 0 1",
        "");
    row("rollover to 1", QStringLiteral("D_0001.j D_9999.j"), "0 1", "1 0", "");
    row("two blocks", QStringLiteral("D_0001.j D_4000.j"), "0 1", "0 1", "");
    row("five digits count on", QStringLiteral("D_00001.j D_09999.j"), "0 1", "0 1", "");
    row("a folder each", QStringLiteral("100/D_9999.j 101/D_0001.j"), "0 1", "0 1", "");
    row("a card each", QStringLiteral("a/D_0001.j a/D_0002.j b/D_0001.j b/D_0002.j"), "0 1 2 3",
        "0 1 2 3", "2 3 0 1");
    row("both cards", QStringLiteral("D_0001-1.j D_0001.j D_0002-1.j D_0002.j"), "0 1 2 3",
        "0 1 2 3", "0 2 1 3");
    row("words", QStringLiteral("birch.j alder.j"), "1 0", "1 0", "");
}

void TestPhotoNames::namesTellAnOrder()
{
    QFETCH(QStringList, paths);
    const NameOrder order = nameOrderOf(paths);
    const auto text = [](const std::vector<int> &indices) {
        QStringList words;
        for (int index : indices) {
            words += QString::number(index);
        }
        return words.join(QLatin1Char(' '));
    };
    QTEST(text(order.sorted), "sorted");
    QTEST(text(order.counted), "counted");
    QTEST(text(order.other), "other");
}

void TestPhotoNames::oneFileOfEachPhotoIsKept_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("kept");
    const auto row = [](const char *name, const char *given, const char *kept) {
        QTest::newRow(name) << QString::fromLatin1(given) << QString::fromLatin1(kept);
    };
    row("RAW beside JPEG", "a/1.JPG a/1.NEF a/2.CR2 a/2.jpeg", "a/1.JPG a/2.jpeg");
    row("RAW beside TIFF", "1.dng 1.tif", "1.tif");
    row("TIFF beside JPEG", "1.tif 1.jpg", "1.jpg");
    row("RAW alone", "1.NEF 2.NEF", "1.NEF 2.NEF");
    row("another case", "IMG_1.jpg img_1.nef", "IMG_1.jpg");
    row("two photos whose names differ in case", "IMG_1.jpg img_1.jpg", "IMG_1.jpg img_1.jpg");
    row("another folder", "a/1.jpg b/1.nef", "a/1.jpg b/1.nef");
    row("without an ending", "1 1.jpg", "1.jpg");
    row("none", "", "");
}

void TestPhotoNames::oneFileOfEachPhotoIsKept()
{
    QFETCH(QString, given);
    QFETCH(QString, kept);
    QCOMPARE(withoutCompanions(given.split(QLatin1Char(' '))).join(QLatin1Char(' ')), kept);
}

void TestPhotoNames::countersAreFound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("counter");
    QTest::newRow("usual") << QStringLiteral("/a/DSC_0042.JPG") << 42;
    QTest::newRow("a copy") << QStringLiteral("/a/DSC_0042-2.JPG") << 42;
    QTest::newRow("short") << QStringLiteral("/a/P7.jpg") << 7;
    QTest::newRow("a date") << QStringLiteral("/a/20240501_101112_003.jpg") << 3;
    QTest::newRow("of the folder") << QStringLiteral("/100CANON/alder.jpg") << -1;
    QTest::newRow("too long") << QStringLiteral("/a/123456789012345.jpg") << 789012345;
    QTest::newRow("no name") << QString() << -1;
}

void TestPhotoNames::countersAreFound()
{
    QFETCH(QString, path);
    QTEST(counterOf(path), "counter");
}

TEST_CLASS(TestPhotoNames, QCoreApplication)
#include "tst_photonames.moc"
