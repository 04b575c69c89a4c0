// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/pagephotos.h"

#include "hostlink/readingthread.h"
#include "hostlink/xiimagedef.h"
#include "ui/filedialogs.h"
#include "ui/pagesetup.h"
#include "ui/previewlabel.h"

#include <QPixmap>

#include <algorithm>
#include <utility>

namespace PanoHead
{

namespace
{

QSize thumbnailSize(XIImageDef &photo)
{
    const QPixmap *thumbnail = photo.Thumbnail();
    return thumbnail == nullptr ? QSize() : thumbnail->size();
}

} // namespace

PagePhotos::PagePhotos(const PhotoQuestions &questions, QList<XIImageDef *> *shown,
                       LowMemoryBox box)
    : m_answers(questions, thumbnailSize)
    , m_shown(shown)
    , m_box(std::move(box))
{
}

void PagePhotos::place(QScrollArea *area, ReadingThread *thread)
{
    m_preview = placePreview(area);
    m_thread = thread;
}

const QStringList &PagePhotos::read(const QStringList &files)
{
    m_shown->clear();
    m_areAllAsked = false;
    forget();
    readPhotos(*m_thread, files);
    return files;
}

void PagePhotos::drawAnew()
{
    m_shown->clear();
    m_areAllAsked = false;
    m_isLeft = false;
    m_isDrawnAnew = true;
}

bool PagePhotos::arrived()
{
    if (m_isLeft) {
        return false;
    }
    ask(m_thread->isLastLoaded() ? AskAgain::Unanswered : AskAgain::Some);
    return true;
}

void PagePhotos::look()
{
    m_isLeft = false;
    ask(AskAgain::Nobody);
}

void PagePhotos::ask(AskAgain again)
{
    if (m_shown->isEmpty() && !m_areAllAsked) {
        again = AskAgain::Thumbnails;
        m_areAllAsked = true;
    }
    m_haveNews = m_answers.update(m_thread->XIImageDefs(), again) || m_haveNews;
}

bool PagePhotos::areShown() const
{
    return m_shown->size() == m_answers.inOrder().size() && !m_haveNews;
}

void PagePhotos::show(const PreviewLayout &layout, CellStyle style, int zoomPercent)
{
    const bool isDrawnAnew = std::exchange(m_isDrawnAnew, false);
    m_haveNews = false;
    m_areAllAsked = false;
    *m_shown = m_answers.inOrder();
    m_preview->showScene({ layout, *m_shown, style }, zoomPercent, isDrawnAnew);
}

void PagePhotos::showNothing()
{
    m_preview->showNothing();
    m_haveNews = true; // the next picture has all of them to show
}

void PagePhotos::forget()
{
    std::fill(m_shown->begin(), m_shown->end(), nullptr);
    m_answers.forget();
    m_haveNews = false;
    m_isLeft = false;
    m_preview->forgetPhotos();
}

void PagePhotos::letGo()
{
    forget();
    m_isLeft = true;
}

} // namespace PanoHead
