// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/** "/0.jpg", "/1.jpg"... */
inline QStringList photoNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("/%1.jpg").arg(i));
    }
    return names;
}
