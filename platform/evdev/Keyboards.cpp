// SPDX-License-Identifier: MIT
#include "platform/evdev/Keyboards.h"

#include <algorithm>
#include <utility>

#include "platform/EventSource.h"
#include "platform/Sentence.h"
#include "platform/evdev/devices/KeyboardList.h"

namespace evdev {

namespace {

using KeyQueues = std::map<std::uint16_t, WipedQueue<DeviceKey>>;

Error permissionEnded() {
    return {sentence("Keyboards", "The keyboard can no longer be read: the permission has ended."),
            sentence("Keyboards", "Another user's session may be in front, or the screen is locked.")};
}

/// The one with the earliest key, which must not be empty.
KeyQueues::value_type& earliest(KeyQueues& queues) {
    return *std::min_element(queues.begin(), queues.end(), [](const auto& a, const auto& b) {
        return a.second.front().microseconds < b.second.front().microseconds;
    });
}

}  // namespace

Keyboards::Keyboards(Places places, Wakeups& wakeups, KeyboardListener& listener)
    : m_places(std::move(places)), m_wakeups(wakeups), m_listener(listener) {
    if (EventSource* source = m_places.opener.source()) m_wakeups.watch(source->fileDescriptor());
    m_places.opener.whenLost([this](const Error& why) { lose(why); });
}

Keyboards::~Keyboards() {
    close();
    m_places.opener.whenLost({});
    if (EventSource* source = m_places.opener.source()) m_wakeups.unwatch(source->fileDescriptor());
}

void Keyboards::open(DeviceOpener::Question question) {
    if (!m_folder) {
        m_folder.emplace(m_places.folders.devices);
        m_wakeups.watch(m_folder->fileDescriptor());
    }
    const bool mayAskNow = question == DeviceOpener::Question::allowed;
    const bool isWaiting = m_asked && (*m_asked == question || !mayAskNow);
    if (isWaiting || (m_isOpen && !m_problem)) return;
    // The answer to a question that the user was not to hear of is none of his.
    if (mayAskNow && !m_isOpen) m_problem.reset();
    ask(question);
}

void Keyboards::close() {
    m_asked.reset();
    m_asksAgain = false;
    m_isOpen = false;
    m_problem.reset();
    for (const auto& [number, reader] : m_readers) m_wakeups.unwatch(reader.fileDescriptor());
    m_readers.clear();
    if (!m_folder) return;
    m_wakeups.unwatch(m_folder->fileDescriptor());
    m_folder.reset();
    m_places.opener.close();
}

void Keyboards::ask(DeviceOpener::Question question) {
    std::set<std::string> held;
    for (const auto& [number, reader] : m_readers) held.insert(reader.name());
    m_asked = question;
    m_places.opener.open(held, question,
                         [this](Result<std::vector<OpenedDevice>> answer) { answered(std::move(answer)); });
}

void Keyboards::answered(Result<std::vector<OpenedDevice>> answer) {
    m_asked.reset();
    if (!answer) {
        // Who had some and has none any more was not refused a first time.
        m_problem = m_isOpen && m_readers.empty() ? permissionEnded() : answer.error();
        m_isOpen = !m_readers.empty();
        return;
    }
    m_problem.reset();
    m_isOpen = true;
    std::vector<KeyboardListener::NewKeyboard> added;
    for (OpenedDevice& device : answer.value()) added.push_back(add(std::move(device)));
    if (!added.empty()) m_listener.keyboardsCame(added);
    if (std::exchange(m_asksAgain, false)) ask(DeviceOpener::Question::avoided);
}

KeyboardListener::NewKeyboard Keyboards::add(OpenedDevice device) {
    // Numbers are used again only after many thousand keyboards.
    const std::uint16_t number = ++m_lastNumber;
    const auto [place, isNew] = m_readers.try_emplace(number, std::move(device), m_places.calls);
    const EventReader& reader = place->second;
    m_wakeups.watch(reader.fileDescriptor());
    return {.number = number, .down = reader.down(), .lights = reader.lights()};
}

void Keyboards::read() {
    for (const std::uint16_t number : readKeys()) remove(number);
    // Those that are gone may come back by the same name.
    if (m_folder) followFolder();
    if (EventSource* source = m_places.opener.source()) source->dispatch();
}

/// The numbers of those that are gone.
std::vector<std::uint16_t> Keyboards::readKeys() {
    KeyQueues queues;
    std::vector<std::uint16_t> gone;
    for (auto& [number, reader] : m_readers) {
        if (!reader.read(queues[number])) gone.push_back(number);
    }
    std::erase_if(queues, [](const auto& entry) { return entry.second.empty(); });
    while (!queues.empty()) {
        auto& [number, keys] = earliest(queues);
        m_listener.key(number, keys.takeFront());
        if (keys.empty()) queues.erase(std::uint16_t{number});
    }
    return gone;
}

void Keyboards::remove(std::uint16_t number) {
    const auto reader = m_readers.find(number);
    const std::string name = reader->second.name();
    m_wakeups.unwatch(reader->second.fileDescriptor());
    m_readers.erase(reader);
    m_listener.keyboardGone(number);
    const std::vector<std::string> present = listKeyboards(m_places.folders);
    if (std::find(present.begin(), present.end(), name) != present.end()) {
        m_problem = permissionEnded();
        m_isOpen = !m_readers.empty();
    } else if (!m_asked) {
        // It was unplugged, or it is shown only to whoever has opened it, who knows.
        ask(DeviceOpener::Question::avoided);
    }
}

/// What is down on them is up.
void Keyboards::lose(const Error& why) {
    while (!m_readers.empty()) {
        const auto reader = m_readers.begin();
        const std::uint16_t number = reader->first;
        m_wakeups.unwatch(reader->second.fileDescriptor());
        m_readers.erase(reader);
        m_listener.keyboardGone(number);
    }
    m_isOpen = false;
    m_problem = why;
}

void Keyboards::followFolder() {
    if (!m_folder->take()) return;
    if (m_asked) {
        m_asksAgain = true;
    } else {
        ask(DeviceOpener::Question::avoided);
    }
}

}  // namespace evdev
