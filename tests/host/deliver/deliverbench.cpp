// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/deliver/deliverbench.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QtDebug>
#include <QtEndian>

#include <algorithm>

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
