// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace PanoHead
{

/** Why a record cannot be read, in English, for a command line. */
struct ReadError {
    QString reason;
    int line = 0; ///< 1-based; 0: the reader does not know
    QString advice = {}; ///< what to try; empty: nothing that the reader knows of
};

/**
 * The bytes of a record file. Regular files only, opened without blocking and bounded by
 * `kMaxRecordBytes`, so that no path a user can type (a FIFO, a device, a huge file) stops the GUI
 * thread. What size the file system reports does not matter: some say 0 of files that hold more.
 * \p error may be null. Throws std::bad_alloc.
 */
[[nodiscard]] std::optional<QByteArray> readRecordFile(const QString &path, ReadError *error);

} // namespace PanoHead
