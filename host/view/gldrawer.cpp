// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/gldrawer.h"

#include "host/view/thumbnailloader.h"

#include <QHash>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>

#include <algorithm>
#include <array>
#include <cstddef>

namespace PanoHost
{

namespace
{

/** Pixels to a side of the textures that thumbnails share. */
constexpr int kPageSide = 1024;
/** Textures for thumbnails of each size, 4 MB each. */
constexpr std::array<size_t, kThumbnailLevels> kMostPages{ 8, 12, 20 };

constexpr const char *kVertexShader = R"(
attribute highp vec3 place;
attribute highp vec4 tile;
attribute highp vec2 photo;
attribute lowp vec4 plain;
attribute lowp vec4 tint;
uniform highp vec2 perPixel;
varying highp vec4 tileHere;
varying highp vec2 photoHere;
varying lowp vec4 plainHere;
varying lowp vec4 tintHere;
void main()
{
    tileHere = tile;
    photoHere = photo;
    plainHere = plain;
    tintHere = tint;
    gl_Position = vec4(place.xy * perPixel - 1.0, place.z, 1.0);
}
)";

// Beyond the middles of the outermost pixels the photo goes on as they are: beside them on the page
// there are others.
constexpr const char *kFragmentShader = R"(
uniform sampler2D page;
uniform highp float pixel;
varying highp vec4 tileHere;
varying highp vec2 photoHere;
varying lowp vec4 plainHere;
varying lowp vec4 tintHere;
void main()
{
#ifdef CUT
    if (any(lessThan(photoHere, vec2(0.0))) || any(greaterThan(photoHere, vec2(1.0)))) {
        discard;
    }
#endif
    highp vec2 inTile = photoHere * (tileHere.zw + pixel) - 0.5 * pixel;
    highp vec2 at = tileHere.xy + clamp(inTile, vec2(0.0), tileHere.zw);
    lowp vec3 colour = mix(texture2D(page, at).rgb, plainHere.rgb, plainHere.a);
    gl_FragColor = vec4(mix(colour, tintHere.rgb, tintHere.a), 1.0);
}
)";

/** Where a thumbnail is kept: parts of the page. */
struct Tile {
    float left = 0.0F; ///< of its first pixel's middle
    float top = 0.0F;
    float width = 0.0F; ///< to its last pixel's middle
    float height = 0.0F;
    GLuint page = 0; ///< 0: nowhere
};

struct Vertex {
    float x, y, depth;
    float tileLeft, tileTop, tileWidth, tileHeight;
    float u, v;
    std::array<quint8, 4> plain;
    std::array<quint8, 4> tint;
};

bool isByProcessor(QOpenGLFunctions *gl)
{
    const QByteArray name(reinterpret_cast<const char *>(gl->glGetString(GL_RENDERER)));
    const std::array<const char *, 5> known{ "llvmpipe", "softpipe", "swrast", "Software",
                                             "SwiftShader" };
    return std::any_of(known.cbegin(), known.cend(),
                       [&name](const char *one) { return name.contains(one); });
}

std::array<quint8, 4> bytesOf(QRgb colour)
{
    return { static_cast<quint8>(qRed(colour)), static_cast<quint8>(qGreen(colour)),
             static_cast<quint8>(qBlue(colour)), static_cast<quint8>(qAlpha(colour)) };
}

/** Thumbnails of one size, side by side in textures; those used last stay. */
class Tiles
{
public:
    Tiles(int side, size_t mostPages)
        : m_side(side)
        , m_perRow(kPageSide / side)
        , m_mostPages(mostPages)
    {
    }

