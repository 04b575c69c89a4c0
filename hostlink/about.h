// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace PanoHead
{

/**
 * What the library or one of its plug-ins says about itself: one row of literals. The texts are
 * copies: string literals lie in the library, and a host may keep the texts longer than that.
 */
struct About {
    const char *name;
    const char *comment;
    const char *icon; ///< resource path; "%1" stands for the UID
    const char *uid;

    [[nodiscard]] QString nameText() const { return QString::fromLatin1(name); }
    [[nodiscard]] QString commentText() const { return QString::fromLatin1(comment); }
    [[nodiscard]] QString uidText() const { return QString::fromLatin1(uid); }
    [[nodiscard]] QString iconPath() const { return QString::fromLatin1(icon).arg(uidText()); }

    [[nodiscard]] static QString authorText() { return QString::fromLatin1("Orvane"); }
    [[nodiscard]] static QString companyText() { return QString::fromLatin1("Orvane"); }
    [[nodiscard]] static QString versionText() { return QString::fromLatin1("3.0.0.400"); }
};

} // namespace PanoHead
