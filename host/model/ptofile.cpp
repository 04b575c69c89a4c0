// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptofile.h"

#include "host/model/canvas.h"
#include "host/model/panorama.h"
#include "host/model/ptoline.h"
#include "host/model/relativepath.h"
#include "host/model/safefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace PanoHost
{

namespace
{

/** 70,000 photos with a million points take 100 MB. */
constexpr qint64 kMostPtoBytes = 128LL * 1024 * 1024;
constexpr int kMostImages = 250'000;
constexpr int kMostPoints = 10'000'000;
constexpr size_t kLongestLine = 65'536;
constexpr int kLongestSide = 10'000'000; ///< of a photo, pixels
/** Beyond it, nothing in a project means anything. */
constexpr double kLargest = 1e9;

constexpr std::string_view kOwnComment = "#panohost ";
constexpr std::string_view kCentre = "#panohost centre";
constexpr std::string_view kHead = "#panohost head";
constexpr std::string_view kRecord = "#panohost record";
constexpr std::string_view kWrong = "#panohost wrong c";

QString textOf(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), int(bytes.size()));
}

bool startsWith(std::string_view line, std::string_view word)
{
    return line.substr(0, word.size()) == word
        && (line.size() == word.size()
            || std::isspace(static_cast<unsigned char>(line[word.size()])));
}

/** The value of the first variable \p name of \p line; empty: there is none. */
std::string_view valueIn(const QByteArray &line, std::string_view name)
{
    std::string_view rest = viewOf(line).substr(1);
    while (const auto variable = takeVariable(rest)) {
        if (variable->name == name) {
            return variable->value;
        }
    }
    return {};
}

/** Whether a project can hold a file of this name. */
bool isFitName(const QString &name)
{
    return std::none_of(name.cbegin(), name.cend(), [](QChar c) {
        return c == QLatin1Char('"') || c.category() == QChar::Other_Control;
    });
}

/** Sets a number to 0 that is another one; links stay. */
void setToZero(QByteArray &line, std::string_view name)
{
    const std::string_view value = valueIn(line, name);
    if (!value.empty() && value[0] != '=' && ptoDouble(value).value_or(1.0) != 0.0) {
        setVariable(line, name, "0");
    }
}

} // namespace

/** Reads a project line by line. Throws a Failure. */
class PtoFile::Reader
{
public:
    Reader(const QByteArray &text, const QString &folder);
    PtoFile read();

private:
    using Values = std::vector<std::string_view>;
    /** A number of an image, its own or another one's. */
    struct Cell {
        double value = 0.0;
        int master = -1; ///< whose number it is
        bool known = false;
    };
    enum Linked { Fov, A, B, C, Exposure, Roll, Pitch, Yaw, Stack, kLinkedCount };
    using Cells = std::array<Cell, kLinkedCount>;
    struct Record {
        int image = 0;
        Angles angles;
        double turnDegrees = 0.0;
        double fovDegrees = 0.0; ///< 0: not said
    };

    [[noreturn]] void refuse(const QString &why, const QString &tryThis = {}) const;
    void readLine(std::string_view line);
    void readImage(std::string_view line);
    void readPoint(std::string_view line, bool isWrong);
    void readMask(std::string_view line);
    void readCentre(std::string_view line);
    void readRecord(std::string_view line);
    void readPath(std::string_view name, PtoImage &image);
    void readLens(std::string_view projection, PtoImage &image) const;
    void link(const Cells &cells, PtoImage &image);
    void checkReferences();
    void fillRecord();
    void noteWidth();

    /** The values of the first variables of these \p names; without data: not there. */
    [[nodiscard]] Values valuesOf(std::string_view line,
                                  const std::vector<std::string_view> &names) const;
    [[nodiscard]] double number(std::string_view name, std::string_view text) const;
    [[nodiscard]] int wholeNumber(std::string_view name, std::string_view text, int least,
                                  int most) const;
    [[nodiscard]] Cell cell(Linked which, std::string_view name, std::string_view text) const;

    PtoFile m_file;
    QString m_realFolder;
    std::vector<Cells> m_cells;
    std::vector<Record> m_records;
    std::vector<int> m_lastOfLens;
    std::vector<int> m_lastOfStack;
    int m_at = 0; ///< where the line begins that is read
};

