// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/console.h"

#include "host/model/pace.h"

#include <cstdio>
#include <unistd.h>

namespace PanoHost
{

namespace
{

constexpr auto kRed = "\x1b[31m";
constexpr auto kYellow = "\x1b[33m";
constexpr auto kPlain = "\x1b[0m";
constexpr auto kEraseLine = "\r\x1b[K";

void writeError(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

Console::Console()
    : m_terminal(isatty(STDERR_FILENO) == 1)
{
    setColor(Color::Auto);
}

void Console::setColor(Color color)
{
    const bool dumb = qgetenv("TERM") == "dumb" || !qEnvironmentVariableIsEmpty("NO_COLOR");
    m_colored = color == Color::Always || (color == Color::Auto && m_terminal && !dumb);
}

void Console::error(const Failure &failure)
{
    writeLine(errorLine(failure), kRed);
}

void Console::warning(const QString &text)
{
    writeLine(warningLine(text), kYellow);
}

void Console::info(const QString &text)
{
    if (m_volume != Volume::Quiet) {
        writeLine(QStringLiteral("panohost: ") + onOneLine(text), nullptr);
    }
}

void Console::detail(const QString &text)
{
    if (m_volume == Volume::Verbose) {
        writeLine(QStringLiteral("panohost: ") + onOneLine(text), nullptr);
    }
}

void Console::progress(int done, int total, const QString &text)
{
    if (m_progress == Progress::None || m_volume == Volume::Quiet) {
        return;
    }
    const bool plain = m_progress == Progress::Plain;
    if (plain && done == m_done && total == m_total && text == m_lastText) {
        return; // whoever waits for a helper program tells several times a second
    }
    m_lastText = text;
    const int digits = QString::number(total).size();
    const QByteArray line = QStringLiteral("[%1/%2] %3%4")
                                .arg(done, digits)
                                .arg(QString::number(total), onOneLine(text), timeLeft(done, total))
                                .toUtf8();
    if (!plain && !progressIsDue()) {
        return;
    }
    m_progressShown = !plain && m_terminal;
    writeError(m_progressShown ? QByteArray(kEraseLine) + line : line + '\n');
}

/** ", 7 s left"; empty while nobody knows. */
QString Console::timeLeft(int done, int total)
{
    if (!m_sinceStart.isValid() || total != m_total || done < m_done) {
        m_sinceStart.start();
    }
    m_done = done;
    m_total = total;
    const auto left = Pace{ done, total, std::chrono::milliseconds(m_sinceStart.elapsed()) }.left();
    return left ? QStringLiteral(", ") + timeLeftText(*left) : QString();
}

bool Console::progressIsDue()
{
    constexpr qint64 kTerminalPauseMs = 50;
    constexpr qint64 kPlainPauseMs = 10000;
    if (!m_sinceLastProgress.isValid()) {
        m_sinceLastProgress.start();
        return m_terminal;
    }
    if (m_sinceLastProgress.elapsed() < (m_terminal ? kTerminalPauseMs : kPlainPauseMs)) {
        return false;
    }
    m_sinceLastProgress.restart();
    return true;
}

void Console::endProgress()
{
    if (m_progressShown) {
        writeError(kEraseLine);
    }
    m_progressShown = false;
}

void Console::writeLine(const QString &line, const char *color)
{
    endProgress();
    const QByteArray bytes = line.toUtf8();
    writeError(m_colored && color != nullptr ? color + bytes + kPlain + '\n' : bytes + '\n');
}

} // namespace PanoHost
