// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

class QPixmap;

/**
 * The host's object for one photo. Made by `XIApplication::CreateImageDef`, owned by the host,
 * held here by plain pointers.
 *
 * An object lives until the page that asked for it is reset, asks for other photos, or is deleted.
 * Its operations are called on the GUI thread, inside the page's own slots only: when the reading
 * thread has signalled, when the user changes what the picture shows, and on Next. Painting, and
 * changes of palette, font or style call none. A page that has handed its description over or has
 * been reset asks its reading thread anew before it touches a photo again; so a host that has
 * taken the description may delete the photos of a page whose slots will not run again.
 *
 * An answer that is missing (no thumbnail or an empty one, focal length 0 or no number, no known
 * lens type, capture time 0) is asked for again: while photos arrive of some photos at a time, of
 * all with the last one and whenever the picture is drawn anew.
 *
 * Host interface: the order of the operations is fixed; hosts may append further ones.
 */
class XIImageDef
{
public:
    virtual ~XIImageDef() = default;
    /** The photo's preview, owned by this object, used at once and not kept; may be null. */
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
    /** Millimetres, 35 mm equivalent; 0 when unknown or not known yet. */
    virtual float FocalLength() = 0;
    /** A `LensModel` value; anything else is ignored. */
    virtual int LensType() = 0;
    /** Capture time, of which only the order is used; 0 when unknown or not known yet. */
    virtual long ShotTime() = 0;
    /** Exposure figure; only equality and order are used. */
    virtual float Exposure() = 0;
};
