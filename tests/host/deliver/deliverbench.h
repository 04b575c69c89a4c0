// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/host/deliver/testpicture.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <csignal>
#include <functional>

#include <sys/resource.h>

namespace DeliverBench
{

/** Writes the part of a sphere that begins at \p onSphere, \p colour of pixels counted from its
 * own corner, as panorama.v to \p folder. */
PanoHost::StitchedPicture writePanorama(const QString &folder, const QSize &size,
                                        const QSize &sphere, const QPoint &onSphere,
                                        PanoHost::StitchedPicture::Depth depth,
                                        const std::function<PanoHost::Pixel(int x, int y)> &colour);

/** A profile as far as its header goes: \p filling makes it different from others. */
QByteArray iccProfile(char filling, int bytes = 500);

/** What the program \p name prints for \p arguments in \p folder; fails the test with what it says
 * when it fails. */
QString said(const QString &name, const QStringList &arguments, const QString &folder);

/** As vips reads pixel (\p x, \p y) of the file \p name in \p folder: "255 0 0 255". */
QString pixelOf(const QString &name, int x, int y, const QString &folder);

/** Red, green, blue and alpha of the OpenEXR file \p path, row by row; empty: it is none. */
QVector<PanoHost::Pixel> readExr(const QString &path, QSize *size = nullptr);

/** Everything that lies in \p folder and below. */
QStringList allIn(const QString &folder);

/** Programs of this test's own that stand before all others while it lives. */
class FakeTools
{
public:
    explicit FakeTools(const QString &folder);
    ~FakeTools();
    FakeTools(const FakeTools &) = delete;
    FakeTools &operator=(const FakeTools &) = delete;

    /** Has \p name run the lines \p script of a shell. */
    void add(const QString &name, const QByteArray &script) const;
    /** Nothing else is found any more. */
    void hideOthers() const;

private:
    QString m_folder;
    QByteArray m_before;
};

/** No file of this process and its tools grows beyond some bytes while it lives, as on a disk that
 * is full. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{ bytes, m_before.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

} // namespace DeliverBench
