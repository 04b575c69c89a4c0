// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

class XIImageDef;

/** Reads Clauss Rodeon scripts and generates the description from them. */
class ClaussToSPP : public StructuredPanoramaProperties
{
public:
    ClaussToSPP();

    /**
     * Reads the script at \p fileName. False when the file cannot be opened, has too many shots or
     * an angle is not a number; in the last case the positions stay in the list.
     */
    bool parse(const QString &fileName);

    /**
     * Appends one group per photo, the angles of every position, and links of type 0 between
     * photos whose directions are close against the angle of view of either. \p images and
     * \p imageDefs belong to the positions in their order.
     */
    void generateSPP(QStringList &images, QList<XIImageDef *> imageDefs);

    QVector<ShootData> shots; ///< one per shooting command, script order
};
