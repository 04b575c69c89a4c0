// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pagedriver.h"
#include "tests/support/shootfolder.h"

#include <QPixmap>
#include <QVector>

#include <deque>
#include <memory>

class ReadingThread;

/** CPU seconds that the calling thread has used so far. */
[[nodiscard]] double threadSeconds();

/** A photo of a record-size shoot: one of a few thumbnails, which are never copied. */
class RecordPhoto : public FakeImage
{
public:
    RecordPhoto(const QString &fileName, const FakePhoto &photo, QPixmap *thumbnail);

    QPixmap *Thumbnail() override
    {
        ++m_requests;
        return m_thumbnail;
    }
    /** How often the thumbnail was asked for. */
    [[nodiscard]] int requests() const { return m_requests; }

private:
    QPixmap *m_thumbnail;
    int m_requests = 0;
};

/**
 * The host double of record-size shoots. Photos are named by their number; each costs the host
 * nothing but waits for a pass, so that the page can be watched signal by signal.
 */
class RecordShootApplication : public FakeApplication
{
    Q_OBJECT

public:
    RecordShootApplication(int &argc, char **argv);
    ~RecordShootApplication() override;

    /** Photos in another order of time than of reading: number n is taken at n ^ 1 seconds. */
    void swapNeighbourTimes(bool swap) { m_swapsTimes = swap; }
    XIImageDef *CreateImageDef(const QString &fileName) override;
    /** Lets \p photos more be read. */
    void letRead(int photos) { m_passes.open(photos); }

private:
    std::vector<QPixmap> m_thumbnails;
    std::deque<RecordPhoto> m_photos; // of the reading thread while one runs
    Gate m_passes;
    bool m_swapsTimes = false;
};

/** Files of a shoot whose photos a RecordShootApplication reads. */
class RecordShoot
{
public:
    /** \p most photos can be chosen. */
    explicit RecordShoot(int most);

    /** The first \p count photos. */
    [[nodiscard]] QStringList photos(int count) const { return m_photos.mid(0, count); }
    /** Writes \p content to \p name. */
    [[nodiscard]] QString write(const QString &name, const QByteArray &content) const
    {
        return m_folder.write(name, content);
    }

private:
    ShootFolder m_folder;
    QStringList m_photos;
};

/** Loads a shoot on a page and takes the time that this costs the GUI thread. */
class PageLoad
{
public:
    /** CPU seconds. */
    struct Cost {
        double all = 0.0;
        /** The longest time without a turn of the event loop; what a signal has posted counts as
         * one with it. */
        double longest = 0.0;
    };

    explicit PageLoad(QWizardPage *page);
    ~PageLoad();

    /** Enters the path of a record; CPU seconds. */
    double enterRecord(const QString &path);
    /** Chooses \p files in the page's dialog; CPU seconds from the dialog's end on. */
    double choosePhotos(const QStringList &files);
    /** Lets the next ten photos be read and waits for the page. */
    Cost readNext();
    [[nodiscard]] bool isDone() const { return m_left == 0; }

    [[nodiscard]] const PageDriver &driver() const { return m_driver; }

private:
    void settle();

    QWizardPage *m_page;
    PageDriver m_driver;
    ReadingThread *m_thread;
    QObject m_context;
    int m_signals = 0;
    int m_left = 0;
};
