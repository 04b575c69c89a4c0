// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <array>
#include <cstring>
#include <random>

#include <sys/inotify.h>
#include <unistd.h>

using namespace PanoHost;
using TestPhotos::jpegBytes;
using TestPhotos::quarters;
using TestPhotos::seenQuarters;

namespace
{

/** A picture that is seen as YBGR, so that it is told from the photo, which is RGBY. */
QImage other(const QSize &size)
{
    return quarters(size).mirrored(true, true);
}

/** \p picture in the middle of a black one of \p size. */
QImage barred(const QImage &picture, const QSize &size, const QColor &bars = Qt::black)
{
    QImage all(size, QImage::Format_RGB32);
    all.fill(bars);
    QPainter(&all).drawImage((size.width() - picture.width()) / 2,
                             (size.height() - picture.height()) / 2, picture);
    return all;
}

/** \p jpeg with a frame header that claims \p size. */
QByteArray claiming(QByteArray jpeg, const QSize &size)
{
    int frame = jpeg.indexOf("\xFF\xC0");
    frame = frame < 0 ? jpeg.indexOf("\xFF\xC2") : frame;
    if (frame < 0) {
        qFatal("no frame header");
    }
    qToBigEndian(quint16(size.height()), jpeg.data() + frame + 5);
    qToBigEndian(quint16(size.width()), jpeg.data() + frame + 7);
    return jpeg;
}

/** A few bytes that ask for more memory than the machine has. */
QByteArray bomb()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    writer.write(quarters({ 48, 32 }));
    return claiming(bytes, { 64500, 43000 });
}

/** \p picture as bytes whose own EXIF data name an orientation. */
QByteArray turnedBytes(const QString &path, const QImage &picture, int orientation)
{
    QFile file(TestPhotos::writeJpeg(
        path, picture, { { "Exif.Image.Orientation", QByteArray::number(orientation) } }));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read");
    }
    return file.readAll();
}

/** A picture that takes some megabytes as JPEG. */
QImage noise()
{
    QImage picture(2400, 1600, QImage::Format_RGB32);
    std::mt19937 random(5);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, uint(random()) | 0xFF000000U);
        }
    }
    return picture;
}

/**
 * Counts how often a file is opened, by anyone. The system reports equal events in a row as one:
 * its folder is watched too, so that an event of the folder lies between two of the file.
 */
class OpenCounter
{
public:
    explicit OpenCounter(const QString &path)
        : m_inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
        , m_folder(watch(QFileInfo(path).path()))
        , m_file(watch(path))
    {
        if (m_folder < 0 || m_file < 0) {
            qFatal("cannot watch %s", qPrintable(path));
        }
    }
    ~OpenCounter() { ::close(m_inotify); }
    OpenCounter(const OpenCounter &) = delete;
    OpenCounter &operator=(const OpenCounter &) = delete;

    /** Opens since the last call. */
    [[nodiscard]] int count() const
    {
        alignas(inotify_event) std::array<char, 4096> events{};
        int opens = 0;
        ssize_t size = 0;
        while ((size = ::read(m_inotify, events.data(), events.size())) > 0) {
            inotify_event event{};
            for (size_t at = 0; at < size_t(size); at += sizeof event + event.len) {
                std::memcpy(&event, events.data() + at, sizeof event);
                opens += event.wd == m_file ? 1 : 0;
            }
        }
        return opens;
    }

private:
    [[nodiscard]] int watch(const QString &path) const
    {
        return ::inotify_add_watch(m_inotify, QFile::encodeName(path).constData(), IN_OPEN);
    }
    int m_inotify;
    int m_folder;
    int m_file;
};

/** Bytes that this process has asked the system for so far. */
qint64 bytesRead()
{
    QFile io(QStringLiteral("/proc/self/io"));
    if (!io.open(QIODevice::ReadOnly)) {
        return -1;
    }
    return io.readAll().split('\n').value(0).split(' ').value(1).toLongLong();
}

} // namespace

