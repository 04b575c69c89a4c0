// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/dialogclicker.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>

#include <limits>
#include <utility>

DialogClicker::DialogClicker(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

DialogClicker::~DialogClicker() = default;

void DialogClicker::chooseFiles(const QStringList &fileNames)
{
    m_fileAnswers.enqueue({ true, fileNames });
}

void DialogClicker::cancelFiles()
{
    m_fileAnswers.enqueue({ false, {} });
}

void DialogClicker::pressButton(QMessageBox::StandardButton button)
{
    m_buttonAnswers.enqueue(button);
}

void DialogClicker::beforeNextAnswer(std::function<void()> action)
{
    m_beforeNextAnswer = std::move(action);
}

bool DialogClicker::isSettled() const
{
    return m_unexpected == 0 && m_fileAnswers.isEmpty() && m_buttonAnswers.isEmpty();
}

bool DialogClicker::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    if (dialog && dialog->isModal()) {
        // The dialog's own event loop starts after this event: answer from inside that loop.
        QTimer::singleShot(0, dialog, [this, dialog] {
            if (auto *fileDialog = qobject_cast<QFileDialog *>(dialog)) {
                answer(fileDialog);
            } else if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
                answer(box);
            } else {
                ++m_unexpected;
                dialog->reject();
            }
        });
    }
    return QObject::eventFilter(watched, event);
}

void DialogClicker::answer(QFileDialog *dialog)
{
    auto *nameField = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    m_fileDialogs.append({ dialog->windowTitle(), dialog->directory().absolutePath(),
                           nameField ? nameField->text() : QString(), dialog->nameFilters(),
                           dialog->selectedNameFilter(), dialog->fileMode(), dialog->options() });
    const QPointer<QFileDialog> guard(dialog);
    if (const auto action = std::exchange(m_beforeNextAnswer, nullptr)) {
        action();
    }
    if (!guard) {
        return;
    }
    if (m_fileAnswers.isEmpty() || !nameField) {
        ++m_unexpected;
        dialog->reject();
        return;
    }
    const FileAnswer next = m_fileAnswers.dequeue();
    if (!next.accepted) {
        dialog->reject();
        return;
    }
    {
        // Long lists are cut at the field's default length, and its completer is slow.
        const QSignalBlocker blocker(nameField);
        nameField->setMaxLength(std::numeric_limits<int>::max());
        nameField->setText(next.fileNames.size() == 1
                               ? next.fileNames.first()
                               : QLatin1Char('"') + next.fileNames.join(QStringLiteral("\" \""))
                                   + QLatin1Char('"'));
    }
    QMetaObject::invokeMethod(dialog, "accept");
}

void DialogClicker::answer(QMessageBox *box)
{
    m_messageBoxes.append({ box->windowTitle(), box->text(), box->textFormat(), box->icon(),
                            box->standardButtons() });
    const QPointer<QMessageBox> guard(box);
    if (const auto action = std::exchange(m_beforeNextAnswer, nullptr)) {
        action();
    }
    if (!guard) {
        return;
    }
    QAbstractButton *button
        = m_buttonAnswers.isEmpty() ? nullptr : box->button(m_buttonAnswers.dequeue());
    if (!button) {
        ++m_unexpected;
        box->reject();
        return;
    }
    button->click();
}
