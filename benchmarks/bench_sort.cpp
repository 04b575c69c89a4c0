// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// A card of 10,000 photos, from its folder to the plan, against reading what each photo says of
// itself once; and plans alone of two sizes.
#include "benchmarks/bars.h"
#include "host/import/cardscan.h"
#include "host/model/parallel.h"
#include "host/model/photofile.h"
#include "tests/host/cardshoots.h"
#include "tests/host/testphotos.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <ctime>

using namespace PanoHost;

namespace
{

constexpr int kShots = 33; ///< of a shoot
constexpr int kPhotosOnDisk = 10'000;
constexpr double kClock = 1020.0; ///< camera minus head
constexpr double kBetweenShoots = 700.0;

double startOf(int shoot)
{
    // Nothing that repeats itself, or other clocks would fit as well.
    return kBetweenShoots * shoot
        + static_cast<double>((qint64{ shoot } * shoot * 37) % 10007 / 25);
}

/** A card without files. */
Card madeCard(int photos)
{
    Card card;
    for (int shoot = 0; shoot < photos / kShots; ++shoot) {
        const double start = startOf(shoot);
        card.records
            += CardShoots::record(QStringLiteral("/head/%1.xml").arg(shoot), kShots, start);
        CardShoots::take(card.photos, 1, kShots, start + kClock,
                         QStringLiteral("/card/%1").arg(shoot / 30, 5, 10, QLatin1Char('0')));
    }
    return card;
}

/** The same on the disk. */
QStringList writeCard(const QString &folder)
{
    QStringList paths;
    const Card card = madeCard(kPhotosOnDisk);
    const QImage picture = TestPhotos::quarters(QSize(24, 16));
    for (const CardPhoto &photo : card.photos) {
        TestPhotos::Exif exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.DateTimeOriginal"] = QString(photo.info.timeText)
                                                  .replace(QLatin1Char('-'), QLatin1Char(':'))
                                                  .replace(QLatin1Char('T'), QLatin1Char(' '))
                                                  .toLatin1();
        const int shoot = paths.size() / kShots;
        const QString home = folder + QStringLiteral("/DCIM/%1").arg(shoot / 30);
        QDir().mkpath(home);
        paths += TestPhotos::writeJpeg(
            home + QStringLiteral("/IMG_%1.jpg").arg(paths.size(), 5, 10, QLatin1Char('0')),
            picture, exif);
    }
    for (const CardRecord &record : card.records) {
        QByteArray xml = "<papywizard version=\"c\"><header><general/></header><shoot>";
        for (const PanoHead::NotedShot &shot : record.shots) {
            xml += "<pict bracket=\"1\" id=\"1\"><time>"
                + shot.time.toString(QStringLiteral("yyyy-MM-dd_HH'h'mm'm'ss's'")).toLatin1()
                + "</time><position pitch=\"0.0\" roll=\"0.0\" yaw=\""
                + QByteArray::number(shot.yawDegrees) + "\"/></pict>";
        }
        TestPhotos::writeFile(folder + QLatin1Char('/') + QFileInfo(record.path).fileName(),
                              xml + "</shoot></papywizard>");
    }
    return paths;
}

/** The least CPU time of all threads in three calls. */
double processSeconds(const std::function<void()> &work)
{
    double least = 0.0;
    for (int i = 0; i < 3; ++i) {
        const std::clock_t start = std::clock();
        work();
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        least = i == 0 ? seconds : std::min(least, seconds);
    }
    return least;
}

/** What is wrong with \p plan. */
std::string mistakeIn(const CardPlan &plan, int photos)
{
    const bool isSure
        = std::all_of(plan.shoots.begin(), plan.shoots.end(), [](const PlannedShoot &shoot) {
              return shoot.sureness == Sureness::Sure && shoot.photos.size() == kShots;
          });
    return isSure && plan.shoots.size() == photos / kShots ? "" : "a shoot was not joined surely";
}

Bars::Figure sortedCard()
{
    const QTemporaryDir folder;
    const QStringList paths = writeCard(folder.path());
    const double reading = processSeconds([&paths] {
        forEachRow(paths.size(), [&paths](int row) { (void)readPhotoInfo(paths.at(row)); });
    });
    CardPlan plan;
    const double sorting = processSeconds([&] {
        const Card card = scanCard({ folder.path() }, {});
        plan = planCard(card.photos, card.records);
    });
    return { sorting / reading,
             Bars::text("%.3g s of CPU time; their EXIF data alone %.3g s", sorting, reading),
             mistakeIn(plan, paths.size()) };
}

Bars::Figure growth()
{
    constexpr int kSmall = 7'000;
    constexpr int kLarge = 70'000;
    std::string mistake;
    const auto planSeconds = [&mistake](int photos) {
        const Card card = madeCard(photos);
        return Bars::leastSeconds(3, [&] {
            const std::string found = mistakeIn(planCard(card.photos, card.records), photos);
            mistake = found.empty() ? mistake : found;
        });
    };
    const double small = planSeconds(kSmall);
    const double large = planSeconds(kLarge);
    return { Bars::exponent(kSmall, small, kLarge, large),
             Bars::text("%.3g s for %d photos, %.3g s for %d", small, kSmall, large, kLarge),
             mistake };
}

} // namespace

int main(int argc, char **argv)
{
    initializePhotoReading();
    const QCoreApplication app(argc, argv);
    Bars::add("sort/10,000 photos, 303 records/time of their EXIF data",
              { Bars::Need::AtMost, 5.0, "x" }, sortedCard);
    Bars::add("sort/plan of 7,000 to 70,000 photos/exponent", { Bars::Need::AtMost, 1.2, "" },
              growth);
    return Bars::run(argc, argv);
}
