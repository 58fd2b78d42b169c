// SPDX-License-Identifier: MIT
#include <filesystem>
#include <set>
#include <sstream>
#include <utility>

#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"

namespace {

/// What assistive technology tells of an object on the screen.
struct ToldObject {
    std::string role;
    std::string name;
    std::string description;
    bool isFocusable = false;
};

/// The program as somebody meets it who can neither see it nor use a mouse. It has no tray and is started for
/// the first time.
class AccessibilityTest : public testing::Test {
  protected:
    AccessibilityTest() {
        letAssistantsIn(desktop);
        desktop.startWindowManager();
        desktop.writeSettings("");
        keyrill.emplace(desktop, "tell application \"System Events\" to key code 0\n");
        desktop.awaitWindow("Welcome to Keyrill");
    }

    std::vector<std::string> command(std::vector<std::string> words) {
        return assistantCall(keyrill->child(), std::move(words));
    }
    void press(const std::string& name) {
        EXPECT_TRUE(desktop.succeeds(command({"press", name}))) << "nothing called " << name << " among\n"
                                                                << desktop.run(command({"list"}));
    }
    void type(const std::string& name, const std::string& text) {
        EXPECT_TRUE(desktop.succeeds(command({"type", name, text}))) << "nothing called " << name;
    }
    std::vector<ToldObject> told() {
        std::vector<ToldObject> objects;
        std::istringstream lines(desktop.run(command({"list"})));
        for (std::string line; std::getline(lines, line);) {
            std::istringstream parts(line);
            ToldObject object;
            std::string focusable;
            std::getline(parts, object.role, '|');
            std::getline(parts, object.name, '|');
            std::getline(parts, object.description, '|');
            std::getline(parts, focusable, '|');
            object.isFocusable = focusable == "focusable";
            objects.push_back(object);
        }
        return objects;
    }
    bool tells(const std::string& role, const std::string& name) {
        for (const ToldObject& object : told()) {
            if (object.role == role && object.name == name) return true;
        }
        return false;
    }
    std::string descriptionOf(const std::string& name) {
        for (const ToldObject& object : told()) {
            if (object.name == name && object.role == "push button") return object.description;
        }
        return "nothing called " + name;
    }

    /// All that can be used has a name, and there is that much of it.
    void expectNamed(std::size_t atLeast) {
        static const std::set<std::string> used = {"push button", "check box", "text",      "entry",
                                                   "combo box",   "menu item", "list item", "toggle button"};
        std::size_t count = 0;
        for (const ToldObject& object : told()) {
            if (!object.isFocusable && !used.contains(object.role)) continue;
            ++count;
            EXPECT_NE(object.name, "") << "a " << object.role;
        }
        EXPECT_GE(count, atLeast);
    }
    std::string settings() const { return contentOf(desktop.home() + "/.config/keyrill/keyrill.conf"); }
    void openPreferences() {
        press("Continue");
        desktop.awaitWindow("Keyrill Preferences");
    }

    Desktop desktop;
    std::optional<Keyrill> keyrill;
};

TEST_F(AccessibilityTest, welcomesAndLeadsToThePreferences) {
    EXPECT_TRUE(eventually([this] { return tells("label", "Welcome to Keyrill"); }));
    EXPECT_TRUE(tells("label", "Press Ctrl+Super+S when you are done."));
    expectNamed(1);
    openPreferences();
    EXPECT_TRUE(eventually([this] { return !desktop.shows("Welcome to Keyrill"); }));
}

TEST_F(AccessibilityTest, tellsAndSetsThePreferences) {
    openPreferences();
    expectNamed(8);
    EXPECT_EQ(descriptionOf("Stop Recording"), "Ctrl+Super+S");
    // A box of choices is told by what is chosen, and by its label.
    EXPECT_TRUE(tells("combo box", "Never"));
    EXPECT_TRUE(tells("label", "Record pauses:"));
    EXPECT_TRUE(tells("check box", "Record modifier keys on their own"));
    EXPECT_TRUE(tells("spin button", "Longest pause in seconds"));
    press("Start Keyrill when I log in");
    press("Stop Recording");
    ASSERT_TRUE(eventually([this] { return desktop.screen().isKeyboardGrabbed(); }));
    EXPECT_EQ(descriptionOf("Stop Recording"), "Press a combination…");
    desktop.press("ctrl+super+y");
    EXPECT_TRUE(eventually([this] { return descriptionOf("Stop Recording") == "Ctrl+Super+Y"; }));
    press("Clear Play");
    EXPECT_TRUE(eventually([this] { return descriptionOf("Play") == "Not set"; }));
    press("Close");
    EXPECT_TRUE(eventually([this] { return !desktop.shows("Keyrill Preferences"); }));
    EXPECT_NE(settings().find("stopCode=16\n"), std::string::npos) << settings();
    EXPECT_NE(settings().find("playCode=-1\n"), std::string::npos) << settings();
    EXPECT_TRUE(std::filesystem::exists(desktop.home() + "/.config/autostart/example.orlen.Keyrill.desktop"));
}

TEST_F(AccessibilityTest, playsFromThePrompt) {
    openPreferences();
    press("Close");
    EXPECT_TRUE(eventually([this] { return !desktop.shows("Keyrill Preferences"); }));
    const Terminal terminal(desktop.display());
    desktop.press("ctrl+super+m");
    desktop.awaitWindow(title::prompt);
    expectNamed(2);
    type("Times to play", "3");
    press("Play");
    EXPECT_EQ(terminal.typed(3), "aaa");
}

TEST_F(AccessibilityTest, reachesTheMenuAndTheAboutPanelWithoutATray) {
    openPreferences();
    press("Close");
    desktop.awaitWindow(title::control);
    expectNamed(1);
    press("Keyrill menu");
    desktop.awaitWindow(title::menu);
    EXPECT_TRUE(tells("menu item", "Start Recording"));
    desktop.press("Escape");
    press("About Keyrill");
    desktop.awaitWindow("About Keyrill");
    EXPECT_TRUE(tells("label", "LGPL 3"));
    expectNamed(4);
}

}  // namespace
