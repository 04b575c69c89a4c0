// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/ptofile.h"

#include <cmath>
#include <stdexcept>

/** Projects as texts. */
namespace PtoTexts
{

using namespace PanoHost;

inline const QString kFolder = QStringLiteral("/photos");

/** As Hugin 2022 saves one: two images of one lens, the second one with its own angles. */
inline const QByteArray kHugins
    = "# hugin project file\n"
      "#hugin_ptoversion 2\n"
      "p f2 w3000 h1500 v360  k0 E12.6 R0 n\"TIFF_m c:LZW r:CROP\"\n"
      "m g1 i0 f0 m2 p0.00784314\n"
      "\n"
      "# image lines\n"
      "#-hugin  cropFactor=1\n"
      "i w1200 h800 f0 v73.7397952916881 Ra0 Rb0 Rc0 Rd0 Re0 Eev12.6438561897747 Er1 Eb1 r90.25 "
      "p45 y-179.5 TrX0 TrY0 TrZ0 Tpy0 Tpp0 j0 a0.001 b-0.02 c0 d0 e0 g0 t0 Va1 Vb0 Vc0 Vd0 Vx0 "
      "Vy0  Vm5 n\"img one.jpg\"\n"
      "#-hugin  cropFactor=1\n"
      "i w1200 h800 f0 v=0 Ra=0 Rb=0 Rc=0 Rd=0 Re=0 Eev13.5 Er1 Eb1 r89.5 p-1e-05 y30 TrX0 TrY0 "
      "TrZ0 Tpy0 Tpp0 j1 a=0 b=0 c=0 d=0 e=0 g=0 t=0 Va=0 Vb=0 Vc=0 Vd=0 Vx=0 Vy=0  Vm5 "
      "n\"/far/img2.jpg\"\n"
      "\n"
      "\n"
      "# specify variables that should be optimized\n"
      "v v0\n"
      "v r1\n"
      "v\n"
      "\n"
      "\n"
      "# control points\n"
      "c n0 N1 x12.5 y45.25 X7.75 Y9 t0\n"
      "c n0 N0 x1 y2 X3 Y4 t1\n"
      "c n1 N0 x13 y46 X8 Y10 t0\n"
      "\n"
      "k i0 t0 p\"1 2 3 4 5 6\"\n"
      "#hugin_optimizeReferenceImage 0\n"
      "#hugin_blender enblend\n";

/** One that is read; \p images are i-lines. */
inline QByteArray project(const QByteArray &images, const QByteArray &more = {})
{
    return "p f2 w100 h50 v360\n" + images + more;
}

/** An i-line with \p variables in place of the usual ones of that name. */
inline QByteArray image(const QByteArray &variables = {}, const QByteArray &name = "a.jpg")
{
    return "i w60 h40 f0 v50 r0 p0 y0 j0 " + variables + " n\"" + name + "\"\n";
}

inline PtoFile parsed(const QByteArray &text)
{
    const auto file = PtoFile::parse(text, kFolder);
    if (!file) {
        throw std::runtime_error(qPrintable(file.error().text()));
    }
    return file.value();
}

inline QByteArray textOf(const PtoFile &file, const QString &folder = kFolder)
{
    return file.text(folder).value();
}

inline QByteArray lineWith(const QByteArray &text, const QByteArray &part)
{
    const QByteArrayList lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (line.contains(part)) {
            return line;
        }
    }
    return {};
}

inline QByteArray withoutCentre(QByteArray text)
{
    return text.replace(lineWith(text, "#panohost centre"), "");
}

inline bool same(const Angles &one, const Angles &other, double tolerance = 0.0)
{
    return std::abs(one.yaw - other.yaw) <= tolerance
        && std::abs(one.pitch - other.pitch) <= tolerance
        && std::abs(one.roll - other.roll) <= tolerance;
}

} // namespace PtoTexts
