// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/belowpages.h"

#include "host/gui/readingbar.h"
#include "host/gui/shootstrip.h"

#include <QAbstractButton>
#include <QLayout>
#include <QResizeEvent>
#include <QScreen>
#include <QStyle>
#include <QWizard>

#include <algorithm>

namespace PanoHost
{

BelowPages::BelowPages(QWizard *wizard, ReadingBar *bar, ShootStrip *strip)
    : QObject(wizard)
    , m_wizard(wizard)
    , m_content(wizard->button(QWizard::CancelButton)->parentWidget())
    , m_bar(bar)
    , m_strip(strip)
{
    m_bar->installEventFilter(this);
    m_content->installEventFilter(this);
    connect(m_strip, &ShootStrip::heightChanged, this, &BelowPages::makeRoom);
    connect(m_strip, &ShootStrip::opened, this, [this](bool open) { m_wantsOpenStrip = open; });
}

bool BelowPages::eventFilter(QObject *watched, QEvent *event)
{
    const bool barComesOrGoes = watched == m_bar
        && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent);
    if (barComesOrGoes || (watched == m_content && event->type() == QEvent::LayoutRequest)) {
        makeRoom();
    }
    return QObject::eventFilter(watched, event);
}

void BelowPages::follow(const QResizeEvent &event)
{
    const bool hasGrown = m_wizard->minimumHeight() > largestSize().height();
    makeRoom();
    if (hasGrown && event.oldSize().isValid()) {
        // The page that came is too large.
        m_wizard->resize(event.oldSize().expandedTo(m_wizard->minimumSize()));
    }
}

/** Keeps the window large enough for what the page shows. */
void BelowPages::fitPages()
{
    // The wizard asks a page for its size only when it comes to the front, but texts grow when a
    // record is read.
    if (m_content->layout() != nullptr) {
        const QSize needed
            = m_content->layout()->totalMinimumSize() + QSize(0, barHeight() + lineHeight());
        m_wizard->setMinimumSize(needed.boundedTo(largestSize()));
    }
}

QSize BelowPages::largestSize() const
{
    constexpr int kSides = 8;
    const QSize usualFrame(
        kSides,
        kSides / 2 + m_wizard->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, m_wizard));
    return m_wizard->screen()->availableSize()
        - usualFrame.expandedTo(m_wizard->frameSize() - m_wizard->size());
}

int BelowPages::barHeight() const
{
    return m_bar->isVisibleTo(m_wizard) ? m_bar->sizeHint().height() : 0;
}

int BelowPages::lineHeight() const
{
    return m_strip->isVisibleTo(m_wizard) ? m_strip->lineHeight() : 0;
}

void BelowPages::makeRoom()
{
    fitPages();
    const int fixed = barHeight() + lineHeight();
    const int needed
        = m_content->layout() == nullptr ? 0 : m_content->layout()->totalMinimumSize().height();
    const int free = m_wizard->height() - fixed - needed;
    const int room = std::max(0, free);
    int rows = m_strip->isVisibleTo(m_wizard) ? m_strip->rowsHeight() : 0;
    if (!m_wantsOpenStrip) {
        const QSignalBlocker blocker(m_strip);
        m_strip->setOpen(m_strip->hasTrouble() && rows <= room);
    }
    rows = m_strip->isOpen() ? std::min(rows, m_wizard->height() / 2) : 0;
    const int hidden = std::max(0, rows - free);
    m_content->setGeometry(0, -hidden, m_wizard->width(),
                           m_wizard->height() - fixed - (rows - hidden));
    const int bottom = m_wizard->height() - barHeight();
    m_bar->setGeometry(0, bottom, m_wizard->width(), barHeight());
    m_strip->setGeometry(0, bottom - lineHeight() - rows, m_wizard->width(), lineHeight() + rows);
}

} // namespace PanoHost
