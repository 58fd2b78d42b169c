// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/MacroFiles.h"

/// Macro files in a folder that is there.
class MacroFilesWorld {
  public:
    virtual ~MacroFilesWorld() = default;

    virtual MacroFiles& files() = 0;
    virtual std::string path(const std::string& name) const = 0;
};

using MakeMacroFilesWorld = std::function<std::unique_ptr<MacroFilesWorld>()>;

/// What all MacroFiles do.
class MacroFilesContract : public testing::TestWithParam<MakeMacroFilesWorld> {
  protected:
    MacroFiles& files() { return world->files(); }

    std::unique_ptr<MacroFilesWorld> world = GetParam()();
    const std::string file = world->path("a.keyrill");
};

TEST_P(MacroFilesContract, readWhatTheyWrote) {
    for (const std::string text : {"tell\r\n\tkey code 0\nend", "", "over it"}) {
        EXPECT_TRUE(files().write(file, text));
        EXPECT_EQ(files().read(file).value(), text);
    }
}

TEST_P(MacroFilesContract, tellThatAFileIsNotThere) {
    EXPECT_EQ(files().read(file).error(),
              (Error{"The file " + file + " cannot be read: No such file or directory",
                     "Check that the file is there and who may read it."}));
}

TEST_P(MacroFilesContract, refuseWhatIsNotAsciiAndKeepTheOldFile) {
    EXPECT_TRUE(files().write(file, "old"));
    EXPECT_EQ(
        files().write(file, "a\nb \u00e9").error().message,
        "Line 2 has the character \"\u00e9\" (U+00E9) at place 3, and a macro file can hold ASCII only.");
    EXPECT_EQ(files().read(file).value(), "old");
}

TEST_P(MacroFilesContract, nameTheSameFolderEachTime) {
    const std::string folder = files().prepareFolder();
    EXPECT_EQ(folder.front(), '/');
    EXPECT_EQ(files().prepareFolder(), folder);
}
