// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/savedlist.h"

#include "host/gui/elidedlabel.h"
#include "host/model/messages.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

namespace PanoHost
{

namespace
{

QLabel *iconLabel(const QStyle *style, QStyle::StandardPixmap picture, const QString &words)
{
    const int side = style->pixelMetric(QStyle::PM_SmallIconSize);
    auto *icon = new QLabel;
    icon->setPixmap(style->standardIcon(picture).pixmap(side, side));
    icon->setAccessibleName(words);
    icon->setToolTip(words);
    return icon;
}

} // namespace

SavedList::SavedList(QWidget *parent)
    : QScrollArea(parent)
    , m_rows(new QVBoxLayout)
    , m_none(new QLabel(tr("Nothing saved yet.")))
    , m_problem(new QWidget)
    , m_problemText(new QLabel)
{
    setAccessibleName(tr("Saved files"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_problemText->setObjectName(QStringLiteral("m_problem"));
    m_problemText->setTextFormat(Qt::PlainText);
    m_problemText->setWordWrap(true);
    m_problemText->setTextInteractionFlags(Qt::TextSelectableByMouse
                                           | Qt::TextSelectableByKeyboard);
    auto *problem = new QHBoxLayout(m_problem);
    problem->setContentsMargins({});
    problem->addWidget(iconLabel(style(), QStyle::SP_MessageBoxWarning, tr("Not done")), 0,
                       Qt::AlignTop);
    problem->addWidget(m_problemText, 1);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    m_rows->setSpacing(2);
    layout->addWidget(m_none);
    layout->addWidget(m_problem);
    layout->addLayout(m_rows);
    layout->addStretch();
    setWidget(content);
    removeProblem();
}

void SavedList::addFile(const QString &path)
{
    removeProblem();
    const int place = m_files.indexOf(path);
    if (place >= 0) {
        m_files.removeAt(place);
        delete m_rows->itemAt(place)->widget(); // its item goes with it
    }
    m_files.prepend(path);
    m_rows->insertWidget(0, rowOf(path));
    m_none->hide();
    verticalScrollBar()->setValue(0);
}

QWidget *SavedList::rowOf(const QString &path)
{
    const QFileInfo file(path);
    auto *row = new QWidget;
    auto *text = new ElidedLabel(
        tr("Saved %1 in %2").arg(onOneLine(file.fileName()), onOneLine(file.absolutePath())));
    auto *show = new QPushButton(tr("Show"));
    show->setObjectName(QStringLiteral("m_show"));
    show->setAccessibleName(tr("Show %1 in its folder").arg(onOneLine(file.fileName())));
    show->setAutoDefault(false);
    connect(show, &QPushButton::clicked, this, [this, path] { showFolder(path); });
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(iconLabel(style(), QStyle::SP_DialogApplyButton, tr("Saved")));
    layout->addWidget(text, 1);
    layout->addWidget(show);
    return row;
}

void SavedList::showFolder(const QString &path)
{
    removeProblem();
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        addProblem(tr("The folder %1 is not there any more. Was it moved, or its disk unplugged?")
                       .arg(folder));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder))) {
        addProblem(tr("No program could show the folder. It is %1").arg(folder));
    }
}

void SavedList::addProblem(const QString &text)
{
    m_problemText->setText(onOneLine(text));
    m_problem->show();
    m_none->hide();
    verticalScrollBar()->setValue(0);
}

void SavedList::removeProblem()
{
    m_problemText->clear();
    m_problem->hide();
    m_none->setVisible(m_files.isEmpty());
}

void SavedList::clear()
{
    m_files.clear();
    while (QLayoutItem *item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    removeProblem();
}

QSize SavedList::sizeHint() const
{
    constexpr int kRows = 2;
    constexpr int kMargins = 10; // of a button around its text
    return { QScrollArea::sizeHint().width(), kRows * (fontMetrics().height() + kMargins) };
}

QSize SavedList::minimumSizeHint() const
{
    return { QScrollArea::minimumSizeHint().width(), sizeHint().height() };
}

} // namespace PanoHost
