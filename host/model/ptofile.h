// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/angles.h"
#include "host/model/result.h"
#include "host/model/vignetting.h"
#include "model/lensmodel.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>
#include <string_view>
#include <vector>

namespace PanoHost
{

struct Canvas;

/** An i-line, with the values of the lines that it links to. Yaws are those of the head: what the
 * project has subtracted from all is added again. */
struct PtoImage {
    QString path; ///< absolute
    QSize size; ///< stored pixels
    LensModel lens = LensModel::Standard;
    double horizontalFovDegrees = 0.0;
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    std::optional<double> exposureValue; ///< Eev
    Angles angles;
    /** What the head said, without the camera's turn. Without record lines: the file's angles. */
    Angles recorded;
    double recordedFovDegrees
        = 0.0; ///< horizontal, before any alignment; without record lines: the file's
    /** How far the camera, or its stored pixels, are turned about the lens's axis. Without record
     * lines: what most photos of the file are rolled by, a multiple of 90. */
    double turnDegrees = 0.0;
    int lensMaster = -1; ///< the image whose field of view this one shares; -1: its own
    int angleMaster = -1; ///< the image whose angles these are (a hard stack); -1: its own
    int stackMaster = -1; ///< the image that its stack begins with; -1: itself

    /** Pixels per radian at the centre. */
    [[nodiscard]] double focalPixels() const;
};

/** A c-line between two images; pixels, (0, 0) is the middle of the first. */
struct PtoPoint {
    int first = 0;
    int second = 0;
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    bool isWrong = false; ///< kept, but in a comment line, out of every optimiser's way
};

/** What an alignment changes of an image. */
struct PtoPlacement {
    Angles angles;
    std::optional<double> exposureValue;
};

/** What an alignment changes of a lens. */
struct PtoLens {
    double horizontalFovDegrees = 0.0;
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    /** With it comes the sRGB curve, by which the light is measured. */
    std::optional<Vignetting> vignetting = {};
};

/**
 * A Hugin project, of this program or of any other. Its lines stay as they are, unknown ones too,
 * but for what is set anew. Comment lines hold what Hugin knows nothing of:
 *
 *     #panohost centre y12.5                          was subtracted from every yaw
 *     #panohost head noroll                           how the head notes angles down
 *     #panohost record i3 y42.5 p-45 r0.1 turn90 v50  what head and lens were said to be at image 3
 *     #panohost wrong c n0 N1 x1 y2 X3 Y4 t0          a control point that is none
 */
class PtoFile
{
public:
    /** Reads \p text; \p folder is what its file names are relative to. Refuses: no images, images
     * without size or field of view, links to later images or to none, numbers that are none. A
     * failure names the line. */
    [[nodiscard]] static Result<PtoFile> parse(const QByteArray &text, const QString &folder);
    /** The comment line of projects whose yaws are relative to \p yawDegrees of the head: by it
     * this program knows its own projects. */
    [[nodiscard]] static QByteArray centreLine(double yawDegrees);
    /** The same from a regular file of at most 128 MB. */
    [[nodiscard]] static Result<PtoFile> read(const QString &path);

    [[nodiscard]] const QVector<PtoImage> &images() const { return m_images; }
    /** Those between two images; lines are no points. */
    [[nodiscard]] const QVector<PtoPoint> &points() const { return m_points; }
    /** Whether this program has written the file last: its canvas follows the import's rules. */
    [[nodiscard]] bool isOurs() const { return m_isOurs; }
    /** Whether it says itself what was recorded. */
    [[nodiscard]] bool hasRecord() const { return m_hasRecord; }
    /** How the head notes angles down, a word of whoever has set it; empty: nobody has. */
    [[nodiscard]] const QByteArray &head() const { return m_head; }
    /** Was subtracted from every yaw that is written. */
    [[nodiscard]] double yawCentreDegrees() const { return m_yawCentreDegrees; }

