// SPDX-License-Identifier: MIT
#include "desktop/SavedMacro.h"

#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "desktop/StatusMenuClicks.h"

namespace {

/// Of the entries that can be chosen once something has been recorded.
constexpr int saveEntry = 5;
constexpr const char* lastLine = "end tell\n";

}  // namespace

std::string savedMacro(const Desktop& desktop) {
    const std::uint32_t focus = desktop.screen().focus();
    // The menu says what there is only once the recording has ended.
    if (!eventually([&] { return !desktop.shows(title::overlay); }))
        throw std::runtime_error("still recording");
    StatusMenuClicks menu(desktop);
    menu.open();
    menu.chooseByKeys(saveEntry);
    const std::string file = desktop.file("saved.keyrill");
    std::filesystem::remove(file);
    const ScreenWindow panel = desktop.awaitWindow(title::savePanel);
    desktop.run({"xdotool", "windowactivate", std::to_string(panel.number)});
    desktop.awaitFocus(title::savePanel);
    desktop.run({"xdotool", "type", file});
    desktop.press("Return");
    if (!eventually([&] { return contentOf(file).ends_with(lastLine) && desktop.screen().focus() == focus; }))
        throw std::runtime_error("not saved");
    return contentOf(file);
}

std::size_t keyLines(const std::string& script) {
    std::istringstream lines(script);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line);)
        count += line.find("key code (") != std::string::npos ? 1 : 0;
    return count;
}
