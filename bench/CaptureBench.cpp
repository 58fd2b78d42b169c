// SPDX-License-Identifier: MIT
//
// How long a key that somebody presses takes into the macro that is being recorded: from just before the
// press is sent to the X server until the whole program, overlay and all, has put the key into its macro.
// Beside a client that does nothing but wait for raw key events, at a server of its own; the two take turns.
// Once with nothing else to do for the machine, once beside two programs that never rest.
#include <poll.h>
#include <xcb/xinput.h>

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <thread>
#include <vector>

#include "Samples.h"
#include "Table.h"
#include "app/program/Backends.h"
#include "app/program/Program.h"
#include "app/program/StartUp.h"
#include "core/Macro.h"
#include "display/Connection.h"
#include "display/Hands.h"
#include "engine/EngineState.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/EventMonitor.h"
#include "platform/Services.h"
#include "platform/x11/server/Extensions.h"
#include "support/Keys.h"
#include "support/XServer.h"

namespace {

using Clock = std::chrono::steady_clock;
using Times = std::vector<Clock::time_point>;

constexpr int keysInBlock = 100;
constexpr int blocks = 6;
constexpr std::chrono::seconds patience{30};

/// Presses keys in a thread of its own, as quick hands do, and remembers when.
class QuickTypist {
  public:
    explicit QuickTypist(const std::string& display) : m_hands(display) {}

    Times type() {
        Times sent;
        for (int key = 0; key < keysInBlock; ++key) {
            const auto keycode = static_cast<std::uint8_t>(xkey::a + key % 9);
            sent.push_back(Clock::now());
            m_hands.press(keycode);
            m_hands.flush();
            std::this_thread::sleep_for(std::chrono::microseconds(m_gap(m_random)));
            m_hands.release(keycode);
            m_hands.flush();
            std::this_thread::sleep_for(std::chrono::microseconds(m_gap(m_random)));
        }
        return sent;
    }

  private:
    Hands m_hands;
    std::minstd_rand m_random{1};
    /// Not in step with anything that comes at regular times.
    std::uniform_int_distribution<int> m_gap{8'000, 12'000};
};

/// The least that a listener can be.
class BareListener {
  public:
    explicit BareListener(const std::string& display) : m_connection(connectTo(display)) {
        const x11::Extensions extensions(m_connection);
        if (!extensions.use({x11::Extension::input})) throw std::runtime_error("no XInput");
        m_opcode = extensions.inputOpcode();
        const struct {
            xcb_input_event_mask_t header;
            std::uint32_t mask;
        } keys{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS};
        xcb_input_xi_select_events(m_connection, m_connection.root(), 1, &keys.header);
        m_connection.roundTrip();
    }

    Times hear() const {
        Times heard;
        while (heard.size() < keysInBlock) {
            pollfd descriptor{m_connection.fileDescriptor(), POLLIN, 0};
            if (poll(&descriptor, 1, std::chrono::milliseconds(patience).count()) != 1)
                throw std::runtime_error("keys were lost on the way to the bare client");
            while (const x11::Event event = m_connection.nextEvent()) {
                if (event.generic(m_opcode) == XCB_INPUT_RAW_KEY_PRESS) heard.push_back(Clock::now());
            }
        }
        return heard;
    }

  private:
    x11::XConnection m_connection;
    std::uint8_t m_opcode = 0;
};

std::vector<double> milliseconds(const Times& from, const Times& to) {
    if (from.size() != to.size())
        throw std::runtime_error(std::to_string(from.size()) + " keys were typed, " +
                                 std::to_string(to.size()) + " have come");
    std::vector<double> ways;
    for (std::size_t i = 0; i < from.size(); ++i)
        ways.push_back(std::chrono::duration<double, std::milli>(to[i] - from[i]).count());
    return ways;
}

/// The program, and what it has recorded.
class Recording {
  public:
    explicit Recording(Backends& backends) {
        // In place of the recorder's own handler, which it calls.
        const auto installed = backends.services().eventMonitor.install([this](const KeyEvent& event) {
            handleKeyEvent(event);
            if (event.kind != KeyEventKind::keyDown || !engineState().recordingMacro) return;
            m_recorded.push_back(Clock::now());
            if (m_recorded.size() == keysInBlock) m_loop.quit();
        });
        if (!installed) throw std::runtime_error(installed.error().message);
    }

