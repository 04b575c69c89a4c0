// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/deliver.h"
#include "tests/host/deliver/deliverbench.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace PanoHost;
using Depth = StitchedPicture::Depth;

class TestRadiance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exrSaysThatItIsASphere();
    void exrSaysWhatThePhotosSay();
    void exrKeepsTheLight_data();
    void exrKeepsTheLight();
    void hdrKeepsTheLight_data();
    void hdrKeepsTheLight();
    void rowsOfEveryBandAreThere();
    void flatPictureIsRefusedWithACure();
    void nameIsThatOfTheOutput_data();
    void nameIsThatOfTheOutput();
    void fullDiskLeavesTheOlderFile_data();
    void fullDiskLeavesTheOlderFile();
    void interruptionLeavesNothing();

private:
    /** The part of a sphere of 40 x 20 pixels that begins at (30, 5): 8 x 4. */
    [[nodiscard]] DeliverJob partialJob() const;
    [[nodiscard]] DeliverJob jobFor(const StitchedPicture &picture) const;
    [[nodiscard]] QString headerOf(const QString &name) const
    {
        return DeliverBench::said(QStringLiteral("exrheader"), { name }, m_out->path());
    }
    [[nodiscard]] QString pixel(const QString &name, int x, int y) const
    {
        return DeliverBench::pixelOf(name, x, y, m_out->path());
    }

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<QTemporaryDir> m_out;
};

void TestRadiance::init()
{
    m_work = std::make_unique<QTemporaryDir>();
    m_out = std::make_unique<QTemporaryDir>();
}

DeliverJob TestRadiance::jobFor(const StitchedPicture &picture) const
{
    DeliverJob job;
    job.picture = picture;
    job.output = m_out->filePath(QStringLiteral("a.jpg"));
    job.kinds = { Delivery::Radiance };
    job.workFolder = m_work->path();
    return job;
}

DeliverJob TestRadiance::partialJob() const
{
    // Bright, dark and negative; nothing where no photo reaches, whatever stands there.
    return jobFor(DeliverBench::writePanorama(
        m_work->path(), { 8, 4 }, { 40, 20 }, { 30, 5 }, Depth::Radiance, [](int x, int) {
            return x == 0 ? Pixel{ 100000.0, 0.5, 0.0009765625, 1.0 }
                : x == 1  ? Pixel{ 7.0, 7.0, 7.0, 0.0 }
                : x == 2  ? Pixel{ -0.25, 0.0, 2.0, 1.0 }
                          : Pixel{ 1.0, 1.0, 1.0, 1.0 };
        }));
}

void TestRadiance::exrSaysThatItIsASphere()
{
    const Result<QStringList> made = deliver(partialJob(), {});
    QVERIFY2(made.ok(), made ? "" : qPrintable(made.error().text()));
    QCOMPARE(made.value(), QStringList(m_out->filePath(QStringLiteral("a.exr"))));
    const QString header = headerOf(QStringLiteral("a.exr"));
    for (const char *const line :
         { "compression (type compression): zip, multi-scanline blocks",
           "envmap (type envmap): latitude-longitude map", "software (type string): \"panohost\"",
           // Readers take the data window for the whole sphere.
           "dataWindow (type box2i): (0 0) - (39 19)",
           "displayWindow (type box2i): (0 0) - (39 19)", "A, 32-bit floating-point",
           "R, 32-bit floating-point", "red   (0.64 0.33)", "green (0.3 0.6)", "blue  (0.15 0.06)",
           "white (0.3127 0.329)" }) {
        QVERIFY2(header.contains(QLatin1String(line)), qPrintable(QLatin1String(line) + header));
    }
    for (const char *const absent :
         { "capDate", "utcOffset", "latitude (", "owner", "whiteLuminance", "expTime" }) {
        QVERIFY2(!header.contains(QLatin1String(absent)), absent);
    }
}

