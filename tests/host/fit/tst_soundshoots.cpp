// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/importjob.h"
#include "host/model/panoramajson.h"
#include "tests/host/fit/shootfiles.h"
#include "tests/support/longruns.h"
#include "tests/support/testprogram.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace PanoHost;

Q_DECLARE_METATYPE(OddClock)

namespace
{

/** How cameras and people name photos, so that their order is that of the shots. */
enum class NameStyle { Counted, Words, Dates, Umlauts, MixedEndings, Spaces };
constexpr int kNameStyles = 6;

QString photoName(NameStyle style, int index)
{
    const QString number = QStringLiteral("%1").arg(index + 1, 4, 10, QLatin1Char('0'));
    switch (style) {
    case NameStyle::Counted:
        return QStringLiteral("_DSC%1.JPG").arg(number);
    case NameStyle::Words:
        return QStringLiteral("%1%2.jpg")
            .arg(QChar(QLatin1Char(static_cast<char>('a' + index / 26))))
            .arg(QChar(QLatin1Char(static_cast<char>('a' + index % 26))));
    case NameStyle::Dates:
        return QStringLiteral("2024-05-01 10.%1 (pano 3).jpeg").arg(number);
    case NameStyle::Umlauts:
        return QString::fromUtf8("Fürth – Süd %1.jpg").arg(number);
    case NameStyle::MixedEndings:
        return QStringLiteral("P%1%2").arg(number, QLatin1String(index % 2 == 0 ? ".jpg" : ".JPG"));
    case NameStyle::Spaces:
        break;
    }
    return QStringLiteral(" shot %1 of 99 #%1 50%.jpg").arg(number);
}

} // namespace

/** Shoots with nothing wrong but clocks and names: imports stay what they have always been. */
class TestSoundShoots : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void importsDoNotChange_data();
    void importsDoNotChange();

private:
    ShootPhotographer m_photographer;
};

void TestSoundShoots::importsDoNotChange_data()
{
    QTest::addColumn<OddClock>("clock");
    QTest::addColumn<int>("seed");
    const auto add = [](OddClock clock, int seed) {
        QTest::addRow("%s, seed %d", nameOf(clock), seed) << clock << seed;
    };
    if (rounds(0, 1) == 0) {
        int seed = 0;
        for (const OddClock clock :
             { OddClock::Sound, OddClock::HeadWildOnce, OddClock::HeadNone, OddClock::HeadBackwards,
               OddClock::HeadOtherZone, OddClock::CameraWholeMinutes, OddClock::CameraWildOnce,
               OddClock::CameraLateOnce, OddClock::CameraSetOnTheWay, OddClock::CameraRandom }) {
            add(clock, ++seed);
        }
        return;
    }
    for (const OddClock clock : allOddClocks()) {
        for (int seed = 1; seed <= 12; ++seed) {
            add(clock, seed);
        }
    }
}

void TestSoundShoots::importsDoNotChange()
{
    QFETCH(OddClock, clock);
    QFETCH(int, seed);
    static const char *const kHeads[] = { "papywizard", "vrdrive2", "clauss" };
    const HeadFacts &head = headNamed(QString::fromLatin1(kHeads[seed % 3]));
    ShootRecipe recipe;
    recipe.seed = seed;
    recipe.playSeed = 1;
    recipe.inBrackets = seed % 4 == 0;
    recipe.times = seed % 2 == 0 ? Times::SubSeconds : Times::WholeSeconds;
    static constexpr double kOffsets[] = { 0.0, 0.0, -7200.0, 98.25 };
    recipe.offsetSeconds = kOffsets[seed % 4];
    MadeShoot shoot = withClock(madeShoot(recipe), clock, seed);
    for (int i = 0; i < shoot.photos.size(); ++i) {
        shoot.photos[i].path = QStringLiteral("/shoot/")
            + photoName(static_cast<NameStyle>(seed % kNameStyles), shoot.truth.at(i));
    }
    const QTemporaryDir folder;
    const ShootFiles files = m_photographer.photographed(shoot, head, folder.path());
    auto &app = *PanoHostApplication::instance();
    ImportRequest request = requestFor(head, files);
    auto imported = importShoot(app, request, {});
    request.matchesPhotos = false;
    auto strict = importShoot(app, request, {});
    QVERIFY2(strict.ok(), qPrintable(strict ? QString() : strict.error().text()));
    QVERIFY2(imported.ok(), qPrintable(imported ? QString() : imported.error().text()));
    Panorama found = imported.value();
    Panorama wanted = strict.value();
    QStringList more;
    for (const QString &warning : qAsConst(found.warnings)) {
        if (!wanted.warnings.contains(warning)) {
            more += warning;
        }
    }
    found.warnings.clear();
    wanted.warnings.clear();
    QVERIFY2(panoramaToJson(found, folder.path()) == panoramaToJson(wanted, folder.path()),
             qPrintable(more.join(QLatin1Char('\n'))));
    QCOMPARE(misreadIn(found, shoot, files), QString());
    for (const QString &warning : qAsConst(more)) {
        QVERIFY2(warning.contains(QLatin1String("could not be checked")), qPrintable(warning));
    }
    QVERIFY(more.isEmpty() || clock != OddClock::Sound);
    qInfo("%d photos, %s: %s", found.positions.size(), qPrintable(head.name()),
          more.isEmpty() ? "nothing said" : qPrintable(more.first()));
}

TEST_CLASS(TestSoundShoots, PanoHostApplication)
#include "tst_soundshoots.moc"
