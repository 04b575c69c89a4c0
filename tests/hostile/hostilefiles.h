// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>

#include <functional>

/** One file that nobody's head writes. */
struct HostileFile {
    QByteArray name; ///< says what is wrong with it
    std::function<QByteArray()> content; ///< made when it is needed: some are as large as may be
    bool isLarge = false; ///< or takes long; the others are left to a sanitizer, which is slow
};

/** Records in the Papywizard schema, and what pretends to be one. */
[[nodiscard]] QVector<HostileFile> hostileRecords();

/** Clauss scripts, and what pretends to be one. */
[[nodiscard]] QVector<HostileFile> hostileScripts();