    Tile tileOf(const QImage &picture, qint64 drawing, QOpenGLFunctions *gl)
    {
        const auto known = m_places.constFind(picture.cacheKey());
        const int place = known != m_places.constEnd() ? *known : add(picture, drawing, gl);
        if (place < 0) {
            return {};
        }
        m_used[static_cast<size_t>(place)].drawing = drawing;
        const QPoint corner = cornerOf(place);
        constexpr auto kSide = static_cast<float>(kPageSide);
        return { (static_cast<float>(corner.x()) + 0.5F) / kSide,
                 (static_cast<float>(corner.y()) + 0.5F) / kSide,
                 static_cast<float>(picture.width() - 1) / kSide,
                 static_cast<float>(picture.height() - 1) / kSide,
                 m_pages[static_cast<size_t>(place / (m_perRow * m_perRow))] };
    }

    void release(QOpenGLFunctions *gl)
    {
        gl->glDeleteTextures(static_cast<GLsizei>(m_pages.size()), m_pages.data());
    }

private:
    struct Use {
        qint64 key = 0;
        qint64 drawing = 0;
    };

    [[nodiscard]] QPoint cornerOf(int place) const
    {
        const int onPage = place % (m_perRow * m_perRow);
        return { onPage % m_perRow * m_side, onPage / m_perRow * m_side };
    }

    int add(const QImage &picture, qint64 drawing, QOpenGLFunctions *gl)
    {
        const int place = freePlace(drawing, gl);
        if (place < 0) {
            return place;
        }
        m_used[static_cast<size_t>(place)].key = picture.cacheKey();
        m_places.insert(picture.cacheKey(), place);
        const QImage bytes = picture.convertToFormat(QImage::Format_RGBX8888);
        const QPoint corner = cornerOf(place);
        gl->glBindTexture(GL_TEXTURE_2D,
                          m_pages[static_cast<size_t>(place / (m_perRow * m_perRow))]);
        gl->glTexSubImage2D(GL_TEXTURE_2D, 0, corner.x(), corner.y(), bytes.width(), bytes.height(),
                            GL_RGBA, GL_UNSIGNED_BYTE, bytes.constBits());
        return place;
    }

    /** A place that this drawing has not used so far; -1: there is none. */
    int freePlace(qint64 drawing, QOpenGLFunctions *gl)
    {
        const size_t perPage = static_cast<size_t>(m_perRow) * static_cast<size_t>(m_perRow);
        if (m_used.size() < m_mostPages * perPage) {
            if (m_used.size() == m_pages.size() * perPage) {
                addPage(gl);
            }
            m_used.push_back({});
            return static_cast<int>(m_used.size()) - 1;
        }
        for (size_t i = 0; i < m_used.size(); ++i) {
            m_next = (m_next + 1) % m_used.size();
            if (m_used[m_next].drawing != drawing) {
                m_places.remove(m_used[m_next].key);
                return static_cast<int>(m_next);
            }
        }
        return -1;
    }

    void addPage(QOpenGLFunctions *gl)
    {
        GLuint page = 0;
        gl->glGenTextures(1, &page);
        gl->glBindTexture(GL_TEXTURE_2D, page);
        gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
        gl->glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, kPageSide, kPageSide, 0, GL_RGBA,
                         GL_UNSIGNED_BYTE, nullptr);
        m_pages.push_back(page);
    }

    int m_side;
    int m_perRow;
    size_t m_mostPages;
    std::vector<GLuint> m_pages;
    std::vector<Use> m_used; ///< one per place that has been given away
    QHash<qint64, int> m_places; ///< by the picture's key
    size_t m_next = 0;
};

class GlDrawer : public PictureDrawer
{
public:
    GlDrawer()
    {
        for (size_t level = 0; level < kThumbnailLevels; ++level) {
            m_tiles.emplace_back(kThumbnailSides[level], kMostPages[level]);
        }
    }

    ~GlDrawer() override
    {
        if (m_context.makeCurrent(&m_surface)) {
            for (Tiles &tiles : m_tiles) {
                tiles.release(m_context.functions());
            }
            m_target.reset();
            m_whole.reset();
            m_cut.reset();
            m_context.doneCurrent();
        }
    }

    GlDrawer(const GlDrawer &) = delete;
    GlDrawer &operator=(const GlDrawer &) = delete;

