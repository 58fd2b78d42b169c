// SPDX-License-Identifier: MIT
//
// What the macro folder costs: the start of the program with ten thousand macros and four hundred hot keys in
// it, beside one without; how long hundreds of hot keys take beside four; and until all names have been read.
#include <poll.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "DockingHost.h"
#include "ProcessFigures.h"
#include "Samples.h"
#include "Table.h"
#include "desktop/Desktop.h"
#include "platform/Modifiers.h"
#include "platform/linux/LocalFolderFollower.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/watch/X11EventManager.h"
#include "support/Programs.h"
#include "support/XServer.h"

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int manyMacros = 10000;
constexpr std::uint32_t manyHotKeys = 400;
constexpr std::uint32_t fewHotKeys = 4;
constexpr int rounds = 9;

template <typename Work>
double millisecondsOf(const Work& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - begin).count();
}

/// Keys that every keyboard has, with each set of Control, Alt and Super but none, and with Shift or without.
constexpr std::uint32_t keys = 36;
constexpr std::uint32_t isoKey = 10;

std::uint32_t keyCodeOf(std::uint32_t number) {
    const std::uint32_t code = number % keys;
    return code < isoKey ? code : code + 1;
}

/// The set of that number, of one bit or the other of each pair.
std::uint32_t maskOf(std::uint32_t number, std::uint32_t ModifierPair::*bit) {
    const bool hasShift = number / keys % 2 != 0;
    std::uint32_t set = number / keys / 2 + 1;
    std::uint32_t mask = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const ModifierPair& pair = modifierPairs.at(i);
        const bool isShift = pair.modifier == modifier::shift;
        if (isShift ? hasShift : set % 2 != 0) mask |= pair.*bit;
        if (!isShift) set /= 2;
    }
    return mask;
}

std::vector<HotKeyRequest> hotKeys(std::uint32_t count) {
    std::vector<HotKeyRequest> requests;
    for (std::uint32_t number = 0; number < count; ++number) {
        requests.push_back({.id = number + 1,
                            .name = "macro",
                            .keyCode = keyCodeOf(number),
                            .modifiers = maskOf(number, &ModifierPair::modifier)});
    }
    return requests;
}

double registration(std::uint32_t count) {
    const XServer server;
    const SteadyClock clock;
    const auto manager = x11::X11EventManager::open(clock, server.display());
    const std::vector<HotKeyRequest> requests = hotKeys(count);
    const double elapsed = millisecondsOf([&] { manager.value()->requestAll(requests); });
    for (const HotKeyRequest& request : requests) {
        if (manager.value()->state(request.id).status != HotKeyStatus::registered)
            throw std::runtime_error("a hot key was refused");
    }
    return elapsed;
}

void fill(const std::string& folder) {
    for (int number = 0; number < manyMacros; ++number) {
        const std::string group = folder + "/group" + std::to_string(number / 500);
        std::filesystem::create_directories(group);
        std::ofstream(group + "/" + std::to_string(number) + ".keyrill") << "beep\n";
    }
}

double reading(const std::string& folder) {
    LocalFolderFollower follower;
    std::size_t found = 0;
    return millisecondsOf([&] {
        follower.follow(folder, ".keyrill",
                        [&](const FolderChanges& changes) { found = changes.appeared.size(); });
        while (found == 0) {
            pollfd source{follower.fileDescriptor(), POLLIN, 0};
            poll(&source, 1, -1);
            follower.dispatch();
        }
        if (found != manyMacros) throw std::runtime_error("not all macros were found");
    });
}

struct Start {
    double milliseconds = 0;
    double mebibytes = 0;
};

Start start(bool isFull) {
    const Desktop desktop;
    // The same work for the file system in both.
    fill(desktop.home() + (isFull ? "/.local/share/keyrill" : "/elsewhere"));
    if (isFull) {
        std::ofstream settings(desktop.home() + "/.config/keyrill/macros.conf");
        for (std::uint32_t number = 0; number < manyHotKeys; ++number) {
            settings << "[group0/" << number << ".keyrill]\nhotKeyCode=" << keyCodeOf(number)
                     << "\nhotKeyFlags=" << maskOf(number, &ModifierPair::controlFlag) << "\n";
        }
    }
    DockingHost host(desktop.display());
    const auto begin = std::chrono::steady_clock::now();
    const Child child({programs::keyrill}, desktop.options("log"));
    if (!host.waitForIcon(std::chrono::seconds(10))) throw std::runtime_error("no icon");
    const Milliseconds elapsed = std::chrono::steady_clock::now() - begin;
    std::this_thread::sleep_for(std::chrono::milliseconds(500));  // let it read all names
    return {elapsed.count(), residentMebibytes(child.pid())};
}

template <typename Measure>
double median(const Measure& measure) {
    std::vector<double> figures;
    for (int round = 0; round < rounds; ++round) figures.push_back(measure());
    return medianOf(figures);
}

}  // namespace

int main() {
    printRow({"400 hot keys registered", median([] { return registration(manyHotKeys); }), "4 hot keys",
              median([] { return registration(fewHotKeys); }), "ms", ""});
    {
        const Desktop desktop;
        fill(desktop.home());
        printRow({"10,000 macros: all names known", median([&] { return reading(desktop.home()); }), "", 0,
                  "ms", ""});
    }
    std::vector<double> full;
    std::vector<double> empty;
    std::vector<double> fullSize;
    std::vector<double> emptySize;
    for (int round = 0; round < rounds; ++round) {
        const Start with = start(true);
        const Start without = start(false);
        full.push_back(with.milliseconds);
        empty.push_back(without.milliseconds);
        fullSize.push_back(with.mebibytes);
        emptySize.push_back(without.mebibytes);
    }
    printRow({"start with 10,000 macros, 400 hot keys", medianOf(full), "empty folder", medianOf(empty), "ms",
              "ratio <= 1.05"});
    printRow(
        {"resident memory after that", medianOf(fullSize), "empty folder", medianOf(emptySize), "MiB", ""});
}
