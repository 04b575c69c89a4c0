// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "incidents.h"
#include "photoshoot.h"
#include "testprogram.h"

#include <QDoubleSpinBox>
#include <QTest>

/** Pages ask photo objects in their slots alone, and keep none for later. */
class TestPhotoObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void noPhotoIsAskedBetweenSlotsWhilePhotosAreRead_data();
    void noPhotoIsAskedBetweenSlotsWhilePhotosAreRead();
    void noPhotoIsAskedBetweenSlotsOnceAllAreRead_data();
    void noPhotoIsAskedBetweenSlotsOnceAllAreRead();
    void photosMayGoAfterNext_data();
    void photosMayGoAfterNext();
    void photosMayGoAfterBack_data();
    void photosMayGoAfterBack();
    void photosMayGoWhileASignalIsOnItsWay_data();
    void photosMayGoWhileASignalIsOnItsWay();
    void photosMayGoAfterReset_data();
    void photosMayGoAfterReset();
    void nothingAsksForPhotosThatWentWithReset_data();
    void nothingAsksForPhotosThatWentWithReset();
    void photosMayGoWhenOthersAreAskedFor_data();
    void photosMayGoWhenOthersAreAskedFor();
    void photosMayGoWithTheirPage_data();
    void photosMayGoWithTheirPage();

    void theNextSlotAfterNextTakesThePhotosAsTheyAre_data();
    void theNextSlotAfterNextTakesThePhotosAsTheyAre();
    void aSecondNextHandsOverAgain_data();
    void aSecondNextHandsOverAgain();
    void newPhotosAtOldAddressesAreAskedThemselves_data();
    void newPhotosAtOldAddressesAreAskedThemselves();
    void newLooksAreTakenByTheNextRedraw_data();
    void newLooksAreTakenByTheNextRedraw();
};

namespace
{

void addIncidents()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<const Incident *>("incident");
    for (const Head &head : allHeads()) {
        for (const Incident &incident : incidents()) {
            QTest::addRow("%s: %s", head.title, incident.name) << &head << &incident;
        }
    }
}

void showOtherPictures(const PhotoShoot &shoot)
{
    for (WatchedPhoto *photo : shoot.photos()) {
        photo->showEdition(photo->edition + 1);
    }
}

} // namespace

void TestPhotoObjects::init()
{
    photoHost().beginTest();
}

void TestPhotoObjects::cleanup()
{
    photoHost().restoreLooks();
}

void TestPhotoObjects::noPhotoIsAskedBetweenSlotsWhilePhotosAreRead_data()
{
    addIncidents();
}

void TestPhotoObjects::noPhotoIsAskedBetweenSlotsWhilePhotosAreRead()
{
    QFETCH(const Head *, head);
    QFETCH(const Incident *, incident);
    PhotoShoot shoot(*head, 3, 4);
    shoot.choose();
    shoot.read(10);
    shoot.deliver();
    QVERIFY(photoHost().asked() > 0);
    QCOMPARE(wrongAfter(*incident, shoot), QString());
}

void TestPhotoObjects::noPhotoIsAskedBetweenSlotsOnceAllAreRead_data()
{
    addHeads();
}

void TestPhotoObjects::noPhotoIsAskedBetweenSlotsOnceAllAreRead()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    QCOMPARE(wrongAfterAny(shoot), QString());
}

void TestPhotoObjects::photosMayGoAfterNext_data()
{
    addIncidents();
}

void TestPhotoObjects::photosMayGoAfterNext()
{
    QFETCH(const Head *, head);
    QFETCH(const Incident *, incident);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.goOn();
    photoHost().deletePhotos();
    QCOMPARE(wrongAfter(*incident, shoot), QString());
}

void TestPhotoObjects::photosMayGoAfterBack_data()
{
    addIncidents();
}

void TestPhotoObjects::photosMayGoAfterBack()
{
    QFETCH(const Head *, head);
    QFETCH(const Incident *, incident);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.goBack();
    photoHost().deletePhotos();
    QCOMPARE(wrongAfter(*incident, shoot), QString());
    if (shoot.wizard().isAncestorOf(shoot.page())) {
        shoot.goForward(); // begins anew
        turnEventLoop();
        QCOMPARE(photoHost().askedWhileGone(), 0);
    }
}

void TestPhotoObjects::photosMayGoWhileASignalIsOnItsWay_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<bool>("goesOn");
    for (const Head &head : allHeads()) {
        QTest::addRow("%s: Next", head.title) << &head << true;
        QTest::addRow("%s: Back", head.title) << &head << false;
    }
}

void TestPhotoObjects::photosMayGoWhileASignalIsOnItsWay()
{
    QFETCH(const Head *, head);
    QFETCH(bool, goesOn);
    PhotoShoot shoot(*head, 3, 4);
    shoot.choose();
    shoot.readRest(); // the page has not heard of it yet
    if (goesOn) {
        shoot.goOn();
    } else {
        shoot.goBack();
    }
    photoHost().deletePhotos();
    turnEventLoop();
    QCOMPARE(photoHost().askedWhileGone(), 0);
}

void TestPhotoObjects::photosMayGoAfterReset_data()
{
    addHeads();
}

void TestPhotoObjects::photosMayGoAfterReset()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.click("m_pbReset");
    photoHost().deletePhotos();
    QCOMPARE(wrongAfterAny(shoot), QString());
}

