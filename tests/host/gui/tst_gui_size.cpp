// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QScreen>
#include <QStyle>
#include <QtTest>

using namespace PanoHost;

/** The window on screens of any size, at any scale. */
class TestSize : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain()
    {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        initializePhotoReading();
    }

private Q_SLOTS:
    void firstWindowFitsTheScreen_data();
    void firstWindowFitsTheScreen();
};

void TestSize::firstWindowFitsTheScreen_data()
{
    QTest::addColumn<QString>("head");
    for (const char *head : { "Papywizard", "VRDrive2", "Clauss", "Gigapan" }) {
        QTest::newRow(head) << QString::fromLatin1(head);
    }
}

void TestSize::firstWindowFitsTheScreen()
{
    QFETCH(QString, head);
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font); // as desktops have it
    GuiBench bench{ QSize() };
    const ImportWizard &wizard = bench.wizard();
    const QRect screen = wizard.screen()->availableGeometry();
    bench.choose(qPrintable(head));
    const bool isGrid = head == QLatin1String("Gigapan");
    bench.drop((isGrid ? QStringList() : QStringList(bench.record(3, qPrintable(head.toLower()))))
               + bench.photos(0, 2));
    QTRY_VERIFY(bench.isSettled() && bench.isNextEnabled());
    QVERIFY(wizard.windowIcon().availableSizes().contains(QSize(128, 128)));
    const QWidget *next = wizard.button(QWizard::NextButton);
    QVERIFY(wizard.rect().contains(QRect(next->mapTo(&wizard, QPoint()), next->size())));
    // Without a window manager the frame of the window is missing.
    const int titleBar = wizard.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QVERIFY2(wizard.height() + titleBar <= screen.height(),
             qPrintable(QString::number(wizard.height())));
    QVERIFY(wizard.frameGeometry().width() <= screen.width());
    bench.picture(
        QStringLiteral("size-%1-%2x%3").arg(head).arg(screen.width()).arg(screen.height()));
    bench.press(QWizard::NextButton);
    QCOMPARE(bench.result().size(), 3);
}

TEST_CLASS(TestSize, PanoHostApplication)
#include "tst_gui_size.moc"
