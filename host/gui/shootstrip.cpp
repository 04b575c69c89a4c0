// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/shootstrip.h"

#include "host/gui/elidedlabel.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace PanoHost
{

namespace
{

constexpr double kSmallestMm = 1.0;
constexpr double kLargestMm = 10000.0;
constexpr double kUsualMm = 24.0;

/** Told by its picture and by words: colours alone tell not everybody. */
QLabel *stateIcon(const QStyle *style, StripRow::State state)
{
    struct Look {
        QStyle::StandardPixmap picture;
        QString words;
    };
    const Look look = state == StripRow::State::Trouble
        ? Look{ QStyle::SP_MessageBoxWarning, ShootStrip::tr("To look at") }
        : state == StripRow::State::Working
        ? Look{ QStyle::SP_BrowserReload, ShootStrip::tr("Not yet known") }
        : Look{ QStyle::SP_DialogApplyButton, ShootStrip::tr("In order") };
    const int side = style->pixelMetric(QStyle::PM_SmallIconSize);
    auto *icon = new QLabel;
    icon->setPixmap(style->standardIcon(look.picture).pixmap(side, side));
    icon->setAccessibleName(look.words);
    icon->setToolTip(look.words);
    return icon;
}

StripRow::State worstOf(const QVector<StripRow> &rows)
{
    auto worst = StripRow::State::Good;
    for (const StripRow &row : rows) {
        worst = std::max(worst, row.state);
    }
    return worst;
}

/** One of its buttons may have led here. Nothing is to be found in it any more. */
void putAway(QWidget *widget)
{
    if (widget != nullptr) {
        widget->hide();
        widget->setParent(nullptr);
        widget->deleteLater();
    }
}

} // namespace

ShootStrip::ShootStrip(QWidget *parent)
    : QFrame(parent)
    , m_opener(new QToolButton)
    , m_summaryIcon(new QLabel)
    , m_summary(new ElidedLabel)
    , m_cure(new QWidget)
    , m_area(new QScrollArea)
{
    setObjectName(QStringLiteral("m_strip"));
    setAccessibleName(tr("About this shoot"));
    setAutoFillBackground(true);
    m_opener->setObjectName(QStringLiteral("m_stripOpener"));
    m_opener->setCheckable(true);
    m_opener->setAutoRaise(true);
    m_opener->setFocusPolicy(Qt::StrongFocus);
    m_opener->setArrowType(Qt::RightArrow);
    m_opener->setAccessibleName(tr("Show what is known about this shoot"));
    m_opener->setToolTip(m_opener->accessibleName());
    m_summary->setObjectName(QStringLiteral("m_stripSummary"));
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->hide();
    auto *line = new QHBoxLayout;
    line->addWidget(m_opener);
    line->addWidget(m_summaryIcon);
    line->addWidget(m_summary, 1);
    line->addWidget(m_cure);
    auto *layout = new QVBoxLayout(this);
    constexpr int kMargin = 4;
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addLayout(line);
    layout->addWidget(m_area, 1);
    connect(m_opener, &QToolButton::toggled, this, [this](bool open) {
        m_opener->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        m_area->setVisible(open);
        m_cure->setVisible(!open);
    });
    connect(m_opener, &QToolButton::clicked, this, [this](bool open) {
        Q_EMIT opened(open);
        Q_EMIT heightChanged();
    });
}

bool ShootStrip::hasTrouble() const
{
    return worstOf(m_rows) == StripRow::State::Trouble;
}

bool ShootStrip::isOpen() const
{
    return m_opener->isChecked();
}

void ShootStrip::setOpen(bool open)
{
    if (open != isOpen()) {
        m_opener->setChecked(open);
        Q_EMIT heightChanged();
    }
}

int ShootStrip::lineHeight() const
{
    const QMargins margins = layout()->contentsMargins();
    return layout()->itemAt(0)->sizeHint().height() + margins.top() + margins.bottom();
}

int ShootStrip::rowsHeight() const
{
    return m_rowsWidget == nullptr ? 0 : m_rowsWidget->sizeHint().height() + layout()->spacing();
}

void ShootStrip::show(const QVector<StripRow> &rows, double focal35mm)
{
    // What the user is just entering stays.
    if (m_rowsWidget != nullptr && rows == m_rows && focal35mm == m_focal35mm) {
        return;
    }
    m_focal35mm = focal35mm;
    // Whoever works with the rows keeps the focus.
    const QWidget *focus = window()->focusWidget();
    const QString focused = isAncestorOf(focus) ? focus->objectName() : QString();
    m_rows = rows;
    putAway(m_area->takeWidget());
    m_rowsWidget = new QWidget;
    auto *grid = new QGridLayout(m_rowsWidget);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(2, 1);
    for (int i = 0; i < rows.size(); ++i) {
        addRow(i, rows.at(i));
    }
    m_area->setWidget(m_rowsWidget);
    std::unique_ptr<QLabel> icon(stateIcon(style(), worstOf(rows)));
    m_summaryIcon->setPixmap(icon->pixmap(Qt::ReturnByValue));
    m_summaryIcon->setAccessibleName(icon->accessibleName());
    m_summary->setFullText(StripTexts::summary(rows));
    showCure();
    orderTabs();
    if (auto *again = focused.isEmpty() ? nullptr : findChild<QWidget *>(focused)) {
        again->setFocus();
    }
    Q_EMIT heightChanged();
}

/** While the rows are hidden the first thing to look at has its button in the line. */
void ShootStrip::showCure()
{
    auto *cure = new QWidget;
    auto *layout = new QHBoxLayout(cure);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto *first = std::find_if(m_rows.begin(), m_rows.end(), [](const StripRow &row) {
        return row.state == StripRow::State::Trouble;
    });
    if (first != m_rows.end() && !first->actions.isEmpty()
        && first->actions.first() != StripAction::EnterFocal) {
        layout->addWidget(buttonFor(first->actions.first(), *first, QStringLiteral("m_cure")));
    }
    cure->setVisible(!isOpen());
    delete this->layout()->itemAt(0)->layout()->replaceWidget(m_cure, cure);
    putAway(std::exchange(m_cure, cure));
}

/** Line by line; widgets made anew would come last in the window. */
void ShootStrip::orderTabs()
{
    QWidget *before = m_opener;
    QList<QWidget *> widgets{ m_summary };
    widgets += m_cure->findChildren<QWidget *>();
    widgets += m_rowsWidget->findChildren<QWidget *>();
    for (QWidget *widget : qAsConst(widgets)) {
        const bool isPart = qobject_cast<QDoubleSpinBox *>(widget->parentWidget()) != nullptr;
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !isPart) {
            setTabOrder(before, widget);
            before = widget;
        }
    }
}

