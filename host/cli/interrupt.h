// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

namespace PanoHost
{

/**
 * Turns Ctrl-C and a polite kill into a signal of the event loop, so that a command ends through
 * its ordinary way out: children stopped, temporary folders removed, nothing half written.
 * A second Ctrl-C ends the process at once. One object per process, on the GUI thread.
 */
class Interrupt : public QObject
{
    Q_OBJECT
public:
    explicit Interrupt(QObject *parent = nullptr);
    ~Interrupt() override;

    /** True from the first Ctrl-C on. */
    [[nodiscard]] static bool requested();
    /** Throws the CommandError that ends an interrupted command, when there was a Ctrl-C. */
    static void check();

Q_SIGNALS:
    void interrupted();
};

} // namespace PanoHost
