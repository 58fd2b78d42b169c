// SPDX-License-Identifier: MIT
#include "platform/linux/ConfigFolders.h"

#include <glib.h>

#include <filesystem>
#include <sstream>

#include "platform/Installation.h"

namespace {

bool isAbsolute(const std::string& path) { return !path.empty() && path.front() == '/'; }

std::vector<std::string> absolutePaths(const std::string& colonSeparated) {
    std::vector<std::string> paths;
    std::istringstream list(colonSeparated);
    for (std::string path; std::getline(list, path, ':');) {
        if (isAbsolute(path)) paths.push_back(path);
    }
    return paths;
}

}  // namespace

ConfigFolders configFolders(const Environment& environment, const std::string& home) {
    ConfigFolders folders;
    const std::string user = environment("XDG_CONFIG_HOME");
    folders.user = isAbsolute(user) ? user : home + "/.config";
    const std::string system = environment("XDG_CONFIG_DIRS");
    folders.system = system.empty() ? std::vector<std::string>{"/etc/xdg"} : absolutePaths(system);
    return folders;
}

ConfigFolders configFoldersOfProcess() {
    ConfigFolders folders = configFolders(environmentOfProcess(), homeOfProcess());
    folders.installation = Installation::ofProcess().presets();
    return folders;
}

std::string userDataFolder(const Environment& environment, const std::string& home) {
    const std::string user = environment("XDG_DATA_HOME");
    return isAbsolute(user) ? user : home + "/.local/share";
}

std::string userStateFolder(const Environment& environment, const std::string& home) {
    const std::string user = environment("XDG_STATE_HOME");
    return isAbsolute(user) ? user : home + "/.local/state";
}

Environment environmentOfProcess() {
    return [](const std::string& name) {
        const char* value = g_getenv(name.c_str());
        return std::string(value != nullptr ? value : "");
    };
}

std::string homeOfProcess() { return g_get_home_dir(); }

std::string programOfProcess() {
    std::string image = environmentOfProcess()("APPIMAGE");
    if (isAbsolute(image)) return image;
    return std::filesystem::read_symlink("/proc/self/exe");
}
