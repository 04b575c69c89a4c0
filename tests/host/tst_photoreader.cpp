// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/photoreader.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <thread>

using namespace PanoHost;

/** Photos are read once, ahead of who asks, and again only when their file has changed. */
class TestPhotoReader : public QObject
{
    Q_OBJECT
public:
    /** Before any thread. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void photosAreReadBeforeAnybodyAsks();
    void allThatAskAtOnceGetTheSame();
    void changedFileIsReadAgain();
    void unreadableFileIsRefusedUntilItIsMended();
    void fileThatVanishesMeanwhileIsRefused();
    void factsTakeNoMemoryForPictures();
    void forgettingGivesTheMemoryBack();
    void laterListTakesThePlaceOfAnEarlierOne();
    void manyUnreadablePhotosAreNoObstacle();
    void decodedPicturesAreSharedWithTheDesktop();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QStringList photos(int count) const;

    QTemporaryDir m_folder;
};

QStringList TestPhotoReader::photos(int count) const
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("%1-%2.jpg")
                                 .arg(QString::fromLatin1(QTest::currentTestFunction()))
                                 .arg(i);
        paths += TestPhotos::writeOrdinary(at(name));
    }
    return paths;
}

void TestPhotoReader::photosAreReadBeforeAnybodyAsks()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QString first = photos(1).first();
    QVERIFY(reader.read(first).ok());
    const qint64 one = store.keptBytes();
    QVERIFY(one > 0);
    // All show the same, so that each takes as much.
    reader.forget();
    reader.readAhead(photos(12));
    QTRY_COMPARE(store.keptBytes(), 12 * one);
}

void TestPhotoReader::allThatAskAtOnceGetTheSame()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QStringList paths = photos(8);
    reader.readAhead(paths);
    std::array<QVector<const PhotoData *>, 4> seen;
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (QVector<const PhotoData *> &mine : seen) {
        threads.emplace_back([&] {
            for (const QString &path : paths) {
                mine += reader.read(path).value().get();
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    for (const QVector<const PhotoData *> &mine : seen) {
        QCOMPARE(mine, seen.front());
    }
    for (int i = 0; i < paths.size(); ++i) {
        QCOMPARE(seen.front().at(i)->info().path, paths.at(i));
    }
}

void TestPhotoReader::changedFileIsReadAgain()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QString path = photos(1).first();
    reader.readAhead({ path });
    QCOMPARE(reader.read(path).value()->info().storedSize, QSize(120, 80));
    TestPhotos::writeOrdinary(path, QSize(600, 400));
    QCOMPARE(reader.read(path).value()->info().storedSize, QSize(600, 400));
}

void TestPhotoReader::unreadableFileIsRefusedUntilItIsMended()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QString path = TestPhotos::writeFile(at(QStringLiteral("mended.jpg")), "no photo");
    QVERIFY(!reader.read(path).ok());
    QVERIFY(!reader.read(path).ok());
    TestPhotos::writeOrdinary(path);
    QVERIFY(reader.read(path).ok());
}

void TestPhotoReader::fileThatVanishesMeanwhileIsRefused()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QString path = photos(1).first();
    QVERIFY(reader.read(path).ok());
    QVERIFY(QFile::remove(path));
    const PhotoReader::Answer answer = reader.read(path);
    QVERIFY(!answer.ok());
    QVERIFY(!answer.error().why.isEmpty());
}

void TestPhotoReader::factsTakeNoMemoryForPictures()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    reader.setReadsPictures(false);
    const QString path = photos(1).first();
    const PhotoReader::Answer answer = reader.read(path);
    QCOMPARE(answer.value()->info().storedSize, QSize(120, 80));
    QCOMPARE(answer.value()->info().focal35mm, 24.0);
    QVERIFY(answer.value()->keptThumbnail().isNull());
    QCOMPARE(store.keptBytes(), qint64{ 0 });
    reader.setReadsPictures(true);
    QVERIFY(!reader.read(path).value()->keptThumbnail().isNull());
}

void TestPhotoReader::forgettingGivesTheMemoryBack()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QStringList paths = photos(20);
    reader.readAhead(paths);
    for (const QString &path : paths) {
        QVERIFY(reader.read(path).ok());
    }
    QVERIFY(store.keptBytes() > 0);
    reader.forget();
    QCOMPARE(store.keptBytes(), qint64{ 0 });
}

void TestPhotoReader::laterListTakesThePlaceOfAnEarlierOne()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    const QStringList paths = photos(30);
    for (int i = 0; i < paths.size(); ++i) {
        reader.readAhead(paths.mid(i, 1));
    }
    // Whatever was under way: everything can still be had.
    for (const QString &path : paths) {
        QVERIFY(reader.read(path).ok());
    }
    reader.readAhead(paths);
    reader.stop();
}

void TestPhotoReader::manyUnreadablePhotosAreNoObstacle()
{
    ThumbnailStore store;
    PhotoReader reader(store);
    QStringList paths;
    for (int i = 0; i < 1000; ++i) {
        paths += at(QStringLiteral("missing-%1.jpg").arg(i));
    }
    paths += photos(1);
    reader.readAhead(paths);
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(!reader.read(paths.at(i)).ok());
    }
    QVERIFY(reader.read(paths.last()).ok());
}

void TestPhotoReader::decodedPicturesAreSharedWithTheDesktop()
{
    const auto shared = std::make_shared<DesktopThumbnails>(DesktopThumbnails::Places::Every,
                                                            at(QStringLiteral("thumbnails")));
    const QString path
        = TestPhotos::writeOrdinary(at(QStringLiteral("large.jpg")), QSize(600, 400));
    ThumbnailStore store;
    PhotoReader reader(store);
    reader.shareThumbnails(shared);
    QVERIFY(reader.read(path).ok());
    const QFileInfo file(path);
    const auto kept = shared->find(path, file.lastModified(), file.size());
    QVERIFY(kept);
    QCOMPARE(kept->size(), QSize(256, 171));

    // The next time it is what is shown, for as long as the photo is the same.
    QImage other(256, 171, QImage::Format_RGB32);
    other.fill(Qt::magenta);
    shared->keep(path, file.lastModified(), file.size(), other);
    PhotoReader later(store);
    later.shareThumbnails(shared);
    const QImage shown = later.read(path).value()->keptThumbnail().picture();
    QVERIFY(qRed(shown.pixel(10, 10)) > 200 && qGreen(shown.pixel(10, 10)) < 50);
    TestPhotos::writeOrdinary(path, QSize(500, 400));
    const QImage anew = later.read(path).value()->keptThumbnail().picture();
    QCOMPARE(anew.size(), QSize(256, 205));
}

TEST_CLASS(TestPhotoReader, QGuiApplication)
#include "tst_photoreader.moc"
