// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "photoshoot.h"

/** Something that happens to a page besides its slots. */
struct Incident {
    enum class Kind {
        Always,
        WithPage, ///< needs a page
        Last, ///< takes the page out of its wizard, which does not survive everything then
    };

    const char *name;
    Kind kind;
    void (*happen)(PhotoShoot &shoot);
};
Q_DECLARE_METATYPE(const Incident *)

[[nodiscard]] const std::vector<Incident> &incidents();
/** What is wrong after \p incident, which must neither ask a photo nor change the picture. */
[[nodiscard]] QString wrongAfter(const Incident &incident, PhotoShoot &shoot);
/** The same for all incidents, one after the other. */
[[nodiscard]] QString wrongAfterAny(PhotoShoot &shoot);
