// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photodevice.h"

namespace PanoHost
{

PhotoDevice::PhotoDevice(std::unique_ptr<QFile> file)
    : m_file(std::move(file))
    , m_size(m_file->size())
{
    open(QIODevice::ReadOnly);
}

bool PhotoDevice::seek(qint64 position)
{
    return QIODevice::seek(position) && m_file->seek(position);
}

uchar *PhotoDevice::map()
{
    return m_file->map(0, m_size, QFileDevice::MapPrivateOption);
}

} // namespace PanoHost
