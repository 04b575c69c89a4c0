// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/knownlens.h"
#include "host/model/photofile.h"
#include "importers/headfacts.h"

#include <QStringList>
#include <QVector>

#include <optional>

namespace PanoHost
{

/** One thing that is known about a shoot: command line, JSON and window tell the same. */
struct Finding {
    enum class Kind {
        Fact,
        Trouble, ///< the user should look at it
    };
    /** What puts it right, for programs that offer it. */
    enum class Action {
        None, ///< nothing, or only the user can
        ReplacePhotos, ///< take another file for each of `files`, or leave it out
        FitPhotos, ///< let the photos be matched to the shots
        EnterFocal, ///< enter the focal length
        Reshoot, ///< take `shots` again
    };

    QString topic; ///< "record", "grid", "bad", "shots", "missing", "left", "clock", "photos",
                   ///< "lens", "order", "gaps", "pictures", "links", "blurred", "exposure",
                   ///< "moved", "quality", "reshoot", "result"
    QString text; ///< one line, for the user
    Kind kind = Kind::Fact;
    QStringList files = {}; ///< paths of the photos that it is about; empty: of all
    QVector<int> shots = {}; ///< of the record, from 0, that it is about; empty: of all
    double sureness = 1.0; ///< how likely it is so, 0 to 1
    QString cure = {}; ///< what to do, in a few words; empty: nothing
    Action action = Action::None;
};

/** As JSON names it: "none", "replace", "fit", "focal", "reshoot". */
[[nodiscard]] QString actionName(Finding::Action action);

/** What the record at \p path says of the shoot. */
[[nodiscard]] Finding recordFinding(const QString &path, const PanoHead::RecordSummary &record);

/** A photo that cannot be read. */
[[nodiscard]] Finding badPhotoFinding(const QString &path, const QString &why);

/** What \p photos say, of \p given ones; those that can be read. */
[[nodiscard]] Finding photosFinding(const QVector<PhotoInfo> &photos, int given);

/** Where neither \p photos nor the record name a focal length. */
[[nodiscard]] std::optional<Finding> lensFinding(const KnownLens &photos, double recordFocal35mm);

/** Whether \p photos, in the order of the shots, were taken one after the other. */
[[nodiscard]] Finding orderFinding(const QVector<PhotoInfo> &photos);

/** The longest pause between two of \p photos, in the order of the shots, when it stands out. */
[[nodiscard]] Finding gapFinding(const QVector<PhotoInfo> &photos);

/** The findings on \p photos in the order in which they are told. */
[[nodiscard]] QVector<Finding> photoFindings(const QVector<PhotoInfo> &photos, int given);

/** \p findings as JSON, by the schema below. */
[[nodiscard]] QByteArray findingsToJson(const QVector<Finding> &findings, bool importable);
[[nodiscard]] QByteArray findingsSchema();

} // namespace PanoHost
