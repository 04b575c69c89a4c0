// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/structuredpanoramaproperties.h"

#include <QStringList>

/** Generates the description of a grid shoot from its rows, columns and shooting order. */
class GigapanToSPP : public StructuredPanoramaProperties
{
public:
    GigapanToSPP(int rowCount, int columnCount, int gridOrder, int bracket, int ignored);

    /**
     * Appends one stack per grid cell in shooting order, as far as \p images (full paths, shooting
     * order) reach, and the links between all neighbouring cells, whether they have photos or not.
     * \p is360 links the last column to the first. A mode that does not exist gets no links.
     */
    void generateSPP(const QStringList &images, bool is360);

    qint32 bracketCount; ///< photos per cell
    qint32 ignoredCount; ///< photos at the start that belong to no cell
    qint32 columns;
    qint32 rows;
    qint32 mode; ///< shooting order, 0 to 4

private:
    void appendStacks(const QStringList &images);
    void appendLinks(bool is360);
    void appendLink(qint32 kind, int rowA, int columnA, int rowB, int columnB);
};
