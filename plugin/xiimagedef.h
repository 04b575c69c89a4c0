// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

class QPixmap;

/**
 * The host's object for one photo. Made by `XIApplication::CreateImageDef`, owned by the host,
 * held here by plain pointers. All operations are called on the GUI thread.
 *
 * Host interface: the order of the operations is fixed; hosts may append further ones.
 */
class XIImageDef
{
public:
    virtual ~XIImageDef() = default;
    /** The photo's preview, owned by this object; may be null. */
    virtual QPixmap *Thumbnail() = 0;
    virtual void Reserved1() = 0;
    virtual void Reserved2() = 0;
    virtual void Reserved3() = 0;
    virtual void Reserved4() = 0;
    virtual void Reserved5() = 0;
    virtual void Reserved6() = 0;
    virtual void Reserved7() = 0;
    virtual void Reserved8() = 0;
    virtual void Reserved9() = 0;
    virtual void Reserved10() = 0;
    /** Millimetres, 35 mm equivalent; 0 when unknown. */
    virtual float FocalLength() = 0;
    /** A `LensModel` value; anything else is ignored. */
    virtual int LensType() = 0;
    /** Capture time; only its order is used. */
    virtual long ShotTime() = 0;
    /** Exposure figure; only equality and order are used. */
    virtual float Exposure() = 0;
};