void TestRadiance::exrSaysWhatThePhotosSay()
{
    DeliverJob job = partialJob();
    job.origin.taken
        = QDateTime::fromString(QStringLiteral("2024-05-01T10:00:00+02:00"), Qt::ISODate);
    job.origin.place = Place{ -35.5, 139.75, 100.0 };
    job.origin.author = QStringLiteral("Zoe");
    QVERIFY(deliver(job, {}).ok());
    const QString header = headerOf(QStringLiteral("a.exr"));
    for (const char *const line :
         { "capDate (type string): \"2024:05:01 10:00:00\"",
           "utcOffset (type float): -7200", // to be added to the local time
           "latitude (type float): -35.5", "longitude (type float): 139.75",
           "altitude (type float): 100", "owner (type string): \"Zoe\"" }) {
        QVERIFY2(header.contains(QLatin1String(line)), qPrintable(QLatin1String(line) + header));
    }
}

void TestRadiance::exrKeepsTheLight_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QVector<double>>("values");
    QTest::newRow("corner") << QPoint(30, 5) << QVector<double>{ 100000, 0.5, 0.0009765625, 1 };
    QTest::newRow("nothing there") << QPoint(31, 5) << QVector<double>{ 0, 0, 0, 0 };
    QTest::newRow("out of range of colours") << QPoint(32, 8) << QVector<double>{ -0.25, 0, 2, 1 };
    QTest::newRow("last pixel") << QPoint(37, 8) << QVector<double>{ 1, 1, 1, 1 };
    QTest::newRow("right of it") << QPoint(38, 8) << QVector<double>{ 0, 0, 0, 0 };
    QTest::newRow("below it") << QPoint(37, 9) << QVector<double>{ 0, 0, 0, 0 };
    QTest::newRow("above it") << QPoint(30, 4) << QVector<double>{ 0, 0, 0, 0 };
    QTest::newRow("left of it") << QPoint(29, 5) << QVector<double>{ 0, 0, 0, 0 };
}

void TestRadiance::exrKeepsTheLight()
{
    QFETCH(QPoint, at);
    QFETCH(QVector<double>, values);
    QVERIFY(deliver(partialJob(), {}).ok());
    const auto pixels = DeliverBench::readExr(m_out->filePath(QStringLiteral("a.exr")));
    QCOMPARE(pixels.size(), 40 * 20);
    const Pixel seen = pixels[at.y() * 40 + at.x()];
    QCOMPARE(QVector<double>(seen.begin(), seen.end()), values);
}

void TestRadiance::hdrKeepsTheLight_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QVector<double>>("light");
    using V = QVector<double>;
    // 100,000 is 0.76 * 2^17: one step is 2^17 / 256 = 512.
    QTest::newRow("corner") << QPoint(30, 5) << V{ 100000.0, 0.0, 0.0, 512.0 };
    QTest::newRow("nothing there") << QPoint(31, 5) << V{ 0.0, 0.0, 0.0, 0.0 };
    QTest::newRow("negative") << QPoint(32, 8) << V{ 0.0, 0.0, 2.0, 2.0 / 128.0 };
    QTest::newRow("one") << QPoint(37, 8) << V{ 1.0, 1.0, 1.0, 1.0 / 128.0 };
    QTest::newRow("outside") << QPoint(38, 8) << V{ 0.0, 0.0, 0.0, 0.0 };
}

void TestRadiance::hdrKeepsTheLight()
{
    QFETCH(QPoint, at);
    QFETCH(QVector<double>, light);
    DeliverJob job = partialJob();
    job.radianceSuffix = QStringLiteral("hdr");
    QCOMPARE(deliver(job, {}).value(), QStringList(m_out->filePath(QStringLiteral("a.hdr"))));
    // vips gives the bytes as they are when it does not know what to do with them.
    DeliverBench::said(
        QStringLiteral("vips"),
        { QStringLiteral("rad2float"), QStringLiteral("a.hdr"), QStringLiteral("a.v") },
        m_out->path());
    const QStringList seen = pixel(QStringLiteral("a.v"), at.x(), at.y()).split(QLatin1Char(' '));
    QCOMPARE(seen.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(std::abs(seen[i].toDouble() - light[i]) <= light[3], qPrintable(seen[i]));
    }
    QCOMPARE(DeliverBench::said(
                 QStringLiteral("vipsheader"),
                 { QStringLiteral("-f"), QStringLiteral("width"), QStringLiteral("a.hdr") },
                 m_out->path())
                 .trimmed(),
             QStringLiteral("40"));
}

