// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/features.h"

#include <QDir>
#include <QTemporaryFile>

#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace PanoHost
{

/**
 * The features of a shoot of any size in a bounded amount of memory: those that have not been asked
 * for the longest wait in a temporary file that nobody else can read, and that is gone when the
 * store is, or the program. Thread-safe. Throws a `CommandError` when that file cannot be written
 * or read.
 */
class FeatureStore
{
public:
    static constexpr std::int64_t kMostBytes = 500'000'000;

    explicit FeatureStore(std::int64_t mostBytes = kMostBytes, QString folder = QDir::tempPath());

    /** Keeps \p features as those of photo \p photo, of which none have been put before. */
    void put(int photo, FeatureSet features);
    /** The features of \p photo: null when it has none. They outlive the store's own copy. */
    [[nodiscard]] std::shared_ptr<const FeatureSet> features(int photo);
    /** Those of \p photo are not asked for any more. */
    void release(int photo);

    /** What the sets in memory take up. */
    [[nodiscard]] std::int64_t bytesInMemory() const;
    /** How long the temporary file is. */
    [[nodiscard]] std::int64_t bytesInFile() const;

private:
    struct Entry {
        std::shared_ptr<const FeatureSet> features; ///< null: in the file only
        size_t count = 0;
        std::int64_t offset = -1; ///< in the file; -1: not there
        std::list<int>::iterator turn; ///< its place in `m_turns`, of features in memory
    };

    void keep(int photo, Entry &entry, std::shared_ptr<const FeatureSet> features);
    void forget(Entry &entry);
    void write(Entry &entry);
    [[nodiscard]] FeatureSet read(const Entry &entry);

    const std::int64_t m_mostBytes;
    const QString m_folder;
    mutable std::mutex m_mutex;
    std::unordered_map<int, Entry> m_entries;
    std::list<int> m_turns; ///< photos in memory, the one that was asked for last at the end
    std::int64_t m_bytes = 0;
    std::int64_t m_fileBytes = 0;
    std::unique_ptr<QTemporaryFile> m_file;
};

} // namespace PanoHost
