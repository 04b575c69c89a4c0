// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/formcheck.h"

/** What the forms of the pages for Papywizard and VR Drive 2 have alike. */
namespace RecordForm
{

/**
 * The form with a tab widget called \p tabs, a label called \p lensLabel for the type of the lens
 * and \p ownWidgets on the first tab.
 */
[[nodiscard]] Form form(const char *tabs, const char *lensLabel,
                        const std::vector<FormRow> &ownWidgets);
/** What the tab key visits on the tabs behind the first one. */
[[nodiscard]] QStringList tabOrder();

} // namespace RecordForm
