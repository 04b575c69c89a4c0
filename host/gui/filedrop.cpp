// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/filedrop.h"

#include "host/import/givenfiles.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>
#include <QWidget>

namespace PanoHost
{

namespace
{

/** The files on this computer that \p data brings, as URLs or as text. */
QStringList localFiles(const QMimeData *data)
{
    QStringList words;
    for (const QUrl &url : data->urls()) {
        words += url.toString(QUrl::FullyEncoded);
    }
    return words.isEmpty() ? pathsInText(data->text()) : localPaths(words);
}

class DropFrame : public QWidget
{
public:
    explicit DropFrame(QWidget *window)
        : QWidget(window)
    {
        setObjectName(QStringLiteral("m_dropFrame"));
        setAccessibleName(FileDrop::tr("Drop the files here"));
        setAttribute(Qt::WA_TransparentForMouseEvents); // the drag is for what lies below
        hide();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        constexpr int kLine = 4;
        constexpr qreal kShade = 0.85;
        constexpr qreal kLetters = 1.5;
        QPainter painter(this);
        QColor shade = palette().color(QPalette::Window);
        shade.setAlphaF(kShade);
        painter.fillRect(rect(), shade);
        painter.setPen(QPen(palette().color(QPalette::Highlight), kLine));
        painter.drawRect(rect().adjusted(kLine, kLine, -kLine, -kLine));
        painter.setPen(palette().color(QPalette::WindowText));
        QFont large = font();
        large.setPointSizeF(large.pointSizeF() * kLetters);
        painter.setFont(large);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, accessibleName());
    }
};

} // namespace

FileDrop::FileDrop(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_frame(new DropFrame(window))
{
    m_left.setSingleShot(true);
    m_left.setInterval(0);
    connect(&m_left, &QTimer::timeout, m_frame, &QWidget::hide);
    window->setAcceptDrops(true);
    // Widgets inside see drags before their window does.
    qApp->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (!m_isTaking || widget == nullptr || widget->window() != m_window) {
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        return static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)
            && take(localFiles(QGuiApplication::clipboard()->mimeData()));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return takeDragged(static_cast<QDropEvent *>(event));
    case QEvent::DragLeave:
        m_left.start();
        return m_bringsFiles;
    default:
        return false;
    }
}

bool FileDrop::take(const QStringList &files)
{
    if (!files.isEmpty()) {
        Q_EMIT given(files);
    }
    return !files.isEmpty();
}

bool FileDrop::takeDragged(QDropEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::DragMove && !m_frame->isHidden()) {
        event->acceptProposedAction(); // what it brings is known
        return true;
    }
    const QStringList files = localFiles(event->mimeData());
    m_bringsFiles = !files.isEmpty();
    if (!m_bringsFiles) {
        return false;
    }
    event->acceptProposedAction();
    if (type == QEvent::Drop) {
        m_frame->hide();
        return take(files);
    }
    showFrame();
    return true;
}

void FileDrop::showFrame()
{
    m_left.stop();
    m_frame->setGeometry(m_window->rect());
    m_frame->show();
    m_frame->raise();
}

} // namespace PanoHost
