// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <new>

class QWidget;

namespace PanoHead
{

/** The warning that memory has run out, in words that its page has translated. */
struct LowMemoryBox {
    QWidget *page;
    QString title;
    QString text;

    /**
     * Shows it from the event loop, where no slot of the page is under way that would go on with a
     * page that is gone. Not while the page has a message box open: every redraw may want it.
     */
    void showLater() const;
};

/**
 * Does \p step. When memory runs out, \p box says so and the answer is false; Qt's event loop does
 * not survive an exception. Bringing back what was before is the caller's.
 */
template <typename Step> [[nodiscard]] bool withinMemory(const LowMemoryBox &box, const Step &step)
{
    try {
        step();
        return true;
    } catch (const std::bad_alloc &) {
        box.showLater();
        return false;
    }
}

} // namespace PanoHead
