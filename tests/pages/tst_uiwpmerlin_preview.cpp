// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pictureshoot.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

/** A page at full zoom. */
struct Shoot : PictureShoot {
    Shoot()
        : PictureShoot(papywizard())
    {
    }
    [[nodiscard]] UIWPMerlin &merlinPage() const { return static_cast<UIWPMerlin &>(*page); }
};

} // namespace

/** When the page for Papywizard records draws and when not: by the number of photos. */
class TestUIWPMerlinPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nothingIsDrawnBeforeTheFirstPhoto();
    void sameNumberOfImagesKeepsThePicture();
    void enteringThePageAllowsARedraw();
    void picturesComeWithEveryTenthPhoto();
};

void TestUIWPMerlinPreview::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPMerlinPreview::nothingIsDrawnBeforeTheFirstPhoto()
{
    const Shoot shoot;

    shoot.load(twoByTwo());

    // No photos before and none now: the same number.
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPMerlinPreview::sameNumberOfImagesKeepsThePicture()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();

    // Another record over the same photos: their number has not changed, so the picture stays.
    shoot.loadRecord(4);
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,90"));
    QCOMPARE(shoot.driver.picture(), before);

    // What empties the list first redraws: 90 x 3.2 + 100 = 388.
    shoot.driver.click("m_pbRot90");
    QCOMPARE(shoot.driver.picture().size(), QSize(388, 100));
}

void TestUIWPMerlinPreview::enteringThePageAllowsARedraw()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();

    shoot.merlinPage().initializePage();
    QCOMPARE(shoot.driver.picture(), before);
    shoot.merlinPage().shots.resize(1);
    shoot.merlinPage().UpdatePreview();
    QVERIFY(shoot.driver.picture() != before);
}

void TestUIWPMerlinPreview::picturesComeWithEveryTenthPhoto()
{
    const Shoot shoot;
    shoot.loadRecord(12);
    Gate leave;
    FakePhoto held;
    held.colour = kGreen;
    held.shotTime = 100;
    held.leave = &leave;
    FakePhoto first = held;
    first.colour = kRed;
    first.shotTime = 0;
    QStringList photos = shoot.folder.addPhotos(10, first);
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z1.jpg"), held));
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z2.jpg"), held));

    // Held until the choice itself has been shown, which draws the photos that it finds.
    shoot.driver.chooseFiles(kSelectPhotos, photos);
    QVERIFY(shoot.driver.picture().isNull());
    leave.open(10);
    // Ten are there, two are held back: their cells are outlines.
    QTRY_VERIFY(!shoot.driver.picture().isNull());
    const QImage ten = shoot.driver.picture();
    leave.open(2);
    shoot.driver.waitUntilRead();

    QCOMPARE(cellColour(ten, QPoint(2 + 9 * 96, 2)), kRed);
    QCOMPARE(cellColour(ten, QPoint(2 + 10 * 96, 2)), kBackground);
    const QImage twelve = shoot.driver.picture();
    QCOMPARE(cellColour(twelve, QPoint(2 + 10 * 96, 2)), kGreen);
    QCOMPARE(cellColour(twelve, QPoint(2 + 11 * 96, 2)), kGreen);
}

TEST_CLASS(TestUIWPMerlinPreview, FakeApplication)
#include "tst_uiwpmerlin_preview.moc"
