// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/subtitlelinks.h"

#include <QPushButton>
#include <QRadioButton>

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

} // namespace PanoHead