void ShootStrip::addRow(int number, const StripRow &row)
{
    auto *grid = static_cast<QGridLayout *>(m_rowsWidget->layout());
    auto *title = new QLabel(row.title);
    title->setTextFormat(Qt::PlainText);
    auto *text = new ElidedLabel(row.text);
    text->setObjectName(QStringLiteral("m_strip_") + row.name);
    grid->addWidget(stateIcon(style(), row.state), number, 0);
    grid->addWidget(title, number, 1);
    grid->addWidget(text, number, 2);
    grid->addWidget(buttonsOf(row), number, 3);
}

QWidget *ShootStrip::buttonsOf(const StripRow &row)
{
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const StripAction action : row.actions) {
        if (action == StripAction::EnterFocal) {
            layout->addWidget(focalEntry());
        }
        layout->addWidget(
            buttonFor(action, row,
                      QStringLiteral("m_strip_%1_%2").arg(row.name).arg(static_cast<int>(action))));
    }
    return box;
}

QWidget *ShootStrip::buttonFor(StripAction action, const StripRow &row, const QString &name)
{
    const QString text = StripTexts::actionText(action);
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false); // Enter elsewhere presses Next
    button->setAccessibleName(QStringLiteral("%1: %2").arg(row.title, text));
    button->setAccessibleDescription(row.text);
    connect(button, &QPushButton::clicked, this, [this, action, row] {
        if (action == StripAction::EnterFocal) {
            Q_EMIT focalEntered(
                findChild<QDoubleSpinBox *>(QStringLiteral("m_stripFocal"))->value());
        } else {
            Q_EMIT wanted(action, row);
        }
    });
    return button;
}

QWidget *ShootStrip::focalEntry()
{
    auto *box = new QDoubleSpinBox;
    box->setObjectName(QStringLiteral("m_stripFocal"));
    box->setRange(kSmallestMm, kLargestMm);
    box->setDecimals(1);
    box->setSuffix(tr(" mm"));
    box->setValue(m_focal35mm > 0.0 ? m_focal35mm : kUsualMm);
    box->setAccessibleName(tr("Focal length, as for 35 mm film"));
    box->setToolTip(box->accessibleName());
    box->installEventFilter(this);
    return box;
}

/** Enter in the field enters the number; the wizard would press Next. */
bool ShootStrip::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QDoubleSpinBox *>(watched);
    if (box != nullptr && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            box->interpretText();
            Q_EMIT focalEntered(box->value());
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace PanoHost
