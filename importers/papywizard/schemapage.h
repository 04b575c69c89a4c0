// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/displaytexts.h"
#include "ui/plaintooltip.h"
#include "ui/recordpage.h"

#include <algorithm>

namespace PanoHead
{

// What the pages for records in the Papywizard schema do alike. Such a page is a `MerlinToSPP`.

/** \p lensNames come in the order of `LensModel`. */
template <typename Page>
void prepareSchemaPage(Page &page, ReadingThread *thread, PagePhotos &photos,
                       const QStringList &lensNames)
{
    prepareRecordPage(page, thread, photos);
    fillLensTypes(page.m_cbLensType, lensNames);
    new PlainToolTip(page.m_leConfigFile);
}

template <typename Page> void connectSchemaPage(Page *page, ReadingThread *thread)
{
    connectAboutText(page);
    connectPhotoButtons(page);
    connectRecord(page);
    connectLinkingChoices(page);
    QObject::connect(page->m_leConfigFile, &QLineEdit::textEdited, page, &Page::SetConfigFFilename);
    QObject::connect(page->m_hSlider, &QSlider::valueChanged, page, &Page::OnZoomChanged);
    QObject::connect(thread, &ReadingThread::Loaded, page, &Page::OnImageLoaded);
    QObject::connect(page->m_pbRot90, &QPushButton::clicked, page, &Page::OnRotate90);
    QObject::connect(page->m_pbRot270, &QPushButton::clicked, page, &Page::OnRotate270);
    QObject::connect(page->m_pbFLUseXML, &QPushButton::clicked, page, &Page::OnFLUseXML);
    QObject::connect(page->m_pbFLUseImage, &QPushButton::clicked, page, &Page::OnFLUseImage);
}

/** The page shows \p path as its record, from now on and whether or not it can be read. */
template <typename Page> void takeRecord(Page &page, ShootState &state, const QString &path)
{
    state.configPath = path;
    page.ParseConfigFile(path);
    page.UpdateUI();
    Q_EMIT page.completeChanged();
}

/** The description counts at least one photo per position; \p box warns, and the answer is false,
 * when the photos do not come in whole brackets. */
template <typename Page>
[[nodiscard]] bool comesInBrackets(Page &page, const ShootState &state, const BoxTexts &box)
{
    if (warnsOfBrackets(&page, state.images.size(), page.nbPicts, box)) {
        return false;
    }
    page.nbPicts = std::max(page.nbPicts, 1);
    return true;
}

/** Photos have been read: what they say of the lens is preset. False after the page was left. */
template <typename Page>
[[nodiscard]] bool presetFromPhotos(Page &page, ShootState &state, PagePhotos &photos)
{
    bool isLeft = false;
    photos.draw([&] { isLeft = !photos.arrived(); });
    if (isLeft) {
        return false;
    }
    const LensFacts preset = adoptPhotos(state, { page.xmlFocal, page.xmlLensType }, photos.lens());
    if (preset.focalMm > 0.0) {
        setLens(lensViewOf(page), preset);
    }
    return true;
}

/** Asks new photos. Those that know their lens late count from now on; what the user has entered
 * stays. */
template <typename Page> void lookAtPhotos(const Page &page, ShootState &state, PagePhotos &photos)
{
    photos.look();
    (void)adoptPhotos(state, { page.xmlFocal, page.xmlLensType }, photos.lens());
}

} // namespace PanoHead
