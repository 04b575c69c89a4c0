// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/jobwatch.h"

namespace PanoHost
{

void JobWatch::report(int done, int total, const QString &text) const
{
    if (progress) {
        progress(done, total, text);
    }
}

void JobWatch::note(Note note, const QString &text) const
{
    if (log) {
        log(note, text);
    }
}

void JobWatch::check() const
{
    if (stopWanted()) {
        throw CommandError(interruption());
    }
}

Failure interruption()
{
    return { ExitCode::Interrupted, {}, {}, {} };
}

} // namespace PanoHost
