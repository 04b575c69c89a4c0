// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/readingbar.h"

#include "host/model/pace.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace PanoHost
{

ReadingBar::ReadingBar(QWidget *parent)
    : QFrame(parent)
    , m_bar(new QProgressBar)
    , m_text(new QLabel)
{
    setObjectName(QStringLiteral("m_readingBar"));
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Reading photos"));
    m_text->setTextFormat(Qt::PlainText);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_bar, 1);
    layout->addWidget(m_text);
    hide();
    constexpr int kPatienceMs = 400;
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &QWidget::show);
}

void ReadingBar::announce(int total)
{
    m_bar->setRange(0, total);
    m_bar->setValue(0);
    m_text->setText(tr("%1 photos are handed over...").arg(total));
    show();
    window()->repaint(); // the event loop will not come to it
}

void ReadingBar::begin(int total)
{
    m_total = total;
    m_done = 0;
    m_clock.start();
    m_bar->setRange(0, total);
    m_bar->setValue(0);
    m_text->setText(text());
    m_patience.start();
}

void ReadingBar::advance()
{
    if (++m_done >= m_total) {
        end();
        return;
    }
    m_bar->setValue(m_done);
    m_text->setText(text());
}

void ReadingBar::end()
{
    m_patience.stop();
    m_total = 0;
    hide();
}

QString ReadingBar::text() const
{
    const Pace pace{ m_done, m_total, std::chrono::milliseconds(m_clock.elapsed()) };
    QString text = tr("%1 of %2 photos").arg(m_done).arg(m_total);
    if (pace.perSecond() >= 1.0) {
        text += tr(", %1 per second").arg(qRound(pace.perSecond()));
    }
    if (const auto left = pace.left()) {
        text += QStringLiteral(", ") + timeLeftText(*left);
    }
    return text;
}

} // namespace PanoHost
