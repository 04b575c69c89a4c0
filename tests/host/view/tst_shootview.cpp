// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"
#include "host/view/shootpanel.h"
#include "host/view/shootview.h"
#include "host/view/viewmarks.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/view/viewshoots.h"
#include "tests/support/testprogram.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>
#include <QToolTip>

#include <cmath>

using namespace PanoHost;
using ViewShoots::colourOf;
using ViewShoots::shootOf;

namespace
{

/** Photos named by their numbers from 1, each in its colour; those of 900 on cannot be read. */
std::optional<PhotoReading> colouredPhoto(const QString &path)
{
    const int number = QFileInfo(path).completeBaseName().toInt();
    if (number >= 900) {
        return {};
    }
    PhotoReading reading;
    reading.info.path = path;
    reading.thumbnail = QImage(256, 171, QImage::Format_RGB32);
    reading.thumbnail.fill(colourOf(number - 1));
    return reading;
}

/** Four photos of 74 x 53 degrees a quarter turn apart, with gaps between, the first two linked. */
Panorama fourPhotos()
{
    Panorama panorama = TestPanoramas::row(4);
    panorama.focal35mm = focal35mmOf(QSize(1200, 800), 800.0);
    ViewShoots::link(&panorama, 0, 1);
    return panorama;
}

/** A panel in front of somebody, its photos all there. */
class Bench
{
public:
    explicit Bench(const Panorama &panorama)
    {
        panel.resize(760, 440);
        panel.setPhotoSource(colouredPhoto);
        panel.show(panorama);
        static_cast<QWidget &>(panel).show();
        (void)QTest::qWaitForWindowExposed(&panel);
    }

    [[nodiscard]] ShootView &view() { return *panel.view(); }
    [[nodiscard]] QPoint pointAt(double yaw, double pitch)
    {
        return view().camera().pointOf(directionAt(yaw, pitch))->toPoint();
    }
    [[nodiscard]] QString told() const { return panel.findChild<QLabel *>()->text(); }
    void press(const char *tool)
    {
        auto *button = panel.findChild<QAbstractButton *>(QLatin1String(tool));
        QVERIFY2(button, tool);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void wheel(const QPoint &point, int notches)
    {
        QWheelEvent event(point, view().mapToGlobal(point), {}, QPoint(0, 120 * notches),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view(), &event);
    }
    /** Photographs the panel, where PANOHOST_WINDOW_PICTURES names a folder. */
    QImage picture(const QString &name)
    {
        QImage grabbed = view().grab().toImage();
        const QString folder = qEnvironmentVariable("PANOHOST_WINDOW_PICTURES");
        if (!folder.isEmpty()) {
            panel.grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
        }
        return grabbed;
    }

    ShootPanel panel;
};

/** The columns in which \p one and \p other differ, but for the frame of the keyboard's place. */
QVector<int> differingColumns(const QImage &one, const QImage &other)
{
    QVector<int> columns;
    for (int x = 0; x < one.width(); ++x) {
        bool differs = false;
        for (int y = 3; y < one.height() - 3 && !differs; ++y) {
            differs = one.pixel(x, y) != other.pixel(x, y);
        }
        if (differs) {
            columns += x;
        }
    }
    return columns;
}

} // namespace

class ShootViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosShowWhereTheyStand();
    void framesAreThereBeforeTheirPhotos();
    void hoverNamesThePhoto();
    void clickInspectsThePhoto();
    void selectedPhotoComesToTheFront();
    void dragMovesThePicture();
    void wheelZoomsAroundTheCursor();
    void doubleClickFits();
    void keysPanAndZoom();
    void keysReachAllPhotos();
    void selectionIsTheAccessibleDescription();
    void countsAreTheAccessibleName();
    void linksOverTheJoinAreOnBothSides();
    void gapsAreHatched();
    void unlinkedPhotosAreMarked();
    void residualsAreToldAndColoured();
    void unreadablePhotosAreBorne();
    void unknownFocalIsSaid();
    void clearedPanelIsEmpty();
    void emptyAndOddShootsAreBorne();
    void toolsHaveNames();
};

