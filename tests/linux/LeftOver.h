// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

/// Half a file, as a writer leaves it that was killed; its path.
inline std::string makeLeftOver(const std::string& folder) {
    const std::string unnamed = folder + "/unnamed";
    std::ofstream(unnamed) << "half of it";
    struct stat status {};
    stat(unnamed.c_str(), &status);
    std::string name = folder + "/.keyrill-unfinished-" + std::to_string(status.st_ino);
    std::filesystem::rename(unnamed, name);
    return name;
}