    /** Whether there is OpenGL that can. */
    [[nodiscard]] bool start(GlBy by)
    {
        QSurfaceFormat format;
        format.setDepthBufferSize(24);
        m_context.setFormat(format);
        if (!m_context.create()) {
            return false;
        }
        m_surface.setFormat(m_context.format());
        m_surface.create();
        if (!m_surface.isValid() || !m_context.makeCurrent(&m_surface)) {
            return false;
        }
        const bool can = QOpenGLFramebufferObject::hasOpenGLFramebufferObjects()
            && (by == GlBy::Any || !isByProcessor(m_context.functions()));
        m_whole = can ? program("") : nullptr;
        m_cut = can ? program("#define CUT\n") : nullptr;
        m_context.doneCurrent();
        return m_whole && m_cut;
    }

    [[nodiscard]] QImage draw(const DrawList &list, const QSize &size, const QRect &clip,
                              const FillOf &fillOf) override
    {
        if (size.isEmpty() || !m_context.makeCurrent(&m_surface)) {
            return {};
        }
        if (!m_target || m_target->size() != size) {
            m_target
                = std::make_unique<QOpenGLFramebufferObject>(size, QOpenGLFramebufferObject::Depth);
        }
        QImage picture;
        if (m_target->isValid() && m_target->bind()) {
            collect(list, fillOf);
            drawAll(size, clip);
            picture = readBack(size);
            m_target->release();
        }
        m_context.doneCurrent();
        return picture;
    }

private:
    /** What is drawn from one texture by one program. */
    struct Batch {
        GLuint page = 0;
        bool isCut = false;
        std::vector<Vertex> vertices;
    };

    static std::unique_ptr<QOpenGLShaderProgram> program(const char *head)
    {
        auto made = std::make_unique<QOpenGLShaderProgram>();
        const bool good = made->addShaderFromSourceCode(QOpenGLShader::Vertex, kVertexShader)
            && made->addShaderFromSourceCode(QOpenGLShader::Fragment,
                                             QByteArray(head) + kFragmentShader);
        const std::array<const char *, 5> names{ "place", "tile", "photo", "plain", "tint" };
        for (size_t i = 0; i < names.size(); ++i) {
            made->bindAttributeLocation(names[i], static_cast<int>(i));
        }
        return good && made->link() ? std::move(made) : nullptr;
    }

    [[nodiscard]] Tile tileOf(const QImage &picture)
    {
        const int side = std::max(picture.width(), picture.height());
        for (size_t level = 0; level < kThumbnailLevels; ++level) {
            if (side <= kThumbnailSides[level]) {
                return m_tiles[level].tileOf(picture, m_drawing, m_context.functions());
            }
        }
        return {};
    }

    Batch &batchFor(GLuint page, bool isCut)
    {
        for (Batch &batch : m_batches) {
            if (batch.page == page && batch.isCut == isCut) {
                return batch;
            }
        }
        m_batches.push_back({ page, isCut, {} });
        return m_batches.back();
    }

    void collect(const DrawList &list, const FillOf &fillOf)
    {
        ++m_drawing;
        for (Batch &batch : m_batches) {
            batch.vertices.clear();
        }
        // The front ones first: what they hide is not worked out.
        const auto count = static_cast<float>(list.patches.size());
        for (size_t i = list.patches.size(); i-- > 0;) {
            const Patch &patch = list.patches[i];
            const FrameFill fill = fillOf(patch);
            const Tile tile = fill.texture.isNull() ? Tile() : tileOf(fill.texture);
            QRgb plain = 0;
            if (tile.page == 0) {
                const QImage &all = fill.texture;
                plain = (all.isNull() ? fill.plain : all.pixel(all.rect().center())) | 0xff000000U;
            }
            std::vector<Vertex> &vertices = batchFor(tile.page, patch.isCut).vertices;
            const float depth = 1.0F - 2.0F * (static_cast<float>(i) + 1.0F) / (count + 2.0F);
            const ScreenPoint *points = list.points.data() + patch.first;
            for (int k = 0; k < patch.count; ++k) {
                const ScreenPoint &point = points[k];
                vertices.push_back({ point.x, point.y, depth, tile.left, tile.top, tile.width,
                                     tile.height, point.u, point.v, bytesOf(plain),
                                     bytesOf(fill.tint) });
            }
        }
    }

