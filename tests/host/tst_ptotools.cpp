// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

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

private:
    /** One row of \p count stacks of \p each small photos, on disk, \p step degrees apart. */
    Panorama shoot(int count, int each, double step) const;
    [[nodiscard]] QString at(const QString &name) const { return m_folder->filePath(name); }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void PtoToolsTest::initTestCase()
{
    for (const char *const tool : { "checkpto", "pano_modify", "nona" }) {
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

TEST_CLASS(PtoToolsTest, QApplication)
#include "tst_ptotools.moc"