PtoFile::Reader::Reader(const QByteArray &text, const QString &folder)
{
    m_file.m_text = text;
    m_file.m_folder = QDir::cleanPath(folder);
}

void PtoFile::Reader::refuse(const QString &why, const QString &tryThis) const
{
    const QByteArray &text = m_file.m_text;
    const auto line = std::count(text.cbegin(), text.cbegin() + m_at, '\n') + 1;
    throw Failure{ ExitCode::InputRefused, QStringLiteral("line %1").arg(line), why,
                   tryThis.isEmpty() ? QStringLiteral("open the project in Hugin and save it again")
                                     : tryThis };
}

PtoFile PtoFile::Reader::read()
{
    const QByteArray &text = m_file.m_text;
    while (m_at < text.size()) {
        const int found = text.indexOf('\n', m_at);
        const int end = found < 0 ? text.size() : found + 1;
        readLine(viewOf(text).substr(size_t(m_at), size_t(end - m_at)));
        m_at = end;
    }
    const QString tryThis = QStringLiteral("is it a project that Hugin opens?");
    if (m_file.m_images.isEmpty()) {
        throw Failure{ ExitCode::InputRefused, QStringLiteral("the project"),
                       QStringLiteral("holds no images"), tryThis };
    }
    if (m_file.m_panoramaLine.isEmpty()) {
        throw Failure{ ExitCode::InputRefused, QStringLiteral("the project"),
                       QStringLiteral("has no line for the panorama (p)"), tryThis };
    }
    checkReferences();
    for (PtoImage &image : m_file.m_images) {
        image.angles.yaw += m_file.m_yawCentreDegrees;
    }
    fillRecord();
    noteWidth();
    return std::move(m_file);
}

void PtoFile::Reader::readLine(std::string_view line)
{
    const auto keep = [this, line](Kind kind) {
        m_file.m_lines.push_back({ m_at, m_at + int(line.size()), kind });
    };
    if (startsWith(line, "i")) {
        readImage(line);
        keep(Kind::Image);
        m_file.m_imageLines.emplace_back(line.data(), int(line.size()));
    } else if (startsWith(line, "c")) {
        const int before = m_file.m_points.size();
        readPoint(line.substr(1), false);
        if (m_file.m_points.size() > before) {
            keep(Kind::Point);
        }
    } else if (startsWith(line, "p") && m_file.m_panoramaLine.isEmpty()) {
        (void)valuesOf(line.substr(1), {}); // every mark is closed
        keep(Kind::Panorama);
        m_file.m_panoramaLine = QByteArray(line.data(), int(line.size()));
    } else if (startsWith(line, "k")) {
        readMask(line.substr(1));
    } else if (startsWith(line, "o")) {
        refuse(QStringLiteral("o-lines are of programs older than Hugin"));
    } else if (line.substr(0, kOwnComment.size()) != kOwnComment) {
        return;
    } else if (startsWith(line, kWrong)) {
        readPoint(line.substr(kWrong.size()), true);
        keep(Kind::Point);
    } else if (startsWith(line, kHead)) {
        m_file.m_head = QByteArray(line.data(), int(line.size())).mid(int(kHead.size())).trimmed();
        keep(Kind::Head);
    } else if (startsWith(line, kRecord)) {
        readRecord(line.substr(kRecord.size()));
        keep(Kind::Record);
    } else if (startsWith(line, kCentre)) {
        readCentre(line.substr(kCentre.size()));
        keep(Kind::Centre);
    }
}

PtoFile::Reader::Values PtoFile::Reader::valuesOf(std::string_view line,
                                                  const std::vector<std::string_view> &names) const
{
    if (line.size() > kLongestLine) {
        refuse(QStringLiteral("longer than %1 bytes").arg(kLongestLine));
    }
    Values values(names.size());
    while (const auto variable = takeVariable(line)) {
        if (variable->isUnclosed) {
            refuse(QStringLiteral("the quotation mark at the end of %1 is missing")
                       .arg(textOf(variable->name)));
        }
        for (size_t i = 0; i < names.size(); ++i) {
            if (variable->name == names[i] && values[i].data() == nullptr) {
                values[i] = variable->value;
            }
        }
    }
    return values;
}

