// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// From the start of the built panohost to its window on the screen, by the clock.
#include "benchmarks/bars.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace
{

struct Start {
    double seconds = 0.0;
    bool isSeen = false;
};

Start startOf(const QString &program, const QString &library)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
    QProcess window;
    window.setProcessEnvironment(environment);
    QProcess looking;
    QElapsedTimer timer;
    timer.start();
    window.start(program, { QStringLiteral("--plugin"), library });
    looking.start(QStringLiteral("xdotool"),
                  { QStringLiteral("search"), QStringLiteral("--sync"),
                    QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                    QStringLiteral("Import a panorama") });
    const bool ended = looking.waitForFinished();
    const Start start{ static_cast<double>(timer.nsecsElapsed()) / 1e9,
                       ended && looking.exitCode() == 0 };
    window.terminate();
    window.waitForFinished();
    return start;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "Usage: bench_window PANOHOST LIBRARY [--benchmark_filter=...]\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    const QString program = QFile::decodeName(argv[1]);
    const QString library = QFile::decodeName(argv[2]);
    Bars::add("start to window", { Bars::Need::AtMost, 1.0, " s" }, [=] {
        // The best one, since other programs can only slow it down.
        Bars::Figure figure;
        figure.value = 1e9;
        double worst = 0.0;
        for (int run = 0; run < 7; ++run) {
            const Start start = startOf(program, library);
            figure.mistake = start.isSeen ? figure.mistake : "no window was seen";
            figure.value = std::min(figure.value, start.seconds);
            worst = std::max(worst, start.seconds);
        }
        figure.detail = Bars::text("best of 7, worst %.2f s", worst);
        return figure;
    });
    return Bars::run(argc, argv);
}
