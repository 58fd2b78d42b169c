// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/evdev/DeviceOpener.h"
#include "platform/evdev/EventReader.h"
#include "platform/evdev/FolderWatch.h"
#include "platform/evdev/devices/InputFolders.h"
#include "platform/run/Wakeups.h"

namespace evdev {

/// Who hears of keyboards. Each has a number of its own, 16 or more.
class KeyboardListener {
  public:
    struct NewKeyboard {
        std::uint16_t number = 0;
        KeycodeSet down;
        LockLights lights;
    };

    virtual ~KeyboardListener() = default;

    /// Keyboards that are read from now on, one or more.
    virtual void keyboardsCame(const std::vector<NewKeyboard>& keyboards) = 0;
    virtual void key(std::uint16_t keyboard, const DeviceKey& key) = 0;
    /// It is gone, or may not be read any more; nothing more comes of it.
    virtual void keyboardGone(std::uint16_t keyboard) = 0;
};

/// The keyboards that are there: opened together, joined by those that are plugged in, read in one order,
/// that of time. Between close() and open() nothing is open, and nothing is heard.
class Keyboards {
  public:
    struct Places {
        DeviceOpener& opener;
        const DeviceCalls& calls;
        InputFolders folders;
    };

    /// All that is referred to outlives this.
    Keyboards(Places places, Wakeups& wakeups, KeyboardListener& listener);
    ~Keyboards();
    Keyboards(const Keyboards&) = delete;
    Keyboards& operator=(const Keyboards&) = delete;

    /// Has them opened. Where that has failed, or the user was not to be asked and now may be, it is tried
    /// again.
    void open(DeviceOpener::Question question);
    void close();

    /// Whether they have been opened and may still be read; there need not be any.
    bool isOpen() const { return m_isOpen; }
    /// Why they are not open, or not all of them; empty if all is well. Stays until the next open().
    const std::optional<Error>& problem() const { return m_problem; }

    /// Tells the listener all that has come, without waiting.
    void read();

  private:
    void ask(DeviceOpener::Question question);
    void answered(Result<std::vector<OpenedDevice>> answer);
    KeyboardListener::NewKeyboard add(OpenedDevice device);
    std::vector<std::uint16_t> readKeys();
    void remove(std::uint16_t number);
    void lose(const Error& why);
    void followFolder();

    Places m_places;
    Wakeups& m_wakeups;
    KeyboardListener& m_listener;
    std::map<std::uint16_t, EventReader> m_readers;
    std::uint16_t m_lastNumber = 15;
    std::optional<FolderWatch> m_folder;
    std::optional<Error> m_problem;
    /// The question that is open.
    std::optional<DeviceOpener::Question> m_asked;
    bool m_isOpen = false;
    /// Something was plugged in while a question was open.
    bool m_asksAgain = false;
};

}  // namespace evdev
