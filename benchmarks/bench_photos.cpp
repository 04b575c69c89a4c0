// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// The built panohost on photos of 24 megapixels, against the least that reading them takes. The
// photos are written just before, so that the disk takes no part.
#include "benchmarks/bars.h"
#include "benchmarks/hostrun.h"
#include "host/gui/importwizard.h"
#include "host/model/photofile.h"
#include "tests/host/cameraphotos.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <functional>
#include <limits>
#include <map>

using namespace PanoHost;

namespace
{

constexpr int kMany = 1'000;
constexpr int kFew = 200;
constexpr int kRecord = 10'000;
/** Short work is repeated, since other programs can only slow it down. */
constexpr int kAttempts = 3;
constexpr double kRepeatedSeconds = 20.0;

QString recordName()
{
    return QStringLiteral("shoot.xml");
}

/** A folder with photos and their record. */
struct Shoot {
    QString folder;
    QStringList photos; ///< their names there
};

enum class Kind { WithThumbnail, WithoutPreview, Raw };

/** The shoots, each made when it is first asked for. */
class Shoots
{
public:
    /** A folder of the user's own that ends with the benchmark. */
    [[nodiscard]] QString freshFolder()
    {
        const QString name = m_folder.filePath(QStringLiteral("fresh-%1").arg(++m_fresh));
        QDir().mkpath(name);
        return name;
    }

    const Shoot &of(Kind kind, int count)
    {
        return made({ kind, count }, [&](Shoot &shoot) {
            const CameraPhotos photos;
            for (int i = 0; i < count; ++i) {
                const QByteArray content = kind == Kind::Raw
                    ? photos.raw(i)
                    : photos.jpeg(i,
                                  kind == Kind::WithThumbnail ? CameraPhotos::Inside::Thumbnail
                                                              : CameraPhotos::Inside::Nothing);
                add(shoot, i, kind == Kind::Raw ? "tif" : "jpg", content);
            }
        });
    }

    /** \p count names for fewer photos, for which the disk has room. */
    const Shoot &linked(Kind kind, int count)
    {
        const Shoot &source = of(kind, kind == Kind::WithThumbnail ? kMany : kFew);
        return made({ kind, count }, [&](Shoot &shoot) {
            for (int i = 0; i < count; ++i) {
                shoot.photos += nameOf(i, "jpg");
                const QString original
                    = source.folder + QLatin1Char('/') + source.photos.at(i % source.photos.size());
                require(::link(QFile::encodeName(original).constData(),
                               QFile::encodeName(QDir(shoot.folder).filePath(shoot.photos.last()))
                                   .constData())
                        == 0);
            }
        });
    }

private:
    static void require(bool done)
    {
        if (!done) {
            qFatal("cannot write the photos");
        }
    }

    static QString nameOf(int number, const char *suffix)
    {
        return QStringLiteral("IMG_%1.%2")
            .arg(number, 6, 10, QLatin1Char('0'))
            .arg(QLatin1String(suffix));
    }

