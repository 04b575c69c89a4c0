// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QIcon;

/**
 * What a library or an import plug-in says about itself.
 *
 * Host interface: found through `qt_metacast("XIAbout")`; the order of the operations is fixed.
 */
class XIAbout
{
public:
    virtual ~XIAbout() = default;
    [[nodiscard]] virtual QString Name() const = 0;
    [[nodiscard]] virtual QString Author() const = 0;
    [[nodiscard]] virtual QString Company() const = 0;
    [[nodiscard]] virtual QString Comment() const = 0;
    [[nodiscard]] virtual QString Version() const = 0;
    [[nodiscard]] virtual QIcon Icon() const = 0;
    /** Also the name of the settings group and of the folder in the resource tree. */
    [[nodiscard]] virtual QString UID() const = 0;
};
