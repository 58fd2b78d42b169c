// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "desktop/Desktop.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Keys.h"
#include "support/Programs.h"

/// A person presses a key of the window manager's, which runs the program with an option, at a real keyboard.
class BoundKey : public testing::TestWithParam<Typist::Gap> {
  protected:
    /// Once the bus is there.
    void bind(const std::string& option) {
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        const std::filesystem::path folder = desktop.file("host/.config/openbox");
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "rc.xml")
            << "<openbox_config xmlns=\"http://openbox.org/3.4/rc\"><keyboard><keybind key=\"C-W-F5\">"
               "<action name=\"Execute\"><command>"
            << programs::keyrill << " " << option
            << "</command></action></keybind></keyboard></openbox_config>\n";
        desktop.startWindowManager();
        terminal.emplace(desktop.display());
    }

    void expectPlayedWhenTheKeysAreLetGo(const std::string& text) {
        typist.stroke({xkey::control, xkey::super, xkey::f5});
        EXPECT_EQ(terminal->typed(text.size()), text);
        EXPECT_TRUE(eventually([this] { return desktop.keysDown().empty(); }));
    }
    void expectNothingWhileAHandHoldsAModifier(const std::string& text) {
        typist.press({xkey::control, xkey::super, xkey::f5});
        typist.release({xkey::f5});
        typist.hold(std::chrono::milliseconds(1500));
        EXPECT_EQ(terminal->typed(), "");
        typist.release({xkey::super, xkey::control});
        EXPECT_EQ(terminal->typed(text.size()), text);
        EXPECT_TRUE(eventually([this] { return desktop.keysDown().empty(); }));
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    Typist typist{servers, GetParam()};
    std::optional<Terminal> terminal;
};
