// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/CompositorFocus.h"
#include "platform/desktops/ForeignWindows.h"
#include "platform/desktops/KWinScripts.h"

/// The ordinary windows and dialogs that KWin shows.
class KWinWindows final : public ForeignWindows {
  public:
    /// Asks the KWin on the bus of that address.
    static Result<std::unique_ptr<ForeignWindows>> open(const std::string& bus);

    std::vector<ForeignWindow> windows() const override;
    Result<void> activate(std::size_t place) override;

  private:
    struct Window {
        /// KWin's own name for it.
        std::string id;
        ForeignWindow window;
    };

    explicit KWinWindows(const std::string& bus) : m_scripts(bus) {}
    Result<void> ask();

    KWinScripts m_scripts;
    std::vector<Window> m_windows;
};

/// The focus among the windows that KWin shows.
class KWinFocus final : public CompositorFocus {
  public:
    explicit KWinFocus(std::string bus) : m_bus(std::move(bus)) {}

    bool isElsewhere(const OwnWindow& hidden) override;
    Result<void> focus(const OwnWindow& window) override;
    /// Nor when another window of ours goes.
    void refuseFocus(const std::string& title) override;

  private:
    std::string m_bus;
    std::unique_ptr<KWinScripts> m_guard;
};
