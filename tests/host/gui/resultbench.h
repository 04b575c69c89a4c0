// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/gui/positionstable.h"
#include "host/gui/resultpage.h"
#include "tests/host/gui/guibench.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

/** The result page in front of a user. */
class ResultBench
{
protected:
    void openBench() { m_bench = std::make_unique<GuiBench>(); }
    void closeBench() { m_bench.reset(); }

    /** To the page, with \p shots photos of a Papywizard in the folder "shoot". */
    void showResult(int shots)
    {
        QStringList files;
        for (int shot = 0; shot < shots; ++shot) {
            files += m_bench->photo(QStringLiteral("shoot/IMG_%1.jpg").arg(shot + 1), shot);
        }
        files += m_bench->record(shots, "papywizard", QStringLiteral("shoot/evening.xml"));
        m_bench->drop(files);
        QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
        m_bench->press(QWizard::NextButton);
        QVERIFY(page());
    }
    [[nodiscard]] PanoHost::ResultPage *page() const
    {
        return qobject_cast<PanoHost::ResultPage *>(m_bench->wizard().currentPage());
    }
    template <typename Widget> [[nodiscard]] Widget *widget(const char *name) const
    {
        return page()->findChild<Widget *>(QLatin1String(name));
    }
    [[nodiscard]] PanoHost::PositionsTable *table() const
    {
        return widget<PanoHost::PositionsTable>("m_table");
    }
    void showTable() const { widget<QTabWidget>("m_views")->setCurrentWidget(table()); }
    void clickHeader(int column) const
    {
        QHeaderView *header = table()->horizontalHeader();
        const int x = header->sectionViewportPosition(column) + header->sectionSize(column) / 2;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, { x, header->height() / 2 });
    }
    void click(const char *button) const
    {
        QTest::mouseClick(widget<QPushButton>(button), Qt::LeftButton);
    }
    /** A letter together with Alt, wherever the focus is. */
    void pressAlt(Qt::Key key) const
    {
        m_bench->wizard().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_bench->wizard()));
        QTest::keyClick(m_bench->wizard().windowHandle(), key, Qt::AltModifier);
        QTest::keyRelease(m_bench->wizard().windowHandle(), Qt::Key_Alt);
    }
    /** With the Tab key, as often as it takes. */
    void tabTo(const QWidget *target) const
    {
        constexpr int kMost = 60;
        for (int i = 0; i < kMost && m_bench->wizard().focusWidget() != target; ++i) {
            QTest::keyClick(m_bench->wizard().focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(m_bench->wizard().focusWidget(), target);
    }
    [[nodiscard]] QStringList column(int column) const
    {
        QStringList texts;
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            texts += table()->model()->index(row, column).data().toString();
        }
        return texts;
    }

    std::unique_ptr<GuiBench> m_bench;
};
