// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/thumbnailcache.h"
#include "tests/host/testphotos.h"
#include "tests/host/view/viewshoots.h"
#include "tests/support/testprogram.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <mutex>
#include <set>

using namespace PanoHost;

namespace
{

QImage plain(const QSize &size, QRgb colour = qRgb(10, 200, 30))
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

Patch patchOf(int frame, float side)
{
    Patch patch;
    patch.frame = frame;
    patch.count = 3;
    patch.side = side;
    return patch;
}

/** \p count frames side by side, each \p side pixels wide in the picture. */
DrawList listOf(int count, float side)
{
    DrawList list;
    for (int i = 0; i < count; ++i) {
        list.patches.push_back(patchOf(i, side));
    }
    return list;
}

ShootScene sceneOfFrames(int count)
{
    ShootScene scene;
    scene.frames.resize(count);
    return scene;
}

} // namespace

class ThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void initMain() { initializePhotoReading(); }

    void pictureIsAsStored_data();
    void pictureIsAsStored();
    void photosAreReadOnOtherThreads();
    void unreadablePhotosAreNotAskedForAgain();
    void forgottenPhotosDoNotArrive();
    void sizeFollowsThePicture();
    void memoryIsBounded();
};

void ThumbnailsTest::pictureIsAsStored_data()
{
    QTest::addColumn<int>("orientation");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        QTest::addRow("orientation %d", orientation) << orientation;
    }
}

void ThumbnailsTest::pictureIsAsStored()
{
    QFETCH(int, orientation);
    const QTemporaryDir folder;
    TestPhotos::Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = QByteArray::number(orientation);
    const QString path = TestPhotos::writeJpeg(folder.filePath(QStringLiteral("a.jpg")),
                                               TestPhotos::quarters(QSize(240, 160)), exif);
    ThumbnailLoader loader;
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    loader.want({ { 0, path, 1 } });
    QVERIFY(loaded.wait());
    const auto taken = loader.take();
    QCOMPARE(taken.size(), size_t(1));
    QCOMPARE(taken.front().picture.width(), 64);
    QCOMPARE(TestPhotos::seenQuarters(taken.front().picture), QStringLiteral("RGBY"));
    QCOMPARE(TestPhotos::seenQuarters(taken.front().smallest), QStringLiteral("RGBY"));
}

void ThumbnailsTest::photosAreReadOnOtherThreads()
{
    std::mutex mutex;
    std::set<QThread *> threads;
    ThumbnailLoader loader;
    loader.setSource([&](const QString &path) {
        const std::lock_guard<std::mutex> lock(mutex);
        threads.insert(QThread::currentThread());
        PhotoReading reading;
        reading.info.path = path;
        reading.thumbnail = plain(QSize(256, 171));
        return std::optional<PhotoReading>(reading);
    });
    std::vector<WantedThumbnail> wanted;
    constexpr int kPhotos = 200;
    for (int i = 0; i < kPhotos; ++i) {
        wanted.push_back({ i, QString::number(i), i % kThumbnailLevels });
    }
    std::vector<int> arrived(kPhotos, 0);
    QObject::connect(&loader, &ThumbnailLoader::loaded, &loader, [&] {
        for (const LoadedThumbnail &one : loader.take()) {
            ++arrived[static_cast<size_t>(one.frame)];
            QCOMPARE(one.picture.width(), kThumbnailSides[one.level]);
            QCOMPARE(one.smallest.width(), kThumbnailSides[0]);
        }
    });
    loader.want(wanted);
    QTRY_COMPARE(arrived, std::vector<int>(kPhotos, 1));
    QVERIFY(threads.find(QThread::currentThread()) == threads.end());
}

