// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/** Writes six photos that the tools can stitch, and their record, into \p folder. */
void photographTinyShoot(const QString &folder);
