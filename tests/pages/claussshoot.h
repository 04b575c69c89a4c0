// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/clauss/uiwpclauss.h"
#include "tests/support/pageshoot.h"

#include <QByteArray>
#include <QString>
#include <QtTest>

constexpr char kScript[] = "m_leConfigFile";

inline QString notAvailable()
{
    return QStringLiteral("N/A");
}

/** One Clauss page with the files of one shoot. */
struct ClaussShoot : PageShoot<UIWPClauss> {
    QString writeScript(const QByteArray &script,
                        const QString &name = QStringLiteral("script.txt")) const
    {
        return folder.write(name, script);
    }
    void loadScript(const QByteArray &script) const
    {
        driver.load(kSelectRecord, { writeScript(script) });
    }
    /** Types \p path and ends with the Return key. */
    void enter(const QString &path) const
    {
        driver.type(kScript, path);
        QTest::keyClick(page.m_leConfigFile, Qt::Key_Return);
    }
};
