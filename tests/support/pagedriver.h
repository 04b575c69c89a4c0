// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/dialogclicker.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <QWizardPage>

class QLabel;

// The buttons that open a page's dialogs.
constexpr char kSelectRecord[] = "m_pbSelectConfigFile";
constexpr char kSelectPhotos[] = "m_pbSelectImages";

/**
 * Drives one wizard page the way a user does: shows it, finds its widgets by name, clicks, answers
 * dialogs and waits for the photos.
 *
 * A name that the page does not have, or a dialog that did not come once, ends the test program:
 * every later step would be meaningless.
 */
class PageDriver
{
public:
    /** Shows \p page, which must live as long as this object is used. */
    explicit PageDriver(QWizardPage *page);

    [[nodiscard]] QWizardPage &page() const { return *m_page; }
    /** The widget \p name, which must be a \p T. */
    template <typename T> [[nodiscard]] T *find(const char *name) const
    {
        auto *widget = m_page->findChild<T *>(QString::fromLatin1(name));
        if (!widget) {
            qFatal("The page has no such widget: %s", name);
        }
        return widget;
    }

    /** The text of the label, line edit or button \p name. */
    [[nodiscard]] QString text(const char *name) const;
    /** Brings the tab with the button \p name to the front and clicks it. */
    void click(const char *name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /** Clicks the button \p name and chooses \p files (existing ones) in the dialog that comes. */
    DialogClicker::SeenFileDialog chooseFiles(const char *name, const QStringList &files) const;
    /** Clicks the button \p name and cancels the dialog that comes. */
    DialogClicker::SeenFileDialog cancelFiles(const char *name) const;
    /** Replaces the content of the line edit \p name, key by key. */
    void type(const char *name, const QString &text) const;

    /** Waits until the page's photos are read and the page has heard of all of them. */
    void waitUntilRead() const;
    /** chooseFiles(), then waitUntilRead(). */
    void load(const char *name, const QStringList &files) const;

    /** The label in the scroll area "m_saPreview". */
    [[nodiscard]] QLabel *preview() const;
    /** What the preview shows; null when that is nothing. */
    [[nodiscard]] QImage picture() const;

private:
    [[nodiscard]] DialogClicker::SeenFileDialog oneDialog(const DialogClicker &clicker,
                                                          const char *name) const;

    QWizardPage *m_page;
};
