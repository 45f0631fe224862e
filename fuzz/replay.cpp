// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds files, or all files of folders, to a fuzz target, so that every build checks the seeds.
// Exit code 2 when there is no file to read.
#include "require.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

void replay(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

int replayAll(const fs::path& path)
{
    std::error_code error;
    if (fs::is_regular_file(path, error)) {
        replay(path);
        return 1;
    }
    int count = 0;
    for (const auto& entry : fs::directory_iterator(path, error))
        count += replayAll(entry.path());
    return count;
}

} // namespace

int main(int argc, char* argv[])
{
    int count = 0;
    for (int i = 1; i < argc; ++i)
        count += replayAll(argv[i]);
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 2;
}
