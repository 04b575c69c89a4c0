// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/angles.h"
#include "shoot/recordedshoot.h"
#include "ui/blocksignal.h"
#include "ui/headpage.h"
#include "ui/messageboxes.h"

#include <QLineEdit>
#include <QPointer>
#include <QScopeGuard>
#include <QSlider>

namespace PanoHead
{

// What the pages with a record do alike.

template <typename Page>
void prepareRecordPage(Page &page, ReadingThread *thread, PagePhotos &photos)
{
    photos.place(page.m_saPreview, thread);
    completePaths(page.m_leConfigFile);
    liftLengthLimit(page.m_leImage);
}

/** Lets the user choose photos; true when there are others to show. */
template <typename Page>
[[nodiscard]] bool choosePhotos(Page &page, ShootState &state, PagePhotos &photos,
                                const FileQuestion &question, ControlShows controlShows)
{
    const QStringList chosen = selectPhotos(&page, question, state.images, controlShows);
    if (chosen.isEmpty()) {
        return false;
    }
    state.images = photos.read(chosen);
    return true;
}

/** Neither record nor photos; the picture is not drawn yet. */
inline void forgetShoot(ShootState &state, ReadingThread &thread, PagePhotos &photos)
{
    state = ShootState();
    photos.forget();
    thread.Clear();
}

template <typename Page> void invertShoot(Page &page, ShootState &state)
{
    invertPitch(page.shots);
    state.invertPitchRange();
}

// And those whose record is read when its path is complete.

template <typename Page> void connectPlainPage(Page *page, ReadingThread *thread)
{
    connectAboutText(page);
    connectPhotoButtons(page);
    connectRecord(page);
    QObject::connect(page->m_leConfigFile, &QLineEdit::editingFinished, page,
                     &Page::SetConfigFFilename);
    QObject::connect(page->m_hSlider, &QSlider::valueChanged, page, &Page::UpdatePreview);
    QObject::connect(thread, &ReadingThread::Loaded, page, &Page::UpdatePreview);
}

/** Reads the record at \p path; true when it cannot be read, which the page is to say. */
template <typename Page>
[[nodiscard]] bool isRefused(Page &page, ShootState &state, const PagePhotos &photos,
                             const QString &path)
{
    bool isRead = false;
    const auto read
        = [&] { isRead = readRecord(state, page.shots, [&] { return page.parse(path); }); };
    return photos.withinMemory(read) && !isRead;
}

/** The record of such a page, in its line edit. */
class PlainRecord
{
public:
    /** Makes \p path the page's record; false when the host deleted the page meanwhile. */
    template <typename Page>
    [[nodiscard]] bool take(Page &page, ShootState &state, const QString &path)
    {
        const QPointer<Page> self(&page);
        const auto done = qScopeGuard([&] {
            if (!self.isNull()) {
                m_isReading = false;
            }
        });
        m_isReading = true;
        state.configPath = path;
        page.ParseConfigFile(path);
        return !self.isNull();
    }

    /** The user has typed a path to its end; false, and nothing to be done, for none or when the
     * host deleted the page meanwhile. */
    template <typename Page> [[nodiscard]] bool takeTyped(Page &page, ShootState &state)
    {
        // An open box takes the focus, so that the edit reports once more.
        if (m_isReading) {
            return false;
        }
        const QString text = page.m_leConfigFile->text();
        // A record that could not be read may have been mended on disk meanwhile.
        const bool isNew = text != state.configPath || state.shotCount < 0;
        return text.isEmpty() || !isNew || take(page, state, text);
    }

    /** Lets the user choose record, known by its \p ending, and photos; true when the page is to
     * be shown anew. Photos come in the dialog's order: who picks them as they were shot keeps it.
     */
    template <typename Page>
    [[nodiscard]] bool choose(Page &page, ShootState &state, PagePhotos &photos,
                              const FileQuestion &question, const QString &ending)
    {
        const auto choice = selectRecord(&page, question, state.configPath, ending);
        if (!choice) {
            return false;
        }
        const QString record = choice->selection.record;
        if (!record.isEmpty() && !take(page, state, record)) {
            return false;
        }
        const QStringList chosen = choice->selection.photos;
        if (!chosen.isEmpty() && chosen != state.images) {
            state.images = photos.read(chosen);
        }
        return true;
    }

private:
    bool m_isReading = false; ///< until the box of a refused record is closed
};

} // namespace PanoHead
