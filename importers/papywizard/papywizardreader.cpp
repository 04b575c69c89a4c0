// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/papywizardreader.h"

#include "importers/papywizard/xmlgate.h"

#include <QDomDocument>

#include <cmath>
#include <new>

namespace PanoHead
{

namespace
{

QDomElement child(const QDomElement &parent, const char *name)
{
    return parent.firstChildElement(QLatin1String(name));
}

QString trimmedText(const QDomElement &parent, const char *name)
{
    return child(parent, name).text().trimmed();
}

/** \p fallback for text that is no number, or none that a 32-bit float can hold. */
double toNumber(const QString &text, double fallback)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(static_cast<float>(number)) ? number : fallback;
}

ShootData readShot(const QDomElement &pict)
{
    ShootData shot;
    shot.id = pict.attribute(QStringLiteral("id")).toInt();
    shot.bracket = pict.attribute(QStringLiteral("bracket")).toInt();
    const QDomElement position = child(pict, "position");
    // A roll attribute is passed over: the values that heads write there are often wrong.
    shot.yaw = static_cast<float>(toNumber(position.attribute(QStringLiteral("yaw")), 0.0));
    shot.pitch = static_cast<float>(toNumber(position.attribute(QStringLiteral("pitch")), 0.0));
    const QDomElement time = child(pict, "time");
    if (!time.isNull()) {
        shot.time = QDateTime::fromString(time.text(), Qt::TextDate);
    }
    return shot;
}

void readShoot(PapywizardRecord &record, const QDomElement &shoot)
{
    record.hasShoot = !shoot.isNull();
    const QString name = QStringLiteral("pict");
    for (QDomElement pict = shoot.firstChildElement(name);
         !pict.isNull() && record.shots.size() <= kMaxRecordedShots;
         pict = pict.nextSiblingElement(name)) {
        record.shots.append(readShot(pict));
    }
}

void readGeneral(PapywizardRecord &record, const QDomElement &general)
{
    record.title = trimmedText(general, "title");
    record.gps = trimmedText(general, "gps");
    record.comment = trimmedText(general, "comment");
}

void readCamera(PapywizardRecord &record, const QDomElement &camera)
{
    const QDomElement sensor = child(camera, "sensor");
    if (!sensor.isNull()) {
        record.sensorCoef = toNumber(sensor.attribute(QStringLiteral("coef")), 1.0);
    }
    const QDomElement bracketing = child(camera, "bracketing");
    if (!bracketing.isNull()) {
        record.nbPicts = bracketing.attribute(QStringLiteral("nbPicts")).toInt();
    }
}

/** After the camera: the focal length is multiplied by its crop factor. */
void readLens(PapywizardRecord &record, const QDomElement &lens)
{
    if (lens.isNull()) {
        return;
    }
    record.xmlFocal = toNumber(trimmedText(lens, "focal"), 0.0) * record.sensorCoef;
    const QString type = lens.attribute(QStringLiteral("type")).trimmed();
    if (type.compare(QLatin1String("fisheye"), Qt::CaseInsensitive) == 0) {
        record.xmlLensType = static_cast<int>(LensModel::Fisheye);
    }
}

void readShooting(PapywizardRecord &record, const QDomElement &shooting)
{
    const QString orientation = trimmedText(shooting, "cameraOrientation").toLower();
    record.portrait = orientation == QLatin1String("portrait");
}

PapywizardRecord readRoot(const QDomElement &root)
{
    PapywizardRecord record;
    readShoot(record, child(root, "shoot"));
    const QDomElement header = child(root, "header");
    readGeneral(record, child(header, "general"));
    readCamera(record, child(header, "camera"));
    readLens(record, child(header, "lens"));
    readShooting(record, child(header, "shooting"));
    return record;
}

std::nullopt_t fail(ReadError *error, const ReadError &what)
{
    if (error != nullptr) {
        *error = what;
    }
    return std::nullopt;
}

} // namespace

std::optional<PapywizardRecord> readPapywizard(const QByteArray &bytes, ReadError *error)
{
    try {
        if (const std::optional<ReadError> refusal = xmlRefusal(decodeXml(bytes))) {
            return fail(error, *refusal);
        }
        QDomDocument document;
        QString reason;
        int line = 0;
        if (!document.setContent(bytes, false, &reason, &line)) {
            return fail(error, { QStringLiteral("not well-formed XML (%1)").arg(reason), line });
        }
        const PapywizardRecord record = readRoot(document.documentElement());
        if (record.shots.size() > kMaxRecordedShots) {
            return fail(error,
                        { QStringLiteral("more than %1 pictures").arg(kMaxRecordedShots), 0 });
        }
        return record;
    } catch (const std::bad_alloc &) {
        return fail(error, { QStringLiteral("not enough memory"), 0 });
    }
}

} // namespace PanoHead
