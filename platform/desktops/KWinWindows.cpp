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
        "}\n"
        "function plain(title) {\n"
        "  return title.replace(/\\s+/g, ' ').trim().replace(/ <[0-9]+>$/, '');\n"
        "}\n";
    return script.append(statements);
}

/// Activates the last of the windows of which the condition on `one` is true, and tells whether there are so
/// many. To which it gives the focus KWin may know only when that has taken it.
std::string activation(const std::string& condition, int count) {
    return withFunctions(
        "var found = [];\n"
        "for (var i = 0; i < all.length; ++i) {\n"
        "  var one = all[i];\n"
        "  if (" +
        condition +
        ") found.push(one);\n"
        "}\n"
        "var areThere = found.length >= " +
        std::to_string(count) +
        ";\n"
        "if (areThere) activate(found[found.length - 1]);\n"
        "tell(areThere ? 'yes' : 'no');");
}

Result<void> activateBy(KWinScripts& scripts, const std::string& condition, int count = 1) {
    const auto told = scripts.run(activation(condition, count));
    if (!told) return told.error();
    if (told.value() != "yes") {
        return Error{sentence("Windows", "KWin does not show the window any more."),
                     sentence("Windows", "Open it again.")};
    }
    return {};
}

/// Whether `one` is a window of ours.
std::string isOwn() { return "one.pid == " + std::to_string(getpid()); }

/// Whether `one` is that window of ours; KWin numbers those with one title, and has its own blanks in it.
/// Native windows have no number, or one that no X server gives.
std::string conditionOf(const OwnWindow& window) {
    if (window.id != Windows::none) return "one.windowId == " + std::to_string(window.id);
    if (window.title.empty()) return "false";
    const GText title(g_uri_escape_string(window.title.c_str(), nullptr, FALSE));
    return isOwn() + " && plain(one.caption) == plain(decodeURIComponent('" + title.get() + "'))";
}

/// Gives the focus back to who had it, where KWin gives it to that window of ours as it appears; and to the
/// last window that is none of ours where KWin does so as another one of ours goes. Its user may give it.
std::string guardOf(const OwnWindow& window) {
    return withFunctions("function isOwn(one) { return " + isOwn() +
                         "; }\n"
                         "function isGuarded(one) { return " +
                         conditionOf(window) +
                         "; }\n"
                         // The last window that had it, the last of others', and whether the former was ours.
                         "var before = active();\n"
                         "var other = before && !isOwn(before) ? before : null;\n"
                         "var wasOwn = before && isOwn(before);\n"
                         // Told of only when it may have the focus already.
                         "var added = {};\n"
                         "function nameOf(one) { return String(one.internalId); }\n"
                         "all.forEach(function (one) { added[nameOf(one)] = true; });\n"
                         "(workspace.windowAdded || workspace.clientAdded).connect(function (one) {\n"
                         "  added[nameOf(one)] = true;\n"
                         "});\n"
                         "(workspace.windowRemoved || workspace.clientRemoved).connect(function (one) {\n"
                         "  delete added[nameOf(one)];\n"
                         "  if (one === before) before = null;\n"
                         "  if (one === other) other = null;\n"
                         "});\n"
                         "(workspace.windowActivated || workspace.clientActivated).connect(function (one) {\n"
                         "  if (!one) return;\n"
                         "  if (isGuarded(one)) {\n"
                         "    var right = !added[nameOf(one)] ? before : wasOwn ? other : null;\n"
                         "    wasOwn = false;\n"
                         "    if (right) activate(right);\n"
                         "    return;\n"
                         "  }\n"
                         "  before = one;\n"
                         "  wasOwn = isOwn(one);\n"
                         "  if (!wasOwn) other = one;\n"
                         "});");
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

bool KWinFocus::isElsewhere(const OwnWindow& hidden) {
    KWinScripts scripts(m_bus);
    const auto told =
        scripts.run(withFunctions("var one = active();\n"
                                  "tell(one && !(" +
                                  conditionOf(hidden) + ") ? 'yes' : 'no');"));
    return told && told.value() == "yes";
}

Result<void> KWinFocus::focus(const OwnWindow& window) {
    KWinScripts scripts(m_bus);
    return activateBy(scripts, conditionOf(window), window.count);
}

/// A KWin that runs no scripts gives it the focus.
void KWinFocus::refuseFocus(const std::string& title) {
    if (!m_guard) m_guard = std::make_unique<KWinScripts>(m_bus);
    [[maybe_unused]] const auto kept = m_guard->keep(guardOf({.title = title}));
}