double PtoFile::Reader::number(std::string_view name, std::string_view text) const
{
    if (text.data() == nullptr) {
        refuse(QStringLiteral("%1 is missing").arg(textOf(name)));
    }
    const auto value = ptoDouble(text);
    if (!value || std::abs(*value) > kLargest) {
        refuse(QStringLiteral("%1 is no number: '%2'").arg(textOf(name), textOf(text)));
    }
    return *value;
}

int PtoFile::Reader::wholeNumber(std::string_view name, std::string_view text, int least,
                                 int most) const
{
    const double value = number(name, text);
    if (value != std::floor(value) || value < least || value > most) {
        refuse(QStringLiteral("%1 cannot be %2").arg(textOf(name), textOf(text)));
    }
    return int(value);
}

PtoFile::Reader::Cell PtoFile::Reader::cell(Linked which, std::string_view name,
                                            std::string_view text) const
{
    if (text.data() == nullptr) {
        return {};
    }
    if (text.empty() || text[0] != '=') {
        return { number(name, text), -1, true };
    }
    const auto target = ptoInt(text.substr(1));
    const int count = m_file.m_images.size();
    if (!target || *target < 0 || *target >= count) {
        refuse(QStringLiteral("%1%2 links to no image before image %3")
                   .arg(textOf(name), textOf(text))
                   .arg(count));
    }
    Cell linked = m_cells[size_t(*target)][which];
    linked.master = linked.master < 0 ? *target : linked.master;
    return linked;
}

void PtoFile::Reader::readImage(std::string_view line)
{
    static const std::vector<std::string_view> kNames{ "v", "a", "b", "c", "Eev", "r", "p",
                                                       "y", "j", "w", "h", "f",   "n" };
    if (m_file.m_images.size() >= kMostImages) {
        refuse(QStringLiteral("more than %1 images").arg(kMostImages),
               QStringLiteral("align parts of the panorama"));
    }
    const Values values = valuesOf(line.substr(1), kNames);
    Cells cells;
    for (int i = 0; i < kLinkedCount; ++i) {
        cells[size_t(i)] = cell(Linked(i), kNames[size_t(i)], values[size_t(i)]);
    }
    PtoImage image;
    image.size = QSize(wholeNumber("w", values[9], 1, kLongestSide),
                       wholeNumber("h", values[10], 1, kLongestSide));
    image.horizontalFovDegrees = cells[Fov].value;
    readLens(values[11], image);
    readPath(values[12], image);
    image.a = cells[A].value;
    image.b = cells[B].value;
    image.c = cells[C].value;
    if (cells[Exposure].known) {
        image.exposureValue = cells[Exposure].value;
    }
    m_file.m_linksExposures = m_file.m_linksExposures || cells[Exposure].master >= 0;
    image.angles = { cells[Yaw].value, cells[Pitch].value, cells[Roll].value };
    link(cells, image);
    m_cells.push_back(cells);
    m_file.m_images.append(image);
}

void PtoFile::Reader::readLens(std::string_view projection, PtoImage &image) const
{
    const int f = projection.data() == nullptr ? 0 : wholeNumber("f", projection, 0, 1000);
    // Circular and full-frame fisheyes differ by their masks only.
    const bool isFisheye = f == 2 || f == 3;
    if (f != 0 && !isFisheye) {
        refuse(
            QStringLiteral("only normal (f0) and fisheye lenses (f2, f3) are understood, not f%1")
                .arg(f),
            QStringLiteral("choose one of them in Hugin"));
    }
    image.lens = isFisheye ? LensModel::Fisheye : LensModel::Standard;
    const double fov = image.horizontalFovDegrees;
    if (!(fov > 0.0) || (!isFisheye && fov >= 180.0)) {
        refuse(QStringLiteral("no such lens has a field of view of %1 degrees (v)").arg(fov));
    }
}

