// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/photogroups.h"
#include "tests/host/cardshoots.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <numeric>

using namespace PanoHost;
using CardShoots::photo;

namespace
{

PhotoOnDisk onDisk(const char *path, double seconds, qint64 bytes = 1000)
{
    PhotoOnDisk file{ photo(QString::fromUtf8(path), seconds), bytes };
    file.info.isRaw = file.info.path.endsWith(QLatin1String(".CR2"));
    return file;
}

/** Photos at \p seconds with numbered names. */
QVector<CardPhoto> photosAt(const QVector<double> &seconds)
{
    QVector<CardPhoto> photos;
    for (const double second : seconds) {
        photos += CardPhoto{ photo(CardShoots::pathOf(photos.size() + 1), second), {}, {} };
    }
    return photos;
}

/** The sizes of all runs. */
QVector<int> runSizes(const QVector<CardPhoto> &photos)
{
    QVector<int> sizes;
    for (const PhotoStream &stream : photoStreams(photos)) {
        for (const PhotoRun &run : stream.runs) {
            sizes += static_cast<int>(run.size());
        }
    }
    std::sort(sizes.begin(), sizes.end());
    return sizes;
}

PhotoRun allOf(const QVector<CardPhoto> &photos)
{
    PhotoRun run(photos.size());
    std::iota(run.begin(), run.end(), 0);
    return run;
}

} // namespace

Q_DECLARE_METATYPE(QVector<PhotoOnDisk>)

/** What is told of photos without a record. */
class TestPhotoGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesOfOnePhotoAreOne_data();
    void filesOfOnePhotoAreOne();
    void aRawFileKnowsTheTimeForItsPicture();
    void longPausesDivide_data();
    void longPausesDivide();
    void camerasLensesAndSizesDivide();
    void camerasThatAreAlikeAreToldByTheirFolders();
    void photosWithoutTimesGoByFolderAndCounter();
    void bracketsAreToldByExposures_data();
    void bracketsAreToldByExposures();
    void gridsHaveARhythm_data();
    void gridsHaveARhythm();
};

void TestPhotoGroups::filesOfOnePhotoAreOne_data()
{
    QTest::addColumn<QVector<PhotoOnDisk>>("files");
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("raws");
    QTest::addColumn<int>("copies");
    using Files = QVector<PhotoOnDisk>;
    QTest::newRow("side by side") << Files{ onDisk("/a/X.CR2", 5), onDisk("/a/X.JPG", 5) } << 1 << 1
                                  << 0;
    QTest::newRow("in other letters")
        << Files{ onDisk("/a/IMG_1.CR2", 5), onDisk("/a/img_1.jpg", 5) } << 1 << 1 << 0;
    QTest::newRow("without times")
        << Files{ onDisk("/a/X.CR2", -1), onDisk("/a/X.JPG", -1) } << 1 << 1 << 0;
    QTest::newRow("the RAW file tells fractions of a second")
        << Files{ onDisk("/a/X.CR2", 5.9), onDisk("/a/X.JPG", 5) } << 1 << 1 << 0;
    QTest::newRow("in two folders")
        << Files{ onDisk("/raw/X.CR2", 5), onDisk("/jpg/X.JPG", 5) } << 1 << 1 << 0;
    QTest::newRow("in two folders, no times: two cards?")
        << Files{ onDisk("/b/X.CR2", -1), onDisk("/a/X.JPG", -1) } << 2 << 0 << 0;
    QTest::newRow("an hour apart")
        << Files{ onDisk("/a/X.CR2", 5), onDisk("/a/X.JPG", 3605) } << 2 << 0 << 0;
    QTest::newRow("names that differ in letters only")
        << Files{ onDisk("/a/X.JPG", 5), onDisk("/a/x.jpg", 5), onDisk("/a/x.CR2", 5) } << 2 << 1
        << 0;
    QTest::newRow("a copy") << Files{ onDisk("/a/X.JPG", 5), onDisk("/b/X.JPG", 5) } << 1 << 0 << 1;
    QTest::newRow("copies of both") << Files{ onDisk("/a/X.JPG", 5), onDisk("/a/X.CR2", 5, 9000),
                                              onDisk("/b/X.JPG", 5), onDisk("/b/X.CR2", 5, 9000) }
                                    << 1 << 1 << 2;
    QTest::newRow("no copy: another length")
        << Files{ onDisk("/a/X.JPG", 5, 1000), onDisk("/b/X.JPG", 5, 1001) } << 2 << 0 << 0;
    QTest::newRow("no copy: no times")
        << Files{ onDisk("/a/X.JPG", -1), onDisk("/b/X.JPG", -1) } << 2 << 0 << 0;
}

