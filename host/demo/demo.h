// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/demohead.h"
#include "host/demo/psnr.h"
#include "host/model/jobwatch.h"

#include <QImage>
#include <QVector>

#include <optional>

namespace PanoHost
{

class PanoHostApplication;

enum class DemoSize {
    Small, ///< photos of 600 x 400, panorama of 1024 x 512 pixels
    Normal, ///< photos of 900 x 600, panorama of 2048 x 1024 pixels
};

struct DemoOptions {
    QString folder; ///< made when it does not exist; files of the demo's own names are replaced
    DemoSize size = DemoSize::Normal;
    const HeadFacts *head = nullptr;
    QString pluginPath; ///< file or folder of the library; empty: the usual places
};

/** One part of the work and how long it took. */
struct DemoStep {
    QString name;
    double seconds = 0.0;
};

/** What the demo has made. */
struct DemoReport {
    QString panoramaPath;
    QString pagePath; ///< that shows it; empty where the stitching programs are missing
    QSize size;
    int photoCount = 0;
    Agreement agreement; ///< of the written file with the same part of the scene
    double leastPsnrDecibels = 0.0; ///< less agreement: something has gone wrong
    QStringList checks; ///< what else was found to be right, in words
    QVector<DemoStep> steps;
    /** The stitching programs are missing: the panorama is made without them and not blended. */
    std::optional<Failure> missingTool;
};

/**
 * Photographs the made-up scene and makes a panorama of it as `makePanorama` does. Leaves in the
 * folder: photos/, the head's record, layout.png (the page's own picture), demo.pto, demo.json,
 * demo.jpg, demo.html, and demo.work/ with what each step has made.
 */
[[nodiscard]] Result<DemoReport> runDemo(PanoHostApplication &app, const DemoOptions &options,
                                         const JobWatch &watch);

} // namespace PanoHost
