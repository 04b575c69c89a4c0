// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/overlapdetail.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <functional>

using namespace PanoHost;

namespace
{

constexpr QSize kSize(480, 320);

GreyPicture drawn(const std::function<int(int x, int y)> &light)
{
    GreyPicture picture;
    picture.picture = QImage(kSize, QImage::Format_Grayscale8);
    for (int y = 0; y < kSize.height(); ++y) {
        for (int x = 0; x < kSize.width(); ++x) {
            picture.picture.scanLine(y)[x] = static_cast<uchar>(light(x, y));
        }
    }
    return picture;
}

AlignLens lens()
{
    AlignLens lens;
    lens.size = kSize;
    lens.focalPixels = 320.0;
    return lens;
}

/** Spots of all sizes, at least as large as \p smallest pixels. */
int spots(int x, int y, int smallest)
{
    int light = 128;
    for (int size = smallest; size <= 64; size *= 2) {
        light += (x / size * 7 + y / size * 13) % 5 < 2 ? 14 : -10;
    }
    return light;
}

} // namespace

class TestOverlapDetail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsAreAsTheyAreDrawn();
    void smallPicturesShowNothing();
    void finerDetailIsSharper();
    void whatIsBlackInOneOnlyIsLost();
    void whatDoesNotOverlapIsNotCompared();
    void turnsOfTheCameraAreTakenOut();
};

void TestOverlapDetail::partsAreAsTheyAreDrawn()
{
    // A level more with each pixel to the right in the left half, two for each down in the right.
    const PictureDetail detail(drawn([](int x, int y) { return x < 240 ? x : 2 * (y % 100); }));
    const Eigen::Matrix2d left = detail.fine(0.25, 0.5);
    QCOMPARE(left(0, 0), 1.0);
    QCOMPARE(left(0, 1), 0.0);
    QCOMPARE(left(1, 1), 0.0);
    QCOMPARE(detail.coarse(0.25, 0.5)(0, 0), 64.0); // eight pixels are one
    const Eigen::Matrix2d right = detail.fine(0.75, 0.15); // rows 40 to 79
    QCOMPARE(right(0, 0), 0.0);
    QCOMPARE(right(1, 1), 4.0);
    // The mean of each ten columns.
    QVERIFY(std::abs(detail.brightness(0.25, 0.5) - 119.5) < 1.0);
}

void TestOverlapDetail::smallPicturesShowNothing()
{
    QVERIFY(PictureDetail().isEmpty());
    GreyPicture picture;
    picture.picture = QImage(20, 20, QImage::Format_Grayscale8);
    picture.picture.fill(0);
    QVERIFY(PictureDetail(picture).isEmpty());
    const PictureDetail whole(drawn([](int x, int y) { return spots(x, y, 2); }));
    const Eigen::Matrix3d ahead = Eigen::Matrix3d::Identity();
    QVERIFY(!seenByBoth({ PictureDetail(), lens(), ahead }, { whole, lens(), ahead }));
}

void TestOverlapDetail::finerDetailIsSharper()
{
    const PictureDetail sharp(drawn([](int x, int y) { return spots(x, y, 2); }));
    const PictureDetail soft(drawn([](int x, int y) { return spots(x, y, 8); }));
    const Eigen::Matrix3d ahead = Eigen::Matrix3d::Identity();
    const auto seen = seenByBoth({ soft, lens(), ahead }, { sharp, lens(), ahead });
    QVERIFY(seen->likeness > 0.8);
    QVERIFY(seen->detail > 50.0);
    QVERIFY2(seen->sharpnessOfFirst < 0.5, qPrintable(QString::number(seen->sharpnessOfFirst)));
    QVERIFY2(seen->sharpnessOfSecond > 2.0, qPrintable(QString::number(seen->sharpnessOfSecond)));
    const auto same = seenByBoth({ sharp, lens(), ahead }, { sharp, lens(), ahead });
    QVERIFY(std::abs(same->likeness - 1.0) < 0.01);
    QVERIFY(std::abs(same->sharpnessOfFirst - 1.0) < 0.01);
    QVERIFY(std::abs(same->sharpnessOfSecond - 1.0) < 0.01);
    // Less contrast is not less sharp.
    const PictureDetail faint(drawn([](int x, int y) { return 128 + (spots(x, y, 2) - 128) / 2; }));
    const auto fainter = seenByBoth({ faint, lens(), ahead }, { sharp, lens(), ahead });
    QVERIFY2(std::abs(std::log2(fainter->sharpnessOfFirst / fainter->sharpnessOfSecond)) < 0.3,
             qPrintable(QString::number(fainter->sharpnessOfFirst)));
}

void TestOverlapDetail::whatIsBlackInOneOnlyIsLost()
{
    const PictureDetail whole(drawn([](int x, int y) { return spots(x, y, 2); }));
    const PictureDetail half(drawn([](int x, int y) { return x < 240 ? 0 : spots(x, y, 2); }));
    const Eigen::Matrix3d ahead = Eigen::Matrix3d::Identity();
    const auto seen = seenByBoth({ half, lens(), ahead }, { whole, lens(), ahead });
    QVERIFY2(std::abs(seen->lostInFirst - 0.5) < 0.1,
             qPrintable(QString::number(seen->lostInFirst)));
    QCOMPARE(seen->lostInSecond, 0.0);
}

void TestOverlapDetail::whatDoesNotOverlapIsNotCompared()
{
    const PictureDetail detail(drawn([](int x, int y) { return spots(x, y, 2); }));
    const Eigen::Matrix3d ahead = Eigen::Matrix3d::Identity();
    const Eigen::Matrix3d behind = rotationOf({ 180.0, 0.0, 0.0 });
    QVERIFY(!seenByBoth({ detail, lens(), ahead }, { detail, lens(), behind }));
}

/** Lines that run across in one photo run down in one that is rolled by a quarter. */
void TestOverlapDetail::turnsOfTheCameraAreTakenOut()
{
    const auto lines = [](int along) {
        return 60 + (along / 40 % 2 == 0 ? 80 : 0) + (along / 2 % 2 == 0 ? 20 : 0);
    };
    const PictureDetail across(drawn([&](int /*x*/, int y) { return lines(y); }));
    const PictureDetail down(drawn([&](int x, int /*y*/) { return lines(x + 80); }));
    const Eigen::Matrix3d ahead = Eigen::Matrix3d::Identity();
    const Eigen::Matrix3d rolled = rotationOf({ 0.0, 0.0, 90.0 });
    const auto seen = seenByBoth({ across, lens(), ahead }, { down, lens(), rolled });
    QVERIFY(seen->sharpnessOfFirst > 0.7 && seen->sharpnessOfFirst < 1.4);
    QVERIFY(seen->sharpnessOfSecond > 0.7 && seen->sharpnessOfSecond < 1.4);
    const auto wrong = seenByBoth({ across, lens(), ahead }, { down, lens(), ahead });
    QVERIFY(wrong->sharpnessOfFirst < 0.2);
}

TEST_CLASS(TestOverlapDetail, QCoreApplication)
#include "tst_overlapdetail.moc"