void TestPhotoGroups::filesOfOnePhotoAreOne()
{
    QFETCH(QVector<PhotoOnDisk>, files);
    QFETCH(int, photos);
    QFETCH(int, raws);
    QFETCH(int, copies);
    int rawCount = 0;
    int copyCount = 0;
    const QVector<CardPhoto> found = photosIn(files);
    for (const CardPhoto &each : found) {
        rawCount += each.raws.size();
        copyCount += each.copies.size();
    }
    QCOMPARE(found.size(), photos);
    QCOMPARE(rawCount, raws);
    QCOMPARE(copyCount, copies);
    if (raws > 0) {
        QVERIFY(!found.first().info.isRaw); // what can be stitched stands for both
    }
}

void TestPhotoGroups::aRawFileKnowsTheTimeForItsPicture()
{
    const QVector<CardPhoto> found = photosIn({ onDisk("/a/X.JPG", -1), onDisk("/a/X.CR2", 7) });
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().info.path, QStringLiteral("/a/X.JPG"));
    QCOMPARE(found.first().info.timeText, QStringLiteral("2024-05-01T10:00:07"));
}

void TestPhotoGroups::longPausesDivide_data()
{
    QTest::addColumn<QVector<double>>("seconds");
    QTest::addColumn<QVector<int>>("sizes");
    QTest::newRow("none") << QVector<double>{} << QVector<int>{};
    QTest::newRow("one") << QVector<double>{ 3 } << QVector<int>{ 1 };
    QTest::newRow("a rhythm of 4 s, then a minute's pause")
        << QVector<double>{ 0, 4, 8, 12, 16, 76, 80, 84, 88 } << QVector<int>{ 4, 5 };
    QTest::newRow("half a minute is no pause")
        << QVector<double>{ 0, 4, 8, 12, 42, 46, 50, 54 } << QVector<int>{ 8 };
    // 100 s are long for 12 s, not for 60 s.
    QTest::newRow("night: a rhythm of a minute")
        << QVector<double>{ 0, 60, 120, 180, 280, 340, 400 } << QVector<int>{ 7 };
    QTest::newRow("the slower one follows")
        << QVector<double>{ 0, 12, 24, 36, 48, 148, 208, 268, 328 } << QVector<int>{ 4, 5 };
    QTest::newRow("not in the order of names")
        << QVector<double>{ 88, 0, 84, 4, 80, 8 } << QVector<int>{ 3, 3 };
    QTest::newRow("a clock without seconds, two shots a minute")
        << QVector<double>{ 0, 0, 60, 60, 120, 120, 180, 180, 600, 600, 660, 660, 720 }
        << QVector<int>{ 5, 8 };
    QTest::newRow("all at once") << QVector<double>{ 9, 9, 9, 9 } << QVector<int>{ 4 };
}

void TestPhotoGroups::longPausesDivide()
{
    QFETCH(QVector<double>, seconds);
    QFETCH(QVector<int>, sizes);
    QCOMPARE(runSizes(photosAt(seconds)), sizes);
}

void TestPhotoGroups::camerasLensesAndSizesDivide()
{
    QVector<CardPhoto> photos = photosAt({ 0, 4, 8, 12, 16, 20 });
    QCOMPARE(runSizes(photos), QVector<int>{ 6 });
    photos[1].info.camera = QStringLiteral("Another");
    photos[2].info.lensName = QStringLiteral("Another");
    photos[3].info.storedSize = QSize(3000, 2000);
    photos[4].info.storedSize = QSize(4000, 6000); // the same, held upright
    QCOMPARE(runSizes(photos), (QVector<int>{ 1, 1, 1, 3 }));
}

void TestPhotoGroups::camerasThatAreAlikeAreToldByTheirFolders()
{
    QVector<CardPhoto> photos;
    CardShoots::take(photos, 1, 10, 0, QStringLiteral("/one"));
    CardShoots::take(photos, 1, 10, 0, QStringLiteral("/two"));
    QCOMPARE(runSizes(photos), (QVector<int>{ 10, 10 }));

    // A camera goes on in the next folder; its owner has moved a blurred photo away.
    photos.clear();
    CardShoots::take(photos, 1, 10, 0, QStringLiteral("/100"));
    CardShoots::take(photos, 11, 10, 60, QStringLiteral("/101"));
    photos[4].info.path = QStringLiteral("/blurred/IMG_0005.jpg");
    QCOMPARE(runSizes(photos), (QVector<int>{ 20 }));
}

