// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xiimagedef.h"
#include "model/structuredpanoramaproperties.h"
#include "shoot/previewlayout.h"
#include "ui/previewpainter.h"

#include <QByteArray>
#include <QList>
#include <QPixmap>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/** Memory that a fuzzer's canvas may take; so small that thousands are drawn in a second. */
constexpr qint64 kFuzzCanvasBytes = 16LL * 1024 * 1024;

/** A regular file in memory whose content changes with every input. */
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    void fill(const uint8_t *data, size_t size) const;
    [[nodiscard]] QString path() const;

private:
    int m_fd;
};

/** A host's photos whose answers follow from their number: odd ones answer nonsense. */
class PhotoSet
{
public:
    /** Photos with small pictures when \p withThumbnails; that needs an application object. */
    PhotoSet(int count, bool withThumbnails);
    ~PhotoSet();

    [[nodiscard]] QStringList names(int count) const { return m_names.mid(0, count); }
    [[nodiscard]] QList<XIImageDef *> images(int count) const { return m_images.mid(0, count); }

private:
    std::vector<std::unique_ptr<XIImageDef>> m_owned;
    QStringList m_names;
    QList<XIImageDef *> m_images;
};

/** An application object without a screen; made by the first call. */
void startOffscreen();

/** What holds for every description that \p photos photos of \p shots shots can give. */
void checkDescription(const StructuredPanoramaProperties &description, int photos, int shots);

/** What holds for every layout: its canvas is within the limits. */
void checkLayout(const PanoHead::PreviewLayout &layout, const PanoHead::LayoutRules &rules);

/**
 * Draws \p layout with half of \p images, then with all, which only patches the first picture, and
 * shows it at \p zoomPercent. The patched picture must be the one that is drawn at once.
 */
void paint(const PanoHead::PreviewLayout &layout, const QList<XIImageDef *> &images,
           PanoHead::CellStyle style, int zoomPercent);
