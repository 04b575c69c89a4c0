// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/pagedriver.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollArea>
#include <QTabWidget>
#include <QThread>
#include <QtTest>

#include <algorithm>

namespace
{

void bringToFront(QWidget *widget)
{
    for (QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        auto *tabs = qobject_cast<QTabWidget *>(above);
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(widget)) {
                tabs->setCurrentIndex(i);
            }
        }
    }
}

} // namespace

PageDriver::PageDriver(QWizardPage *page)
    : m_page(page)
{
    m_page->resize(900, 700);
    m_page->show();
}

QString PageDriver::text(const char *name) const
{
    return find<QWidget>(name)->property("text").toString();
}

void PageDriver::click(const char *name, Qt::KeyboardModifiers modifiers) const
{
    auto *button = find<QAbstractButton>(name);
    bringToFront(button);
    // Check boxes and radio buttons react on indicator and text only, not on the space behind.
    const QPoint place(std::min(10, button->width() / 2), button->height() / 2);
    QTest::mouseClick(button, Qt::LeftButton, modifiers, place);
}

DialogClicker::SeenFileDialog PageDriver::oneDialog(const DialogClicker &clicker,
                                                    const char *name) const
{
    if (clicker.fileDialogs().size() != 1 || !clicker.isSettled()) {
        qFatal("The button did not open one file dialog and nothing else: %s", name);
    }
    return clicker.fileDialogs().first();
}

DialogClicker::SeenFileDialog PageDriver::chooseFiles(const char *name,
                                                      const QStringList &files) const
{
    DialogClicker clicker;
    clicker.chooseFiles(files);
    click(name);
    return oneDialog(clicker, name);
}

DialogClicker::SeenFileDialog PageDriver::cancelFiles(const char *name) const
{
    DialogClicker clicker;
    clicker.cancelFiles();
    click(name);
    return oneDialog(clicker, name);
}

void PageDriver::type(const char *name, const QString &text) const
{
    auto *edit = find<QLineEdit>(name);
    bringToFront(edit);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void PageDriver::waitUntilRead() const
{
    auto *thread = m_page->findChild<QThread *>();
    if (!thread || !thread->wait()) {
        qFatal("The page's photos cannot be waited for");
    }
    // What the worker reported is queued for the page by now.
    QCoreApplication::sendPostedEvents(m_page, QEvent::MetaCall);
}

void PageDriver::load(const char *name, const QStringList &files) const
{
    chooseFiles(name, files);
    waitUntilRead();
}

QLabel *PageDriver::preview() const
{
    auto *label = qobject_cast<QLabel *>(find<QScrollArea>("m_saPreview")->widget());
    if (!label) {
        qFatal("The page's preview is no label");
    }
    return label;
}

QImage PageDriver::picture() const
{
    // The pixels count, not how they are kept.
    return preview()
        ->pixmap(Qt::ReturnByValue)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