void ShootViewTest::photosShowWhereTheyStand()
{
    Bench bench(fourPhotos());
    QTRY_VERIFY(bench.view().isLoaded());
    for (const char *mode : { "m_flat", "m_sphere" }) {
        bench.press(mode);
        QTRY_VERIFY(bench.view().isLoaded());
        const QImage picture = bench.picture(QLatin1String(mode));
        int seen = 0;
        for (int i = 0; i < 4; ++i) {
            // Beside number and sign.
            const auto point = bench.view().camera().pointOf(directionAt(90.0 * i + 20.0, 15.0));
            if (point && picture.rect().contains(point->toPoint())) {
                ++seen;
                QCOMPARE(QColor(picture.pixel(point->toPoint())), QColor(colourOf(i)));
            }
        }
        QVERIFY(seen >= 1);
    }
}

void ShootViewTest::framesAreThereBeforeTheirPhotos()
{
    std::mutex gate;
    gate.lock();
    ShootView view;
    view.setPhotoSource([&gate](const QString &path) {
        const std::lock_guard<std::mutex> lock(gate);
        return colouredPhoto(path);
    });
    view.resize(720, 360);
    view.showScene(sceneOf(fourPhotos()));
    const QPoint inside = view.camera().pointOf(directionAt(20, 15))->toPoint();
    const QPoint outside = view.camera().pointOf(directionAt(45, 0))->toPoint();
    const QImage first = view.grab().toImage();
    QVERIFY(first.pixel(inside) != first.pixel(outside));
    QVERIFY(!view.isLoaded());
    gate.unlock();
    QTRY_VERIFY(view.isLoaded());
    QCOMPARE(QColor(view.grab().toImage().pixel(inside)), QColor(colourOf(0)));
}

void ShootViewTest::hoverNamesThePhoto()
{
    Panorama panorama = TestPanoramas::row(6, 3);
    Bench bench(panorama);
    QSignalSpy named(&bench.view(), &ShootView::named);
    QTest::mouseMove(&bench.view(), bench.pointAt(120, 0));
    QTRY_VERIFY(!named.isEmpty());
    const QString text = named.last().value(0).toString();
    for (const char *part : { "7.jpg", "position 3 of 6", "shot 7 of 18", "first of 3 photos" }) {
        QVERIFY2(text.contains(QLatin1String(part)), qPrintable(text));
    }
    QCOMPARE(bench.told(), text);
    QHelpEvent help(QEvent::ToolTip, bench.pointAt(120, 0),
                    bench.view().mapToGlobal(bench.pointAt(120, 0)));
    QCoreApplication::sendEvent(&bench.view(), &help);
    QCOMPARE(QToolTip::text(), text);
    QToolTip::hideText();
}

void ShootViewTest::clickInspectsThePhoto()
{
    Bench bench(TestPanoramas::row(6, 3));
    QSignalSpy clicked(&bench.panel, &ShootPanel::photoClicked);
    QTest::mouseClick(&bench.view(), Qt::LeftButton, {}, bench.pointAt(120, 0));
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.first(), (QVariantList{ 2, 6 }));
    QCOMPARE(bench.view().selected(), 2);
    // Above the row there is nothing, and nothing is selected any more.
    QTest::mouseClick(&bench.view(), Qt::LeftButton, {}, QPoint(3, 3));
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(bench.view().selected(), -1);
}

void ShootViewTest::selectedPhotoComesToTheFront()
{
    Bench bench(shootOf({ { 0, 0 }, { 30, 0 } }, 24));
    QTRY_VERIFY(bench.view().isLoaded());
    const QPoint shared = bench.pointAt(15, 18);
    QCOMPARE(bench.view().frameAt(shared), 1);
    bench.view().select(0);
    QCOMPARE(bench.view().frameAt(shared), 0);
    QTRY_COMPARE(QColor(bench.picture(QStringLiteral("selected")).pixel(shared)),
                 QColor(colourOf(0)));
}

