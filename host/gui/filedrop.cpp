// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/filedrop.h"

#include "host/import/givenfiles.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
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

} // namespace

FileDrop::FileDrop(QWidget *window)
    : QObject(window)
    , m_window(window)
{
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
    const QStringList files = localFiles(event->mimeData());
    if (files.isEmpty()) {
        return false;
    }
    event->acceptProposedAction();
    return event->type() != QEvent::Drop || take(files);
}

} // namespace PanoHost
