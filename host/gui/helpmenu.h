// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

class QWizard;

namespace PanoHost
{

class PanoHostApplication;
class PluginLibrary;

/** Makes the Help button of \p wizard a menu: \p text (also by F1), preferences, about. All outlive
 * the wizard. */
void addHelpMenu(QWizard *wizard, PanoHostApplication &app, const PluginLibrary &library,
                 const std::function<QString()> &text);

} // namespace PanoHost
