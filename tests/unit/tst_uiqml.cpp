// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QColor>
#include <QJSValue>
#include <QMatrix4x4>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlListReference>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVector4D>
#include <QtTest>

#include <memory>

class UiQmlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void componentLoadsWithoutComplaint_data();
    void componentLoadsWithoutComplaint();
    void lightButtonIsTwentyPixelsHighWithAWhiteBorder();
    void lightButtonBrightensUnderThePointer();
    void faceAheadFillsASquareOfTheViewsWidth_data();
    void faceAheadFillsASquareOfTheViewsWidth();
    void faceBehindTheViewerIsHidden_data();
    void faceBehindTheViewerIsHidden();
    void previewKeepsYawInOneTurnAndPitchUpright();

private:
    std::unique_ptr<QObject> create(const QByteArray &source);

    QQmlEngine m_engine;
};

/** The object that the QML text describes; null (and a failed check) when it does not compile. */
std::unique_ptr<QObject> UiQmlTest::create(const QByteArray &source)
{
    QQmlComponent component(&m_engine);
    component.setData(source, QUrl(QStringLiteral("qrc:/QML/test.qml")));
    std::unique_ptr<QObject> object(component.create());
    if (!object)
        qWarning("%s", qPrintable(component.errorString()));
    return object;
}

void UiQmlTest::componentLoadsWithoutComplaint_data()
{
    QTest::addColumn<QString>("url");
    for (const char *url :
         { "qrc:/UI/qml/light/OrvaneControls/button.qml",
           "qrc:/UI/qml/dark/OrvaneControls/button.qml",
           "qrc:/UI/qml/dark/OrvaneControls/checkbox.qml",
           "qrc:/UI/qml/dark/OrvaneControls/slider.qml",
           "qrc:/UI/qml/dark/OrvaneControls/spinbox.qml",
           "qrc:/UI/qml/dark/OrvaneControls/combobox.qml", "qrc:/QML/CubeFace.qml",
           "qrc:/QML/rotator.qml", "qrc:/QML/preview.qml" })
        QTest::newRow(url) << QString::fromLatin1(url);
}

void UiQmlTest::componentLoadsWithoutComplaint()
{
    QFETCH(QString, url);
    QStringList complaints;
    QObject collector;
    connect(&m_engine, &QQmlEngine::warnings, &collector,
            [&complaints](const QList<QQmlError> &errors) {
                for (const QQmlError &error : errors)
                    complaints << error.toString();
            });
    QQmlComponent component(&m_engine, QUrl(url));
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QVERIFY(qobject_cast<QQuickItem *>(object.get()));
    QCOMPARE(complaints, QStringList());
}

static QObject *gradientOf(const QQuickItem *item)
{
    return item->property("gradient").value<QJSValue>().toQObject();
}

static QQuickItem *itemWithGradient(QQuickItem *parent)
{
    if (gradientOf(parent))
        return parent;
    for (QQuickItem *child : parent->childItems()) {
        if (QQuickItem *found = itemWithGradient(child))
            return found;
    }
    return nullptr;
}

/** The grey levels (0 to 1) at the top and at the bottom of an item's gradient, in hundredths. */
static QPoint greysOf(const QQuickItem *item)
{
    const QQmlListReference stops(gradientOf(item), "stops");
    const auto grey = [&stops](int stop) {
        return qRound(stops.at(stop)->property("color").value<QColor>().redF() * 100);
    };
    return stops.count() == 2 ? QPoint(grey(0), grey(1)) : QPoint();
}

void UiQmlTest::lightButtonIsTwentyPixelsHighWithAWhiteBorder()
{
    const auto object
        = create("import '../UI/qml/light/OrvaneControls' 1.0\nButton { text: 'Go' }");
    auto *button = qobject_cast<QQuickItem *>(object.get());
    QVERIFY(button);
    QQuickItem *background = itemWithGradient(button);
    QVERIFY(background);
    QCOMPARE(background->implicitHeight(), 20.0);
    QCOMPARE(QQmlProperty::read(background, QStringLiteral("border.color")).value<QColor>(),
             QColor(Qt::white));
}

void UiQmlTest::lightButtonBrightensUnderThePointer()
{
    const auto object
        = create("import '../UI/qml/light/OrvaneControls' 1.0\nButton { text: 'Go' }");
    auto *button = qobject_cast<QQuickItem *>(object.get());
    QVERIFY(button);
    QQuickItem *background = itemWithGradient(button);
    QVERIFY(background);
    QQuickWindow window;
    window.resize(200, 100);
    button->setParentItem(window.contentItem());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, QPoint(190, 90));
    QTRY_COMPARE(button->property("hovered").toBool(), false);
    QCOMPARE(greysOf(background), QPoint(35, 23));
    QTest::mouseMove(&window, QPoint(5, 5));
    QTRY_COMPARE(button->property("hovered").toBool(), true);
    QCOMPARE(greysOf(background), QPoint(59, 47));
}

