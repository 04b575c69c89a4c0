// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/featurestore.h"

#include "host/model/commanderror.h"
#include "host/model/said.h"

#include <utility>

namespace PanoHost
{

namespace
{

constexpr std::int64_t kFeatureBytes
    = sizeof(FeatureSet::Place) + sizeof(FeatureSet::Descriptor) + sizeof(std::uint16_t);

std::int64_t bytesOf(size_t features)
{
    return static_cast<std::int64_t>(features) * kFeatureBytes;
}

/** Calls \p step with the bytes of each part of \p features, in the order in which the file has
 * them. */
template <typename Features, typename Step> bool eachPart(Features &features, Step step)
{
    const auto part = [&step](auto &values) {
        return step(values.data(), static_cast<std::int64_t>(values.size() * sizeof(values[0])));
    };
    return part(features.places) && part(features.descriptors) && part(features.lights);
}

} // namespace

FeatureStore::FeatureStore(std::int64_t mostBytes, QString folder)
    : m_mostBytes(mostBytes)
    , m_folder(std::move(folder))
{
}

void FeatureStore::put(int photo, FeatureSet features)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Entry &entry = m_entries[photo];
    entry.count = features.places.size();
    keep(photo, entry, std::make_shared<const FeatureSet>(std::move(features)));
}

std::shared_ptr<const FeatureSet> FeatureStore::features(int photo)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_entries.find(photo);
    if (found == m_entries.end()) {
        return {};
    }
    Entry &entry = found->second;
    if (entry.features) {
        m_turns.splice(m_turns.end(), m_turns, entry.turn);
        return entry.features;
    }
    auto features = std::make_shared<const FeatureSet>(read(entry));
    keep(photo, entry, features);
    return features;
}

void FeatureStore::release(int photo)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_entries.find(photo);
    if (found != m_entries.end()) {
        forget(found->second);
        m_entries.erase(found);
    }
}

std::int64_t FeatureStore::bytesInMemory() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_bytes;
}

std::int64_t FeatureStore::bytesInFile() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_fileBytes;
}

void FeatureStore::keep(int photo, Entry &entry, std::shared_ptr<const FeatureSet> features)
{
    entry.features = std::move(features);
    entry.turn = m_turns.insert(m_turns.end(), photo);
    m_bytes += bytesOf(entry.count);
    while (m_bytes > m_mostBytes) {
        Entry &oldest = m_entries.at(m_turns.front());
        if (oldest.offset < 0) {
            write(oldest);
        }
        forget(oldest);
    }
}

void FeatureStore::forget(Entry &entry)
{
    if (entry.features) {
        entry.features.reset();
        m_turns.erase(entry.turn);
        m_bytes -= bytesOf(entry.count);
    }
}

void FeatureStore::write(Entry &entry)
{
    if (!m_file) {
        m_file = std::make_unique<QTemporaryFile>(m_folder
                                                  + QStringLiteral("/panohost-features-XXXXXX"));
        m_file->open();
    }
    const bool written = m_file->isOpen() && m_file->seek(m_fileBytes)
        && eachPart(*entry.features,
                    [this](const auto *values, std::int64_t bytes) {
                        return m_file->write(reinterpret_cast<const char *>(values), bytes)
                            == bytes;
                    })
        && m_file->flush();
    if (!written) {
        throw CommandError(
            { ExitCode::ToolFailed, m_folder,
              Said::tr("cannot keep the features of photos there: %1").arg(m_file->errorString()),
              Said::tr("TMPDIR names a folder with more room") });
    }
    entry.offset = m_fileBytes;
    m_fileBytes += bytesOf(entry.count);
}

FeatureSet FeatureStore::read(const Entry &entry)
{
    FeatureSet features;
    features.places.resize(entry.count);
    features.descriptors.resize(entry.count);
    features.lights.resize(entry.count);
    const bool complete = m_file->seek(entry.offset)
        && eachPart(features, [this](auto *values, std::int64_t bytes) {
                              return m_file->read(reinterpret_cast<char *>(values), bytes) == bytes;
                          });
    if (!complete) {
        throw CommandError(
            { ExitCode::ToolFailed,
              m_folder,
              Said::tr("cannot read the features of photos back: %1").arg(m_file->errorString()),
              {} });
    }
    return features;
}

} // namespace PanoHost
