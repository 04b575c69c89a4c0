// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "incidents.h"
#include "longruns.h"
#include "photoshoot.h"
#include "testprogram.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

/** Hosts that delete photos, pages and plug-ins as soon as they may, and change all else. */
class TestPhotoLifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hostsMayDeleteWhatIsTheirs_data();
    void hostsMayDeleteWhatIsTheirs();
    void photosMayGoWhileThePageHandsThemOver_data();
    void photosMayGoWhileThePageHandsThemOver();
    void thePageMayGoWhileItHandsOver_data();
    void thePageMayGoWhileItHandsOver();
};

namespace
{

constexpr int kSteps = 14;

template <typename T> T anyOf(QRandomGenerator &random, std::initializer_list<T> values)
{
    return *(values.begin() + random.bounded(static_cast<int>(values.size())));
}

/** What happened in all lives of one page: the promises mean nothing if nothing happens. */
struct Tally {
    int handedOver = 0;
    int photosDeleted = 0;
    int pagesDeleted = 0;
    int incidents = 0;
    int incidentsAfterDeletion = 0;
};

/** One page in the hands of a host that keeps to the lifetimes and to nothing else. */
class Life
{
public:
    Life(const Head &head, quint32 seed, Tally *tally)
        : m_head(head)
        , m_random(seed)
        , m_tally(tally)
        , m_shoot(head, 3, 4)
    {
        prepareAnswers();
    }
    Q_DISABLE_COPY(Life)

    /** Empty, or the promise that was broken. */
    QString play()
    {
        for (int step = 0; step < kSteps; ++step) {
            // What becomes of photos that are gone is seen by then.
            const bool acts = m_random.bounded(m_arePhotosGone ? 5 : 2) == 0;
            const QString broken = acts ? act() : meetIncident();
            if (!broken.isEmpty()) {
                return broken;
            }
            if (photoHost().askedWhileGone() != 0) {
                return QStringLiteral("step %1 asked photos that are gone").arg(step);
            }
        }
        return {};
    }

private:
    enum class Place { OnPage, Before, Behind };

    void prepareAnswers()
    {
        constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
        const auto answer = [this](WatchedPhoto &photo) {
            photo.focal = anyOf(m_random, { 24.0F, 50.0F, 0.0F, kNan });
            photo.lens = anyOf(m_random, { 0, 1, -1, 7 });
            photo.time = m_random.bounded(5);
            photo.light = anyOf(m_random, { 1.0F, 2.0F, kNan });
            photo.size = anyOf(m_random, { QSize(60, 40), QSize(1, 1), QSize(300, 200) });
            photo.showEdition(m_random.bounded(4)); // the pixmap of before is gone
            photo.preview = anyOf(m_random,
                                  { WatchedPhoto::Preview::Picture, WatchedPhoto::Preview::Picture,
                                    WatchedPhoto::Preview::NoPixmap });
        };
        switch (m_random.bounded(3)) {
        case 0:
            return;
        case 1:
            photoHost().prepare
                = [](WatchedPhoto &photo) { photo.preview = WatchedPhoto::Preview::EmptyPixmap; };
            return;
        default:
            photoHost().prepare = [answer](WatchedPhoto &photo) { photo.beforeAnswer = answer; };
        }
    }

    QString meetIncident()
    {
        const auto &all = incidents();
        const Incident &incident
            = all.at(static_cast<std::size_t>(m_random.bounded(static_cast<int>(all.size()))));
        const bool needsPage = incident.kind != Incident::Kind::Always;
        if (incident.kind == Incident::Kind::Last || (needsPage && m_shoot.page() == nullptr)) {
            return {};
        }
        if (m_shoot.page() != nullptr && !m_arePhotosGone) {
            m_shoot.deliver(); // or the event loop would: that is no incident
        }
        ++m_tally->incidents;
        m_tally->incidentsAfterDeletion += m_arePhotosGone ? 1 : 0;
        const QString wrong = wrongAfter(incident, m_shoot);
        return wrong.isEmpty() ? QString()
                               : QStringLiteral("%1: %2").arg(QLatin1String(incident.name), wrong);
    }

    QString act()
    {
        if (m_shoot.page() == nullptr) {
            deletePhotos();
        } else if (m_random.bounded(12) == 0) {
            deletePage();
        } else if (m_place != Place::OnPage) {
            returnOrDelete();
        } else if (!m_isChosen) {
            m_shoot.choose();
            m_isChosen = true;
            m_arePhotosGone = false;
        } else if (m_shoot.photosToRead() > 0) {
            m_shoot.read(1 + m_random.bounded(m_shoot.photosToRead()));
            if (m_random.bounded(3) != 0) {
                m_shoot.deliver();
            }
        } else {
            redrawOrLeave();
        }
        return {};
    }

