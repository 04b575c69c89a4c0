// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/heldphotos.h"

#include "hostlink/readingthread.h"
#include "tests/support/fakeapplication.h"

#include <chrono>

HeldPhotos::HeldPhotos(const PageDriver &driver, const ShootFolder &folder, int count)
{
    const QStringList photos = folder.addPhotos(count);
    FakePhoto held;
    held.enter = &m_enter;
    held.leave = &m_leave;
    fakeHost().setPhoto(photos.at(1), held);
    driver.chooseFiles(kSelectPhotos, photos);
    m_enter.pass();
    auto *reading = driver.page().findChild<ReadingThread *>();
    m_watcher = std::thread([this, reading] {
        while (!m_ends.passWithin(std::chrono::milliseconds(1))) {
            // The thread cannot end, nor be deleted, before the photo has been let go.
            if (reading->XIImageDefs().isEmpty()) {
                m_leave.open();
                return;
            }
        }
    });
}

HeldPhotos::~HeldPhotos()
{
    letGo();
    m_watcher.join();
}

void HeldPhotos::letGo()
{
    m_ends.open();
    m_leave.open();
}
