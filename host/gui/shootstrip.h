// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/striprows.h"

#include <QFrame>

class QLabel;
class QScrollArea;
class QToolButton;

namespace PanoHost
{

class ElidedLabel;

/**
 * What is known of the shoot on the page above, a line for each thing, with the buttons that put it
 * right: one line in all until the user opens it.
 */
class ShootStrip : public QFrame
{
    Q_OBJECT
public:
    explicit ShootStrip(QWidget *parent = nullptr);

    void show(const QVector<StripRow> &rows, double focal35mm);
    [[nodiscard]] const QVector<StripRow> &rows() const { return m_rows; }

    [[nodiscard]] bool hasTrouble() const;
    [[nodiscard]] bool isOpen() const;
    void setOpen(bool open);
    /** How high the line is that is always there, and how high all rows are. */
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] int rowsHeight() const;

Q_SIGNALS:
    /** A button of \p row was pressed. */
    void wanted(PanoHost::StripAction action, const PanoHost::StripRow &row);
    void focalEntered(double focal35mm);
    /** The user has opened or closed it. */
    void opened(bool open);
    /** It wants more room, or less. */
    void heightChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showCure();
    void orderTabs();
    void addRow(int number, const StripRow &row);
    [[nodiscard]] QWidget *buttonsOf(const StripRow &row);
    [[nodiscard]] QWidget *buttonFor(StripAction action, const StripRow &row, const QString &name);
    [[nodiscard]] QWidget *focalEntry();

    QVector<StripRow> m_rows;
    double m_focal35mm = 0.0;
    QToolButton *m_opener;
    QLabel *m_summaryIcon;
    ElidedLabel *m_summary;
    QWidget *m_cure;
    QScrollArea *m_area;
    QWidget *m_rowsWidget = nullptr;
};

} // namespace PanoHost
