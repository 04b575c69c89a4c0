// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "tests/ui/onscreen.h"

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace OnScreen;

namespace
{

/** A control at (20, 30) in a window that shows nothing else. */
class Shown
{
public:
    Shown(const QString &theme, const QByteArray &declaration)
    {
        m_view.engine()->addImportPath(QStringLiteral("qrc:/UI/qml/") + theme);
        m_view.setColor(QColor(90, 120, 60));
        QQmlComponent component(m_view.engine());
        component.setData("import QtQuick 2.2\nimport OrvaneControls 1.0\nItem { width: 240; "
                          "height: 160; "
                              + declaration + " }",
                          QUrl(QStringLiteral("qrc:/UI/test.qml")));
        auto *root = qobject_cast<QQuickItem *>(component.create(m_view.engine()->rootContext()));
        if (!root || root->childItems().size() != 1)
            qFatal("%s", qPrintable(component.errorString()));
        root->setParent(&m_view);
        m_view.setContent(QUrl(), nullptr, root);
        m_control = root->childItems().constFirst();
        m_control->setPosition(QPointF(20, 30));
        showAndDraw(m_view);
    }

    [[nodiscard]] QQuickView &view() { return m_view; }
    [[nodiscard]] QQuickItem *control() const { return m_control; }
    [[nodiscard]] QRect place() const
    {
        return { m_control->position().toPoint(), m_control->size().toSize() };
    }
    /** What is seen of the control. */
    [[nodiscard]] QImage picture() { return m_view.grabWindow().copy(place()); }
    void click(const QPoint &point)
    {
        QTest::mouseClick(&m_view, Qt::LeftButton, {}, place().topLeft() + point);
    }
    void moveAway() { QTest::mouseMove(&m_view, QPoint(230, 150)); }

private:
    QQuickView m_view;
    QQuickItem *m_control = nullptr;
};

/** The first text item below \p item that shows \p text. */
QQuickItem *textItem(QQuickItem *item, const QString &text)
{
    if (item->inherits("QQuickText") && item->property("text").toString() == text)
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = textItem(child, text))
            return found;
    }
    return nullptr;
}

bool isNear(const QColor &colour, const QColor &expected, int tolerance)
{
    return qAbs(colour.red() - expected.red()) <= tolerance
        && qAbs(colour.green() - expected.green()) <= tolerance
        && qAbs(colour.blue() - expected.blue()) <= tolerance;
}

/** Columns and rows with a pixel that is darker than \p grey. */
QRect darkPixels(const QImage &picture, int grey)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < grey)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

/** The restyled controls of both themes, seen and used on a real screen with a real GL context. */
class ControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlIsSeen_data();
    void controlIsSeen();
    void clickIsHeard_data();
    void clickIsHeard();
    void disabledControlIsDimmed_data();
    void disabledControlIsDimmed();
    void checkBoxShowsItsMark();
    void sliderFollowsThePointer();
    void spinBoxCountsDownToo();
    void comboBoxOffersItsEntries();
    void lightButtonHasItsColours_data();
    void lightButtonHasItsColours();
    void lightButtonWritesInTheMiddle();
};

void ControlsTest::controlIsSeen_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("height");
    const auto row = [](const char *name, const char *theme, const char *declaration,
                        const QPoint &place, const char *colour, int height) {
        QTest::newRow(name) << QString::fromLatin1(theme) << QByteArray(declaration) << place
                            << QColor(QString::fromLatin1(colour)) << height;
    };
    // Half-way between #575757 (87) and #3f3f3f (63).
    row("dark button", "dark", "Button { width: 100; text: 'Go' }", QPoint(10, 10), "#4b4b4b", 20);
    row("dark check box", "dark", "CheckBox { text: 'Turn' }", QPoint(7, 4), "#363636", 0);
    row("dark slider, travelled", "dark", "Slider { width: 100; value: 0.5 }", QPoint(15, 7),
        "#4b97d6", 14);
    row("dark slider, handle", "dark", "Slider { width: 100; value: 0.5 }", QPoint(50, 7),
        "#bdbdbd", 14);
    row("dark slider, ahead", "dark", "Slider { width: 100; value: 0.5 }", QPoint(85, 7), "#2b2b2b",
        14);
    row("dark spin box", "dark", "SpinBox { width: 100; value: 5 }", QPoint(40, 10), "#363636", 20);
    row("dark combo box", "dark", "ComboBox { width: 100; model: ['One', 'Two'] }", QPoint(60, 10),
        "#363636", 20);
    // Half-way between 0.35 (89) and 0.23 (59).
    row("light button", "light", "Button { width: 100; text: 'Go' }", QPoint(10, 10), "#4a4a4a",
        20);
}

