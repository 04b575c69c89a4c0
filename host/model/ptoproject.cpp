// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"

#include "host/model/canvas.h"
#include "host/model/ptoline.h"
#include "host/model/relativepath.h"
#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** For projects in which no photo names its exposure: bright daylight, the same for all. */
constexpr double kAssumedExposureValue = 12.0;
/** 35 mm equivalents that no lens goes beyond. */
constexpr double kShortestFocalMm = 1.0;
constexpr double kLongestFocalMm = 50000.0;
/** stackLinking of the description */
constexpr qint32 kHardLinks = 0;

/** Median of the exposure values known; the middle pair's lower one, so that it is a real one. */
std::optional<double> medianExposure(QVector<double> known)
{
    if (known.isEmpty()) {
        return {};
    }
    auto *const middle = known.begin() + (known.size() - 1) / 2;
    std::nth_element(known.begin(), middle, known.end());
    return *middle;
}

/** How far \p photo's stored pixels are turned beyond the recorded roll. */
double turnDegrees(const PhotoInfo &photo, const PtoOptions &options)
{
    const int exif = options.ignoreExifRotation ? 0 : clockwiseDegrees(photo.orientation);
    return exif + options.extraRollDegrees;
}

/** One i-line in the making. */
struct Image {
    const PhotoInfo *photo = nullptr;
    int stackMaster = -1; ///< the image that this one's stack begins with; -1: itself
    int lensMaster = -1; ///< the image whose lens variables these are; -1: itself
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
    double rollDegrees = 0.0;
    QByteArray name;
};

/** Writes the project step by step; `make` is the order of things. */
class ProjectMaker
{
public:
    ProjectMaker(const Panorama &panorama, const PtoOptions &options)
        : m_panorama(panorama)
        , m_options(options)
        , m_hardLinks(panorama.description.stackLinking == kHardLinks)
    {
    }

    Result<PtoProject> make();

private:
    [[nodiscard]] std::optional<Failure> checkFocalLength() const;
    [[nodiscard]] std::optional<Failure> collectImages();
    [[nodiscard]] std::optional<Failure> nameImage(Image &image) const;
    void findExposures();
    void layOutCanvas();
    void appendHeader();
    void appendImage(int index);
    void appendVariables();
    void appendOutputs();

    [[nodiscard]] double fov(const Image &image) const
    {
        return horizontalFovDegrees(image.photo->storedSize, m_panorama.focal35mm, m_panorama.lens);
    }
    [[nodiscard]] bool isLinked(const Image &image) const
    {
        return m_hardLinks && image.stackMaster >= 0;
    }

    const Panorama &m_panorama;
    const PtoOptions &m_options;
    const bool m_hardLinks;
    QVector<Image> m_images;
    bool m_hasStacks = false;
    double m_missingExposure = kAssumedExposureValue;
    double m_referenceExposure = kAssumedExposureValue;
    Canvas m_canvas;
    PtoProject m_project;
};

Result<PtoProject> ProjectMaker::make()
{
    if (const auto failure = checkFocalLength()) {
        return *failure;
    }
    if (const auto failure = collectImages()) {
        return *failure;
    }
    findExposures();
    layOutCanvas();
    appendHeader();
    for (int i = 0; i < m_images.size(); ++i) {
        appendImage(i);
    }
    appendVariables();
    return m_project;
}

std::optional<Failure> ProjectMaker::checkFocalLength() const
{
    const double focal = m_panorama.focal35mm;
    const QString what = Said::tr("focal length");
    const QString tryThis = Said::tr("give it with --focal");
    if (!(focal > 0.0) || !std::isfinite(focal)) {
        return refused(what, Said::tr("neither the record nor the photos name it"), tryThis);
    }
    if (focal < kShortestFocalMm || focal > kLongestFocalMm) {
        return refused(what, Said::tr("no lens has %1 mm").arg(focal), tryThis);
    }
    return {};
}