void PtoFile::Reader::readPath(std::string_view name, PtoImage &image)
{
    const QByteArray bytes(name.data(), int(name.size()));
    const QString path = QFile::decodeName(bytes);
    if (path.isEmpty() || *(name.data() - 1) != '"') {
        refuse(QStringLiteral("names no file (n)"));
    }
    if (!isFitName(path) || QFile::encodeName(path) != bytes) {
        refuse(QStringLiteral("a file name holds what is no letter"),
               QStringLiteral("rename the file"));
    }
    if (!path.startsWith(QStringLiteral("../"))) {
        image.path = QDir::cleanPath(QDir(m_file.m_folder).absoluteFilePath(path));
        return;
    }
    // Going up from a folder that is a link leads to where the link points to.
    if (m_realFolder.isNull()) {
        const QString real = QFileInfo(m_file.m_folder).canonicalFilePath();
        m_realFolder = real.isEmpty() ? m_file.m_folder : real;
    }
    image.path = QDir::cleanPath(QDir(m_realFolder).absoluteFilePath(path));
}

void PtoFile::Reader::link(const Cells &cells, PtoImage &image)
{
    image.lensMaster = cells[Fov].master;
    image.stackMaster = cells[Stack].master;
    image.angleMaster = cells[Yaw].master;
    if (cells[Pitch].master != image.angleMaster || cells[Roll].master != image.angleMaster) {
        refuse(QStringLiteral("yaw, pitch and roll are not linked to the same image"),
               QStringLiteral("link all three of them in Hugin, or none"));
    }
    const int index = m_file.m_images.size();
    const auto join = [index](int master, std::vector<int> &next, std::vector<int> &last) {
        next.push_back(-1);
        last.push_back(index);
        if (master >= 0) {
            next[size_t(last[size_t(master)])] = index;
            last[size_t(master)] = index;
        }
    };
    join(image.lensMaster, m_file.m_nextOfLens, m_lastOfLens);
    join(image.angleMaster, m_file.m_nextOfStack, m_lastOfStack);
    if (image.lensMaster >= 0) {
        const PtoImage &master = m_file.m_images[image.lensMaster];
        if (master.size != image.size || master.lens != image.lens) {
            refuse(QStringLiteral("shares the lens of image %1, of another size or kind")
                       .arg(image.lensMaster),
                   QStringLiteral("give it a lens of its own in Hugin"));
        }
    }
}

void PtoFile::Reader::readPoint(std::string_view line, bool isWrong)
{
    static const std::vector<std::string_view> kNames{ "n", "N", "x", "y", "X", "Y", "t" };
    const Values values = valuesOf(line, kNames);
    const bool isLine = values[6].data() != nullptr && number("t", values[6]) != 0.0;
    if (isLine && !isWrong) {
        return;
    }
    if (m_file.m_points.size() >= kMostPoints) {
        refuse(QStringLiteral("more than %1 control points").arg(kMostPoints),
               QStringLiteral("align parts of the panorama"));
    }
    PtoPoint point;
    point.first = wholeNumber("n", values[0], 0, kMostImages);
    point.second = wholeNumber("N", values[1], 0, kMostImages);
    point.x1 = number("x", values[2]);
    point.y1 = number("y", values[3]);
    point.x2 = number("X", values[4]);
    point.y2 = number("Y", values[5]);
    point.isWrong = isWrong;
    m_file.m_points.append(point);
}

void PtoFile::Reader::readMask(std::string_view line)
{
    const Values values = valuesOf(line, { "i", "t", "p" });
    constexpr std::string_view kNumbers = "0123456789+-.eE ";
    if (values[2].find_first_not_of(kNumbers) != std::string_view::npos) {
        refuse(QStringLiteral("p is no list of corners: '%1'").arg(textOf(values[2])));
    }
    const int type = values[1].data() == nullptr
        ? Mask::Cut
        : wholeNumber("t", values[1], Mask::Cut, Mask::CutInLens);
    m_file.m_masks.push_back({ wholeNumber("i", values[0], 0, kMostImages - 1), type,
                               QByteArray(values[2].data(), int(values[2].size())) });
}

void PtoFile::Reader::readCentre(std::string_view line)
{
    m_file.m_yawCentreDegrees = number("y", valuesOf(line, { "y" })[0]);
    m_file.m_isOurs = true;
}

void PtoFile::Reader::readRecord(std::string_view line)
{
    static const std::vector<std::string_view> kNames{ "i", "y", "p", "r", "turn", "v" };
    const Values values = valuesOf(line, kNames);
    m_records.push_back(
        { wholeNumber("i", values[0], 0, kMostImages),
          { number("y", values[1]), number("p", values[2]), number("r", values[3]) },
          number("turn", values[4]),
          values[5].data() == nullptr ? 0.0 : number("v", values[5]) });
    m_file.m_hasRecord = true;
}

