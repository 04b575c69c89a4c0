// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/cubeface.h"
#include "host/deliver/deliver.h"
#include "host/model/photofile.h"
#include "tests/host/deliver/deliverbench.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QtMath>
#include <QtTest>

#include <memory>

using namespace PanoHost;
using Depth = StitchedPicture::Depth;

namespace
{

/** A sphere with a pixel to each degree. */
constexpr QSize kSphere(360, 180);
/** 360 / pi = 114.6; the nearest even number. */
constexpr int kSide = 114;

double yawOf(int x)
{
    return x + 0.5 - 180.0;
}

double pitchOf(int y)
{
    return 90.0 - (y + 0.5);
}

/** The angle between two directions, degrees. */
double angleBetween(double yaw, double pitch, double otherYaw, double otherPitch)
{
    const double a = qDegreesToRadians(pitch);
    const double b = qDegreesToRadians(otherPitch);
    const double turn = qDegreesToRadians(yaw - otherYaw);
    return qRadiansToDegrees(std::acos(std::clamp(
        std::sin(a) * std::sin(b) + std::cos(a) * std::cos(b) * std::cos(turn), -1.0, 1.0)));
}

} // namespace

class TestCube : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { initializePhotoReading(); }
    void init();
    void sidesKeepTheDetail_data();
    void sidesKeepTheDetail();
    void patchIsWhereOneLooks_data();
    void patchIsWhereOneLooks();
    void sidesAreThoseOfAnotherProgram_data();
    void sidesAreThoseOfAnotherProgram();
    void middleOfAPartMayBeElsewhere();
    void everyDepthIsKept_data();
    void everyDepthIsKept();
    void lampsCastNoRings();
    void seamAndPolesAreWhole();
    void sidesThatNoPhotoReachesAreLeftOut_data();
    void sidesThatNoPhotoReachesAreLeftOut();
    void sidesAreKnownAsOwn();
    void folderOfSomebodyElseIsRefused();
    void secondRunReplacesTheFirst();
    void failureLeavesTheOlderFolder_data();
    void failureLeavesTheOlderFolder();
    void anotherPictureIsRefused();

private:
    [[nodiscard]] DeliverJob jobFor(const StitchedPicture &picture, const QString &name) const;
    /** A part of a sphere that only the front sees: 10 x 6 pixels of 40 x 20. */
    [[nodiscard]] StitchedPicture front() const
    {
        return DeliverBench::writePanorama(m_work->path(), { 10, 6 }, { 40, 20 }, { 15, 7 },
                                           Depth::Bits8, [](int, int) {
                                               return Pixel{ 1, 1, 1, 255 };
                                           });
    }
    [[nodiscard]] QStringList made() const { return DeliverBench::allIn(folder()); }
    [[nodiscard]] QString folder() const { return m_out->filePath(QStringLiteral("a_cube")); }
    [[nodiscard]] QString face(const QString &name) const { return QDir(folder()).filePath(name); }

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<QTemporaryDir> m_out;
};

void TestCube::init()
{
    m_work = std::make_unique<QTemporaryDir>();
    m_out = std::make_unique<QTemporaryDir>();
}

DeliverJob TestCube::jobFor(const StitchedPicture &picture, const QString &name) const
{
    DeliverJob job;
    job.picture = picture;
    job.output = m_out->filePath(name);
    job.kinds = { Delivery::Cube };
    job.workFolder = m_work->path();
    return job;
}

void TestCube::sidesKeepTheDetail_data()
{
    QTest::addColumn<int>("sphereWidth");
    QTest::addColumn<int>("side");
    QTest::newRow("8192") << 8192 << 2608; // 2607.6
    QTest::newRow("10000") << 10000 << 3184; // 3183.1: between 3182 and 3184
    QTest::newRow("tiny") << 2 << 2;
}

void TestCube::sidesKeepTheDetail()
{
    QFETCH(int, sphereWidth);
    QFETCH(int, side);
    QCOMPARE(cubeFaceSide(sphereWidth), side);
}

