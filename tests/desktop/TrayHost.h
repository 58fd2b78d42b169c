// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "desktop/Screen.h"
#include "support/Child.h"

/// Icons dock as windows of their own, or tell the session bus what they look like.
enum class TrayKind { docking, statusNotifier };

/// A tray as desktops have it, at the lower edge of the screen, with nothing in it but what a test brings:
/// trayer, or the panel of Xfce, whose tray is of both kinds.
class TrayHost {
  public:
    /// Returns when icons can come. The panel needs a session bus, and settings from `panelSettings()`.
    TrayHost(TrayKind kind, const Child::Options& options, const Screen& screen);

    TrayKind kind() const { return m_kind; }
    Child& program() { return *m_program; }

    /// The icon of the one program in the tray, if it is on the screen.
    std::optional<ScreenWindow> icon() const;
    /// The menu that the tray itself draws, if it is open.
    std::optional<ScreenWindow> ownMenu() const;

    /// The settings of a panel that holds nothing but a tray, as the desktop's settings service keeps them.
    static std::string panelSettings(bool isDark);

  private:
    bool isReady() const;

    TrayKind m_kind;
    const Screen& m_screen;
    std::unique_ptr<Child> m_program;
    std::string m_log;
};
