// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include <QObject>

/** Names the interface of the import plug-ins, and offers nothing of it. */
class ImpostorPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvane.panohead")
};

#include "impostorplugin.moc"
