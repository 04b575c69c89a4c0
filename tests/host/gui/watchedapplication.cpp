// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/gui/watchedapplication.h"

#include "host/import/pagetime.h"

#include <QCryptographicHash>
#include <QMetaEnum>
#include <QThread>
#include <QWizardPage>

#include <utility>

using PanoHost::PageTime;

namespace
{

/** A plug-in's page, or what is in it or works for it. */
bool isOfPage(const QObject *object)
{
    while (object != nullptr) {
        const QByteArray name = object->metaObject()->className();
        if (object->inherits("QWizardPage") && !name.startsWith("PanoHost::")) {
            return true;
        }
        object = object->parent();
    }
    return false;
}

} // namespace

WatchedApplication::Steps WatchedApplication::takeSteps()
{
    return std::exchange(m_steps, {});
}

bool WatchedApplication::notify(QObject *receiver, QEvent *event)
{
    const QThread *thread = QThread::currentThread();
    if (thread != this->thread() || thread->loopLevel() == m_level) {
        return PanoHostApplication::notify(receiver, event);
    }
    const bool isOfPages = isOfPage(receiver);
    Step step;
    step.what = QStringLiteral("%1 %2, event %3")
                    .arg(QLatin1String(receiver->metaObject()->className()), receiver->objectName(),
                         QString::number(event->type()));
    const int outerLevel = std::exchange(m_level, thread->loopLevel());
    const auto outerInner = std::exchange(m_inner, {});
    const auto pagesBefore = PageTime::spent();
    const auto start = PageTime::now();
    const bool handled = PanoHostApplication::notify(receiver, event);
    const auto all = PageTime::now() - start;
    const auto ofPages = PageTime::spent() - pagesBefore;
    step.time = isOfPages ? all - m_inner : all - std::max(m_inner, ofPages);
    Step &longest = isOfPages ? m_steps.longestOfPages : m_steps.longestOfHost;
    if (step.time > longest.time) {
        longest = step;
    }
    if (ofPages > m_steps.longestOfPages.time) {
        m_steps.longestOfPages = { ofPages, step.what };
    }
    m_inner = outerInner + all;
    m_level = outerLevel;
    return handled;
}

double WatchedApplication::slownessNow()
{
    // As long as this takes on the machine that the bar was set on.
    constexpr std::chrono::duration<double> kUsual = std::chrono::milliseconds(20);
    const auto start = PageTime::now();
    QByteArray bytes(1 << 16, 'x');
    for (int i = 0; i < 100; ++i) {
        bytes.replace(0, 20, QCryptographicHash::hash(bytes, QCryptographicHash::Sha1));
    }
    return std::max(1.0, (PageTime::now() - start) / kUsual);
}
