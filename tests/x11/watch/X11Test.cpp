// SPDX-License-Identifier: MIT
#include "x11/watch/X11Test.h"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <sstream>

#include "platform/Modifiers.h"

std::string wordsFor(const KeyEvent& event) {
    std::ostringstream line;
    const auto mask = [&]() -> std::ostream& { return line << " 0x" << std::hex << event.modifiers; };
    const auto press = [&](const char* word) {
        line << word << ' ' << event.keyCode;
        if (event.character > ' ' && event.character <= '~') {
            line << ' ' << event.character;
        } else if (event.character != 0) {
            line << " #" << static_cast<int>(event.character);
        }
        mask();
    };
    switch (event.kind) {
        case KeyEventKind::keyDown:
            press("down");
            break;
        case KeyEventKind::autoRepeat:
            press("repeat");
            break;
        case KeyEventKind::keyUp:
            line << "up " << event.keyCode;
            break;
        case KeyEventKind::modifierKeyDown:
            line << "modifier down " << event.keyCode;
            break;
        case KeyEventKind::modifierKeyUp:
            line << "modifier up " << event.keyCode;
            break;
        case KeyEventKind::modifiersChanged:
            line << "mask";
            mask();
            break;
    }
    return line.str();
}

X11Test::X11Test() {
    EXPECT_TRUE(m_world.monitor().install([this](const KeyEvent& event) { note(wordsFor(event)); }));
    m_world.hotKeys().install([this](HotKeyId id) { note("pressed " + std::to_string(id)); },
                              [this](HotKeyId id) { note("released " + std::to_string(id)); });
    m_world.settle();
    m_log.clear();
}

void X11Test::note(const std::string& line) {
    m_log.push_back(line);
    if (onLine) onLine(line);
}

X11Test::Log X11Test::delivered() {
    m_world.settle();
    return std::exchange(m_log, {});
}

X11Test::Log X11Test::delivered(const std::string& beginning) {
    Log log = delivered();
    std::erase_if(log, [&](const std::string& line) { return !line.starts_with(beginning); });
    return log;
}

bool X11Test::loopUntil(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    pollfd descriptor{m_world.manager().fileDescriptor(), POLLIN, 0};
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        if (poll(&descriptor, 1, 1) > 0) m_world.manager().dispatch();
    }
    return true;
}

int X11Test::count(const std::string& line) const {
    return static_cast<int>(std::count(m_log.begin(), m_log.end(), line));
}

HotKeyState X11Test::request(HotKeyId id, const std::string& name, std::uint32_t keyCode) {
    m_world.hotKeys().request({.id = id,
                               .name = name,
                               .keyCode = keyCode,
                               .modifiers = modifier::control | modifier::command,
                               .cancelsPlayback = name == "stop"});
    return m_world.hotKeys().state(id);
}
