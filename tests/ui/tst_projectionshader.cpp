// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "tests/ui/onscreen.h"

#include <QApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLShaderProgram>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QtMath>
#include <QtTest>

using namespace OnScreen;

namespace
{

constexpr int kWidth = 400;
constexpr int kHeight = 200;

/** As Qt Quick hands it to the fragment shader. */
constexpr char kVertexShader[] = "attribute highp vec4 qt_Vertex;\n"
                                 "attribute highp vec2 qt_MultiTexCoord0;\n"
                                 "varying highp vec2 qt_TexCoord0;\n"
                                 "void main() { qt_TexCoord0 = qt_MultiTexCoord0; "
                                 "gl_Position = qt_Vertex; }\n";

enum Projection { Rectilinear, Cylindrical, Equirectangular, Fisheye, Stereographic };

QByteArray shaderText()
{
    QFile file(QStringLiteral(":/Shader/projection.frag"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no shader");
    return file.readAll();
}

/** A panorama whose colours tell the direction: red the longitude, green the latitude. */
QImage tellingPanorama()
{
    QImage picture(1024, 512, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x / 4, y / 2, 255));
    }
    return picture;
}

/** Longitude and latitude in degrees; not finite where nothing is shown. */
QPointF directionOf(const QColor &colour)
{
    if (colour.blue() != 255)
        return { qQNaN(), qQNaN() };
    return { (colour.red() + 0.5) / 256 * 360 - 180, 90 - (colour.green() + 0.5) / 256 * 180 };
}

} // namespace

/** The shader of the projection editor in a real GL context. */
class ProjectionShaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void compiles_data();
    void compiles();
    void pointShowsItsDirection_data();
    void pointShowsItsDirection();
    void projectionEndsWithTheSphere_data();
    void projectionEndsWithTheSphere();

private:
    QQuickItem *show(QQuickView &view, Projection projection, double fieldOfViewDegrees);

    QTemporaryDir m_folder;
};

void ProjectionShaderTest::initTestCase()
{
    QVERIFY(tellingPanorama().save(m_folder.filePath(QStringLiteral("panorama.png"))));
}

void ProjectionShaderTest::compiles_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("OpenGL") << int(QSurfaceFormat::OpenGL);
    QTest::newRow("OpenGL ES 2") << int(QSurfaceFormat::OpenGLES);
}

void ProjectionShaderTest::compiles()
{
    QFETCH(int, type);
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::RenderableType(type));
    if (type == QSurfaceFormat::OpenGLES)
        format.setVersion(2, 0);
    QOpenGLContext context;
    context.setFormat(format);
    QVERIFY(context.create());
    QCOMPARE(context.isOpenGLES(), type == QSurfaceFormat::OpenGLES);
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    QVERIFY(context.makeCurrent(&surface));

    QOpenGLShaderProgram program;
    QVERIFY2(program.addShaderFromSourceCode(QOpenGLShader::Vertex, kVertexShader),
             qPrintable(program.log()));
    QVERIFY2(program.addShaderFromSourceCode(QOpenGLShader::Fragment, shaderText()),
             qPrintable(program.log()));
    QVERIFY2(program.link(), qPrintable(program.log()));
    QCOMPARE(program.log(), QString());
    for (const char *name :
         { "source", "qt_Opacity", "aspect", "yaw", "pitch", "roll", "fieldOfView", "projection" })
        QVERIFY2(program.uniformLocation(name) >= 0, name);
}

/** The shader's item, drawn from the panorama that tells directions. */
QQuickItem *ProjectionShaderTest::show(QQuickView &view, Projection projection,
                                       double fieldOfViewDegrees)
{
    QQmlComponent component(view.engine());
    component.setData(
        "import QtQuick 2.3\nShaderEffect {\n"
        "property var source: Image { source: panorama; mipmap: false }\n"
        "property real aspect: height / width\nproperty real yaw: 0\nproperty real pitch: 0\n"
        "property real roll: 0\nproperty real fieldOfView: 1\nproperty int projection: 0\n"
        "property string panorama\nfragmentShader: shader\nproperty string shader }",
        QUrl(QStringLiteral("qrc:/Shader/test.qml")));
    QObject *object = component.beginCreate(view.engine()->rootContext());
    auto *item = qobject_cast<QQuickItem *>(object);
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setProperty(
        "panorama",
        QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("panorama.png"))).toString());
    item->setProperty("shader", QString::fromLatin1(shaderText()));
    item->setProperty("projection", int(projection));
    item->setProperty("fieldOfView", qDegreesToRadians(fieldOfViewDegrees));
    component.completeCreate();
    item->setParent(&view);
    view.setColor(Qt::black);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setContent(QUrl(), nullptr, item);
    view.resize(kWidth, kHeight);
    showAndDraw(view);
    return item;
}

