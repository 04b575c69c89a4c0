// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/parallel.h"
#include "host/view/drawlist.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace PanoHost
{

namespace
{

/** Rows that one thread draws at a time. */
constexpr int kBand = 64;
/** Of a photo's place, in steps of a 65536th. */
constexpr int kPart = 1 << 16;

/** Between \p a and \p b, \p part of 256 towards the latter; two channels at a time. */
QRgb between(QRgb a, QRgb b, quint32 part)
{
    constexpr quint32 kEven = 0x00ff00ffU;
    const quint32 rest = 256U - part;
    const quint32 even = ((a & kEven) * rest + (b & kEven) * part) >> 8U;
    const quint32 odd = ((a >> 8U) & kEven) * rest + ((b >> 8U) & kEven) * part;
    return (even & kEven) | (odd & ~kEven);
}

/** A photo that is asked for the colour of its places. */
class Sampler
{
public:
    explicit Sampler(const FrameFill &fill)
        : m_fill(fill)
        , m_width(fill.texture.width())
        , m_height(fill.texture.height())
        , m_tint(static_cast<quint32>(qAlpha(fill.tint)) * 256U / 255U)
    {
    }

    /** The colour at (\p u, \p v), opaque. */
    [[nodiscard]] QRgb at(float u, float v) const
    {
        QRgb colour = m_fill.plain;
        if (m_width > 0) {
            // Between the middles of four pixels; at the edges the outermost ones go on.
            constexpr auto kMost = static_cast<float>(kPart);
            const int x = static_cast<int>((u * static_cast<float>(m_width) - 0.5F) * kMost);
            const int y = static_cast<int>((v * static_cast<float>(m_height) - 0.5F) * kMost);
            const int left = x >> 16;
            const int top = y >> 16;
            const auto across = static_cast<quint32>((x >> 8) & 0xff);
            const auto down = static_cast<quint32>((y >> 8) & 0xff);
            const int x0 = std::clamp(left, 0, m_width - 1);
            const int x1 = std::clamp(left + 1, 0, m_width - 1);
            const QRgb *upper = line(top);
            const QRgb *lower = line(top + 1);
            colour = between(between(upper[x0], upper[x1], across),
                             between(lower[x0], lower[x1], across), down);
        }
        return (m_tint == 0 ? colour : between(colour, m_fill.tint, m_tint)) | 0xff000000U;
    }

private:
    [[nodiscard]] const QRgb *line(int y) const
    {
        return reinterpret_cast<const QRgb *>(
            m_fill.texture.constScanLine(std::clamp(y, 0, m_height - 1)));
    }

    const FrameFill &m_fill;
    const int m_width;
    const int m_height;
    const quint32 m_tint;
};

/** A triangle, upper corner first, with what u and v gain from pixel to pixel. */
class Triangle
{
public:
    explicit Triangle(const ScreenPoint *corners)
        : m_a(corners[0])
        , m_b(corners[1])
        , m_c(corners[2])
    {
        const float abx = m_b.x - m_a.x;
        const float aby = m_b.y - m_a.y;
        const float acx = m_c.x - m_a.x;
        const float acy = m_c.y - m_a.y;
        const float area = abx * acy - acx * aby;
        m_isFlat = !(std::abs(area) > 1e-9F);
        if (m_isFlat) {
            return;
        }
        m_ux = ((m_b.u - m_a.u) * acy - (m_c.u - m_a.u) * aby) / area;
        m_uy = ((m_c.u - m_a.u) * abx - (m_b.u - m_a.u) * acx) / area;
        m_vx = ((m_b.v - m_a.v) * acy - (m_c.v - m_a.v) * aby) / area;
        m_vy = ((m_c.v - m_a.v) * abx - (m_b.v - m_a.v) * acx) / area;
    }

    [[nodiscard]] bool isFlat() const { return m_isFlat; }
    [[nodiscard]] float top() const { return std::min(std::min(m_a.y, m_b.y), m_c.y); }
    [[nodiscard]] float bottom() const { return std::max(std::max(m_a.y, m_b.y), m_c.y); }

    /** The columns whose middles lie within, on the line through the middle of row \p y. */
    void span(int y, const QRect &clip, int *from, int *to) const
    {
        const float middle = static_cast<float>(y) + 0.5F;
        float left = static_cast<float>(clip.right()) + 2.0F;
        float right = static_cast<float>(clip.left()) - 2.0F;
        const auto cross = [&](const ScreenPoint &p, const ScreenPoint &q) {
            // From the upper corner, so that both triangles at an edge cut it at the same place.
            const ScreenPoint &upper = p.y <= q.y ? p : q;
            const ScreenPoint &lower = p.y <= q.y ? q : p;
            if (middle < upper.y || middle >= lower.y) {
                return;
            }
            const float x
                = upper.x + (middle - upper.y) * (lower.x - upper.x) / (lower.y - upper.y);
            left = std::min(left, x);
            right = std::max(right, x);
        };
        cross(m_a, m_b);
        cross(m_b, m_c);
        cross(m_c, m_a);
        left = std::max(left, static_cast<float>(clip.left()));
        right = std::min(right, static_cast<float>(clip.right()) + 1.0F);
        *from = static_cast<int>(std::ceil(left - 0.5F));
        *to = static_cast<int>(std::ceil(right - 0.5F));
    }

    [[nodiscard]] float u(int x, int y) const
    {
        return m_a.u + (static_cast<float>(x) + 0.5F - m_a.x) * m_ux
            + (static_cast<float>(y) + 0.5F - m_a.y) * m_uy;
    }
    [[nodiscard]] float v(int x, int y) const
    {
        return m_a.v + (static_cast<float>(x) + 0.5F - m_a.x) * m_vx
            + (static_cast<float>(y) + 0.5F - m_a.y) * m_vy;
    }
    [[nodiscard]] float uStep() const { return m_ux; }
    [[nodiscard]] float vStep() const { return m_vx; }

private:
    const ScreenPoint &m_a;
    const ScreenPoint &m_b;
    const ScreenPoint &m_c;
    bool m_isFlat = false;
    float m_ux = 0.0F;
    float m_uy = 0.0F;
    float m_vx = 0.0F;
    float m_vy = 0.0F;
};

/** Draws a triangle where nothing has been drawn yet: the front ones come first. */
void drawTriangle(QImage *picture, const Triangle &triangle, const QRect &clip, bool isCut,
                  const Sampler &sampler)
{
    const int first = std::max(clip.top(), static_cast<int>(std::floor(triangle.top())));
    const int last = std::min(clip.bottom(), static_cast<int>(std::ceil(triangle.bottom())));
    for (int y = first; y <= last; ++y) {
        int from = 0;
        int to = 0;
        triangle.span(y, clip, &from, &to);
        if (from >= to) {
            continue;
        }
        // Not scanLine, which would count references in every thread.
        auto *row = reinterpret_cast<QRgb *>(const_cast<uchar *>(picture->constBits())
                                             + static_cast<qptrdiff>(y) * picture->bytesPerLine());
        float u = triangle.u(from, y);
        float v = triangle.v(from, y);
        for (int x = from; x < to; ++x, u += triangle.uStep(), v += triangle.vStep()) {
            if (row[x] == 0 && (!isCut || (u >= 0.0F && u <= 1.0F && v >= 0.0F && v <= 1.0F))) {
                row[x] = sampler.at(u, v);
            }
        }
    }
}

/** A patch with what it is filled with, and the rows that it reaches. */
struct Filled {
    Filled(const DrawList &list, const Patch &patch, FrameFill with)
        : corners(list.points.data() + patch.first)
        , count(patch.count)
        , isCut(patch.isCut)
        , fill(std::move(with))
        , top(corners[0].y)
        , bottom(corners[0].y)
    {
        for (int i = 1; i < count; ++i) {
            top = std::min(top, corners[i].y);
            bottom = std::max(bottom, corners[i].y);
        }
    }

    [[nodiscard]] bool reaches(const QRect &part) const
    {
        return bottom >= static_cast<float>(part.top())
            && top <= static_cast<float>(part.bottom() + 1);
    }

    const ScreenPoint *corners;
    int count;
    bool isCut;
    FrameFill fill;
    float top;
    float bottom;
};

void drawPatch(QImage *picture, const Filled &patch, const QRect &clip)
{
    const Sampler sampler(patch.fill);
    const auto above = static_cast<float>(clip.top());
    const auto below = static_cast<float>(clip.bottom() + 1);
    for (int i = 0; i < patch.count; i += 3) {
        const ScreenPoint *corners = patch.corners + i;
        if ((corners[0].y < above && corners[1].y < above && corners[2].y < above)
            || (corners[0].y > below && corners[1].y > below && corners[2].y > below)) {
            continue;
        }
        const Triangle triangle(corners);
        if (!triangle.isFlat()) {
            drawTriangle(picture, triangle, clip, patch.isCut, sampler);
        }
    }
}

} // namespace

QImage SoftDrawer::draw(const DrawList &list, const QSize &size, const QRect &clip,
                        const FillOf &fillOf)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) {
        return {};
    }
    picture.fill(0);
    std::vector<Filled> filled;
    filled.reserve(list.patches.size());
    for (const Patch &patch : list.patches) {
        filled.emplace_back(list, patch, fillOf(patch));
    }
    const QRect all = clip.intersected(picture.rect());
    const int bands = (all.height() + kBand - 1) / kBand;
    forEachRow(bands, [&](int band) {
        QRect part(all.left(), all.top() + band * kBand, all.width(), kBand);
        part = part.intersected(all);
        for (auto one = filled.crbegin(); one != filled.crend(); ++one) {
            if (one->reaches(part)) {
                drawPatch(&picture, *one, part);
            }
        }
    });
    return picture;
}

} // namespace PanoHost
