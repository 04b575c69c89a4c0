// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

namespace PanoHost
{

class PluginLibrary;

/** Versions of the program and of what it stands on, and the licences of all of it. */
class AboutBox : public QDialog
{
    Q_OBJECT
public:
    explicit AboutBox(const PluginLibrary &library, QWidget *parent);
};

} // namespace PanoHost
