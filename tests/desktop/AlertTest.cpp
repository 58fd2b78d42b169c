// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"
#include "display/NestedServers.h"
#include "support/Keys.h"

namespace {

/// The program at a server that lets nobody press keys; its user has a real keyboard.
class AlertTest : public testing::Test {
  protected:
    AlertTest() {
        desktop.startWindowManager();
        // Nobody's hot key tells here that the program is ready.
        program.emplace(std::vector<std::string>{KEYRILL_PRODUCT}, desktop.options("product.log"));
        desktop.awaitFocus("The X server must have the XTEST extension, but it has not.");
    }

    /// The exit status. The program is silent while its alert is open, so nobody but this wakes the inner
    /// server when it sleeps on a key.
    int awaitEnd() {
        eventually([this] {
            servers.finish();
            return !program->isRunning();
        });
        return program->wait();
    }

    NestedServers servers{{"-extension", "XTEST"}};
    Desktop desktop{servers.display()};
    std::optional<Child> program;
};

TEST_F(AlertTest, quitEndsTheProgram) {
    servers.user().tap(xkey::escape);
    EXPECT_EQ(awaitEnd(), 0);
}

TEST_F(AlertTest, theDocumentationIsOpenedAndThenTheProgramEnds) {
    servers.user().tap(xkey::returnKey);
    EXPECT_EQ(awaitEnd(), 0);
}

}  // namespace