void PtoFile::Reader::checkReferences()
{
    const int count = m_file.m_images.size();
    const auto check = [this, count](int image) {
        if (image >= count) {
            refuse(QStringLiteral("image %1 is not there; the last one is %2")
                       .arg(image)
                       .arg(count - 1));
        }
    };
    int point = 0;
    size_t record = 0;
    for (const Line &line : m_file.m_lines) {
        m_at = line.begin;
        if (line.kind == Kind::Point) {
            check(m_file.m_points.at(point).first);
            check(m_file.m_points.at(point).second);
            ++point;
        } else if (line.kind == Kind::Record) {
            check(m_records[record++].image);
        }
    }
}

void PtoFile::Reader::fillRecord()
{
    QVector<PtoImage> &images = m_file.m_images;
    std::vector<double> rolls;
    for (const PtoImage &image : qAsConst(images)) {
        rolls.push_back(wrappedDegrees(image.angles.roll));
    }
    const auto middle = rolls.begin() + std::ptrdiff_t(rolls.size() / 2);
    std::nth_element(rolls.begin(), middle, rolls.end());
    const double turn = 90.0 * std::round(*middle / 90.0);
    for (PtoImage &image : images) {
        image.recorded = image.angles;
        image.recorded.roll = std::remainder(image.angles.roll - turn, 360.0);
        image.turnDegrees = turn;
        image.recordedFovDegrees = image.horizontalFovDegrees;
    }
    for (const Record &record : m_records) {
        PtoImage &image = images[record.image];
        image.recorded = record.angles;
        image.turnDegrees = record.turnDegrees;
        if (record.fovDegrees > 0.0
            && (image.lens == LensModel::Fisheye || record.fovDegrees < 180.0)) {
            image.recordedFovDegrees = record.fovDegrees;
        }
    }
    for (PtoImage &image : images) {
        if (image.angleMaster >= 0) {
            image.recorded = images.at(image.angleMaster).recorded;
            image.turnDegrees = images.at(image.angleMaster).turnDegrees;
        }
    }
}

void PtoFile::Reader::noteWidth()
{
    const auto width = ptoInt(valueIn(m_file.m_panoramaLine, "w")).value_or(0);
    const auto fov = ptoDouble(valueIn(m_file.m_panoramaLine, "v")).value_or(0.0);
    const double asLarge = qDegreesToRadians(fov) * m_file.longestFocalPixels();
    m_file.m_chosenWidth = std::abs(asLarge - width) > 2.0 ? width : 0;
}

Result<PtoFile> PtoFile::parse(const QByteArray &text, const QString &folder)
{
    try {
        return Reader(text, folder).read();
    } catch (const Failure &failure) {
        return failure;
    }
}

Result<PtoFile> PtoFile::read(const QString &path)
{
    const auto content = readRegularFile(path, kMostPtoBytes);
    if (!content) {
        return content.error();
    }
    auto file = parse(content.value(), QFileInfo(path).absolutePath());
    if (!file) {
        Failure failure = file.error();
        failure.what = path + QStringLiteral(": ") + failure.what;
        return failure;
    }
    return file;
}

QByteArray PtoFile::centreLine(double yawDegrees)
{
    return QByteArray(kCentre.data(), int(kCentre.size())) + " y" + ptoExactNumber(yawDegrees)
        + '\n';
}

double PtoImage::focalPixels() const
{
    return focalPixelsOfFov(size, horizontalFovDegrees, lens);
}

double PtoFile::longestFocalPixels() const
{
    double longest = 0.0;
    for (const PtoImage &image : m_images) {
        longest = std::max(longest, image.focalPixels());
    }
    return longest;
}

void PtoFile::writeYaw(int image)
{
    setVariable(m_imageLines[size_t(image)], "y",
                ptoNumber(wrappedDegrees(m_images.at(image).angles.yaw - m_yawCentreDegrees), 6));
}

