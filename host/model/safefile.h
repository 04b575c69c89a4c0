// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>

namespace PanoHost
{

/**
 * Opens \p path for reading when it is a regular file, and only then: a pipe never blocks and a
 * device is never read.
 */
[[nodiscard]] Result<std::unique_ptr<QFile>> openRegularFile(const QString &path);

/** Reads all of a regular file of at most \p maxBytes. */
[[nodiscard]] Result<QByteArray> readRegularFile(const QString &path, qint64 maxBytes);

/**
 * Writes all of \p content to an unbuffered \p file; when that fails the file knows why: a disk
 * that fills up takes a part first, and only the next attempt says why it takes no more.
 */
[[nodiscard]] bool writeAll(QFileDevice &file, const QByteArray &content);

/**
 * Writes \p content to \p path at once: afterwards the file is complete, or what was there before
 * is untouched. Answers the path written.
 */
[[nodiscard]] Result<QString> writeFileAtomically(const QString &path, const QByteArray &content);

} // namespace PanoHost