    /** The picture that the project asks for. */
    [[nodiscard]] Canvas canvas() const;
    /** Whether that picture is equirectangular. */
    [[nodiscard]] bool isEquirectangular() const;
    /** How bright the panorama is: as a photo of this exposure value; nothing: not said. */
    [[nodiscard]] std::optional<double> exposure() const;
    /** How the light of \p image falls off towards its corners. */
    [[nodiscard]] Vignetting vignettingOf(int image) const;
    /** All that the project says of \p image with no other image beside it: links become values.
     * The file's name is \p name, yaw is counted from \p yawCentreDegrees. */
    [[nodiscard]] QByteArray loneLine(int image, const QByteArray &name,
                                      double yawCentreDegrees) const;

    /** What of \p image is cut out, by masks of its own or those of its stack or lens, for a
     * project of this image alone; lines that end. Masks that keep something are not among them:
     * they cut it out of all other images. */
    [[nodiscard]] QByteArray maskLines(int image) const;
    /** Whether there are such masks. */
    [[nodiscard]] bool hasKeepingMasks() const;

    /** Gives \p image the angles, unless they are another one's, and the exposure, if there is one.
     */
    void place(int image, const PtoPlacement &placement);
    /** For all images that share the field of view of \p master. What shifts or shears a picture is
     * set to 0. */
    void setLens(int master, const PtoLens &lens);
    /** How bright the panorama becomes: as a photo of this exposure value. */
    void setExposure(double value);
    /** In place of all points that are there. */
    void setPoints(const QVector<PtoPoint> &points);
    /** What the head said, one entry per image, in place of what was there. */
    void setRecord(const QVector<Angles> &recorded, const QVector<double> &turns);
    /** Writes down what is recorded of each image, and \p head, one word. */
    void keepRecord(const QByteArray &head);
    /** Lays canvas and crop out anew around the images, by the rules of the import, centred at yaw
     * 0. A width that somebody has chosen stays. */
    void layOutCanvas();

    /** The project for a file in \p folder: names that were relative are so to it. Refuses folders
     * that the format cannot hold. */
    [[nodiscard]] Result<QByteArray> text(const QString &folder) const;

private:
    class Reader;
    enum class Kind { Panorama, Image, Point, Centre, Head, Record };
    /** A line that is read here; the others are known as what is between. */
    struct Line {
        int begin = 0; ///< into the text
        int end = 0; ///< behind the line end
        Kind kind = Kind::Image;
    };

    PtoFile() = default;
    [[nodiscard]] double longestFocalPixels() const;
    /** A region of an image, as Hugin's editor draws it. */
    struct Mask {
        enum Type { Cut = 0, Keep = 1, CutInStack = 2, KeepInStack = 3, CutInLens = 4 };
        int image = 0;
        int type = Cut;
        QByteArray corners;
    };
    /** The value of a variable of \p image, or of the image that it links to; empty: none. */
    [[nodiscard]] std::string_view ownValue(int image, std::string_view name) const;
    void writeYaw(int image);
    /** Before one image's exposure changes: the others keep theirs. */
    void unlinkExposures();
    /** An i-line with its name relative to \p folder. */
    [[nodiscard]] Result<QByteArray> movedLine(int image, const QString &folder) const;
    [[nodiscard]] QByteArray pointLines() const;
    [[nodiscard]] QByteArray recordLines() const;

    QByteArray m_text; ///< as read
    QString m_folder;
    std::vector<Line> m_lines;
    QByteArray m_panoramaLine;
    std::vector<QByteArray> m_imageLines; ///< with what was set
    QVector<PtoImage> m_images;
    std::vector<int> m_nextOfLens; ///< the next image with the same field of view; -1: none
    std::vector<int> m_nextOfStack; ///< the next image with the same angles
    QVector<PtoPoint> m_points;
    std::vector<Mask> m_masks;
    QByteArray m_head;
    double m_yawCentreDegrees = 0.0;
    int m_chosenWidth = 0; ///< of the canvas; 0: it is what the import's rules make
    bool m_isOurs = false;
    bool m_hasRecord = false;
    bool m_linksExposures = false;
    bool m_setsCentre = false;
    bool m_setsRecord = false;
    bool m_setsPoints = false;
};

} // namespace PanoHost
