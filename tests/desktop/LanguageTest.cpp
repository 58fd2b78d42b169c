// SPDX-License-Identifier: MIT
#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"
#include "support/Programs.h"

namespace {

/// The program on a desktop that speaks another language, told by assistive technology; there is no tray.
class LanguageTest : public testing::Test {
  protected:
    LanguageTest() {
        letAssistantsIn(desktop);
        desktop.startWindowManager();
    }

    void start(const std::string& language, const std::string& control) {
        desktop.setEnvironment("LANGUAGE", language);
        keyrill.emplace(desktop);
        desktop.awaitWindow(control);
    }
    std::string told() { return desktop.run(assistantCall(keyrill->child(), {"list"})); }
    /// Whether an object on the screen has that role and name.
    bool tells(const std::string& role, const std::string& name) {
        return ('\n' + told()).find('\n' + role + '|' + name + '|') != std::string::npos;
    }
    void expectTold(const std::string& role, const std::string& name) {
        EXPECT_TRUE(eventually([&] { return tells(role, name); })) << role << ' ' << name << " among\n"
                                                                   << told();
    }
    void press(const std::string& name) {
        EXPECT_TRUE(desktop.succeeds(assistantCall(keyrill->child(), {"press", name}))) << name << " among\n"
                                                                                        << told();
    }
    std::string printed(const std::string& option) {
        Child child({programs::keyrill, option}, desktop.options("printed" + option));
        child.wait();
        return contentOf(desktop.file("printed" + option));
    }

    Desktop desktop;
    std::optional<Keyrill> keyrill;
};

TEST_F(LanguageTest, menuAndWindowsAreInTheLanguageOfTheDesktop) {
    start("de", "Keyrill");
    press("Keyrill-Menü");
    desktop.awaitWindow("Keyrill-Menü");
    for (const char* item : {"Aufzeichnung starten", "Makro laden...", "Makros...", "Hilfe", "Beenden"})
        expectTold("menu item", item);
    desktop.press("Escape");
    press("Einstellungen...");
    desktop.awaitWindow("Keyrill-Einstellungen");
    expectTold("check box", "Keyrill bei der Anmeldung starten");
    expectTold("push button", "Schließen");
}

TEST_F(LanguageTest, theCheckOfTheSessionIs) {
    desktop.setEnvironment("LANGUAGE", "de");
    const std::string report = printed("--check");
    EXPECT_TRUE(report.starts_with("ok  Sitzung: x11, Anzeige " + desktop.display() + "\n")) << report;
    EXPECT_NE(report.find("\nok  Aufzeichnen: über XInput\n"), std::string::npos) << report;
}

TEST_F(LanguageTest, aLanguageThatThereIsNotIsEnglish) {
    start("eo", "Keyrill");
    press("Keyrill menu");
    desktop.awaitWindow("Keyrill menu");
    expectTold("menu item", "Start Recording");
}

}  // namespace
