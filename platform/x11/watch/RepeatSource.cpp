// SPDX-License-Identifier: MIT
#include "platform/x11/watch/RepeatSource.h"

#include <xcb/record.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <cstring>

#include "platform/Sentence.h"
#include "platform/x11/server/Extensions.h"

namespace x11 {

namespace {

/// Categories of replies (RECORD protocol, RecordEnableContext).
constexpr std::uint8_t fromServer = 0;
constexpr std::uint8_t endOfData = 5;

constexpr std::size_t eventSize = 32;

}  // namespace

void RepeatQueue::add(std::uint8_t keycode, bool press, ServerTime time) {
    m_entries.push_back({{keycode, time}, press, press && m_down[keycode]});
    m_down[keycode] = press;
}

bool RepeatQueue::hasAny(const Condition& condition) const {
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [&](const Entry& entry) { return entry.isRepeat && condition(entry.what); });
}

std::vector<KeyRepeat> RepeatQueue::takeBefore(const RawKey& key) {
    const auto later = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return millisecondsAfter(entry.what.time, key.time) > 0;
    });
    const auto mark = std::find_if(m_entries.begin(), later, [&](const Entry& entry) {
        return !entry.isRepeat && entry.press == key.press && entry.what == KeyRepeat{key.keycode, key.time};
    });
    if (mark != later) return takeFirst(static_cast<std::size_t>(mark - m_entries.begin()) + 1);
    // The core event has not been made yet or never will be; only time tells.
    const auto sameTime = std::find_if(m_entries.begin(), later,
                                       [&](const Entry& entry) { return entry.what.time == key.time; });
    return takeFirst(static_cast<std::size_t>(sameTime - m_entries.begin()));
}

std::vector<KeyRepeat> RepeatQueue::takeUpTo(std::uint64_t count) {
    return takeFirst(count > m_taken ? static_cast<std::size_t>(count - m_taken) : 0);
}

std::vector<KeyRepeat> RepeatQueue::takeFirst(std::size_t count) {
    std::vector<KeyRepeat> repeats;
    for (; count > 0; --count) {
        if (m_entries.front().isRepeat) repeats.push_back(m_entries.front().what);
        m_entries.pop_front();
        ++m_taken;
    }
    return repeats;
}

Result<std::unique_ptr<RepeatSource>> RepeatSource::open(const std::string& display) {
    Result<XConnection> control = XConnection::open(display);
    if (!control) return control.error();
    Result<XConnection> data = XConnection::open(display);
    if (!data) return data.error();
    std::unique_ptr<RepeatSource> source(
        new RepeatSource(std::move(control).value(), std::move(data).value()));
    const Result<void> started = source->start();
    if (!started) return started.error();
    return source;
}

RepeatSource::RepeatSource(XConnection control, XConnection data)
    : m_control(std::move(control)), m_data(std::move(data)) {}

RepeatSource::~RepeatSource() {
    if (m_context == 0) return;
    xcb_record_free_context(m_control, m_context);
    xcb_flush(m_control);
}

Result<void> RepeatSource::start() {
    const Error missing{
        sentence("Keys",
                 "Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension."),
        sentence(
            "Keys",
            "A held key is recorded as one press. Switch the extension on in the settings of the X server.")};
    for (const XConnection* connection : {&m_control, &m_data}) {
        if (!Extensions(*connection).has(xcb_record_id)) return missing;
    }
    m_context = xcb_generate_id(m_control);
    const xcb_record_client_spec_t everybody = XCB_RECORD_CS_ALL_CLIENTS;
    xcb_record_range_t range{};
    range.device_events = {XCB_KEY_PRESS, XCB_KEY_RELEASE};
    const auto created = xcb_record_create_context_checked(m_control, m_context, 0, 1, 1, &everybody, &range);
    if (refusalOf(m_control, created)) return missing;
    enable();
    return {};
}

void RepeatSource::enable() {
    m_sequence = xcb_record_enable_context(m_data, m_context).sequence;
    xcb_flush(m_data);
    m_recording = true;
}

void RepeatSource::pause() {
    if (!m_recording) return;
    xcb_record_disable_context(m_control, m_context);
    m_paused = true;
    catchUp();
}

void RepeatSource::resume() {
    if (!m_paused) return;
    m_paused = false;
    // The end of the old recording comes before anything of the new one.
    read();
    m_queue.forgetKeysDown();
    enable();
}

void RepeatSource::read() {
    // Both are told of each new keymap. Before the replies: what is read along with events tells of itself no
    // more.
    while (const Event unused = m_control.nextEvent()) continue;
    while (const Event unused = m_data.nextEvent()) continue;
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    while (m_recording && xcb_poll_for_reply(m_data, m_sequence, &reply, &error) != 0) {
        const XReply<xcb_record_enable_context_reply_t> record(
            static_cast<xcb_record_enable_context_reply_t*>(reply));
        const XReply<xcb_generic_error_t> refused(error);
        m_recording = record != nullptr && record->category != endOfData;
        if (!m_recording || record->category != fromServer) continue;
        const auto length = static_cast<std::size_t>(xcb_record_enable_context_data_length(record.get()));
        take(xcb_record_enable_context_data(record.get()), length);
    }
}

void RepeatSource::take(std::uint8_t* data, std::size_t length) {
    for (std::size_t at = 0; at + eventSize <= length; at += eventSize) {
        xcb_key_press_event_t event{};
        std::memcpy(&event, data + at, sizeof event);
        m_queue.add(event.detail, eventNumber(event.response_type) == XCB_KEY_PRESS, event.time);
    }
    wipe(data, length);
}

void RepeatSource::catchUp() {
    m_control.roundTrip();
    m_control.roundTrip();
    read();
}

}  // namespace x11
