// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/X11Clipboard.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/Sentence.h"
#include "platform/x11/clipboard/ClipboardKeeper.h"
#include "platform/x11/clipboard/SelectionOwner.h"
#include "platform/x11/clipboard/SelectionReader.h"

namespace x11 {

namespace {
constexpr std::chrono::seconds longestFetch{2};
constexpr std::chrono::milliseconds betweenLooks{2};
}  // namespace

/// Two connections: one owns and serves, one asks.
struct X11Clipboard::Parts {
    Parts(XConnection serving, XConnection asking) : server(std::move(serving)), client(std::move(asking)) {}
    ~Parts() {
        ends = true;
        wake();
        thread.join();
    }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    XConnection server;
    XConnection client;
    SelectionReader reader{client};
    std::mutex lock;
    SelectionOwner owner{server};  ///< under the lock
    std::atomic<bool> ends{false};
    Descriptor wakeup{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    std::thread thread{[this] { serve(); }};

    void wake() const {
        const std::uint64_t one = 1;
        [[maybe_unused]] const ssize_t written = ::write(wakeup.number(), &one, sizeof one);
    }

    void serve() {
        while (!ends && !server.isBroken()) {
            while (const Event event = server.nextEvent()) {
                const std::lock_guard guard(lock);
                owner.handle(event);
            }
            xcb_flush(server);
            std::array<pollfd, 2> entries{
                {{server.fileDescriptor(), POLLIN, 0}, {wakeup.number(), POLLIN, 0}}};
            poll(entries.data(), entries.size(), -1);
            std::uint64_t count = 0;
            [[maybe_unused]] const ssize_t size = ::read(wakeup.number(), &count, sizeof count);
        }
    }

    bool isOwner() {
        const std::lock_guard guard(lock);
        return owner.isOwner();
    }
    bool isSending() {
        const std::lock_guard guard(lock);
        return owner.isSending();
    }
};

X11Clipboard::X11Clipboard(std::string display) : m_display(std::move(display)) {}
X11Clipboard::~X11Clipboard() = default;

Result<X11Clipboard::Parts*> X11Clipboard::parts() {
    if (!m_parts) {
        auto server = XConnection::open(m_display);
        if (!server) return server.error();
        auto client = XConnection::open(m_display);
        if (!client) return client.error();
        m_parts = std::make_unique<Parts>(std::move(server).value(), std::move(client).value());
    }
    return m_parts.get();
}

Result<void> X11Clipboard::set(std::string_view text) {
    const auto opened = parts();
    if (!opened) return opened.error();
    Parts& parts = *opened.value();
    const xcb_timestamp_t time = parts.reader.serverTime();
    bool isOwned = false;
    {
        const std::lock_guard guard(parts.lock);
        isOwned = parts.owner.own(std::string(text), time);
    }
    // The answer may have brought events along, which no poll will tell of.
    parts.wake();
    if (!isOwned) return Error{sentence("Clipboard", "The clipboard is held by another program."), ""};
    return {};
}

Result<std::string> X11Clipboard::text() {
    const auto opened = parts();
    if (!opened) return opened.error();
    {
        const std::lock_guard guard(opened.value()->lock);
        if (opened.value()->owner.isOwner()) return opened.value()->owner.text();
    }
    return opened.value()->reader.text(m_isStopped);
}

bool X11Clipboard::handOver() { return m_parts && m_parts->isOwner() && m_parts->reader.handOver(); }

void X11Clipboard::leave() {
    if (!m_parts || !m_parts->isOwner()) return;
    std::string text;
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    {
        const std::lock_guard guard(m_parts->lock);
        text = m_parts->owner.text();
        time = m_parts->owner.time();
    }
    keepInBackground(m_display, text, time);
    // Who has begun to fetch a long text from here shall get all of it.
    const auto end = std::chrono::steady_clock::now() + longestFetch;
    while (m_parts->isSending() && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(betweenLooks);
    }
}

}  // namespace x11
