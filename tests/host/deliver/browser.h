// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace PanoHost
{

/**
 * Chromium without a window or a graphics card, which opens pages from their files and says what it
 * shows. It goes with its object.
 */
class Browser : private QProcess
{
public:
    Browser();
    ~Browser() override;

    /** Empty, or why it does not run. */
    [[nodiscard]] QString problem() const { return m_problem; }

    /** Opens the file \p path in a window of \p size; \p hash may begin with "#". True: loaded. */
    bool open(const QString &path, const QString &hash = {}, QSize size = { 800, 450 });
    /** The value of \p script, of what it promises. */
    QJsonValue evaluate(const QString &script);
    /** Waits until \p script is true, which is asked before every drawing. */
    bool waitUntil(const QString &script);
    /** What the window shows, after all that was to be drawn. */
    QImage picture();
    void turnWheel(QPoint at, int pixels);
    void drag(QPoint from, QPoint to);
    void click(QPoint at);

    /** What was asked for over a network since the last `open`: addresses. */
    [[nodiscard]] QStringList asked() const { return m_asked; }
    /** What went wrong in scripts since then. */
    [[nodiscard]] QStringList errors() const { return m_errors; }

protected:
    void setupChildProcess() override;

private:
    QJsonObject call(const char *method, const QJsonObject &parameters = {});
    /** The next message; empty: there is none to come. */
    QJsonObject read();
    void mouse(const char *type, QPoint at, QJsonObject more = {});

    QTemporaryDir m_home;
    int m_toChild[2] = { -1, -1 };
    int m_fromChild[2] = { -1, -1 };
    int m_last = 0; ///< number of a call
    QString m_session;
    QByteArray m_buffer;
    QString m_problem;
    QStringList m_asked;
    QStringList m_errors;
};

} // namespace PanoHost
