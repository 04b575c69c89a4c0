// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/demo/demohead.h"
#include "host/demo/psnr.h"
#include "host/import/heads.h"
#include "host/model/canvas.h"
#include "host/model/ptofile.h"
#include "host/stitch/vipsfile.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/host/cli/clibench.h"
#include "tests/host/make/support/dngfile.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>

#include <exiv2/exiv2.hpp>
#include <tiffio.h>

using namespace PanoHost;
using namespace TestShoots;

namespace
{

constexpr int kWidth = 2048; ///< of a whole sphere at 24 mm
constexpr int kLongWidth = 4096; ///< of lenses twice as long

/** What the head notes down of \p shoot. */
QByteArray recordOf(const TestShoot &shoot, const HeadFacts &head)
{
    ShootPlan plan;
    plan.camera = shoot.camera;
    plan.camera.focal35mm = shoot.statedFocal35mm;
    plan.mounting = shoot.mounting;
    plan.positions = recordedAngles(shoot);
    plan.stops = shoot.exposures.bracket;
    return demoRecord(head, plan);
}

/** The part of the scene that a project shows, by its canvas. */
SpherePart partOf(const PtoFile &project, const QSize &picture)
{
    const Canvas canvas = project.canvas();
    const QRect whole = canvas.crop.isNull() ? QRect(QPoint(0, 0), canvas.size) : canvas.crop;
    // The picture may have been made in another size.
    const double scale = double(picture.width()) / whole.width();
    const QSize size(qRound(canvas.size.width() * scale),
                     qRound(180.0 * canvas.size.width() * scale / canvas.horizontalFovDegrees));
    return { size, canvas.horizontalFovDegrees, canvas.yawCentreDegrees,
             QRect(QPoint(qRound(whole.x() * scale), int(std::floor(whole.y() * scale))),
                   picture) };
}

Rotations foundRotations(const PtoFile &project)
{
    Rotations rotations;
    for (const PtoImage &image : project.images()) {
        if (image.stackMaster < 0) {
            rotations.push_back(rotationOf(image.angles));
        }
    }
    return rotations;
}

/** What a camera that counts \p stops more sees, from 0 to 1. */
std::array<double, 3> seenAt(const LightField &light, int x, int y, double stops)
{
    const Rgb &pixel = light.pixels[size_t(y) * size_t(light.size.width()) + size_t(x)];
    std::array<double, 3> colours{ pixel.red, pixel.green, pixel.blue };
    for (double &colour : colours) {
        colour = std::clamp(colour * std::exp2(stops), 0.0, 1.0);
    }
    return colours;
}

/** Gives \p to what the photo \p from says of itself. */
void copyExif(const QString &from, const QString &to)
{
    const auto source = Exiv2::ImageFactory::open(QFile::encodeName(from).toStdString());
    const auto sink = Exiv2::ImageFactory::open(QFile::encodeName(to).toStdString());
    source->readMetadata();
    sink->readMetadata();
    for (const Exiv2::Exifdatum &datum : source->exifData()) {
        const bool isStructure = datum.groupName() != "Photo" && datum.tagName() != "Make"
            && datum.tagName() != "Model" && datum.tagName() != "DateTime";
        if (!isStructure) {
            sink->exifData()[datum.key()] = datum.value();
        }
    }
    sink->writeMetadata();
}

/** 16 bits of linear light. */
bool writeLinear(const QString &tiff, const LightField &light, double stops)
{
    TIFF *const file = TIFFOpen(QFile::encodeName(tiff).constData(), "w");
    if (file == nullptr) {
        return false;
    }
    const int width = light.size.width();
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, width);
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, light.size.height());
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 16);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, 64);
    QVector<quint16> row(width * 3);
    for (int y = 0; y < light.size.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            const std::array<double, 3> colours = seenAt(light, x, y, stops);
            for (int i = 0; i < 3; ++i) {
                row[3 * x + i] = quint16(std::lround(65535.0 * colours[size_t(i)]));
            }
        }
        TIFFWriteScanline(file, row.data(), uint32_t(y), 0);
    }
    TIFFClose(file);
    return true;
}

