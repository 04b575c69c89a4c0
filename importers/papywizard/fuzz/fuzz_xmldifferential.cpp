// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "importers/papywizard/papywizardreader.h"
#include "importers/papywizard/xmlgate.h"
#include "shoot/shottime.h"

#include <QBuffer>
#include <QDomDocument>

#include <cmath>
#include <cstdint>

using PanoHead::PapywizardRecord;

namespace
{

/** The first child element \p name. */
QDomElement childOf(const QDomNode &parent, const char *name)
{
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && node.nodeName() == QLatin1String(name)) {
            return node.toElement();
        }
    }
    return {};
}

QString textOf(const QDomNode &parent)
{
    QString text;
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isText() || node.isCDATASection()) {
            text += node.nodeValue();
        } else if (node.isElement()) {
            text += textOf(node);
        }
    }
    return text;
}

QString attributeOf(const QDomElement &element, const char *name)
{
    return element.attributes().namedItem(QLatin1String(name)).nodeValue();
}

double numberOf(const QString &text, double otherwise)
{
    bool converts = false;
    const double number = text.toDouble(&converts);
    const bool fits = std::abs(number) <= 3.4028235677973366e38; // rounds to the largest float
    return converts && fits ? number : otherwise;
}

ShootData shotOf(const QDomElement &pict)
{
    ShootData shot;
    shot.id = attributeOf(pict, "id").toInt();
    shot.bracket = attributeOf(pict, "bracket").toInt();
    const QDomElement position = childOf(pict, "position");
    shot.yaw = static_cast<float>(numberOf(attributeOf(position, "yaw"), 0.0));
    shot.pitch = static_cast<float>(numberOf(attributeOf(position, "pitch"), 0.0));
    const QDomElement time = childOf(pict, "time");
    if (!time.isNull()) {
        shot.time = QDateTime::fromString(textOf(time), Qt::TextDate);
    }
    return shot;
}

/** What a document says, looked up in its DOM; the reader under test never makes one. */
PapywizardRecord recordOf(const QDomElement &root)
{
    PapywizardRecord record;
    const QDomElement shoot = childOf(root, "shoot");
    record.hasShoot = !shoot.isNull();
    for (QDomNode node = shoot.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && node.nodeName() == QLatin1String("pict")) {
            record.shots.append(shotOf(node.toElement()));
            const QString time = textOf(childOf(node.toElement(), "time")).trimmed();
            record.times.append(time.size() <= PanoHead::kMaxShotTimeLength ? time : QString());
        }
    }
    const QDomElement header = childOf(root, "header");
    const QDomElement general = childOf(header, "general");
    record.title = textOf(childOf(general, "title")).trimmed();
    record.gps = textOf(childOf(general, "gps")).trimmed();
    record.comment = textOf(childOf(general, "comment")).trimmed();
    const QDomElement camera = childOf(header, "camera");
    if (const QDomElement sensor = childOf(camera, "sensor"); !sensor.isNull()) {
        record.sensorCoef = numberOf(attributeOf(sensor, "coef"), 1.0);
    }
    if (const QDomElement bracketing = childOf(camera, "bracketing"); !bracketing.isNull()) {
        record.nbPicts = attributeOf(bracketing, "nbPicts").toInt();
    }
    if (const QDomElement lens = childOf(header, "lens"); !lens.isNull()) {
        const QString focal = textOf(childOf(lens, "focal")).trimmed();
        record.xmlFocal = numberOf(focal, 0.0) * record.sensorCoef;
        const QString type = attributeOf(lens, "type").trimmed().toLower();
        record.xmlLensType = type == QLatin1String("fisheye") ? 1 : 0;
    }
    const QDomElement orientation = childOf(childOf(header, "shooting"), "cameraOrientation");
    record.portrait = textOf(orientation).trimmed().toLower() == QLatin1String("portrait");
    return record;
}

void compare(const PapywizardRecord &read, const PapywizardRecord &expected)
{
    FUZZ_CHECK(read.hasShoot == expected.hasShoot);
    FUZZ_CHECK(read.shots.size() == expected.shots.size());
    for (int i = 0; i < read.shots.size(); ++i) {
        const ShootData &a = read.shots.at(i);
        const ShootData &b = expected.shots.at(i);
        FUZZ_CHECK(a.id == b.id && a.bracket == b.bracket && a.time == b.time);
        FUZZ_CHECK(a.yaw == b.yaw && a.pitch == b.pitch && a.roll == 0.0F);
    }
    FUZZ_CHECK(read.times == expected.times);
    FUZZ_CHECK(read.title == expected.title);
    FUZZ_CHECK(read.gps == expected.gps);
    FUZZ_CHECK(read.comment == expected.comment);
    FUZZ_CHECK(read.xmlFocal == expected.xmlFocal);
    FUZZ_CHECK(read.sensorCoef == expected.sensorCoef);
    FUZZ_CHECK(read.nbPicts == expected.nbPicts);
    FUZZ_CHECK(read.xmlLensType == expected.xmlLensType);
    FUZZ_CHECK(read.portrait == expected.portrait);
}

} // namespace

/**
 * Whatever Qt's own XML parser accepts is read, and reads the same; but for documents that the
 * gate keeps from it, since it does not survive all of them.
 */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const auto read = PanoHead::readPapywizard(bytes);
    if (PanoHead::xmlRefusal(PanoHead::decodeXml(bytes))) {
        FUZZ_CHECK(!read);
        return 0;
    }
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    QDomDocument document;
    const bool isAccepted = document.setContent(&device, false);
    FUZZ_CHECK(read.has_value() == isAccepted);
    if (read) {
        compare(*read, recordOf(document.documentElement()));
    }
    return 0;
}
