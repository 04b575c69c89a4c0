// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/resultpage.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QtTest>

using namespace PanoHost;

/** What keys find on every page. */
class TestKeys : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void lettersStandForOneThing_data();
    void lettersStandForOneThing();
    void tabStopsWhereSomethingIsSeen();
    void emptiedPreviewHasNoScrollBar();

private:
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    [[nodiscard]] QStringList ambiguities() const { return m_bench->ambiguities(); }
    /** The label below the page's title. */
    [[nodiscard]] const QLabel *subtitle() const;

    std::unique_ptr<GuiBench> m_bench;
};

const QLabel *TestKeys::subtitle() const
{
    for (const QLabel *label : m_bench->wizard().findChildren<QLabel *>()) {
        if (label->isVisible() && label->text() == page()->subTitle()) {
            return label;
        }
    }
    return nullptr;
}

void TestKeys::lettersStandForOneThing_data()
{
    QTest::addColumn<QString>("head");
    for (const char *head : { "Papywizard", "VRDrive2", "Clauss", "Gigapan" }) {
        QTest::newRow(head) << QString::fromLatin1(head);
    }
}

void TestKeys::lettersStandForOneThing()
{
    QFETCH(QString, head);
    QCOMPARE(ambiguities(), QStringList());
    m_bench->choose(qPrintable(head));
    m_bench->strip().setOpen(true);
    QCOMPARE(ambiguities(), QStringList());
    // Nothing fits: every row with its buttons.
    const bool isGrid = head == QLatin1String("Gigapan");
    const QStringList record
        = isGrid ? QStringList() : QStringList(m_bench->record(6, qPrintable(head.toLower())));
    m_bench->drop(record + m_bench->photos(0, 2, false));
    QTRY_VERIFY(m_bench->isSettled());
    m_bench->strip().setOpen(true);
    QCOMPARE(ambiguities(), QStringList());
    m_bench->strip().setOpen(false);
    QCOMPARE(ambiguities(), QStringList());
    m_bench->drop(record + m_bench->photos(0, 5));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QCOMPARE(ambiguities(), QStringList());
    m_bench->press(QWizard::NextButton);
    QVERIFY(qobject_cast<ResultPage *>(page()));
    QCOMPARE(ambiguities(), QStringList());
    m_bench->reopen(); // with a recent shoot
    QCOMPARE(ambiguities(), QStringList());
}

void TestKeys::tabStopsWhereSomethingIsSeen()
{
    QVERIFY(subtitle());
    QCOMPARE(subtitle()->focusPolicy() & Qt::TabFocus, 0);
    m_bench->choose("VRDrive2"); // its subtitle has a link
    QVERIFY(subtitle()->focusPolicy() & Qt::TabFocus);
    m_bench->press(QWizard::BackButton);
    QCOMPARE(subtitle()->focusPolicy() & Qt::TabFocus, 0);
}

void TestKeys::emptiedPreviewHasNoScrollBar()
{
    m_bench->drop(QStringList(m_bench->record(26)) + m_bench->photos(0, 25));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    const auto *area = page()->findChild<QScrollArea *>(QStringLiteral("m_saPreview"));
    auto *zoom = page()->findChild<QSlider *>(QStringLiteral("m_hSlider"));
    zoom->setValue(zoom->maximum());
    QTRY_VERIFY(area->horizontalScrollBar()->isVisible());
    QTest::mouseClick(page()->findChild<QWidget *>(QStringLiteral("m_pbReset")), Qt::LeftButton);
    QTRY_VERIFY(!area->horizontalScrollBar()->isVisible());
    QVERIFY(!area->verticalScrollBar()->isVisible());
}

TEST_CLASS(TestKeys, PanoHostApplication)
#include "tst_gui_keys.moc"
