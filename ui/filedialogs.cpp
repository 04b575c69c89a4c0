// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/filedialogs.h"

#include "plugin/hostapplication.h"
#include "plugin/readingthread.h"
#include "plugin/xiapplication.h"
#include "ui/xui.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

namespace PanoHead
{

QStringList askForFiles(QWidget *parent, const FileQuestion &question, const QString &start)
{
    QString selectedFilter = question.selectedFilter;
    return QFileDialog::getOpenFileNames(parent, question.caption, start, question.filters,
                                         &selectedFilter, XUI::UseSystemFileDialog());
}

bool controlHeld()
{
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
}

void openInDesktop(const QString &path)
{
    if (!path.isEmpty()) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }
}

QString folderOf(const QString &path)
{
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

QString startLocation(const QString &chosen)
{
    if (!chosen.isEmpty()) {
        return chosen;
    }
    XIApplication *host = findHost();
    return host == nullptr ? QString() : host->LastPath();
}

void rememberLocation(const QString &path)
{
    if (XIApplication *host = findHost()) {
        host->SetLastPath(path);
    }
}

QStringList sortedPhotos(QStringList files)
{
    files.sort(Qt::CaseSensitive);
    return files;
}

void readPhotos(ReadingThread &thread, const QStringList &files)
{
    if (findHost() == nullptr) {
        return;
    }
    // The photo in hand would join the new list.
    if (thread.isRunning()) {
        thread.Clear();
    }
    thread.Start(files);
}

} // namespace PanoHead
