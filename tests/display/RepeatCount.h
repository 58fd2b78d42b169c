// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/x11/server/XConnection.h"

/// Counts, by a RECORD context of its own, how often a key has gone down on the core keyboard, whoever gets
/// it.
class RepeatCount {
  public:
    RepeatCount(const std::string& display, std::uint8_t keycode);
    ~RepeatCount();
    RepeatCount(const RepeatCount&) = delete;
    RepeatCount& operator=(const RepeatCount&) = delete;

    /// Presses since the start, repeats among them.
    int presses();

  private:
    x11::XConnection m_control;
    x11::XConnection m_data;
    std::uint8_t m_keycode;
    std::uint32_t m_context;
    unsigned m_sequence = 0;
    int m_presses = 0;
};
