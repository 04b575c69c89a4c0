// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignment.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace PanoHost;
using namespace TestShoots;

namespace
{

/** Where the reference photos of \p project point. */
Rotations rotationsOf(const PtoFile &project)
{
    Rotations found;
    for (const PtoImage &image : project.images()) {
        if (image.stackMaster < 0) {
            found.push_back(rotationOf(image.angles));
        }
    }
    return found;
}

} // namespace

/**
 * Whole alignments of shoots whose truth is known. Photos are drawn for minutes; with
 * PANOHOST_SHOOTS set they are kept in that folder.
 */
class TestAlignShoots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosComeWhereTheyTrulyPointed_data();
    void photosComeWhereTheyTrulyPointed();
    void islandsKeepTheirPlace_data();
    void islandsKeepTheirPlace();

private:
    [[nodiscard]] Panorama photographs(const TestShoot &shoot) const
    {
        const QString folder = qEnvironmentVariable("PANOHOST_SHOOTS", m_folder.path());
        return photographed(shoot, folder + QLatin1Char('/') + shoot.name).value();
    }

    QTemporaryDir m_folder;
};

void TestAlignShoots::photosComeWhereTheyTrulyPointed_data()
{
    QTest::addColumn<double>("most"); // degrees, rms of the photos with texture
    QTest::addColumn<double>("mostApart"); // of the sky's; 0: there is none
    QTest::addColumn<QString>("said"); // besides what is said of every shoot
    const auto row
        = [](const char *name, double most, double mostApart = 0.0, const char *said = "") {
              QTest::newRow(name) << most << mostApart << QString::fromLatin1(said);
          };
    row("play", 0.005);
    row("focal-2", 0.006, 0.0, "lens 24 mm instead of 23.5");
    row("focal-5", 0.01, 0.0, "lens 24 mm instead of 22.8");
    row("barrel", 0.006);
    row("fisheye", 0.006);
    row("portrait", 0.006);
    row("partial", 0.006);
    row("crooked", 0.006, 0.0, "the camera sits 0.9 degrees crooked on the head");
    row("brackets", 0.006);
    // The head's play, up to 0.3 degrees in yaw and pitch, is 0.245 degrees rms: a twentieth more.
    row("sky", 0.006, 1.05 * 0.245, "no points in 9 photos");
    row("sky-crooked", 0.006, 0.15, "the camera sits 0.9 degrees crooked on the head");
    row("grid-10", 0.012, 0.0, "the head's steps are 0.875 (across)");
    row("grid-5", 0.012, 0.0, "the head's steps are 0.933 (across)");
    row("grid+0", 0.012);
    row("grid+5", 0.012, 0.0, "the head's steps are 1.077 (across)");
    row("grid+10", 0.012, 0.0, "the head's steps are 1.167 (across)");
    row("grid-360", 0.012);
    row("clauss", 0.01);
    row("slip", 0.01, 0.0, "from demo_0014.jpg on the head stands 6.1 degrees farther right");
    row("bump", 0.01, 0.0, "demo_0011.jpg was taken 2.7 degrees from where the head says");
    row("facade", 0.015);
    row("haze", 0.03);
    row("vignetting", 0.006, 0.0, "the lens darkens its corners by 45 %");
    row("exposure", 0.006, 0.0, "exposures are not what the photos say, by up to 0.6 stops");
    // The nodal point moves by 4 cm: no rotation explains what is seen.
    row("room", 0.3, 0.0, "residuals suggest parallax");
}

void TestAlignShoots::photosComeWhereTheyTrulyPointed()
{
    QFETCH(double, most);
    QFETCH(double, mostApart);
    QFETCH(QString, said);
    const TestShoot shoot = *named(QString::fromLatin1(QTest::currentDataTag()));
    const auto aligned = align(photographs(shoot), {}, {}, {});
    QVERIFY2(aligned.ok(), qPrintable(aligned ? QString() : aligned.error().text()));
    const AlignmentReport &report = aligned.value().report;
    const QString all = sentences(report).join(QLatin1Char('\n'));
    qInfo("%s", qPrintable(all));
    const Verdict verdict = judged(shoot, ::rotationsOf(aligned.value().project));
    QVERIFY2(verdict.tied.rms <= most, qPrintable(QString::number(verdict.tied.rms)));
    QVERIFY2(verdict.apart <= mostApart, qPrintable(QString::number(verdict.apart)));
    QVERIFY2(all.contains(said), qPrintable(all));
    QCOMPARE(all.contains(QStringLiteral("parallax")), shoot.nodalOffsetMetres > 0.0);
    QCOMPARE(all.contains(QStringLiteral("slip?")), shoot.faults.slipsFrom >= 0);
    QCOMPARE(all.contains(QStringLiteral("bumped?")), shoot.faults.bumped >= 0);
    if (shoot.nodalOffsetMetres == 0.0) {
        const double share = report.focal35mm / shoot.camera.focal35mm - 1.0;
        QVERIFY2(std::abs(share) < 0.0005, qPrintable(QString::number(share)));
        QVERIFY2(std::abs(report.distortionB - shoot.camera.errors.b) < 0.0005,
                 qPrintable(QString::number(report.distortionB)));
    }
}

void TestAlignShoots::islandsKeepTheirPlace_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 10; ++seed) {
        QTest::addRow("seed %d", seed) << seed;
    }
}

void TestAlignShoots::islandsKeepTheirPlace()
{
    constexpr int kAbove = 8;
    constexpr int kBelow = 7;
    QFETCH(int, seed);
    const TestShoot shoot = islands(kAbove, kBelow, quint32(seed));
    const auto aligned = align(photographs(shoot), {}, {}, {});
    QVERIFY(aligned.ok());
    const Verdict verdict = judged(shoot, ::rotationsOf(aligned.value().project));
    // Play evenly spread up to 0.3 degrees in two axes.
    const double play = 0.3 / std::sqrt(3.0) * std::sqrt(2.0);
    const double most = 1.3 * play * std::sqrt(1.0 / kAbove + 1.0 / kBelow);
    QVERIFY2(verdict.apart <= most, qPrintable(QString::number(verdict.apart)));
    QVERIFY2(verdict.tied.rms < 0.03, qPrintable(QString::number(verdict.tied.rms)));
}

TEST_CLASS(TestAlignShoots, QCoreApplication)
#include "tst_alignshoots.moc"
