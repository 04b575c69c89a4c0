// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"

#include "tests/host/testphotos.h"

#include <QDateTime>
#include <QDir>
#include <QProcess>

CliBench::CliBench()
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    const QStringList kept{ QStringLiteral("PATH"),          QStringLiteral("HOME"),
                            QStringLiteral("ASAN_OPTIONS"),  QStringLiteral("LSAN_OPTIONS"),
                            QStringLiteral("UBSAN_OPTIONS"), QStringLiteral("XDG_RUNTIME_DIR") };
    for (const QString &name : kept) {
        if (own.contains(name)) {
            m_environment.insert(name, own.value(name));
        }
    }
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    m_environment.insert(QStringLiteral("TMPDIR"), m_temporaryFiles.path());
    m_environment.insert(QStringLiteral("PANOHOST_PLUGIN_PATH"),
                         QStringLiteral(PANOHOST_TEST_LIBRARY));
}

CliBench::Run CliBench::run(const QStringList &arguments, const QString &outputFile) const
{
    return runProgram(QStringLiteral(PANOHOST_TEST_BINARY), arguments, outputFile);
}

CliBench::Run CliBench::runOnFullDisk(const QStringList &arguments, int kilobytes) const
{
    // The shell counts in blocks of 512 bytes. The output goes to a pipe, which has no limit.
    const QString script = QStringLiteral("ulimit -f %1; exec \"$0\" \"$@\"").arg(2 * kilobytes);
    return runProgram(
        QStringLiteral("/bin/sh"),
        QStringList{ QStringLiteral("-c"), script, QStringLiteral(PANOHOST_TEST_BINARY) }
            + arguments);
}

CliBench::Run CliBench::runProgram(const QString &program, const QStringList &arguments,
                                   const QString &outputFile) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.setProcessEnvironment(m_environment);
    process.setStandardInputFile(QProcess::nullDevice());
    if (!outputFile.isEmpty()) {
        process.setStandardOutputFile(outputFile);
    }
    process.start(program, arguments);
    constexpr int kHangMs = 120000;
    Run run;
    if (!process.waitForFinished(kHangMs)) {
        process.kill();
        process.waitForFinished();
    } else if (process.exitStatus() == QProcess::NormalExit) {
        run.exitCode = process.exitCode();
    }
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QString CliBench::record(const QString &name, const QVector<Shot> &shots, const QByteArray &camera,
                         const QByteArray &lens)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<papywizard version=\"c\">\n"
                     "  <header>\n    <general>\n      <title>\n        Test\n      </title>\n"
                     "    </general>\n    <camera>"
        + camera + "</camera>\n    " + lens + "\n  </header>\n  <shoot>\n";
    int id = 0;
    for (const Shot &shot : shots) {
        xml += "    <pict bracket=\"1\" id=\"" + QByteArray::number(++id)
            + "\">\n      <time>\n        2024-05-01_10h00m00s\n      </time>\n      <position "
              "pitch=\""
            + QByteArray::number(shot.pitch, 'f', 1) + "\" roll=\"0.0\" yaw=\""
            + QByteArray::number(shot.yaw, 'f', 1) + "\"/>\n    </pict>\n";
    }
    return file(name, xml + "  </shoot>\n</papywizard>\n");
}

QStringList CliBench::photos(int count, const QString &prefix)
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        const QString number = QString::number(i).rightJustified(2, QLatin1Char('0'));
        names += prefix + number + QStringLiteral(".jpg");
        TestPhotos::Exif exif = TestPhotos::ordinaryExif();
        exif["Exif.Photo.DateTimeOriginal"] = QDateTime({ 2024, 5, 1 }, { 10, 0 }, Qt::UTC)
                                                  .addSecs(i - 1)
                                                  .toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"))
                                                  .toLatin1();
        TestPhotos::writeJpeg(path(names.last()), TestPhotos::quarters(QSize(60, 40)), exif);
    }
    return names;
}

QString CliBench::file(const QString &name, const QByteArray &content)
{
    TestPhotos::writeFile(path(name), content);
    return name;
}

QByteArray CliBench::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList CliBench::leftovers() const
{
    const QDir folder(m_temporaryFiles.path());
    return folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QVector<CliBench::Shot> CliBench::row(int count)
{
    QVector<Shot> shots;
    for (int i = 0; i < count; ++i) {
        shots += { 360.0 * i / count, 0.0 };
    }
    return shots;
}