/** What the sensor of a camera makes of it. */
bool writeSensors(const QString &dng, const LightField &light, double stops)
{
    return writeDng(
        dng, { light.size, [&light, stops](int x, int y) { return seenAt(light, x, y, stops); } });
}

/** Blends the levels of a scene as enfuse does those of photos. */
QImage fused(const QVector<QImage> &levels, const QString &folder)
{
    QStringList arguments{ QStringLiteral("-o"), folder + QStringLiteral("/truth.png"),
                           QStringLiteral("--wrap=horizontal") };
    for (int i = 0; i < levels.size(); ++i) {
        const QString path = folder + QStringLiteral("/truth%1.png").arg(i);
        levels[i].save(path);
        arguments += path;
    }
    QProcess::execute(QStringLiteral("enfuse"), arguments);
    return QImage(folder + QStringLiteral("/truth.png"));
}

/** Three exposures at each position, by photos as fine as the scene. */
TestShoot brackets()
{
    TestShoot shoot = *named(QStringLiteral("play"));
    shoot.name = QStringLiteral("brackets");
    shoot.exposures.bracket = { 0.0, -2.0, 2.0 };
    return shoot;
}

double share(QVector<double> values, double part)
{
    const auto at = values.begin() + int(part * (values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

} // namespace

/** From record and photos to a panorama in one command, compared with what was photographed. */
class TestMakeShoots : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void panoramasLookLikeTheScene_data();
    void panoramasLookLikeTheScene();
    void bracketsAreFusedAsTheSceneWouldBe();
    void unevenLightCostsLittle();
    void lightIsThatOfTheScene_data();
    void lightIsThatOfTheScene();

private:
    struct Made {
        QImage picture;
        std::optional<PtoFile> project;
        Eigen::Matrix3d common; ///< from the project to the truth
    };
    /** Runs `panohost make` with \p options on \p shoot, whose \p photos lie in its folder. */
    Made made(const TestShoot &shoot, const QStringList &photos, const QStringList &options);
    QStringList photographedIn(const TestShoot &shoot);
    struct Likeness {
        double psnr = 0.0;
        double exposure = 0.0; ///< of the panorama, EV
    };
    /** \p exposure is the value at which the scene is shown as it was photographed; nothing: that
     * of the panorama. */
    Likeness likenessOf(const TestShoot &shoot, int width, std::optional<double> exposure = {});
    /** That of the shoot with play in even light, which two tests ask for; made once. */
    Likeness likenessOfPlay();

    std::unique_ptr<CliBench> m_bench;
    std::optional<Likeness> m_play;
};

void TestMakeShoots::init()
{
    m_bench = std::make_unique<CliBench>();
}

QStringList TestMakeShoots::photographedIn(const TestShoot &shoot)
{
    const auto panorama = photographed(shoot, m_bench->path(shoot.name));
    QStringList photos;
    if (panorama) {
        for (const Position &position : panorama.value().positions) {
            for (const PhotoInfo &photo : position.photos) {
                photos += photo.path;
            }
        }
    }
    return photos;
}

TestMakeShoots::Made TestMakeShoots::made(const TestShoot &shoot, const QStringList &photos,
                                          const QStringList &options)
{
    const HeadFacts &head = headNamed(QStringLiteral("papywizard"));
    const QString record = m_bench->file(QStringLiteral("record.xml"), recordOf(shoot, head));
    const QString name = shoot.name + QStringLiteral(".tif");
    const CliBench::Run run = m_bench->run(
        QStringList{ QStringLiteral("make"), QStringLiteral("papywizard"), record } + photos
        + QStringList{ QStringLiteral("-o"), name, QStringLiteral("--deliver"),
                       QStringLiteral("picture") }
        + options);
    if (run.exitCode != 0) {
        qWarning("%s", qPrintable(run.err));
        return {};
    }
    const QString work = m_bench->path(shoot.name + QStringLiteral(".work/"));
    Made made{ QImage(m_bench->path(name)), {}, {} };
    auto project = PtoFile::read(work + QStringLiteral("2_aligned.pto"));
    if (project) {
        made.project = std::move(project).value();
        made.common = judged(shoot, foundRotations(*made.project)).common;
    }
    return made;
}

TestMakeShoots::Likeness TestMakeShoots::likenessOf(const TestShoot &shoot, int width,
                                                    std::optional<double> exposure)
{
    const QStringList photos = photographedIn(shoot);
    QStringList options{ QStringLiteral("--focal"), QString::number(shoot.statedFocal35mm) };
    // A part of the sphere is drawn to the scale of the whole one: known after it is aligned.
    const bool isPart = shoot.groups.size() == 1;
    options += QStringList{ QStringLiteral("--size"),
                            isPart ? QStringLiteral("full") : QString::number(width) };
    if (shoot.camera.projection == Projection::EquidistantFisheye) {
        options += QStringList{ QStringLiteral("--lens"), QStringLiteral("fisheye") };
    }
    const Made result = made(shoot, photos, options);
    if (!result.project || result.picture.isNull()) {
        return {};
    }
    const SpherePart part = partOf(*result.project, result.picture.size());
    const double own = result.project->exposure().value_or(0.0);
    // A lower value is that of a brighter picture.
    const QImage truth
        = developed(truthOf(shoot, part, result.common), exposure.value_or(own) - own);
    return { agreementOf(result.picture, truth).psnrDecibels, own };
}

TestMakeShoots::Likeness TestMakeShoots::likenessOfPlay()
{
    if (!m_play) {
        m_play = likenessOf(*named(QStringLiteral("play")), kWidth);
    }
    return *m_play;
}

void TestMakeShoots::panoramasLookLikeTheScene_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("width");
    QTest::newRow("26 photos, 0.3 degrees of play") << QStringLiteral("play") << kWidth;
    QTest::newRow("portrait") << QStringLiteral("portrait") << kWidth;
    QTest::newRow("fisheye") << QStringLiteral("fisheye") << kWidth;
    QTest::newRow("a part of the sphere, across yaw 0") << QStringLiteral("partial") << kLongWidth;
}

