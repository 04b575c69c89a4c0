// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/makebench.h"

#include "tests/host/align/support/shootlist.h"

#include <QDir>

MakeBench::MakeBench()
{
    const TestShoots::TestShoot shoot = TestShoots::tiny();
    const auto panorama = TestShoots::photographed(shoot, path(QStringLiteral("photos")));
    if (!panorama) {
        return;
    }
    for (const PanoHost::Position &position : panorama.value().positions) {
        m_photos.append(position.photos.first().path);
    }
    QVector<Shot> shots;
    for (const PanoHost::Pose &pose : TestShoots::recordedAngles(shoot)) {
        shots.append({ pose.yawDegrees, pose.pitchDegrees });
    }
    record(QStringLiteral("record.xml"), shots);
    makeFolder(QStringLiteral("whole"));
}

void MakeBench::makeFolder(const QString &name) const
{
    QDir(path({})).mkpath(name);
}

QStringList MakeBench::makeWords(const QString &output, const QStringList &options) const
{
    QStringList words{ QStringLiteral("make"), QStringLiteral("papywizard"),
                       QStringLiteral("record.xml") };
    words += m_photos;
    if (!output.isEmpty()) {
        words += QStringList{ QStringLiteral("-o"), output };
    }
    return words + options;
}

QByteArray MakeBench::wholePicture() const
{
    const QString output = QStringLiteral("whole/pano.jpg");
    return make(output).exitCode == 0 ? content(output) : QByteArray();
}
