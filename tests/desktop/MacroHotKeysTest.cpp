// SPDX-License-Identifier: MIT
//
// Macros of the macro folder, played by hot keys of their own.
#include <cmath>
#include <filesystem>
#include <fstream>

#include "desktop/DesktopTest.h"
#include "display/CoreClient.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace fs = std::filesystem;

namespace {

class MacroHotKeysTest : public DesktopTest {
  protected:
    MacroHotKeysTest() { fs::create_directories(folder); }

    static std::string typing(const std::string& text) {
        return R"(tell application "System Events" to keystroke ")" + text + "\"\n";
    }
    /// Control and Super with the key of that code, and further fields.
    static std::string settingsOf(const std::string& path, int code, const std::string& fields = {}) {
        return "[" + path + "]\nhotKeyCode=" + std::to_string(code) + "\nhotKeyFlags=1310720\n" + fields;
    }
    static constexpr int one = 18;
    static constexpr int two = 19;

    /// Puts a file there as a whole.
    void drop(const std::string& name, const std::string& text) const {
        std::ofstream(desktop.file("new")) << text;
        fs::rename(desktop.file("new"), folder + "/" + name);
    }
    void writeMacroSettings(const std::string& text) const { std::ofstream(settings) << text; }
    /// With the first macro's hot key.
    void start() {
        keyrill.emplace(desktop);
        ASSERT_TRUE(awaits(xkey::one));
    }
    bool awaits(std::uint8_t key) const {
        return eventually([&] { return desktop.isHotKeyTaken(key); });
    }
    void userStrikes(std::uint8_t key) const { typist.stroke({xkey::control, xkey::super, key}); }

    const std::string folder = desktop.home() + "/.local/share/keyrill";
    const std::string settings = desktop.home() + "/.config/keyrill/macros.conf";
    const Hands hands{desktop.display()};
    const Typist typist{hands, Typist::Gap(30)};
    std::optional<Keyrill> keyrill;
};

TEST_F(MacroHotKeysTest, aMacroIsPlayedByItsHotKey) {
    drop("Greeting.keyrill", typing("hello"));
    writeMacroSettings(settingsOf("Greeting.keyrill", one));
    start();
    const Terminal terminal(desktop.display());
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(5), "hello");
    EXPECT_TRUE(eventually([this] { return contentOf(settings).find("lastPlayed=") != std::string::npos; }));
}

TEST_F(MacroHotKeysTest, aMacroIsPlayedAsOftenAsItsSettingsSay) {
    drop("Greeting.keyrill", typing("hello"));
    writeMacroSettings(settingsOf("Greeting.keyrill", one, "times=2\n"));
    start();
    const Terminal terminal(desktop.display());
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(10), "hellohello");
    // Whatever else were typed would come before this.
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(20), "hellohellohellohello");
}

TEST_F(MacroHotKeysTest, aMacroPlaysUntilItIsStopped) {
    drop("Greeting.keyrill", typing("a") + "delay 0.05\n");
    writeMacroSettings(settingsOf("Greeting.keyrill", one, "times=until-stopped\n"));
    start();
    const Terminal terminal(desktop.display());
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(10).substr(0, 10), "aaaaaaaaaa");
    userStrikes(xkey::s);
    // A hot key is dispatched again once the playback is over.
    drop("Greeting.keyrill", typing("b"));
    ASSERT_TRUE(eventually([&] {
        userStrikes(xkey::one);
        return eventually([&] { return terminal.typed().ends_with("b"); }, std::chrono::milliseconds(500));
    }));
    userStrikes(xkey::s);
}

TEST_F(MacroHotKeysTest, aSpeedDividesThePauses) {
    const std::string script = typing("a") + "delay 2\n" + typing("b");
    drop("Slow.keyrill", script);
    drop("Fast.keyrill", script);
    writeMacroSettings(settingsOf("Slow.keyrill", one) + settingsOf("Fast.keyrill", two, "speed=2\n"));
    start();
    CoreClient client(desktop.display());
    // By the server's clock.
    const auto playedPause = [&](std::uint8_t hotKey) {
        const std::size_t before = client.events().size();
        userStrikes(hotKey);
        std::vector<std::uint32_t> presses;
        EXPECT_TRUE(eventually([&] {
            presses.clear();
            for (std::size_t i = before; i < client.events().size(); ++i) {
                const CoreClient::KeyEvent& event = client.events()[i];
                const bool isLetter = event.keycode == xkey::a || event.keycode == xkey::b;
                if (event.press && isLetter) presses.push_back(event.time);
            }
            return presses.size() == 2;
        }));
        return presses.size() == 2 ? static_cast<int>(presses[1] - presses[0]) : 0;
    };
    // The machine may make a pause longer, hardly two in a row.
    EXPECT_NEAR(std::min(playedPause(xkey::one), playedPause(xkey::one)), 2000, 40);
    EXPECT_NEAR(std::min(playedPause(xkey::two), playedPause(xkey::two)), 1000, 20);
}

