// SPDX-License-Identifier: MIT
#include "platform/x11/watch/RawKeySource.h"

#include <xcb/xinput.h>
#include <xkbcommon/xkbcommon-x11.h>

#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/SlaveKeyboards.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

constexpr std::uint16_t watchedKeyboardEvents =
    XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY |
    XCB_XKB_EVENT_TYPE_CONTROLS_NOTIFY;
constexpr std::uint16_t allMapParts = 0xFF;

/// As a request has it.
struct Selection {
    xcb_input_event_mask_t header;
    std::uint32_t mask;
};

}  // namespace

Result<std::unique_ptr<RawKeySource>> RawKeySource::open(const std::string& display) {
    Result<XConnection> connection = XConnection::open(display);
    if (!connection) return connection.error();
    std::unique_ptr<RawKeySource> source(new RawKeySource(std::move(connection).value()));
    const Result<void> done = source->setUp();
    if (!done) return done.error();
    return source;
}

Result<void> RawKeySource::setUp() {
    const Extensions extensions(m_connection);
    Result<> usable = extensions.use({Extension::input, Extension::keyboard});
    if (!usable) return usable;
    m_inputOpcode = extensions.inputOpcode();
    m_keyboardEvent = extensions.firstKeyboardEvent();
    m_xtestMark = xtestMark(m_connection);
    selectInputEvents();
    selectKeyboardEvents();
    // Its answer comes once the server has worked off what was asked before.
    noteRepeatDelay();
    return {};
}

void RawKeySource::selectInputEvents() const {
    const Selection keys{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                         XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE};
    const Selection devices{{XCB_INPUT_DEVICE_ALL, 1}, XCB_INPUT_XI_EVENT_MASK_HIERARCHY};
    xcb_input_xi_select_events(m_connection, m_connection.root(), 1, &keys.header);
    xcb_input_xi_select_events(m_connection, m_connection.root(), 1, &devices.header);
}

void RawKeySource::selectKeyboardEvents() const {
    xcb_xkb_select_events(m_connection, XCB_XKB_ID_USE_CORE_KBD, watchedKeyboardEvents, 0,
                          watchedKeyboardEvents, allMapParts, allMapParts, nullptr);
}

void RawKeySource::followHoldOf(xcb_window_t window) {
    if (m_followed != XCB_WINDOW_NONE) selectHoldEvents(0);
    m_followed = window;
    if (m_followed != XCB_WINDOW_NONE)
        selectHoldEvents(XCB_INPUT_XI_EVENT_MASK_FOCUS_IN | XCB_INPUT_XI_EVENT_MASK_FOCUS_OUT);
    xcb_flush(m_connection);
}

void RawKeySource::selectHoldEvents(std::uint32_t mask) const {
    const Selection selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(m_connection, m_followed, 1, &selection.header);
}

bool RawKeySource::read() {
    const std::size_t before = m_events.size();
    while (const Event event = m_connection.nextEvent()) decode(event);
    return m_events.size() != before;
}

void RawKeySource::catchUp() {
    m_connection.roundTrip();
    read();
}

std::vector<std::uint8_t> RawKeySource::keysDown() const {
    const auto reply = replyTo(m_connection, xcb_query_keymap(m_connection), xcb_query_keymap_reply);
    std::vector<std::uint8_t> keycodes;
    for (unsigned keycode = 8; reply && keycode < 256; ++keycode) {
        const bool down = (reply->keys[keycode / 8] >> (keycode % 8) & 1) != 0;
        if (down) keycodes.push_back(static_cast<std::uint8_t>(keycode));
    }
    return keycodes;
}

void RawKeySource::decode(const Event& event) {
    switch (event.generic(m_inputOpcode)) {
        case XCB_INPUT_RAW_KEY_PRESS:
            return decodeKey(event, true);
        case XCB_INPUT_RAW_KEY_RELEASE:
            return decodeKey(event, false);
        case XCB_INPUT_FOCUS_IN:
            return decodeFocus(event, true);
        case XCB_INPUT_FOCUS_OUT:
            return decodeFocus(event, false);
        case XCB_INPUT_HIERARCHY:
            return decodeHierarchy(event);
        default:
            break;
    }
    switch (event.keyboard(m_keyboardEvent)) {
        case XCB_XKB_NEW_KEYBOARD_NOTIFY:
        case XCB_XKB_MAP_NOTIFY:
            m_events.emplace_back(KeymapTouched{});
            break;
        case XCB_XKB_CONTROLS_NOTIFY:
            noteRepeatDelay();
            break;
        case XCB_XKB_STATE_NOTIFY:
            decodeState(event);
            break;
        default:
            break;
    }
}

void RawKeySource::decodeKey(const Event& event, bool press) {
    const auto& key = event.body<xcb_input_raw_key_press_event_t>();
    // Repeats come from RECORD, which has them for all servers.
    if ((key.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0 || key.detail > 255) return;
    m_events.emplace_back(RawKey{.keycode = static_cast<std::uint8_t>(key.detail),
                                 .press = press,
                                 .source = key.sourceid,
                                 .synthetic = isSynthetic(key.sourceid),
                                 .time = key.time});
}

/// A grab moves the focus in words, which no other move of it is (XInput 2, FocusIn).
void RawKeySource::decodeFocus(const Event& event, bool in) {
    const auto& focus = event.body<xcb_input_focus_in_event_t>();
    const auto mode = in ? XCB_INPUT_NOTIFY_MODE_GRAB : XCB_INPUT_NOTIFY_MODE_UNGRAB;
    if (focus.event == m_followed && focus.mode == mode) m_events.emplace_back(WindowHold{in});
}

void RawKeySource::decodeHierarchy(const Event& event) {
    constexpr std::uint32_t gone = XCB_INPUT_HIERARCHY_MASK_SLAVE_REMOVED |
                                   XCB_INPUT_HIERARCHY_MASK_MASTER_REMOVED |
                                   XCB_INPUT_HIERARCHY_MASK_DEVICE_DISABLED;
    const auto& hierarchy = event.body<xcb_input_hierarchy_event_t>();
    m_synthetic.clear();
    const xcb_input_hierarchy_info_t* infos = xcb_input_hierarchy_infos(&hierarchy);
    for (int i = 0; i < xcb_input_hierarchy_infos_length(&hierarchy); ++i) {
        if ((infos[i].flags & gone) != 0) m_events.emplace_back(KeyboardGone{infos[i].deviceid});
    }
}

void RawKeySource::decodeState(const Event& event) {
    const auto& state = event.body<xcb_xkb_state_notify_event_t>();
    m_events.emplace_back(StateChange{.components = componentsOf(state),
                                      .keycode = state.keycode,
                                      .press = state.eventType == XCB_KEY_PRESS});
}

void RawKeySource::noteRepeatDelay() {
    const auto controls = replyTo(m_connection, xcb_xkb_get_controls(m_connection, XCB_XKB_ID_USE_CORE_KBD),
                                  xcb_xkb_get_controls_reply);
    if (controls) m_events.emplace_back(RepeatDelay{controls->repeatDelay});
}

bool RawKeySource::isSynthetic(std::uint16_t source) {
    const auto known = m_synthetic.find(source);
    if (known != m_synthetic.end()) return known->second;
    const bool synthetic = isXtest(m_connection, source, m_xtestMark);
    m_synthetic.emplace(source, synthetic);
    return synthetic;
}

}  // namespace x11
