// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/partfolder.h"

#include "host/model/said.h"

#include <QDir>

#include <utility>

namespace PanoHost
{

PartFolder::PartFolder(QString path)
    : m_path(std::move(path))
{
}

PartFolder::PartFolder(PartFolder &&other) noexcept
    : m_path(std::exchange(other.m_path, {}))
{
}

PartFolder::~PartFolder()
{
    if (!m_path.isEmpty()) {
        QDir(m_path).removeRecursively();
    }
}

Result<PartFolder> PartFolder::make(const QString &workFolder, const QString &name)
{
    PartFolder folder(QDir(workFolder).absoluteFilePath(name));
    if (!QDir(folder.m_path).removeRecursively() || !QDir().mkpath(folder.m_path)) {
        return Failure{ ExitCode::ToolFailed, folder.m_path, Said::tr("this folder cannot be made"),
                        Said::tr("is the disk full, or the folder above it read-only?") };
    }
    return folder;
}

QString PartFolder::path(const QString &name) const
{
    return QDir(m_path).filePath(name);
}

} // namespace PanoHost
