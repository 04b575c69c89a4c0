// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/hostimage.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QtTest>

#include <memory>
#include <vector>

using namespace PanoHost;

namespace
{

/** Bytes of one full test pixmap: 200 x 100 pixels of 32 bits. */
constexpr qint64 kFullBytes = 200 * 100 * 4;
/** Bytes of one small pixmap: 48 x 24 pixels. */
constexpr qint64 kSmallBytes = 48 * 24 * 4;

std::shared_ptr<const PhotoData> photo(ThumbnailStore &store)
{
    PhotoReading reading;
    reading.thumbnail = TestPhotos::quarters({ 200, 100 });
    return std::make_shared<PhotoData>(store, reading);
}

std::vector<std::unique_ptr<HostImage>> photos(ThumbnailStore &store, int count)
{
    std::vector<std::unique_ptr<HostImage>> images;
    for (int i = 0; i < count; ++i) {
        images.push_back(std::make_unique<HostImage>(store, photo(store)));
    }
    return images;
}

void turnEventLoop()
{
    QCoreApplication::processEvents();
}

} // namespace

class HostImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatThePhotoSays();
    void unknownValuesAreTheSentinels();
    void thumbnailIsThePhoto();
    void thumbnailIsMadeOnceAndKept();
    void thumbnailsStayUntilTheEventLoopTurns();
    void leastRecentlyUsedThumbnailsGoFirst();
    void droppedThumbnailComesBack();
    void newThumbnailsAreSmallWhenThereAreMany();
    void thereIsNoThumbnailBeyondTheLastBound();
    void deletedImageGivesItsMemoryBack();
    void encodedBytesStayWithinTheirBound();
    void thumbnailsAreKeptAsTheyAreWhileThereIsRoom();
    void defaultBoundsAddUpToAGigabyte();
};

void HostImageTest::answersWhatThePhotoSays()
{
    ThumbnailStore store;
    PhotoReading reading;
    reading.info.focal35mm = 24.5;
    reading.info.lens = LensModel::Fisheye;
    reading.info.timeMs = 1714557600250;
    reading.info.exposureValue = 12.643856;
    HostImage image(store, std::make_shared<PhotoData>(store, reading));
    XIImageDef &host = image;
    QCOMPARE(host.FocalLength(), 24.5F);
    QCOMPARE(host.LensType(), 1);
    QCOMPARE(host.ShotTime(), 1714557600250L);
    QCOMPARE(host.Exposure(), 12.643856F);
}

void HostImageTest::unknownValuesAreTheSentinels()
{
    ThumbnailStore store;
    HostImage image(store, std::make_shared<PhotoData>(store, PhotoReading()));
    QCOMPARE(image.FocalLength(), 0.0F);
    QCOMPARE(image.LensType(), -1);
    QCOMPARE(image.ShotTime(), 0L);
    QCOMPARE(image.Exposure(), 0.0F);
    QVERIFY(!image.Thumbnail());
}

void HostImageTest::thumbnailIsThePhoto()
{
    ThumbnailStore store;
    HostImage image(store, photo(store));
    const QPixmap *thumbnail = image.Thumbnail();
    QVERIFY(thumbnail);
    QCOMPARE(thumbnail->size(), QSize(200, 100));
    const QRgb corner = thumbnail->toImage().pixel(20, 20);
    QVERIFY(qRed(corner) > 200 && qGreen(corner) < 60 && qBlue(corner) < 60);
}

void HostImageTest::thumbnailIsMadeOnceAndKept()
{
    ThumbnailStore store;
    HostImage image(store, photo(store));
    QCOMPARE(store.pixmapBytes(), qint64(0));
    const QPixmap *thumbnail = image.Thumbnail();
    QCOMPARE(store.pixmapBytes(), kFullBytes);
    turnEventLoop();
    QCOMPARE(image.Thumbnail(), thumbnail);
    QCOMPARE(store.pixmapBytes(), kFullBytes);
}

void HostImageTest::thumbnailsStayUntilTheEventLoopTurns()
{
    ThumbnailLimits limits;
    limits.kept = 2 * kFullBytes;
    ThumbnailStore store(limits);
    const auto images = photos(store, 6);
    std::vector<QPixmap *> answered;
    for (const auto &image : images) {
        answered.push_back(image->Thumbnail());
    }
    for (size_t i = 0; i < images.size(); ++i) {
        QCOMPARE(images[i]->Thumbnail(), answered[i]);
        QCOMPARE(answered[i]->width(), 200);
    }
    QCOMPARE(store.pixmapBytes(), 6 * kFullBytes);
    turnEventLoop();
    QCOMPARE(store.pixmapBytes(), 2 * kFullBytes);
}

