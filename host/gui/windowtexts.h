// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLocale>

namespace PanoHost
{

/**
 * Has the window speak the language of \p locale from now on, Qt's own dialogs and buttons too, as
 * far as that is installed (qttranslations5-l10n); English stays where it is not. To be called
 * before the window is made.
 */
void loadWindowTexts(const QLocale &locale);

} // namespace PanoHost