void ControlsTest::controlIsSeen()
{
    QFETCH(QString, theme);
    QFETCH(QByteArray, declaration);
    QFETCH(QPoint, place);
    QFETCH(QColor, colour);
    QFETCH(int, height);
    Shown shown(theme, declaration);
    shown.moveAway();
    const QImage picture = shown.picture();
    const QByteArray seen = QByteArray::number(picture.width()) + " x "
        + QByteArray::number(picture.height()) + ", " + picture.pixelColor(place).name().toLatin1();
    QVERIFY2(isNear(picture.pixelColor(place), colour, 3), seen);
    QVERIFY2(height == 0 || picture.height() == height, seen);
    QVERIFY2(darkPixels(picture, 256).size() == picture.size(), seen);
}

void ControlsTest::clickIsHeard_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    const QString dark = QStringLiteral("dark");
    QTest::newRow("dark button") << dark << QByteArray("Button { width: 100; text: 'Go' }")
                                 << QByteArray("2clicked()") << QPoint(50, 10) << QByteArray("text")
                                 << QVariant(QStringLiteral("Go"));
    QTest::newRow("dark check box")
        << dark << QByteArray("CheckBox { text: 'Turn' }") << QByteArray("2clicked()")
        << QPoint(7, 7) << QByteArray("checked") << QVariant(true);
    // The handle, 14 wide, stands for 0 at 7 and for 1 at 93: 0.75 is at 7 + 64.5.
    QTest::newRow("dark slider") << dark << QByteArray("Slider { width: 100; stepSize: 0.25 }")
                                 << QByteArray("2valueChanged()") << QPoint(72, 7)
                                 << QByteArray("value") << QVariant(0.75);
    QTest::newRow("dark spin box")
        << dark << QByteArray("SpinBox { width: 100; value: 5 }") << QByteArray("2valueChanged()")
        << QPoint(92, 5) << QByteArray("value") << QVariant(6.0);
    QTest::newRow("light button") << QStringLiteral("light")
                                  << QByteArray("Button { width: 100; text: 'Go' }")
                                  << QByteArray("2clicked()") << QPoint(50, 10)
                                  << QByteArray("text") << QVariant(QStringLiteral("Go"));
}

void ControlsTest::clickIsHeard()
{
    QFETCH(QString, theme);
    QFETCH(QByteArray, declaration);
    QFETCH(QByteArray, signal);
    QFETCH(QPoint, place);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    Shown shown(theme, declaration);
    QSignalSpy spy(shown.control(), signal.constData());
    QVERIFY(spy.isValid());
    shown.click(place);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(shown.control()->property(property.constData()), value);
}

void ControlsTest::disabledControlIsDimmed_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::newRow("button") << QByteArray("Button { width: 100; text: 'Go' }");
    QTest::newRow("check box") << QByteArray("CheckBox { text: 'Turn' }");
    QTest::newRow("slider") << QByteArray("Slider { width: 100; value: 0.5 }");
    QTest::newRow("spin box") << QByteArray("SpinBox { width: 100; value: 5 }");
    QTest::newRow("combo box") << QByteArray("ComboBox { width: 100; model: ['One', 'Two'] }");
}

void ControlsTest::disabledControlIsDimmed()
{
    QFETCH(QByteArray, declaration);
    Shown shown(QStringLiteral("dark"), declaration);
    shown.moveAway();
    const auto light = [&shown] {
        const QImage picture = shown.picture();
        qint64 sum = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                sum += qGray(picture.pixel(x, y));
        }
        return sum;
    };
    const qint64 before = light();
    shown.control()->setEnabled(false);
    QVERIFY(light() < before);
}

void ControlsTest::checkBoxShowsItsMark()
{
    Shown shown(QStringLiteral("dark"), "CheckBox { text: 'Turn' }");
    const QQuickItem *control = shown.control();
    const QPoint middle(7, qRound(control->height() / 2));
    shown.click(middle);
    shown.moveAway();
    QVERIFY(isNear(shown.picture().pixelColor(middle), QColor(0x4b, 0x97, 0xd6), 2));
    shown.click(middle);
    shown.moveAway();
    QCOMPARE(control->property("checked").toBool(), false);
    QVERIFY(isNear(shown.picture().pixelColor(middle), QColor(0x36, 0x36, 0x36), 2));
}

