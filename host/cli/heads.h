// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/pagedriver.h"
#include "host/core/result.h"
#include "model/lensmodel.h"

#include <QStringList>
#include <QVector>

namespace PanoHost
{

/** What a head's record says, as far as panohost checks it before the page sees it. */
struct RecordSummary {
    int shotCount = 0;
    int bracketCount = 1; ///< photos per position; 1 without brackets
    double focal35mm = 0.0; ///< 0: the record names none
    LensModel lens = LensModel::NotChosen; ///< `NotChosen`: the record names none
    QStringList remarks; ///< what the importer leaves out of it, for the user
};

/** A head on the command line: its name, its record, its options. */
struct HeadRow {
    const char *name; ///< also the name of its plug-in, in lower case
    const char *recordName; ///< stands for the record in messages; null for heads without one
    PageDriver::RecordEntry recordEntry;
    Result<RecordSummary> (*readRecord)(const QString &path); ///< null for heads without a record
    bool pageAsksForLens; ///< it has fields for focal length and lens
    const char *options; ///< long names of its options, "focal|lens"
};

[[nodiscard]] const QVector<HeadRow> &heads();
[[nodiscard]] QStringList headNames();

/** Reads the record at \p path for \p head; throws the reason when it cannot be used. */
[[nodiscard]] RecordSummary readRecord(const HeadRow &head, const QString &path);

/** The head \p name; throws the usage error for an unknown one. */
[[nodiscard]] const HeadRow &headNamed(const QString &name);

} // namespace PanoHost
