// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

class QLockFile;

namespace PanoHost
{

/**
 * A folder of results that are made once and kept: beside NAME stands NAME.key, which says what it
 * was made from. Whoever is stopped, in whatever way, goes on from what is complete: a result gets
 * its name when it is finished, and its key after that. One process at a time. Thread-safe for
 * different names.
 */
class WorkFolder
{
public:
    /** Makes the folder \p path if need be. Refuses a folder that another process works in, and one
     * that cannot be written. */
    [[nodiscard]] static Result<WorkFolder> open(const QString &path);
    WorkFolder(WorkFolder &&other) noexcept;
    WorkFolder &operator=(WorkFolder &&other) noexcept;
    ~WorkFolder();

    [[nodiscard]] QString path() const { return m_path; }
    /** The absolute path of \p name, which may begin with folders. */
    [[nodiscard]] QString path(const QString &name) const;

    /** Whether \p name is there and was made from \p source: all that decides on its content, as
     * text of any length. */
    [[nodiscard]] bool has(const QString &name, const QByteArray &source) const;

    /** Makes the file or folder that it is told; answers what went wrong, or any text. */
    using Maker = std::function<Result<QString>(const QString &partPath)>;
    /**
     * Has \p maker make \p name under another name, unless it is there already and made from
     * \p source. Answers the absolute path.
     */
    [[nodiscard]] Result<QString> make(const QString &name, const QByteArray &source,
                                       const Maker &maker) const;

private:
    explicit WorkFolder(QString path);

    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

/** What tells a file from what it was before: its size and the time of its last change; empty: it
 * is not there. */
[[nodiscard]] QByteArray stampOf(const QString &path);

} // namespace PanoHost
