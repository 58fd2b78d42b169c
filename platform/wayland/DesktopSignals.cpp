// SPDX-License-Identifier: MIT
#include "platform/wayland/DesktopSignals.h"

#include <utility>

#include "platform/evdev/EvdevEventMonitor.h"

namespace wayland {

DesktopSignals::DesktopSignals(HotKeyBinder& bindings, evdev::EvdevEventMonitor& monitor,
                               std::function<std::optional<std::uint32_t>()> layout)
    : m_bindings(bindings), m_monitor(monitor), m_layout(std::move(layout)) {}

void DesktopSignals::dispatch() {
    while (const auto event = m_bindings.nextEvent()) pass(*event);
}

void DesktopSignals::pass(const HotKeyBinder::Event& event) {
    const KeyGrab grab{.keycode = event.keycode, .modifiers = event.modifiers};
    switch (event.kind) {
        case HotKeyBinder::Event::Kind::press:
            return m_monitor.desktopTells(grab, true);
        case HotKeyBinder::Event::Kind::release:
            return m_monitor.desktopTells(grab, false);
        case HotKeyBinder::Event::Kind::answer:
            return m_monitor.desktopAnswers(grab, event.answer);
        case HotKeyBinder::Event::Kind::reload:
            return m_monitor.desktopForgot();
        case HotKeyBinder::Event::Kind::layout:
            // Of several switches that are told of the last one counts.
            if (const auto layout = m_layout()) m_monitor.setLayout(*layout);
            return;
    }
}

}  // namespace wayland
