// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardwriter.h"

#include "importers/headfacts.h"

#include <cmath>

namespace PanoHead
{

namespace
{

/** A 1.5 times smaller sensor than the 35 mm format, so that the record's coefficient matters. */
constexpr double kSensorCoefficient = 1.5;

QString angleText(double degrees, bool isExact)
{
    if (isExact) {
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

QString header(const NotedShoot &shoot)
{
    const bool isFisheye = shoot.lens == LensModel::Fisheye;
    return QStringLiteral("  <header>\n    <general>\n") + textElement(3, "title", shoot.title)
        + textElement(3, "gps", QStringLiteral("46.5 N, 8.0 E"))
        + textElement(3, "comment", QStringLiteral("A made-up place: drawn, not photographed"))
        + QStringLiteral("    </general>\n    <shooting mode=\"preset\">\n")
        + textElement(3, "headOrientation", QStringLiteral("up"))
        + textElement(3, "cameraOrientation",
                      shoot.isPortrait ? QStringLiteral("portrait") : QStringLiteral("landscape"))
        + textElement(3, "startTime", timeText(shoot.shots.value(0).time))
        + textElement(3, "endTime", timeText(shoot.shots.value(shoot.shots.size() - 1).time))
        + QStringLiteral(
              "    </shooting>\n    <camera>\n"
              "      <bracketing nbPicts=\"%1\"/>\n      <sensor coef=\"%2\" ratio=\"3:2\"/>\n"
              "    </camera>\n    <lens type=\"%3\">\n")
              .arg(shoot.bracketCount)
              .arg(kSensorCoefficient, 0, 'f', 1)
              .arg(isFisheye ? QLatin1String("fisheye") : QLatin1String("rectilinear"))
        + textElement(3, "focal", QString::number(shoot.focal35mm / kSensorCoefficient, 'g', 12))
        + QStringLiteral("    </lens>\n  </header>\n");
}

QString pict(const NotedShot &shot, int id, bool isExact)
{
    return QStringLiteral("    <pict id=\"%1\" bracket=\"%2\">\n").arg(id).arg(shot.level + 1)
        + textElement(3, "time", timeText(shot.time))
        + QStringLiteral("      <position pitch=\"%1\" yaw=\"%2\" roll=\"%3\"/>\n    </pict>\n")
              .arg(angleText(shot.pitchDegrees, isExact), angleText(shot.yawDegrees, isExact),
                   angleText(shot.rollDegrees, isExact));
}

} // namespace

QByteArray writePapywizard(const NotedShoot &shoot)
{
    QString xml
        = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<papywizard version=\"c\">\n")
        + header(shoot) + QStringLiteral("  <shoot>\n");
    for (int i = 0; i < shoot.shots.size(); ++i) {
        xml += pict(shoot.shots.at(i), i + 1, shoot.exactAngles);
    }
    return (xml + QStringLiteral("  </shoot>\n</papywizard>\n")).toUtf8();
}

} // namespace PanoHead
