// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/gate.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVector>

#include <atomic>
#include <thread>

/** Stands for the desktop while it lives: collects what is to be opened, and opens nothing. */
class DesktopCatcher : public QObject
{
    Q_OBJECT

public:
    /** Takes over \p schemes. */
    explicit DesktopCatcher(QStringList schemes = { QStringLiteral("file"), QStringLiteral("http"),
                                                    QStringLiteral("https") });
    ~DesktopCatcher() override;

    [[nodiscard]] const QVector<QUrl> &urls() const { return m_urls; }

public Q_SLOTS:
    void open(const QUrl &url);

private:
    QStringList m_schemes;
    QVector<QUrl> m_urls;
};

/**
 * A named pipe that notices when somebody opens it for reading, and lets the reader go at once
 * instead of leaving it blocked for ever.
 */
class TrapPipe
{
public:
    /** Makes the pipe at \p path. */
    explicit TrapPipe(const QString &path);
    ~TrapPipe();
    TrapPipe(const TrapPipe &) = delete;
    TrapPipe &operator=(const TrapPipe &) = delete;

    [[nodiscard]] bool wasOpened() const { return m_opened; }

private:
    void watch();

    QByteArray m_path;
    std::atomic_bool m_opened{ false };
    Gate m_ends;
    std::thread m_watcher;
};