    void drawAll(const QSize &size, const QRect &clip)
    {
        QOpenGLFunctions *gl = m_context.functions();
        gl->glViewport(0, 0, size.width(), size.height());
        gl->glDisable(GL_SCISSOR_TEST);
        gl->glDisable(GL_BLEND);
        gl->glDisable(GL_DITHER);
        gl->glEnable(GL_DEPTH_TEST);
        gl->glDepthFunc(GL_LESS);
        gl->glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
        gl->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        gl->glEnable(GL_SCISSOR_TEST);
        // The picture's first row is the lowest here, so that it comes back as the first.
        gl->glScissor(clip.left(), clip.top(), clip.width(), clip.height());
        gl->glActiveTexture(GL_TEXTURE0);
        for (const Batch &batch : m_batches) {
            if (batch.vertices.empty()) {
                continue;
            }
            QOpenGLShaderProgram &program = batch.isCut ? *m_cut : *m_whole;
            program.bind();
            program.setUniformValue("perPixel", 2.0F / static_cast<float>(size.width()),
                                    2.0F / static_cast<float>(size.height()));
            program.setUniformValue("page", 0);
            program.setUniformValue("pixel", 1.0F / kPageSide);
            gl->glBindTexture(GL_TEXTURE_2D, batch.page);
            const auto *bytes = reinterpret_cast<const char *>(batch.vertices.data());
            const auto give = [&](GLuint index, int values, GLenum type, size_t offset) {
                gl->glEnableVertexAttribArray(index);
                gl->glVertexAttribPointer(index, values, type, GL_TRUE, sizeof(Vertex),
                                          bytes + offset);
            };
            give(0, 3, GL_FLOAT, offsetof(Vertex, x));
            give(1, 4, GL_FLOAT, offsetof(Vertex, tileLeft));
            give(2, 2, GL_FLOAT, offsetof(Vertex, u));
            give(3, 4, GL_UNSIGNED_BYTE, offsetof(Vertex, plain));
            give(4, 4, GL_UNSIGNED_BYTE, offsetof(Vertex, tint));
            gl->glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(batch.vertices.size()));
            program.release();
        }
    }

    [[nodiscard]] QImage readBack(const QSize &size)
    {
        QOpenGLFunctions *gl = m_context.functions();
        gl->glPixelStorei(GL_PACK_ALIGNMENT, 4);
        constexpr GLenum kBgra = 0x80E1; // of desktop OpenGL
        const bool isDesktop = !m_context.isOpenGLES() && Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
        QImage picture(size,
                       isDesktop ? QImage::Format_ARGB32_Premultiplied
                                 : QImage::Format_RGBA8888_Premultiplied);
        if (picture.isNull()) {
            return {};
        }
        gl->glReadPixels(0, 0, size.width(), size.height(), isDesktop ? kBgra : GL_RGBA,
                         GL_UNSIGNED_BYTE, picture.bits());
        return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

    QOpenGLContext m_context;
    QOffscreenSurface m_surface;
    std::unique_ptr<QOpenGLShaderProgram> m_whole;
    std::unique_ptr<QOpenGLShaderProgram> m_cut;
    std::unique_ptr<QOpenGLFramebufferObject> m_target;
    std::vector<Tiles> m_tiles; ///< one per size
    std::vector<Batch> m_batches;
    qint64 m_drawing = 0;
};

} // namespace

std::unique_ptr<PictureDrawer> makeGlDrawer(GlBy by)
{
    auto drawer = std::make_unique<GlDrawer>();
    return drawer->start(by) ? std::move(drawer) : nullptr;
}

} // namespace PanoHost
