// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "platform/Wiping.h"

namespace x11 {

/// A kind of core event: its number, and how it is laid out.
template <typename Body>
struct EventKind {
    std::uint8_t number;
};
inline constexpr EventKind<xcb_key_press_event_t> keyPress{XCB_KEY_PRESS};
inline constexpr EventKind<xcb_key_release_event_t> keyRelease{XCB_KEY_RELEASE};
inline constexpr EventKind<xcb_destroy_notify_event_t> destroyNotify{XCB_DESTROY_NOTIFY};
inline constexpr EventKind<xcb_property_notify_event_t> propertyNotify{XCB_PROPERTY_NOTIFY};
inline constexpr EventKind<xcb_selection_clear_event_t> selectionClear{XCB_SELECTION_CLEAR};
inline constexpr EventKind<xcb_selection_request_event_t> selectionRequest{XCB_SELECTION_REQUEST};
inline constexpr EventKind<xcb_selection_notify_event_t> selectionNotify{XCB_SELECTION_NOTIFY};
inline constexpr EventKind<xcb_client_message_event_t> clientMessage{XCB_CLIENT_MESSAGE};
inline constexpr EventKind<xcb_mapping_notify_event_t> mappingNotify{XCB_MAPPING_NOTIFY};

/// What number an event has, without the bit that marks one which another client has sent; 0 is an error.
constexpr std::uint8_t eventNumber(std::uint8_t responseType) {
    constexpr std::uint8_t sentByClient = 0x80;
    return static_cast<std::uint8_t>(responseType & ~sentByClient);
}

/// An event that a connection was sent, or none. It ends wiped, because many tell what the user types.
class Event {
  public:
    Event() = default;
    /// Takes over what xcb gave.
    explicit Event(xcb_generic_event_t* event) : m_event(event) {}

    explicit operator bool() const { return m_event != nullptr; }

    bool is(std::uint8_t number) const { return m_event && eventNumber(m_event->response_type) == number; }
    template <typename Body>
    bool is(EventKind<Body> kind) const {
        return is(kind.number);
    }

    /// The event as one of that kind; null if it is of another. Valid as long as this is.
    template <typename Body>
    const Body* as(EventKind<Body> kind) const {
        return is(kind) ? &body<Body>() : nullptr;
    }

    /// The number within its extension of a generic event (XInput 2); -1 if the event is none of that one.
    int generic(std::uint8_t extensionOpcode) const {
        if (!is(XCB_GE_GENERIC)) return none;
        const auto& event = body<xcb_ge_generic_event_t>();
        return event.extension == extensionOpcode ? event.event_type : none;
    }

    /// XKB sends all its events with one number, the extension's first; which one it is stands where others
    /// have a detail. -1 if the event is none of XKB's.
    int keyboard(std::uint8_t firstNumber) const { return is(firstNumber) ? m_event->pad0 : none; }

    /// The event as it is laid out once it is known which one it is; there must be one.
    template <typename Body>
    const Body& body() const {
        return reinterpret_cast<const Body&>(*m_event);
    }

  private:
    static constexpr int none = -1;

    struct WipeAndFree {
        void operator()(xcb_generic_event_t* event) const {
            std::size_t size = sizeof *event;
            if (eventNumber(event->response_type) == XCB_GE_GENERIC) {
                constexpr std::size_t unit = 4;
                size += reinterpret_cast<const xcb_ge_generic_event_t*>(event)->length * unit;
            }
            wipe(event, size);
            std::free(event);
        }
    };

    std::unique_ptr<xcb_generic_event_t, WipeAndFree> m_event;
};

}  // namespace x11
