// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"
#include "host/model/safefile.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtMath>
#include <QtTest>

#include <cmath>

using namespace PanoHost;

namespace
{

struct ToolRun {
    int exitCode = -1;
    QString output; ///< standard output and error, together
};

ToolRun run(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(120000)) {
        return {};
    }
    return { process.exitCode(), QString::fromLocal8Bit(process.readAll()) };
}

} // namespace

/** The tools that the projects are written for take them as they are meant. */
class PtoToolsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void projectIsAccepted_data();
    void projectIsAccepted();
    void stacksAreSeen_data();
    void stacksAreSeen();
    void projectComesBackFromTheEditor();
    void everyPhotoIsMapped();
    void cropIsTheCoveredPart();
    void oddNamesAreFound_data();
    void oddNamesAreFound();
    void photosAreFoundThroughALinkedFolder();
    void alignedProjectIsUnderstood();
    void exposuresAreEvenedOutInLight();
    void projectOfTheToolsIsRead();

private:
    /** One row of \p count stacks of \p each small photos, on disk, \p step degrees apart. */
    [[nodiscard]] Panorama shoot(int count, int each, double step) const;
    [[nodiscard]] QString at(const QString &name) const { return m_folder->filePath(name); }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void PtoToolsTest::initTestCase()
{
    for (const char *const tool : { "checkpto", "pano_modify", "nona", "pto_gen" }) {
        if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty()) {
            QSKIP("hugin-tools is not installed");
        }
    }
}

void PtoToolsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

Panorama PtoToolsTest::shoot(int count, int each, double step) const
{
    Panorama panorama;
    panorama.focal35mm = 24.0;
    panorama.description.positionsKnown = true;
    for (int i = 0; i < count; ++i) {
        Position position;
        position.yawDegrees = i * step;
        for (int k = 0; k < each; ++k) {
            const QString path = TestPhotos::writeOrdinary(
                at(QStringLiteral("img_%1.jpg").arg(i * each + k + 1, 4, 10, QLatin1Char('0'))));
            position.photos.append(readPhotoInfo(path).value());
        }
        panorama.positions.append(position);
    }
    return panorama;
}

void PtoToolsTest::projectIsAccepted_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("each");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("stackLinking");
    QTest::addColumn<int>("lens");
    QTest::addColumn<int>("renderMode");
    QTest::newRow("full turn") << 6 << 1 << 60.0 << 0 << 0 << -1;
    QTest::newRow("partial") << 3 << 1 << 40.0 << 0 << 0 << -1;
    QTest::newRow("one photo") << 1 << 1 << 0.0 << 0 << 0 << -1;
    QTest::newRow("hard-linked stacks") << 6 << 3 << 60.0 << 0 << 0 << 2;
    QTest::newRow("detected stacks") << 6 << 3 << 60.0 << 1 << 0 << -1;
    QTest::newRow("fisheye") << 4 << 1 << 90.0 << 0 << 1 << -1;
    QTest::newRow("radiance") << 6 << 3 << 60.0 << 0 << 0 << 3;
}

void PtoToolsTest::projectIsAccepted()
{
    QFETCH(int, count);
    QFETCH(int, each);
    QFETCH(double, step);
    QFETCH(int, stackLinking);
    QFETCH(int, lens);
    QFETCH(int, renderMode);
    Panorama panorama = shoot(count, each, step);
    panorama.description.stackLinking = stackLinking;
    panorama.description.renderMode = renderMode;
    panorama.lens = static_cast<LensModel>(lens);
    panorama.focal35mm = panorama.lens == LensModel::Fisheye ? 12.0 : 24.0;
    QVERIFY(writePtoProject(panorama, at(QStringLiteral("pano.pto"))).ok());
    const ToolRun check
        = run(QStringLiteral("checkpto"), { QStringLiteral("pano.pto") }, m_folder->path());
    // The exit code counts the groups that no control points connect: here every photo or stack.
    QVERIFY2(check.output.contains(QStringLiteral("Opened project pano.pto")),
             qPrintable(check.output));
    QVERIFY2(!check.output.contains(QStringLiteral("ERROR")), qPrintable(check.output));
    const bool linked = stackLinking == 0;
    QCOMPARE(check.exitCode, count == 1 ? 0 : linked ? count : count * each);
}

void PtoToolsTest::stacksAreSeen_data()
{
    QTest::addColumn<int>("stackLinking");
    QTest::newRow("hard-linked") << 0;
    QTest::newRow("detected") << 1;
}

