// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/previewguide.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QWheelEvent>
#include <QWizardPage>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

PreviewGuide::PreviewGuide(QWizardPage *page, bool needsRecord, QObject *parent)
    : QObject(parent)
    , m_area(page->findChild<QScrollArea *>(QStringLiteral("m_saPreview")))
    , m_zoom(page->findChild<QSlider *>(QStringLiteral("m_hSlider")))
    , m_record(page->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile")))
    , m_photos(page->findChild<QLineEdit *>(QStringLiteral("m_leImage")))
{
    if (m_area.isNull() || m_zoom.isNull() || m_photos.isNull()) {
        return;
    }
    m_hint = new QLabel(needsRecord ? tr("Drop the head's record and the photos here")
                                    : tr("Drop the photos here"),
                        m_area->viewport());
    m_hint->setObjectName(QStringLiteral("m_dropHint"));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_area->viewport()->setToolTip(tr("The wheel zooms, a double click shows all."));
    m_area->viewport()->installEventFilter(this);
    // Pages that reset themselves keep their fields quiet.
    connect(page, &QWizardPage::completeChanged, this, &PreviewGuide::update, Qt::QueuedConnection);
    connect(m_photos, &QLineEdit::textChanged, this, &PreviewGuide::update);
    if (!m_record.isNull()) {
        connect(m_record, &QLineEdit::textChanged, this, &PreviewGuide::update);
    }
    update();
}

void PreviewGuide::update()
{
    m_hint->setVisible(m_photos->text().isEmpty()
                       && (m_record.isNull() || m_record->text().isEmpty()));
    m_hint->setGeometry(m_area->viewport()->rect());
    m_hint->raise(); // the page may have placed its picture since
}

void PreviewGuide::zoomBy(double steps)
{
    constexpr double kStep = 1.15;
    const int now = m_zoom->value();
    const int wanted = qRound(now * std::pow(kStep, steps));
    const int least = now + (steps > 0.0 ? 1 : -1); // small numbers would stay what they are
    m_zoom->setValue(steps > 0.0 ? std::max(wanted, least) : std::min(wanted, least));
}

void PreviewGuide::fit()
{
    const auto *label = m_area.isNull() ? nullptr : qobject_cast<QLabel *>(m_area->widget());
    const QSize shown = label == nullptr ? QSize() : label->pixmap(Qt::ReturnByValue).size();
    if (shown.isEmpty()) {
        return;
    }
    const QSize room = m_area->maximumViewportSize();
    const double factor
        = std::min(1.0 * room.width() / shown.width(), 1.0 * room.height() / shown.height());
    m_zoom->setValue(static_cast<int>(m_zoom->value() * factor));
}

bool PreviewGuide::eventFilter(QObject *watched, QEvent *event)
{
    constexpr double kTurn = 120.0; // of a wheel from one notch to the next
    switch (event->type()) {
    case QEvent::Wheel: {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        const int turn = wheel->angleDelta().y();
        if (turn == 0 || (wheel->modifiers() & Qt::ShiftModifier) != 0) {
            return false;
        }
        zoomBy(turn / kTurn);
        return true;
    }
    case QEvent::MouseButtonDblClick:
        fit();
        return true;
    case QEvent::Resize:
    case QEvent::Show:
        update();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace PanoHost
