// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "browser.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QUrl>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace PanoHost
{
namespace
{

constexpr int kPatienceMilliseconds = 120000;
// Where the browser reads what it is to do, and answers.
constexpr int kCommands = 3;
constexpr int kAnswers = 4;

} // namespace

Browser::Browser()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    if (program.isEmpty()) {
        m_problem = QStringLiteral("chromium is not installed: apt install chromium");
        return;
    }
    if (::pipe2(m_toChild, O_CLOEXEC) != 0 || ::pipe2(m_fromChild, O_CLOEXEC) != 0) {
        m_problem = QStringLiteral("no pipes");
        return;
    }
    setProcessChannelMode(QProcess::MergedChannels);
    start(program,
          { QStringLiteral("--headless=new"), QStringLiteral("--no-sandbox"),
            QStringLiteral("--remote-debugging-pipe"),
            QStringLiteral("--user-data-dir=") + m_home.path(),
            // Graphics without a card.
            QStringLiteral("--use-gl=angle"), QStringLiteral("--use-angle=swiftshader"),
            QStringLiteral("--enable-unsafe-swiftshader"), QStringLiteral("--ignore-gpu-blocklist"),
            QStringLiteral("--disable-dev-shm-usage"), QStringLiteral("--no-first-run"),
            QStringLiteral("--disable-background-networking"),
            QStringLiteral("--disable-component-update"), QStringLiteral("--disable-sync"),
            QStringLiteral("--force-device-scale-factor=1"), QStringLiteral("about:blank") });
    if (!waitForStarted()) {
        m_problem = errorString();
        return;
    }
    ::close(m_toChild[0]);
    ::close(m_fromChild[1]);
    m_toChild[0] = m_fromChild[1] = -1;
    const QString target
        = call("Target.createTarget", { { QStringLiteral("url"), QStringLiteral("about:blank") } })
              .value(QStringLiteral("targetId"))
              .toString();
    m_session
        = call("Target.attachToTarget",
               { { QStringLiteral("targetId"), target }, { QStringLiteral("flatten"), true } })
              .value(QStringLiteral("sessionId"))
              .toString();
    for (const char *domain : { "Page.enable", "Runtime.enable", "Network.enable", "Log.enable" }) {
        call(domain);
    }
}

Browser::~Browser()
{
    for (const int end : { m_toChild[0], m_toChild[1], m_fromChild[0], m_fromChild[1] }) {
        if (end >= 0) {
            ::close(end);
        }
    }
    // Without its pipes it goes by itself.
    if (state() != NotRunning && !waitForFinished()) {
        kill();
        waitForFinished();
    }
}

void Browser::setupChildProcess()
{
    // Out of the way first: either may be the other's place.
    const int commands = ::fcntl(m_toChild[0], F_DUPFD, kAnswers + 1);
    const int answers = ::fcntl(m_fromChild[1], F_DUPFD, kAnswers + 1);
    ::dup2(commands, kCommands);
    ::dup2(answers, kAnswers);
    ::close(commands);
    ::close(answers);
}

QJsonObject Browser::read()
{
    while (!m_buffer.contains('\0')) {
        pollfd wait{ m_fromChild[0], POLLIN, 0 };
        char bytes[1 << 16];
        const ssize_t count = ::poll(&wait, 1, kPatienceMilliseconds) == 1
            ? ::read(m_fromChild[0], bytes, sizeof bytes)
            : 0;
        if (count <= 0) {
            m_problem = QStringLiteral("chromium does not answer: %1")
                            .arg(QString::fromLocal8Bit(readAll().right(2000)));
            return {};
        }
        m_buffer.append(bytes, int(count));
    }
    const int end = m_buffer.indexOf('\0');
    const QJsonObject message = QJsonDocument::fromJson(m_buffer.left(end)).object();
    m_buffer.remove(0, end + 1);

    const QString method = message.value(QStringLiteral("method")).toString();
    const QJsonObject parameters = message.value(QStringLiteral("params")).toObject();
    if (method == QStringLiteral("Network.requestWillBeSent")) {
        const QString address = parameters.value(QStringLiteral("request"))
                                    .toObject()
                                    .value(QStringLiteral("url"))
                                    .toString();
        const QString scheme = address.section(QLatin1Char(':'), 0, 0);
        if (scheme != QStringLiteral("file") && scheme != QStringLiteral("data")
            && scheme != QStringLiteral("blob")) {
            m_asked += address.left(200);
        }
    } else if (method == QStringLiteral("Runtime.exceptionThrown")
               || (method == QStringLiteral("Log.entryAdded")
                   && parameters.value(QStringLiteral("entry"))
                           .toObject()
                           .value(QStringLiteral("level"))
                           .toString()
                       == QStringLiteral("error"))) {
        m_errors += QString::fromUtf8(QJsonDocument(parameters).toJson().left(2000));
    }
    return message;
}

