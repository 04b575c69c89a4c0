// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * Reads Papywizard XML records and generates the description from them.
 *
 * `parse` first, then `generateSPP`; the page corrects shots, focal length and lens in between.
 */
class MerlinToSPP : public StructuredPanoramaProperties
{
public:
    MerlinToSPP();

    /**
     * Reads the record at \p path. All parsed fields are reset first; false, with nothing else
     * changed, when the file cannot be read or is not XML. The description is never touched.
     */
    bool parse(const QString &path);
    /** Back to "no record", as far as pages ask for it; the description is never touched. */
    void forgetRecord();

    /**
     * Appends stacks, angles and links to the description and sets focal length and lens.
     *
     * \p images are full paths, one per exposure, a position's exposures side by side; photos left
     * over behind the last whole bracket are ignored. A negative \p focal (mm) and
     * `LensModel::NotChosen` take the record's values. Fisheye lenses get no links.
     */
    void generateSPP(const QStringList &images, double focal, LensModel lens);

    QVector<ShootData> shots; ///< one per recorded picture, file order
    QString title;
    QString gps;
    QString comment;
    double xmlFocal = -1.0; ///< mm, 35 mm equivalent; -1.0: the record has no lens
    double sensorCoef = 1.0; ///< crop factor
    qint32 nbPicts = -1; ///< photos per position; -1: the record does not say
    qint32 xmlLensType = 0; ///< a `LensModel` value
    bool portrait = false;
};
