// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/damagedphotos.h"

#include "host/model/displayname.h"
#include "host/model/jobwatch.h"
#include "host/model/panorama.h"
#include "host/model/photofile.h"
#include "host/model/said.h"

namespace PanoHost
{

void warnOfDamage(const Panorama &panorama, const JobWatch &watch)
{
    for (const QString &path : photoPaths(panorama)) {
        watch.check();
        if (isDamaged(path)) {
            watch.note(JobWatch::Note::Warning,
                       Said::tr("%1: cannot be read to its end; copy it from the card "
                                "again, or take it again")
                           .arg(displayName(path)));
        }
    }
}

} // namespace PanoHost
