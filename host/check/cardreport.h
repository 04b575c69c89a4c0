// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/cardplan.h"

#include <QByteArray>
#include <QStringList>

namespace PanoHost
{

/** A file that is of no use, and why. */
struct RefusedFile {
    QString path;
    QString why; ///< may end in what to try
};

/** What was found below some folders. Absolute paths. */
struct Card {
    QVector<CardPhoto> photos;
    QVector<CardRecord> records;
    QStringList results; ///< pictures that were made of photos
    QVector<RefusedFile> refused; ///< files and folders that should have been of use
    QVector<RefusedFile> noRecords; ///< files that only end like records
};

/** \p plan for the eye, line by line: "topic    text". */
[[nodiscard]] QStringList planLines(const Card &card, const CardPlan &plan);

/** "3 shoots, 78 photos; 2 photos left over". */
[[nodiscard]] QString planSummary(const Card &card, const CardPlan &plan);

[[nodiscard]] QByteArray planToJson(const Card &card, const CardPlan &plan);
/** The schema of that. */
[[nodiscard]] QByteArray planSchema();

} // namespace PanoHost
