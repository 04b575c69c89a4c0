// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignmentreport.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace PanoHost;

namespace
{

AlignedPhoto photo(const QString &name, int points)
{
    AlignedPhoto made;
    made.path = QStringLiteral("/shoot/") + name;
    made.points = points;
    return made;
}

AlignmentReport goodReport()
{
    AlignmentReport report;
    for (int i = 1; i <= 26; ++i) {
        report.photos.append(photo(QStringLiteral("IMG_%1.jpg").arg(i), 140));
    }
    report.pointCount = 1843;
    report.medianPixels = 0.204;
    report.playDegrees = 0.171;
    report.recordedFocal35mm = 24.0;
    report.focal35mm = 24.48;
    report.mountPitchDegrees = 0.8;
    report.isPlaced = true;
    return report;
}

} // namespace

class TestAlignmentReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatPhotographersWantToKnow();
    void namesPhotosWithoutPoints();
    void namesFaultsAndTheirLikelyCauses();
    void keepsSilentAboutWhatIsAsItShouldBe();
    void notesComeLastAndAloneWhenNothingMoved();
    void jsonHoldsAllOfIt();
    void jsonIsReadBack();
    void schemaIsTheOneInTheRepository();
};

void TestAlignmentReport::saysWhatPhotographersWantToKnow()
{
    QCOMPARE(sentences(goodReport()),
             QStringList({ QStringLiteral("26 of 26 photos tied, 1,843 points, median 0.2 pixels"),
                           QStringLiteral("the head repeats to 0.17 degrees"),
                           QStringLiteral("the camera sits 0.8 degrees crooked on the head"),
                           QStringLiteral("lens 24.5 mm instead of 24") }));
}

void TestAlignmentReport::namesPhotosWithoutPoints()
{
    AlignmentReport report = goodReport();
    report.photos[3].points = 2;
    QVERIFY(sentences(report).contains(
        QStringLiteral("no points in 1 photo (IMG_4.jpg): kept where the head put it")));
    for (int i = 10; i < 16; ++i) {
        report.photos[i].points = 0;
    }
    QVERIFY(sentences(report).contains(QStringLiteral(
        "no points in 7 photos (IMG_4.jpg, IMG_11.jpg, IMG_12.jpg, IMG_13.jpg and 3 more): kept "
        "where the head put them")));
}

void TestAlignmentReport::namesFaultsAndTheirLikelyCauses()
{
    AlignmentReport report = goodReport();
    report.slips = { { QStringLiteral("/shoot/IMG_14.jpg"), -6.02, 0.0 },
                     { QStringLiteral("/shoot/IMG_20.jpg"), 0.0, 2.0 } };
    report.bumps = { { QStringLiteral("/shoot/IMG_9.jpg"), 3.04 } };
    report.parallaxPixels = 1.07;
    const QStringList lines = sentences(report).mid(4);
    QCOMPARE(lines,
             QStringList(
                 { QStringLiteral("from IMG_14.jpg on the head stands 6 degrees farther left than "
                                  "recorded: did its turning axis slip?"),
                   QStringLiteral("from IMG_20.jpg on the head stands 2 degrees higher than "
                                  "recorded: did its tilting axis slip?"),
                   QStringLiteral("IMG_9.jpg was taken 3 degrees from where the head says: was it "
                                  "bumped?"),
                   QStringLiteral("residuals suggest parallax (1.1 pixels): near things move "
                                  "against far ones; is the camera's nodal point on the head's "
                                  "axes?") }));
}

void TestAlignmentReport::keepsSilentAboutWhatIsAsItShouldBe()
{
    AlignmentReport report = goodReport();
    report.playDegrees.reset();
    report.focal35mm = 24.02;
    report.mountPitchDegrees = 0.05;
    QCOMPARE(sentences(report).size(), 1);
    report.playDegrees = 0.003;
    QCOMPARE(sentences(report).last(),
             QStringLiteral("the head repeats to less than 0.01 degrees"));
    report.playDegrees.reset();
    // A grid's tilt is nobody's fault.
    report.isGrid = true;
    report.mountPitchDegrees = 6.0;
    QCOMPARE(sentences(report).size(), 1);
    report.yawScale = 1.125;
    QCOMPARE(
        sentences(report).last(),
        QStringLiteral("the head's steps are 1.125 (across) and 1 (up) times what was stated"));
}

void TestAlignmentReport::notesComeLastAndAloneWhenNothingMoved()
{
    AlignmentReport report;
    report.photos = { photo(QStringLiteral("a.jpg"), 0) };
    report.notes.append(QStringLiteral("no spot was found in two photos: kept as recorded"));
    QCOMPARE(sentences(report), report.notes);
}

void TestAlignmentReport::jsonHoldsAllOfIt()
{
    AlignmentReport report = goodReport();
    report.photos[0].aligned = { 12.5, -3.25, 0.5 };
    report.bumps = { { QStringLiteral("/shoot/IMG_9.jpg"), 3.0 } };
    const QJsonObject json
        = QJsonDocument::fromJson(alignmentToJson(report, QStringLiteral("/shoot"))).object();
    QCOMPARE(json[QLatin1String("schema")].toInt(), 1);
    QCOMPARE(json[QLatin1String("points")].toInt(), 1843);
    QCOMPARE(json[QLatin1String("head")].toObject()[QLatin1String("playDeg")].toDouble(), 0.171);
    QVERIFY(json[QLatin1String("parallaxPixels")].isNull());
    const QJsonObject first = json[QLatin1String("photos")].toArray()[0].toObject();
    QCOMPARE(first[QLatin1String("file")].toString(), QStringLiteral("IMG_1.jpg"));
    QCOMPARE(first[QLatin1String("aligned")].toObject()[QLatin1String("pitchDeg")].toDouble(),
             -3.25);
    QCOMPARE(json[QLatin1String("bumps")].toArray().size(), 1);
}

void TestAlignmentReport::jsonIsReadBack()
{
    AlignmentReport report = goodReport();
    report.photos[2].aligned = { 12.5, -3.25, 0.5 };
    report.photos[2].movedDegrees = 0.25;
    report.exposureShifts = { 0.5, -0.25 };
    report.isPlaced = true;
    const QString folder = QStringLiteral("/shoot");
    const auto read = alignmentFromJson(alignmentToJson(report, folder), folder);
    QVERIFY2(read.ok(), read.ok() ? "" : qPrintable(read.error().text()));
    QCOMPARE(read.value().photos.size(), report.photos.size());
    const AlignedPhoto &photo = read.value().photos.at(2);
    QCOMPARE(photo.path, QStringLiteral("/shoot/IMG_3.jpg"));
    QCOMPARE(photo.points, report.photos.at(2).points);
    QCOMPARE(photo.movedDegrees, 0.25);
    QCOMPARE(photo.aligned.yaw, 12.5);
    QCOMPARE(read.value().exposureShifts, report.exposureShifts);
    QVERIFY(read.value().isPlaced);
    QVERIFY(!alignmentFromJson("{", folder).ok());
    QVERIFY(!alignmentFromJson("{\"schema\": 2}", folder).ok());
}

void TestAlignmentReport::schemaIsTheOneInTheRepository()
{
    QFile file(QStringLiteral(PANOHOST_ALIGNMENT_SCHEMA));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), alignmentSchema());
}

TEST_CLASS(TestAlignmentReport, QCoreApplication)
#include "tst_alignmentreport.moc"
