// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/hostimage.h"

#include <utility>

namespace PanoHost
{

PhotoData::PhotoData(ThumbnailStore &store, const PhotoReading &reading)
    : m_store(store)
    , m_info(reading.info)
    , m_kept(store.keep(reading.thumbnail))
{
}

PhotoData::~PhotoData()
{
    m_store.release(m_kept);
}

HostImage::HostImage(ThumbnailStore &store, std::shared_ptr<const PhotoData> data)
    : m_store(store)
    , m_data(std::move(data))
{
}

HostImage::~HostImage()
{
    m_store.forget(*this);
}

QPixmap *HostImage::Thumbnail()
{
    return m_store.pixmap(*this);
}

float HostImage::FocalLength()
{
    return static_cast<float>(info().focal35mm);
}

int HostImage::LensType()
{
    return static_cast<int>(info().lens);
}

long HostImage::ShotTime()
{
    return static_cast<long>(info().timeMs);
}

float HostImage::Exposure()
{
    return static_cast<float>(info().exposureValue.value_or(0.0));
}

} // namespace PanoHost