void TestCube::patchIsWhereOneLooks_data()
{
    QTest::addColumn<QPoint>("looks"); // yaw to the right and pitch up, degrees
    QTest::addColumn<QString>("side");
    QTest::addColumn<QPointF>("at"); // from -1 to 1, to the right and down
    const double t = std::tan(qDegreesToRadians(30.0));
    const auto row = [](const char *side, int yaw, int pitch, double right, double down) {
        QTest::addRow("%s, yaw %d, pitch %d", side, yaw, pitch)
            << QPoint(yaw, pitch) << QString::fromLatin1(side) << QPointF(right, down);
    };
    row("front", 0, 0, 0.0, 0.0);
    row("front", 30, 0, t, 0.0);
    row("front", 0, 30, 0.0, -t);
    row("right", 90, 0, 0.0, 0.0);
    row("right", 120, 0, t, 0.0);
    row("right", 90, -30, 0.0, t);
    row("back", 180, 0, 0.0, 0.0);
    row("back", -150, 0, t, 0.0);
    row("back", 180, 30, 0.0, -t);
    row("left", -90, 0, 0.0, 0.0);
    row("left", -60, 0, t, 0.0);
    row("left", -90, 30, 0.0, -t);
    // 30 degrees from the zenith or nadir.
    row("up", 0, 90, 0.0, 0.0);
    row("up", 0, 60, 0.0, t);
    row("up", 90, 60, t, 0.0);
    row("up", 180, 60, 0.0, -t);
    row("down", 0, -60, 0.0, -t);
    row("down", 90, -60, t, 0.0);
    row("down", 180, -60, 0.0, t);
}

void TestCube::patchIsWhereOneLooks()
{
    QFETCH(QPoint, looks);
    QFETCH(QString, side);
    QFETCH(QPointF, at);
    const DeliverJob job
        = jobFor(DeliverBench::writePanorama(
                     m_work->path(), kSphere, kSphere, { 0, 0 }, Depth::Radiance,
                     [&looks](int x, int y) {
                         const bool isIn
                             = angleBetween(yawOf(x), pitchOf(y), looks.x(), looks.y()) < 4.0;
                         return isIn ? Pixel{ 1.0, 1.0, 1.0, 1.0 } : Pixel{ 0.0, 0.0, 0.0, 1.0 };
                     }),
                 QStringLiteral("a.jpg"));
    const Result<QStringList> result = deliver(job, {});
    QVERIFY2(result.ok(), result ? "" : qPrintable(result.error().text()));
    QCOMPARE(result.value(), QStringList(folder()));
    // The middle of what is white: the patch is on one side alone.
    for (const QString &name :
         { QStringLiteral("front"), QStringLiteral("right"), QStringLiteral("back"),
           QStringLiteral("left"), QStringLiteral("up"), QStringLiteral("down") }) {
        const auto pixels = DeliverBench::readExr(face(name + QStringLiteral(".exr")));
        QCOMPARE(pixels.size(), kSide * kSide);
        QPointF sum;
        int count = 0;
        for (int i = 0; i < pixels.size(); ++i) {
            if (pixels[i][0] > 0.5) {
                sum += QPointF(i % kSide + 0.5, i / kSide + 0.5);
                ++count;
            }
        }
        QCOMPARE(count > 0, name == side);
        if (name == side) {
            const QPointF middle = (sum / count) * 2.0 / kSide - QPointF(1.0, 1.0);
            // A pixel is 0.0175; patches at 30 degrees lie a little farther out.
            QVERIFY2(std::abs(middle.x() - at.x()) < 0.02 && std::abs(middle.y() - at.y()) < 0.02,
                     qPrintable(QStringLiteral("%1, %2").arg(middle.x()).arg(middle.y())));
        }
    }
}

