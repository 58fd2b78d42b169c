// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <sstream>

#include "desktop/DesktopTest.h"
#include "support/Certificates.h"
#include "support/Programs.h"

namespace {

/// A start that finds a newer version at a server of the test's own; the question comes with the first
/// recording.
class UpdateTest : public DesktopTest {
  protected:
    UpdateTest()
        : server({"python3", programs::updateServer, certificates.path("server.pem"),
                  certificates.path("server.key")},
                 {.outputFile = desktop.file("server")}) {
        desktop.writeSettings("notFirstRun=true\ncheckForUpdatesOnLaunch=true\n");
        for (const char* name : {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"})
            desktop.setEnvironment(name, "");
        // Pages are opened by xdg-open; here by one that writes them down.
        std::ofstream(desktop.file("xdg-open"))
            << "#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" << desktop.file("opened") << "'\n";
        std::filesystem::permissions(desktop.file("xdg-open"), std::filesystem::perms::owner_all);
        desktop.setEnvironment("PATH", desktop.file("") + ":" + std::getenv("PATH"));
        EXPECT_TRUE(eventually([this] { return log().find('\n') != std::string::npos; }));
        std::string port;
        std::istringstream(log()) >> port;
        // The program as it is, but for where it asks.
        keyrill.emplace(std::vector<std::string>{programs::demonstration, "--updates",
                                                 "https://localhost:" + port + "/newer",
                                                 certificates.path("authority.pem")},
                        desktop.options("keyrill.log"));
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
        // The question is put when the answer is there, half a second after the start.
        EXPECT_TRUE(eventually([this] { return log().find("request /newer") != std::string::npos; }));
    }

    std::string log() const { return contentOf(desktop.file("server")); }
    bool overlayComes() const {
        return eventually([this] { return desktop.shows(title::overlay); });
    }
    bool overlayGoes() const {
        return eventually([this] { return !desktop.shows(title::overlay); });
    }
    void expectPlayed(const std::string& text) const {
        play();
        EXPECT_EQ(terminal.typed(text.size()), text);
    }
    void answer(const std::string& key) const {
        giveFocus(question);
        press(key);
        ASSERT_TRUE(eventually([this] { return !desktop.shows(question); }));
    }

    static constexpr const char* question = "Keyrill Update Available";
    Terminal terminal{desktop.display()};
    Certificates certificates;
    Child server;
    std::optional<Child> keyrill;
};

TEST_F(UpdateTest, yesOpensThePageAndTheNextRecordingIsAsUsual) {
    record();
    answer("Return");
    EXPECT_TRUE(eventually([this] {
        return contentOf(desktop.file("opened")) == "https://www.orlen.example/keyrill/download/\n";
    }));
    EXPECT_FALSE(desktop.shows(title::overlay));
    // Ends the recording that was given up.
    stop();
    record();
    EXPECT_TRUE(overlayComes());
    press("x");
    stop();
    expectPlayed("xx");
    EXPECT_FALSE(desktop.shows(question));
}

TEST_F(UpdateTest, noRecordsAndIsNotAskedAgain) {
    record();
    answer("Escape");
    EXPECT_TRUE(overlayComes());
    press("x");
    stop();
    expectPlayed("xx");
    EXPECT_TRUE(overlayGoes());
    record();
    EXPECT_TRUE(overlayComes());
    EXPECT_FALSE(desktop.shows(question));
    EXPECT_EQ(contentOf(desktop.file("opened")), "");
}

}  // namespace
