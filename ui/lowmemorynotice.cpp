// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/lowmemorynotice.h"

#include "hostlink/readingthread.h"

#include <QCoreApplication>
#include <QEvent>

#include <new>
#include <utility>

namespace PanoHead
{

namespace
{

constexpr std::size_t kReserveBytes = 2 * 1024 * 1024; // address space until it is touched

} // namespace

LowMemoryNotice::LowMemoryNotice(QWidget *page, ReadingThread *thread, BoxTexts texts)
    : QObject(page)
    , m_page(page)
    , m_texts(std::move(texts))
    , m_self(this)
{
    putAside();
    connect(thread, &ReadingThread::Loaded, this, [this, thread] {
        if (thread->takeShortage()) {
            showLater();
        }
    });
}

LowMemoryNotice::~LowMemoryNotice() = default;

void LowMemoryNotice::show()
{
    if (m_isShown) {
        return;
    }
    if (m_reserve == nullptr) {
        putAside();
    }
    if (m_reserve == nullptr) {
        return; // Qt seldom survives a box that it cannot finish
    }
    const QPointer<LowMemoryNotice> self = m_self;
    m_isShown = true;
    m_reserve.reset();
    try {
        showMessage(m_page, QMessageBox::Warning, m_texts.title, m_texts.text);
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch): there is nothing left to do
    }
    if (self) {
        m_isShown = false;
        putAside();
    }
}

/** From the event loop: the page may be gone after the message, so its own slots end before. */
void LowMemoryNotice::showLater()
{
    m_reserve.reset();
    try {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch): there is nothing left to do
    }
    putAside();
}

void LowMemoryNotice::customEvent(QEvent *event)
{
    if (event->type() == QEvent::User) {
        show();
    }
}

void LowMemoryNotice::putAside()
{
    m_reserve.reset(new (std::nothrow) char[kReserveBytes]);
}

} // namespace PanoHead