std::optional<Failure> ProjectMaker::collectImages()
{
    QHash<QPair<int, int>, int> lensMasters;
    for (const Position &position : m_panorama.positions) {
        const int stackMaster = m_images.size();
        m_hasStacks = m_hasStacks || position.photos.size() > 1;
        for (const PhotoInfo &photo : position.photos) {
            if (photo.storedSize.isEmpty()) {
                return refused(photo.path, Said::tr("its size in pixels is not known"),
                               Said::tr("can another program open it? leave it out if not"));
            }
            Image image;
            image.photo = &photo;
            const int index = m_images.size();
            image.stackMaster = index == stackMaster ? -1 : stackMaster;
            const auto size = qMakePair(photo.storedSize.width(), photo.storedSize.height());
            image.lensMaster = lensMasters.value(size, -1);
            if (image.lensMaster < 0) {
                lensMasters.insert(size, index);
            }
            image.yawDegrees = position.yawDegrees;
            image.pitchDegrees = position.pitchDegrees;
            image.rollDegrees = position.rollDegrees + turnDegrees(photo, m_options);
            if (!std::isfinite(image.yawDegrees) || !std::isfinite(image.pitchDegrees)
                || !std::isfinite(image.rollDegrees)) {
                return refused(photo.path, Said::tr("its direction is not a number"),
                               Said::tr("correct the record"));
            }
            if (auto failure = nameImage(image)) {
                return failure;
            }
            m_images.append(image);
        }
    }
    if (m_images.isEmpty()) {
        return refused(Said::tr("the description"), Said::tr("holds no photos"));
    }
    if (lensMasters.size() > 1) {
        m_project.warnings.append(
            Said::tr("the photos have %1 different sizes in pixels").arg(lensMasters.size()));
    }
    return {};
}

std::optional<Failure> ProjectMaker::nameImage(Image &image) const
{
    const QString &path = image.photo->path;
    const auto isUnfit
        = [](QChar c) { return c == QLatin1Char('"') || c.category() == QChar::Other_Control; };
    // Names with a NUL are no names: nothing may ask the system about them.
    const QString name
        = path.contains(QChar::Null) ? path : relativePath(path, m_options.projectFolder);
    if (std::any_of(name.cbegin(), name.cend(), isUnfit)) {
        return refused(path,
                       Said::tr("a Hugin project cannot hold a file name with quotation "
                                "marks or line ends"),
                       Said::tr("rename the file"));
    }
    image.name = QFile::encodeName(name);
    return {};
}

void ProjectMaker::findExposures()
{
    QVector<double> all;
    QVector<double> reference;
    for (const Image &image : qAsConst(m_images)) {
        const auto &exposure = image.photo->exposureValue;
        if (exposure && std::isfinite(*exposure)) {
            all.append(*exposure);
            if (image.stackMaster < 0) {
                reference.append(*exposure);
            }
        }
    }
    m_missingExposure = medianExposure(all).value_or(kAssumedExposureValue);
    m_referenceExposure = medianExposure(reference).value_or(m_missingExposure);
    const int unknown = m_images.size() - all.size();
    if (unknown > 0) {
        m_project.warnings.append(Said::tr("%1 of %2 photos name no exposure; %3 is assumed")
                                      .arg(unknown)
                                      .arg(m_images.size())
                                      .arg(m_missingExposure));
    }
}

void ProjectMaker::layOutCanvas()
{
    QVector<Frame> frames;
    frames.reserve(m_images.size());
    double focal = 0.0;
    for (const Image &image : qAsConst(m_images)) {
        const QSize size = image.photo->storedSize;
        const double pixels = focalPixels(size, m_panorama.focal35mm);
        focal = std::max(focal, pixels);
        if (!isLinked(image)) {
            frames.append({ size, pixels, m_panorama.lens, image.yawDegrees, image.pitchDegrees,
                            image.rollDegrees });
        }
    }
    m_canvas = canvasAround(frames, focal, m_options.width);
    m_project.canvas = m_canvas.size;
    m_project.crop = m_canvas.crop;
    m_project.horizontalFovDegrees = m_canvas.horizontalFovDegrees;
    m_project.yawCentreDegrees = m_canvas.yawCentreDegrees;
}

void ProjectMaker::appendHeader()
{
    QByteArray &text = m_project.text;
    text += "# hugin project file\n#hugin_ptoversion 2\n"
        + PtoFile::centreLine(m_canvas.yawCentreDegrees) + "p f2 w"
        + QByteArray::number(m_canvas.size.width()) + " h"
        + QByteArray::number(m_canvas.size.height()) + " v" + fovText(m_canvas) + " k0 E"
        + ptoNumber(m_referenceExposure, 6) + " R0 ";
    if (!m_canvas.crop.isNull()) {
        text += 'S' + cropText(m_canvas) + ' ';
    }
    text += "n\"TIFF_m c:LZW r:CROP\"\nm i0\n";
    appendOutputs();
}

