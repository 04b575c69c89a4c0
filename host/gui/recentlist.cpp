// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/recentlist.h"

#include "importers/headfacts.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace PanoHost
{

namespace
{

/** "Papywizard, 26 photos, 3 May 2024" */
QString aboutText(const RecentShoot &shoot)
{
    const auto *head = PanoHead::headFactsOf(shoot.head);
    return RecentList::tr("%1, %2 photos, %3")
        .arg(head == nullptr ? shoot.head : QString::fromUtf8(head->title),
             QString::number(shoot.photos), QLocale().toString(shoot.date, QLocale::ShortFormat));
}

/** Canvases of large shoots have millions of pixels. */
QImage smallPicture(const QPixmap &preview)
{
    if (preview.isNull()) {
        return {};
    }
    constexpr int kSide = RecentShoots::kPictureSide;
    constexpr int kCoarse = 4 * kSide;
    QPixmap picture = preview;
    if (picture.width() > kCoarse || picture.height() > kCoarse) {
        picture = picture.scaled(kCoarse, kCoarse, Qt::KeepAspectRatio);
    }
    return picture.scaled(kSide, kSide, Qt::KeepAspectRatio, Qt::SmoothTransformation).toImage();
}

} // namespace

RecentList::RecentList(QSettings &settings, QWidget *parent)
    : QWidget(parent)
    , m_shoots(settings)
    , m_list(new QListWidget)
    , m_remove(new QPushButton(tr("Re&move")))
{
    m_list->setObjectName(QStringLiteral("m_recent"));
    m_list->setAccessibleName(tr("Recent shoots"));
    m_list->setIconSize(QSize(RecentShoots::kPictureSide, RecentShoots::kPictureSide / 2));
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->installEventFilter(this);
    auto *label = new QLabel(tr("&Recent shoots:"));
    label->setBuddy(m_list);
    m_remove->setObjectName(QStringLiteral("m_removeRecent"));
    m_remove->setAccessibleName(tr("Remove the shoot from this list"));
    m_remove->setAutoDefault(false);
    auto *clearButton = new QPushButton(tr("&Clear list"));
    clearButton->setObjectName(QStringLiteral("m_clearRecent"));
    clearButton->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_remove);
    buttons->addWidget(clearButton);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &RecentList::open);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_remove->setEnabled(row >= 0); });
    connect(m_remove, &QPushButton::clicked, this, &RecentList::remove);
    connect(clearButton, &QPushButton::clicked, this, &RecentList::clear);
    refresh();
}

void RecentList::refresh()
{
    m_list->clear();
    for (const RecentShoot &shoot : m_shoots.all()) {
        const bool isThere = shoot.isThere();
        const QString path = shoot.record.isEmpty() ? shoot.folder : shoot.record;
        QStringList lines{ QFileInfo(path).fileName(), aboutText(shoot) };
        if (!isThere) {
            lines += tr("The files are gone.");
        }
        QPixmap picture(shoot.picturePath());
        if (!isThere || picture.isNull()) {
            picture
                = style()
                      ->standardIcon(isThere ? QStyle::SP_FileIcon : QStyle::SP_MessageBoxWarning)
                      .pixmap(m_list->iconSize().height());
        }
        auto *item = new QListWidgetItem(picture, lines.join(QLatin1Char('\n')), m_list);
        item->setToolTip(path);
        item->setData(Qt::AccessibleTextRole, lines.join(QStringLiteral(", ")));
    }
    m_list->setCurrentIndex({}); // the view would choose the first one when it gets the focus
    m_remove->setEnabled(false);
    setVisible(!m_shoots.all().isEmpty());
}

void RecentList::add(const RecentShoot &shoot, const QPixmap &preview)
{
    m_shoots.add(shoot, smallPicture(preview));
    refresh();
}

void RecentList::open()
{
    const int place = m_list->currentRow();
    if (place < 0) {
        return;
    }
    const RecentShoot shoot = m_shoots.all().at(place);
    if (shoot.isThere()) {
        Q_EMIT openWanted(shoot);
        return;
    }
    QMessageBox box(QMessageBox::Question, tr("The files are gone"),
                    tr("%1 cannot be found; it may lie on a medium that is not there. Remove it "
                       "from the list?")
                        .arg(shoot.record.isEmpty() ? shoot.folder : shoot.record),
                    QMessageBox::Yes | QMessageBox::No, window());
    box.setTextFormat(Qt::PlainText);
    if (box.exec() == QMessageBox::Yes) {
        remove();
    }
}

void RecentList::remove()
{
    if (m_list->currentRow() >= 0) {
        m_shoots.remove(m_list->currentRow());
        refresh();
    }
}

void RecentList::clear()
{
    m_shoots.clear();
    refresh();
}

/** Enter opens the shoot; the window would press Next. */
bool RecentList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            open();
            return true;
        }
        if (key == Qt::Key_Delete) {
            remove();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace PanoHost
