// SPDX-License-Identifier: MIT
//
// How fast a text comes, and how true a row of strokes and pauses keeps its time, in native windows under
// sway and KWin: from the first byte that the window has to the last. Programs run whole, as people start
// them.
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

#include "Seconds.h"
#include "Table.h"
#include "compositor/Field.h"
#include "compositor/Foot.h"
#include "compositor/KWin.h"
#include "compositor/Sway.h"
#include "compositor/WaylandHands.h"

namespace {

constexpr std::size_t ourLength = 5'000;
constexpr std::size_t theirLength = 1'000;
constexpr std::size_t fieldLength = 400;
constexpr int strokes = 300;
constexpr double pauseSeconds = 0.01;

/// Letters, capitals and digits.
std::string textOf(std::size_t length) {
    const std::string alphabet = "the quick brown fox jumps over THE LAZY DOG 0123456789 ";
    std::string text;
    for (std::size_t i = 0; i < length; ++i) text += alphabet[i % alphabet.size()];
    return text;
}

/// 80 characters, of which 70 are on no key of an American keyboard.
std::string foreignText() {
    std::string text;
    for (int line = 0; line < 5; ++line) text += "жызнь Ωμέγα äöü";
    return text + "łęąść";
}

std::string keystrokes(const std::string& text) {
    return "tell application \"System Events\" to keystroke \"" + text + "\"\n";
}

/// As many strokes of A as are measured, each with a pause before it but the first.
std::string pacedStrokes() {
    std::string script = "tell application \"System Events\"\nkey code 0\n";
    for (int stroke = 1; stroke < strokes; ++stroke) script += "delay 0.01\nkey code 0\n";
    return script + "end tell\n";
}

/// Seconds from when a window has something to when it has all of it. What never comes whole ends the
/// program.
double secondsToReceive(const std::function<std::string()>& received, const std::string& expected) {
    constexpr std::chrono::seconds patience{60};
    if (!eventually([&] { return !received().empty(); }, patience)) throw std::runtime_error("nothing came");
    return secondsOf([&] {
        if (!eventually([&] { return received().size() >= expected.size(); }, patience) ||
            received() != expected) {
            throw std::runtime_error(std::to_string(received().size()) + " of " +
                                     std::to_string(expected.size()) + " bytes arrived, or others");
        }
    });
}

/// A desktop's way to start programs, and to look at what its window has.
struct Desktop {
    std::function<std::unique_ptr<Child>(const std::vector<std::string>&)> start;
    std::function<std::string()> received;
};

double secondsOfProgram(const Desktop& desktop, const std::vector<std::string>& command,
                        const std::string& expected) {
    const auto program = desktop.start(command);
    const double seconds = secondsToReceive(desktop.received, expected);
    if (program->wait() != 0) throw std::runtime_error(command.front() + " failed");
    return seconds;
}

class UnderSway {
  public:
    UnderSway() : m_hands(m_sway.socket(), "us"), m_foot(m_sway) {}

    /// From the first byte of the text to the last.
    double secondsOf(const std::vector<std::string>& command, const std::string& expected) const {
        const Desktop desktop{.start =
                                  [this](const auto& words) {
                                      auto environment = m_sway.environment();
                                      environment["LC_ALL"] = "C.UTF-8";
                                      return std::make_unique<Child>(
                                          words, Child::Options{.environment = environment});
                                  },
                              .received = [this] { return m_foot.typed(); }};
        return secondsOfProgram(desktop, command, expected);
    }

  private:
    Sway m_sway;
    WaylandHands m_hands;
    Foot m_foot;
};

std::string scriptFile(const TemporaryFolder& folder, const std::string& script) {
    std::ofstream(folder.file("script"), std::ios::binary) << script;
    return folder.file("script");
}

double oursUnderSway(const std::string& script, const std::string& expected) {
    const TemporaryFolder folder;
    return UnderSway().secondsOf({KEYRILL_SCRIPT_TOOL, "run", scriptFile(folder, script)}, expected);
}

double oursUnderKWin(const std::string& script, const std::string& expected) {
    const KWin kwin({.hasPortal = true});
    const Field field(kwin, Field::Toolkit::qt);
    const std::string file = kwin.put("home/script", script);
    const Desktop desktop{.start = [&](const auto& words) { return kwin.start(words, "output"); },
                          .received = [&] { return field.text(); }};
    return secondsOfProgram(desktop, {KEYRILL_SCRIPT_TOOL, "run", file}, expected);
}

void printSway() {
    const std::string text = textOf(ourLength);
    const double ours = static_cast<double>(ourLength) / oursUnderSway(keystrokes(text), text);
    const std::string less = textOf(theirLength);
    const double theirs = static_cast<double>(theirLength) / UnderSway().secondsOf({"wtype", less}, less);
    printRow({"sway: text into foot", ours, "wtype", theirs, "characters/s", "ratio > 1"});
    const std::string foreign = foreignText();
    printRow({"sway: 80 characters, 70 on no key", oursUnderSway(keystrokes(foreign), foreign), "wtype",
              UnderSway().secondsOf({"wtype", foreign}, foreign), "s", "0.06 s"});
    const std::string row(strokes, 'a');
    printRow({"sway: 300 strokes at 10 ms", oursUnderSway(pacedStrokes(), row), "ideal",
              (strokes - 1) * pauseSeconds, "s", "ratio <= 1.001"});
    printAbsence("sway: text into foot", "ydotool", "needs /dev/uinput, which no virtual display has");
}

void printKWin() {
    const std::string text = textOf(fieldLength);
    printRow({"KWin: text into a Qt field",
              static_cast<double>(text.size()) / oursUnderKWin(keystrokes(text), text), "ideal", 0,
              "characters/s", ""});
    const std::string row(strokes, 'a');
    printRow({"KWin: 300 strokes at 10 ms", oursUnderKWin(pacedStrokes(), row), "ideal",
              (strokes - 1) * pauseSeconds, "s", "ratio <= 1.001"});
    printAbsence("KWin: text into a Qt field", "wtype", "finds no virtual keyboard there");
}

}  // namespace

int main() {
    printSway();
    printKWin();
}
