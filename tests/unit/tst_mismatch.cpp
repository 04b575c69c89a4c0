// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/mismatch.h"
#include "tests/support/testprogram.h"

#include <QTest>

#include <limits>

using PanoHead::fillsBrackets;
using PanoHead::lastMismatch;
using PanoHead::Mismatch;

Q_DECLARE_METATYPE(PanoHead::Mismatch)

class TestMismatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastDifferenceIsTold_data();
    void theLastDifferenceIsTold();
    void photosComeInWholeBrackets_data();
    void photosComeInWholeBrackets();
};

void TestMismatch::theLastDifferenceIsTold_data()
{
    QTest::addColumn<int>("shots");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<int>("photos");
    QTest::addColumn<double>("recordFocal");
    QTest::addColumn<double>("photoFocal");
    QTest::addColumn<int>("recordLens");
    QTest::addColumn<int>("photoLens");
    QTest::addColumn<Mismatch>("mismatch");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto focal = [](const char *name, double record, double photos, Mismatch mismatch) {
        QTest::newRow(name) << 6 << 1 << 6 << record << photos << 0 << 0 << mismatch;
    };
    const auto counts = [](const char *name, int shots, int bracket, int photos,
                           Mismatch mismatch) {
        QTest::newRow(name) << shots << bracket << photos << 24.0 << 24.0 << 0 << 0 << mismatch;
    };

    counts("all agrees", 12, 3, 12, Mismatch::None);
    counts("no record", -1, 3, 10, Mismatch::None);
    counts("record without shots", 0, 3, 10, Mismatch::None);
    counts("no photos", 12, 5, 0, Mismatch::None);
    counts("broken bracket", 10, 3, 10, Mismatch::Bracketing);
    counts("fewer photos than a bracket", 2, 3, 2, Mismatch::Bracketing);
    counts("bracketing not recorded", 10, -1, 10, Mismatch::None);
    counts("bracketing 0 is none", 10, 0, 10, Mismatch::None);
    counts("bracketing -3 is none", 10, -3, 10, Mismatch::None);
    counts("one photo too few", 12, 1, 11, Mismatch::Count);
    counts("one photo too many", 12, 1, 13, Mismatch::Count);
    counts("count beats bracketing", 12, 3, 13, Mismatch::Count);
    counts("other count in whole brackets", 12, 3, 15, Mismatch::Count);

    // More than a tenth of the photos' focal length: 10 x 3 = 30 > 24, but 10 x 2 = 20 <= 24
    focal("27 against 24 mm", 27.0, 24.0, Mismatch::FocalLength);
    focal("26 against 24 mm", 26.0, 24.0, Mismatch::None);
    focal("21 against 24 mm", 21.0, 24.0, Mismatch::FocalLength);
    focal("22 against 24 mm", 22.0, 24.0, Mismatch::None);
    focal("exactly a tenth more", 22.0, 20.0, Mismatch::None);
    focal("exactly a tenth less", 18.0, 20.0, Mismatch::None);
    focal("a little over a tenth", 22.001, 20.0, Mismatch::FocalLength);
    focal("record without a lens", -1.0, 24.0, Mismatch::None);
    focal("record with focal length 0", 0.0, 24.0, Mismatch::FocalLength);
    focal("negative focal length in the record", -2.0, 24.0, Mismatch::FocalLength);
    focal("photos without a focal length", 24.0, 0.0, Mismatch::None);
    focal("photos with a negative focal length", 24.0, -24.0, Mismatch::None);
    focal("record not a number", nan, 24.0, Mismatch::None);
    focal("photos not a number", 24.0, nan, Mismatch::None);

    QTest::newRow("fisheye photos") << 6 << 1 << 6 << 24.0 << 24.0 << 0 << 1 << Mismatch::LensType;
    QTest::newRow("fisheye record") << 6 << 1 << 6 << 24.0 << 24.0 << 1 << 0 << Mismatch::LensType;
    QTest::newRow("both fisheye") << 6 << 1 << 6 << 24.0 << 24.0 << 1 << 1 << Mismatch::None;
    QTest::newRow("lens type also where no focal length is known")
        << 6 << 1 << 6 << -1.0 << 0.0 << 1 << 0 << Mismatch::LensType;
    QTest::newRow("focal length beats count")
        << 6 << 1 << 7 << 35.0 << 24.0 << 0 << 0 << Mismatch::FocalLength;
    QTest::newRow("lens type beats count")
        << 6 << 1 << 7 << 24.0 << 24.0 << 1 << 0 << Mismatch::LensType;
    QTest::newRow("lens type beats all")
        << 6 << 4 << 7 << 35.0 << 24.0 << 1 << 0 << Mismatch::LensType;
    QTest::newRow("nothing is told without photos, whatever differs")
        << 6 << 4 << 0 << 35.0 << 24.0 << 1 << 0 << Mismatch::None;
    QTest::newRow("nothing is told without a record, whatever differs")
        << -1 << 4 << 6 << 35.0 << 24.0 << 1 << 0 << Mismatch::None;
}

void TestMismatch::theLastDifferenceIsTold()
{
    QFETCH(int, shots);
    QFETCH(int, bracket);
    QFETCH(int, photos);
    QFETCH(double, recordFocal);
    QFETCH(double, photoFocal);
    QFETCH(int, recordLens);
    QFETCH(int, photoLens);
    QTEST(lastMismatch({ shots, { recordFocal, recordLens } }, bracket,
                       { photos, { photoFocal, photoLens } }),
          "mismatch");
}

void TestMismatch::photosComeInWholeBrackets_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<bool>("fills");

    constexpr int kLargest = std::numeric_limits<int>::max();
    QTest::newRow("nine in threes") << 9 << 3 << true;
    QTest::newRow("ten in threes") << 10 << 3 << false;
    QTest::newRow("none in threes") << 0 << 3 << true;
    QTest::newRow("ones") << 7 << 1 << true;
    QTest::newRow("not recorded") << 7 << -1 << true;
    QTest::newRow("0") << 7 << 0 << true;
    QTest::newRow("-3") << 7 << -3 << true;
    QTest::newRow("smallest number") << 7 << std::numeric_limits<int>::min() << true;
    QTest::newRow("largest number") << 7 << kLargest << false;
    QTest::newRow("largest number, no photos") << 0 << kLargest << true;
}

void TestMismatch::photosComeInWholeBrackets()
{
    QFETCH(int, photos);
    QFETCH(int, bracket);
    QTEST(fillsBrackets(photos, bracket), "fills");
}

TEST_CLASS(TestMismatch, QCoreApplication)
#include "tst_mismatch.moc"
