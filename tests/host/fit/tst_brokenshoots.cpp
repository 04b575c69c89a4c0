// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignment.h"
#include "host/import/importjob.h"
#include "tests/host/fit/shootfiles.h"
#include "tests/host/testphotos.h"
#include "tests/support/longruns.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(QVector<Fault>)

namespace
{

PanoHostApplication &app()
{
    return *PanoHostApplication::instance();
}

/** What is said of \p fault: one of these. */
QStringList textsOf(Fault fault, bool isAlone)
{
    switch (fault) {
    case Fault::Aborted:
    case Fault::MissingOne:
    case Fault::MissingSeveral:
    case Fault::BracketMissing:
    case Fault::BracketInterrupted:
        return { QStringLiteral("no photo for shot") };
    case Fault::MissingAndDoubled:
    case Fault::Doubled:
    case Fault::BracketDoubled:
        return { QStringLiteral("taken more than once; used: "),
                 QStringLiteral("the camera took several photos for each shot") };
    case Fault::Rollover:
    case Fault::TwoCards:
        return { QStringLiteral("the camera's counter began again among these photos"),
                 QStringLiteral("photo numbers begin again (another card?)"),
                 QStringLiteral("names and times disagree") };
    case Fault::HourOff: // and minutes off: one difference
        return { isAlone ? QStringLiteral("the camera's clock is 1 hour ")
                         : QStringLiteral("the camera's clock is ") };
    case Fault::MinutesOff:
        return { isAlone ? QStringLiteral("the camera's clock is 17 min ")
                         : QStringLiteral("the camera's clock is ") };
    case Fault::Drifting: // of a shoot that was stopped little is to be seen
        return { isAlone ? QStringLiteral("the camera's clock gains ") : QString() };
    case Fault::TestShot:
        return { QStringLiteral("before the first shot (a test?): left out"),
                 QStringLiteral("not of this shoot: left out") };
    case Fault::OtherShoot:
        return { QStringLiteral("not of this shoot: left out") };
    case Fault::OtherCamera:
        return { QStringLiteral("of another size: left out") };
    case Fault::Burst:
        return { QStringLiteral("the camera took several photos for each shot") };
    }
    return {};
}

QString namesOf(const QVector<Fault> &faults)
{
    QStringList names;
    for (const Fault fault : faults) {
        names += QLatin1String(nameOf(fault));
    }
    return names.join(QStringLiteral(" + "));
}

/** What `panohost check` says of sound photos besides. */
QStringList foundBy(const ImportRequest &request)
{
    ShootCheck check(app(), request, {});
    check.examine();
    QStringList texts;
    for (const Finding &finding : check.findings()) {
        texts += finding.text;
    }
    return texts;
}

} // namespace

/**
 * Shoots that went wrong, photographed, imported through the real page and aligned. The full table
 * is that of the long run.
 */
class TestBrokenShoots : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void shootsArePutRight_data();
    void shootsArePutRight();
    void fewShootsAreRefused();
    void withoutHeadTimesNothingIsGuessed_data();
    void withoutHeadTimesNothingIsGuessed();
    void companionFilesAreOnePhoto_data();
    void companionFilesAreOnePhoto();
    void onePictureForAllShotsIsSaid();
    void otherCountsAreRefused_data();
    void otherCountsAreRefused();
    void camerasMayBeTurned_data();
    void camerasMayBeTurned();

private:
    [[nodiscard]] static ShootRecipe recipeOf(const QVector<Fault> &faults, int seed)
    {
        ShootRecipe recipe;
        recipe.seed = seed;
        recipe.playSeed = 1;
        recipe.faults = faults;
        recipe.times = seed % 2 == 0 ? Times::SubSeconds : Times::WholeSeconds;
        return recipe;
    }

    ShootPhotographer m_photographer;
    int m_all = 0;
    int m_refused = 0;
};

