// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/photoanswers.h"

#include "hostlink/xiimagedef.h"
#include "model/lensmodel.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace PanoHead
{

namespace
{

constexpr std::size_t kSome = 100;

bool lacksFocal(float focalMm)
{
    return focalMm == 0.0F || !std::isfinite(focalMm);
}

/** Whether \p photos begins with all of \p known: photos have only been added. */
bool continues(const QList<XIImageDef *> &photos, const QList<XIImageDef *> &known)
{
    return photos.size() >= known.size()
        && std::equal(known.cbegin(), known.cend(), photos.cbegin());
}

} // namespace

bool PhotoAnswers::update(const QList<XIImageDef *> &photos, AskAgain again)
{
    try {
        if (!continues(photos, m_known)) {
            forget();
        }
        const std::deque<int> due = takeDue(again);
        append(photos);
        const bool isOther = askAgain(due, again == AskAgain::Thumbnails);
        if (isOther) {
            sort();
            tallyAll();
        }
        return isOther;
    } catch (...) {
        forget();
        throw;
    }
}

/** Places of the photos to be asked again; they wait no more. */
std::deque<int> PhotoAnswers::takeDue(AskAgain again)
{
    std::deque<int> due;
    if (again == AskAgain::Thumbnails) {
        m_lacking.clear();
        due.resize(m_answers.size());
        std::iota(due.begin(), due.end(), 0);
    } else if (again != AskAgain::Nobody) {
        const std::size_t most = again == AskAgain::Some ? kSome : m_lacking.size();
        const auto end = m_lacking.begin() + std::min(most, m_lacking.size());
        due.assign(m_lacking.begin(), end);
        m_lacking.erase(m_lacking.begin(), end);
    }
    return due;
}

/** Those that still lack an answer have to wait for their next turn. */
bool PhotoAnswers::askAgain(const std::deque<int> &places, bool alsoThumbnails)
{
    bool isOther = false;
    for (const int place : places) {
        isOther = ask(m_answers[place], alsoThumbnails) || isOther;
        if (lacks(m_answers[place])) {
            m_lacking.push_back(place);
        }
    }
    return isOther;
}

/** Asks what is not known yet; true when something has become known or the thumbnail's size has
 * changed. */
bool PhotoAnswers::ask(Answer &answer, bool alsoThumbnail) const
{
    const Answer before = answer;
    if (alsoThumbnail || answer.thumbnail.isEmpty()) {
        answer.thumbnail = m_thumbnailSize(*answer.photo);
    }
    if (m_questions.lens && lacksFocal(answer.focalMm)) {
        answer.focalMm = answer.photo->FocalLength();
    }
    if (m_questions.lens && !isLensModel(answer.lensType)) {
        answer.lensType = answer.photo->LensType();
    }
    if (m_questions.shotTime && answer.shotTime == 0) {
        answer.shotTime = answer.photo->ShotTime();
    }
    return answer.thumbnail != before.thumbnail
        || lacksFocal(answer.focalMm) != lacksFocal(before.focalMm)
        || isLensModel(answer.lensType) != isLensModel(before.lensType)
        || answer.shotTime != before.shotTime;
}

bool PhotoAnswers::lacks(const Answer &answer) const
{
    return answer.thumbnail.isEmpty()
        || (m_questions.lens && (lacksFocal(answer.focalMm) || !isLensModel(answer.lensType)))
        || (m_questions.shotTime && answer.shotTime == 0);
}

/** Photos arrive by tens, most often in the order of their times: only others cost a sort. */
void PhotoAnswers::append(const QList<XIImageDef *> &photos)
{
    bool isInOrder = true;
    for (int place = m_known.size(); place < photos.size(); ++place) {
        Answer answer;
        answer.photo = photos.at(place);
        ask(answer, false);
        const bool isLater = place == 0 || answer.shotTime > m_latest;
        const bool isAsLate = answer.shotTime == m_latest
            && (!m_questions.shotTime || m_questions.equalTimes == EqualTimes::KeepReadingOrder);
        isInOrder = isInOrder && (isLater || isAsLate || m_givesUp);
        m_latest = place == 0 ? answer.shotTime : std::max(m_latest, answer.shotTime);
        m_answers.push_back(answer);
        if (lacks(answer)) {
            m_lacking.push_back(place);
        }
        tally(answer);
        m_order.push_back(place);
        m_inOrder.append(shown(answer));
    }
    m_known = photos;
    if (!isInOrder) {
        sort();
    }
}

void PhotoAnswers::sort()
{
    m_order.resize(m_answers.size());
    std::iota(m_order.begin(), m_order.end(), 0);
    const auto time = [this](int place) { return m_answers[place].shotTime; };
    std::stable_sort(m_order.begin(), m_order.end(),
                     [&time](int a, int b) { return time(a) < time(b); });
    m_latest = m_order.empty() ? 0 : time(m_order.back());
    m_givesUp = m_questions.equalTimes == EqualTimes::GiveUp
        && std::adjacent_find(m_order.cbegin(), m_order.cend(),
                              [&time](int a, int b) { return time(a) == time(b); })
            != m_order.cend();
    if (m_givesUp) {
        std::iota(m_order.begin(), m_order.end(), 0);
    }
    m_inOrder.clear();
    m_inOrder.reserve(static_cast<int>(m_order.size()));
    for (const int place : m_order) {
        m_inOrder.append(shown(m_answers[place]));
    }
}

XIImageDef *PhotoAnswers::shown(const Answer &answer)
{
    return answer.thumbnail.isEmpty() ? nullptr : answer.photo;
}

void PhotoAnswers::tally(const Answer &answer)
{
    if (std::isfinite(answer.focalMm)) {
        m_focalSum += static_cast<double>(answer.focalMm);
        ++m_focalCount;
    }
    if (isLensModel(answer.lensType)) {
        m_lensType = answer.lensType;
    }
}

void PhotoAnswers::tallyAll()
{
    m_focalSum = 0.0;
    m_focalCount = 0;
    m_lensType = 0;
    std::for_each(m_answers.cbegin(), m_answers.cend(),
                  [this](const Answer &answer) { tally(answer); });
}

LensFacts PhotoAnswers::lens() const
{
    return { m_focalCount > 0 ? m_focalSum / m_focalCount : 0.0, m_lensType };
}

QSize PhotoAnswers::firstThumbnail() const
{
    for (const int place : m_order) {
        if (!m_answers[place].thumbnail.isEmpty()) {
            return m_answers[place].thumbnail;
        }
    }
    return {};
}

} // namespace PanoHead