void UiQmlTest::faceAheadFillsASquareOfTheViewsWidth_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("yaw");
    QTest::addColumn<int>("pitch");
    QTest::newRow("front") << QByteArray("front") << 0 << 0;
    QTest::newRow("right") << QByteArray("right") << 90 << 0;
    QTest::newRow("back") << QByteArray("back") << 180 << 0;
    QTest::newRow("left") << QByteArray("left") << 270 << 0;
    QTest::newRow("up") << QByteArray("up") << 0 << 90;
    QTest::newRow("down") << QByteArray("down") << 0 << -90;
}

void UiQmlTest::faceAheadFillsASquareOfTheViewsWidth()
{
    QFETCH(QByteArray, name);
    QFETCH(int, yaw);
    QFETCH(int, pitch);
    const auto object = create(
        "import QtQuick 2.3\nimport 'cubefaces.js' as Cube\nQtObject {\n"
        "property var face: Cube.faces.filter(function (f) { return f.name === '"
        + name + "'; })[0]\nproperty var place: Cube.placeFace(face, " + QByteArray::number(yaw)
        + ", " + QByteArray::number(pitch)
        + ")\nproperty matrix4x4 matrix: Qt.matrix4x4.apply(Qt, Cube.faceMatrix(place, 512, 90, "
          "200, 100)) }");
    QVERIFY(object);
    const QMatrix4x4 matrix = object->property("matrix").value<QMatrix4x4>();
    const auto onScreen = [&matrix](float u, float v) {
        const QVector4D point = matrix * QVector4D(u, v, 0, 1);
        return QPointF(qRound(point.x() / point.w() * 10) / 10.0,
                       qRound(point.y() / point.w() * 10) / 10.0);
    };
    // 90 degrees across 200 pixels: the face ahead is 200 pixels wide and as high, centred in the
    // 200 x 100 view, so it starts 50 pixels above it.
    QCOMPARE(onScreen(0, 0), QPointF(0, -50));
    QCOMPARE(onScreen(512, 0), QPointF(200, -50));
    QCOMPARE(onScreen(0, 512), QPointF(0, 150));
    QCOMPARE(onScreen(256, 256), QPointF(100, 50));
}

void UiQmlTest::faceBehindTheViewerIsHidden_data()
{
    QTest::addColumn<int>("yaw");
    QTest::addColumn<int>("pitch");
    QTest::addColumn<QByteArray>("hidden");
    QTest::newRow("ahead") << 0 << 0 << QByteArray("back");
    QTest::newRow("turned right") << 90 << 0 << QByteArray("left");
    QTest::newRow("turned round") << 180 << 0 << QByteArray("front");
    QTest::newRow("straight up") << 0 << 90 << QByteArray("down");
    QTest::newRow("straight down") << 0 << -90 << QByteArray("up");
}

void UiQmlTest::faceBehindTheViewerIsHidden()
{
    QFETCH(int, yaw);
    QFETCH(int, pitch);
    QFETCH(QByteArray, hidden);
    const auto object = create("import QtQuick 2.3\nimport 'cubefaces.js' as Cube\nQtObject {\n"
                               "property string hidden: Cube.faces.filter(function (f) {"
                               "return !Cube.isAhead(Cube.placeFace(f, "
                               + QByteArray::number(yaw) + ", " + QByteArray::number(pitch)
                               + ")); }).map(function (f) { return f.name; }).join() }");
    QVERIFY(object);
    QCOMPARE(object->property("hidden").toString(), QString::fromLatin1(hidden));
}

void UiQmlTest::previewKeepsYawInOneTurnAndPitchUpright()
{
    const auto object = create("import QtQuick 2.3\nLoader { source: 'preview.qml'\n"
                               "function turn(a, b) { item.turn(a, b) }\n"
                               "property real yaw: item.yaw\nproperty real pitch: item.pitch }");
    QVERIFY(object);
    const auto turn = [&object](double yawStep, double pitchStep) {
        QMetaObject::invokeMethod(object.get(), "turn", Q_ARG(QVariant, yawStep),
                                  Q_ARG(QVariant, pitchStep));
        return QPointF(object->property("yaw").toReal(), object->property("pitch").toReal());
    };
    QCOMPARE(turn(350, 30), QPointF(350, 30));
    QCOMPARE(turn(20, 70), QPointF(10, 90)); // 370 is 10, 100 stops at the zenith
    QCOMPARE(turn(-40, -200), QPointF(330, -90));
}

TEST_CLASS(UiQmlTest, QApplication)
#include "tst_uiqml.moc"
