// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/host/cli/opens.h"
#include "tests/support/testprogram.h"

#include <QtTest>

/** How often commands open their input files. */
class TestCliOpens : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachPhotoIsOpenedOnce_data();
    void eachPhotoIsOpenedOnce();
};

void TestCliOpens::eachPhotoIsOpenedOnce_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QStringList>("options");
    const auto words
        = [](const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
    QTest::newRow("import") << words("import") << words("-o a.pto --json a.json");
    QTest::newRow("import by time") << words("import") << words("-o a.pto --order time");
    QTest::newRow("import in another order") << words("import") << words("-o a.pto --order given");
    QTest::newRow("check") << words("check") << QStringList();
    QTest::newRow("check, by time") << words("check") << words("--order time --json");
    QTest::newRow("describe") << words("describe") << QStringList();
    QTest::newRow("preview") << words("preview") << words("-o a.png");
}

void TestCliOpens::eachPhotoIsOpenedOnce()
{
    QFETCH(QStringList, command);
    QFETCH(QStringList, options);
    constexpr int kPhotos = 6;
    CliBench bench;
    const QString record = bench.record(QStringLiteral("six.xml"), CliBench::row(kPhotos));
    const QStringList photos = bench.photos(kPhotos);
    QStringList paths;
    for (const QString &photo : photos) {
        paths += bench.path(photo);
    }
    Opens opens(paths);
    Opens recordOpens({ bench.path(record) });
    const CliBench::Run run = bench.run(
        command + QStringList{ QStringLiteral("papywizard"), record } + photos + options);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(opens.counts(), QVector<int>(kPhotos, 1));
    // By the host, which says what is wrong with it, and by the page.
    QCOMPARE(recordOpens.counts(), QVector<int>{ 2 });
}

TEST_CLASS(TestCliOpens, QCoreApplication)
#include "tst_cli_opens.moc"
