// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "benchmarks/hostrun.h"

#include <QFile>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <vector>

namespace
{

constexpr int kColumns = 100;
constexpr double kStepDegrees = 1.2;

} // namespace

QByteArray HostRun::record(int shots)
{
    QByteArray text
        = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<papywizard version=\"c\">\n<shoot>\n";
    for (int i = 0; i < shots; ++i) {
        text += "<pict id=\"" + QByteArray::number(i + 1) + "\"><position yaw=\""
            + QByteArray::number(i % kColumns * kStepDegrees, 'f', 1) + "\" pitch=\""
            + QByteArray::number(60.0 - i / kColumns * kStepDegrees, 'f', 1)
            + "\" roll=\"0.0\"/></pict>\n";
    }
    return text + "</shoot>\n</papywizard>\n";
}

HostRun::Run HostRun::run(const QString &program, const QStringList &arguments,
                          const QString &folder, const QString &output)
{
    std::vector<QByteArray> texts{ QFile::encodeName(program) };
    for (const QString &argument : arguments) {
        texts.push_back(argument.toLocal8Bit());
    }
    std::vector<char *> pointers;
    for (QByteArray &text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    const QByteArray place = QFile::encodeName(folder);
    const QByteArray printed = QFile::encodeName(output);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        if (chdir(place.constData()) == 0
            && (printed.isEmpty() || freopen(printed.constData(), "w", stdout) != nullptr)) {
            execv(pointers[0], pointers.data());
        }
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    Run result;
    result.wallSeconds
        = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    result.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    result.megabytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}
