// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "importers/gigapan/gridguess.h"
#include "importers/gigapan/gridlayout.h"
#include "tests/support/allocations.h"
#include "tests/support/heads.h"
#include "tests/support/plainpreview.h"
#include "tests/support/recordshoot.h"
#include "tests/support/sanitized.h"
#include "ui/xui.h"

#include <QLabel>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

using namespace PanoHead;

namespace
{

// A tenth with a sanitizer, which makes every photo several times as dear.
constexpr int kPhotos = kIsSanitized ? 7'000 : 70'000;
constexpr int kZoom = 50;
// 350 x 200 shots over the whole sphere.
constexpr int kSweepColumns = 350;
constexpr double kSweepStepDegrees = 0.9;
// Whole degrees only: a turn has 360.
constexpr int kCoarseColumns = 360;

QVector<ShotAngles> sweepOf(const Head &head)
{
    const bool isCoarse = head.facts->notesWholeDegrees;
    const int columns = isCoarse ? kCoarseColumns : kSweepColumns;
    const double step = isCoarse ? 1.0 : kSweepStepDegrees;
    QVector<ShotAngles> shots;
    for (int i = 0; i < kPhotos; ++i) {
        shots.append({ i % columns * step, 90.0 - i / columns * step });
    }
    return shots;
}

PreviewLayout layoutOf(const Head &head)
{
    if (head.facts->isGrid()) {
        const GridSize size = guessGrid(kPhotos);
        GridView grid;
        grid.rows = size.rows;
        grid.columns = size.columns;
        return layOutGrid(grid, QSize(160, 120));
    }
    QVector<ShootData> shots;
    for (const ShotAngles &angles : sweepOf(head)) {
        ShootData shot;
        shot.yaw = QString::number(angles.yawDegrees).toFloat();
        shot.pitch = QString::number(angles.pitchDegrees).toFloat();
        shots.append(shot);
    }
    return layOutShots(shots, extentsOf(shots), head.layout);
}

/** The picture that \p page must show with all of its photos, drawn from scratch. */
QImage drawnFromScratch(const Head &head, const QWizardPage &page, const QWidget &preview)
{
    PreviewScene scene;
    scene.layout = layoutOf(head);
    scene.images = page.findChild<ReadingThread *>()->XIImageDefs();
    scene.style = head.facts->isGrid() ? CellStyle::UnscaledPhoto : CellStyle::FittedWithCaption;
    const PreviewColours colours = plainColours(scene.style, preview);
    return plainZoom(plainPicture(scene, colours), kZoom);
}

double megabytes(std::int64_t bytes)
{
    return static_cast<double>(bytes) / 1e6;
}

} // namespace

class TestSoak : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void recordShootIsLoadedWhole_data() { addHeads(allHeads()); }
    void recordShootIsLoadedWhole();

private:
    std::unique_ptr<RecordShoot> m_shoot;
};

void TestSoak::initTestCase()
{
    qInfo("%d photos", kPhotos);
    XUI::init(fakeHost().UIInstances());
    m_shoot = std::make_unique<RecordShoot>(kPhotos);
}

void TestSoak::recordShootIsLoadedWhole()
{
    QFETCH(const Head *, head);
    const std::unique_ptr<QWizardPage> page(head->newPage().page);
    PageLoad load(page.get());
    const std::int64_t before = Allocations::held();
    if (head->recordName != nullptr) {
        const QString record
            = m_shoot->write(QString::fromLatin1(head->recordName), head->recordOf(sweepOf(*head)));
        qInfo("record read and drawn: %.3g s", load.enterRecord(record));
    }
    qInfo("photos chosen: %.3g s", load.choosePhotos(m_shoot->photos(kPhotos)));

    const std::int64_t loadStart = Allocations::held();
    Allocations::resetPeak();
    std::vector<double> steps;
    double longest = 0.0;
    while (!load.isDone()) {
        const PageLoad::Cost cost = load.readNext();
        steps.push_back(cost.all);
        longest = std::max(longest, cost.longest);
    }
    load.driver().waitUntilRead();
    qInfo("%zu signals: %.3g s of the GUI thread, at most %.3g ms, %.3g ms on average",
          steps.size(), std::accumulate(steps.cbegin(), steps.cend(), 0.0), longest * 1e3,
          std::accumulate(steps.cbegin(), steps.cend(), 0.0) * 1e3
              / static_cast<double>(steps.size()));
    if (Allocations::areCounted()) {
        qInfo("memory: %.1f MB before the load, %.1f MB after it, %.1f MB at the most",
              megabytes(loadStart - before), megabytes(Allocations::held() - before),
              megabytes(Allocations::peak() - before));
    }

    const QList<XIImageDef *> read = page->findChild<ReadingThread *>()->XIImageDefs();
    QCOMPARE(read.size(), kPhotos);
    const QStringList files = m_shoot->photos(kPhotos);
    for (int i = 0; i < kPhotos; ++i) {
        QCOMPARE(static_cast<FakeImage *>(read[i])->fileName(), files[i]);
    }
    QVERIFY(page->isComplete());
    const QImage expected = drawnFromScratch(*head, *page, *load.driver().preview());
    QCOMPARE(pixelDifference(load.driver().picture(), expected), QString());
}

TEST_CLASS(TestSoak, RecordShootApplication)
#include "tst_soak.moc"
