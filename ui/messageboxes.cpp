// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/messageboxes.h"

#include "shoot/mismatch.h"

#include <QPointer>
#include <QScopeGuard>

void PanoHead::showMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                           const QString &text)
{
    // On the heap and guarded: the box goes with its parent when the host deletes the page. It gets
    // its parent when it is whole: what runs out of memory before would stay in the parent's list.
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, QMessageBox::Ok);
    const auto remove = qScopeGuard([&box] { delete box.data(); });
    box->setParent(parent, box->windowFlags());
    box->setTextFormat(Qt::PlainText);
    box->exec();
}

bool PanoHead::warnsOfBrackets(QWidget *page, int photos, int bracketCount, const BoxTexts &texts)
{
    if (fillsBrackets(photos, bracketCount)) {
        return false;
    }
    showMessage(page, QMessageBox::Warning, texts.title, texts.text);
    return true;
}