/** Which picture becomes the thumbnail of a photo, and what reading it costs. */
class PhotoThumbnailTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void exifThumbnailIsUsedWhenItIsGoodEnough_data();
    void exifThumbnailIsUsedWhenItIsGoodEnough();
    void exifThumbnailTurnsWithThePhoto_data();
    void exifThumbnailTurnsWithThePhoto();
    void damagedExifThumbnailIsPassedOver_data();
    void damagedExifThumbnailIsPassedOver();
    void smallestSufficientPreviewIsUsed_data();
    void smallestSufficientPreviewIsUsed();
    void previewMayNameItsOwnTurn();
    void cutPictureIsNotHiddenByItsThumbnail();
    void eachReadingOpensTheFileOnce_data();
    void eachReadingOpensTheFileOnce();
    void pictureIsNotReadWhenItIsNotNeeded();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_folder.filePath(name); }
    /** A photo of 1200 x 800 pixels with \p thumbnail. */
    [[nodiscard]] QString photoWith(const QByteArray &thumbnail, const QSize &claimed = {}) const
    {
        const QString path = at(QStringLiteral("photo.jpg"));
        TestPhotos::writeOrdinary(path, { 1200, 800 });
        TestPhotos::embedThumbnail(path, thumbnail, claimed);
        return path;
    }
    QTemporaryDir m_folder;
};

void PhotoThumbnailTest::exifThumbnailIsUsedWhenItIsGoodEnough_data()
{
    QTest::addColumn<QImage>("embedded");
    QTest::addColumn<QString>("seen"); // YBGR: the embedded picture, RGBY: the photo
    QTest::addColumn<QSize>("size");
    const QSize decoded(256, 171); // 256 * 800 / 1200 = 170.7
    const QString photo = QStringLiteral("RGBY");
    const QString embedded = QStringLiteral("YBGR");
    QTest::newRow("120 pixels") << other({ 180, 120 }) << embedded << QSize(180, 120);
    QTest::newRow("119 pixels") << other({ 179, 119 }) << photo << decoded;
    QTest::newRow("255 pixels are a thumbnail")
        << other({ 255, 170 }) << embedded << QSize(255, 170);
    QTest::newRow("256 pixels are a preview") << other({ 256, 171 }) << embedded << QSize(256, 171);
    QTest::newRow("larger") << other({ 640, 427 }) << embedded << QSize(256, 171);
    // 160 * 800 / 1200 = 106.7
    QTest::newRow("bars above and below are cut off")
        << barred(other({ 160, 107 }), { 160, 120 }) << embedded << QSize(160, 107);
    QTest::newRow("120 pixels count with the bars") << other({ 160, 107 }) << photo << decoded;
    // 120 * 1200 / 800 = 180
    QTest::newRow("bars left and right are cut off")
        << barred(other({ 180, 120 }), { 214, 120 }) << embedded << QSize(180, 120);
    QTest::newRow("bars of a large one are cut off")
        << barred(other({ 320, 213 }), { 320, 240 }) << embedded << QSize(256, 171);
    QTest::newRow("other ratio without bars") << other({ 160, 120 }) << photo << decoded;
    QTest::newRow("white bars are no bars")
        << barred(other({ 160, 107 }), { 160, 120 }, Qt::white) << photo << decoded;
    QTest::newRow("a few pixels of rounding") << other({ 180, 122 }) << embedded << QSize(180, 122);
    QTest::newRow("upright beside a landscape photo") << other({ 120, 180 }) << photo << decoded;
    QTest::newRow("square") << other({ 200, 200 }) << photo << decoded;
}

void PhotoThumbnailTest::exifThumbnailIsUsedWhenItIsGoodEnough()
{
    QFETCH(QImage, embedded);
    QFETCH(QString, seen);
    QFETCH(QSize, size);
    const auto reading = readPhoto(photoWith(jpegBytes(embedded)));
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.storedSize, QSize(1200, 800));
    QCOMPARE(reading.value().thumbnail.size(), size);
    QCOMPARE(seenQuarters(reading.value().thumbnail), seen);
}

void PhotoThumbnailTest::exifThumbnailTurnsWithThePhoto_data()
{
    // As for photos that are decoded: 6 puts the stored first row at the right, and so on.
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("seen");
    const QStringList seen{ QStringLiteral("RGBY"), QStringLiteral("GRYB"), QStringLiteral("YBGR"),
                            QStringLiteral("BYRG"), QStringLiteral("RBGY"), QStringLiteral("BRYG"),
                            QStringLiteral("YGBR"), QStringLiteral("GYRB") };
    for (int i = 1; i <= seen.size(); ++i) {
        QTest::newRow(qPrintable(QString::number(i))) << i << seen[i - 1];
    }
}

void PhotoThumbnailTest::exifThumbnailTurnsWithThePhoto()
{
    QFETCH(int, orientation);
    QFETCH(QString, seen);
    const QString path
        = TestPhotos::writeJpeg(at(QStringLiteral("turned.jpg")), quarters({ 1200, 800 }),
                                { { "Exif.Image.Orientation", QByteArray::number(orientation) } });
    // Smaller than what decoding would give, and with bars that are to be cut as it is stored.
    TestPhotos::embedThumbnail(path, jpegBytes(barred(quarters({ 160, 107 }), { 160, 120 })));
    const auto reading = readPhoto(path);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().thumbnail.size(),
             orientation >= 5 ? QSize(107, 160) : QSize(160, 107));
    QCOMPARE(seenQuarters(reading.value().thumbnail), seen);
}

