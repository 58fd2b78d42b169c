// SPDX-License-Identifier: MIT
//
// The update service against a server of our own, which only our own authority vouches for.
#include "platform/linux/UpdateCheck.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "linux/desktop/HungResolver.h"
#include "support/Certificates.h"
#include "support/Child.h"

namespace {

using std::chrono::seconds;

class UpdateCheckTest : public testing::Test {
  protected:
    UpdateCheckTest()
        : m_log(m_folder.file("log")),
          m_server({"python3", KEYRILL_UPDATE_SERVER, certificates().path("server.pem"),
                    certificates().path("server.key")},
                   {.outputFile = m_log}) {
        for (const char* name : {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"}) unsetenv(name);
        eventually([this] { return log().find('\n') != std::string::npos || !m_server.isRunning(); });
        std::istringstream(log()) >> secure >> plain >> silent;
        EXPECT_NE(silent, "") << log();
    }

    static const Certificates& certificates() {
        static const Certificates all;
        return all;
    }

    std::string log() const { return contentOf(m_log); }

    bool isNewer(const std::string& url, const std::string& authority = "authority.pem",
                 const std::string& runningVersion = "1.9") const {
        return makeUpdateService({url, certificates().path(authority)})->isNewerThan(runningVersion);
    }
    bool findsNewerAt(const std::string& path) const { return isNewer("https://localhost:" + secure + path); }

    std::string secure;
    std::string plain;
    std::string silent;

  private:
    TemporaryFolder m_folder;
    const std::string m_log;
    Child m_server;
};

/// How long an answer takes that never comes by itself; twice what is promised, for slow machines.
class Patience {
  public:
    ~Patience() { EXPECT_LT(std::chrono::steady_clock::now() - m_start, seconds(8)); }

  private:
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

TEST_F(UpdateCheckTest, findsANewerVersionByItsNumbers) {
    EXPECT_TRUE(findsNewerAt("/newer"));
    EXPECT_FALSE(isNewer("https://localhost:" + secure + "/newer", "authority.pem", "1.10"));
    EXPECT_FALSE(isNewer("https://localhost:" + secure + "/newer", "authority.pem", "2"));
}

TEST_F(UpdateCheckTest, findsNoneWhereThereIsNone) {
    for (const std::string path : {"/same", "/older", "/empty", "/page"})
        EXPECT_FALSE(findsNewerAt(path)) << path;
}

TEST_F(UpdateCheckTest, findsNoneWhereTheServerRefuses) {
    EXPECT_FALSE(findsNewerAt("/refused"));
    EXPECT_FALSE(findsNewerAt("/not-there"));
}

TEST_F(UpdateCheckTest, findsNoneWhereNobodyAnswers) {
    EXPECT_FALSE(isNewer("https://localhost:1/newer"));
    EXPECT_FALSE(isNewer("https://name.invalid/newer"));
    EXPECT_FALSE(isNewer(""));
}

TEST_F(UpdateCheckTest, tellsNothingOfTheMachine) {
    findsNewerAt("/newer");
    EXPECT_NE(log().find("request /newer Host=localhost:" + secure + " User-Agent=Keyrill Accept=*/*\n"),
              std::string::npos)
        << log();
}

TEST_F(UpdateCheckTest, believesOnlyAKnownAuthority) {
    EXPECT_FALSE(isNewer("https://localhost:" + secure + "/newer", "stranger.pem"));
    EXPECT_FALSE(makeUpdateService({"https://localhost:" + secure + "/newer"})->isNewerThan("1.0"));
}

TEST_F(UpdateCheckTest, believesACertificateOnlyForItsName) {
    EXPECT_FALSE(isNewer("https://127.0.0.1:" + secure + "/newer"));
}

TEST_F(UpdateCheckTest, asksByHttpsOnly) {
    EXPECT_FALSE(isNewer("http://localhost:" + plain + "/newer"));
    EXPECT_EQ(log().find("request"), std::string::npos);
    EXPECT_FALSE(isNewer("file:///etc/hostname"));
}

TEST_F(UpdateCheckTest, followsRedirectsToHttpsOnly) {
    EXPECT_TRUE(findsNewerAt("/redirect"));
    const auto before = log().size();
    EXPECT_FALSE(findsNewerAt("/to-http"));
    EXPECT_EQ(log().find("request /newer", before), std::string::npos);
    EXPECT_FALSE(findsNewerAt("/to-file"));
    EXPECT_FALSE(findsNewerAt("/circle"));
}

TEST_F(UpdateCheckTest, takesNoAnswerThatIsCutOff) { EXPECT_FALSE(findsNewerAt("/truncated")); }

TEST_F(UpdateCheckTest, takesNoAnswerThatIsTooLong) {
    const Patience patience;
    EXPECT_FALSE(findsNewerAt("/flood"));
    EXPECT_FALSE(findsNewerAt("/large"));
}

TEST_F(UpdateCheckTest, endsWhereTheServerHangs) {
    const Patience patience;
    EXPECT_FALSE(findsNewerAt("/hung"));
}

TEST_F(UpdateCheckTest, endsWhereTheServerIsSlow) {
    const Patience patience;
    EXPECT_FALSE(findsNewerAt("/slow"));
}

TEST_F(UpdateCheckTest, endsWhereTheServerSaysNothingAtAll) {
    const Patience patience;
    EXPECT_FALSE(isNewer("https://localhost:" + silent + "/newer"));
}

TEST_F(UpdateCheckTest, endsWhereTheResolverHangs) {
    const HungResolver resolver;
    const Patience patience;
    EXPECT_FALSE(isNewer("https://hung.example/newer"));
}

}  // namespace
