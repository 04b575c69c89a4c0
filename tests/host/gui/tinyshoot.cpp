// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/gui/tinyshoot.h"

#include "importers/headfacts.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/host/testphotos.h"

#include <QtTest>

void photographTinyShoot(const QString &folder)
{
    const TestShoots::TestShoot shoot = TestShoots::tiny();
    QVERIFY(TestShoots::photographed(shoot, folder));
    PanoHead::NotedShoot noted;
    for (const PanoHost::Pose &pose : TestShoots::recordedAngles(shoot)) {
        PanoHead::NotedShot shot;
        shot.yawDegrees = pose.yawDegrees;
        shot.pitchDegrees = pose.pitchDegrees;
        noted.shots += shot;
    }
    const PanoHead::HeadFacts &head = *PanoHead::headFactsOf(QStringLiteral("papywizard"));
    TestPhotos::writeFile(folder + QStringLiteral("/record.xml"), head.write(noted));
}