void TestPhotoObjects::nothingAsksForPhotosThatWentWithReset_data()
{
    addHeads();
}

void TestPhotoObjects::nothingAsksForPhotosThatWentWithReset()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.choose();
    shoot.read(10);
    shoot.deliver();
    shoot.readRest(); // of which the page has not heard
    shoot.click("m_pbReset");
    photoHost().deletePhotos();
    turnEventLoop();
    for (const Redraw &redraw : head->redraws) {
        redraw.perform(shoot);
        QVERIFY2(photoHost().askedWhileGone() == 0, redraw.name);
    }
    shoot.load();
    QCOMPARE(photoHost().askedWhileGone(), 0);
}

void TestPhotoObjects::photosMayGoWhenOthersAreAskedFor_data()
{
    addHeads();
}

void TestPhotoObjects::photosMayGoWhenOthersAreAskedFor()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.chooseOthers();
    photoHost().deletePhotos();
    turnEventLoop();
    shoot.readRest();
    shoot.deliver();
    QCOMPARE(photoHost().askedWhileGone(), 0);
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoObjects::photosMayGoWithTheirPage_data()
{
    addHeads();
}

void TestPhotoObjects::photosMayGoWithTheirPage()
{
    QFETCH(const Head *, head);
    for (const bool isRead : { false, true }) {
        PhotoShoot shoot(*head, 3, 4);
        shoot.choose();
        shoot.read(10);
        shoot.deliver();
        if (isRead) {
            shoot.readRest();
        } else {
            photoHost().release(); // the page waits for its thread
        }
        const int asked = photoHost().asked();
        shoot.closeWizard();
        photoHost().deletePhotos();
        QApplication::setPalette(isRead ? Qt::white : Qt::yellow);
        turnEventLoop();
        QCOMPARE(photoHost().asked(), asked);
    }
}

void TestPhotoObjects::theNextSlotAfterNextTakesThePhotosAsTheyAre_data()
{
    addRedraws();
}

void TestPhotoObjects::theNextSlotAfterNextTakesThePhotosAsTheyAre()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.goOn();
    showOtherPictures(shoot);
    shoot.goBack();
    redraw->perform(shoot);
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoObjects::aSecondNextHandsOverAgain_data()
{
    addHeads();
}

void TestPhotoObjects::aSecondNextHandsOverAgain()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.goOn();
    const int groups = host().descriptions.last().groups.size();
    shoot.goBack();
    QVERIFY(shoot.page()->isComplete());
    QCOMPARE(shoot.wrong(), QString());
    shoot.goOn();
    // What is handed over is added to what was handed over before.
    QCOMPARE(host().descriptions.last().groups.size(), 2 * groups);
}

enum class Leaving { Reset, OtherPhotos, Back };
Q_DECLARE_METATYPE(Leaving)

void TestPhotoObjects::newPhotosAtOldAddressesAreAskedThemselves_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<Leaving>("leaving");
    for (const Head &head : allHeads()) {
        QTest::addRow("%s: reset", head.title) << &head << Leaving::Reset;
        QTest::addRow("%s: other photos", head.title) << &head << Leaving::OtherPhotos;
        QTest::addRow("%s: back and forward", head.title) << &head << Leaving::Back;
    }
}

void TestPhotoObjects::newPhotosAtOldAddressesAreAskedThemselves()
{
    QFETCH(const Head *, head);
    QFETCH(const Leaving, leaving);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    const auto backwards = [](WatchedPhoto &photo) {
        photo.edition = 1;
        photo.time = -photo.number;
        photo.focal = 50.0F;
    };
    if (leaving == Leaving::Back) {
        shoot.goBack();
        shoot.goForward();
    } else if (leaving == Leaving::Reset) {
        shoot.click("m_pbReset");
    }
    photoHost().prepare = backwards;
    if (leaving == Leaving::OtherPhotos) {
        photoHost().reuseAddresses();
        shoot.chooseOthers();
    } else {
        photoHost().deletePhotos();
        photoHost().reuseAddresses();
        shoot.choose();
    }
    for (WatchedPhoto *photo : photoHost().watched()) {
        photo->die(); // none of the new ones is given out yet
    }
    shoot.readRest();
    shoot.deliver();
    QCOMPARE(photoHost().askedWhileGone(), 0);
    QCOMPARE(shoot.wrong(), QString());
    if (head->hasLens) {
        QCOMPARE(shoot.find<QDoubleSpinBox>("m_spFocal")->value(), 50.0);
    }
}

void TestPhotoObjects::newLooksAreTakenByTheNextRedraw_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<const Incident *>("incident");
    for (const Head &head : allHeads()) {
        for (const Incident &incident : incidents()) {
            const QByteArray name = incident.name;
            if (name.startsWith("palette") || name == "font of the application") {
                QTest::addRow("%s: %s", head.title, incident.name) << &head << &incident;
            }
        }
    }
}

void TestPhotoObjects::newLooksAreTakenByTheNextRedraw()
{
    QFETCH(const Head *, head);
    QFETCH(const Incident *, incident);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    incident->happen(shoot);
    turnEventLoop();
    shoot.zoom(100);
    QCOMPARE(shoot.wrong(), QString());
}

TEST_CLASS(TestPhotoObjects, PhotoHost)
#include "tst_photoobjects.moc"
