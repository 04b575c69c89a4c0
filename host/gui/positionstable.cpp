// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/positionstable.h"

#include "host/model/csv.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace PanoHost
{

PositionsTable::PositionsTable(QWidget *parent)
    : QTableView(parent)
    , m_positions(new PositionsModel(this))
    , m_sorted(new QSortFilterProxyModel(this))
{
    setAccessibleName(tr("Positions"));
    m_sorted->setSourceModel(m_positions);
    m_sorted->setSortRole(PositionsModel::kSortRole);
    m_sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    setModel(m_sorted);
    setSortingEnabled(true);
    sortByColumn(PositionsModel::Number, Qt::AscendingOrder);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false); // Tab leaves the table
    setWordWrap(false);
    setAlternatingRowColors(true);
    verticalHeader()->hide();
    // Thousands of rows are never asked for their sizes.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    constexpr int kRowsAskedForTheirWidth = 50;
    horizontalHeader()->setResizeContentsPrecision(kRowsAskedForTheirWidth);
    horizontalHeader()->setHighlightSections(false);
    fitRows();
}

void PositionsTable::setPanorama(const Panorama &panorama)
{
    m_positions->setPanorama(panorama);
    fitColumns();
}

void PositionsTable::setAlignment(const Alignment &alignment, const PhotoResiduals &residuals)
{
    m_positions->setAlignment(alignment, residuals);
    fitColumns();
}

void PositionsTable::fitRows()
{
    constexpr int kMargin = 6;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kMargin);
}

void PositionsTable::fitColumns()
{
    for (int column = 0; column < PositionsModel::ColumnCount; ++column) {
        setColumnHidden(column, PositionsModel::isOfAlignment(column) && !m_positions->isAligned());
    }
    resizeColumnsToContents();
    const int widest = fontMetrics().averageCharWidth() * 40; // names of large stacks are long
    setColumnWidth(PositionsModel::Photos, std::min(columnWidth(PositionsModel::Photos), widest));
}

void PositionsTable::selectPosition(int position)
{
    const QSignalBlocker blocker(this); // whoever asks for it knows
    const QModelIndex index
        = m_sorted->mapFromSource(m_positions->index(position, PositionsModel::Number));
    if (!index.isValid()) {
        clearSelection();
        return;
    }
    // Not further to the side than it is.
    const int column = std::max(0, currentIndex().column());
    setCurrentIndex(index.siblingAtColumn(column));
    selectRow(index.row());
    scrollTo(index.siblingAtColumn(column));
}

QByteArray PositionsTable::csv() const
{
    QVector<QStringList> lines{ PositionsModel::exportHeader() };
    for (int row = 0; row < m_sorted->rowCount(); ++row) {
        lines += m_positions->exportRow(m_sorted->mapToSource(m_sorted->index(row, 0)).row());
    }
    return csvText(lines);
}

void PositionsTable::copySelected() const
{
    QVector<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows()) {
        rows += index.row();
    }
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const int row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < PositionsModel::ColumnCount; ++column) {
            if (!isColumnHidden(column)) {
                cells += m_sorted->index(row, column).data().toString();
            }
        }
        lines += cells.join(QLatin1Char('\t'));
    }
    if (!lines.isEmpty()) {
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    }
}

void PositionsTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelected();
        return;
    }
    QTableView::keyPressEvent(event);
}

void PositionsTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid() && current.row() != previous.row()) {
        Q_EMIT positionSelected(m_sorted->mapToSource(current).row());
    }
}

void PositionsTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitRows();
    }
}

} // namespace PanoHost
