// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "tests/ui/onscreen.h"

#include <QApplication>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QtMath>
#include <QtTest>

#include <algorithm>
#include <array>
#include <memory>

using namespace OnScreen;

namespace
{

constexpr int kSide = 800; // of the view, pixels

/** Axes: x right, y up, z forward, seen by a viewer with a yaw and a pitch of 0. */
struct Ray {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/** A face and the place on it, -1 to 1 from left to right and from top to bottom. */
struct Spot {
    const char *face = nullptr;
    double u = 0.0;
    double v = 0.0;
};

constexpr std::array<std::pair<const char *, QRgb>, 6> kFaces{ {
    { "front", 0xff800000 },
    { "right", 0xff008000 },
    { "back", 0xff000080 },
    { "left", 0xff808000 },
    { "up", 0xff800080 },
    { "down", 0xff008080 },
} };

/** The colour of a face; its top left quarter is brighter, its top right one grey. */
QColor colourOf(const Spot &spot)
{
    const auto *face = std::find_if(kFaces.begin(), kFaces.end(), [&spot](const auto &known) {
        return qstrcmp(known.first, spot.face) == 0;
    });
    const QColor colour(face->second);
    if (spot.v < 0)
        return spot.u < 0 ? colour.lighter(180) : QColor(150, 150, 150);
    return colour;
}

/** Where a ray meets the cube. The upper edge of the front face adjoins the lower one of "up". */
Spot spotOf(const Ray &ray)
{
    const double ax = qAbs(ray.x);
    const double ay = qAbs(ray.y);
    const double az = qAbs(ray.z);
    if (ay >= ax && ay >= az)
        return ray.y > 0 ? Spot{ "up", ray.x / ay, ray.z / ay }
                         : Spot{ "down", ray.x / ay, -ray.z / ay };
    if (ax >= az)
        return ray.x > 0 ? Spot{ "right", -ray.z / ax, -ray.y / ax }
                         : Spot{ "left", ray.z / ax, -ray.y / ax };
    return ray.z > 0 ? Spot{ "front", ray.x / az, -ray.y / az }
                     : Spot{ "back", -ray.x / az, -ray.y / az };
}

/** What a viewer who turned by yaw and pitch sees at a pixel of the view. */
Ray rayAt(const QPointF &pixel, double yawDegrees, double pitchDegrees, double fieldOfViewDegrees)
{
    const double focal = kSide / 2.0 / qTan(qDegreesToRadians(fieldOfViewDegrees / 2));
    const double x = pixel.x() - kSide / 2.0;
    const double y = kSide / 2.0 - pixel.y();
    const double pitch = qDegreesToRadians(pitchDegrees);
    const double yaw = qDegreesToRadians(yawDegrees);
    const double risenY = y * qCos(pitch) + focal * qSin(pitch);
    const double risenZ = focal * qCos(pitch) - y * qSin(pitch);
    return { x * qCos(yaw) + risenZ * qSin(yaw), risenY, risenZ * qCos(yaw) - x * qSin(yaw) };
}

/** Whether a spot is so far from all edges of colours that no smoothing reaches it. */
bool isWithin(const Spot &spot)
{
    const auto inside = [](double place) { return qAbs(place) > 0.06 && qAbs(place) < 0.94; };
    return inside(spot.u) && inside(spot.v);
}

bool isNear(const QColor &colour, const QColor &expected)
{
    return qAbs(colour.red() - expected.red()) <= 4 && qAbs(colour.green() - expected.green()) <= 4
        && qAbs(colour.blue() - expected.blue()) <= 4;
}

} // namespace

/** The cube-face preview with a panorama of six numbered colours. */
class CubePreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void everyDirectionShowsItsFace_data();
    void everyDirectionShowsItsFace();
    void dragTurnsTheViewWithThePointer();
    void wheelZoomsWithinItsLimits();
    void keysTurnAndZoom();
    void compassSetsTheDirection_data();
    void compassSetsTheDirection();
    void doubleClickOnTheCompassStraightens();
    void emptyPreviewSaysSo();

private:
    void look(double yawDegrees, double pitchDegrees, double fieldOfViewDegrees);
    [[nodiscard]] QVector<double> looking() const;
    [[nodiscard]] int loadedFaces() const;

    QTemporaryDir m_folder;
    QVariantMap m_pictures;
    std::unique_ptr<QQuickView> m_view;
};