void TestMakeShoots::panoramasLookLikeTheScene()
{
    QFETCH(QString, name);
    QFETCH(int, width);
    constexpr double kLeast = 40.0;
    TestShoot shoot = *named(name);
    if (shoot.camera.projection == Projection::EquidistantFisheye) {
        shoot.camera.size *= 2; // else its photos are coarser than the scene
    }
    const double psnr
        = (name == QLatin1String("play") ? likenessOfPlay() : likenessOf(shoot, width)).psnr;
    qInfo("%s: %.1f dB (at least %.0f)", qPrintable(name), psnr, kLeast);
    QVERIFY(psnr >= kLeast);
}

void TestMakeShoots::bracketsAreFusedAsTheSceneWouldBe()
{
    constexpr double kLeast = 38.0;
    const TestShoot shoot = brackets();
    const Made result = made(shoot, photographedIn(shoot),
                             { QStringLiteral("--output"), QStringLiteral("fused"),
                               QStringLiteral("--size"), QString::number(kWidth) });
    QVERIFY(result.project && !result.picture.isNull());
    const LightField light
        = truthOf(shoot, partOf(*result.project, result.picture.size()), result.common);
    QVector<QImage> levels;
    for (const double stops : shoot.exposures.bracket) {
        levels += developed(light, stops);
    }
    const double psnr
        = agreementOf(result.picture, fused(levels, m_bench->path(QString()))).psnrDecibels;
    qInfo("brackets: %.1f dB (at least %.0f)", psnr, kLeast);
    QVERIFY(psnr >= kLeast);
}

