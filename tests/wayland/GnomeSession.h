// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "compositor/GnomeHands.h"
#include "compositor/GnomeShell.h"
#include "support/Keys.h"
#include "wayland/AccessWorld.h"

/// keyrill itself under a GNOME of the test's own, as its user, with the preset combinations. What GNOME's
/// settings hold is read as any program reads them.
class GnomeSessionTest : public testing::Test {
  protected:
    static inline const std::string recordHere = "Record Here";
    static inline const std::string question = "May Keyrill write its hot keys into GNOME's settings?";
    /// The portal's, before a program presses keys.
    static inline const std::string portalQuestion = "Remote desktop";

    explicit GnomeSessionTest(const std::vector<GnomeShell::Setting>& settings = {})
        : m_shell({.systemBus = m_access.bus(), .settings = settings}), m_hands(m_shell) {
        setBinding("custom0", "name", "Editor");
        setBinding("custom0", "command", "gedit");
        setBinding("custom0", "binding", "<Control><Alt>e");
        shell().set({schema, "custom-keybindings", "[" + users + "]"});
        const std::string file = session().put("presets/keyrill/keyrill.conf", contentOf(KEYRILL_PRESETS));
        m_presets = std::filesystem::path(file).parent_path().parent_path();
        // Nobody is greeted.
        session().put("home/.config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n");
    }

    /// The user has answered before.
    void agreeToHotKeys() const {
        session().put("home/.config/keyrill/keyrill.conf",
                      "[Settings]\nnotFirstRun=true\nwriteHotKeys=true\n");
    }
    /// Starts the program with a macro of these lines.
    void launch(const std::string& lines) {
        const std::string macro = session().put(
            "home/macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = start({KEYRILL_PRODUCT, macro}, "output");
    }
    /// The same, and waits until it is up.
    void start(const std::string& lines) {
        launch(lines);
        // Without a tray a small window appears, once the program is up.
        ASSERT_TRUE(eventually([this] { return shell().shows("Keyrill"); }, std::chrono::seconds(30)))
            << log();
    }
    /// The same, with its hot keys, until GNOME has them.
    void startWithHotKeys(const std::string& lines) {
        agreeToHotKeys();
        start(lines);
        awaitHotKeys();
    }
    void awaitHotKeys() const {
        ASSERT_TRUE(listsAll()) << list();
        for (const std::uint8_t key : {xkey::r, xkey::s, xkey::p, xkey::m})
            ASSERT_TRUE(eventually([&] { return isTaken(key); })) << session().log("media-keys.log");
    }
    /// For whom the shell takes Control and Super with that key: a number, another one for each time that
    /// somebody has asked for it; 0 for nobody.
    std::string taker(std::uint8_t key) const {
        const int modifiers = xmask::control | xmask::super;
        return shell().evaluate("global.display.get_keybinding_action(" + std::to_string(key) + ", " +
                                std::to_string(modifiers) + ")");
    }
    bool isTaken(std::uint8_t key) const { return taker(key) != "0"; }
    /// Another program of the user's.
    std::unique_ptr<Child> start(const std::vector<std::string>& command, const std::string& log) const {
        return session().start(command, log,
                               {{"XDG_CONFIG_DIRS", m_presets}, {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}});
    }
    /// What the program's objects are for assistive technology: the words of assistant.cpp.
    std::string assistant(const std::vector<std::string>& words) const {
        std::vector<std::string> command = {KEYRILL_ASSISTANT, std::to_string(m_program->pid())};
        command.insert(command.end(), words.begin(), words.end());
        const std::string log = "assistant" + std::to_string(++m_assistants);
        EXPECT_EQ(start(command, log)->wait(), 0);
        return session().log(log);
    }
    std::string reportOf() const {
        start({KEYRILL_PRODUCT, "--check"}, "report")->wait();
        return session().log("report");
    }

    // What any program finds among the user's shortcuts.
    std::string list() const { return shell().setting(schema, "custom-keybindings"); }
    std::string at(const std::string& name, const char* key) const {
        return shell().setting(std::string(schema) + ".custom-keybinding:" + folder + name + "/", key);
    }
    bool lists(const std::vector<std::string>& names) const {
        std::string wanted = "[" + users;
        for (const std::string& name : names) wanted += ", '" + folder + "keyrill-" + name + "/'";
        return eventually([&] { return list() == wanted + "]"; }, std::chrono::seconds(20));
    }
    bool listsAll() const { return lists({"multiplePlay", "play", "record", "stop"}); }
    bool listsNone() const { return lists({}); }
    /// Another program writes one; "custom0" is the user's own.
    void setBinding(const std::string& name, const char* key, const std::string& value) const {
        shell().set({std::string(schema) + ".custom-keybinding:" + folder + name + "/", key, value});
    }

    bool hasFocus(const std::string& title) const {
        return eventually([&] { return shell().hasFocus(title); }, std::chrono::seconds(20));
    }
    bool isGone(const std::string& title) const {
        return eventually([&] { return !shell().shows(title); }, std::chrono::seconds(20));
    }
    void strokeHotKey(std::uint8_t key) { m_hands.stroke({xkey::control, xkey::super, key}); }
    /// GNOME tells of no release: a press that comes sooner would be one more of the same.
    static void letGo() { std::this_thread::sleep_for(std::chrono::seconds(1)); }
    /// Answers the portal's question, by keys: its switch, past it and "Cancel" to "Share".
    void allowKeys() {
        ASSERT_TRUE(hasFocus(portalQuestion)) << log();
        keep("portal");
        hands().stroke({xkey::space});
        for (int i = 0; i < 3; ++i) hands().stroke({xkey::tab});
        hands().stroke({xkey::space});
        ASSERT_TRUE(isGone(portalQuestion));
    }
    /// A picture of the screen for whoever runs the tests, in the folder that KEYRILL_PICTURES names.
    void keep(const std::string& name) const {
        const char* const pictures = std::getenv("KEYRILL_PICTURES");
        if (pictures == nullptr) return;
        std::filesystem::create_directories(pictures);
        // Once all has been painted.
        std::string last;
        const auto isAtRest = [&] {
            return std::exchange(last, contentOf(shell().picture("picture.png"))) == last;
        };
        EXPECT_TRUE(eventually(isAtRest)) << name;
        std::ofstream(std::string(pictures) + "/" + name + ".png", std::ios::binary) << last;
    }

    const GnomeShell& shell() const { return m_shell; }
    GnomeShell& shell() { return m_shell; }
    const UserSession& session() const { return m_shell.session(); }
    GnomeHands& hands() { return m_hands; }
    AccessWorld& access() { return m_access; }
    Child& program() { return *m_program; }
    std::string log() const { return session().log("output"); }

  private:
    static constexpr const char* schema = "org.gnome.settings-daemon.plugins.media-keys";
    static inline const std::string folder =
        "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/";
    static inline const std::string users = "'" + folder + "custom0/'";

    AccessWorld m_access;
    GnomeShell m_shell;
    GnomeHands m_hands;
    std::string m_presets;
    std::unique_ptr<Child> m_program;
    mutable int m_assistants = 0;
};