void TestCube::sidesAreThoseOfAnotherProgram_data()
{
    QTest::addColumn<QString>("side");
    QTest::addColumn<int>("yaw"); // by which nona turns the panorama
    QTest::addColumn<int>("pitch");
    QTest::newRow("left") << QStringLiteral("left") << 90 << 0;
    QTest::newRow("down") << QStringLiteral("down") << 0 << 90;
}

void TestCube::sidesAreThoseOfAnotherProgram()
{
    QFETCH(QString, side);
    QFETCH(int, yaw);
    QFETCH(int, pitch);
    DeliverJob job
        = jobFor(DeliverBench::writePanorama(
                     m_work->path(), kSphere, kSphere, { 0, 0 }, Depth::Bits8,
                     [](int x, int y) {
                         const double a = qDegreesToRadians(yawOf(x));
                         const double b = qDegreesToRadians(pitchOf(y));
                         return Pixel{ std::round(128 + 100 * std::sin(a * 3.0) * std::cos(b)),
                                       std::round(128 + 100 * std::sin(b * 5.0)),
                                       std::round(128 + 100 * std::cos(a) * std::cos(b)), 255.0 };
                     }),
                 QStringLiteral("a.tif"));
    QVERIFY(deliver(job, {}).ok());
    // The other program reads no tiled TIFF.
    DeliverBench::said(
        QStringLiteral("vips"),
        { QStringLiteral("copy"), job.picture.path, m_out->filePath(QStringLiteral("sphere.tif")) },
        m_work->path());
    QFile project(m_out->filePath(QStringLiteral("side.pto")));
    QVERIFY(project.open(QIODevice::WriteOnly));
    project.write(
        QStringLiteral("p f0 w%1 h%1 v90 E0 R0 n\"TIFF\"\nm i0\n"
                       "i w360 h180 f4 v360 Ra0 Rb0 Rc0 Rd0 Re0 a0 b0 c0 d0 e0 g0 t0 "
                       "Va1 Vb0 Vc0 Vd0 Vx0 Vy0 Eev0 Er1 Eb1 r0 p%2 y%3 n\"sphere.tif\"\n")
            .arg(kSide)
            .arg(pitch)
            .arg(yaw)
            .toLatin1());
    project.close();
    DeliverBench::said(QStringLiteral("nona"),
                       { QStringLiteral("-o"), QStringLiteral("side"), QStringLiteral("side.pto") },
                       m_out->path());
    const QImage theirs(m_out->filePath(QStringLiteral("side.tif")));
    const QImage ours(face(side + QStringLiteral(".tif")));
    QCOMPARE(theirs.size(), QSize(kSide, kSide));
    QCOMPARE(ours.size(), QSize(kSide, kSide));
    double squares = 0.0;
    // Another program leaves out what its filter does not reach at the poles and edges.
    constexpr int kEdge = 2;
    int count = 0;
    for (int y = kEdge; y < kSide - kEdge; ++y) {
        for (int x = kEdge; x < kSide - kEdge; ++x) {
            const QColor a = theirs.pixelColor(x, y);
            const QColor b = ours.pixelColor(x, y);
            if (a.alpha() < 255) {
                continue;
            }
            squares += std::pow(a.red() - b.red(), 2) + std::pow(a.green() - b.green(), 2)
                + std::pow(a.blue() - b.blue(), 2);
            ++count;
        }
    }
    QVERIFY(count > kSide * kSide * 9 / 10);
    const double rms = std::sqrt(squares / (3.0 * count));
    QVERIFY2(rms < 1.0, qPrintable(QString::number(rms)));
}

