// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/decodebounds.h"
#include "host/model/lostpageguard.h"
#include "host/model/photofile.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <atomic>
#include <cmath>
#include <future>
#include <random>
#include <thread>

#include <sys/stat.h>

using namespace PanoHost;
using TestPhotos::Exif;

namespace
{

/** The highest resident memory of this process so far, bytes. */
qint64 peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray all = status.readAll();
    const int at = all.indexOf("VmHWM:");
    return all.mid(at + 6).simplified().split(' ').first().toLongLong() * 1024;
}

/** A PNG that ends after its header. */
QByteArray pngHeader(quint32 width, quint32 height)
{
    QByteArray body("IHDR");
    for (const quint32 number : { width, height }) {
        quint32 big = qToBigEndian(number);
        body.append(reinterpret_cast<const char *>(&big), 4);
    }
    body.append("\x08\x06\x00\x00\x00", 5);
    quint32 crc = 0xFFFFFFFFU;
    for (const char byte : qAsConst(body)) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    const quint32 bigCrc = qToBigEndian(~crc);
    return QByteArray("\x89PNG\r\n\x1a\n\x00\x00\x00\x0d", 12) + body
        + QByteArray(reinterpret_cast<const char *>(&bigCrc), 4);
}

/** \p jpeg with a first scan that holds one component only. */
QByteArray withOneComponentScans(QByteArray jpeg)
{
    const int scan = jpeg.indexOf("\xFF\xDA");
    if (scan < 0) {
        qFatal("no scan");
    }
    // length 8: itself, one component with its tables, three bytes for the spectrum
    jpeg.replace(scan + 2, 3, QByteArray("\x00\x08\x01", 3));
    return jpeg;
}

/** A JPEG whose frame header claims \p width x \p height. */
QByteArray jpegClaiming(quint16 width, quint16 height, bool progressive)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(progressive);
    writer.write(TestPhotos::quarters({ 64, 64 }));
    const QByteArray marker = progressive ? QByteArray("\xFF\xC2") : QByteArray("\xFF\xC0");
    const int frame = bytes.indexOf(marker);
    if (frame < 0) {
        qFatal("no frame header");
    }
    qToBigEndian(height, bytes.data() + frame + 5);
    qToBigEndian(width, bytes.data() + frame + 7);
    return bytes;
}

/** A grey TIFF of one strip, with its directory in front, as cameras write it. */
QByteArray greyTiff(quint32 width, quint32 height)
{
    constexpr quint32 kEntries = 8;
    constexpr quint32 kDataAt = 8 + 2 + kEntries * 12 + 4;
    QByteArray bytes("II*\0\x08\0\0\0\x08\0", 10);
    const auto entry = [&bytes](quint16 tag, quint32 value) {
        constexpr quint16 kLong = 4;
        for (const quint32 number : { tag | quint32(kLong) << 16, 1U, value }) {
            const quint32 little = qToLittleEndian(number);
            bytes.append(reinterpret_cast<const char *>(&little), 4);
        }
    };
    entry(256, width);
    entry(257, height);
    entry(258, 8); // bits
    entry(259, 1); // not compressed
    entry(262, 1); // black is 0
    entry(273, kDataAt);
    entry(278, height); // rows in the strip
    entry(279, width * height);
    return bytes + QByteArray(4, 0) + QByteArray(int(width * height), '\x80');
}

/** A RAW file whose previews claim to be all that follows in a file of \p fileBytes. */
QByteArray rawClaiming(qint64 fileBytes)
{
    const QByteArray preview = TestPhotos::jpegBytes(TestPhotos::quarters({ 480, 320 }));
    QByteArray raw = TestPhotos::rawFile({ 6000, 4000 }, 1, { preview, preview });
    const QByteArray lengthTag("\x02\x02\x04\x00\x01\x00\x00\x00", 8);
    int claims = 0;
    for (int at = raw.indexOf(lengthTag); at >= 0; at = raw.indexOf(lengthTag, at + 1)) {
        qToLittleEndian(quint32(fileBytes - raw.size()), raw.data() + at + lengthTag.size());
        ++claims;
    }
    if (claims != 2) {
        qFatal("%d claims", claims);
    }
    return raw;
}

} // namespace

/** Files that are no photos, are damaged or claim too much. */
class PhotoFileRefusedTest : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void whatIsNoPhotoIsRefused_data();
    void whatIsNoPhotoIsRefused();
    void wholeTiffIsRead();
    void pipesAndDevicesAreNeverRead_data();
    void pipesAndDevicesAreNeverRead();
    void hugeClaimsTakeNoMemory_data();
    void hugeClaimsTakeNoMemory();
    void hugePicturesAreDecodedInTurns();
    void damagedPhotosAreReadOrRefused();
    void mappedFilesMayBeCutOff();
    void photosMayBeCutOffWhileTheyAreRead();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

