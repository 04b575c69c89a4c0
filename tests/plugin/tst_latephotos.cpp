// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "photoshoot.h"
#include "testprogram.h"

#include <QDoubleSpinBox>
#include <QTest>

#include <algorithm>
#include <limits>
#include <numeric>

/** When the missing answers come. */
enum class Moment {
    NextPhotos, ///< before the second ten of 50
    LastPhoto, ///< before the last of 250: more than are asked again in between
};
Q_DECLARE_METATYPE(Moment)

/** Hosts whose photos know at first nothing, and all of it later or never. */
class TestLatePhotos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void lateThumbnailsAppearWithFurtherPhotos_data();
    void lateThumbnailsAppearWithFurtherPhotos();
    void aFewLateThumbnailsAppearWithFurtherPhotos_data();
    void aFewLateThumbnailsAppearWithFurtherPhotos();
    void lateThumbnailsAppearWithARedraw_data();
    void lateThumbnailsAppearWithARedraw();
    void lateShotTimesCountWithFurtherPhotos_data();
    void lateShotTimesCountWithFurtherPhotos();
    void lateShotTimesCountWithARedraw_data();
    void lateShotTimesCountWithARedraw();
    void lateLensesCountWithFurtherPhotos_data();
    void lateLensesCountWithFurtherPhotos();
    void lateFocalLengthsAreShownWithARedraw_data();
    void lateFocalLengthsAreShownWithARedraw();
    void lateLensTypesAreComparedWithARedraw_data();
    void lateLensTypesAreComparedWithARedraw();

    void aRedrawShowsTheThumbnailsThatPhotosHaveByThen_data();
    void aRedrawShowsTheThumbnailsThatPhotosHaveByThen();
    void photosThatAnswerAreNotAskedAgainWhileOthersAreRead_data();
    void photosThatAnswerAreNotAskedAgainWhileOthersAreRead();
    void photosThatDoNotAnswerAreAskedInTurn_data();
    void photosThatDoNotAnswerAreAskedInTurn();
    void photosThatDoNotAnswerAreAskedSeldomWhenNewsPileUp_data();
    void photosThatDoNotAnswerAreAskedSeldomWhenNewsPileUp();
};

namespace
{

constexpr int kPerSignal = 10; // photos
constexpr int kAgainPerSignal = 100;

bool ordersByTime(const Head &head)
{
    return head.ordersByTime;
}

bool asksLens(const Head &head)
{
    return head.hasLens;
}

void addMoments(bool (*isWanted)(const Head &head) = nullptr)
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<Moment>("moment");
    for (const Head &head : allHeads()) {
        if (isWanted == nullptr || isWanted(head)) {
            QTest::addRow("%s: next photos", head.title) << &head << Moment::NextPhotos;
            QTest::addRow("%s: last photo", head.title) << &head << Moment::LastPhoto;
        }
    }
}

/** Large enough for a page to redraw only the cells whose photos are new. */
PhotoShoot shootFor(Moment moment, const Head &head)
{
    return { head, moment == Moment::NextPhotos ? 5 : 25, 10 };
}

/** Reads photos until \p moment, has \p answer change all of them, and reads on. */
void readAcross(Moment moment, PhotoShoot &shoot, void (*answer)(WatchedPhoto &photo))
{
    const int before = moment == Moment::NextPhotos ? kPerSignal : shoot.photoCount() - 1;
    shoot.choose();
    for (int photos = kPerSignal; photos <= before; photos += kPerSignal) {
        shoot.read(kPerSignal);
        shoot.deliver();
    }
    if (before % kPerSignal != 0) {
        shoot.read(before % kPerSignal); // of which the page does not hear
    }
    for (WatchedPhoto *photo : shoot.photos()) {
        answer(*photo);
    }
    photoHost().prepare = answer;
    shoot.read(std::min(kPerSignal, shoot.photoCount() - before));
    shoot.deliver();
}

