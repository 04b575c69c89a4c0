// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/photoresiduals.h"
#include "host/make/makejob.h"
#include "host/model/pace.h"

#include <QImage>
#include <QObject>

#include <atomic>
#include <memory>
#include <mutex>

class QThread;

namespace PanoHost
{

/** What a panorama has become: what to open, and a picture of it that fits into memory. */
struct MadePanorama {
    QStringList paths; ///< in the order of the kinds
    QString project; ///< by which it was stitched; Hugin can open it
    QImage picture; ///< null: it cannot be shown
    std::shared_ptr<const Alignment> alignment; ///< null: the head was trusted
    PhotoResiduals residuals; ///< of its project
};

/** Makes panoramas on a thread of its own, one at a time. Nothing of it blocks. */
class MakeRunner : public QObject
{
    Q_OBJECT
public:
    explicit MakeRunner(MakeSteps steps, QObject *parent = nullptr);
    /** Waits until the job has heard that it is to stop. */
    ~MakeRunner() override;

    [[nodiscard]] bool isRunning() const { return m_thread != nullptr; }
    /** Of what a page has delivered. Does nothing while another one is being made. */
    void start(const MakeRequest &request);
    /** `finished` follows, soon; what is done is kept in the work folder. */
    void stop() { m_stops = true; }

    struct Line {
        JobWatch::Note note;
        QString text;
    };
    struct Told {
        Pace pace; ///< of the whole
        QString text; ///< what is being done
        QVector<Line> lines; ///< since it was asked last
    };
    [[nodiscard]] Told told();

Q_SIGNALS:
    /** `told()` knows more. Comes once for all that is told in a turn of the event loop. */
    void toldMore();
    void finished(const PanoHost::Result<PanoHost::MadePanorama> &made);

private:
    [[nodiscard]] JobWatch watch();
    [[nodiscard]] Result<MadePanorama> make(const MakeRequest &request);
    void tell(const std::function<void(Told &told)> &what);
    void end();

    MakeSteps m_steps;
    std::unique_ptr<QThread> m_thread;
    std::atomic<bool> m_stops{ false };
    std::atomic<bool> m_isTelling{ false }; ///< `toldMore` is on its way
    std::mutex m_mutex; ///< guards what follows
    Told m_told;
    std::unique_ptr<Result<MadePanorama>> m_made;
};

} // namespace PanoHost