void ControlsTest::sliderFollowsThePointer()
{
    Shown shown(QStringLiteral("dark"), "Slider { width: 100; value: 0 }");
    const QPoint start = shown.place().topLeft() + QPoint(7, 7);
    QTest::mousePress(&shown.view(), Qt::LeftButton, {}, start);
    for (int x = 0; x <= 43; ++x)
        QTest::mouseMove(&shown.view(), start + QPoint(x, 0));
    QTest::mouseRelease(&shown.view(), Qt::LeftButton, {}, start + QPoint(43, 0));
    // The handle travels 86 pixels.
    QVERIFY(qAbs(shown.control()->property("value").toDouble() - 0.5) < 0.05);
}

void ControlsTest::spinBoxCountsDownToo()
{
    Shown shown(QStringLiteral("dark"), "SpinBox { width: 100; value: 5 }");
    shown.click(QPoint(92, 15));
    QTRY_COMPARE(shown.control()->property("value").toDouble(), 4.0);
}

void ControlsTest::comboBoxOffersItsEntries()
{
    Shown shown(QStringLiteral("dark"), "ComboBox { width: 100; model: ['One', 'Two', 'Three'] }");
    QSignalSpy activated(shown.control(), SIGNAL(activated(int)));
    QVERIFY(activated.isValid());
    const auto popup = [&shown] {
        QWindow *found = nullptr;
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            if (window != &shown.view() && window->isVisible())
                found = window;
        }
        return found;
    };
    QVERIFY(!popup());
    shown.click(QPoint(50, 10));
    QTRY_VERIFY(popup());
    QVERIFY(QTest::qWaitForWindowExposed(popup()));
    QTest::mouseClick(popup(), Qt::LeftButton, {},
                      QPoint(20, popup()->height() / 2)); // the second of three
    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(activated.constFirst().constFirst().toInt(), 1);
    QCOMPARE(shown.control()->property("currentText").toString(), QStringLiteral("Two"));
    QTRY_VERIFY(!popup());
}

void ControlsTest::lightButtonHasItsColours_data()
{
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("bottom");
    QTest::newRow("at rest") << false << 0.35 << 0.23;
    QTest::newRow("under the pointer") << true << 0.59 << 0.47;
}

void ControlsTest::lightButtonHasItsColours()
{
    QFETCH(bool, hovered);
    QFETCH(double, top);
    QFETCH(double, bottom);
    Shown shown(QStringLiteral("light"), "Button { width: 100; text: 'Go' }");
    shown.moveAway();
    if (hovered)
        QTest::mouseMove(&shown.view(), shown.place().center());
    QTRY_COMPARE(shown.control()->property("hovered").toBool(), hovered);

    const QImage picture = shown.picture();
    QCOMPARE(picture.size(), QSize(100, 20));
    for (int x = 0; x < 100; ++x) {
        QCOMPARE(picture.pixelColor(x, 0), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(x, 19), QColor(Qt::white));
    }
    for (int y = 0; y < 20; ++y) {
        QCOMPARE(picture.pixelColor(0, y), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(99, y), QColor(Qt::white));
    }
    for (int y = 1; y < 19; ++y) {
        // The colours run over the whole height; a renderer may run them over the inner 18 rows.
        const int grey = qRound(255 * (top + (bottom - top) * (y + 0.5) / 20));
        const QColor seen = picture.pixelColor(10, y);
        QVERIFY2(isNear(seen, QColor(grey, grey, grey), 2),
                 qPrintable(seen.name() + QLatin1Char(' ') + QString::number(y)));
    }
}

void ControlsTest::lightButtonWritesInTheMiddle()
{
    Shown shown(QStringLiteral("light"), "Button { width: 100; text: 'HHH' }");
    shown.moveAway();
    const QQuickItem *text = textItem(shown.control(), QStringLiteral("HHH"));
    QVERIFY(text);
    QCOMPARE(QQmlProperty::read(text, QStringLiteral("font.pointSize")).toInt(), 10);
    QCOMPARE(text->property("renderType").toInt(), 1); // Text.NativeRendering
    QCOMPARE(text->property("color").value<QColor>(), QColor(Qt::black));

    const QRect letters = darkPixels(shown.picture(), 40); // the ground is 59 at its darkest
    QVERIFY(letters.width() > 20 && letters.height() > 7);
    // A capital letter leaves the room for descenders below it empty.
    QVERIFY2(qAbs(letters.left() + letters.right() - 99) <= 2,
             qPrintable(QString::number(letters.left())));
    QVERIFY2(qAbs(letters.top() + letters.bottom() - 19) <= 4,
             qPrintable(QString::number(letters.top())));
}

TEST_CLASS(ControlsTest, QApplication)
#include "tst_controls.moc"
