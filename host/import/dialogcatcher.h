// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

class QDialog;
class QFileDialog;

namespace PanoHost
{

/**
 * Answers the dialogs of a page while nobody sits in front of it: file dialogs get the prepared
 * files, every other dialog is closed and its text kept. Works by an application event filter on
 * QEvent::Show, because a modal dialog blocks its caller until somebody closes it.
 */
class DialogCatcher : public QObject
{
    Q_OBJECT
public:
    explicit DialogCatcher(QObject *parent = nullptr);

    /**
     * The files (absolute paths, none with a double quote or a control character) that the next
     * file dialog answers with. A file dialog that comes unprepared is cancelled.
     */
    void answerNextFileDialog(const QStringList &files);
    /** True when the prepared files were taken; false when no file dialog came or it refused. */
    [[nodiscard]] bool fileDialogAnswered() const { return m_answered; }
    /** The texts of the message boxes since the last call, oldest first. */
    [[nodiscard]] QStringList takeMessages();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill(QFileDialog *dialog);
    void close(QDialog *dialog);

    QStringList m_files;
    QStringList m_messages;
    bool m_answered = false;
};

} // namespace PanoHost
