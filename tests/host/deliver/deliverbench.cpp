// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/deliver/deliverbench.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QtDebug>
#include <QtEndian>

#include <OpenEXR/ImfChannelList.h>
#include <OpenEXR/ImfFrameBuffer.h>
#include <OpenEXR/ImfHeader.h>
#include <OpenEXR/ImfInputFile.h>

#include <algorithm>
#include <vector>

namespace DeliverBench
{
PanoHost::StitchedPicture writePanorama(const QString &folder, const QSize &size,
                                        const QSize &sphere, const QPoint &onSphere,
                                        PanoHost::StitchedPicture::Depth depth,
                                        const std::function<PanoHost::Pixel(int x, int y)> &colour)
{
    const PanoHost::StitchedPicture picture{
        QDir(folder).filePath(QStringLiteral("panorama.v")), size, depth, sphere, onSphere, 0.0, 0.0
    };
    QVector<PanoHost::Pixel> pixels;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            pixels += colour(x, y);
        }
    }
    if (!PanoHost::writeTestPicture(picture, pixels)) {
        qFatal("cannot write the panorama");
    }
    return picture;
}

QByteArray iccProfile(char filling, int bytes)
{
    QByteArray profile(bytes, filling);
    qToBigEndian(static_cast<quint32>(bytes), profile.data());
    profile.replace(16, 4, "RGB ");
    profile.replace(36, 4, "acsp");
    return profile;
}

QString said(const QString &name, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(name, arguments);
    process.waitForFinished();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qWarning().noquote() << name << arguments << process.errorString()
                             << process.readAllStandardError();
        return QStringLiteral("(failed)");
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString pixelOf(const QString &name, int x, int y, const QString &folder)
{
    return said(QStringLiteral("vips"),
                { QStringLiteral("getpoint"), name, QString::number(x), QString::number(y) },
                folder)
        .simplified();
}

QVector<PanoHost::Pixel> readExr(const QString &path, QSize *size)
{
    try {
        Imf::InputFile exr(QFile::encodeName(path).constData());
        const Imath::Box2i window = exr.header().dataWindow();
        const QSize pixels(window.max.x + 1, window.max.y + 1);
        std::vector<float> values(static_cast<size_t>(pixels.width() * pixels.height()) * 4);
        Imf::FrameBuffer buffer;
        size_t channel = 0;
        for (const char *const name : { "R", "G", "B", "A" }) {
            const Imf::Channel *const stored = exr.header().channels().findChannel(name);
            if (stored == nullptr || stored->type != Imf::FLOAT) {
                return {};
            }
            buffer.insert(name,
                          Imf::Slice(Imf::FLOAT, reinterpret_cast<char *>(&values[channel++]),
                                     4 * sizeof(float),
                                     4 * sizeof(float) * static_cast<size_t>(pixels.width())));
        }
        exr.setFrameBuffer(buffer);
        exr.readPixels(0, window.max.y);
        QVector<PanoHost::Pixel> read;
        for (size_t i = 0; i < values.size(); i += 4) {
            read.append({ values[i], values[i + 1], values[i + 2], values[i + 3] });
        }
        if (size != nullptr) {
            *size = pixels;
        }
        return read;
    } catch (const std::exception &problem) {
        qWarning() << problem.what();
        return {};
    }
}

QStringList allIn(const QString &folder)
{
    QStringList all;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        all += QDir(folder).relativeFilePath(entries.next());
    }
    std::sort(all.begin(), all.end());
    return all;
}

FakeTools::FakeTools(const QString &folder)
    : m_folder(folder)
    , m_before(qgetenv("PATH"))
{
    QDir().mkpath(folder);
    qputenv("PATH", QFile::encodeName(folder) + ':' + m_before);
}

FakeTools::~FakeTools()
{
    qputenv("PATH", m_before);
}

void FakeTools::add(const QString &name, const QByteArray &script) const
{
    QFile file(QDir(m_folder).filePath(name));
    // The real ones are found by the path that the script takes back.
    const QByteArray text = "#!/bin/sh\nPATH='" + m_before + "'\n" + script;
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()
        || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
        qFatal("cannot write the program");
    }
}

void FakeTools::hideOthers() const
{
    qputenv("PATH", QFile::encodeName(m_folder));
}

} // namespace DeliverBench
