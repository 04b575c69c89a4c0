// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/dialogcatcher.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSignalBlocker>

#include <limits>

namespace PanoHost
{

namespace
{

/** The text that a user would type to choose \p files: each in double quotes. */
QString quotedNames(const QStringList &files)
{
    return QLatin1Char('"') + files.join(QLatin1String("\" \"")) + QLatin1Char('"');
}

} // namespace

DialogCatcher::DialogCatcher(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void DialogCatcher::answerNextFileDialog(const QStringList &files)
{
    m_files = files;
    m_answered = false;
}

QStringList DialogCatcher::takeMessages()
{
    QStringList messages;
    messages.swap(m_messages);
    return messages;
}

bool DialogCatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show) {
        return false;
    }
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (dialog == nullptr) {
        return false;
    }
    // On a screen it would flash up, and could take the keyboard away from its window for good.
    dialog->setAttribute(Qt::WA_DontShowOnScreen);
    // The dialog's own loop does not run yet: it can be filled and closed only from there.
    const QPointer<QDialog> guard(dialog);
    QMetaObject::invokeMethod(
        this,
        [this, guard] {
            if (guard.isNull()) {
                return;
            }
            if (auto *files = qobject_cast<QFileDialog *>(guard.data())) {
                fill(files);
            } else {
                close(guard);
            }
        },
        Qt::QueuedConnection);
    return false;
}

void DialogCatcher::fill(QFileDialog *dialog)
{
    const QPointer<QDialog> guard(dialog);
    auto *nameEdit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (nameEdit == nullptr || m_files.isEmpty()) {
        dialog->reject();
        return;
    }
    {
        // Each letter would otherwise search the folder, and 32,767 letters are soon used up.
        const QSignalBlocker quiet(nameEdit);
        nameEdit->setMaxLength(std::numeric_limits<int>::max());
        nameEdit->setText(quotedNames(m_files));
    }
    m_files.clear();
    static_cast<QDialog *>(dialog)->accept();
    if (guard.isNull()) {
        return;
    }
    m_answered = dialog->result() == QDialog::Accepted;
    if (dialog->isVisible()) {
        dialog->reject();
    }
}

void DialogCatcher::close(QDialog *dialog)
{
    if (const auto *box = qobject_cast<QMessageBox *>(dialog)) {
        m_messages += box->text();
    } else {
        m_messages += dialog->windowTitle();
    }
    dialog->reject();
}

} // namespace PanoHost
