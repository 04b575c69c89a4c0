// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/readingthread.h"
#include "ui/subtitlelinks.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace PanoHead
{

// What the pages connect alike. Pages that connect a widget otherwise do so themselves.

/** Choosing and resetting, on every page. */
template <typename Page> void connectPhotoButtons(Page *page)
{
    QObject::connect(page->m_pbSelectImages, &QPushButton::clicked, page, &Page::SelectImages);
    QObject::connect(page->m_pbReset, &QPushButton::clicked, page, &Page::Reset);
}

/** Hard links go only with the reference level. */
template <typename Page> void connectLinkingChoices(Page *page)
{
    QObject::connect(page->m_rbLevelLinking1, &QRadioButton::clicked, page,
                     &Page::OnLevelLinkingClicked);
    QObject::connect(page->m_rbStackLinking0, &QRadioButton::clicked, page,
                     &Page::OnStackLinkingClicked);
}

/** The links of the about text, which the page shows as its subtitle. */
template <typename Page> void connectAboutText(Page *page)
{
    QObject::connect(new SubtitleLinks(page), &SubtitleLinks::activated, page, &Page::BrowserWeb);
}

/** A record whose angles may count downwards. */
template <typename Page> void connectRecord(Page *page)
{
    QObject::connect(page->m_pbSelectConfigFile, &QPushButton::clicked, page,
                     &Page::SelectConfigFile);
    QObject::connect(page->m_pInverseCoordinates, &QPushButton::clicked, page,
                     &Page::OnInverseCoordinates);
}

/** Everything on a page for records in the Papywizard schema. */
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

} // namespace PanoHead
