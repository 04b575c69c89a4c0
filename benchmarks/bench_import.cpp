// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// The built panohost on 10,000 photos, from the command line to the written project.
#include "benchmarks/bars.h"
#include "benchmarks/hostrun.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

namespace
{

constexpr int kPhotos = 10'000;

bool write(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QStringList writePhotos(const QDir &folder)
{
    QStringList names;
    for (int i = 0; i < kPhotos; ++i) {
        QImage image(48, 36, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(i % 360, 255, 200));
        names.append(QStringLiteral("%1.jpg").arg(i, 6, 10, QLatin1Char('0')));
        if (!image.save(folder.filePath(names.last()), "JPG")) {
            return {};
        }
    }
    return names;
}

/** The best of three, since other programs can only slow it down. */
class Import
{
public:
    explicit Import(QString program)
        : m_program(std::move(program))
    {
    }

    const HostRun::Run &best()
    {
        if (m_best.exitCode == 0) {
            return m_best;
        }
        const QTemporaryDir folder;
        const QDir dir(folder.path());
        const QStringList photos = writePhotos(dir);
        if (photos.isEmpty()
            || !write(dir.filePath(QStringLiteral("shoot.xml")), HostRun::record(kPhotos))) {
            m_mistake = "cannot write the photos";
            return m_best;
        }
        const QStringList arguments = QStringList{
            QStringLiteral("import"),      QStringLiteral("papywizard"), QStringLiteral("--quiet"),
            QStringLiteral("--focal"),     QStringLiteral("800"),        QStringLiteral("-o"),
            QStringLiteral("project.pto"), QStringLiteral("shoot.xml")
        } + photos;
        for (int attempt = 0; attempt < 3; ++attempt) {
            const HostRun::Run next = HostRun::run(m_program, arguments, dir.path());
            if (next.exitCode != 0) {
                m_mistake = Bars::text("panohost ended with code %d", next.exitCode);
                m_best = next;
                break;
            }
            if (attempt == 0 || next.wallSeconds < m_best.wallSeconds) {
                m_best = next;
            }
        }
        QFile project(dir.filePath(QStringLiteral("project.pto")));
        if (m_mistake.empty()
            && (!project.open(QIODevice::ReadOnly) || project.readAll().count("\ni ") != kPhotos)) {
            m_mistake = "the project does not hold every photo";
        }
        return m_best;
    }
    [[nodiscard]] const std::string &mistake() const { return m_mistake; }

private:
    QString m_program;
    HostRun::Run m_best;
    std::string m_mistake;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "Usage: bench_import PANOHOST [--benchmark_filter=...]\n");
        return 2;
    }
    const QGuiApplication application(argc, argv);
    Import import(QFile::decodeName(argv[1]));
    Bars::add("panohost import/10,000 photos end to end", { Bars::Need::AtLeast, 500.0, "/s" },
              [&] {
                  const HostRun::Run &best = import.best();
                  return Bars::Figure{ kPhotos / best.wallSeconds,
                                       Bars::text("%.3g s, %.3g s of CPU time", best.wallSeconds,
                                                  best.cpuSeconds),
                                       import.mistake() };
              });
    Bars::add("panohost import/10,000 photos, peak memory", { Bars::Need::AtMost, 300.0, " MB" },
              [&] {
                  const HostRun::Run &best = import.best();
                  // 48 x 36 pixels each.
                  return Bars::Figure{ best.megabytes,
                                       Bars::text("all thumbnails decoded would be %.0f MB more",
                                                  kPhotos * 48.0 * 36.0 * 4.0 / 1e6),
                                       import.mistake() };
              });
    return Bars::run(argc, argv);
}
