// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/align/support/shootlist.h"

#include <algorithm>

using namespace PanoHost;
using namespace TestShoots;

namespace
{

constexpr QSize kSmallPhoto(600, 400);
constexpr double kLongFocal = 50.0;
constexpr double kGridOverlap = 30.0;
constexpr double kGridPitch = 6.0;
constexpr double kGridPlay = 0.15; // steps of one size come out alike

/** 26 photos all around at 24 mm; the noise of a good camera in good light. */
TestShoot sphere(const char *name)
{
    TestShoot shoot;
    shoot.name = QLatin1String(name);
    shoot.noiseLevels = 1.0;
    setRows(shoot, landscapeRows());
    return shoot;
}

TestShoot wrongFocal(const char *name, double share)
{
    TestShoot shoot = sphere(name);
    shoot.statedFocal35mm = shoot.camera.focal35mm * (1.0 - share);
    return shoot;
}

TestShoot barrel()
{
    TestShoot shoot = sphere("barrel");
    shoot.camera.errors.b = -0.02;
    return shoot;
}

TestShoot fisheye()
{
    TestShoot shoot = sphere("fisheye");
    shoot.camera.projection = Projection::EquidistantFisheye;
    shoot.camera.focal35mm = 12.0;
    shoot.statedFocal35mm = 12.0;
    setRows(shoot, { { 0.0, 6 }, { 90.0, 1 }, { -90.0, 1 } });
    return shoot;
}

TestShoot portrait()
{
    TestShoot shoot = sphere("portrait");
    shoot.mounting = Mounting::PortraitTurned;
    setRows(shoot, portraitRows());
    return shoot;
}

TestShoot partial()
{
    TestShoot shoot = sphere("partial");
    shoot.scene = TestScene::FineTerrace;
    shoot.camera.focal35mm = kLongFocal;
    shoot.statedFocal35mm = kLongFocal;
    setGrid(shoot, 3, 5, 40.0, 0.0);
    shoot.noted = Noted::Papywizard;
    return shoot;
}

TestShoot crooked(TestShoot shoot, const char *name)
{
    shoot.name = QLatin1String(name);
    shoot.faults.mountPitch = 0.8;
    shoot.faults.mountRoll = 0.5;
    return shoot;
}

TestShoot brackets()
{
    TestShoot shoot = sphere("brackets");
    shoot.camera.size = kSmallPhoto;
    shoot.exposures.bracket = { 0.0, -2.0, 2.0 };
    return shoot;
}

/** Two rows with texture; a row and a zenith photo of nothing but sky. */
TestShoot sky()
{
    TestShoot shoot = sphere("sky");
    shoot.scene = TestScene::OpenSky;
    setRows(shoot, { { -40.0, 8 }, { 0.0, 8 }, { 55.0, 8 }, { 90.0, 1 } });
    return shoot;
}

/** With less play, which nobody can take back in the sky: what the mount adds is to be seen. */
TestShoot crookedSky()
{
    TestShoot shoot = crooked(sky(), "sky-crooked");
    shoot.faults.play = 0.15;
    return shoot;
}

TestShoot fullTurnGrid()
{
    TestShoot shoot = grid(0.0);
    shoot.name = QStringLiteral("grid-360");
    shoot.grid.overlapPercent = 25.0;
    shoot.grid.wraps = true;
    setGrid(shoot, 4, 12, kGridOverlap, kGridPitch);
    return shoot;
}

TestShoot clauss()
{
    TestShoot shoot = sphere("clauss");
    shoot.noted = Noted::Clauss;
    setRows(shoot, { { 40.5, 7 }, { 0.0, 8 }, { -40.5, 7 } });
    return shoot;
}

TestShoot slipped()
{
    TestShoot shoot = sphere("slip");
    shoot.faults.slipsFrom = 13;
    return shoot;
}

TestShoot bumped()
{
    TestShoot shoot = sphere("bump");
    shoot.faults.bumped = 10;
    return shoot;
}

TestShoot facade()
{
    TestShoot shoot = sphere("facade");
    shoot.scene = TestScene::Facade;
    setRows(shoot, { { 18.0, 8 }, { -18.0, 8 } });
    return shoot;
}

TestShoot haze()
{
    TestShoot shoot = sphere("haze");
    shoot.scene = TestScene::Haze;
    shoot.noiseLevels = 4.0;
    return shoot;
}

TestShoot room()
{
    TestShoot shoot = sphere("room");
    shoot.scene = TestScene::Room;
    shoot.nodalOffsetMetres = 0.04;
    return shoot;
}

TestShoot vignetting()
{
    TestShoot shoot = sphere("vignetting");
    shoot.camera.errors.vignettingB = -0.45;
    return shoot;
}

TestShoot automaticExposure()
{
    TestShoot shoot = sphere("exposure");
    shoot.exposures.automatic = 0.7;
    shoot.exposures.isTold = false;
    return shoot;
}

} // namespace

TestShoot TestShoots::islands(int above, int below, quint32 seed)
{
    TestShoot shoot = sphere("islands");
    shoot.name += QStringLiteral("-%1-%2-%3").arg(above).arg(below).arg(seed);
    shoot.camera.size = kSmallPhoto;
    shoot.scene = TestScene::PlainBelt;
    shoot.seed = seed;
    setRows(shoot, { { 29.0, above }, { -29.0, below } });
    return shoot;
}

TestShoot TestShoots::grid(double statedPoints)
{
    TestShoot shoot = sphere("grid");
    shoot.name += QStringLiteral("%1%2")
                      .arg(statedPoints < 0.0 ? QLatin1Char('-') : QLatin1Char('+'))
                      .arg(std::fabs(statedPoints));
    shoot.scene = TestScene::FineTerrace;
    shoot.camera.focal35mm = kLongFocal;
    shoot.statedFocal35mm = kLongFocal;
    shoot.faults.play = kGridPlay;
    shoot.grid.overlapPercent = kGridOverlap + statedPoints;
    setGrid(shoot, 4, 9, kGridOverlap, kGridPitch);
    return shoot;
}

TestShoot TestShoots::tiny()
{
    TestShoot shoot = sphere("tiny");
    shoot.camera.size = QSize(300, 200);
    shoot.planned = { { -30.0, 20.0 },  { 0.0, 20.0 },  { 30.0, 20.0 },
                      { -30.0, -15.0 }, { 0.0, -15.0 }, { 30.0, -15.0 } };
    shoot.groups = { { 0, 1, 2 }, { 3, 4, 5 } };
    return shoot;
}

QVector<TestShoot> TestShoots::all()
{
    return { sphere("play"),
             wrongFocal("focal-2", 0.02),
             wrongFocal("focal-5", 0.05),
             barrel(),
             fisheye(),
             portrait(),
             partial(),
             crooked(sphere(""), "crooked"),
             brackets(),
             sky(),
             crookedSky(),
             islands(8, 7, 1),
             grid(-10.0),
             grid(-5.0),
             grid(0.0),
             grid(5.0),
             grid(10.0),
             fullTurnGrid(),
             clauss(),
             slipped(),
             bumped(),
             facade(),
             haze(),
             room(),
             vignetting(),
             automaticExposure() };
}

std::optional<TestShoot> TestShoots::named(const QString &name)
{
    const QVector<TestShoot> shoots = all();
    const auto *const shoot = std::find_if(shoots.begin(), shoots.end(),
                                           [&](const TestShoot &s) { return s.name == name; });
    return shoot == shoots.end() ? std::nullopt : std::optional(*shoot);
}
