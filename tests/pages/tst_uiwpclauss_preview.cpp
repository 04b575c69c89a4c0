// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakeapplication.h"
#include "tests/support/pictureshoot.h"
#include "ui/xui.h"

#include <QtTest>

/** What only the preview of Clauss scripts does. */
class TestUIWPClaussPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void failedScriptShowsNothingThoughPositionsAreLeft();
    void scriptChosenAfterNextIsDrawn();
    void farPositionShrinksThePicture_data();
    void farPositionShrinksThePicture();
};

void TestUIWPClaussPreview::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPClaussPreview::failedScriptShowsNothingThoughPositionsAreLeft()
{
    const PictureShoot shoot(clauss());
    shoot.load(twoByTwo(), shoot.fourPhotos());
    QVERIFY(!shoot.driver.picture().isNull());
    DialogClicker clicker;
    clicker.chooseFiles(
        { shoot.folder.write(QStringLiteral("bad.txt"), "op_shoot\nop_h-angle=nan\nop_shoot\n") });
    clicker.pressButton(QMessageBox::Ok);

    shoot.driver.click(kSelectRecord);

    QVERIFY(clicker.isSettled());
    QCOMPARE(shoot.made.shots->size(), 2);
    QVERIFY(shoot.driver.picture().isNull());
    shoot.setZoom(20);
    QVERIFY(shoot.driver.picture().isNull());
}

/** Next lets go of the photos; the user comes back and chooses another script for them. */
void TestUIWPClaussPreview::scriptChosenAfterNextIsDrawn()
{
    const PictureShoot shoot(clauss());
    shoot.load(twoByTwo(), shoot.fourPhotos());
    QVERIFY(shoot.made.page->validatePage());

    shoot.load({ { 0, 0 }, { 30, 0 }, { 60, 0 }, { 90, 0 } });

    // 96 / 30 = 3.2 pixels per degree: 90 x 3.2 + 100
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(388, 100));
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(290, 2)), kYellow);
}

void TestUIWPClaussPreview::farPositionShrinksThePicture_data()
{
    QTest::addColumn<QVector<ShotAngles>>("shots");
    // At 96 pixels per degree: 96 x 5000 wide; 34,560 x 17,280, which is 2.4 GB.
    QTest::newRow("one degree and far away")
        << QVector<ShotAngles>{ { 0, 0 }, { 1, 0 }, { 5000, 0 } };
    QTest::newRow("the whole sphere in whole degrees")
        << QVector<ShotAngles>{ { 0, -90 }, { 1, -90 }, { 360, 90 } };
    QTest::newRow("as far as numbers go")
        << QVector<ShotAngles>{ { 0, 0 }, { 1, 0 }, { 2147483647, -2147483647 } };
}

void TestUIWPClaussPreview::farPositionShrinksThePicture()
{
    QFETCH(QVector<ShotAngles>, shots);
    const PictureShoot shoot(clauss());
    shoot.setZoom(1); // the label needs no copy of the same size

    shoot.load(shots);

    const QSize hundredth = shoot.driver.picture().size();
    QVERIFY(!hundredth.isEmpty());
    QVERIFY(hundredth.width() <= 327 && hundredth.height() <= 327);
    QVERIFY(qint64{ 4 } * hundredth.width() * hundredth.height() * 10'000 <= 268'435'456);
}

TEST_CLASS(TestUIWPClaussPreview, FakeApplication)
#include "tst_uiwpclauss_preview.moc"
