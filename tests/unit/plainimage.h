// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/xiimagedef.h"

#include <QList>

/** A host's photo for tests without a GUI: it has no preview, and counts what it is asked. */
class PlainImage : public XIImageDef
{
public:
    explicit PlainImage(long time)
        : shotTime(time)
    {
    }

    PlainImage(float focal, int lens)
        : focalMm(focal)
        , lensType(lens)
    {
    }

    /** Asked so far, thumbnails apart. */
    [[nodiscard]] int questions() const { return m_questions; }

    float focalMm = 0.0F;
    int lensType = 0;
    long shotTime = 0;

    QPixmap *Thumbnail() override { return nullptr; }
    void Reserved1() override { }
    void Reserved2() override { }
    void Reserved3() override { }
    void Reserved4() override { }
    void Reserved5() override { }
    void Reserved6() override { }
    void Reserved7() override { }
    void Reserved8() override { }
    void Reserved9() override { }
    void Reserved10() override { }
    float FocalLength() override { return answer(focalMm); }
    int LensType() override { return answer(lensType); }
    long ShotTime() override { return answer(shotTime); }
    float Exposure() override { return answer(0.0F); }

private:
    template <typename T> T answer(T value)
    {
        ++m_questions;
        return value;
    }

    int m_questions = 0;
};