void TestCube::middleOfAPartMayBeElsewhere()
{
    // 90 degrees wide, 60 high, around yaw 90 and pitch 0: only the right side sees it all.
    const DeliverJob job = jobFor(
        DeliverBench::writePanorama(
            m_work->path(), { 90, 60 }, kSphere, { 225, 60 }, Depth::Bits8,
            [](int x, int) {
                return x < 45 ? Pixel{ 255.0, 0.0, 0.0, 255.0 } : Pixel{ 0.0, 0.0, 255.0, 255.0 };
            }),
        QStringLiteral("a.tif"));
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(made(), QStringList({ QStringLiteral(".panohost"), QStringLiteral("right.tif") }));
    const auto pixel = [this](int x, int y) {
        return DeliverBench::pixelOf(QStringLiteral("right.tif"), x, y, folder());
    };
    QCOMPARE(pixel(1, 57), QStringLiteral("255 0 0 255"));
    QCOMPARE(pixel(50, 57), QStringLiteral("255 0 0 255"));
    QCOMPARE(pixel(63, 57), QStringLiteral("0 0 255 255"));
    QCOMPARE(pixel(112, 57), QStringLiteral("0 0 255 255"));
    // 30 degrees up and down in the middle are at 57 -+ 57 * tan 30, 24.1 and 89.9.
    QCOMPARE(pixel(50, 22), QStringLiteral("0 0 0 0"));
    QCOMPARE(pixel(50, 26), QStringLiteral("255 0 0 255"));
    QCOMPARE(pixel(50, 87), QStringLiteral("255 0 0 255"));
    QCOMPARE(pixel(50, 91), QStringLiteral("0 0 0 0"));
}

void TestCube::everyDepthIsKept_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QVector<double>>("colour");
    QTest::newRow("8 bits") << int(Depth::Bits8) << QStringLiteral("a.tif")
                            << QStringLiteral("back.tif") << QVector<double>{ 1, 2, 255, 255 };
    QTest::newRow("16 bits") << int(Depth::Bits16) << QStringLiteral("a.TIF")
                             << QStringLiteral("back.tif")
                             << QVector<double>{ 1, 40001, 65535, 65535 };
    QTest::newRow("radiance") << int(Depth::Radiance) << QStringLiteral("a.jpg")
                              << QStringLiteral("back.exr")
                              << QVector<double>{ 0.125, 70000.0, -0.5, 1.0 };
}

void TestCube::everyDepthIsKept()
{
    QFETCH(int, depth);
    QFETCH(QString, output);
    QFETCH(QString, file);
    QFETCH(QVector<double>, colour);
    const Pixel pixel{ colour[0], colour[1], colour[2], colour[3] };
    const DeliverJob job
        = jobFor(DeliverBench::writePanorama(m_work->path(), { 40, 20 }, { 40, 20 }, { 0, 0 },
                                             Depth(depth), [&pixel](int, int) { return pixel; }),
                 output);
    QVERIFY(deliver(job, {}).ok());
    QCOMPARE(made().size(), 7);
    if (file.endsWith(QLatin1String(".exr"))) {
        QSize size;
        const auto pixels = DeliverBench::readExr(face(file), &size);
        QCOMPARE(size, QSize(12, 12)); // 40 / pi = 12.7
        for (const Pixel &seen : pixels) {
            QVERIFY(seen == pixel);
        }
        return;
    }
    QStringList values;
    for (const double value : colour) {
        values += QString::number(value, 'f', 0);
    }
    for (const QPoint at : { QPoint(0, 0), QPoint(11, 0), QPoint(6, 6), QPoint(11, 11) }) {
        QCOMPARE(DeliverBench::pixelOf(file, at.x(), at.y(), folder()),
                 values.join(QLatin1Char(' ')));
    }
}

void TestCube::lampsCastNoRings()
{
    const DeliverJob job = jobFor(
        DeliverBench::writePanorama(m_work->path(), kSphere, kSphere, { 0, 0 }, Depth::Radiance,
                                    [](int x, int y) {
                                        const double light = x == 180 && y == 90 ? 1e6 : 0.25;
                                        return Pixel{ light, light, light, 1.0 };
                                    }),
        QStringLiteral("a.jpg"));
    QVERIFY(deliver(job, {}).ok());
    double most = 0.0;
    for (const Pixel &pixel : DeliverBench::readExr(face(QStringLiteral("front.exr")))) {
        QVERIFY(pixel[0] >= 0.25 && pixel[0] <= 1e6);
        most = std::max(most, pixel[0]);
    }
    QVERIFY(most > 1e5);
}