void ProjectionShaderTest::pointShowsItsDirection_data()
{
    QTest::addColumn<int>("projection");
    QTest::addColumn<double>("fieldOfView");
    QTest::addColumn<QVector<double>>("turned"); // yaw, pitch, roll
    QTest::addColumn<QPointF>("point"); // 1 is the right or the upper end of half the width
    QTest::addColumn<QPointF>("direction"); // longitude and latitude
    const auto row
        = [](const char *name, int projection, double fieldOfView, const QVector<double> &turned,
             const QPointF &point, const QPointF &direction) {
              QTest::newRow(name) << projection << fieldOfView << turned << point << direction;
          };
    const QVector<double> straight{ 0, 0, 0 };
    row("rectilinear, middle", Rectilinear, 90, straight, { 0, 0 }, { 0, 0 });
    // atan(0.5 tan 45) = 26.57
    row("rectilinear, right", Rectilinear, 90, straight, { 0.5, 0 }, { 26.57, 0 });
    row("rectilinear, up", Rectilinear, 90, straight, { 0, 0.4 }, { 0, 21.80 }); // atan(0.4)
    row("yaw", Rectilinear, 90, { 60, 0, 0 }, { 0.5, 0 }, { 86.57, 0 });
    row("yaw across the seam", Rectilinear, 90, { 170, 0, 0 }, { 0.5, 0 }, { -163.43, 0 });
    row("pitch", Rectilinear, 90, { 0, 40, 0 }, { 0, 0.4 }, { 0, 61.80 });
    row("yaw and pitch", Rectilinear, 90, { -50, -30, 0 }, { 0, 0 }, { -50, -30 });
    // What is above comes to the right.
    row("roll", Rectilinear, 90, { 0, 0, 90 }, { 0.5, 0 }, { 0, 26.57 });
    row("cylindrical, right", Cylindrical, 180, straight, { 0.5, 0 }, { 45, 0 });
    // A quarter of 90 degrees in radians is the height: atan(0.3927) = 21.44
    row("cylindrical, up", Cylindrical, 180, straight, { 0, 0.25 }, { 0, 21.44 });
    row("equirectangular, right", Equirectangular, 360, straight, { 0.75, 0 }, { 135, 0 });
    row("equirectangular, up", Equirectangular, 360, straight, { 0.25, 0.25 }, { 45, 45 });
    row("fisheye, right", Fisheye, 180, straight, { 0.5, 0 }, { 45, 0 });
    row("fisheye, up", Fisheye, 180, straight, { 0, 0.4 }, { 0, 36 });
    // 2 atan(0.5 tan 45) = 53.13
    row("stereographic, right", Stereographic, 180, straight, { 0.5, 0 }, { 53.13, 0 });
}

void ProjectionShaderTest::pointShowsItsDirection()
{
    QFETCH(int, projection);
    QFETCH(double, fieldOfView);
    QFETCH(QVector<double>, turned);
    QFETCH(QPointF, point);
    QFETCH(QPointF, direction);
    QQuickView view;
    QQuickItem *item = show(view, Projection(projection), fieldOfView);
    item->setProperty("yaw", qDegreesToRadians(turned.at(0)));
    item->setProperty("pitch", qDegreesToRadians(turned.at(1)));
    item->setProperty("roll", qDegreesToRadians(turned.at(2)));

    const QImage picture = view.grabWindow();
    QCOMPARE(picture.size(), QSize(kWidth, kHeight));
    const QPointF pixel((1 + point.x()) * kWidth / 2, kHeight / 2.0 - point.y() * kWidth / 2);
    const QPointF seen = directionOf(picture.pixelColor(pixel.toPoint()));
    QCOMPARE(item->property("log").toString(), QString());
    QVERIFY2(qAbs(seen.x() - direction.x()) < 2.5 && qAbs(seen.y() - direction.y()) < 2.5,
             qPrintable(QStringLiteral("%1, %2").arg(seen.x()).arg(seen.y())));
}

void ProjectionShaderTest::projectionEndsWithTheSphere_data()
{
    QTest::addColumn<int>("projection");
    QTest::addColumn<double>("fieldOfView");
    QTest::addColumn<QPointF>("last");
    QTest::addColumn<QPointF>("beyond");
    // 1 stands for 400 / 2 = 200 degrees: the seam is at 0.9, the poles at +-0.45.
    QTest::newRow("equirectangular, seam")
        << int(Equirectangular) << 400.0 << QPointF(0.88, 0) << QPointF(0.92, 0);
    QTest::newRow("equirectangular, pole")
        << int(Equirectangular) << 400.0 << QPointF(0, 0.43) << QPointF(0, 0.47);
    QTest::newRow("fisheye, antipode")
        << int(Fisheye) << 400.0 << QPointF(0.88, 0) << QPointF(0.92, 0);
}

void ProjectionShaderTest::projectionEndsWithTheSphere()
{
    QFETCH(int, projection);
    QFETCH(double, fieldOfView);
    QFETCH(QPointF, last);
    QFETCH(QPointF, beyond);
    QQuickView view;
    show(view, Projection(projection), fieldOfView);
    const QImage picture = view.grabWindow();
    const auto at = [&picture](const QPointF &point) {
        const QPointF pixel((1 + point.x()) * kWidth / 2, kHeight / 2.0 - point.y() * kWidth / 2);
        return directionOf(picture.pixelColor(pixel.toPoint()));
    };
    QVERIFY(qIsFinite(at(last).x()));
    QVERIFY(!qIsFinite(at(beyond).x()));
}

TEST_CLASS(ProjectionShaderTest, QApplication)
#include "tst_projectionshader.moc"