    /** All photos are read. */
    void redrawOrLeave()
    {
        switch (m_random.bounded(6)) {
        case 0:
            m_shoot.click("m_pbReset");
            m_isChosen = false;
            deletePhotos();
            break;
        case 1:
            m_shoot.chooseOthers();
            deletePhotos();
            m_arePhotosGone = false; // the others are still to come
            break;
        case 2:
            m_shoot.deliver();
            m_shoot.goBack();
            m_place = Place::Before;
            break;
        case 3:
        case 4:
            if (!m_arePhotosGone && m_shoot.page()->isComplete()) {
                m_shoot.deliver();
                m_shoot.goOn();
                m_place = Place::Behind;
                ++m_tally->handedOver;
            }
            break;
        default:
            if (!m_arePhotosGone) {
                const auto &redraws = m_head.redraws;
                redraws
                    .at(static_cast<std::size_t>(
                        m_random.bounded(static_cast<int>(redraws.size()))))
                    .perform(m_shoot);
            }
        }
    }

    /** The user is on a page before or behind. */
    void returnOrDelete()
    {
        if (!m_arePhotosGone && m_random.bounded(3) != 0) {
            deletePhotos();
            return;
        }
        if (m_place == Place::Before) {
            m_shoot.goForward(); // begins anew
            m_isChosen = false;
        } else {
            m_shoot.goBack();
        }
        m_place = Place::OnPage;
    }

    void deletePhotos()
    {
        if (m_random.bounded(2) == 0) {
            photoHost().deletePhotos();
        } else {
            photoHost().freePhotos();
        }
        m_tally->photosDeleted += m_arePhotosGone ? 0 : 1;
        m_arePhotosGone = true;
    }

    void deletePage()
    {
        photoHost().release(); // the page waits for its thread
        if (m_random.bounded(2) == 0) {
            delete anyOf<QObject *>(m_random,
                                    { m_shoot.page(), m_shoot.plugin(), m_shoot.library() });
        }
        m_shoot.closeWizard();
        ++m_tally->pagesDeleted;
    }

    const Head &m_head;
    QRandomGenerator m_random;
    Tally *m_tally;
    PhotoShoot m_shoot;
    Place m_place = Place::OnPage;
    bool m_isChosen = false;
    bool m_arePhotosGone = false;
};

} // namespace

void TestPhotoLifetimes::init()
{
    photoHost().beginTest();
}

void TestPhotoLifetimes::cleanup()
{
    photoHost().restoreLooks();
}

void TestPhotoLifetimes::hostsMayDeleteWhatIsTheirs_data()
{
    addHeads();
}

void TestPhotoLifetimes::hostsMayDeleteWhatIsTheirs()
{
    QFETCH(const Head *, head);
    const int lives = rounds(20, 1'000);
    Tally tally;
    for (int seed = 1; seed <= lives; ++seed) {
        photoHost().beginTest();
        photoHost().restoreLooks();
        const QString broken = Life(*head, static_cast<quint32>(seed), &tally).play();
        QVERIFY2(broken.isEmpty(), qPrintable(QStringLiteral("Seed %1: %2").arg(seed).arg(broken)));
    }
    qInfo(
        "%d lives: %d times handed over, photos deleted %d times, %d pages deleted, %d incidents, "
        "%d of them after photos were deleted",
        lives, tally.handedOver, tally.photosDeleted, tally.pagesDeleted, tally.incidents,
        tally.incidentsAfterDeletion);
    QVERIFY(tally.handedOver > 0);
    QVERIFY(tally.photosDeleted > 0);
    QVERIFY(tally.pagesDeleted > 0);
    QVERIFY(tally.incidentsAfterDeletion > 0);
}

void TestPhotoLifetimes::photosMayGoWhileThePageHandsThemOver_data()
{
    addHeads();
}

void TestPhotoLifetimes::photosMayGoWhileThePageHandsThemOver()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    photoHost().imported = [] { photoHost().deletePhotos(); };
    shoot.goOn();
    QCOMPARE(wrongAfterAny(shoot), QString());
    QCOMPARE(photoHost().askedWhileGone(), 0);
}

void TestPhotoLifetimes::thePageMayGoWhileItHandsOver_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QByteArray>("victim");
    for (const Head &head : allHeads()) {
        for (const char *victim : { "wizard", "plug-in", "library" }) {
            QTest::addRow("%s: %s", head.title, victim) << &head << QByteArray(victim);
        }
    }
}

void TestPhotoLifetimes::thePageMayGoWhileItHandsOver()
{
    QFETCH(const Head *, head);
    QFETCH(const QByteArray, victim);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    photoHost().imported = [&] {
        if (victim == "plug-in") {
            delete shoot.plugin();
        } else if (victim == "library") {
            delete shoot.library();
        }
        shoot.closeWizard();
        photoHost().freePhotos();
    };
    QVERIFY(shoot.page()->validatePage());
    QVERIFY(shoot.page() == nullptr);
    QCOMPARE(host().descriptions.size(), 1);
    turnEventLoop();
}

TEST_CLASS(TestPhotoLifetimes, PhotoHost)
#include "tst_photolifetimes.moc"
