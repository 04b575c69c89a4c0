// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "photoshoot.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTest>

/** Something that happens to a page besides its slots. */
struct Incident {
    const char *name;
    void (*happen)(PhotoShoot &shoot);
};
Q_DECLARE_METATYPE(const Incident *)

/** Pages ask photo objects in their slots alone, and keep none for later. */
class TestPhotoObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
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

private:
    QString m_style;
    QFont m_font;
};

namespace
{

QPalette otherPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xff, 0xf0, 0xc0));
    palette.setColor(QPalette::WindowText, QColor(0x40, 0x00, 0x60));
    return palette;
}

QFont otherFont()
{
    QFont font = QApplication::font();
    font.setPointSize(font.pointSize() + 5);
    font.setBold(true);
    return font;
}

void enterOptions(PhotoShoot &shoot)
{
    for (QCheckBox *box : shoot.page()->findChildren<QCheckBox *>()) {
        box->click();
    }
    for (QDoubleSpinBox *number : shoot.page()->findChildren<QDoubleSpinBox *>()) {
        number->stepUp();
    }
}

void scroll(PhotoShoot &shoot)
{
    const auto *area = shoot.find<QScrollArea>("m_saPreview");
    for (QScrollBar *bar : { area->horizontalScrollBar(), area->verticalScrollBar() }) {
        bar->setValue(bar->maximum());
        bar->setValue(bar->minimum());
    }
}

void moveToAnotherWizard(PhotoShoot &shoot)
{
    auto *other = new QWizard(&shoot.wizard());
    other->addPage(new QWizardPage);
    other->addPage(shoot.page());
    other->show();
}

const std::vector<Incident> &incidents()
{
    static const std::vector<Incident> all = {
        { "a turn of the event loop", [](PhotoShoot &) {} },
        { "palette of the application",
          [](PhotoShoot &) { QApplication::setPalette(otherPalette()); } },
        { "palette of the page",
          [](PhotoShoot &shoot) { shoot.page()->setPalette(otherPalette()); } },
        { "font of the application", [](PhotoShoot &) { QApplication::setFont(otherFont()); } },
        { "font of the page", [](PhotoShoot &shoot) { shoot.page()->setFont(otherFont()); } },
        { "style of the application",
          [](PhotoShoot &) { QApplication::setStyle(QStringLiteral("windows")); } },
        { "style sheet of the application",
          [](PhotoShoot &) {
              host().setStyleSheet(QStringLiteral("QLabel { color: red; font-size: 20pt }"));
          } },
        { "style sheet of the page",
          [](PhotoShoot &shoot) {
              shoot.page()->setStyleSheet(QStringLiteral("* { background: yellow }"));
          } },
        { "right to left",
          [](PhotoShoot &) { QApplication::setLayoutDirection(Qt::RightToLeft); } },
        { "another language",
          [](PhotoShoot &shoot) {
              QEvent event(QEvent::LanguageChange);
              QCoreApplication::sendEvent(shoot.page(), &event);
          } },
        { "disabled and enabled",
          [](PhotoShoot &shoot) {
              shoot.page()->setEnabled(false);
              turnEventLoop();
              shoot.page()->setEnabled(true);
          } },
        { "another size", [](PhotoShoot &shoot) { shoot.wizard().resize(1200, 900); } },
        { "hidden and shown",
          [](PhotoShoot &shoot) {
              shoot.wizard().hide();
              turnEventLoop();
              shoot.wizard().show();
          } },
        { "painted", [](PhotoShoot &shoot) { (void)shoot.page()->grab(); } },
        { "scrolled", &scroll },
        { "in another wizard", &moveToAnotherWizard },
        { "asked whether it is complete",
          [](PhotoShoot &shoot) { (void)shoot.page()->isComplete(); } },
        { "options entered", &enterOptions },
    };
    return all;
}

void addIncidents()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<const Incident *>("incident");
    for (const Head &head : allHeads()) {
        for (const Incident &incident : incidents()) {
            QTest::addRow("%s: %s", head.name, incident.name) << &head << &incident;
        }
    }
}

/** What is wrong after \p incident, which must neither ask a photo nor change the picture. */
QString after(const Incident &incident, PhotoShoot &shoot)
{
    const int asked = photoHost().asked();
    const QImage picture = shoot.picture();
    incident.happen(shoot);
    turnEventLoop();
    if (const int more = photoHost().asked() - asked; more != 0) {
        return QStringLiteral("photos were asked %1 times, %2 of them gone")
            .arg(more)
            .arg(photoHost().askedWhileGone());
    }
    return LayoutPicture::difference(shoot.picture(), picture);
}

void showOtherPictures(const PhotoShoot &shoot)
{
    for (WatchedPhoto *photo : shoot.photos()) {
        photo->showEdition(photo->edition + 1);
    }
}

} // namespace

void TestPhotoObjects::initTestCase()
{
    m_style = QApplication::style()->objectName();
    m_font = QApplication::font();
}

void TestPhotoObjects::init()
{
    photoHost().beginTest();
}

void TestPhotoObjects::cleanup()
{
    host().setStyleSheet({});
    QApplication::setStyle(m_style);
    QApplication::setPalette(QPalette());
    QApplication::setFont(m_font);
    QApplication::setLayoutDirection(Qt::LeftToRight);
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
    QCOMPARE(after(*incident, shoot), QString());
}

void TestPhotoObjects::noPhotoIsAskedBetweenSlotsOnceAllAreRead_data()
{
    addIncidents();
}

void TestPhotoObjects::noPhotoIsAskedBetweenSlotsOnceAllAreRead()
{
    QFETCH(const Head *, head);
    QFETCH(const Incident *, incident);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    QCOMPARE(after(*incident, shoot), QString());
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
    QCOMPARE(after(*incident, shoot), QString());
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
    QCOMPARE(after(*incident, shoot), QString());
    if (shoot.wizard().isAncestorOf(shoot.page())) {
        shoot.goForward(); // begins anew
        turnEventLoop();
        QCOMPARE(photoHost().askedWhileGone(), 0);
    }
}

void TestPhotoObjects::photosMayGoAfterReset_data()
{
    addIncidents();
}

void TestPhotoObjects::photosMayGoAfterReset()
{
    QFETCH(const Head *, head);
    QFETCH(const Incident *, incident);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    shoot.click("m_pbReset");
    photoHost().deletePhotos();
    QCOMPARE(after(*incident, shoot), QString());
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
            photoHost().letRead(2); // they are waited for
        }
        const int asked = photoHost().asked();
        delete shoot.page();
        photoHost().deletePhotos();
        QApplication::setPalette(isRead ? QPalette() : otherPalette());
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
        QTest::addRow("%s: reset", head.name) << &head << Leaving::Reset;
        QTest::addRow("%s: other photos", head.name) << &head << Leaving::OtherPhotos;
        QTest::addRow("%s: back and forward", head.name) << &head << Leaving::Back;
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
    if (head->asksLens) {
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
                QTest::addRow("%s: %s", head.name, incident.name) << &head << &incident;
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

int main(int argc, char *argv[])
{
    PhotoHost application(argc, argv);
    TestPhotoObjects test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_photoobjects.moc"