void TestCube::seamAndPolesAreWhole()
{
    // What depends on the direction alone, and smoothly, has no step on any side.
    const DeliverJob job = jobFor(
        DeliverBench::writePanorama(m_work->path(), kSphere, kSphere, { 0, 0 }, Depth::Radiance,
                                    [](int x, int y) {
                                        const double a = qDegreesToRadians(yawOf(x));
                                        const double b = qDegreesToRadians(pitchOf(y));
                                        return Pixel{ std::sin(a) * std::cos(b), std::sin(b),
                                                      std::cos(a) * std::cos(b), 1.0 };
                                    }),
        QStringLiteral("a.jpg"));
    QVERIFY(deliver(job, {}).ok());
    // The colour is the direction: on each side its largest part is the side's own, and across and
    // down it follows the pixel.
    const auto look
        = [](const QVector<Pixel> &pixels, int x, int y) { return pixels[y * kSide + x]; };
    for (const char *const name : { "back", "up", "down" }) {
        const auto pixels
            = DeliverBench::readExr(face(QString::fromLatin1(name) + QStringLiteral(".exr")));
        QCOMPARE(pixels.size(), kSide * kSide);
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                const Pixel seen = look(pixels, x, y);
                const double u = (x + 0.5) * 2.0 / kSide - 1.0;
                const double v = (y + 0.5) * 2.0 / kSide - 1.0;
                const double length = std::sqrt(1.0 + u * u + v * v);
                const bool isBack = qstrcmp(name, "back") == 0;
                const double right = isBack ? -u : u;
                const double up = isBack ? -v : qstrcmp(name, "up") == 0 ? 1.0 : -1.0;
                const double ahead = isBack ? -1.0 : qstrcmp(name, "up") == 0 ? v : -v;
                QVERIFY(std::abs(seen[0] - right / length) < 1e-3);
                QVERIFY(std::abs(seen[1] - up / length) < 1e-3);
                QVERIFY(std::abs(seen[2] - ahead / length) < 1e-3);
                QCOMPARE(seen[3], 1.0);
            }
        }
    }
}

void TestCube::sidesThatNoPhotoReachesAreLeftOut_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("JPEG") << int(Depth::Bits8) << QStringLiteral("jpg");
    QTest::newRow("EXR") << int(Depth::Radiance) << QStringLiteral("exr");
}

void TestCube::sidesThatNoPhotoReachesAreLeftOut()
{
    QFETCH(int, depth);
    QFETCH(QString, suffix);
    // A full turn, 20 degrees up and down; of the right half the pixels are not covered.
    const DeliverJob job = jobFor(
        DeliverBench::writePanorama(
            m_work->path(), { 360, 40 }, kSphere, { 0, 70 }, Depth(depth),
            [](int x, int) {
                return x < 180 ? Pixel{ 1.0, 1.0, 1.0, 255.0 } : Pixel{ 1.0, 1.0, 1.0, 0.0 };
            }),
        QStringLiteral("a.jpg"));
    QStringList notes;
    JobWatch watch;
    watch.log = [&notes](JobWatch::Note note, const QString &text) {
        if (note == JobWatch::Note::Warning) {
            notes += text;
        }
    };
    QVERIFY(deliver(job, watch).ok());
    QCOMPARE(made(),
             QStringList({ QStringLiteral(".panohost"), QStringLiteral("back.") + suffix,
                           QStringLiteral("front.") + suffix, QStringLiteral("left.") + suffix }));
    QCOMPARE(notes,
             QStringList(QStringLiteral(
                 "no photo reaches these sides of the cube, which are left out: right, up, down")));
}

