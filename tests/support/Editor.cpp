// SPDX-License-Identifier: MIT
#include "support/Editor.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

/// Without helpfulness: the file holds what was typed, no indentation and no last line of the editor's own.
void plainTyping(const std::string& home) {
    std::filesystem::create_directories(home + "/.config/featherpad");
    std::ofstream(home + "/.config/featherpad/fp.conf") << "[text]\nnoIndent=true\nappendEmptyLine=false\n";
}

std::vector<std::string> commandFor(Editor::Toolkit toolkit, const std::string& file) {
    if (toolkit == Editor::Toolkit::gtk) return {"mousepad", "--disable-server", file};
    return {"featherpad", "--standalone", file};
}

}  // namespace

Editor::Editor(const std::string& display, Toolkit toolkit, const Options& options)
    : WindowedProgram(display) {
    add({{"XDG_CONFIG_HOME", ""},
         {"XDG_RUNTIME_DIR", folder().path()},
         {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
         {"GSETTINGS_BACKEND", "memory"},
         {"NO_AT_BRIDGE", "1"},
         {"GTK_IM_MODULE", ""},
         {"QT_IM_MODULE", ""},
         {"XMODIFIERS", ""}});
    add(options.environment);
    plainTyping(folder().path());
    const std::string title = name() + options.suffix;
    m_file = folder().file(title);
    std::ofstream(m_file).flush();
    start(commandFor(toolkit, m_file));
    findWindow(title);
    focus();
}

std::string Editor::saved(const std::string& expected, std::chrono::milliseconds deadline) const {
    eventually([&] { return saved() == expected; }, deadline);
    return saved();
}

// A window that is not quite on the screen refuses the focus; it is given again until it is taken.
void Editor::focus() const {
    const auto take = [this] {
        run({"xdotool", "windowfocus", window()});
        return hasFocus();
    };
    if (!eventually(take)) throw std::runtime_error("the editor gets no focus");
}

// A toolkit may hand the focus on to a window inside its own.
bool Editor::hasFocus() const { return run({"xdotool", "getwindowfocus"}) == window() + "\n"; }
