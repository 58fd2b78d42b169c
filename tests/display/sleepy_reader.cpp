// SPDX-License-Identifier: MIT
//
// sleepy_reader FILE MILLISECONDS: a program with a window and the focus that says nothing of itself and
// answers no questions. It sleeps for so long at the first key, and so it does whatever else is waiting. Then
// it looks up what came in the keymap that it finds by then, as toolkits do, and writes it to the file in
// UTF-8. A file beside it, FILE.ready, says that it has the focus.
#include <xkbcommon/xkbcommon-x11.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <utility>

namespace {

struct Keyboard {
    explicit Keyboard(xcb_connection_t* connection)
        : context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES)),
          keymap(xkb_x11_keymap_new_from_device(context, connection,
                                                xkb_x11_get_core_keyboard_device_id(connection),
                                                XKB_KEYMAP_COMPILE_NO_FLAGS)),
          state(xkb_state_new(keymap)) {}
    ~Keyboard() {
        xkb_state_unref(state);
        xkb_keymap_unref(keymap);
        xkb_context_unref(context);
    }
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    std::string typed(const xcb_key_press_event_t& key) const {
        constexpr unsigned groupShift = 13;
        xkb_state_update_mask(state, key.state & 0xFFU, 0, 0, 0, 0, (key.state >> groupShift) & 3U);
        std::array<char, 16> text{};
        xkb_state_key_get_utf8(state, key.detail, text.data(), text.size());
        return text.data();
    }

    xkb_context* context;
    xkb_keymap* keymap;
    xkb_state* state;
};

void openWindow(xcb_connection_t* connection) {
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_EXPOSURE;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK, &mask);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
        const bool isShown = (event->response_type & 0x7F) == XCB_EXPOSE;
        std::free(event);
        if (isShown) break;
    }
    xcb_set_input_focus(connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

}  // namespace

int main(int /*count*/, char** arguments) {
    const std::string file = arguments[1];
    std::chrono::milliseconds nap(std::atoi(arguments[2]));
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr);
    openWindow(connection);
    std::ofstream typed(file, std::ios::binary);
    std::ofstream(file + ".ready") << "ready";
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
        if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
            std::this_thread::sleep_for(std::exchange(nap, {}));
            typed << Keyboard(connection).typed(*reinterpret_cast<xcb_key_press_event_t*>(event))
                  << std::flush;
        }
        std::free(event);
    }
    return 0;
}
