// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Runs the inputs of a corpus through a fuzz target once, without the fuzzer: an ordinary test for
// any compiler. Arguments: files and folders.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace
{

void replay(const std::filesystem::path &path, int &count)
{
    std::ifstream file(path, std::ios::binary);
    const std::string content{ std::istreambuf_iterator<char>(file), {} };
    // The last input named is the one that ended the process.
    std::printf("%s\n", path.filename().c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(content.data()), content.size());
    ++count;
}

} // namespace

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (!std::filesystem::is_directory(path)) {
            replay(path, count);
            continue;
        }
        for (const auto &entry : std::filesystem::directory_iterator(path)) {
            replay(entry.path(), count);
        }
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