void CubePreviewTest::initTestCase()
{
    for (const auto &[face, colour] : kFaces) {
        QImage picture(256, 256, QImage::Format_RGB32);
        QPainter painter(&picture);
        for (const double u : { -0.5, 0.5 }) {
            for (const double v : { -0.5, 0.5 })
                painter.fillRect(QRect(u < 0 ? 0 : 128, v < 0 ? 0 : 128, 128, 128),
                                 colourOf({ face, u, v }));
        }
        painter.end();
        const QString path = m_folder.filePath(QLatin1String(face) + QStringLiteral(".png"));
        QVERIFY(picture.save(path));
        m_pictures.insert(QLatin1String(face), QUrl::fromLocalFile(path));
    }
}

void CubePreviewTest::init()
{
    m_view = std::make_unique<QQuickView>(QUrl(QStringLiteral("qrc:/QML/preview.qml")));
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(kSide, 700);
    m_view->setHeight(kSide);
    m_view->rootObject()->setProperty("pictures", m_pictures);
    showAndDraw(*m_view);
    QTRY_COMPARE(loadedFaces(), 6); // in the background
    QCOMPARE(m_view->size(), QSize(kSide, kSide));
}

void CubePreviewTest::look(double yawDegrees, double pitchDegrees, double fieldOfViewDegrees)
{
    QQuickItem *preview = m_view->rootObject();
    preview->setProperty("yaw", yawDegrees);
    preview->setProperty("pitch", pitchDegrees);
    preview->setProperty("fieldOfView", fieldOfViewDegrees);
}

/** Yaw, pitch and field of view in degrees. */
QVector<double> CubePreviewTest::looking() const
{
    const QQuickItem *preview = m_view->rootObject();
    return { preview->property("yaw").toDouble(), preview->property("pitch").toDouble(),
             preview->property("fieldOfView").toDouble() };
}

int CubePreviewTest::loadedFaces() const
{
    constexpr int kReady = 1; // Image.Ready
    const QList<QQuickItem *> items = m_view->rootObject()->childItems();
    return static_cast<int>(std::count_if(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->property("face").isValid() && item->property("status").toInt() == kReady;
    }));
}

void CubePreviewTest::everyDirectionShowsItsFace_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("fieldOfView");
    QTest::addColumn<QByteArray>("middle");
    const auto row
        = [](const char *name, double yaw, double pitch, double fieldOfView, const char *middle) {
              QTest::newRow(name) << yaw << pitch << fieldOfView << QByteArray(middle);
          };
    row("front", 0, 0, 90, "front");
    row("right", 90, 0, 90, "right");
    row("back", 180, 0, 90, "back");
    row("left", 270, 0, 90, "left");
    row("up", 0, 90, 90, "up");
    row("down", 0, -90, 90, "down");
    row("between front and right", 40, 0, 90, "front");
    row("upward", 10, 50, 90, "up");
    row("downward and back", 200, -30, 90, "back");
    row("down, turned", 130, -80, 90, "down");
    row("wide", 300, 20, 120, "left");
    row("narrow", 20, 10, 30, "front");
}

void CubePreviewTest::everyDirectionShowsItsFace()
{
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(double, fieldOfView);
    QFETCH(QByteArray, middle);
    look(yaw, pitch, fieldOfView);
    QCOMPARE(spotOf(rayAt({ kSide / 2.0, kSide / 2.0 }, yaw, pitch, fieldOfView)).face, middle);

    const QImage picture = m_view->grabWindow();
    int compared = 0;
    for (int y = 10; y < kSide; y += 20) {
        for (int x = 10; x < kSide; x += 20) {
            const Spot spot = spotOf(rayAt({ x + 0.5, y + 0.5 }, yaw, pitch, fieldOfView));
            const bool isUnderTheCompass = x > kSide - 130 && y > kSide - 130;
            if (!isWithin(spot) || isUnderTheCompass)
                continue;
            ++compared;
            const QColor seen = picture.pixelColor(x, y);
            QVERIFY2(
                isNear(seen, colourOf(spot)),
                qPrintable(QStringLiteral("(%1, %2) is %3, expected %4 of %5")
                               .arg(x)
                               .arg(y)
                               .arg(seen.name(), colourOf(spot).name(), QLatin1String(spot.face))));
        }
    }
    QVERIFY(compared > 800);
}