void PhotoFileRefusedTest::whatIsNoPhotoIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray jpeg = TestPhotos::jpegBytes(TestPhotos::quarters({ 60, 40 }));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("This is not a photo.\n");
    QTest::newRow("a record") << QByteArray("<?xml version='1.0'?><papywizard/>");
    QTest::newRow("cut after two bytes") << jpeg.left(2);
    QTest::newRow("cut in the header") << jpeg.left(100);
    QTest::newRow("cut before the picture") << jpeg.left(jpeg.indexOf("\xFF\xDA"));
    // The header of the scan of three components takes 14 bytes with its mark.
    QTest::newRow("cut where the picture begins") << jpeg.left(jpeg.indexOf("\xFF\xDA") + 14);
    QTest::newRow("garbage without end") << jpeg.left(20) + QByteArray(3'000'000, 0) + jpeg.mid(20);
    QTest::newRow("a drawing") << QByteArray(
        "<svg xmlns='http://www.w3.org/2000/svg' width='60' height='40'><rect/></svg>");
    QTest::newRow("zeros") << QByteArray(100000, 0);
    const QByteArray png = TestPhotos::bytesOf(TestPhotos::quarters({ 600, 400 }), "png");
    QTest::newRow("half a PNG") << png.left(png.size() / 2);
    QTest::newRow("most of a PNG") << png.left(png.size() - 100);
    QTest::newRow("half a TIFF") << greyTiff(600, 400).left(120'000);
    QTest::newRow("most of a TIFF") << greyTiff(600, 400).chopped(1);
}

void PhotoFileRefusedTest::whatIsNoPhotoIsRefused()
{
    QFETCH(QByteArray, content);
    const QString path = TestPhotos::writeFile(at(QStringLiteral("IMG_0012.jpg")), content);
    const auto reading = readPhoto(path);
    QVERIFY(!reading.ok());
    QCOMPARE(reading.error().what, path);
    QCOMPARE(reading.error().why, QStringLiteral("cannot read (not a photo?)"));
    QCOMPARE(reading.error().code, ExitCode::InputRefused);
    QVERIFY(!readPhotoInfo(path).ok());
}

void PhotoFileRefusedTest::wholeTiffIsRead()
{
    const QString path = TestPhotos::writeFile(at(QStringLiteral("grey.tif")), greyTiff(600, 400));
    QVERIFY(readPhoto(path).ok());
    QCOMPARE(readPhotoInfo(path).value().storedSize, QSize(600, 400));
}

void PhotoFileRefusedTest::pipesAndDevicesAreNeverRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("why");
    const QString pipe = at(QStringLiteral("pipe.jpg"));
    QFile::remove(pipe);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe << "is not a regular file";
    QTest::newRow("device") << "/dev/zero"
                            << "is not a regular file";
    QTest::newRow("folder") << m_folder.path() << "is a folder";
    QTest::newRow("missing") << at(QStringLiteral("missing.jpg")) << "no such file";
}

void PhotoFileRefusedTest::pipesAndDevicesAreNeverRead()
{
    QFETCH(QString, path);
    QFETCH(QString, why);
    const auto reading = readPhoto(path);
    QVERIFY(!reading.ok());
    QCOMPARE(reading.error().what, path);
    QCOMPARE(reading.error().why, why);
    QVERIFY(!readPhotoInfo(path).ok());
}