void TestPhotoGroups::photosWithoutTimesGoByFolderAndCounter()
{
    QVector<CardPhoto> photos;
    for (const char *const path : { "/a/IMG_9998.jpg", "/a/IMG_9999.jpg", "/a/IMG_0001.jpg",
                                    "/a/IMG_0003.jpg", "/a/IMG_0500.jpg", "/a/IMG_0501.jpg",
                                    "/b/IMG_0502.jpg", "/c/hall.jpg", "/c/garden.jpg" }) {
        photos += CardPhoto{ photo(QString::fromLatin1(path), -1), {}, {} };
    }
    QCOMPARE(runSizes(photos), (QVector<int>{ 1, 2, 2, 4 }));
}

void TestPhotoGroups::bracketsAreToldByExposures_data()
{
    QTest::addColumn<QVector<double>>("exposures"); // negative: not known
    QTest::addColumn<int>("bracket");
    QTest::newRow("none") << QVector<double>{} << 0;
    QTest::newRow("too few") << QVector<double>{ 12, 12 } << 0;
    QTest::newRow("all alike") << QVector<double>{ 12, 12, 12.1, 12 } << 1;
    QTest::newRow("three levels") << QVector<double>{ 12, 14, 10, 12, 14, 10, 12, 14, 10 } << 3;
    QTest::newRow("two levels") << QVector<double>{ 12, 14, 12, 14, 12, 14 } << 2;
    QTest::newRow("automatic exposure")
        << QVector<double>{ 12, 11, 10.3, 9, 11.5, 8, 13, 14, 7, 10, 12.5, 9.5 } << 0;
    QTest::newRow("one not known") << QVector<double>{ 12, 12, -1, 12, 12 } << 0;
}

void TestPhotoGroups::bracketsAreToldByExposures()
{
    QFETCH(QVector<double>, exposures);
    QFETCH(int, bracket);
    QVector<CardPhoto> photos = photosAt(QVector<double>(exposures.size(), 0.0));
    for (int i = 0; i < photos.size(); ++i) {
        photos[i].info.exposureValue
            = exposures[i] < 0.0 ? std::nullopt : std::optional(exposures[i]);
    }
    QCOMPARE(bracketOf(photos, allOf(photos)), bracket);
}

void TestPhotoGroups::gridsHaveARhythm_data()
{
    QTest::addColumn<QVector<double>>("seconds");
    QTest::addColumn<QVector<double>>("exposures");
    QTest::addColumn<bool>("isGrid");
    const QVector<double> twelve{ 0, 4, 8, 12, 20, 24, 28, 32, 40, 44, 48, 52 }; // 3 rows of 4
    const QVector<double> same(12, 12.0);
    QTest::newRow("3 x 4") << twelve << same << true;
    QTest::newRow("a prime number") << twelve.mid(0, 11) << same.mid(0, 11) << false;
    QTest::newRow("too few") << twelve.mid(0, 4) << same.mid(0, 4) << false;
    QTest::newRow("as the hand moves")
        << QVector<double>{ 0, 2, 20, 21, 45, 47, 48, 70, 90, 92, 93, 110 } << same << false;
    QTest::newRow("automatic exposure")
        << twelve << QVector<double>{ 12, 11, 10.3, 9, 11.5, 8, 13, 14, 7, 10, 12.5, 9.5 } << false;
    QTest::newRow("all in the same second") << QVector<double>(12, 7.0) << same << false;
    QVector<double> seconds;
    QVector<double> bracket;
    for (const double second : twelve) {
        for (const double stops : { 0.0, 2.0, -2.0 }) {
            seconds += 2.0 * second + 0.4 * bracket.size() / 12.0;
            bracket += 12.0 + stops;
        }
    }
    QTest::newRow("3 x 4 in brackets of 3") << seconds << bracket << true;
    QTest::newRow("a bracket is not whole") << seconds.mid(1) << bracket.mid(1) << false;
}

void TestPhotoGroups::gridsHaveARhythm()
{
    QFETCH(QVector<double>, seconds);
    QFETCH(QVector<double>, exposures);
    QFETCH(bool, isGrid);
    QVector<CardPhoto> photos = photosAt(seconds);
    for (int i = 0; i < photos.size(); ++i) {
        photos[i].info.exposureValue = exposures[i];
    }
    QCOMPARE(looksLikeGrid(photos, allOf(photos)), isGrid);
}

TEST_CLASS(TestPhotoGroups, QCoreApplication)
#include "tst_photogroups.moc"
