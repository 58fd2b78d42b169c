// SPDX-License-Identifier: MIT
//
// Everything that a user does with the program, again and again: it needs no more memory at the end than at
// the beginning, as the kernel counts it.
//
// KEYRILL_CYCLES=50 does it so often; KEYRILL_DEED=about records once and then does that alone.
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string_view>

#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "desktop/StatusMenuClicks.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

/// What is built once and kept, the toolkit's pictures and fonts among it, is there after these.
constexpr int warmUp = 15;
/// The median of so many cycles is compared.
constexpr int span = 15;
constexpr std::int64_t kilobyte = 1024;
constexpr std::int64_t bound = 2 * kilobyte * kilobyte;

// The entries that can be chosen once something has been recorded.
constexpr int saveEntry = 5;
constexpr int loadEntry = 6;

int numberOfCycles() {
    const char* wanted = std::getenv("KEYRILL_CYCLES");
    constexpr int cycles = 300;
    return wanted == nullptr ? cycles : std::stoi(wanted);
}

/// Bytes that belong to the process alone and are in no file: heap, stacks, variables.
std::int64_t ownMemory(pid_t process) {
    std::istringstream lines(contentOf("/proc/" + std::to_string(process) + "/status"));
    std::map<std::string, std::int64_t> kilobytes;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        words >> name >> kilobytes[name];
    }
    return (kilobytes.at("RssAnon:") + kilobytes.at("VmSwap:")) * kilobyte;
}