void PtoFile::unlinkExposures()
{
    for (int i = 0; m_linksExposures && i < m_images.size(); ++i) {
        QByteArray &line = m_imageLines[size_t(i)];
        if (valueIn(line, "Eev").substr(0, 1) == "=") {
            const auto &exposure = m_images.at(i).exposureValue;
            removeVariable(line, "Eev");
            if (exposure) {
                setVariable(line, "Eev", ptoExactNumber(*exposure));
            }
        }
    }
    m_linksExposures = false;
}

void PtoFile::place(int image, const PtoPlacement &placement)
{
    if (placement.exposureValue) {
        unlinkExposures();
        m_images[image].exposureValue = placement.exposureValue;
        setVariable(m_imageLines[size_t(image)], "Eev", ptoNumber(*placement.exposureValue, 6));
    }
    if (m_images.at(image).angleMaster >= 0) {
        return;
    }
    for (int i = image; i >= 0; i = m_nextOfStack[size_t(i)]) {
        m_images[i].angles = placement.angles;
    }
    QByteArray &line = m_imageLines[size_t(image)];
    setVariable(line, "r", ptoNumber(wrappedDegrees(placement.angles.roll), 6));
    setVariable(line, "p", ptoNumber(placement.angles.pitch, 6));
    writeYaw(image);
    for (const char *const variable : { "TrX", "TrY", "TrZ" }) {
        setToZero(line, variable);
    }
}

void PtoFile::setLens(int master, const PtoLens &lens)
{
    std::vector<std::pair<std::string_view, double>> values{
        { "v", lens.horizontalFovDegrees },
        { "a", lens.a },
        { "b", lens.b },
        { "c", lens.c },
    };
    if (lens.vignetting) {
        // The sRGB curve in the five terms of the camera curves that Hugin knows, 0.23 % rms off:
        // fitted to what nona -r hdr makes of a ramp.
        values.insert(values.end(),
                      { { "Ra", -0.118674 },
                        { "Rb", -1.088815 },
                        { "Rc", -0.213343 },
                        { "Rd", -0.088742 },
                        { "Re", -0.009997 },
                        { "Va", 1.0 },
                        { "Vb", lens.vignetting->b },
                        { "Vc", lens.vignetting->c },
                        { "Vd", lens.vignetting->d },
                        { "Vx", 0.0 },
                        { "Vy", 0.0 } });
    }
    const auto isOfThisLens = [this, master](std::string_view value) {
        const int target
            = value.empty() || value[0] != '=' ? -1 : ptoInt(value.substr(1)).value_or(-1);
        return target >= 0 && target < m_images.size()
            && (target == master || m_images.at(target).lensMaster == master);
    };
    for (int i = master; i >= 0; i = m_nextOfLens[size_t(i)]) {
        PtoImage &image = m_images[i];
        image.horizontalFovDegrees = lens.horizontalFovDegrees;
        image.a = lens.a;
        image.b = lens.b;
        image.c = lens.c;
        QByteArray &line = m_imageLines[size_t(i)];
        for (const auto &[name, value] : values) {
            if (!isOfThisLens(valueIn(line, name))) {
                setVariable(line, name, ptoExactNumber(value));
            }
        }
        for (const char *const variable : { "d", "e", "g", "t" }) {
            if (!isOfThisLens(valueIn(line, variable))) {
                setToZero(line, variable);
            }
        }
    }
}

void PtoFile::setExposure(double value)
{
    setVariable(m_panoramaLine, "E", ptoNumber(value, 6));
}

void PtoFile::setPoints(const QVector<PtoPoint> &points)
{
    m_points = points;
    m_setsPoints = true;
}

void PtoFile::setRecord(const QVector<Angles> &recorded, const QVector<double> &turns)
{
    for (int i = 0; i < m_images.size(); ++i) {
        PtoImage &image = m_images[i];
        const int master = image.angleMaster < 0 ? i : image.angleMaster;
        image.recorded = recorded.at(master);
        image.turnDegrees = turns.at(master);
    }
    keepRecord(m_head);
}

void PtoFile::keepRecord(const QByteArray &head)
{
    m_head = head;
    m_hasRecord = true;
    m_setsRecord = true;
}

