// SPDX-License-Identifier: MIT
//
// Other programs of Debian that do the same work, each beside ours in the same run: cnee records keys and
// plays them, autokey types a text that is asked for by keys, autokey, actiona and copyq live in the tray.
// One that does not do its work on a virtual display gets a row that says so.
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "ProcessFigures.h"
#include "Receiver.h"
#include "Samples.h"
#include "StatusNotifierHost.h"
#include "Table.h"
#include "desktop/Desktop.h"
#include "display/Typist.h"
#include "support/Keys.h"
#include "support/Programs.h"

namespace {

using Clock = Receiver::Clock;
using Seconds = std::chrono::duration<double>;

constexpr std::chrono::seconds patience{20};

// Record and play

constexpr std::size_t typedKeys = 300;
constexpr double pauseSeconds = 0.01;

/// Keys that go down at 10 ms, whatever else the machine does.
void typeEvenly(const Hands& hands) {
    const auto begin = Clock::now();
    for (std::size_t key = 0; key < typedKeys; ++key) {
        hands.tap(xkey::a);
        hands.flush();
        std::this_thread::sleep_until(begin + static_cast<int>(key + 1) * std::chrono::milliseconds(10));
    }
    hands.finish();
}

/// Seconds from the first key to the last; nothing where they do not all come.
std::optional<double> spanOfKeys(const Receiver& receiver) {
    if (!eventually([&] { return receiver.count(xkey::a) >= typedKeys; }, patience)) return std::nullopt;
    const auto keys = receiver.presses(xkey::a);
    return Seconds(keys.back() - keys.front()).count();
}

std::optional<double> playedByUs() {
    const Desktop desktop;
    Receiver receiver(desktop.display());
    const Keyrill keyrill(desktop);
    const Hands hands(desktop.display());
    const Typist typist(hands, Typist::Gap(5));
    typist.stroke({xkey::control, xkey::super, xkey::r});
    desktop.awaitWindow(title::overlay);
    typeEvenly(hands);
    typist.stroke({xkey::control, xkey::super, xkey::s});
    receiver.clear();
    typist.stroke({xkey::control, xkey::super, xkey::p});
    return spanOfKeys(receiver);
}

std::optional<double> playedByCnee() {
    const Desktop desktop;
    Receiver receiver(desktop.display());
    const Hands hands(desktop.display());
    const std::string file = desktop.file("session");
    Child recorder(
        {"cnee", "--record", "--keyboard", "--events-to-record", "-1", "--stop-key", "F12", "-o", file},
        desktop.options("cnee.log"));
    std::this_thread::sleep_for(std::chrono::seconds(1));  // nothing tells that it records
    typeEvenly(hands);
    hands.tap(xkey::f12);
    hands.finish();
    if (recorder.wait() != 0) return std::nullopt;
    receiver.clear();
    const Child player({"cnee", "--replay", "--file", file}, desktop.options("cnee.log"));
    return spanOfKeys(receiver);
}

void compareRecording() {
    constexpr double ideal = (typedKeys - 1) * pauseSeconds;
    const std::string what = "300 keys at 10 ms, recorded and played";
    const double ours = playedByUs().value();
    printRow({what, ours, "ideal", ideal, "s", "ratio <= 1.001"});
    const auto theirs = playedByCnee();
    if (!theirs) return printAbsence(what, "cnee", "did not play them all");
    printRow({what + ": error", std::abs(ours - ideal), "cnee", std::abs(*theirs - ideal), "s", "ratio < 1"});
}

// Type a text

constexpr std::size_t textLength = 1000;

std::string longText() {
    const std::string words = "the quick brown fox jumps over the lazy dog 0123456789 ";
    std::string text;
    while (text.size() < textLength) text += words;
    return text.substr(0, textLength);
}

/// Of the sign "=", which ends the text and is not in it.
constexpr std::uint8_t lastOfText = 21;

/// Characters a second until the key that nothing of the text has, or nothing if it does not come.
std::optional<double> speedSince(Clock::time_point wish, const Receiver& receiver) {
    if (!eventually([&] { return receiver.count(lastOfText) > 0; }, patience)) return std::nullopt;
    return textLength / Seconds(receiver.presses(lastOfText).back() - wish).count();
}

double typedByUs() {
    const Desktop desktop;
    Receiver receiver(desktop.display());
    const Keyrill keyrill(desktop, "tell application \"System Events\" to keystroke \"" + longText() + "=\"");
    const Hands hands(desktop.display());
    const auto wish = Clock::now();
    Typist(hands, Typist::Gap(5)).stroke({xkey::control, xkey::super, xkey::p});
    return speedSince(wish, receiver).value();
}

/// Settings and a folder of phrases, without which it begins with examples; the abbreviation stands for the
/// text.
void writePhrase(const std::filesystem::path& settings, const std::string& abbreviation) {
    const std::filesystem::path folder = settings / "data/Text";
    const std::string none =
        R"("hotkey":{"modifiers":[],"hotKey":null},"filter":{"regex":null,"isRecursive":false})";
    const auto abbreviations = [](const std::string& list) {
        return R"("abbreviation":{"abbreviations":[)" + list +
               R"(],"backspace":false,"ignoreCase":false,"immediate":true,"triggerInside":true,"wordChars":"[\\w]"},)";
    };
    std::filesystem::create_directories(folder);
    const std::string noKey = R"({"enabled":false,"modifiers":[],"hotKey":null})";
    std::ofstream(settings / "autokey.json")
        << R"({"version":"0.95.10","userCodeDir":null,"settings":{"isFirstRun":false},"folders":[],)"
        << R"("toggleServiceHotkey":)" << noKey << R"(,"configHotkey":)" << noKey << "}";
    std::ofstream(folder / ".folder.json")
        << R"({"type":"folder","title":"Text","modes":[],"usageCount":0,"showInTrayMenu":false,)"
        << abbreviations("") << none << "}";
    std::ofstream(folder / "text.txt") << longText() << "=";
    std::ofstream(folder / ".text.json")
        << R"({"type":"phrase","description":"text","modes":[1],"usageCount":0,"prompt":false,"omitTrigger":true,)"
        << R"("matchCase":false,"showInTrayMenu":false,)" << abbreviations('"' + abbreviation + '"') << none
        << R"(,"sendMode":"kb"})";
}

std::optional<double> typedByAutokey() {
    Desktop desktop;
    StatusNotifierHost host(desktop.startBus().address());
    Receiver receiver(desktop.display());
    writePhrase(desktop.home() + "/.config/autokey", "qq");
    const Child autokey({"autokey-gtk"}, desktop.options("autokey.log"));
    if (!host.waitForIcon(patience)) return std::nullopt;
    std::this_thread::sleep_for(std::chrono::seconds(2));  // nothing tells that it listens
    const Hands hands(desktop.display());
    const auto wish = Clock::now();
    const Typist typist(hands, Typist::Gap(5));
    typist.tap(xkey::q);
    typist.tap(xkey::q);
    return speedSince(wish, receiver);
}

void compareTyping() {
    const std::string what = "1000 characters, from the keys that ask for them";
    const auto theirs = typedByAutokey();
    if (!theirs) return printAbsence(what, "autokey", "did not type them");
    printRow({what, typedByUs(), "autokey", *theirs, "characters/s", "ratio > 1"});
}

// Live in the tray

constexpr int rounds = 5;

struct Start {
    double milliseconds = 0;
    double mebibytes = 0;
};

std::optional<Start> startOnce(const std::vector<std::string>& command) {
    Desktop desktop;
    StatusNotifierHost host(desktop.startBus().address());
    const auto begin = Clock::now();
    const Child child(command, desktop.options("log"));
    if (!host.waitForIcon(std::chrono::seconds(10))) return std::nullopt;
    const std::chrono::duration<double, std::milli> elapsed = Clock::now() - begin;
    std::this_thread::sleep_for(std::chrono::seconds(1));  // it has started what it is made of
    return Start{elapsed.count(), proportionalMebibytes(familyOf(child.pid()))};
}

void compareStart(const std::string& peer) {
    std::vector<double> times;
    std::vector<double> memory;
    std::vector<double> theirTimes;
    std::vector<double> theirMemory;
    for (int round = 0; round < rounds; ++round) {
        const auto theirs = startOnce({peer});
        if (!theirs) return printAbsence("start to icon in a panel, warm", peer, "shows no icon there");
        const Start ours = startOnce({programs::keyrill}).value();
        times.push_back(ours.milliseconds);
        memory.push_back(ours.mebibytes);
        theirTimes.push_back(theirs->milliseconds);
        theirMemory.push_back(theirs->mebibytes);
    }
    printRow({"start to icon in a panel, warm, median", medianOf(times), peer, medianOf(theirTimes), "ms",
              "ratio < 1"});
    printRow({"memory then, all processes, shared once", medianOf(memory), peer, medianOf(theirMemory), "MiB",
              "ratio < 1"});
}

}  // namespace

int main() {
    compareRecording();
    compareTyping();
    for (const char* peer : {"autokey-gtk", "actiona", "copyq"}) compareStart(peer);
}
