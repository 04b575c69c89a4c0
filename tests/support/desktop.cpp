// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/desktop.h"

#include <QDesktopServices>
#include <QFile>

#include <chrono>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

DesktopCatcher::DesktopCatcher(QStringList schemes)
    : m_schemes(std::move(schemes))
{
    for (const QString &scheme : std::as_const(m_schemes)) {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
}

DesktopCatcher::~DesktopCatcher()
{
    for (const QString &scheme : std::as_const(m_schemes)) {
        QDesktopServices::unsetUrlHandler(scheme);
    }
}

void DesktopCatcher::open(const QUrl &url)
{
    m_urls.append(url);
}

TrapPipe::TrapPipe(const QString &path)
    : m_path(QFile::encodeName(path))
{
    if (mkfifo(m_path.constData(), 0600) != 0) {
        qFatal("Cannot make the pipe %s", m_path.constData());
    }
    m_watcher = std::thread([this] { watch(); });
}

TrapPipe::~TrapPipe()
{
    m_ends.open();
    m_watcher.join();
}

void TrapPipe::watch()
{
    while (!m_ends.passWithin(std::chrono::milliseconds(1))) {
        // Succeeds only while a reader is there.
        const int pipe = ::open(m_path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        if (pipe >= 0) {
            m_opened = true;
            ::close(pipe);
        }
    }
}
