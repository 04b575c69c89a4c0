// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QString>

namespace PanoHost
{

/** A grey, the same for red, green and blue, around panoramas and where no photo reaches. */
constexpr int kBackgroundGrey = 24;

/** A file that was put into this program at build time: the viewers, their notices, the pages. */
[[nodiscard]] QByteArray viewerFile(const QString &name);

/**
 * The page \p name with a viewer in it: "@WORD@" becomes the entry of \p fields, which is taken as
 * it is. Title and background come from here.
 */
[[nodiscard]] QByteArray viewerPage(const QString &name, const QString &title,
                                    QHash<QByteArray, QByteArray> fields);

/** \p object for a script element: nothing in it ends the element. */
[[nodiscard]] QByteArray scriptText(const QJsonObject &object);

} // namespace PanoHost
