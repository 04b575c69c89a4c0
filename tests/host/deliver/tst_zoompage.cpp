// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "browser.h"
#include "host/deliver/zoomtiles.h"
#include "testpicture.h"
#include "tests/support/testprogram.h"
#include "testsphere.h"

#include <QCoreApplication>

#include <memory>

using namespace PanoHost;

class TestZoomPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_browser = std::make_unique<Browser>(); }
    void cleanup();
    void cleanupTestCase() { m_browser.reset(); }
    void pageShowsAllAtFirst();
    void pageMagnifiesWhatIsAskedFor();
    void buttonsAndWheelMagnify();
    void whatIsNotCoveredIsBackground();
    void titleIsOnlyText();

private:
    bool show(const QString &page, const QString &hash = {});

    std::unique_ptr<Browser> m_browser;
};

void TestZoomPage::cleanup()
{
    QCOMPARE(m_browser->problem(), QString());
    QCOMPARE(m_browser->errors(), QStringList());
    QCOMPARE(m_browser->asked(), QStringList()); // of no network
}

bool TestZoomPage::show(const QString &page, const QString &hash)
{
    return m_browser->open(page, hash)
        && m_browser->waitUntil(QStringLiteral(
            "viewer.world.getItemCount() == 1 && viewer.world.getItemAt(0).getFullyLoaded()"));
}

void TestZoomPage::pageShowsAllAtFirst()
{
    const TestSphere sphere;
    const Result<QString> made = makeZoomFolder(sphere.job, {});
    QVERIFY2(made, made ? "" : qPrintable(made.error().text()));
    QCOMPARE(made.value(), sphere.path("my pano[x]_zoom/index.html"));
    QVERIFY(show(made.value()));
    const QImage picture = m_browser->picture();
    QCOMPARE(picture.size(), QSize(800, 450));
    // The picture becomes 800 x 400, from row 25 to 424.
    QVERIFY(isAlike(picture.pixel(400, 225), Marks::kFront));
    QVERIFY(isAlike(picture.pixel(600, 225), Marks::kRight));
    QVERIFY(isAlike(picture.pixel(200, 225), Marks::kLeft));
    QVERIFY(isAlike(picture.pixel(2, 225), Marks::kBack));
    QVERIFY(isAlike(picture.pixel(400, 35), Marks::kZenith));
    QVERIFY(isAlike(picture.pixel(400, 415), Marks::kNadir));
    QCOMPARE(picture.pixel(400, 10), qRgb(24, 24, 24));
    QCOMPARE(picture.pixel(400, 440), qRgb(24, 24, 24));
    QCOMPARE(m_browser->evaluate(QStringLiteral("document.documentElement.scrollHeight")).toInt(),
             450);
}

void TestZoomPage::pageMagnifiesWhatIsAskedFor()
{
    const TestSphere sphere({ 2048, 1024 });
    QVERIFY(makeZoomFolder(sphere.job, {}));
    // The right mark is 30 of 360 degrees wide: eight times as large, it fills two thirds.
    QVERIFY(
        show(sphere.path("my pano[x]_zoom/index.html"), QStringLiteral("#x=0.75&y=0.5&zoom=8")));
    const QImage picture = m_browser->picture();
    QVERIFY(isAlike(picture.pixel(400, 225), Marks::kRight));
    QVERIFY(isAlike(picture.pixel(150, 225), Marks::kRight));
    QVERIFY(isAlike(picture.pixel(100, 100), Marks::kElsewhere));
    m_browser->evaluate(QStringLiteral("location.hash = '#x=0.5&y=0.5&zoom=4'"));
    QVERIFY(m_browser->waitUntil(
        QStringLiteral("Math.abs(viewer.viewport.getCenter(true).x - 0.5) < 0.001")));
    QVERIFY(isAlike(m_browser->picture().pixel(400, 225), Marks::kFront));
}

void TestZoomPage::buttonsAndWheelMagnify()
{
    const TestSphere sphere;
    QVERIFY(makeZoomFolder(sphere.job, {}));
    QVERIFY(show(sphere.path("my pano[x]_zoom/index.html")));
    const QString zoom = QStringLiteral("viewer.viewport.getZoom()");
    const double before = m_browser->evaluate(zoom).toDouble();
    m_browser->click({ 20, 20 }); // +
    QVERIFY(m_browser->waitUntil(QStringLiteral("%1 > %2").arg(zoom).arg(before * 1.1)));
    m_browser->click({ 20, 100 }); // all
    QVERIFY(
        m_browser->waitUntil(QStringLiteral("Math.abs(%1 - %2) < 0.001").arg(zoom).arg(before)));
    m_browser->turnWheel({ 400, 225 }, -300);
    QVERIFY(m_browser->waitUntil(QStringLiteral("%1 > %2").arg(zoom).arg(before * 1.1)));
}

void TestZoomPage::whatIsNotCoveredIsBackground()
{
    const TestSphere sphere({ 1024, 512 }, { 100, 100, 800, 200 });
    QVector<Pixel> pixels(800 * 200, { 200, 100, 50, 255 });
    for (int i = 0; i < pixels.size(); ++i) {
        if (i % 800 < 400) {
            pixels[i] = { 250, 250, 250, 0 }; // which nobody is to see
        }
    }
    QVERIFY(writeTestPicture(sphere.job.picture, pixels));
    QVERIFY(makeZoomFolder(sphere.job, {}));
    QVERIFY(show(sphere.path("my pano[x]_zoom/index.html")));
    const QImage picture = m_browser->picture();
    QVERIFY(isAlike(picture.pixel(600, 225), qRgb(200, 100, 50)));
    QCOMPARE(picture.pixel(200, 225), qRgb(24, 24, 24));
    QCOMPARE(picture.pixel(200, 225), picture.pixel(400, 10));
}

void TestZoomPage::titleIsOnlyText()
{
    TestSphere sphere({ 64, 32 });
    sphere.job.title = QStringLiteral(
        "</title></script><script>document.title = 'mine'</script>\"'&amp; @SOURCE@");
    QVERIFY(makeZoomFolder(sphere.job, {}));
    QVERIFY(show(sphere.path("my pano[x]_zoom/index.html")));
    QCOMPARE(m_browser->evaluate(QStringLiteral("document.title")).toString(), sphere.job.title);
    QCOMPARE(
        m_browser->evaluate(QStringLiteral("document.querySelector('h1').textContent")).toString(),
        sphere.job.title);
}

TEST_CLASS(TestZoomPage, QCoreApplication)
#include "tst_zoompage.moc"
