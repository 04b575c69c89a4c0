// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/gigapan/uiwpgigapan.h"
#include "tests/support/pageshoot.h"

#include <QByteArray>
#include <QString>
#include <QVector>
#include <QtTest>

constexpr char kRows[] = "m_sbRow";
constexpr char kIgnored[] = "m_sbIgnore";
constexpr char kBracket[] = "m_sbBracket";

/** One Gigapan page with the files of one shoot. */
struct GigapanShoot : PageShoot<UIWPGigapan> {
    /** Replaces the number in the spin box \p name, key by key. */
    void enter(const char *name, int value) const
    {
        auto *box = driver.find<QSpinBox>(name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::number(value));
    }
    /** The grid that the page shows, as "rows x columns". */
    [[nodiscard]] QString grid() const
    {
        return QStringLiteral("%1 x %2").arg(page.m_sbRow->value()).arg(page.m_sbColumn->value());
    }
    /** The modes whose buttons are checked. */
    [[nodiscard]] QVector<int> checkedModes() const
    {
        QVector<int> modes;
        for (int mode = 0; mode < 4; ++mode) {
            if (driver.find<QRadioButton>(modeButton(mode).constData())->isChecked()) {
                modes.append(mode);
            }
        }
        return modes;
    }
    void choose(int mode)
    {
        if (mode == 4) { // has no button
            page.OnMode4Toggled(true);
        } else {
            driver.click(modeButton(mode).constData());
        }
    }
    static QByteArray modeButton(int mode) { return "m_rbMode" + QByteArray::number(mode); }
};
