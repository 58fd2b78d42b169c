// SPDX-License-Identifier: MIT
#include "platform/x11/watch/StopLimit.h"

#include <poll.h>

namespace x11 {

StopLimit::~StopLimit() {
    if (!m_thread.joinable()) return;
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void StopLimit::add(const KeyPlace& place) {
    const std::lock_guard lock(m_mutex);
    m_places.insert(place);
    if (!m_thread.joinable()) m_thread = std::thread([this] { watch(); });
    m_changed.notify_one();
}

void StopLimit::remove(const KeyPlace& place) {
    const std::lock_guard lock(m_mutex);
    m_places.erase(place);
}

void StopLimit::watch() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ends || !m_places.empty(); });
        const unsigned reads = m_reads;
        const bool wasUnread = isUnread();
        if (m_changed.wait_for(lock, betweenLooks, [this] { return m_ends; })) return;
        if (wasUnread && isUnread() && reads == m_reads) setGoing();
    }
}

/// Whether something lies there that the program has not taken.
bool StopLimit::isUnread() const {
    pollfd descriptor{m_connection.fileDescriptor(), POLLIN, 0};
    return poll(&descriptor, 1, 0) > 0;
}

/// The press that it was stopped for is lost: more likely than not it is the repeat of a held key.
void StopLimit::setGoing() {
    for (const KeyPlace& place : m_places) {
        xcb_ungrab_key(m_connection, place.keycode, m_connection.root(), place.modifiers);
    }
    m_places.clear();
    xcb_allow_events(m_connection, XCB_ALLOW_ASYNC_KEYBOARD, XCB_CURRENT_TIME);
    xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

}  // namespace x11
