// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/Screen.h"
#include "desktop/SessionBus.h"
#include "desktop/TrayHost.h"
#include "support/Child.h"
#include "support/Terminal.h"
#include "support/XServer.h"

/// The titles of the program's windows.
namespace title {
inline constexpr const char* trayIcon = "keyrill";
inline constexpr const char* menu = "Keyrill menu";
inline constexpr const char* control = "Keyrill";
inline constexpr const char* overlay = "Keyrill recording";
inline constexpr const char* prompt = "Play Multiple Times";
inline constexpr const char* about = "About Keyrill";
inline constexpr const char* welcome = "Welcome to Keyrill";
inline constexpr const char* preferences = "Keyrill Preferences";
inline constexpr const char* savePanel = "Save Macro";
inline constexpr const char* loadPanel = "Load Macro";
}  // namespace title

enum class WindowManager { none, openbox, xfwm4, fluxbox, jwm, icewm };

/// A desktop of its own for one test: a home folder with the preset hot keys, and on a display a window
/// manager, a tray and whatever programs the test starts. There is a session bus only where the test, the
/// window manager or the tray asks for one.
class Desktop {
  public:
    /// With a server of its own.
    Desktop();
    /// On a display that outlives it.
    explicit Desktop(std::string display);

    Child& server() { return m_server->program(); }
    SessionBus& startBus();
    SessionBus& bus() { return *m_bus; }
    void startWindowManager(WindowManager manager = WindowManager::openbox);
    Child& windowManager() { return *m_manager; }
    /// Translucent windows become so.
    void startCompositor();
    /// At the lower edge; a tray that docks icons has one colour.
    TrayHost& startTray(TrayKind kind = TrayKind::docking, bool isDark = false);
    void endTray() { m_tray.reset(); }
    /// Ends it without a word.
    void killTray();
    const TrayHost& tray() const { return *m_tray; }

    /// Runs a client to its end and gives its output.
    std::string run(const std::vector<std::string>& command) const;
    Child::Options options(const std::string& log) const;
    /// Status 0.
    bool succeeds(const std::vector<std::string>& command) const;

    const Screen& screen() const { return m_screen; }
    /// The program's window that has this title, if it is on the screen.
    std::optional<ScreenWindow> window(const std::string& title) const {
        return m_screen.find("keyrill", title);
    }
    bool shows(const std::string& title) const { return window(title).has_value(); }
    /// Waits for a window of the program.
    ScreenWindow awaitWindow(const std::string& title) const;
    /// Waits until a window of the program has the focus and is painted, so that it also knows of it. Where
    /// it is then: the manager may have moved it meanwhile.
    ScreenWindow awaitFocus(const std::string& title) const;
    bool hasFocus(const ScreenWindow& window) const { return m_screen.focus() == window.number; }
    /// Whether a program holds Ctrl+Super+key, by its X key code.
    bool isHotKeyTaken(std::uint8_t keycode) const;
    std::string colourAt(int x, int y) const { return m_screen.colourAt(x, y); }
    void click(int x, int y, int button = 1) const;
    void press(const std::string& combination) const;

    const std::string& display() const { return m_display; }
    /// A file of the test's own, outside of the home folder.
    std::string file(const std::string& name) const { return m_folder.file(name); }
    std::string home() const { return m_folder.file("home"); }
    /// Replaces the settings, which say nothing but that this is not the first run.
    void writeSettings(const std::string& lines) const;
    /// For programs that are started from now on; an empty value unsets.
    void setEnvironment(const std::string& name, const std::string& value) { m_environment[name] = value; }

    /// One setxkbmap option line: {"-layout", "us,ru"}.
    void setLayout(const std::vector<std::string>& options) const;

    /// The lines "DEVICE KEYCODE" of all keys that are down, as each slave keyboard tells.
    std::vector<std::string> keysDown() const;

  private:
    void makeHome();
    /// For the desktop's own programs, which keep their files apart from the program's.
    Child::Options hostOptions(const std::string& log) const;

    TemporaryFolder m_folder;
    std::unique_ptr<XServer> m_server;
    std::string m_display;
    Screen m_screen;
    std::map<std::string, std::string> m_environment;
    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<Child> m_manager;
    std::unique_ptr<Child> m_compositor;
    std::unique_ptr<TrayHost> m_tray;
};

/// The program as people get it, ready for hot keys when constructed.
class Keyrill {
  public:
    /// With the text as the macro to play, from a file, if it is not empty.
    explicit Keyrill(const Desktop& desktop, const std::string& script = {});

    Child& child() { return m_child; }
    /// What it has written on its standard output and error.
    std::string output() const;

  private:
    std::string m_log;
    Child m_child;
};
