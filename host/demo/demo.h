// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/demohead.h"
#include "host/demo/psnr.h"
#include "host/model/jobwatch.h"
#include "host/model/panorama.h"

#include <QImage>
#include <QVector>

#include <optional>

namespace PanoHost
{

enum class DemoSize {
    Small, ///< photos of 600 x 400, panorama of 1024 x 512 pixels
    Normal, ///< photos of 900 x 600, panorama of 2048 x 1024 pixels
};

struct DemoOptions {
    QString folder; ///< made when it does not exist; files of the demo's own names are replaced
    DemoSize size = DemoSize::Normal;
    const HeadFacts *head = nullptr;
};

/** What the import page gives for the demo's record and photos. */
struct DemoImport {
    Panorama panorama;
    QImage layout; ///< the page's own picture of the layout
};

/**
 * Imports \p photos with \p record (empty for heads without one) through the page of \p head.
 * What it throws passes through `runDemo`.
 */
using DemoImporter = std::function<DemoImport(const HeadFacts &head, const QString &record,
                                              const QStringList &photos)>;

/** One part of the work and how long it took. */
struct DemoStep {
    QString name;
    double seconds = 0.0;
};

/** What the demo has made. */
struct DemoReport {
    QString panoramaPath;
    QSize size;
    int photoCount = 0;
    Agreement agreement; ///< of the written file with the same part of the scene
    double leastPsnrDecibels = 0.0; ///< less agreement: something has gone wrong
    QStringList findings; ///< of the alignment, a sentence each
    QStringList checks; ///< what else was found to be right, in words
    QVector<DemoStep> steps;
    /** The stitching programs are missing: the panorama is made without them and not blended. */
    std::optional<Failure> missingTool;
};

/**
 * Photographs the made-up scene, imports and aligns the photos and stitches the panorama. Leaves
 * in the folder: photos/, the head's record, layout.png, demo.pto, demo.json and demo.jpg.
 */
[[nodiscard]] Result<DemoReport> runDemo(const DemoOptions &options, const DemoImporter &importer,
                                         const JobWatch &watch);

} // namespace PanoHost
