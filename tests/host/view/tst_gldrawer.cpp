// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/gldrawer.h"
#include "host/view/shootview.h"
#include "host/view/thumbnailloader.h"
#include "tests/host/testphotos.h"
#include "tests/host/view/viewshoots.h"
#include "tests/support/testprogram.h"

#include <QApplication>

#include <cmath>

using namespace PanoHost;
using ViewShoots::shootOf;

namespace
{

const QSize kScreen(360, 200);

/** The share of pixels whose channels differ by more than \p most. */
double differingShare(const QImage &one, const QImage &other, int most)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const bool differs = std::abs(qRed(a) - qRed(b)) > most
                || std::abs(qGreen(a) - qGreen(b)) > most || std::abs(qBlue(a) - qBlue(b)) > most
                || qAlpha(a) != qAlpha(b);
            count += differs ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (one.width() * one.height());
}

ViewCamera cameraAt(ViewMode mode, double yaw, double pitch, double pixelsPerDegree)
{
    ViewCamera camera;
    camera.mode = mode;
    camera.yawDegrees = yaw;
    camera.pitchDegrees = pitch;
    camera.pixelsPerDegree = pixelsPerDegree;
    camera.size = kScreen;
    return camera;
}

} // namespace

class GlDrawerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictureIsThatOfTheSoftware_data();
    void pictureIsThatOfTheSoftware();
    void photosAreAsSharp();
    void moreThumbnailsThanPlaces();
    void viewUsesIt();

private:
    std::unique_ptr<PictureDrawer> m_drawer;
};

void GlDrawerTest::initTestCase()
{
    m_drawer = makeGlDrawer(GlBy::Any);
    QVERIFY2(m_drawer, "no OpenGL on the test's screen");
}

void GlDrawerTest::pictureIsThatOfTheSoftware_data()
{
    QTest::addColumn<bool>("isFisheye");
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("pitch");
    for (const bool isFisheye : { false, true }) {
        const char *lens = isFisheye ? "fisheye" : "standard";
        QTest::addRow("%s, map", lens) << isFisheye << int(ViewMode::Flat) << 0.0;
        QTest::addRow("%s, sphere", lens) << isFisheye << int(ViewMode::Sphere) << 0.0;
        QTest::addRow("%s, zenith", lens) << isFisheye << int(ViewMode::Sphere) << 85.0;
    }
}

void GlDrawerTest::pictureIsThatOfTheSoftware()
{
    QFETCH(bool, isFisheye);
    QFETCH(int, mode);
    QFETCH(double, pitch);
    const Panorama panorama
        = shootOf({ { 0, 0, 0 }, { 40, 10, 20 }, { 150, -20, 90 }, { 175, 20, 0 }, { 60, 75, 30 } },
                  isFisheye ? 12 : 24, isFisheye ? LensModel::Fisheye : LensModel::Standard);
    const ShootScene scene = sceneOf(panorama);
    const ViewCamera camera = cameraAt(static_cast<ViewMode>(mode), 20, pitch, 2.0);
    const DrawList list = drawListOf(scene, camera, 1.0, 1);
    const auto fill = [](const Patch &patch) {
        FrameFill one = ViewShoots::plainFill(patch);
        if (patch.frame == 2) {
            one.texture = {};
            one.plain = qRgb(1, 2, 3);
        }
        one.tint = patch.frame == 3 ? qRgba(200, 0, 100, 100) : 0;
        return one;
    };
    const QRect clip = mapRect(camera, 1.0);
    const QImage soft = SoftDrawer().draw(list, kScreen, clip, fill);
    const QImage hard = m_drawer->draw(list, kScreen, clip, fill);
    QCOMPARE(hard.size(), soft.size());
    QCOMPARE(hard.format(), soft.format());
    // Edges are rounded differently.
    const double share = differingShare(soft, hard, 3);
    QVERIFY2(share < 0.005, qPrintable(QString::number(share)));
    QVERIFY(differingShare(soft, QImage(soft.size(), soft.format()), 3) > 0.3);
}

void GlDrawerTest::photosAreAsSharp()
{
    const QImage quarters
        = TestPhotos::quarters(QSize(256, 171)).convertToFormat(QImage::Format_RGB32);
    const auto fill = [&quarters](const Patch &) { return FrameFill{ quarters, 0, 0 }; };
    for (const double pitch : { 0.0, 80.0 }) {
        const ShootScene scene = sceneOf(shootOf({ { 0, pitch, 33 } }, 35));
        const ViewCamera camera = cameraAt(ViewMode::Sphere, 0, pitch, 4.0);
        const DrawList list = drawListOf(scene, camera, 1.0);
        const QImage soft = SoftDrawer().draw(list, kScreen, QRect({}, kScreen), fill);
        const QImage hard = m_drawer->draw(list, kScreen, QRect({}, kScreen), fill);
        const double share = differingShare(soft, hard, 24);
        QVERIFY2(share < 0.01, qPrintable(QString::number(share)));
    }
}

void GlDrawerTest::moreThumbnailsThanPlaces()
{
    // 500 large thumbnails one after the other, of which 320 have room: each shows its own colour.
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 } }, 24));
    const ViewCamera camera = cameraAt(ViewMode::Flat, 0, 0, 1.0);
    const DrawList list = drawListOf(scene, camera, 1.0);
    for (int i = 0; i < 500; ++i) {
        const auto fill = [i](const Patch &) {
            QImage picture(256, 171, QImage::Format_RGB32);
            picture.fill(ViewShoots::colourOf(i));
            return FrameFill{ picture, 0, 0 };
        };
        const QImage picture = m_drawer->draw(list, kScreen, mapRect(camera, 1.0), fill);
        QCOMPARE(picture.pixel(180, 100), ViewShoots::colourOf(i));
    }
}

void GlDrawerTest::viewUsesIt()
{
    ShootView hard(nullptr, ShootView::Drawing::OpenGl);
    ShootView best;
    QVector<QImage> pictures;
    for (ShootView *view : { &hard, &best }) {
        view->setPhotoSource([](const QString &) { return std::nullopt; });
        view->resize(400, 200);
        view->showScene(sceneOf(shootOf({ { 0, 0 }, { 60, 0 }, { 120, 30 } }, 24)));
        QTRY_VERIFY(view->isLoaded() || !view->grab().isNull());
        pictures += view->grab().toImage();
    }
    QVERIFY(hard.usesOpenGl());
    // The processor's own OpenGL is slower than doing without.
    QVERIFY(!best.usesOpenGl());
    QVERIFY(differingShare(pictures.at(0), pictures.at(1), 8) < 0.01);
}

TEST_CLASS(GlDrawerTest, QApplication)

#include "tst_gldrawer.moc"
