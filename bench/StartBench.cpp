// SPDX-License-Identifier: MIT
//
// Time from the start of the program to its icon in the tray, and its memory then, beside the least Qt
// program that shows an icon: in a tray that docks icons, and with a session bus in a panel for status
// notifier items, there also with the program's files and its libraries not in memory. The two take turns, so
// that both meet the same weather.
#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "DockingHost.h"
#include "ProcessFigures.h"
#include "Samples.h"
#include "StatusNotifierHost.h"
#include "Table.h"
#include "desktop/Desktop.h"
#include "support/Programs.h"

namespace {

constexpr std::chrono::seconds patience{10};

struct Start {
    double milliseconds = 0;
    double mebibytes = 0;  ///< resident
    double fromDisk = 0;   ///< MiB
    std::vector<std::string> files;
};

/// On a desktop whose tray is the host.
template <typename Host>
Start startAt(Host& host, const Desktop& desktop, const std::string& program) {
    const auto begin = std::chrono::steady_clock::now();
    const Child child({program}, desktop.options("log"));
    if (!host.waitForIcon(patience)) throw std::runtime_error(program + " shows no icon");
    const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - begin;
    std::this_thread::sleep_for(std::chrono::milliseconds(300));  // let it finish its first painting
    return {elapsed.count(), residentMebibytes(child.pid()), mebibytesFromDisk(child.pid()),
            filesInMemoryOf(child.pid())};
}

Start startDocking(const std::string& program) {
    const Desktop desktop;
    DockingHost host(desktop.display());
    return startAt(host, desktop, program);
}

Start startInPanel(const std::string& program) {
    Desktop desktop;
    StatusNotifierHost host(desktop.startBus().address());
    return startAt(host, desktop, program);
}

/// With nothing of these files in memory but what other processes have in use.
Start startCold(const std::string& program, const std::vector<std::string>& files) {
    Desktop desktop;
    StatusNotifierHost host(desktop.startBus().address());
    for (const std::string& file : files) dropFromCache(file);
    return startAt(host, desktop, program);
}

class Comparison {
  public:
    using Way = std::function<Start(const std::string& program)>;

    Comparison(const Way& start, int rounds) {
        for (int round = 0; round < rounds; ++round) {
            m_ours.push_back(start(programs::keyrill));
            m_bare.push_back(start(KEYRILL_BARE_TRAY));
        }
    }

    void print(const std::string& what, double Start::*figure, const std::string& unit,
               const std::string& aim) const {
        printRow({what + ", median", median(m_ours, figure), "bare Qt tray program", median(m_bare, figure),
                  unit, aim});
    }
    /// What both have in memory.
    std::vector<std::string> files() const {
        std::vector<std::string> all = m_ours.front().files;
        all.insert(all.end(), m_bare.front().files.begin(), m_bare.front().files.end());
        return all;
    }

  private:
    static double median(const std::vector<Start>& starts, double Start::*figure) {
        std::vector<double> figures;
        for (const Start& start : starts) figures.push_back(start.*figure);
        return medianOf(figures);
    }

    std::vector<Start> m_ours;
    std::vector<Start> m_bare;
};

}  // namespace

int main() {
    const Comparison docking(startDocking, 15);
    docking.print("start to docked tray icon", &Start::milliseconds, "ms", "ratio <= 1.5");
    docking.print("resident memory after start", &Start::mebibytes, "MiB", "ratio <= 1.5");
    const Comparison warm(startInPanel, 15);
    warm.print("start to icon in a panel, warm", &Start::milliseconds, "ms", "ratio <= 1.3");
    warm.print("resident memory after that", &Start::mebibytes, "MiB", "ratio <= 1.5");
    const auto files = warm.files();
    const Comparison cold([&files](const std::string& program) { return startCold(program, files); }, 9);
    cold.print("start to icon in a panel, cold", &Start::milliseconds, "ms", "ratio <= 1.3");
    cold.print("read from the disk for that", &Start::fromDisk, "MiB", "");
}
