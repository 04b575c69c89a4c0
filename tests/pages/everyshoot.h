// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/heads.h"

#include <QAbstractButton>
#include <QThread>
#include <QtTest>

// What tests ask of the pages of all heads.

inline void checkFreshTexts(const HeadShoot &shoot)
{
    for (const TextOn &fresh : shoot.head.freshTexts) {
        const QString name = QString::fromLatin1(fresh.widget) + QLatin1String(": ");
        QCOMPARE(name + shoot.driver.text(fresh.widget), name + fresh.text);
    }
    for (const char *button : shoot.head.freshDisabled) {
        QVERIFY(!shoot.driver.find<QWidget>(button)->isEnabled());
    }
    QVERIFY(!shoot.page->isComplete());
}

inline bool isChecked(const HeadShoot &shoot, const char *button)
{
    return shoot.driver.find<QAbstractButton>(button)->isChecked();
}

inline bool isReading(const HeadShoot &shoot)
{
    return shoot.page->findChild<QThread *>()->isRunning();
}
