// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

namespace PanoHost
{

/** A photo that projects cannot name, and the link that they name in its place. Absolute. */
struct PlainName {
    QString photo;
    QString link;
};

/**
 * Projects in the folder \p work cannot name files with quotation marks or line ends: photos of \p
 * panorama that are called so are named by links in it, which hold as much of the name as may be.
 * The links are not made yet.
 */
[[nodiscard]] QVector<PlainName> takePlainNames(Panorama &panorama, const QString &work);

/** Makes the links; throws when it cannot. */
void linkPlainNames(const QVector<PlainName> &names);

} // namespace PanoHost
