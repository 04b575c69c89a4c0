// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

namespace PanoHost
{

/**
 * What is said of record, photos and panorama. The command line says it in English; the window has
 * translations, in which no option is named.
 */
struct Said {
    Q_DECLARE_TR_FUNCTIONS(PanoHost::Said)
};

} // namespace PanoHost
