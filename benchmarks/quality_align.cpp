// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "benchmarks/alignroutes.h"
#include "host/model/photofile.h"
#include "host/model/safefile.h"
#include "tests/host/align/support/shootlist.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cmath>
#include <cstdio>

using namespace PanoHost;

namespace
{

const QStringList kColumns{ QStringLiteral("imported"), QStringLiteral("hugin"),
                            QStringLiteral("guided"), QStringLiteral("own") };

/** One figure of the table as it is shown: "0.0064 (0.013), 38.2 dB, 59 s". */
QString measured(const AlignRoutes::Outcome &outcome, const AlignRoutes::Taken &taken)
{
    const QString seconds = QString::number(outcome.cpuSeconds, 'f', 1) + QStringLiteral(" s");
    const TestShoots::Rotations found = AlignRoutes::rotationsIn(outcome.project, taken);
    if (found.empty()) {
        return QStringLiteral("failed, %1").arg(seconds);
    }
    const TestShoots::Verdict verdict = TestShoots::judged(taken.shoot, found);
    const auto angle = [](double degrees) {
        return QString::number(degrees, 'f', degrees < 0.1 ? 4 : degrees < 10.0 ? 3 : 0);
    };
    QStringList parts{ QStringLiteral("%1 (%2)").arg(angle(verdict.tied.rms),
                                                     angle(verdict.tied.largest)) };
    if (verdict.apart > 0.0) {
        parts << QStringLiteral("apart %1").arg(angle(verdict.apart));
    }
    // As many pixels a degree as in the middle of a photo: of a smaller picture the measure would
    // be how it is reduced.
    const int width = 2 * qRound(M_PI * taken.shoot.camera.focalPixels());
    parts << QString::number(AlignRoutes::psnrOf(outcome.project, taken, verdict.common, width),
                             'f', 1)
            + QStringLiteral(" dB");
    if (outcome.cpuSeconds > 0.0) {
        parts << seconds;
    }
    return parts.join(QStringLiteral(", "));
}

AlignRoutes::Outcome outcomeOf(const QString &column, const AlignRoutes::Taken &taken,
                               const QString &panohost)
{
    const AlignRoutes::Outcome imported = AlignRoutes::imported(taken);
    if (column == kColumns[0] || imported.project.isEmpty()) {
        return imported;
    }
    if (column == kColumns[1]) {
        return AlignRoutes::hugin(taken);
    }
    return column == kColumns[2] ? AlignRoutes::guided(taken) : AlignRoutes::own(taken, panohost);
}

/** Each stack without all but its first photo. */
Panorama referenceOnly(Panorama panorama)
{
    for (int i = 0; i < panorama.positions.size(); ++i) {
        panorama.positions[i].photos.resize(1);
        panorama.description.imageGroups[i] = panorama.description.imageGroups[i].mid(0, 1);
    }
    return panorama;
}

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

struct Wishes {
    QString folder;
    QString panohost;
    QStringList columns;
    bool again = false;
};

/** The figures of \p shoot; those that an earlier run has left are taken over. */
QStringList row(const TestShoots::TestShoot &shoot, const Wishes &wishes)
{
    const QDir folder(QDir(wishes.folder).filePath(shoot.name));
    QStringList figures;
    std::optional<AlignRoutes::Taken> taken;
    for (const QString &column : kColumns) {
        const QString note = folder.filePath(column + QStringLiteral(".figure"));
        QString figure = readText(note);
        if (wishes.columns.contains(column) && (wishes.again || figure.isEmpty())) {
            if (!taken) {
                const Result<Panorama> panorama
                    = TestShoots::photographed(shoot, folder.absolutePath());
                if (!panorama) {
                    return { panorama.error().why };
                }
                taken.emplace(AlignRoutes::Taken{ shoot, panorama.value(),
                                                  referenceOnly(panorama.value()),
                                                  folder.absolutePath() });
            }
            const AlignRoutes::Outcome outcome = outcomeOf(column, *taken, wishes.panohost);
            figure = measured(outcome, *taken);
            (void)writeFileAtomically(note, figure.toUtf8());
            std::fprintf(stderr, "%s, %s: %s %s\n", qPrintable(shoot.name), qPrintable(column),
                         qPrintable(figure), qPrintable(outcome.problem));
        }
        figures << (figure.isEmpty() ? QStringLiteral("-") : figure);
    }
    return figures;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    initializePhotoReading();
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Aligns shoots of known truth in several ways and prints a table. Each figure: error in "
        "degrees after the best common rotation, rms (largest); of photos without texture or "
        "between islands (apart); agreement of the stitched panorama with the scene; CPU time."));
    parser.addHelpOption();
    const QCommandLineOption folder(QStringLiteral("folder"),
                                    QStringLiteral("Where photos and figures are kept."),
                                    QStringLiteral("DIR"), QStringLiteral("align-quality"));
    const QCommandLineOption shoots(QStringLiteral("shoots"),
                                    QStringLiteral("Only these rows, or \"list\"."),
                                    QStringLiteral("A,B"));
    const QCommandLineOption columns(QStringLiteral("columns"),
                                     QStringLiteral("Only these (default: all): ")
                                         + kColumns.join(QStringLiteral(", ")),
                                     QStringLiteral("A,B"), kColumns.join(QLatin1Char(',')));
    const QCommandLineOption again(QStringLiteral("again"),
                                   QStringLiteral("Measures what is known already."));
    parser.addOptions({ folder, shoots, columns, again });
    parser.addPositionalArgument(QStringLiteral("panohost"), QStringLiteral("The program."));
    parser.process(app);

    QTextStream out(stdout);
    QStringList wanted = parser.value(shoots).split(QLatin1Char(','), Qt::SkipEmptyParts);
    QStringList names;
    for (const TestShoots::TestShoot &shoot : TestShoots::all()) {
        names << shoot.name;
    }
    if (wanted.contains(QStringLiteral("list"))) {
        out << names.join(QLatin1Char('\n')) << '\n';
        return 0;
    }
    if (wanted.isEmpty()) {
        wanted = names;
    }
    const Wishes wishes{ QDir(parser.value(folder)).absolutePath(),
                         parser.positionalArguments().value(0),
                         parser.value(columns).split(QLatin1Char(',')), parser.isSet(again) };
    out << "| Shoot | " << kColumns.join(QStringLiteral(" | ")) << " |\n|---|---|---|---|---|\n";
    for (const QString &name : qAsConst(wanted)) {
        const std::optional<TestShoots::TestShoot> shoot = TestShoots::named(name);
        if (!shoot) {
            std::fprintf(stderr, "no shoot is called %s\n", qPrintable(name));
            return 2;
        }
        out << "| " << name << " | " << row(*shoot, wishes).join(QStringLiteral(" | ")) << " |\n";
        out.flush();
    }
    return 0;
}
