// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photofile.h"
#include "importers/headfacts.h"

#include <QStringList>
#include <QVector>

namespace PanoHost
{

/** One thing that is known about a shoot: command line, JSON and window tell the same. */
struct Finding {
    enum class Kind {
        Fact,
        Trouble, ///< the user should look at it
    };

    QString topic; ///< "record", "grid", "bad", "shots", "missing", "left", "clock", "photos",
                   ///< "order", "gaps", "result"
    QString text; ///< one line, for the user
    Kind kind = Kind::Fact;
    QStringList files; ///< paths of the photos that it is about; empty: of all
};

/** What the record at \p path says of the shoot. */
[[nodiscard]] Finding recordFinding(const QString &path, const PanoHead::RecordSummary &record);

/** A photo that cannot be read. */
[[nodiscard]] Finding badPhotoFinding(const QString &path, const QString &why);

/** What \p photos say, of \p given ones; those that can be read. */
[[nodiscard]] Finding photosFinding(const QVector<PhotoInfo> &photos, int given);

/** Whether \p photos, in the order of the shots, were taken one after the other. */
[[nodiscard]] Finding orderFinding(const QVector<PhotoInfo> &photos);

/** The longest pause between two of \p photos, in the order of the shots, when it stands out. */
[[nodiscard]] Finding gapFinding(const QVector<PhotoInfo> &photos);

/** The findings on \p photos in the order in which they are told. */
[[nodiscard]] QVector<Finding> photoFindings(const QVector<PhotoInfo> &photos, int given);

/**
 * \p findings as JSON: "schema" 1, "importable", and "findings" with "topic", "text", "trouble" and
 * "files" each.
 */
[[nodiscard]] QByteArray findingsToJson(const QVector<Finding> &findings, bool importable);

} // namespace PanoHost
