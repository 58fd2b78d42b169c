// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

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
}  // namespace title

/// A desktop of its own for one test: a home folder with the preset hot keys, and on a display a window
/// manager, a tray and whatever programs the test starts.
class Desktop {
  public:
    /// With a server of its own.
    Desktop();
    /// On a display that outlives it.
    explicit Desktop(std::string display);

    void startWindowManager();
    /// A tray that icons dock into, at the lower right corner.
    void startTray();
    void endTray() { m_tray.reset(); }

    /// Runs a client to its end and gives its output.
    std::string run(const std::vector<std::string>& command) const;
    Child::Options options(const std::string& log) const;
    /// Status 0.
    bool succeeds(const std::vector<std::string>& command) const;

    /// The number of the window on the screen that has this title; empty if there is none.
    std::string window(const std::string& title) const;
    bool shows(const std::string& title) const { return !window(title).empty(); }
    /// Whether a program holds Ctrl+Super+key, by its X key code.
    bool isHotKeyTaken(std::uint8_t keycode) const;
    /// "#RRGGBB" of a point of the screen.
    std::string colourAt(int x, int y) const;

    const std::string& display() const { return m_display; }
    std::string file(const std::string& name) const { return m_folder.file(name); }

    /// One setxkbmap option line: {"-layout", "us,ru"}.
    void setLayout(const std::vector<std::string>& options) const;

    /// The lines "DEVICE KEYCODE" of all keys that are down, as each slave keyboard tells.
    std::vector<std::string> keysDown() const;

  private:
    void makeHome();

    TemporaryFolder m_folder;
    std::unique_ptr<XServer> m_server;
    std::string m_display;
    std::map<std::string, std::string> m_environment;
    std::unique_ptr<Child> m_manager;
    std::unique_ptr<Child> m_tray;
};

/// The program under test, ready for hot keys when constructed.
class Keyrill {
  public:
    /// With the text as the script to play, if it is not empty.
    explicit Keyrill(const Desktop& desktop, const std::string& script = {});

    Child& child() { return m_child; }
    std::string output() const;
    /// Waits for the n-th recording's end; its script.
    std::string script(std::size_t number = 1) const;
    /// The number of "key code" lines of a script.
    static std::size_t keyLines(const std::string& script);

  private:
    std::string m_log;
    Child m_child;
};
