// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/Child.h"

/// Looks at an installation, which takes a second and is made once for all tests of a suite.
class StagedTest : public testing::Test {
  protected:
    /// Of one suite.
    static const TemporaryFolder& stage() { return *folder(); }

    /// With the stage as the root of the system.
    static void installBelowTheStage() {
        folder() = std::make_unique<TemporaryFolder>();
        install({}, {{"DESTDIR", stage().path()}});
    }
    /// With that prefix, a name in the stage.
    static void installInto(const std::string& prefix) {
        folder() = std::make_unique<TemporaryFolder>();
        install({"--prefix", stage().file(prefix)}, {});
    }
    static void TearDownTestSuite() { folder().reset(); }

  private:
    static std::unique_ptr<TemporaryFolder>& folder() {
        static std::unique_ptr<TemporaryFolder> folder;
        return folder;
    }
    static void install(const std::vector<std::string>& options,
                        const std::map<std::string, std::string>& environment) {
        std::vector<std::string> command = {KEYRILL_CMAKE, "--install", KEYRILL_BUILD_FOLDER};
        command.insert(command.end(), options.begin(), options.end());
        outputOf(command, environment);
    }
};