void CubePreviewTest::dragTurnsTheViewWithThePointer()
{
    look(10, 0, 80);
    QTest::mousePress(m_view.get(), Qt::LeftButton, {}, QPoint(300, 300));
    QTest::mouseMove(m_view.get(), QPoint(250, 310));
    QTest::mouseMove(m_view.get(), QPoint(200, 340));
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, QPoint(200, 340));
    // 80 degrees on 800 pixels: 100 pixels to the left bring in 10 degrees of what is on the right,
    // 40 pixels downward 4 degrees of what is above.
    QCOMPARE(looking(), (QVector<double>{ 20, 4, 80 }));
}

void CubePreviewTest::wheelZoomsWithinItsLimits()
{
    look(0, 0, 100);
    const auto turnWheel = [this](int angle) {
        QWheelEvent event(QPointF(300, 300), m_view->mapToGlobal(QPoint(300, 300)), QPoint(),
                          QPoint(0, angle), Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_view.get(), &event);
    };
    turnWheel(120);
    QCOMPARE(looking().constLast(), 90.0);
    turnWheel(-120);
    turnWheel(-120);
    turnWheel(-120);
    QCOMPARE(looking().constLast(), 120.0); // 100 / 0.9 / 0.9 is more
    for (int i = 0; i < 20; ++i)
        turnWheel(120);
    QCOMPARE(looking().constLast(), 30.0);
}

void CubePreviewTest::keysTurnAndZoom()
{
    look(0, 0, 90);
    QVERIFY(m_view->rootObject()->hasActiveFocus());
    QTest::keyClick(m_view.get(), Qt::Key_Right);
    QTest::keyClick(m_view.get(), Qt::Key_Right);
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(looking(), (QVector<double>{ 10, 5, 90 }));
    QTest::keyClick(m_view.get(), Qt::Key_Left);
    QTest::keyClick(m_view.get(), Qt::Key_Down);
    QTest::keyClick(m_view.get(), Qt::Key_Plus);
    QCOMPARE(looking(), (QVector<double>{ 5, 0, 81 }));
}

void CubePreviewTest::compassSetsTheDirection_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QVector<double>>("expected");
    // The control is 120 pixels wide and 8 away from the lower right corner: its middle is at
    // (732, 732); the arrows are 20 wide along its edges and turn by 15 degrees.
    QTest::newRow("east") << QPoint(760, 732) << QVector<double>{ 90, 0, 90 };
    QTest::newRow("south") << QPoint(732, 760) << QVector<double>{ 180, 0, 90 };
    QTest::newRow("west") << QPoint(704, 732) << QVector<double>{ 270, 0, 90 };
    QTest::newRow("arrow right") << QPoint(782, 732) << QVector<double>{ 45, 0, 90 };
    QTest::newRow("arrow left") << QPoint(682, 732) << QVector<double>{ 15, 0, 90 };
    QTest::newRow("arrow up") << QPoint(732, 682) << QVector<double>{ 30, 15, 90 };
    QTest::newRow("arrow down") << QPoint(732, 782) << QVector<double>{ 30, -15, 90 };
}

void CubePreviewTest::compassSetsTheDirection()
{
    QFETCH(QPoint, place);
    QFETCH(QVector<double>, expected);
    look(30, 0, 90);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, place);
    const QVector<double> found = looking();
    QVERIFY2(qAbs(found.at(0) - expected.at(0)) < 1.5, qPrintable(QString::number(found.at(0))));
    QCOMPARE(found.mid(1), expected.mid(1));
}

void CubePreviewTest::doubleClickOnTheCompassStraightens()
{
    look(30, 40, 90);
    QTest::mouseDClick(m_view.get(), Qt::LeftButton, {}, QPoint(760, 732));
    QCOMPARE(looking(), (QVector<double>{ 0, 0, 90 }));
}

void CubePreviewTest::emptyPreviewSaysSo()
{
    const auto lightPixels = [this] {
        const QImage picture = m_view->grabWindow().copy(200, 380, 400, 40);
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += qGray(picture.pixel(x, y)) > 120 ? 1 : 0;
        }
        return count;
    };
    m_view->rootObject()->setProperty("pictures", QVariantMap());
    QTRY_VERIFY(lightPixels() > 100 && lightPixels() < 400 * 40 / 4);
}

TEST_CLASS(CubePreviewTest, QApplication)
#include "tst_cubepreview.moc"
