// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/worklog.h"

#include "host/model/messages.h"

#include <QDateTime>

namespace PanoHost
{

WorkLog::WorkLog(const QString &path)
    : m_file(path)
{
    if (m_file.open(QIODevice::Append)) {
        add(QStringLiteral("begin"));
    }
}

void WorkLog::add(const QString &text)
{
    if (m_file.isOpen()) {
        m_file.write(QDateTime::currentDateTime().toString(Qt::ISODate).toUtf8() + ' '
                     + onOneLine(text).toUtf8() + '\n');
        m_file.flush();
    }
}

} // namespace PanoHost