void TestCube::sidesAreKnownAsOwn()
{
    for (const char *const suffix : { "jpg", "tif" }) {
        QVERIFY(deliver(jobFor(front(), QLatin1String("a.") + QLatin1String(suffix)), {}).ok());
        const Result<PhotoInfo> info
            = readPhotoInfo(face(QLatin1String("front.") + QLatin1String(suffix)));
        QVERIFY(info.ok());
        QVERIFY(info.value().isPanorama);
        QCOMPARE(info.value().storedSize, QSize(12, 12));
    }
}

void TestCube::folderOfSomebodyElseIsRefused()
{
    QVERIFY(QDir().mkpath(folder()));
    QFile precious(face(QStringLiteral("front.jpg")));
    QVERIFY(precious.open(QIODevice::WriteOnly) && precious.write("photo") == 5);
    precious.close();
    const DeliverJob job
        = jobFor(DeliverBench::writePanorama(m_work->path(), { 4, 2 }, { 4, 2 }, { 0, 0 },
                                             Depth::Bits8, [](int, int) { return Pixel{}; }),
                 QStringLiteral("a.jpg"));
    const Result<QStringList> result = deliver(job, {});
    QVERIFY(!result);
    QCOMPARE(result.error().what, folder());
    QCOMPARE(result.error().why, QStringLiteral("is a folder that panohost has not made"));
    QCOMPARE(made(), QStringList(QStringLiteral("front.jpg")));
    QCOMPARE(QFileInfo(precious.fileName()).size(), 5);
}

void TestCube::secondRunReplacesTheFirst()
{
    for (const char *const suffix : { "jpg", "tif" }) {
        QVERIFY(deliver(jobFor(front(), QLatin1String("a.") + QLatin1String(suffix)), {}).ok());
        QCOMPARE(made(),
                 QStringList({ QStringLiteral(".panohost"),
                               QLatin1String("front.") + QLatin1String(suffix) }));
        QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
    }
}

void TestCube::failureLeavesTheOlderFolder_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("isFull");
    QTest::newRow("a tool that fails at the third side")
        << QByteArray("echo >> count\n[ $(wc -l < count) -lt 3 ] || exit 1\nexec vips \"$@\"\n")
        << false;
    QTest::newRow("full disk") << QByteArray("exec vips \"$@\"\n") << true;
}

void TestCube::failureLeavesTheOlderFolder()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, isFull);
    QVERIFY(QDir().mkpath(folder()));
    for (const char *const name : { ".panohost", "older.jpg" }) {
        QFile file(face(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const DeliverJob job = jobFor(DeliverBench::writePanorama(m_work->path(), { 40, 20 },
                                                              { 40, 20 }, { 0, 0 }, Depth::Bits8,
                                                              [](int, int) {
                                                                  return Pixel{ 1, 1, 1, 255 };
                                                              }),
                                  QStringLiteral("a.jpg"));
    const QTemporaryDir tools;
    const DeliverBench::FakeTools fakes(tools.path());
    fakes.add(QStringLiteral("vips"), script);
    const Result<QStringList> result = [&] {
        const DeliverBench::FileSizeLimit limit(isFull ? 300 : RLIM_INFINITY);
        return deliver(job, {});
    }();
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolFailed);
    QCOMPARE(made(), QStringList({ QStringLiteral(".panohost"), QStringLiteral("older.jpg") }));
    QCOMPARE(DeliverBench::allIn(m_work->path()), QStringList(QStringLiteral("panorama.v")));
}

void TestCube::anotherPictureIsRefused()
{
    DeliverJob job
        = jobFor(DeliverBench::writePanorama(m_work->path(), { 40, 20 }, { 40, 20 }, { 0, 0 },
                                             Depth::Bits8, [](int, int) { return Pixel{}; }),
                 QStringLiteral("a.jpg"));
    job.picture.depth = Depth::Bits16;
    const Result<QStringList> result = deliver(job, {});
    QVERIFY(!result);
    QCOMPARE(result.error().what, job.picture.path);
    QCOMPARE(result.error().why, QStringLiteral("is not the panorama that was stitched last"));
}

TEST_CLASS(TestCube, QCoreApplication)
#include "tst_cube.moc"
