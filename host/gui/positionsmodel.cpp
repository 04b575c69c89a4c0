// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/positionsmodel.h"
#include <QFileInfo>
#include <QHash>

#include <array>

namespace PanoHost
{

namespace
{

/** How the numbers of a column are written. */
struct ColumnFacts {
    const char *exportName; ///< with its unit
    int digits; ///< behind the decimal point, for the eye
    int exportDigits;
};

constexpr std::array<ColumnFacts, PositionsModel::ColumnCount> kColumns{ {
    { "number", 0, 0 },
    { "photos", 0, 0 },
    { "yaw_deg", 2, 6 },
    { "pitch_deg", 2, 6 },
    { "roll_deg", 2, 6 },
    { "aligned_yaw_deg", 3, 6 },
    { "aligned_pitch_deg", 3, 6 },
    { "aligned_roll_deg", 3, 6 },
    { "deviation_deg", 3, 6 },
    { "points", 0, 0 },
    { "residual_px", 2, 3 },
    { "time", 0, 0 },
    { "exposure_ev", 1, 3 },
    { "links", 0, 0 },
} };

QString written(double number, int digits)
{
    const QString text = QString::number(number, 'f', digits);
    // "-0.00" looks like something.
    return text.toDouble() == 0.0 ? QString::number(0.0, 'f', digits) : text;
}

} // namespace

PositionsModel::PositionsModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void PositionsModel::setPanorama(const Panorama &panorama)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(static_cast<size_t>(panorama.positions.size()));
    m_isAligned = false;
    for (const Position &position : panorama.positions) {
        Row row;
        for (const PhotoInfo &photo : position.photos) {
            row.names += QFileInfo(photo.path).fileName();
        }
        const PhotoInfo &first = position.photos.first();
        row.path = first.path;
        row.time = first.timeText;
        row.numbers[Number] = count() + 1.0;
        row.numbers[Yaw] = position.yawDegrees;
        row.numbers[Pitch] = position.pitchDegrees;
        row.numbers[Roll] = position.rollDegrees;
        row.numbers[Exposure] = first.exposureValue;
        row.numbers[Links] = 0.0;
        m_rows.push_back(std::move(row));
    }
    const QVector<QVector<int>> targets = linkTargets(panorama);
    for (int from = 0; from < targets.size(); ++from) {
        for (const int to : targets.at(from)) {
            if (Row *const other = find(to)) {
                *find(from)->numbers[Links] += 1.0;
                *other->numbers[Links] += 1.0;
            }
        }
    }
    endResetModel();
}

void PositionsModel::setAlignment(const Alignment &alignment, const PhotoResiduals &residuals)
{
    QHash<QString, Row *> rowOf;
    for (Row &row : m_rows) {
        rowOf.insert(row.path, &row);
        for (size_t column = AlignedYaw; column <= Residual; ++column) {
            row.numbers[column].reset();
        }
    }
    const QVector<PtoImage> &images = alignment.project.images();
    for (int i = 0; i < images.size(); ++i) {
        if (Row *const row = rowOf.value(images.at(i).path)) {
            row->numbers[AlignedYaw] = images.at(i).angles.yaw;
            row->numbers[AlignedPitch] = images.at(i).angles.pitch;
            row->numbers[AlignedRoll] = images.at(i).angles.roll;
            row->numbers[Residual] = residuals[static_cast<size_t>(i)];
        }
    }
    for (const AlignedPhoto &photo : alignment.report.photos) {
        if (Row *const row = rowOf.value(photo.path)) {
            row->numbers[Moved] = photo.movedDegrees;
            row->numbers[Points] = photo.points;
        }
    }
    m_isAligned = true;
    if (!m_rows.empty()) {
        Q_EMIT dataChanged(index(0, AlignedYaw), index(count() - 1, Residual));
    }
}

PositionsModel::Row *PositionsModel::find(int row)
{
    return row >= 0 && row < count() ? &m_rows[static_cast<size_t>(row)] : nullptr;
}

