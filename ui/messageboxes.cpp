// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/messageboxes.h"

#include "importers/common/mismatch.h"

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

bool PanoHead::warnsOfBrackets(QWidget *page, int photos, int bracketCount, const BoxTexts &texts)
{
    if (fillsBrackets(photos, bracketCount)) {
        return false;
    }
    showMessage(page, QMessageBox::Warning, texts.title, texts.text);
    return true;
}
