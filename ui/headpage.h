// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/readingthread.h"
#include "shoot/previewlayout.h"
#include "shoot/shootstate.h"
#include "ui/connectpage.h"
#include "ui/filedialogs.h"
#include "ui/formviews.h"
#include "ui/handover.h"
#include "ui/pagephotos.h"
#include "ui/pagesetup.h"
#include "ui/previewlabel.h"

#include <QWizardPage>

namespace PanoHead
{

// What every head's page is made of.

/** The order in which a page comes to be; the thread that reads for it becomes its child. */
template <typename Page>
void buildPage(Page &page, ReadingThread *&thread, const PagePhotos &photos,
               const QString &logoPath = {})
{
    page.setupUi(&page);
    if (!logoPath.isEmpty()) {
        setLogo(&page, logoPath);
    }
    thread = new ReadingThread(&page);
    page.CreateWidgets();
    page.CreateConnects();
    page.Reset();
    recolourSubtitle(&page, photos.preview());
}

} // namespace PanoHead
