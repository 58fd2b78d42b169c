// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "wayland/ScreenLooks.h"
#include "wayland/SwayProgram.h"

/// keyrill itself under sway, judged by pictures of the screen and by who has the keyboard.
class SwayScreenTest : public SwayProgram, public testing::Test {
  protected:
    /// `configuration` is the user's, of sway.
    explicit SwayScreenTest(const std::string& configuration = {})
        : SwayProgram({.configuration = controlWindowAway + configuration}) {}

    /// Whether keys go to a window, not to a layer.
    bool hasWindowKeyboard() const { return !hasLayerKeys(); }
    ScreenPicture pictureWithTerminalsAt(const std::vector<std::pair<int, int>>& places) const {
        return pictureWith([this] { return picture(); }, Foot::colour, places);
    }
    std::optional<ScreenArea> changedArea(
        const ScreenPicture& before, const std::string& screen = "HEADLESS-1",
        std::chrono::milliseconds patience = std::chrono::seconds(10)) const {
        return ::changedArea([&] { return ScreenPicture(sway(), screen); }, before, patience);
    }

  private:
    /// The small window that stands in for a tray is where nobody looks.
    static inline const std::string controlWindowAway =
        "for_window [title=\"^Keyrill$\"] move container to workspace 9\n";
};