void ThumbnailsTest::unreadablePhotosAreNotAskedForAgain()
{
    ThumbnailCache cache;
    cache.reset(1);
    const ShootScene scene = sceneOfFrames(1);
    const DrawList list = listOf(1, 100);
    QCOMPARE(cache.wantedFor(list, scene).size(), size_t(1));
    ThumbnailLoader loader;
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    loader.want({ { 0, QStringLiteral("/nowhere/none.jpg"), 2 } });
    QVERIFY(loaded.wait());
    for (const LoadedThumbnail &one : loader.take()) {
        cache.put(one);
    }
    QVERIFY(cache.isUnreadable(0));
    QVERIFY(cache.pictureFor(list.patches.front()).isNull());
    QVERIFY(cache.wantedFor(list, scene).empty());
}

void ThumbnailsTest::forgottenPhotosDoNotArrive()
{
    std::mutex gate;
    std::atomic<int> begun{ 0 };
    ThumbnailLoader loader;
    loader.setSource([&](const QString &) {
        ++begun;
        const std::lock_guard<std::mutex> lock(gate);
        PhotoReading reading;
        reading.thumbnail = plain(QSize(8, 8));
        return std::optional<PhotoReading>(reading);
    });
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    gate.lock();
    loader.want({ { 0, QStringLiteral("old"), 0 } });
    QTRY_COMPARE(begun.load(), 1);
    loader.forget();
    loader.want({ { 7, QStringLiteral("new"), 0 } });
    gate.unlock();
    QVERIFY(loaded.wait());
    const auto taken = loader.take();
    QCOMPARE(taken.size(), size_t(1));
    QCOMPARE(taken.front().frame, 7);
}

void ThumbnailsTest::sizeFollowsThePicture()
{
    ThumbnailCache cache;
    cache.reset(3);
    const ShootScene scene = sceneOfFrames(3);
    const auto levelFor
        = [&](float side) { return cache.wantedFor(listOf(1, side), scene).front().level; };
    QCOMPARE(levelFor(10), 0);
    QCOMPARE(levelFor(60), 1);
    QCOMPARE(levelFor(5000), 2);
    // All others are wanted small, after what is seen.
    QCOMPARE(cache.wantedFor(listOf(1, 60), scene).size(), size_t(3));

    cache.put({ 0, 2, plain(QSize(256, 171)), plain(QSize(16, 11)) });
    QCOMPARE(cache.pictureFor(patchOf(0, 5)).width(), 16);
    QCOMPARE(cache.pictureFor(patchOf(0, 60)).width(), 256);
    cache.put({ 1, 0, plain(QSize(16, 11)), plain(QSize(16, 11)) });
    QCOMPARE(cache.pictureFor(patchOf(1, 500)).width(), 16);
}

void ThumbnailsTest::memoryIsBounded()
{
    constexpr int kFrames = 5000;
    ThumbnailCache cache;
    cache.reset(kFrames);
    const ShootScene scene = sceneOfFrames(kFrames);
    const QImage smallest = plain(QSize(16, 11));
    // All on the screen at once, and each one large.
    const DrawList list = listOf(kFrames, 1000);
    for (const WantedThumbnail &wanted : cache.wantedFor(list, scene)) {
        const int side = kThumbnailSides[wanted.level];
        cache.put({ wanted.frame, wanted.level, plain(QSize(side, side)), smallest });
    }
    QVERIFY(cache.bytes() > ThumbnailCache::kMostBytes / 2);
    QVERIFY(cache.wantedFor(list, scene).empty());
    // One after the other, as somebody looks around.
    for (int frame = 0; frame < kFrames; ++frame) {
        DrawList one;
        one.patches.push_back(patchOf(frame, 1000));
        (void)cache.wantedFor(one, scene);
        cache.put({ frame, 2, plain(QSize(256, 256)), smallest });
        QVERIFY(cache.bytes() <= ThumbnailCache::kMostBytes + 256 * 256 * 4);
        QCOMPARE(cache.pictureFor(patchOf(frame, 1000)).width(), 256);
    }
}

TEST_CLASS(ThumbnailsTest, QCoreApplication)

#include "tst_thumbnails.moc"