void HostImageTest::leastRecentlyUsedThumbnailsGoFirst()
{
    ThumbnailLimits limits;
    limits.kept = 2 * kFullBytes;
    ThumbnailStore store(limits);
    const auto images = photos(store, 3);
    (void)images[0]->Thumbnail();
    (void)images[1]->Thumbnail();
    (void)images[2]->Thumbnail();
    const QPixmap *first = images[0]->Thumbnail();
    turnEventLoop();
    // The second one was not used again: asking the others makes nothing new.
    QCOMPARE(images[0]->Thumbnail(), first);
    QCOMPARE(store.pixmapBytes(), 2 * kFullBytes);
    (void)images[2]->Thumbnail();
    QCOMPARE(store.pixmapBytes(), 2 * kFullBytes);
    (void)images[1]->Thumbnail();
    QCOMPARE(store.pixmapBytes(), 3 * kFullBytes);
}

void HostImageTest::droppedThumbnailComesBack()
{
    ThumbnailLimits limits;
    limits.kept = 0;
    ThumbnailStore store(limits);
    HostImage image(store, photo(store));
    const QImage before = image.Thumbnail()->toImage();
    turnEventLoop();
    QCOMPARE(store.pixmapBytes(), qint64(0));
    QCOMPARE(image.Thumbnail()->toImage(), before);
}

void HostImageTest::newThumbnailsAreSmallWhenThereAreMany()
{
    ThumbnailLimits limits;
    limits.kept = kFullBytes;
    limits.full = 2 * kFullBytes;
    ThumbnailStore store(limits);
    const auto images = photos(store, 4);
    QCOMPARE(images[0]->Thumbnail()->width(), 200);
    QCOMPARE(images[1]->Thumbnail()->width(), 200);
    QCOMPARE(images[2]->Thumbnail()->size(), QSize(48, 24));
    QCOMPARE(images[3]->Thumbnail()->size(), QSize(48, 24));
    QCOMPARE(store.pixmapBytes(), 2 * kFullBytes + 2 * kSmallBytes);
}

void HostImageTest::thereIsNoThumbnailBeyondTheLastBound()
{
    ThumbnailLimits limits;
    limits.kept = 0;
    limits.full = kFullBytes;
    limits.most = kFullBytes + kSmallBytes;
    ThumbnailStore store(limits);
    const auto images = photos(store, 3);
    QVERIFY(images[0]->Thumbnail());
    QVERIFY(images[1]->Thumbnail());
    QVERIFY(!images[2]->Thumbnail());
    turnEventLoop();
    QVERIFY(images[2]->Thumbnail());
}

void HostImageTest::deletedImageGivesItsMemoryBack()
{
    ThumbnailStore store;
    {
        HostImage image(store, photo(store));
        QVERIFY(image.Thumbnail());
        QVERIFY(store.keptBytes() > 0);
    }
    QCOMPARE(store.pixmapBytes(), qint64(0));
    QCOMPARE(store.keptBytes(), qint64(0));
    turnEventLoop();
}

void HostImageTest::thumbnailsAreKeptAsTheyAreWhileThereIsRoom()
{
    ThumbnailLimits limits;
    limits.plain = 2 * kFullBytes;
    ThumbnailStore store(limits);
    auto images = photos(store, 3);
    QVERIFY(images[0]->keptThumbnail().encoded.isEmpty());
    QVERIFY(images[1]->keptThumbnail().encoded.isEmpty());
    QVERIFY(images[2]->keptThumbnail().plain.isNull());
    QVERIFY(!images[2]->keptThumbnail().encoded.isEmpty());
    images.erase(images.begin());
    QVERIFY(!photo(store)->keptThumbnail().plain.isNull());
}

void HostImageTest::encodedBytesStayWithinTheirBound()
{
    ThumbnailLimits limits;
    limits.plain = 0;
    limits.encoded = 40000;
    ThumbnailStore store(limits);
    const auto images = photos(store, 100);
    QVERIFY(store.keptBytes() <= limits.encoded);
    QVERIFY(images.front()->keptThumbnail().encoded.size()
            > images.back()->keptThumbnail().encoded.size());
    QVERIFY(images.back()->keptThumbnail().isNull());
    QVERIFY(!images.back()->Thumbnail());
    QCOMPARE(images.front()->Thumbnail()->width(), 200);
}

void HostImageTest::defaultBoundsAddUpToAGigabyte()
{
    const ThumbnailLimits limits;
    QVERIFY(limits.plain + limits.encoded + limits.most <= 1024LL * 1024 * 1024);
    QVERIFY(limits.kept <= limits.full);
    QVERIFY(limits.full <= limits.most);
}

TEST_CLASS(HostImageTest, QApplication)
#include "tst_hostimage.moc"
