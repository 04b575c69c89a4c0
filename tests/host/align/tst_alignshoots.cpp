// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignment.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

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
            found.push_back(
                rotationOf({ image.angles.yaw, image.angles.pitch, image.angles.roll }));
        }
    }
    return found;
}

} // namespace

class TestAlignShoots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosComeWhereTheyTrulyPointed_data();
    void photosComeWhereTheyTrulyPointed();

private:
    QTemporaryDir m_folder;
};

void TestAlignShoots::photosComeWhereTheyTrulyPointed_data()
{
    QTest::addColumn<double>("rms");
    QTest::addColumn<double>("apart");
    for (const TestShoot &shoot : all()) {
        QTest::newRow(qPrintable(shoot.name)) << 0.006 << 0.0;
    }
}

void TestAlignShoots::photosComeWhereTheyTrulyPointed()
{
    const TestShoot shoot = *named(QString::fromLatin1(QTest::currentDataTag()));
    const QString cache = qEnvironmentVariable("PANOHOST_SHOOTS", m_folder.path());
    auto panorama = photographed(shoot, cache + QLatin1Char('/') + shoot.name);
    QVERIFY2(panorama.ok(), qPrintable(panorama ? QString() : panorama.error().text()));
    QElapsedTimer timer;
    timer.start();
    const auto aligned = align(panorama.value(), {}, {}, {});
    QVERIFY2(aligned.ok(), qPrintable(aligned ? QString() : aligned.error().text()));
    const Verdict verdict = judged(shoot, ::rotationsOf(aligned.value().project));
    const Verdict before = judged(shoot, TestShoots::rotationsOf(panorama.value()));
    const AlignmentReport &r = aligned.value().report;
    qInfo("f %.4f b %.5f mount %.3f %.3f scale %.4f %.4f", r.focal35mm, r.distortionB,
          r.mountPitchDegrees, r.mountRollDegrees, r.yawScale, r.pitchScale);
    qInfo("%s: before %.4f now %.4f max %.4f apart %.4f (before %.4f) %.1f s | %s",
          qPrintable(shoot.name), before.tied.rms, verdict.tied.rms, verdict.tied.largest,
          verdict.apart, before.apart, double(timer.elapsed()) / 1000.0,
          qPrintable(sentences(aligned.value().report).join(QLatin1String(" | "))));
}

TEST_CLASS(TestAlignShoots, QCoreApplication)
#include "tst_alignshoots.moc"