void ShootViewTest::dragMovesThePicture()
{
    Bench bench(fourPhotos());
    QSignalSpy clicked(&bench.view(), &ShootView::photoClicked);
    for (const char *mode : { "m_flat", "m_sphere" }) {
        bench.press(mode);
        bench.view().fit();
        const QPoint middle = bench.view().rect().center();
        const Eigen::Vector3d seen = *bench.view().camera().directionOf(middle);
        QTest::mousePress(&bench.view(), Qt::LeftButton, {}, middle);
        QMouseEvent move(QEvent::MouseMove, middle + QPoint(40, 10),
                         bench.view().mapToGlobal(middle + QPoint(40, 10)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&bench.view(), &move);
        QTest::mouseRelease(&bench.view(), Qt::LeftButton, {}, middle + QPoint(40, 10));
        const QPointF now = *bench.view().camera().pointOf(seen);
        QVERIFY(std::abs(now.x() - middle.x() - 40) < 1.5);
        QVERIFY(std::abs(now.y() - middle.y() - 10) < 1.5);
    }
    QCOMPARE(clicked.size(), 0);
}

void ShootViewTest::wheelZoomsAroundTheCursor()
{
    Bench bench(fourPhotos());
    const QPoint cursor = bench.pointAt(80, 10);
    const Eigen::Vector3d under = *bench.view().camera().directionOf(cursor);
    const double before = bench.view().camera().pixelsPerDegree;
    bench.wheel(cursor, 2);
    QVERIFY(bench.view().camera().pixelsPerDegree > 1.5 * before);
    QCOMPARE(bench.view().camera().pointOf(under)->toPoint(), cursor);
    bench.wheel(cursor, -2);
    QVERIFY(std::abs(bench.view().camera().pixelsPerDegree - before) < 1e-6);
}

void ShootViewTest::doubleClickFits()
{
    Bench bench(shootOf({ { 100, 0 }, { 130, 0 } }, 24));
    const auto isFitted = [&bench] {
        // Two fields 30 degrees apart: the picture is filled from side to side but for a margin.
        const QPoint left = bench.pointAt(100 - 36.8, 0);
        const QPoint right = bench.pointAt(130 + 36.8, 0);
        return left.x() > 0 && right.x() < bench.view().width()
            && right.x() - left.x() > 0.85 * bench.view().width();
    };
    QVERIFY(isFitted());
    bench.wheel(QPoint(20, 20), 3);
    QVERIFY(!isFitted());
    QTest::mouseDClick(&bench.view(), Qt::LeftButton, {}, QPoint(50, 50));
    QVERIFY(isFitted());
    bench.panel.resize(1000, 600);
    QTRY_VERIFY(bench.view().width() > 900);
    QVERIFY(isFitted());
    bench.wheel(QPoint(20, 20), 3);
    bench.press("m_fit");
    QVERIFY(isFitted());
}

void ShootViewTest::keysPanAndZoom()
{
    Bench bench(fourPhotos());
    ShootView &view = bench.view();
    view.setFocus();
    const ViewCamera start = view.camera();
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(view.camera().yawDegrees > start.yawDegrees);
    QTest::keyClick(&view, Qt::Key_Left);
    QVERIFY(std::abs(view.camera().yawDegrees - start.yawDegrees) < 1e-5);
    QTest::keyClick(&view, Qt::Key_Up);
    QVERIFY(view.camera().pitchDegrees > start.pitchDegrees);
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY(view.camera().pixelsPerDegree > start.pixelsPerDegree);
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(std::abs(view.camera().pixelsPerDegree - start.pixelsPerDegree) < 1e-9);
    for (const auto key : { Qt::Key_Home, Qt::Key_0 }) {
        QTest::keyClick(&view, Qt::Key_Plus);
        QTest::keyClick(&view, Qt::Key_Right);
        QTest::keyClick(&view, key);
        QCOMPARE(view.camera().pixelsPerDegree, start.pixelsPerDegree);
        QCOMPARE(view.camera().yawDegrees, start.yawDegrees);
    }
    // The view is no trap.
    QTest::keyClick(&view, Qt::Key_Tab);
    QVERIFY(!view.hasFocus());
}

void ShootViewTest::keysReachAllPhotos()
{
    Bench bench(TestPanoramas::row(5, 2));
    ShootView &view = bench.view();
    view.setFocus();
    QSignalSpy clicked(&view, &ShootView::photoClicked);
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&view, Qt::Key_N);
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(clicked.last(), (QVariantList{ i, 2 * i }));
    }
    QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(view.selected(), 0);
    QTest::keyClick(&view, Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(view.selected(), 4);
    QTest::keyClick(&view, Qt::Key_P);
    QCOMPARE(view.selected(), 3);
    // Where it is seen, from wherever one looks.
    bench.press("m_sphere");
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&view, Qt::Key_N);
        QVERIFY(view.frameAt(*view.camera().pointOf(directionAt(72.0 * view.selected(), 0)))
                == view.selected());
    }
}

void ShootViewTest::selectionIsTheAccessibleDescription()
{
    Bench bench(TestPanoramas::row(5));
    const auto described = [&bench] {
        return QAccessible::queryAccessibleInterface(&bench.view())->text(QAccessible::Description);
    };
    QTest::keyClick(&bench.view(), Qt::Key_N);
    QVERIFY(described().startsWith(QStringLiteral("1.jpg")));
    QTest::keyClick(&bench.view(), Qt::Key_N);
    QVERIFY(described().startsWith(QStringLiteral("2.jpg")));
}