void PtoToolsTest::stacksAreSeen()
{
    QFETCH(int, stackLinking);
    Panorama panorama = shoot(4, 3, 90.0);
    panorama.description.stackLinking = stackLinking;
    QVERIFY(writePtoProject(panorama, at(QStringLiteral("pano.pto"))).ok());
    const ToolRun check = run(QStringLiteral("checkpto"),
                              { QStringLiteral("--print-stack-info"), QStringLiteral("pano.pto") },
                              m_folder->path());
    const QString stacks = QStringLiteral("Stacks:\n"
                                          "Stack 0: [0, 1, 2]\n"
                                          "Stack 1: [3, 4, 5]\n"
                                          "Stack 2: [6, 7, 8]\n"
                                          "Stack 3: [9, 10, 11]\n");
    QVERIFY2(check.output.contains(stacks), qPrintable(check.output));
}

void PtoToolsTest::projectComesBackFromTheEditor()
{
    const Panorama panorama = shoot(6, 3, 60.0);
    QVERIFY(writePtoProject(panorama, at(QStringLiteral("pano.pto"))).ok());
    const ToolRun modify
        = run(QStringLiteral("pano_modify"),
              { QStringLiteral("-o"), QStringLiteral("out.pto"), QStringLiteral("pano.pto") },
              m_folder->path());
    QCOMPARE(modify.exitCode, 0);
    QFile file(at(QStringLiteral("out.pto")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text.count("\ni w120 h80 f0 "), 18);
    QCOMPARE(text.count(" v73.739795"), 1);
    QCOMPARE(text.count(" j=3 "), 2);
    QVERIFY(text.contains(" r0 p0 y60 "));
    QVERIFY(text.contains(" r0 p0 y-60 "));
    QVERIFY(text.contains("n\"img_0018.jpg\""));
    QVERIFY(text.contains("\nv y3\n"));
    QVERIFY(!text.contains("\nv y4\n"));
}

void PtoToolsTest::everyPhotoIsMapped()
{
    const Panorama panorama = shoot(6, 1, 60.0);
    QVERIFY(writePtoProject(panorama, at(QStringLiteral("pano.pto"))).ok());
    const ToolRun nona = run(QStringLiteral("nona"),
                             { QStringLiteral("-m"), QStringLiteral("TIFF_m"), QStringLiteral("-o"),
                               QStringLiteral("mapped"), QStringLiteral("pano.pto") },
                             m_folder->path());
    QVERIFY2(nona.exitCode == 0, qPrintable(nona.output));
    QCOMPARE(QDir(m_folder->path()).entryList({ QStringLiteral("mapped*.tif") }).size(), 6);
}

void PtoToolsTest::cropIsTheCoveredPart()
{
    const Panorama panorama = shoot(3, 1, 40.0);
    const auto project = writePtoProject(panorama, at(QStringLiteral("pano.pto")));
    QVERIFY(project.ok());
    const ToolRun nona = run(QStringLiteral("nona"),
                             { QStringLiteral("-m"), QStringLiteral("PNG"), QStringLiteral("-o"),
                               QStringLiteral("mapped"), QStringLiteral("pano.pto") },
                             m_folder->path());
    QVERIFY2(nona.exitCode == 0, qPrintable(nona.output));
    const QImage image(at(QStringLiteral("mapped.png")));
    QCOMPARE(image.size(), project.value().crop.size());
    // Nothing that is covered lies outside: the picture reaches the margins, within the degree
    // that the width is rounded up by and a pixel for the height.
    const auto columnHasPixels = [&image](int x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                return true;
            }
        }
        return false;
    };
    int left = 0;
    while (left < image.width() && !columnHasPixels(left)) {
        ++left;
    }
    int right = image.width() - 1;
    while (right > left && !columnHasPixels(right)) {
        --right;
    }
    const double perDegree = image.width() / project.value().horizontalFovDegrees;
    QVERIFY2(left <= 1.5 * perDegree, qPrintable(QString::number(left)));
    QVERIFY2(image.width() - 1 - right <= 1.5 * perDegree, qPrintable(QString::number(right)));
    QVERIFY(qAbs(left - (image.width() - 1 - right)) <= 2);
}

void PtoToolsTest::oddNamesAreFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "a b.jpg";
    QTest::newRow("umlaut") << QString::fromUtf8("Höhe 全景.jpg");
    QTest::newRow("apostrophe") << "it's $(id) %1 #x &.jpg";
    QTest::newRow("leading hyphen") << "-x.jpg";
    QTest::newRow("backslash") << "a\\b.jpg";
    QTest::newRow("blanks around") << " x .jpg ";
    QTest::newRow("tilde") << "~root.jpg";
    QTest::newRow("long") << QString(240, QLatin1Char('x')) + QStringLiteral(".jpg");
    QTest::newRow("reversed writing")
        << QStringLiteral("a") + QChar(0x202e) + QStringLiteral("gpj.jpg");
    QTest::newRow("in a folder") << "photos of May/a.jpg";
}

