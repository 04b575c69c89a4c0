// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "importers/headfacts.h"
#include "shoot/recordlimits.h"

#include <cmath>
#include <cstdint>

using namespace PanoHead;

namespace
{

/** Every other shot: refused with a reason, or just these shots. */
void checkExcerpt(const HeadFacts &head, const QByteArray &bytes, const QVector<NotedShot> &shots)
{
    if (head.excerpt == nullptr) {
        return;
    }
    QVector<int> chosen;
    for (int i = 0; i < shots.size(); i += 2) {
        chosen += i;
    }
    ReadError error;
    const auto excerpt = head.excerpt(bytes, chosen, &error);
    FUZZ_CHECK(excerpt.has_value() == error.reason.isEmpty());
    if (!excerpt) {
        return;
    }
    const auto copied = head.shots(*excerpt, &error);
    FUZZ_CHECK(copied && copied->size() == chosen.size());
    for (int i = 0; i < chosen.size(); ++i) {
        FUZZ_CHECK(copied->at(i).yawDegrees == shots.at(chosen.at(i)).yawDegrees);
        FUZZ_CHECK(copied->at(i).pitchDegrees == shots.at(chosen.at(i)).pitchDegrees);
    }
}

void checkShots(const HeadFacts &head, const QByteArray &bytes, const RecordSummary &summary)
{
    if (head.shots == nullptr) {
        return;
    }
    ReadError error;
    const auto shots = head.shots(bytes, &error);
    FUZZ_CHECK(shots && shots->size() == summary.shotCount && error.reason.isEmpty());
    for (const NotedShot &shot : *shots) {
        FUZZ_CHECK(std::isfinite(shot.yawDegrees) && std::isfinite(shot.pitchDegrees));
        FUZZ_CHECK(shot.rollDegrees == 0.0);
        FUZZ_CHECK(shot.level >= 0 && shot.level < summary.bracketCount);
        FUZZ_CHECK(shot.time.isValid() || shot.time.isNull());
    }
    checkExcerpt(head, bytes, *shots);
}

} // namespace

/** Any bytes as a record of every head: refused with a reason, or of some use. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes
        = QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    for (const HeadFacts *head : allHeadFacts()) {
        if (head->isGrid()) {
            continue;
        }
        ReadError error;
        const auto summary = head->summary(bytes, &error);
        FUZZ_CHECK(summary.has_value() == error.reason.isEmpty());
        if (!summary) {
            FUZZ_CHECK(head->shots == nullptr || !head->shots(bytes, &error));
            continue;
        }
        FUZZ_CHECK(summary->shotCount > 0 && summary->shotCount <= kMaxRecordedShots);
        FUZZ_CHECK(summary->bracketCount > 0);
        FUZZ_CHECK(std::isfinite(summary->focal35mm) && summary->focal35mm >= 0.0);
        FUZZ_CHECK(summary->lens == LensModel::NotChosen || summary->lens == LensModel::Standard
                   || summary->lens == LensModel::Fisheye);
        checkShots(*head, bytes, *summary);
    }
    return 0;
}
