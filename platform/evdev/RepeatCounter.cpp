// SPDX-License-Identifier: MIT
#include "platform/evdev/RepeatCounter.h"

namespace evdev {

void RepeatCounter::press(std::uint8_t keycode, Time time) {
    stop();
    if (m_rule.interval > m_rule.interval.zero()) {
        m_held = Held{keycode, time + m_rule.delay, m_rule.interval};
    }
}

void RepeatCounter::release(std::uint8_t keycode) {
    if (m_held && m_held->keycode == keycode) stop();
}

RepeatCounter::Repeats RepeatCounter::takeBefore(Time time) {
    Repeats repeats;
    for (; m_held && m_held->next < time; m_held->next += m_held->interval) {
        repeats.keycode = m_held->keycode;
        repeats.times.push_back(m_held->next);
    }
    return repeats;
}

std::optional<RepeatCounter::Time> RepeatCounter::nextTime() const {
    return m_held ? std::optional(m_held->next) : std::nullopt;
}

}  // namespace evdev
