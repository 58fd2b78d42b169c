// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/x11/server/XConnection.h"

/// A program that is typed into: its window has the focus, and a thread of its own looks at the clock as soon
/// as a key press has come.
class Receiver {
  public:
    using Clock = std::chrono::steady_clock;
    struct Press {
        std::uint8_t keycode;  ///< of X
        Clock::time_point at;
    };

    /// Returns with the focus on its window.
    explicit Receiver(const std::string& display);
    ~Receiver();
    Receiver(const Receiver&) = delete;
    Receiver& operator=(const Receiver&) = delete;

    /// Those of a key so far, oldest first.
    std::vector<Clock::time_point> presses(std::uint8_t keycode) const;
    std::size_t count(std::uint8_t keycode) const { return presses(keycode).size(); }
    void clear();

  private:
    void takeFocus() const;
    void read();

    x11::XConnection m_connection;
    xcb_window_t m_window = 0;
    mutable std::mutex m_mutex;
    std::vector<Press> m_presses;
    std::atomic<bool> m_ends = false;
    std::thread m_reader;
};