    static void write(const Shoot &shoot, const QString &name, const QByteArray &content)
    {
        QFile file(QDir(shoot.folder).filePath(name));
        require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    static void add(Shoot &shoot, int number, const char *suffix, const QByteArray &content)
    {
        shoot.photos += nameOf(number, suffix);
        write(shoot, shoot.photos.last(), content);
    }

    const Shoot &made(const std::pair<Kind, int> &key, const std::function<void(Shoot &)> &make)
    {
        Shoot &shoot = m_shoots[key];
        if (shoot.folder.isEmpty()) {
            shoot.folder = freshFolder();
            make(shoot);
            write(shoot, recordName(), HostRun::record(shoot.photos.size()));
        }
        return shoot;
    }

    QTemporaryDir m_folder;
    int m_fresh = 0;
    std::map<std::pair<Kind, int>, Shoot> m_shoots;
};

/** The best of several runs, as long as they are short. */
HostRun::Run best(const std::function<HostRun::Run()> &work)
{
    HostRun::Run least = work();
    double sum = least.wallSeconds;
    for (int i = 1; i < kAttempts && sum < kRepeatedSeconds && least.exitCode == 0; ++i) {
        const HostRun::Run next = work();
        sum += next.wallSeconds;
        if (next.exitCode != 0 || next.wallSeconds < least.wallSeconds) {
            least = next;
        }
    }
    return least;
}

/** Seconds that exiv2 takes to read what \p shoot says of itself, one photo after the other. */
double metadataSeconds(const Shoot &shoot)
{
    const QDir folder(shoot.folder);
    double least = std::numeric_limits<double>::infinity();
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const auto start = std::chrono::steady_clock::now();
        for (const QString &photo : shoot.photos) {
            const auto image = Exiv2::ImageFactory::open(
                QFile::encodeName(folder.filePath(photo)).toStdString());
            image->readMetadata();
        }
        least = std::min(
            least, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return least;
}

/** Seconds that djpeg takes to make an eighth of each photo of \p shoot; negative: it failed. */
double eighthSeconds(const Shoot &shoot)
{
    const QString djpeg = QStandardPaths::findExecutable(QStringLiteral("djpeg"));
    double sum = 0.0;
    for (const QString &photo : shoot.photos) {
        const HostRun::Run run
            = HostRun::run(djpeg,
                           { QStringLiteral("-scale"), QStringLiteral("1/8"),
                             QStringLiteral("-outfile"), QStringLiteral("/dev/null"), photo },
                           shoot.folder);
        if (run.exitCode != 0) {
            return -1.0;
        }
        sum += run.wallSeconds;
    }
    return sum;
}

enum class Command { Import, Check, Preview };

/** One way of having a shoot read, and how to tell that it was read. */
class Host
{
public:
    Host(QString program, QString library, QString self, Shoots &shoots)
        : m_program(std::move(program))
        , m_library(std::move(library))
        , m_self(std::move(self))
        , m_shoots(shoots)
    {
    }

    [[nodiscard]] HostRun::Run run(Command command, const Shoot &shoot)
    {
        useCache(m_shoots.freshFolder());
        return runAgain(command, shoot);
    }

    /** With what the run before has left in the cache. */
    [[nodiscard]] HostRun::Run runAgain(Command command, const Shoot &shoot)
    {
        static const std::map<Command, QStringList> lines{
            { Command::Import,
              { QStringLiteral("import"), QStringLiteral("-o"), QStringLiteral("result.pto") } },
            { Command::Check, { QStringLiteral("check") } },
            { Command::Preview,
              { QStringLiteral("preview"), QStringLiteral("-o"), QStringLiteral("result.png") } },
        };
        const QDir folder(shoot.folder);
        for (const char *const result : { "result.pto", "result.png", "result.txt" }) {
            QFile::remove(folder.filePath(QLatin1String(result)));
        }
        const QStringList arguments = lines.at(command) + QStringList{ QStringLiteral("papywizard"),
                                                                       QStringLiteral("--plugin"),
                                                                       m_library,
                                                                       QStringLiteral("--quiet"),
                                                                       QStringLiteral("--focal"),
                                                                       QStringLiteral("800"),
                                                                       recordName() }
            + shoot.photos;
        HostRun::Run run
            = HostRun::run(m_program, arguments, shoot.folder, QStringLiteral("result.txt"));
        if (run.exitCode == 0 && !hasRead(command, shoot)) {
            run.exitCode = -1;
        }
        return run;
    }

    /** The window, driven by this program itself. */
    [[nodiscard]] HostRun::Run runWindow(const Shoot &shoot)
    {
        useCache(m_shoots.freshFolder());
        return HostRun::run(m_self,
                            QStringList{ QStringLiteral("--window"), m_library, recordName() }
                                + shoot.photos,
                            shoot.folder);
    }

private:
    static void useCache(const QString &folder)
    {
        qputenv("XDG_CACHE_HOME", QFile::encodeName(folder));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
    }

    static bool hasRead(Command command, const Shoot &shoot)
    {
        const auto contentOf = [&](const char *name) {
            QFile file(QDir(shoot.folder).filePath(QLatin1String(name)));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        switch (command) {
        case Command::Import:
            return contentOf("result.pto").count("\ni ") == shoot.photos.size();
        case Command::Check:
            return contentOf("result.txt").contains("can be imported");
        case Command::Preview:
            break;
        }
        return !contentOf("result.png").isEmpty();
    }

    QString m_program;
    QString m_library;
    QString m_self;
    Shoots &m_shoots;
};

std::string mistakeOf(const HostRun::Run &run)
{
    return run.exitCode == 0
        ? ""
        : Bars::text("it ended with code %d or left something out", run.exitCode);
}

/** \p run in terms of \p reference seconds, which \p what took. */
Bars::Figure compared(const HostRun::Run &run, const Shoot &shoot, double reference,
                      const char *what)
{
    const int count = shoot.photos.size();
    const std::string mistake = reference > 0.0 ? mistakeOf(run) : std::string(what) + " failed";
    return { run.wallSeconds / reference,
             Bars::text("%.0f photos/s; %.3g s, %.3g s of CPU time, %.0f MB; %s %.3g s, %.0f/s",
                        count / run.wallSeconds, run.wallSeconds, run.cpuSeconds, run.megabytes,
                        what, reference, count / reference),
             mistake };
}

Bars::Figure againstMetadata(const HostRun::Run &run, const Shoot &shoot)
{
    return compared(run, shoot, metadataSeconds(shoot), "metadata alone");
}

Bars::Figure memory(const HostRun::Run &run)
{
    return { run.megabytes,
             Bars::text("%.0f photos/s, %.3g s", kRecord / run.wallSeconds, run.wallSeconds),
             mistakeOf(run) };
}

void addRows(Host &host, Shoots &shoots)
{
    const auto atMost = [](double limit, const char *unit = "x") {
        return Bars::Bar{ Bars::Need::AtMost, limit, unit };
    };
    const auto run = [&](Command command, const Shoot &shoot) {
        return best([&] { return host.run(command, shoot); });
    };
    Bars::add("import/1,000 photos with thumbnails/time of their metadata", atMost(2.0), [&, run] {
        const Shoot &shoot = shoots.of(Kind::WithThumbnail, kMany);
        return againstMetadata(run(Command::Import, shoot), shoot);
    });
    Bars::add("check/1,000 photos with thumbnails/time of their metadata", atMost(2.0), [&, run] {
        const Shoot &shoot = shoots.of(Kind::WithThumbnail, kMany);
        return againstMetadata(run(Command::Check, shoot), shoot);
    });
    Bars::add("window/1,000 photos with thumbnails/time of their metadata", atMost(4.0), [&] {
        const Shoot &shoot = shoots.of(Kind::WithThumbnail, kMany);
        return againstMetadata(best([&] { return host.runWindow(shoot); }), shoot);
    });
    Bars::add("import/200 photos without preview/time of their metadata", atMost(2.0), [&, run] {
        const Shoot &shoot = shoots.of(Kind::WithoutPreview, kFew);
        return againstMetadata(run(Command::Import, shoot), shoot);
    });
    Bars::add("preview/200 photos without preview/time of djpeg -scale 1:8", atMost(0.6), [&, run] {
        const Shoot &shoot = shoots.of(Kind::WithoutPreview, kFew);
        return compared(run(Command::Preview, shoot), shoot, eighthSeconds(shoot), "djpeg");
    });
    Bars::add("preview for the second time/200 photos without preview/time of their metadata",
              atMost(4.0), [&] {
                  const Shoot &shoot = shoots.of(Kind::WithoutPreview, kFew);
                  const HostRun::Run first = host.run(Command::Preview, shoot);
                  return againstMetadata(first.exitCode == 0 ? best(
                                             [&] { return host.runAgain(Command::Preview, shoot); })
                                                             : first,
                                         shoot);
              });
    Bars::add("preview/200 RAW photos with previews/time of their metadata",
              { Bars::Need::Nothing, 0.0, "x" }, [&, run] {
                  const Shoot &shoot = shoots.of(Kind::Raw, kFew);
                  return againstMetadata(run(Command::Preview, shoot), shoot);
              });
    Bars::add("import/10,000 photos with thumbnails/peak memory", atMost(400.0, " MB"), [&] {
        return memory(host.run(Command::Import, shoots.linked(Kind::WithThumbnail, kRecord)));
    });
    Bars::add("window/10,000 photos with thumbnails/peak memory", atMost(400.0, " MB"),
              [&] { return memory(host.runWindow(shoots.linked(Kind::WithThumbnail, kRecord))); });
}

/**
 * Shows the page of \p files in the library \p library as a user sees it, up to the description.
 * Answers the exit code.
 */
int showInWindow(PanoHostApplication &app, const QString &library, const QStringList &files)
{
    auto opened = PluginLibrary::open(library);
    if (!opened) {
        return 1;
    }
    ImportWizard wizard(app, *opened.value());
    wizard.show();
    wizard.fillIn(files);
    const QAbstractButton *next = wizard.button(QWizard::NextButton);
    while (!next->isEnabled() && app.unreadablePhotos().isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    // The page may be complete before it hears of the last photos.
    QCoreApplication::processEvents();
    wizard.next();
    const int photos = files.size() - 1;
    return app.delivery().imageGroups.size() == photos ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const bool window = argc > 3 && std::strcmp(argv[1], "--window") == 0;
    if (argc < 3) {
        std::fprintf(stderr, "Usage: bench_photos PANOHOST LIBRARY [--benchmark_filter=...]\n");
        return 2;
    }
    initializePhotoReading();
    int qtArgumentCount = 1;
    PanoHostApplication app(qtArgumentCount, argv);
    const QString second = QFile::decodeName(argv[2]);
    if (window) {
        QStringList files;
        for (int i = 3; i < argc; ++i) {
            files += QDir().absoluteFilePath(QFile::decodeName(argv[i]));
        }
        return showInWindow(app, second, files);
    }
    Shoots shoots;
    Host host(QFile::decodeName(argv[1]), second, QCoreApplication::applicationFilePath(), shoots);
    addRows(host, shoots);
    return Bars::run(argc, argv);
}
