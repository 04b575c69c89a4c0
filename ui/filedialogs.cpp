// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/filedialogs.h"

#include "hostlink/hostapplication.h"
#include "hostlink/readingthread.h"
#include "hostlink/xiapplication.h"
#include "ui/xui.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>
#include <QUrl>

namespace PanoHead
{

namespace
{

QStringList askForFiles(QWidget *page, const FileQuestion &question, const QString &start)
{
    // On the heap and guarded, which the ready-made function is not: the dialog goes with its
    // parent when the host deletes the page.
    const QPointer<QFileDialog> dialog
        = new QFileDialog(page, question.caption, start, question.filters);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setOptions(XUI::UseSystemFileDialog());
    if (const QFileInfo place(start); !place.isDir()) {
        // Once more, like the ready-made function: named, but not yet part of the selection.
        dialog->selectFile(place.fileName());
    }
    dialog->setSupportedSchemes({ QStringLiteral("file") });
    dialog->selectNameFilter(question.selectedFilter);
    const bool accepted = dialog->exec() == QDialog::Accepted && !dialog.isNull();
    QStringList files = accepted ? dialog->selectedFiles() : QStringList();
    delete dialog.data();
    return files;
}

bool controlHeld()
{
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
}

/** Whatever characters the name has; nothing for an empty path. */
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

/** \p chosen, or where it is empty the place that the host remembers. */
QString startLocation(const QString &chosen)
{
    XIApplication *host = findHost();
    return chosen.isEmpty() && host != nullptr ? host->LastPath() : chosen;
}

void rememberLocation(const QString &path)
{
    if (XIApplication *host = findHost()) {
        host->SetLastPath(path);
    }
}

} // namespace

QStringList selectPhotos(QWidget *page, const FileQuestion &question, const QStringList &current,
                         ControlShows controlShows)
{
    const QString start = startLocation(current.value(0));
    if (controlHeld()) {
        openInDesktop(controlShows == ControlShows::Folder ? folderOf(start) : start);
        return {};
    }
    const QPointer<QWidget> guard(page);
    QStringList photos = sortedPhotos(askForFiles(page, question, start));
    if (guard.isNull() || photos.isEmpty()) {
        return {};
    }
    rememberLocation(photos.first());
    return photos;
}

std::optional<RecordChoice> selectRecord(QWidget *page, const FileQuestion &question,
                                         const QString &current, const QString &ending)
{
    const QString start = startLocation(current);
    if (controlHeld()) {
        openInDesktop(folderOf(start));
        return std::nullopt;
    }
    const QPointer<QWidget> guard(page);
    const QStringList files = askForFiles(page, question, start);
    if (guard.isNull()) {
        return std::nullopt;
    }
    RecordChoice choice{ splitSelection(files, ending), {} };
    if (!files.isEmpty()) {
        choice.location = choice.selection.record.isEmpty() ? start : choice.selection.record;
        rememberLocation(choice.location);
    }
    return choice;
}

QStringList sortedPhotos(QStringList files)
{
    files.sort(Qt::CaseSensitive);
    return files;
}

void readPhotos(ReadingThread &thread, const QStringList &files)
{
    if (findHost() == nullptr) {
        thread.Clear(); // nobody reads the new ones, and the old ones are not chosen any more
        return;
    }
    // The photo in hand would join the new list.
    clearIfRunning(thread);
    thread.Start(files);
}

void endReading(QWidget *page, ReadingThread *thread)
{
    thread->disconnect(page);
    delete thread;
}

void clearIfRunning(ReadingThread &thread)
{
    if (thread.isRunning()) {
        thread.Clear();
    }
}

} // namespace PanoHead