bool PositionsModel::isOfAlignment(int column)
{
    return column >= AlignedYaw && column <= Residual;
}

QStringList PositionsModel::exportHeader()
{
    QStringList names;
    for (const ColumnFacts &column : kColumns) {
        names += QLatin1String(column.exportName);
    }
    return names;
}

QStringList PositionsModel::exportRow(int row) const
{
    const Row &wanted = at(row);
    QStringList fields;
    for (size_t column = 0; column < ColumnCount; ++column) {
        const std::optional<double> &number = wanted.numbers[column];
        fields += number ? written(*number, kColumns[column].exportDigits) : QString();
    }
    fields[Photos] = wanted.names.join(QStringLiteral("; "));
    fields[Time] = wanted.time;
    return fields;
}

int PositionsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

int PositionsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString PositionsModel::text(const Row &row, int column) const
{
    if (column == Photos) {
        return onOneLine(row.names.join(QStringLiteral(", ")));
    }
    if (column == Time) {
        return QString(row.time).replace(QLatin1Char('T'), QLatin1Char(' '));
    }
    const std::optional<double> &number = row.numbers[static_cast<size_t>(column)];
    return number ? written(*number, kColumns[static_cast<size_t>(column)].digits) : QString();
}

QVariant PositionsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count()) {
        return {};
    }
    const Row &row = at(index.row());
    const int column = index.column();
    const bool isText = column == Photos || column == Time;
    switch (role) {
    case Qt::DisplayRole:
        return text(row, column);
    case kSortRole:
        if (isText) {
            const QString key = text(row, column);
            return key.isEmpty() ? QVariant() : key;
        }
        return row.numbers[static_cast<size_t>(column)]
            ? QVariant(*row.numbers[static_cast<size_t>(column)])
            : QVariant();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (isText ? Qt::AlignLeading : Qt::AlignTrailing));
    case Qt::ToolTipRole:
        // File names may stand in it.
        return column == Photos ? QStringLiteral("<p>%1</p>").arg(text(row, column).toHtmlEscaped())
                                : QVariant();
    default:
        return {};
    }
}

QVariant PositionsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        switch (section) {
        case Number:
            return tr("No.");
        case Photos:
            return tr("Photos");
        case Yaw:
            return tr("Yaw %1").arg(QChar(0xb0));
        case Pitch:
            return tr("Pitch %1").arg(QChar(0xb0));
        case Roll:
            return tr("Roll %1").arg(QChar(0xb0));
        case AlignedYaw:
            return tr("Aligned yaw %1").arg(QChar(0xb0));
        case AlignedPitch:
            return tr("Aligned pitch %1").arg(QChar(0xb0));
        case AlignedRoll:
            return tr("Aligned roll %1").arg(QChar(0xb0));
        case Moved:
            return tr("Off by %1").arg(QChar(0xb0));
        case Points:
            return tr("Points");
        case Residual:
            return tr("Error (pixels)");
        case Time:
            return tr("Time");
        case Exposure:
            return tr("Exposure (EV)");
        case Links:
            return tr("Links");
        default:
            return {};
        }
    }
    if (role == Qt::ToolTipRole) {
        switch (section) {
        case Yaw:
            return tr("As the head recorded it: to the right, in degrees");
        case Pitch:
            return tr("As the head recorded it: up, in degrees");
        case Roll:
            return tr("As the head recorded it: clockwise, in degrees");
        case Moved:
            return tr("How far the photos show that the head stood elsewhere than recorded");
        case Points:
            return tr("Spots that were found again in other photos");
        case Residual:
            return tr("How far such spots still lie apart, half of them nearer");
        case Exposure:
            return tr("Of the first photo: each step up lets in half as much light");
        case Links:
            return tr("Neighbours in which spots of this photo are looked for");
        default:
            return {};
        }
    }
    return {};
}

} // namespace PanoHost
