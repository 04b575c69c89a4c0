// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/gate.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QStringList>

#include <thread>

/**
 * Photos that a page is just reading: the first is read, the second stays in the host's hands until
 * the page drops what it has. Must live longer than a page that is deleted meanwhile.
 */
class HeldPhotos
{
public:
    /** Chooses \p count photos of \p folder on \p driver's page and waits for the second one. */
    HeldPhotos(const PageDriver &driver, const ShootFolder &folder, int count = 20);
    ~HeldPhotos();
    HeldPhotos(const HeldPhotos &) = delete;
    HeldPhotos &operator=(const HeldPhotos &) = delete;

    /** Lets the second photo go even if the page still wants it: a test can go on and fail. */
    void letGo();

private:
    Gate m_enter;
    Gate m_leave;
    Gate m_ends;
    std::thread m_watcher;
};
