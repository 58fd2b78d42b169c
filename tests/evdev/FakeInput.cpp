// SPDX-License-Identifier: MIT
#include "evdev/FakeInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "platform/Wiping.h"

namespace {

ino_t inodeOf(int descriptor) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) throw std::runtime_error("no such descriptor");
    return status.st_ino;
}

/// The kernel's time has the width of a machine word.
input_event eventAt(Clock::Time time) {
    const auto sinceStart = std::chrono::duration_cast<std::chrono::microseconds>(time.time_since_epoch());
    input_event event{};
    event.input_event_sec = static_cast<decltype(event.input_event_sec)>(sinceStart.count() / 1'000'000);
    event.input_event_usec = static_cast<decltype(event.input_event_usec)>(sinceStart.count() % 1'000'000);
    return event;
}

/// To those of 32 bits the kernel shows each word as two, but no empty ones in front.
std::string asShownHere(const std::string& keys) {
    if (sizeof(long) == sizeof(std::uint64_t)) return keys;
    constexpr int halfBits = 32;
    std::istringstream words(keys);
    std::ostringstream halves;
    halves << std::hex;
    for (std::uint64_t word = 0; words >> std::hex >> word;) {
        const std::uint64_t upper = word >> halfBits;
        const bool isFirst = halves.tellp() == 0;
        if (upper != 0 || !isFirst) halves << (isFirst ? "" : " ") << upper << ' ';
        halves << (word & 0xFFFF'FFFF);
    }
    return halves.str();
}

}  // namespace

FakeInput::FakeInput() {
    std::filesystem::create_directory(folders().devices);
    std::filesystem::create_directory(folders().classes);
}

FakeInput::Device::Device(const evdev::InputFolders& folders, int number, const std::string& keys,
                          const std::string& place)
    : m_class(folders.classes + "/event" + std::to_string(number)),
      m_file(folders.devices + "/event" + std::to_string(number)) {
    std::filesystem::create_directories(m_class + "/device/capabilities");
    std::ofstream(m_class + "/device/capabilities/key") << asShownHere(keys) << '\n';
    std::ofstream(m_class + "/device/phys") << place << '\n';
    // Comes with its writer, since a pipe without one is at its end.
    const std::string hidden = m_file + ".new";
    if (mkfifo(hidden.c_str(), 0600) != 0) throw std::runtime_error("no pipe");
    m_writer.reset(open(hidden.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    std::filesystem::rename(hidden, m_file);
}

FakeInput::Device::~Device() {
    std::filesystem::remove_all(m_class);
    std::filesystem::remove(m_file);
}

void FakeInput::Device::send(const input_event& event) const {
    if (write(m_writer.number(), &event, sizeof event) != sizeof event) throw std::runtime_error("pipe full");
}

void FakeInput::Device::key(std::uint16_t evdevCode, std::int32_t value, Clock::Time time) const {
    input_event event = eventAt(time);
    event.type = EV_KEY;
    event.code = evdevCode;
    event.value = value;
    send(event);
    event.type = EV_SYN;
    event.code = SYN_REPORT;
    event.value = 0;
    send(event);
}

void FakeInput::Device::lost(Clock::Time time) const {
    input_event event = eventAt(time);
    event.type = EV_SYN;
    event.code = SYN_DROPPED;
    send(event);
}

ino_t FakeInput::Device::inode() const { return inodeOf(m_writer.number()); }

std::unique_ptr<FakeInput::Device> FakeInput::plug(int number, const std::string& keys,
                                                   const std::string& place) const {
    return std::make_unique<Device>(folders(), number, keys, place);
}

FakeCalls::Answers FakeCalls::answersOf(int device) const {
    const auto answers = m_answers.find(inodeOf(device));
    return answers == m_answers.end() ? Answers() : answers->second;
}
