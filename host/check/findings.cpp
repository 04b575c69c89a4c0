// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/findings.h"

#include "host/check/knownlens.h"
#include "host/model/displayname.h"
#include "host/model/panorama.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace PanoHost
{

namespace
{

QString nameOf(const PhotoInfo &photo)
{
    return QFileInfo(photo.path).fileName();
}

QString focalOrUnknown(double focal35mm)
{
    return focal35mm > 0.0 ? millimetres(focal35mm) : QStringLiteral("not known");
}

QString lensOrUnknown(LensModel lens)
{
    return lens == LensModel::NotChosen ? QStringLiteral("not known") : lensName(lens);
}

} // namespace

Finding recordFinding(const QString &path, const PanoHead::RecordSummary &record)
{
    return { QStringLiteral("record"),
             QStringLiteral("%1: %2, bracket %3, focal %4, lens %5")
                 .arg(displayName(path), counted(record.shotCount, "shot"),
                      QString::number(record.bracketCount), focalOrUnknown(record.focal35mm),
                      lensOrUnknown(record.lens)),
             Finding::Kind::Fact,
             {} };
}

Finding badPhotoFinding(const QString &path, const QString &why)
{
    return { QStringLiteral("bad"),
             QStringLiteral("%1: %2").arg(displayName(path), why),
             Finding::Kind::Trouble,
             { path } };
}

Finding photosFinding(const QVector<PhotoInfo> &photos, int given)
{
    const KnownLens facts = knownLensOf(photos);
    return { QStringLiteral("photos"),
             QStringLiteral("%1 given, %2 readable, focal %3, lens %4")
                 .arg(QString::number(given), QString::number(photos.size()),
                      focalOrUnknown(facts.focal35mm), lensOrUnknown(facts.lens)),
             photos.size() == given ? Finding::Kind::Fact : Finding::Kind::Trouble,
             {} };
}

Finding orderFinding(const QVector<PhotoInfo> &photos)
{
    const QString topic = QStringLiteral("order");
    for (int i = 1; i < photos.size(); ++i) {
        const PhotoInfo &before = photos.at(i - 1);
        const PhotoInfo &photo = photos.at(i);
        if (before.timeMs == 0 || photo.timeMs == 0) {
            return { topic,
                     QStringLiteral("not all photos have a capture time"),
                     Finding::Kind::Fact,
                     { before.timeMs == 0 ? before.path : photo.path } };
        }
        if (photo.timeMs < before.timeMs) {
            return { topic,
                     QStringLiteral("%1 was taken before %2; try --order time")
                         .arg(nameOf(photo), nameOf(before)),
                     Finding::Kind::Trouble,
                     { before.path, photo.path } };
        }
    }
    return { topic, QStringLiteral("capture times agree"), Finding::Kind::Fact, {} };
}

Finding gapFinding(const QVector<PhotoInfo> &photos)
{
    Finding none{ QStringLiteral("gaps"), QStringLiteral("none"), Finding::Kind::Fact, {} };
    QVector<qint64> pauses;
    for (int i = 1; i < photos.size(); ++i) {
        pauses += photos.at(i).timeMs - photos.at(i - 1).timeMs;
    }
    if (pauses.isEmpty()) {
        return none;
    }
    const auto *longest = std::max_element(pauses.cbegin(), pauses.cend());
    QVector<qint64> sorted = pauses;
    std::sort(sorted.begin(), sorted.end());
    constexpr qint64 kNotableFactor = 4;
    constexpr qint64 kNotableMs = 5000;
    const qint64 usual = sorted.at(sorted.size() / 2);
    if (*longest < std::max(kNotableMs, usual * kNotableFactor)) {
        return none;
    }
    const int before = static_cast<int>(longest - pauses.cbegin());
    return { none.topic,
             QStringLiteral("%1 s after %2 (usually %3 s)")
                 .arg(QString::number(*longest / 1000), nameOf(photos.at(before)),
                      QString::number(usual / 1000)),
             Finding::Kind::Trouble,
             { photos.at(before).path, photos.at(before + 1).path } };
}

QVector<Finding> photoFindings(const QVector<PhotoInfo> &photos, int given)
{
    return { photosFinding(photos, given), orderFinding(photos), gapFinding(photos) };
}

QByteArray findingsToJson(const QVector<Finding> &findings, bool importable)
{
    QJsonArray rows;
    for (const Finding &finding : findings) {
        rows += QJsonObject{ { QStringLiteral("topic"), finding.topic },
                             { QStringLiteral("text"), finding.text },
                             { QStringLiteral("trouble"), finding.kind == Finding::Kind::Trouble },
                             { QStringLiteral("files"),
                               QJsonArray::fromStringList(finding.files) } };
    }
    return QJsonDocument(QJsonObject{ { QStringLiteral("schema"), 1 },
                                      { QStringLiteral("importable"), importable },
                                      { QStringLiteral("findings"), rows } })
        .toJson();
}

} // namespace PanoHost
