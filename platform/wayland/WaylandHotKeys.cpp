// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandHotKeys.h"

#include <sys/epoll.h>
#include <sys/eventfd.h>

#include <utility>

namespace wayland {

namespace {

/// Whether a key types a symbol of that name in any layout, with or without Shift.
bool types(const Keymap& keymap, std::uint8_t keycode, const std::string& name) {
    const xkb_keysym_t symbol = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_CASE_INSENSITIVE);
    if (symbol == XKB_KEY_NoSymbol) return false;
    const auto layouts = xkb_keymap_num_layouts(keymap.get());
    for (xkb_layout_index_t layout = 0; layout < layouts; ++layout) {
        for (const xkb_mod_mask_t modifiers : {xkb_mod_mask_t(0), keymap.masks().shift}) {
            const xkb_keysym_t typed = keymap.symbol(keycode, modifiers, layout);
            if (xkb_keysym_to_lower(typed) == xkb_keysym_to_lower(symbol)) return true;
        }
    }
    return false;
}

}  // namespace

Result<std::unique_ptr<WaylandHotKeys>> WaylandHotKeys::open(SeatKeymap& seat) {
    auto bindings = SwayBindings::open([&seat](std::uint8_t keycode, const std::string& symbol) {
        return types(seat.keymap(), keycode, symbol);
    });
    if (!bindings) return bindings.error();
    return std::unique_ptr<WaylandHotKeys>(new WaylandHotKeys(std::move(bindings).value(), seat));
}

WaylandHotKeys::WaylandHotKeys(std::unique_ptr<SwayBindings> bindings, SeatKeymap& seat)
    : m_bindings(std::move(bindings)),
      m_seat(seat),
      m_keyboard(copyOf(seat), XkbComponents()),
      m_table(std::make_unique<HotKeyTable>(*m_bindings, m_keyboard)),
      m_wakeup(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_poll(epoll_create1(EPOLL_CLOEXEC)) {
    epoll_event readable{};
    readable.events = EPOLLIN;
    epoll_ctl(m_poll.number(), EPOLL_CTL_ADD, m_bindings->fileDescriptor(), &readable);
    epoll_ctl(m_poll.number(), EPOLL_CTL_ADD, m_wakeup.number(), &readable);
    m_seat.observe([this] {
        m_keyboard.replaceKeymap(copyOf(m_seat));
        m_table->followKeymap();
    });
}

WaylandHotKeys::~WaylandHotKeys() { m_seat.observe({}); }

std::unique_ptr<Keymap> WaylandHotKeys::copyOf(const SeatKeymap& seat) {
    return std::make_unique<Keymap>(XkbKeymapPointer(xkb_keymap_ref(seat.keymap().get())));
}

void WaylandHotKeys::install(Handler pressed, Handler released) {
    m_pressed = std::move(pressed);
    m_released = std::move(released);
}

void WaylandHotKeys::request(const HotKeyRequest& request) {
    m_requests[request.id] = request;
    m_table->request(request);
}

void WaylandHotKeys::withdraw(HotKeyId id) {
    m_requests.erase(id);
    m_table->withdraw(id);
}

void WaylandHotKeys::drain() {
    while (const auto event = m_bindings->nextEvent()) take(*event);
}

void WaylandHotKeys::take(const SwayBindings::Event& event) {
    if (event.kind == SwayBindings::Event::Kind::reload) return bindAgain();
    const auto id = m_table->find(event.keycode, event.modifiers);
    if (!id) return;
    if (event.kind == SwayBindings::Event::Kind::press) {
        if (m_down.insert(*id).second) takePress(*id);
    } else if (m_down.erase(*id) != 0) {
        m_changes.push_back({*id, false});
    }
}

/// A stop takes back what was to be played and has not begun. It is one too where hot keys are withheld, as
/// while a script asks something.
void WaylandHotKeys::takePress(HotKeyId id) {
    if (m_table->cancelsPlayback(id)) {
        m_isStopped = true;
        std::erase_if(m_changes, [this](const Change& change) {
            return change.isPress && m_table->startsPlayback(change.id);
        });
    }
    if (!m_isWithheld) m_changes.push_back({id, true});
}

/// In the order of the ids, as at the start: of two with one combination the first keeps it.
void WaylandHotKeys::bindAgain() {
    m_down.clear();
    for (const auto& [id, request] : m_requests) m_table->request(request);
}

void WaylandHotKeys::runEnds() {
    m_isRunning = false;
    if (!m_changes.empty()) wake();
}

void WaylandHotKeys::wake() const { eventfd_write(m_wakeup.number(), 1); }

/// A handler may run a script, which drains, and may come here again by an event loop of its own.
void WaylandHotKeys::dispatch() {
    eventfd_t count = 0;
    static_cast<void>(eventfd_read(m_wakeup.number(), &count));
    drain();
    if (m_isDelivering || m_isRunning) return;
    m_isDelivering = true;
    while (!m_changes.empty()) {
        const Change change = m_changes.front();
        m_changes.pop_front();
        deliver(change);
    }
    m_isDelivering = false;
}

void WaylandHotKeys::deliver(const Change& change) {
    // A copy: the handler may be replaced from within.
    const Handler handler = change.isPress ? m_pressed : m_released;
    if (handler) handler(change.id);
}

}  // namespace wayland
