// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/gui/positionsmodel.h"

#include <QTableView>

class QSortFilterProxyModel;

namespace PanoHost
{

/** The positions as a table that sorts by the column clicked. Rows are selected and copied. */
class PositionsTable : public QTableView
{
    Q_OBJECT
public:
    explicit PositionsTable(QWidget *parent = nullptr);

    void setPanorama(const Panorama &panorama);
    /** Shows the columns that only an alignment fills. */
    void setAlignment(const Alignment &alignment, const PhotoResiduals &residuals);

    /** Selects \p position, counted from 0, and scrolls to it; none, when there is no such. */
    void selectPosition(int position);
    /** All rows as they are sorted, with all columns, as comma-separated values. */
    [[nodiscard]] QByteArray csv() const;
    /** What is selected goes to the clipboard, as it is shown. */
    void copySelected() const;

Q_SIGNALS:
    /** The user has gone to \p position, counted from 0. */
    void positionSelected(int position);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void changeEvent(QEvent *event) override;

private:
    void fitRows();
    void fitColumns();

    PositionsModel *m_positions;
    QSortFilterProxyModel *m_sorted;
};

} // namespace PanoHost
