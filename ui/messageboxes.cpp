// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/messageboxes.h"

#include <QPointer>

void PanoHead::showMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                           const QString &text)
{
    // On the heap and guarded: the box goes with its parent when the host deletes the page.
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box.data();
}