Canvas PtoFile::canvas() const
{
    const auto wholeNumber = [this](std::string_view name) {
        return ptoInt(valueIn(m_panoramaLine, name)).value_or(0);
    };
    Canvas canvas;
    canvas.size = QSize(wholeNumber("w"), wholeNumber("h"));
    canvas.crop = cropOf(valueIn(m_panoramaLine, "S"));
    canvas.horizontalFovDegrees = ptoDouble(valueIn(m_panoramaLine, "v")).value_or(360.0);
    canvas.yawCentreDegrees = m_yawCentreDegrees;
    return canvas;
}

bool PtoFile::isEquirectangular() const
{
    return ptoInt(valueIn(m_panoramaLine, "f")).value_or(0) == 2;
}

std::optional<double> PtoFile::exposure() const
{
    return ptoDouble(valueIn(m_panoramaLine, "E"));
}

std::string_view PtoFile::ownValue(int image, std::string_view name) const
{
    std::string_view value = valueIn(m_imageLines[size_t(image)], name);
    // A link leads to an image before the one that it is in: the way has an end.
    for (int at = image; value.substr(0, 1) == "=";) {
        const int target = ptoInt(value.substr(1)).value_or(-1);
        if (target < 0 || target >= at) {
            return "0";
        }
        at = target;
        value = valueIn(m_imageLines[size_t(at)], name);
    }
    return value;
}

Vignetting PtoFile::vignettingOf(int image) const
{
    const auto number
        = [&](std::string_view name) { return ptoDouble(ownValue(image, name)).value_or(0.0); };
    return { number("Vb"), number("Vc"), number("Vd") };
}

QByteArray PtoFile::loneLine(int image, const QByteArray &name, double yawCentreDegrees) const
{
    const QByteArray &own = m_imageLines[size_t(image)];
    QByteArray line = own;
    std::string_view rest = viewOf(own).substr(1);
    while (const auto variable = takeVariable(rest)) {
        if (variable->value.substr(0, 1) == "=") {
            const std::string_view value = ownValue(image, variable->name);
            setVariable(line, variable->name, QByteArray(value.data(), int(value.size())));
        }
    }
    const double yaw = m_images.at(image).angles.yaw - yawCentreDegrees;
    setVariable(line, "y", ptoNumber(wrappedDegrees(yaw), 6));
    setVariable(line, "j", "0");
    setVariable(line, "n", '"' + name + '"');
    return line.trimmed() + '\n';
}

QByteArray PtoFile::maskLines(int image) const
{
    const auto stackOf = [this](int i) {
        const int master = m_images.at(i).stackMaster;
        return master < 0 ? i : master;
    };
    const auto lensOf = [this](int i) {
        const int master = m_images.at(i).lensMaster;
        return master < 0 ? i : master;
    };
    QByteArray lines;
    for (const Mask &mask : m_masks) {
        const bool isKnown = mask.image < m_images.size();
        if ((mask.type == Mask::Cut && mask.image == image)
            || (mask.type == Mask::CutInStack && isKnown && stackOf(mask.image) == stackOf(image))
            || (mask.type == Mask::CutInLens && isKnown && lensOf(mask.image) == lensOf(image))) {
            lines += "k i0 t0 p\"" + mask.corners + "\"\n";
        }
    }
    return lines;
}

bool PtoFile::hasKeepingMasks() const
{
    return std::any_of(m_masks.begin(), m_masks.end(), [](const Mask &mask) {
        return mask.type == Mask::Keep || mask.type == Mask::KeepInStack;
    });
}

void PtoFile::layOutCanvas()
{
    QVector<Frame> frames;
    frames.reserve(m_images.size());
    for (const PtoImage &image : qAsConst(m_images)) {
        if (image.angleMaster < 0) {
            frames.append({ image.size, image.focalPixels(), image.lens, image.angles.yaw,
                            image.angles.pitch, image.angles.roll });
        }
    }
    const Canvas canvas = canvasAround(frames, longestFocalPixels(), m_chosenWidth);
    setVariable(m_panoramaLine, "w", QByteArray::number(canvas.size.width()));
    setVariable(m_panoramaLine, "h", QByteArray::number(canvas.size.height()));
    setVariable(m_panoramaLine, "v", fovText(canvas));
    removeVariable(m_panoramaLine, "S");
    if (!canvas.crop.isNull()) {
        setVariable(m_panoramaLine, "S", cropText(canvas));
    }
    m_yawCentreDegrees = canvas.yawCentreDegrees;
    m_isOurs = true;
    m_setsCentre = true;
    for (int i = 0; i < m_images.size(); ++i) {
        if (m_images.at(i).angleMaster < 0) {
            writeYaw(i);
        }
    }
}