void ShootViewTest::countsAreTheAccessibleName()
{
    Bench bench(TestPanoramas::row(5, 3));
    QVERIFY(bench.view().accessibleName().contains(QStringLiteral("15 photos, 5 positions")));
    bench.panel.show(TestPanoramas::row(1));
    QVERIFY(bench.view().accessibleName().contains(QStringLiteral("1 photo, 1 position")));
}

void ShootViewTest::linksOverTheJoinAreOnBothSides()
{
    // 360 degrees are covered, so that yaw 180 is at both edges; one link leads over it.
    Panorama panorama = TestPanoramas::row(8);
    for (int i = 0; i < 8; ++i) {
        panorama.positions[i].yawDegrees += 22.5;
    }
    ViewShoots::link(&panorama, 3, 4); // from 157.5 to 202.5
    Bench bench(panorama);
    QTRY_VERIFY(bench.view().isLoaded());
    const QImage without = bench.picture(QStringLiteral("nolinks"));
    bench.press("m_links");
    const QImage with = bench.picture(QStringLiteral("links"));
    const QVector<int> columns = differingColumns(without, with);
    const ViewCamera &camera = bench.view().camera();
    const int left = qRound(camera.size.width() / 2.0 - 180.0 * camera.pixelsPerDegree);
    const int right = qRound(camera.size.width() / 2.0 + 180.0 * camera.pixelsPerDegree);
    QVERIFY(columns.contains(left + 5));
    QVERIFY(columns.contains(right - 5));
    QVERIFY(!columns.contains((left + right) / 2));
}

void ShootViewTest::gapsAreHatched()
{
    Bench bench(fourPhotos());
    QTRY_VERIFY(bench.view().isLoaded());
    const QImage without = bench.picture(QStringLiteral("nogaps"));
    bench.press("m_gaps");
    QVERIFY(bench.view().gapCount() > 0);
    const QImage with = bench.picture(QStringLiteral("gaps"));
    const QVector<int> columns = differingColumns(without, with);
    QVERIFY(columns.contains(bench.pointAt(45, 0).x()));
    const QRect inPhoto(bench.pointAt(-30, 15), bench.pointAt(30, -15));
    QCOMPARE(with.copy(inPhoto), without.copy(inPhoto));
    bench.press("m_sphere");
    (void)bench.picture(QStringLiteral("gaps-sphere"));
    bench.panel.show(shootOf({ { 0, 90 }, { 0, -90 } }, 5, LensModel::Fisheye));
    QCOMPARE(bench.view().gapCount(), 0);
    QCOMPARE(bench.told(), QStringLiteral("No gaps"));
}

void ShootViewTest::unlinkedPhotosAreMarked()
{
    // The first two are linked; the others bear a sign, are said to be alone, and are counted.
    Bench bench(fourPhotos());
    QTRY_VERIFY(bench.view().isLoaded());
    QVERIFY(bench.told().endsWith(QStringLiteral("2")));
    QVERIFY(!bench.view().textOf(0).contains(QStringLiteral("no other photo")));
    QVERIFY(bench.view().textOf(2).contains(QStringLiteral("no other photo")));
    const QImage picture = bench.picture(QStringLiteral("unlinked"));
    const auto coloursAround = [&](int frame) {
        const QPoint middle = bench.pointAt(90.0 * frame, 0);
        QSet<QRgb> colours;
        for (int x = 8; x < 32; ++x) {
            for (int y = -8; y < 8; ++y) {
                colours.insert(picture.pixel(middle + QPoint(x, y)));
            }
        }
        return colours.size();
    };
    // A sign beside the number is made of many colours, a photo of one here.
    QVERIFY(coloursAround(3) > coloursAround(1) + 5);
}

