// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photofile.h"
#include "host/plugin/thumbnailstore.h"
#include "hostlink/xiimagedef.h"

#include <QByteArray>
#include <QPixmap>

#include <list>
#include <memory>

namespace PanoHost
{

/** What is kept of one photo file, shared by all `HostImage` objects made for it. */
class PhotoData
{
public:
    /** Any thread. */
    PhotoData(ThumbnailStore &store, const PhotoReading &reading);
    ~PhotoData();
    PhotoData(const PhotoData &) = delete;
    PhotoData &operator=(const PhotoData &) = delete;

    [[nodiscard]] const PhotoInfo &info() const { return m_info; }
    /** Null when there was no memory for it, or no picture was asked for. */
    [[nodiscard]] const KeptThumbnail &keptThumbnail() const { return m_kept; }

private:
    ThumbnailStore &m_store;
    PhotoInfo m_info;
    KeptThumbnail m_kept;
};

/**
 * The host's object for one photo. Made on any thread, used and destroyed on the GUI thread.
 *
 * `FocalLength()` is the 35 mm equivalent, `ShotTime()` milliseconds, `Exposure()` the exposure
 * value (0 when not known), `LensType()` a `LensModel` value or -1.
 */
class HostImage : public XIImageDef
{
public:
    HostImage(ThumbnailStore &store, std::shared_ptr<const PhotoData> data);
    ~HostImage() override;
    HostImage(const HostImage &) = delete;
    HostImage &operator=(const HostImage &) = delete;

    /** Good until control returns to the event loop; null when memory is short. */
    QPixmap *Thumbnail() override;
    void Reserved1() override { }
    void Reserved2() override { }
    void Reserved3() override { }
    void Reserved4() override { }
    void Reserved5() override { }
    void Reserved6() override { }
    void Reserved7() override { }
    void Reserved8() override { }
    void Reserved9() override { }
    void Reserved10() override { }
    float FocalLength() override;
    int LensType() override;
    long ShotTime() override;
    float Exposure() override;

    [[nodiscard]] const PhotoInfo &info() const { return m_data->info(); }
    [[nodiscard]] const KeptThumbnail &keptThumbnail() const { return m_data->keptThumbnail(); }

private:
    friend class ThumbnailStore;

    ThumbnailStore &m_store;
    std::shared_ptr<const PhotoData> m_data;
    std::unique_ptr<QPixmap> m_pixmap;
    std::list<HostImage *>::iterator m_recentEntry; ///< valid while there is a pixmap
};

} // namespace PanoHost
