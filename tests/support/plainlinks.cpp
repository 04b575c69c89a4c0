// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/plainlinks.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace PanoHead;

namespace
{

constexpr double kPi = 3.141592653589793;

/** 0: no link. */
qint32 typeOf(const Direction &a, const Direction &b)
{
    float yawStep = b.yaw - a.yaw;
    if (static_cast<double>(yawStep) > kPi) {
        yawStep -= 6.2831854820251465F;
    }
    if (static_cast<double>(yawStep) < -kPi) {
        yawStep += 6.2831854820251465F;
    }
    const float pitchStep = b.pitch - a.pitch;
    const double angle = std::atan2(static_cast<double>(pitchStep), static_cast<double>(yawStep));
    if (angle > -0.7853981633974483 && angle <= 0.7853981633974483) {
        return 2;
    }
    return angle > -2.356194490192345 && angle <= -0.7853981633974483 ? 1 : 0;
}

struct View {
    double x;
    double y;
    double z;
    double threshold;
};

View viewOf(const PhotoDirection &photo)
{
    const auto yaw = static_cast<double>(photo.yawDegrees * 3.1415927F / 180.0F);
    const auto pitch = static_cast<double>(photo.pitchDegrees * 3.1415927F / 180.0F);
    const double quotient = 43.266615305567875 / (2.0 * static_cast<double>(photo.focalMm));
    return { std::sin(yaw) * std::cos(pitch), std::cos(yaw) * std::cos(pitch), -std::sin(pitch),
             static_cast<double>(static_cast<float>(std::atan(quotient))) };
}

} // namespace

float PlainLinks::halfField(float focalMm)
{
    const float twice = focalMm + focalMm;
    return static_cast<float>(std::atan(43.266615305567875 / static_cast<double>(twice)));
}

QVector<AuthorizedLink> PlainLinks::neighbours(const QVector<Direction> &positions, float halfField,
                                               const Outer &outer)
{
    QVector<AuthorizedLink> links;
    const auto h = static_cast<double>(halfField);
    for (int i = outer.first; i < positions.size(); i += outer.step) {
        for (int j = 0; j < positions.size(); ++j) {
            if (i == j) {
                continue;
            }
            const auto yA = static_cast<double>(positions[i].yaw);
            const auto pA = static_cast<double>(positions[i].pitch);
            const auto yB = static_cast<double>(positions[j].yaw);
            const auto pB = static_cast<double>(positions[j].pitch);
            const double d = std::acos(std::cos(pB)
                                           * (std::cos(yA) * std::cos(pA) * std::cos(yB)
                                              + std::sin(yB) * std::sin(yA) * std::cos(pA))
                                       + std::sin(pB) * std::sin(pA));
            if (h > d * 0.6499999761581421) {
                if (const qint32 type = typeOf(positions[i], positions[j])) {
                    links.append({ type, { i, j } });
                }
            }
        }
    }
    return links;
}

QVector<AuthorizedLink> PlainLinks::neighboursHoisted(const QVector<Direction> &positions,
                                                      float halfField, const Outer &outer)
{
    struct Terms {
        double sinYaw;
        double cosYaw;
        double sinPitch;
        double cosPitch;
    };
    std::vector<Terms> terms;
    terms.reserve(static_cast<std::size_t>(positions.size()));
    for (const Direction &position : positions) {
        const auto yaw = static_cast<double>(position.yaw);
        const auto pitch = static_cast<double>(position.pitch);
        terms.push_back({ std::sin(yaw), std::cos(yaw), std::sin(pitch), std::cos(pitch) });
    }
    QVector<AuthorizedLink> links;
    const auto h = static_cast<double>(halfField);
    for (int i = outer.first; i < positions.size(); i += outer.step) {
        const Terms &a = terms[i];
        for (int j = 0; j < positions.size(); ++j) {
            const Terms &b = terms[j];
            const double d = std::acos(
                b.cosPitch * (a.cosYaw * a.cosPitch * b.cosYaw + b.sinYaw * a.sinYaw * a.cosPitch)
                + b.sinPitch * a.sinPitch);
            if (i != j && h > d * 0.6499999761581421) {
                if (const qint32 type = typeOf(positions[i], positions[j])) {
                    links.append({ type, { i, j } });
                }
            }
        }
    }
    return links;
}

QVector<AuthorizedLink> PlainLinks::close(const QVector<PhotoDirection> &photos)
{
    QVector<AuthorizedLink> links;
    for (int i = 0; i < photos.size(); ++i) {
        const View a = viewOf(photos[i]);
        for (int j = i + 1; j < photos.size(); ++j) {
            const View b = viewOf(photos[j]);
            double cosine = a.x * b.x + a.y * b.y + a.z * b.z;
            if (cosine > 1.0) {
                cosine = 1.0;
            } else if (cosine < -1.0) {
                cosine = -1.0;
            }
            const double d = std::acos(cosine);
            if (0.699999988079071 * d < a.threshold || 0.699999988079071 * d < b.threshold) {
                links.append({ 0, { i, j } });
            }
        }
    }
    return links;
}

QString PlainLinks::text(const QVector<AuthorizedLink> &links)
{
    QStringList texts;
    for (const AuthorizedLink &link : links) {
        QStringList indices;
        for (const qint32 index : link.indices) {
            indices.append(QString::number(index));
        }
        texts.append(QStringLiteral("%1:%2").arg(QString::number(link.linkType),
                                                 indices.join(QLatin1Char('-'))));
    }
    return texts.join(QLatin1Char(' '));
}

QString PlainLinks::difference(const QVector<AuthorizedLink> &links,
                               const QVector<AuthorizedLink> &expected)
{
    const auto text = [](const QVector<AuthorizedLink> &list, int place) {
        if (place >= list.size()) {
            return QStringLiteral("nothing");
        }
        const AuthorizedLink &link = list.at(place);
        return link.indices.size() != 2
            ? QStringLiteral("no pair")
            : QStringLiteral("%1-%2 of type %3")
                  .arg(QString::number(link.indices[0]), QString::number(link.indices[1]),
                       QString::number(link.linkType));
    };
    for (int place = 0; place < std::max(links.size(), expected.size()); ++place) {
        if (place >= links.size() || place >= expected.size()
            || links[place].linkType != expected[place].linkType
            || links[place].indices != expected[place].indices) {
            return QStringLiteral("link %1 is %2, not %3")
                .arg(QString::number(place), text(links, place), text(expected, place));
        }
    }
    return {};
}
