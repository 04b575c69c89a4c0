// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/photoselection.h"

PanoHead::RecordSelection PanoHead::splitSelection(const QStringList &files,
                                                   const QString &recordEnding)
{
    RecordSelection selection;
    for (const QString &file : files) {
        if (file.endsWith(recordEnding, Qt::CaseInsensitive)) {
            selection.record = file;
        } else {
            selection.photos.append(file);
        }
    }
    return selection;
}
