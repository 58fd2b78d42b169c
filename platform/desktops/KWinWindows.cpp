// SPDX-License-Identifier: MIT
#include "platform/desktops/KWinWindows.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "platform/Sentence.h"
#include "platform/desktops/Json.h"
#include "platform/linux/GLibPointers.h"

namespace {

/// KWin 6 calls clients windows.
std::string withFunctions(std::string_view statements) {
    std::string script =
        "var all = workspace.windowList ? workspace.windowList() : workspace.clientList();\n"
        "function active() { return workspace.windowList ? workspace.activeWindow : workspace.activeClient; "
        "}\n"
        "function activate(one) {\n"
        "  if (workspace.windowList) workspace.activeWindow = one; else workspace.activeClient = one;\n"
        "}\n";
    return script.append(statements);
}

/// Activates the window of which the condition on `one` is true, and tells whether there is one. To which it
/// gives the focus KWin may know only when that has taken it.
std::string activation(const std::string& condition) {
    return withFunctions(
        "var found = false;\n"
        "for (var i = 0; i < all.length; ++i) {\n"
        "  var one = all[i];\n"
        "  if (!(" +
        condition +
        ")) continue;\n"
        "  activate(one);\n"
        "  found = true;\n"
        "}\n"
        "tell(found ? 'yes' : 'no');");
}

Result<void> activateBy(KWinScripts& scripts, const std::string& condition) {
    const auto told = scripts.run(activation(condition));
    if (!told) return told.error();
    if (told.value() != "yes") {
        return Error{sentence("Windows", "KWin does not show the window any more."),
                     sentence("Windows", "Open it again.")};
    }
    return {};
}

}  // namespace

Result<std::unique_ptr<ForeignWindows>> KWinWindows::open(const std::string& bus) {
    std::unique_ptr<KWinWindows> windows(new KWinWindows(bus));
    if (const auto asked = windows->ask(); !asked) return asked.error();
    return std::unique_ptr<ForeignWindows>(std::move(windows));
}

Result<void> KWinWindows::ask() {
    const auto told = m_scripts.run(
        withFunctions("var found = [];\n"
                      "for (var i = 0; i < all.length; ++i) {\n"
                      "  var one = all[i];\n"
                      "  if (!one.normalWindow && !one.dialog) continue;\n"
                      "  found.push({id: String(one.internalId), program: String(one.resourceClass),\n"
                      "              active: one === active()});\n"
                      "}\n"
                      "tell(JSON.stringify(found));"));
    if (!told) return told.error();
    const auto list = Json::parse(told.value());
    if (!list)
        return Error{sentence("Windows", "KWin does not tell of its windows."),
                     sentence("Windows", "Log in again.")};
    for (const Json& one : list->items()) {
        m_windows.push_back({one["id"].text(), {one["program"].text(), one["active"].isTrue()}});
    }
    return {};
}

std::vector<ForeignWindow> KWinWindows::windows() const {
    std::vector<ForeignWindow> windows;
    windows.reserve(m_windows.size());
    for (const Window& window : m_windows) windows.push_back(window.window);
    return windows;
}

/// KWin's names for windows are numbers in braces.
Result<void> KWinWindows::activate(std::size_t place) {
    return activateBy(m_scripts, "String(one.internalId) == '" + m_windows[place].id + "'");
}

std::optional<std::uint32_t> KWinFocus::focusedXWindow() {
    KWinScripts scripts(m_bus);
    // Native windows have no number, or one that no X server gives.
    const auto told =
        scripts.run(withFunctions("var one = active();\n"
                                  "tell(one ? String(one.windowId || 0) : '');"));
    if (!told || told.value().empty()) return std::nullopt;
    return static_cast<std::uint32_t>(std::strtoul(told.value().c_str(), nullptr, 10));
}

Result<void> KWinFocus::focus(const OwnWindow& window) {
    KWinScripts scripts(m_bus);
    if (window.id != Windows::none)
        return activateBy(scripts, "one.windowId == " + std::to_string(window.id));
    const GText title(g_uri_escape_string(window.title.c_str(), nullptr, FALSE));
    return activateBy(scripts, "one.pid == " + std::to_string(getpid()) +
                                   " && one.caption == decodeURIComponent('" + title.get() + "')");
}
