// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace PanoHead
{

/**
 * A modal box with one OK button. \p text is shown as plain text, whatever a record or a file name
 * brought into it. \p parent may be deleted while the box is open: guard what comes after.
 */
void showMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                 const QString &text);

/** Title and text of a box, translated by the page. */
struct BoxTexts {
    QString title;
    QString text;
};

/** Shows a warning, and answers true, when \p photos do not come in whole brackets. */
[[nodiscard]] bool warnsOfBrackets(QWidget *page, int photos, int bracketCount,
                                   const BoxTexts &texts);

} // namespace PanoHead
