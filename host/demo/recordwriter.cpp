// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/recordwriter.h"

#include <QStringList>

#include <algorithm>

namespace PanoHost
{
namespace
{

/** A 1.5 times smaller sensor than the 35 mm format, so that the record's coefficient matters. */
constexpr double kSensorCoefficient = 1.5;

QString angleText(double degrees, RecordedAngles angles)
{
    if (angles == RecordedAngles::Exact) {
        return QString::number(degrees, 'g', 12);
    }
    const double tenths = std::round(10.0 * degrees) + 0.0; // no "-0.0"
    return QString::number(tenths / 10.0, 'f', 1);
}

QString timeText(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd_HH'h'mm'm'ss's'"));
}

/** An element whose text stands on a line of its own. */
QString textElement(int depth, const char *name, const QString &text)
{
    const QString indent(depth * 2, QLatin1Char(' '));
    const QLatin1String tag(name);
    return QStringLiteral("%1<%2>\n%1  %3\n%1</%2>\n").arg(indent, tag, text.toHtmlEscaped());
}

QString header(const ShootPlan &plan, const QString &title, const QVector<PlannedShot> &shots)
{
    const bool portrait = plan.mounting != Mounting::Landscape;
    const bool fisheye = plan.camera.projection == Projection::EquidistantFisheye;
    return QStringLiteral("  <header>\n    <general>\n") + textElement(3, "title", title)
        + textElement(3, "gps", QStringLiteral("46.5 N, 8.0 E"))
        + textElement(3, "comment", QStringLiteral("A made-up place: drawn, not photographed"))
        + QStringLiteral("    </general>\n    <shooting mode=\"preset\">\n")
        + textElement(3, "headOrientation", QStringLiteral("up"))
        + textElement(3, "cameraOrientation",
                      portrait ? QStringLiteral("portrait") : QStringLiteral("landscape"))
        + textElement(3, "startTime", timeText(shots.first().time))
        + textElement(3, "endTime", timeText(shots.last().time))
        + QStringLiteral(
              "    </shooting>\n    <camera>\n"
              "      <bracketing nbPicts=\"%1\"/>\n      <sensor coef=\"%2\" ratio=\"3:2\"/>\n"
              "    </camera>\n    <lens type=\"%3\">\n")
              .arg(plan.stops.size())
              .arg(kSensorCoefficient, 0, 'f', 1)
              .arg(fisheye ? QLatin1String("fisheye") : QLatin1String("rectilinear"))
        + textElement(3, "focal",
                      QString::number(plan.camera.focal35mm / kSensorCoefficient, 'g', 12))
        + QStringLiteral("    </lens>\n  </header>\n");
}

QString pict(const PlannedShot &shot, int id, RecordedAngles angles)
{
    return QStringLiteral("    <pict id=\"%1\" bracket=\"%2\">\n").arg(id).arg(shot.level + 1)
        + textElement(3, "time", timeText(shot.time))
        + QStringLiteral("      <position pitch=\"%1\" yaw=\"%2\" roll=\"%3\"/>\n    </pict>\n")
              .arg(angleText(shot.head.pitchDegrees, angles),
                   angleText(shot.head.yawDegrees, angles),
                   angleText(shot.head.rollDegrees, angles));
}

int wholeDegrees(double degrees)
{
    return static_cast<int>(std::lround(degrees));
}

} // namespace

QByteArray papywizardRecord(const ShootPlan &plan, const QString &title, RecordedAngles angles)
{
    const QVector<PlannedShot> shots = shotsOf(plan);
    QString xml
        = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<papywizard version=\"c\">\n")
        + header(plan, title, shots) + QStringLiteral("  <shoot>\n");
    for (int i = 0; i < shots.size(); ++i) {
        xml += pict(shots[i], i + 1, angles);
    }
    return (xml + QStringLiteral("  </shoot>\n</papywizard>\n")).toUtf8();
}

QByteArray claussScript(const ShootPlan &plan)
{
    QByteArray script;
    const Pose *before = nullptr;
    for (const Pose &position : plan.positions) {
        const int yaw = wholeDegrees(position.yawDegrees);
        const int pitch = wholeDegrees(position.pitchDegrees);
        if (before == nullptr || wholeDegrees(before->pitchDegrees) != pitch) {
            script += "op_v-angle=" + QByteArray::number(pitch) + '\n';
        }
        if (before == nullptr || wholeDegrees(before->yawDegrees) != yaw) {
            script += "op_h-angle=" + QByteArray::number(yaw) + '\n';
        }
        for (int level = 0; level < plan.stops.size(); ++level) {
            script += "op_shoot\n";
        }
        before = &position;
    }
    return script;
}

} // namespace PanoHost
