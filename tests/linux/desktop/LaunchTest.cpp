// SPDX-License-Identifier: MIT
//
// The login item, started by programs that start such entries.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/linux/AutostartEntry.h"
#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

/// A launcher, as the beginning of its command, and the name of the program's folder.
class LaunchTest : public testing::TestWithParam<std::tuple<std::vector<std::string>, std::string>> {
  protected:
    std::vector<std::string> launch(const std::string& entry) const {
        std::vector<std::string> command = std::get<0>(GetParam());
        command.push_back(entry);
        return command;
    }

    TemporaryFolder folder;
    const std::string program = folder.file(std::get<1>(GetParam())) + "/keyrill";
};

TEST_P(LaunchTest, startsTheProgramUnderItsPath) {
    fs::create_directories(fs::path(program).parent_path());
    std::ofstream(program) << R"(#!/bin/sh
printf '%s %s' "$#" "$0" >"$STARTED.part"
mv "$STARTED.part" "$STARTED"
)";
    fs::permissions(program, fs::perms::owner_all);
    AutostartEntry entry({folder.file("config"), {}}, program);
    ASSERT_TRUE(entry.install(true));
    ASSERT_EQ(entry.state(), LoginItems::State::on);
    const std::string started = folder.file("started");
    const std::string file = folder.file("config/autostart/example.orlen.Keyrill.desktop");
    Child launcher(launch(file), {.environment = {{"STARTED", started}, {"DISPLAY", ""}}});
    EXPECT_TRUE(eventually([&] { return fs::exists(started); }));
    EXPECT_EQ(contentOf(started), "0 " + program);
    EXPECT_EQ(launcher.wait(), 0);
}

const auto namesWithoutEscapes =
    testing::Values("plain", "two words", "apo'strophe", "h\u00e9\u65e5\u672c", "a;b&c|d<e>f(g)h*i?j#k~l");

INSTANTIATE_TEST_SUITE_P(ByTheDesktopsLibrary, LaunchTest,
                         testing::Combine(testing::Values(std::vector<std::string>{"gio", "launch"}),
                                          namesWithoutEscapes));
INSTANTIATE_TEST_SUITE_P(ByTheDesktopsLibraryWithEscapes, LaunchTest,
                         testing::Combine(testing::Values(std::vector<std::string>{"gio", "launch"}),
                                          testing::Values("quo\"te", "$HOME", "back\\slash", "`id`",
                                                          "end\\")));
// It does not undo the backslashes that the standard has twice; autostart entries rarely need any.
INSTANTIATE_TEST_SUITE_P(ByAnAutostarter, LaunchTest,
                         testing::Combine(testing::Values(std::vector<std::string>{"dex"}),
                                          namesWithoutEscapes));

}  // namespace
