// SPDX-License-Identifier: MIT
#include "platform/desktops/ScreenLockers.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace {

namespace fs = std::filesystem;

bool isProcess(const fs::path& file) {
    const std::string name = file.filename();
    return std::all_of(name.begin(), name.end(),
                       [](unsigned char character) { return std::isdigit(character) != 0; });
}

/// Empty where it has ended meanwhile.
std::string nameOf(const std::string& process) {
    std::ifstream stream(process + "/comm");
    std::string name;
    std::getline(stream, name);
    return name;
}

/// The effective user, as programs have it that switch users.
std::optional<uid_t> userOf(const std::string& process) {
    std::ifstream stream(process + "/status");
    for (std::string line; std::getline(stream, line);) {
        std::istringstream words(line);
        std::string key;
        uid_t real = 0;
        uid_t effective = 0;
        if (words >> key && key == "Uid:" && words >> real >> effective) return effective;
    }
    return std::nullopt;
}

/// What cannot be looked into, as programs forbid that keep passwords, may.
bool mayBeShownByWayland(const std::string& process) {
    std::ifstream stream(process + "/maps");
    std::string line;
    bool isReadable = false;
    while (std::getline(stream, line)) {
        isReadable = true;
        if (line.find("/libwayland-client.so") != std::string::npos) return true;
    }
    return !isReadable;
}

}  // namespace

bool ScreenLockers::isAnyRunning(uid_t user) const {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(m_places.processes, ignored)) {
        if (isProcess(entry.path()) && isLocker(entry.path(), user)) return true;
    }
    return false;
}

bool ScreenLockers::isLocker(const std::string& process, uid_t user) const {
    const std::string name = nameOf(process);
    std::error_code ignored;
    return !name.empty() && name.find('/') == std::string::npos &&
           fs::exists(m_places.passwordServices + "/" + name, ignored) && userOf(process) == user &&
           mayBeShownByWayland(process);
}
