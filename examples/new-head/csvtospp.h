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

/** Reads lists of shots and generates the description from them. */
class CsvToSPP : public StructuredPanoramaProperties
{
public:
    CsvToSPP();

    /** Reads the list at \p fileName; false, and no shots, when it cannot be read. */
    bool parse(const QString &fileName);

    /**
     * Appends one group per photo, the angles of every position, and links between photos whose
     * directions are close against the angle of view of either. \p images and \p imageDefs belong
     * to the positions in their order.
     */
    void generateSPP(const QStringList &images, const QList<XIImageDef *> &imageDefs);

    QVector<ShootData> shots; ///< one per line, file order
};