void PhotoFileRefusedTest::hugeClaimsTakeNoMemory_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("fileBytes"); // the rest are zeros
    const auto row = [](const char *name, const QByteArray &content, qint64 fileBytes = 0) {
        QTest::newRow(name) << content << std::max<qint64>(fileBytes, content.size());
    };
    row("PNG of 3.6 gigapixels", pngHeader(60000, 60000));
    row("progressive JPEG of 4.3 gigapixels", jpegClaiming(65500, 65500, true));
    row("JPEG of 4.3 gigapixels in a scan per component",
        withOneComponentScans(jpegClaiming(65500, 65500, false)));
    row("JPEG of 4.3 gigapixels", jpegClaiming(65500, 65500, false));
    for (const qint64 bytes : { 300'000'000LL, 3'000'000'000LL }) {
        row(qPrintable(QStringLiteral("previews of %1 bytes").arg(bytes)), rawClaiming(bytes),
            bytes);
    }
    row("JPEG of 3 gigabytes without a picture", jpegClaiming(64, 64, false).left(20),
        3'000'000'000);
}

void PhotoFileRefusedTest::hugeClaimsTakeNoMemory()
{
    QFETCH(QByteArray, content);
    QFETCH(qint64, fileBytes);
    const QString path = TestPhotos::writeFile(at(QStringLiteral("huge.jpg")), content);
    QVERIFY(QFile::resize(path, fileBytes));
    const qint64 before = peakMemory();
    const auto reading = readPhoto(path);
    const qint64 taken = peakMemory() - before;
    QVERIFY2(taken < 512LL * 1024 * 1024, qPrintable(QString::number(taken)));
    if (reading.ok()) {
        QVERIFY(reading.value().thumbnail.width() <= kThumbnailSide);
        QVERIFY(reading.value().thumbnail.height() <= kThumbnailSide);
    }
}

void PhotoFileRefusedTest::hugePicturesAreDecodedInTurns()
{
    // Eight bytes for each pixel: 320 megabytes each, of the 384 that there are.
    const QByteArray jpeg = jpegClaiming(7'000, 6'000, true);
    const auto reader = [&jpeg](QBuffer &buffer) {
        buffer.setData(jpeg);
        buffer.open(QIODevice::ReadOnly);
        return std::make_unique<QImageReader>(&buffer);
    };
    std::atomic_bool begins{ false };
    std::atomic_bool decodes{ false };
    QBuffer first;
    auto turn = std::make_unique<DecodingTurn>(*reader(first));
    std::thread other([&] {
        QBuffer second;
        const auto itsReader = reader(second);
        begins = true;
        const DecodingTurn itsTurn(*itsReader);
        decodes = true;
    });
    while (!begins) {
        std::this_thread::yield();
    }
    constexpr int kChances = 20'000;
    for (int i = 0; i < kChances; ++i) {
        std::this_thread::yield();
    }
    const bool wasTooSoon = decodes;
    turn.reset();
    other.join();
    QVERIFY(!wasTooSoon);
    QVERIFY(decodes);
}

void PhotoFileRefusedTest::damagedPhotosAreReadOrRefused()
{
    Exif exif = TestPhotos::ordinaryExif();
    exif["Exif.Image.Orientation"] = "6";
    QFile file(TestPhotos::writeJpeg(at(QStringLiteral("whole.jpg")),
                                     TestPhotos::quarters({ 60, 40 }), exif));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray jpeg = file.readAll();
    const QByteArray raw = TestPhotos::rawFile({ 6000, 4000 }, 6, { jpeg });
    std::mt19937 random(11);
    int readable = 0;
    constexpr int kRounds = 400;
    for (int i = 0; i < kRounds; ++i) {
        QByteArray bytes = i % 2 == 0 ? jpeg : raw;
        // The headers lie in front: damage goes there.
        const uint front = std::min(uint(bytes.size()), 800U);
        for (int k = 0; k < 4; ++k) {
            bytes[int(random() % front)] = static_cast<char>(random());
        }
        const auto reading
            = readPhoto(TestPhotos::writeFile(at(QStringLiteral("damaged.jpg")), bytes));
        if (reading.ok()) {
            ++readable;
            const PhotoInfo &info = reading.value().info;
            QVERIFY(!info.storedSize.isEmpty());
            QVERIFY(info.orientation >= 1 && info.orientation <= 8);
            QVERIFY(std::isfinite(info.focal35mm) && info.focal35mm >= 0.0);
            QVERIFY(!info.exposureValue || std::isfinite(*info.exposureValue));
            QVERIFY(!reading.value().thumbnail.isNull());
            QVERIFY(reading.value().thumbnail.width() <= kThumbnailSide);
            QVERIFY(reading.value().thumbnail.height() <= kThumbnailSide);
        }
    }
    QVERIFY(readable > kRounds / 10);
    QVERIFY(readable < kRounds);
}

void PhotoFileRefusedTest::mappedFilesMayBeCutOff()
{
    constexpr qint64 kBytes = 1'000'000;
    const QString path
        = TestPhotos::writeFile(at(QStringLiteral("cut")), QByteArray(int(kBytes), '\x55'));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const LostPageGuard guard;
    const uchar *const mapped = file.map(0, kBytes);
    QVERIFY(mapped != nullptr);
    QCOMPARE(int(mapped[kBytes - 1]), 0x55);
    QVERIFY(!guard.lostAny());
    QVERIFY(QFile::resize(path, 0));
    QCOMPARE(int(mapped[0]), 0);
    QCOMPARE(int(mapped[kBytes - 1]), 0);
    QVERIFY(guard.lostAny());
    const LostPageGuard next;
    QVERIFY(!next.lostAny());
}

void PhotoFileRefusedTest::photosMayBeCutOffWhileTheyAreRead()
{
    QByteArray tiff;
    QBuffer buffer(&tiff);
    buffer.open(QIODevice::WriteOnly);
    TestPhotos::quarters({ 1200, 800 }).save(&buffer, "TIFF");
    const QString path = TestPhotos::writeFile(at(QStringLiteral("photo.tif")), tiff);
    std::atomic<bool> done{ false };
    const auto cutter = std::async(std::launch::async, [&] {
        for (int i = 0; !done; ++i) {
            if (i % 2 == 0) {
                QFile::resize(path, 0);
            } else {
                TestPhotos::writeFile(path, tiff);
            }
        }
    });
    constexpr int kRounds = 200;
    int refused = 0;
    for (int i = 0; i < kRounds; ++i) {
        const auto reading = readPhoto(path);
        refused += reading.ok() ? 0 : 1;
        if (reading.ok()) {
            QCOMPARE(reading.value().info.storedSize, QSize(1200, 800));
        }
    }
    done = true;
    cutter.wait();
    QVERIFY(refused > 0);
}

TEST_CLASS(PhotoFileRefusedTest, QGuiApplication)
#include "tst_photofile_refused.moc"