void PtoToolsTest::oddNamesAreFound()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(QFileInfo(at(name)).path()));
    Panorama panorama = shoot(1, 1, 0.0);
    panorama.positions[0].photos[0].path = TestPhotos::writeOrdinary(at(name));
    QVERIFY(writePtoProject(panorama, at(QStringLiteral("pano.pto"))).ok());
    QVERIFY(QDir().mkpath(at(QStringLiteral("elsewhere"))));
    // Names count from the project's folder, wherever the tool runs.
    const ToolRun nona = run(QStringLiteral("nona"),
                             { QStringLiteral("-m"), QStringLiteral("PNG"), QStringLiteral("-o"),
                               QStringLiteral("mapped"), at(QStringLiteral("pano.pto")) },
                             at(QStringLiteral("elsewhere")));
    QVERIFY2(nona.exitCode == 0, qPrintable(nona.output));
    QVERIFY(QFileInfo::exists(at(QStringLiteral("elsewhere/mapped.png"))));
}

void PtoToolsTest::photosAreFoundThroughALinkedFolder()
{
    // deep/real/ is also known as linked/: going up from there leads to deep/, not to the top.
    QVERIFY(QDir().mkpath(at(QStringLiteral("deep/real"))));
    QVERIFY(QFile::link(at(QStringLiteral("deep/real")), at(QStringLiteral("linked"))));
    const Panorama panorama = shoot(2, 1, 30.0);
    const QString project = at(QStringLiteral("linked/pano.pto"));
    QVERIFY(writePtoProject(panorama, project).ok());
    const ToolRun nona = run(QStringLiteral("nona"),
                             { QStringLiteral("-m"), QStringLiteral("PNG"), QStringLiteral("-o"),
                               QStringLiteral("mapped"), project },
                             m_folder->path());
    QVERIFY2(nona.exitCode == 0, qPrintable(nona.output));
}

void PtoToolsTest::alignedProjectIsUnderstood()
{
    const Panorama panorama = shoot(6, 3, 60.0);
    PtoOptions options;
    options.projectFolder = m_folder->path();
    PtoFile file = projectOf(panorama, options).value();
    PtoLens lens;
    lens.horizontalFovDegrees = 80.0;
    lens.vignetting = Vignetting{ -0.25 };
    file.setLens(0, lens);
    // Every other photo stands on its head: were the first pixel's middle elsewhere, points would
    // not meet.
    QVector<PtoPoint> points;
    const double focal = 60.0 / std::tan(qDegreesToRadians(40.0));
    const double aside = focal * std::tan(qDegreesToRadians(30.0));
    for (int i = 0; i < 6; ++i) {
        const bool turned = i % 2 == 1;
        file.place(3 * i, { { 60.0 * i + 7.25, 0.0, turned ? 180.0 : 0.0 }, 12.0 + i });
        // Half way to the next photo, which sees it as far from its own middle.
        const double right = turned ? 59.5 - aside : 59.5 + aside;
        const double up = turned ? 39.5 + 10.0 : 39.5 - 10.0;
        points.append({ 3 * i, 3 * (i + 1) % 18, right, up, right, 79.0 - up });
    }
    points.append({ 0, 3, 1.0, 1.0, 1.0, 1.0, true });
    file.setPoints(points);
    file.layOutCanvas();
    const QString path = at(QStringLiteral("aligned.pto"));
    QVERIFY(writeFileAtomically(path, file.text(m_folder->path()).value()).ok());
    const ToolRun check = run(QStringLiteral("checkpto"), { path }, m_folder->path());
    QCOMPARE(check.exitCode, 0); // all are connected
    QVERIFY2(
        check.output.contains(QStringLiteral("18 images\n1 lenses\n6 stacks\n6 control points")),
        qPrintable(check.output));
    QVERIFY2(check.output.contains(QStringLiteral("Maximum           : 0.00")),
             qPrintable(check.output));
    // Saved by a tool it has the same values, and nothing that only this program knows.
    QCOMPARE(run(QStringLiteral("pano_modify"),
                 { QStringLiteral("-o"), at(QStringLiteral("out.pto")), path }, m_folder->path())
                 .exitCode,
             0);
    const PtoFile saved = PtoFile::read(at(QStringLiteral("out.pto"))).value();
    QVERIFY(!saved.isOurs());
    QCOMPARE(saved.points().size(), 6);
    QCOMPARE(saved.images().size(), 18);
    for (int i = 0; i < 18; ++i) {
        const PtoImage &ours = file.images()[i];
        const PtoImage &theirs = saved.images()[i];
        QVERIFY(std::abs(std::remainder(ours.angles.yaw - theirs.angles.yaw, 360.0)) < 1e-6);
        QVERIFY(std::abs(std::remainder(ours.angles.roll - theirs.angles.roll, 360.0)) < 1e-6);
        QCOMPARE(theirs.angleMaster, ours.angleMaster);
        QCOMPARE(theirs.stackMaster, ours.stackMaster);
        QCOMPARE(theirs.lensMaster, ours.lensMaster);
        QCOMPARE(theirs.horizontalFovDegrees, 80.0);
        QCOMPARE(theirs.exposureValue, ours.exposureValue);
        QCOMPARE(theirs.path, ours.path);
    }
    QVERIFY(saved.text(m_folder->path()).value().contains(" Vb-0.25 "));
}

