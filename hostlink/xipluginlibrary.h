// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

/**
 * The root object of a plug-in library.
 *
 * Host interface: found through `qt_metacast("XIPluginLibrary")`; the order of the operations is
 * fixed.
 */
class XIPluginLibrary
{
public:
    /** Flags by which the host says which plug-ins it wants; hosts may pass other values. */
    enum APX : int {
        None = 0,
        Grids = 1, ///< Gigapan and Papywizard
        AllHeads = 2, ///< every importer
    };

    virtual ~XIPluginLibrary() = default;
    /**
     * Creates the plug-ins of the wanted kinds and answers every plug-in ever created, oldest
     * first. An entry is null when somebody else has deleted its plug-in.
     */
    virtual QList<QPointer<QObject>> Plugins(APX kinds) = 0;
};
