// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/desktopthumbnails.h"
#include "host/model/result.h"
#include "host/plugin/hostimage.h"

#include <QHash>
#include <QStringList>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace PanoHost
{

/**
 * Reads photos, each once, and ahead of whoever asks for them. An answer, a refusal too, counts
 * until the file changes. Any thread.
 */
class PhotoReader
{
public:
    using Answer = Result<std::shared_ptr<const PhotoData>>;

    /** \p store outlives the reader. */
    explicit PhotoReader(ThumbnailStore &store);
    ~PhotoReader();
    PhotoReader(const PhotoReader &) = delete;
    PhotoReader &operator=(const PhotoReader &) = delete;

    /** Whether pictures are read besides the facts, which take a tenth of the time. They are, at
     * first. */
    void setReadsPictures(bool reads);

    /** Where thumbnails are looked for and left; null, as at first: nowhere. */
    void shareThumbnails(std::shared_ptr<const DesktopThumbnails> thumbnails);

    /** Reads \p paths in this order on threads of its own, in place of what is left of an earlier
     * call. */
    void readAhead(const QStringList &paths);
    /** No photo is begun any more that nobody asks for; does not wait for those that are. */
    void stop();

    /** What is known of the photo \p path; waits for it when it is being read. */
    [[nodiscard]] Answer read(const QString &path);

    /** Gives all memory back. */
    void forget();

private:
    /** Tells one state of a file from the next. */
    struct Stamp {
        qint64 modifiedNs = -1; ///< -1: no such file
        qint64 bytes = -1;

        [[nodiscard]] static Stamp of(const QString &path);
        bool operator==(const Stamp &other) const
        {
            return modifiedNs == other.modifiedNs && bytes == other.bytes;
        }
    };
    struct Entry {
        Stamp stamp;
        std::shared_ptr<const Answer> answer; ///< null while it is being read
    };

    void work();
    [[nodiscard]] Answer readNow(const QString &path, bool withPicture,
                                 const DesktopThumbnails *shared) const;

    ThumbnailStore &m_store;
    // The standard library's, which a race detector sees through.
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed; ///< a photo was read, or there is work
    QHash<QString, Entry> m_entries;
    QStringList m_ahead;
    int m_next = 0; ///< of m_ahead
    int m_busy = 0; ///< workers that read a photo
    bool m_ends = false;
    bool m_readsPictures = true;
    std::shared_ptr<const DesktopThumbnails> m_shared;
    std::vector<std::thread> m_workers;
};

} // namespace PanoHost