void TestMakeShoots::unevenLightCostsLittle()
{
    constexpr double kMostLost = 2.0;
    TestShoot uneven = *named(QStringLiteral("play"));
    uneven.name = QStringLiteral("uneven");
    uneven.camera.errors.vignettingB = -0.45;
    uneven.exposures.automatic = 0.7;
    const Likeness inEven = likenessOfPlay();
    const Likeness inUneven = likenessOf(uneven, kWidth, inEven.exposure);
    qInfo("even light %.1f dB, vignetting and automatic exposure %.1f dB (%.0f less at most)",
          inEven.psnr, inUneven.psnr, kMostLost);
    QVERIFY(inEven.psnr > 0.0);
    QVERIFY(inEven.psnr - inUneven.psnr <= kMostLost);
}

void TestMakeShoots::lightIsThatOfTheScene_data()
{
    QTest::addColumn<bool>("isRaw");
    QTest::addColumn<double>("nearlyAll");
    QTest::newRow("TIFFs of light") << false << 0.05;
    // Of three colours a pixel of a sensor sees one, the others are guessed.
    QTest::newRow("RAW files, developed by dcraw") << true << 0.1;
}

void TestMakeShoots::lightIsThatOfTheScene()
{
    QFETCH(bool, isRaw);
    QFETCH(double, nearlyAll);
    constexpr double kMedian = 0.01;
    TestShoot shoot = brackets();
    shoot.noiseLevels = 0.0;
    // A few fine photos: where pixels are as coarse as the scene no interpolation knows its light.
    shoot.camera.size *= 2;
    shoot.planned = { { -30.0, 20.0 },  { 0.0, 20.0 },  { 30.0, 20.0 },
                      { -30.0, -15.0 }, { 0.0, -15.0 }, { 30.0, -15.0 } };
    shoot.groups = { allOf(shoot.planned.size()) };
    QStringList photos;
    const QStringList jpegs = photographedIn(shoot);
    LightField light;
    for (int i = 0; i < jpegs.size(); ++i) {
        const int level = i % shoot.exposures.bracket.size();
        if (level == 0) {
            light = lightAt(shoot, i / shoot.exposures.bracket.size());
        }
        photos += QString(jpegs[i]).replace(QLatin1String(".jpg"),
                                            QLatin1String(isRaw ? ".dng" : ".tif"));
        const double stops = shoot.exposures.bracket[level];
        QVERIFY(isRaw ? writeSensors(photos.last(), light, stops)
                      : writeLinear(photos.last(), light, stops));
        copyExif(jpegs[i], photos.last());
    }
    const QStringList how = isRaw
        ? QStringList{ QStringLiteral("--raw-converter"), QStringLiteral("dcraw") }
        : QStringList{ QStringLiteral("--linear") };
    const Made result = made(
        shoot, photos, QStringList{ QStringLiteral("--output"), QStringLiteral("hdr") } + how);
    QVERIFY(result.project);
    const auto found
        = VipsFile::open(m_bench->path(shoot.name + QStringLiteral(".work/panorama.v")));
    QVERIFY(found);
    const QSize size = found.value().size();
    const LightField truth = truthOf(shoot, partOf(*result.project, size), result.common);
    QVector<double> errors;
    for (int y = 0; y < size.height(); ++y) {
        const auto *const row = found.value().row<float>(y);
        for (int x = 0; x < size.width(); ++x) {
            const Rgb &seen = truth.pixels[size_t(y) * size_t(size.width()) + size_t(x)];
            const std::array<float, 3> colours{ seen.red, seen.green, seen.blue };
            for (int i = 0; i < 3 && row[4 * x + 3] > 0.0F; ++i) {
                const double expected = double(colours[size_t(i)]);
                errors += std::abs(double(row[4 * x + i]) - expected) / expected;
            }
        }
    }
    qInfo("light: median %.2f %% off, 99 %% within %.1f %%", 100.0 * share(errors, 0.5),
          100.0 * share(errors, 0.99));
    QVERIFY(errors.size() > size.width() * size.height());
    QVERIFY(share(errors, 0.5) <= kMedian);
    QVERIFY(share(errors, 0.99) <= nearlyAll);
}

TEST_CLASS(TestMakeShoots, QGuiApplication)
#include "tst_makeshoots.moc"