void PhotoThumbnailTest::damagedExifThumbnailIsPassedOver_data()
{
    QTest::addColumn<QByteArray>("thumbnail");
    QTest::addColumn<QSize>("claimed");
    const QByteArray good = jpegBytes(other({ 180, 120 }));
    QTest::newRow("the EXIF data claim another size") << good << QSize(160, 120);
    QTest::newRow("its header claims another size") << claiming(good, { 360, 240 }) << QSize();
    QTest::newRow("cut in its header") << good.left(100) << QSize();
    QTest::newRow("cut in the middle") << good.left(good.size() * 2 / 3) << QSize();
    QTest::newRow("without its end mark") << good.left(good.size() - 2) << QSize();
    QTest::newRow("garbage") << QByteArray(3000, '\x5A') << QSize();
    QTest::newRow("zeros") << QByteArray(3000, '\0') << QSize();
    QTest::newRow("a bomb") << bomb() << QSize();
    QTest::newRow("a bomb in disguise") << bomb() << QSize(180, 120);
}

void PhotoThumbnailTest::damagedExifThumbnailIsPassedOver()
{
    QFETCH(QByteArray, thumbnail);
    QFETCH(QSize, claimed);
    const auto reading = readPhoto(photoWith(thumbnail, claimed));
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().thumbnail.size(), QSize(256, 171));
    QCOMPARE(seenQuarters(reading.value().thumbnail), QStringLiteral("RGBY"));
    QCOMPARE(reading.value().info.focal35mm, 24.0);
}

void PhotoThumbnailTest::smallestSufficientPreviewIsUsed_data()
{
    QTest::addColumn<QVector<QByteArray>>("previews");
    QTest::addColumn<QString>("seen");
    QTest::addColumn<QSize>("size");
    const auto first = [](int w, int h) { return jpegBytes(quarters({ w, h })); };
    const auto second = [](int w, int h) { return jpegBytes(other({ w, h })); };
    const auto third = [](int w, int h) {
        return jpegBytes(quarters({ w, h }).mirrored(true, false));
    };
    const QString isFirst = QStringLiteral("RGBY");
    const QString isSecond = QStringLiteral("YBGR");
    const QString isThird = QStringLiteral("GRYB");
    using Previews = QVector<QByteArray>;
    QTest::newRow("256 pixels are enough")
        << Previews{ first(255, 170), second(256, 171) } << isSecond << QSize(256, 171);
    QTest::newRow("the smallest of three")
        << Previews{ first(1024, 683), second(300, 200), third(640, 427) } << isSecond
        << QSize(256, 171);
    QTest::newRow("in any order") << Previews{ first(300, 200), second(1024, 683), third(640, 427) }
                                  << isFirst << QSize(256, 171);
    QTest::newRow("another ratio is another picture")
        << Previews{ first(1024, 683), second(300, 300), third(640, 427) } << isThird
        << QSize(256, 171);
    QTest::newRow("a cut one is passed over")
        << Previews{ first(300, 200).left(2000), second(640, 427) } << isSecond << QSize(256, 171);
    QTest::newRow("a lying one is passed over")
        << Previews{ claiming(first(150, 100), { 300, 200 }), second(640, 427) } << isSecond
        << QSize(256, 171);
    QTest::newRow("a bomb is passed over")
        << Previews{ bomb(), second(640, 427) } << isSecond << QSize(256, 171);
    QTest::newRow("a small one is better than none")
        << Previews{ first(160, 107) } << isFirst << QSize(160, 107);
    QTest::newRow("the largest of small ones")
        << Previews{ first(90, 60), second(150, 100), third(120, 80) } << isSecond
        << QSize(150, 100);
    QTest::newRow("another ratio is better than none")
        << Previews{ first(320, 180) } << isFirst << QSize(256, 144);
}

void PhotoThumbnailTest::smallestSufficientPreviewIsUsed()
{
    QFETCH(QVector<QByteArray>, previews);
    QFETCH(QString, seen);
    QFETCH(QSize, size);
    const auto reading = readPhoto(TestPhotos::writeFile(
        at(QStringLiteral("photo.dng")), TestPhotos::rawFile({ 6000, 4000 }, 1, previews)));
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.storedSize, QSize(6000, 4000));
    QCOMPARE(reading.value().thumbnail.size(), size);
    QCOMPARE(seenQuarters(reading.value().thumbnail), seen);
}

