// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "compositor/Foot.h"
#include "compositor/OtherUser.h"
#include "compositor/ScreenPicture.h"
#include "compositor/Sway.h"
#include "compositor/WaylandHands.h"
#include "support/Keys.h"

/// keyrill itself under sway, judged by pictures of the screen and by who has the keyboard.
class SwayScreenTest : public testing::Test {
  protected:
    enum class XServer { is, isNot };

    /// `configuration` is the user's, of sway; `lines` are the macro's.
    explicit SwayScreenTest(const std::string& configuration = {},
                            const std::string& lines = "keystroke \"ab\"", XServer xServer = XServer::is)
        : m_sway({.configuration = controlWindowAway + configuration, .hasXServer = xServer == XServer::is}),
          m_hands(m_sway.socket()) {
        std::filesystem::create_directories(m_folder.file("presets/keyrill"));
        std::filesystem::copy_file(KEYRILL_PRESETS, m_folder.file("presets/keyrill/keyrill.conf"));
        std::filesystem::create_directories(m_folder.file("home/.config/keyrill"));
        std::ofstream(m_folder.file("home/.config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
        std::ofstream(m_folder.file("macro.keyrill")) << "tell application \"System Events\"\n"
                                                      << lines << "\nend tell\n";
        otheruser::giveAwayAll(m_folder.path());
    }

    /// As sway's user, who may read no keyboard.
    std::unique_ptr<Child> start(const std::vector<std::string>& command) {
        auto environment = m_sway.environment();
        environment["HOME"] = m_folder.file("home");
        environment["XDG_CONFIG_DIRS"] = m_folder.file("presets");
        environment["XDG_CONFIG_HOME"] = "";
        environment["XDG_DATA_HOME"] = "";
        environment["LC_ALL"] = "C.UTF-8";
        environment["DBUS_SESSION_BUS_ADDRESS"] = "disabled:";
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + m_folder.file("no-bus");
        return std::make_unique<Child>(
            otheruser::command(command),
            Child::Options{.environment = environment, .outputFile = m_folder.file("log")});
    }
    /// The program, with its macro; it has its combinations.
    std::unique_ptr<Child> startProgram() {
        auto program = start({KEYRILL_PRODUCT, m_folder.file("macro.keyrill")});
        const bool isUp = eventually([this] { return m_sway.tries({"[title=\"^Keyrill$\"] nop"}); },
                                     std::chrono::seconds(30));
        EXPECT_TRUE(isUp) << log();
        return program;
    }

    bool shows(const std::string& title) const { return m_sway.tries({"[title=\"^" + title + "$\"] nop"}); }
    /// The settings of somebody who starts the program for the first time.
    void forgetSettings() const { std::filesystem::remove_all(m_folder.file("home/.config/keyrill")); }

    void strokeHotKey(std::uint8_t key) { m_hands.stroke({xkey::control, xkey::super, key}); }
    /// Whether keys go to a window, not to a layer.
    bool hasWindowKeyboard() const {
        return m_sway.message({"-t", "get_seats"}).find("\"focus\": 0,") == std::string::npos;
    }
    /// The screen, once a terminal is to be seen at each of these places; its own pixels.
    ScreenPicture pictureWithTerminalsAt(const std::vector<std::pair<int, int>>& places) const {
        std::optional<ScreenPicture> picture;
        const bool isThere = eventually([&] {
            picture.emplace(m_sway);
            return std::all_of(places.begin(), places.end(), [&](const auto& place) {
                return picture->at(place.first, place.second) == Foot::colour;
            });
        });
        EXPECT_TRUE(isThere) << "there are no terminals";
        return *picture;
    }
    ScreenPicture pictureWithFullScreen() const {
        sway().message({"fullscreen", "enable"});
        return pictureWithTerminalsAt({{0, 0}, {1023, 639}});
    }
    /// Where the screen is another than in the picture, once it has been there for two looks: fades are over.
    /// From its first change it has so long for that.
    std::optional<ScreenArea> changedArea(
        const ScreenPicture& before, const std::string& screen = "HEADLESS-1",
        std::chrono::milliseconds patience = std::chrono::seconds(10)) const {
        std::optional<ScreenPicture> last;
        std::optional<std::chrono::steady_clock::time_point> end;
        bool isSettled = false;
        eventually([&] {
            const auto time = std::chrono::steady_clock::now();
            std::optional<ScreenPicture> now(std::in_place, m_sway, screen);
            const bool hasChanged = now->differsFrom(before).has_value();
            if (hasChanged && !end) end = time + patience;
            isSettled = last && hasChanged && !now->differsFrom(*last);
            last = std::move(now);
            return isSettled || (end && time > *end);
        });
        EXPECT_TRUE(isSettled) << "it keeps changing, or has not changed at all";
        return last->differsFrom(before);
    }

    const Sway& sway() const { return m_sway; }
    WaylandHands& hands() { return m_hands; }
    std::string log() const { return contentOf(m_folder.file("log")); }

  private:
    /// The small window that stands in for a tray is where nobody looks.
    static inline const std::string controlWindowAway =
        "for_window [title=\"^Keyrill$\"] move container to workspace 9\n";

    TemporaryFolder m_folder;
    Sway m_sway;
    WaylandHands m_hands;
};
