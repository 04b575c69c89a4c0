// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/lensmodel.h"
#include "model/shootdata.h"
#include "shoot/recordfile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace PanoHead
{

/** What a Papywizard XML record says. */
struct PapywizardRecord {
    QVector<ShootData> shots; ///< one per `pict` element, file order; degrees
    QStringList times; ///< as written, one per shot; empty: none, or longer than any
    QString title;
    QString gps;
    QString comment;
    double xmlFocal = -1.0; ///< mm times `sensorCoef`; -1.0: the record has no lens
    double sensorCoef = 1.0; ///< crop factor
    int nbPicts = -1; ///< photos per position; -1: the record does not say
    int xmlLensType = static_cast<int>(LensModel::Standard);
    bool portrait = false;
    bool hasShoot = false; ///< there is a `shoot` element, with or without pictures
};

/**
 * Reads a record from the bytes of its file. Missing elements and attributes keep the defaults;
 * numbers that do not convert, or are not finite as 32-bit float, become 0 (the crop factor 1.0).
 * Nothing only when the bytes are not well-formed XML, exceed `XmlLimits` or hold more than
 * `kMaxRecordedShots` pictures; \p error, which may be null, then says why. Moved in, \p bytes are
 * gone before the text is read, which needs twice their size. Throws std::bad_alloc.
 */
[[nodiscard]] std::optional<PapywizardRecord> readPapywizard(QByteArray bytes,
                                                             ReadError *error = nullptr);

} // namespace PanoHead