void ProjectMaker::appendOutputs()
{
    if (m_panorama.description.renderMode == kHdrRadiance) {
        m_project.text += "#hugin_outputLDRBlended false\n#hugin_outputHDRBlended true\n";
    } else if (m_hasStacks) {
        m_project.text += "#hugin_outputLDRBlended false\n#hugin_outputLDRExposureBlended true\n";
    }
}

void ProjectMaker::appendImage(int index)
{
    const Image &image = m_images[index];
    QByteArray &text = m_project.text;
    text += "i w" + QByteArray::number(image.photo->storedSize.width()) + " h"
        + QByteArray::number(image.photo->storedSize.height())
        + (m_panorama.lens == LensModel::Fisheye ? " f3" : " f0");
    if (image.lensMaster < 0) {
        text += " v" + ptoNumber(fov(image), 10)
            + " Ra0 Rb0 Rc0 Rd0 Re0 a0 b0 c0 d0 e0 g0 t0 Va1 Vb0 Vc0 Vd0 Vx0 Vy0";
    } else {
        const QByteArray master = '=' + QByteArray::number(image.lensMaster);
        for (const char *const variable : { "v", "Ra", "Rb", "Rc", "Rd", "Re", "a", "b", "c", "d",
                                            "e", "g", "t", "Va", "Vb", "Vc", "Vd", "Vx", "Vy" }) {
            text += QByteArray(" ") + variable + master;
        }
    }
    const auto &exposure = image.photo->exposureValue;
    const bool known = exposure && std::isfinite(*exposure);
    text += " Eev" + ptoNumber(known ? *exposure : m_missingExposure, 6) + " Er1 Eb1";
    const QByteArray stack = '=' + QByteArray::number(image.stackMaster);
    if (isLinked(image)) {
        for (const char *const variable : { "r", "p", "y", "TrX", "TrY", "TrZ", "Tpy", "Tpp" }) {
            text += QByteArray(" ") + variable + stack;
        }
    } else {
        text += " r" + ptoNumber(wrappedDegrees(image.rollDegrees), 6) + " p"
            + ptoNumber(image.pitchDegrees, 6) + " y"
            + ptoNumber(wrappedDegrees(image.yawDegrees - m_project.yawCentreDegrees), 6)
            + " TrX0 TrY0 TrZ0 Tpy0 Tpp0";
    }
    text += " j" + (image.stackMaster >= 0 ? stack : QByteArray("0")) + "  Vm5 n\"" + image.name
        + "\"\n";
}

void ProjectMaker::appendVariables()
{
    QByteArray &text = m_project.text;
    if (!m_panorama.description.skipOptimization) {
        for (int i = 0; i < m_images.size(); ++i) {
            const QByteArray n = QByteArray::number(i) + '\n';
            if (m_images[i].lensMaster < 0) {
                text += "v v" + n;
            }
            if (i > 0 && !isLinked(m_images[i])) {
                text += "v y" + n + "v p" + n + "v r" + n;
            }
        }
    }
    text += "v\n";
}

} // namespace

Result<PtoProject> makePtoProject(const Panorama &panorama, const PtoOptions &options)
{
    return ProjectMaker(panorama, options).make();
}

Result<PtoFile> projectOf(const Panorama &panorama, const PtoOptions &options)
{
    const auto project = makePtoProject(panorama, options);
    if (!project) {
        return project.error();
    }
    auto file = PtoFile::parse(project.value().text, options.projectFolder);
    if (!file) {
        return file.error();
    }
    QVector<Angles> recorded;
    QVector<double> turns;
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            recorded.append({ position.yawDegrees, position.pitchDegrees, position.rollDegrees });
            turns.append(turnDegrees(photo, options));
        }
    }
    file.value().setRecord(recorded, turns);
    return file;
}

Result<PtoProject> writePtoProject(const Panorama &panorama, const QString &path,
                                   PtoOptions options)
{
    options.projectFolder = QFileInfo(path).absolutePath();
    auto project = makePtoProject(panorama, options);
    if (project) {
        const auto written = writeFileAtomically(path, project.value().text);
        if (!written) {
            return written.error();
        }
    }
    return project;
}

} // namespace PanoHost