void ShootViewTest::residualsAreToldAndColoured()
{
    auto project = projectOf(fourPhotos()).value();
    const auto point = [](int first, int second, double x1, double x2) {
        return PtoPoint{ first, second, x1, 399.5, x2, 399.5, false };
    };
    // 45 degrees to the right of one is 45 to the left of the next; 3's point lies 10 pixels
    // beside.
    const double right = 599.5 + 800.0;
    const double left = 599.5 - 800.0;
    project.setPoints({ point(0, 1, right, left), point(2, 3, right, left + 10.0) });
    Bench bench(fourPhotos());
    bench.panel.showAligned(project);
    QTRY_VERIFY(bench.view().isLoaded());
    QVERIFY2(bench.view().textOf(0).contains(QStringLiteral("off by 0.00 pixels")),
             qPrintable(bench.view().textOf(0)));
    QVERIFY2(bench.view().textOf(3).contains(QStringLiteral("off by 10.00 pixels")),
             qPrintable(bench.view().textOf(3)));
    const QImage picture = bench.picture(QStringLiteral("residuals"));
    // Half the photo, half the colour of the best and of the worst.
    const auto tinted = [&](int frame, double part) {
        const QColor seen(picture.pixel(bench.pointAt(90.0 * frame - 20, 15)));
        const QColor photo(colourOf(frame));
        const QColor tint = residualColour(part);
        return std::abs(seen.red() - (photo.red() + tint.red()) / 2) < 4
            && std::abs(seen.green() - (photo.green() + tint.green()) / 2) < 4
            && std::abs(seen.blue() - (photo.blue() + tint.blue()) / 2) < 4;
    };
    QVERIFY(tinted(0, 0.0));
    QVERIFY(tinted(2, 1.0));
}

void ShootViewTest::unreadablePhotosAreBorne()
{
    Panorama panorama = fourPhotos();
    panorama.positions[1].photos[0].path = QStringLiteral("/photos/900.jpg");
    panorama.positions[2].photos[0].path.clear();
    panorama.positions[3].photos.clear();
    Bench bench(panorama);
    QTRY_VERIFY(bench.view().isLoaded());
    QVERIFY(bench.view().textOf(1).contains(QStringLiteral("cannot be read")));
    QVERIFY(!bench.view().textOf(0).contains(QStringLiteral("cannot be read")));
    (void)bench.picture(QStringLiteral("unreadable"));
    QTest::mouseClick(&bench.view(), Qt::LeftButton, {}, bench.pointAt(90, 15));
    QCOMPARE(bench.view().selected(), 1);
}

void ShootViewTest::unknownFocalIsSaid()
{
    Bench bench(shootOf({ { 0, 0 }, { 10, 0 } }, 0.0));
    QVERIFY(bench.told().contains(QStringLiteral("focal length is not known")));
}

void ShootViewTest::clearedPanelIsEmpty()
{
    Bench bench(fourPhotos());
    bench.view().select(2);
    bench.panel.clear();
    QCOMPARE(bench.view().selected(), -1);
    QCOMPARE(bench.told(), QString());
    QVERIFY(bench.view().accessibleName().contains(QStringLiteral("0 photos, 0 positions")));
    QTest::mouseMove(&bench.view(), bench.view().rect().center());
    QTest::mouseClick(&bench.view(), Qt::LeftButton);
    for (const auto key : { Qt::Key_N, Qt::Key_P, Qt::Key_Return, Qt::Key_Home, Qt::Key_Plus }) {
        QTest::keyClick(&bench.view(), key);
    }
    (void)bench.picture(QStringLiteral("empty"));
}

void ShootViewTest::emptyAndOddShootsAreBorne()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Panorama odd = shootOf({ { nan, 0 }, { 0, nan }, { 10, 10, nan }, { 20, 95 } }, 24);
    ViewShoots::link(&odd, 0, 3);
    ViewShoots::link(&odd, 1, 2);
    Bench bench(odd);
    for (const char *tool : { "m_links", "m_gaps", "m_sphere", "m_fit", "m_flat" }) {
        bench.press(tool);
        (void)bench.picture(QStringLiteral("odd"));
    }
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&bench.view(), Qt::Key_N);
        (void)bench.picture(QStringLiteral("odd"));
    }
    const ViewCamera &camera = bench.view().camera();
    QVERIFY(std::isfinite(camera.yawDegrees) && std::isfinite(camera.pitchDegrees));
    bench.panel.resize(1, 1);
    (void)bench.picture(QStringLiteral("tiny"));
}

void ShootViewTest::toolsHaveNames()
{
    Bench bench(fourPhotos());
    const auto tools = bench.panel.findChildren<QAbstractButton *>();
    QCOMPARE(tools.size(), 5);
    for (const QAbstractButton *tool : tools) {
        QVERIFY(!tool->accessibleName().isEmpty());
        QVERIFY(!tool->toolTip().isEmpty());
        QVERIFY(!tool->text().contains(QLatin1Char('&')));
        QVERIFY(tool->focusPolicy() & Qt::TabFocus);
    }
}

TEST_CLASS(ShootViewTest, QApplication)

#include "tst_shootview.moc"
