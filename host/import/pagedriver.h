// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/dialogcatcher.h"
#include "host/model/jobwatch.h"
#include "host/plugin/panohostapplication.h"

#include <QPixmap>
#include <QStringList>

class QWizardPage;

namespace PanoHost
{

/**
 * Works a plug-in's page the way a user does: widgets are found by object name, buttons clicked,
 * dialogs answered. The page is never cast to a class of the library.
 *
 * The page has been entered. Order of use: `enterRecord`, `choosePhotos`, options, `handOver` or
 * `layout`. Each throws a CommandError: a message box of the page refuses the input (its text is
 * the reason), a missing widget means a library of another make, Ctrl-C interrupts.
 */
class PageDriver
{
public:
    /** \p page and \p app outlive the driver. */
    PageDriver(QWizardPage *page, PanoHostApplication &app, const JobWatch &watch);

    /** Types the path of the head's record and presses Enter. */
    void enterRecord(const QString &path);

    /**
     * Answers the page's photo dialog with \p names and waits until the page has read them all.
     * Throws when one cannot be read, or when the page is not content with them.
     * \param names absolute paths that PhotoAliases::areNeeded would let pass
     */
    void choosePhotos(const QStringList &names);
    /** The same without waiting: the page goes on reading. */
    void offerPhotos(const QStringList &names);

    void click(const QString &button);
    /** Clicks the check box or radio button \p button unless it is \p checked already. */
    void setChecked(const QString &button, bool checked);
    /** Calls the page's slot \p slot, of a choice that has no button, with true. */
    void toggle(const char *slot);
    void setWholeNumber(const QString &spinBox, int value);
    void setNumber(const QString &spinBox, double value);
    [[nodiscard]] double number(const QString &spinBox) const;
    void setIndex(const QString &comboBox, int index);
    [[nodiscard]] int index(const QString &comboBox) const;

    /** The page's layout picture in full size. */
    [[nodiscard]] QPixmap layout();
    /** Presses Next: answers what this hand-over delivered, with true paths. */
    [[nodiscard]] StructuredPanoramaProperties handOver();

private:
    template <typename Widget> [[nodiscard]] Widget *widget(const QString &name) const;
    void requireReadable(const QStringList &names) const;
    void requireComplete();
    void throwOnMessage();

    QWizardPage *m_page;
    PanoHostApplication &m_app;
    const JobWatch &m_watch;
    DialogCatcher m_dialogs;
};

} // namespace PanoHost
