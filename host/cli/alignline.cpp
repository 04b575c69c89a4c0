// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/alignline.h"

#include "host/model/commanderror.h"

namespace PanoHost
{

namespace
{

void freeLens(const QString &list, AlignOptions &options)
{
    options.freesFocal = options.freesA = options.freesB = options.freesC = false;
    for (const QString &word : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (word == QLatin1String("f")) {
            options.freesFocal = true;
        } else if (word == QLatin1String("a")) {
            options.freesA = true;
        } else if (word == QLatin1String("b")) {
            options.freesB = true;
        } else if (word == QLatin1String("c")) {
            options.freesC = true;
        } else if (word != QLatin1String("none")) {
            throw usageError(
                QStringLiteral("--free %1: '%2' is none of f, a, b, c").arg(list, word),
                QStringLiteral("give letters with commas between them, or 'none'"));
        }
    }
}

} // namespace

QVector<OptionRow> alignOptionRows()
{
    return {
        { "--free", "LIST",
          "what of the lens is not known exactly: f (focal length), a, b, c (distortion), with "
          "commas, or none; f,b when not given" },
        { "--features", "N", "look for at most N features in a photo; 2112 when not given" },
        { "--work-size", "PIXELS",
          "look for them in pictures at most this wide; 1600 when not given" },
        { "--jobs", "N", "work on N photos at a time; as many as processors when not given" },
        { "--keep-points", nullptr, "keep the control points that the project holds already" },
        { "--level", nullptr, "turn the whole panorama upright (Gigapan: default)" },
        { "--no-level", nullptr, "leave the head's axis upright" },
        { "--no-photometry", nullptr, "leave exposures and vignetting as they are" },
    };
}

AlignOptions alignOptions(const CommandLine &line)
{
    AlignOptions options;
    if (line.isSet(QStringLiteral("free"))) {
        freeLens(line.value(QStringLiteral("free")), options);
    }
    constexpr int kFewestFeatures = 96;
    constexpr int kLeastSize = 200;
    constexpr int kMost = 100'000;
    constexpr int kMostJobs = 1024;
    options.features
        = numberOf(line, QStringLiteral("features"), options.features, kFewestFeatures, kMost);
    options.workSize
        = numberOf(line, QStringLiteral("work-size"), options.workSize, kLeastSize, kMost);
    options.jobs = numberOf(line, QStringLiteral("jobs"), options.jobs, 1, kMostJobs);
    options.keepsPoints = line.isSet(QStringLiteral("keep-points"));
    options.photometry = !line.isSet(QStringLiteral("no-photometry"));
    const bool level = line.isSet(QStringLiteral("level"));
    const bool noLevel = line.isSet(QStringLiteral("no-level"));
    if (level && noLevel) {
        throw usageError(QStringLiteral("--level and --no-level exclude each other"));
    }
    if (level || noLevel) {
        options.levels = level;
    }
    return options;
}

void tell(Session &session, const AlignmentReport &report)
{
    session.console.endProgress();
    for (const QString &sentence : sentences(report)) {
        session.console.info(sentence);
    }
}

} // namespace PanoHost
