// SPDX-License-Identifier: MIT
#include "compositor/KWinHands.h"

#include <fake-input-client-protocol.h>
#include <linux/input-event-codes.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wayland-client.h>

#include <array>
#include <stdexcept>
#include <string_view>

#include "compositor/OtherUser.h"

namespace {

constexpr std::uint32_t evdevOffset = 8;
constexpr std::uint32_t withKeys = 4;

/// What goes to the process of the hands; it answers each with one byte once KWin has it, and the first time
/// when it is ready.
struct Act {
    enum class Kind : std::uint8_t { key, click };

    Kind kind = Kind::key;
    std::uint8_t keycode = 0;
    bool press = false;
    /// Where the click is.
    std::uint32_t x = 0;
    std::uint32_t y = 0;
};

void click(org_kde_kwin_fake_input* input, const Act& act) {
    org_kde_kwin_fake_input_pointer_motion_absolute(input, wl_fixed_from_int(static_cast<int>(act.x)),
                                                    wl_fixed_from_int(static_cast<int>(act.y)));
    for (const std::uint32_t state : {WL_POINTER_BUTTON_STATE_PRESSED, WL_POINTER_BUTTON_STATE_RELEASED})
        org_kde_kwin_fake_input_button(input, BTN_LEFT, state);
}

void added(void* input, wl_registry* registry, std::uint32_t name, const char* interface,
           std::uint32_t /*version*/) {
    const auto& wanted = org_kde_kwin_fake_input_interface;
    if (std::string_view(wanted.name) != interface) return;
    *static_cast<org_kde_kwin_fake_input**>(input) =
        static_cast<org_kde_kwin_fake_input*>(wl_registry_bind(registry, name, &wanted, withKeys));
}

/// The life of the process: it returns when something is missing, or nobody wants hands any more.
void haveHands(const char* socket, int pipe) {
    wl_display* const display = wl_display_connect(socket);
    if (display == nullptr) return;
    static constexpr wl_registry_listener listener{
        .global = added, .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    org_kde_kwin_fake_input* input = nullptr;
    wl_registry_add_listener(wl_display_get_registry(display), &listener, static_cast<void*>(&input));
    wl_display_roundtrip(display);
    if (input == nullptr) return;
    org_kde_kwin_fake_input_authenticate(input, "test", "to press keys as a person does");
    Act act{};
    while (wl_display_roundtrip(display) >= 0 && write(pipe, "+", 1) == 1 &&
           read(pipe, &act, sizeof act) == sizeof act) {
        if (act.kind == Act::Kind::click) {
            click(input, act);
        } else {
            org_kde_kwin_fake_input_keyboard_key(input, act.keycode - evdevOffset, act.press ? 1 : 0);
        }
    }
}

/// Whatever else the test has open would not be closed when the test closes it.
void keepOnly(unsigned descriptor) {
    constexpr unsigned first = STDERR_FILENO + 1;
    if (descriptor > first) close_range(first, descriptor - 1, 0);
    close_range(descriptor + 1, ~0U, 0);
}

}  // namespace

KWinHands::KWinHands(const std::string& socket) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::runtime_error("no pipe for the hands");
    }
    m_pipe = Descriptor(ends[0]);
    Descriptor other(ends[1]);
    m_process = fork();
    if (m_process == 0) {
        otheruser::become();
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        keepOnly(static_cast<unsigned>(ends[1]));
        haveHands(socket.c_str(), ends[1]);
        _exit(0);
    }
    // Else the end of the process would not be told.
    other.reset();
    awaitAnswer();
}

KWinHands::~KWinHands() {
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
}

void KWinHands::send(std::uint8_t keycode, bool press) {
    const Act act{.kind = Act::Kind::key, .keycode = keycode, .press = press};
    pass(&act, sizeof act);
}

void KWinHands::click(unsigned x, unsigned y) {
    const Act act{.kind = Act::Kind::click, .x = x, .y = y};
    pass(&act, sizeof act);
}

void KWinHands::pass(const void* act, std::size_t size) {
    if (write(m_pipe.number(), act, size) != static_cast<ssize_t>(size))
        throw std::runtime_error("the hands have gone");
    awaitAnswer();
}

void KWinHands::awaitAnswer() {
    char answer = 0;
    if (read(m_pipe.number(), &answer, 1) != 1) throw std::runtime_error("KWin takes no keys of programs");
}