void PtoToolsTest::exposuresAreEvenedOutInLight()
{
    // All levels of grey, four pixels each; twice the light of each is wanted.
    QImage ramp(1024, 64, QImage::Format_RGB32);
    for (int x = 0; x < ramp.width(); ++x) {
        for (int y = 0; y < ramp.height(); ++y) {
            ramp.setPixel(x, y, qRgb(x / 4, x / 4, x / 4));
        }
    }
    QVERIFY(ramp.save(at(QStringLiteral("ramp.png"))));
    PtoFile file = PtoFile::parse("p f0 w1024 h64 v40 E5 n\"PNG\"\nm i0\n"
                                  "i w1024 h64 f0 v40 Eev5 r0 p0 y0 n\"ramp.png\"\n",
                                  m_folder->path())
                       .value();
    PtoLens lens;
    lens.horizontalFovDegrees = 40.0;
    lens.vignetting = Vignetting();
    file.setLens(0, lens);
    file.setExposure(4.0);
    const QString path = at(QStringLiteral("ramp.pto"));
    QVERIFY(writeFileAtomically(path, file.text(m_folder->path()).value()).ok());
    const ToolRun nona = run(QStringLiteral("nona"),
                             { QStringLiteral("-m"), QStringLiteral("PNG"), QStringLiteral("-o"),
                               QStringLiteral("twice"), path },
                             m_folder->path());
    QVERIFY2(nona.exitCode == 0, qPrintable(nona.output));
    const QImage twice(at(QStringLiteral("twice.png")));
    QCOMPARE(twice.size(), ramp.size());
    const auto light = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto shown = [](double value) {
        return value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
    };
    for (int level = 10; level < 256; ++level) {
        const double expected = 255.0 * qMin(1.0, shown(2.0 * light(level / 255.0)));
        const int found = qRed(twice.pixel(4 * level + 2, 32));
        QVERIFY2(std::abs(found - expected) < 2.5,
                 qPrintable(QStringLiteral("%1: %2, %3").arg(level).arg(found).arg(expected)));
    }
}

void PtoToolsTest::projectOfTheToolsIsRead()
{
    QStringList photos;
    const Panorama panorama = shoot(2, 3, 60.0);
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            photos.append(photo.path);
        }
    }
    const QString path = at(QStringLiteral("theirs.pto"));
    const ToolRun made
        = run(QStringLiteral("pto_gen"),
              QStringList{ QStringLiteral("-s"), QStringLiteral("3"), QStringLiteral("-l"),
                           QStringLiteral("-f"), QStringLiteral("50"), QStringLiteral("-o"), path }
                  + photos,
              m_folder->path());
    QVERIFY2(made.exitCode == 0, qPrintable(made.output));
    PtoFile file = PtoFile::read(path).value();
    QVERIFY(!file.isOurs());
    QCOMPARE(file.images().size(), 6);
    QCOMPARE(file.images()[5].angleMaster, 3);
    QCOMPARE(file.images()[5].stackMaster, 3);
    QCOMPARE(file.images()[5].lensMaster, 0);
    QCOMPARE(file.images()[5].horizontalFovDegrees, 50.0);
    QCOMPARE(file.images()[5].path, photos[5]);
    file.place(3, { { 25.0, 0.0, 0.0 }, {} });
    file.setPoints({ { 0, 3, 60.0, 40.0, 10.0, 40.0 } });
    QVERIFY(QDir().mkpath(at(QStringLiteral("below"))));
    const QString moved = at(QStringLiteral("below/moved.pto"));
    QVERIFY(writeFileAtomically(moved, file.text(at(QStringLiteral("below"))).value()).ok());
    const ToolRun check = run(QStringLiteral("checkpto"),
                              { QStringLiteral("--print-stack-info"), moved }, m_folder->path());
    QCOMPARE(check.exitCode, 0);
    QVERIFY2(
        check.output.contains(QStringLiteral("6 images\n1 lenses\n2 stacks\n1 control points")),
        qPrintable(check.output));
    // Photos are found from the folder of the file that is moved.
    const ToolRun nona = run(QStringLiteral("nona"),
                             { QStringLiteral("-m"), QStringLiteral("PNG"), QStringLiteral("-o"),
                               at(QStringLiteral("mapped")), moved },
                             m_folder->path());
    QVERIFY2(nona.exitCode == 0, qPrintable(nona.output));
}

TEST_CLASS(PtoToolsTest, QApplication)
#include "tst_ptotools.moc"
