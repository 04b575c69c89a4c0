// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/withinmemory.h"

#include "ui/messageboxes.h"

namespace PanoHead
{

namespace
{

void show(const LowMemoryBox &box)
{
    if (box.page->findChild<QMessageBox *>() == nullptr) {
        showMessage(box.page, QMessageBox::Warning, box.title, box.text);
    }
}

/** Without memory for the message either, nothing is left to do. */
template <typename Step> void ifPossible(const Step &step)
{
    try {
        step();
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace

void LowMemoryBox::showLater() const
{
    ifPossible([this] {
        QMetaObject::invokeMethod(
            page, [box = *this] { ifPossible([&box] { show(box); }); }, Qt::QueuedConnection);
    });
}

} // namespace PanoHead