TEST_F(MacroHotKeysTest, aMacroThatIsRenamedKeepsItsHotKey) {
    drop("Greeting.keyrill", typing("hello"));
    writeMacroSettings(settingsOf("Greeting.keyrill", one));
    start();
    const Terminal terminal(desktop.display());
    fs::create_directory(folder + "/mail");
    desktop.run({"mv", folder + "/Greeting.keyrill", folder + "/mail/Renamed.keyrill"});
    ASSERT_TRUE(eventually([this] { return contentOf(settings).starts_with("[mail/Renamed.keyrill]"); }));
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(5), "hello");
}

TEST_F(MacroHotKeysTest, aMacroThatIsEditedPlaysItsNewText) {
    drop("Greeting.keyrill", typing("hello"));
    writeMacroSettings(settingsOf("Greeting.keyrill", one));
    start();
    const Terminal terminal(desktop.display());
    desktop.run({"sed", "-i", "s/hello/goodbye/", folder + "/Greeting.keyrill"});
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(7), "goodbye");
}

TEST_F(MacroHotKeysTest, aMacroHasItsHotKeyOnlyWhileItIsThere) {
    drop("First.keyrill", typing("first"));
    writeMacroSettings(settingsOf("First.keyrill", one) + settingsOf("Later.keyrill", two));
    start();
    const Terminal terminal(desktop.display());
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::two));
    drop("Later.keyrill", typing("later"));
    ASSERT_TRUE(awaits(xkey::two));
    userStrikes(xkey::two);
    EXPECT_EQ(terminal.typed(5), "later");
    fs::remove(folder + "/Later.keyrill");
    EXPECT_TRUE(eventually([this] { return !desktop.isHotKeyTaken(xkey::two); }));
    EXPECT_TRUE(desktop.isHotKeyTaken(xkey::one));
}

TEST_F(MacroHotKeysTest, aFolderThatIsNotThereAtTheStartIsFollowed) {
    fs::remove_all(desktop.home() + "/.local");
    writeMacroSettings(settingsOf("Greeting.keyrill", one));
    keyrill.emplace(desktop);
    const Terminal terminal(desktop.display());
    EXPECT_FALSE(fs::exists(desktop.home() + "/.local"));
    fs::create_directories(folder);
    drop("Greeting.keyrill", typing("hello"));
    ASSERT_TRUE(awaits(xkey::one));
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(5), "hello");
}

TEST_F(MacroHotKeysTest, whatPlayPlaysStaysWhatItWas) {
    desktop.startBus();
    drop("Greeting.keyrill", typing("hello"));
    writeMacroSettings(settingsOf("Greeting.keyrill", one));
    keyrill.emplace(desktop, typing("mine"));
    ASSERT_TRUE(awaits(xkey::one));
    const Terminal terminal(desktop.display());
    userStrikes(xkey::one);
    EXPECT_EQ(terminal.typed(5), "hello");
    userStrikes(xkey::p);
    EXPECT_EQ(terminal.typed(9), "hellomine");
}

TEST_F(MacroHotKeysTest, aFileOfSomebodyElseTakesNoHotKey) {
    desktop.startBus();
    const std::string somebodys =
        "-- [somebodys.keyrill]\n-- hotKeyCode=19\n-- hotKeyFlags=1310720\n" + typing("x");
    drop("First.keyrill", typing("first"));
    writeMacroSettings(settingsOf("First.keyrill", one));
    start();
    std::ofstream(desktop.file("opened.keyrill")) << somebodys;
    Child second({programs::keyrill, desktop.file("opened.keyrill")}, desktop.options("second.log"));
    EXPECT_EQ(second.wait(), 0);
    drop("somebodys.keyrill", somebodys);
    // What comes after it has been read too, and so has this.
    fs::rename(folder + "/First.keyrill", folder + "/Second.keyrill");
    ASSERT_TRUE(eventually([this] { return contentOf(settings).starts_with("[Second.keyrill]"); }));
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::two));
    EXPECT_EQ(contentOf(settings), settingsOf("Second.keyrill", one));
}

TEST_F(MacroHotKeysTest, aShortcutsCombinationStaysTheShortcuts) {
    drop("First.keyrill", typing("first"));
    drop("Greedy.keyrill", typing("greedy"));
    // That of Record.
    writeMacroSettings(settingsOf("First.keyrill", one) + settingsOf("Greedy.keyrill", 15));
    start();
    const Terminal terminal(desktop.display());
    userStrikes(xkey::r);
    desktop.awaitWindow(title::overlay);
    userStrikes(xkey::s);
    EXPECT_EQ(terminal.typed(), "");
}

TEST_F(MacroHotKeysTest, damagedSettingsArePutAside) {
    const std::string damaged = settingsOf("First.keyrill", one) + "damaged\n";
    drop("First.keyrill", typing("first"));
    writeMacroSettings(damaged);
    keyrill.emplace(desktop);
    ASSERT_TRUE(eventually([this] { return !fs::exists(settings); }));
    std::string aside;
    for (const auto& entry : fs::directory_iterator(fs::path(settings).parent_path())) {
        if (entry.path().string().starts_with(settings + ".bad-")) aside = entry.path();
    }
    EXPECT_EQ(contentOf(aside), damaged);
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::one));
}

}  // namespace