    /// The way of each key into the macro.
    std::vector<double> block(QuickTypist& typist) {
        m_recorded.clear();
        toggleRecording();
        pass(std::chrono::milliseconds(500));  // the overlay has come up
        Times sent;
        std::thread hands([&] { sent = typist.type(); });
        QTimer end;
        QObject::connect(&end, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        end.start(patience);
        m_loop.exec();
        hands.join();
        stopRecording();
        pass(std::chrono::milliseconds(500));  // the overlay has gone
        return milliseconds(sent, m_recorded);
    }

    static void pass(std::chrono::milliseconds time) {
        QEventLoop loop;
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
    }

  private:
    QEventLoop m_loop;
    Times m_recorded;
};

std::vector<double> bareBlock(const BareListener& listener, QuickTypist& typist) {
    Times sent;
    std::thread hands([&] { sent = typist.type(); });
    const Times heard = listener.hear();
    hands.join();
    return milliseconds(sent, heard);
}

void measure(const std::string& when, Recording& recording, const std::string& ownDisplay,
             const std::string& bareDisplay) {
    QuickTypist typist(ownDisplay);
    QuickTypist bareTypist(bareDisplay);
    const BareListener listener(bareDisplay);
    std::vector<double> ours;
    std::vector<double> bare;
    const auto append = [](std::vector<double>& all, const std::vector<double>& more) {
        all.insert(all.end(), more.begin(), more.end());
    };
    for (int block = 0; block < blocks; ++block) {
        append(ours, recording.block(typist));
        append(bare, bareBlock(listener, bareTypist));
    }
    constexpr double nearlyAll = 0.99;
    const std::string yardstick = "bare XInput client";
    printRow(
        {"key into the macro, mean, " + when, meanOf(ours), yardstick, meanOf(bare), "ms", "ours <= 0.1"});
    printRow({"key into the macro, 99th percentile, " + when, quantileOf(ours, nearlyAll), yardstick,
              quantileOf(bare, nearlyAll), "ms", "ours <= 0.5"});
}

void enter(const XServer& server, const TemporaryFolder& home) {
    std::filesystem::create_directories(home.file("config/keyrill"));
    std::ofstream(home.file("config/keyrill/keyrill.conf")) << "[Settings]\nnotFirstRun=true\n";
    const std::vector<std::pair<const char*, std::string>> environment{
        {"DISPLAY", server.display()},
        {"HOME", home.path()},
        {"XDG_CONFIG_HOME", home.file("config")},
        {"XDG_CONFIG_DIRS", home.path()},
        {"XDG_RUNTIME_DIR", home.path()},
        {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
        {"XDG_CURRENT_DESKTOP", ""},
        {"WAYLAND_DISPLAY", ""}};
    for (const auto& [name, value] : environment) setenv(name, value.c_str(), 1);
}

}  // namespace

int main(int argc, char** argv) {
    const XServer server;
    const XServer bareServer;
    const TemporaryFolder home;
    enter(server, home);
    const auto session = enterSession("x11");
    if (!session) return reportFailure(session.error());
    const QApplication application(argc, argv);
    const auto backends = Backends::open(session.value());
    if (!backends) return reportFailure(backends.error());
    const Program program(*backends.value());
    Recording::pass(std::chrono::seconds(2));  // the start-up is over
    Recording recording(*backends.value());
    measure("quiet", recording, server.display(), bareServer.display());
    const std::vector<std::string> restless{"sh", "-c", "while :; do :; done"};
    const Child first(restless);
    const Child second(restless);
    measure("beside 2 busy loops", recording, server.display(), bareServer.display());
}
