// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/gui/importwizard.h"
#include "host/gui/shootstrip.h"

#include <QAbstractButton>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/** The import wizard in front of a user, with shoots of the test's own making. */
class GuiBench
{
public:
    /** A null size: the window's own. */
    explicit GuiBench(const QSize &size = QSize(900, 720));
    ~GuiBench();

    using Start = std::function<void(PanoHost::ImportWizard &)>;
    /** The window anew, with the same settings; \p start is called at once. */
    void reopen(const Start &start = {});

    [[nodiscard]] PanoHost::ImportWizard &wizard() const { return *m_wizard; }
    [[nodiscard]] const PanoHost::PluginLibrary *library() const { return m_library.get(); }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /** Writes the record of \p shots shots of one row, by the head \p head; answers the path. */
    [[nodiscard]] QString record(int shots, const char *head = "papywizard",
                                 const QString &name = {});
    /** A photo of shot \p shot, \p secondsLate, in \p name; answers the path. */
    [[nodiscard]] QString photo(const QString &name, int shot, int secondsLate = 0,
                                bool namesFocal = true);
    /** Photos of the shots \p first to \p last, by the names IMG_0001.jpg and on. */
    [[nodiscard]] QStringList photos(int first, int last, bool namesFocal = true);

    /** Drops \p files onto \p target, null for the window, as the desktop does. */
    void drop(const QStringList &files, QWidget *target = nullptr) const;
    /** Chooses the head in the list and presses Next. */
    void choose(const char *head) const;

    /** Types \p file into the next file dialog and presses Enter. */
    static void answerFileDialog(const QString &file);
    /** Presses Enter in the next file dialog, as it stands; or Esc. */
    static void acceptFileDialog();
    static void cancelFileDialog();

    [[nodiscard]] bool isNextEnabled() const;
    /** With the mouse. */
    void press(QWizard::WizardButton button) const;
    /** The button \p action of the row \p row; with the mouse. */
    void press(const char *row, PanoHost::StripAction action) const;
    [[nodiscard]] QAbstractButton *button(const char *row, PanoHost::StripAction action) const;

    [[nodiscard]] PanoHost::ShootStrip &strip() const;
    /** With the mouse, unless it is open. */
    void openStrip() const;
    /** The text of a row; null: there is no such row. */
    [[nodiscard]] QString text(const char *row) const;
    [[nodiscard]] PanoHost::StripRow row(const char *row) const;
    /** Photos are neither read nor looked at any more. */
    [[nodiscard]] bool isSettled() const;
    /** "Alt+N: &Next >, ...": letters that stand for several things in the window as it is. */
    [[nodiscard]] QStringList ambiguities() const;
    /** "IMG_0001@30": each position's photo and yaw on the result page. */
    [[nodiscard]] QStringList result() const;

    /** Photographs the window, where PANOHOST_WINDOW_PICTURES names a folder; with
     * PANOHOST_WINDOW_DARK in dark colours. */
    void picture(const QString &name) const;

private:
    QTemporaryDir m_folder;
    QSize m_size;
    std::unique_ptr<PanoHost::PluginLibrary> m_library;
    std::unique_ptr<PanoHost::ImportWizard> m_wizard;
};
