// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/shoot.h"

#include "fuzz/check.h"
#include "ui/previewcanvas.h"
#include "ui/zoomedcopy.h"

#include <QGuiApplication>

#include <limits>

#include <sys/mman.h>
#include <unistd.h>

using namespace PanoHead;

namespace
{

constexpr int kComparedPixels = 1 << 20; // larger pictures are not drawn twice

class Photo : public XIImageDef
{
public:
    Photo(int number, bool withThumbnail)
        : m_number(number)
    {
        if (withThumbnail && number % 4 != 3) {
            m_pixmap = std::make_unique<QPixmap>(number % 4 == 2 ? QSize() : QSize(24, 16));
            m_pixmap->fill(QColor::fromHsv(number * 37 % 360, 200, 200));
        }
    }

    QPixmap *Thumbnail() override { return m_pixmap.get(); }
    void Reserved1() override { std::abort(); }
    void Reserved2() override { std::abort(); }
    void Reserved3() override { std::abort(); }
    void Reserved4() override { std::abort(); }
    void Reserved5() override { std::abort(); }
    void Reserved6() override { std::abort(); }
    void Reserved7() override { std::abort(); }
    void Reserved8() override { std::abort(); }
    void Reserved9() override { std::abort(); }
    void Reserved10() override { std::abort(); }
    float FocalLength() override { return m_number % 2 == 0 ? 24.0F : nonsense(); }
    int LensType() override { return m_number % 2 == 0 ? 0 : m_number; }
    long ShotTime() override { return m_number / 3; }
    float Exposure() override
    {
        return m_number % 5 == 1 ? nonsense() : static_cast<float>(-m_number);
    }

private:
    [[nodiscard]] float nonsense() const
    {
        const float values[]
            = { 0.0F, -24.0F, std::numeric_limits<float>::infinity(),
                std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::max() };
        return values[m_number / 2 % 5];
    }

    int m_number;
    std::unique_ptr<QPixmap> m_pixmap;
};

} // namespace

MemoryFile::MemoryFile()
    : m_fd(memfd_create("fuzz", MFD_CLOEXEC))
{
    FUZZ_CHECK(m_fd >= 0);
}

MemoryFile::~MemoryFile()
{
    ::close(m_fd);
}

void MemoryFile::fill(const uint8_t *data, size_t size) const
{
    FUZZ_CHECK(::ftruncate(m_fd, 0) == 0);
    FUZZ_CHECK(::pwrite(m_fd, data, size, 0) == static_cast<ssize_t>(size));
}

QString MemoryFile::path() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_fd);
}

PhotoSet::PhotoSet(int count, bool withThumbnails)
{
    for (int i = 0; i < count; ++i) {
        m_owned.push_back(std::make_unique<Photo>(i, withThumbnails));
        m_images.append(m_owned.back().get());
        m_names.append(QStringLiteral("/photos/%1.jpg").arg(i));
    }
}

PhotoSet::~PhotoSet() = default;

void startOffscreen()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = { name, nullptr };
    if (QCoreApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QGuiApplication(argc, argv); // lives as long as the process
    }
}

void checkDescription(const StructuredPanoramaProperties &description, int photos, int shots)
{
    int grouped = 0;
    for (const QStringList &group : description.imageGroups) {
        FUZZ_CHECK(!group.isEmpty());
        grouped += group.size();
    }
    FUZZ_CHECK(grouped <= photos);
    FUZZ_CHECK(description.yaw.size() == shots && description.pitch.size() == shots);
    FUZZ_CHECK(description.roll.isEmpty() || description.roll.size() == shots);
    for (const AuthorizedLink &link : description.authorizedLinks) {
        FUZZ_CHECK(link.indices.size() == 2 && link.indices[0] != link.indices[1]);
        FUZZ_CHECK(link.indices[0] >= 0 && link.indices[0] < description.imageGroups.size());
        FUZZ_CHECK(link.indices[1] >= 0 && link.indices[1] < description.imageGroups.size());
    }
}

void checkLayout(const PreviewLayout &layout, const LayoutRules &rules)
{
    const qint64 width = layout.canvas.width();
    const qint64 height = layout.canvas.height();
    FUZZ_CHECK(width <= rules.maxSide && height <= rules.maxSide);
    FUZZ_CHECK(layout.isEmpty() || width * height * 4 <= rules.maxCanvasBytes);
}

void paint(const PreviewLayout &layout, const QList<XIImageDef *> &images, CellStyle style,
           int zoomPercent)
{
    const PreviewColours colours{ QBrush(Qt::lightGray), { QPen(Qt::black), QBrush() } };
    const PreviewScene first{ layout, images.mid(0, images.size() / 2), style };
    const PreviewScene second{ layout, images, style };
    PreviewCanvas canvas;
    ZoomedCopy zoomed;
    canvas.update(first, colours, canvas.changeTo(first, colours));
    QPixmap shown
        = QPixmap::fromImage(zoomed.make(canvas.image(), zoomPercent), Qt::NoOpaqueDetection);
    const PreviewCanvas::Change change = canvas.changeTo(second, colours);
    canvas.update(second, colours, change);
    if (!change.everything) {
        zoomed.patch(&shown, canvas.image(), change.region);
    }
    const QSize size = layout.canvas;
    if (!change.everything && qint64{ size.width() } * size.height() <= kComparedPixels) {
        PreviewCanvas whole;
        ZoomedCopy wholeZoomed;
        whole.update(second, colours, whole.changeTo(second, colours));
        const QImage wholeShown = wholeZoomed.make(whole.image(), zoomPercent);
        FUZZ_CHECK(whole.image() == canvas.image());
        FUZZ_CHECK(wholeShown == shown.toImage().convertToFormat(whole.image().format()));
    }
}
