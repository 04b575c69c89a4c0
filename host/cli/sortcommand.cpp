// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/cardreport.h"
#include "host/cli/commandline.h"
#include "host/cli/commands.h"
#include "host/cli/outputs.h"
#include "host/import/cardlinks.h"
#include "host/import/cardscan.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"

namespace PanoHost
{

namespace
{

CommandLine sortLine()
{
    return CommandLine(
        { "panohost sort FOLDER... [--json] [--links DIR]",
          "Finds all records and photos below the folders, RAW files too, and says which\n"
          "photos belong to which record: a whole card, or a month of cards. They are\n"
          "told by their times (the clocks of head and camera may differ), pauses, camera,\n"
          "lens, size, brackets, numbers and folders. Pictures are not looked at; 'check'\n"
          "does that for one shoot. Nothing is moved, copied or changed.",
          "# what is on this card?\n"
          "panohost sort /media/card\n"
          "# records on one card, photos on two others\n"
          "panohost sort head/ card1/ card2/\n"
          "# a folder for each shoot, with links to its record and photos\n"
          "panohost sort /media/card --links shoots\n"
          "panohost import papywizard shoots/01-*/*.xml shoots/01-*/*.jpg -o hall.pto\n"
          "# what fits nowhere?\n"
          "panohost sort /media/card --json | jq '.leftOver[].photos[]'" },
        { { "--json", nullptr, "the plan as JSON, for other programs" },
          { "--links", "DIR",
            "make DIR with a folder for each shoot: symbolic links to its record and photos" } });
}

/** Once more for whoever wants to go on. */
QString nextStep(const Card &card, const CardPlan &plan, const QString &folder,
                 const QStringList &names)
{
    for (int i = 0; i < plan.shoots.size(); ++i) {
        const PlannedShoot &shoot = plan.shoots[i];
        if (shoot.record >= 0 && shoot.sureness != Sureness::Unsure) {
            return QStringLiteral("next, for instance: panohost check %1 and what lies in %2/%3")
                .arg(card.records[shoot.record].heads.first(), displayName(folder), names.at(i));
        }
    }
    return {};
}

} // namespace

ExitCode runSort(Session &session, const QStringList &arguments)
{
    CommandLine line = sortLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const QStringList folders = line.positional();
    if (folders.isEmpty()) {
        throw usageError(QStringLiteral("no folder named"),
                         QStringLiteral("name the folder of the card, '.' is the current one"));
    }
    const QString links = line.value(QStringLiteral("links"));
    if (line.isSet(QStringLiteral("links"))) {
        if (links.isEmpty()) {
            throw usageError(QStringLiteral("--links names no folder"),
                             QStringLiteral("give the folder to make"));
        }
        requireNewFolder(absolutePath(links));
    }
    const JobWatch watch = session.watch();
    const Card card = scanCard(folders, watch);
    if (card.photos.isEmpty() && card.records.isEmpty()) {
        session.console.endProgress();
        for (const QString &text : planLines(card, {})) {
            printOut(text + QLatin1Char('\n'));
        }
        throw inputRefused(folders.join(QLatin1String(", ")),
                           QStringLiteral("no photos and no records below"),
                           QStringLiteral("is it the right folder? hidden ones are passed over"));
    }
    const CardPlan plan = planCard(card.photos, card.records, watch);
    session.console.endProgress();
    QStringList names;
    if (!links.isEmpty()) {
        names = writeLinks(card, plan, absolutePath(links), watch);
    }
    if (line.isSet(QStringLiteral("json"))) {
        printOut(QString::fromUtf8(planToJson(card, plan)));
    } else {
        printOut(planLines(card, plan).join(QLatin1Char('\n')) + QLatin1Char('\n'));
    }
    session.console.info(planSummary(card, plan));
    if (!links.isEmpty()) {
        session.console.info(QStringLiteral("written: %1").arg(displayName(absolutePath(links))));
        const QString next = nextStep(card, plan, absolutePath(links), names);
        if (!next.isEmpty()) {
            session.console.info(next);
        }
    }
    return ExitCode::Done;
}

} // namespace PanoHost
