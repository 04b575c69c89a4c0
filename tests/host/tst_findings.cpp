// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/findings.h"
#include "tests/support/testprogram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace PanoHost;

/** What is said of record and photos, worked out by hand. */
class TestFindings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void recordIsSummedUp();
    void unreadablePhotosAreTrouble();
    void orderIsThatOfTheCaptureTimes_data();
    void orderIsThatOfTheCaptureTimes();
    void onlyPausesThatStandOutAreNamed_data();
    void onlyPausesThatStandOutAreNamed();
    void jsonTellsTheSame();
    void schemaIsTheOneInTheRepository();
};

namespace
{

/** Photos /a/P0.jpg ... taken at \p seconds; 0: not known. */
QVector<PhotoInfo> shot(const QVector<int> &seconds)
{
    QVector<PhotoInfo> photos;
    for (int i = 0; i < seconds.size(); ++i) {
        PhotoInfo photo;
        photo.path = QStringLiteral("/a/P%1.jpg").arg(i);
        photo.timeMs = seconds.at(i) * 1000LL;
        photo.focal35mm = 24.0;
        photos += photo;
    }
    return photos;
}

} // namespace

void TestFindings::recordIsSummedUp()
{
    PanoHead::RecordSummary record;
    record.shotCount = 26;
    record.bracketCount = 3;
    record.focal35mm = 24.0;
    record.lens = LensModel::Fisheye;
    const Finding finding = recordFinding(QStringLiteral("/a/b.xml"), record);
    QCOMPARE(finding.topic, QStringLiteral("record"));
    QCOMPARE(finding.text,
             QStringLiteral("/a/b.xml: 26 shots, bracket 3, focal 24 mm, lens fisheye"));
}

void TestFindings::unreadablePhotosAreTrouble()
{
    QCOMPARE(photosFinding(shot({ 1, 2 }), 2).kind, Finding::Kind::Fact);
    const Finding less = photosFinding(shot({ 1, 2 }), 3);
    QCOMPARE(less.kind, Finding::Kind::Trouble);
    QCOMPARE(less.text, QStringLiteral("3 given, 2 readable, focal 24 mm, lens not known"));
    const Finding bad = badPhotoFinding(QStringLiteral("/a/x.jpg"), QStringLiteral("cut off"));
    QCOMPARE(bad.text, QStringLiteral("/a/x.jpg: cut off"));
    QCOMPARE(bad.files, QStringList(QStringLiteral("/a/x.jpg")));
}

void TestFindings::orderIsThatOfTheCaptureTimes_data()
{
    QTest::addColumn<QVector<int>>("seconds");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isTrouble");
    QTest::addColumn<QStringList>("files");
    const QString agrees = QStringLiteral("capture times agree");
    QTest::newRow("none") << QVector<int>{} << agrees << false << QStringList();
    QTest::newRow("one") << QVector<int>{ 5 } << agrees << false << QStringList();
    QTest::newRow("rising") << QVector<int>{ 5, 6, 9 } << agrees << false << QStringList();
    QTest::newRow("the same second") << QVector<int>{ 5, 5, 5 } << agrees << false << QStringList();
    QTest::newRow("back") << QVector<int>{ 5, 7, 6 }
                          << QStringLiteral("P2.jpg was taken before P1.jpg") << true
                          << QStringList{ QStringLiteral("/a/P1.jpg"),
                                          QStringLiteral("/a/P2.jpg") };
    QTest::newRow("without a time")
        << QVector<int>{ 5, 0, 6 } << QStringLiteral("not all photos have a capture time") << false
        << QStringList(QStringLiteral("/a/P1.jpg"));
}

void TestFindings::orderIsThatOfTheCaptureTimes()
{
    QFETCH(QVector<int>, seconds);
    const Finding finding = orderFinding(shot(seconds));
    QTEST(finding.text, "text");
    QTEST(finding.kind == Finding::Kind::Trouble, "isTrouble");
    QTEST(finding.files, "files");
}

void TestFindings::onlyPausesThatStandOutAreNamed_data()
{
    QTest::addColumn<QVector<int>>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("one photo") << QVector<int>{ 5 } << QStringLiteral("none");
    QTest::newRow("even") << QVector<int>{ 10, 13, 16, 19 } << QStringLiteral("none");
    // Four times the usual three seconds are twelve.
    QTest::newRow("just short") << QVector<int>{ 10, 13, 16, 27, 30 } << QStringLiteral("none");
    QTest::newRow("stands out") << QVector<int>{ 10, 13, 16, 28, 31 }
                                << QStringLiteral("12 s after P2.jpg (usually 3 s)");
    // Less than five seconds are no pause, however quick the head is.
    QTest::newRow("quick head") << QVector<int>{ 10, 11, 12, 16, 17 } << QStringLiteral("none");
    QTest::newRow("first of two") << QVector<int>{ 10, 30, 31, 51, 52, 53 }
                                  << QStringLiteral("20 s after P0.jpg (usually 1 s)");
}

void TestFindings::onlyPausesThatStandOutAreNamed()
{
    QFETCH(QVector<int>, seconds);
    const Finding finding = gapFinding(shot(seconds));
    QTEST(finding.text, "text");
    QCOMPARE(finding.kind == Finding::Kind::Trouble, finding.text != QLatin1String("none"));
}

void TestFindings::jsonTellsTheSame()
{
    const QVector<Finding> findings = photoFindings(shot({ 5, 7, 6 }), 3);
    const QJsonObject object = QJsonDocument::fromJson(findingsToJson(findings, false)).object();
    QCOMPARE(object.value(QStringLiteral("schema")).toInt(), 1);
    QCOMPARE(object.value(QStringLiteral("importable")).toBool(true), false);
    const QJsonArray rows = object.value(QStringLiteral("findings")).toArray();
    QCOMPARE(rows.size(), 3);
    const QJsonObject order = rows.at(1).toObject();
    QCOMPARE(order.value(QStringLiteral("topic")).toString(), QStringLiteral("order"));
    QCOMPARE(order.value(QStringLiteral("text")).toString(),
             QStringLiteral("P2.jpg was taken before P1.jpg"));
    QCOMPARE(order.value(QStringLiteral("trouble")).toBool(), true);
    QCOMPARE(order.value(QStringLiteral("files")).toArray(),
             (QJsonArray{ QStringLiteral("/a/P1.jpg"), QStringLiteral("/a/P2.jpg") }));
    QCOMPARE(order.value(QStringLiteral("cure")).toString(), QStringLiteral("try --order time"));
    QCOMPARE(order.value(QStringLiteral("action")).toString(), QStringLiteral("fit"));

    Finding missing;
    missing.shots = { 4, 11 };
    missing.sureness = 0.75;
    missing.action = Finding::Action::Reshoot;
    const QJsonObject row = QJsonDocument::fromJson(findingsToJson({ missing }, true))
                                .object()
                                .value(QStringLiteral("findings"))
                                .toArray()
                                .at(0)
                                .toObject();
    // Photographers count from 1.
    QCOMPARE(row.value(QStringLiteral("shots")).toArray(), (QJsonArray{ 5, 12 }));
    QCOMPARE(row.value(QStringLiteral("sureness")).toDouble(), 0.75);
    QCOMPARE(row.value(QStringLiteral("action")).toString(), QStringLiteral("reshoot"));
}

void TestFindings::schemaIsTheOneInTheRepository()
{
    QFile file(QStringLiteral(PANOHOST_CHECK_SCHEMA));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), findingsSchema());
}

TEST_CLASS(TestFindings, QCoreApplication)
#include "tst_findings.moc"
