// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/photoanswers.h"
#include "ui/previewpainter.h"
#include "ui/withinmemory.h"

#include <QList>
#include <QStringList>

class QScrollArea;
class ReadingThread;

namespace PanoHead
{

class PreviewLabel;

/**
 * The photos of a page: has them read, asks them, shows them in their layout picture and lets go of
 * them. Photo objects are touched inside these calls only, and none is kept past `forget`.
 */
class PagePhotos
{
public:
    /** \p shown is the page's list of the photos in its picture, by capture time; null stands for
     * one without a thumbnail; \p box tells that memory ran out. */
    PagePhotos(const PhotoQuestions &questions, QList<XIImageDef *> *shown, LowMemoryBox box);

    /** Puts an empty preview into \p area, for the photos that \p thread reads. Comes first. */
    void place(QScrollArea *area, ReadingThread *thread);
    [[nodiscard]] PreviewLabel *preview() const { return m_preview; }

    /** Reads \p files from a clean start; answers them. */
    const QStringList &read(const QStringList &files);

    /** Does \p step. False when memory ran out in it, which the box says. */
    template <typename Step> [[nodiscard]] bool withinMemory(const Step &step) const
    {
        return PanoHead::withinMemory(m_box, step);
    }
    /** Does \p step, made of `arrived`, `look` and `show`. No picture is shown when memory runs out
     * in it. */
    template <typename Step> void draw(const Step &step)
    {
        if (!withinMemory(step)) {
            showNothing();
        }
    }
    /** The same for what has arrived, which \p show shows; nothing after `letGo`. */
    template <typename Show> void drawArrived(const Show &show)
    {
        draw([&] {
            if (arrived()) {
                show();
            }
        });
    }
    /** The thread has signalled: new photos are asked, and those that lacked an answer again, all
     * of them at the end of the work. False, and nothing to be done, after `letGo`. */
    [[nodiscard]] bool arrived();
    /** Between the thread's signals: new photos are asked. */
    void look();
    /** The picture is to be drawn anew, for which the next call asks all photos again. */
    void drawAnew();
    /** What the photos say of the lens, as far as they have been asked. */
    [[nodiscard]] LensFacts lens() const { return m_answers.lens(); }
    /** Of the first photo by capture time that has a thumbnail; empty for none. */
    [[nodiscard]] QSize firstThumbnail() const { return m_answers.firstThumbnail(); }
    /** As many photos are shown as there are, and none has given another answer since. */
    [[nodiscard]] bool areShown() const;
    /** Draws the photos into \p layout: all of it anew, or what has changed since the last time. */
    void show(const PreviewLayout &layout, CellStyle style, int zoomPercent);

    /** The photos may be gone from now on, or be others at the same addresses; the picture stays.
     */
    void forget();
    /** The same, and signals that are still on their way from the thread find nothing to do: the
     * page is left, and only what the user does on it brings the photos back. */
    void letGo();
    /** The user does something on the page again after `letGo`. */
    void comeBack() { m_isLeft = false; }

private:
    void ask(AskAgain again);
    void showNothing();

    PhotoAnswers m_answers;
    QList<XIImageDef *> *m_shown;
    LowMemoryBox m_box;
    bool m_haveNews = false;
    bool m_isLeft = false;
    bool m_isDrawnAnew = false;
    bool m_areAllAsked = false; // for the picture that is to be drawn anew
    ReadingThread *m_thread = nullptr;
    PreviewLabel *m_preview = nullptr;
};

} // namespace PanoHead
