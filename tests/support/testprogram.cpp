// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <cstdio>
#include <map>
#include <string>

namespace
{

/** By file name. Made at its first use, since the entries come from other files. */
std::map<std::string, TestProgram::Run> &entries()
{
    static std::map<std::string, TestProgram::Run> all;
    return all;
}

} // namespace

TestProgram::Entry::Entry(const char *path, Run run)
{
    const std::string name = QFileInfo(QString::fromUtf8(path)).completeBaseName().toStdString();
    entries().emplace(name, run);
}

int main(int argc, char *argv[])
{
    const auto chosen = entries().find(argc > 1 ? argv[1] : "");
    if (chosen != entries().end()) {
        argv[1] = argv[0];
        return chosen->second(argc - 1, argv + 1);
    }
    if (entries().size() == 1) {
        return entries().begin()->second(argc, argv);
    }
    std::printf("Usage: %s TEST [QTEST-ARGUMENT...]\n\nTests:\n", argv[0]);
    for (const auto &entry : entries()) {
        std::printf("  %s\n", entry.first.c_str());
    }
    return 2;
}
