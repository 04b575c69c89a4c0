// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace PanoHost
{

class PanoHostApplication;

/** What the user wants of the program, kept in the settings. */
class Preferences : public QDialog
{
    Q_OBJECT
public:
    Preferences(PanoHostApplication &app, QWidget *parent);

    /**
     * Has what is kept in \p app's settings come true: tools, file dialogs, and, unless \p
     * isLanguageSaid, the language; before a library is loaded.
     */
    static void apply(PanoHostApplication &app, bool isLanguageSaid);

    /** Whether prints are measured in inches: as was chosen, else as the desktop has it. */
    [[nodiscard]] static bool usesInches(PanoHostApplication &app);

    void accept() override;

private:
    void fillLanguages();
    void chooseFolder();
    void lookForTools();

    PanoHostApplication &m_app;
    QComboBox *m_language;
    QComboBox *m_units; ///< of prints
    QLineEdit *m_toolFolder;
    QLabel *m_tools; ///< what was found
    QCheckBox *m_systemDialogs;
    QCheckBox *m_thumbnails;
};

} // namespace PanoHost
