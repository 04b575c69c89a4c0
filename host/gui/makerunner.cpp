// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/makerunner.h"

#include "host/model/safefile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QImageReader>
#include <QThread>

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

namespace PanoHost
{

namespace
{

/** A picture of the file \p path that is at most so large, pixels; null where none can be read in
 * the memory that pictures are given. */
QImage shownPicture(const QString &path)
{
    constexpr int kMostWidth = 6144;
    constexpr qint64 kMostPixels = 200'000'000; // of files that are decoded as a whole
    QImageReader reader(path);
    const QSize size = reader.size();
    const bool isJpeg = reader.format() == "jpeg";
    if (!size.isValid() || (!isJpeg && qint64(size.width()) * size.height() > kMostPixels)) {
        return {};
    }
    if (size.width() > kMostWidth) {
        reader.setScaledSize(size.scaled(kMostWidth, kMostWidth, Qt::KeepAspectRatio));
    }
    return reader.read();
}

/** What an alignment has left in the work folder; null when it cannot be read. */
std::shared_ptr<const Alignment> alignmentIn(const QDir &work)
{
    constexpr qint64 kMostBytes = 1LL << 30;
    const Result<PtoFile> project = PtoFile::read(work.filePath(QStringLiteral("2_aligned.pto")));
    const Result<QByteArray> json
        = readRegularFile(work.filePath(QStringLiteral("2_alignment.json")), kMostBytes);
    const Result<AlignmentReport> report
        = json ? alignmentFromJson(json.value(), work.path()) : json.error();
    return project && report
        ? std::make_shared<const Alignment>(Alignment{ project.value(), report.value() })
        : nullptr;
}

} // namespace

MakeRunner::MakeRunner(MakeSteps steps, QObject *parent)
    : QObject(parent)
    , m_steps(std::move(steps))
{
}

MakeRunner::~MakeRunner()
{
    stop();
    if (m_thread) {
        m_thread->wait();
    }
}

void MakeRunner::start(const MakeRequest &request)
{
    if (isRunning()) {
        return;
    }
    m_stops = false;
    m_told = {};
    m_made.reset();
    m_thread.reset(QThread::create([this, request] {
        auto made = std::make_unique<Result<MadePanorama>>(make(request));
        const std::lock_guard lock(m_mutex);
        m_made = std::move(made);
    }));
    connect(m_thread.get(), &QThread::finished, this, &MakeRunner::end);
    m_thread->start();
}

void MakeRunner::end()
{
    m_thread->wait();
    m_thread.reset();
    Q_EMIT toldMore();
    Q_EMIT finished(*m_made);
}

MakeRunner::Told MakeRunner::told()
{
    const std::lock_guard lock(m_mutex);
    m_isTelling = false;
    Told told = m_told;
    m_told.lines.clear();
    return told;
}

void MakeRunner::tell(const std::function<void(Told &told)> &what)
{
    {
        const std::lock_guard lock(m_mutex);
        what(m_told);
    }
    if (!m_isTelling.exchange(true)) {
        QMetaObject::invokeMethod(this, &MakeRunner::toldMore, Qt::QueuedConnection);
    }
}

JobWatch MakeRunner::watch()
{
    JobWatch watch;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    watch.interrupted = [this] { return m_stops.load(); };
    watch.progress = [this, clock](int done, int total, const QString &text) {
        tell([&](Told &told) {
            told.pace = { done, total, std::chrono::milliseconds(clock->elapsed()) };
            told.text = text;
        });
    };
    watch.log = [this](JobWatch::Note note, const QString &text) {
        tell([&](Told &told) { told.lines.append({ note, text }); });
    };
    return watch;
}

Result<MadePanorama> MakeRunner::make(const MakeRequest &request)
{
    try {
        const Result<QStringList> made = makePanorama(request, m_steps, watch());
        if (!made) {
            return made.error();
        }
        const QDir work(workFolderOf(request.picture.path));
        const bool isAligned = !request.imported->description.skipOptimization;
        const QString project = work.filePath(isAligned ? QStringLiteral("2_aligned.pto")
                                                        : QStringLiteral("1_import.pto"));
        const auto alignment = isAligned ? alignmentIn(work) : nullptr;
        return MadePanorama{ made.value(), project, shownPicture(made.value().value(0)), alignment,
                             alignment ? photoResiduals(alignment->project) : PhotoResiduals() };
    } catch (const std::bad_alloc &) {
        return Failure{ ExitCode::ToolFailed,
                        tr("Not enough memory"),
                        {},
                        tr("close other programs, or make the panorama smaller") };
    } catch (const std::exception &error) {
        return Failure{ ExitCode::ToolFailed, QString::fromUtf8(error.what()), {}, {} };
    }
}

} // namespace PanoHost
