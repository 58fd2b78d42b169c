// SPDX-License-Identifier: MIT
//
// How often the program wakes while nobody does anything, with a session bus and a panel, beside the least Qt
// program that shows an icon, at the same time and each on a desktop of its own.
#include <chrono>
#include <stdexcept>
#include <thread>

#include "ProcessFigures.h"
#include "StatusNotifierHost.h"
#include "Table.h"
#include "desktop/Desktop.h"
#include "support/Programs.h"

namespace {

constexpr double watchedSeconds = 60;
constexpr double aim = 0.05;

/// A program in the tray of a desktop of its own.
class Idler {
  public:
    explicit Idler(const std::string& program)
        : m_host(m_desktop.startBus().address()), m_program({program}, m_desktop.options("log")) {
        if (!m_host.waitForIcon(std::chrono::seconds(10)))
            throw std::runtime_error(program + " shows no icon");
    }

    void start() { m_before = contextSwitches(m_program.pid()); }
    double perSecond() const {
        return static_cast<double>(contextSwitchesSince(m_before, m_program.pid())) / watchedSeconds;
    }

  private:
    Desktop m_desktop;
    StatusNotifierHost m_host;
    Child m_program;
    std::map<pid_t, std::uint64_t> m_before;
};

}  // namespace

int main() {
    Idler ours(programs::keyrill);
    Idler bare(KEYRILL_BARE_TRAY);
    // The start-up is over, also for the threads of libraries that wait for more to do.
    std::this_thread::sleep_for(std::chrono::seconds(20));
    ours.start();
    bare.start();
    std::this_thread::sleep_for(std::chrono::duration<double>(watchedSeconds));
    const double oursPerSecond = ours.perSecond();
    const std::string what = "context switches in 60 s of idling, with a bus";
    printRow({what, oursPerSecond, "aim", aim, "1/s", "ratio <= 1"});
    printRow({what, oursPerSecond, "bare Qt tray program", bare.perSecond(), "1/s", ""});
}