QByteArray PtoFile::pointLines() const
{
    QByteArray lines;
    for (const PtoPoint &point : m_points) {
        lines += point.isWrong ? "#panohost wrong c n" : "c n";
        lines += QByteArray::number(point.first) + " N" + QByteArray::number(point.second) + " x"
            + ptoNumber(point.x1, 4) + " y" + ptoNumber(point.y1, 4) + " X" + ptoNumber(point.x2, 4)
            + " Y" + ptoNumber(point.y2, 4) + " t0\n";
    }
    return lines;
}

QByteArray PtoFile::recordLines() const
{
    QByteArray lines;
    if (!m_head.isEmpty()) {
        lines += QByteArray(kHead.data(), int(kHead.size())) + ' ' + m_head + '\n';
    }
    for (int i = 0; i < m_images.size(); ++i) {
        const PtoImage &image = m_images.at(i);
        if (image.angleMaster < 0) {
            lines += "#panohost record i" + QByteArray::number(i) + " y"
                + ptoExactNumber(image.recorded.yaw) + " p" + ptoExactNumber(image.recorded.pitch)
                + " r" + ptoExactNumber(image.recorded.roll) + " turn"
                + ptoExactNumber(image.turnDegrees) + " v"
                + ptoExactNumber(image.recordedFovDegrees) + '\n';
        }
    }
    return lines;
}

Result<QByteArray> PtoFile::text(const QString &folder) const
{
    const bool moves = QDir::cleanPath(folder) != m_folder;
    // What takes the place of the first line of its kind, or stands where there is none.
    std::optional<QByteArray> centre;
    std::optional<QByteArray> record;
    std::optional<QByteArray> points;
    if (m_setsCentre) {
        centre = centreLine(m_yawCentreDegrees);
    }
    if (m_setsRecord) {
        record = recordLines();
    }
    if (m_setsPoints) {
        points = pointLines();
    }
    QByteArray made;
    made.reserve(m_text.size() + m_text.size() / 4);
    const auto copy
        = [this, &made](int from, int to) { made.append(m_text.constData() + from, to - from); };
    const auto replace = [&made, &copy](const Line &line, std::optional<QByteArray> &lines) {
        if (lines) {
            made += *lines;
            lines->clear();
        } else {
            copy(line.begin, line.end);
        }
    };
    int done = 0;
    int image = 0;
    for (const Line &line : m_lines) {
        copy(done, line.begin);
        done = line.end;
        switch (line.kind) {
        case Kind::Panorama:
            made += centre.value_or(QByteArray());
            if (centre) {
                centre->clear();
            }
            made += m_panoramaLine;
            break;
        case Kind::Image: {
            const auto named = moves ? movedLine(image, folder) : m_imageLines[size_t(image)];
            if (!named) {
                return named.error();
            }
            made += named.value();
            ++image;
            break;
        }
        case Kind::Point:
            replace(line, points);
            break;
        case Kind::Centre:
            replace(line, centre);
            break;
        case Kind::Head:
        case Kind::Record:
            replace(line, record);
            break;
        }
    }
    copy(done, m_text.size());
    const QByteArray missing = record.value_or(QByteArray()) + points.value_or(QByteArray());
    if (!missing.isEmpty() && !made.endsWith('\n')) {
        made += '\n';
    }
    return made + missing;
}

Result<QByteArray> PtoFile::movedLine(int image, const QString &folder) const
{
    QByteArray line = m_imageLines[size_t(image)];
    if (valueIn(line, "n").front() == '/') {
        return line;
    }
    const QString name = relativePath(m_images.at(image).path, folder);
    if (!isFitName(name)) {
        return Failure{ ExitCode::InputRefused, folder,
                        QStringLiteral("a Hugin project cannot hold a way there with quotation "
                                       "marks or line ends"),
                        QStringLiteral("choose another folder") };
    }
    setVariable(line, "n", '"' + QFile::encodeName(name) + '"');
    return line;
}

} // namespace PanoHost
