// SPDX-License-Identifier: MIT
//
// Time from the start of the program to its icon in the tray, and its memory then, beside the least Qt
// program that shows an icon. The two take turns, so that both meet the same weather.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <vector>

#include "Table.h"
#include "TrayHost.h"
#include "support/XServer.h"

namespace {

constexpr int rounds = 15;

struct Start {
    double milliseconds = 0;
    double mebibytes = 0;
};

double residentMebibytes(pid_t pid) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string word; status >> word;) {
        if (word != "VmRSS:") continue;
        double kibibytes = 0;
        status >> kibibytes;
        return kibibytes / 1024;
    }
    throw std::runtime_error("no memory figure of process " + std::to_string(pid));
}

std::map<std::string, std::string> environmentFor(const XServer& server, const std::string& home) {
    return {{"DISPLAY", server.display()},
            {"HOME", home},
            {"XDG_CONFIG_HOME", home + "/config"},
            {"XDG_CONFIG_DIRS", KEYRILL_PRESETS},
            {"XDG_RUNTIME_DIR", home},
            {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"},
            {"XDG_CURRENT_DESKTOP", ""},
            {"QT_QPA_PLATFORM", "xcb"}};
}

/// The greeting of the first start is no part of later ones.
void greetNobody(const std::string& home) {
    std::filesystem::create_directories(home + "/config/keyrill");
    std::ofstream(home + "/config/keyrill/keyrill.conf") << "[Settings]\nnotFirstRun=true\n";
}

Start startOnce(const std::string& program) {
    const XServer server;
    const TemporaryFolder home;
    greetNobody(home.path());
    TrayHost host(server.display());
    const auto begin = std::chrono::steady_clock::now();
    const Child child({program}, {.environment = environmentFor(server, home.path())});
    if (!host.waitForIcon(std::chrono::seconds(10))) throw std::runtime_error(program + " shows no icon");
    const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - begin;
    std::this_thread::sleep_for(std::chrono::milliseconds(300));  // let it finish its first painting
    return {elapsed.count(), residentMebibytes(child.pid())};
}

double median(std::vector<Start> starts, double Start::*figure) {
    std::sort(starts.begin(), starts.end(), [figure](auto& a, auto& b) { return a.*figure < b.*figure; });
    return starts[starts.size() / 2].*figure;
}

}  // namespace

int main() {
    std::vector<Start> ours;
    std::vector<Start> bare;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(startOnce(KEYRILL_PROGRAM));
        bare.push_back(startOnce(KEYRILL_BARE_TRAY));
    }
    const std::string yardstick = "bare Qt tray program";
    printRow({"start to visible tray icon, median", median(ours, &Start::milliseconds), yardstick,
              median(bare, &Start::milliseconds), "ms", "ratio <= 1.5"});
    printRow({"resident memory after start, median", median(ours, &Start::mebibytes), yardstick,
              median(bare, &Start::mebibytes), "MiB", "ratio <= 1.5"});
}
