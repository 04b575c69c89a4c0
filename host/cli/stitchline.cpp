// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/stitchline.h"

#include "host/cli/outputs.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/wordsuggestion.h"

#include <QFileInfo>
#include <QUrl>

namespace PanoHost
{

namespace
{

StitchSize sizeFrom(const QString &word)
{
    constexpr double kLeastPercent = 1.0;
    constexpr double kMostPercent = 100.0;
    constexpr double kLeastWidth = 64.0;
    constexpr double kMostWidth = 500'000.0;
    if (word.isEmpty() || word == QLatin1String("full")) {
        return {};
    }
    bool isNumber = false;
    StitchSize size;
    if (word.endsWith(QLatin1Char('%'))) {
        size = { StitchSize::Unit::Percent, word.chopped(1).toDouble(&isNumber) };
        isNumber = isNumber && size.value >= kLeastPercent && size.value <= kMostPercent;
    } else {
        size = { StitchSize::Unit::Width, double(word.toInt(&isNumber)) };
        isNumber = isNumber && size.value >= kLeastWidth && size.value <= kMostWidth;
    }
    if (!isNumber) {
        throw usageError(QStringLiteral("--size %1: not a size").arg(word),
                         QStringLiteral("give 'full', a percentage from 1% to 100%, or a width "
                                        "from 64 to 500000 pixels"));
    }
    return size;
}

std::optional<double> centreFrom(const QString &word)
{
    if (word.isNull()) {
        return {};
    }
    constexpr double kMost = 360.0;
    bool isNumber = false;
    const double yaw = word.toDouble(&isNumber);
    if (!isNumber || !(yaw >= -kMost && yaw <= kMost)) {
        throw usageError(QStringLiteral("--centre %1: not a direction").arg(word),
                         QStringLiteral("give the head's yaw in degrees, from -360 to 360"));
    }
    return yaw;
}

std::optional<StitchOutput> outputFrom(const QString &word)
{
    if (word.isEmpty()) {
        return {};
    }
    if (word == QLatin1String("hdr")) {
        return StitchOutput::Hdr;
    }
    return word == QLatin1String("fused") ? StitchOutput::Fused : StitchOutput::Ldr;
}

QVector<Delivery> kindsFrom(const QString &list)
{
    const QStringList words = deliveryWords();
    QVector<Delivery> kinds;
    for (const QString &word : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int index = words.indexOf(word);
        if (index < 0) {
            throw usageError(
                QStringLiteral("--deliver %1: '%2' is none of %3%4")
                    .arg(list, word, words.join(QLatin1String(", ")), suggestion(word, words)),
                QStringLiteral("give one or more, with commas between them"));
        }
        if (!kinds.contains(static_cast<Delivery>(index))) {
            kinds += static_cast<Delivery>(index);
        }
    }
    return kinds;
}

QString picturePath(const CommandLine &line, const QString &usualPath)
{
    const QString name = line.value(QStringLiteral("out"));
    QString path = name.isEmpty() ? usualPath : absolutePath(name);
    const QString ending = QFileInfo(path).suffix().toLower();
    const QStringList known{ QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("tif"),
                             QStringLiteral("tiff") };
    if (!known.contains(ending) || QFileInfo(path).completeBaseName().isEmpty()) {
        throw usageError(QStringLiteral("-o %1: not the name of a JPEG or TIFF file").arg(name),
                         QStringLiteral("name it NAME.jpg or NAME.tif; --deliver says what else "
                                        "is made beside it"));
    }
    return path;
}

void refuseContradictions(const PictureWishes &wishes)
{
    const bool isIiif = wishes.kinds.contains(Delivery::Iiif);
    if (isIiif && wishes.iiifAddress.isEmpty()) {
        throw usageError(QStringLiteral("--deliver iiif needs the address where the folder will be "
                                        "reached"),
                         QStringLiteral("add --iiif-address https://example.org/panoramas"));
    }
    if (!isIiif && !wishes.iiifAddress.isEmpty()) {
        throw usageError(QStringLiteral("--iiif-address is for --deliver iiif"),
                         QStringLiteral("add iiif to --deliver, or drop the address"));
    }
    const QUrl address(wishes.iiifAddress, QUrl::StrictMode);
    if (isIiif
        && (!address.scheme().startsWith(QLatin1String("http")) || address.host().isEmpty())) {
        throw usageError(QStringLiteral("--iiif-address %1: not the address of a server")
                             .arg(wishes.iiifAddress),
                         QStringLiteral("give one like https://example.org/panoramas"));
    }
    if (wishes.kinds.contains(Delivery::Radiance) && wishes.output
        && *wishes.output != StitchOutput::Hdr) {
        throw usageError(
            QStringLiteral("--deliver radiance is the light itself, and needs --output hdr"),
            QStringLiteral("drop one of the two"));
    }
    if (wishes.stitch.isLinear && wishes.output && *wishes.output != StitchOutput::Hdr) {
        throw usageError(QStringLiteral("--linear says how brackets become light, and needs "
                                        "--output hdr"),
                         QStringLiteral("drop one of the two"));
    }
}

} // namespace

QVector<OptionRow> stitchOptionRows()
{
    return {
        { "-o|--out", "NAME.jpg|NAME.tif", "the panorama to write; the others are named after it" },
        { "--deliver", "LIST",
          "what comes out, with commas: picture, html (one file that any browser opens), zoom (a "
          "folder of tiles with its page), radiance (the light itself, as EXR), cube (six faces), "
          "iiif (tiles for a server); when not given picture,html, with --output hdr radiance "
          "too" },
        { "--output", "ldr|fused|hdr",
          "what becomes of brackets: the reference exposure alone, one picture of lights and "
          "shadows, or the light itself; default: as the page says, else fused",
          true },
        { "--size", "full|PERCENT%|WIDTH",
          "of the panorama; full, the default: as fine as the photos" },
        { "--crop", "yes|no",
          "cut to what photos cover (default), or leave the whole sphere, of a part of it all from "
          "zenith to nadir",
          true },
        { "--centre", "YAW",
          "the direction of the head in the middle of a full turn, degrees; a part of the sphere "
          "stays as it is" },
        { "--blender", "internal|enblend",
          "internal (default) is quick and sharp; enblend hides seams where light changed", true },
        { "--linear", nullptr, "with hdr: the photos' values are light itself, without any curve" },
        { "--jpeg", "QUALITY", "of JPEG files, 1 to 100; 92 when not given" },
        { "--iiif-address", "URL", "where a server will offer the folder of iiif" },
        { "--dry-run", nullptr,
          "say what it takes, print the stitch as a script for a shell, and do nothing" },
    };
}

PictureWishes pictureWishes(const CommandLine &line, const QString &usualPath)
{
    constexpr int kUsualQuality = 92;
    constexpr int kBestQuality = 100;
    PictureWishes wishes;
    wishes.path = picturePath(line, usualPath);
    wishes.output = outputFrom(line.value(QStringLiteral("output")));
    wishes.stitch.blender = line.value(QStringLiteral("blender")) == QLatin1String("enblend")
        ? Blender::Enblend
        : Blender::Internal;
    wishes.stitch.size = sizeFrom(line.value(QStringLiteral("size")));
    wishes.stitch.crops = line.value(QStringLiteral("crop")) != QLatin1String("no");
    wishes.stitch.centreYawDegrees = centreFrom(
        line.isSet(QStringLiteral("centre")) ? line.value(QStringLiteral("centre")) : QString());
    wishes.stitch.isLinear = line.isSet(QStringLiteral("linear"));
    wishes.kinds = kindsFrom(line.value(QStringLiteral("deliver")));
    wishes.jpegQuality = numberOf(line, QStringLiteral("jpeg"), kUsualQuality, 1, kBestQuality);
    wishes.iiifAddress = line.value(QStringLiteral("iiif-address"));
    refuseContradictions(wishes);
    return wishes;
}

void tell(Session &session, const Result<QStringList> &made)
{
    session.console.endProgress();
    for (const QString &path : valueOrThrow(made)) {
        session.console.info(QStringLiteral("written: %1").arg(displayName(path)));
    }
}

} // namespace PanoHost