void PhotoThumbnailTest::previewMayNameItsOwnTurn()
{
    const QByteArray preview
        = turnedBytes(at(QStringLiteral("preview.jpg")), quarters({ 480, 320 }), 8);
    const auto reading = readPhoto(TestPhotos::writeFile(
        at(QStringLiteral("own.dng")), TestPhotos::rawFile({ 6000, 4000 }, 6, { preview })));
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().info.orientation, 6);
    QCOMPARE(reading.value().thumbnail.size(), QSize(171, 256));
    QCOMPARE(seenQuarters(reading.value().thumbnail), QStringLiteral("GYRB"));
}

void PhotoThumbnailTest::cutPictureIsNotHiddenByItsThumbnail()
{
    QFile file(photoWith(jpegBytes(other({ 180, 120 }))));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    const QString cut = at(QStringLiteral("cut.jpg"));
    TestPhotos::writeFile(cut, whole.left(whole.size() * 9 / 10));
    const auto reading = readPhoto(cut);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().thumbnail.size(), QSize(256, 171));
    QCOMPARE(seenQuarters(reading.value().thumbnail).left(2), QStringLiteral("RG"));
    // What comes after the picture (a short film, say) does no harm.
    TestPhotos::writeFile(cut, whole + QByteArray(20000, '\x55'));
    const auto longer = readPhoto(cut);
    QVERIFY(longer.ok());
    QCOMPARE(seenQuarters(longer.value().thumbnail), QStringLiteral("YBGR"));
}

void PhotoThumbnailTest::eachReadingOpensTheFileOnce_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto image = [](const char *format) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        quarters({ 600, 400 }).save(&buffer, format);
        return bytes;
    };
    QFile file(photoWith(jpegBytes(other({ 180, 120 }))));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray jpeg = file.readAll();
    const QByteArray preview = jpegBytes(quarters({ 480, 320 }));
    QTest::newRow("JPEG") << jpegBytes(quarters({ 600, 400 }));
    QTest::newRow("JPEG with thumbnail") << jpeg;
    QTest::newRow("PNG") << image("PNG");
    QTest::newRow("TIFF") << image("TIFF");
    QTest::newRow("BMP") << image("BMP");
    QTest::newRow("RAW") << TestPhotos::rawFile({ 6000, 4000 }, 6, { preview, preview });
    QTest::newRow("cut") << jpeg.left(jpeg.size() / 2);
    QTest::newRow("no photo") << QByteArray("This is not a photo.\n");
}

void PhotoThumbnailTest::eachReadingOpensTheFileOnce()
{
    QFETCH(QByteArray, content);
    const QString path = TestPhotos::writeFile(at(QStringLiteral("counted")), content);
    const OpenCounter opens(path);
    QFile once(path);
    QFile twice(path);
    QVERIFY(once.open(QIODevice::ReadOnly) && twice.open(QIODevice::ReadOnly));
    QCOMPARE(opens.count(), 2);
    const bool known = readPhoto(path).ok();
    QCOMPARE(opens.count(), 1);
    QCOMPARE(readPhotoInfo(path).ok(), known);
    QCOMPARE(opens.count(), 1);
}

void PhotoThumbnailTest::pictureIsNotReadWhenItIsNotNeeded()
{
    const QString path = TestPhotos::writeJpeg(at(QStringLiteral("large.jpg")), noise(),
                                               TestPhotos::ordinaryExif());
    QVERIFY(QFileInfo(path).size() > 2'000'000);
    constexpr qint64 kHeaderBytes = 200'000;
    qint64 before = bytesRead();
    QVERIFY(readPhotoInfo(path).ok());
    QVERIFY(bytesRead() - before < kHeaderBytes);

    before = bytesRead();
    QVERIFY(readPhoto(path).ok());
    QVERIFY(bytesRead() - before > 2'000'000); // there is nothing but the picture to show

    TestPhotos::embedThumbnail(path, jpegBytes(other({ 180, 120 })));
    before = bytesRead();
    const auto reading = readPhoto(path);
    QVERIFY(bytesRead() - before < kHeaderBytes);
    QVERIFY(reading.ok());
    QCOMPARE(reading.value().thumbnail.size(), QSize(180, 120));
}

TEST_CLASS(PhotoThumbnailTest, QGuiApplication)
#include "tst_photothumbnail.moc"