void hideThumbnail(WatchedPhoto &photo)
{
    photo.size = QSize(96, 96); // what a page assumes meanwhile: nothing else tells it to redraw
    photo.preview = photo.number % 3 == 0 ? WatchedPhoto::Preview::NoPixmap
                                          : WatchedPhoto::Preview::EmptyPixmap;
}

void showThumbnail(WatchedPhoto &photo)
{
    photo.preview = WatchedPhoto::Preview::Picture;
}

void forgetTime(WatchedPhoto &photo)
{
    photo.time = 0;
}

void rememberTime(WatchedPhoto &photo)
{
    photo.time = 1'000 - photo.number; // the last one was taken first
}

void forgetFocalLength(WatchedPhoto &photo)
{
    constexpr float kUnknown[]
        = { 0.0F, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity() };
    photo.focal = kUnknown[photo.number % 3];
}

void forgetLensType(WatchedPhoto &photo)
{
    constexpr int kUnknown[] = { -1, 7, std::numeric_limits<int>::max() };
    photo.lens = kUnknown[photo.number % 3];
}

void forgetLens(WatchedPhoto &photo)
{
    forgetFocalLength(photo);
    forgetLensType(photo);
}

void rememberLens(WatchedPhoto &photo)
{
    photo.focal = 24.0F;
    photo.lens = 1;
}

void forgetEverything(WatchedPhoto &photo)
{
    hideThumbnail(photo);
    forgetTime(photo);
    forgetLens(photo);
}

std::vector<Asked> askedSoFar()
{
    std::vector<Asked> asked;
    for (const WatchedPhoto *photo : photoHost().watched()) {
        asked.push_back(photo->asked());
    }
    return asked;
}

/** How often each photo was asked \p question since \p before. */
QVector<int> askedSince(const std::vector<Asked> &before, Question question)
{
    QVector<int> counts;
    for (const Asked &asked : askedSoFar()) {
        const auto number = static_cast<std::size_t>(counts.size());
        counts.append(asked.at(question)
                      - (number < before.size() ? before.at(number).at(question) : 0));
    }
    return counts;
}

int sum(const QVector<int> &counts)
{
    return std::accumulate(counts.cbegin(), counts.cend(), 0);
}

} // namespace

void TestLatePhotos::init()
{
    photoHost().beginTest();
}

void TestLatePhotos::lateThumbnailsAppearWithFurtherPhotos_data()
{
    addMoments();
}

