// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "compositor/Compositor.h"
#include "support/Child.h"

/// A private sway without a screen and with nobody else on it; ends with the object. It runs as nobody where
/// the test runs as root, as sway insists. One that cannot be started fails the test by an exception.
class Sway final : public Compositor {
  public:
    struct Options {
        /// Lines of its configuration.
        std::string configuration = {};
        /// Whether X11 programs can be shown.
        bool hasXServer = false;
    };

    Sway() : Sway(Options()) {}
    explicit Sway(const Options& options);

    /// No X server among it unless asked for.
    const std::map<std::string, std::string>& environment() const override { return m_environment; }
    bool focus(const std::string& title) const override;
    void close(const std::string& title) const override { message({"[title=\"^" + title + "$\"] kill"}); }
    bool hasFocus(const std::string& title) const override;
    bool shows(const std::string& title) const override;
    /// Whether the window with that title, which has no others in it, fills the screen or its workspace.
    bool fillsScreen(const std::string& title) const { return fillOf(title) != 0; }
    /// What it fills, as sway numbers it: nothing (0), its workspace (1), all screens (2).
    int fillOf(const std::string& title) const;
    /// Whether keys go to a layer or a locker, to no window.
    bool hasLayerKeys() const;
    /// The compositor's socket, an absolute path.
    std::string socket() const { return m_folder.file("wayland-1"); }
    Child& program() { return *m_program; }

    /// swaymsg's output. One that is refused fails the test.
    std::string message(const std::vector<std::string>& arguments) const;
    /// Whether swaymsg did it.
    bool tries(const std::vector<std::string>& arguments) const;

    /// What it says of what it does.
    std::string log() const { return contentOf(m_folder.file("log")); }

    /// The user's configuration, which `reload` reads again.
    void configure(const std::string& lines) const;

  private:
    std::string findSocket() const;
    std::string findDisplay() const;

    TemporaryFolder m_folder;
    std::map<std::string, std::string> m_environment;
    bool m_hasXServer;
    std::unique_ptr<Child> m_program;
};
