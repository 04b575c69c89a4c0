// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/testprogram.h"
#include "ui/blocksignal.h"

#include <QApplication>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QWidget>

#include <memory>

class TestBlockSignal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTreeIsSilentWhileTheGuardLives();
    void onlyTheTreeIsSilent();
    void aBlockedWidgetStaysBlocked();
    void aWidgetAddedMeanwhileEndsUnblocked();
    void aWidgetTakenOutMeanwhileIsNotTouched();
    void aWidgetDeletedMeanwhileIsNotTouched();
    void objectsThatAreNoWidgetsAreNotTouched();
    void nestedGuardsRestoreFromTheInsideOut();
    void guardsOnPartsOfATreeNest();
    void aNullRootTouchesNothing();
};

void TestBlockSignal::theWholeTreeIsSilentWhileTheGuardLives()
{
    QWidget page;
    auto *group = new QWidget(&page);
    auto *box = new QSpinBox(group);
    const QSignalSpy changed(box, qOverload<int>(&QSpinBox::valueChanged));
    {
        const BlockSignal guard(&page);
        QVERIFY(page.signalsBlocked());
        QVERIFY(group->signalsBlocked());
        QVERIFY(box->signalsBlocked());
        box->setValue(5);
        QCOMPARE(changed.count(), 0);
    }
    QVERIFY(!page.signalsBlocked());
    QVERIFY(!group->signalsBlocked());
    QVERIFY(!box->signalsBlocked());
    box->setValue(6);
    QCOMPARE(changed.count(), 1);
}

void TestBlockSignal::onlyTheTreeIsSilent()
{
    QWidget parent;
    auto *page = new QWidget(&parent);
    const QWidget sibling(&parent);
    const BlockSignal guard(page);
    QVERIFY(page->signalsBlocked());
    QVERIFY(!parent.signalsBlocked());
    QVERIFY(!sibling.signalsBlocked());
}

void TestBlockSignal::aBlockedWidgetStaysBlocked()
{
    QWidget page;
    auto *first = new QWidget(&page);
    auto *second = new QWidget(&page);
    first->blockSignals(true);
    {
        const BlockSignal guard(&page);
    }
    QVERIFY(first->signalsBlocked());
    QVERIFY(!second->signalsBlocked());

    page.blockSignals(true);
    {
        const BlockSignal guard(&page);
    }
    QVERIFY(page.signalsBlocked());
    QVERIFY(!second->signalsBlocked());
}

void TestBlockSignal::aWidgetAddedMeanwhileEndsUnblocked()
{
    QWidget page;
    QWidget *added = nullptr;
    QWidget *addedBlocked = nullptr;
    {
        const BlockSignal guard(&page);
        added = new QWidget(&page);
        QVERIFY(!added->signalsBlocked());
        addedBlocked = new QWidget(&page);
        addedBlocked->blockSignals(true);
    }
    QVERIFY(!added->signalsBlocked());
    QVERIFY(!addedBlocked->signalsBlocked());
}

void TestBlockSignal::aWidgetTakenOutMeanwhileIsNotTouched()
{
    QWidget page;
    auto *child = new QWidget(&page);
    const std::unique_ptr<QWidget> owner(child);
    {
        const BlockSignal guard(&page);
        child->setParent(nullptr);
    }
    QVERIFY(child->signalsBlocked());
    QVERIFY(!page.signalsBlocked());
}

void TestBlockSignal::aWidgetDeletedMeanwhileIsNotTouched()
{
    QWidget page;
    auto *doomed = new QWidget(&page);
    auto *other = new QWidget(&page);
    {
        const BlockSignal guard(&page);
        delete doomed;
    }
    QVERIFY(!other->signalsBlocked());
    QVERIFY(!page.signalsBlocked());
}

void TestBlockSignal::objectsThatAreNoWidgetsAreNotTouched()
{
    QWidget page;
    auto *object = new QObject(&page);
    const BlockSignal guard(&page);
    QVERIFY(!object->signalsBlocked());
}

void TestBlockSignal::nestedGuardsRestoreFromTheInsideOut()
{
    QWidget page;
    auto *child = new QWidget(&page);
    {
        const BlockSignal outer(&page);
        {
            const BlockSignal inner(&page);
            QVERIFY(child->signalsBlocked());
        }
        QVERIFY(child->signalsBlocked());
        QVERIFY(page.signalsBlocked());
    }
    QVERIFY(!child->signalsBlocked());
    QVERIFY(!page.signalsBlocked());
}

void TestBlockSignal::guardsOnPartsOfATreeNest()
{
    QWidget page;
    auto *group = new QWidget(&page);
    auto *box = new QWidget(group);
    {
        const BlockSignal part(group);
        QVERIFY(!page.signalsBlocked());
        {
            const BlockSignal whole(&page);
            QVERIFY(page.signalsBlocked());
        }
        QVERIFY(!page.signalsBlocked());
        QVERIFY(group->signalsBlocked());
        QVERIFY(box->signalsBlocked());
    }
    QVERIFY(!group->signalsBlocked());
    QVERIFY(!box->signalsBlocked());
}

void TestBlockSignal::aNullRootTouchesNothing()
{
    QWidget page;
    {
        const BlockSignal guard(nullptr);
        QVERIFY(!page.signalsBlocked());
    }
    QVERIFY(!page.signalsBlocked());
}

TEST_CLASS(TestBlockSignal, QApplication)
#include "tst_blocksignal.moc"