void TestLatePhotos::lateThumbnailsAppearWithFurtherPhotos()
{
    QFETCH(const Head *, head);
    QFETCH(const Moment, moment);
    photoHost().prepare = &hideThumbnail;
    PhotoShoot shoot = shootFor(moment, *head);
    readAcross(moment, shoot, &showThumbnail);
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::aFewLateThumbnailsAppearWithFurtherPhotos_data()
{
    addMoments();
}

void TestLatePhotos::aFewLateThumbnailsAppearWithFurtherPhotos()
{
    QFETCH(const Head *, head);
    QFETCH(const Moment, moment);
    photoHost().prepare = [](WatchedPhoto &photo) {
        if (photo.number % 7 == 3) {
            hideThumbnail(photo);
        }
    };
    PhotoShoot shoot = shootFor(moment, *head);
    readAcross(moment, shoot, &showThumbnail);
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::lateThumbnailsAppearWithARedraw_data()
{
    addRedraws();
}

void TestLatePhotos::lateThumbnailsAppearWithARedraw()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    photoHost().prepare = &hideThumbnail;
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    for (WatchedPhoto *photo : shoot.photos()) {
        showThumbnail(*photo);
    }
    redraw->perform(shoot);
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::lateShotTimesCountWithFurtherPhotos_data()
{
    addMoments(&ordersByTime);
}

void TestLatePhotos::lateShotTimesCountWithFurtherPhotos()
{
    QFETCH(const Head *, head);
    QFETCH(const Moment, moment);
    photoHost().prepare = &forgetTime;
    PhotoShoot shoot = shootFor(moment, *head);
    readAcross(moment, shoot, &rememberTime);
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::lateShotTimesCountWithARedraw_data()
{
    addRedraws(&ordersByTime);
}

void TestLatePhotos::lateShotTimesCountWithARedraw()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    photoHost().prepare = &forgetTime;
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    for (WatchedPhoto *photo : shoot.photos()) {
        rememberTime(*photo);
    }
    redraw->perform(shoot);
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::lateLensesCountWithFurtherPhotos_data()
{
    addMoments(&asksLens);
}

void TestLatePhotos::lateLensesCountWithFurtherPhotos()
{
    QFETCH(const Head *, head);
    QFETCH(const Moment, moment);
    photoHost().prepare = &forgetLens;
    PhotoShoot shoot = shootFor(moment, *head);
    readAcross(moment, shoot, &rememberLens);
    QCOMPARE(shoot.find<QLabel>("m_lbFocalLengthImage")->text(), QStringLiteral("24.00mm"));
    QCOMPARE(shoot.find<QDoubleSpinBox>("m_spFocal")->value(), 24.0);
    QCOMPARE(shoot.find<QWidget>("m_cbLensType")->property("currentIndex").toInt(), 1);
}

void TestLatePhotos::lateFocalLengthsAreShownWithARedraw_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<const Redraw *>("redraw");
    for (const Head &head : allHeads()) {
        for (const Redraw &redraw : head.redraws) {
            // A button that cannot be clicked before the photos know their lens.
            const bool isTooEarly = qstrcmp(redraw.name, "lens of the photos") == 0;
            if (head.hasLens && !isTooEarly) {
                QTest::addRow("%s: %s", head.title, redraw.name) << &head << &redraw;
            }
        }
    }
}

void TestLatePhotos::lateFocalLengthsAreShownWithARedraw()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    photoHost().prepare = &forgetFocalLength;
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    QCOMPARE(shoot.find<QLabel>("m_lbFocalLengthImage")->text(), QStringLiteral("N/A"));
    for (WatchedPhoto *photo : shoot.photos()) {
        rememberLens(*photo);
    }
    redraw->perform(shoot);
    QCOMPARE(shoot.find<QLabel>("m_lbFocalLengthImage")->text(), QStringLiteral("24.00mm"));
    // What the user has entered by then stays: the record's focal length, here.
    QCOMPARE(shoot.find<QDoubleSpinBox>("m_spFocal")->value(), 35.0);
}

void TestLatePhotos::lateLensTypesAreComparedWithARedraw_data()
{
    addRedraws(&asksLens);
}

void TestLatePhotos::lateLensTypesAreComparedWithARedraw()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    photoHost().prepare = &forgetLensType;
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    const auto *warning = shoot.find<QLabel>("m_lbWarning");
    QVERIFY(!warning->text().contains(QLatin1String("Lens type")));
    for (WatchedPhoto *photo : shoot.photos()) {
        photo->lens = 1; // the record says 0
    }
    redraw->perform(shoot);
    QVERIFY2(warning->text().contains(QLatin1String("Lens type")), qPrintable(warning->text()));
}

void TestLatePhotos::aRedrawShowsTheThumbnailsThatPhotosHaveByThen_data()
{
    addRedraws();
}

void TestLatePhotos::aRedrawShowsTheThumbnailsThatPhotosHaveByThen()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    for (WatchedPhoto *photo : shoot.photos()) {
        photo->showEdition(1);
    }
    redraw->perform(shoot);
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::photosThatAnswerAreNotAskedAgainWhileOthersAreRead_data()
{
    addHeads();
}

