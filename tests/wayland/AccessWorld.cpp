// SPDX-License-Identifier: MIT
#include "wayland/AccessWorld.h"

#include <fcntl.h>
#include <linux/input.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>

#include "compositor/OtherUser.h"
#include "support/Keys.h"

namespace {

constexpr std::uint16_t evdevOffset = 8;

bool isModifier(std::uint8_t keycode) {
    const std::initializer_list<std::uint8_t> modifiers = {xkey::control, xkey::super, xkey::shift,
                                                           xkey::alt};
    return std::find(modifiers.begin(), modifiers.end(), keycode) != modifiers.end();
}

input_event eventNow(std::uint16_t type, std::uint16_t code, std::int32_t value) {
    const auto now = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
    input_event event{};
    event.input_event_sec = now.count() / 1'000'000;
    event.input_event_usec = now.count() % 1'000'000;
    event.type = type;
    event.code = code;
    event.value = value;
    return event;
}

}  // namespace

AccessWorld::AccessWorld() {
    otheruser::giveAway(m_folder.path());
    m_program = std::make_unique<Child>(
        std::vector<std::string>{"/usr/bin/python3", KEYRILL_ACCESS_WORLD, KEYRILL_ACCESS_STANDIN,
                                 KEYRILL_ACCESS_PACKAGING, m_folder.path()},
        Child::Options{.outputFile = m_folder.file("log")});
    const bool isUp =
        eventually([this] { return !contentOf(m_folder.file("answers")).empty(); }, std::chrono::seconds(40));
    if (!isUp) throw std::runtime_error("no system bus: " + contentOf(m_folder.file("log")));
    m_commands.reset(open(m_folder.file("commands").c_str(), O_WRONLY | O_CLOEXEC));
    m_keyboard.reset(open(m_folder.file("event0").c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
}

void AccessWorld::tell(const std::string& command) {
    const std::string line = command + "\n";
    if (write(m_commands.number(), line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        throw std::runtime_error("nobody takes commands");
    }
    ++m_answers;
    awaitAnswers();
}

void AccessWorld::awaitAnswers() {
    const auto answered = [this] {
        const std::string answers = contentOf(m_folder.file("answers"));
        return static_cast<std::size_t>(std::count(answers.begin(), answers.end(), '\n')) >= m_answers;
    };
    if (!eventually(answered, std::chrono::seconds(40))) {
        throw std::runtime_error("not done: " + contentOf(m_folder.file("log")));
    }
}

bool AccessWorld::isOpenFor(pid_t process) const {
    const std::string folder = "/proc/" + std::to_string(process) + "/fd";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::error_code failure;
        if (std::filesystem::read_symlink(entry.path(), failure) == m_folder.file("event0")) return true;
    }
    return false;
}

void AccessWorld::key(std::uint8_t keycode, bool press, pid_t reader) {
    if (!m_keyboard) return;
    const bool isOpen = isOpenFor(reader);
    // What nobody has read before its last reader went is nothing to the next one.
    if (!isOpen && m_down.empty()) {
        std::array<char, 4096> unread{};
        while (read(m_keyboard.number(), unread.data(), unread.size()) > 0) continue;
    }
    press ? void(m_down.insert(keycode)) : void(m_down.erase(keycode));
    if (!isOpen && !isModifier(keycode)) return;
    const auto code = static_cast<std::uint16_t>(keycode - evdevOffset);
    const input_event events[] = {eventNow(EV_KEY, code, press ? 1 : 0), eventNow(EV_SYN, SYN_REPORT, 0)};
    if (write(m_keyboard.number(), events, sizeof events) != sizeof events) {
        throw std::runtime_error("the keyboard is full");
    }
}

void ShownHands::send(std::uint8_t keycode, bool press) {
    m_world.key(keycode, press, m_reader);
    press ? m_hands.press(keycode) : m_hands.release(keycode);
}
