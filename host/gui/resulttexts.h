// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

#include <QCoreApplication>

namespace PanoHost
{

/** One thing that is said of a panorama. */
struct SummaryLine {
    QString title; ///< "Lens"
    QString value; ///< in a few words
    QString meaning; ///< what comes of it, a short sentence; may be empty
    QString tip; ///< more of it; may be empty
};

/** What the result page says of a panorama. */
class ResultTexts
{
    Q_DECLARE_TR_FUNCTIONS(PanoHost::ResultTexts)
public:
    /** "6 photos at 2 positions (brackets of 3), standard lens of 24 mm, 1 link". */
    [[nodiscard]] static QString headline(const Panorama &panorama);
    [[nodiscard]] static QVector<SummaryLine> lines(const Panorama &panorama);
    /** What the user should look at, the most important first. */
    [[nodiscard]] static QStringList warnings(const Panorama &panorama);

    /** Nobody has said through which focal length the photos were taken. */
    [[nodiscard]] static bool needsFocal(const Panorama &panorama);
    /** Why the file \p path could not be written, and what to try. */
    [[nodiscard]] static QString savingProblem(const Failure &failure, const QString &path);

private:
    [[nodiscard]] static SummaryLine lens(const Panorama &panorama);
    [[nodiscard]] static SummaryLine brackets(const Panorama &panorama);
    [[nodiscard]] static SummaryLine links(const Panorama &panorama);
    [[nodiscard]] static SummaryLine points(const Panorama &panorama);
    [[nodiscard]] static SummaryLine optimisation(const Panorama &panorama);
    [[nodiscard]] static QStringList lensWarnings(const Panorama &panorama);
    [[nodiscard]] static QStringList layoutWarnings(const Panorama &panorama);
    [[nodiscard]] static QStringList photoWarnings(const Panorama &panorama);
};

} // namespace PanoHost
