// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"
#include "model/lensmodel.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

namespace PanoHost
{

/** Degrees as a project writes them: yaw to the right, pitch up, roll clockwise. */
struct PtoAngles {
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
};

/** An i-line, with the values of the lines that it links to. */
struct PtoImage {
    QString path; ///< absolute
    QSize size; ///< stored pixels
    LensModel lens = LensModel::Standard;
    double horizontalFovDegrees = 0.0;
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    std::optional<double> exposureValue; ///< Eev
    PtoAngles angles;
    int lensMaster = -1; ///< the image whose field of view this one shares; -1: its own
    int angleMaster = -1; ///< the image whose angles these are (a hard stack); -1: its own
    int stackMaster = -1; ///< the image that its stack begins with; -1: itself
    /** What the head recorded, if the file says so: the angles before any alignment, in a frame of
     * which `PtoFile::yawCentreDegrees` was subtracted. */
    std::optional<PtoAngles> recorded;
    bool recordedTurnKnown = false;
    double turnDegrees = 0.0; ///< the part of the recorded roll that is the camera's turn
};

/** A c-line between two images; pixels, (0, 0) is the middle of the first. */
struct PtoPoint {
    int first = 0;
    int second = 0;
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    bool isWrong = false; ///< kept, but marked and out of the optimiser's way
};

/** What an alignment changes of an image. */
struct PtoPlacement {
    PtoAngles angles;
    std::optional<double> exposureValue;
};

/** What an alignment changes of a lens. */
struct PtoLens {
    double horizontalFovDegrees = 0.0;
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    std::optional<double> vignettingB; ///< Vb; Vc and Vd come with it
    double vignettingC = 0.0;
    double vignettingD = 0.0;
};

/**
 * A Hugin project whose lines are kept as they are, unknown ones too, but for what is set anew.
 */
class PtoFile
{
public:
    /** Reads \p text; \p folder is what its file names are relative to. Refuses: no images, lines
     * that link to nothing, numbers that are none. A failure names the line. */
    [[nodiscard]] static Result<PtoFile> parse(const QByteArray &text, const QString &folder);
    /** The same from a file: regular, at most 512 MB. */
    [[nodiscard]] static Result<PtoFile> read(const QString &path);

    [[nodiscard]] const QVector<PtoImage> &images() const { return m_images; }
    /** Lines of type t0 only. */
    [[nodiscard]] QVector<PtoPoint> points() const;
    /** Whether this program has written the file: its canvas follows the import's rules. */
    [[nodiscard]] bool isOurs() const;

    /** Own angles of \p image and, of the image that a lens begins with, the lens. Linked values
     * stay linked. */
    void place(int image, const PtoPlacement &placement);
    void setLens(int master, const PtoLens &lens);
    /** In place of all c-lines of type t0. */
    void setPoints(const QVector<PtoPoint> &points);
    /** "#panohost record" lines: one per image with angles of its own, in place of those there. */
    void setRecord(const QVector<PtoAngles> &recorded, const QVector<double> &turns);
    /** Lays the canvas and its crop out anew around the images, by the rules of the import, and
     * turns all images so that its centre is at yaw 0. */
    void layOutCanvas();

    /** The project for a file in \p folder: names are written relative to it. */
    [[nodiscard]] QByteArray text(const QString &folder) const;

private:
    QByteArrayList m_lines;
    QVector<PtoImage> m_images;
};

} // namespace PanoHost
