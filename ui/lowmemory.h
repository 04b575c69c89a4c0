// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/structuredpanoramaproperties.h"
#include "ui/messageboxes.h"

#include <new>

namespace PanoHead
{

/**
 * Answers what \p describe does, which fills \p description. When memory runs out, the description
 * is what it was before, \p page shows a warning with what \p texts answers, and the answer is
 * false: Qt's event loop does not survive an exception.
 */
template <typename Describe, typename Texts>
[[nodiscard]] bool describeWithinMemory(QWidget *page, StructuredPanoramaProperties &description,
                                        const Describe &describe, const Texts &texts)
{
    const StructuredPanoramaProperties before = description;
    try {
        return describe();
    } catch (const std::bad_alloc &) {
        description = before;
    }
    const BoxTexts box = texts();
    showMessage(page, QMessageBox::Warning, box.title, box.text);
    return false;
}

} // namespace PanoHead
