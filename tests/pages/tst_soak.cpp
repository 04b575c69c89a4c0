// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/gridguess.h"
#include "importers/gigapan/gridlayout.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "tests/support/allocations.h"
#include "tests/support/literalpreview.h"
#include "tests/support/recordshoot.h"
#include "tests/support/sanitized.h"
#include "ui/xui.h"

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
constexpr int kClaussColumns = 360;

enum class Head { Papywizard, VRDrive2, Clauss, Gigapan };

std::unique_ptr<QWizardPage> newPage(Head head)
{
    switch (head) {
    case Head::Papywizard:
        return std::make_unique<UIWPMerlin>(nullptr);
    case Head::VRDrive2:
        return std::make_unique<UIWPVRDrive2>(nullptr);
    case Head::Clauss:
        return std::make_unique<UIWPClauss>(nullptr);
    case Head::Gigapan:
        return std::make_unique<UIWPGigapan>(nullptr);
    }
    return {};
}

QVector<ShootData> shotsOf(Head head)
{
    const int columns = head == Head::Clauss ? kClaussColumns : kSweepColumns;
    const double step = head == Head::Clauss ? 1.0 : kSweepStepDegrees;
    QVector<ShootData> shots;
    for (int i = 0; i < kPhotos; ++i) {
        ShootData shot;
        shot.yaw = QString::number(i % columns * step).toFloat();
        shot.pitch = QString::number(90.0 - i / columns * step).toFloat();
        shots.append(shot);
    }
    return shots;
}

QByteArray recordOf(Head head)
{
    QByteArray script;
    RecordXml record;
    for (const ShootData &shot : shotsOf(head)) {
        const QString yaw = QString::number(static_cast<double>(shot.yaw));
        const QString pitch = QString::number(static_cast<double>(shot.pitch));
        script
            += "op_h-angle=" + yaw.toLatin1() + "\nop_v-angle=" + pitch.toLatin1() + "\nop_shoot\n";
        record.shots.append({ yaw, pitch });
    }
    return head == Head::Clauss ? script : record.bytes();
}

PreviewLayout layoutOf(Head head)
{
    if (head == Head::Gigapan) {
        const GridSize size = guessGrid(kPhotos);
        GridView grid;
        grid.rows = size.rows;
        grid.columns = size.columns;
        return layOutGrid(grid, QSize(160, 120));
    }
    LayoutRules rules;
    rules.smallestStepDegrees = head == Head::Clauss ? 0.0 : 8.0;
    rules.span = head == Head::VRDrive2 ? Span::NegatedSumToo : Span::Absolute;
    rules.precision = head == Head::Clauss ? Precision::Single : Precision::Double;
    const QVector<ShootData> shots = shotsOf(head);
    return layOutShots(shots, extentsOf(shots), rules);
}

/** The picture that \p page must show with all of its photos, drawn from scratch. */
QImage drawnFromScratch(Head head, const QWizardPage &page, const QWidget &preview)
{
    PreviewScene scene;
    scene.layout = layoutOf(head);
    scene.images = page.findChild<ReadingThread *>()->XIImageDefs();
    scene.style = head == Head::Gigapan ? CellStyle::UnscaledPhoto : CellStyle::FittedWithCaption;
    const PreviewColours colours = literalColours(scene.style, preview);
    return literalZoom(literalPicture(scene, colours), kZoom);
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
    void recordShootIsLoadedWhole_data();
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

void TestSoak::recordShootIsLoadedWhole_data()
{
    QTest::addColumn<int>("head");
    QTest::newRow("Papywizard") << static_cast<int>(Head::Papywizard);
    QTest::newRow("VR Drive 2") << static_cast<int>(Head::VRDrive2);
    QTest::newRow("Clauss") << static_cast<int>(Head::Clauss);
    QTest::newRow("Gigapan") << static_cast<int>(Head::Gigapan);
}

void TestSoak::recordShootIsLoadedWhole()
{
    QFETCH(const int, head);
    const auto kind = static_cast<Head>(head);
    const std::unique_ptr<QWizardPage> page = newPage(kind);
    PageLoad load(page.get());
    const std::int64_t before = Allocations::held();
    if (kind != Head::Gigapan) {
        const QString name
            = kind == Head::Clauss ? QStringLiteral("shoot.txt") : QStringLiteral("shoot.xml");
        const QString record = m_shoot->write(name, recordOf(kind));
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
    const QImage expected = drawnFromScratch(kind, *page, *load.driver().preview());
    QCOMPARE(pixelDifference(load.driver().picture(), expected), QString());
}

TEST_CLASS(TestSoak, RecordShootApplication)
#include "tst_soak.moc"
