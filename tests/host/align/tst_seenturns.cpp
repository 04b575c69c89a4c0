// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/seenturns.h"
#include "tests/host/align/support/shootlist.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;
using namespace TestShoots;

namespace
{

/** Six photos that overlap, and one of what is behind. */
TestShoot withOneBehind(Mounting mounting)
{
    TestShoot shoot = tiny();
    shoot.mounting = mounting;
    shoot.planned += Pose{ 170.0, 10.0 };
    shoot.groups = { { 0, 1, 2, 3, 4, 5, 6 } };
    return shoot;
}

struct Taken {
    explicit Taken(Mounting mounting = Mounting::Landscape)
        : shoot(withOneBehind(mounting))
    {
        const Panorama panorama = photographed(shoot, folder.path()).value();
        for (const Position &position : panorama.positions) {
            photos += position.photos.first();
        }
    }

    /** Where the photo, upright, truly points. */
    [[nodiscard]] Eigen::Matrix3d upright(int photo) const
    {
        const double turn = clockwiseDegrees(photos[photo].orientation);
        return trueRotations(shoot).at(static_cast<size_t>(photo))
            * rotationOf({ 0.0, 0.0, turn }).transpose();
    }

    QTemporaryDir folder;
    TestShoot shoot;
    QVector<PhotoInfo> photos;
};

} // namespace

class TestSeenTurns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsAreSeen_data();
    void turnsAreSeen();
    void nothingInCommonSaysNothing();
    void photosThatCannotBeComparedSayNothing();
    void sharperPhotosHaveMoreDetail();
};

void TestSeenTurns::turnsAreSeen_data()
{
    QTest::addColumn<bool>("isPortrait");
    QTest::newRow("landscape") << false;
    QTest::newRow("portrait, stored as the sensor has it") << true;
}

void TestSeenTurns::turnsAreSeen()
{
    QFETCH(bool, isPortrait);
    const Taken taken(isPortrait ? Mounting::PortraitTurned : Mounting::Landscape);
    SeenTurns turns(taken.photos, 24.0, LensModel::Standard);
    for (const auto &[one, other] : { QPair<int, int>(0, 1), { 1, 0 }, { 1, 2 }, { 1, 4 } }) {
        const auto seen = turns.between(one, other);
        QVERIFY2(seen.has_value(), qPrintable(QString::number(one)));
        const Eigen::Matrix3d right = taken.upright(other).transpose() * taken.upright(one);
        const double off = degreesBetween(*seen, right);
        QVERIFY2(off < 0.3, qPrintable(QString::number(off)));
    }
}

void TestSeenTurns::nothingInCommonSaysNothing()
{
    const Taken taken;
    SeenTurns turns(taken.photos, 24.0, LensModel::Standard);
    for (int photo = 0; photo < 6; ++photo) {
        QVERIFY(!turns.between(photo, 6));
    }
}

void TestSeenTurns::photosThatCannotBeComparedSayNothing()
{
    Taken taken;
    SeenTurns withoutLens(taken.photos, 0.0, LensModel::NotChosen);
    QVERIFY(!withoutLens.between(0, 1));
    QVERIFY(QFile::remove(taken.photos[0].path));
    taken.photos[2].storedSize.transpose();
    SeenTurns turns(taken.photos, 24.0, LensModel::Standard);
    QVERIFY(!turns.between(0, 1));
    QVERIFY(!turns.between(1, 2));
    QVERIFY(turns.between(1, 4));
    QVERIFY(turns.sharpness(0) < 0.0);
}

void TestSeenTurns::sharperPhotosHaveMoreDetail()
{
    Taken taken;
    const QImage sharp(taken.photos[1].path);
    const QImage blurred
        = sharp.scaled(sharp.size() / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
              .scaled(sharp.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    PhotoInfo copy = taken.photos[1];
    copy.path = taken.folder.filePath(QStringLiteral("blurred.jpg"));
    QVERIFY(blurred.save(copy.path, "JPG", 95));
    taken.photos += copy;
    SeenTurns turns(taken.photos, 24.0, LensModel::Standard);
    QVERIFY(turns.sharpness(1) > 2.0 * turns.sharpness(7));
    QVERIFY(turns.sharpness(7) > 0.0);
}

TEST_CLASS(TestSeenTurns, QCoreApplication)
#include "tst_seenturns.moc"
