// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photodevice.h"

#include <sys/stat.h>

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

QDateTime PhotoDevice::modified() const
{
    // In UTC: the C library looks the time zone up anew for each local time.
    struct stat status = {};
    return ::fstat(m_file->handle(), &status) == 0
        ? QDateTime::fromSecsSinceEpoch(status.st_mtim.tv_sec, Qt::UTC)
        : QDateTime();
}

uchar *PhotoDevice::map()
{
    return m_file->map(0, m_size, QFileDevice::MapPrivateOption);
}

} // namespace PanoHost