void TestLatePhotos::photosThatAnswerAreNotAskedAgainWhileOthersAreRead()
{
    QFETCH(const Head *, head);
    // Neighbours swap their places, so that photos come between those already shown.
    photoHost().prepare = [](WatchedPhoto &photo) { photo.time = 1 + (photo.number ^ 1); };
    PhotoShoot shoot(*head, 10, 10);
    shoot.choose();
    for (int known = 0; known < shoot.photoCount(); known += kPerSignal) {
        const std::vector<Asked> before = askedSoFar();
        shoot.read(kPerSignal);
        shoot.deliver();
        for (int question = 0; question < kQuestions; ++question) {
            const QVector<int> asked = askedSince(before, static_cast<Question>(question));
            QVERIFY2(sum(asked.mid(0, known)) == 0,
                     qPrintable(QStringLiteral("%1 photos known, question %2 was asked %3 times")
                                    .arg(known)
                                    .arg(question)
                                    .arg(sum(asked.mid(0, known)))));
        }
    }
    QCOMPARE(shoot.wrong(), QString());
}

void TestLatePhotos::photosThatDoNotAnswerAreAskedInTurn_data()
{
    addHeads();
}

void TestLatePhotos::photosThatDoNotAnswerAreAskedInTurn()
{
    QFETCH(const Head *, head);
    photoHost().prepare = &forgetEverything;
    PhotoShoot shoot(*head, 25, 40);
    shoot.choose();
    for (int known = 0; known < shoot.photoCount(); known += kPerSignal) {
        const std::vector<Asked> before = askedSoFar();
        shoot.read(kPerSignal);
        shoot.deliver();
        const bool isLast = known + kPerSignal == shoot.photoCount();
        const int most = isLast ? shoot.photoCount() : kPerSignal + kAgainPerSignal;
        for (int question = 0; question < kQuestions; ++question) {
            const QVector<int> asked = askedSince(before, static_cast<Question>(question));
            QVERIFY2(sum(asked) <= most,
                     qPrintable(QStringLiteral("%1 photos known, question %2 was asked %3 times")
                                    .arg(known)
                                    .arg(question)
                                    .arg(sum(asked))));
        }
    }
    for (int question = 0; question < kQuestions; ++question) {
        const QVector<int> asked = askedSince({}, static_cast<Question>(question));
        // The first photos are asked once when they are new, with each of the next ten signals
        // (there are at most 100 to ask), then when it is their turn: every tenth part of those
        // known is one signal more, so 10 / 11 + 10 / 12 + ... + 10 / 98 = 22.4 times; and at last.
        constexpr int kMost = 1 + 10 + 23 + 1;
        const int most = *std::max_element(asked.cbegin(), asked.cend());
        QVERIFY2(
            most <= kMost,
            qPrintable(
                QStringLiteral("question %1 was put to a photo %2 times").arg(question).arg(most)));
        // Photos that came together have their turns together.
        for (int first = 0; first < asked.size(); first += kPerSignal) {
            const auto [least, greatest]
                = std::minmax_element(asked.cbegin() + first, asked.cbegin() + first + kPerSignal);
            QVERIFY2(*greatest - *least <= 1,
                     qPrintable(QStringLiteral("question %1 was put to photos from %2 on %3 to %4 "
                                               "times")
                                    .arg(question)
                                    .arg(first)
                                    .arg(*least)
                                    .arg(*greatest)));
        }
    }
}

void TestLatePhotos::photosThatDoNotAnswerAreAskedSeldomWhenNewsPileUp_data()
{
    addHeads();
}

void TestLatePhotos::photosThatDoNotAnswerAreAskedSeldomWhenNewsPileUp()
{
    QFETCH(const Head *, head);
    photoHost().prepare = &forgetEverything;
    PhotoShoot shoot(*head, 25, 40);
    shoot.choose();
    shoot.readRest();
    shoot.deliver(); // a hundred signals at once
    for (int question = 0; question < kQuestions; ++question) {
        const QVector<int> asked = askedSince({}, static_cast<Question>(question));
        // Each once when it is new and once at last; and 100 of a thousand with each signal.
        constexpr int kMost = 1 + 10 + 1;
        const int most = *std::max_element(asked.cbegin(), asked.cend());
        QVERIFY2(
            most <= kMost,
            qPrintable(
                QStringLiteral("question %1 was put to a photo %2 times").arg(question).arg(most)));
    }
}

TEST_CLASS(TestLatePhotos, PhotoHost)
#include "tst_latephotos.moc"
