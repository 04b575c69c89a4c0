// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// What ReadingThread::Start costs the GUI thread, against a queue searched for every file.
#include "benchmarks/bars.h"
#include "hostlink/readingthread.h"
#include "tests/support/fakeapplication.h"

#include <QQueue>

#include <algorithm>
#include <limits>

namespace
{

QStringList names(int count)
{
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files.append(QStringLiteral("/home/photographer/pictures/2026/mountain/IMG_%1.JPG")
                         .arg(i, 6, 10, QLatin1Char('0')));
    }
    return files;
}

/** The least of \p runs: what comes on top is other programs' work and use of the caches. */
double startSeconds(int runs, const QStringList &files)
{
    ReadingThread thread(nullptr);
    double least = std::numeric_limits<double>::infinity();
    for (int run = 0; run < runs; ++run) {
        least = std::min(least, Bars::seconds([&] { thread.Start(files); }));
        thread.Clear();
    }
    return least;
}

/** The files that the host was asked for, in their order: what the queue held. */
QStringList filesRead(const QStringList &files)
{
    fakeHost().forget();
    ReadingThread thread(nullptr);
    thread.Start(files);
    thread.wait();
    return fakeHost().readFiles();
}

Bars::Figure filling(int count)
{
    const QStringList files = names(count);
    QQueue<QString> queue;
    const double search = Bars::medianSeconds(1, [&] {
        for (const QString &file : files) {
            if (!queue.contains(file)) {
                queue.enqueue(file);
            }
        }
    });
    const double start = startSeconds(30, files);
    return { search / start, Bars::text("%.4g s -> %.4g ms", search, start * 1e3),
             filesRead(files + files) == QStringList(queue) ? ""
                                                            : "other files, or another order" };
}

Bars::Figure growth(int small, int large)
{
    const QStringList fewFiles = names(small);
    const QStringList manyFiles = names(large);
    const Bars::KeptMemory kept;
    double few = std::numeric_limits<double>::infinity();
    double many = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 15; ++round) {
        few = std::min(few, startSeconds(3, fewFiles));
        many = std::min(many, startSeconds(3, manyFiles));
    }
    return { Bars::exponent(small, few, large, many),
             Bars::text("%.4g ms -> %.4g ms", few * 1e3, many * 1e3),
             {} };
}

} // namespace

int main(int argc, char **argv)
{
    const FakeCoreApplication application(argc, argv);
    Bars::add("queue filling on Start/20,000 files/faster than a search per file",
              { Bars::Need::AtLeast, 300.0, "x" }, [] { return filling(20'000); });
    Bars::add("queue filling on Start/from 10,000 to 70,000 files/cost exponent",
              { Bars::Need::AtMost, 1.2, "" }, [] { return growth(10'000, 70'000); });
    return Bars::run(argc, argv);
}