QJsonObject Browser::call(const char *method, const QJsonObject &parameters)
{
    if (!m_problem.isEmpty()) {
        return {};
    }
    ++m_last;
    QJsonObject message{ { QStringLiteral("id"), m_last },
                         { QStringLiteral("method"), QString::fromLatin1(method) },
                         { QStringLiteral("params"), parameters } };
    if (!m_session.isEmpty()) {
        message.insert(QStringLiteral("sessionId"), m_session);
    }
    const QByteArray bytes
        = QJsonDocument(message).toJson(QJsonDocument::Compact) + QByteArray(1, '\0');
    if (::write(m_toChild[1], bytes.constData(), size_t(bytes.size())) != bytes.size()) {
        m_problem = QStringLiteral("chromium does not listen");
        return {};
    }
    for (;;) {
        const QJsonObject answer = read();
        if (answer.isEmpty()) {
            return {};
        }
        if (answer.value(QStringLiteral("id")).toInt() == m_last) {
            if (answer.contains(QStringLiteral("error"))) {
                m_problem = QString::fromUtf8(QJsonDocument(answer).toJson());
            }
            return answer.value(QStringLiteral("result")).toObject();
        }
    }
}

bool Browser::open(const QString &path, const QString &hash, QSize size)
{
    call("Emulation.setDeviceMetricsOverride",
         { { QStringLiteral("width"), size.width() },
           { QStringLiteral("height"), size.height() },
           { QStringLiteral("deviceScaleFactor"), 1 },
           { QStringLiteral("mobile"), false } });
    // Else a page that differs in its hash alone is not loaded again.
    call("Page.navigate", { { QStringLiteral("url"), QStringLiteral("about:blank") } });
    m_asked.clear();
    m_errors.clear();
    const QString address
        = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded)) + hash;
    call("Page.navigate", { { QStringLiteral("url"), address } });
    return waitUntil(
        QStringLiteral("location.protocol == 'file:' && document.readyState == 'complete'"));
}

QJsonValue Browser::evaluate(const QString &script)
{
    const QJsonObject answer = call("Runtime.evaluate",
                                    { { QStringLiteral("expression"), script },
                                      { QStringLiteral("awaitPromise"), true },
                                      { QStringLiteral("returnByValue"), true } });
    return answer.value(QStringLiteral("result")).toObject().value(QStringLiteral("value"));
}

bool Browser::waitUntil(const QString &script)
{
    return evaluate(
               QStringLiteral("new Promise((done) => {"
                              "  const ask = () => (%1) ? done(true) : requestAnimationFrame(ask);"
                              "  ask();"
                              "})")
                   .arg(script))
        .toBool();
}

QImage Browser::picture()
{
    // What is to be drawn next is drawn when the one after that begins.
    evaluate(
        QStringLiteral("new Promise((done) => "
                       "requestAnimationFrame(() => requestAnimationFrame(() => done(true))))"));
    const QString data
        = call("Page.captureScreenshot", { { QStringLiteral("format"), QStringLiteral("png") } })
              .value(QStringLiteral("data"))
              .toString();
    return QImage::fromData(QByteArray::fromBase64(data.toLatin1()))
        .convertToFormat(QImage::Format_RGB32);
}

void Browser::mouse(const char *type, QPoint at, QJsonObject more)
{
    more.insert(QStringLiteral("type"), QString::fromLatin1(type));
    more.insert(QStringLiteral("x"), at.x());
    more.insert(QStringLiteral("y"), at.y());
    call("Input.dispatchMouseEvent", more);
}

void Browser::turnWheel(QPoint at, int pixels)
{
    mouse("mouseWheel", at,
          { { QStringLiteral("deltaX"), 0 }, { QStringLiteral("deltaY"), pixels } });
}

void Browser::drag(QPoint from, QPoint to)
{
    const QJsonObject left{ { QStringLiteral("button"), QStringLiteral("left") },
                            { QStringLiteral("buttons"), 1 },
                            { QStringLiteral("clickCount"), 1 } };
    mouse("mousePressed", from, left);
    mouse("mouseMoved", to, left);
    mouse("mouseReleased", to, left);
}

void Browser::click(QPoint at)
{
    drag(at, at);
}

} // namespace PanoHost