void TestBrokenShoots::shootsArePutRight_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QVector<Fault>>("faults");
    QTest::addColumn<int>("seed");
    const QVector<Fault> all = allFaults();
    static const char *const kHeads[] = { "papywizard", "vrdrive2" };
    const auto add = [](const char *head, const QVector<Fault> &faults, int seed) {
        QTest::addRow("%s, %s, seed %d", qPrintable(namesOf(faults)), head, seed)
            << QString::fromLatin1(head) << faults << seed;
    };
    if (rounds(0, 1) == 0) {
        add("papywizard", { Fault::Aborted }, 1);
        add("papywizard", { Fault::MissingSeveral }, 2);
        add("vrdrive2", { Fault::MissingAndDoubled }, 3);
        add("papywizard", { Fault::Rollover }, 4);
        add("papywizard", { Fault::HourOff, Fault::MissingOne }, 5);
        add("vrdrive2", { Fault::BracketInterrupted }, 6);
        add("papywizard", { Fault::TestShot, Fault::Doubled }, 7);
        add("papywizard", { Fault::OtherCamera }, 8);
        add("papywizard", { Fault::MinutesOff, Fault::TwoCards }, 9);
        add("papywizard", { Fault::Drifting }, 10);
        return;
    }
    for (int one = 0; one < all.size(); ++one) {
        for (int seed = 1; seed <= 3; ++seed) {
            add(kHeads[(one + seed) % 2], { all.at(one) }, 100 + seed);
        }
        for (int other = one + 1; other < all.size(); ++other) {
            add(kHeads[(one + other) % 2], { all.at(one), all.at(other) }, 100 * one + other);
        }
    }
}

void TestBrokenShoots::shootsArePutRight()
{
    QFETCH(QString, head);
    QFETCH(QVector<Fault>, faults);
    QFETCH(int, seed);
    const MadeShoot shoot = madeShoot(recipeOf(faults, seed));
    const QTemporaryDir folder;
    const HeadFacts &facts = headNamed(head);
    const ShootFiles files = m_photographer.photographed(shoot, facts, folder.path());
    const auto imported = importShoot(app(), requestFor(facts, files), {});
    ++m_all;
    if (!imported) {
        const QString text = imported.error().text();
        QVERIFY2(faults.size() > 1 && text.contains(QLatin1String(" may be ")), qPrintable(text));
        ++m_refused;
        qInfo("refused: %s", qPrintable(text));
        return;
    }
    const Panorama &panorama = imported.value();
    const QString misread = misreadIn(panorama, shoot, files);
    QVERIFY2(misread.isEmpty(), qPrintable(misread));

    QStringList said = panorama.warnings;
    if (said.isEmpty()) {
        said = foundBy(requestFor(facts, files));
    }
    const QString all = said.join(QLatin1Char('\n'));
    for (const Fault fault : faults) {
        const QStringList texts = textsOf(fault, faults.size() == 1);
        QVERIFY2(std::any_of(texts.begin(), texts.end(),
                             [&all](const QString &text) { return all.contains(text); }),
                 qPrintable(QLatin1String(nameOf(fault)) + QStringLiteral(": ") + all));
    }
    const auto aligned = align(panorama, {}, {}, {});
    QVERIFY(aligned.ok());
    const AttitudeErrors errors = errorsOf(aligned.value().project, panorama, files);
    constexpr double kMostDegrees = 0.01;
    QVERIFY2(errors.rms <= kMostDegrees, qPrintable(QString::number(errors.rms)));
    qInfo("%d photos for %d shots: %s; aligned within %.4f degrees rms, %.4f at most",
          shoot.photos.size(), shoot.shots.size(),
          qPrintable(panorama.warnings.join(QStringLiteral("; "))), errors.rms, errors.largest);
}

/** Of two faults at a time some look like another one. */
void TestBrokenShoots::fewShootsAreRefused()
{
    qInfo("%d of %d shoots are refused, with both readings", m_refused, m_all);
    QVERIFY(20 * m_refused <= m_all);
}

