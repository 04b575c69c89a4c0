// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/photofacts.h"

#include <QList>
#include <QSize>

#include <deque>
#include <vector>

class XIImageDef;

namespace PanoHead
{

/** What photos with the same capture time do to the chronological order. */
enum class EqualTimes {
    KeepReadingOrder, ///< they stand in reading order among themselves
    GiveUp, ///< the whole list stays in reading order
};

/** What a page asks its photos, their thumbnails apart. */
struct PhotoQuestions {
    bool lens = true; ///< focal length and lens type
    bool shotTime = true; ///< without it photos stand in reading order
    EqualTimes equalTimes = EqualTimes::GiveUp;
};

/** Which photos are asked once more; new ones are asked in any case. */
enum class AskAgain {
    Nobody,
    Some, ///< at most 100 that lack an answer, in turn
    Unanswered, ///< all that lack an answer
    Thumbnails, ///< all for their thumbnails, and all that lack another answer for that
};

/**
 * What the photos of a page have answered. A host may know less at first than later: an empty
 * thumbnail, a focal length of 0 or that is no number, an unknown lens type and a capture time of 0
 * are missing answers. All others are kept, so that no photo is asked twice for the same.
 */
class PhotoAnswers
{
public:
    /** Size of a photo's thumbnail, pixels; empty: it has none yet. */
    using ThumbnailSize = QSize (*)(XIImageDef &photo);

    PhotoAnswers(const PhotoQuestions &questions, ThumbnailSize thumbnailSize)
        : m_questions(questions)
        , m_thumbnailSize(thumbnailSize)
    {
    }

    /**
     * Asks \p photos, which stand in reading order. Photos behind those already known are new ones;
     * any other list is a new start. True when a known photo has given another answer. Without
     * memory it throws std::bad_alloc and knows no photos.
     */
    bool update(const QList<XIImageDef *> &photos, AskAgain again = AskAgain::Nobody);
    /** The photos known so far may be gone. */
    void forget() { *this = PhotoAnswers(m_questions, m_thumbnailSize); }

    /** Mean focal length, and the lens type of the last photo that knows its own. Focal lengths of
     * 0 count, those that are no number do not. */
    [[nodiscard]] LensFacts lens() const;
    /** By capture time; none is lost. Null stands for a photo without a thumbnail. */
    [[nodiscard]] const QList<XIImageDef *> &inOrder() const { return m_inOrder; }
    /** Of the first photo in order that has one; empty for none. */
    [[nodiscard]] QSize firstThumbnail() const;

private:
    struct Answer {
        XIImageDef *photo = nullptr;
        QSize thumbnail;
        float focalMm = 0.0F;
        int lensType = -1;
        long shotTime = 0;
    };

    [[nodiscard]] std::deque<int> takeDue(AskAgain again);
    bool askAgain(const std::deque<int> &places, bool alsoThumbnails);
    bool ask(Answer &answer, bool alsoThumbnail) const;
    void append(const QList<XIImageDef *> &photos);
    void sort();
    void tally(const Answer &answer);
    void tallyAll();
    [[nodiscard]] bool lacks(const Answer &answer) const;
    [[nodiscard]] static XIImageDef *shown(const Answer &answer);

    PhotoQuestions m_questions;
    ThumbnailSize m_thumbnailSize;
    QList<XIImageDef *> m_known; // reading order
    std::vector<Answer> m_answers; // reading order
    std::deque<int> m_lacking; // places in m_answers; who is next to be asked stands first
    QList<XIImageDef *> m_inOrder;
    std::vector<int> m_order; // places in m_answers, as in m_inOrder
    long m_latest = 0; // of all capture times
    bool m_givesUp = false; // there are equal times, so that reading order holds
    double m_focalSum = 0.0; // mm
    int m_focalCount = 0;
    int m_lensType = 0;
};

} // namespace PanoHead
