// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/helpmenu.h"

#include "host/gui/aboutbox.h"
#include "host/gui/preferences.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QWizard>

namespace PanoHost
{

namespace
{

struct HelpMenu {
    Q_DECLARE_TR_FUNCTIONS(PanoHost::HelpMenu)
};

} // namespace

void addHelpMenu(QWizard *wizard, PanoHostApplication &app, const PluginLibrary &library,
                 const std::function<QString()> &text)
{
    auto *menu = new QMenu(wizard);
    QAction *help = menu->addAction(HelpMenu::tr("&Help"), wizard, [wizard, text] {
        QMessageBox(QMessageBox::Information, HelpMenu::tr("Help"), text(), QMessageBox::Ok, wizard)
            .exec();
    });
    help->setShortcut(QKeySequence::HelpContents);
    wizard->addAction(help); // the menu's own keys work while it is open only
    menu->addAction(HelpMenu::tr("&Preferences..."), wizard,
                    [wizard, &app] { Preferences(app, wizard).exec(); });
    menu->addAction(HelpMenu::tr("&About panohost"), wizard,
                    [wizard, &library] { AboutBox(library, wizard).exec(); });
    wizard->setButtonText(QWizard::HelpButton, HelpMenu::tr("Help")); // F1; "H" is wanted by pages
    if (auto *opener = qobject_cast<QPushButton *>(wizard->button(QWizard::HelpButton))) {
        opener->setMenu(menu);
    }
}

} // namespace PanoHost