void TestBrokenShoots::withoutHeadTimesNothingIsGuessed_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<int>("seed");
    for (const Fault fault :
         { Fault::Aborted, Fault::MissingOne, Fault::MissingSeveral, Fault::Doubled,
           Fault::MissingAndDoubled, Fault::Rollover, Fault::TwoCards, Fault::BracketMissing,
           Fault::BracketDoubled, Fault::BracketInterrupted, Fault::TestShot, Fault::OtherShoot,
           Fault::OtherCamera, Fault::Burst }) {
        for (int seed = 1; seed <= rounds(1, 3); ++seed) {
            if (rounds(0, 1) == 1 || fault == Fault::Doubled || fault == Fault::MissingAndDoubled) {
                QTest::addRow("%s, seed %d", nameOf(fault), seed) << fault << seed;
            }
        }
    }
}

/** A script of angles: pictures are all that there is, and where rows end they tell nothing. */
void TestBrokenShoots::withoutHeadTimesNothingIsGuessed()
{
    QFETCH(Fault, fault);
    QFETCH(int, seed);
    const MadeShoot shoot = madeShoot(recipeOf({ fault }, seed));
    const QTemporaryDir folder;
    const HeadFacts &facts = headNamed(QStringLiteral("clauss"));
    const ShootFiles files = m_photographer.photographed(shoot, facts, folder.path());
    const auto imported = importShoot(app(), requestFor(facts, files), {});
    if (!imported) {
        QCOMPARE(imported.error().code, ExitCode::InputRefused);
        const QString text = imported.error().text();
        QVERIFY2(text.contains(QLatin1String("cannot be told surely")), qPrintable(text));
        qInfo("%s", qPrintable(text));
        return;
    }
    const QString misread = misreadIn(imported.value(), shoot, files);
    const QString said = imported.value().warnings.join(QStringLiteral("; "));
    QVERIFY2(misread.isEmpty(), qPrintable(misread + QLatin1Char('\n') + said));
    qInfo("%s", qPrintable(said));
}

void TestBrokenShoots::companionFilesAreOnePhoto_data()
{
    QTest::addColumn<bool>("inBrackets");
    QTest::addColumn<QVector<Fault>>("faults");
    QTest::newRow("all") << false << QVector<Fault>();
    QTest::newRow("brackets") << true << QVector<Fault>();
    QTest::newRow("one missing") << false << QVector<Fault>{ Fault::MissingOne };
}

void TestBrokenShoots::companionFilesAreOnePhoto()
{
    QFETCH(bool, inBrackets);
    QFETCH(QVector<Fault>, faults);
    ShootRecipe recipe = recipeOf(faults, 1);
    recipe.inBrackets = inBrackets;
    const MadeShoot shoot = madeShoot(recipe);
    const QTemporaryDir folder;
    const HeadFacts &facts = headNamed(QStringLiteral("papywizard"));
    const ShootFiles files = m_photographer.photographed(shoot, facts, folder.path());
    ImportRequest request = requestFor(facts, files);
    const QByteArray raw = TestPhotos::rawFile(
        QSize(600, 400), 1, { TestPhotos::jpegBytes(TestPhotos::quarters(QSize(60, 40))) });
    for (const QString &photo : files.photos) {
        QString path = photo;
        path.replace(QStringLiteral(".JPG"), QStringLiteral(".NEF"));
        request.photos += TestPhotos::writeFile(path, raw);
    }
    const auto imported = importShoot(app(), request, {});
    QVERIFY2(imported.ok(), qPrintable(imported ? QString() : imported.error().text()));
    QCOMPARE(misreadIn(imported.value(), shoot, files), QString());
    QCOMPARE(imported.value().warnings.size(), 1 + faults.size());
    QCOMPARE(imported.value().warnings.first(),
             QStringLiteral("%1 files left out: other files of the same photos are used, JPEG "
                            "before RAW")
                 .arg(shoot.photos.size()));
}

