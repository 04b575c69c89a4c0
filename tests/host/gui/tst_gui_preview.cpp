// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QWheelEvent>
#include <QtTest>

using namespace PanoHost;

/** What the host adds to the previews of plug-ins' pages. */
class TestPreview : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void emptyPageSaysWhereToDrop_data();
    void emptyPageSaysWhereToDrop();
    void wheelZoomsAndDoubleClickFits();

private:
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    [[nodiscard]] QScrollArea *area() const
    {
        return page()->findChild<QScrollArea *>(QStringLiteral("m_saPreview"));
    }
    [[nodiscard]] QSlider *zoom() const
    {
        return page()->findChild<QSlider *>(QStringLiteral("m_hSlider"));
    }
    /** By so many notches, away from the user. */
    void turnWheel(int notches, Qt::KeyboardModifiers keys = Qt::NoModifier) const;

    std::unique_ptr<GuiBench> m_bench;
};

void TestPreview::turnWheel(int notches, Qt::KeyboardModifiers keys) const
{
    QWidget *viewport = area()->viewport();
    const QPoint place = viewport->rect().center();
    QWheelEvent event(place, viewport->mapToGlobal(place), {}, QPoint(0, 120 * notches),
                      Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewport, &event);
}

void TestPreview::emptyPageSaysWhereToDrop_data()
{
    QTest::addColumn<QString>("hint");
    QTest::newRow("Papywizard") << QStringLiteral("Drop the head's record and the photos here");
    QTest::newRow("VRDrive2") << QStringLiteral("Drop the head's record and the photos here");
    QTest::newRow("Clauss") << QStringLiteral("Drop the head's record and the photos here");
    QTest::newRow("Gigapan") << QStringLiteral("Drop the photos here");
}

void TestPreview::emptyPageSaysWhereToDrop()
{
    QFETCH(QString, hint);
    const char *head = QTest::currentDataTag();
    m_bench->choose(head);
    const auto *label = page()->findChild<QLabel *>(QStringLiteral("m_dropHint"));
    QVERIFY(label);
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), hint);
    QTRY_COMPARE(label->size(), area()->viewport()->size());
    m_bench->picture(QStringLiteral("hint-%1").arg(QLatin1String(head)));
    const bool isGrid = QLatin1String(head) == QLatin1String("Gigapan");
    m_bench->drop(
        isGrid ? m_bench->photos(0, 2)
               : QStringList(m_bench->record(3, qPrintable(QString::fromLatin1(head).toLower()))));
    QVERIFY(!label->isVisible());
    QTest::mouseClick(page()->findChild<QWidget *>(QStringLiteral("m_pbReset")), Qt::LeftButton);
    QTRY_VERIFY(label->isVisible());
}

void TestPreview::wheelZoomsAndDoubleClickFits()
{
    m_bench->drop(QStringList(m_bench->record(26)) + m_bench->photos(0, 25));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    zoom()->setValue(40);
    turnWheel(1);
    QCOMPARE(zoom()->value(), 46); // 40 * 1.15
    turnWheel(-1);
    QCOMPARE(zoom()->value(), 40);
    turnWheel(1, Qt::ShiftModifier); // scrolls
    QCOMPARE(zoom()->value(), 40);
    zoom()->setValue(2);
    turnWheel(1);
    QCOMPARE(zoom()->value(), 3);
    turnWheel(-1);
    QCOMPARE(zoom()->value(), 2);
    zoom()->setValue(100);
    QTRY_VERIFY(area()->horizontalScrollBar()->isVisible());
    QTest::mouseDClick(area()->viewport(), Qt::LeftButton);
    QTRY_VERIFY(!area()->horizontalScrollBar()->isVisible());
    QVERIFY(!area()->verticalScrollBar()->isVisible());
    const QSize shown = qobject_cast<QLabel *>(area()->widget())->pixmap(Qt::ReturnByValue).size();
    const QSize room = area()->maximumViewportSize();
    // All of it, and one percent more would be too much.
    const double more = (zoom()->value() + 1.0) / zoom()->value();
    QVERIFY(shown.width() <= room.width() && shown.height() <= room.height());
    QVERIFY(shown.width() * more >= room.width() - 1 || shown.height() * more >= room.height() - 1);
    m_bench->picture(QStringLiteral("preview-fit"));
    // Where nothing is shown, nothing is scrolled.
    zoom()->setValue(100);
    QTRY_VERIFY(area()->horizontalScrollBar()->isVisible());
    QTest::mouseClick(page()->findChild<QWidget *>(QStringLiteral("m_pbReset")), Qt::LeftButton);
    QTRY_VERIFY(!area()->horizontalScrollBar()->isVisible());
    QVERIFY(!area()->verticalScrollBar()->isVisible());
}

TEST_CLASS(TestPreview, PanoHostApplication)
#include "tst_gui_preview.moc"
