// SPDX-License-Identifier: MIT
#include "platform/desktops/ForeignWindows.h"

#include <glib.h>

#include <algorithm>

namespace foreignwindows {

namespace {

bool areAlike(const std::string& one, const std::string& other) {
    return g_ascii_strcasecmp(one.c_str(), other.c_str()) == 0;
}

}  // namespace

std::vector<std::string> programsOf(const std::vector<ForeignWindow>& windows) {
    std::vector<std::string> found;
    for (const ForeignWindow& window : windows) {
        const auto known = std::find_if(found.begin(), found.end(), [&](const std::string& one) {
            return areAlike(one, window.program);
        });
        if (known == found.end() && !window.program.empty()) {
            found.insert(window.isActive ? found.begin() : found.end(), window.program);
        } else if (known != found.end() && window.isActive) {
            std::rotate(found.begin(), known, known + 1);
        }
    }
    return found;
}

std::size_t find(const std::vector<ForeignWindow>& windows, std::string_view program) {
    const std::string name(program);
    std::size_t found = windows.size();
    for (std::size_t place = 0; place < windows.size(); ++place) {
        const bool isOfIt = areAlike(windows[place].program, name);
        if (isOfIt && (found == windows.size() || windows[place].isActive)) found = place;
    }
    return found;
}

}  // namespace foreignwindows