std::int64_t median(std::vector<std::int64_t> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

class MemorySoak : public DesktopTest {
  protected:
    MemorySoak() {
        const std::string commands = desktop.file("commands");
        mkfifo(commands.c_str(), S_IRUSR | S_IWUSR);
        desktop.startBus();
        m_service.emplace(std::vector<std::string>{programs::busStandIn, desktop.bus().address(), commands,
                                                   "notifications"},
                          desktop.options("notifications.log"));
        EXPECT_TRUE(eventually([this] { return messages().find("ready\n") != std::string::npos; }));
        std::ofstream(desktop.file("notify.keyrill"))
            << "display notification \"Done\" with title \"Soak\"\n";
        desktop.startTray();
        m_terminal.emplace(desktop.display());
        m_keyrill.emplace(desktop);
        m_menu.emplace(desktop);
    }

    void doEverything() {
        struct Deed {
            const char* name;
            void (MemorySoak::*act)();
        };
        constexpr auto deeds = std::to_array<Deed>({{"record", &MemorySoak::record},
                                                    {"play", &MemorySoak::play},
                                                    {"play twice", &MemorySoak::playTwice},
                                                    {"cancel saving", &MemorySoak::cancelSaving},
                                                    {"save", &MemorySoak::save},
                                                    {"cancel loading", &MemorySoak::cancelLoading},
                                                    {"load", &MemorySoak::load},
                                                    {"notify", &MemorySoak::notify},
                                                    {"preferences", &MemorySoak::lookAtPreferences},
                                                    {"about", &MemorySoak::lookAtAbout}});
        const char* const wanted = std::getenv("KEYRILL_DEED");
        for (const Deed& deed : deeds) {
            const bool isFirst = growth.empty();
            if (wanted != nullptr && !isFirst && deed.name != std::string_view(wanted)) continue;
            SCOPED_TRACE(deed.name);
            const std::int64_t before = memory();
            ASSERT_NO_FATAL_FAILURE((this->*deed.act)());
            ASSERT_FALSE(HasFailure());
            growth[deed.name] += memory() - before;
        }
    }
    std::int64_t memory() { return ownMemory(m_keyrill->child().pid()); }

    /// Of each deed alone, as far as memory that one has given back did not serve the next.
    std::map<std::string, std::int64_t> growth;

  private:
    void command(std::uint8_t key) const { m_typist.stroke({xkey::control, xkey::super, key}); }
    void record() {
        command(xkey::r);
        desktop.awaitWindow(title::overlay);
        m_typist.tap(xkey::a);
        m_typist.tap(xkey::s);
        command(xkey::s);
        awaitGone(title::overlay);
        expectTyped("as");
    }
    void play() {
        command(xkey::p);
        expectTyped("as");
        awaitAnswered();
    }
    void playTwice() {
        command(xkey::m);
        desktop.awaitFocus(title::prompt);
        press("2");
        press("Return");
        expectTyped("asas");
        awaitGone(title::prompt);
        awaitAnswered();
    }
    void cancelSaving() {
        choose(saveEntry, title::savePanel);
        leavePanel(title::savePanel, "Escape");
    }
    void save() {
        ASSERT_EQ(keyLines(savedMacro(desktop)), 2U);
        awaitAnswered();
    }
    void cancelLoading() {
        choose(loadEntry, title::loadPanel);
        leavePanel(title::loadPanel, "Escape");
    }
    void load() {
        choose(loadEntry, title::loadPanel);
        desktop.run({"xdotool", "type", desktop.file("notify.keyrill")});
        leavePanel(title::loadPanel, "Return");
    }
    void notify() {
        const int before = numberOfNotifications();
        command(xkey::p);
        ASSERT_TRUE(eventually([&] { return numberOfNotifications() == before + 1; })) << messages();
        awaitAnswered();
    }
    /// Above Help and Quit.
    void lookAtPreferences() {
        choose(0, title::preferences, {"Up", "Up", "Up", "Return"});
        close(title::preferences);
        awaitTerminal();
    }
    /// The last line of the help, which is above Quit.
    void lookAtAbout() {
        choose(0, title::about, {"Up", "Up", "Right", "Up", "Return"});
        close(title::about);
        awaitTerminal();
    }

    void choose(int entry, const char* panel, const std::vector<std::string>& then = {"Return"}) {
        m_menu->open();
        m_menu->chooseByKeys(entry, then);
        giveFocus(panel);
    }
    void leavePanel(const char* panel, const std::string& key) const {
        press(key);
        awaitGone(panel);
        awaitTerminal();
        awaitAnswered();
    }
    /// A panel that is gone from the screen still keeps clicks and hot keys from the program until its loop
    /// has ended, and a run until some time after its last stroke; callers on the bus are told so.
    void awaitAnswered() const {
        const std::string log = desktop.file("answer.log");
        ASSERT_TRUE(eventually([&] {
            std::filesystem::remove(log);
            Child({programs::keyrill, "--action=stop"}, desktop.options("answer.log")).wait();
            return contentOf(log) == "keyrill: Nothing is being recorded or played.\n";
        })) << contentOf(log);
    }
    void awaitGone(const char* window) const {
        ASSERT_TRUE(eventually([&] { return !desktop.shows(window); })) << window;
    }
    void awaitTerminal() const {
        ASSERT_TRUE(eventually([this] { return m_terminal->hasFocus(); }));
    }
    void expectTyped(const std::string& text) {
        m_typed += text;
        ASSERT_EQ(m_terminal->typed(m_typed.size()), m_typed);
    }
    std::string messages() const { return contentOf(desktop.file("notifications.log")); }
    int numberOfNotifications() const {
        const std::string all = messages();
        int found = 0;
        for (std::size_t at = all.find("'Soak'"); at != std::string::npos; at = all.find("'Soak'", at + 1))
            ++found;
        return found;
    }

    std::optional<Child> m_service;
    std::optional<Terminal> m_terminal;
    std::optional<Keyrill> m_keyrill;
    std::optional<StatusMenuClicks> m_menu;
    const Hands m_hands{desktop.display()};
    const Typist m_typist{m_hands, Typist::Gap(5)};
    std::string m_typed;
};

/// What is kept on purpose is counted too: each cycle leaves two macros in the history, which ends with the
/// program.
TEST_F(MemorySoak, isFlatOverThreeHundredTimesEverything) {
    for (int cycle = 0; cycle < warmUp; ++cycle) ASSERT_NO_FATAL_FAILURE(doEverything()) << cycle;
    growth.clear();
    std::vector<std::int64_t> samples;
    const int cycles = std::max(numberOfCycles(), 2 * span);
    for (int cycle = 0; cycle < cycles; ++cycle) {
        ASSERT_NO_FATAL_FAILURE(doEverything()) << cycle;
        samples.push_back(memory());
        if (cycle % span == 0) std::cout << cycle << " cycles: " << samples.back() / kilobyte << " KiB\n";
    }
    const std::int64_t early = median({samples.begin(), samples.begin() + span});
    const std::int64_t late = median({samples.end() - span, samples.end()});
    std::cout << "early " << early / kilobyte << " KiB, late " << late / kilobyte << " KiB\nbytes a cycle:\n";
    for (const auto& [name, bytes] : growth) std::cout << "  " << name << ": " << bytes / cycles << "\n";
    EXPECT_LT(late - early, bound) << "over " << cycles << " cycles";
}

}  // namespace