void TestBrokenShoots::onePictureForAllShotsIsSaid()
{
    MadeShoot shoot = madeShoot(recipeOf({}, 1));
    for (int i = 0; i < shoot.photos.size(); ++i) {
        shoot.photos[i].timeMs = shoot.photos.first().timeMs;
        shoot.photos[i].exposureValue = 12.0;
        shoot.rotations[i] = shoot.rotations.first();
    }
    const QTemporaryDir folder;
    const HeadFacts &facts = headNamed(QStringLiteral("papywizard"));
    const ShootFiles files = m_photographer.photographed(shoot, facts, folder.path());
    const auto imported = importShoot(app(), requestFor(facts, files), {});
    QVERIFY(imported.ok());
    QCOMPARE(imported.value().warnings.size(), 1);
    QVERIFY(imported.value().warnings.first().startsWith(QStringLiteral("the same picture: ")));
    QVERIFY(imported.value().warnings.first().endsWith(QStringLiteral(" and 21 more")));
}

void TestBrokenShoots::otherCountsAreRefused_data()
{
    QTest::addColumn<int>("spheres");
    QTest::addColumn<int>("photoCount");
    QTest::newRow("3 photos for 5,200 shots") << 200 << 3;
    QTest::newRow("many photos for 26 shots") << 1 << rounds(400, 5000);
}

void TestBrokenShoots::otherCountsAreRefused()
{
    QFETCH(int, spheres);
    QFETCH(int, photoCount);
    ShootRecipe recipe = recipeOf({}, 1);
    recipe.spheres = spheres;
    MadeShoot shoot = madeShoot(recipe);
    const PhotoInfo first = shoot.photos.first();
    shoot.photos.clear();
    shoot.truth.fill(-1, photoCount);
    shoot.rotations.fill(Eigen::Matrix3d::Identity(), photoCount);
    for (int i = 0; i < photoCount; ++i) {
        shoot.photos += first;
        shoot.photos.last().path
            = QStringLiteral("/shoot/IMG_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        shoot.photos.last().timeMs = first.timeMs + 1000000LL * i;
    }
    const QTemporaryDir folder;
    const HeadFacts &facts = headNamed(QStringLiteral("papywizard"));
    const ShootFiles files = ShootPhotographer::withoutPictures(shoot, facts, folder.path());
    const auto refused = importShoot(app(), requestFor(facts, files), {});
    QVERIFY(!refused.ok());
    QCOMPARE(refused.error().code, ExitCode::InputRefused);
    QVERIFY2(refused.error().text().contains(QStringLiteral("records %1 shots, %2 photos given")
                                                 .arg(shoot.shots.size())
                                                 .arg(photoCount)),
             qPrintable(refused.error().text()));
}

void TestBrokenShoots::camerasMayBeTurned_data()
{
    QTest::addColumn<int>("turns");
    QTest::addColumn<bool>("invertsPitch");
    QTest::newRow("clockwise") << 1 << false;
    QTest::newRow("counterclockwise") << -1 << false;
    QTest::newRow("the head counts downwards") << 0 << true;
}

/** Photos are stored upright as the camera believes; only the user knows how it sat. */
void TestBrokenShoots::camerasMayBeTurned()
{
    QFETCH(int, turns);
    QFETCH(bool, invertsPitch);
    MadeShoot shoot = madeShoot(recipeOf({ Fault::MissingAndDoubled }, 5));
    for (Eigen::Matrix3d &rotation : shoot.rotations) {
        rotation = rotation * rotationOf({ 0.0, 0.0, 90.0 * turns });
    }
    const MadeShoot truth = shoot;
    if (invertsPitch) {
        for (PanoHead::NotedShot &shot : shoot.shots) {
            shot.pitchDegrees = -shot.pitchDegrees;
        }
    }
    const QTemporaryDir folder;
    const HeadFacts &facts = headNamed(QStringLiteral("papywizard"));
    const ShootFiles files = m_photographer.photographed(shoot, facts, folder.path());
    ImportRequest request = requestFor(facts, files);
    request.clockwiseTurns = turns;
    request.invertPitch = invertsPitch;
    const auto imported = importShoot(app(), request, {});
    QVERIFY2(imported.ok(), qPrintable(imported ? QString() : imported.error().text()));
    QCOMPARE(misreadIn(imported.value(), truth, files), QString());
}

TEST_CLASS(TestBrokenShoots, PanoHostApplication)
#include "tst_brokenshoots.moc"