void TestRadiance::rowsOfEveryBandAreThere()
{
    // More rows than are written at a time.
    const StitchedPicture picture = DeliverBench::writePanorama(
        m_work->path(), { 1200, 600 }, { 1200, 600 }, { 0, 0 }, Depth::Radiance, [](int x, int y) {
            return Pixel{ 1.0 * x, 1.0 * y, 0.5, 1.0 };
        });
    QVERIFY(deliver(jobFor(picture), {}).ok());
    const auto pixels = DeliverBench::readExr(m_out->filePath(QStringLiteral("a.exr")));
    QCOMPARE(pixels.size(), 1200 * 600);
    for (int i = 0; i < pixels.size(); ++i) {
        QVERIFY(pixels[i] == (Pixel{ 1.0 * (i % 1200), 1.0 * (i / 1200), 0.5, 1.0 }));
    }
}

void TestRadiance::flatPictureIsRefusedWithACure()
{
    for (const Depth depth : { Depth::Bits8, Depth::Bits16 }) {
        const DeliverJob job = jobFor(DeliverBench::writePanorama(
            m_work->path(), { 4, 2 }, { 4, 2 }, { 0, 0 }, depth, [](int, int) { return Pixel{}; }));
        const Result<QStringList> made = deliver(job, {});
        QVERIFY(!made);
        QCOMPARE(
            made.error().text(),
            m_out->filePath(QStringLiteral("a.exr"))
                + QStringLiteral(": this panorama's values are not light; needs --output hdr"));
        QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList());
    }
}

void TestRadiance::nameIsThatOfTheOutput_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("name");
    QTest::newRow("several dots") << QStringLiteral("v1.2.jpg") << QStringLiteral("v1.2.exr");
    QTest::newRow("brackets") << QStringLiteral("a[1].tif") << QStringLiteral("a[1].exr");
    QTest::newRow("quotes, blanks, newline")
        << QStringLiteral(" it's\n\"a\" .jpg") << QStringLiteral(" it's\n\"a\" .exr");
    QTest::newRow("Japanese") << QString::fromUtf8("パノラマ.jpg")
                              << QString::fromUtf8("パノラマ.exr");
}

void TestRadiance::nameIsThatOfTheOutput()
{
    QFETCH(QString, output);
    QFETCH(QString, name);
    DeliverJob job = partialJob();
    job.output = m_out->filePath(output);
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList(name));
}

void TestRadiance::fullDiskLeavesTheOlderFile_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("room");
    for (const char *const suffix : { "exr", "hdr" }) {
        // Within the header, behind it, and just before the end.
        for (const int room : { 0, 500, 2000 }) {
            QTest::addRow("%s, %d bytes", suffix, room) << QString::fromLatin1(suffix) << room;
        }
    }
}

void TestRadiance::fullDiskLeavesTheOlderFile()
{
    QFETCH(QString, suffix);
    QFETCH(int, room);
    quint32 seed = 1;
    DeliverJob job = jobFor(DeliverBench::writePanorama(
        m_work->path(), { 40, 20 }, { 40, 20 }, { 0, 0 }, Depth::Radiance, [&seed](int, int) {
            const auto next
                = [&seed] { return double((seed = seed * 1664525 + 1013904223) >> 8U); };
            return Pixel{ next(), next(), next(), 1.0 };
        }));
    job.radianceSuffix = suffix;
    const QString name = QStringLiteral("a.") + suffix;
    QFile older(m_out->filePath(name));
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    const Result<QStringList> made = [&] {
        const DeliverBench::FileSizeLimit limit(static_cast<rlim_t>(room));
        return deliver(job, {});
    }();
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::ToolFailed);
    QVERIFY2(made.error().why.startsWith(QLatin1String("cannot be written (File too large")),
             qPrintable(made.error().why));
    QVERIFY(older.open(QIODevice::ReadOnly));
    QCOMPARE(older.readAll(), QByteArray("older"));
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList(name));
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

void TestRadiance::interruptionLeavesNothing()
{
    JobWatch watch;
    watch.interrupted = [] { return true; };
    const Result<QStringList> made = deliver(partialJob(), watch);
    QVERIFY(!made);
    QCOMPARE(made.error().code, ExitCode::Interrupted);
    QCOMPARE(DeliverBench::allIn(m_out->path()), QStringList());
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

TEST_CLASS(TestRadiance, QCoreApplication)
#include "tst_radiance.moc"
