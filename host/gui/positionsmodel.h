// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignment.h"
#include "host/align/photoresiduals.h"
#include "host/model/panorama.h"

#include <QAbstractTableModel>

#include <array>
#include <optional>
#include <vector>

namespace PanoHost
{

/** The positions of a panorama, a row each: what the head recorded, and where an alignment has put
 * them. */
class PositionsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column {
        Number, ///< from 1
        Photos,
        Yaw,
        Pitch,
        Roll,
        AlignedYaw,
        AlignedPitch,
        AlignedRoll,
        Moved,
        Points,
        Residual,
        Time,
        Exposure,
        Links,
        ColumnCount
    };
    /** What columns are sorted by: numbers as numbers; invalid: nothing is known. */
    static constexpr int kSortRole = Qt::UserRole;

    explicit PositionsModel(QObject *parent = nullptr);

    /** In place of what was shown; of this one no alignment is known. */
    void setPanorama(const Panorama &panorama);
    /** Of the panorama shown. Positions that it does not name stay without. */
    void setAlignment(const Alignment &alignment, const PhotoResiduals &residuals);
    [[nodiscard]] bool isAligned() const { return m_isAligned; }
    /** Whether only an alignment fills \p column. */
    [[nodiscard]] static bool isOfAlignment(int column);

    /** The names of the columns and what stands in \p row, for other programs: all digits, decimal
     * points, the same in all languages. */
    [[nodiscard]] static QStringList exportHeader();
    [[nodiscard]] QStringList exportRow(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Row {
        QStringList names; ///< of the photos' files
        QString path; ///< of the first photo
        QString time;
        std::array<std::optional<double>, ColumnCount> numbers; ///< of columns that hold one
    };

    [[nodiscard]] QString text(const Row &row, int column) const;

    [[nodiscard]] const Row &at(int row) const { return m_rows[static_cast<size_t>(row)]; }
    /** Null where there is no such. */
    [[nodiscard]] Row *find(int row);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }

    std::vector<Row> m_rows;
    bool m_isAligned = false;
};

} // namespace PanoHost
